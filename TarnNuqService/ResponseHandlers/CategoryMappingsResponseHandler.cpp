#include "ResponseHandlers/CategoryMappingsResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/ICategoryMapping.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/RecordReading_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/CategoryMappingsResponseHandler.cpp", __LINE__,
    "tarnnuq::CategoryMappingsResponseHandler::HandleData"};

ICategoryMapping::MajorType MajorOfNumber(int number)
{
    const bool known = number >= ICategoryMapping::Plumbing && number <= ICategoryMapping::Electrical;
    return known ? static_cast<ICategoryMapping::MajorType>(number) : ICategoryMapping::Unknown;
}

std::vector<std::wstring> ReadNames(const QJsonArray& array)
{
    std::vector<std::wstring> names;
    names.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue& name : array) {
        names.push_back(WideText(name.toString()));
    }
    return names;
}

void ReadMapping(const QJsonObject& object, ICategoryMapping& mapping)
{
    mapping.ComponentEditorCategoryId = TextMember(object, QLatin1String("componentEditorCategoryId"));
    mapping.CategoryId = IntMember(object, QLatin1String("categoryId"));
    mapping.CategoryCode = TextMember(object, QLatin1String("categoryCode"));
    mapping.Names = ReadNames(object.value(QLatin1String("name")).toArray());
    mapping.Major = MajorOfNumber(IntMember(object, QLatin1String("major")));
}

} // namespace

CategoryMappingsResponseHandler::CategoryMappingsResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

CategoryMappingsResponseHandler::~CategoryMappingsResponseHandler() = default;

CategoryMappingsResponseHandler::CategoryMappingsResponseHandler(
    const CategoryMappingsResponseHandler& other) = default;

CategoryMappingsResponseHandler& CategoryMappingsResponseHandler::operator=(
    const CategoryMappingsResponseHandler& other) = default;

void CategoryMappingsResponseHandler::HandleData(const QJsonValue& data)
{
    m_result.clear();
    AppendRecords(data.toArray(), {Source, L"spCategoryMapping 为空"}, m_result, ReadMapping);
}

} // namespace tarnnuq
