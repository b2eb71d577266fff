#include "support/FakeCategoryInfo.h"
#include "support/FakeDisciplineInfo.h"
#include "support/FakePropertyInfo.h"
#include "support/RecordingHost.h"
#include "tarn/TarnCategoryInfoUtilsHandler.h"

#include <gtest/gtest.h>

using tarn::TarnCategoryInfoUtilsHandler;
using testsupport::RecordingHost;

TEST(TheCategoryLibrary, IsTheHosts)
{
    RecordingHost host;
    EXPECT_EQ(TarnCategoryInfoUtilsHandler::Get().GetUtils(), &host.categoryInfo);
}

TEST(TheCategoryLibrary, IsMissingWithoutAHost)
{
    EXPECT_EQ(TarnCategoryInfoUtilsHandler::Get().GetUtils(), nullptr);
}

TEST(TheCategoryLibrary, IsMissingWhenTheHostHasNone)
{
    RecordingHost host;
    host.Remove(&hostsdk::HostServices::categoryInfo);
    EXPECT_EQ(TarnCategoryInfoUtilsHandler::Get().GetUtils(), nullptr);
}

TEST(TheCategoryLibrary, HasOneHandlerAProcess)
{
    EXPECT_EQ(&TarnCategoryInfoUtilsHandler::Get(), &TarnCategoryInfoUtilsHandler::Get());
}

TEST(TheCategoryLibrary, IsWalkedFromDisciplineToProperty)
{
    RecordingHost host;
    testsupport::FakePropertyInfo property;
    property.name = L"公称直径";
    testsupport::FakeCategoryInfo category;
    category.properties[L"p"] = &property;
    testsupport::FakeDisciplineInfo discipline;
    discipline.categories[L"c"] = &category;
    host.categoryInfo.disciplines[L"d"] = &discipline;

    std::map<std::wstring, const tarn::ITarnDisciplineInfo*> disciplines;
    ASSERT_TRUE(TarnCategoryInfoUtilsHandler::Get().GetUtils()->GetDisciplines(disciplines));
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> categories;
    disciplines.at(L"d")->GetCategories(categories);
    std::map<std::wstring, const tarn::ITarnPropertyInfo*> properties;
    categories.at(L"c")->GetProperties(properties);
    EXPECT_EQ(properties.at(L"p")->GetName(), L"公称直径");
}

TEST(TheCategoryLibrary, FindsKnownCodesEvenWithoutACategory)
{
    RecordingHost host;
    const testsupport::FakeCategoryInfo category;
    host.categoryInfo.categoriesByCode = {{L"known", &category}, {L"null", nullptr}};
    const tarn::ITarnCategoryInfo* info = nullptr;
    EXPECT_TRUE(host.categoryInfo.FindCategoryByCode(L"known", info));
    EXPECT_EQ(info, &category);
    EXPECT_TRUE(host.categoryInfo.FindCategoryByCode(L"null", info));
    EXPECT_EQ(info, nullptr);
    EXPECT_FALSE(host.categoryInfo.FindCategoryByCode(L"unknown", info));
}
