#pragma once

#include "HostSdkExport.h"
#include "tarn/TarnLegendType.h"

#include <map>
#include <string>

namespace tarn {

/**
 * Lookups in the host's local component database.
 *
 * Implemented by the host and put into hostsdk::HostServices::componentSql; the host owns it.
 */
class HOSTSDK_EXPORT TarnComponentSqlUtil
{
public:
    virtual ~TarnComponentSqlUtil();
    TarnComponentSqlUtil(const TarnComponentSqlUtil&) = delete;
    TarnComponentSqlUtil& operator=(const TarnComponentSqlUtil&) = delete;

    /**
     * Lists the legends that the database holds for a category in one view.
     *
     * @param dbPath the database file, see TarnFilePathSettings::GetCurrentProductDBFilePath().
     * @param categoryCode the category, compared exactly.
     * @param type the view.
     * @param legends filled with the legend's file name (relative, with backslashes, without ending) by legend id in
     * decimal; left as it is when the call fails.
     * @return true on success, also when there are no legends; false without an installed object.
     */
    static bool GetLocalLegendsOfTheCategory(const std::wstring& dbPath, const std::wstring& categoryCode,
        TarnLegendType type, std::map<std::wstring, std::wstring>& legends);

protected:
    TarnComponentSqlUtil() = default;

    /// Answers GetLocalLegendsOfTheCategory().
    virtual bool DoGetLocalLegendsOfTheCategory(const std::wstring& dbPath, const std::wstring& categoryCode,
        TarnLegendType type, std::map<std::wstring, std::wstring>& legends) const = 0;
};

} // namespace tarn
