#pragma once

#include "ComponentDatabase/Rows/BilingualName.h"
#include "ComponentDatabase/Search/SearchMatch.h"

namespace componentdatabase {

/// One thing that a search has found.
struct SearchHit
{
    enum class Kind
    {
        Discipline,
        Category,
        Component,
    };

    Kind kind = Kind::Component;
    QString code;
    BilingualName name;
    QString categoryCode; ///< Of a component; empty otherwise.
    SearchMatch match = SearchMatch::Value;
};

} // namespace componentdatabase
