#include "EnvSvcs/StaticResService.h"
#include "TarnNuqService/EnvSvcs/EnvServiceFixture.h"

using tarnnuq::StaticResService;

namespace {

class StaticResServiceTest : public testsupport::EnvServiceFixture
{
protected:
    StaticResServiceTest() { folder.WriteAll(); }
};

using StaticResServiceWithoutFilesTest = testsupport::EnvServiceFixture;

} // namespace

TEST_F(StaticResServiceTest, AnEmptyPathIsTheBareEndPoint)
{
    EXPECT_EQ(StaticResService::GetStaticResource(L""), L"http://qa.example/Static");
}

TEST_F(StaticResServiceTest, APathWithALeadingSlashIsAppendedAsItIs)
{
    EXPECT_EQ(StaticResService::GetStaticResource(L"/a/B.png"), L"http://qa.example/Static/a/B.png");
    EXPECT_EQ(StaticResService::GetStaticResource(L"//a"), L"http://qa.example/Static//a");
    EXPECT_EQ(StaticResService::GetStaticResource(L"/"), L"http://qa.example/Static/");
}

TEST_F(StaticResServiceTest, AnyOtherPathGetsOneSlashInFront)
{
    EXPECT_EQ(StaticResService::GetStaticResource(L"a/图 %1.png"), L"http://qa.example/Static/a/图 %1.png");
    EXPECT_EQ(StaticResService::GetStaticResource(L" /a"), L"http://qa.example/Static/ /a");
    EXPECT_EQ(StaticResService::GetStaticResource(L"\\a"), L"http://qa.example/Static/\\a");
}

TEST_F(StaticResServiceWithoutFilesTest, WithoutAnEndPointThePathStandsAlone)
{
    EXPECT_EQ(StaticResService::GetStaticResource(L""), L"");
    EXPECT_EQ(StaticResService::GetStaticResource(L"/a"), L"/a");
    EXPECT_EQ(StaticResService::GetStaticResource(L"a"), L"/a");
}
