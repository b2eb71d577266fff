#include "Program/Options.h"

#include "Faults/Scenario.h"
#include "Program/NearestName.h"
#include "Program/Version.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>

namespace nuqcloud {
namespace {

const char kExamples[] = R"(Serves a sample component library over HTTP, as the real cloud would.

Examples:
  nuq-cloud --port 8080
      serve the library beside the program on http://127.0.0.1:8080
  nuq-cloud --port 0 --write-config app --quiet
      take a free port, write environment files to app/nuq_env_config, log nothing
  curl -H "Authorization: demo-token" http://127.0.0.1:8080/api/v3/categories
      ask it
  nuq-cloud --port 8080 --fault status=503@/api/v1/components#2 --fault delay=300
      answer late, and the second request for components with an error
  nuq-cloud --port 8080 --allow-faults
      obey the request header X-Nuq-Fault, as in: curl -H "X-Nuq-Fault: truncate=100" ...
  nuq-cloud --port 8080 --record session.ndjson
  nuq-cloud --port 8080 --replay session.ndjson
      keep what was answered, and answer the same again without the library

When it is ready it prints one line on standard output: {"url":"http://127.0.0.1:PORT"}
SIGTERM or Ctrl-C lets running requests finish and ends it with status 0.
)";

const char kFooter[] = R"(
Environment:
  NUQ_CLOUD_TOKEN      token accepted below /api        (default demo-token)
  NUQ_CLOUD_TOKEN_QA   token accepted below /qa/api     (default demo-token-qa)

Exit status: 0 ended by a signal, 1 cannot serve, 2 wrong command line.
)";

/// The library that lies where an installed or built program has its shared files.
std::filesystem::path LibraryBesideProgram()
{
    std::error_code error;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
    return (program.parent_path() / ".." / "share" / "tarnnuq" / "library").lexically_normal();
}

/// What the command line says in words, before it is looked at more closely.
struct RawOptions
{
    std::string library;
    std::string tlsFault;
    std::vector<std::string> faults;
    std::string scenario;
};

std::string FaultList()
{
    std::string text = "Faults (--fault KIND[=VALUE][,KIND..][@/PATH][#N], the header X-Nuq-Fault, scenario files):\n";
    for (const FaultKind& kind : FaultKinds()) {
        std::string name = std::string("  ") + kind.name;
        name += kind.value == FaultValue::None ? "" : std::string("=") + kind.valueName;
        name.resize(std::max<std::size_t>(name.size() + 1, 34), ' ');
        text += name + kind.effect + (*kind.absent == '\0' ? "" : std::string(" (") + kind.absent + ")") + '\n';
    }
    return text;
}

CertificateFault ToCertificateFault(const std::string& name)
{
    if (name == "expired") {
        return CertificateFault::Expired;
    }
    if (name == "not-yet-valid") {
        return CertificateFault::NotYetValid;
    }
    return name == "wrong-host" ? CertificateFault::WrongHost : CertificateFault::None;
}

void ReadRules(const RawOptions& raw, Options& options)
{
    if (!raw.scenario.empty()) {
        Scenario scenario = ReadScenario(raw.scenario);
        options.seed = scenario.seed;
        options.rules = std::move(scenario.rules);
    }
    for (const std::string& fault : raw.faults) {
        options.rules.push_back(ParseFaultRule(fault));
    }
    options.faultsAllowed = options.faultsAllowed || !raw.scenario.empty() || !options.rules.empty();
}

std::vector<std::string> OptionNames(const CLI::App& app)
{
    std::vector<std::string> names;
    for (const CLI::Option* option : app.get_options()) {
        for (const std::string& name : option->get_lnames()) {
            names.push_back("--" + name);
        }
    }
    return names;
}

/// What is not known: an option, with what it could have meant, or a word that belongs nowhere.
UsageError Unexpected(const CLI::App& app)
{
    const auto remaining = app.remaining();
    const auto option = std::find_if(
        remaining.begin(), remaining.end(), [](const std::string& word) { return word.rfind('-', 0) == 0; });
    if (option == remaining.end()) {
        return UsageError("There is nothing to do with \"" + (remaining.empty() ? "" : remaining.front()) +
                          "\" (see nuq-cloud --help)");
    }
    const std::string name = option->substr(0, option->find('='));
    const std::string nearest = NearestName(name, OptionNames(app));
    return UsageError("There is no option " + name + (nearest.empty() ? "" : "; did you mean " + nearest + "?") +
                      " (see nuq-cloud --help)");
}

