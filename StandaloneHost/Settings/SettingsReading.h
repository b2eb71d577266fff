#pragma once

#include "Settings/SettingsState.h"

#include <QJsonObject>
#include <QString>

namespace standalone {

/// What one reading of the settings file gave.
struct SettingsReading
{
    SettingsState state = SettingsState::Missing;
    /// All settings; empty unless the state is Read.
    QJsonObject values;
    /// For a person: the reason when the state is Damaged or Unreadable, the reason and the new name when it is
    /// SetAside; else empty.
    QString detail;
};

} // namespace standalone
