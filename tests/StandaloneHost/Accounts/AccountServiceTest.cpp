#include "Accounts/AccountService.h"

#include "Settings/SettingsStore.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

using standalone::AccountService;
using standalone::SettingsStore;
using standalone::TokenEnvironment;
using Kind = standalone::TokenOrigin::Kind;

namespace {

/// An account service over a folder of its own, with what it called secret.
class Accounts : public testing::Test
{
protected:
    Accounts()
        : m_settings(m_folder.Write(QStringLiteral("settings.json"), R"({"permissions":{"p/1":3,"p2":"4","p3":1.5}})")),
          m_accounts(m_folder.Path(), m_settings, [this](const QString& token) { m_secrets += token; })
    {
        for (const char* variable : {"NUQ_TOKEN", "NUQ_TOKEN_QA", "NUQ_TOKEN_FILE", "NUQ_TOKEN_QA_FILE"}) {
            qunsetenv(variable);
        }
    }

    /// Writes the stored token with the permissions that storing gives it.
    QString WriteStored(const char* name, const QByteArray& content) const
    {
        QString file = m_folder.Write(QStringLiteral("accounts/") + QString::fromLatin1(name), content);
        SetMode(file, 0600);
        SetMode(m_folder.Path(QStringLiteral("accounts")), 0700);
        return file;
    }

    static void SetMode(const QString& path, mode_t mode)
    {
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0) << path.toStdString();
    }

    static unsigned Mode(const QString& path)
    {
        struct stat status = {};
        return ::stat(QFile::encodeName(path).constData(), &status) == 0 ? status.st_mode & 07777U : 0U;
    }

    QString OriginText(TokenEnvironment environment = TokenEnvironment::Production) const
    {
        return m_accounts.Origin(environment).Text();
    }

    TestFolder m_folder;
    SettingsStore m_settings;
    QStringList m_secrets;
    AccountService m_accounts;
};

TEST_F(Accounts, HaveNoTokensWhenNothingIsSetUp)
{
    EXPECT_EQ(m_accounts.GetToken(), L"");
    EXPECT_EQ(m_accounts.GetTokenInQa(), L"");
    EXPECT_EQ(OriginText(), QStringLiteral("none"));
    EXPECT_EQ(OriginText(TokenEnvironment::Qa), QStringLiteral("none"));
    EXPECT_EQ(m_secrets, QStringList());
}

TEST_F(Accounts, TakeTheVariableFirstThenTheNamedFileThenTheStoredOne)
{
    const QString stored = WriteStored("token-prod", "from-store\n");
    EXPECT_EQ(m_accounts.GetToken(), L"from-store");
    EXPECT_EQ(OriginText(), QStringLiteral("file ") + stored);
    EXPECT_EQ(m_accounts.Origin(TokenEnvironment::Production).kind, Kind::StoredFile);

    const QString named = m_folder.Write(QStringLiteral("令牌 file"), "from-file\n");
    SetMode(named, 0600);
    SetMode(m_folder.Path(), 0700);
    qputenv("NUQ_TOKEN_FILE", named.toUtf8());
    EXPECT_EQ(m_accounts.GetToken(), L"from-file");
    EXPECT_EQ(OriginText(), QStringLiteral("file ") + named);
    EXPECT_EQ(m_accounts.Origin(TokenEnvironment::Production).kind, Kind::NamedFile);

    qputenv("NUQ_TOKEN", "from-variable");
    EXPECT_EQ(m_accounts.GetToken(), L"from-variable");
    EXPECT_EQ(OriginText(), QStringLiteral("environment variable NUQ_TOKEN"));
    EXPECT_EQ(m_accounts.Origin(TokenEnvironment::Production).kind, Kind::EnvironmentVariable);
    EXPECT_EQ(m_accounts.GetTokenInQa(), L"");
}

