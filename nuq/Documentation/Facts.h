#pragma once

#include <vector>

namespace nuq {

/** A line of one of the reference lists that stand in the manual page and in docs/cli.md alike. */
struct Fact
{
    const char* name;
    const char* text;
};

const std::vector<Fact>& ExitStatusFacts();
const std::vector<Fact>& EnvironmentFacts();
const std::vector<Fact>& FileFacts();

} // namespace nuq
