#include "TarnNuqService/PropertySvcs/HostLibrary.h"

#include "support/FakeCategoryInfoUtils.h"

#include <vector>

namespace testsupport {

namespace {

template <typename Info>
Info& SetTexts(Info& info, const std::wstring& code, int sortIndex)
{
    info.sortIndex = sortIndex;
    info.id = L"id " + code;
    info.code = code;
    info.name = L"name " + code;
    return info;
}

} // namespace

FakeDisciplineInfo& HostLibrary::AddDiscipline(const std::wstring& code, int sortIndex)
{
    FakeDisciplineInfo& discipline = SetTexts(m_disciplines.emplace_back(), code, sortIndex);
    m_utils.disciplines[code] = &discipline;
    return discipline;
}

FakeCategoryInfo& HostLibrary::AddCategory(FakeDisciplineInfo& discipline, const std::wstring& code, int sortIndex)
{
    FakeCategoryInfo& category = MakeCategory(code, sortIndex);
    discipline.categories[code] = &category;
    return category;
}

FakeCategoryInfo& HostLibrary::AddEndCategory(FakeCategoryInfo& category, const std::wstring& code, int sortIndex)
{
    FakeCategoryInfo& endCategory = MakeCategory(code, sortIndex);
    category.subCategories[code] = &endCategory;
    return endCategory;
}

FakePropertyInfo& HostLibrary::AddProperty(FakeCategoryInfo& category, const std::wstring& name, int sortIndex)
{
    FakePropertyInfo& property = m_properties.emplace_back();
    property.sortIndex = sortIndex;
    property.id = L"id " + name;
    property.code = L"code " + name;
    property.name = name;
    property.groupName = L"group " + name;
    category.properties[name] = &property;
    return property;
}

FakeCategoryInfo& HostLibrary::MakeCategory(const std::wstring& code, int sortIndex)
{
    FakeCategoryInfo& category = SetTexts(m_categories.emplace_back(), code, sortIndex);
    m_utils.categoriesByCode[code] = &category;
    return category;
}

void HostLibrary::Fill(int records)
{
    constexpr int Disciplines = 10;
    constexpr int CategoriesOfEach = 30;
    auto nextCode = [number = 100000000]() mutable { return std::to_wstring(++number); };
    std::vector<FakeDisciplineInfo*> disciplines;
    for (; records > 0 && disciplines.size() < Disciplines; --records) {
        disciplines.push_back(&AddDiscipline(nextCode(), -records));
    }
    std::vector<FakeCategoryInfo*> categories;
    for (; records > 0 && categories.size() < Disciplines * CategoriesOfEach; --records) {
        categories.push_back(&AddCategory(*disciplines[categories.size() % Disciplines], nextCode(), -records));
    }
    for (std::size_t next = 0; records > 0; --records, ++next) {
        AddEndCategory(*categories[next % categories.size()], nextCode(), -records);
    }
}

} // namespace testsupport