TEST_F(Accounts, KeepTheTokensOfQaApart)
{
    const QString stored = WriteStored("token-qa", "from-store");
    EXPECT_EQ(m_accounts.GetTokenInQa(), L"from-store");
    EXPECT_EQ(OriginText(TokenEnvironment::Qa), QStringLiteral("file ") + stored);
    qputenv("NUQ_TOKEN_QA_FILE", m_folder.Write(QStringLiteral("named"), "from-file").toUtf8());
    EXPECT_EQ(m_accounts.GetTokenInQa(), L"from-file");
    qputenv("NUQ_TOKEN_QA", "from-variable");
    EXPECT_EQ(m_accounts.GetTokenInQa(), L"from-variable");
    EXPECT_EQ(OriginText(TokenEnvironment::Qa), QStringLiteral("environment variable NUQ_TOKEN_QA"));
    EXPECT_EQ(m_accounts.GetToken(), L"");
    EXPECT_EQ(OriginText(), QStringLiteral("none"));
}

TEST_F(Accounts, TakeEmptyVariablesAsNotSet)
{
    WriteStored("token-prod", "from-store");
    qputenv("NUQ_TOKEN", "");
    qputenv("NUQ_TOKEN_FILE", "");
    EXPECT_EQ(m_accounts.GetToken(), L"from-store");
    qputenv("NUQ_TOKEN", "\n");
    EXPECT_EQ(m_accounts.GetToken(), L"from-store");
}

TEST_F(Accounts, TrimOnlyLineEndsAndAByteOrderMark)
{
    WriteStored("token-prod", "\xEF\xBB\xBF to ken部 \r\n\n");
    EXPECT_EQ(m_accounts.GetToken(), L" to ken部 ");
    qputenv("NUQ_TOKEN", "abc \n");
    EXPECT_EQ(m_accounts.GetToken(), L"abc ");
}

TEST_F(Accounts, ReadTheSourceAnewEachTime)
{
    WriteStored("token-prod", "old");
    EXPECT_EQ(m_accounts.GetToken(), L"old");
    WriteStored("token-prod", "renewed");
    EXPECT_EQ(m_accounts.GetToken(), L"renewed");
}

TEST_F(Accounts, TellOfEachTokenBeforeItIsHandedOut)
{
    qputenv("NUQ_TOKEN", "prod-secret");
    qputenv("NUQ_TOKEN_QA", "qa-secret");
    m_accounts.GetToken();
    m_accounts.GetTokenInQa();
    EXPECT_EQ(m_secrets, (QStringList{QStringLiteral("prod-secret"), QStringLiteral("qa-secret")}));
}

TEST_F(Accounts, RefuseAStoredTokenThatOthersCanRead)
{
    const QString file = WriteStored("token-prod", "secret-token");
    for (const mode_t mode : {0640, 0604, 0644}) {
        SetMode(file, mode);
        EXPECT_EQ(m_accounts.GetToken(), L"");
        EXPECT_EQ(m_accounts.Origin(TokenEnvironment::Production).kind, Kind::Refused);
        EXPECT_EQ(OriginText(),
            QStringLiteral("refused: the token file %1 can be read by others (mode 0%2); run: chmod 700 \"%3\" && "
                           "chmod 600 \"%1\"")
                .arg(file, QString::number(mode, 8), m_folder.Path(QStringLiteral("accounts"))));
    }
    SetMode(file, 0400);
    EXPECT_EQ(m_accounts.GetToken(), L"secret-token");
}

TEST_F(Accounts, RefuseAStoredTokenThatOthersCanReplace)
{
    const QString file = WriteStored("token-prod", "secret-token");
    SetMode(file, 0620);
    EXPECT_EQ(m_accounts.GetToken(), L"");
    EXPECT_TRUE(OriginText().contains(QStringLiteral("can be replaced by others (mode 0620)")))
        << OriginText().toStdString();
    SetMode(file, 0600);
    SetMode(m_folder.Path(QStringLiteral("accounts")), 0730);
    EXPECT_EQ(m_accounts.GetToken(), L"");
    EXPECT_TRUE(OriginText().contains(QStringLiteral("can be replaced by others (mode 0730)")))
        << OriginText().toStdString();
    SetMode(m_folder.Path(QStringLiteral("accounts")), 0755);
    EXPECT_EQ(m_accounts.GetToken(), L"secret-token");
}

TEST_F(Accounts, UseANamedFileThatOthersCanReadButSayIt)
{
    const QString named = m_folder.Write(QStringLiteral("named"), "mounted-token");
    SetMode(named, 0444);
    qputenv("NUQ_TOKEN_FILE", named.toUtf8());
    EXPECT_EQ(m_accounts.GetToken(), L"mounted-token");
    EXPECT_EQ(OriginText(), QStringLiteral("file %1 (can be read by others (mode 0444))").arg(named));
}

