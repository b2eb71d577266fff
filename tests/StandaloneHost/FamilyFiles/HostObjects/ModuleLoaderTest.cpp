#include "FamilyFiles/ModuleLoader.h"

#include "StandaloneHost/support/TestFolder.h"
#include "support/RawArchive.h"
#include "support/SampleManifest.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <gmock/gmock.h>

namespace familyfiles {
namespace {

const char* const kModule = "libTarnNuqFamilyBackend.so";
const char* const kFunction = "TarnNuqFamilyBackend";

TEST(ModuleLoader, FindsModulesBesideTheProgramsFolder)
{
    EXPECT_NE(LoadModule(ModuleFolders(), kModule, kFunction).object, nullptr);
}

TEST(ModuleLoader, TakesTheFirstFolderThatHasTheModule)
{
    const TestFolder folder;
    QStringList folders = ModuleFolders();
    folders.prepend(folder.Path());
    EXPECT_NE(LoadModule(folders, kModule, kFunction).object, nullptr);
    folder.Write(QString::fromLatin1(kModule), "no library");
    const LoadedModule refused = LoadModule(folders, kModule, kFunction);
    EXPECT_EQ(refused.object, nullptr);
    EXPECT_EQ(refused.reason.code, "module.missing");
}

TEST(ModuleLoader, SaysThatThereIsNoModule)
{
    const LoadedModule module = LoadModule({QStringLiteral("/nowhere"), QStringLiteral("/else")}, kModule, kFunction);
    EXPECT_EQ(module.object, nullptr);
    EXPECT_EQ(module.reason.code, "module.missing");
    EXPECT_EQ(module.reason.subject, kModule);
    EXPECT_EQ(
        module.reason.english, "The module libTarnNuqFamilyBackend.so cannot be loaded: it is not in /nowhere, /else.");
    EXPECT_EQ(module.reason.chinese, "无法加载模块 libTarnNuqFamilyBackend.so：it is not in /nowhere, /else。");
}

TEST(ModuleLoader, RefusesAModuleWithoutTheFunction)
{
    const LoadedModule module = LoadModule(ModuleFolders(), kModule, "NoSuchFunction");
    EXPECT_EQ(module.object, nullptr);
    EXPECT_THAT(
        module.reason.english, ::testing::EndsWith("/libTarnNuqFamilyBackend.so does not have NoSuchFunction."));
}

TEST(ModuleLoader, RefusesAModuleOfAnotherVersion)
{
    const TestFolder folder;
    ASSERT_TRUE(QFile::copy(QStringLiteral(OTHER_VERSION_MODULE), folder.Path(QString::fromLatin1(kModule))));
    const LoadedModule module = LoadModule({folder.Path()}, kModule, kFunction);
    EXPECT_EQ(module.object, nullptr);
    EXPECT_EQ(module.reason.english, "The module libTarnNuqFamilyBackend.so cannot be loaded: " +
                                         folder.Path(QString::fromLatin1(kModule)).toStdString() +
                                         " is not of version " PROJECT_VERSION ".");
}

/// A program of its own in a folder with the given modules beside it; what it says of the sample family.
QByteArray SaidBesideModules(const QStringList& modules)
{
    const TestFolder folder;
    const QString program = folder.Path(QStringLiteral("bin/FamilyChecker"));
    const std::string bytes = RawArchive({{"manifest.json", SampleManifest().dump()}});
    const QString family =
        folder.Write(QStringLiteral("bin/valve"), QByteArray(bytes.data(), static_cast<int>(bytes.size())));
    QDir().mkpath(folder.Path(QStringLiteral("lib")));
    EXPECT_TRUE(QFile::copy(QStringLiteral(FAMILY_CHECKER), program));
    for (const QString& module : modules) {
        EXPECT_TRUE(QFile::copy(QStringLiteral(MODULE_FOLDER "/") + module,
            folder.Path(QStringLiteral("lib/")) + QFileInfo(module).fileName()));
    }
    QProcess process;
    process.start(program, {family});
    EXPECT_TRUE(process.waitForFinished(30000));
    return process.readAllStandardOutput().replace(QFileInfo(program).path().toUtf8(), "BIN");
}

TEST(MissingModules, AreToldToTheUser)
{
    EXPECT_EQ(SaidBesideModules({}),
        QByteArray("not opened: The module libTarnNuqFamilyBackend.so cannot be loaded: it is not in BIN/../lib, "
                   "BIN/../" LIBRARY_FOLDER ".\n"));
    EXPECT_EQ(SaidBesideModules({QString::fromLatin1(kModule)}),
        QByteArray(
            "opened\ndriven parameters: 2\nno geometry: The module libTarnNuqGeometry.so cannot be loaded: it is "
            "not in BIN/../lib, BIN/../" LIBRARY_FOLDER ".\n"));
}

} // namespace
} // namespace familyfiles
