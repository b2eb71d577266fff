#pragma once

#include "Reading/Discipline.h"
#include "Reading/EndCategory.h"
#include "Reading/Enumeration.h"
#include "Reading/Kind.h"
#include "Reading/Parameter.h"
#include "Reading/PropertySets.h"
#include "Reading/TsvTable.h"
#include "Reading/Unit.h"

#include <map>
#include <set>
#include <string>
#include <vector>

namespace samplelibrary {

/// Everything that the source files say, read and checked. Not changed after reading: many threads may use it at once.
struct ProductSource
{
    std::vector<Discipline> Disciplines;
    std::vector<Kind> Kinds;
    std::map<std::string, BilingualText> Groups;
    std::map<std::string, Unit> Units;
    std::map<std::string, Enumeration> Enumerations;
    std::map<std::string, Parameter> Parameters;
    std::vector<std::string> CommonParameters; ///< codes of the parameters that every component has, in order
    std::map<std::string, std::set<std::string>>
        Aliases; ///< trade parameters that say the same as a standard's property
    PropertySets Properties;
    std::map<std::string, TsvTable> SizeTables;
    std::vector<EndCategory> EndCategories; ///< in display order: by discipline, kind and line
};

} // namespace samplelibrary
