#include "TarnNuqService/EnvSvcs/UnprivilegedUser.h"
#include "TarnNuqService/FamilyFileSvcs/FamilyFileFixture.h"
#include "support/NamedCase.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>
#include <csignal>
#include <stdexcept>
#include <sys/resource.h>
#include <type_traits>

using tarnnuq::FamilyFileService;

namespace {

using FamilyFileCopyTest = testsupport::FamilyFileFixture;

const QString Guid = QStringLiteral("\\{[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}\\}");

QString Wide(const std::wstring& text)
{
    return QString::fromStdWString(text);
}

/// The name of a file, and what stands in front of and behind the GUID in the name of its copy.
struct NameCase : testsupport::NamedCase
{
    const char* file;
    const char* before;
    const char* behind;
};

class FamilyFileCopyNameTest : public testsupport::FamilyFileFixture, public ::testing::WithParamInterface<NameCase>
{
};

/// Files that this process writes may not grow beyond a size while this lives.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_signal(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{bytes, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_signal);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    void (*m_signal)(int);
    rlimit m_before{};
};

/// Makes a folder one without the right to write while this lives.
class ReadOnlyFolder
{
public:
    explicit ReadOnlyFolder(const QString& path) : m_path(path)
    {
        QFile::setPermissions(m_path, QFile::Permissions(0x5555));
    }
    ~ReadOnlyFolder() { QFile::setPermissions(m_path, QFile::Permissions(0x7700)); }
    ReadOnlyFolder(const ReadOnlyFolder&) = delete;
    ReadOnlyFolder& operator=(const ReadOnlyFolder&) = delete;

private:
    QString m_path;
};

/// Works in another folder while this lives.
class CurrentFolder
{
public:
    explicit CurrentFolder(const QString& path) : m_before(QDir::currentPath()) { QDir::setCurrent(path); }
    ~CurrentFolder() { QDir::setCurrent(m_before); }
    CurrentFolder(const CurrentFolder&) = delete;
    CurrentFolder& operator=(const CurrentFolder&) = delete;

private:
    QString m_before;
};

} // namespace

static_assert(!std::is_constructible_v<FamilyFileService, std::wstring>);
static_assert(!std::is_copy_constructible_v<FamilyFileService> && !std::is_copy_assignable_v<FamilyFileService>);
static_assert(std::has_virtual_destructor_v<FamilyFileService>);
static_assert(sizeof(FamilyFileService) == 2 * sizeof(void*), "the table of virtual operations and the family file");

TEST_P(FamilyFileCopyNameTest, IsTheOriginalsWithAGuidInFrontOfTheLastSuffix)
{
    const QString original = NewFile(QString::fromUtf8(GetParam().file));
    ASSERT_NE(FamilyFileService::Create(original.toStdWString()), nullptr);
    ASSERT_EQ(family.paths.size(), 1U);
    const QString pattern = QRegularExpression::escape(folder.path() + '/' + QString::fromUtf8(GetParam().before)) +
                            '_' + Guid + QRegularExpression::escape(QString::fromUtf8(GetParam().behind));
    const QString copy = Wide(family.paths.front());
    EXPECT_TRUE(QRegularExpression('^' + pattern + '$').match(copy).hasMatch()) << copy.toStdString();
    EXPECT_EQ(BytesOf(copy), "a family");
    EXPECT_EQ(Names().size(), 2);
}

INSTANTIATE_TEST_SUITE_P(Names, FamilyFileCopyNameTest,
    ::testing::Values(NameCase{{"OneSuffix"}, "pump.rfx", "pump", ".rfx"}, NameCase{{"NoSuffix"}, "pump", "pump", ""},
        NameCase{{"TwoSuffixes"}, "a.tar.gz", "a.tar", ".gz"}, NameCase{{"EndsWithADot"}, "pump.", "pump", ""},
        NameCase{{"EndsWithTwoDots"}, "pump..", "pump.", ""}, NameCase{{"OnlyASuffix"}, ".rfx", "", ".rfx"},
        NameCase{{"BlanksAroundTheSuffix"}, "pump. rfx\t", "pump", ".rfx"},
        NameCase{{"BlankInsideTheSuffix"}, "pump.r fx", "pump", ".r fx"},
        NameCase{{"SuffixOfBlanks"}, "pump. \t", "pump", ""},
        NameCase{{"BlanksAroundTheBaseName"}, " pump .rfx", " pump ", ".rfx"},
        NameCase{{"UpperCase"}, "PUMP.RFX", "PUMP", ".RFX"}, NameCase{{"Chinese"}, "闸阀 DN50.族", "闸阀 DN50", ".族"},
        NameCase{{"BeyondTheBasicPlane"}, "𠀀.𠀁", "𠀀", ".𠀁"},
        NameCase{{"BracesAndPercent"}, "{a}%1_{b}.rfx", "{a}%1_{b}", ".rfx"},
        // The name of a copy is one like any other.
        NameCase{{"ACopy"}, "pump_{00000000-0000-0000-0000-000000000000}.rfx",
            "pump_{00000000-0000-0000-0000-000000000000}", ".rfx"}),
    testsupport::RowName());

