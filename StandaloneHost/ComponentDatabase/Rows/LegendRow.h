#pragma once

#include <QString>

namespace componentdatabase {

/// A legend picture of a category in one view.
struct LegendRow
{
    qint64 id = 0;
    qint64 categoryId = 0;
    int view = 0; ///< The numbers of tarn::TarnLegendType.
    QString file; ///< Below the folder of legends, with backslashes and without ending: "valve\plan".
};

} // namespace componentdatabase
