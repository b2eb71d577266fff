#pragma once

#include <QStringList>
#include <string>

namespace nuqtest {

class NuqRunner;

/** What a run on a terminal showed: both streams as one, as a user sees them. */
struct PtyResult
{
    int code = -1;
    std::string text;
};

/// Runs the program with a terminal of 80 columns as all three standard streams.
PtyResult RunOnTerminal(const NuqRunner& runner, const QStringList& arguments);

} // namespace nuqtest
