#pragma once

#include "Records/IParameter.h"

#include <string>

namespace componentlibrary {

/**
 * The value of a parameter as people read it: where the definition names its choices, the text of the choice instead
 * of its key ("Galvanized steel" for "GALV"), otherwise the value as it was sent, without its unit.
 *
 * A key that the definition does not know, or knows without a text, stays as it is. "" when no value is given.
 * @return lives as long as the parameter and its definition
 */
const std::wstring& ValueText(const tarnnuq::IParameter& parameter);

} // namespace componentlibrary
