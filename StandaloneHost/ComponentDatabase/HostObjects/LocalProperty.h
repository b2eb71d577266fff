#pragma once

#include "ComponentDatabase/Rows/CategoryPropertyRow.h"
#include "tarn/ITarnPropertyInfo.h"

namespace componentdatabase {

/// A property of a category as the library sees it. Not changed once made.
class LocalProperty final : public tarn::ITarnPropertyInfo
{
public:
    LocalProperty(const CategoryPropertyRow& row, bool isChinese);

    int GetSortIndex() const override { return m_sortIndex; }
    std::wstring GetId() const override { return m_id; }
    std::wstring GetCode() const override { return m_code; }
    std::wstring GetName() const override { return m_name; }
    std::wstring GetGroupName() const override { return m_groupName; }
    bool IsInstance() const override { return m_isInstance; }
    bool IsEssential() const override { return m_isEssential; }
    bool IsInput() const override { return m_isInput; }
    std::int16_t GetStorageType() const override { return m_storageType; }
    std::int16_t GetDisplayType() const override { return m_displayType; }
    void GetValueIds(std::map<std::wstring, int>& ids) const override { ids = m_valueIds; }
    void GetValueTexts(std::map<int, std::wstring>& texts) const override { texts = m_valueTexts; }

private:
    int m_sortIndex;
    std::wstring m_id;
    std::wstring m_code;
    std::wstring m_name;
    std::wstring m_groupName;
    bool m_isInstance;
    bool m_isEssential;
    bool m_isInput;
    std::int16_t m_storageType;
    std::int16_t m_displayType;
    std::map<std::wstring, int> m_valueIds;
    std::map<int, std::wstring> m_valueTexts;
};

} // namespace componentdatabase