/// CLI11 tells numbers of arguments; people know values and options.
UsageError Mismatch(const CLI::ArgumentMismatch& error)
{
    const std::string text = error.what();
    const std::string name = text.substr(0, text.find_first_of(": "));
    std::string what = " needs a value";
    if (text.find("At Most") != std::string::npos) {
        what = " may be given only once";
    } else if (text.find("flag override") != std::string::npos) {
        what = " takes no value";
    }
    const char* const dashes = name[0] == '-' ? "" : "--";
    return UsageError("The option " + (dashes + name) + what + " (see nuq-cloud --help)");
}

std::string FirstLine(std::string text)
{
    return text.substr(0, text.find('\n'));
}

void DeclareServing(CLI::App& app, Options& options, RawOptions& raw)
{
    app.add_option("--library", raw.library, "Folder made by sample-library-builder (default: beside the program)")
        ->type_name("DIR");
    app.add_option("--port", options.port, "Port to listen on; 0 takes a free one")
        ->type_name("N")
        ->check(CLI::Range(0, 65535))
        ->capture_default_str();
    app.add_option("--host", options.host, "Address to listen on")->type_name("HOST")->capture_default_str();
    app.add_option("--write-config", options.configFolder, "Write environment files for this server below DIR")
        ->type_name("DIR");
    app.add_option("--token-file", options.tokenFile, "File with lines prod=TOKEN and qa=TOKEN")->type_name("FILE");
    app.add_option("--access-log", options.accessLog, "Where one line a request goes; - is standard error")
        ->type_name("FILE")
        ->capture_default_str();
    app.add_flag("-q,--quiet", options.quiet, "Write nothing on standard error but errors")->disable_flag_override();
}

void DeclareTls(CLI::App& app, Options& options, RawOptions& raw)
{
    auto* const tls = app.add_flag("--tls", options.tls,
        "Speak TLS, by default with a certificate made at start; --write-config keeps it beside the environment files");
    tls->disable_flag_override();
    auto* const certificate =
        app.add_option("--tls-cert", options.tlsCertificate, "Certificate (PEM)")->type_name("FILE")->needs(tls);
    auto* const key = app.add_option("--tls-key", options.tlsKey, "Its private key (PEM)")->type_name("FILE");
    certificate->needs(key);
    key->needs(certificate);
    app.add_option("--tls-fault", raw.tlsFault, "Make a certificate that clients must refuse")
        ->check(CLI::IsMember({"expired", "not-yet-valid", "wrong-host"}))
        ->type_name("FAULT")
        ->needs(tls)
        ->excludes(certificate);
}

void DeclareFaults(CLI::App& app, Options& options, RawOptions& raw)
{
    app.add_option("--fault", raw.faults, "Make this fault; may be given several times")
        ->type_name("SPEC")
        ->allow_extra_args(false);
    app.add_option("--scenario", raw.scenario, "Make faults by the rules of this file")->type_name("FILE");
    app.add_flag("--allow-faults", options.faultsAllowed, "Obey X-Nuq-Fault; --fault and --scenario imply it")
        ->disable_flag_override();
    auto* const record =
        app.add_option("--record", options.recordFile, "Write every exchange to FILE")->type_name("FILE");
    app.add_option("--replay", options.replayFile, "Answer from a recording, without a library")
        ->type_name("FILE")
        ->excludes(record);
}

} // namespace

std::optional<Options> ParseOptions(int argc, const char* const* argv)
{
    Options options;
    RawOptions raw;
    CLI::App app(kExamples, "nuq-cloud");
    app.footer(FaultList() + kFooter);
    app.set_version_flag("--version", std::string("nuq-cloud ") + kVersion);
    DeclareServing(app, options, raw);
    DeclareTls(app, options, raw);
    DeclareFaults(app, options, raw);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        app.exit(success, std::cout, std::cerr);
        return std::nullopt;
    } catch (const CLI::ExtrasError&) {
        throw Unexpected(app);
    } catch (const CLI::ArgumentMismatch& error) {
        throw Mismatch(error);
    } catch (const CLI::ParseError& error) {
        throw UsageError(FirstLine(error.what()) + " (see nuq-cloud --help)");
    }
    try {
        ReadRules(raw, options);
    } catch (const std::runtime_error& error) {
        throw UsageError(error.what());
    }
    options.tlsFault = ToCertificateFault(raw.tlsFault);
    options.library = raw.library.empty() ? LibraryBesideProgram() : std::filesystem::path(raw.library);
    options.accessLogWasNamed = app.count("--access-log") > 0;
    return options;
}

} // namespace nuqcloud
