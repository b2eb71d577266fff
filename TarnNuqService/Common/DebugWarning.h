#pragma once

namespace tarnnuq {

/// On whose behalf debug warnings are raised: a source path from this library's folder, with slashes on every
/// platform, a line of that source, and the qualified name of the function. Readers that several handlers share warn
/// in the name of the handler.
struct WarningSource
{
    const char* file;
    int line;
    const char* function;
};

/// The date tag of warnings that have none of their own.
constexpr const wchar_t* DefaultWarningDate = L"2022-01-25";

/// Raises the host's debug warning about an object that is unexpectedly null. A warning never stops its caller: what
/// goes wrong here, where memory has often just run out, is dropped.
void WarnNull(const WarningSource& source, const wchar_t* message, const wchar_t* date = DefaultWarningDate) noexcept;

} // namespace tarnnuq
