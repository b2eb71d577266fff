#include "FamilyFiles/Container/ContainerReader.h"
#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/FamilyFileWriter.h"
#include "FamilyFiles/Manifest/ManifestReader.h"
#include "StandaloneHost/support/TestFolder.h"
#include "TarnNuqService/EnvSvcs/UnprivilegedUser.h"
#include "support/NamedCase.h"
#include "support/RawArchive.h"
#include "support/SampleManifest.h"

#include <QDir>
#include <QFile>
#include <gmock/gmock.h>
#include <sys/stat.h>

namespace familyfiles {
namespace {

using ::testing::ElementsAre;
using ::testing::StartsWith;

std::string ManifestText()
{
    return SampleManifest().dump();
}

/// A file in a folder with a blank and Chinese letters in its path.
class FamilyFileReading : public ::testing::Test
{
protected:
    std::string Write(const std::string& bytes, const char* name = "valve.nuqfamily") const
    {
        return folder.Write(QString::fromUtf8(name), QByteArray(bytes.data(), static_cast<int>(bytes.size())))
            .toStdString();
    }

    Reason RefusalOf(const std::string& path) const
    {
        Reason reason;
        EXPECT_FALSE(FamilyFileReader::Read(path, reason));
        EXPECT_TRUE(reason);
        EXPECT_FALSE(reason.chinese.empty());
        return reason;
    }

    Reason RefusalOfBytes(const std::string& bytes) const { return RefusalOf(Write(bytes)); }

