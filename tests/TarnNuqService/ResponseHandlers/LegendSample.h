#pragma once

#include "Records/ILegend.h"
#include "TarnNuqService/ResponseHandlers/JsonShapes.h"

#include <cstdint>

namespace testsupport {

/// A legend in which every member has a value of its own, as the cloud sends it.
QJsonObject GoodLegendObject();

/// What becomes of it on a page; a list does not read the standard source.
tarnnuq::ILegend GoodLegend();

/// The members that lists and pages read.
const std::vector<MemberRow<tarnnuq::ILegend>>& LegendMembers();

/// A view as it stands in a reply, and what becomes of it.
struct ViewRow
{
    const char* name;
    const char* json;
    tarnnuq::ILegend::LegendType view;
};

/// Views in every form.
std::vector<ViewRow> ViewRows();

/// A legend's id as it stands in a reply, and what becomes of it.
struct LegendIdRow
{
    const char* name;
    const char* json;
    std::int64_t id;
};

/// Ids in every form.
std::vector<LegendIdRow> LegendIdRows();

inline void PrintTo(const ViewRow& row, std::ostream* stream)
{
    *stream << row.json;
}

inline void PrintTo(const LegendIdRow& row, std::ostream* stream)
{
    *stream << row.json;
}

} // namespace testsupport
