// Each handler beside the JSON parser it is built on (the floor) and other libraries that fill the same records.
#include "ResponseHandlers/ResponseHandlerRegistry.h"
#include "peers/NlohmannView.h"
#include "peers/RapidJsonView.h"
#include "peers/RecordFiller.h"
#include "peers/SimdjsonView.h"
#include "support/Bodies.h"
#include "support/MemoryReply.h"
#include "support/Registration.h"

#include <QJsonDocument>

namespace {

using bench::Bodies;
using tarnnuq::RecordList;
using tarnnuq::RecordPage;
using tarnnuq::RecordPtr;

void ParseOnly(benchmark::State& state, const QByteArray& body)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(QJsonDocument::fromJson(body));
    }
}

template <typename T>
void Handle(benchmark::State& state, const QByteArray& body)
{
    bench::MemoryReply reply(body);
    std::wstring error;
    for (auto _ : state) {
        reply.Rewind();
        benchmark::DoNotOptimize(tarnnuq::ResponseHandlerRegistry::Get<T>()->Handle(&reply, error));
    }
    if (!error.empty()) {
        state.SkipWithError("the handler failed");
    }
}

template <typename T, typename View>
void FillByPeer(benchmark::State& state, const QByteArray& body)
{
    const std::string_view bytes(body.constData(), static_cast<std::size_t>(body.size()));
    for (auto _ : state) {
        T result{};
        bench::RecordFiller<View>::Fill(View(bytes), result);
        benchmark::DoNotOptimize(result);
    }
}

template <typename T>
void RegisterHandler(const std::string& name, QByteArray (*makeBody)(int), const std::vector<int>& sizes)
{
    for (const int size : sizes) {
        const auto body = std::make_shared<QByteArray>();
        const auto add = [&](const std::string& by, void (*run)(benchmark::State&, const QByteArray&)) {
            bench::Register(name + "/" + by, size, [=](benchmark::State& state) {
                if (body->isEmpty()) {
                    *body = makeBody(size);
                }
                run(state, *body);
                bench::CountItems(state, size, body->size());
            });
        };
        add("fromJson", ParseOnly);
        add("handler", Handle<T>);
        add("simdjson", FillByPeer<T, bench::SimdjsonView>);
        add("rapidjson", FillByPeer<T, bench::RapidJsonView>);
        add("nlohmann", FillByPeer<T, bench::NlohmannView>);
    }
}

QByteArray SpecificationsOf30(int count)
{
    return Bodies::Specifications(count, 30);
}

QByteArray OneComponent(int)
{
    return Bodies::Component();
}

QByteArray OneCheck(int)
{
    return Bodies::ExistingCheck();
}

const bool registered = [] {
    using namespace tarnnuq;
    const std::vector<int> sizes{100, 1000, 10000, 100000};
    const std::vector<int> pages{20, 200, 1000, 10000, 100000};
    RegisterHandler<RecordList<ICategory>>("categories", Bodies::Categories, sizes);
    RegisterHandler<RecordList<ICategoryMapping>>("mappings", Bodies::CategoryMappings, sizes);
    RegisterHandler<RecordPtr<ICategoryProperty>>("properties", Bodies::CategoryProperty, {100, 500, 10000, 100000});
    RegisterHandler<RecordPtr<ISpecification>>("specification", Bodies::Specification, sizes);
    RegisterHandler<RecordList<ISpecification>>("specifications", SpecificationsOf30, {20, 200, 2000, 20000});
    RegisterHandler<RecordPtr<IProjectComponent>>("component", OneComponent, {1});
    RegisterHandler<RecordList<IProjectComponent>>("components", Bodies::Components, sizes);
    RegisterHandler<RecordPage<IProjectComponent>>("component-page", Bodies::ComponentPage, pages);
    RegisterHandler<RecordPtr<IDetailedProjectComponent>>("component-detail", Bodies::DetailedComponent, sizes);
    RegisterHandler<RecordPtr<ProjectComponentExistingCheck>>("existing-check", OneCheck, {1});
    RegisterHandler<RecordList<ILegend>>("legends", Bodies::Legends, sizes);
    RegisterHandler<RecordPage<ILegend>>("legend-page", Bodies::LegendPage, sizes);
    return true;
}();

} // namespace
