#pragma once

#include "HostSdkExport.h"

#include <string>

namespace zept {

/**
 * The identity of a parameter definition: a GUID.
 *
 * A value type. The text is kept as it came. Identities compare by what the text denotes: GUID texts
 * (8-4-4-4-12 hexadecimal digits) that differ only in letter case or in being enclosed in braces are equal; any other
 * text is equal to itself alone. The order is meant for maps and has no further meaning.
 */
class UniIdentity
{
public:
    /// The identity of nothing: an empty text.
    UniIdentity() = default;
    /// The identity that a GUID text denotes; other texts are accepted too.
    HOSTSDK_EXPORT explicit UniIdentity(std::wstring guidText);

    /// The text exactly as it was given.
    HOSTSDK_EXPORT std::wstring GetGuidString() const;

    HOSTSDK_EXPORT bool operator==(const UniIdentity& other) const;
    HOSTSDK_EXPORT bool operator!=(const UniIdentity& other) const;
    HOSTSDK_EXPORT bool operator<(const UniIdentity& other) const;

private:
    std::wstring m_text;
    /// What is compared: the bare lower-case GUID, or the text itself when it is no GUID.
    std::wstring m_key;
};

} // namespace zept
