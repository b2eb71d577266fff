#include "CommandLine/GlobalOptions.h"

#include <QtGlobal>

namespace nuq {

const std::vector<OptionSpec>& GlobalOptionSpecs()
{
    // clang-format off
    static const std::vector<OptionSpec> specs = {
        {"--help", "-h", "", QT_TRANSLATE_NOOP("CommandTable", "Show this help and end")},
        {"--version", "", "", QT_TRANSLATE_NOOP("CommandTable", "Show the version and end")},
        {"--json", "", "", QT_TRANSLATE_NOOP("CommandTable", "Write the result as one JSON document")},
        {"--quiet", "-q", "", QT_TRANSLATE_NOOP("CommandTable", "Write errors only, no notes and no hints")},
        {"--verbose", "-v", "", QT_TRANSLATE_NOOP("CommandTable", "Show details of errors; twice: the log as well")},
        {"--lang", "", "LANGUAGE", QT_TRANSLATE_NOOP("CommandTable", "Language of texts and names; by default that of the environment"), {"en", "zh"}},
        {"--color", "", "WHEN", QT_TRANSLATE_NOOP("CommandTable", "Use colours; auto means: only on a terminal, and not when NO_COLOR is set"), {"auto", "always", "never"}},
        {"--timeout", "", "SECONDS", QT_TRANSLATE_NOOP("CommandTable", "Time limit of one request, 1 to 3600; by default 30")},
        {"--no-input", "", "", QT_TRANSLATE_NOOP("CommandTable", "Never ask a question; fail instead")},
        {"--offline", "", "", QT_TRANSLATE_NOOP("CommandTable", "Open no network connection; commands that need one fail")},
        {"--app-dir", "", "FOLDER", QT_TRANSLATE_NOOP("CommandTable", "Application folder with the environment files; by default NUQ_APP_DIR or the installed one")},
        {"--environment", "", "NAME", QT_TRANSLATE_NOOP("CommandTable", "Environment to work in; by default NUQ_ENVIRONMENT, the settings, or prod")},
    };
    // clang-format on
    return specs;
}

} // namespace nuq
