#include "Families/FamilyWorkingCopy.h"

#include "FamilyFileSvcs/FamilyFileService.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace componentlibrary {
namespace {

QString CopyFault(const QString& why)
{
    return QCoreApplication::translate("Families", "The family file could not be copied to check the copy: %1.")
        .arg(why);
}

} // namespace

FamilyWorkingCopy::FamilyWorkingCopy(const QString& file)
{
    if (!m_folder.isValid()) {
        m_fault = CopyFault(m_folder.errorString());
        return;
    }
    QFile original(file);
    const QString copy = m_folder.filePath(QFileInfo(file).fileName());
    if (!original.copy(copy)) {
        m_fault = CopyFault(original.errorString());
        return;
    }
    m_service = tarnnuq::FamilyFileService::Create(copy.toStdWString());
    if (!m_service)
        m_fault = CopyFault(m_folder.path());
}

FamilyWorkingCopy::~FamilyWorkingCopy() = default;

} // namespace componentlibrary
