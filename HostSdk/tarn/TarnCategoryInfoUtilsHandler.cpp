#include "tarn/TarnCategoryInfoUtilsHandler.h"

#include "hostsdk/HostServices.h"

namespace tarn {

TarnCategoryInfoUtilsHandler& TarnCategoryInfoUtilsHandler::Get()
{
    static TarnCategoryInfoUtilsHandler s_handler;
    return s_handler;
}

ITarnCategoryInfoUtils* TarnCategoryInfoUtilsHandler::GetUtils()
{
    return hostsdk::Installed().categoryInfo;
}

} // namespace tarn
