#include "EnvSvcs/EnvService.h"
#include "TarnNuqService/EnvSvcs/EnvServiceAccess.h"
#include "TarnNuqService/EnvSvcs/EnvServiceFixture.h"
#include "TarnNuqService/EnvSvcs/UnprivilegedUser.h"
#include "support/AllocationFailure.h"
#include "support/NamedCase.h"

#include <QDir>
#include <QFile>

using tarnnuq::EnvService;
using tarnnuq::EnvServiceAccess;
using testsupport::AllocationFailure;
using testsupport::EnvironmentFiles;
using testsupport::EnvironmentFolder;
using testsupport::LogRecord;
using testsupport::UnprivilegedUser;

namespace {

/// A folder that everybody may enter.
constexpr QFile::Permissions ForEverybody = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadGroup |
                                            QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;

using EnvServiceFaultTest = testsupport::EnvServiceFixture;

/// One of the four files, and how far the reading comes when it leads nowhere.
struct FileCase : testsupport::NamedCase
{
    const char* path;
    QByteArray EnvironmentFiles::*content;
    /// Where its path record stands among the records of a complete reading.
    std::size_t pathRecord;
    /// How many records of the other files follow all the same.
    std::size_t recordsAfter;
    std::wstring environment;
    std::wstring api;
};

const FileCase FileCases[] = {
    {{"MainFile"}, EnvironmentFolder::MainFile, &EnvironmentFiles::main, 0, 0, L"", L""},
    {{"WabFile"}, EnvironmentFolder::WabFile, &EnvironmentFiles::wab, 2, 4, L"test", L"http://qa.example/Api"},
    {{"MapFile"}, EnvironmentFolder::MapFile, &EnvironmentFiles::map, 4, 0, L"", L""},
    {{"PyxFile"}, EnvironmentFolder::PyxFile, &EnvironmentFiles::pyx, 6, 0, L"test", L""},
};

class EnvServiceFileFaultTest : public testsupport::EnvServiceFixture, public ::testing::WithParamInterface<FileCase>
{
protected:
    EnvServiceFileFaultTest() { folder.WriteAll(); }

    QString Path() const { return folder.Path(QString::fromLatin1(GetParam().path)); }

    /// Everything is read but this file, of which the path alone is logged.
    void ExpectFileSkipped() const
    {
        std::vector<LogRecord> expected = folder.RecordsOf({});
        const auto content = expected.begin() + static_cast<std::ptrdiff_t>(GetParam().pathRecord) + 1;
        expected.erase(content);
        expected.resize(GetParam().pathRecord + 1 + GetParam().recordsAfter);
        EXPECT_EQ(EnvService::GetPyxCurrentEnv(), GetParam().environment);
        EXPECT_EQ(EnvService::GetPyxApiEndPoint(), GetParam().api);
        EXPECT_EQ(host.logger.Records(), expected);
    }

    /// Everything is read, this file with a content that holds nothing.
    void ExpectContentWithoutUse(const QByteArray& bytes) const
    {
        EnvironmentFiles files;
        files.*GetParam().content = bytes;
        folder.WriteAll(files);
        std::vector<LogRecord> expected = folder.RecordsOf(files);
        expected.resize(GetParam().pathRecord + 2 + GetParam().recordsAfter);
        EXPECT_EQ(EnvService::GetPyxCurrentEnv(), GetParam().environment);
        EXPECT_EQ(EnvService::GetPyxApiEndPoint(), GetParam().api);
        EXPECT_EQ(host.logger.Records(), expected);
    }

    /// Everything is read; the file's good content begins with these bytes.
    void ExpectGoodBehind(const QByteArray& start)
    {
        EnvironmentFiles files;
        (files.*GetParam().content).prepend(start);
        folder.WriteAll(files);
        EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
        EXPECT_EQ(EnvServiceAccess::WabSettings().size(), 2U);
    }
};

} // namespace

TEST_P(EnvServiceFileFaultTest, Missing)
{
    ASSERT_TRUE(QFile::remove(Path()));
    ExpectFileSkipped();
}

TEST_P(EnvServiceFileFaultTest, ADirectory)
{
    ASSERT_TRUE(QFile::remove(Path()));
    ASSERT_TRUE(QDir().mkpath(Path()));
    ExpectFileSkipped();
}

TEST_P(EnvServiceFileFaultTest, ALinkToNowhere)
{
    ASSERT_TRUE(QFile::remove(Path()));
    ASSERT_TRUE(QFile::link(folder.Path(QStringLiteral("/nowhere")), Path()));
    ExpectFileSkipped();
}

