// A host's category library, three bytes an object: its level and whether it is missing, its sort index, its code.
#include "PropertySvcs/PropertyService.h"
#include "support/FakeCategoryInfo.h"
#include "support/FakeCategoryInfoUtils.h"
#include "support/FakeDisciplineInfo.h"
#include "support/FuzzHost.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <deque>
#include <set>

namespace {

using tarnnuq::ICategory;
using Categories = std::vector<std::shared_ptr<ICategory>>;

/// The library of one input. Objects go beneath the last one of the level above.
class Library
{
public:
    Library(const std::uint8_t* data, std::size_t size)
    {
        for (; size >= 3; data += 3, size -= 3) {
            Add(data[0], data[1], data[2]);
        }
    }

    testsupport::FakeCategoryInfoUtils utils;

private:
    void Add(std::uint8_t kind, std::uint8_t sortIndex, std::uint8_t code)
    {
        const std::wstring key = std::to_wstring(++m_keys);
        const bool isMissing = (kind & 0x80U) != 0;
        if (kind % 3 == 0 || m_disciplines.empty()) {
            utils.disciplines[key] = isMissing ? nullptr : Make(m_disciplines, sortIndex, code);
        } else if (kind % 3 == 1 || !m_category) {
            m_category = Make(m_categories, sortIndex, code);
            m_disciplines.back().categories[key] = isMissing ? nullptr : m_category;
        } else {
            m_category->subCategories[key] = isMissing ? nullptr : Make(m_categories, sortIndex, code);
        }
    }

    template <typename Info>
    static Info* Make(std::deque<Info>& objects, std::uint8_t sortIndex, std::uint8_t code)
    {
        Info& info = objects.emplace_back();
        info.sortIndex = static_cast<std::int8_t>(sortIndex);
        info.code = code == 0 ? std::wstring() : std::to_wstring(code % 16);
        info.id = L"id " + std::to_wstring(objects.size());
        info.name = L"name " + std::to_wstring(objects.size());
        return &info;
    }

    int m_keys = 0;
    std::deque<testsupport::FakeDisciplineInfo> m_disciplines;
    std::deque<testsupport::FakeCategoryInfo> m_categories;
    testsupport::FakeCategoryInfo* m_category = nullptr;
};

void Expect(bool isTrue)
{
    if (!isTrue) {
        std::abort();
    }
}

void CheckRecord(const ICategory& category)
{
    const std::size_t level = category.NamePath.size();
    Expect(level == 2 || level == 3);
    Expect(category.NamePath.back() == category.Name);
    Expect((category.ParentIdText == L"0") == (category.NamePath.front() == L"全部"));
    Expect(level == 2 || category.IsLeaf);
}

void CheckChain(tarnnuq::PropertyService& service, const ICategory& category, std::size_t most)
{
    const Categories chain = service.GetFullCategories(category.Code);
    Expect(chain.empty() == category.Code.empty());
    Expect(chain.size() <= most);
    Expect(chain.empty() || chain.back() == service.GetCategoryByCode(category.Code));
    for (std::size_t i = 1; i < chain.size(); ++i) {
        Expect(chain[i - 1]->Code == chain[i]->ParentCode);
    }
    Expect(std::set<std::shared_ptr<ICategory>>(chain.begin(), chain.end()).size() == chain.size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::FuzzHost::Get();
    // Declared first: the service keeps pointers to what it found.
    Library library(data, size);
    const hostsdk::HostServices before = hostsdk::Installed();
    hostsdk::HostServices services = before;
    services.categoryInfo = &library.utils;
    hostsdk::Install(services);
    tarnnuq::PropertyService& service = *tarnnuq::PropertyService::Get();
    service.Init();
    hostsdk::Install(before);
    const Categories categories = service.GetCategories();
    Expect(!categories.empty() && categories.front()->Name == L"全部");
    for (std::size_t i = 1; i < categories.size(); ++i) {
        CheckRecord(*categories[i]);
    }
    // Each code once: there are few of them.
    std::set<std::wstring> codes;
    for (const auto& spCategory : categories) {
        if (codes.insert(spCategory->Code).second) {
            CheckChain(service, *spCategory, categories.size());
        }
    }
    return 0;
}
