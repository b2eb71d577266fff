#include "ResponseHandlers/CustomFileReply.h"

#include "TarnNuqService/EnvSvcs/UnprivilegedUser.h"
#include "TarnNuqService/PendingReplies/PendingReplyFixture.h"
#include "support/FileSizeLimit.h"
#include "support/NamedCase.h"

#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTemporaryDir>

using tarnnuq::CustomFileReply;
using testsupport::FileSizeLimit;
using testsupport::LogRecord;
using testsupport::ScriptedResponse;

namespace {

class CustomFileReplyTest : public testsupport::PendingReplyFixture
{
protected:
    /// A target below a folder whose name holds a blank and Chinese letters.
    QString Target(const QString& name = QStringLiteral("缩略 图.png")) const
    {
        QDir().mkpath(folder.filePath(QStringLiteral("下载 目录")));
        return folder.filePath(QStringLiteral("下载 目录/")) + name;
    }

    static void Write(const QString& path, const QByteArray& content)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
    }

    static QByteArray Read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    /// Saves what an answer brings; it must say so once.
    /// @return the error
    std::wstring Save(const QString& path, const ScriptedResponse& response)
    {
        CustomFileReply pending;
        pending.SetSaveFilePath(path.toStdWString());
        EXPECT_EQ(Run(pending, Get(response)), 1);
        return pending.Error();
    }

    QTemporaryDir folder;
};

QByteArray EveryByte(int size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    for (int index = 0; index < size; ++index) {
        bytes[index] = static_cast<char>((index * 31) >> 3);
    }
    return bytes;
}

struct BodyCase : testsupport::NamedCase
{
    ScriptedResponse response;
    QByteArray saved;
};

class CustomFileReplyBodyTest : public CustomFileReplyTest, public ::testing::WithParamInterface<BodyCase>
{
};

struct FailureCase : testsupport::NamedCase
{
    ScriptedResponse response;
    int status;
    /// Of Qt; URL stands for the address.
    QString message;
};

class CustomFileReplyFailureTest : public CustomFileReplyTest, public ::testing::WithParamInterface<FailureCase>
{
protected:
    /// The error of the last request.
    QString ErrorText() const
    {
        return QStringLiteral("request error:http code - ") + QString::number(GetParam().status) +
               QStringLiteral(", message - ") + QString(GetParam().message).replace(QLatin1String("URL"), LastUrl());
    }
};

} // namespace

TEST_P(CustomFileReplyBodyTest, IsSavedByteForByteWithoutALogRecord)
{
    EXPECT_EQ(Save(Target(), GetParam().response), L"");
    EXPECT_EQ(Read(Target()), GetParam().saved);
    EXPECT_TRUE(host.logger.Records().empty());
}

INSTANTIATE_TEST_SUITE_P(Answers, CustomFileReplyBodyTest,
    ::testing::Values(BodyCase{{"AFewBytes"}, ScriptedResponse::Content(EveryByte(300), "image/png"), EveryByte(300)},
        BodyCase{{"Nothing"}, ScriptedResponse::Status(200), ""},
        BodyCase{{"NoContent"}, ScriptedResponse::Status(204), ""},
        BodyCase{{"LineEnds"}, ScriptedResponse::Status(200, "a\r\nb\nc\r"), "a\r\nb\nc\r"},
        BodyCase{{"TenMegabytes"}, ScriptedResponse::Status(200, EveryByte(10 << 20)), EveryByte(10 << 20)},
        BodyCase{{"Chunks"},
            ScriptedResponse::Status(200, EveryByte(100000)).WithFraming(ScriptedResponse::Framing::Chunked),
            EveryByte(100000)},
        BodyCase{{"UpToTheEndOfTheConnection"},
            ScriptedResponse::Status(200, EveryByte(100000)).WithFraming(ScriptedResponse::Framing::UntilClose),
            EveryByte(100000)},
        BodyCase{{"DrippingBytes"},
            ScriptedResponse::Status(200, EveryByte(2000)).Dripping(500, std::chrono::milliseconds(1)),
            EveryByte(2000)},
        BodyCase{{"ARedirectionIsTakenForTheFile"}, ScriptedResponse::Redirect("/elsewhere"), "<html>moved</html>"}),
    testsupport::RowName());

TEST_F(CustomFileReplyTest, ALongerFileThatWasThereIsReplaced)
{
    Write(Target(), QByteArray(5000, 'x'));
    EXPECT_EQ(Save(Target(), ScriptedResponse::Status(200, "new")), L"");
    EXPECT_EQ(Read(Target()), "new");
}

