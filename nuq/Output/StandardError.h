#pragma once

#include "Output/Style.h"

#include <string>
#include <string_view>

namespace nuq {

/** The standard error: everything that is not the result. Written at once, never through a buffer. */
class StandardError
{
public:
    explicit StandardError(const Style& style) : m_style(style) {}

    const Style& Look() const { return m_style; }

    /** One line, written whole. */
    void Line(std::string_view text);

    /** The program's name in front of a message, as other programs do it. */
    void Message(std::string_view text);

    /** A piece without a line end, for a line that is written over. */
    void Raw(std::string_view text);

private:
    Style m_style;
};

} // namespace nuq
