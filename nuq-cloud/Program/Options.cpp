#include "Program/Options.h"

#include "Program/Version.h"

#include <CLI/CLI.hpp>
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

When it is ready it prints one line on standard output: {"url":"http://127.0.0.1:PORT"}
SIGTERM or Ctrl-C lets running requests finish and ends it with status 0.
)";

const char kFooter[] = R"(Environment:
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

std::string FirstLine(std::string text)
{
    return text.substr(0, text.find('\n'));
}

void Declare(CLI::App& app, Options& options, std::string& library)
{
    app.add_option("--library", library, "Folder made by sample-library-builder (default: beside the program)")
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
    app.add_flag("-q,--quiet", options.quiet, "Write nothing on standard error but errors");
}

} // namespace

std::optional<Options> ParseOptions(int argc, const char* const* argv)
{
    Options options;
    std::string library;
    CLI::App app(kExamples, "nuq-cloud");
    app.footer(kFooter);
    app.set_version_flag("--version", std::string("nuq-cloud ") + kVersion);
    Declare(app, options, library);
    try {
        app.parse(argc, argv);
    } catch (const CLI::Success& success) {
        app.exit(success, std::cout, std::cerr);
        return std::nullopt;
    } catch (const CLI::ParseError& error) {
        throw UsageError(FirstLine(error.what()) + " (see nuq-cloud --help)");
    }
    options.library = library.empty() ? LibraryBesideProgram() : std::filesystem::path(library);
    options.accessLogWasNamed = app.count("--access-log") > 0;
    return options;
}

} // namespace nuqcloud
