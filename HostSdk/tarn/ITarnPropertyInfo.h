#pragma once

#include "HostSdkExport.h"

#include <cstdint>
#include <map>
#include <string>

namespace tarn {

/**
 * One property that the host's category library defines for a category.
 *
 * Implemented and owned by the host; valid as long as the host's category library is.
 */
class HOSTSDK_EXPORT ITarnPropertyInfo
{
public:
    virtual ~ITarnPropertyInfo();

    /// The position among the category's properties; smaller comes first.
    virtual int GetSortIndex() const = 0;
    /// The identifier, usually a GUID text.
    virtual std::wstring GetId() const = 0;
    /// The standard's code; empty when the property belongs to no standard.
    virtual std::wstring GetCode() const = 0;
    /// The name to show.
    virtual std::wstring GetName() const = 0;
    /// The name of the group under which the property is shown.
    virtual std::wstring GetGroupName() const = 0;
    /// True for a property of the single instance, false for one of its type.
    virtual bool IsInstance() const = 0;
    /// True when a value is required.
    virtual bool IsEssential() const = 0;
    /// True when the user gives the value, false when it is computed.
    virtual bool IsInput() const = 0;

    /**
     * How the value is stored: 0 invalid, 1 none, 2 custom, 3 yes/no, 4 integer, 5 floating-point, 6 text,
     * 7 coordinates, 8 element id, 9 building storey, 10 colour, 11 standard code reference, 12 geometry, 13 GUID,
     * 14 count.
     */
    virtual std::int16_t GetStorageType() const = 0;

    /**
     * How the value is shown: 0 invalid, 1 by its unit, 2 not at all, 3 custom, 4 length, 5 area, 6 volume, 7 angle,
     * 8 slope, 9 number, 10 text, 11 geometry, 12 density, 13 yes or no, 14 floating-point, 15 material,
     * 16 value list, 17 standard code reference, 19 count. There is no 18.
     */
    virtual std::int16_t GetDisplayType() const = 0;

    /// Fills the ids of the values to choose from, keyed by value text; leaves the map empty when the value is free.
    virtual void GetValueIds(std::map<std::wstring, int>& ids) const = 0;
    /// Fills the texts to show for the values to choose from, keyed by value id.
    virtual void GetValueTexts(std::map<int, std::wstring>& texts) const = 0;

protected:
    ITarnPropertyInfo() = default;
    ITarnPropertyInfo(const ITarnPropertyInfo&) = default;
    ITarnPropertyInfo& operator=(const ITarnPropertyInfo&) = default;
};

} // namespace tarn
