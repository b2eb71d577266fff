#include "Settings/SettingsStore.h"

#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

using standalone::SettingsStore;

namespace {

constexpr int kTimeLimitMs = 60000;

class Writer
{
public:
    Writer(const QString& file, const QString& prefix, int count)
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(QStringLiteral(SETTINGS_WRITER), {file, prefix, QString::number(count)});
    }

    /// Whether it has ended well.
    bool Finish()
    {
        m_process.waitForFinished(kTimeLimitMs);
        return m_process.state() == QProcess::NotRunning && m_process.exitStatus() == QProcess::NormalExit &&
               m_process.exitCode() == 0;
    }

    void Kill()
    {
        m_process.kill();
        m_process.waitForFinished(kTimeLimitMs);
    }

    bool IsRunning() { return !m_process.waitForFinished(0) && m_process.state() != QProcess::NotRunning; }

private:
    QProcess m_process;
};

TEST(SettingsProcesses, LoseNothingWhenTheyWriteAtOnce)
{
    const TestFolder folder;
    const QString file = folder.Write(QStringLiteral("settings.json"), R"({"unknown":{"kept":[1,"二"]}})");
    std::vector<std::unique_ptr<Writer>> writers;
    for (const char* prefix : {"one", "two", "three"}) {
        writers.push_back(std::make_unique<Writer>(file, QString::fromLatin1(prefix), 40));
    }
    for (const std::unique_ptr<Writer>& writer : writers) {
        EXPECT_TRUE(writer->Finish());
    }
    const SettingsStore settings(file);
    for (const char* prefix : {"one", "two", "three"}) {
        EXPECT_EQ(settings.Value(QString::fromLatin1(prefix)).toObject().size(), 40) << prefix;
        EXPECT_EQ(settings.Integer(QString::fromLatin1(prefix) + QStringLiteral("/39"), -1), 39) << prefix;
    }
    EXPECT_EQ(
        settings.Value(QStringLiteral("unknown")).toObject(), QJsonDocument::fromJson(R"({"kept":[1,"二"]})").object());
    EXPECT_EQ(folder.Files(), QStringList{QStringLiteral("settings.json")});
}

TEST(SettingsProcesses, NeverShowAReaderHalfAFile)
{
    const TestFolder folder;
    const QString file = folder.Write(QStringLiteral("settings.json"), R"({"unknown":"kept"})");
    Writer writer(file, QStringLiteral("one"), 60);
    int readings = 0;
    do {
        const SettingsStore settings(file);
        EXPECT_EQ(settings.Text(QStringLiteral("unknown")), QStringLiteral("kept"));
        ++readings;
    } while (writer.IsRunning());
    EXPECT_TRUE(writer.Finish());
    EXPECT_GT(readings, 1);
}

TEST(SettingsProcesses, LeaveAUsableFileWhenKilled)
{
    const TestFolder folder;
    const QString file = folder.Write(QStringLiteral("settings.json"), R"({"unknown":"kept"})");
    for (int round = 0; round < 20; ++round) {
        const QString prefix = QStringLiteral("killed%1").arg(round);
        Writer writer(file, prefix, 1000000);
        const QString last = QStringLiteral("%1/%2").arg(prefix).arg(round);
        while (!SettingsStore(file).Contains(last) && writer.IsRunning()) {
        }
        writer.Kill();
        SettingsStore settings(file);
        EXPECT_EQ(settings.State(), standalone::SettingsState::Read);
        EXPECT_EQ(settings.Text(QStringLiteral("unknown")), QStringLiteral("kept"));
        EXPECT_TRUE(settings.Contains(last));
        EXPECT_EQ(settings.Set(QStringLiteral("after"), round), QString());
    }
}

TEST(SettingsProcesses, SetADamagedFileAsideOnceAndLoseNothing)
{
    const TestFolder folder;
    const QString file = folder.Write(QStringLiteral("settings.json"), "damaged");
    std::vector<std::unique_ptr<Writer>> writers;
    for (const char* prefix : {"one", "two", "three"}) {
        writers.push_back(std::make_unique<Writer>(file, QString::fromLatin1(prefix), 5));
    }
    for (const std::unique_ptr<Writer>& writer : writers) {
        EXPECT_TRUE(writer->Finish());
    }
    const SettingsStore settings(file);
    for (const char* prefix : {"one", "two", "three"}) {
        EXPECT_EQ(settings.Value(QString::fromLatin1(prefix)).toObject().size(), 5) << prefix;
    }
    EXPECT_EQ(folder.Files().size(), 2);
    EXPECT_EQ(folder.FilesWith("damaged").size(), 1);
}

} // namespace
