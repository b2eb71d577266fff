#include "Reading/TsvTable.h"

#include "Reading/SourceError.h"
#include "Reading/Texts.h"

#include <utility>

namespace samplelibrary {

TsvTable::TsvTable(std::string name, const std::string& text, char separator) : m_name(std::move(name))
{
    int number = 0;
    for (std::string& line : Split(text, '\n')) {
        ++number;
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        if (!line.empty() && line.front() != '#') {
            AddLine(line, number, separator);
        }
    }
}

void TsvTable::AddLine(const std::string& line, int number, char separator)
{
    std::vector<std::string> cells = Split(line, separator);
    if (m_columns.empty()) {
        m_columns = std::move(cells);
        for (std::size_t column = 0; column < m_columns.size(); ++column) {
            m_columnIndex[m_columns[column]] = column;
        }
        return;
    }
    if (cells.size() != m_columns.size()) {
        throw SourceError(m_name + ':' + std::to_string(number),
            "has " + std::to_string(cells.size()) + " cells instead of " + std::to_string(m_columns.size()));
    }
    m_rows.push_back({number, std::move(cells)});
}

const std::string& TsvTable::Cell(std::size_t row, const std::string& column) const
{
    const auto found = m_columnIndex.find(column);
    if (found == m_columnIndex.end()) {
        throw SourceError(m_name, "has no column \"" + column + '"');
    }
    return m_rows[row].Cells[found->second];
}

int TsvTable::Integer(std::size_t row, const std::string& column) const
{
    const std::optional<double> value = ParsedNumber(Cell(row, column));
    if (!value || *value != static_cast<int>(*value)) {
        throw SourceError(Where(row), "\"" + Cell(row, column) + "\" under \"" + column + "\" is no whole number");
    }
    return static_cast<int>(*value);
}

std::string TsvTable::Where(std::size_t row) const
{
    return m_name + ':' + std::to_string(m_rows[row].Line);
}

} // namespace samplelibrary