TEST_F(CustomFileReplyTest, AnEmptyBodyEmptiesAFileThatWasThere)
{
    Write(Target(), "old");
    EXPECT_EQ(Save(Target(), ScriptedResponse::Status(200)), L"");
    EXPECT_EQ(Read(Target()), "");
}

TEST_F(CustomFileReplyTest, TheFileIsWholeWhenItSaysSo)
{
    CustomFileReply pending;
    pending.SetSaveFilePath(Target().toStdWString());
    QByteArray seen;
    QObject::connect(&pending, &tarnnuq::CustomReplyBase::Finished, [&] { seen = Read(Target()); });
    Run(pending, Get(ScriptedResponse::Status(200, "picture")));
    EXPECT_EQ(seen, "picture");
}

TEST_F(CustomFileReplyTest, ThePathThatCountsIsTheLastOneBeforeTheEnd)
{
    CustomFileReply pending;
    pending.SetSaveFilePath(Target(QStringLiteral("a")).toStdWString());
    QNetworkReply* reply = Get(ScriptedResponse::Status(200, "picture"));
    pending.SetReply(reply);
    pending.SetSaveFilePath(Target(QStringLiteral("b")).toStdWString());
    EXPECT_EQ(pending.GetSaveFilePath(), Target(QStringLiteral("b")).toStdWString());
    Run(pending, reply);
    EXPECT_FALSE(QFile::exists(Target(QStringLiteral("a"))));
    EXPECT_EQ(Read(Target(QStringLiteral("b"))), "picture");
}

TEST_F(CustomFileReplyTest, TwoAtOnceSaveTheirOwnFiles)
{
    CustomFileReply slow;
    CustomFileReply quick;
    slow.SetSaveFilePath(Target(QStringLiteral("slow")).toStdWString());
    quick.SetSaveFilePath(Target(QStringLiteral("quick")).toStdWString());
    const QSignalSpy finished(&slow, &tarnnuq::CustomReplyBase::Finished);
    slow.SetReply(Get(ScriptedResponse::Status(200, "1").Delayed(std::chrono::milliseconds(50))));
    Run(quick, Get(ScriptedResponse::Status(200, "2")));
    EXPECT_TRUE(testsupport::WaitFor([&] { return finished.count() == 1; }));
    EXPECT_EQ(Read(Target(QStringLiteral("slow"))), "1");
    EXPECT_EQ(Read(Target(QStringLiteral("quick"))), "2");
}

TEST_P(CustomFileReplyFailureTest, DoesNotCreateTheFile)
{
    const std::wstring error = Save(Target(), GetParam().response);
    EXPECT_EQ(error, ErrorText().toStdWString());
    EXPECT_FALSE(QFile::exists(Target()));
}

TEST_P(CustomFileReplyFailureTest, LeavesAFileThatWasThereAlone)
{
    Write(Target(), "old");
    const std::wstring error = Save(Target(), GetParam().response);
    EXPECT_EQ(error, ErrorText().toStdWString());
    EXPECT_EQ(Read(Target()), "old");
}

TEST_P(CustomFileReplyFailureTest, IsLoggedAsOneErrorInOneText)
{
    Save(Target(), GetParam().response);
    const QString text =
        QStringLiteral("fail to get response from ") + LastUrl() + QStringLiteral("\r\n") + ErrorText();
    EXPECT_EQ(host.logger.Records(), (std::vector<LogRecord>{{LogRecord::Operation::Error, {text}}}));
}

INSTANTIATE_TEST_SUITE_P(Answers, CustomFileReplyFailureTest,
    ::testing::Values(FailureCase{{"NotFound"}, ScriptedResponse::Content("<html>", "text/html", 404), 404,
                          QStringLiteral("Error transferring URL - server replied: Not Found")},
        FailureCase{
            {"Unauthorized"}, ScriptedResponse::Status(401), 401, QStringLiteral("Host requires authentication")},
        FailureCase{{"ServerErrorInOtherWords"}, ScriptedResponse::Status(503).WithReason("坏 %1 %2"), 503,
            QStringLiteral("Error transferring URL - server replied: ") + QString::fromLatin1("坏 %1 %2")},
        FailureCase{{"ClosedBeforeTheHeaders"},
            ScriptedResponse::Status(200, "x").CutAt(ScriptedResponse::CutPoint::BeforeHeaders), 0,
            QStringLiteral("Connection closed")},
        FailureCase{{"ShorterThanItsLength"}, ScriptedResponse::Status(200, "half").WithDeclaredLength(8), 200,
            QStringLiteral("Connection closed")}),
    testsupport::RowName());

