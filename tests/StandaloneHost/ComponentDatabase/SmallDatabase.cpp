#include "ComponentDatabase/SmallDatabase.h"

using namespace componentdatabase;

namespace {

void AddTree(DatabaseWriter& writer)
{
    writer.AddDiscipline({1, QStringLiteral("WAT"), 2, {QStringLiteral("给水"), QStringLiteral("Water")}});
    writer.AddDiscipline({2, QStringLiteral("AIR"), 1, {QStringLiteral("通风"), QStringLiteral("Air")}});
    writer.AddCategory({11, QStringLiteral("WAT.VLV"), 1, 0, 1, {QStringLiteral("阀门"), QStringLiteral("Valves")}});
    writer.AddCategory({SmallCategory, QStringLiteral("WAT.VLV.GATE"), 1, 11, 1,
        {QStringLiteral("闸阀"), QStringLiteral("Gate valve")}});
}

void AddProperties(DatabaseWriter& writer)
{
    const PropertyRow material{MaterialProperty, QStringLiteral("guid-1"), QStringLiteral("Material"),
        {QStringLiteral("材质"), QStringLiteral("Material")}, {QStringLiteral("一般"), QStringLiteral("General")},
        false, true, 4, 16, QString(), QString()};
    const PropertyRow weight{WeightProperty, QStringLiteral("guid-2"), QStringLiteral("Weight"),
        {QStringLiteral("重量"), QStringLiteral("Weight")}, {QStringLiteral("一般"), QStringLiteral("General")}, false,
        false, 5, 1, QStringLiteral("kg"), QStringLiteral("KGM")};
    const PropertyValueRow brass{1, QStringLiteral("BRASS"), {QStringLiteral("黄铜"), QStringLiteral("Brass")}};
    const PropertyValueRow iron{2, QStringLiteral("IRON"), {QStringLiteral("铸铁"), QStringLiteral("Cast iron")}};
    writer.AddProperty(material);
    writer.AddPropertyValue(material.id, brass);
    writer.AddPropertyValue(material.id, iron);
    writer.AddProperty(weight);
    writer.AddCategoryProperty(SmallCategory, {weight, 2, false, QStringLiteral("DN*2"), {}});
    writer.AddCategoryProperty(SmallCategory, {material, 1, true, QString(), {brass}});
}

} // namespace

void WriteSmallDatabase(const QString& path, const std::vector<SmallComponent>& components)
{
    DatabaseWriter writer = DatabaseWriter::Make(path);
    AddTree(writer);
    AddProperties(writer);
    writer.SetLegendFolder(QStringLiteral("static/legends"));
    writer.AddLegend({21, SmallCategory, 1, QStringLiteral("valve\\plan")});
    writer.AddLegend({22, SmallCategory, 1, QStringLiteral("valve\\plan-2")});
    writer.AddLegend({23, SmallCategory, 2, QStringLiteral("valve\\elevation")});
    qint64 id = 0;
    for (const SmallComponent& component : components) {
        writer.AddComponent({id++, component.code, 3, SmallCategory, component.name, QStringLiteral("released"),
                                QStringLiteral("thumbnails/valve/128.png"), QString()},
            component.types);
    }
    writer.Finish();
}

std::vector<SmallComponent> ManyComponents(int count)
{
    std::vector<SmallComponent> components;
    for (int index = 0; index < count; ++index) {
        const QString number = QString::number(index);
        SmallComponent component{QStringLiteral("C-") + number,
            {QStringLiteral("闸阀 ") + number, QStringLiteral("Gate valve ") + number}, {}};
        for (const char* size : {"DN15", "DN20", "DN25"}) {
            component.types.push_back({QString::fromLatin1(size),
                {{MaterialProperty, QStringLiteral("BRASS")}, {WeightProperty, number + QString::fromLatin1(size)}}});
        }
        components.push_back(std::move(component));
    }
    return components;
}
