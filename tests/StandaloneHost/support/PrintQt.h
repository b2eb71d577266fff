#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <ostream>

// Makes failed comparisons readable; GoogleTest finds these by the arguments' namespace.
QT_BEGIN_NAMESPACE

inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}

inline void PrintTo(const QByteArray& bytes, std::ostream* out)
{
    *out << '"' << bytes.toStdString() << '"';
}

inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << "{\"" << texts.join(QStringLiteral("\", \"")).toStdString() << "\"}";
}

QT_END_NAMESPACE
