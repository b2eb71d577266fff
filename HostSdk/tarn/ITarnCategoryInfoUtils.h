#pragma once

#include "HostSdkExport.h"

#include <map>
#include <string>

namespace tarn {

class ITarnCategoryInfo;
class ITarnDisciplineInfo;

/**
 * The host's category library: disciplines, their categories and the end categories beneath those.
 *
 * Implemented by the host and put into hostsdk::HostServices::categoryInfo; the host owns it and every record it
 * hands out, and keeps them alive as long as the library may ask.
 */
class HOSTSDK_EXPORT ITarnCategoryInfoUtils
{
public:
    virtual ~ITarnCategoryInfoUtils();
    ITarnCategoryInfoUtils(const ITarnCategoryInfoUtils&) = delete;
    ITarnCategoryInfoUtils& operator=(const ITarnCategoryInfoUtils&) = delete;

    /**
     * Lists the disciplines.
     *
     * @param disciplines filled by the host's key; entries may be null.
     * @return true on success.
     */
    virtual bool GetDisciplines(std::map<std::wstring, const ITarnDisciplineInfo*>& disciplines) const = 0;

    /**
     * Finds a category or end category.
     *
     * @param code the category's code, compared exactly.
     * @param info set to the category, which may be null even on success.
     * @return true when the code is known.
     */
    virtual bool FindCategoryByCode(const std::wstring& code, const ITarnCategoryInfo*& info) const = 0;

protected:
    ITarnCategoryInfoUtils() = default;
};

} // namespace tarn
