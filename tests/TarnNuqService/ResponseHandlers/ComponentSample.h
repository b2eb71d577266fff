#pragma once

#include "TarnNuqService/ResponseHandlers/JsonShapes.h"

namespace tarnnuq {
class IProjectComponent;
}

namespace testsupport {

/// A component in which every member has a value of its own, as the cloud sends it.
QJsonObject GoodComponentObject();

/// What becomes of it in a list or on a page.
tarnnuq::IProjectComponent GoodComponent();

/// A component's members as lists and pages read them.
const std::vector<MemberRow<tarnnuq::IProjectComponent>>& ComponentMembers();

/// An id as it stands in a reply, and the text that becomes of it.
struct IdRow
{
    const char* name;
    const char* json;
    const wchar_t* text;
};

inline void PrintTo(const IdRow& row, std::ostream* stream)
{
    *stream << row.json;
}

/// Ids in every form.
std::vector<IdRow> IdRows();

} // namespace testsupport
