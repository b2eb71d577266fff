#include "Components/ValueText.h"

#include "Records/IParameterDefinition.h"

namespace componentlibrary {

const std::wstring& ValueText(const tarnnuq::IParameter& parameter)
{
    if (!parameter.IsValueSpecified || parameter.Definition == nullptr)
        return parameter.Value;
    const auto& choices = parameter.Definition->Values;
    const auto choice = choices.find(parameter.Value);
    return choice == choices.end() || choice->second.empty() ? parameter.Value : choice->second;
}

} // namespace componentlibrary
