#pragma once

#include <gtest/gtest.h>
#include <string>

namespace testsupport {

/// Names the rows of a table test by their member `name`.
struct RowName
{
    template <typename Row>
    std::string operator()(const testing::TestParamInfo<Row>& info) const
    {
        return info.param.name;
    }
};

} // namespace testsupport
