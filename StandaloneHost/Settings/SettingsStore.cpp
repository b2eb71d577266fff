#include "Settings/SettingsStore.h"

#include <QJsonArray>
#include <cmath>
#include <limits>

namespace standalone {

namespace {

QStringList PathOf(const QString& key)
{
    return key.split(QLatin1Char('/'), Qt::SkipEmptyParts);
}

/// The object with the value at the path replaced, or removed when the value is undefined.
QJsonObject Replaced(QJsonObject object, const QStringList& path, const QJsonValue& value)
{
    const QString& name = path.front();
    if (path.size() > 1) {
        object.insert(name, Replaced(object.value(name).toObject(), path.mid(1), value));
    } else {
        object.insert(name, value); // An undefined value removes the member.
    }
    return object;
}

bool IsWholeInt(double number)
{
    return std::trunc(number) == number && number >= std::numeric_limits<int>::min() &&
           number <= std::numeric_limits<int>::max();
}

} // namespace

SettingsStore::SettingsStore(const QString& path) : m_file(path), m_reading(m_file.Read()) {}

QString SettingsStore::Path() const
{
    return m_file.Path();
}

SettingsState SettingsStore::State() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_reading.state;
}

QString SettingsStore::Detail() const
{
    const std::lock_guard<std::mutex> lock(m_mutex);
    return m_reading.detail;
}

QJsonValue SettingsStore::Value(const QString& key) const
{
    QJsonValue value;
    {
        const std::lock_guard<std::mutex> lock(m_mutex);
        value = m_reading.values;
    }
    const QStringList path = PathOf(key);
    for (const QString& name : path) {
        value = value.toObject().value(name);
    }
    return value;
}

bool SettingsStore::Contains(const QString& key) const
{
    return !Value(key).isUndefined();
}

QString SettingsStore::Text(const QString& key, const QString& fallback) const
{
    return Value(key).toString(fallback);
}

bool SettingsStore::Flag(const QString& key, bool fallback) const
{
    return Value(key).toBool(fallback);
}

int SettingsStore::Integer(const QString& key, int fallback) const
{
    const QJsonValue value = Value(key);
    return value.isDouble() && IsWholeInt(value.toDouble()) ? static_cast<int>(value.toDouble()) : fallback;
}

double SettingsStore::Number(const QString& key, double fallback) const
{
    return Value(key).toDouble(fallback);
}

QStringList SettingsStore::Texts(const QString& key) const
{
    QStringList texts;
    const QJsonArray elements = Value(key).toArray();
    for (const QJsonValue& element : elements) {
        if (element.isString()) {
            texts += element.toString();
        }
    }
    return texts;
}

QString SettingsStore::Set(const QString& key, const QJsonValue& value)
{
    const QStringList path = PathOf(key);
    if (path.isEmpty() || value.isUndefined()) {
        return QStringLiteral("a setting needs a key and a value");
    }
    return Change([&](QJsonObject& values) { values = Replaced(values, path, value); });
}

QString SettingsStore::Remove(const QString& key)
{
    if (!Contains(key) && State() == SettingsState::Missing) {
        return {};
    }
    const QStringList path = PathOf(key);
    return path.isEmpty() ? QString() : Change([&](QJsonObject& values) {
        values = Replaced(values, path, QJsonValue(QJsonValue::Undefined));
    });
}

void SettingsStore::Reload()
{
    SettingsReading reading = m_file.Read();
    const std::lock_guard<std::mutex> lock(m_mutex);
    m_reading = std::move(reading);
}

QString SettingsStore::Change(const std::function<void(QJsonObject&)>& change)
{
    const std::lock_guard<std::mutex> writeLock(m_writeMutex);
    SettingsReading written{SettingsState::Read, {}, {}};
    QString fault = m_file.Update(change, written.values);
    if (fault.isEmpty()) {
        const std::lock_guard<std::mutex> lock(m_mutex);
        m_reading = std::move(written);
    }
    return fault;
}

} // namespace standalone
