#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>
#include <vector>

namespace nuq {

/**
 * Refuses what the parser lets pass although nobody means it: a switch with a value ("--tree=3"), and an option whose
 * value is left out, so that the next option would be taken for it ("--keyword --json").
 *
 * A value that looks like an option is still possible behind an equals sign; behind "--" nothing is looked at.
 * @throws UsageError
 */
void CheckOptionValues(const Commands& commands, const std::vector<std::string>& arguments);

} // namespace nuq
