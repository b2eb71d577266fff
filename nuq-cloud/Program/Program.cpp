#include "Program/Program.h"

#include "Program/EnvironmentFiles.h"
#include "Program/Options.h"
#include "Program/RelayFront.h"
#include "Program/StopSignals.h"
#include "Program/TlsIdentity.h"
#include "Program/TokenSource.h"
#include "Server/AccessLog.h"
#include "Server/NuqCloudServer.h"
#include "Text/JsonWriter.h"

#include <cstdio>
#include <memory>
#include <optional>
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
std::string Url(const Options& options, int port)
{
    const bool anyHost = options.host == "0.0.0.0" || options.host == "::";
    const std::string name = anyHost ? "127.0.0.1" : options.host;
    const std::string bracketed = name.find(':') == std::string::npos ? name : '[' + name + ']';
    return (options.tls ? "https://" : "http://") + bracketed + ':' + std::to_string(port);
}

/// Whoever started the program may have closed its output; that is no error.
void PrintReady(const std::string& url)
{
    JsonWriter writer;
    writer.BeginObject().Key("url").Text(url).EndObject();
    std::printf("%s\n", writer.Take().c_str());
    std::fflush(stdout);
}

std::optional<TlsIdentity> ChooseIdentity(const Options& options)
{
    if (!options.tls) {
        return std::nullopt;
    }
    return options.tlsCertificate.empty() ? MakeTlsIdentity(options.host, options.tlsFault)
                                          : ReadTlsIdentity(options.tlsCertificate, options.tlsKey);
}

ServerSettings ToServerSettings(const Options& options, AccessLog* log)
{
    ServerSettings settings;
    settings.library = options.library;
    settings.host = options.host;
    settings.tokens = ReadTokens(options.tokenFile);
    settings.faultsAllowed = options.faultsAllowed;
    settings.recordFile = options.recordFile;
    settings.replayFile = options.replayFile;
    if (log != nullptr) {
        settings.onExchange = [log](const HttpExchange& exchange) { log->Write(exchange); };
    }
    return settings;
}

void WriteConfiguration(const Options& options, const std::string& url, const std::optional<TlsIdentity>& identity)
{
    if (options.configFolder.empty()) {
        return;
    }
    WriteEnvironmentFiles(options.configFolder, url);
    if (identity) {
        WriteFileAtomically(
            std::filesystem::path(options.configFolder) / kConfigFolder / "nuq-cloud.pem", identity->certificatePem);
    }
}

void AnnounceAndWait(
    const Options& options, int port, const std::optional<TlsIdentity>& identity, const StopSignals& signals)
{
    const std::string url = Url(options, port);
    WriteConfiguration(options, url, identity);
    PrintReady(url);
    signals.Wait();
}

/// Clients talk to the server itself; nothing stands between that could fail or cost time.
void ServeDirectly(const Options& options, ServerSettings settings, const StopSignals& signals)
{
    NuqCloudServer server(std::move(settings));
    AnnounceAndWait(options, server.Start(options.port), std::nullopt, signals);
    server.Stop();
}

/// Clients talk to the relay, and the relay to a server that listens on this machine only.
void ServeBehindRelay(const Options& options, ServerSettings settings, const StopSignals& signals)
{
    settings.host = "127.0.0.1";
    NuqCloudServer server(std::move(settings));
    RelayFront::Settings front;
    front.host = options.host;
    front.port = options.port;
    front.obeysHeader = options.faultsAllowed;
    front.tls = ChooseIdentity(options);
    front.targetPort = server.Start(0);
    RelayFront relay(front, std::make_shared<FaultPlan>(options.rules, options.seed));
    AnnounceAndWait(options, relay.Port(), front.tls, signals);
    relay.Drain();
    server.Stop();
}

void Serve(const Options& options)
{
    const StopSignals signals;
    const auto log = MakeAccessLog(options);
    ServerSettings settings = ToServerSettings(options, log.get());
    if (options.tls || options.faultsAllowed) {
        ServeBehindRelay(options, std::move(settings), signals);
    } else {
        ServeDirectly(options, std::move(settings), signals);
    }
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
