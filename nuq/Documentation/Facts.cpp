#include "Documentation/Facts.h"

namespace nuq {

const std::vector<Fact>& ExitStatusFacts()
{
    static const std::vector<Fact> facts = {
        {"0", "done; also when the reader of the output has gone (a closed pipe)"},
        {"1", "failed for a reason that has no code of its own, for example a wrong configuration or a full disk"},
        {"2", "the command line is wrong"},
        {"3", "what was asked for does not exist"},
        {"4", "not signed in, or not allowed"},
        {"5", "the network: no connection, no answer in time, a certificate that cannot be verified, --offline"},
        {"6", "the server reports a fault, or sends something that is no data"},
        {"7", "a check came to its end and found faults"},
        {"130", "ended by Ctrl-C (143: by a request to terminate)"},
    };
    return facts;
}

const std::vector<Fact>& EnvironmentFacts()
{
    static const std::vector<Fact> facts = {
        {"NUQ_TOKEN, NUQ_TOKEN_FILE", "the token, or a file that holds it; a token is never an argument"},
        {"NUQ_TOKEN_QA, NUQ_TOKEN_QA_FILE", "the same for the environment \"qa\""},
        {"NUQ_ENVIRONMENT", "the environment to work in, unless --environment is given"},
        {"NUQ_APP_DIR", "the application folder, unless --app-dir is given"},
        {"NO_COLOR", "when set and not empty: no colours, unless --color=always is given"},
        {"LC_ALL, LC_MESSAGES, LANG", "the language, unless --lang is given; output is UTF-8 always"},
        {"http_proxy, https_proxy, no_proxy", "the proxies to use; this computer is always reached directly"},
        {"SSL_CERT_FILE, SSL_CERT_DIR", "further trusted certificates"},
        {"XDG_CONFIG_HOME, XDG_CACHE_HOME, XDG_STATE_HOME", "where settings, thumbnails and logs are kept"},
    };
    return facts;
}

const std::vector<Fact>& FileFacts()
{
    static const std::vector<Fact> facts = {
        {"FOLDER/nuq_env_config/nuq_env_config.json", "names the environment files below the application folder"},
        {"~/.config/tarnnuq/settings.json", "settings"},
        {"~/.config/tarnnuq/accounts/token-prod, token-qa", "stored tokens, readable by their owner only"},
        {"~/.cache/tarnnuq/thumbnails", "thumbnails; may be deleted at any time"},
        {"~/.local/state/tarnnuq/nuq.log", "the log, rotated, without tokens"},
    };
    return facts;
}

} // namespace nuq