TEST_P(EnvServiceFileFaultTest, Unreadable)
{
    ASSERT_TRUE(QFile::setPermissions(folder.Path(QStringLiteral("/..")), ForEverybody));
    ASSERT_TRUE(QFile::setPermissions(Path(), QFile::Permissions()));
    const UnprivilegedUser nobody;
    ASSERT_TRUE(QFile::exists(Path()));
    ASSERT_FALSE(QFile(Path()).open(QIODevice::ReadOnly));
    ExpectFileSkipped();
}

TEST_P(EnvServiceFileFaultTest, Empty)
{
    ExpectContentWithoutUse("");
}

TEST_P(EnvServiceFileFaultTest, Malformed)
{
    ExpectContentWithoutUse("]}>&\"wab_env: \"qa");
}

TEST_P(EnvServiceFileFaultTest, BytesThatAreNoText)
{
    ExpectContentWithoutUse(QByteArray("{\xff\xfe\0\0\x80", 6));
}

TEST_P(EnvServiceFileFaultTest, AByteOrderMarkDoesNoHarm)
{
    ExpectGoodBehind("\xef\xbb\xbf");
    // The mark is no part of the text.
    EXPECT_EQ(host.logger.Records(), folder.RecordsOf({}));
}

TEST_P(EnvServiceFileFaultTest, HugeFilesAreReadWhole)
{
    constexpr int Size = 32 << 20;
    ExpectGoodBehind(QByteArray(Size, ' '));
    const QString text = host.logger.Records().at(GetParam().pathRecord + 1).parts.at(1);
    EXPECT_EQ(text.size(), Size + (EnvironmentFiles().*GetParam().content).size());
}

INSTANTIATE_TEST_SUITE_P(Files, EnvServiceFileFaultTest, ::testing::ValuesIn(FileCases), testsupport::RowName());

namespace {

constexpr int LongLength = 5000;

/// A text that nothing else is as long as, so that its allocation can be told from all others.
QByteArray LongText()
{
    return QByteArray(LongLength, 'x');
}

AllocationFailure FailureOfLongText()
{
    return AllocationFailure((LongLength + 1) * sizeof(wchar_t));
}

} // namespace

TEST_F(EnvServiceFaultTest, AMainFileThatCannotBeKeptWholeKeepsWhatCameBefore)
{
    EnvironmentFiles files;
    files.main.replace("/nuq_env_config/env_map.json", LongText());
    folder.WriteAll(files);
    const AllocationFailure outOfMemory = FailureOfLongText();
    EXPECT_EQ(EnvServiceAccess::WabSettings().size(), 2U);
    EXPECT_TRUE(outOfMemory.Happened());
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"");
    EXPECT_EQ(host.logger.Records().size(), 4U);
}

TEST_F(EnvServiceFaultTest, AWabFileThatCannotBeKeptWholeKeepsWhatCameBefore)
{
    EnvironmentFiles files;
    files.wab = "<e><env a='1'/><env b='" + LongText() + "'/><env c='3'/></e>";
    folder.WriteAll(files);
    const AllocationFailure outOfMemory = FailureOfLongText();
    EXPECT_EQ(EnvServiceAccess::WabSettings().count(L"a"), 1U);
    EXPECT_TRUE(outOfMemory.Happened());
    EXPECT_EQ(EnvServiceAccess::WabSettings().count(L"c"), 0U);
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://qa.example/Api");
}

TEST_F(EnvServiceFaultTest, AMapFileThatCannotBeKeptLeavesNoEnvironment)
{
    EnvironmentFiles files;
    files.map = "{\"qa\":\"" + LongText() + "\"}";
    folder.WriteAll(files);
    const AllocationFailure outOfMemory = FailureOfLongText();
    EXPECT_EQ(EnvService::GetPyxCurrentEnv(), L"");
    EXPECT_TRUE(outOfMemory.Happened());
    EXPECT_EQ(host.logger.Records().size(), 6U);
}

TEST_F(EnvServiceFaultTest, APyxFileThatCannotBeKeptWholeKeepsWhatCameBefore)
{
    EnvironmentFiles files;
    files.pyx = R"({"test":{"api":"http://h/a","long":")" + LongText() + R"(","static":"http://h/s"}})";
    folder.WriteAll(files);
    const AllocationFailure outOfMemory = FailureOfLongText();
    EXPECT_EQ(EnvService::GetPyxApiEndPoint(), L"http://h/a");
    EXPECT_TRUE(outOfMemory.Happened());
    EXPECT_EQ(EnvService::GetPyxStaticEndPoint(), L"");
}
