#include "Logging/HostLogger.h"

#include "Logging/LogMask.h"
#include "support/PrintQt.h"
#include "support/TestFolder.h"
#include "tarnnuq/NuqLogObject.h"
#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <thread>
#include <vector>

using standalone::HostLogger;
using standalone::LogLevel;
using standalone::LogOptions;

namespace {

LogOptions OptionsFor(const TestFolder& folder)
{
    LogOptions options;
    options.name = QStringLiteral("nuq");
    options.folder = folder.Path(QStringLiteral("state"));
    options.fileLevel = LogLevel::Trace;
    options.consoleLevel = LogLevel::Off;
    return options;
}

/// The lines of the log file without time, process and thread: "[level] text".
QStringList Lines(const TestFolder& folder, const QString& file = QStringLiteral("state/nuq.log"))
{
    QString content = QString::fromUtf8(folder.Read(file));
    content.replace(
        QRegularExpression(QStringLiteral("^[^\\[]*(\\[[a-z]+\\]) \\[[0-9:]+\\]"), QRegularExpression::MultilineOption),
        QStringLiteral("\\1"));
    return content.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

class CapturedConsole
{
public:
    CapturedConsole() { testing::internal::CaptureStderr(); }
    QString Text() { return QString::fromStdString(testing::internal::GetCapturedStderr()); }
};

TEST(HostLogger, WritesEachOperationWithItsLevel)
{
    const TestFolder folder;
    HostLogger logger(OptionsFor(folder));
    logger.Info(QStringLiteral("one"));
    logger.Error(QStringLiteral("two"));
    logger.Warn(QStringLiteral("three"));
    logger.Debug(QStringLiteral("four"));
    EXPECT_EQ(Lines(folder), (QStringList{QStringLiteral("[info] one"), QStringLiteral("[error] two"),
                                 QStringLiteral("[warning] three"), QStringLiteral("[debug] four")}));
}

TEST(HostLogger, StampsEachLineWithUtcTimeProcessAndThread)
{
    qputenv("TZ", "Asia/Shanghai");
    const TestFolder folder;
    HostLogger logger(OptionsFor(folder));
    const QDateTime before = QDateTime::currentDateTimeUtc();
    logger.Info(QStringLiteral("text"));
    const QString line = QString::fromUtf8(folder.Read(QStringLiteral("state/nuq.log")));
    const QRegularExpression format(
        QStringLiteral("\\A([0-9-]{10}T[0-9:]{8}\\.[0-9]{3}Z) \\[info\\] \\[%1:[0-9]+\\] text\n\\z")
            .arg(QCoreApplication::applicationPid()));
    const QRegularExpressionMatch match = format.match(line);
    ASSERT_TRUE(match.hasMatch()) << line.toStdString();
    const QDateTime stamp = QDateTime::fromString(match.captured(1), Qt::ISODateWithMs);
    EXPECT_LT(qAbs(before.msecsTo(stamp)), 5000) << line.toStdString();
}

TEST(HostLogger, JoinsThePartsOfARecord)
{
    const TestFolder folder;
    HostLogger logger(OptionsFor(folder));
    logger.Info({L"nuq env config file path: ", L"/水/a.json"});
    EXPECT_EQ(Lines(folder), QStringList{QStringLiteral("[info] nuq env config file path: /水/a.json")});
}

TEST(HostLogger, TakesBracesAndPercentSignsAsText)
{
    const TestFolder folder;
    HostLogger logger(OptionsFor(folder));
    logger.Info(QStringLiteral("{} {0} {{}} %s %v %1 {"));
    EXPECT_EQ(Lines(folder), QStringList{QStringLiteral("[info] {} {0} {{}} %s %v %1 {")});
}

TEST(HostLogger, KeepsARecordOnOneLine)
{
    const TestFolder folder;
    HostLogger logger(OptionsFor(folder));
    logger.Info(QStringLiteral("body\n2026-01-01T00:00:00.000Z [error] [1:1] forged\r\n\x1b[2J"));
    EXPECT_EQ(Lines(folder),
        QStringList{QStringLiteral("[info] body\\n2026-01-01T00:00:00.000Z [error] [1:1] forged\\r\\n\\x1b[2J")});
}

TEST(HostLogger, HasALevelForEachSink)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.fileLevel = LogLevel::Warning;
    options.consoleLevel = LogLevel::Info;
    CapturedConsole console;
    {
        HostLogger logger(options);
        logger.Debug(QStringLiteral("d"));
        logger.Info(QStringLiteral("i"));
        logger.Warn(QStringLiteral("w"));
        logger.Error(QStringLiteral("e"));
    }
    EXPECT_EQ(console.Text(), QStringLiteral("nuq: info: i\nnuq: warning: w\nnuq: error: e\n"));
    EXPECT_EQ(Lines(folder), (QStringList{QStringLiteral("[warning] w"), QStringLiteral("[error] e")}));
}

TEST(HostLogger, WritesNothingWhenBothSinksAreOff)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.fileLevel = LogLevel::Off;
    CapturedConsole console;
    HostLogger logger(options);
    logger.Error(QStringLiteral("e"));
    EXPECT_EQ(console.Text(), QString());
    EXPECT_EQ(folder.Files(), QStringList());
    EXPECT_EQ(logger.FilePath(), QString());
    EXPECT_EQ(logger.FileFault(), QString());
}

