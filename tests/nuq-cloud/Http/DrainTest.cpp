#include "Http/HttpServer.h"

#include "nuq-cloud/support/RawClient.h"

#include <chrono>
#include <condition_variable>
#include <gtest/gtest.h>
#include <mutex>
#include <stdexcept>
#include <thread>

namespace nuqcloud {
namespace {

using cloudtest::RawClient;
using cloudtest::Request;

/// A request that is answered when the test says so.
class Gate
{
public:
    void Enter()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        m_entered = true;
        m_changed.notify_all();
        m_changed.wait_for(lock, std::chrono::seconds(5), [this] { return m_open; });
    }

    void WaitUntilEntered()
    {
        std::unique_lock<std::mutex> lock(m_mutex);
        ASSERT_TRUE(m_changed.wait_for(lock, std::chrono::seconds(5), [this] { return m_entered; }));
    }

    void Open()
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_open = true;
        m_changed.notify_all();
    }

private:
    std::mutex m_mutex;
    std::condition_variable m_changed;
    bool m_entered = false;
    bool m_open = false;
};

HttpReply Text(const std::string& body)
{
    HttpReply reply;
    reply.body = body;
    return reply;
}

TEST(Stop, LetsARunningRequestFinishAndEndsItsConnection)
{
    Gate gate;
    HttpServer server(
        [&gate](const HttpRequest&) {
            gate.Enter();
            return Text("finished");
        },
        {});
    RawClient client(server.Start("127.0.0.1", 0));
    client.Send(Request("/"));
    gate.WaitUntilEntered();
    std::thread stopping([&server] { server.Stop(); });
    gate.Open();
    EXPECT_EQ(client.ReadReply().body, "finished");
    EXPECT_EQ(client.ReadAll(), "");
    EXPECT_TRUE(client.WasClosed());
    stopping.join();
}

TEST(Stop, EndsIdleConnectionsAtOnce)
{
    HttpServer server([](const HttpRequest&) { return Text("x"); }, {});
    const int port = server.Start("127.0.0.1", 0);
    RawClient used(port);
    used.Send(Request("/"));
    used.ReadReply();
    RawClient unused(port);
    const auto begin = std::chrono::steady_clock::now();
    server.Stop();
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(2));
    EXPECT_EQ(used.ReadAll(), "");
    EXPECT_TRUE(used.WasClosed());
}

TEST(Stop, RefusesNewConnectionsAfterwards)
{
    HttpServer server([](const HttpRequest&) { return Text("x"); }, {});
    const int port = server.Start("127.0.0.1", 0);
    server.Stop();
    EXPECT_THROW(RawClient client(port), std::runtime_error);
}

TEST(Stop, MayBeCalledTwiceAndBeforeTheStart)
{
    HttpServer server([](const HttpRequest&) { return Text("x"); }, {});
    server.Stop();
    server.Stop();
}

TEST(Start, SaysWhenThePortIsTaken)
{
    HttpServer first([](const HttpRequest&) { return Text("x"); }, {});
    const int port = first.Start("127.0.0.1", 0);
    HttpServer second([](const HttpRequest&) { return Text("x"); }, {});
    try {
        second.Start("127.0.0.1", port);
        FAIL() << "two servers share a port";
    } catch (const std::runtime_error& error) {
        EXPECT_EQ(std::string(error.what()), "Cannot listen on 127.0.0.1 port " + std::to_string(port) +
                                                 ": Address already in use. Choose another --port, or --port 0 for a "
                                                 "free one.");
    }
}

TEST(Handler, BecomesAPlainErrorWhenItThrows)
{
    HttpServer server([](const HttpRequest&) -> HttpReply { throw std::runtime_error("secret"); }, {});
    const auto reply = cloudtest::Fetch(server.Start("127.0.0.1", 0), "/");
    EXPECT_EQ(reply.Status(), 500);
    EXPECT_EQ(
        reply.body, R"({"code":"INTERNAL_ERROR","message":"The server could not finish this request.","data":null})");
    EXPECT_EQ(reply.head.find("secret"), std::string::npos);
}

} // namespace
} // namespace nuqcloud
