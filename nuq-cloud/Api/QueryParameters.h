#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace nuqcloud {

/// Which part of a list is asked for.
struct PageRequest
{
    std::int64_t page = 1;
    std::int64_t size = 20;

    std::int64_t Offset() const { return (page - 1) * size; }
};

/// The query of a request. Every reading operation throws ApiError when a value is not what it must be; a parameter
/// that nobody reads is ignored, so that older servers serve newer clients.
class QueryParameters
{
public:
    /// @param query the part behind "?", still encoded
    explicit QueryParameters(std::string_view query);

    /// The value, empty when absent. Throws when it has more than `longest` characters or is given twice.
    std::string Text(const std::string& name, std::size_t longest) const;

    /// A whole number within the limits, or the default when the parameter is absent or empty.
    std::int64_t Integer(
        const std::string& name, std::int64_t smallest, std::int64_t largest, std::int64_t absent) const;

    /// The value when it is one of the choices or absent (then empty).
    std::string Choice(const std::string& name, const std::vector<std::string>& choices) const;

    /// "page" from 1 and "page_size" from 1 to 200.
    PageRequest Page() const;

private:
    void Add(std::string_view item);

    std::map<std::string, std::vector<std::string>> m_values;
};

} // namespace nuqcloud
