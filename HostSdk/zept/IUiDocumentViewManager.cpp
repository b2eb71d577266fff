#include "zept/IUiDocumentViewManager.h"

#include "hostsdk/HostServices.h"

namespace zept {

IUiDocumentViewManager::~IUiDocumentViewManager() = default;

IUiDocumentViewManager* IUiDocumentViewManager::Get()
{
    return hostsdk::Installed().documentViews;
}

} // namespace zept
