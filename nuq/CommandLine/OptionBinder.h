#pragma once

#include "CommandLine/CommandSpec.h"

#include <QString>

#include <functional>

namespace nuq {

/**
 * Connects the options and arguments of a command's table with the fields of its options struct.
 *
 * Each option and argument of the table is bound exactly once; the parser insists on it.
 */
class OptionBinder
{
public:
    virtual ~OptionBinder() = default;

    /** An option with any text; given twice, the last one holds. */
    virtual void Text(const char* name, QString& target) = 0;

    /** An option or argument with a whole number within bounds. */
    virtual void Number(const char* name, int& target, int least, int most) = 0;

    /** A switch. */
    virtual void Switch(const char* name, bool& target) = 0;

    /** A switch that may be given several times; counts. */
    virtual void Count(const char* name, int& target) = 0;

    /** A positional argument with any text that is not empty. */
    virtual void Argument(const char* name, QString& target) = 0;
};

} // namespace nuq
