#pragma once

#include <QString>

namespace componentlibrary {

/** Which components a page or a listing of all pages shows. */
struct ComponentQuery
{
    QString categoryCode; ///< empty: every category
    QString keyword;      ///< empty: no search
    QString projectId;    ///< empty: the public catalogue, else the library of that project
    int page = 1;         ///< from 1
    int pageSize = 20;    ///< 1 to MaximumPageSize

    static constexpr int MaximumPageSize = 200;
};

} // namespace componentlibrary