TEST(HostLogger, WritesNothingToStandardOutput)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.consoleLevel = LogLevel::Trace;
    testing::internal::CaptureStdout();
    CapturedConsole console;
    HostLogger logger(options);
    logger.Error(QStringLiteral("e"));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(console.Text(), QStringLiteral("nuq: error: e\n"));
}

TEST(HostLogger, MasksTheAuthorizationRecordInEverySink)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.consoleLevel = LogLevel::Trace;
    CapturedConsole console;
    {
        HostLogger logger(options);
        logger.Debug({QStringLiteral("Authorization header: "), QStringLiteral("s3cret-部件\nsecond")});
        logger.Debug(QStringLiteral("Authorization header: bearer s3cret"));
        logger.Info(QStringLiteral("request:http://s3cret:s3cret@h/a?token=s3cret&b=1"));
    }
    const QString shown = console.Text();
    EXPECT_EQ(shown, QStringLiteral("nuq: debug: Authorization header: ***\nnuq: debug: Authorization header: ***\n"
                                    "nuq: info: request:http://***@h/a?token=***&b=1\n"));
    EXPECT_EQ(Lines(folder), (QStringList{QStringLiteral("[debug] Authorization header: ***"),
                                 QStringLiteral("[debug] Authorization header: ***"),
                                 QStringLiteral("[info] request:http://***@h/a?token=***&b=1")}));
    EXPECT_EQ(folder.FilesWith("s3cret"), QStringList());
    EXPECT_EQ(folder.FilesWith("second"), QStringList());
    EXPECT_EQ(folder.FilesWith("Authorization"), QStringList{QStringLiteral("state/nuq.log")});
}

TEST(HostLogger, MasksASecretLearntLater)
{
    const TestFolder folder;
    HostLogger logger(OptionsFor(folder));
    logger.Mask()->AddSecret(QStringLiteral("demo-token"));
    logger.Info(QStringLiteral("reply: {\"message\":\"bad demo-token\"}"));
    EXPECT_EQ(Lines(folder), QStringList{QStringLiteral("[info] reply: {\"message\":\"bad ***\"}")});
}

