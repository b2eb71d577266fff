#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/FamilyFileWriter.h"
#include "FamilyFiles/Manifest/ManifestReader.h"
#include "FamilyFiles/Manifest/ManifestWriter.h"
#include "StandaloneHost/support/PrintQt.h"
#include "StandaloneHost/support/TestFolder.h"
#include "TarnNuqService/EnvSvcs/UnprivilegedUser.h"
#include "support/FileSizeLimit.h"
#include "support/SampleManifest.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <cstdlib>
#include <ctime>
#include <gmock/gmock.h>
#include <random>

namespace familyfiles {
namespace {

FamilyFileContent SampleContent()
{
    Reason reason;
    FamilyFileContent content;
    content.manifest = ReadManifest(SampleManifest().dump(), reason).value();
    std::mt19937 random(3);
    std::string picture;
    for (int i = 0; i < 50000; ++i) {
        picture += static_cast<char>(random() & 0xFFU);
    }
    content.entries = {{"previews/256.png", picture}, {"drawings/plan.svg", std::string(5000, 'x')}, {"empty.txt", ""}};
    return content;
}

class FamilyFileWriting : public ::testing::Test
{
protected:
    std::string PathOf(const char* name = "阀 门.nuqfamily") const
    {
        return folder.Path(QString::fromUtf8(name)).toStdString();
    }

