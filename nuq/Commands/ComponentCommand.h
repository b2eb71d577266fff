#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Shows one component with its family types and thumbnails. */
class ComponentCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString id;
        QString projectId;
    };

    Options m_options;
};

} // namespace nuq
