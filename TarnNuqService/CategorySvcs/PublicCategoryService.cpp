#include "CategorySvcs/PublicCategoryService.h"

#include "Auth/RequestAuthorization.h"
#include "CategorySvcs/CategoryIdIndex_p.h"
#include "CategorySvcs/DecimalId_p.h"
#include "CategorySvcs/WeightOrder_p.h"
#include "Common/DebugWarning.h"
#include "Common/ReleaseReply.h"
#include "EnvSvcs/EnvService.h"
#include "ResponseHandlers/RequestErrorText_p.h"
#include "tarnnuq/AppService.h"
#include "tarnnuq/INuqLogger.h"
#include "tarnnuq/NuqLogObject.h"
#include "tarnnuq/UrlEncoder.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QSet>
#include <QUrl>
#include <algorithm>
#include <optional>

namespace tarnnuq {

namespace {

constexpr WarningSource RequestSource{
    "CategorySvcs/PublicCategoryService.cpp", __LINE__, "tarnnuq::PublicCategoryService::RequestCategories"};

// Trees are a few levels deep, and scanning for so few parents is cheaper than an index. Longer chains come from data
// that is no tree, and must not take a scan of the list for each of its categories.
constexpr int LongestScannedChain = 32;

QString MajorText()
{
    const int major = AppService::GetMajor();
    return major == -1 ? QString() : QString::number(major, 10);
}

void LogRequestError(const QNetworkReply& reply)
{
    INuqLogger::Get()->Error(RequestErrorText("request error. code:%1, message:%2", reply));
}

QByteArray TakeBody(QNetworkReply& reply)
{
    if (reply.error() != QNetworkReply::NoError) {
        LogRequestError(reply);
    }
    const QByteArray body = reply.readAll();
    INuqLogger::Get()->Info(QString::fromUtf8(body.constData(), body.size()));
    return body;
}

void LogFailedStep()
{
    try {
        INuqLogger::Get()->Error("category reply not applied in full.");
    } catch (...) {
        return; // No memory is left to tell it with.
    }
}

/// Runs one step of handling a reply, which is done in a signal of the reply: no exception may cross that.
template <typename Step>
void Guard(Step&& step) noexcept
{
    try {
        step();
    } catch (...) {
        LogFailedStep();
    }
}

ICategory ReadCategory(const QJsonObject& object)
{
    ICategory category;
    category.Id = object.value(QLatin1String("id")).toInt();
    category.ParentId = object.value(QLatin1String("parentId")).toInt();
    category.Name = object.value(QLatin1String("name")).toString().toStdWString();
    category.Weight = object.value(QLatin1String("weight")).toDouble();
    category.Count = object.value(QLatin1String("count")).toInt();
    return category;
}

} // namespace

PublicCategoryService* PublicCategoryService::s_pInstance = nullptr;

PublicCategoryService* PublicCategoryService::Get()
{
    if (!s_pInstance) {
        s_pInstance = new PublicCategoryService;
    }
    return s_pInstance;
}

PublicCategoryService::PublicCategoryService()
    : m_spNetworkManager(std::make_shared<QNetworkAccessManager>()),
      m_apiEndPoint(QString::fromStdWString(EnvService::GetPyxApiEndPoint()))
{
    // By the name in the signal's signature, so that queued connections and signal spies can copy the list.
    qRegisterMetaType<QList<ICategory>>("QList<ICategory>");
}

PublicCategoryService::~PublicCategoryService() = default;

// NOLINTNEXTLINE(performance-unnecessary-value-param)
void PublicCategoryService::RequestCategories(QString keyword)
{
    const QString url = CategoriesUrl(keyword);
    INuqLogger::Get()->Info(QString(QLatin1String("request:") + url));
    QNetworkRequest request;
    request.setUrl(QUrl(url, QUrl::TolerantMode));
    ConfigureAuthorization(request);
    if (!m_spNetworkManager) {
        WarnNull(RequestSource, L"m_spNetworkManager 为空");
        return;
    }
    QNetworkReply* pReply = m_spNetworkManager->get(request);
    if (!pReply) {
        WarnNull(RequestSource, L"pReply 为空");
        return;
    }
    connect(pReply, &QNetworkReply::finished, this, [this, pReply] { HandleReply(*pReply); });
}

ICategory* PublicCategoryService::GetCategoryById(std::wstring id) // NOLINT(performance-unnecessary-value-param)
{
    const std::optional<int> number = ParseDecimalId(id);
    const int index = number ? FindById(*number) : -1;
    return index < 0 ? nullptr : &m_categories[index];
}

// NOLINTNEXTLINE(performance-unnecessary-value-param)
QList<ICategory*> PublicCategoryService::GetFullCategories(std::wstring id)
{
    QList<ICategory*> chain;
    QSet<ICategory*> taken;
    std::optional<CategoryIdIndex> index;
    const auto find = [this, &index](int parentId) -> ICategory* {
        if (index) {
            return index->Find(parentId);
        }
        const int found = FindById(parentId);
        return found < 0 ? nullptr : &m_categories[found];
    };
    ICategory* category = GetCategoryById(id);
    // A cycle of parent ids ends before a category that the chain holds already.
    while (category && !taken.contains(category)) {
        taken.insert(category);
        chain.prepend(category);
        if (chain.size() == LongestScannedChain) {
            index.emplace(m_categories);
        }
        category = category->ParentId == 0 ? nullptr : find(category->ParentId);
    }
    return chain;
}

void PublicCategoryService::ConfigureAuthorization(QNetworkRequest& request) const
{
    SetEnvironmentAwareAuthorization(request);
}

QString PublicCategoryService::CategoriesUrl(const QString& keyword) const
{
    const QString major = MajorText();
    const std::wstring version = AppService::Get()->GeFormattedProductVersion(L"0.0");
    const QString url = QStringLiteral("%1/v3/categories?component_type=system&major=%2&software_version=%3")
                            .arg(m_apiEndPoint, major, QString::fromStdWString(version));
    return keyword.isEmpty() ? url : url + QLatin1String("&keyword=") + UrlEncoder::Encode(keyword, "utf-8");
}

void PublicCategoryService::HandleReply(QNetworkReply& reply)
{
    // A body that cannot even be logged counts as none, so that a refresh ends like any that failed.
    QByteArray body;
    Guard([&] { body = TakeBody(reply); });
    Guard([&] {
        ApplyBody(body);
        SortByWeight(m_categories);
    });
    Q_EMIT OnCategoriesUpdated(m_categories);
    ReleaseReply(reply);
}

void PublicCategoryService::ApplyBody(const QByteArray& body)
{
    const bool firstLoad = m_categories.isEmpty();
    // Before the body is looked at: a refresh that fails leaves every count at 0.
    ResetCounts();
    QJsonParseError parseError;
    const QJsonObject envelope = QJsonDocument::fromJson(body, &parseError).object();
    const QJsonValue data = envelope.value(QLatin1String("data"));
    const bool usable = parseError.error == QJsonParseError::NoError &&
                        envelope.value(QLatin1String("code")).toString() == QLatin1String("success") && data.isArray();
    if (!usable) {
        return;
    }
    firstLoad ? LoadCategories(data.toArray()) : RefreshCounts(data.toArray());
}

void PublicCategoryService::LoadCategories(const QJsonArray& array)
{
    // A list that was filled in part would never be completed: later replies bring counts only.
    QList<ICategory> loaded;
    loaded.reserve(array.size());
    for (const QJsonValue& element : array) {
        loaded.append(ReadCategory(element.toObject()));
    }
    m_categories.swap(loaded);
}

void PublicCategoryService::RefreshCounts(const QJsonArray& array)
{
    const CategoryIdIndex index(m_categories);
    for (const QJsonValue& element : array) {
        const QJsonObject object = element.toObject();
        if (ICategory* category = index.Find(object.value(QLatin1String("id")).toInt())) {
            category->Count = object.value(QLatin1String("count")).toInt();
        }
    }
}

void PublicCategoryService::ResetCounts()
{
    for (ICategory& category : m_categories) {
        category.Count = 0;
    }
}

int PublicCategoryService::FindById(int id) const
{
    const auto found = std::find_if(
        m_categories.cbegin(), m_categories.cend(), [id](const ICategory& category) { return category.Id == id; });
    return found == m_categories.cend() ? -1 : static_cast<int>(found - m_categories.cbegin());
}

} // namespace tarnnuq
