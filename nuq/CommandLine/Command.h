#pragma once

#include "CommandLine/CommandSpec.h"
#include "CommandLine/OptionBinder.h"
#include "Program/ExitCode.h"

namespace nuq {

class Session;

/** One command of the program: its table, its options and what it does. Used once. */
class Command
{
public:
    virtual ~Command() = default;

    virtual const CommandSpec& Spec() const = 0;

    /** Bind everything that Spec() names. */
    virtual void Bind(OptionBinder& binder) = 0;

    /** Look at the options together. @throws UsageError when they contradict each other */
    virtual void Check() const {}

    /** Do it. Results go to the session's output, errors through Session::Fail. */
    virtual ExitCode Run(Session& session) = 0;
};

} // namespace nuq