TEST(HostLogger, CutsOverlongRecordsAtACharacter)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.recordSize = 20;
    HostLogger logger(options);
    logger.Info({QStringLiteral("0123456789"), QStringLiteral("abcdefghij")});
    logger.Info({QStringLiteral("0123456789"), QStringLiteral("abcdefghijk")});
    logger.Info(QString(1000000, QLatin1Char('x')));
    logger.Info(QStringLiteral("水水水水水水水")); // The cut falls into the second letter's three bytes.
    EXPECT_EQ(Lines(folder),
        (QStringList{QStringLiteral("[info] 0123456789abcdefghij"), QStringLiteral("[info] (21 characters) 0123 …"),
            QStringLiteral("[info] (1000000 characters) …"), QStringLiteral("[info] (7 characters) 水 …")}));
}

TEST(HostLogger, KeepsACutRecordOnOneLine)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.recordSize = 40;
    HostLogger logger(options);
    logger.Info(QString(50, QLatin1Char('\n')));
    EXPECT_EQ(Lines(folder).size(), 1);
    EXPECT_TRUE(Lines(folder).constFirst().startsWith(QStringLiteral("[info] (50 characters) \\n\\n")));
}

TEST(HostLogger, LeavesNoPieceOfASecretWhereARecordIsCut)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.recordSize = 40;
    HostLogger logger(options);
    logger.Mask()->AddSecret(QStringLiteral("s3cretXYZ"));
    for (int blanks = 0; blanks < 50; ++blanks) {
        const QString before(blanks, QLatin1Char(' '));
        logger.Info(before + QStringLiteral("s3cretXYZ") + QString(60, QLatin1Char('x')));
        logger.Info(before + QStringLiteral("http://s3cret:pw@h/") + QString(60, QLatin1Char('x')));
    }
    EXPECT_EQ(Lines(folder).size(), 100);
    EXPECT_EQ(folder.FilesWith("s3c"), QStringList());
}

TEST(HostLogger, RotatesTheFileAndKeepsOnlySomeOfTheOld)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.fileSize = 2000;
    options.rotatedFiles = 2;
    HostLogger logger(options);
    for (int number = 0; number < 200; ++number) {
        logger.Info(QStringLiteral("Authorization header: s3cret %1").arg(number));
        logger.Info(QStringLiteral("record %1").arg(number));
    }
    EXPECT_EQ(folder.Files(), (QStringList{QStringLiteral("state/nuq.1.log"), QStringLiteral("state/nuq.2.log"),
                                  QStringLiteral("state/nuq.log")}));
    for (const QString& file : folder.Files()) {
        EXPECT_LE(folder.Read(file).size(), 2000) << file.toStdString();
        EXPECT_GT(folder.Read(file).size(), 50) << file.toStdString();
    }
    EXPECT_EQ(Lines(folder).constLast(), QStringLiteral("[info] record 199"));
    EXPECT_EQ(folder.FilesWith("s3cret"), QStringList());
}

TEST(HostLogger, KeepsWhatAnEarlierStartWrote)
{
    const TestFolder folder;
    HostLogger(OptionsFor(folder)).Info(QStringLiteral("first"));
    HostLogger(OptionsFor(folder)).Info(QStringLiteral("second"));
    EXPECT_EQ(Lines(folder), (QStringList{QStringLiteral("[info] first"), QStringLiteral("[info] second")}));
}

TEST(HostLogger, MakesItsFolderForTheOwnerOnly)
{
    const TestFolder folder;
    const HostLogger logger(OptionsFor(folder));
    EXPECT_EQ(logger.FilePath(), folder.Path(QStringLiteral("state/nuq.log")));
    const QFile::Permissions others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    EXPECT_EQ(QFile::permissions(folder.Path(QStringLiteral("state"))) & others, 0);
}

void ExpectConsoleOnly(const LogOptions& options)
{
    CapturedConsole console;
    QString fault;
    {
        HostLogger logger(options);
        logger.Error(QStringLiteral("still said"));
        fault = logger.FileFault();
        EXPECT_EQ(logger.FilePath(), QString());
    }
    EXPECT_FALSE(fault.isEmpty());
    EXPECT_EQ(console.Text(),
        QStringLiteral("nuq: warning: no log file, logging here only: %1\nnuq: error: still said\n").arg(fault));
}

