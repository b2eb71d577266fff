#pragma once

namespace standalone {

/// How the settings file was found.
enum class SettingsState
{
    Missing,    ///< There is none: everything has its default. The normal first start.
    Read,       ///< Read.
    Damaged,    ///< It holds no JSON object and could not be set aside; nothing is written over it.
    SetAside,   ///< It held no JSON object and was renamed; everything has its default.
    Unreadable, ///< It is there but cannot be read; nothing is written over it.
};

} // namespace standalone
