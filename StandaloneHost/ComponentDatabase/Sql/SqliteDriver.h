#pragma once

#include <memory>

class QSqlDriver;

namespace componentdatabase {

/// Makes a driver of Qt's SQLite plug-in, which is looked for in Qt's own folder whatever folders the program searches:
/// a program that searches none must not load all the others along with it. Throws SqlFault.
std::unique_ptr<QSqlDriver> MakeSqliteDriver();

} // namespace componentdatabase
