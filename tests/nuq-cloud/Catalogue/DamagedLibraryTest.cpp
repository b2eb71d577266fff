#include "Catalogue/LibraryFolder.h"
#include "Server/NuqCloudServer.h"
#include "nuq-cloud/support/TestLibrary.h"

#include <SQLiteCpp/SQLiteCpp.h>
#include <filesystem>
#include <gtest/gtest.h>

namespace nuqcloud {
namespace {

std::string ErrorOf(const std::filesystem::path& folder)
{
    ServerSettings settings;
    settings.library = folder;
    try {
        const NuqCloudServer server(settings);
    } catch (const LibraryError& error) {
        return error.what();
    }
    return "no error";
}

std::string Damaged(const cloudtest::TestLibrary& library, const std::string& reason)
{
    const std::string folder = library.Path().string();
    return "The sample library in \"" + folder + "\" is damaged: " + reason +
           ". Build one with: sample-library-builder \"" + folder + "\" after removing the folder.";
}

TEST(DamagedLibrary, IsServedWhenItIsWhole)
{
    EXPECT_EQ(ErrorOf(cloudtest::TestLibrary().Path()), "no error");
}

TEST(DamagedLibrary, MayLieInAFolderOfAnyName)
{
    const cloudtest::TestLibrary library;
    const auto odd = library.Path() / "a b 泵 %41?x#y";
    std::filesystem::create_directory(odd);
    for (const char* name : {"library.json", "catalogue.db"}) {
        std::filesystem::copy_file(library.Path() / name, odd / name);
    }
    EXPECT_EQ(ErrorOf(odd), "no error");
}

TEST(DamagedLibrary, SaysHowToBuildOneThatIsMissing)
{
    EXPECT_EQ(ErrorOf("/nowhere"),
        "There is no sample library in \"/nowhere\" (library.json cannot be read). Build one "
        "with: sample-library-builder \"/nowhere\", or name another with --library.");
}

TEST(DamagedLibrary, RefusesAManifestThatIsNone)
{
    const cloudtest::TestLibrary library;
    for (const char* text : {"", "[]", "{\"schema\":", "null"}) {
        library.Write("library.json", text);
        EXPECT_EQ(ErrorOf(library.Path()), Damaged(library, "library.json is not a JSON object")) << text;
    }
    library.Write("library.json", R"({"schema":1,"components":"7","categories":7})");
    EXPECT_EQ(ErrorOf(library.Path()), Damaged(library, "library.json does not state its components and categories"));
}

TEST(DamagedLibrary, RefusesAnotherSchema)
{
    const cloudtest::TestLibrary library;
    library.Write("library.json", R"({"schema":2,"components":7,"categories":7})");
    EXPECT_NE(ErrorOf(library.Path()).find("was made for another version of nuq-cloud"), std::string::npos);
}

TEST(DamagedLibrary, RefusesAMissingCatalogue)
{
    const cloudtest::TestLibrary library;
    std::filesystem::remove(library.Path() / "catalogue.db");
    EXPECT_EQ(ErrorOf(library.Path()), Damaged(library, "catalogue.db is missing"));
}

TEST(DamagedLibrary, RefusesACatalogueThatIsNoDatabase)
{
    const cloudtest::TestLibrary library;
    library.Write("catalogue.db", std::string(5000, 'x'));
    EXPECT_EQ(ErrorOf(library.Path()), Damaged(library, "catalogue.db cannot be read (file is not a database)"));
}

TEST(DamagedLibrary, RefusesACatalogueThatWasCutShort)
{
    const cloudtest::TestLibrary library;
    const auto file = library.Path() / "catalogue.db";
    std::filesystem::resize_file(file, std::filesystem::file_size(file) - 4096);
    EXPECT_EQ(
        ErrorOf(library.Path()), Damaged(library, "catalogue.db cannot be read (database disk image is malformed)"));
}

TEST(DamagedLibrary, RefusesAnEmptyCatalogue)
{
    const cloudtest::TestLibrary library;
    library.Write("catalogue.db", "");
    EXPECT_EQ(ErrorOf(library.Path()), Damaged(library, "catalogue.db does not carry schema version 1"));
}

TEST(DamagedLibrary, RefusesNumbersThatDoNotAgree)
{
    const cloudtest::TestLibrary library;
    library.Write("library.json", R"({"schema":1,"components":8,"categories":7})");
    EXPECT_EQ(ErrorOf(library.Path()), Damaged(library, "catalogue.db does not hold what library.json says"));
}

TEST(DamagedLibrary, RefusesACatalogueWithoutItsTables)
{
    const cloudtest::TestLibrary library;
    {
        SQLite::Database database((library.Path() / "catalogue.db").string(), SQLite::OPEN_READWRITE);
        database.exec("DROP TABLE project");
    }
    EXPECT_EQ(ErrorOf(library.Path()), Damaged(library, "catalogue.db cannot be read (no such table: project)"));
}

} // namespace
} // namespace nuqcloud
