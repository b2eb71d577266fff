#pragma once

#include "Diagnosis/Finding.h"

namespace componentlibrary {

/**
 * Checks the environment files of the library one by one, the current environment and its two addresses.
 *
 * The library reads these files without a word when they are missing or broken, and every address is empty then; this
 * says which one it was. Reads files only. @param applicationFolder as the host gives it, without a slash at its end
 */
Findings CheckConfiguration(const QString& applicationFolder);

} // namespace componentlibrary
