#include "TarnNuqService/Providers/ImageSample.h"
#include "support/NuqFixture.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

namespace nuqtest {
namespace {

using testsupport::ImageBytes;
using testsupport::PromisingPng;
using testsupport::SampleImage;
using testsupport::ScriptedResponse;

QByteArray Read(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
}

class ThumbnailTest : public NuqFixture
{
protected:
    ThumbnailTest()
    {
        OnData("/v1/components/C1", R"({"id":"C1","name":"Pump","thumbnailSizes":[
            {"size":"64","thumbnails":["t/64.png"]},{"size":"256","thumbnails":["t/256.png","t/other.png"]},
            {"size":"128","thumbnails":["t/128.png"]},{"size":"512","thumbnails":[]}]})");
        OnData("/v1/components/C2", R"({"id":"C2","name":"Pipe"})");
        for (const int size : {64, 128, 256})
            server.On(
                "/static/t/" + QByteArray::number(size) + ".png", ScriptedResponse::Content(Png(size), "image/png"));
    }

    static QByteArray Png(int size) { return ImageBytes(SampleImage(size, size / 2)); }

    QString Path(const QString& name) const { return runner.HomeFolder() + QLatin1Char('/') + name; }

    QString Url(const QString& target) const { return server.BaseUrl() + target; }

    QString CacheFile(const QString& url) const
    {
        const QByteArray hash = QCryptographicHash::hash(url.toUtf8(), QCryptographicHash::Sha256).toHex();
        return Path(QStringLiteral(".cache/tarnnuq/thumbnails/")) + QString::fromLatin1(hash) + QStringLiteral(".png");
    }

    QImage Image(const QString& name) const { return QImage(Path(name)); }

    /// How many requests came for a target.
    int RequestsFor(const QByteArray& target) const
    {
        int count = 0;
        for (const testsupport::ReceivedRequest& request : server.Requests())
            count += request.target == target ? 1 : 0;
        return count;
    }
};

TEST_F(ThumbnailTest, TellsWhereTheLargestThumbnailOfAComponentIsKept)
{
    const QString file = CacheFile(Url(QStringLiteral("/static/t/256.png")));
    const std::string kept = Steady(file.toStdString());
    const NuqResult first = Run({"thumbnail", "C1"});
    EXPECT_EQ(first.code, 0);
    EXPECT_EQ(first.err, "");
    EXPECT_EQ(first.out, "Address         http://127.0.0.1:PORT/static/t/256.png\n"
                         "Size            256 x 128\n"
                         "Format          png\n"
                         "From the cache  no\n"
                         "Cache file      " +
                             kept + "\n");
    EXPECT_EQ(Read(file), Png(256));
    const NuqResult second = Run({"thumbnail", "C1", "--lang", "zh"});
    EXPECT_EQ(second.out, "地址      http://127.0.0.1:PORT/static/t/256.png\n"
                          "大小      256 x 128\n"
                          "格式      png\n"
                          "来自缓存  是\n"
                          "缓存文件  " +
                              kept + "\n");
    EXPECT_EQ(RequestsFor("/static/t/256.png"), 1);
}

TEST_F(ThumbnailTest, WritesADocument)
{
    const std::string kept = Steady(CacheFile(Url(QStringLiteral("/static/t/64.png"))).toStdString());
    const NuqResult result = Run({"thumbnail", "C1", "--size", "40", "-o", Path(QStringLiteral("泵 a.png")), "--json"});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_EQ(result.out,
        R"({"schema":1,"thumbnail":{"address":"http://127.0.0.1:PORT/static/t/64.png","cacheFile":")" + kept +
            R"(","file":"HOME/泵 a.png","format":"png","height":20,"isFromCache":false,"width":40}})"
            "\n");
    EXPECT_EQ(Image(QStringLiteral("泵 a.png")).size(), QSize(40, 20));
}

TEST_F(ThumbnailTest, TakesTheSmallestPictureThatIsLargeEnough)
{
    const struct
    {
        const char* size;
        const char* target;
        QSize written;
    } rows[] = {{"1", "/static/t/64.png", {1, 1}}, {"64", "/static/t/64.png", {64, 32}},
        {"65", "/static/t/128.png", {65, 32}}, {"129", "/static/t/256.png", {129, 64}},
        {"4096", "/static/t/256.png", {256, 128}}};
    for (const auto& row : rows) {
        const int before = RequestsFor(row.target);
        Run({"cache", "clear"});
        Run({"thumbnail", "C1", "--size", row.size, "-o", Path(QStringLiteral("a.png"))});
        EXPECT_EQ(RequestsFor(row.target), before + 1) << row.size;
        EXPECT_EQ(Image(QStringLiteral("a.png")).size(), row.written) << row.size;
    }
}

