// The public category service's own work beside the naive way to do it.
#include "CategorySvcs/PublicCategoryService.h"
#include "CategorySvcs/WeightOrder_p.h"
#include "ResponseHandlers/LeafMarking_p.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"
#include "support/Bodies.h"
#include "support/MemoryReply.h"
#include "support/Registration.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QtAlgorithms>
#include <algorithm>
#include <memory>

namespace tarnnuq {

/// Reaches the reply handler of a service that lives as long as one benchmark.
class PublicCategoryServiceAccess
{
public:
    explicit PublicCategoryServiceAccess(const QByteArray& firstBody)
    {
        bench::MemoryReply reply(firstBody);
        Handle(reply);
    }

    void Handle(bench::MemoryReply& reply) { m_service.HandleReply(reply); }
    PublicCategoryService& Service() { return m_service; }
    QList<ICategory>& Categories() { return m_service.m_categories; }

private:
    PublicCategoryService m_service;
};

} // namespace tarnnuq

namespace {

using bench::Bodies;
using tarnnuq::ICategory;

// A refresh reads less than a first load: its base is the parser over the same counts.
void ParseCounts(benchmark::State& state, int count)
{
    const QByteArray body = Bodies::CategoryCounts(count);
    for (auto _ : state) {
        benchmark::DoNotOptimize(QJsonDocument::fromJson(body));
    }
}

void Refresh(benchmark::State& state, int count)
{
    tarnnuq::PublicCategoryServiceAccess access(Bodies::Categories(count));
    bench::MemoryReply reply(Bodies::CategoryCounts(count));
    for (auto _ : state) {
        reply.Rewind();
        access.Handle(reply);
    }
}

void RefreshNaively(benchmark::State& state, int count)
{
    tarnnuq::PublicCategoryServiceAccess access(Bodies::Categories(count));
    const QByteArray body = Bodies::CategoryCounts(count);
    QList<ICategory>& categories = access.Categories();
    for (auto _ : state) {
        const QJsonArray array = QJsonDocument::fromJson(body).object().value(QLatin1String("data")).toArray();
        for (const QJsonValue& element : array) {
            const int id = element.toObject().value(QLatin1String("id")).toInt();
            const auto found = std::find_if(
                categories.begin(), categories.end(), [id](const ICategory& category) { return category.Id == id; });
            if (found != categories.end()) {
                found->Count = element.toObject().value(QLatin1String("count")).toInt();
            }
        }
    }
}

tarnnuq::RecordList<ICategory> HandledCategories(int count)
{
    bench::MemoryReply reply(Bodies::Categories(count));
    std::wstring error;
    return tarnnuq::ResponseHandlerRegistry::Get<tarnnuq::RecordList<ICategory>>()->Handle(&reply, error);
}

void MarkLeaves(benchmark::State& state, int count)
{
    const auto categories = HandledCategories(count);
    for (auto _ : state) {
        tarnnuq::MarkLeaves(categories);
    }
}

void MarkLeavesNaively(benchmark::State& state, int count)
{
    const auto categories = HandledCategories(count);
    for (auto _ : state) {
        for (const auto& category : categories) {
            category->SetIsLeaf(std::none_of(categories.begin(), categories.end(),
                [&](const auto& other) { return other->ParentCode == category->Code; }));
        }
    }
}

QList<ICategory> UnsortedCategories(int count)
{
    QList<ICategory> categories;
    for (const auto& category : HandledCategories(count)) {
        categories.append(*category);
    }
    return categories;
}

// Both copy the unsorted list outside the measured time.
template <typename Sort>
void MeasureSort(benchmark::State& state, int count, Sort&& sort)
{
    const QList<ICategory> unsorted = UnsortedCategories(count);
    for (auto _ : state) {
        state.PauseTiming();
        auto categories = std::make_unique<QList<ICategory>>(unsorted);
        categories->detach();
        state.ResumeTiming();
        sort(*categories);
        state.PauseTiming();
        categories.reset();
        state.ResumeTiming();
    }
}

void SortKeys(benchmark::State& state, int count)
{
    MeasureSort(state, count, [](QList<ICategory>& categories) { tarnnuq::SortByWeight(categories); });
}

QT_WARNING_PUSH
QT_WARNING_DISABLE_DEPRECATED
void SortRecords(benchmark::State& state, int count)
{
    MeasureSort(state, count, [](QList<ICategory>& categories) {
        // By value, as the order is defined.
        qSort(categories.begin(), categories.end(),
            [](ICategory a, ICategory b) { return a.Weight < b.Weight; }); // NOLINT
    });
}
QT_WARNING_POP

// The walk to the root from every 97th category.
void Walk(benchmark::State& state, int count, const QByteArray& body)
{
    tarnnuq::PublicCategoryServiceAccess access(body);
    int id = 1;
    for (auto _ : state) {
        id = 1 + (id + 97) % count;
        benchmark::DoNotOptimize(access.Service().GetFullCategories(std::to_wstring(id)));
    }
}

// The catalogue's own order has parents before their children.
void FullCategories(benchmark::State& state, int count)
{
    Walk(state, count, Bodies::CategoriesInOrder(count));
}

void FullCategoriesShuffled(benchmark::State& state, int count)
{
    Walk(state, count, Bodies::Categories(count));
}

void ScanForId(benchmark::State& state, int count)
{
    tarnnuq::PublicCategoryServiceAccess access(Bodies::CategoriesInOrder(count));
    const QList<ICategory>& categories = access.Categories();
    for (auto _ : state) {
        // Past the last id: the whole list.
        benchmark::DoNotOptimize(std::find_if(categories.cbegin(), categories.cend(),
            [count](const ICategory& category) { return category.Id == count + 1; }));
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
    const std::vector<int> sizes{1000, 10000, 100000};
    const std::vector<int> naiveSizes{1000, 10000};
    Add("refresh/fromJson", ParseCounts, sizes);
    Add("refresh/service", Refresh, sizes);
    Add("refresh/naive", RefreshNaively, naiveSizes);
    Add("leaves/marking", MarkLeaves, sizes);
    Add("leaves/naive", MarkLeavesNaively, naiveSizes);
    Add("sort/keys", SortKeys, sizes);
    Add("sort/by-value", SortRecords, naiveSizes);
    Add("full-categories/walk", FullCategories, sizes);
    Add("full-categories/shuffled", FullCategoriesShuffled, sizes);
    Add("full-categories/one-scan", ScanForId, sizes);
    return true;
}();

} // namespace
