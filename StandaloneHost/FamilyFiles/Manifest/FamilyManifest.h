#pragma once

#include "FamilyFiles/Manifest/BilingualText.h"
#include "FamilyFiles/Manifest/BuiltRecord.h"
#include "FamilyFiles/Manifest/Connector.h"
#include "FamilyFiles/Manifest/ParameterDefinition.h"
#include "FamilyFiles/Manifest/TypeDefinition.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace familyfiles {

/// What a family file says about its family; the parsed manifest. Texts are UTF-8.
struct FamilyManifest
{
    /// The version of the format that this program writes and the newest that it reads.
    static constexpr int CurrentVersion = 1;
    static constexpr std::string_view FormatName = "tarnnuq-family";

    /// No more types times parameters than this.
    static constexpr std::size_t MaximalValues = 1000000;

    int version = CurrentVersion;
    BilingualText name;
    /// Code of the end category that components of this family belong to.
    std::string category;
    std::vector<ParameterDefinition> parameters;
    /// At least one; the first is the one that is worked on.
    std::vector<TypeDefinition> types;
    /// The recipe, as the text of a JSON object; empty when the family has no geometry.
    std::string geometry;
    std::vector<Connector> connectors;
    std::optional<BuiltRecord> built;
    /// As in ParameterDefinition.
    std::string extra;

    /// Index of the parameter of that name.
    std::optional<std::size_t> FindParameter(std::string_view parameterName) const;
};

} // namespace familyfiles
