#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Shows the category tree of the library on this machine. */
class TreeCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    QString m_code;
};

} // namespace nuq