TEST_F(CustomFileReplyTest, AServerThatIsNotThereHasNoStatus)
{
    QTcpServer closed;
    ASSERT_TRUE(closed.listen(QHostAddress::LocalHost));
    const QUrl url(QStringLiteral("http://127.0.0.1:%1/x").arg(closed.serverPort()));
    closed.close();
    CustomFileReply pending;
    pending.SetSaveFilePath(Target().toStdWString());
    EXPECT_EQ(Run(pending, manager->get(QNetworkRequest(url))), 1);
    EXPECT_EQ(pending.Error(), L"request error:http code - 0, message - Connection refused");
    EXPECT_FALSE(QFile::exists(Target()));
}

TEST_F(CustomFileReplyTest, HandledWithoutAReplyItIsAnErrorWithoutARecord)
{
    CustomFileReply pending;
    pending.SetSaveFilePath(Target().toStdWString());
    const QSignalSpy finished(&pending, &tarnnuq::CustomReplyBase::Finished);
    QMetaObject::invokeMethod(&pending, "HandleReply", Qt::DirectConnection);
    EXPECT_EQ(finished.count(), 1);
    EXPECT_EQ(pending.Error(), L"Reply is null!");
    EXPECT_TRUE(host.logger.Records().empty());
    EXPECT_FALSE(QFile::exists(Target()));
}

TEST_F(CustomFileReplyTest, ADirectoryForAFileCannotBeOpened)
{
    EXPECT_EQ(Save(folder.path(), ScriptedResponse::Status(200, "x")), L"fail to open file to write.");
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_F(CustomFileReplyTest, AFileInAMissingFolderCannotBeOpened)
{
    const QString path = folder.filePath(QStringLiteral("missing/x.png"));
    EXPECT_EQ(Save(path, ScriptedResponse::Status(200, "x")), L"fail to open file to write.");
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(CustomFileReplyTest, AFileWithoutAPathCannotBeOpened)
{
    EXPECT_EQ(Save(QString(), ScriptedResponse::Status(200, "x")), L"fail to open file to write.");
}

TEST_F(CustomFileReplyTest, AFileInAFolderWithoutRightsCannotBeOpened)
{
    const QString path = Target();
    ASSERT_TRUE(
        QFile::setPermissions(folder.filePath(QStringLiteral("下载 目录")), QFile::ReadOwner | QFile::ExeOwner));
    const testsupport::UnprivilegedUser nobody;
    EXPECT_EQ(Save(path, ScriptedResponse::Status(200, "x")), L"fail to open file to write.");
    EXPECT_FALSE(QFile::exists(path));
}

TEST_F(CustomFileReplyTest, AFileWithoutRightsCannotBeOpenedAndStays)
{
    Write(Target(), "old");
    ASSERT_TRUE(QFile::setPermissions(Target(), QFile::ReadOwner));
    {
        const testsupport::UnprivilegedUser nobody;
        EXPECT_EQ(Save(Target(), ScriptedResponse::Status(200, "x")), L"fail to open file to write.");
    }
    EXPECT_EQ(Read(Target()), "old");
}

TEST_F(CustomFileReplyTest, AFullDiskIsAnErrorAndWhatWasWrittenStays)
{
    const FileSizeLimit limit(100000);
    EXPECT_EQ(Save(Target(), ScriptedResponse::Status(200, EveryByte(200000))), L"error on saving file.");
    EXPECT_EQ(Read(Target()), EveryByte(200000).left(100000));
    EXPECT_TRUE(host.logger.Records().empty());
}

TEST_F(CustomFileReplyTest, AFullDiskIsNoticedForASmallBodyToo)
{
    const FileSizeLimit limit(10);
    EXPECT_EQ(Save(Target(), ScriptedResponse::Status(200, EveryByte(100))), L"error on saving file.");
    EXPECT_EQ(Read(Target()).size(), 10);
}

TEST_F(CustomFileReplyTest, ADeviceWithoutRoomIsAnError)
{
    EXPECT_EQ(Save(QStringLiteral("/dev/full"), ScriptedResponse::Status(200, "x")), L"error on saving file.");
}

TEST_F(CustomFileReplyTest, AnEarlierErrorIsGoneAfterASuccess)
{
    CustomFileReply pending;
    pending.SetSaveFilePath(folder.path().toStdWString());
    Run(pending, Get(ScriptedResponse::Status(200, "x")));
    EXPECT_EQ(pending.Error(), L"fail to open file to write.");
    pending.SetSaveFilePath(Target().toStdWString());
    EXPECT_EQ(Run(pending, Get(ScriptedResponse::Status(200, "x"))), 1);
    EXPECT_EQ(pending.Error(), L"");
}
