#include "ComponentDatabase/HostObjects/LocalCategories.h"
#include "ComponentDatabase/HostObjects/LocalLegends.h"
#include "ComponentDatabase/HostObjects/ProductPaths.h"
#include "ComponentDatabase/Reading/SqlComponentDatabase.h"
#include "ComponentDatabase/SmallDatabase.h"
#include "hostsdk/HostServices.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include "tarn/ITarnPropertyInfo.h"

#include <gtest/gtest.h>

using namespace componentdatabase;

namespace {

class Content : public testing::Test
{
protected:
    Content() { WriteSmallDatabase(m_path, ManyComponents(2)); }

    TestFolder m_folder;
    QString m_path = m_folder.Path(QStringLiteral("data #1%.db"));
    QStringList m_told;
    LocalDatabase m_local{m_path, [this](const DatabaseReason& reason) { m_told += reason.code; }};
};

TEST_F(Content, OfFamilyTypesIsThatWhichWasWritten)
{
    DatabaseReason reason;
    const ComponentDatabase* const database = m_local.Get();
    ASSERT_NE(database, nullptr);
    const auto component = database->Component(QStringLiteral("C-1"), reason);
    ASSERT_TRUE(component.has_value());
    EXPECT_EQ(component->name.english, QStringLiteral("Gate valve 1"));
    EXPECT_EQ(component->version, 3);
    const std::vector<FamilyTypeRow> types = database->FamilyTypes(component->id, reason);
    const std::vector<SmallComponent> written = ManyComponents(2);
    ASSERT_EQ(types.size(), 3U);
    for (std::size_t index = 0; index < types.size(); ++index) {
        EXPECT_EQ(types[index].name, written[1].types[index].name);
        EXPECT_EQ(types[index].values, written[1].types[index].values);
    }
    EXPECT_FALSE(database->Component(QStringLiteral("c-1"), reason).has_value());
}

TEST_F(Content, OfTheTreeReachesTheLibraryInTheLanguageAskedFor)
{
    const LocalCategories categories(m_local, false);
    std::map<std::wstring, const tarn::ITarnDisciplineInfo*> disciplines;
    ASSERT_TRUE(categories.GetDisciplines(disciplines));
    ASSERT_EQ(disciplines.size(), 2U);
    EXPECT_EQ(disciplines.at(L"WAT")->GetName(), L"Water");
    EXPECT_EQ(disciplines.at(L"WAT")->GetSortIndex(), 2);
    std::map<std::wstring, const tarn::ITarnCategoryInfo*> valves;
    disciplines.at(L"WAT")->GetCategories(valves);
    ASSERT_EQ(valves.size(), 1U);
    const auto ends = valves.at(L"WAT.VLV")->GetSubCategories();
    ASSERT_EQ(ends.size(), 1U);
    const tarn::ITarnCategoryInfo* found = nullptr;
    ASSERT_TRUE(categories.FindCategoryByCode(L"WAT.VLV.GATE", found));
    EXPECT_EQ(found, ends.at(L"WAT.VLV.GATE"));
    EXPECT_FALSE(categories.FindCategoryByCode(L"wat.vlv.gate", found));
}

TEST_F(Content, OfPropertiesReachesTheLibraryWithTheCategorysOwnValues)
{
    const LocalCategories categories(m_local, true);
    const tarn::ITarnCategoryInfo* found = nullptr;
    ASSERT_TRUE(categories.FindCategoryByCode(L"WAT.VLV.GATE", found));
    std::map<std::wstring, const tarn::ITarnPropertyInfo*> properties;
    found->GetProperties(properties);
    ASSERT_EQ(properties.size(), 2U);
    const tarn::ITarnPropertyInfo& material = *properties.at(L"guid-1");
    EXPECT_EQ(material.GetName(), L"材质");
    EXPECT_EQ(material.GetSortIndex(), 1);
    EXPECT_TRUE(material.IsInput() && material.IsEssential() && !material.IsInstance());
    EXPECT_EQ(material.GetStorageType(), 4);
    EXPECT_EQ(material.GetDisplayType(), 16);
    std::map<std::wstring, int> ids;
    std::map<int, std::wstring> texts;
    material.GetValueIds(ids);
    material.GetValueTexts(texts);
    EXPECT_EQ(ids, (std::map<std::wstring, int>{{L"BRASS", 1}}));
    EXPECT_EQ(texts, (std::map<int, std::wstring>{{1, L"黄铜"}}));
    EXPECT_FALSE(properties.at(L"guid-2")->IsInput());
    std::map<std::wstring, const tarn::ITarnPropertyInfo*> again;
    found->GetProperties(again);
    EXPECT_EQ(again, properties);
}

TEST_F(Content, OfLegendsAndTheirFolderReachesTheLibrary)
{
    LocalLegends legends(m_local);
    ProductPaths paths(m_local);
    hostsdk::HostServices table;
    table.componentSql = &legends;
    table.filePaths = &paths;
    hostsdk::Install(table);
    EXPECT_EQ(tarn::TarnFilePathSettings::GetCurrentProductDBFilePath(), m_path.toStdWString());
    EXPECT_EQ(tarn::TarnFilePathSettings::GetCurrentProduct2DFolderPath(),
        m_folder.Path(QStringLiteral("static/legends")).toStdWString());
    std::map<std::wstring, std::wstring> found{{L"1", L"old"}};
    const std::wstring path = m_path.toStdWString();
    const std::wstring missing = m_folder.Path(QStringLiteral("no.db")).toStdWString();
    EXPECT_FALSE(tarn::TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(missing, L"WAT.VLV.GATE", tarn::Plan, found));
    EXPECT_EQ(found.size(), 1U);
    EXPECT_EQ(m_told, QStringList{QStringLiteral("database.missing")});
    EXPECT_TRUE(tarn::TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(path, L"WAT.VLV.GATE", tarn::Plan, found));
    EXPECT_EQ(found, (std::map<std::wstring, std::wstring>{{L"21", L"valve\\plan"}, {L"22", L"valve\\plan-2"}}));
    EXPECT_TRUE(tarn::TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(path, L"WAT.VLV", tarn::Plan, found));
    EXPECT_TRUE(found.empty());
    hostsdk::Install({});
}

TEST_F(Content, OfAFolderThatLeadsOutIsNotTaken)
{
    for (const char* folder : {"/etc", "../x", "a/../../b", "c:/x", "\\\\server", ""}) {
        Connection connection(m_path, Connection::Access::ReadWrite, 1000);
        Statement(connection, QStringLiteral("UPDATE product SET value = ?")).Run(QString::fromLatin1(folder));
        DatabaseReason reason;
        EXPECT_EQ(m_local.Get()->LegendFolder(reason), QString()) << folder;
    }
}

TEST_F(Content, ThatIsMissingIsToldOnce)
{
    QStringList told;
    const LocalDatabase none(
        m_folder.Path(QStringLiteral("none.db")), [&told](const DatabaseReason& reason) { told += reason.code; });
    const LocalCategories categories(none, true);
    std::map<std::wstring, const tarn::ITarnDisciplineInfo*> disciplines;
    const tarn::ITarnCategoryInfo* found = nullptr;
    EXPECT_FALSE(categories.GetDisciplines(disciplines));
    EXPECT_FALSE(categories.FindCategoryByCode(L"WAT", found));
    EXPECT_EQ(none.Fault().code, QStringLiteral("database.missing"));
    EXPECT_EQ(told, QStringList{QStringLiteral("database.missing")});
}

} // namespace
