#pragma once

#include "Output/Style.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace nuq {

/** Names and values below each other, for one record. Values are shown as they are, so make them visible first. */
class FieldList
{
public:
    void Add(std::string name, std::string value);

    /** All fields, one a line, values aligned. */
    std::string Text(const Style& style) const;

private:
    std::vector<std::pair<std::string, std::string>> m_fields;
};

} // namespace nuq
