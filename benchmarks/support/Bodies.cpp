#include "Bodies.h"

#include <functional>
#include <random>

namespace bench {

namespace {

using Random = std::mt19937;

int Below(Random& random, int bound)
{
    // Not a distribution: those differ between standard libraries.
    return static_cast<int>(random() % static_cast<unsigned>(bound));
}

QByteArray Number(int number)
{
    return QByteArray::number(number);
}

QByteArray Envelope(const QByteArray& data)
{
    return "{\"code\":\"success\",\"message\":\"\",\"data\":" + data + "}";
}

QByteArray Array(int count, const std::function<QByteArray(int)>& element)
{
    QByteArray array("[");
    for (int i = 0; i < count; ++i) {
        array += (i == 0 ? "" : ",") + element(i);
    }
    return array + "]";
}

QByteArray Name(Random& random)
{
    static const char* const words[] = {"给水", "排水", "消防", "通风", "空调", "阀门", "水泵", "风机", "桥架", "灯具"};
    return QByteArray(words[Below(random, 10)]) + words[Below(random, 10)] + Number(Below(random, 1000));
}

// Node i's parent is (i - 1) / 4: seven levels at five thousand nodes.
QByteArray CategoryCode(int index)
{
    return index < 0 ? QByteArray() : "C" + QByteArray::number(100000 + index);
}

int ParentIndex(int index)
{
    return index == 0 ? -1 : (index - 1) / 4;
}

QByteArray Category(Random& random, int index, int weight)
{
    const int parent = ParentIndex(index);
    return "{\"id\":" + Number(index + 1) + ",\"name\":\"" + Name(random) + "\",\"code\":\"" + CategoryCode(index) +
           "\",\"parentId\":" + Number(parent + 1) + ",\"parentCode\":\"" + CategoryCode(parent) +
           "\",\"weight\":" + Number(weight) + ",\"count\":" + Number(Below(random, 500)) +
           ",\"icon\":\"category.png\",\"level\":" + Number(1 + index % 7) + ",\"enabled\":true}";
}

QByteArray Mapping(Random& random, int index)
{
    return "{\"componentEditorCategoryId\":\"E" + Number(10000 + index) + "\",\"categoryId\":" + Number(index + 1) +
           ",\"categoryCode\":\"" + CategoryCode(index) + "\",\"name\":[\"" + Name(random) + "\",\"" + Name(random) +
           "\"],\"major\":" + Number(index % 4) + "}";
}

QByteArray ParameterName(int index)
{
    return "参数" + QByteArray::number(10000 + index);
}

QByteArray Definition(Random& random, int index)
{
    return "{\"code\":\"P" + Number(10000 + index) +
           "\",\"formula\":\"\",\"groupName\":\"几何尺寸\",\"id\":\"0f8fad5b-d9cb-469f-a165-" +
           QByteArray::number(100000000000LL + index) + "\",\"isDriveParameter\":" + (index % 2 ? "true" : "false") +
           ",\"isEssential\":true,\"isGeometry\":true,\"isInstance\":false,\"isOutputParameter\":false,\"isStandard\":"
           "true,"
           "\"name\":\"" +
           ParameterName(index) +
           "\",\"parameterDisplayType\":\"Length\",\"parameterType\":\"Number\",\"unit\":\"mm\",\"unitCode\":\"MM\","
           "\"valueType\":\"" +
           (index % 5 ? "Number" : "Logic") + "\",\"values\":{\"a\":\"" + Name(random) +
           "\"},\"isBuildIn\":false,\"isShared\":true,\"isFromFile\":false,\"sort\":" + Number(index) + "}";
}

QByteArray FamilyType(Random& random, int index, int parameters)
{
    return "{\"name\":\"DN" + Number(15 + index) + "\",\"parameterValues\":" +
           Array(parameters,
               [&random](int parameter) {
                   const QByteArray value = parameter % 5 ? Number(Below(random, 5000)) : QByteArray(" TRUE ");
                   return "{\"name\":\"" + ParameterName(parameter) + "\",\"value\":\"" + value + "\"}";
               }) +
           "}";
}

QByteArray Definitions(Random& random, int count)
{
    return Array(count, [&random](int index) { return Definition(random, index); });
}

QByteArray UnreadMembers(int count)
{
    QByteArray members;
    for (int i = 0; i < count; ++i) {
        members += ",\"extra" + Number(i) + "\":\"value " + Number(i) + " 说明文字\"";
    }
    return members;
}

QByteArray ComponentMembers(Random& random, int index)
{
    return "\"id\":\"" + Number(1000000 + index) + "\",\"version\":" + Number(1 + index % 9) + ",\"name\":\"" +
           Name(random) + "\",\"categoryId\":" + Number(Below(random, 10000)) + ",\"categoryCode\":\"" +
           CategoryCode(Below(random, 10000)) + "\",\"thumbnail\":\"thumbnails/gate-valve/128.png\",\"source\":1," +
           "\"publicComponentId\":" + Number(2000000 + index) + ",\"status\":\"published\"" + UnreadMembers(21);
}

QByteArray ComponentObject(Random& random, int index)
{
    return "{" + ComponentMembers(random, index) + "}";
}

QByteArray ComponentArray(int count)
{
    Random random;
    return Array(count, [&random](int index) { return ComponentObject(random, index); });
}

QByteArray LegendArray(int count)
{
    Random random;
    return Array(count, [&random](int index) {
        return "{\"id\":" + QByteArray::number(12345678901LL + index) + ",\"name\":\"" + Name(random) +
               "\",\"thumbnail\":\"legends/gate-valve/plan.png\",\"placeholderType\":" +
               (index % 2 ? Number(index % 3) : QByteArray("\"ELEVATION\"")) +
               ",\"standardSource\":\"GB/T 50106\",\"note\":\"\"}";
    });
}

QByteArray Page(int count, const QByteArray& list)
{
    return Envelope("{\"totalCount\":" + Number(count) + ",\"list\":" + list + "}");
}

} // namespace

QByteArray Bodies::Categories(int count)
{
    Random random;
    return Envelope(Array(count, [&random](int index) { return Category(random, index, Below(random, 100000)); }));
}

QByteArray Bodies::CategoriesInOrder(int count)
{
    Random random;
    return Envelope(Array(count, [&random](int index) { return Category(random, index, index); }));
}

QByteArray Bodies::CategoryCounts(int count)
{
    Random random;
    return Envelope(Array(count, [&random](int index) {
        return "{\"id\":" + Number(index + 1) + ",\"count\":" + Number(Below(random, 500)) + "}";
    }));
}

QByteArray Bodies::CategoryMappings(int count)
{
    Random random;
    return Envelope(Array(count, [&random](int index) { return Mapping(random, index); }));
}

QByteArray Bodies::CategoryProperty(int count)
{
    Random random;
    return Envelope(
        "{\"categoryId\":12,\"categoryName\":\"闸阀\",\"propertyList\":" + Definitions(random, count) + "}");
}

QByteArray Bodies::Specification(int count)
{
    Random random;
    return Envelope(
        "{\"parameters\":" + Definitions(random, count) + ",\"familyType\":" + FamilyType(random, 0, count) + "}");
}

QByteArray Bodies::Specifications(int count, int parameters)
{
    Random random;
    return Envelope("{\"parameters\":" + Definitions(random, parameters) + ",\"familyTypes\":" +
                    Array(count, [&random, parameters](int index) { return FamilyType(random, index, parameters); }) +
                    "}");
}

QByteArray Bodies::Component()
{
    Random random;
    return Envelope(ComponentObject(random, 0));
}

QByteArray Bodies::Components(int count)
{
    return Envelope(ComponentArray(count));
}

QByteArray Bodies::ComponentPage(int count)
{
    return Page(count, ComponentArray(count));
}

QByteArray Bodies::DetailedComponent(int count)
{
    Random random;
    const QByteArray sizes = Array(4, [](int index) {
        const QByteArray size = Number(64 << index);
        return "{\"size\":\"" + size + "\",\"thumbnails\":[\"thumbnails/gate-valve/" + size + ".png\"]}";
    });
    return Envelope("{" + ComponentMembers(random, 0) +
                    ",\"familyTypeNames\":" + Array(count, [](int index) { return "\"DN" + Number(index) + "\""; }) +
                    ",\"thumbnailSizes\":" + sizes + "}");
}

QByteArray Bodies::ExistingCheck()
{
    return Envelope("{\"exist\":true,\"version\":3}");
}

QByteArray Bodies::Legends(int count)
{
    return Envelope(LegendArray(count));
}

QByteArray Bodies::LegendPage(int count)
{
    return Page(count, LegendArray(count));
}

} // namespace bench
