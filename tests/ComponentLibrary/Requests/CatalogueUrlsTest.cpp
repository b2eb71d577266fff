#include "Requests/CatalogueUrls.h"

#include <gtest/gtest.h>

namespace componentlibrary {
namespace {

std::string Text(const QUrl& url)
{
    return url.toEncoded().toStdString();
}

const QString kPrefix = QStringLiteral("http://h:8/api");

TEST(CatalogueUrls, FillEveryTemplate)
{
    const CatalogueUrls urls(kPrefix);
    const QString none;
    EXPECT_EQ(Text(urls.Categories(none, none, QStringLiteral("0.1"))),
        "http://h:8/api/v3/categories?component_type=system&major=&software_version=0.1");
    EXPECT_EQ(Text(urls.Categories(QStringLiteral("pump"), QStringLiteral("1"), QStringLiteral("0.1"))),
        "http://h:8/api/v3/categories?component_type=system&major=1&software_version=0.1&keyword=pump");
    EXPECT_EQ(Text(urls.Component(QStringLiteral("7"), none)), "http://h:8/api/v1/components/7");
    EXPECT_EQ(Text(urls.Component(QStringLiteral("7"), QStringLiteral("P"))),
        "http://h:8/api/v1/projects/P/components/7/detail");
    EXPECT_EQ(Text(urls.Existence(QStringLiteral("7"), QStringLiteral("P"))),
        "http://h:8/api/v1/projects/P/components/existence?public_component_id=7");
    EXPECT_EQ(Text(urls.Specifications(QStringLiteral("7"), none)), "http://h:8/api/v1/components/7/specifications");
    EXPECT_EQ(Text(urls.Specification(QStringLiteral("7"), QStringLiteral("DN50"), QStringLiteral("P"))),
        "http://h:8/api/v1/projects/P/components/7/specifications/DN50");
    EXPECT_EQ(Text(urls.PropertyTemplate(QStringLiteral("W.P"))), "http://h:8/api/v1/categories/W.P/properties");
    EXPECT_EQ(Text(urls.Projects()), "http://h:8/api/v1/projects");
    EXPECT_EQ(Text(urls.Legends(QStringLiteral("W"), -1, 2, 50, QStringLiteral("0.1"))),
        "http://h:8/api/v1/metadata/placeholders?category_code=W&type=-1&page_size=50&page=2&software_version=0.1");
    EXPECT_EQ(Text(urls.Mappings(QStringLiteral("0.1"))),
        "http://h:8/api/v1/hox_design/category/mappings?software_version=0.1");
}

TEST(CatalogueUrls, FillThePageOfTheCatalogueAndOfAProject)
{
    ComponentQuery query;
    query.categoryCode = QStringLiteral("W.P");
    query.keyword = QStringLiteral("DN50");
    query.page = 3;
    query.pageSize = 40;
    EXPECT_EQ(Text(CatalogueUrls(kPrefix).ComponentPage(query)),
        "http://h:8/api/v1/components?category_code=W.P&keyword=DN50&page=3&page_size=40");
    query.projectId = QStringLiteral("P1");
    EXPECT_EQ(Text(CatalogueUrls(kPrefix).ComponentPage(query)),
        "http://h:8/api/v1/projects/P1/components?category_code=W.P&keyword=DN50&page=3&page_size=40");
}

TEST(CatalogueUrls, EncodeValuesSoThatTheyArriveAsTyped)
{
    const CatalogueUrls urls(kPrefix);
    EXPECT_EQ(Text(urls.Component(QStringLiteral("a/b?c#d%20 e"), QString())),
        "http://h:8/api/v1/components/a%2Fb%3Fc%23d%2520%20e");
    ComponentQuery query;
    query.keyword = QStringLiteral("水泵 & a+b=c%1");
    EXPECT_EQ(Text(urls.ComponentPage(query)),
        "http://h:8/api/v1/components?category_code=&keyword=%E6%B0%B4%E6%B3%B5%20%26%20a%2Bb%3Dc%251&page=1&page_"
        "size=20");
}

TEST(CatalogueUrls, AcceptASlashAndBlanksAtTheEndOfTheEndpoint)
{
    EXPECT_EQ(Text(CatalogueUrls(QStringLiteral(" http://h/api// ")).Projects()), "http://h/api/v1/projects");
}

TEST(CatalogueUrls, AreInvalidWithoutAWebAddress)
{
    for (const char* endPoint :
        {"", "h/api", "ftp://h/api", "http://", "http:///api", "http://h/api?x=1", "file:///x", "http://h:99999/api"}) {
        EXPECT_FALSE(CatalogueUrls(QString::fromLatin1(endPoint)).Projects().isValid()) << endPoint;
    }
}

TEST(CatalogueUrls, AreInvalidForIdsThatWouldChangeThePath)
{
    const CatalogueUrls urls(kPrefix);
    for (const char* id : {"", ".", ".."})
        EXPECT_FALSE(urls.Component(QString::fromLatin1(id), QString()).isValid()) << id;
    EXPECT_TRUE(urls.Component(QStringLiteral("..."), QString()).isValid());
}

} // namespace
} // namespace componentlibrary
