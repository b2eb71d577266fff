#pragma once

#include <QString>

namespace standalone {

/// Where a token comes from, or why there is none. Never holds the token.
struct TokenOrigin
{
    enum class Kind
    {
        None,                ///< No source is set up: nobody is signed in.
        EnvironmentVariable, ///< The token stands in an environment variable.
        NamedFile,           ///< The token stands in a file that an environment variable names.
        StoredFile,          ///< The token stands in the file that signing in wrote.
        Refused,             ///< A source is set up but cannot be used; no other source is asked.
    };

    Kind kind = Kind::None;
    QString place;  ///< The variable's name or the file's path; empty for None.
    QString reason; ///< For a person, when Refused: what is wrong and what mends it. Also set for a named file that
                    ///< others can read.

    /// One line for a person: "environment variable NUQ_TOKEN", "file /home/…", "none", "refused: …".
    QString Text() const;
};

} // namespace standalone
