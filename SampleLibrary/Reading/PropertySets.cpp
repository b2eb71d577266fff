#include "Reading/PropertySets.h"

#include "Reading/Texts.h"

#include <algorithm>

namespace samplelibrary {

namespace {

bool EndsWith(const std::string& text, const std::string& end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

/// The standard writes "CO2SENSOR" as a predefined type and "CO2Sensor" in the name of its set.
bool IsNamedAfter(const std::string& set, const std::string& element, const std::string& predefinedType)
{
    return Lowered(set) == Lowered(element + "Type" + Replaced(predefinedType, "_", ""));
}

bool Holds(
    const std::string& set, const Kind& kind, const std::string& predefinedType, const std::vector<std::string>& extra)
{
    return EndsWith(set, "Common") || EndsWith(set, "Occurrence") || IsNamedAfter(set, kind.Element, predefinedType) ||
           std::find(extra.begin(), extra.end(), set) != extra.end();
}

} // namespace

void PropertySets::Add(const std::string& element, const std::string& set, const std::string& parameterCode)
{
    std::vector<PropertySet>& sets = m_setsByElement[element];
    if (sets.empty() || sets.back().Name != set) {
        sets.push_back({set, {}});
    }
    sets.back().ParameterCodes.push_back(parameterCode);
}

std::vector<std::string> PropertySets::ParameterCodes(
    const Kind& kind, const std::string& predefinedType, const std::vector<std::string>& extra) const
{
    std::vector<std::string> codes;
    const auto found = m_setsByElement.find(kind.Element);
    if (found == m_setsByElement.end()) {
        return codes;
    }
    for (const PropertySet& set : found->second) {
        if (Holds(set.Name, kind, predefinedType, extra)) {
            codes.insert(codes.end(), set.ParameterCodes.begin(), set.ParameterCodes.end());
        }
    }
    return codes;
}

} // namespace samplelibrary
