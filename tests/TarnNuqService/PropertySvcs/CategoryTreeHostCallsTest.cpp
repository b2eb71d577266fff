// What the host is asked for, and in which order, while the tree is built.
#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "tarn/ITarnCategoryInfoUtils.h"

#include <algorithm>

namespace {

using Calls = std::vector<std::string>;

/// A category that notes each question under its name.
class NotingCategory final : public tarn::ITarnCategoryInfo
{
public:
    NotingCategory(Calls& calls, std::string name, int sortIndex)
        : m_calls(calls), m_name(std::move(name)), m_sortIndex(sortIndex)
    {
    }

    int GetSortIndex() const override { return Note("sort index"), m_sortIndex; }
    std::wstring GetId() const override { return Note("id"), L"id"; }
    std::wstring GetCode() const override { return Note("code"), L"code"; }
    std::wstring GetName() const override { return Note("name"), L"name"; }
    std::map<std::wstring, const ITarnCategoryInfo*> GetSubCategories() const override
    {
        Note("sub-categories");
        return subCategories;
    }
    void GetProperties(std::map<std::wstring, const tarn::ITarnPropertyInfo*>&) const override { Note("properties"); }

    std::map<std::wstring, const ITarnCategoryInfo*> subCategories;

private:
    void Note(const char* question) const { m_calls.push_back(m_name + " " + question); }

    Calls& m_calls;
    std::string m_name;
    int m_sortIndex;
};

/// A discipline that does the same.
class NotingDiscipline final : public tarn::ITarnDisciplineInfo
{
public:
    explicit NotingDiscipline(Calls& calls) : m_calls(calls) {}

    int GetSortIndex() const override { return Note("sort index"), 0; }
    std::wstring GetId() const override { return Note("id"), L"id"; }
    std::wstring GetName() const override { return Note("name"), L"name"; }
    void GetCategories(std::map<std::wstring, const tarn::ITarnCategoryInfo*>& filled) const override
    {
        Note("categories");
        filled = categories;
    }
    std::wstring GetCode() const override { return Note("code"), L"code"; }

    std::map<std::wstring, const tarn::ITarnCategoryInfo*> categories;

private:
    void Note(const char* question) const { m_calls.push_back(std::string("d ") + question); }

    Calls& m_calls;
};

class CategoryTreeHostCallsTest : public testsupport::PropertyServiceFixture
{
protected:
    CategoryTreeHostCallsTest()
    {
        category.subCategories[L"e"] = &endCategory;
        discipline.categories = {{L"c", &category}, {L"l", &leaf}};
        host.categoryInfo.disciplines[L"d"] = &discipline;
    }

    std::ptrdiff_t IndexOf(const std::string& call) const
    {
        return std::find(calls.begin(), calls.end(), call) - calls.begin();
    }

    Calls calls;
    NotingCategory endCategory{calls, "e", 0};
    NotingCategory category{calls, "c", 2};
    NotingCategory leaf{calls, "l", 1};
    NotingDiscipline discipline{calls};
};

} // namespace

TEST_F(CategoryTreeHostCallsTest, AsksEachObjectForEachOfItsTextsOnce)
{
    Service();
    Calls sorted = calls;
    std::sort(sorted.begin(), sorted.end());
    EXPECT_EQ(sorted, (Calls{"c code", "c id", "c name", "c sort index", "c sub-categories", "d categories", "d code",
                          "d id", "d name", "d sort index", "e code", "e id", "e name", "e sort index", "l code",
                          "l id", "l name", "l sort index", "l sub-categories"}));
}

TEST_F(CategoryTreeHostCallsTest, GoesThroughTheLibraryInTheOrderOfTheTree)
{
    Service();
    const std::vector<std::ptrdiff_t> order{IndexOf("d name"), IndexOf("d categories"), IndexOf("l name"),
        IndexOf("l sub-categories"), IndexOf("c name"), IndexOf("c sub-categories"), IndexOf("e name")};
    EXPECT_TRUE(std::is_sorted(order.begin(), order.end()));
}

TEST_F(CategoryTreeHostCallsTest, LookUpsAskForNothing)
{
    Service();
    calls.clear();
    host.logger.Clear();
    Service().GetCategories();
    Service().GetCategoryByCode(L"code");
    Service().GetEndTarnCategoryByCode(L"e");
    Service().GetFullCategories(L"code");
    EXPECT_EQ(calls, Calls());
    EXPECT_TRUE(host.logger.Records().empty());
}
