#pragma once

#include "ComponentDatabase/Writing/DatabaseWriter.h"

#include <QString>
#include <vector>

/// A component of a database made for a test, in the one end category that it has.
struct SmallComponent
{
    QString code;
    componentdatabase::BilingualName name;
    std::vector<componentdatabase::FamilyTypeRow> types;
};

/// The ids in that database.
constexpr qint64 SmallCategory = 12;
constexpr qint64 MaterialProperty = 1;
constexpr qint64 WeightProperty = 2;

/// Writes a database with two disciplines, WAT with the category WAT.VLV and its end category WAT.VLV.GATE, and AIR
/// with nothing; two properties, three legends and the given components.
void WriteSmallDatabase(const QString& path, const std::vector<SmallComponent>& components = {});

/// Some components for tests to which it does not matter which.
std::vector<SmallComponent> ManyComponents(int count);
