#pragma once

#include "support/FakeCategoryInfo.h"
#include "support/FakeDisciplineInfo.h"
#include "support/FakePropertyInfo.h"

#include <deque>
#include <string>

namespace testsupport {

class FakeCategoryInfoUtils;

/// A host's category library that a test puts together; owns every object that it hands out.
///
/// Each object stands in its map under its code, or its name for a property. An object with the code "p" has the id
/// "id p" and the name "name p".
class HostLibrary
{
public:
    /// @param utils where the disciplines are put, and the categories to find by code
    explicit HostLibrary(FakeCategoryInfoUtils& utils) : m_utils(utils) {}

    FakeDisciplineInfo& AddDiscipline(const std::wstring& code, int sortIndex = 0);
    FakeCategoryInfo& AddCategory(FakeDisciplineInfo& discipline, const std::wstring& code, int sortIndex = 0);
    FakeCategoryInfo& AddEndCategory(FakeCategoryInfo& category, const std::wstring& code, int sortIndex = 0);
    FakePropertyInfo& AddProperty(FakeCategoryInfo& category, const std::wstring& name, int sortIndex = 0);

    /// A category that stands nowhere yet.
    FakeCategoryInfo& MakeCategory(const std::wstring& code, int sortIndex = 0);

    /// Fills the library with so many records, the root not counted: ten disciplines of at most thirty categories
    /// each, and the end categories beneath those. Codes begin with the one above; sort indexes run with the keys.
    void Fill(int records);

private:
    FakeCategoryInfoUtils& m_utils;
    std::deque<FakeDisciplineInfo> m_disciplines;
    std::deque<FakeCategoryInfo> m_categories;
    std::deque<FakePropertyInfo> m_properties;
};

} // namespace testsupport
