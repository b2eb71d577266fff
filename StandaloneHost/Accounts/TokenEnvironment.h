#pragma once

namespace standalone {

/// The two kinds of accounts: the test environment "qa" has tokens of its own, every other environment uses the
/// production token.
enum class TokenEnvironment
{
    Production,
    Qa,
};

} // namespace standalone