TEST_F(Accounts, DoNotFallBackFromAFaultySource)
{
    WriteStored("token-prod", "from-store");
    qputenv("NUQ_TOKEN_FILE", m_folder.Path(QStringLiteral("missing")).toUtf8());
    EXPECT_EQ(m_accounts.GetToken(), L"");
    EXPECT_EQ(OriginText(), QStringLiteral("refused: cannot read the token file %1: it does not exist")
                                .arg(m_folder.Path(QStringLiteral("missing"))));
}

TEST_F(Accounts, RefuseFilesThatHoldNoToken)
{
    struct
    {
        QByteArray content;
        const char* reason;
    } const rows[] = {
        {"", "it holds no token"},
        {"\r\n", "it holds no token"},
        {"two\nlines", "it is not one line of UTF-8 text"},
        {"tab\tinside", "it is not one line of UTF-8 text"},
        {QByteArray("t\0o\0k\0", 6), "it is not one line of UTF-8 text"},
        {"\xff\xfe\xfd", "it is not one line of UTF-8 text"},
        {QByteArray(8193, 'x'), "it is longer than 8192 characters"},
        {QByteArray(100000, 'x'), "it is no small regular file"},
    };
    for (const auto& row : rows) {
        const QString file = WriteStored("token-prod", row.content);
        EXPECT_EQ(m_accounts.GetToken(), L"");
        EXPECT_EQ(OriginText(),
            QStringLiteral("refused: cannot read the token file %1: %2").arg(file, QString::fromLatin1(row.reason)));
    }
    WriteStored("token-prod", QByteArray(8192, 'x'));
    EXPECT_EQ(m_accounts.GetToken(), std::wstring(8192, L'x'));
}