TEST_F(FamilyFileCopyTest, IsAnotherOneForEachService)
{
    const std::wstring original = NewFile(QStringLiteral("pump.rfx")).toStdWString();
    const auto first = FamilyFileService::Create(original);
    const auto second = FamilyFileService::Create(original);
    ASSERT_EQ(family.paths.size(), 2U);
    EXPECT_NE(family.paths[0], family.paths[1]);
    EXPECT_EQ(Names().size(), 3);
    EXPECT_EQ(family.openFiles, 2);
}

TEST_F(FamilyFileCopyTest, IsMadeBeforeTheHostIsAsked)
{
    family.calls.onCall = [this](const std::string&) {
        EXPECT_EQ(Names().size(), 2);
        EXPECT_EQ(BytesOf(Wide(family.paths.front())), "a family");
    };
    FamilyFileService::Create(NewFile(QStringLiteral("pump.rfx")).toStdWString());
    EXPECT_EQ(family.calls.calls, Calls{"CreateFamilyFile"});
}

TEST_F(FamilyFileCopyTest, StaysWhenTheServiceGoes)
{
    auto service = Open();
    EXPECT_EQ(family.openFiles, 1);
    service.reset();
    EXPECT_EQ(family.openFiles, 0);
    EXPECT_EQ(Names().size(), 2);
}

TEST_F(FamilyFileCopyTest, LeavesTheOriginalAlone)
{
    const QByteArray bytes = QByteArray("bytes \0\xFF\r\n", 10).repeated(100000);
    const QString original = NewFile(QStringLiteral("pump.rfx"), bytes);
    const QDateTime modified = QFileInfo(original).lastModified();
    FamilyFileService::Create(original.toStdWString());
    EXPECT_EQ(BytesOf(original), bytes);
    EXPECT_EQ(QFileInfo(original).lastModified(), modified);
    EXPECT_EQ(BytesOf(Wide(family.paths.front())), bytes);
}

TEST_F(FamilyFileCopyTest, OfAnEmptyFileIsEmpty)
{
    EXPECT_NE(FamilyFileService::Create(NewFile(QStringLiteral("pump.rfx"), {}).toStdWString()), nullptr);
    EXPECT_EQ(BytesOf(Wide(family.paths.front())), "");
}

TEST_F(FamilyFileCopyTest, OfARelativePathLiesInTheAbsoluteFolder)
{
    NewFile(QStringLiteral("pump.rfx"));
    const CurrentFolder here(folder.path());
    ASSERT_NE(FamilyFileService::Create(L"pump.rfx"), nullptr);
    EXPECT_TRUE(Wide(family.paths.front()).startsWith(QDir::currentPath() + QStringLiteral("/pump_{")));
}

TEST_F(FamilyFileCopyTest, OfALinkLiesBesideTheLink)
{
    const QString original = NewFile(QStringLiteral("pump.rfx"));
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("links")));
    const QString link = folder.filePath(QStringLiteral("links/valve.lnx"));
    ASSERT_TRUE(QFile::link(original, link));
    ASSERT_NE(FamilyFileService::Create(link.toStdWString()), nullptr);
    const QString copy = Wide(family.paths.front());
    EXPECT_TRUE(copy.startsWith(folder.filePath(QStringLiteral("links/valve_{"))));
    EXPECT_FALSE(QFileInfo(copy).isSymLink());
    EXPECT_EQ(BytesOf(copy), "a family");
}

TEST_F(FamilyFileCopyTest, OfAMissingFileIsNotMade)
{
    NewFile(QStringLiteral("Pump.rfx"));
    for (const QString& name : {QStringLiteral("pump.rfx"), QStringLiteral("none/pump.rfx"), QStringLiteral("*")}) {
        EXPECT_EQ(FamilyFileService::Create(folder.filePath(name).toStdWString()), nullptr);
    }
    EXPECT_EQ(FamilyFileService::Create(L""), nullptr);
    EXPECT_EQ(Names(), QStringList{QStringLiteral("Pump.rfx")});
    EXPECT_TRUE(family.paths.empty());
}

