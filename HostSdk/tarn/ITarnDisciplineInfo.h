#pragma once

#include "HostSdkExport.h"

#include <map>
#include <string>

namespace tarn {

class ITarnCategoryInfo;

/**
 * One discipline, the topmost level of the host's category library.
 *
 * Implemented and owned by the host; valid as long as the host's category library is.
 */
class HOSTSDK_EXPORT ITarnDisciplineInfo
{
public:
    virtual ~ITarnDisciplineInfo();

    /// The position among the disciplines; smaller comes first.
    virtual int GetSortIndex() const = 0;
    /// The identifier.
    virtual std::wstring GetId() const = 0;
    /// The name to show.
    virtual std::wstring GetName() const = 0;
    /// Fills the discipline's categories by the host's key. Entries may be null.
    virtual void GetCategories(std::map<std::wstring, const ITarnCategoryInfo*>& categories) const = 0;
    /// The code, unique in the library.
    virtual std::wstring GetCode() const = 0;

protected:
    ITarnDisciplineInfo() = default;
    ITarnDisciplineInfo(const ITarnDisciplineInfo&) = default;
    ITarnDisciplineInfo& operator=(const ITarnDisciplineInfo&) = default;
};

} // namespace tarn
