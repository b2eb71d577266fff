#include "Requests/HostQueue.h"

#include <QPointer>
#include <QTimer>

#include <algorithm>

namespace componentlibrary {

struct HostQueue::Ticket::Entry
{
    QPointer<HostQueue> queue;
    QString key;
    std::function<void()> go;
    bool running = false;
};

HostQueue::Ticket::~Ticket()
{
    Release();
}

HostQueue::Ticket& HostQueue::Ticket::operator=(Ticket&& other) noexcept
{
    if (this != &other) {
        Release();
        m_entry = std::move(other.m_entry);
    }
    return *this;
}

void HostQueue::Ticket::Release()
{
    const std::shared_ptr<Entry> entry = std::move(m_entry);
    m_entry.reset();
    if (entry != nullptr && entry->queue != nullptr)
        entry->queue->Leave(*entry);
}

HostQueue::HostQueue(int slotsPerHost, QObject* parent) : QObject(parent), m_slotsPerHost(std::max(1, slotsPerHost)) {}

HostQueue::~HostQueue() = default;

HostQueue::Ticket HostQueue::Enter(const QUrl& url, std::function<void()> go)
{
    Ticket ticket;
    ticket.m_entry = std::make_shared<Ticket::Entry>();
    ticket.m_entry->queue = this;
    ticket.m_entry->key = HostKey(url);
    ticket.m_entry->go = std::move(go);
    m_hosts[ticket.m_entry->key].waiting.push_back(ticket.m_entry);
    ScheduleNext(ticket.m_entry->key);
    return ticket;
}

int HostQueue::Running(const QUrl& url) const
{
    return m_hosts.value(HostKey(url)).running;
}

int HostQueue::Waiting(const QUrl& url) const
{
    return static_cast<int>(m_hosts.value(HostKey(url)).waiting.size());
}

QString HostQueue::HostKey(const QUrl& url)
{
    return url.adjusted(QUrl::RemoveUserInfo | QUrl::RemovePath | QUrl::RemoveQuery | QUrl::RemoveFragment).toString();
}

void HostQueue::Leave(Ticket::Entry& entry)
{
    const auto host = m_hosts.find(entry.key);
    if (host == m_hosts.end())
        return;
    if (entry.running)
        --host->running;
    auto& waiting = host->waiting;
    waiting.erase(std::remove_if(waiting.begin(), waiting.end(),
                      [&entry](const std::shared_ptr<Ticket::Entry>& other) { return other.get() == &entry; }),
        waiting.end());
    if (host->running == 0 && waiting.empty())
        m_hosts.erase(host);
    else
        ScheduleNext(entry.key);
}

void HostQueue::ScheduleNext(const QString& key)
{
    QTimer::singleShot(0, this, [this, key] { StartNext(key); });
}

void HostQueue::StartNext(const QString& key)
{
    // Looked up again in each round: what `go` does may add and remove hosts.
    for (auto host = m_hosts.find(key); host != m_hosts.end(); host = m_hosts.find(key)) {
        if (host->running >= m_slotsPerHost || host->waiting.empty())
            return;
        const std::shared_ptr<Ticket::Entry> entry = host->waiting.front();
        host->waiting.pop_front();
        entry->running = true;
        ++host->running;
        entry->go();
    }
}

} // namespace componentlibrary
