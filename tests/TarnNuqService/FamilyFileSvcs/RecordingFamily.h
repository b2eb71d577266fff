#pragma once

#include "TarnNuqService/FamilyFileSvcs/FamilyCalls.h"
#include "TarnNuqService/FamilyFileSvcs/RecordingDefinitions.h"
#include "TarnNuqService/FamilyFileSvcs/RecordingParameter.h"
#include "zept/FamilyType.h"
#include "zept/IFamilyFileFactory.h"

#include <memory>
#include <string>
#include <vector>

namespace testsupport {

/// Opens family files that all behave as the test says, and notes every call except questions for an identity, which
/// may come as often as the library likes.
class RecordingFamily final : public zept::IFamilyFileFactory
{
public:
    using Parameters = std::vector<zept::OwnerPtr<zept::IFamilyParameter>>;

    RecordingFamily();

    zept::OwnerPtr<zept::IFamilyFile> CreateFamilyFile(const std::wstring& path) override;

    /// Adds a parameter to the first type, and its definition unless the storage type is 0.
    RecordingParameter& Add(const std::string& id, int storageType);
    /// Adds what the family computes; defined as above.
    RecordingParameter& AddOutput(const std::string& id, int storageType);
    /// The values of the last regeneration or computation that was asked for.
    const RecordingParameter& Asked(const std::string& id) const;

    FamilyCalls calls;
    std::vector<std::wstring> paths;
    RecordingDefinitions definitions{calls};
    zept::FamilyType type;
    /// What a file hands out: the type above, unless the test changes it.
    std::vector<const zept::FamilyType*> types{&type};
    /// Null entries are handed on as such.
    std::vector<std::unique_ptr<RecordingParameter>> outputs;
    /// Copies of the values of the last question.
    std::vector<RecordingParameter> asked;

    bool opens = true;
    bool hasDefinitions = true;
    bool hasGeometry = true;
    bool regenerates = true;
    bool computes = true;
    /// Files and geometries that were handed out and not given back.
    int openFiles = 0;
    int geometries = 0;
};

} // namespace testsupport
