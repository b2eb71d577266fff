#pragma once

#include "Errors/ErrorInfo.h"
#include "Pictures/PictureReading.h"
#include "Pictures/ThumbnailCache.h"

#include <QObject>
#include <QString>
#include <QThreadPool>

#include <functional>
#include <map>
#include <memory>

namespace componentlibrary {

class HttpChannel;

/** The answer for one URL: a picture, or an error. */
struct Thumbnail
{
    QString url;
    QString file;             ///< where it is kept now; empty when it could not be kept
    QImage image;             ///< null when there is an error
    QByteArray format;        ///< as Qt names it, for example "png"
    bool isFromCache = false; ///< whether the network was left alone
    ErrorInfo error;
};

/**
 * Loads thumbnails for views, from the cache on disk or from the network.
 *
 * However many receivers ask for one URL, it is read or requested once. A file is decoded on a worker thread; one that
 * is no picture, or promises too many pixels, is removed and asked for anew. An answer that is no picture is asked for
 * once more; only a picture is kept, and only as a whole file. Requests wait in the channel's queue, at most six a
 * host, and follow its settings: retries, time limit, offline. Answers come from the event loop, never inside Load().
 *
 * Used from the thread of its channel, which has to outlive it. The destructor waits for the file at work, not for the
 * network.
 */
class ThumbnailLoader : public QObject
{
    Q_OBJECT

public:
    using Receiver = std::function<void(const Thumbnail&)>;

    /** A receiver's place: give it up, and no answer comes. May outlive the loader. */
    using Ticket = std::shared_ptr<const void>;

    explicit ThumbnailLoader(
        HttpChannel& channel, const ThumbnailCache& cache = ThumbnailCache(), QObject* parent = nullptr);
    ~ThumbnailLoader() override;

    const ThumbnailCache& Cache() const { return m_cache; }

    /**
     * Ask for a picture.
     * @param url      as records carry it; the cache distinguishes texts, not addresses
     * @param receiver called once; it may ask again, give up any ticket and delete this loader
     * @return keep it until the answer comes; when nobody keeps one for a URL any more, its request is dropped
     */
    [[nodiscard]] Ticket Load(const QString& url, Receiver receiver);

private:
    struct Entry;
    struct Job;

    Job* Find(const QString& url, int number);
    void DropUnwanted(const QString& url);
    void Work(const Job& job, std::function<Picture()> read, void (ThumbnailLoader::*use)(Job&, const Picture&));
    void ReadFile(Job& job);
    void OnFileRead(Job& job, const Picture& picture);
    void Ask(Job& job);
    void OnAnswer(Job& job);
    void OnAnswerRead(Job& job, const Picture& picture);
    void TrimAfter(qint64 bytes);
    void Fail(Job& job, const ErrorInfo& error);
    void End(Job& job, const Thumbnail& thumbnail);

    HttpChannel& m_channel;
    const ThumbnailCache m_cache;
    std::map<QString, std::unique_ptr<Job>> m_jobs;
    int m_lastNumber = 0;
    qint64 m_keptSinceTrim;
    QThreadPool m_workers;
};

} // namespace componentlibrary
