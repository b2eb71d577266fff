#pragma once

#include "CommandLine/Command.h"
#include "Requests/ComponentQuery.h"

namespace nuq {

/** Lists components: one page, or all of them page by page. */
class ComponentsCommand final : public Command
{
public:
    const CommandSpec& Spec() const override;
    void Bind(OptionBinder& binder) override;
    void Check() const override;
    ExitCode Run(Session& session) override;

private:
    struct Options
    {
        componentlibrary::ComponentQuery query;
        int page = 0;     ///< 0: not given
        int pageSize = 0; ///< 0: not given
        bool all = false;
        bool stream = false;
    };

    ExitCode RunPage(Session& session);
    ExitCode RunAll(Session& session);

    Options m_options;
};

} // namespace nuq
