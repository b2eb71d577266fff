#include "nuq-cloud/support/TestLibrary.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <fstream>
#include <sstream>

namespace cloudtest {
namespace {

const char kFamilyTypes[] = R"([{"name":"DN50","values":["50",null]},{"name":"1/2\"","values":["15","3.5"]}])";
const char kThumbnailSizes[] = R"([{"size":"64","thumbnails":["thumbnails/pump/64.png"]}])";

std::string ReadFile(const std::string& path)
{
    std::ostringstream text;
    text << std::ifstream(path).rdbuf();
    return text.str();
}

void InsertCategory(SQLite::Database& database, const CategoryRow& row)
{
    SQLite::Statement insert(database, "INSERT INTO category VALUES (?,?,?,?,0,?,'pump',?,?,?,?,?)");
    insert.bind(1, row.id);
    insert.bind(2, row.code);
    insert.bind(3, row.parentId);
    insert.bind(4, row.parentCode);
    insert.bind(5, row.major);
    insert.bind(6, "类别 " + row.code);
    insert.bind(7, "Category " + row.code);
    insert.bind(8, row.id + 0.5);
    insert.bind(9, row.first);
    insert.bind(10, row.count);
    insert.exec();
}

void InsertComponent(SQLite::Database& database, int position, const ComponentRow& row)
{
    SQLite::Statement insert(database, "INSERT INTO component VALUES (?,?,3,?,?,?,?,?,'released',?,?)");
    insert.bind(1, position);
    insert.bind(2, row.id);
    insert.bind(3, row.categoryCode);
    insert.bind(4, "构件 " + row.id);
    insert.bind(5, "Component " + row.id);
    insert.bind(6, row.search);
    insert.bind(7, "thumbnails/pump/128.png");
    insert.bind(8, kThumbnailSizes);
    insert.bind(9, kFamilyTypes);
    insert.exec();
}

void InsertTemplate(SQLite::Database& database, const std::string& code)
{
    SQLite::Statement insert(database, "INSERT INTO property_template VALUES (?,?,?)");
    insert.bind(1, code);
    insert.bind(2, DefinitionsJson("公称直径", "扬程"));
    insert.bind(3, DefinitionsJson("Nominal size", "Head"));
    insert.exec();
}

void WriteCatalogue(const std::string& file, const LibraryContent& content)
{
    SQLite::Database database(file, SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE);
    database.exec("PRAGMA journal_mode=DELETE; PRAGMA synchronous=OFF");
    database.exec(ReadFile(NUQ_CATALOGUE_SQL));
    SQLite::Transaction transaction(database);
    for (const CategoryRow& row : content.categories) {
        InsertCategory(database, row);
    }
    for (std::size_t i = 0; i < content.components.size(); ++i) {
        InsertComponent(database, static_cast<int>(i), content.components[i]);
    }
    InsertTemplate(database, "P.1.1");
    InsertTemplate(database, "P.1.2");
    database.exec(
        "INSERT INTO legend VALUES (12345678901,'P.1.1',0,'平面图','Plan','legends/pump/plan.png','GB/T 50106')");
    database.exec("INSERT INTO legend VALUES (8,'P.1.1',1,'立面图','Elevation','legends/pump/elevation.png','')");
    database.exec("INSERT INTO category_mapping VALUES (3,'P.1.1','E-3','[\"泵\",\"Pump\"]',0)");
    database.exec("INSERT INTO project VALUES ('p1','一号项目','Project one')");
    database.exec("INSERT INTO project VALUES ('p2','空项目','Empty project')");
    database.exec("INSERT INTO project_component VALUES ('p1','77','1003',1,'used',3)");
    database.exec("INSERT INTO project_component VALUES ('p1','78','1005',3,'used',5)");
    transaction.commit();
}

std::string Definition(const std::string& id, const std::string& code, const std::string& name)
{
    return R"({"code":")" + code + R"(","formula":"","groupName":"Sizes","id":")" + id +
           R"(","isDriveParameter":true,"isEssential":true,"isGeometry":true,"isInstance":false,)"
           R"("isOutputParameter":false,"isStandard":true,"name":")" +
           name +
           R"(","parameterDisplayType":"Length","parameterType":"Double","unit":"mm","unitCode":"MMT",)"
           R"("valueType":"Number","values":{"1":"one"},"isBuildIn":false,"isShared":true,"isFromFile":true})";
}

} // namespace

std::string DefinitionsJson(const std::string& first, const std::string& second)
{
    return '[' + Definition("11111111-1111-1111-1111-111111111111", "DN", first) + ',' +
           Definition("22222222-2222-2222-2222-222222222222", "H", second) + ']';
}

LibraryContent SmallContent()
{
    LibraryContent content;
    content.categories = {{1, "P", 0, "", 0, 0, 5}, {2, "P.1", 1, "P", 0, 0, 5}, {3, "P.1.1", 2, "P.1", 0, 0, 3},
        {4, "P.1.2", 2, "P.1", 0, 3, 2}, {5, "H", 0, "", 1, 5, 2}, {6, "H.1", 5, "H", 1, 5, 2},
        {7, "E", 0, "", 2, 7, 0}};
    content.components = {{"1000", "P.1.1", "circulation pump 循环泵 dn50 1000"},
        {"1001", "P.1.1", "circulation pump 循环泵 dn80 1001"}, {"1002", "P.1.1", "booster pump 增压泵 100%_full 1002"},
        {"1003", "P.1.2", "submersible pump 潜水泵 dn50 1003"}, {"1004", "P.1.2", "submersible pump 潜水泵 dn80 1004"},
        {"1005", "H.1", "axial fan 轴流风机 dn50 1005"}, {"1006", "H.1", "roof fan 屋顶风机 φ400 1006"}};
    return content;
}

TestLibrary::TestLibrary() : TestLibrary(SmallContent()) {}

TestLibrary::TestLibrary(const LibraryContent& content)
{
    std::filesystem::create_directories(Path() / "static" / "thumbnails" / "pump");
    WriteCatalogue((Path() / "catalogue.db").string(), content);
    Write("static/thumbnails/pump/128.png", "\x89PNG" + std::string(996, 'x'));
    Write("static/thumbnails/pump/plan.svg", "<svg>" + std::string(1000, ' ') + "</svg>");
    Write("library.json", R"({"schema":1,"components":)" + std::to_string(content.components.size()) +
                              R"(,"categories":)" + std::to_string(content.categories.size()) +
                              R"(,"sourceDigest":"test"})");
}

std::filesystem::path TestLibrary::Path() const
{
    return m_folder.path().toStdString();
}

void TestLibrary::Write(const std::string& name, const std::string& bytes) const
{
    std::ofstream(Path() / name, std::ios::binary) << bytes;
}

} // namespace cloudtest
