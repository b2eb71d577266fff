// The property service's own work beside one pass that asks the host for the same and keeps nothing.
#include "Records/ICategoryProperty.h"
#include "support/HostPasses.h"
#include "support/Registration.h"

#include <algorithm>

namespace {

using bench::HostTree;
using bench::PropertyHost;

void AskForTree(benchmark::State& state, int count)
{
    const HostTree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(tree.AskForEverything());
    }
}

// A service of its own each time, since a second build finds its leaves in the map; the old tree's end is not measured.
void BuildTree(benchmark::State& state, int count)
{
    const HostTree tree(count);
    for (auto _ : state) {
        state.PauseTiming();
        auto access = tree.EmptyService();
        state.ResumeTiming();
        access->Service().Init();
        state.PauseTiming();
        access.reset();
        state.ResumeTiming();
    }
}

void AskForProperties(benchmark::State& state, int count)
{
    const PropertyHost host(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(host.AskForEverything());
    }
}

void ReadPropertySet(benchmark::State& state, int count)
{
    const PropertyHost host(count);
    const auto access = host.Service();
    for (auto _ : state) {
        benchmark::DoNotOptimize(access->Service().GetCategoryProperty(PropertyHost::Code));
    }
}

/// A tree of so many categories and the code of its last one.
class BuiltTree
{
public:
    explicit BuiltTree(int count) : m_tree(count), m_access(m_tree.EmptyService())
    {
        m_access->Service().Init();
        lastCode = m_access->Categories().back()->Code;
    }

    tarnnuq::PropertyService& Service() { return m_access->Service(); }
    const std::vector<std::shared_ptr<tarnnuq::ICategory>>& Categories() const { return m_access->Categories(); }

    std::wstring lastCode;

private:
    HostTree m_tree;
    std::unique_ptr<tarnnuq::PropertyServiceAccess> m_access;
};

void ScanForCode(benchmark::State& state, int count)
{
    const BuiltTree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(std::find_if(tree.Categories().begin(), tree.Categories().end(),
            [&tree](const auto& spCategory) { return spCategory->Code == tree.lastCode; }));
    }
}

void FindByCode(benchmark::State& state, int count)
{
    BuiltTree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(tree.Service().GetCategoryByCode(tree.lastCode));
    }
}

void WalkToDiscipline(benchmark::State& state, int count)
{
    BuiltTree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(tree.Service().GetFullCategories(tree.lastCode));
    }
}

void FindLeaf(benchmark::State& state, int count)
{
    BuiltTree tree(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(tree.Service().GetEndTarnCategoryByCode(tree.lastCode));
    }
}

void Add(const std::string& name, void (*run)(benchmark::State&, int), const std::vector<int>& sizes)
{
    for (const int size : sizes) {
        bench::Register(name, size, [run, size](benchmark::State& state) {
            run(state, size);
            state.SetItemsProcessed(state.iterations() * size);
        });
    }
}

const bool registered = [] {
    const std::vector<int> treeSizes{100, 1000, 10000, 100000};
    const std::vector<int> setSizes{10, 100, 1000};
    const std::vector<int> lookUpSizes{1000, 10000, 100000};
    Add("local-tree/getters", AskForTree, treeSizes);
    Add("local-tree/service", BuildTree, treeSizes);
    Add("property-set/getters", AskForProperties, setSizes);
    Add("property-set/service", ReadPropertySet, setSizes);
    Add("local-look-ups/one-scan", ScanForCode, lookUpSizes);
    Add("local-look-ups/by-code", FindByCode, lookUpSizes);
    Add("local-look-ups/walk", WalkToDiscipline, lookUpSizes);
    Add("local-look-ups/leaf", FindLeaf, lookUpSizes);
    return true;
}();

} // namespace
