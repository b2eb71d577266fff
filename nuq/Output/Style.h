#pragma once

#include <string>
#include <string_view>

namespace nuq {

/** What a piece of text means; only its look depends on the terminal. */
enum class Emphasis
{
    None,
    Strong,
    Quiet,
    Good,
    Warning,
    Bad,
    Accent
};

/** Colours text for a terminal, or leaves it as it is. */
class Style
{
public:
    explicit Style(bool hasColour = false) : m_hasColour(hasColour) {}

    bool HasColour() const { return m_hasColour; }

    std::string Paint(Emphasis emphasis, std::string_view text) const;

private:
    bool m_hasColour;
};

} // namespace nuq
