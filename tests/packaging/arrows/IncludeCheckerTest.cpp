#include "IncludeChecker.h"

#include <QLibraryInfo>
#include <QTemporaryDir>
#include <fstream>
#include <gmock/gmock.h>
#include <sstream>
#include <stdexcept>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const char* const kTable = "# a comment\n"
                           "\n"
                           "Core    : std\n"
                           "Sdk     : std QtCore\n"
                           "Service : std QtCore QtNetwork Core Sdk\n"
                           "Host    : std Qt libraries Sdk\n"
                           "Builder : std Host/Files\n"
                           "tests   : anything\n";

class IncludeCheckerTest : public ::testing::Test
{
protected:
    void Write(const std::string& path, const std::string& text) const
    {
        const std::filesystem::path file = Root() / path;
        std::filesystem::create_directories(file.parent_path());
        std::ofstream(file) << text;
    }

    std::vector<std::string> Faults() const { return Checker().Faults(); }

    arrows::IncludeChecker Checker() const
    {
        std::istringstream table(kTable);
        return {
            arrows::ArrowRules::Read(table), Root(), QLibraryInfo::location(QLibraryInfo::HeadersPath).toStdString()};
    }

private:
    std::filesystem::path Root() const { return m_folder.path().toStdString(); }

    QTemporaryDir m_folder;
};

TEST_F(IncludeCheckerTest, AcceptsTheArrowsOfTheTable)
{
    Write("Core/Records/Record.h", "#include <string>\n");
    Write("Sdk/Slots.h", "#include <QString>\n#include <cstdint>\n#include <QtGlobal>\n#include <qglobal.h>\n");
    Write("Service/Net/Reply.cpp",
        "#include \"Net/Reply.h\"\n#include \"Records/Record.h\"\n#include \"Slots.h\"\n"
        "#include <QNetworkReply>\n#include <QtNetwork/QNetworkRequest>\n#include \"Reply.moc\"\n");
    Write("Service/Net/Reply.h", "#include \"CoreExport.h\"\n#include \"ServiceExport.h\"\n");
    Write("Host/Files/Zip.h", "#include <zip.h>\n#include <QSqlDatabase>\n#include <unistd.h>\n");
    Write("Builder/Builder.cpp", "#include \"Files/Zip.h\"\n");

    EXPECT_THAT(Faults(), IsEmpty());
}

TEST_F(IncludeCheckerTest, RefusesTheHeaderOfARoomThatTheTableDoesNotName)
{
    Write("Service/Net/Reply.h", "");
    Write("Host/Host.cpp", "#include <string>\n#include \"Net/Reply.h\"\n");

    EXPECT_THAT(Faults(), ElementsAre("Host/Host.cpp:2: Host may not include Net/Reply.h"));
}

TEST_F(IncludeCheckerTest, RefusesAWrongArrowInAngleBracketsOrWithBlanks)
{
    Write("Service/Net/Reply.h", "");
    Write("Host/Host.cpp", "  #  include <Net/Reply.h> // why\n");

    EXPECT_THAT(Faults(), ElementsAre("Host/Host.cpp:1: Host may not include Net/Reply.h"));
}

TEST_F(IncludeCheckerTest, RefusesAWrongArrowThatClimbsOutOfTheRoom)
{
    Write("Service/Net/Reply.h", "");
    Write("Host/Files/Host.cpp", "#include \"../../Service/Net/Reply.h\"\n");

    EXPECT_THAT(Faults(), ElementsAre("Host/Files/Host.cpp:1: Host may not include ../../Service/Net/Reply.h"));
}

TEST_F(IncludeCheckerTest, RefusesTheGeneratedExportHeaderOfAnotherRoom)
{
    Write("Core/Record.h", "#include \"ServiceExport.h\"\n");

    EXPECT_THAT(Faults(), ElementsAre("Core/Record.h:1: Core may not include ServiceExport.h"));
}

