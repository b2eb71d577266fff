#include "ComponentDatabase/HostObjects/LocalCategories.h"
#include "ComponentDatabase/HostObjects/LocalLegends.h"
#include "ComponentDatabase/HostObjects/ProductPaths.h"
#include "PropertySvcs/PropertyService.h"
#include "Records/IParameterDefinition.h"
#include "hostsdk/HostServices.h"
#include "support/BuiltLibrary.h"

#include <QFileInfo>
#include <gtest/gtest.h>

using namespace componentdatabase;

namespace {

std::string Narrow(const std::wstring& text)
{
    return QString::fromStdWString(text).toStdString();
}

/// The library's property service over the database that was built beside the catalogue.
class LocalLibrary : public testing::Test
{
protected:
    LocalLibrary()
    {
        hostsdk::HostServices table;
        table.categoryInfo = &m_categories;
        table.componentSql = &m_legends;
        table.filePaths = &m_paths;
        hostsdk::Install(table);
    }
    ~LocalLibrary() override { hostsdk::Install({}); }

    tarnnuq::PropertyService& Service() const { return *tarnnuq::PropertyService::Get(); }

    BuiltLibrary m_catalogue;
    LocalDatabase m_database{QString::fromStdString(m_catalogue.Folder()) + QStringLiteral("/components.db"),
        [](const DatabaseReason& reason) { ADD_FAILURE() << reason.english.toStdString(); }};
    LocalCategories m_categories{m_database, true};
    LocalLegends m_legends{m_database};
    ProductPaths m_paths{m_database};
};

TEST_F(LocalLibrary, HasTheCataloguesTreeInItsOrder)
{
    std::vector<std::string> codes;
    for (const auto& category : Service().GetCategories()) {
        codes.push_back(Narrow(category->Code) + ' ' + Narrow(category->Name) + ' ' + Narrow(category->ParentCode));
    }
    std::vector<std::string> wanted{"0 全部 "};
    for (std::string& text :
        m_catalogue.Texts("SELECT code || ' ' || name_zh || ' ' || iif(level = 0, '0', parent_code) "
                          "FROM category ORDER BY weight")) {
        wanted.push_back(std::move(text));
    }
    EXPECT_EQ(codes, wanted);
}

TEST_F(LocalLibrary, HasTheCataloguesPropertiesButThoseOfInstances)
{
    std::size_t compared = 0;
    for (const std::string& code : m_catalogue.Texts("SELECT category_code FROM property_template")) {
        const auto properties = Service().GetCategoryProperty(QString::fromStdString(code).toStdWString());
        ASSERT_NE(properties, nullptr) << code;
        std::size_t ofTypes = 0;
        for (const Definition& wanted : m_catalogue.Definitions(code, false)) {
            if (wanted.at("isInstance").get<bool>()) {
                continue;
            }
            ++ofTypes;
            const std::wstring name = QString::fromStdString(wanted.at("name")).toStdWString();
            ASSERT_EQ(properties->ParameterDefinitions.count(name), 1U) << code << ' ' << wanted.at("code");
            const tarnnuq::IParameterDefinition& found = *properties->ParameterDefinitions.at(name);
            EXPECT_EQ(Narrow(found.Code), wanted.at("code"));
            EXPECT_EQ(Narrow(found.Id), wanted.at("id"));
            EXPECT_EQ(Narrow(found.GroupName), wanted.at("groupName"));
            EXPECT_EQ(Narrow(found.ValueType), wanted.at("valueType"));
            EXPECT_EQ(Narrow(found.ParameterDisplayType), wanted.at("parameterDisplayType"));
            EXPECT_EQ(found.IsOutputParameter, wanted.at("isOutputParameter"));
            EXPECT_EQ(found.IsEssential, wanted.at("isEssential"));
            nlohmann::json values = nlohmann::json::object();
            for (const auto& [key, text] : found.Values) {
                values[Narrow(key)] = Narrow(text);
            }
            EXPECT_EQ(values, wanted.at("values")) << code;
        }
        EXPECT_EQ(properties->ParameterDefinitions.size(), ofTypes) << code;
        compared += ofTypes;
    }
    EXPECT_GT(compared, 5000U);
}

TEST_F(LocalLibrary, HasAPictureForEveryLegend)
{
    for (const std::string& code : m_catalogue.Texts("SELECT code FROM category WHERE level = 2")) {
        for (const auto view : {tarnnuq::ILegend::Plan, tarnnuq::ILegend::Elevation, tarnnuq::ILegend::Profile}) {
            const auto legends = Service().GetLegends(QString::fromStdString(code).toStdWString(), view);
            ASSERT_EQ(legends.size(), 1U) << code;
            QString picture = QString::fromStdWString(legends.front()->Thumbnail);
            EXPECT_TRUE(QFileInfo::exists(picture.replace(QLatin1Char('\\'), QLatin1Char('/'))))
                << picture.toStdString();
        }
    }
}

TEST_F(LocalLibrary, HasEveryFamilyTypeAndValue)
{
    m_catalogue.Database().exec("ATTACH '" + m_catalogue.Folder() + "/components.db' AS host");
    EXPECT_EQ(m_catalogue.Count("SELECT count(*) FROM host.family_type"),
        m_catalogue.Count("SELECT sum(json_array_length(family_types)) FROM component"));
    EXPECT_EQ(m_catalogue.Count("SELECT count(*) FROM host.parameter_value WHERE component_id % 97 = 0"),
        m_catalogue.Count("SELECT count(*) FROM component c, json_each(c.family_types) t, "
                          "json_each(t.value, '$.values') v WHERE c.position % 97 = 0 AND v.type <> 'null'"));
}

} // namespace
