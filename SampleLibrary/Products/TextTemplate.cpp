#include "Products/TextTemplate.h"

#include "Reading/SourceError.h"

namespace samplelibrary {

TextTemplate::TextTemplate(const std::string& text, ValueSlots& slots)
{
    std::size_t at = 0;
    for (std::size_t open = text.find('{'); open != std::string::npos; open = text.find('{', at)) {
        const std::size_t close = text.find('}', open);
        if (close == std::string::npos) {
            throw SourceError(text, "a brace is not closed");
        }
        m_parts.push_back({text.substr(at, open - at), true, slots.Place(text.substr(open + 1, close - open - 1))});
        at = close + 1;
    }
    if (at < text.size() || m_parts.empty()) {
        m_parts.push_back({text.substr(at), false, 0});
    }
}

std::string TextTemplate::Filled(const ValueSlots& slots) const
{
    std::string text;
    for (const Part& part : m_parts) {
        text += part.Literal;
        const std::string* const value = part.HasPlace ? slots.Text(part.Place) : nullptr;
        if (value != nullptr) {
            text += *value;
        }
    }
    return text;
}

} // namespace samplelibrary
