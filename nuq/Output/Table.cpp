#include "Output/Table.h"

#include "Output/TextWidth.h"

#include <algorithm>
#include <numeric>

namespace nuq {
namespace {

constexpr int kGap = 2;
constexpr int kNarrowest = 8;

} // namespace

Table::Table(std::vector<Column> columns, const Style& style, int terminalWidth)
    : m_columns(std::move(columns)), m_style(style), m_terminalWidth(terminalWidth), m_widths(m_columns.size(), 0)
{
    for (std::size_t column = 0; column < m_columns.size(); ++column)
        m_widths[column] = TextWidth(m_columns[column].title);
}

void Table::AddRow(std::vector<std::string> cells)
{
    m_rows.push_back(std::move(cells));
}

void Table::Measure()
{
    for (const auto& row : m_rows) {
        for (std::size_t column = 0; column < m_columns.size(); ++column)
            m_widths[column] = std::max(m_widths[column], TextWidth(row[column]));
    }
}

void Table::Shrink()
{
    const int gaps = kGap * (static_cast<int>(m_columns.size()) - 1);
    int excess = std::accumulate(m_widths.begin(), m_widths.end(), gaps) - m_terminalWidth;
    for (std::size_t column = 0; column < m_columns.size() && excess > 0; ++column) {
        if (!m_columns[column].mayShrink)
            continue;
        const int cut = std::clamp(m_widths[column] - kNarrowest, 0, excess);
        m_widths[column] -= cut;
        excess -= cut;
    }
}

std::string Table::Line(const std::vector<std::string>& cells, Emphasis emphasis) const
{
    std::string line;
    for (std::size_t column = 0; column < cells.size(); ++column) {
        const std::string cell = CutToWidth(cells[column], std::max(1, m_widths[column]));
        const std::string filler(static_cast<std::size_t>(std::max(0, m_widths[column] - TextWidth(cell))), ' ');
        const bool isRight = m_columns[column].align == Align::Right;
        if (isRight)
            line += filler;
        line += m_style.Paint(emphasis, cell);
        if (column + 1 == cells.size())
            break;
        if (!isRight)
            line += filler;
        line.append(kGap, ' ');
    }
    line.erase(line.find_last_not_of(' ') + 1);
    return line + '\n';
}

std::string Table::Take()
{
    Measure();
    if (m_terminalWidth > 0)
        Shrink();
    std::string text;
    if (!m_hasTitles) {
        std::vector<std::string> titles;
        for (const Column& column : m_columns)
            titles.push_back(column.title);
        text += Line(titles, Emphasis::Strong);
        m_hasTitles = true;
    }
    for (const auto& row : m_rows)
        text += Line(row, Emphasis::None);
    m_rows.clear();
    return text;
}

} // namespace nuq
