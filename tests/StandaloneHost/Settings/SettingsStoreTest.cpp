#include "Settings/SettingsStore.h"

#include "Settings/FileLock.h"
#include "support/NamedCase.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <csignal>
#include <gtest/gtest.h>
#include <memory>
#include <sys/resource.h>

using standalone::FileLock;
using standalone::SettingsState;
using standalone::SettingsStore;

namespace {

const char* const kFile = "config/settings.json";

QString FileName()
{
    return QString::fromLatin1(kFile);
}

QJsonObject Written(const TestFolder& folder)
{
    return QJsonDocument::fromJson(folder.Read(FileName())).object();
}

QJsonObject Json(const char* text)
{
    return QJsonDocument::fromJson(text).object();
}

TEST(SettingsStore, HasDefaultsAndLeavesNoTraceWhenThereIsNoFile)
{
    const TestFolder folder;
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.State(), SettingsState::Missing);
    EXPECT_EQ(settings.Detail(), QString());
    EXPECT_EQ(settings.Path(), folder.Path(FileName()));
    EXPECT_EQ(settings.Text(QStringLiteral("a"), QStringLiteral("b")), QStringLiteral("b"));
    EXPECT_FALSE(settings.Contains(QStringLiteral("a")));
    EXPECT_EQ(settings.Remove(QStringLiteral("a")), QString());
    EXPECT_FALSE(QFileInfo::exists(folder.Path(QStringLiteral("config"))));
}

TEST(SettingsStore, ReadsEachType)
{
    const TestFolder folder;
    folder.Write(FileName(), R"({"t":"风管","f":true,"i":-7,"n":2.5,"l":["a",1,"b"],"o":{"p":{"q":"deep"}}})");
    const SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.State(), SettingsState::Read);
    EXPECT_EQ(settings.Text(QStringLiteral("t")), QStringLiteral("风管"));
    EXPECT_TRUE(settings.Flag(QStringLiteral("f")));
    EXPECT_EQ(settings.Integer(QStringLiteral("i")), -7);
    EXPECT_EQ(settings.Number(QStringLiteral("n")), 2.5);
    EXPECT_EQ(settings.Texts(QStringLiteral("l")), (QStringList{QStringLiteral("a"), QStringLiteral("b")}));
    EXPECT_EQ(settings.Text(QStringLiteral("o/p/q")), QStringLiteral("deep"));
    EXPECT_TRUE(settings.Contains(QStringLiteral("o/p")));
    EXPECT_FALSE(settings.Contains(QStringLiteral("o/x/q")));
}

TEST(SettingsStore, GivesTheDefaultForAValueOfAnotherType)
{
    const TestFolder folder;
    folder.Write(FileName(), R"({"t":1,"f":"true","i":"7","h":1.5,"b":3e9,"n":"2","l":"a","o":"x","z":null})");
    const SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.Text(QStringLiteral("t"), QStringLiteral("d")), QStringLiteral("d"));
    EXPECT_TRUE(settings.Flag(QStringLiteral("f"), true));
    EXPECT_FALSE(settings.Flag(QStringLiteral("f"), false));
    EXPECT_EQ(settings.Integer(QStringLiteral("i"), 3), 3);
    EXPECT_EQ(settings.Integer(QStringLiteral("h"), 3), 3);
    EXPECT_EQ(settings.Integer(QStringLiteral("b"), 3), 3);
    EXPECT_EQ(settings.Number(QStringLiteral("n"), 1.5), 1.5);
    EXPECT_EQ(settings.Texts(QStringLiteral("l")), QStringList());
    EXPECT_EQ(settings.Text(QStringLiteral("o/p"), QStringLiteral("d")), QStringLiteral("d"));
    EXPECT_EQ(settings.Text(QStringLiteral("z"), QStringLiteral("d")), QStringLiteral("d"));
}

TEST(SettingsStore, WritesAValueAndKeepsWhatItDoesNotKnow)
{
    const TestFolder folder;
    folder.Write(FileName(), R"({"future":{"x":[1,2,{"y":null}]},"log":{"colour":"teal"},"big":9007199254740991})");
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.Set(QStringLiteral("log/fileLevel"), QStringLiteral("debug")), QString());
    EXPECT_EQ(settings.Text(QStringLiteral("log/fileLevel")), QStringLiteral("debug"));
    EXPECT_EQ(Written(folder),
        Json(
            R"({"future":{"x":[1,2,{"y":null}]},"log":{"colour":"teal","fileLevel":"debug"},"big":9007199254740991})"));
    EXPECT_TRUE(folder.Read(FileName()).contains("9007199254740991"));
    EXPECT_EQ(SettingsStore(folder.Path(FileName())).Text(QStringLiteral("log/colour")), QStringLiteral("teal"));
}

TEST(SettingsStore, MakesItsFolderForTheOwnerOnly)
{
    const TestFolder folder;
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.Set(QStringLiteral("a"), 1), QString());
    EXPECT_EQ(settings.State(), SettingsState::Read);
    const QFile::Permissions others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    EXPECT_EQ(QFile::permissions(folder.Path(QStringLiteral("config"))) & others, 0);
    EXPECT_EQ(folder.Files(), QStringList{FileName()});
}

