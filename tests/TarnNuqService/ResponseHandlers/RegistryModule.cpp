// A module of its own, loaded at run time by the registry's test: like a second plug-in of one host.
#include "TarnNuqService/ResponseHandlers/RegistryModule.h"

#include "Records/ICategory.h"
#include "ResponseHandlers/ResponseHandlerRegistry.h"

#include <QtGlobal>

extern "C" Q_DECL_EXPORT void RegistryHandlers(testsupport::RegistryAnswers& answers)
{
    using tarnnuq::ResponseHandlerRegistry;
    int index = 0;
#define TARNNUQTEST_ASK(T) answers.known[index++] = ResponseHandlerRegistry::Get<T>();
    TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(TARNNUQTEST_ASK)
#undef TARNNUQTEST_ASK
    answers.unknown = ResponseHandlerRegistry::Get<tarnnuq::RecordPtr<tarnnuq::ICategory>>();
}
