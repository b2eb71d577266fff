#include "ComponentDatabase/DatabaseOpener.h"
#include "ComponentDatabase/Reading/SqlComponentDatabase.h"

#include <cstring>

namespace componentdatabase {

namespace {

class SqlOpener final : public DatabaseOpener
{
public:
    std::unique_ptr<ComponentDatabase> Open(const QString& path, DatabaseReason& reason) const override
    {
        return SqlComponentDatabase::Open(path, reason);
    }
};

} // namespace

} // namespace componentdatabase

/// What the module exports: the opener, for a program of the same version alone. It lives as long as the module.
extern "C" __attribute__((visibility("default"))) const void* TarnNuqComponentDatabase(const char* version)
{
    static const componentdatabase::SqlOpener opener;
    const componentdatabase::DatabaseOpener* const exported = &opener;
    return std::strcmp(version, TARNNUQ_VERSION) == 0 ? exported : nullptr;
}
