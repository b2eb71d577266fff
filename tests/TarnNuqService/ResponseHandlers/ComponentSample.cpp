#include "TarnNuqService/ResponseHandlers/ComponentSample.h"

#include "Records/IProjectComponent.h"

namespace testsupport {

using tarnnuq::IProjectComponent;

QJsonObject GoodComponentObject()
{
    return {{QStringLiteral("id"), QStringLiteral("C-1")}, {QStringLiteral("version"), 3},
        {QStringLiteral("name"), QStringLiteral("风机")}, {QStringLiteral("categoryId"), QStringLiteral("K-1")},
        {QStringLiteral("categoryCode"), QStringLiteral("10.01")},
        {QStringLiteral("thumbnail"), QStringLiteral("a/b.png")}, {QStringLiteral("source"), 2},
        {QStringLiteral("publicComponentId"), QStringLiteral("P-1")},
        {QStringLiteral("status"), QStringLiteral("released")}};
}

IProjectComponent GoodComponent()
{
    IProjectComponent component;
    component.Id = L"C-1";
    component.Version = 3;
    component.Name = L"风机";
    component.CategoryId = L"K-1";
    component.CategoryCode = L"10.01";
    component.Thumbnail = L"http://static.example/res/a/b.png";
    component.Source = 2;
    component.PublicComponentId = L"P-1";
    component.Status = L"released";
    return component;
}

const std::vector<MemberRow<IProjectComponent>>& ComponentMembers()
{
    using Component = IProjectComponent;
    static const std::vector<MemberRow<Component>> rows{
        {"id", {QJsonValue::String, QJsonValue::Double}, [](Component& component) { component.Id.clear(); }},
        {"version", {QJsonValue::Double}, [](Component& component) { component.Version = 0; }},
        {"name", {QJsonValue::String}, [](Component& component) { component.Name.clear(); }},
        {"categoryId", {QJsonValue::String, QJsonValue::Double},
            [](Component& component) { component.CategoryId.clear(); }},
        {"categoryCode", {QJsonValue::String}, [](Component& component) { component.CategoryCode.clear(); }},
        {"thumbnail", {QJsonValue::String}, [](Component& component) { component.Thumbnail.clear(); }},
        {"source", {QJsonValue::Double}, [](Component& component) { component.Source = 0; }},
        {"publicComponentId", {QJsonValue::String, QJsonValue::Double},
            [](Component& component) { component.PublicComponentId.clear(); }},
        {"status", {QJsonValue::String}, [](Component& component) { component.Status.clear(); }}};
    return rows;
}

std::vector<IdRow> IdRows()
{
    return {{"Text", R"("1024")", L"1024"}, {"TextThatIsNoNumber", R"("C-1")", L"C-1"},
        {"TextAsItIs", R"(" 007.50 ")", L" 007.50 "}, {"EmptyText", R"("")", L""}, {"Number", "1024", L"1024"},
        {"Zero", "0", L"0"}, {"NegativeZero", "-0", L"0"}, {"NegativeZeroWithFraction", "-0.0", L"0"},
        {"Negative", "-12", L"-12"}, {"WholeWithFraction", "1024.0", L"1024"}, {"RoundedUp", "2.6", L"3"},
        {"RoundedDown", "2.4", L"2"}, {"RoundedToMinusZero", "-0.4", L"-0"}, {"HalfAwayFromZero", "0.5", L"1"},
        {"Beyond32Bits", "12345678901", L"12345678901"}, {"LastExact", "9007199254740992", L"9007199254740992"},
        {"NextToTheLastExact", "9007199254740993", L"9007199254740992"},
        {"Largest64Bit", "9223372036854775807", L"9223372036854775808"},
        {"Exponent", "1e22", L"10000000000000000000000"}, {"Null", "null", L""}, {"True", "true", L""},
        {"Array", "[1]", L""}, {"Object", R"({"id":1})", L""}};
}

} // namespace testsupport
