#pragma once

#include <QByteArray>

namespace bench {

/// Reply bodies of a given size, made from a fixed seed: the same bytes on every machine and in every run.
/// Names are Chinese in raw UTF-8, members stand in a fixed order, and each object has members that nobody reads.
class Bodies
{
public:
    static QByteArray Categories(int count);        ///< Flat list, seven levels, 10 members of which 7 are read.
    static QByteArray CategoriesInOrder(int count); ///< The same, weights ascending: parents before their children.
    static QByteArray CategoryCounts(int count);    ///< The same ids with counts alone, as a refresh brings them.
    static QByteArray CategoryMappings(int count);  ///< Two names a mapping.
    static QByteArray CategoryProperty(int count);  ///< One template of so many definitions.
    static QByteArray Specification(int count);     ///< One family type of so many parameters.
    static QByteArray Specifications(int count, int parameters); ///< So many family types.
    static QByteArray Component();                               ///< One component, 30 members of which 9 are read.
    static QByteArray Components(int count);                     ///< A list of such.
    static QByteArray ComponentPage(int count);                  ///< A page of such.
    static QByteArray DetailedComponent(int count);              ///< One component with so many family type names.
    static QByteArray ExistingCheck();
    static QByteArray Legends(int count);
    static QByteArray LegendPage(int count);
};

} // namespace bench
