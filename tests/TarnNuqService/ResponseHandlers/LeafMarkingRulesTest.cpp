#include "ResponseHandlers/LeafMarking_p.h"

#include "Records/ICategory.h"
#include "TarnNuqService/ResponseHandlers/RandomJson.h"

#include <QElapsedTimer>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

using namespace testsupport;
using namespace tarnnuq;

std::shared_ptr<ICategory> Category(const std::wstring& code, const std::wstring& parentCode)
{
    auto category = std::make_shared<ICategory>();
    category->Code = code;
    category->ParentCode = parentCode;
    return category;
}

/// The rule in its plain form: quadratic, but obviously right.
bool IsLeaf(const RecordList<ICategory>& categories, const ICategory& category)
{
    return std::none_of(categories.begin(), categories.end(),
        [&category](const auto& other) { return other->ParentCode == category.Code; });
}

/// Random codes of a small alphabet, so that most of them meet.
RecordList<ICategory> RandomCategories(RandomJson& random)
{
    const QStringList pieces{QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("a"), QStringLiteral("A"),
        QStringLiteral("."), QStringLiteral("风")};
    RecordList<ICategory> categories;
    for (int count = random.Below(60); count > 0; --count) {
        categories.push_back(Category(random.Text(pieces, 2).toStdWString(), random.Text(pieces, 2).toStdWString()));
        categories.back()->IsLeaf = random.Below(2) == 0;
    }
    return categories;
}

TEST(LeafMarkingRulesTest, FlagsAreThoseOfThePlainRule)
{
    RandomJson random;
    for (int round = 0; round < RandomJson::Rounds / 10; ++round) {
        const RecordList<ICategory> categories = RandomCategories(random);
        MarkLeaves(categories);
        for (const auto& category : categories) {
            ASSERT_EQ(category->IsLeaf, IsLeaf(categories, *category)) << "round " << round;
        }
    }
}

TEST(LeafMarkingRulesTest, EmptyListIsFine)
{
    MarkLeaves({});
}

TEST(LeafMarkingRulesTest, MarkingEndsAtTheFirstNullEntry)
{
    const RecordList<ICategory> categories{Category(L"1", L"-"), nullptr, Category(L"2", L"-")};
    MarkLeaves(categories);
    EXPECT_TRUE(categories[0]->IsLeaf);
    EXPECT_FALSE(categories[2]->IsLeaf);
}

TEST(LeafMarkingRulesTest, OnlyTheFlagIsWritten)
{
    const RecordList<ICategory> categories{Category(L"1", L""), Category(L"2", L"1")};
    MarkLeaves(categories);
    EXPECT_EQ(categories[1]->Code, L"2");
    EXPECT_EQ(categories[1]->ParentCode, L"1");
    EXPECT_EQ(categories[1]->Name, L"");
}

TEST(LeafMarkingRulesTest, AHundredThousandChildrenOfOneParentTakeNoQuadraticTime)
{
    RecordList<ICategory> categories{Category(L"parent", L"")};
    for (int number = 0; number < 100000; ++number) {
        categories.push_back(Category(L"parent." + std::to_wstring(number), L"parent"));
    }
    QElapsedTimer timer;
    timer.start();
    MarkLeaves(categories);
    EXPECT_LT(timer.elapsed(), 5000);
    EXPECT_FALSE(categories[0]->IsLeaf);
    EXPECT_TRUE(
        std::all_of(categories.begin() + 1, categories.end(), [](const auto& category) { return category->IsLeaf; }));
}

} // namespace
