#pragma once

#include <condition_variable>
#include <cstddef>
#include <exception>
#include <functional>
#include <map>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace samplelibrary {

/// Makes results on several threads and hands them over in order on the calling thread.
///
/// At most a few results a thread wait to be taken, so that memory is bounded however many there are.
template <class Result>
class OrderedWork
{
public:
    /// @param count number of results
    /// @param make  makes result number n; called on the threads of the work, for several n at once
    OrderedWork(std::size_t count, std::function<Result(std::size_t)> make) : m_count(count), m_make(std::move(make)) {}

    /// Runs on @p threads threads and gives each result to @p take, in order, on this thread. What @p make or @p take
    /// throws ends the work and comes out here.
    void Run(std::size_t threads, const std::function<void(Result&&)>& take)
    {
        m_window = threads * ResultsAhead;
        std::vector<std::thread> workers;
        for (std::size_t thread = 0; thread < threads; ++thread) {
            workers.emplace_back([this] { Work(); });
        }
        std::exception_ptr fault;
        try {
            TakeAll(take);
        } catch (...) {
            fault = std::current_exception();
        }
        Stop();
        for (std::thread& worker : workers) {
            worker.join();
        }
        if (fault) {
            std::rethrow_exception(fault);
        }
    }

private:
    static constexpr std::size_t ResultsAhead = 4;

    /// A result or what was thrown instead of it.
    struct Outcome
    {
        Result Value;
        std::exception_ptr Fault;
    };

    void Work()
    {
        for (;;) {
            std::unique_lock<std::mutex> lock(m_mutex);
            m_changed.wait(lock, [this] { return m_isStopped || m_next == m_count || m_next < m_taken + m_window; });
            if (m_isStopped || m_next == m_count) {
                return;
            }
            const std::size_t number = m_next++;
            lock.unlock();
            Outcome outcome = Make(number);
            lock.lock();
            m_outcomes.emplace(number, std::move(outcome));
            m_changed.notify_all();
        }
    }

    Outcome Make(std::size_t number)
    {
        try {
            return {m_make(number), nullptr};
        } catch (...) {
            return {{}, std::current_exception()};
        }
    }

    void TakeAll(const std::function<void(Result&&)>& take)
    {
        for (std::size_t number = 0; number < m_count; ++number) {
            Outcome outcome = Take(number);
            if (outcome.Fault) {
                std::rethrow_exception(outcome.Fault);
            }
            take(std::move(outcome.Value));
        }
    }

    Outcome Take(std::size_t number)
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_changed.wait(lock, [this, number] { return m_outcomes.count(number) != 0; });
        auto node = m_outcomes.extract(number);
        ++m_taken;
        m_changed.notify_all();
        return std::move(node.mapped());
    }

    void Stop()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_isStopped = true;
        m_changed.notify_all();
    }

    std::size_t m_count;
    std::function<Result(std::size_t)> m_make;
    std::mutex m_mutex;
    std::condition_variable m_changed;
    std::map<std::size_t, Outcome> m_outcomes;
    std::size_t m_window = 0;
    std::size_t m_next = 0;
    std::size_t m_taken = 0;
    bool m_isStopped = false;
};

} // namespace samplelibrary
