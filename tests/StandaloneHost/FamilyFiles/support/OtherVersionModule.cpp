/// A module that says of every program that it is of another version.
extern "C" __attribute__((visibility("default"))) const void* TarnNuqFamilyBackend(const char* version);

extern "C" const void* TarnNuqFamilyBackend(const char* /*version*/)
{
    return nullptr;
}
