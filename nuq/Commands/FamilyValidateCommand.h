#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Checks family files through and through. */
class FamilyValidateCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString path;
        bool quick = false;
    };

    Options m_options;
};

} // namespace nuq