TEST(SettingsStore, ReplacesAValueInTheWayOfAPath)
{
    const TestFolder folder;
    folder.Write(FileName(), R"({"log":"loud"})");
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.Set(QStringLiteral("log/fileLevel"), QStringLiteral("off")), QString());
    EXPECT_EQ(Written(folder), Json(R"({"log":{"fileLevel":"off"}})"));
}

TEST(SettingsStore, RemovesOneValue)
{
    const TestFolder folder;
    folder.Write(FileName(), R"({"a":{"b":1,"c":2},"d":3})");
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.Remove(QStringLiteral("a/b")), QString());
    EXPECT_EQ(settings.Remove(QStringLiteral("a/nothing")), QString());
    EXPECT_EQ(settings.Remove(QString()), QString());
    EXPECT_EQ(Written(folder), Json(R"({"a":{"c":2},"d":3})"));
    EXPECT_FALSE(settings.Contains(QStringLiteral("a/b")));
}

TEST(SettingsStore, RefusesAChangeWithoutKeyOrValue)
{
    const TestFolder folder;
    SettingsStore settings(folder.Path(FileName()));
    const QString refusal = QStringLiteral("a setting needs a key and a value");
    EXPECT_EQ(settings.Set(QString(), 1), refusal);
    EXPECT_EQ(settings.Set(QStringLiteral("/"), 1), refusal);
    EXPECT_EQ(settings.Set(QStringLiteral("a"), QJsonValue(QJsonValue::Undefined)), refusal);
    EXPECT_EQ(folder.Files(), QStringList());
}

TEST(SettingsStore, ChangesWhatStandsInTheFileNow)
{
    const TestFolder folder;
    SettingsStore one(folder.Path(FileName()));
    SettingsStore other(folder.Path(FileName()));
    EXPECT_EQ(one.Set(QStringLiteral("a"), 1), QString());
    EXPECT_EQ(other.Set(QStringLiteral("b"), 2), QString());
    EXPECT_EQ(Written(folder), Json(R"({"a":1,"b":2})"));
    EXPECT_EQ(other.Integer(QStringLiteral("a")), 1);
    EXPECT_FALSE(one.Contains(QStringLiteral("b")));
    one.Reload();
    EXPECT_EQ(one.Integer(QStringLiteral("b")), 2);
}

TEST(SettingsStore, AcceptsAByteOrderMark)
{
    const TestFolder folder;
    folder.Write(FileName(), "\xEF\xBB\xBF{\"a\":1}");
    const SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.State(), SettingsState::Read);
    EXPECT_EQ(settings.Integer(QStringLiteral("a")), 1);
}

struct Damage : testsupport::NamedCase
{
    QByteArray content;
};

class DamagedSettings : public testing::TestWithParam<Damage>
{
};

TEST_P(DamagedSettings, AreSetAsideWholeAndStartEmpty)
{
    const TestFolder folder;
    const QByteArray content = GetParam().content;
    folder.Write(FileName(), content);
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.State(), SettingsState::SetAside);
    EXPECT_FALSE(settings.Contains(QStringLiteral("a")));
    ASSERT_EQ(folder.Files().size(), 1);
    const QString aside = folder.Files().constFirst();
    EXPECT_TRUE(aside.startsWith(QStringLiteral("config/settings.json.damaged-"))) << aside.toStdString();
    EXPECT_EQ(folder.Read(aside), content);
    EXPECT_TRUE(settings.Detail().endsWith(QStringLiteral("; kept as ") + folder.Path(aside)))
        << settings.Detail().toStdString();

    EXPECT_EQ(settings.Set(QStringLiteral("a"), 1), QString());
    EXPECT_EQ(settings.State(), SettingsState::Read);
    EXPECT_EQ(settings.Detail(), QString());
    EXPECT_EQ(Written(folder), Json(R"({"a":1})"));
    EXPECT_EQ(folder.Read(aside), content);
}

INSTANTIATE_TEST_SUITE_P(Kinds, DamagedSettings,
    testing::Values(Damage{"Empty", ""}, Damage{"Truncated", "{\"a\":1,\"b\":"}, Damage{"Array", "[{\"a\":1}]"},
        Damage{"Text", "a=1\n"}, Damage{"Zeros", QByteArray(100, '\0')}, Damage{"InvalidUtf8", "{\"a\":\"\xff\xfe\"}"},
        Damage{"Garbage", "{\"a\":1}}"}, Damage{"DeepNesting", QByteArray(100000, '[')},
        Damage{"Huge", QByteArray((16 << 20) + 1, ' ')}),
    testsupport::RowName());

TEST(SettingsStore, SetsASecondDamagedFileAsideUnderAnotherName)
{
    const TestFolder folder;
    for (const char* content : {"first", "second", "third"}) {
        folder.Write(FileName(), content);
        const SettingsStore settings(folder.Path(FileName()));
        EXPECT_EQ(settings.State(), SettingsState::SetAside);
    }
    EXPECT_EQ(folder.Files().size(), 3);
    for (const char* content : {"first", "second", "third"}) {
        EXPECT_EQ(folder.FilesWith(content).size(), 1) << content;
    }
}

