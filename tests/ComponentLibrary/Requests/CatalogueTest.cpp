#include "Requests/Catalogue.h"

#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/ISpecification.h"
#include "Records/ProjectComponentExistingCheck.h"
#include "support/CatalogueFixture.h"

namespace componentlibrary {
namespace {

using testsupport::ScriptedResponse;

class CatalogueTest : public CatalogueFixture
{
protected:
    void OnData(const QByteArray& path, const QByteArray& data)
    {
        server.On(path, ScriptedResponse::Json(Envelope(data)));
    }

    template <class RequestType>
    ErrorCode CodeOf(const std::unique_ptr<RequestType>& request)
    {
        EXPECT_TRUE(Run(*request));
        return request->Error().code;
    }
};

TEST_F(CatalogueTest, AsksWithTheHostsDisciplineAndVersion)
{
    host.appService.major = tarnnuq::Hvac;
    host.appService.version = L"1.4 x";
    OnData("/v3/categories", "[]");
    EXPECT_EQ(CodeOf(TheCatalogue().Categories(QStringLiteral("泵"))), ErrorCode::None);
    EXPECT_EQ(server.Requests().at(0).target,
        "/v3/categories?component_type=system&major=1&software_version=1.4%20x&keyword=%E6%B3%B5");
}

TEST_F(CatalogueTest, MapsEachAnswer)
{
    OnData("/v1/components/7/specifications", R"({"parameters":[],"familyTypes":[{"name":"A"}]})");
    const auto specifications = TheCatalogue().Specifications(QStringLiteral("7"), QString());
    ASSERT_EQ(CodeOf(specifications), ErrorCode::None);
    EXPECT_EQ(specifications->Result().at(0)->Name, L"A");

    OnData("/v1/components/7/specifications/A", R"({"parameters":[],"familyType":{"name":"A"}})");
    const auto specification = TheCatalogue().Specification(QStringLiteral("7"), QStringLiteral("A"), QString());
    ASSERT_EQ(CodeOf(specification), ErrorCode::None);
    EXPECT_EQ(specification->Result()->Name, L"A");

    OnData("/v1/categories/W/properties", R"({"categoryId":5,"propertyList":[]})");
    const auto properties = TheCatalogue().PropertyTemplate(QStringLiteral("W"));
    ASSERT_EQ(CodeOf(properties), ErrorCode::None);
    EXPECT_EQ(properties->Result()->CategoryId, L"5");

    OnData("/v1/projects/P/components/existence", R"({"exist":true,"version":3})");
    const auto existence = TheCatalogue().Existence(QStringLiteral("7"), QStringLiteral("P"));
    ASSERT_EQ(CodeOf(existence), ErrorCode::None);
    EXPECT_EQ(existence->Result()->Version, 3);

    OnData("/v1/metadata/placeholders", R"({"totalCount":1,"list":[{"id":8,"placeholderType":2}]})");
    const auto legends = TheCatalogue().Legends(QStringLiteral("W"), -1, 1, 20);
    ASSERT_EQ(CodeOf(legends), ErrorCode::None);
    EXPECT_EQ(legends->Result().List.at(0)->Type, tarnnuq::ILegend::Profile);

    OnData("/v1/hox_design/category/mappings", R"([{"categoryCode":"W"}])");
    const auto mappings = TheCatalogue().Mappings();
    ASSERT_EQ(CodeOf(mappings), ErrorCode::None);
    EXPECT_EQ(mappings->Result().at(0)->CategoryCode, L"W");

    OnData("/v1/projects", R"([{"id":12345678901,"name":"N"},{"id":"P"},7])");
    const auto projects = TheCatalogue().Projects();
    ASSERT_EQ(CodeOf(projects), ErrorCode::None);
    EXPECT_EQ(projects->Result().at(0)->Id, L"12345678901");
    EXPECT_EQ(projects->Result().at(1)->Id, L"P");
    EXPECT_EQ(projects->Result().at(2)->Id, L"");
}

TEST_F(CatalogueTest, TakesNoOtherFormForAnEmptyResult)
{
    OnData("/v1/components/7/specifications", "{}");
    EXPECT_EQ(CodeOf(TheCatalogue().Specifications(QStringLiteral("7"), QString())), ErrorCode::ServerWrongShape);
    OnData("/v1/components/7/specifications/A", R"({"parameters":[]})");
    EXPECT_EQ(CodeOf(TheCatalogue().Specification(QStringLiteral("7"), QStringLiteral("A"), QString())),
        ErrorCode::ServerWrongShape);
    OnData("/v1/categories/W/properties", "[]");
    EXPECT_EQ(CodeOf(TheCatalogue().PropertyTemplate(QStringLiteral("W"))), ErrorCode::ServerWrongShape);
    OnData("/v1/metadata/placeholders", R"({"list":[]})");
    EXPECT_EQ(CodeOf(TheCatalogue().Legends(QStringLiteral("W"), 0, 1, 20)), ErrorCode::ServerWrongShape);
    OnData("/v1/hox_design/category/mappings", "{}");
    EXPECT_EQ(CodeOf(TheCatalogue().Mappings()), ErrorCode::ServerWrongShape);
}

TEST_F(CatalogueTest, WantsATotalAndAListOfAPage)
{
    for (const char* data : {"null", "[]", "{}", R"({"totalCount":1})", R"({"list":[]})",
             R"({"totalCount":-1,"list":[]})", R"({"totalCount":"many","list":[]})", R"({"totalCount":1,"list":{}})"}) {
        server.Enqueue(ScriptedResponse::Json(Envelope(data)));
        EXPECT_EQ(CodeOf(TheCatalogue().ComponentPage({})), ErrorCode::ServerWrongShape) << data;
    }
    server.Enqueue(ScriptedResponse::Json(Envelope(R"({"totalCount":"37","list":[]})")));
    const auto page = TheCatalogue().ComponentPage({});
    EXPECT_EQ(CodeOf(page), ErrorCode::None);
    EXPECT_EQ(page->Result().TotalCount, 37);
}

TEST_F(CatalogueTest, UsesTheBearerWordInTheTestEnvironment)
{
    host.baseConfig.currentEnv = "QA";
    host.userService.tokenInQa = L"qa-token";
    OnData("/v1/projects", "[]");
    EXPECT_EQ(CodeOf(TheCatalogue().Projects()), ErrorCode::None);
    EXPECT_EQ(server.Requests().at(0).Header("Authorization"), "bearer qa-token");
}

} // namespace
} // namespace componentlibrary
