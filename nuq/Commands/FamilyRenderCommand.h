#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Makes a shaded picture of a family. */
class FamilyRenderCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString file;
        QString type;
        QString output;
        int size = 512;
    };

    Options m_options;
};

} // namespace nuq
