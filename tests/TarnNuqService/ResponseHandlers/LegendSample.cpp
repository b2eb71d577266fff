#include "TarnNuqService/ResponseHandlers/LegendSample.h"

namespace testsupport {

using tarnnuq::ILegend;

QJsonObject GoodLegendObject()
{
    return {{QStringLiteral("id"), 42}, {QStringLiteral("name"), QStringLiteral("风机图例")},
        {QStringLiteral("thumbnail"), QStringLiteral("legends/a.png")},
        {QStringLiteral("placeholderType"), QStringLiteral("PROFILE")},
        {QStringLiteral("standardSource"), QStringLiteral("GB/T 50114")}};
}

ILegend GoodLegend()
{
    ILegend legend;
    legend.Id = 42;
    legend.Name = L"风机图例";
    legend.Thumbnail = L"http://static.example/res/legends/a.png";
    legend.Type = ILegend::Profile;
    legend.StandardSource = L"GB/T 50114";
    return legend;
}

const std::vector<MemberRow<ILegend>>& LegendMembers()
{
    static const std::vector<MemberRow<ILegend>> rows{
        {"id", {QJsonValue::Double}, [](ILegend& legend) { legend.Id = 0; }},
        {"name", {QJsonValue::String}, [](ILegend& legend) { legend.Name.clear(); }},
        {"thumbnail", {QJsonValue::String}, [](ILegend& legend) { legend.Thumbnail.clear(); }},
        {"placeholderType", {QJsonValue::Double}, [](ILegend& legend) { legend.Type = ILegend::Unknown; }}};
    return rows;
}

std::vector<ViewRow> ViewRows()
{
    constexpr auto Unknown = ILegend::Unknown;
    constexpr auto Plan = ILegend::Plan;
    constexpr auto Elevation = ILegend::Elevation;
    constexpr auto Profile = ILegend::Profile;
    return {{"Zero", "0", Plan}, {"One", "1", Elevation}, {"Two", "2", Profile}, {"Three", "3", Unknown},
        {"MinusOne", "-1", Unknown}, {"Largest", "2147483647", Unknown}, {"Smallest", "-2147483648", Unknown},
        {"WholeWithFraction", "1.0", Elevation}, {"Fraction", "1.5", Plan}, {"NegativeFraction", "-0.5", Plan},
        {"OneTooLarge", "2147483648", Plan}, {"Beyond64Bits", "1e30", Plan}, {"WrappedToOne", "4294967297", Plan},
        {"PlanText", R"("PLAN")", Plan}, {"ElevationText", R"("ELEVATION")", Elevation},
        {"ProfileText", R"("PROFILE")", Profile}, {"LowerCaseWithBlanks", R"("  plan  ")", Plan},
        {"MixedCaseWithWhiteSpace", R"("\t\nElevaTion\u3000")", Elevation},
        {"LowerCaseProfile", R"("profile")", Profile}, {"NumberAsText", R"("0")", Unknown},
        {"TwoAsText", R"("2")", Unknown}, {"OtherText", R"("SECTION")", Unknown}, {"LongerText", R"("PLANS")", Unknown},
        {"ShorterText", R"("PLA")", Unknown}, {"UnknownText", R"("UNKNOWN")", Unknown}, {"EmptyText", R"("")", Unknown},
        {"BlankWithin", R"("PL AN")", Unknown}, {"True", "true", Unknown}, {"False", "false", Unknown},
        {"Null", "null", Unknown}, {"Array", "[0]", Unknown}, {"Object", "{}", Unknown}};
}

std::vector<LegendIdRow> LegendIdRows()
{
    return {{"Zero", "0", 0}, {"Number", "42", 42}, {"Negative", "-42", -42},
        {"Beyond32Bits", "12345678901", 12345678901}, {"LastExact", "9007199254740992", 9007199254740992},
        {"NextToTheLastExact", "9007199254740993", 9007199254740992}, {"LargeWhole", "1e18", 1000000000000000000},
        {"LargestBelow64Bits", "9223372036854774784", 9223372036854774784}, {"Largest64Bit", "9223372036854775807", 0},
        {"Smallest64Bit", "-9223372036854775808", INT64_MIN}, {"Beyond64Bits", "1e19", 0},
        {"LargestDouble", "1.7976931348623157e308", 0}, {"RoundedUp", "2.6", 3}, {"RoundedDown", "2.4", 2},
        {"HalfAwayFromZero", "2.5", 3}, {"NegativeFraction", "-0.4", 0}, {"Text", R"("42")", 0}, {"True", "true", 0},
        {"Null", "null", 0}, {"Array", "[42]", 0}, {"Object", "{}", 0}};
}

} // namespace testsupport
