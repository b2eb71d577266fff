#pragma once

#include "tarn/TarnComponentSqlUtil.h"

#include <map>
#include <string>
#include <vector>

namespace testsupport {

/// A component database with answers to set; keeps the questions.
class FakeComponentSql final : public tarn::TarnComponentSqlUtil
{
public:
    struct Question
    {
        std::wstring dbPath;
        std::wstring categoryCode;
        tarn::TarnLegendType type;
    };

    bool succeeds = true;
    std::map<std::wstring, std::wstring> legends;
    mutable std::vector<Question> questions;

protected:
    bool DoGetLocalLegendsOfTheCategory(const std::wstring& dbPath, const std::wstring& categoryCode,
        tarn::TarnLegendType type, std::map<std::wstring, std::wstring>& filled) const override
    {
        questions.push_back({dbPath, categoryCode, type});
        filled = legends;
        return succeeds;
    }
};

} // namespace testsupport
