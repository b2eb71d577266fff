#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Checks whether specifications yield a geometry. */
class FamilyCheckCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString path;
        QString specification;
    };

    Options m_options;
};

} // namespace nuq
