#pragma once

#include <stdexcept>
#include <string>

namespace samplelibrary {

/// A fault in the source data: which file, which line or entry, and what is wrong with it.
class SourceError : public std::runtime_error
{
public:
    /// @param where file with line or entry, for example "kinds.tsv:12"
    /// @param what  plain sentence without a full stop
    SourceError(const std::string& where, const std::string& what) : std::runtime_error(where + ": " + what) {}
};

} // namespace samplelibrary
