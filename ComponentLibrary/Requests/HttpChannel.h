#pragma once

#include "Requests/HostQueue.h"
#include "Requests/RetryPolicy.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QObject>

#include <functional>

class QNetworkRequest;

namespace componentlibrary {

/** How the requests of a channel behave; changes hold for requests started later. */
struct ChannelSettings
{
    int timeLimit = 30000; ///< milliseconds for one try, counted from the moment it is handed to Qt
    RetryPolicy retry;
    qint64 largestBody = qint64{256} << 20; ///< bytes after decompression
    bool isPacked = true;   ///< whether answers may come compressed; from this computer they never do: it only costs
    bool isOffline = false; ///< when set, every request ends with ErrorCode::Offline, unsent
    QByteArray language = "en"; ///< Accept-Language of the requests
    /// Sets the Authorization header; by default the library's own rule for the current environment. The header never
    /// goes to another host than the one first asked.
    std::function<void(QNetworkRequest&)> authorize;
    /// A number from 0 to 1 for the jitter; by default random.
    std::function<double()> dice;
};

/**
 * What all requests of one application share: one network manager, so that connections are kept and reused, one
 * queue that hands at most six requests a host to it, and the settings.
 *
 * Owned by the application and used from one thread, that of its event loop. When it dies before its requests,
 * they end as cancelled.
 */
class HttpChannel : public QObject
{
    Q_OBJECT

public:
    /** As many as Qt's manager sends to one host at a time; more would only wait inside it. */
    static constexpr int kSlotsPerHost = 6;

    explicit HttpChannel(ChannelSettings settings, QObject* parent = nullptr);
    ~HttpChannel() override;

    const ChannelSettings& Settings() const { return m_settings; }
    void SetSettings(ChannelSettings settings);

    /** The number of the next request in the log, from 1. */
    int TakeNumber() { return ++m_lastNumber; }

    HostQueue& Queue() { return m_queue; }
    QNetworkAccessManager& Manager() { return m_manager; }

signals:
    /** The channel is about to go; requests on it end now. */
    void Closing();

private:
    ChannelSettings m_settings;
    int m_lastNumber = 0;
    HostQueue m_queue;
    QNetworkAccessManager m_manager;
};

} // namespace componentlibrary
