#pragma once

#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "Records/ISpecification.h"

#include <QByteArray>
#include <map>
#include <string>

namespace testsupport {

/// The definitions of three parameters: "width", "安装" that is a yes/no one, and "note".
inline QByteArray ThreeDefinitions()
{
    return R"([{"name":"width","valueType":"Number"},{"name":"安装","valueType":"Logic"},{"name":"note"}])";
}

/// The values of a specification's parameters; those that were not given are marked.
inline std::map<std::wstring, std::wstring> ValuesOf(const tarnnuq::ISpecification& specification)
{
    std::map<std::wstring, std::wstring> values;
    for (const auto& [name, parameter] : specification.Parameters) {
        values[name] = parameter->IsValueSpecified ? parameter->Value : L"(not given)" + parameter->Value;
    }
    return values;
}

} // namespace testsupport