TEST_F(ThumbnailTest, WritesThePictureAsItCameOrInTheFormatOfTheSuffix)
{
    Run({"thumbnail", "C1", "-o", Path(QStringLiteral("as it came"))});
    EXPECT_EQ(Read(Path(QStringLiteral("as it came"))), Png(256));
    const NuqResult bitmap = Run({"thumbnail", "C1", "-o", Path(QStringLiteral("a.BMP"))});
    EXPECT_EQ(Read(Path(QStringLiteral("a.BMP"))).left(2), "BM");
    EXPECT_EQ(Image(QStringLiteral("a.BMP")), SampleImage(256, 128));
    EXPECT_NE(bitmap.out.find("Format          bmp\n"), std::string::npos);
    const NuqResult output = runner.Run({"thumbnail", "C1", "-o", "-"});
    EXPECT_EQ(QByteArray::fromStdString(output.out), Png(256));
    EXPECT_EQ(output.err, "");
}

TEST_F(ThumbnailTest, FetchesAPictureByItsAddressWithoutTheToken)
{
    const NuqResult result =
        Run({"thumbnail", Url(QStringLiteral("/static/t/64.png")), "-o", Path(QStringLiteral("a.png"))});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(Read(Path(QStringLiteral("a.png"))), Png(64));
    ASSERT_EQ(server.Requests().size(), 1U);
    EXPECT_EQ(server.Requests()[0].HeaderCount("Authorization"), 0);
}

TEST_F(ThumbnailTest, ReadsPicturesOfOtherFormatsThroughQtsPlugins)
{
    server.On("/a.jpg", ScriptedResponse::Content(ImageBytes(SampleImage(30, 20), "JPG"), "image/jpeg"));
    const NuqResult result = Run({"thumbnail", Url(QStringLiteral("/a.jpg")), "-o", Path(QStringLiteral("a.png"))});
    EXPECT_EQ(result.code, 0) << result.err;
    EXPECT_EQ(Image(QStringLiteral("a.png")).size(), QSize(30, 20));
}

TEST_F(ThumbnailTest, WorksOfflineWithWhatWasFetchedBefore)
{
    const QString url = Url(QStringLiteral("/static/t/64.png"));
    EXPECT_EQ(Run({"thumbnail", url, "--offline"}).code, 5);
    EXPECT_EQ(server.ConnectionCount(), 0);
    Run({"thumbnail", url});
    const NuqResult offline = Run({"thumbnail", url, "--offline", "-o", Path(QStringLiteral("a.png"))});
    EXPECT_EQ(offline.code, 0);
    EXPECT_EQ(Read(Path(QStringLiteral("a.png"))), Png(64));
    EXPECT_EQ(server.Requests().size(), 1U);
}

TEST_F(ThumbnailTest, HealsADamagedCacheFile)
{
    const QString url = Url(QStringLiteral("/static/t/64.png"));
    for (const QByteArray& content :
        {QByteArray(), QByteArray("<html>"), Png(64).left(100), PromisingPng(60000, 60000)}) {
        Run({"thumbnail", url});
        QFile file(CacheFile(url));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        EXPECT_EQ(Run({"thumbnail", url}).code, 0);
        EXPECT_EQ(Read(CacheFile(url)), Png(64));
    }
    EXPECT_EQ(server.Requests().size(), 5U);
}

TEST_F(ThumbnailTest, SaysWhatIsWrongAndKeepsNothing)
{
    server.On("/missing.png", ScriptedResponse::Status(404));
    server.On("/page.png", ScriptedResponse::Content("<html>sign in</html>", "text/html"));
    server.On("/broken.png", ScriptedResponse::Content("no picture", "image/png"));
    server.On("/bomb.png", ScriptedResponse::Content(PromisingPng(60000, 60000), "image/png"));
    const struct
    {
        const char* target;
        int code;
        const char* sentence;
    } rows[] = {{"/missing.png", 3, "The server has nothing under this name."},
        {"/page.png", 6, "127.0.0.1:PORT sent a web page instead of data."},
        {"/broken.png", 6, "127.0.0.1:PORT sent an answer that cannot be read; it is damaged or cut short."},
        {"/bomb.png", 6, "The answer of 127.0.0.1:PORT is larger than this program accepts."}};
    for (const auto& row : rows) {
        const NuqResult result =
            Run({"thumbnail", "--quiet", Url(QString::fromLatin1(row.target)), "-o", Path(QStringLiteral("a.png"))});
        EXPECT_EQ(result.code, row.code) << row.target;
        EXPECT_EQ(result.out, "");
        EXPECT_EQ(result.err, std::string("nuq: The picture could not be loaded. ") + row.sentence + "\n");
    }
    EXPECT_FALSE(QFile::exists(Path(QStringLiteral("a.png"))));
    EXPECT_TRUE(QDir(Path(QStringLiteral(".cache/tarnnuq/thumbnails"))).entryList(QDir::Files).isEmpty());
}

