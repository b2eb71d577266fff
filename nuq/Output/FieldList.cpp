#include "Output/FieldList.h"

#include "Output/TextWidth.h"

#include <algorithm>

namespace nuq {

void FieldList::Add(std::string name, std::string value)
{
    m_fields.emplace_back(std::move(name), std::move(value));
}

std::string FieldList::Text(const Style& style) const
{
    int width = 0;
    for (const auto& [name, value] : m_fields)
        width = std::max(width, TextWidth(name));
    std::string text;
    for (const auto& [name, value] : m_fields) {
        text += style.Paint(Emphasis::Strong, name);
        if (!value.empty())
            text += std::string(static_cast<std::size_t>(width - TextWidth(name) + 2), ' ') + value;
        text += '\n';
    }
    return text;
}

} // namespace nuq