TEST_F(FamilyFileCopyTest, OfALinkThatLeadsNowhereIsNotMade)
{
    const QString link = folder.filePath(QStringLiteral("valve.rfx"));
    ASSERT_TRUE(QFile::link(folder.filePath(QStringLiteral("gone.rfx")), link));
    EXPECT_EQ(FamilyFileService::Create(link.toStdWString()), nullptr);
    EXPECT_EQ(Names().size(), 1);
}

TEST_F(FamilyFileCopyTest, OfAFolderIsNotMade)
{
    ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("pump.rfx")));
    EXPECT_EQ(FamilyFileService::Create(folder.filePath(QStringLiteral("pump.rfx")).toStdWString()), nullptr);
    EXPECT_EQ(Names(), QStringList{QStringLiteral("pump.rfx")});
    EXPECT_TRUE(family.paths.empty());
}

TEST_F(FamilyFileCopyTest, WhoseNameWouldBeTooLongIsNotMade)
{
    const QString name = QString(220, QLatin1Char('x'));
    EXPECT_EQ(FamilyFileService::Create(NewFile(name).toStdWString()), nullptr);
    EXPECT_EQ(Names(), QStringList{name});
    EXPECT_TRUE(family.paths.empty());
}

TEST_F(FamilyFileCopyTest, InAReadOnlyFolderIsNotMade)
{
    const QString original = NewFile(QStringLiteral("pump.rfx"));
    const ReadOnlyFolder readOnly(folder.path());
    const testsupport::UnprivilegedUser nobody;
    EXPECT_EQ(FamilyFileService::Create(original.toStdWString()), nullptr);
    EXPECT_EQ(Names(), QStringList{QStringLiteral("pump.rfx")});
    EXPECT_TRUE(family.paths.empty());
}

TEST_F(FamilyFileCopyTest, OfAnUnreadableFileIsNotMade)
{
    const QString original = NewFile(QStringLiteral("pump.rfx"));
    QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
    QFile::setPermissions(original, QFile::Permissions());
    const testsupport::UnprivilegedUser nobody;
    EXPECT_EQ(FamilyFileService::Create(original.toStdWString()), nullptr);
    EXPECT_EQ(Names(), QStringList{QStringLiteral("pump.rfx")});
    EXPECT_TRUE(family.paths.empty());
}

TEST_F(FamilyFileCopyTest, ThatDoesNotFitOnTheDiskLeavesNothing)
{
    const QString original = NewFile(QStringLiteral("pump.rfx"), QByteArray(1000000, 'x'));
    const FileSizeLimit limit(100000);
    EXPECT_EQ(FamilyFileService::Create(original.toStdWString()), nullptr);
    EXPECT_EQ(Names(), QStringList{QStringLiteral("pump.rfx")});
    EXPECT_TRUE(family.paths.empty());
}

TEST_F(FamilyFileCopyTest, ThatTheHostDoesNotOpenGivesAServiceThatFails)
{
    family.opens = false;
    const auto service = Open();
    ASSERT_NE(service, nullptr);
    EXPECT_FALSE(service->TryUpdateGeometry(Specification({})));
    bool changed = true;
    EXPECT_FALSE(service->UpdateDrivenParameters(Specification({}), changed));
    EXPECT_FALSE(changed);
    changed = true;
    EXPECT_TRUE(service->UpdateDrivenParameters(nullptr, changed));
    EXPECT_FALSE(changed);
    EXPECT_TRUE(family.calls.calls.empty());
}

TEST_F(FamilyFileCopyTest, InAHostWithoutFamilyFilesGivesAServiceThatFails)
{
    host.Remove(&hostsdk::HostServices::familyFiles);
    const auto service = Open();
    ASSERT_NE(service, nullptr);
    EXPECT_FALSE(service->TryUpdateGeometry(Specification({})));
    EXPECT_EQ(Names().size(), 2);
}

TEST_F(FamilyFileCopyTest, WhoseOpeningThrowsGivesNoService)
{
    const std::vector<std::function<void()>> throws{
        [] { throw std::runtime_error("damaged"); }, [] { throw std::bad_alloc(); }, [] { throw 5; }};
    for (const auto& each : throws) {
        family.calls.onCall = [&each](const std::string&) { each(); };
        EXPECT_EQ(FamilyFileService::Create(NewFile(QStringLiteral("pump.rfx")).toStdWString()), nullptr);
    }
    // The copies stay all the same.
    EXPECT_EQ(Names().size(), 4);
    EXPECT_TRUE(host.debugMessages.Warnings().empty());
}
