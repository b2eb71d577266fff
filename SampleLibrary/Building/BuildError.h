#pragma once

#include <stdexcept>

namespace samplelibrary {

/// A library could not be written; what() is a sentence for the user.
class BuildError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// The build was asked to stop; nothing is left of it.
class BuildInterrupted : public std::runtime_error
{
public:
    BuildInterrupted() : std::runtime_error("interrupted") {}
};

} // namespace samplelibrary
