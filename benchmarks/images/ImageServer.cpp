// Answers every GET with one image, from a process of its own, so that its work is not counted as the client's.
// Usage: image-server FILE; prints its port, ends with its standard input. GET /connections tells from how many
// connections images were asked for since it was asked last.
#include <cstdio>
#include <fstream>
#include <httplib.h>
#include <iterator>
#include <mutex>
#include <set>
#include <thread>

namespace {

/// The connections that images were asked for over.
class Connections
{
public:
    void Add(int port)
    {
        const std::lock_guard lock(m_mutex);
        m_ports.insert(port);
    }

    std::size_t Take()
    {
        const std::lock_guard lock(m_mutex);
        const std::size_t count = m_ports.size();
        m_ports.clear();
        return count;
    }

private:
    std::mutex m_mutex;
    std::set<int> m_ports;
};

std::string ReadFile(const char* path)
{
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void Serve(httplib::Server& server, const std::string& image, Connections& connections)
{
    server.new_task_queue = [] { return new httplib::ThreadPool(64); };
    server.set_tcp_nodelay(true);
    server.set_keep_alive_max_count(1000000);
    server.Get("/connections", [&connections](const httplib::Request&, httplib::Response& response) {
        response.set_content(std::to_string(connections.Take()), "text/plain");
    });
    server.Get(".*", [&image, &connections](const httplib::Request& request, httplib::Response& response) {
        connections.Add(request.remote_port);
        response.set_content(image, "image/png");
    });
}

} // namespace

int main(int argc, char** argv)
{
    const std::string image = argc == 2 ? ReadFile(argv[1]) : std::string();
    if (image.empty()) {
        std::fprintf(stderr, "image-server: give the file of an image\n");
        return 2;
    }
    Connections connections;
    httplib::Server server;
    Serve(server, image, connections);
    std::printf("%d\n", server.bind_to_any_port("127.0.0.1"));
    std::fflush(stdout);
    std::thread serving([&server] { server.listen_after_bind(); });
    while (std::getchar() != EOF) {
    }
    server.stop();
    serving.join();
    return 0;
}
