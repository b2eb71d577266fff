#include "nuq-cloud/support/TestServer.h"

#include <atomic>
#include <gtest/gtest.h>
#include <map>
#include <thread>

namespace cloudtest {
namespace {

const std::vector<std::string> kPaths = {"/api/v3/categories", "/api/v3/categories?keyword=dn50", "/api/v1/components",
    "/api/v1/components?keyword=pump&page_size=2", "/api/v1/components/1003", "/api/v1/components/1000/specifications",
    "/api/v1/projects/p1/components?keyword=dn50", "/api/v1/metadata/placeholders?category_code=P.1.1",
    "/static/thumbnails/pump/128.png"};

TEST(Concurrency, GivesEightClientsTheSameRepliesAsOne)
{
    const TestServer expectedFrom;
    std::map<std::string, std::string> expected;
    for (const std::string& path : kPaths) {
        expected[path] = Fetch(expectedFrom.Port(), path, {kToken}).body;
    }
    const TestServer server; // fresh: everything that is read on demand is read at once
    std::atomic<int> wrong{0};
    std::vector<std::thread> clients;
    for (std::size_t thread = 0; thread < 8; ++thread) {
        clients.emplace_back([&, thread] {
            RawClient client(server.Port());
            for (std::size_t i = 0; i < 90; ++i) {
                const std::string& path = kPaths[(i + thread) % kPaths.size()];
                client.Send(Request(path, {kToken}));
                wrong += client.ReadReply().body == expected.at(path) ? 0 : 1;
            }
        });
    }
    for (std::thread& client : clients) {
        client.join();
    }
    EXPECT_EQ(wrong, 0);
}

} // namespace
} // namespace cloudtest
