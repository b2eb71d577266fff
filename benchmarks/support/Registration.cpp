#include "Registration.h"

namespace bench {

void Register(const std::string& name, int size, const std::function<void(benchmark::State&)>& run)
{
    benchmark::RegisterBenchmark((name + "/" + std::to_string(size)).c_str(), run)->Unit(benchmark::kMicrosecond);
}

void CountItems(benchmark::State& state, int items, int bytes)
{
    state.SetItemsProcessed(state.iterations() * items);
    state.SetBytesProcessed(state.iterations() * bytes);
}

} // namespace bench
