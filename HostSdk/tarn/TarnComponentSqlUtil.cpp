#include "tarn/TarnComponentSqlUtil.h"

#include "hostsdk/HostServices.h"

namespace tarn {

TarnComponentSqlUtil::~TarnComponentSqlUtil() = default;

bool TarnComponentSqlUtil::GetLocalLegendsOfTheCategory(const std::wstring& dbPath, const std::wstring& categoryCode,
    TarnLegendType type, std::map<std::wstring, std::wstring>& legends)
{
    const TarnComponentSqlUtil* const installed = hostsdk::Installed().componentSql;
    return installed != nullptr && installed->DoGetLocalLegendsOfTheCategory(dbPath, categoryCode, type, legends);
}

} // namespace tarn