    TestFolder folder;
};

TEST_F(FamilyFileWriting, WritesWhatCanBeReadBack)
{
    const FamilyFileContent content = SampleContent();
    Reason reason;
    ASSERT_TRUE(FamilyFileWriter::Write(PathOf(), content, reason)) << reason.english;
    const std::optional<FamilyFileContent> read = FamilyFileReader::Read(PathOf(), reason);
    ASSERT_TRUE(read) << reason.english;
    EXPECT_EQ(WriteManifest(read->manifest), WriteManifest(content.manifest));
    ASSERT_EQ(read->entries.size(), content.entries.size());
    for (std::size_t i = 0; i < content.entries.size(); ++i) {
        EXPECT_EQ(read->entries[i].name, content.entries[i].name);
        EXPECT_EQ(read->entries[i].bytes, content.entries[i].bytes);
    }
    EXPECT_EQ(FamilyFileReader::ReadEntryNames(PathOf(), reason)->front(), "manifest.json");
    EXPECT_EQ(folder.Files(), QStringList{QStringLiteral("阀 门.nuqfamily")});
}

TEST_F(FamilyFileWriting, WritesTheSameBytesEverywhereAndAtAnyTime)
{
    Reason reason;
    const std::string first = FamilyFileWriter::Bytes(SampleContent(), reason).value();
    for (const char* const zone : {"Asia/Shanghai", "America/New_York", "UTC"}) {
        ::setenv("TZ", zone, 1);
        ::tzset();
        EXPECT_EQ(FamilyFileWriter::Bytes(SampleContent(), reason).value(), first) << zone;
    }
    // The bytes themselves, so that another machine or release would be noticed; zlib has a part in them.
    FamilyFileContent small;
    small.manifest = SampleContent().manifest;
    small.entries = {{"a.png", "picture"}};
    const std::string bytes = FamilyFileWriter::Bytes(small, reason).value();
    EXPECT_EQ(bytes.substr(10, 4), std::string("\0\0\x41\x54", 4)) << "1 February 2022, midnight";
}

TEST_F(FamilyFileWriting, ReplacesAFile)
{
    Reason reason;
    FamilyFileContent content = SampleContent();
    ASSERT_TRUE(FamilyFileWriter::Write(PathOf(), content, reason));
    content.entries.clear();
    ASSERT_TRUE(FamilyFileWriter::Write(PathOf(), content, reason));
    EXPECT_EQ(FamilyFileReader::ReadEntryNames(PathOf(), reason)->size(), 1U);
}

TEST_F(FamilyFileWriting, KeepsWhatNewerProgramsPutInWhenItRewrites)
{
    nlohmann::ordered_json json = SampleManifest();
    json["future"] = {{"a", 1}};
    Reason reason;
    FamilyFileContent content;
    content.manifest = ReadManifest(json.dump(), reason).value();
    content.entries = {{"future/data.bin", "???"}};
    ASSERT_TRUE(FamilyFileWriter::Write(PathOf(), content, reason));
    const FamilyFileContent read = FamilyFileReader::Read(PathOf(), reason).value();
    ASSERT_TRUE(FamilyFileWriter::Write(PathOf("copy"), read, reason));
    EXPECT_EQ(folder.Read(QStringLiteral("copy")), folder.Read(QStringLiteral("阀 门.nuqfamily")));
    EXPECT_EQ(
        nlohmann::ordered_json::parse(*FamilyFileReader::ReadEntry(PathOf("copy"), "manifest.json", reason)), json);
}

TEST_F(FamilyFileWriting, LeavesTheOldFileWhenTheDiskIsFull)
{
    Reason reason;
    FamilyFileContent content = SampleContent();
    ASSERT_TRUE(FamilyFileWriter::Write(PathOf(), content, reason));
    const QByteArray before = folder.Read(QStringLiteral("阀 门.nuqfamily"));
    content.entries.push_back({"more.png", content.entries[0].bytes});
    for (const rlim_t limit : {0U, 1000U, 16384U, 60000U}) {
        reason = {};
        {
            const testsupport::FileSizeLimit full(limit);
            EXPECT_FALSE(FamilyFileWriter::Write(PathOf(), content, reason)) << limit;
        }
        EXPECT_EQ(reason.code, "file.not-written");
        EXPECT_EQ(reason.english, "The file \"" + PathOf() + "\" cannot be written: File too large.");
        EXPECT_EQ(reason.chinese, "文件“" + PathOf() + "”无法写入：File too large。");
        EXPECT_EQ(folder.Read(QStringLiteral("阀 门.nuqfamily")), before);
        EXPECT_EQ(folder.Files(), QStringList{QStringLiteral("阀 门.nuqfamily")});
    }
}

TEST_F(FamilyFileWriting, LeavesNothingWhereItMayNotWrite)
{
    const QFile::Permissions readable = QFile::ReadOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(folder.Path(QStringLiteral("/..")), readable | QFile::WriteOwner));
    ASSERT_TRUE(QFile::setPermissions(folder.Path(), readable));
    Reason reason;
    {
        const testsupport::UnprivilegedUser nobody;
        EXPECT_FALSE(FamilyFileWriter::Write(PathOf(), SampleContent(), reason));
    }
    EXPECT_EQ(reason.code, "file.not-written");
    EXPECT_EQ(reason.english, "The file \"" + PathOf() + "\" cannot be written: Permission denied.");
    EXPECT_TRUE(folder.Files().isEmpty());
}

TEST_F(FamilyFileWriting, SaysSoWhenThereIsNoSuchFolder)
{
    Reason reason;
    EXPECT_FALSE(FamilyFileWriter::Write(PathOf("nowhere/valve"), SampleContent(), reason));
    EXPECT_EQ(reason.code, "file.not-written");
    EXPECT_FALSE(FamilyFileWriter::Write(folder.Path().toStdString(), SampleContent(), reason));
    EXPECT_EQ(reason.code, "file.not-written");
    EXPECT_TRUE(folder.Files().isEmpty());
}

TEST_F(FamilyFileWriting, WritesNothingThatItWouldRefuseToRead)
{
    Reason reason;
    FamilyFileContent content = SampleContent();
    content.manifest.types[0].values[0].second = 65.0;
    EXPECT_FALSE(FamilyFileWriter::Write(PathOf(), content, reason));
    EXPECT_EQ(reason.code, "manifest.bad-value");
    content = SampleContent();
    content.entries.push_back({"../evil", ""});
    EXPECT_FALSE(FamilyFileWriter::Write(PathOf(), content, reason));
    EXPECT_EQ(reason.code, "container.bad-entry-name");
    content = SampleContent();
    content.entries.push_back({"manifest.json", ""});
    EXPECT_FALSE(FamilyFileWriter::Write(PathOf(), content, reason));
    EXPECT_EQ(reason.code, "container.duplicate-entry");
    content = SampleContent();
    for (int i = 0; i < 256; ++i) {
        content.entries.push_back({std::to_string(i), ""});
    }
    EXPECT_FALSE(FamilyFileWriter::Write(PathOf(), content, reason));
    EXPECT_EQ(reason.code, "container.too-many-entries");
    content = SampleContent();
    content.entries.push_back({"large", std::string(FamilyFileReader::MaximalEntrySize + 1, 'x')});
    EXPECT_FALSE(FamilyFileWriter::Write(PathOf(), content, reason));
    EXPECT_EQ(reason.code, "container.entry-too-large");
    EXPECT_TRUE(folder.Files().isEmpty());
}

TEST_F(FamilyFileWriting, RoundTripsRandomEntries)
{
    std::mt19937 random(11);
    for (int round = 0; round < 40; ++round) {
        FamilyFileContent content = SampleContent();
        content.entries.clear();
        for (unsigned i = 0; i < random() % 20; ++i) {
            std::string bytes;
            for (auto k = random() % 3000; k > 0; --k) {
                bytes += static_cast<char>(random() % (i % 2 == 0 ? 256 : 3));
            }
            content.entries.push_back({"条目/" + std::to_string(i) + (i % 3 == 0 ? ".png" : ".bin"), bytes});
        }
        Reason reason;
        ASSERT_TRUE(FamilyFileWriter::Write(PathOf(), content, reason)) << reason.english;
        const std::optional<FamilyFileContent> read = FamilyFileReader::Read(PathOf(), reason);
        ASSERT_TRUE(read) << reason.english;
        ASSERT_EQ(read->entries.size(), content.entries.size());
        for (std::size_t i = 0; i < content.entries.size(); ++i) {
            ASSERT_EQ(read->entries[i].name, content.entries[i].name);
            ASSERT_EQ(read->entries[i].bytes, content.entries[i].bytes);
        }
    }
}

} // namespace
} // namespace familyfiles
