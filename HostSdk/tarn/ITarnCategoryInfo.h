#pragma once

#include "HostSdkExport.h"

#include <map>
#include <string>

namespace tarn {

class ITarnPropertyInfo;

/**
 * One category, or end category, of the host's category library.
 *
 * Implemented and owned by the host; valid as long as the host's category library is.
 */
class HOSTSDK_EXPORT ITarnCategoryInfo
{
public:
    virtual ~ITarnCategoryInfo();

    /// The position within its level; smaller comes first.
    virtual int GetSortIndex() const = 0;
    /// The identifier.
    virtual std::wstring GetId() const = 0;
    /// The code, unique in the library.
    virtual std::wstring GetCode() const = 0;
    /// The name to show.
    virtual std::wstring GetName() const = 0;
    /// The end categories beneath this one by the host's key; empty for an end category. Entries may be null.
    virtual std::map<std::wstring, const ITarnCategoryInfo*> GetSubCategories() const = 0;
    /// Fills the category's properties by the host's key. Entries may be null.
    virtual void GetProperties(std::map<std::wstring, const ITarnPropertyInfo*>& properties) const = 0;

protected:
    ITarnCategoryInfo() = default;
    ITarnCategoryInfo(const ITarnCategoryInfo&) = default;
    ITarnCategoryInfo& operator=(const ITarnCategoryInfo&) = default;
};

} // namespace tarn
