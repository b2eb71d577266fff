#include "CommandLine/BuilderCommandLine.h"

#include "Building/BuildError.h"
#include "Building/LibraryBuilder.h"
#include "CommandLine/ProgressLine.h"
#include "CommandLine/StopRequest.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <thread>

namespace samplelibrary {

namespace {

constexpr std::size_t MaximumComponents = 10'000'000;
constexpr std::size_t MaximumEndCategories = 40'000;
constexpr std::size_t MaximumJobs = 256;

/// The options as typed.
struct Arguments
{
    std::string Folder;
    BuildOptions Build;
    bool IsQuiet = false;
};

void Describe(CLI::App& app, Arguments& arguments)
{
    app.name("sample-library-builder");
    app.footer("Examples:\n"
               "  sample-library-builder library\n"
               "  sample-library-builder library --components 100000\n"
               "A library that is up to date is left as it is. Exit status: 0 done, 1 failed, 2 wrong options,\n"
               "130 interrupted (nothing is left half-written).");
    app.set_version_flag("--version", "sample-library-builder " TARNNUQ_VERSION);
    app.add_option(
           "OUT", arguments.Folder, "Folder of the library; made, or replaced if it is empty or holds a library")
        ->required();
    app.add_option("--components", arguments.Build.Components, "Number of components")
        ->check(CLI::Range(std::size_t{1}, MaximumComponents));
    app.add_option("--end-categories", arguments.Build.EndCategories, "Number of end categories")
        ->check(CLI::Range(std::size_t{1}, MaximumEndCategories));
    app.add_option("--jobs", arguments.Build.Jobs, "Number of threads; all cores by default")
        ->check(CLI::Range(std::size_t{1}, MaximumJobs));
    app.add_flag("--force", arguments.Build.IsForced, "Build even when the library is up to date");
    app.add_flag("-q,--quiet", arguments.IsQuiet, "Say nothing but errors");
}

int ReportUsage(const CLI::App& app, const CLI::ParseError& fault)
{
    if (fault.get_exit_code() == 0) {
        return app.exit(fault, std::cout, std::cerr);
    }
    std::cerr << "sample-library-builder: " << fault.what() << " (--help shows the options)\n";
    return 2;
}

void ReportResult(const BuildResult& result, const std::string& folder)
{
    if (result.WasUpToDate) {
        std::cout << folder << " is up to date\n";
    } else {
        std::cout << "built " << folder << ": " << result.Components << " components in " << result.Categories
                  << " categories\n";
    }
}

int Build(const Arguments& arguments)
{
    const StopRequest stop;
    const SourceFiles files;
    ProgressLine line(arguments.IsQuiet);
    try {
        const BuildResult result =
            LibraryBuilder(files, stop.Flag()).Build(arguments.Build, [&line](std::size_t done, std::size_t total) {
                line.Show(done, total);
            });
        line.Clear();
        if (!arguments.IsQuiet) {
            ReportResult(result, arguments.Folder);
        }
        return 0;
    } catch (const BuildInterrupted&) {
        line.Clear();
        std::cerr << "sample-library-builder: interrupted, nothing was changed\n";
        return stop.ExitCode();
    } catch (const std::exception& fault) {
        line.Clear();
        std::cerr << "sample-library-builder: " << fault.what() << '\n';
        return 1;
    }
}

} // namespace

int RunBuilder(int argc, const char* const* argv)
{
    CLI::App app("Builds the sample library of building-services components.");
    Arguments arguments;
    arguments.Build.Jobs = std::max(1U, std::thread::hardware_concurrency());
    Describe(app, arguments);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& fault) {
        return ReportUsage(app, fault);
    }
    arguments.Build.Folder = QString::fromStdString(arguments.Folder);
    return Build(arguments);
}

} // namespace samplelibrary
