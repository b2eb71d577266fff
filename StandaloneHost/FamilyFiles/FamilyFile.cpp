#include "FamilyFiles/FamilyFile.h"

#include "FamilyFiles/BuiltGeometry.h"
#include "FamilyFiles/HostObjects/FamilyParameter.h"
#include "FamilyFiles/Manifest/TypeTable.h"
#include "FamilyFiles/Utf8.h"

#include <exception>
#include <utility>

namespace familyfiles {

namespace {

Reason InternalFault(const std::string& detail)
{
    return {"family.internal", {}, "The family file could not be worked with: " + detail + '.',
        "无法处理该族文件：" + detail + "。"};
}

zept::OwnerPtr<zept::IFamilyParameter> MakeParameter(
    const std::shared_ptr<const ParameterIdentities>& identities, std::size_t index, const Value& value)
{
    return zept::OwnerPtr<zept::IFamilyParameter>(new FamilyParameter(identities, index, value));
}

zept::OwnerPtr<zept::IGeometry> GeometryOf(const std::shared_ptr<const Solid>& body)
{
    return zept::OwnerPtr<zept::IGeometry>(body != nullptr ? new BuiltGeometry(body) : nullptr);
}

} // namespace

std::unique_ptr<FamilyFile> FamilyFile::Open(const std::string& path, Reason& reason, Listener listener)
{
    std::unique_ptr<FamilyModel> model = FamilyModel::Open(path, reason);
    return model != nullptr ? std::make_unique<FamilyFile>(std::move(model), std::move(listener)) : nullptr;
}

FamilyFile::FamilyFile(std::unique_ptr<FamilyModel> model, Listener listener)
    : m_model(std::move(model)), m_listener(std::move(listener)),
      m_spIdentities(std::make_shared<ParameterIdentities>(m_model->Manifest())),
      m_definitions(m_model->Manifest(), m_spIdentities)
{
}

FamilyFile::~FamilyFile() = default;

/// The host's interface is called by a library that expects no exception.
template <typename Operation>
void FamilyFile::Guarded(const Operation& operation)
{
    m_reason = {};
    try {
        operation();
    } catch (const std::exception& fault) {
        m_reason = InternalFault(fault.what());
    } catch (...) {
        m_reason = InternalFault("unknown fault");
    }
    if (m_listener) {
        m_listener(m_reason);
    }
}

zept::FamilyTypeInfo FamilyFile::GetTypeInfo()
{
    if (m_types.empty()) {
        MakeTypes();
    }
    zept::FamilyTypeInfo info;
    info.Definitions = &m_definitions;
    info.Types.reserve(m_types.size());
    for (const zept::FamilyType& type : m_types) {
        info.Types.push_back(&type);
    }
    return info;
}

void FamilyFile::MakeTypes()
{
    const std::size_t count = m_model->Manifest().types.size();
    m_types.reserve(count);
    for (std::size_t type = 0; type < count; ++type) {
        m_types.push_back(MakeType(type));
    }
}

zept::FamilyType FamilyFile::MakeType(std::size_t type) const
{
    Reason unused;
    const std::optional<std::vector<Value>> computed = m_model->TypeValues(type, unused);
    const std::vector<Value> values = computed ? *computed : GivenValues(m_model->Manifest(), type);
    zept::FamilyType made;
    made.Name = WideText(m_model->Manifest().types[type].name);
    made.Parameters.reserve(values.size());
    for (std::size_t index = 0; index < values.size(); ++index) {
        made.Parameters.push_back(MakeParameter(m_spIdentities, index, values[index]));
    }
    return made;
}

std::optional<std::size_t> FamilyFile::IndexOf(const zept::IFamilyParameter& parameter) const
{
    const auto* const own = dynamic_cast<const FamilyParameter*>(&parameter);
    return own != nullptr && own->IsOf(*m_spIdentities) ? std::optional<std::size_t>(own->Index())
                                                        : m_spIdentities->Find(parameter.GetIdentity());
}

Value FamilyFile::ValueOf(const zept::IFamilyParameter& parameter, std::size_t index) const
{
    if (const auto* const own = dynamic_cast<const FamilyParameter*>(&parameter)) {
        return own->Current();
    }
    switch (m_model->Manifest().parameters[index].storageType) {
    case StorageType::YesNo:
        return parameter.GetBool();
    case StorageType::Integer:
        return parameter.GetInt();
    case StorageType::FloatingPoint:
        return parameter.GetDouble();
    case StorageType::Text:
        break;
    }
    return Utf8Text(parameter.GetText());
}

std::optional<std::vector<Value>> FamilyFile::ComputedFrom(const Parameters& parameters)
{
    std::vector<Value> values = GivenValues(m_model->Manifest(), 0);
    for (const zept::OwnerPtr<zept::IFamilyParameter>& parameter : parameters) {
        const std::optional<std::size_t> index = parameter ? IndexOf(*parameter) : std::nullopt;
        if (index && !m_model->Manifest().parameters[*index].IsDriven()) {
            values[*index] = ValueOf(*parameter, *index);
        }
    }
    return m_model->Compute(values, m_reason) ? std::optional<std::vector<Value>>(std::move(values)) : std::nullopt;
}

void FamilyFile::BuildCurrent()
{
    if (m_wasCurrentBuilt) {
        return;
    }
    m_wasCurrentBuilt = true;
    std::optional<std::vector<Value>> values = m_model->TypeValues(0, m_currentReason);
    if (!values) {
        return;
    }
    BuildResult built = m_model->Build(*values);
    m_currentValues = std::move(*values);
    m_spCurrent = std::move(built.solid);
    m_currentReason = std::move(built.reason);
}

zept::OwnerPtr<zept::IGeometry> FamilyFile::GetCurrentGeometry()
{
    zept::OwnerPtr<zept::IGeometry> geometry;
    Guarded([&] {
        BuildCurrent();
        m_reason = m_currentReason;
        geometry = GeometryOf(m_spCurrent);
    });
    return geometry;
}

zept::OwnerPtr<zept::IGeometry> FamilyFile::RegenerateGeometry(const Parameters& parameters)
{
    zept::OwnerPtr<zept::IGeometry> geometry;
    Guarded([&] {
        const std::optional<std::vector<Value>> values = ComputedFrom(parameters);
        if (!values) {
            return;
        }
        if (m_wasCurrentBuilt && *values == m_currentValues) {
            m_reason = m_currentReason;
            geometry = GeometryOf(m_spCurrent);
            return;
        }
        BuildResult built = m_model->Build(*values);
        m_reason = std::move(built.reason);
        geometry = GeometryOf(std::move(built.solid));
    });
    return geometry;
}

bool FamilyFile::ComputeDrivenParameters(const Parameters& inputs, Parameters& outputs)
{
    bool isComputed = false;
    Guarded([&] {
        const std::optional<std::vector<Value>> values = ComputedFrom(inputs);
        if (!values) {
            return;
        }
        Parameters driven;
        for (std::size_t index = 0; index < values->size(); ++index) {
            if (m_model->Manifest().parameters[index].IsDriven()) {
                driven.push_back(MakeParameter(m_spIdentities, index, (*values)[index]));
            }
        }
        outputs = std::move(driven);
        isComputed = true;
    });
    return isComputed;
}

} // namespace familyfiles
