#pragma once

#include "tarn/ITarnCategoryInfo.h"

#include <map>
#include <string>

namespace testsupport {

/// A category with answers to set; what its maps point to belongs to the test.
class FakeCategoryInfo final : public tarn::ITarnCategoryInfo
{
public:
    int GetSortIndex() const override { return sortIndex; }
    std::wstring GetId() const override { return id; }
    std::wstring GetCode() const override { return code; }
    std::wstring GetName() const override { return name; }
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> GetSubCategories() const override { return subCategories; }
    void GetProperties(std::map<std::wstring, const tarn::ITarnPropertyInfo*>& filled) const override
    {
        filled = properties;
    }

    int sortIndex = 0;
    std::wstring id;
    std::wstring code;
    std::wstring name;
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> subCategories;
    std::map<std::wstring, const tarn::ITarnPropertyInfo*> properties;
};

} // namespace testsupport
