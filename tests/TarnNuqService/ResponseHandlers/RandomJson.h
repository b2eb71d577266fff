#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <random>

namespace testsupport {

/// Random JSON, the same in every run.
class RandomJson
{
public:
    static constexpr int Rounds = 20000;

    int Below(int limit) { return std::uniform_int_distribution<int>(0, limit - 1)(m_engine); }

    /// Any finite number: every bit pattern, or one near a limit.
    double Number()
    {
        switch (Below(4)) {
        case 0:
            return AnyBits();
        case 1:
            return NearLimit();
        case 2:
            return Below(2001) - 1000;
        default:
            return (Below(20001) - 10000) / 8.0;
        }
    }

    /// A short text of these pieces.
    QString Text(const QStringList& pieces, int most = 6)
    {
        QString text;
        for (int count = Below(most + 1); count > 0; --count) {
            text += pieces.at(Below(pieces.size()));
        }
        return text;
    }

    /// A value of any type.
    QJsonValue Value(const QStringList& pieces)
    {
        switch (Below(8)) {
        case 0:
            return QJsonValue(QJsonValue::Undefined);
        case 1:
            return QJsonValue();
        case 2:
            return Below(2) == 0;
        case 3:
            return QJsonArray{Number()};
        case 4:
            return QJsonObject{{QStringLiteral("a"), Number()}};
        case 5:
            return Number();
        default:
            return Text(pieces);
        }
    }

private:
    double AnyBits()
    {
        const std::uint64_t bits = m_engine();
        double number = 0.0;
        std::memcpy(&number, &bits, sizeof number);
        return std::isfinite(number) ? number : 0.0;
    }

    double NearLimit()
    {
        const double limits[] = {0.0, 2147483647.0, 2147483648.0, 4294967296.0, 9007199254740992.0,
            9223372036854775808.0, 18446744073709551616.0};
        const double number = limits[Below(7)] + (Below(9) - 4) / 2.0;
        return Below(2) == 0 ? number : -number;
    }

    std::mt19937_64 m_engine{20220125};
};

} // namespace testsupport
