#pragma once

#include "TarnNuqCoreExport.h"

#include <map>
#include <memory>
#include <string>

namespace tarnnuq {

class IParameterDefinition;

/// The parameter definitions of one category.
class TARNNUQCORE_EXPORT ICategoryProperty
{
public:
    ICategoryProperty() = default;
    virtual ~ICategoryProperty();

    std::wstring CategoryId;   ///< Category id as text; a numeric id is written without decimals.
    std::wstring CategoryName; ///< Category name.

    /// The definitions by their `Name`; a later definition of the same name has replaced an earlier one.
    std::map<std::wstring, std::shared_ptr<IParameterDefinition>> ParameterDefinitions;
};

} // namespace tarnnuq
