#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

namespace tarnnuq {
class FamilyFileService;
}

namespace componentlibrary {

/**
 * A family file service that leaves nothing behind.
 *
 * The service works on a copy beside the file that it is given, and leaves it there. So that a check neither litters
 * the user's folder nor needs the right to write there, the file is copied into a temporary folder first, which goes
 * with this object. The file itself is only read.
 */
class FamilyWorkingCopy
{
public:
    explicit FamilyWorkingCopy(const QString& file);
    ~FamilyWorkingCopy();
    FamilyWorkingCopy(const FamilyWorkingCopy&) = delete;
    FamilyWorkingCopy& operator=(const FamilyWorkingCopy&) = delete;

    /** Null when no copy could be made. Whether the host has opened the copy shows with the first question. */
    tarnnuq::FamilyFileService* Service() const { return m_service.get(); }

    /** Why there is no service, in the user's language; empty when there is one. */
    const QString& Fault() const { return m_fault; }

private:
    QTemporaryDir m_folder;
    std::shared_ptr<tarnnuq::FamilyFileService> m_service;
    QString m_fault;
};

} // namespace componentlibrary
