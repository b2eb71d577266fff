#pragma once

#include "tarn/ITarnDisciplineInfo.h"

#include <map>
#include <string>

namespace testsupport {

/// A discipline with answers to set; what its map points to belongs to the test.
class FakeDisciplineInfo final : public tarn::ITarnDisciplineInfo
{
public:
    int GetSortIndex() const override { return sortIndex; }
    std::wstring GetId() const override { return id; }
    std::wstring GetName() const override { return name; }
    void GetCategories(std::map<std::wstring, const tarn::ITarnCategoryInfo*>& filled) const override
    {
        filled = categories;
    }
    std::wstring GetCode() const override { return code; }

    int sortIndex = 0;
    std::wstring id;
    std::wstring name;
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> categories;
    std::wstring code;
};

} // namespace testsupport
