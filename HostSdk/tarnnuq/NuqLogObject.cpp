#include "tarnnuq/NuqLogObject.h"

namespace tarnnuq {

NuqLogObject::NuqLogObject(const QString& text) : m_parts(text) {}

NuqLogObject::NuqLogObject(const std::wstring& text) : m_parts(QString::fromStdWString(text)) {}

NuqLogObject::NuqLogObject(const char* utf8) : m_parts(QString::fromUtf8(utf8)) {}

NuqLogObject::NuqLogObject(const wchar_t* text) : m_parts(text != nullptr ? QString::fromWCharArray(text) : QString())
{
}

NuqLogObject::NuqLogObject(std::initializer_list<NuqLogObject> parts)
{
    for (const NuqLogObject& part : parts) {
        m_parts += part.m_parts;
    }
}

QString NuqLogObject::Text() const
{
    return m_parts.join(QString());
}

QStringList NuqLogObject::Parts() const
{
    return m_parts;
}

} // namespace tarnnuq
