#include "Output/StandardError.h"

#include <cstdio>

namespace nuq {

void StandardError::Raw(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), stderr);
    std::fflush(stderr);
}

void StandardError::Line(std::string_view text)
{
    Raw(std::string(text) + '\n');
}

void StandardError::Message(std::string_view text)
{
    Line("nuq: " + std::string(text));
}

} // namespace nuq
