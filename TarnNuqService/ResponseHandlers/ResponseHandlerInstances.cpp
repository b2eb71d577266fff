// The one place in the process where the known handler templates are instantiated.
#include "Records/ICategory.h"
#include "Records/ICategoryMapping.h"
#include "Records/ICategoryProperty.h"
#include "Records/IDetailedProjectComponent.h"
#include "Records/ILegend.h"
#include "Records/ISpecification.h"
#include "Records/ProjectComponentExistingCheck.h"
#include "ResponseHandlers/PyxResponseHandler.h"
#include "ResponseHandlers/SimpleDataResponseHandler.h"

namespace tarnnuq {

#define TARNNUQSERVICE_DEFINE_INSTANCE(T)                                                                              \
    template class TARNNUQSERVICE_TEMPLATE_DEFINITION IResponseHandler<T>;                                             \
    template class TARNNUQSERVICE_TEMPLATE_DEFINITION ResponseHandlerBase<T>;
TARNNUQSERVICE_FOR_EACH_RESULT_TYPE(TARNNUQSERVICE_DEFINE_INSTANCE)
#undef TARNNUQSERVICE_DEFINE_INSTANCE

template class TARNNUQSERVICE_TEMPLATE_DEFINITION PyxResponseHandler<RecordPage<ILegend>>;
template class TARNNUQSERVICE_TEMPLATE_DEFINITION SimpleDataResponseHandler<RecordPage<ILegend>>;
template class TARNNUQSERVICE_TEMPLATE_DEFINITION SimpleDataResponseHandler<RecordList<ICategoryMapping>>;

} // namespace tarnnuq
