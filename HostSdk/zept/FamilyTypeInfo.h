#pragma once

#include <vector>

namespace zept {

struct FamilyType;
class IFamilyParameterDefinitions;

/// What a family file holds. Nothing is owned; all of it is valid while the family file lives.
struct FamilyTypeInfo
{
    /// The family's types, the one that is worked on first; entries may be null.
    std::vector<const FamilyType*> Types;
    /// The definitions of the family's parameters; may be null.
    const IFamilyParameterDefinitions* Definitions = nullptr;
};

} // namespace zept
