// The four environment files: the input is cut at its first three NULs.
#include "EnvSvcs/EnvService.h"
#include "support/FuzzHost.h"

#include <QList>
#include <cstdint>
#include <memory>

namespace tarnnuq {

/// Reaches the private constructor, so that the files are read afresh for each input.
class EnvServiceAccess
{
public:
    static void ReadFiles() { EnvService service; }
};

} // namespace tarnnuq

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const fuzz::FuzzHost& host = fuzz::FuzzHost::Get();
    const QList<QByteArray> parts = QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)).split('\0');
    const char* const names[] = {"wab_env.xml", "env_map.json", "pyx_env.json", "nuq_env_config.json"};
    for (int i = 0; i < 4 && i < parts.size(); ++i) {
        host.Write(names[i], parts[i]);
    }
    tarnnuq::EnvServiceAccess::ReadFiles();
    // The main file steers which others are read: put it right again for the next input.
    host.Write("nuq_env_config.json",
        R"({"wab_env":"/nuq_env_config/wab_env.xml","pyx_env":"/nuq_env_config/pyx_env.json",)"
        R"("env_map":"/nuq_env_config/env_map.json"})");
    return 0;
}