TEST_F(Accounts, RefuseWhatIsNoFileWithoutWaiting)
{
    const QString pipe = m_folder.Path(QStringLiteral("pipe"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    for (const QString& path : {pipe, m_folder.Path()}) {
        qputenv("NUQ_TOKEN_FILE", path.toUtf8());
        EXPECT_EQ(m_accounts.GetToken(), L"");
        EXPECT_EQ(OriginText(),
            QStringLiteral("refused: cannot read the token file %1: it is no small regular file").arg(path));
    }
}

TEST_F(Accounts, RefuseAVariableThatWouldBreakTheHeader)
{
    qputenv("NUQ_TOKEN", "s3cret\r\nX-Injected: 1");
    EXPECT_EQ(m_accounts.GetToken(), L"");
    EXPECT_EQ(
        OriginText(), QStringLiteral("refused: environment variable NUQ_TOKEN: it is not one line of UTF-8 text"));
}

TEST_F(Accounts, TakeARelativeNamedFileFromTheCurrentFolder)
{
    m_folder.Write(QStringLiteral("named"), "relative-token");
    ASSERT_TRUE(QDir::setCurrent(m_folder.Path()));
    qputenv("NUQ_TOKEN_FILE", "named");
    EXPECT_EQ(m_accounts.GetToken(), L"relative-token");
    EXPECT_EQ(m_accounts.Origin(TokenEnvironment::Production).place,
        QDir::current().absoluteFilePath(QStringLiteral("named")));
}

TEST_F(Accounts, StoreATokenForItsOwnerOnly)
{
    ::umask(0);
    EXPECT_EQ(m_accounts.Store(TokenEnvironment::Production, QStringLiteral("new-token部")), QString());
    EXPECT_EQ(m_accounts.Store(TokenEnvironment::Qa, QStringLiteral("new-token-qa")), QString());
    EXPECT_EQ(m_accounts.GetToken(), L"new-token部");
    EXPECT_EQ(m_accounts.GetTokenInQa(), L"new-token-qa");
    EXPECT_EQ(Mode(m_accounts.StoredFile(TokenEnvironment::Production)), 0600U);
    EXPECT_EQ(Mode(m_accounts.StoredFile(TokenEnvironment::Qa)), 0600U);
    EXPECT_EQ(Mode(m_folder.Path(QStringLiteral("accounts"))), 0700U);
    EXPECT_EQ(m_folder.FilesWith("new-token"),
        (QStringList{QStringLiteral("accounts/token-prod"), QStringLiteral("accounts/token-qa")}));
}

TEST_F(Accounts, MendThePermissionsWhenTheyStore)
{
    const QString file = WriteStored("token-prod", "old");
    SetMode(file, 0666);
    SetMode(m_folder.Path(QStringLiteral("accounts")), 0777);
    EXPECT_EQ(m_accounts.Store(TokenEnvironment::Production, QStringLiteral("new-token")), QString());
    EXPECT_EQ(Mode(file), 0600U);
    EXPECT_EQ(Mode(m_folder.Path(QStringLiteral("accounts"))), 0700U);
    EXPECT_EQ(m_accounts.GetToken(), L"new-token");
}

TEST_F(Accounts, KeepTheOldTokenWhenTheNewOneIsNone)
{
    const QString file = WriteStored("token-prod", "old");
    EXPECT_EQ(m_accounts.Store(TokenEnvironment::Production, QString()),
        QStringLiteral("the token is not stored: it holds no token"));
    EXPECT_EQ(m_accounts.Store(TokenEnvironment::Production, QStringLiteral("a\nb")),
        QStringLiteral("the token is not stored: it is not one line of UTF-8 text"));
    EXPECT_EQ(m_accounts.GetToken(), L"old");
}

TEST_F(Accounts, KeepTheOldTokenWhenTheDiskIsFull)
{
    const QString file = WriteStored("token-prod", "old");
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{10, 10};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    const QString fault = m_accounts.Store(TokenEnvironment::Production, QStringLiteral("a-new-long-token"));
    EXPECT_TRUE(fault.startsWith(QStringLiteral("cannot write the token file %1: ").arg(file))) << fault.toStdString();
    EXPECT_FALSE(fault.contains(QStringLiteral("a-new")));
    EXPECT_EQ(m_accounts.GetToken(), L"old");
    EXPECT_EQ(m_folder.FilesWith("a-new"), QStringList());
}

TEST_F(Accounts, SayWhenTheFolderCannotBeMade)
{
    m_folder.Write(QStringLiteral("accounts"), "a file");
    EXPECT_EQ(m_accounts.Store(TokenEnvironment::Production, QStringLiteral("new-token")),
        QStringLiteral("cannot make a private folder %1 for the token").arg(m_folder.Path(QStringLiteral("accounts"))));
    EXPECT_EQ(m_folder.FilesWith("new-token"), QStringList());
}

TEST_F(Accounts, ForgetTheStoredTokenOfOneEnvironment)
{
    WriteStored("token-prod", "prod-token");
    WriteStored("token-qa", "qa-token");
    EXPECT_EQ(m_accounts.Forget(TokenEnvironment::Production), QString());
    EXPECT_EQ(m_accounts.Forget(TokenEnvironment::Production), QString());
    EXPECT_EQ(m_accounts.GetToken(), L"");
    EXPECT_EQ(m_accounts.GetTokenInQa(), L"qa-token");
    EXPECT_EQ(m_folder.FilesWith("prod-token"), QStringList());
}

TEST_F(Accounts, SayWhenTheStoredTokenCannotBeRemoved)
{
    m_folder.Write(QStringLiteral("accounts/token-prod/inside"), "x");
    const QString fault = m_accounts.Forget(TokenEnvironment::Production);
    EXPECT_TRUE(fault.startsWith(QStringLiteral("cannot remove the token file "))) << fault.toStdString();
}

TEST_F(Accounts, TakePermissionsFromTheSettings)
{
    EXPECT_EQ(m_accounts.GetPermissionInCollaborationProject(L"p/1", L"MUZ"), 3);
    EXPECT_EQ(m_accounts.GetPermissionInCollaborationProject(L"p/1", L""), 3);
    EXPECT_EQ(m_accounts.GetPermissionInCollaborationProject(L"p2", L"MUZ"), 0);
    EXPECT_EQ(m_accounts.GetPermissionInCollaborationProject(L"p3", L"MUZ"), 0);
    EXPECT_EQ(m_accounts.GetPermissionInCollaborationProject(L"P/1", L"MUZ"), 0);
    EXPECT_EQ(m_accounts.GetPermissionInCollaborationProject(L"", L"MUZ"), 0);
}

} // namespace
