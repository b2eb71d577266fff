// The one place in the process where the providers' templates are instantiated.
#include "Providers/ImageProvider.h"

namespace tarnnuq {

template class TARNNUQSERVICE_TEMPLATE_DEFINITION IProvider<std::wstring, std::shared_ptr<QImage>>;
template class TARNNUQSERVICE_TEMPLATE_DEFINITION ImageProvider<std::wstring>;

} // namespace tarnnuq
