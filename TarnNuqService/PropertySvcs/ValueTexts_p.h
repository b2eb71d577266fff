#pragma once

#include "tarn/ITarnPropertyInfo.h"

#include <map>
#include <optional>
#include <string>

namespace tarnnuq {

/// The display texts of a property's values, asked of the host once, and only when they are looked at.
class ValueTexts
{
public:
    explicit ValueTexts(const tarn::ITarnPropertyInfo& info) : m_info(info) {}

    /// @return the texts by value id
    const std::map<int, std::wstring>& Get()
    {
        if (!m_texts) {
            m_info.GetValueTexts(m_texts.emplace());
        }
        return *m_texts;
    }

private:
    const tarn::ITarnPropertyInfo& m_info;
    std::optional<std::map<int, std::wstring>> m_texts;
};

} // namespace tarnnuq
