// One handling of one body, or one call of the property service, for callgrind to count:
// instruction-counts WHAT COUNT base|handle
// Prints the allocations of that one call, its peak of allocated bytes and the size of the body, which is 0 when there
// is none. See run-benchmarks.
#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/ISpecification.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"
#include "support/AllocationMeter.h"
#include "support/Bodies.h"
#include "support/HostPasses.h"
#include "support/MemoryReply.h"
#include "support/QuietHost.h"

#include <QCoreApplication>
#include <QJsonDocument>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <map>
#include <string>
#include <valgrind/callgrind.h>

namespace {

using tarnnuq::RecordList;
using tarnnuq::RecordPage;
using tarnnuq::RecordPtr;

template <typename T>
void HandleOnce(bench::MemoryReply& reply)
{
    std::wstring error;
    T result = tarnnuq::ResponseHandlerRegistry::Get<T>()->Handle(&reply, error);
    if (!error.empty()) {
        std::abort();
    }
}

/// What is counted, and what it is compared with.
struct Work
{
    std::function<void()> base;
    std::function<void()> handle;
    int bytes = 0;
};

void ParseOnce(const QByteArray& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (document.isNull()) {
        std::abort();
    }
}

template <typename T>
Work Handling(const QByteArray& body)
{
    const auto reply = std::make_shared<bench::MemoryReply>(body);
    return {[body] { ParseOnce(body); }, [reply] { HandleOnce<T>(*reply); }, body.size()};
}

Work TreeBuilding(int count)
{
    const auto tree = std::make_shared<bench::HostTree>(count);
    const std::shared_ptr<tarnnuq::PropertyServiceAccess> access = tree->EmptyService();
    return {[tree] { tree->AskForEverything(); }, [tree, access] { access->Service().Init(); }};
}

Work PropertySetReading(int count)
{
    const auto host = std::make_shared<bench::PropertyHost>(count);
    const std::shared_ptr<tarnnuq::PropertyServiceAccess> access = host->Service();
    return {[host] { host->AskForEverything(); },
        [host, access] { access->Service().GetCategoryProperty(bench::PropertyHost::Code); }};
}

std::map<std::string, std::function<Work(int)>> Works()
{
    using namespace tarnnuq;
    using bench::Bodies;
    return {
        {"categories", [](int count) { return Handling<RecordList<ICategory>>(Bodies::Categories(count)); }},
        {"mappings", [](int count) { return Handling<RecordList<ICategoryMapping>>(Bodies::CategoryMappings(count)); }},
        {"component-page",
            [](int count) { return Handling<RecordPage<IProjectComponent>>(Bodies::ComponentPage(count)); }},
        {"components", [](int count) { return Handling<RecordList<IProjectComponent>>(Bodies::Components(count)); }},
        {"properties",
            [](int count) { return Handling<RecordPtr<ICategoryProperty>>(Bodies::CategoryProperty(count)); }},
        {"specifications",
            [](int count) { return Handling<RecordList<ISpecification>>(Bodies::Specifications(count, 30)); }},
        {"specification", [](int count) { return Handling<RecordPtr<ISpecification>>(Bodies::Specification(count)); }},
        {"legends", [](int count) { return Handling<RecordList<ILegend>>(Bodies::Legends(count)); }},
        {"legend-page", [](int count) { return Handling<RecordPage<ILegend>>(Bodies::LegendPage(count)); }},
        {"component-detail",
            [](int count) { return Handling<RecordPtr<IDetailedProjectComponent>>(Bodies::DetailedComponent(count)); }},
        {"local-tree", TreeBuilding},
        {"property-set", PropertySetReading},
    };
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto works = Works();
    const auto found = argc == 4 ? works.find(argv[1]) : works.end();
    if (found == works.end()) {
        std::fprintf(stderr, "usage: instruction-counts WHAT COUNT base|handle\n");
        return 2;
    }
    const bench::QuietHost host;
    found->second(1).handle(); // what is made once is not counted
    const Work work = found->second(std::atoi(argv[2]));
    const std::function<void()>& counted = std::string(argv[3]) == "base" ? work.base : work.handle;
    const bench::AllocationMeter meter;
    CALLGRIND_TOGGLE_COLLECT;
    counted();
    CALLGRIND_TOGGLE_COLLECT;
    std::printf("%lld %lld %d\n", meter.Allocations(), meter.PeakBytes(), work.bytes);
    return 0;
}
