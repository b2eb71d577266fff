#include "FamilyFiles/ModuleLoader.h"

#include "FamilyFiles/ShortText.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QLibrary>

namespace familyfiles {

namespace {

using ModuleFunction = const void* (*)(const char* version);

Reason Missing(const char* module, const QString& detail)
{
    const std::string text = ShortText(detail.toStdString(), 300);
    return {"module.missing", module, std::string("The module ") + module + " cannot be loaded: " + text + '.',
        std::string("无法加载模块 ") + module + "：" + text + "。"};
}

LoadedModule Load(const QString& path, const char* module, const char* name)
{
    QLibrary library(path);
    const auto function = reinterpret_cast<ModuleFunction>(library.resolve(name));
    if (function == nullptr) {
        return {nullptr,
            Missing(module, library.isLoaded() ? path + QStringLiteral(" does not have ") + QString::fromLatin1(name)
                                               : library.errorString())};
    }
    const void* const object = function(TARNNUQ_VERSION);
    if (object == nullptr) {
        return {nullptr, Missing(module, path + QStringLiteral(" is not of version " TARNNUQ_VERSION))};
    }
    return {object, {}};
}

/// Also where there is no application object, which Qt would ask.
QString ProgramFolder()
{
    return QCoreApplication::instance() != nullptr
               ? QCoreApplication::applicationDirPath()
               : QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).path();
}

} // namespace

QStringList ModuleFolders()
{
    const QString program = ProgramFolder();
    return {program + QStringLiteral("/../lib"), program + QStringLiteral("/../" TARNNUQ_LIBRARY_FOLDER)};
}

LoadedModule LoadModule(const QStringList& folders, const char* module, const char* function)
{
    for (const QString& folder : folders) {
        const QString path = folder + QLatin1Char('/') + QString::fromLatin1(module);
        if (QFileInfo::exists(path)) {
            return Load(QFileInfo(path).absoluteFilePath(), module, function);
        }
    }
    return {nullptr, Missing(module, QStringLiteral("it is not in ") + folders.join(QStringLiteral(", ")))};
}

} // namespace familyfiles
