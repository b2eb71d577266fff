#pragma once

#include "ResponseHandlers/ParameterValues_p.h"

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <vector>

class QJsonArray;

namespace tarnnuq {

class IParameter;
class IParameterDefinition;
struct WarningSource;

/// The parameter definitions that all family types of one reply share.
///
/// What does not depend on the family type, such as the order of the names, is worked out once.
class SharedDefinitions
{
public:
    using ParameterMap = std::map<std::wstring, std::shared_ptr<IParameter>>;

    /// Reads the definitions in array order.
    /// @param source the handler on whose behalf a record that cannot be made is reported, here and later
    SharedDefinitions(const QJsonArray& array, const WarningSource& source);

    /// Makes a parameter for each definition, in array order, and stores it under the definition's name; of several
    /// with one name the last is kept.
    /// @param parameters receives the parameters; empty before
    /// @return the stored parameters by name, in array order
    std::vector<NamedParameter> MakeParameters(ParameterMap& parameters) const;

private:
    void Prepare();
    std::vector<std::shared_ptr<IParameter>> MakeInArrayOrder() const;

    const WarningSource& m_source;
    std::vector<std::shared_ptr<IParameterDefinition>> m_definitions;
    std::vector<NamedParameter> m_named; ///< What all family types' parameters have in common, in array order.
    std::vector<std::size_t> m_byName;   ///< Indexes of the definitions, by name and then in array order.
};

} // namespace tarnnuq
