#include "PropertySvcs/PropertySetReader_p.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "PropertySvcs/BySortIndex_p.h"
#include "PropertySvcs/PropertyTyping_p.h"
#include "PropertySvcs/ValueTexts_p.h"
#include "Records/ICategoryProperty.h"
#include "Records/IParameterDefinition.h"
#include "tarn/ITarnCategoryInfo.h"
#include "tarn/ITarnPropertyInfo.h"

namespace tarnnuq {

namespace {

void ReadValues(const tarn::ITarnPropertyInfo& info, ValueTexts& valueTexts, IParameterDefinition& definition)
{
    std::map<std::wstring, int> ids;
    info.GetValueIds(ids);
    while (!ids.empty()) {
        auto entry = ids.extract(ids.begin());
        const auto text = valueTexts.Get().find(entry.mapped());
        if (text != valueTexts.Get().end()) {
            // In ascending order already: the end is always the right place.
            definition.Values.emplace_hint(definition.Values.end(), std::move(entry.key()), text->second);
        }
    }
}

void ReadDefinition(const tarn::ITarnPropertyInfo& info, IParameterDefinition& definition)
{
    ValueTexts valueTexts(info);
    definition.Code = info.GetCode();
    definition.GroupName = info.GetGroupName();
    definition.Id = info.GetId();
    definition.IsDriveParameter = false;
    definition.IsEssential = info.IsEssential();
    definition.IsGeometry = false;
    definition.IsInstance = false; // others are not read
    definition.IsOutputParameter = !info.IsInput();
    definition.IsStandard = !definition.Code.empty();
    definition.Name = info.GetName();
    TypeProperty(info, valueTexts, definition.ValueType, definition.ParameterType, definition.ParameterDisplayType);
    ReadValues(info, valueTexts, definition);
    definition.IsBuildIn = false;
    definition.IsFromFile = false;
}

void ReadProperty(const tarn::ITarnPropertyInfo* info, const WarningSource& source, ICategoryProperty& property)
{
    if (!info) {
        WarnNull(source, L"pPropInfo为空");
        return;
    }
    if (info->IsInstance()) {
        return;
    }
    auto spParameterDefinition = MakeRecord<IParameterDefinition>();
    if (!spParameterDefinition) {
        WarnNull(source, L"spParameterDefinition 为空");
        return;
    }
    ReadDefinition(*info, *spParameterDefinition);
    property.ParameterDefinitions[spParameterDefinition->Name] = std::move(spParameterDefinition);
}

} // namespace

void ReadPropertySet(const tarn::ITarnCategoryInfo& info, const WarningSource& source, ICategoryProperty& property)
{
    property.CategoryId = info.GetId();
    property.CategoryName = info.GetName();
    std::map<std::wstring, const tarn::ITarnPropertyInfo*> properties;
    info.GetProperties(properties);
    for (const auto& entry : BySortIndex(properties)) {
        ReadProperty(entry.info, source, property);
    }
}

} // namespace tarnnuq
