#pragma once

#include <QString>

namespace standalone {

/// A value that may come from several places, with the place it came from.
struct ResolvedSetting
{
    enum class Origin
    {
        Option,              ///< Given by the program, usually from its command line.
        EnvironmentVariable, ///< From an environment variable.
        Settings,            ///< From the settings file.
        Default,             ///< Given nowhere.
    };

    QString value;
    Origin origin = Origin::Default;
    QString originText; ///< For a person: "environment variable NUQ_APP_DIR".
};

} // namespace standalone
