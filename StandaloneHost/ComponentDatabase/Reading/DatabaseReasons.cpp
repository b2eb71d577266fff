#include "ComponentDatabase/Reading/DatabaseReasons.h"

#include <QDir>

namespace componentdatabase {

namespace {

// The engine's result codes that are told apart.
constexpr int Busy = 5;
constexpr int Locked = 6;
constexpr int ReadOnly = 8;
constexpr int Corrupt = 11;
constexpr int Full = 13;
constexpr int NotADatabase = 26;

DatabaseReason Make(const char* code, const QString& path, const char* english, const char* chinese)
{
    const QString shown = QDir::toNativeSeparators(path);
    return {QString::fromLatin1(code), QString::fromUtf8(english).arg(shown), QString::fromUtf8(chinese).arg(shown)};
}

DatabaseReason Make(
    const char* code, const QString& path, const QString& detail, const char* english, const char* chinese)
{
    const QString shown = QDir::toNativeSeparators(path);
    return {QString::fromLatin1(code), QString::fromUtf8(english).arg(shown, detail),
        QString::fromUtf8(chinese).arg(shown, detail)};
}

DatabaseReason Make(
    const char* code, const QString& path, int version, int known, const char* english, const char* chinese)
{
    const QString shown = QDir::toNativeSeparators(path);
    return {QString::fromLatin1(code),
        QString::fromUtf8(english).arg(shown, QString::number(version), QString::number(known)),
        QString::fromUtf8(chinese).arg(shown, QString::number(version), QString::number(known))};
}

} // namespace

DatabaseReason MissingReason(const QString& path)
{
    return Make("database.missing", path, "There is no component database %1.", "没有组件数据库 %1。");
}

DatabaseReason NoFileReason(const QString& path)
{
    return Make("database.no_file", path, "The component database %1 is a folder or a device, not a file.",
        "组件数据库 %1 是文件夹或设备，不是文件。");
}

DatabaseReason EmptyReason(const QString& path)
{
    return Make("database.empty", path, "The component database %1 is an empty file.", "组件数据库 %1 是空文件。");
}

DatabaseReason UnreadableReason(const QString& path, const QString& detail)
{
    return Make("database.unreadable", path, detail, "The component database %1 cannot be read: %2.",
        "无法读取组件数据库 %1：%2。");
}

DatabaseReason ForeignReason(const QString& path)
{
    return Make("database.foreign", path, "The file %1 is no component database, or its beginning is damaged.",
        "文件 %1 不是组件数据库，或其开头已损坏。");
}

DatabaseReason NewerReason(const QString& path, int version, int known)
{
    return Make("database.newer", path, version, known,
        "The component database %1 was made by a newer program: its version is %2, this program knows up to %3.",
        "组件数据库 %1 由较新的程序创建：其版本为 %2，本程序最高支持 %3。");
}

DatabaseReason OlderReason(const QString& path, int version, int known)
{
    return Make("database.older", path, version, known,
        "The component database %1 has the old version %2 and cannot be written, so that it cannot be brought to "
        "version %3.",
        "组件数据库 %1 的版本 %2 过旧且文件不可写，无法升级到版本 %3。");
}

DatabaseReason ReadOnlyReason(const QString& path)
{
    return Make("database.read_only", path, "The component database %1 cannot be written.", "组件数据库 %1 不可写。");
}

DatabaseReason DamagedReason(const QString& path, const QString& detail)
{
    return Make(
        "database.damaged", path, detail, "The component database %1 is damaged: %2.", "组件数据库 %1 已损坏：%2。");
}

DatabaseReason ReasonOf(const QString& path, const SqlFault& fault)
{
    const QString detail = QString::fromUtf8(fault.what());
    switch (fault.Code()) {
    case Busy:
    case Locked:
        return Make("database.locked", path, "The component database %1 is locked by another program.",
            "组件数据库 %1 已被其他程序锁定。");
    case ReadOnly:
        return ReadOnlyReason(path);
    case Corrupt:
        return DamagedReason(path, detail);
    case Full:
        return Make("database.full", path, "There is no room left on the disk of the component database %1.",
            "组件数据库 %1 所在磁盘空间不足。");
    case NotADatabase:
        return ForeignReason(path);
    default:
        break;
    }
    return Make("database.failed", path, detail, "The component database %1 cannot be used: %2.",
        "无法使用组件数据库 %1：%2。");
}

} // namespace componentdatabase