TEST(SettingsStore, SetsAsideAFileDamagedAfterTheStart)
{
    const TestFolder folder;
    folder.Write(FileName(), R"({"a":1})");
    SettingsStore settings(folder.Path(FileName()));
    folder.Write(FileName(), "damaged now");
    EXPECT_EQ(settings.Set(QStringLiteral("b"), 2), QString());
    EXPECT_EQ(Written(folder), Json(R"({"b":2})"));
    EXPECT_EQ(folder.FilesWith("damaged now").size(), 1);
}

TEST(SettingsStore, WritesNothingOverWhatItCannotRead)
{
    const TestFolder folder;
    QDir().mkpath(folder.Path(FileName()));
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.State(), SettingsState::Unreadable);
    EXPECT_EQ(settings.Detail(), QStringLiteral("not a regular file"));
    EXPECT_EQ(settings.Set(QStringLiteral("a"), 1),
        QStringLiteral("the settings file %1 cannot be used (not a regular file); nothing was changed")
            .arg(folder.Path(FileName())));
    EXPECT_TRUE(QFileInfo(folder.Path(FileName())).isDir());
}

TEST(SettingsStore, SaysWhenTheFolderCannotBeMade)
{
    const TestFolder folder;
    folder.Write(QStringLiteral("config"), "a file");
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.State(), SettingsState::Missing);
    EXPECT_EQ(settings.Set(QStringLiteral("a"), 1),
        QStringLiteral("cannot make the settings folder %1").arg(folder.Path(QStringLiteral("config"))));
    EXPECT_FALSE(settings.Contains(QStringLiteral("a")));
    EXPECT_EQ(folder.Read(QStringLiteral("config")), "a file");
}

TEST(SettingsStore, KeepsTheOldFileWhenTheNewOneDoesNotFit)
{
    const TestFolder folder;
    const QByteArray old = R"({"a":1})";
    folder.Write(FileName(), old);
    SettingsStore settings(folder.Path(FileName()));
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{100, 100};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    for (const int size : {120, 100000}) { // Smaller and larger than a file's buffer.
        const QString fault = settings.Set(QStringLiteral("b"), QString(size, QLatin1Char('x')));
        EXPECT_TRUE(fault.startsWith(QStringLiteral("cannot write the settings file "))) << fault.toStdString();
        EXPECT_EQ(folder.Read(FileName()), old);
        EXPECT_EQ(folder.Files(), QStringList{FileName()});
        EXPECT_FALSE(settings.Contains(QStringLiteral("b")));
    }
}

TEST(SettingsStore, WaitsForAnotherWriterOnlySoLong)
{
    const TestFolder folder;
    const QByteArray old = R"({"a":1})";
    folder.Write(FileName(), old);
    SettingsStore settings(folder.Path(FileName()));
    auto other = std::make_unique<FileLock>(folder.Path(FileName()) + QStringLiteral(".lock"));
    ASSERT_TRUE(other->TryLock(0));
    QElapsedTimer clock;
    clock.start();
    EXPECT_EQ(settings.Set(QStringLiteral("a"), 2),
        QStringLiteral("cannot lock the settings file %1; nothing was changed").arg(folder.Path(FileName())));
    EXPECT_GE(clock.elapsed(), 4000);
    EXPECT_EQ(folder.Read(FileName()), old);
    other.reset();
    EXPECT_EQ(settings.Set(QStringLiteral("a"), 3), QString());
    EXPECT_EQ(Written(folder), Json(R"({"a":3})"));
}

TEST(SettingsStore, LeavesADamagedFileAloneWhileAnotherWriterHoldsTheLock)
{
    const TestFolder folder;
    folder.Write(FileName(), "damaged");
    FileLock other(folder.Path(FileName()) + QStringLiteral(".lock"));
    ASSERT_TRUE(other.TryLock(0));
    const SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.State(), SettingsState::Damaged);
    EXPECT_EQ(folder.Read(FileName()), "damaged");
}

TEST(SettingsStore, WritesThroughASymbolicLink)
{
    const TestFolder folder;
    folder.Write(QStringLiteral("dotfiles/tarnnuq.json"), R"({"a":1})");
    QDir().mkpath(folder.Path(QStringLiteral("config")));
    ASSERT_TRUE(QFile::link(folder.Path(QStringLiteral("dotfiles/tarnnuq.json")), folder.Path(FileName())));
    SettingsStore settings(folder.Path(FileName()));
    EXPECT_EQ(settings.Set(QStringLiteral("b"), 2), QString());
    EXPECT_TRUE(QFileInfo(folder.Path(FileName())).isSymLink());
    EXPECT_EQ(QJsonDocument::fromJson(folder.Read(QStringLiteral("dotfiles/tarnnuq.json"))).object(),
        Json(R"({"a":1,"b":2})"));
}

} // namespace