    TestFolder folder;
};

TEST_F(FamilyFileReading, GivesManifestAndEntries)
{
    const std::string path = Write(RawArchive({{"manifest.json", ManifestText(), true},
        {"previews/64.png", "a picture"}, {"drawings/plan.svg", "<svg/>", true}, {"empty", ""}, {"说明.txt", "text"}}));
    Reason reason;
    const std::optional<FamilyFileContent> content = FamilyFileReader::Read(path, reason);
    ASSERT_TRUE(content) << reason.english;
    EXPECT_EQ(content->manifest.name.english, "Gate valve");
    ASSERT_EQ(content->entries.size(), 4U);
    EXPECT_EQ(content->entries[0].name, "previews/64.png");
    EXPECT_EQ(content->entries[0].bytes, "a picture");
    EXPECT_EQ(content->entries[1].bytes, "<svg/>");
    EXPECT_EQ(content->entries[2].bytes, "");
    EXPECT_EQ(content->entries[3].name, "说明.txt");
    EXPECT_TRUE(FamilyFileReader::ReadManifest(path, reason));
    EXPECT_EQ(FamilyFileReader::ReadEntry(path, "drawings/plan.svg", reason), "<svg/>");
    EXPECT_THAT(*FamilyFileReader::ReadEntryNames(path, reason),
        ElementsAre("manifest.json", "previews/64.png", "drawings/plan.svg", "empty", "说明.txt"));
    EXPECT_FALSE(reason);
}

TEST_F(FamilyFileReading, DoesNotDependOnTheNameOfTheFile)
{
    for (const char* const name :
        {"valve", "valve.zip", "valve_{00000000-0000-4000-8000-000000000000}.nuqfamily", ".x", "阀 门"}) {
        Reason reason;
        EXPECT_TRUE(
            FamilyFileReader::ReadManifest(Write(RawArchive({{"manifest.json", ManifestText()}}), name), reason))
            << name << reason.english;
    }
}

TEST_F(FamilyFileReading, FindsTheManifestAnywhere)
{
    const std::string path = Write(RawArchive({{"a.png", "x"}, {"manifest.json", ManifestText()}}));
    Reason reason;
    ASSERT_TRUE(FamilyFileReader::Read(path, reason));
}

TEST_F(FamilyFileReading, NamesAMissingEntry)
{
    const std::string path = Write(RawArchive({{"manifest.json", ManifestText()}}));
    Reason reason;
    EXPECT_FALSE(FamilyFileReader::ReadEntry(path, "previews/64.png", reason));
    EXPECT_EQ(reason.code, "container.missing-entry");
    EXPECT_EQ(reason.subject, "previews/64.png");
    EXPECT_EQ(reason.english, "The entry \"previews/64.png\" of the family file is missing.");
    EXPECT_EQ(reason.chinese, "族文件中的条目“previews/64.png”缺失。");
}

TEST_F(FamilyFileReading, RefusesAFileThatDoesNotExist)
{
    const std::string path = folder.Path(QStringLiteral("nowhere")).toStdString();
    const Reason reason = RefusalOf(path);
    EXPECT_EQ(reason.code, "file.not-found");
    EXPECT_EQ(reason.english, "The file \"" + path + "\" does not exist.");
    EXPECT_EQ(reason.chinese, "文件“" + path + "”不存在。");
}

TEST_F(FamilyFileReading, RefusesWhatIsNoFile)
{
    EXPECT_EQ(RefusalOf(folder.Path().toStdString()).code, "file.unreadable");
    const std::string pipe = folder.Path(QStringLiteral("pipe")).toStdString();
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    EXPECT_EQ(RefusalOf(pipe).english, "The file \"" + pipe + "\" cannot be read: it is no file.");
}

TEST_F(FamilyFileReading, RefusesAFileThatItMayNotRead)
{
    const std::string path = Write(RawArchive({{"manifest.json", ManifestText()}}));
    const auto open = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner | QFile::ReadOther | QFile::ExeOther;
    ASSERT_TRUE(QFile::setPermissions(folder.Path(QStringLiteral("/..")), open));
    ASSERT_TRUE(QFile::setPermissions(QString::fromStdString(path), QFile::Permissions()));
    const testsupport::UnprivilegedUser nobody;
    const Reason reason = RefusalOf(path);
    EXPECT_EQ(reason.code, "file.unreadable");
    EXPECT_EQ(reason.english, "The file \"" + path + "\" cannot be read: Permission denied.");
}

TEST_F(FamilyFileReading, RefusesAFileAboveTheLimit)
{
    QFile file(QString::fromStdString(Write("PK\3\4")));
    ASSERT_TRUE(file.resize(static_cast<qint64>(FamilyFileReader::MaximalFileSize) + 1));
    const Reason reason = RefusalOf(file.fileName().toStdString());
    EXPECT_EQ(reason.code, "file.too-large");
    EXPECT_THAT(reason.english, ::testing::EndsWith(" is larger than 64 MiB."));
}

TEST_F(FamilyFileReading, RefusesWhatIsNoArchive)
{
    for (const std::string& bytes :
        {std::string(), std::string("x"), ManifestText(), std::string(100000, '\0'), std::string("PK"),
            std::string("\x89PNG\r\n\x1a\n and so on"), std::string("PK\5\7") + std::string(18, '\0')}) {
        const Reason reason = RefusalOfBytes(bytes);
        EXPECT_EQ(reason.code, "container.not-a-container");
        EXPECT_EQ(reason.english, "The family file is no archive, hence no family file.");
        EXPECT_EQ(reason.chinese, "族文件不是压缩包，因此不是族文件。");
    }
}

TEST_F(FamilyFileReading, RefusesAnArchiveWithoutManifest)
{
    for (const std::string& bytes : {RawArchive({}), RawArchive({{"Manifest.json", ManifestText()}}),
             RawArchive({{"family/manifest.json", ManifestText()}})}) {
        const Reason reason = RefusalOfBytes(bytes);
        EXPECT_EQ(reason.code, "container.missing-manifest");
        EXPECT_EQ(reason.english, "The entry \"manifest.json\" of the family file is missing.");
    }
}

TEST_F(FamilyFileReading, HandsOnWhatIsWrongWithTheManifest)
{
    EXPECT_EQ(RefusalOfBytes(RawArchive({{"manifest.json", "{"}})).code, "manifest.not-json");
}

TEST_F(FamilyFileReading, RefusesAFileThatIsCutInTheMiddle)
{
    const std::string good = RawArchive({{"manifest.json", ManifestText(), true}, {"a.png", "picture"}});
    const Reason reason = RefusalOfBytes(good.substr(0, good.size() / 2));
    EXPECT_EQ(reason.code, "container.damaged");
    EXPECT_EQ(reason.english, "The family file is damaged or cut off: Not a zip archive.");
    EXPECT_EQ(reason.chinese, "族文件已损坏或不完整：Not a zip archive。");
}

TEST(Container, IsRefusedWhenCutAnywhere)
{
    const std::string good = RawArchive({{"manifest.json", ManifestText(), true}, {"a.png", "picture"}});
    for (std::size_t size = 0; size < good.size(); ++size) {
        Reason reason;
        ASSERT_FALSE(ContainerReader::Open(good.substr(0, size), reason)) << size;
        ASSERT_THAT(reason.code, StartsWith("container.")) << size;
    }
}

/// The three entries as they are read; empty where the container is refused.
std::vector<std::string> EntriesOf(const std::string& bytes)
{
    Reason reason;
    const std::unique_ptr<ContainerReader> container = ContainerReader::Open(bytes, reason);
    std::vector<std::string> entries;
    for (const char* const name : {"manifest.json", "a.png", "b.svg"}) {
        const auto entry = container != nullptr ? container->Read(name, 100000, reason) : std::nullopt;
        if (!entry) {
            EXPECT_TRUE(reason);
            return {};
        }
        entries.push_back(*entry);
    }
    return entries;
}

/// Whatever bit is wrong, the file is refused or gives what was in it: never something else.
TEST(Container, NeverGivesAnythingElseThanWasWritten)
{
    const std::vector<std::string> written{
        R"({"format": "tarnnuq-family"})", "a picture", "<svg>drawing drawing</svg>"};
    const std::string good =
        RawArchive({{"manifest.json", written[0], true}, {"a.png", written[1]}, {"b.svg", written[2], true}});
    ASSERT_EQ(EntriesOf(good), written);
    int refused = 0;
    for (std::size_t at = 0; at < good.size(); ++at) {
        for (int bit = 0; bit < 8; ++bit) {
            std::string bytes = good;
            bytes[at] = static_cast<char>(bytes[at] ^ (1 << bit));
            const std::vector<std::string> read = EntriesOf(bytes);
            refused += read.empty() ? 1 : 0;
            ASSERT_TRUE(read.empty() || read == written) << at << " " << bit;
        }
    }
    EXPECT_GT(refused, static_cast<int>(good.size()) * 5);
}

struct NameRow : testsupport::NamedCase
{
    std::string entry;
};

class EntryNames : public FamilyFileReading, public ::testing::WithParamInterface<NameRow>
{
};

TEST_P(EntryNames, AreRefused)
{
    const Reason reason = RefusalOfBytes(RawArchive({{"manifest.json", ManifestText()}, {GetParam().entry, "evil"}}));
    EXPECT_EQ(reason.code, "container.bad-entry-name");
    EXPECT_EQ(reason.subject, GetParam().entry);
}

INSTANTIATE_TEST_SUITE_P(Hostile, EntryNames,
    ::testing::Values(NameRow{{"ParentFolder"}, "../evil"}, NameRow{{"ParentInside"}, "a/../../evil"},
        NameRow{{"ParentAtTheEnd"}, "a/.."}, NameRow{{"OnlyParent"}, ".."}, NameRow{{"ThisFolder"}, "./evil"},
        NameRow{{"Absolute"}, "/etc/evil"}, NameRow{{"Backslash"}, "..\\evil"}, NameRow{{"BackslashInside"}, "a\\b"},
        NameRow{{"Drive"}, "C:evil"}, NameRow{{"NoUtf8"}, "\xB7\xA7.txt"},
        NameRow{{"Overlong"}, "a\xC0\xAF"
                              "b"},
        NameRow{{"Control"}, "a\nb"}, NameRow{{"VeryLong"}, std::string(201, 'x')}),
    testsupport::RowName());

TEST_F(FamilyFileReading, RefusesTwoEntriesOfOneName)
{
    EXPECT_FALSE(RefusalOfBytes(RawArchive({{"manifest.json", ManifestText()}, {"manifest.json", "{}"}})).code.empty());
    EXPECT_FALSE(RefusalOfBytes(RawArchive({{"manifest.json", ManifestText()}, {"a", "1"}, {"a", "2"}})).code.empty());
}

TEST_F(FamilyFileReading, RefusesTooManyEntries)
{
    std::vector<RawEntry> entries{{"manifest.json", ManifestText()}};
    for (int i = 0; i < 256; ++i) {
        entries.push_back({std::to_string(i), "x"});
    }
    const Reason reason = RefusalOfBytes(RawArchive(entries));
    EXPECT_EQ(reason.code, "container.too-many-entries");
    EXPECT_EQ(reason.english, "The family file has more than 256 entries.");
    entries.pop_back();
    Reason none;
    EXPECT_TRUE(FamilyFileReader::Read(Write(RawArchive(entries)), none));
}

TEST_F(FamilyFileReading, RefusesEncryptedEntries)
{
    const Reason reason = RefusalOfBytes(RawArchive({{"manifest.json", ManifestText(), false, 1}}));
    EXPECT_EQ(reason.code, "container.encrypted");
    EXPECT_EQ(reason.subject, "manifest.json");
    EXPECT_EQ(reason.english, "The entry \"manifest.json\" of the family file is encrypted.");
    EXPECT_EQ(reason.chinese, "族文件中的条目“manifest.json”已加密。");
}

TEST_F(FamilyFileReading, StopsAtTheLimitOfAManifestThatUnpacksToMuch)
{
    const std::string bytes = RawArchive({{"manifest.json", std::string(30U << 20U, ' '), true}});
    EXPECT_LT(bytes.size(), 300000U);
    const Reason reason = RefusalOfBytes(bytes);
    EXPECT_EQ(reason.code, "container.entry-too-large");
    EXPECT_EQ(reason.english, "The entry \"manifest.json\" of the family file is larger than 8 MiB.");
}

TEST_F(FamilyFileReading, StopsAtTheLimitOfOtherEntries)
{
    const std::string large(33U << 20U, '\0');
    EXPECT_EQ(RefusalOfBytes(RawArchive({{"manifest.json", ManifestText()}, {"a", large, true}})).english,
        "The entry \"a\" of the family file is larger than 32 MiB.");
    std::vector<RawEntry> entries{{"manifest.json", ManifestText()}};
    for (int i = 0; i < 5; ++i) {
        entries.push_back({std::to_string(i), std::string(31U << 20U, '\0'), true});
    }
    const Reason reason = RefusalOfBytes(RawArchive(entries));
    EXPECT_EQ(reason.code, "container.entry-too-large");
    EXPECT_EQ(reason.english, "The family file holds more than 128 MiB.");
}

TEST_F(FamilyFileReading, TrustsNoDeclaredSize)
{
    for (const std::uint32_t size : {0U, 1U, 100000U, 4294967295U}) {
        RawEntry entry{"manifest.json", ManifestText(), true};
        entry.declaredSize = size;
        EXPECT_THAT(RefusalOfBytes(RawArchive({entry})).code, StartsWith("container.")) << size;
        entry.isDeflated = false;
        EXPECT_THAT(RefusalOfBytes(RawArchive({entry})).code, StartsWith("container.")) << size;
    }
}

TEST_F(FamilyFileReading, RefusesAWrongChecksum)
{
    RawEntry entry{"manifest.json", ManifestText(), true};
    entry.declaredChecksum = 12345;
    const Reason reason = RefusalOfBytes(RawArchive({entry}));
    EXPECT_EQ(reason.code, "container.damaged");
    EXPECT_EQ(reason.english, "The entry \"manifest.json\" of the family file is damaged: CRC error.");
}

TEST_F(FamilyFileReading, RefusesMethodsOfCompressionThatItDoesNotHave)
{
    RawEntry entry{"manifest.json", ManifestText()};
    entry.method = 97;
    EXPECT_EQ(RefusalOfBytes(RawArchive({entry})).code, "container.damaged");
}

} // namespace
} // namespace familyfiles
