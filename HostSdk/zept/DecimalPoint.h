#pragma once

#include <string>

namespace zept {

/**
 * Puts "." where a locale has written its own decimal point, which may be several bytes long.
 *
 * @param number what a printf conversion of a floating-point number has written, padding included.
 */
std::string WithPlainDecimalPoint(const std::string& number);

} // namespace zept
