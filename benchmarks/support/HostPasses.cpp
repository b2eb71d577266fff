#include "HostPasses.h"

#include "hostsdk/HostServices.h"

namespace bench {

namespace {

/// Makes this the host's category library.
void Install(const testsupport::FakeCategoryInfoUtils* utils)
{
    hostsdk::HostServices services = hostsdk::Installed();
    services.categoryInfo = const_cast<testsupport::FakeCategoryInfoUtils*>(utils);
    hostsdk::Install(services);
}

template <typename Info>
std::size_t AskForTexts(const Info& info)
{
    return static_cast<std::size_t>(info.GetSortIndex()) + info.GetId().size() + info.GetName().size() +
           info.GetCode().size();
}

std::size_t AskCategory(const tarn::ITarnCategoryInfo& category)
{
    std::size_t size = AskForTexts(category);
    for (const auto& entry : category.GetSubCategories()) {
        size += AskForTexts(*entry.second);
    }
    return size;
}

std::size_t AskProperty(const tarn::ITarnPropertyInfo& property)
{
    std::map<std::wstring, int> ids;
    std::map<int, std::wstring> texts;
    property.GetValueIds(ids);
    property.GetValueTexts(texts);
    const std::size_t numbers =
        static_cast<std::size_t>(property.GetStorageType()) + static_cast<std::size_t>(property.GetDisplayType()) +
        (property.IsInstance() ? 1U : 0U) + (property.IsEssential() ? 1U : 0U) + (property.IsInput() ? 1U : 0U);
    return numbers + AskForTexts(property) + property.GetGroupName().size() + ids.size() + texts.size();
}

} // namespace

HostTree::HostTree(int records) : m_library(m_utils)
{
    m_library.Fill(records);
}

std::size_t HostTree::AskForEverything() const
{
    std::size_t size = 0;
    std::map<std::wstring, const tarn::ITarnDisciplineInfo*> disciplines;
    m_utils.GetDisciplines(disciplines);
    for (const auto& discipline : disciplines) {
        size += AskForTexts(*discipline.second);
        std::map<std::wstring, const tarn::ITarnCategoryInfo*> categories;
        discipline.second->GetCategories(categories);
        for (const auto& category : categories) {
            size += AskCategory(*category.second);
        }
    }
    return size;
}

std::unique_ptr<tarnnuq::PropertyServiceAccess> HostTree::EmptyService() const
{
    Install(nullptr);
    auto access = std::make_unique<tarnnuq::PropertyServiceAccess>();
    Install(&m_utils);
    return access;
}

PropertyHost::PropertyHost(int properties) : m_library(m_utils)
{
    testsupport::FakeCategoryInfo& category = m_library.MakeCategory(Code);
    for (int number = 0; number < properties; ++number) {
        auto& property = m_library.AddProperty(category, L"property " + std::to_wstring(100000 + number), -number);
        property.storageType = static_cast<std::int16_t>(3 + number % 4);
        property.displayType = static_cast<std::int16_t>(4 + number % 10);
        if (number % 8 == 1) {
            property.valueIds = {{L"first value", 1}, {L"second value", 2}, {L"third value", 3}, {L"other", 4}};
            property.valueTexts = {{1, L"first text"}, {2, L"second text"}, {3, L"third text"}, {4, L"other"}};
        }
    }
}

std::size_t PropertyHost::AskForEverything() const
{
    const tarn::ITarnCategoryInfo* category = nullptr;
    m_utils.FindCategoryByCode(Code, category);
    std::map<std::wstring, const tarn::ITarnPropertyInfo*> properties;
    category->GetProperties(properties);
    std::size_t size = category->GetId().size() + category->GetName().size();
    for (const auto& property : properties) {
        size += AskProperty(*property.second);
    }
    return size;
}

std::unique_ptr<tarnnuq::PropertyServiceAccess> PropertyHost::Service() const
{
    Install(&m_utils);
    return std::make_unique<tarnnuq::PropertyServiceAccess>();
}

} // namespace bench
