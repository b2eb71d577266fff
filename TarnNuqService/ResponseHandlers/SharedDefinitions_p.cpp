#include "ResponseHandlers/SharedDefinitions_p.h"

#include "Records/IParameter.h"
#include "Records/IParameterDefinition.h"
#include "ResponseHandlers/ParameterDefinitionReader_p.h"
#include "ResponseHandlers/RecordReading_p.h"

#include <algorithm>
#include <numeric>

namespace tarnnuq {

SharedDefinitions::SharedDefinitions(const QJsonArray& array, const WarningSource& source) : m_source(source)
{
    AppendRecords(array, {m_source, L"spParameterDefinition 为空"}, m_definitions, ReadParameterDefinition);
    Prepare();
}

void SharedDefinitions::Prepare()
{
    m_named.reserve(m_definitions.size());
    for (const auto& spDefinition : m_definitions) {
        m_named.push_back({QString::fromStdWString(spDefinition->Name), IsYesNo(*spDefinition), nullptr});
    }
    m_byName.resize(m_definitions.size());
    std::iota(m_byName.begin(), m_byName.end(), std::size_t(0));
    std::stable_sort(m_byName.begin(), m_byName.end(),
        [this](std::size_t a, std::size_t b) { return m_definitions[a]->Name < m_definitions[b]->Name; });
}

std::vector<NamedParameter> SharedDefinitions::MakeParameters(ParameterMap& parameters) const
{
    std::vector<std::shared_ptr<IParameter>> made = MakeInArrayOrder();
    std::vector<NamedParameter> named = m_named;
    NamedParameter* last = nullptr;
    for (const std::size_t index : m_byName) {
        if (!made[index]) {
            continue;
        }
        // Ascending names: the end of the map is always the right place.
        const std::size_t size = parameters.size();
        const auto stored =
            parameters.insert_or_assign(parameters.end(), m_definitions[index]->Name, std::move(made[index]));
        if (last && parameters.size() == size) {
            last->parameter = nullptr; // replaced, and gone with it
        }
        last = &named[index];
        last->parameter = stored->second.get();
    }
    return named;
}

std::vector<std::shared_ptr<IParameter>> SharedDefinitions::MakeInArrayOrder() const
{
    std::vector<std::shared_ptr<IParameter>> made;
    made.reserve(m_definitions.size());
    for (const auto& spDefinition : m_definitions) {
        auto spParameter = MakeRecord<IParameter>();
        if (spParameter) {
            spParameter->Definition = spDefinition;
        } else {
            WarnNull(m_source, L"spParameter 为空");
        }
        made.push_back(std::move(spParameter));
    }
    return made;
}

} // namespace tarnnuq
