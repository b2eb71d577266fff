#include "TarnNuqService/PropertySvcs/PropertyServiceFixture.h"
#include "TarnNuqService/ResponseHandlers/RecordText.h"
#include "support/AllocationCounter.h"
#include "support/AllocationFailure.h"

using testsupport::AllocationFailure;
using testsupport::Describe;
using testsupport::SizeOfMakeShared;
using testsupport::WarningOf;

namespace {

constexpr const char* File = "PropertySvcs/CategoryConverters.cpp";
constexpr const char* FromDiscipline = "tarnnuq::GetCategoryFromTarnDisciplineInfo";
constexpr const char* FromCategory = "tarnnuq::GetCategoryFromTarnCategoryInfo";

class CategoryConvertersTest : public ::testing::Test
{
protected:
    CategoryConvertersTest()
    {
        discipline.id = category.id = L"标识 7";
        discipline.name = category.name = L"给排水";
        discipline.code = category.code = L"P-01";
        discipline.sortIndex = category.sortIndex = 9;
        expected.IdText = L"标识 7";
        expected.Name = L"给排水";
        expected.Code = L"P-01";
    }

    testsupport::RecordingHost host;
    testsupport::FakeDisciplineInfo discipline;
    testsupport::FakeCategoryInfo category;
    tarnnuq::ICategory expected;
};

} // namespace

TEST_F(CategoryConvertersTest, FillIdNameAndCodeAlone)
{
    EXPECT_EQ(Describe(tarnnuq::GetCategoryFromTarnDisciplineInfo(&discipline)), Describe(expected));
    EXPECT_EQ(Describe(tarnnuq::GetCategoryFromTarnCategoryInfo(&category)), Describe(expected));
    testsupport::ExpectWarnings(host, {});
}

TEST_F(CategoryConvertersTest, MakeANewRecordEachTime)
{
    EXPECT_NE(tarnnuq::GetCategoryFromTarnDisciplineInfo(&discipline),
        tarnnuq::GetCategoryFromTarnDisciplineInfo(&discipline));
}

TEST_F(CategoryConvertersTest, WarnAboutANullDiscipline)
{
    EXPECT_EQ(tarnnuq::GetCategoryFromTarnDisciplineInfo(nullptr), nullptr);
    testsupport::ExpectWarnings(host, {WarningOf(File, FromDiscipline, L"discipInfo为空")});
}

TEST_F(CategoryConvertersTest, WarnAboutANullCategory)
{
    EXPECT_EQ(tarnnuq::GetCategoryFromTarnCategoryInfo(nullptr), nullptr);
    testsupport::ExpectWarnings(host, {WarningOf(File, FromCategory, L"categoryInfo为空")});
}

TEST_F(CategoryConvertersTest, WarnAboutARecordThatCannotBeMade)
{
    const std::size_t size = SizeOfMakeShared<tarnnuq::ICategory>();
    {
        const AllocationFailure outOfMemory(size);
        EXPECT_EQ(tarnnuq::GetCategoryFromTarnDisciplineInfo(&discipline), nullptr);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    {
        const AllocationFailure outOfMemory(size);
        EXPECT_EQ(tarnnuq::GetCategoryFromTarnCategoryInfo(&category), nullptr);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    testsupport::ExpectWarnings(
        host, {WarningOf(File, FromDiscipline, L"spCategory为空"), WarningOf(File, FromCategory, L"spCategory为空")});
}
