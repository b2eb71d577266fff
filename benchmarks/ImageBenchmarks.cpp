// Thumbnails through both providers beside the bare network manager and curl, and cached ones beside QImage::load.
// Usage: image-benchmarks SERVER [--benchmark_...]; SERVER is the program image-server.
#include "Providers/UrlImageProvider.h"
#include "images/ImageClients.h"
#include "images/ThumbnailFolder.h"
#include "support/QuietHost.h"
#include "support/Registration.h"
#include "tarnnuq/PathUtils.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QProcess>
#include <QRandomGenerator>
#include <cstdio>

namespace {

using bench::Batch;
using bench::Cost;
using bench::FetchBatch;

const std::vector<std::pair<std::string, FetchBatch>> Clients{
    {"bare", bench::FetchBare},
    {"files", bench::FetchFiles},
    {"bare-decoding", bench::FetchBareDecoding},
    {"images", bench::FetchImages},
    {"curl", bench::FetchByCurl},
};

/// An image of noise on a plain ground, about as hard to pack as a drawing.
QImage MakeImage(int size)
{
    QRandomGenerator random(1);
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(Qt::white);
    for (int i = 0; i < size * size / 8; ++i) {
        image.setPixel(random.bounded(size), random.bounded(size), random.generate() | 0xff000000U);
    }
    return image;
}

Batch MakeBatch(const QString& base, int count)
{
    Batch batch;
    for (int i = 0; i < count; ++i) {
        batch.urls.push_back((base + QStringLiteral("/thumbnails/%1.png").arg(i)).toStdWString());
        batch.files.push_back(
            QString::fromStdWString(tarnnuq::PathUtils::GetThumbnailDownloadFilePath(batch.urls.back(), L".png")));
    }
    return batch;
}

/// Fetches a batch into an empty cache.
Cost Fetch(FetchBatch fetch, const QString& base, int count)
{
    const bench::ThumbnailFolder folder;
    return fetch(MakeBatch(base, count));
}

void RegisterBatch(const std::string& name, FetchBatch fetch, const QString& base, int count, double Cost::*cost)
{
    benchmark::RegisterBenchmark((name + "/" + std::to_string(count)).c_str(),
        [=](benchmark::State& state) {
            for (auto _ : state) {
                state.SetIterationTime(Fetch(fetch, base, count).*cost);
            }
        })
        ->UseManualTime()
        ->Unit(benchmark::kMicrosecond);
}

void RegisterBatches(const QString& base)
{
    for (const int count : {1, 10, 100, 1000}) {
        for (const auto& [by, fetch] : Clients) {
            RegisterBatch("thumbnails/" + by, fetch, base, count, &Cost::wall);
            RegisterBatch("thumbnails-cpu/" + by, fetch, base, count, &Cost::cpu);
        }
    }
}

void LoadCached(benchmark::State& state, int size)
{
    const bench::ThumbnailFolder folder;
    const Batch batch = MakeBatch(QStringLiteral("http://127.0.0.1:1"), 1);
    MakeImage(size).save(batch.files[0]);
    for (auto _ : state) {
        QImage image;
        if (!image.load(batch.files[0])) {
            state.SkipWithError("the image cannot be loaded");
        }
        benchmark::DoNotOptimize(image);
    }
}

void ProvideCached(benchmark::State& state, int size)
{
    const bench::ThumbnailFolder folder;
    const Batch batch = MakeBatch(QStringLiteral("http://127.0.0.1:1"), 1);
    MakeImage(size).save(batch.files[0]);
    tarnnuq::UrlImageProvider provider(nullptr);
    bool good = false;
    QObject::connect(&provider, &tarnnuq::UrlImageProvider::OnProvided,
        [&good](const std::wstring&, const std::shared_ptr<QImage>& image) { good = image && !image->isNull(); });
    for (auto _ : state) {
        good = false;
        provider.Provide(batch.urls[0]);
        if (!good) {
            state.SkipWithError("the image was not provided");
        }
    }
}

void RegisterCached()
{
    for (const int size : {64, 128, 256}) {
        bench::Register("cached-image/load", size, [=](benchmark::State& state) { LoadCached(state, size); });
        bench::Register("cached-image/provider", size, [=](benchmark::State& state) { ProvideCached(state, size); });
    }
}

QString Ask(const QString& url)
{
    QNetworkAccessManager manager;
    QEventLoop loop;
    QNetworkReply* reply = manager.get(QNetworkRequest(QUrl(url)));
    QObject::connect(reply, &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    return QString::fromUtf8(reply->readAll());
}

void PrintConnections(const QString& base)
{
    const QString question = base + QStringLiteral("/connections");
    std::printf("Connections for 100 thumbnails:");
    for (const auto& [by, fetch] : Clients) {
        Ask(question);
        Fetch(fetch, base, 100);
        std::printf(" %s %s", by.c_str(), qPrintable(Ask(question)));
    }
    std::printf("\n");
}

/// Starts the server with an image of about four kilobytes.
QString StartServer(QProcess& server, const QString& program, const QString& image)
{
    MakeImage(64).save(image, "PNG");
    server.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    server.start(program, {image});
    server.waitForReadyRead();
    return QStringLiteral("http://127.0.0.1:") + QString::fromLatin1(server.readLine().trimmed());
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bench::QuietHost host;
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "image-benchmarks: give the program image-server\n");
        return 2;
    }
    const QTemporaryDir folder;
    QProcess server;
    const QString base =
        StartServer(server, QString::fromLocal8Bit(argv[1]), folder.filePath(QStringLiteral("thumbnail.png")));
    RegisterBatches(base);
    RegisterCached();
    benchmark::RunSpecifiedBenchmarks();
    PrintConnections(base);
    server.closeWriteChannel();
    return server.waitForFinished() ? 0 : 1;
}
