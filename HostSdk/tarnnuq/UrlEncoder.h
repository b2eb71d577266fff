#pragma once

#include "HostSdkExport.h"

#include <QString>

namespace tarnnuq {

/// Percent-encoding of texts that become part of a URL.
class UrlEncoder
{
public:
    UrlEncoder() = delete;

    /**
     * Encodes a text so that it can stand anywhere in a URL as data.
     *
     * Letters A-Z a-z, digits and "-_.~" stay; every other byte of the text in the given encoding becomes "%" and two
     * upper-case hexadecimal digits. No byte order mark is written. A character that the encoding does not have goes
     * out as its replacement, usually "?".
     *
     * @param text any text, also empty.
     * @param encoding the encoding's name in any case, for example "utf-8" or "GBK"; null or unknown means UTF-8.
     */
    HOSTSDK_EXPORT static QString Encode(const QString& text, const char* encoding);
};

} // namespace tarnnuq
