#include "TarnNuqService/PropertySvcs/HostLibrary.h"

#include "support/FakeCategoryInfoUtils.h"

#include <algorithm>
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

/// A code that begins with the one above it, as standards number their kinds.
std::wstring NumberedCode(const std::wstring& above, std::size_t number)
{
    const std::wstring digits = std::to_wstring(number);
    return above + std::wstring(6 - std::min<std::size_t>(6, digits.size()), L'0') + digits;
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
    std::vector<FakeDisciplineInfo*> disciplines;
    for (; records > 0 && disciplines.size() < Disciplines; --records) {
        disciplines.push_back(&AddDiscipline(NumberedCode(L"", disciplines.size()), -records));
    }
    std::vector<FakeCategoryInfo*> categories;
    for (; records > 0 && categories.size() < Disciplines * CategoriesOfEach; --records) {
        FakeDisciplineInfo& discipline = *disciplines[categories.size() % Disciplines];
        categories.push_back(&AddCategory(discipline, NumberedCode(discipline.code, categories.size()), -records));
    }
    // The objects of one category lie together, as they do in a host that reads them from its files.
    for (auto left = static_cast<int>(categories.size()); left > 0; --left) {
        FakeCategoryInfo& category = *categories[static_cast<std::size_t>(left) - 1];
        for (int share = (records + left - 1) / left; share > 0; --share, --records) {
            AddEndCategory(category, NumberedCode(category.code, category.subCategories.size()), -records);
        }
    }
}

} // namespace testsupport
