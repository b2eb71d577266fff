#include "FamilyFiles/Backend/FamilyBackend.h"
#include "FamilyFiles/Backend/MuParserEngine.h"
#include "FamilyFiles/Backend/ZipContainerReader.h"
#include "FamilyFiles/Backend/ZipContainerWriter.h"

#include <cstring>
#include <muParserError.h>
#include <utility>

namespace familyfiles {

namespace {

/// libzip and muParser.
class Backend final : public FamilyBackend
{
public:
    std::unique_ptr<ContainerReader> OpenContainer(std::string bytes, Reason& reason) const override
    {
        return ZipContainerReader::Open(std::move(bytes), reason);
    }

    std::optional<std::string> WriteContainer(const std::vector<ContainerEntry>& entries, Reason& reason) const override
    {
        return WriteZipContainer(entries, reason);
    }

    std::unique_ptr<FormulaEngine> MakeEngine(
        const EngineProgram& program, std::vector<double>& arguments) const override
    {
        try {
            return std::make_unique<MuParserEngine>(program, arguments);
        } catch (const mu::ParserError&) {
            return nullptr;
        }
    }
};

} // namespace

} // namespace familyfiles

/// What the module exports: the backend, for a program of the same version alone. It lives as long as the module.
extern "C" __attribute__((visibility("default"))) const void* TarnNuqFamilyBackend(const char* version)
{
    static const familyfiles::Backend backend;
    const familyfiles::FamilyBackend* const exported = &backend;
    return std::strcmp(version, TARNNUQ_VERSION) == 0 ? exported : nullptr;
}
