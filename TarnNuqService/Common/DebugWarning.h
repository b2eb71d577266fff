#pragma once

namespace tarnnuq {

/// Where a debug warning is raised: a source path from this library's folder, with slashes on every platform,
/// and the qualified name of the function.
struct WarningSource
{
    const char* file;
    const char* function;
};

/// The date tag of warnings that have none of their own.
constexpr const wchar_t* DefaultWarningDate = L"2022-01-25";

/// Raises the host's debug warning about an object that is unexpectedly null.
void WarnNull(const WarningSource& source, int line, const wchar_t* message, const wchar_t* date = DefaultWarningDate);

} // namespace tarnnuq
