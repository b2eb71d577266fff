// Records and pending replies for which there is no memory: each is reported, left out, and the rest goes on.
#include "Records/IParameterDefinition.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "TarnNuqService/PropertySvcs/CloudFixture.h"
#include "support/AllocationCounter.h"
#include "support/AllocationFailure.h"

using tarnnuq::ILegend;
using testsupport::AllocationFailure;
using testsupport::DebugWarning;
using testsupport::FakeCategoryInfo;
using testsupport::ServiceWarning;
using testsupport::SizeOfMakeShared;
using testsupport::WarningOf;

namespace {

using Texts = std::vector<std::wstring>;

class PropertyServiceOutOfMemoryTest : public testsupport::CloudFixture
{
protected:
    PropertyServiceOutOfMemoryTest()
    {
        auto& discipline = library.AddDiscipline(L"d", 1);
        library.AddEndCategory(library.AddCategory(discipline, L"c", 1), L"e");
        library.AddCategory(discipline, L"l", 2);
        library.AddDiscipline(L"d2", 2);
    }

    using LegendsReply = tarnnuq::CustomReply<tarnnuq::RecordPage<ILegend>>;
    using MappingsReply = tarnnuq::CustomReply<tarnnuq::RecordList<tarnnuq::ICategoryMapping>>;

    LegendsReply* RequestLegends() { return Service().GetLegendsFromCloud(L"c", ILegend::Plan, 20, 1, L"1.0"); }
    MappingsReply* RequestMappings() { return Service().GetComponentEditorCategoryMappings(L"1.0"); }

    /// Sends a request over and over, each time without the next of its allocations of this size, until one is missed
    /// by none but the service. What is allocated before are texts and records of the log, and behind it is Qt's own.
    /// @return what that request gave
    template <typename Request>
    static auto SendWithoutOwnBlock(std::size_t size, const Request& request)
    {
        for (std::size_t nth = 1;; ++nth) {
            const AllocationFailure outOfMemory(size, nth);
            try {
                auto* pending = request();
                EXPECT_TRUE(outOfMemory.Happened());
                return pending;
            } catch (const std::bad_alloc&) {
                continue;
            }
        }
    }

    /// Builds the tree while the nth record cannot be made.
    void BuildWithoutRecord(std::size_t nth)
    {
        const std::size_t size = SizeOfMakeShared<tarnnuq::ICategory>();
        const AllocationFailure outOfMemory(size, nth);
        Service().Init();
        EXPECT_TRUE(outOfMemory.Happened());
    }

    static DebugWarning ConverterWarning(const char* function)
    {
        return WarningOf("PropertySvcs/CategoryConverters.cpp", function, L"spCategory为空");
    }

    const DebugWarning disciplineWarning = ConverterWarning("tarnnuq::GetCategoryFromTarnDisciplineInfo");
    const DebugWarning categoryWarning = ConverterWarning("tarnnuq::GetCategoryFromTarnCategoryInfo");
};

} // namespace

