#pragma once

#include "tarn/ITarnCategoryInfoUtils.h"

#include <map>
#include <string>

namespace testsupport {

/// A category library with answers to set; what its maps point to belongs to the test.
class FakeCategoryInfoUtils final : public tarn::ITarnCategoryInfoUtils
{
public:
    bool GetDisciplines(std::map<std::wstring, const tarn::ITarnDisciplineInfo*>& filled) const override
    {
        filled = disciplines;
        return succeeds;
    }

    bool FindCategoryByCode(const std::wstring& code, const tarn::ITarnCategoryInfo*& info) const override
    {
        const auto found = categoriesByCode.find(code);
        info = found != categoriesByCode.end() ? found->second : nullptr;
        return found != categoriesByCode.end();
    }

    /// What GetDisciplines() returns.
    bool succeeds = true;
    std::map<std::wstring, const tarn::ITarnDisciplineInfo*> disciplines;
    /// A code with a null entry is known but without a category.
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> categoriesByCode;
};

} // namespace testsupport
