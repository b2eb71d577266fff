#pragma once

#include "TarnNuqCoreExport.h"

#include <memory>
#include <string>

namespace tarnnuq {

class IParameterDefinition;

/// A parameter value of a specification.
class TARNNUQCORE_EXPORT IParameter
{
public:
    IParameter() = default;
    virtual ~IParameter();

    /// Stores whether a value was given, so that an empty value can be told from none.
    /// @param specified true once a value was given
    void SetIsValueSpecified(bool specified);

    /// The text under which a yes/no value is stored in a family file.
    /// @param value the yes/no value
    /// @return L"true" or L"false"
    static std::wstring GetLogicStorageStr(const bool& value);

    std::wstring Value;                               ///< The value as text.
    std::shared_ptr<IParameterDefinition> Definition; ///< The definition this value belongs to; may be null.
    bool IsValueSpecified = false;                    ///< Whether a value was given; see SetIsValueSpecified().
};

} // namespace tarnnuq
