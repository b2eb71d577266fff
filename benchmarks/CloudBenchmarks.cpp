// Requests a second of the stand-in cloud beside the bare server that it is built on, answering the same bytes.
// Usage: cloud-benchmarks [--benchmark_...]; the environment variable NUQ_LIBRARY names the built sample library.
#include "Server/NuqCloudServer.h"
#include "Server/ServerSettings.h"
#include "support/Registration.h"

#include <atomic>
#include <cstdlib>
#include <httplib.h>
#include <thread>
#include <vector>

namespace {

const char* const Token = "demo-token";
constexpr int Connections = 6;

httplib::Headers RequestHeaders()
{
    return {{"Authorization", Token}};
}

/// The bare server: one prepared body for every path, with the settings that make it quick.
class BareServer
{
public:
    explicit BareServer(std::string body) : m_body(std::move(body))
    {
        m_server.new_task_queue = [] { return new httplib::ThreadPool(64); };
        m_server.set_tcp_nodelay(true);
        m_server.set_keep_alive_max_count(100000);
        m_server.Get(".*", [this](const httplib::Request&, httplib::Response& response) {
            response.set_content(m_body, "application/json");
        });
        m_port = m_server.bind_to_any_port("127.0.0.1");
        m_thread = std::thread([this] { m_server.listen_after_bind(); });
        while (!m_server.is_running()) {
            std::this_thread::yield();
        }
    }

    ~BareServer()
    {
        m_server.stop();
        m_thread.join();
    }

    int Port() const { return m_port; }

private:
    std::string m_body;
    httplib::Server m_server;
    int m_port = 0;
    std::thread m_thread;
};

std::string Fetch(int port, const std::string& target)
{
    httplib::Client client("127.0.0.1", port);
    const auto result = client.Get(target, RequestHeaders());
    if (!result || result->status != 200) {
        std::fprintf(stderr, "cloud-benchmarks: no answer for %s\n", target.c_str());
        std::exit(1);
    }
    return result->body;
}

void RunConnection(int port, const std::string& target, std::atomic<int>& left)
{
    httplib::Client client("127.0.0.1", port);
    client.set_keep_alive(true);
    client.set_tcp_nodelay(true);
    while (left.fetch_sub(1) > 0) {
        if (!client.Get(target, RequestHeaders())) {
            std::exit(1);
        }
    }
}

void RunRequests(benchmark::State& state, int port, const std::string& target, int count)
{
    for (auto _ : state) {
        std::atomic<int> left{count};
        std::vector<std::thread> threads;
        for (int i = 0; i < Connections; ++i) {
            threads.emplace_back([&] { RunConnection(port, target, left); });
        }
        for (auto& thread : threads) {
            thread.join();
        }
    }
    state.SetItemsProcessed(state.iterations() * count);
}

void RegisterTarget(const std::string& name, int cloudPort, const std::string& target,
    std::vector<std::unique_ptr<BareServer>>& bareServers)
{
    constexpr int count = 1000;
    bareServers.push_back(std::make_unique<BareServer>(Fetch(cloudPort, target)));
    const int barePort = bareServers.back()->Port();
    const auto add = [&](const char* by, int port) {
        const std::string full = name + "/" + by + "/" + std::to_string(count);
        benchmark::RegisterBenchmark(
            full.c_str(), [=](benchmark::State& state) { RunRequests(state, port, target, count); })
            ->UseRealTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("bare", barePort);
    add("nuq-cloud", cloudPort);
}

} // namespace

int main(int argc, char** argv)
{
    const char* library = std::getenv("NUQ_LIBRARY");
    if (!library) {
        std::fprintf(stderr, "cloud-benchmarks: NUQ_LIBRARY is not set\n");
        return 2;
    }
    nuqcloud::ServerSettings settings;
    settings.library = library;
    settings.tokens = nuqcloud::Tokens{Token, Token};
    nuqcloud::NuqCloudServer cloud(settings);
    const int port = cloud.Start(0);
    std::vector<std::unique_ptr<BareServer>> bareServers;
    RegisterTarget(
        "cloud-categories", port, "/api/v3/categories?component_type=system&major=&software_version=0.1", bareServers);
    RegisterTarget("cloud-page", port, "/api/v1/components?page=3&page_size=50", bareServers);
    RegisterTarget("cloud-keyword", port, "/api/v1/components?keyword=dn50&page=1&page_size=20", bareServers);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    cloud.Stop();
    return 0;
}