TEST_F(ThumbnailTest, TellsOfAComponentWithoutThumbnails)
{
    const NuqResult result = Run({"thumbnail", "C2", "--json"});
    EXPECT_EQ(result.code, 3);
    EXPECT_EQ(result.out, "{\"code\":\"thumbnail.none\",\"details\":{},\"message\":"
                          "\"The component \\\"C2\\\" has no thumbnail.\",\"schema\":1}\n");
    EXPECT_EQ(result.err, "nuq: The component \"C2\" has no thumbnail.\n");
}

TEST_F(ThumbnailTest, RefusesWhatCannotBe)
{
    const std::vector<std::pair<QStringList, std::string>> rows = {
        {{"thumbnail", "ftp://h/a.png"}, "\"ftp://h/a.png\" is no address of the web."},
        {{"thumbnail", "http:///a.png"}, "\"http:///a.png\" is no address of the web."},
        {{"thumbnail", "http://h/a.png", "--project", "P"}, "--project goes with the id of a component only."},
        {{"thumbnail", "C1", "--size", "0"},
            "The value of --size has to be a whole number from 1 to 4096, but it is \"0\"."},
        {{"thumbnail", "C1", "-o", "-", "--json"}, "--json and --output - cannot be used together."},
        {{"thumbnail"}, "The command \"thumbnail\" needs WHAT."},
        {{"cache", "empty"}, "ACTION has to be \"clear\", but it is \"empty\"."},
    };
    for (const auto& [arguments, complaint] : rows) {
        const NuqResult result = Run(arguments);
        EXPECT_EQ(result.code, 2) << complaint;
        EXPECT_EQ(result.err.find("nuq: " + complaint), 0U) << result.err;
    }
    const NuqResult suffix = Run({"thumbnail", "C1", "-o", "a.nonsense"});
    EXPECT_EQ(suffix.code, 2);
    EXPECT_EQ(suffix.err.find("nuq: The suffix of \"a.nonsense\" names none of the picture formats "), 0U)
        << suffix.err;
    EXPECT_TRUE(server.Requests().empty());
}

TEST_F(ThumbnailTest, SaysWhyItCannotWriteTheFile)
{
    const NuqResult result = Run({"thumbnail", "C1", "-o", Path(QStringLiteral("missing/a.png"))});
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(result.err, "nuq: The file \"HOME/missing/a.png\" could not be written: No such file or directory.\n");
}

TEST_F(ThumbnailTest, TwoProcessesAtOnceBothSucceedAndLeaveOneWholeFile)
{
    const QByteArray large = ImageBytes(SampleImage(700, 500));
    server.On("/large.png", ScriptedResponse::Content(large, "image/png").Delayed(std::chrono::milliseconds(50)));
    const QString url = Url(QStringLiteral("/large.png"));
    std::vector<std::unique_ptr<QProcess>> processes;
    for (int i = 0; i < 3; ++i)
        processes.push_back(runner.Start({"thumbnail", url}));
    for (const std::unique_ptr<QProcess>& process : processes) {
        EXPECT_TRUE(process->waitForFinished(30000));
        EXPECT_EQ(process->exitCode(), 0);
    }
    EXPECT_EQ(Read(CacheFile(url)), large);
    EXPECT_EQ(QDir(Path(QStringLiteral(".cache/tarnnuq/thumbnails"))).entryList(QDir::Files | QDir::Hidden).size(), 1);
}

TEST_F(ThumbnailTest, ShowsAndClearsTheCache)
{
    Run({"thumbnail", Url(QStringLiteral("/static/t/64.png"))});
    Run({"thumbnail", Url(QStringLiteral("/static/t/128.png"))});
    const int bytes = Png(64).size() + Png(128).size();
    const std::string both = std::to_string(bytes);
    const std::string folder = "HOME/.cache/tarnnuq/thumbnails";
    const std::string limit = std::to_string(256 << 20);
    EXPECT_EQ(Run({"cache", "--json"}).out, "{\"cache\":{\"bytes\":" + both + ",\"files\":2,\"folder\":\"" + folder +
                                                "\",\"limit\":" + limit + "},\"schema\":1}\n");
    const NuqResult shown = Run({"cache"});
    EXPECT_EQ(shown.code, 0);
    EXPECT_EQ(shown.err, "");
    EXPECT_EQ(shown.out.find("Thumbnail folder  " + folder + "\nSize              "), 0U) << shown.out;
    EXPECT_NE(shown.out.find("(2 files)\nLimit             256.0 MiB\n"), std::string::npos) << shown.out;
    EXPECT_EQ(Run({"cache", "clear", "--json"}).out, "{\"cache\":{\"bytes\":0,\"files\":0,\"folder\":\"" + folder +
                                                         "\",\"limit\":" + limit + "},\"removed\":{\"bytes\":" + both +
                                                         ",\"files\":2},\"schema\":1}\n");
    EXPECT_EQ(Run({"cache", "clear", "--lang", "zh"}).out, "缩略图文件夹  " + folder +
                                                               "\n已移除        0 bytes（0 个文件）\n"
                                                               "大小          0 bytes（0 个文件）\n"
                                                               "上限          256.0 MiB\n");
}

} // namespace
} // namespace nuqtest
