#pragma once

#include "Output/Style.h"

#include <string>
#include <vector>

namespace nuq {

/**
 * Aligned columns for people.
 *
 * Cells are shown as they are: pass texts from outside through VisibleText first. Widths are kept from one Take() to
 * the next, so that a list printed page by page stays aligned as well as it can.
 */
class Table
{
public:
    enum class Align
    {
        Left,
        Right
    };

    struct Column
    {
        std::string title;
        Align align = Align::Left;
        bool mayShrink = false; ///< cut first when the terminal is too narrow
    };

    /** @param terminalWidth columns of the terminal; 0: nothing is ever cut */
    Table(std::vector<Column> columns, const Style& style, int terminalWidth = 0);

    /** REQUIRES: as many cells as columns. */
    void AddRow(std::vector<std::string> cells);

    /** The rows added since the last call as text, the first time below the titles. */
    std::string Take();

private:
    void Measure();
    void Shrink();
    std::string Line(const std::vector<std::string>& cells, Emphasis emphasis) const;

    std::vector<Column> m_columns;
    Style m_style;
    int m_terminalWidth;
    std::vector<int> m_widths;
    std::vector<std::vector<std::string>> m_rows;
    bool m_hasTitles = false;
};

} // namespace nuq
