#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Shows what a family file holds. */
class FamilyShowCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString file;
        QString type;
    };

    Options m_options;
};

} // namespace nuq
