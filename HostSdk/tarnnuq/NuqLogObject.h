#pragma once

#include "HostSdkExport.h"

#include <QString>
#include <QStringList>
#include <initializer_list>
#include <string>

namespace tarnnuq {

/**
 * One log record: a single text, or several parts such as a caption and its value.
 *
 * A value type that keeps its parts readable, so that a logger can tell a two-part record from one text. The
 * constructors convert implicitly: `logger->Info({"env map file path: ", path})`.
 */
class NuqLogObject
{
public:
    /// A single text.
    HOSTSDK_EXPORT NuqLogObject(const QString& text);
    /// A single text.
    HOSTSDK_EXPORT NuqLogObject(const std::wstring& text);
    /// A single text in UTF-8; invalid bytes become U+FFFD, a null pointer an empty text.
    HOSTSDK_EXPORT NuqLogObject(const char* utf8);
    /// A single text; a null pointer is an empty text.
    HOSTSDK_EXPORT NuqLogObject(const wchar_t* text);
    /// The parts of all given records in order; a part that has several parts itself contributes each of them.
    HOSTSDK_EXPORT NuqLogObject(std::initializer_list<NuqLogObject> parts);

    /// The parts joined without separator.
    HOSTSDK_EXPORT QString Text() const;

    /// The part texts in order: one for a single text, empty parts included.
    HOSTSDK_EXPORT QStringList Parts() const;

private:
    QStringList m_parts;
};

} // namespace tarnnuq
