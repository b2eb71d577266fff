#pragma once

#include "FamilyFileSvcs/FamilyFileService.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"
#include "TarnNuqService/FamilyFileSvcs/RecordingFamily.h"
#include "support/RecordingHost.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <vector>

namespace testsupport {

/// One entry of a specification.
struct GivenValue
{
    std::wstring name;
    std::wstring id;
    std::wstring value;
};

/// A folder with family files and a host that opens them as the recording family says.
class FamilyFileFixture : public ::testing::Test
{
protected:
    using Calls = std::vector<std::string>;

    FamilyFileFixture()
    {
        hostsdk::HostServices services = hostsdk::Installed();
        services.familyFiles = &family;
        hostsdk::Install(services);
    }

    /// @return the path of a new file in the folder
    QString NewFile(const QString& name, const QByteArray& bytes = "a family")
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
        return file.fileName();
    }

    /// The names of everything in the folder.
    QStringList Names() const
    {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
    }

    static QByteArray BytesOf(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
    }

    /// A service on a copy of a new file, of which nothing is on record yet.
    std::shared_ptr<tarnnuq::FamilyFileService> Open()
    {
        auto service = tarnnuq::FamilyFileService::Create(NewFile(QStringLiteral("pump.rfx")).toStdWString());
        family.calls.calls.clear();
        return service;
    }

    static std::shared_ptr<tarnnuq::IParameter> Parameter(const std::wstring& id, const std::wstring& value)
    {
        auto parameter = std::make_shared<tarnnuq::IParameter>();
        parameter->Definition = std::make_shared<tarnnuq::IParameterDefinition>();
        parameter->Definition->Id = id;
        parameter->Value = value;
        return parameter;
    }

    static std::shared_ptr<tarnnuq::ISpecification> Specification(const std::vector<GivenValue>& values)
    {
        auto specification = std::make_shared<tarnnuq::ISpecification>();
        for (const GivenValue& given : values) {
            specification->Parameters[given.name] = Parameter(given.id, given.value);
        }
        return specification;
    }

    /// The values of a specification by the order of their names.
    static std::vector<std::wstring> ValuesOf(const tarnnuq::ISpecification& specification)
    {
        std::vector<std::wstring> values;
        for (const auto& [name, parameter] : specification.Parameters) {
            values.push_back(parameter ? parameter->Value : L"null");
        }
        return values;
    }

    QTemporaryDir folder{QDir::tempPath() + QStringLiteral("/族 文件-XXXXXX")};
    RecordingHost host;
    RecordingFamily family;
};

} // namespace testsupport
