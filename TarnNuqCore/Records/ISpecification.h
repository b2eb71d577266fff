#pragma once

#include "TarnNuqCoreExport.h"

#include <map>
#include <memory>
#include <string>

namespace tarnnuq {

class IParameter;

/// A specification: one family type of a component with its parameter values.
class TARNNUQCORE_EXPORT ISpecification
{
public:
    ISpecification() = default;
    virtual ~ISpecification();

    std::wstring Name; ///< Name of the family type.

    /// The parameter values by the `Name` of their definition.
    std::map<std::wstring, std::shared_ptr<IParameter>> Parameters;
};

} // namespace tarnnuq
