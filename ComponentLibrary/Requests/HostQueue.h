#pragma once

#include <QHash>
#include <QObject>
#include <QString>
#include <QUrl>

#include <deque>
#include <functional>
#include <memory>

namespace componentlibrary {

/**
 * Lets a limited number of requests a host go out at a time; the others wait here, first come first served.
 *
 * The network manager has a queue of its own, but a request that waits there already counts as running: its time
 * limit would pass while nothing happens. So no more are handed over than the manager can send at once.
 * Use from one thread.
 */
class HostQueue : public QObject
{
    Q_OBJECT

public:
    /** A place in the queue. Destroying it leaves the queue or frees the slot; it may outlive the queue. */
    class Ticket
    {
    public:
        Ticket() = default;
        ~Ticket();
        Ticket(Ticket&& other) noexcept = default;
        Ticket& operator=(Ticket&& other) noexcept;
        Ticket(const Ticket&) = delete;
        Ticket& operator=(const Ticket&) = delete;

        /** Leave the queue or free the slot now. */
        void Release();

    private:
        friend class HostQueue;
        struct Entry;
        std::shared_ptr<Entry> m_entry;
    };

    explicit HostQueue(int slotsPerHost, QObject* parent = nullptr);
    ~HostQueue() override;

    /**
     * Wait for a slot of the URL's host (scheme, name and port).
     * @param go called once from the event loop, never inside this call, when the slot is there; not called any more
     *           once the ticket is released
     */
    Ticket Enter(const QUrl& url, std::function<void()> go);

    /** How many requests hold a slot of this host. */
    int Running(const QUrl& url) const;

    /** How many requests wait for a slot of this host. */
    int Waiting(const QUrl& url) const;

private:
    struct Host
    {
        int running = 0;
        std::deque<std::shared_ptr<Ticket::Entry>> waiting;
    };

    static QString HostKey(const QUrl& url);
    void Leave(Ticket::Entry& entry);
    void ScheduleNext(const QString& key);
    void StartNext(const QString& key);

    const int m_slotsPerHost;
    QHash<QString, Host> m_hosts;
};

} // namespace componentlibrary
