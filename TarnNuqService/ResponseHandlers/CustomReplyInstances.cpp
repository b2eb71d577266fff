// The one place in the process where the library's own pending replies are instantiated.
#include "Records/ICategoryMapping.h"
#include "Records/ILegend.h"
#include "ResponseHandlers/CustomReply.h"

namespace tarnnuq {

template class TARNNUQSERVICE_TEMPLATE_DEFINITION CustomReply<RecordList<ICategoryMapping>>;
template class TARNNUQSERVICE_TEMPLATE_DEFINITION CustomReply<RecordPage<ILegend>>;

} // namespace tarnnuq
