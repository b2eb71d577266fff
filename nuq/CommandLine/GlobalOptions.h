#pragma once

#include "CommandLine/CommandSpec.h"

#include <QString>

namespace nuq {

enum class ColourMode
{
    Auto,
    Always,
    Never
};

/** What may stand before or behind every command. */
struct GlobalOptions
{
    bool wantsHelp = false;
    bool wantsVersion = false;
    bool json = false;
    bool quiet = false;
    int verbosity = 0;
    QString language; ///< "en" or "zh"; empty: as the environment says
    ColourMode colour = ColourMode::Auto;
    int timeout = 30; ///< seconds for one try
    bool noInput = false;
    bool offline = false;
    QString applicationFolder;
    QString environment;
};

/** The table of the global options. */
const std::vector<OptionSpec>& GlobalOptionSpecs();

} // namespace nuq
