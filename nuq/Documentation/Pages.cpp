#include "Documentation/Pages.h"

#include "Application/ProductVersion.h"
#include "Documentation/CommandPage.h"
#include "Documentation/Completions.h"
#include "Documentation/ManualPage.h"

namespace nuq {

std::vector<Page> MakePages(const Commands& commands)
{
    return {
        {"docs/cli.md", CommandPage(commands)},
        {"nuq/share/man/man1/nuq.1", ManualPage(commands, standalone::ProductVersion().toStdString())},
        {"nuq/share/bash-completion/completions/nuq", BashCompletion(commands)},
        {"nuq/share/zsh/site-functions/_nuq", ZshCompletion(commands)},
        {"nuq/share/fish/vendor_completions.d/nuq.fish", FishCompletion(commands)},
    };
}

} // namespace nuq