TEST_F(PropertyServiceOutOfMemoryTest, WithoutARootThereIsNoTree)
{
    BuildWithoutRecord(1);
    EXPECT_EQ(Codes(), Texts());
    EXPECT_TRUE(Service().GetFullCategories(L"d").empty());
    EXPECT_EQ(Service().GetCategoryByCode(L"0"), nullptr);
    testsupport::ExpectWarnings(host, {ServiceWarning("Init", L"spCategoryRoot 为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, ADisciplineIsLeftOutWithAllBeneathIt)
{
    BuildWithoutRecord(2);
    EXPECT_EQ(Codes(), (Texts{L"0", L"d2"}));
    EXPECT_TRUE(Access().LeavesOfHost().empty());
    testsupport::ExpectWarnings(host, {disciplineWarning, ServiceWarning("Init", L"pDiscpCategory为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, ACategoryIsLeftOutWithAllBeneathIt)
{
    BuildWithoutRecord(3);
    EXPECT_EQ(Codes(), (Texts{L"0", L"d", L"l", L"d2"}));
    EXPECT_EQ(Access().LeavesOfHost().size(), 1U);
    testsupport::ExpectWarnings(host, {categoryWarning, ServiceWarning("Init", L"pCategory为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, AnEndCategoryIsLeftOut)
{
    BuildWithoutRecord(4);
    EXPECT_EQ(Codes(), (Texts{L"0", L"d", L"c", L"l", L"d2"}));
    EXPECT_FALSE(Category(L"c")->IsLeaf);
    EXPECT_EQ(Service().GetEndTarnCategoryByCode(L"e"), nullptr);
    testsupport::ExpectWarnings(host, {categoryWarning, ServiceWarning("Init", L"pEndCategory为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, TheNextBuildIsWholeAgain)
{
    BuildWithoutRecord(1);
    Service().Init();
    EXPECT_EQ(Codes(), (Texts{L"0", L"d", L"c", L"e", L"l", L"d2"}));
}

TEST_F(PropertyServiceOutOfMemoryTest, APropertySetIsNullAndAWarning)
{
    const std::size_t size = SizeOfMakeShared<tarnnuq::ICategoryProperty>();
    {
        const AllocationFailure outOfMemory(size);
        EXPECT_EQ(Service().GetCategoryProperty(L"c"), nullptr);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    testsupport::ExpectWarnings(host, {ServiceWarning("GetCategoryProperty", L"pUtil 或spCategoryProperty为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, APropertySetThatIsMissingLikeTheLibraryIsOneWarning)
{
    host.Remove(&hostsdk::HostServices::categoryInfo);
    const std::size_t size = SizeOfMakeShared<tarnnuq::ICategoryProperty>();
    {
        const AllocationFailure outOfMemory(size);
        EXPECT_EQ(Service().GetCategoryProperty(L"c"), nullptr);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    testsupport::ExpectWarnings(host, {ServiceWarning("GetCategoryProperty", L"pUtil 或spCategoryProperty为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, ADefinitionIsLeftOut)
{
    FakeCategoryInfo& category = library.MakeCategory(L"with properties");
    for (const wchar_t* name : {L"p1", L"p2", L"p3"}) {
        library.AddProperty(category, name);
    }
    const std::size_t size = SizeOfMakeShared<tarnnuq::IParameterDefinition>();
    std::shared_ptr<tarnnuq::ICategoryProperty> spProperty;
    {
        const AllocationFailure outOfMemory(size, 2);
        spProperty = Service().GetCategoryProperty(L"with properties");
        EXPECT_TRUE(outOfMemory.Happened());
    }
    EXPECT_EQ(spProperty->ParameterDefinitions.size(), 2U);
    EXPECT_EQ(spProperty->ParameterDefinitions.count(L"p2"), 0U);
    testsupport::ExpectWarnings(host, {ServiceWarning("GetCategoryProperty", L"spParameterDefinition 为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, ALegendIsLeftOut)
{
    host.componentSql.legends = {{L"1", L"a"}, {L"2", L"b"}, {L"3", L"c"}};
    const std::size_t size = SizeOfMakeShared<ILegend>();
    std::vector<std::shared_ptr<ILegend>> legends;
    {
        const AllocationFailure outOfMemory(size, 2);
        legends = Service().GetLegends(L"c", ILegend::Plan);
        EXPECT_TRUE(outOfMemory.Happened());
    }
    ASSERT_EQ(legends.size(), 2U);
    EXPECT_EQ(legends[0]->Name, L"a");
    EXPECT_EQ(legends[1]->Name, L"c");
    testsupport::ExpectWarnings(host, {ServiceWarning("GetLegends", L"pLegend为空")});
}

TEST_F(PropertyServiceOutOfMemoryTest, APendingReplyForLegendsIsNullAndAWarning)
{
    EXPECT_EQ(SendWithoutOwnBlock(sizeof(LegendsReply), [this] { return RequestLegends(); }), nullptr);
    testsupport::ExpectWarnings(host, {ServiceWarning("GetLegendsFromCloud", L"m_spNetworkManager 为空")});
    EXPECT_TRUE(Access().Manager()->findChildren<QNetworkReply*>().isEmpty());
}

TEST_F(PropertyServiceOutOfMemoryTest, APendingReplyForMappingsIsNullAndAWarning)
{
    EXPECT_EQ(SendWithoutOwnBlock(sizeof(MappingsReply), [this] { return RequestMappings(); }), nullptr);
    testsupport::ExpectWarnings(host, {ServiceWarning("GetComponentEditorCategoryMappings", L"pCustomReply 为空")});
    EXPECT_TRUE(Access().Manager()->findChildren<QNetworkReply*>().isEmpty());
}

TEST_F(PropertyServiceOutOfMemoryTest, LegendsDoWithoutAHandlerOfTheirOwn)
{
    server.On("/api/v1/metadata/placeholders",
        testsupport::ScriptedResponse::Json(R"({"code":"success","data":{"totalCount":3,"list":[]}})"));
    const std::size_t size = SizeOfMakeShared<tarnnuq::PagedLegendsResponseHandler>();
    auto* pending = SendWithoutOwnBlock(size, [this] { return RequestLegends(); });
    EXPECT_EQ(Finish(pending)->Result().TotalCount, 3);
    testsupport::ExpectWarnings(host, {});
}
