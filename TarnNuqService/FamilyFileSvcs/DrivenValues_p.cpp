#include "FamilyFileSvcs/DrivenValues_p.h"

#include "FamilyFileSvcs/StoredValue_p.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"

#include <map>
#include <string>
#include <utility>

namespace tarnnuq {

namespace {

using EntriesById = std::map<std::wstring, IParameter*>;

EntriesById IndexById(const ISpecification& specification)
{
    EntriesById index;
    for (const auto& [name, parameter] : specification.Parameters) {
        if (parameter && parameter->Definition) {
            index.emplace(parameter->Definition->Id, parameter.get());
        }
    }
    return index;
}

} // namespace

void WriteDrivenValues(const FamilyParameters& outputs, const zept::IFamilyParameterDefinitions* definitions,
    ISpecification& specification, bool& changed)
{
    const EntriesById index = IndexById(specification);
    for (const auto& output : outputs) {
        if (!output) {
            continue;
        }
        const auto found = index.find(output->GetIdentity().GetGuidString());
        if (found == index.end()) {
            continue;
        }
        if (std::optional<std::wstring> text = StoredValueText(definitions, *output)) {
            found->second->Value = std::move(*text);
            changed = true;
        }
    }
}

} // namespace tarnnuq
