#include "FamilyFiles/Container/ContainerReader.h"

#include "FamilyFiles/Backend/FamilyBackend.h"

#include <utility>

namespace familyfiles {

std::unique_ptr<ContainerReader> ContainerReader::Open(std::string bytes, Reason& reason)
{
    const FamilyBackend* const backend = FamilyBackend::Get(reason);
    return backend != nullptr ? backend->OpenContainer(std::move(bytes), reason) : nullptr;
}

} // namespace familyfiles
