#include "FamilyFiles/KernelModule.h"

#include "FamilyFiles/ShortText.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QLibrary>

namespace familyfiles {

namespace {

const char* const ModuleName = "libTarnNuqGeometry.so";
/// What the module exports: the kernel, which it owns, or null when it is not of this version.
const char* const FunctionName = "TarnNuqGeometryKernel";
using KernelFunction = const GeometryKernel* (*)(const char* version);

Reason Missing(const QString& detail)
{
    const std::string text = ShortText(detail.toStdString(), 300);
    return {"kernel.missing", ModuleName, "The geometry kernel cannot be loaded: " + text + '.',
        "无法加载几何内核：" + text + "。"};
}

KernelModule Load(const QString& path)
{
    QLibrary library(path);
    // Its own symbols stay its own: the program has parts of the same name.
    library.setLoadHints(QLibrary::ResolveAllSymbolsHint);
    const auto function = reinterpret_cast<KernelFunction>(library.resolve(FunctionName));
    if (function == nullptr) {
        return {nullptr, Missing(library.errorString())};
    }
    const GeometryKernel* const kernel = function(TARNNUQ_VERSION);
    if (kernel == nullptr) {
        return {nullptr, Missing(path + QStringLiteral(" is not of version " TARNNUQ_VERSION))};
    }
    return {kernel, {}};
}

} // namespace

QStringList KernelModuleFolders()
{
    const QString program = QCoreApplication::applicationDirPath();
    return {program + QStringLiteral("/../lib"), program + QStringLiteral("/../" TARNNUQ_LIBRARY_FOLDER)};
}

KernelModule LoadKernelModule(const QStringList& folders)
{
    for (const QString& folder : folders) {
        const QString path = folder + QLatin1Char('/') + QString::fromLatin1(ModuleName);
        if (QFileInfo::exists(path)) {
            return Load(QFileInfo(path).absoluteFilePath());
        }
    }
    return {nullptr, Missing(QString::fromLatin1(ModuleName) + QStringLiteral(" is not there"))};
}

} // namespace familyfiles
