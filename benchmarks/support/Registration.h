#pragma once

#include <benchmark/benchmark.h>
#include <functional>
#include <string>

namespace bench {

/// Registers a benchmark as NAME/SIZE, with which the report pairs it with its peers.
void Register(const std::string& name, int size, const std::function<void(benchmark::State&)>& run);

/// States how many records and bytes one iteration handled.
void CountItems(benchmark::State& state, int items, int bytes);

} // namespace bench
