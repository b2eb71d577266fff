#pragma once

#include "CommandLine/Command.h"
#include "Errors/ErrorInfo.h"

#include <QString>

#include <vector>

namespace nuq {

/** Tells whether a public component exists in a project, or in which of all projects. */
class ExistsCommand final : public Command
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
    struct Answer;

    componentlibrary::ErrorInfo Ask(Session& session, std::vector<Answer>& answers) const;

    Options m_options;
};

} // namespace nuq
