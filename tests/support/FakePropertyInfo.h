#pragma once

#include "tarn/ITarnPropertyInfo.h"

#include <map>
#include <string>

namespace testsupport {

/// A property with answers to set.
class FakePropertyInfo final : public tarn::ITarnPropertyInfo
{
public:
    int GetSortIndex() const override { return sortIndex; }
    std::wstring GetId() const override { return id; }
    std::wstring GetCode() const override { return code; }
    std::wstring GetName() const override { return name; }
    std::wstring GetGroupName() const override { return groupName; }
    bool IsInstance() const override { return isInstance; }
    bool IsEssential() const override { return isEssential; }
    bool IsInput() const override { return isInput; }
    std::int16_t GetStorageType() const override { return storageType; }
    std::int16_t GetDisplayType() const override { return displayType; }
    void GetValueIds(std::map<std::wstring, int>& ids) const override { ids = valueIds; }
    void GetValueTexts(std::map<int, std::wstring>& texts) const override { texts = valueTexts; }

    int sortIndex = 0;
    std::wstring id;
    std::wstring code;
    std::wstring name;
    std::wstring groupName;
    bool isInstance = false;
    bool isEssential = false;
    bool isInput = true;
    std::int16_t storageType = 6;
    std::int16_t displayType = 10;
    std::map<std::wstring, int> valueIds;
    std::map<int, std::wstring> valueTexts;
};

} // namespace testsupport
