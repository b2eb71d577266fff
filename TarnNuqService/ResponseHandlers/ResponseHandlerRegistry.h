#pragma once

#include "ResponseHandlers/IResponseHandler.h"
#include "TarnNuqServiceExport.h"

#include <map>
#include <memory>
#include <string>
#include <typeinfo>

namespace tarnnuq {

/// Finds the handler for a result type.
///
/// Handlers are made on first demand and live, and are shared, for the rest of the process, however many modules
/// ask. Unsynchronised: only for the thread of the network managers.
class TARNNUQSERVICE_EXPORT ResponseHandlerRegistry
{
public:
    /// The handler for a result type.
    /// @tparam T the result type
    /// @return the same object at every call, owned by the registry; null when the type has no handler
    template <typename T>
    static IResponseHandler<T>* Get();

private:
    /// Makes the concrete handler of a known result type.
    /// @param typeName the run-time name of the type
    /// @return a pointer to its `IResponseHandler<T>`, given to the caller; null for an unknown name
    static void* Create(const std::wstring& typeName);

    /// @return a run-time type name as wide text
    static std::wstring WideTypeName(const std::type_info& type);
};

template <typename T>
IResponseHandler<T>* ResponseHandlerRegistry::Get()
{
    // Never destroyed, like the handlers in it: a reply may still finish while the process ends.
    static auto& handlers = *new std::map<std::wstring, IResponseHandler<T>*>;
    const std::wstring key = WideTypeName(typeid(T));
    const auto known = handlers.find(key);
    if (known != handlers.end()) {
        return known->second;
    }
    std::unique_ptr<IResponseHandler<T>> handler(static_cast<IResponseHandler<T>*>(Create(key)));
    if (!handler) {
        return nullptr;
    }
    IResponseHandler<T>*& stored = handlers[key];
    stored = handler.release();
    return stored;
}

#define TARNNUQSERVICE_DECLARE_INSTANCE(T)                                                                             \
    extern template TARNNUQSERVICE_TEMPLATE_DECLARATION IResponseHandler<T>* ResponseHandlerRegistry::Get<T>();
TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(TARNNUQSERVICE_DECLARE_INSTANCE)
#undef TARNNUQSERVICE_DECLARE_INSTANCE

} // namespace tarnnuq
