#include "Program/Program.h"

#include "Program/EnvironmentFiles.h"
#include "Program/Options.h"
#include "Program/StopSignals.h"
#include "Program/TokenSource.h"
#include "Server/AccessLog.h"
#include "Server/NuqCloudServer.h"
#include "Text/JsonWriter.h"

#include <cstdio>
#include <memory>
#include <string>

namespace nuqcloud {
namespace {

constexpr int kCannotServe = 1;
constexpr int kWrongUsage = 2;

void PrintError(const std::string& text)
{
    std::fprintf(stderr, "nuq-cloud: %s\n", text.c_str());
}

std::unique_ptr<AccessLog> MakeAccessLog(const Options& options)
{
    if (options.quiet && !options.accessLogWasNamed) {
        return nullptr;
    }
    return std::make_unique<AccessLog>(options.accessLog);
}

/// An address that a client on this machine can use.
std::string Url(const std::string& host, int port)
{
    const bool anyHost = host == "0.0.0.0" || host == "::";
    const std::string name = anyHost ? "127.0.0.1" : host;
    const std::string bracketed = name.find(':') == std::string::npos ? name : '[' + name + ']';
    return "http://" + bracketed + ':' + std::to_string(port);
}

/// Whoever started the program may have closed its output; that is no error.
void PrintReady(const std::string& url)
{
    JsonWriter writer;
    writer.BeginObject().Key("url").Text(url).EndObject();
    std::printf("%s\n", writer.Take().c_str());
    std::fflush(stdout);
}

void Serve(const Options& options)
{
    const StopSignals signals;
    const auto log = MakeAccessLog(options);
    ServerSettings settings;
    settings.library = options.library;
    settings.host = options.host;
    settings.tokens = ReadTokens(options.tokenFile);
    if (log) {
        settings.onExchange = [&log](const HttpExchange& exchange) { log->Write(exchange); };
    }
    NuqCloudServer server(std::move(settings));
    const std::string url = Url(options.host, server.Start(options.port));
    if (!options.configFolder.empty()) {
        WriteEnvironmentFiles(options.configFolder, url);
    }
    PrintReady(url);
    signals.Wait();
    server.Stop();
}

} // namespace

int RunProgram(int argc, const char* const* argv)
{
    try {
        if (const auto options = ParseOptions(argc, argv)) {
            Serve(*options);
        }
        return 0;
    } catch (const UsageError& error) {
        PrintError(error.what());
        return kWrongUsage;
    } catch (const std::exception& error) {
        PrintError(error.what());
        return kCannotServe;
    }
}

} // namespace nuqcloud
