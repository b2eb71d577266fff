#pragma once

#include "tarnnuq/Major.h"

#include <QString>
#include <optional>

namespace standalone {

/// The major of that name: "none", "plumbing", "hvac" or "electrical". Letter case and blanks around it do not
/// matter.
/// @return nothing for any other text
std::optional<tarnnuq::Major> MajorFromText(const QString& text);

} // namespace standalone
