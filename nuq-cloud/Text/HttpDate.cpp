#include "Text/HttpDate.h"

#include <cstdio>

namespace nuqcloud {

std::string FormatHttpDate(std::time_t moment)
{
    static constexpr const char* kDays[] = {"Sun", "Mon", "Tue", "Wed", "Thu", "Fri", "Sat"};
    static constexpr const char* kMonths[] = {
        "Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
    std::tm parts{};
    ::gmtime_r(&moment, &parts);
    char text[64];
    std::snprintf(text, sizeof(text), "%s, %02d %s %d %02d:%02d:%02d GMT", kDays[parts.tm_wday], parts.tm_mday,
        kMonths[parts.tm_mon], parts.tm_year + 1900, parts.tm_hour, parts.tm_min, parts.tm_sec);
    return text;
}

} // namespace nuqcloud
