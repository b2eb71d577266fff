#pragma once

#include "ComponentDatabase/Sql/Connection.h"

#include <QSqlQuery>
#include <QVariant>

namespace componentdatabase {

/// One prepared statement, run as often as needed. Rows are read once, front to back. Every member throws SqlFault.
class Statement
{
public:
    /// @param connection must live longer
    Statement(const Connection& connection, const QString& sql);

    /// Runs it with these values for its question marks, in order.
    template <class... Values>
    void Run(const Values&... values)
    {
        m_query.finish();
        int place = 0;
        (m_query.bindValue(place++, Bound(values)), ...);
        Execute();
    }

    /// Goes to the next row, at first the first one.
    /// @return false behind the last one
    bool Next();

    /// Ends the reading before the last row, so that the file is not kept locked.
    void Finish() { m_query.finish(); }

    qint64 Number(int column) const;
    QString Text(int column) const;
    bool IsNull(int column) const;

private:
    /// Qt takes a text that was never set for NULL.
    static QVariant Bound(const QString& text) { return text.isNull() ? QVariant(QLatin1String("")) : QVariant(text); }
    static QVariant Bound(const QVariant& value) { return value; }
    template <class Value>
    static QVariant Bound(const Value& value)
    {
        return QVariant(value);
    }

    void Execute();
    void ThrowLastError() const;

    QSqlQuery m_query;
};

} // namespace componentdatabase
