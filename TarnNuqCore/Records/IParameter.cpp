#include "Records/IParameter.h"

#include "Records/IParameterDefinition.h"

namespace tarnnuq {

IParameter::~IParameter() = default;

void IParameter::SetIsValueSpecified(bool specified)
{
    IsValueSpecified = specified;
}

std::wstring IParameter::GetLogicStorageStr(const bool& value)
{
    return value ? L"true" : L"false";
}

} // namespace tarnnuq
