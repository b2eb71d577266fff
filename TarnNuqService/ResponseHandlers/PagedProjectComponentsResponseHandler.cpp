#include "ResponseHandlers/PagedProjectComponentsResponseHandler.h"

#include "Common/DebugWarning.h"
#include "EnvSvcs/EnvService.h"
#include "Records/IProjectComponent.h"
#include "ResponseHandlers/JsonReading_p.h"
#include "ResponseHandlers/ProjectComponentReader_p.h"
#include "ResponseHandlers/ThumbnailUrl_p.h"

#include <QJsonArray>

namespace tarnnuq {

namespace {

constexpr WarningSource Source{"ResponseHandlers/PagedProjectComponentsResponseHandler.cpp", __LINE__,
    "tarnnuq::PagedProjectComponentsResponseHandler::HandleData"};

int TotalCount(const QJsonValue& value)
{
    return value.isString() ? value.toString().toInt() : value.toInt(0);
}

} // namespace

PagedProjectComponentsResponseHandler::PagedProjectComponentsResponseHandler()
    : m_staticEndPoint(QString::fromStdWString(EnvService::GetPyxStaticEndPoint()))
{
}

PagedProjectComponentsResponseHandler::~PagedProjectComponentsResponseHandler() = default;

PagedProjectComponentsResponseHandler::PagedProjectComponentsResponseHandler(
    const PagedProjectComponentsResponseHandler& other) = default;

PagedProjectComponentsResponseHandler& PagedProjectComponentsResponseHandler::operator=(
    const PagedProjectComponentsResponseHandler& other) = default;

void PagedProjectComponentsResponseHandler::HandleData(const QJsonValue& data)
{
    m_result = RecordPage<IProjectComponent>();
    const QJsonObject object = data.toObject();
    if (object.isEmpty()) {
        return;
    }
    m_result.TotalCount = TotalCount(object.value(QLatin1String("totalCount")));
    AppendComponents(
        object.value(QLatin1String("list")).toArray(), ThumbnailUrl(m_staticEndPoint), Source, m_result.List);
}

} // namespace tarnnuq
