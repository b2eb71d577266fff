// The layout and the slot order that hosts were built against. The addresses of virtual operations are read as the
// Itanium C++ ABI has them: a pointer to a virtual member function holds the byte offset of its slot, plus one; the two
// destructor entries (complete and deleting) share the destructor's place and take slots 0 and 1.
#include "Records/ICategory.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/CategoriesResponseHandler.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "ResponseHandlers/SimpleDataResponseHandler.h"

#include <QJsonArray>
#include <QJsonObject>
#include <cstddef>
#include <cstring>
#include <gtest/gtest.h>
#include <type_traits>

namespace {

using namespace tarnnuq;
using Categories = RecordList<ICategory>;
using LegendPage = RecordPage<ILegend>;

constexpr std::ptrdiff_t HandleSlot = 2;
constexpr std::ptrdiff_t HandleBodySlot = 3;
constexpr std::ptrdiff_t HandleDataSlot = 4;

template <typename MemberFunction>
std::ptrdiff_t SlotOf(MemberFunction function)
{
    std::ptrdiff_t words[2];
    static_assert(sizeof function == sizeof words);
    std::memcpy(words, &function, sizeof words);
    return (words[0] - 1) / static_cast<std::ptrdiff_t>(sizeof(void*));
}

/// The entry of an object's table of virtual operations.
template <typename Function>
Function EntryOf(const void* object, std::ptrdiff_t slot)
{
    void* const* table = nullptr;
    std::memcpy(&table, object, sizeof table);
    Function function = nullptr;
    std::memcpy(&function, table + slot, sizeof function);
    return function;
}

/// Opens what the interface and the base of a handler keep to derived classes.
template <typename Handler, typename Base, typename T>
class Open : public Handler
{
public:
    using IResponseHandler<T>::HandleBody;
    using Base::HandleData;

    T& InheritedResult() { return IResponseHandler<T>::m_result; }
    std::wstring& InheritedError() { return IResponseHandler<T>::m_error; }
    T& Result() { return this->m_result; }
    std::wstring& Error() { return this->m_error; }
};

using OpenCategories = Open<CategoriesResponseHandler, ResponseHandlerBase<Categories>, Categories>;
using OpenLegends = Open<PagedLegendsResponseHandler, PyxResponseHandler<LegendPage>, LegendPage>;

template <typename T>
std::ptrdiff_t Offset(const T& object, const void* member)
{
    return static_cast<const char*>(member) - reinterpret_cast<const char*>(&object);
}

TEST(HandlerLayoutTest, BranchesDeriveAsHostsKnowThem)
{
    EXPECT_TRUE((std::is_base_of_v<IResponseHandler<Categories>, ResponseHandlerBase<Categories>>));
    EXPECT_TRUE((std::is_base_of_v<IResponseHandler<LegendPage>, PyxResponseHandler<LegendPage>>));
    EXPECT_FALSE((std::is_base_of_v<ResponseHandlerBase<LegendPage>, PyxResponseHandler<LegendPage>>));
    EXPECT_TRUE((std::is_base_of_v<ResponseHandlerBase<LegendPage>, SimpleDataResponseHandler<LegendPage>>));
}

TEST(HandlerLayoutTest, VirtualOperationsStandInTheFixedOrder)
{
    EXPECT_EQ(SlotOf(&IResponseHandler<Categories>::Handle), HandleSlot);
    EXPECT_EQ(SlotOf(&ResponseHandlerBase<Categories>::Handle), HandleSlot);
    EXPECT_EQ(SlotOf(&OpenCategories::HandleBody), HandleBodySlot);
    EXPECT_EQ(SlotOf(&OpenCategories::HandleData), HandleDataSlot);
    EXPECT_EQ(SlotOf(&PyxResponseHandler<LegendPage>::Handle), HandleSlot);
    EXPECT_EQ(SlotOf(&OpenLegends::HandleBody), HandleBodySlot);
    EXPECT_EQ(SlotOf(&OpenLegends::HandleData), HandleDataSlot);
}

TEST(HandlerLayoutTest, SlotsAreFilledWithTheOperationsOfTheirBranch)
{
    using AnyFunction = void (*)();
    const CategoriesResponseHandler categories;
    const SimpleDataResponseHandler<Categories> otherBase;
    const PagedLegendsResponseHandler legends;
    const SimpleDataResponseHandler<LegendPage> legendsOfTheBase;
    for (const std::ptrdiff_t slot : {HandleSlot, HandleBodySlot}) {
        EXPECT_EQ(EntryOf<AnyFunction>(&categories, slot), EntryOf<AnyFunction>(&otherBase, slot)) << slot;
        EXPECT_NE(EntryOf<AnyFunction>(&legends, slot), EntryOf<AnyFunction>(&legendsOfTheBase, slot)) << slot;
    }
    EXPECT_NE(EntryOf<AnyFunction>(&categories, HandleDataSlot), EntryOf<AnyFunction>(&otherBase, HandleDataSlot));
}

TEST(HandlerLayoutTest, CallingThroughTheSlotsRunsTheOperations)
{
    OpenCategories handler;
    const QJsonArray twoCategories{QJsonObject(), QJsonObject()};
    const auto handleData = EntryOf<void (*)(void*, const QJsonValue&)>(&handler, HandleDataSlot);
    handleData(&handler, twoCategories);
    EXPECT_EQ(handler.Result().size(), 2u);

    const auto handleBody = EntryOf<void (*)(void*, const QJsonObject&)>(&handler, HandleBodySlot);
    handleBody(&handler, {{QStringLiteral("code"), QStringLiteral("fail")}});
    EXPECT_EQ(handler.Error(), L"internal request error: custom code - fail, message - ");
}

TEST(HandlerLayoutTest, BaseCarriesTwoResultsAndTwoErrors)
{
    OpenCategories handler;
    const std::ptrdiff_t pointer = sizeof(void*);
    const std::ptrdiff_t result = sizeof(Categories);
    const std::ptrdiff_t error = sizeof(std::wstring);
    EXPECT_EQ(Offset(handler, &handler.InheritedResult()), pointer);
    EXPECT_EQ(Offset(handler, &handler.InheritedError()), pointer + result);
    EXPECT_EQ(Offset(handler, &handler.Result()), pointer + result + error);
    EXPECT_EQ(Offset(handler, &handler.Error()), pointer + result + error + result);
    EXPECT_EQ(sizeof(IResponseHandler<Categories>), sizeof(void*) + sizeof(Categories) + sizeof(std::wstring));
    EXPECT_EQ(sizeof(ResponseHandlerBase<Categories>),
        sizeof(IResponseHandler<Categories>) + sizeof(Categories) + sizeof(std::wstring));
}

TEST(HandlerLayoutTest, InterfaceBranchHasTheInterfacesFieldsAlone)
{
    OpenLegends handler;
    EXPECT_EQ(&handler.Result(), &handler.InheritedResult());
    EXPECT_EQ(&handler.Error(), &handler.InheritedError());
    EXPECT_EQ(sizeof(PyxResponseHandler<LegendPage>), sizeof(IResponseHandler<LegendPage>));
}

TEST(HandlerLayoutTest, SimpleHandlerHasNoFieldsOfItsOwn)
{
    EXPECT_EQ(sizeof(SimpleDataResponseHandler<LegendPage>), sizeof(ResponseHandlerBase<LegendPage>));
}

} // namespace
