#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Shows the property definitions of a category. */
class PropertiesCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString code;
        bool cloud = false;
    };

    Options m_options;
};

} // namespace nuq
