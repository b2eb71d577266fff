#pragma once

#include "CommandLine/Command.h"

#include <QString>

namespace nuq {

/** Lists the categories with their counts, flat or as a tree, or as the public category service gives them. */
class CategoriesCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        QString keyword;
        bool all = false;
        bool tree = false;
        bool service = false;
    };

    ExitCode RunService(Session& session);

    Options m_options;
};

} // namespace nuq
