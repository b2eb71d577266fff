#pragma once

#include <QString>

namespace standalone {

/// The product's whole version, "0.1.0".
QString ProductVersion();

/// A version written as a format asks. Each run of digits in the format stands for one field of the version, from
/// the first on, and tells how many digits the field has at least; everything between stays as it is. A field
/// beyond those of the version is 0. A format without digits asks for the whole version.
///
/// Version 1.4.2 with "0.0" gives "1.4", with "0" "1", with "00.00" "01.04", with "0.0.0.0" "1.4.2.0".
QString FormatVersion(const QString& version, const QString& format);

} // namespace standalone
