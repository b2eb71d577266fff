#include "Commands/SpecificationText.h"

#include "Commands/Texts.h"
#include "Components/ValueText.h"
#include "Output/VisibleText.h"
#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"

namespace nuq {
namespace {

std::string ValueCell(const tarnnuq::IParameter& parameter)
{
    return parameter.IsValueSpecified ? VisibleText(componentlibrary::ValueText(parameter)) : std::string("-");
}

void AddParameters(Table& table, const tarnnuq::ISpecification& specification)
{
    for (const auto& [name, parameter] : specification.Parameters) {
        if (parameter == nullptr)
            continue;
        const std::wstring unit = parameter->Definition ? parameter->Definition->Unit : std::wstring();
        table.AddRow({VisibleText(specification.Name), VisibleText(name), ValueCell(*parameter), VisibleText(unit)});
    }
}

} // namespace

std::string SpecificationTable(const Session& session, const Specifications& specifications)
{
    Table table = session.MakeTable({{Title(QT_TRANSLATE_NOOP("Titles", "TYPE"))},
        {Title(QT_TRANSLATE_NOOP("Titles", "PARAMETER")), Table::Align::Left, true},
        {Title(QT_TRANSLATE_NOOP("Titles", "VALUE")), Table::Align::Right, true},
        {Title(QT_TRANSLATE_NOOP("Titles", "UNIT"))}});
    for (const auto& specification : specifications)
        AddParameters(table, *specification);
    return table.Take();
}

} // namespace nuq