TEST_F(IncludeCheckerTest, RefusesQtWhereOnlyTheStandardLibraryIsAllowed)
{
    Write("Core/Record.h", "#include <QString>\n");

    EXPECT_THAT(Faults(), ElementsAre("Core/Record.h:1: Core may not include QString"));
}

TEST_F(IncludeCheckerTest, RefusesAnotherQtModule)
{
    Write("Sdk/Slots.h", "#include <QImage>\n#include <QtNetwork/QNetworkReply>\n");

    EXPECT_THAT(Faults(), ElementsAre("Sdk/Slots.h:1: Sdk may not include QImage",
                              "Sdk/Slots.h:2: Sdk may not include QtNetwork/QNetworkReply"));
}

TEST_F(IncludeCheckerTest, RefusesTheSystemsAndOtherPackagesHeadersWhereTheyAreNotAllowed)
{
    Write("Service/Net/Reply.cpp", "#include <unistd.h>\n#include <nlohmann/json.hpp>\n");

    EXPECT_THAT(Faults(), ElementsAre("Service/Net/Reply.cpp:1: Service may not include unistd.h",
                              "Service/Net/Reply.cpp:2: Service may not include nlohmann/json.hpp"));
}

TEST_F(IncludeCheckerTest, RefusesAFolderOfARoomThatIsOnlyPartlyOpen)
{
    Write("Host/Accounts/Token.h", "");
    Write("Builder/Builder.cpp", "#include \"Accounts/Token.h\"\n");

    EXPECT_THAT(Faults(), ElementsAre("Builder/Builder.cpp:1: Builder may not include Accounts/Token.h"));
}

TEST_F(IncludeCheckerTest, RefusesThePrivateHeaderOfAnotherRoomButNotTheOwn)
{
    Write("Core/Records/Reading_p.h", "");
    Write("Core/Records/Record.cpp", "#include \"Records/Reading_p.h\"\n");
    Write("Service/Net/Reply.cpp", "#include \"Records/Reading_p.h\"\n");

    EXPECT_THAT(Faults(), ElementsAre("Service/Net/Reply.cpp:1: Service may not include Records/Reading_p.h"));
}

TEST_F(IncludeCheckerTest, TakesTheRoomsOwnHeaderBeforeOneOfTheSameNameElsewhere)
{
    Write("Service/Text/Text.h", "");
    Write("Core/Text/Text.h", "");
    Write("Core/Record.cpp", "#include \"Text/Text.h\"\n");

    EXPECT_THAT(Faults(), IsEmpty());
}

TEST_F(IncludeCheckerTest, LeavesTestsFree)
{
    Write("Service/Net/Reply_p.h", "");
    Write("tests/Service/ReplyTest.cpp", "#include \"Net/Reply_p.h\"\n#include <QWidget>\n#include <zip.h>\n");

    EXPECT_THAT(Faults(), IsEmpty());
}

TEST_F(IncludeCheckerTest, NamesAFolderWithSourcesThatTheTableDoesNotKnow)
{
    Write("NewRoom/New.cpp", "");
    Write("docs/page.md", "");
    Write("build/generated.cpp", "");

    EXPECT_THAT(Faults(), ElementsAre("NewRoom: the table of arrows has no line for this room"));
}

TEST_F(IncludeCheckerTest, CountsTheFilesItHasRead)
{
    Write("Core/Record.h", "");
    Write("Core/Record.cpp", "");
    Write("Core/CMakeLists.txt", "");

    EXPECT_EQ(2U, Checker().CountFiles());
}

TEST(ArrowRulesTest, RefusesALineWithoutColon)
{
    std::istringstream table("Core std\n");
    EXPECT_THROW(arrows::ArrowRules::Read(table), std::runtime_error);
}

TEST(ArrowRulesTest, RefusesARoomThatStandsThereTwice)
{
    std::istringstream table("Core : std\nCore : std Qt\n");
    EXPECT_THROW(arrows::ArrowRules::Read(table), std::runtime_error);
}

} // namespace
