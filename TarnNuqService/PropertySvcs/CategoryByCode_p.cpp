#include "PropertySvcs/CategoryByCode_p.h"

#include "Records/ICategory.h"

#include <algorithm>
#include <map>
#include <string_view>
#include <unordered_set>

namespace tarnnuq {

namespace {

// Trees are three levels deep, and scanning for so few parents is cheaper than an index. Codes that occur over and over
// make longer chains, which must not take a scan of the list for each of their categories.
constexpr std::size_t LongestScannedChain = 32;

/// Finds parents by scanning the list, and by an index once a chain has become long.
class ParentFinder
{
public:
    explicit ParentFinder(const RecordList<ICategory>& categories) : m_categories(categories) {}

    std::shared_ptr<ICategory> Find(const std::wstring& code, std::size_t chainLength)
    {
        if (chainLength < LongestScannedChain) {
            return FindByCode(m_categories, code);
        }
        if (m_byCode.empty()) {
            for (const auto& spCategory : m_categories) {
                m_byCode.emplace(spCategory->Code, &spCategory);
            }
        }
        const auto found = m_byCode.find(code);
        return found == m_byCode.end() ? nullptr : *found->second;
    }

private:
    const RecordList<ICategory>& m_categories;
    std::map<std::wstring_view, const std::shared_ptr<ICategory>*> m_byCode;
};

bool IsBelowTheRoot(const ICategory& category)
{
    return !category.Code.empty() && category.Code != L"0";
}

} // namespace

std::shared_ptr<ICategory> FindByCode(const RecordList<ICategory>& categories, const std::wstring& code)
{
    const auto found = std::find_if(categories.begin(), categories.end(),
        [&code](const std::shared_ptr<ICategory>& spCategory) { return spCategory->Code == code; });
    return found == categories.end() ? nullptr : *found;
}

RecordList<ICategory> ChainByCode(const RecordList<ICategory>& categories, const std::wstring& code)
{
    RecordList<ICategory> chain;
    if (code.empty()) {
        return chain;
    }
    ParentFinder parents(categories);
    std::unordered_set<const ICategory*> taken;
    auto spCategory = FindByCode(categories, code);
    while (spCategory && taken.insert(spCategory.get()).second) {
        chain.push_back(spCategory);
        auto spParent = parents.Find(spCategory->ParentCode, chain.size());
        spCategory = spParent && IsBelowTheRoot(*spParent) ? std::move(spParent) : nullptr;
    }
    std::reverse(chain.begin(), chain.end());
    return chain;
}

} // namespace tarnnuq
