// The bash completion as bash runs it.
#include "Commands/CommandList.h"
#include "Documentation/Completions.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace nuq {
namespace {

class BashCompletionTest : public ::testing::Test
{
protected:
    BashCompletionTest()
    {
        QFile script(folder.filePath(QStringLiteral("nuq")));
        EXPECT_TRUE(script.open(QIODevice::WriteOnly));
        script.write(QByteArray::fromStdString(BashCompletion(MakeCommands())));
        for (const char* name : {"a.nuqfamily", "b.json"})
            EXPECT_TRUE(QFile(folder.filePath(QLatin1String(name))).open(QIODevice::WriteOnly));
    }

    /// What is offered for the last of these words.
    std::string Offered(const QStringList& words)
    {
        QProcess bash;
        bash.setWorkingDirectory(folder.path());
        const QString program =
            QStringLiteral("source nuq; COMP_WORDS=(nuq \"$@\"); COMP_CWORD=$#; _nuq; echo \"${COMPREPLY[*]}\"");
        bash.start(QStringLiteral("bash"), QStringList{QStringLiteral("-c"), program, QStringLiteral("bash")} + words);
        EXPECT_TRUE(bash.waitForFinished());
        EXPECT_EQ(bash.readAllStandardError().toStdString(), "");
        return bash.readAllStandardOutput().trimmed().toStdString();
    }

    QTemporaryDir folder;
};

TEST_F(BashCompletionTest, OffersCommandsAndGroups)
{
    EXPECT_EQ(Offered({"fam"}), "family");
    EXPECT_EQ(Offered({"categ"}), "categories");
    EXPECT_EQ(Offered({"--json", "doc"}), "doctor");
    EXPECT_EQ(Offered({"check"}), "");
}

TEST_F(BashCompletionTest, OffersTheWordsOfAGroup)
{
    EXPECT_EQ(Offered({"family", ""}), "show check update draw render export new validate sheet");
    EXPECT_EQ(Offered({"family", "--quiet", "sh"}), "show sheet");
    EXPECT_EQ(Offered({"family", "doc"}), "");
}

TEST_F(BashCompletionTest, OffersTheOptionsOfTheCommandAlone)
{
    EXPECT_EQ(Offered({"family", "export", "x", "--st"}), "--step --stl");
    EXPECT_EQ(Offered({"family", "show", "--st"}), "");
    EXPECT_EQ(Offered({"family", "show", "--ty"}), "--type");
    EXPECT_EQ(Offered({"categories", "--tr"}), "--tree");
    EXPECT_EQ(Offered({"family", "show", "--jso"}), "--json");
}

TEST_F(BashCompletionTest, OffersChoicesAndFiles)
{
    EXPECT_EQ(Offered({"family", "draw", "a", "--view", ""}), "plan elevation profile");
    EXPECT_EQ(Offered({"--lang", ""}), "en zh");
    EXPECT_EQ(Offered({"family", "show", "a"}), "a.nuqfamily");
    EXPECT_EQ(Offered({"family", "new", "a.json", "-o", "b"}), "b.json");
    EXPECT_EQ(Offered({"component", "a"}), "");
}

} // namespace
} // namespace nuq
