#include "ResponseHandlers/CategoriesResponseHandler.h"

#include "EnvSvcs/EnvService.h"
#include "Records/ICategory.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/LeafMarking_p.h"
#include "ResponseHandlers/RecordReading_p.h"

namespace tarnnuq {

namespace {

constexpr WarningSource Source{
    "ResponseHandlers/CategoriesResponseHandler.cpp", __LINE__, "tarnnuq::CategoriesResponseHandler::HandleData"};

void ReadCategory(const QJsonObject& object, ICategory& category)
{
    category.Id = IntMember(object, QLatin1String("id"));
    category.Name = TextMember(object, QLatin1String("name"));
    category.Code = TextMember(object, QLatin1String("code"));
    category.ParentId = IntMember(object, QLatin1String("parentId"));
    category.ParentCode = TextMember(object, QLatin1String("parentCode"));
    category.Weight = object.value(QLatin1String("weight")).toDouble(0.0);
    category.Count = IntMember(object, QLatin1String("count"));
}

} // namespace

CategoriesResponseHandler::CategoriesResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

CategoriesResponseHandler::~CategoriesResponseHandler() = default;

CategoriesResponseHandler::CategoriesResponseHandler(const CategoriesResponseHandler& other) = default;

CategoriesResponseHandler& CategoriesResponseHandler::operator=(const CategoriesResponseHandler& other) = default;

void CategoriesResponseHandler::HandleData(const QJsonValue& data)
{
    m_result.clear();
    AppendRecords(data.toArray(), {Source, L"spCategory 为空"}, m_result, ReadCategory);
    MarkLeaves(m_result);
}

} // namespace tarnnuq
