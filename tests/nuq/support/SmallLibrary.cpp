#include "support/SmallLibrary.h"

#include "ComponentDatabase/Writing/DatabaseWriter.h"

#include <QDir>

using namespace componentdatabase;

namespace nuqtest {

namespace {

BilingualName Both(const char* chinese, const char* english)
{
    return {QString::fromUtf8(chinese), QString::fromUtf8(english)};
}

void AddMaterial(DatabaseWriter& writer)
{
    const PropertyRow material{1, QStringLiteral("guid"), QStringLiteral("Material"), Both("材质", "Material"),
        Both("一般", "General"), false, true, 4, 16, {}, {}};
    const PropertyValueRow brass{1, QStringLiteral("BRASS"), Both("黄铜", "Brass")};
    writer.AddProperty(material);
    writer.AddPropertyValue(1, brass);
    writer.AddCategoryProperty(12, {material, 1, true, {}, {brass}});
}

} // namespace

void WriteSmallLibrary(const QString& applicationFolder, const QString& endCategoryCode)
{
    const QString folder = applicationFolder + QStringLiteral("/library");
    QDir().mkpath(folder);
    DatabaseWriter writer = DatabaseWriter::Make(folder + QStringLiteral("/components.db"));
    writer.AddDiscipline({1, QStringLiteral("WAT"), 1, Both("给水", "Water")});
    writer.AddCategory({11, QStringLiteral("WAT.PMP"), 1, 0, 1, Both("泵", "Pumps")});
    writer.AddCategory({12, endCategoryCode, 1, 11, 1, Both("水泵", "Water pump")});
    AddMaterial(writer);
    writer.SetLegendFolder(QStringLiteral("static/legends"));
    writer.AddLegend({21, 12, 1, QStringLiteral("pump\\plan")});
    writer.AddLegend({22, 12, 2, QStringLiteral("pump\\elevation")});
    writer.AddComponent({0, QStringLiteral("C-1"), 1, 12, Both("离心水泵", "Centrifugal pump"), {}, {}, {}},
        {{QStringLiteral("DN50"), {{1, QStringLiteral("BRASS")}}}});
    writer.Finish();
}

} // namespace nuqtest
