#include "TarnNuqService/FamilyFileSvcs/RecordingFamily.h"

#include "zept/IFamilyFile.h"
#include "zept/IGeometry.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace testsupport {

namespace {

class CountedGeometry final : public zept::IGeometry
{
public:
    explicit CountedGeometry(int& count) : m_count(count) { ++m_count; }
    ~CountedGeometry() override { --m_count; }

private:
    int& m_count;
};

class RecordingFamilyFile final : public zept::IFamilyFile
{
public:
    explicit RecordingFamilyFile(RecordingFamily& family) : m_family(family) { ++m_family.openFiles; }
    ~RecordingFamilyFile() override { --m_family.openFiles; }

    zept::FamilyTypeInfo GetTypeInfo() override
    {
        m_family.calls.Note("GetTypeInfo");
        return {m_family.types, m_family.hasDefinitions ? &m_family.definitions : nullptr};
    }

    zept::OwnerPtr<zept::IGeometry> RegenerateGeometry(const RecordingFamily::Parameters& parameters) override
    {
        Keep("RegenerateGeometry", parameters);
        return Geometry(m_family.regenerates);
    }

    zept::OwnerPtr<zept::IGeometry> GetCurrentGeometry() override
    {
        m_family.calls.Note("GetCurrentGeometry");
        return Geometry(m_family.hasGeometry);
    }

    bool ComputeDrivenParameters(
        const RecordingFamily::Parameters& inputs, RecordingFamily::Parameters& outputs) override
    {
        Keep("ComputeDrivenParameters", inputs);
        if (!outputs.empty()) {
            throw std::logic_error("the list of outputs is not empty");
        }
        for (const auto& output : m_family.outputs) {
            outputs.emplace_back(output ? new RecordingParameter(*output) : nullptr);
        }
        return m_family.computes;
    }

private:
    zept::OwnerPtr<zept::IGeometry> Geometry(bool there)
    {
        return zept::OwnerPtr<zept::IGeometry>(there ? new CountedGeometry(m_family.geometries) : nullptr);
    }

    void Keep(const char* operation, const RecordingFamily::Parameters& parameters)
    {
        m_family.asked.clear();
        std::string call = operation;
        for (const auto& parameter : parameters) {
            m_family.asked.push_back(dynamic_cast<const RecordingParameter&>(*parameter));
            call += ' ' + m_family.asked.back().id;
        }
        m_family.calls.Note(call);
    }

    RecordingFamily& m_family;
};

} // namespace

RecordingFamily::RecordingFamily()
{
    type.Name = L"DN50";
}

zept::OwnerPtr<zept::IFamilyFile> RecordingFamily::CreateFamilyFile(const std::wstring& path)
{
    paths.push_back(path);
    calls.Note("CreateFamilyFile");
    return zept::OwnerPtr<zept::IFamilyFile>(opens ? new RecordingFamilyFile(*this) : nullptr);
}

RecordingParameter& RecordingFamily::Add(const std::string& id, int storageType)
{
    if (storageType != 0) {
        definitions.storageTypes.emplace(id, storageType);
    }
    auto* parameter = new RecordingParameter(calls, id);
    type.Parameters.emplace_back(parameter);
    return *parameter;
}

RecordingParameter& RecordingFamily::AddOutput(const std::string& id, int storageType)
{
    if (storageType != 0) {
        definitions.storageTypes.emplace(id, storageType);
    }
    return *outputs.emplace_back(std::make_unique<RecordingParameter>(calls, id));
}

const RecordingParameter& RecordingFamily::Asked(const std::string& id) const
{
    const auto found =
        std::find_if(asked.begin(), asked.end(), [&id](const RecordingParameter& each) { return each.id == id; });
    if (found == asked.end()) {
        throw std::out_of_range(id);
    }
    return *found;
}

} // namespace testsupport
