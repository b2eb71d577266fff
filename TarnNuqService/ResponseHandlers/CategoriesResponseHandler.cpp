#include "ResponseHandlers/CategoriesResponseHandler.h"

#include "Common/DebugWarning.h"
#include "Common/MakeRecord.h"
#include "EnvSvcs/EnvService.h"
#include "Records/ICategory.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/LeafMarking_p.h"

#include <QJsonArray>

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
    if (!data.isArray()) {
        return;
    }
    const QJsonArray array = data.toArray();
    m_result.reserve(static_cast<std::size_t>(array.size()));
    for (const QJsonValue& element : array) {
        auto spCategory = MakeRecord<ICategory>();
        if (!spCategory) {
            WarnNull(Source, L"spCategory 为空");
            continue;
        }
        ReadCategory(element.toObject(), *spCategory);
        m_result.push_back(std::move(spCategory));
    }
    MarkLeaves(m_result);
}

} // namespace tarnnuq
