#include "ResponseHandlers/ResponseHandlerRegistry.h"

#include "ResponseHandlers/CategoriesResponseHandler.h"
#include "ResponseHandlers/CategoryMappingsResponseHandler.h"
#include "ResponseHandlers/CategoryPropertyResponseHandler.h"
#include "ResponseHandlers/DetailedProjectComponentResponseHandler.h"
#include "ResponseHandlers/LegendsResponseHandler.h"
#include "ResponseHandlers/PagedLegendsResponseHandler.h"
#include "ResponseHandlers/PagedProjectComponentsResponseHandler.h"
#include "ResponseHandlers/ProjectComponentExistingCheckResponseHandler.h"
#include "ResponseHandlers/ProjectComponentResponseHandler.h"
#include "ResponseHandlers/ProjectComponentsResponseHandler.h"
#include "ResponseHandlers/SpecificationResponseHandler.h"
#include "ResponseHandlers/SpecificationsResponseHandler.h"

#include <cstring>

namespace tarnnuq {

namespace {

struct Creator
{
    const std::type_info& resultType;
    void* (*create)();
};

// Registered handlers live for the rest of the process, hence the raw new.
template <typename T, typename ConcreteHandler>
Creator CreatorOf()
{
    return {typeid(T), []() -> void* { return static_cast<IResponseHandler<T>*>(new ConcreteHandler); }};
}

} // namespace

void* ResponseHandlerRegistry::Create(const std::wstring& typeName)
{
    static const Creator creators[] = {
        CreatorOf<RecordPtr<ISpecification>, SpecificationResponseHandler>(),
        CreatorOf<RecordPtr<IProjectComponent>, ProjectComponentResponseHandler>(),
        CreatorOf<RecordPtr<IDetailedProjectComponent>, DetailedProjectComponentResponseHandler>(),
        CreatorOf<RecordList<ISpecification>, SpecificationsResponseHandler>(),
        CreatorOf<RecordList<ILegend>, LegendsResponseHandler>(),
        CreatorOf<RecordPage<ILegend>, PagedLegendsResponseHandler>(),
        CreatorOf<RecordPtr<ICategoryProperty>, CategoryPropertyResponseHandler>(),
        CreatorOf<RecordList<ICategory>, CategoriesResponseHandler>(),
        CreatorOf<RecordPtr<ProjectComponentExistingCheck>, ProjectComponentExistingCheckResponseHandler>(),
        CreatorOf<RecordList<IProjectComponent>, ProjectComponentsResponseHandler>(),
        CreatorOf<RecordPage<IProjectComponent>, PagedProjectComponentsResponseHandler>(),
        CreatorOf<RecordList<ICategoryMapping>, CategoryMappingsResponseHandler>(),
    };
    for (const Creator& creator : creators) {
        if (typeName == WideTypeName(creator.resultType)) {
            return creator.create();
        }
    }
    return nullptr;
}

std::wstring ResponseHandlerRegistry::WideTypeName(const std::type_info& type)
{
    const char* name = type.name();
    return std::wstring(name, name + std::strlen(name));
}

#define TARNNUQSERVICE_DEFINE_INSTANCE(T)                                                                              \
    template TARNNUQSERVICE_TEMPLATE_DEFINITION IResponseHandler<T>* ResponseHandlerRegistry::Get<T>();
TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(TARNNUQSERVICE_DEFINE_INSTANCE)
#undef TARNNUQSERVICE_DEFINE_INSTANCE

} // namespace tarnnuq
