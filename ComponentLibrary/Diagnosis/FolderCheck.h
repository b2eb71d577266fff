#pragma once

#include "Diagnosis/Finding.h"

namespace componentlibrary {

/**
 * Whether files can be written into a folder, tried with a small temporary file; a folder that is missing is made.
 * @param check stable name of the check @param folder absolute path
 */
Finding CheckFolder(const QString& check, const QString& folder);

} // namespace componentlibrary
