#pragma once

#include "CommandLine/CommandLineParser.h"

#include <string>
#include <vector>

namespace nuq {

/** A file of the source tree that is written from the command tables. */
struct Page
{
    std::string path; ///< from the root of the tree
    std::string text;
};

/** All such files with the text they should have. */
std::vector<Page> MakePages(const Commands& commands);

} // namespace nuq
