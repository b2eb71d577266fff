#pragma once

#include "Records/ILegend.h"
#include "ResponseHandlers/ResultTypes.h"

#include <string>

namespace tarnnuq {

struct WarningSource;

/// Reads a category's legends of one view from the host's component database.
/// @param source on whose behalf a legend that cannot be made is reported
/// @return the legends in the order of their id texts; empty when the database has none or cannot be read
RecordList<ILegend> ReadLocalLegends(
    const std::wstring& categoryCode, ILegend::LegendType type, const WarningSource& source);

} // namespace tarnnuq
