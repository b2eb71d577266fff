#pragma once

namespace componentlibrary {

/**
 * What went wrong, one value a cause that a user can tell apart and act on.
 *
 * Each value has one stable text (ErrorId), one sentence in each language and one group; tests and scripts rely on
 * the stable texts, so a value may be added but never renamed.
 */
enum class ErrorCode
{
    None,
    Cancelled,
    Offline,
    ConfigurationNoEndpoint,
    ConfigurationBadEndpoint,
    NetworkRefused,
    NetworkHostNotFound,
    NetworkTimeout,
    NetworkClosed,
    NetworkUnreachable,
    NetworkProxy,
    NetworkProxySignIn,
    NetworkFault,
    TlsMissing,
    TlsSelfSigned,
    TlsExpired,
    TlsNotYetValid,
    TlsWrongHost,
    TlsUntrusted,
    TlsFault,
    AuthSignedOut,
    AuthForbidden,
    NotFound,
    ServerRateLimited,
    ServerUnavailable,
    ServerFault,
    ServerRejected,
    ServerNotJson,
    ServerHtmlPage,
    ServerEmptyAnswer,
    ServerPartialAnswer,
    ServerUnexpectedStatus,
    ServerRedirectLoop,
    ServerRedirectRefused,
    ServerWrongShape,
    ServerIncompleteList,
    ServerTooLarge,
    InternalFault
};

/** Which kind of remedy an error calls for; a program turns it into its exit code or its icon. */
enum class ErrorGroup
{
    None,
    General,
    NotFound,
    Access,
    Network,
    Server,
    Cancelled
};

} // namespace componentlibrary
