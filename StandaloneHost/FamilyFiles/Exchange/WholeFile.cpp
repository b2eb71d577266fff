#include "FamilyFiles/Exchange/WholeFile.h"

#include "FamilyFiles/Geometry/GeometryFailure.h"
#include "Paths/ReplaceFile.h"

#include <QFile>
#include <QString>
#include <QTemporaryDir>

namespace familyfiles {

namespace {

[[noreturn]] void Refuse(const QString& why)
{
    const std::string detail = why.isEmpty() ? std::string() : ": " + why.toStdString();
    throw GeometryFailure("exchange.failed", "The file cannot be written" + detail, "无法写入文件" + detail);
}

} // namespace

QByteArray WriteAside(const std::string& suffix, const std::function<bool(const std::string& path)>& write)
{
    const QTemporaryDir folder;
    if (!folder.isValid()) {
        Refuse(folder.errorString());
    }
    const QString path = folder.filePath(QStringLiteral("component") + QString::fromStdString(suffix));
    QFile file(path);
    if (!write(path.toStdString()) || !file.open(QIODevice::ReadOnly)) {
        Refuse(file.errorString());
    }
    return file.readAll();
}

void WriteWhole(const std::string& path, const QByteArray& content)
{
    const QString why = standalone::ReplaceFile(QString::fromStdString(path), content);
    if (!why.isEmpty()) {
        Refuse(why);
    }
}

} // namespace familyfiles
