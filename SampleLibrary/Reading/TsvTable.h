#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace samplelibrary {

/// A table of tab-separated texts with a header line. Blank lines and lines that begin with "#" are comments.
class TsvTable
{
public:
    /// Reads @p text; @p name is the file name for messages, @p separator stands between the cells.
    /// Throws SourceError when a line has another number of cells than the header.
    TsvTable(std::string name, const std::string& text, char separator = '\t');

    /// Number of rows without the header.
    std::size_t RowCount() const { return m_rows.size(); }

    /// Names of the columns from left to right.
    const std::vector<std::string>& Columns() const { return m_columns; }

    /// Cell of @p row under the heading @p column. Throws SourceError when there is no such column.
    const std::string& Cell(std::size_t row, const std::string& column) const;

    /// Cell as a whole number. Throws SourceError when it is none.
    int Integer(std::size_t row, const std::string& column) const;

    /// All cells of @p row from left to right.
    const std::vector<std::string>& Cells(std::size_t row) const { return m_rows[row].Cells; }

    /// "file:line" of @p row, for messages.
    std::string Where(std::size_t row) const;

private:
    struct Row
    {
        int Line;
        std::vector<std::string> Cells;
    };

    void AddLine(const std::string& line, int number, char separator);

    std::string m_name;
    std::vector<std::string> m_columns;
    std::map<std::string, std::size_t> m_columnIndex;
    std::vector<Row> m_rows;
};

} // namespace samplelibrary
