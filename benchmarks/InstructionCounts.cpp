// One handling of one body, for callgrind to count: instruction-counts WHAT COUNT base|handle
// Prints the allocations of that one call, its peak of allocated bytes and the size of the body. See run-benchmarks.
#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/ISpecification.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"
#include "support/AllocationMeter.h"
#include "support/Bodies.h"
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

struct Case
{
    std::function<QByteArray(int)> body;
    std::function<void(bench::MemoryReply&)> handle;
};

std::map<std::string, Case> Cases()
{
    using namespace tarnnuq;
    using bench::Bodies;
    return {
        {"categories", {Bodies::Categories, HandleOnce<RecordList<ICategory>>}},
        {"mappings", {Bodies::CategoryMappings, HandleOnce<RecordList<ICategoryMapping>>}},
        {"component-page", {Bodies::ComponentPage, HandleOnce<RecordPage<IProjectComponent>>}},
        {"components", {Bodies::Components, HandleOnce<RecordList<IProjectComponent>>}},
        {"properties", {Bodies::CategoryProperty, HandleOnce<RecordPtr<ICategoryProperty>>}},
        {"specifications",
            {[](int count) { return Bodies::Specifications(count, 30); }, HandleOnce<RecordList<ISpecification>>}},
        {"specification", {Bodies::Specification, HandleOnce<RecordPtr<ISpecification>>}},
        {"legends", {Bodies::Legends, HandleOnce<RecordList<ILegend>>}},
        {"legend-page", {Bodies::LegendPage, HandleOnce<RecordPage<ILegend>>}},
        {"component-detail", {Bodies::DetailedComponent, HandleOnce<RecordPtr<IDetailedProjectComponent>>}},
    };
}

void ParseOnce(const QByteArray& body)
{
    const QJsonDocument document = QJsonDocument::fromJson(body);
    if (document.isNull()) {
        std::abort();
    }
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const auto cases = Cases();
    const auto found = argc == 4 ? cases.find(argv[1]) : cases.end();
    if (found == cases.end()) {
        std::fprintf(stderr, "usage: instruction-counts WHAT COUNT base|handle\n");
        return 2;
    }
    const bench::QuietHost host;
    const QByteArray body = found->second.body(std::atoi(argv[2]));
    bench::MemoryReply warmUp(found->second.body(1));
    found->second.handle(warmUp);
    bench::MemoryReply reply(body);
    const bool base = std::string(argv[3]) == "base";
    const bench::AllocationMeter meter;
    CALLGRIND_TOGGLE_COLLECT;
    base ? ParseOnce(body) : found->second.handle(reply);
    CALLGRIND_TOGGLE_COLLECT;
    std::printf("%lld %lld %d\n", meter.Allocations(), meter.PeakBytes(), body.size());
    return 0;
}
