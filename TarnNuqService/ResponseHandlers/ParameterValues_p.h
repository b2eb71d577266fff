#pragma once

#include <map>
#include <memory>
#include <string>

class QJsonArray;

namespace tarnnuq {

class IParameter;

/// Gives parameters the values that a family type names, in the order of the array; later ones win.
///
/// Values without a parameter are ignored. The value of a yes/no parameter is trimmed and lower-cased.
void ApplyParameterValues(
    const QJsonArray& values, const std::map<std::wstring, std::shared_ptr<IParameter>>& parameters);

} // namespace tarnnuq
