#include "ResponseHandlers/ResponseHandlerRegistry.h"

#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/ISpecification.h"
#include "Records/ProjectComponentExistingCheck.h"
#include "ResponseHandlers/CategoriesResponseHandler.h"
#include "ResponseHandlers/CategoryMappingsResponseHandler.h"
#include "ResponseHandlers/CategoryPropertyResponseHandler.h"
#include "ResponseHandlers/DetailedProjectComponentResponseHandler.h"
#include "ResponseHandlers/LegendsResponseHandler.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "ResponseHandlers/PagedProjectComponentsResponseHandler.h"
#include "ResponseHandlers/ProjectComponentExistingCheckResponseHandler.h"
#include "ResponseHandlers/ProjectComponentResponseHandler.h"
#include "ResponseHandlers/ProjectComponentsResponseHandler.h"
#include "ResponseHandlers/SpecificationResponseHandler.h"
#include "ResponseHandlers/SpecificationsResponseHandler.h"
#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"

#include <gmock/gmock.h>
#include <typeinfo>

namespace {

using namespace testsupport;
using namespace tarnnuq;
using testing::IsEmpty;

template <typename T, typename ConcreteHandler>
struct Row
{
    using Result = T;
    using Handler = ConcreteHandler;
};

template <typename Entry>
class ResponseHandlerRegistryTest : public HandlerFixture
{
};

using Rows = testing::Types<Row<RecordPtr<ISpecification>, SpecificationResponseHandler>,
    Row<RecordPtr<IProjectComponent>, ProjectComponentResponseHandler>,
    Row<RecordPtr<IDetailedProjectComponent>, DetailedProjectComponentResponseHandler>,
    Row<RecordList<ISpecification>, SpecificationsResponseHandler>, Row<RecordList<ILegend>, LegendsResponseHandler>,
    Row<RecordPage<ILegend>, PagedLegendsResponseHandler>,
    Row<RecordPtr<ICategoryProperty>, CategoryPropertyResponseHandler>,
    Row<RecordList<ICategory>, CategoriesResponseHandler>,
    Row<RecordPtr<ProjectComponentExistingCheck>, ProjectComponentExistingCheckResponseHandler>,
    Row<RecordList<IProjectComponent>, ProjectComponentsResponseHandler>,
    Row<RecordPage<IProjectComponent>, PagedProjectComponentsResponseHandler>,
    Row<RecordList<ICategoryMapping>, CategoryMappingsResponseHandler>>;
TYPED_TEST_SUITE(ResponseHandlerRegistryTest, Rows);

TYPED_TEST(ResponseHandlerRegistryTest, ResultTypeHasItsConcreteHandler)
{
    IResponseHandler<typename TypeParam::Result>* const handler =
        ResponseHandlerRegistry::Get<typename TypeParam::Result>();
    ASSERT_NE(handler, nullptr);
    EXPECT_EQ(typeid(*handler), typeid(typename TypeParam::Handler));
}

TYPED_TEST(ResponseHandlerRegistryTest, SameObjectIsReturnedEveryTime)
{
    const auto* const handler = ResponseHandlerRegistry::Get<typename TypeParam::Result>();
    EXPECT_EQ(ResponseHandlerRegistry::Get<typename TypeParam::Result>(), handler);
    EXPECT_EQ(ResponseHandlerRegistry::Get<typename TypeParam::Result>(), handler);
}

TYPED_TEST(ResponseHandlerRegistryTest, HandlerWorksThroughTheInterfaceAgainAndAgain)
{
    auto* const handler = ResponseHandlerRegistry::Get<typename TypeParam::Result>();
    std::wstring error;
    handler->Handle(nullptr, error);
    EXPECT_EQ(error, L"Reply is null!");
    handler->Handle(this->FetchBody(SuccessBody("null")).get(), error);
    EXPECT_EQ(error, L"");
}

TEST(ResponseHandlerRegistryUnknownTypeTest, TypeWithoutHandlerGivesNull)
{
    struct Foreign
    {
    };
    EXPECT_EQ(ResponseHandlerRegistry::Get<Foreign>(), nullptr);
    EXPECT_EQ(ResponseHandlerRegistry::Get<Foreign>(), nullptr);
    EXPECT_EQ(ResponseHandlerRegistry::Get<int>(), nullptr);
    EXPECT_EQ(ResponseHandlerRegistry::Get<std::wstring>(), nullptr);
}

TEST(ResponseHandlerRegistryUnknownTypeTest, TypesThatOnlyLookLikeAKnownOneGiveNull)
{
    EXPECT_EQ(ResponseHandlerRegistry::Get<RecordPtr<ICategory>>(), nullptr);
    EXPECT_EQ(ResponseHandlerRegistry::Get<RecordPtr<ILegend>>(), nullptr);
    EXPECT_EQ(ResponseHandlerRegistry::Get<RecordPage<ICategory>>(), nullptr);
    EXPECT_EQ(ResponseHandlerRegistry::Get<RecordList<const ICategory>>(), nullptr);
    EXPECT_EQ(ResponseHandlerRegistry::Get<std::vector<ICategory>>(), nullptr);
}

} // namespace
