#include "Output/Style.h"

namespace nuq {
namespace {

const char* Sequence(Emphasis emphasis)
{
    switch (emphasis) {
    case Emphasis::Strong:
        return "\033[1m";
    case Emphasis::Quiet:
        return "\033[2m";
    case Emphasis::Good:
        return "\033[32m";
    case Emphasis::Warning:
        return "\033[33m";
    case Emphasis::Bad:
        return "\033[31m";
    case Emphasis::Accent:
        return "\033[36m";
    case Emphasis::None:
        break;
    }
    return "";
}

} // namespace

std::string Style::Paint(Emphasis emphasis, std::string_view text) const
{
    if (!m_hasColour || emphasis == Emphasis::None || text.empty())
        return std::string(text);
    std::string painted = Sequence(emphasis);
    painted += text;
    painted += "\033[0m";
    return painted;
}

} // namespace nuq
