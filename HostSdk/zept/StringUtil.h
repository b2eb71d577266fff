#pragma once

#include "HostSdkExport.h"

#include <string>

namespace zept {

/// Conversions between narrow and wide text, and wide formatting that is the same on every platform.
class StringUtil
{
public:
    StringUtil() = delete;

    /**
     * Wide text from UTF-8.
     *
     * Characters beyond U+FFFF become surrogate pairs where wchar_t has 16 bits. Invalid bytes become U+FFFD, a byte
     * order mark at the beginning is dropped, NUL characters stay.
     */
    HOSTSDK_EXPORT static std::wstring ToWString(const std::string& utf8);

    /**
     * Formats like printf, into a wide text of any length.
     *
     * | conversion | argument |
     * |---|---|
     * | %s %ls %S | const wchar_t*; null is written as "(null)" |
     * | %hs | const char* in UTF-8; null is written as "(null)" |
     * | %c %lc %C | wchar_t |
     * | %d %i | int, or by hh h l ll z j t |
     * | %u %x %X %o | unsigned int, or by hh h l ll z j t |
     * | %f %F %e %E %g %G %a %A | double, or long double by L |
     * | %p | const void* |
     * | %% | none: a percent sign |
     *
     * Flags "-+ #0", width, precision and "*" are those of printf. Width and precision of texts count in wchar_t, the
     * precision of %hs in bytes. The decimal point is "." whatever the locale. Any other conversion, and one that is
     * cut off by the end, is copied as it is and takes no argument. A null format gives an empty text.
     *
     * REQUIRES: the arguments fit the conversions; pass `text.c_str()` for a std::wstring.
     */
    HOSTSDK_EXPORT static std::wstring FormatWString(const wchar_t* format, ...);
};

} // namespace zept
