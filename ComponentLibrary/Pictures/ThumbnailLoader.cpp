#include "Pictures/ThumbnailLoader.h"

#include "Pictures/PictureRequest.h"

#include <QFile>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace componentlibrary {
namespace {

constexpr int kWorkers = 2;
constexpr int kTrimParts = 16; // how often the cache is looked through while as much as its limit comes in

} // namespace

struct ThumbnailLoader::Entry
{
    ~Entry()
    {
        if (loader != nullptr)
            loader->DropUnwanted(url);
    }

    Receiver receiver;
    QPointer<ThumbnailLoader> loader;
    QString url;
};

/// What is being done about one URL. Its number tells it from an earlier job for the same URL that was dropped.
struct ThumbnailLoader::Job
{
    QString url;
    QString file;
    int number = 0;
    std::vector<std::weak_ptr<Entry>> receivers;
    std::unique_ptr<PictureRequest> request;
    bool isLastAttempt = false;
};

ThumbnailLoader::ThumbnailLoader(HttpChannel& channel, const ThumbnailCache& cache, QObject* parent)
    : QObject(parent), m_channel(channel), m_cache(cache), m_keptSinceTrim(cache.Limit())
{
    m_workers.setMaxThreadCount(kWorkers);
}

ThumbnailLoader::~ThumbnailLoader()
{
    m_workers.clear();
    m_workers.waitForDone();
}

ThumbnailLoader::Ticket ThumbnailLoader::Load(const QString& url, Receiver receiver)
{
    auto entry = std::make_shared<Entry>();
    entry->receiver = std::move(receiver);
    entry->loader = this;
    entry->url = url;
    std::unique_ptr<Job>& job = m_jobs[url];
    if (job != nullptr) {
        job->receivers.push_back(entry);
        return entry;
    }
    job = std::make_unique<Job>();
    job->url = url;
    job->file = ThumbnailCache::FileOf(url);
    job->number = ++m_lastNumber;
    job->receivers.push_back(entry);
    ReadFile(*job);
    return entry;
}

ThumbnailLoader::Job* ThumbnailLoader::Find(const QString& url, int number)
{
    const auto job = m_jobs.find(url);
    return job != m_jobs.end() && job->second->number == number ? job->second.get() : nullptr;
}

void ThumbnailLoader::DropUnwanted(const QString& url)
{
    const auto job = m_jobs.find(url);
    if (job == m_jobs.end())
        return;
    const auto& receivers = job->second->receivers;
    if (std::all_of(receivers.begin(), receivers.end(), [](const auto& entry) { return entry.expired(); }))
        m_jobs.erase(job);
}

void ThumbnailLoader::Work(
    const Job& job, std::function<Picture()> read, void (ThumbnailLoader::*use)(Job&, const Picture&))
{
    m_workers.start([this, read = std::move(read), use, url = job.url, number = job.number] {
        const Picture picture = read();
        const auto deliver = [this, picture, use, url, number] {
            if (Job* const waiting = Find(url, number))
                (this->*use)(*waiting, picture);
        };
        QMetaObject::invokeMethod(this, deliver, Qt::QueuedConnection);
    });
}

void ThumbnailLoader::ReadFile(Job& job)
{
    const auto read = [file = job.file] {
        Picture picture = ReadPictureFile(file);
        if (picture.fault == PictureFault::None)
            ThumbnailCache::NoteUse(file);
        else if (picture.fault != PictureFault::Missing)
            QFile::remove(file);
        return picture;
    };
    Work(job, read, &ThumbnailLoader::OnFileRead);
}

void ThumbnailLoader::OnFileRead(Job& job, const Picture& picture)
{
    if (picture.fault == PictureFault::None)
        return End(job, {job.url, job.file, picture.image, picture.format, true, {}});
    job.isLastAttempt = picture.fault != PictureFault::Missing;
    Ask(job);
}

void ThumbnailLoader::Ask(Job& job)
{
    job.request = std::make_unique<PictureRequest>(m_channel, QUrl(job.url));
    const auto onFinished = [this, url = job.url, number = job.number] {
        if (Job* const waiting = Find(url, number))
            OnAnswer(*waiting);
    };
    // Queued, so that the request is no longer in the middle of its signal when its job ends.
    connect(job.request.get(), &RequestBase::Finished, this, onFinished, Qt::QueuedConnection);
    job.request->Start();
}

void ThumbnailLoader::OnAnswer(Job& job)
{
    if (job.request->Error().IsError())
        return Fail(job, job.request->Error());
    const auto read = [file = job.file, bytes = job.request->Bytes()] {
        Picture picture = ReadPicture(bytes);
        if (picture.fault == PictureFault::None)
            ThumbnailCache::Keep(file, bytes);
        return picture;
    };
    Work(job, read, &ThumbnailLoader::OnAnswerRead);
}

void ThumbnailLoader::OnAnswerRead(Job& job, const Picture& picture)
{
    if (picture.fault == PictureFault::TooLarge)
        return Fail(job, job.request->NoPicture(ErrorCode::ServerTooLarge));
    if (picture.fault != PictureFault::None && job.isLastAttempt)
        return Fail(job, job.request->NoPicture(ErrorCode::ServerNotJson));
    if (picture.fault != PictureFault::None) {
        job.isLastAttempt = true;
        return Ask(job);
    }
    TrimAfter(job.request->Bytes().size());
    End(job, {job.url, QFile::exists(job.file) ? job.file : QString(), picture.image, picture.format, false, {}});
}

void ThumbnailLoader::TrimAfter(qint64 bytes)
{
    m_keptSinceTrim += bytes;
    if (m_keptSinceTrim < m_cache.Limit() / kTrimParts)
        return;
    m_keptSinceTrim = 0;
    m_workers.start([cache = m_cache] { cache.Trim(); });
}

void ThumbnailLoader::Fail(Job& job, const ErrorInfo& error)
{
    End(job, {job.url, QString(), QImage(), QByteArray(), false, error});
}

void ThumbnailLoader::End(Job& job, const Thumbnail& thumbnail)
{
    // A receiver may ask for the same URL again or delete this loader: from here on only locals count.
    const std::vector<std::weak_ptr<Entry>> receivers = std::move(job.receivers);
    m_jobs.erase(thumbnail.url);
    for (const std::weak_ptr<Entry>& waiting : receivers) {
        if (const std::shared_ptr<Entry> entry = waiting.lock())
            entry->receiver(thumbnail);
    }
}

} // namespace componentlibrary