TEST(HostLogger, UsesTheConsoleAloneWhenTheFolderCannotBeMade)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.consoleLevel = LogLevel::Warning;
    options.folder = folder.Write(QStringLiteral("a file"), "x") + QStringLiteral("/state");
    ExpectConsoleOnly(options);
}

TEST(HostLogger, UsesTheConsoleAloneWhenTheFileIsAFolder)
{
    const TestFolder folder;
    QDir().mkpath(folder.Path(QStringLiteral("state/nuq.log")));
    LogOptions options = OptionsFor(folder);
    options.consoleLevel = LogLevel::Warning;
    ExpectConsoleOnly(options);
}

TEST(HostLogger, GoesOnWhenTheFileCanNoLongerGrow)
{
    const TestFolder folder;
    LogOptions options = OptionsFor(folder);
    options.consoleLevel = LogLevel::Error;
    std::signal(SIGXFSZ, SIG_IGN);
    const rlimit limit{200, 200};
    CapturedConsole console;
    {
        HostLogger logger(options);
        logger.Info(QStringLiteral("fits"));
        ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
        logger.Info(QString(300, QLatin1Char('x')));
        logger.Info(QString(300, QLatin1Char('y')));
        logger.Error(QStringLiteral("shown"));
    }
    const QString shown = console.Text();
    EXPECT_EQ(shown.count(QStringLiteral("nuq: warning: the log cannot be written: ")), 1) << shown.toStdString();
    EXPECT_EQ(shown.count(QLatin1Char('\n')), 2) << shown.toStdString();
    EXPECT_TRUE(shown.endsWith(QStringLiteral("nuq: error: shown\n"))) << shown.toStdString();
    EXPECT_EQ(Lines(folder).constFirst(), QStringLiteral("[info] fits"));
}

TEST(HostLogger, HasEachRecordInTheFileAtOnce)
{
    const TestFolder folder;
    HostLogger logger(OptionsFor(folder));
    logger.Info(QStringLiteral("before a crash"));
    EXPECT_EQ(Lines(folder), QStringList{QStringLiteral("[info] before a crash")});
}

TEST(HostLogger, KeepsLinesOfSeveralThreadsWhole)
{
    const TestFolder folder;
    {
        HostLogger logger(OptionsFor(folder));
        std::vector<std::thread> threads;
        threads.reserve(4);
        for (int number = 0; number < 4; ++number) {
            threads.emplace_back([&logger, number] {
                for (int round = 0; round < 250; ++round) {
                    logger.Info({QStringLiteral("thread %1 ").arg(number), QStringLiteral("round %1").arg(round)});
                }
            });
        }
        for (std::thread& thread : threads) {
            thread.join();
        }
    }
    QStringList lines = Lines(folder);
    QStringList expected;
    for (int number = 0; number < 4; ++number) {
        for (int round = 0; round < 250; ++round) {
            expected += QStringLiteral("[info] thread %1 round %2").arg(number).arg(round);
        }
    }
    lines.sort();
    expected.sort();
    EXPECT_EQ(lines, expected);
}

TEST(HostLogger, KeepsLinesOfSeveralLoggersOnOneFileWhole)
{
    const TestFolder folder;
    std::vector<std::thread> threads;
    threads.reserve(4);
    for (int number = 0; number < 4; ++number) {
        threads.emplace_back([&folder] {
            HostLogger logger(OptionsFor(folder));
            for (int round = 0; round < 100; ++round) {
                logger.Info(QString(6000, QLatin1Char('x')));
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    const QStringList lines = Lines(folder);
    EXPECT_EQ(lines.size(), 400);
    EXPECT_EQ(lines.count(QStringLiteral("[info] ") + QString(6000, QLatin1Char('x'))), 400);
}

} // namespace
