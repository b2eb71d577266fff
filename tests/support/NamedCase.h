#pragma once

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace testsupport {

/// One row of a table test. Its name says the behaviour, and is all that GoogleTest shows of it.
struct NamedCase
{
    const char* name;
};

inline std::ostream& operator<<(std::ostream& stream, const NamedCase& row)
{
    return stream << row.name;
}

/// Names the tests of a table after the member `name` of its rows.
struct RowName
{
    template <typename Row>
    std::string operator()(const testing::TestParamInfo<Row>& info) const
    {
        return info.param.name;
    }
};

} // namespace testsupport
