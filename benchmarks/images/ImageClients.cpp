#include "images/ImageClients.h"

#include "Providers/NewUrlImageProvider.h"
#include "Providers/UrlImageProvider.h"
#include "ResponseHandlers/CustomFileReply.h"

#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QTemporaryFile>
#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ; // NOLINT(readability-redundant-declaration): POSIX leaves the declaration to the program

namespace bench {

namespace {

double Seconds(const rusage& usage)
{
    const auto seconds = [](const timeval& time) { return double(time.tv_sec) + double(time.tv_usec) * 1e-6; };
    return seconds(usage.ru_utime) + seconds(usage.ru_stime);
}

double OwnCpu()
{
    rusage usage{};
    getrusage(RUSAGE_SELF, &usage);
    return Seconds(usage);
}

/// Starts a batch and runs the event loop until each of its images has come.
template <typename Start>
Cost RunBatch(const Batch& batch, Start&& start)
{
    const double cpuBefore = OwnCpu();
    QElapsedTimer timer;
    timer.start();
    QEventLoop loop;
    std::size_t left = batch.urls.size();
    start([&loop, &left](bool good) {
        if (!good) {
            qFatal("an image did not come");
        }
        if (--left == 0) {
            loop.quit();
        }
    });
    loop.exec();
    return {double(timer.nsecsElapsed()) * 1e-9, OwnCpu() - cpuBefore};
}

void WriteFile(const QString& path, const QByteArray& body)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(body) != body.size()) {
        qFatal("cannot write %s", qPrintable(path));
    }
}

Cost FetchBareAnd(const Batch& batch, bool (*use)(const QByteArray& body))
{
    static QNetworkAccessManager manager;
    return RunBatch(batch, [&](const auto& ended) {
        for (std::size_t i = 0; i < batch.urls.size(); ++i) {
            QNetworkReply* reply = manager.get(QNetworkRequest(QUrl(QString::fromStdWString(batch.urls[i]))));
            QObject::connect(reply, &QNetworkReply::finished, [reply, ended, use, file = batch.files[i]] {
                const QByteArray body = reply->readAll();
                WriteFile(file, body);
                reply->deleteLater();
                ended(reply->error() == QNetworkReply::NoError && use(body));
            });
        }
    });
}

/// A command file for curl: what comes from where.
void WriteCurlConfig(QTemporaryFile& config, const Batch& batch)
{
    config.open();
    for (std::size_t i = 0; i < batch.urls.size(); ++i) {
        const QString lines = QStringLiteral("url = \"%1\"\noutput = \"%2\"\n");
        config.write(lines.arg(QString::fromStdWString(batch.urls[i]), batch.files[i]).toUtf8());
    }
    config.flush();
}

} // namespace

Cost FetchBare(const Batch& batch)
{
    return FetchBareAnd(batch, [](const QByteArray& body) { return !body.isEmpty(); });
}

Cost FetchBareDecoding(const Batch& batch)
{
    return FetchBareAnd(batch, [](const QByteArray& body) { return QImage().loadFromData(body); });
}

Cost FetchFiles(const Batch& batch)
{
    return RunBatch(batch, [&](const auto& ended) {
        for (const std::wstring& url : batch.urls) {
            tarnnuq::CustomFileReply* reply = tarnnuq::NewUrlImageProvider::Get()->ProvideImageFile(url);
            QObject::connect(reply, &tarnnuq::CustomReplyBase::Finished, [reply, ended] {
                reply->deleteLater();
                ended(reply->Error().empty());
            });
        }
    });
}

Cost FetchImages(const Batch& batch)
{
    static tarnnuq::UrlImageProvider provider(nullptr);
    QObject receiver;
    return RunBatch(batch, [&](const auto& ended) {
        QObject::connect(&provider, &tarnnuq::UrlImageProvider::OnProvided, &receiver,
            [ended](const std::wstring&, const std::shared_ptr<QImage>& image) { ended(image && !image->isNull()); });
        for (const std::wstring& url : batch.urls) {
            provider.Provide(url);
        }
    });
}

Cost FetchByCurl(const Batch& batch)
{
    QTemporaryFile config;
    WriteCurlConfig(config, batch);
    const QByteArray configPath = config.fileName().toLocal8Bit();
    const char* const arguments[] = {"curl", "--silent", "--show-error", "--parallel", "--parallel-max", "6",
        "--config", configPath.constData(), nullptr};
    // Whatever it is told, this version of curl draws a progress bar for parallel transfers.
    posix_spawn_file_actions_t redirections;
    posix_spawn_file_actions_init(&redirections);
    posix_spawn_file_actions_addopen(&redirections, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
    QElapsedTimer timer;
    timer.start();
    pid_t process = 0;
    int status = 0;
    rusage usage{};
    // posix_spawn() does not change the arguments; C has no way to say so.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
    if (posix_spawnp(&process, "curl", &redirections, nullptr, const_cast<char* const*>(arguments), environ) != 0 ||
        wait4(process, &status, 0, &usage) != process || status != 0) {
        qFatal("curl failed");
    }
    const double wall = double(timer.nsecsElapsed()) * 1e-9;
    posix_spawn_file_actions_destroy(&redirections);
    return {wall, Seconds(usage)};
}

} // namespace bench
