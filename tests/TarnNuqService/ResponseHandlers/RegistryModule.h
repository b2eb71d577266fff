#pragma once

namespace testsupport {

/// What the second module answers when it asks the registry, in the order of the registry's own comparison; null
/// entries for result types without a handler. The module exports it as "RegistryHandlers".
struct RegistryAnswers
{
    static constexpr int KnownCount = 12;

    const void* known[KnownCount] = {};
    const void* unknown = nullptr;
};

using RegistryHandlersFunction = void (*)(RegistryAnswers&);

} // namespace testsupport
