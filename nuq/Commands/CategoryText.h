#pragma once

#include "Categories/CategoryTree.h"
#include "Program/Session.h"

#include <string>

namespace nuq {

/** The flat list as a table: id, code, name, count. */
std::string CategoryTable(const Session& session, const componentlibrary::CategoryTree::Categories& categories);

/**
 * The tree drawn with lines, with code, name and count.
 * @param deepest levels below this one are left out; negative: none are
 */
std::string CategoryTreeText(const Session& session, const componentlibrary::CategoryTree& tree, int deepest = -1);

} // namespace nuq
