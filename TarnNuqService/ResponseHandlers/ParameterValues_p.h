#pragma once

#include <QString>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QJsonArray;

namespace tarnnuq {

class IParameter;
class IParameterDefinition;

/// A parameter with what its definition says about it.
struct NamedParameter
{
    QString name;                    ///< The name under which it is stored.
    bool isYesNo = false;            ///< Its values are trimmed and lower-cased.
    IParameter* parameter = nullptr; ///< Null when it could not be made.
};

/// @return whether a definition is that of a yes/no parameter
bool IsYesNo(const IParameterDefinition& definition);

/// Gives parameters the values that a family type names, in the order of the array; later ones win.
///
/// Values without a parameter are ignored. The value of a yes/no parameter is trimmed and lower-cased.
/// @param values the "parameterValues" of the family type
/// @param likely parameters in the order in which values mostly come; may be empty. Tried before the map, since it
/// costs neither a conversion nor a search.
/// @param parameters all parameters by name; the one that counts when names are equal
void ApplyParameterValues(const QJsonArray& values, const std::vector<NamedParameter>& likely,
    const std::map<std::wstring, std::shared_ptr<IParameter>>& parameters);

} // namespace tarnnuq
