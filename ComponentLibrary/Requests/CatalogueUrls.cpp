#include "Requests/CatalogueUrls.h"

#include <QStringList>

namespace componentlibrary {
namespace {

QString WithoutSlashes(QString text)
{
    while (text.endsWith(QLatin1Char('/')))
        text.chop(1);
    return text;
}

bool IsWebAddress(const QUrl& url)
{
    const QString scheme = url.scheme();
    return (scheme == QLatin1String("http") || scheme == QLatin1String("https")) && !url.host().isEmpty();
}

QByteArray QueryText(const std::vector<std::pair<const char*, QString>>& parameters)
{
    QByteArray text;
    for (const auto& [name, value] : parameters) {
        text += text.isEmpty() ? '?' : '&';
        text += name;
        text += '=';
        text += QUrl::toPercentEncoding(value);
    }
    return text;
}

} // namespace

CatalogueUrls::CatalogueUrls(const QString& apiEndPoint) : m_apiEndPoint(WithoutSlashes(apiEndPoint.trimmed())) {}

bool CatalogueUrls::IsUsableId(const QString& id)
{
    return !id.isEmpty() && id != QLatin1String(".") && id != QLatin1String("..");
}

QUrl CatalogueUrls::Build(const QStringList& segments, const Parameters& parameters) const
{
    const QUrl base(m_apiEndPoint, QUrl::StrictMode);
    if (!base.isValid() || !IsWebAddress(base) || base.hasQuery() || base.hasFragment())
        return QUrl();
    QByteArray text = base.toEncoded();
    for (const QString& segment : segments) {
        if (!IsUsableId(segment))
            return QUrl();
        text += '/';
        text += QUrl::toPercentEncoding(segment);
    }
    return QUrl::fromEncoded(text + QueryText(parameters), QUrl::StrictMode);
}

QStringList CatalogueUrls::ComponentPath(const QString& componentId, const QString& projectId)
{
    if (projectId.isEmpty())
        return {QStringLiteral("v1"), QStringLiteral("components"), componentId};
    return {QStringLiteral("v1"), QStringLiteral("projects"), projectId, QStringLiteral("components"), componentId};
}

QUrl CatalogueUrls::Categories(const QString& keyword, const QString& major, const QString& version) const
{
    Parameters parameters = {
        {"component_type", QStringLiteral("system")}, {"major", major}, {"software_version", version}};
    if (!keyword.isEmpty())
        parameters.emplace_back("keyword", keyword);
    return Build({QStringLiteral("v3"), QStringLiteral("categories")}, parameters);
}

QUrl CatalogueUrls::ComponentPage(const ComponentQuery& query) const
{
    QStringList path = {QStringLiteral("v1"), QStringLiteral("components")};
    if (!query.projectId.isEmpty())
        path = QStringList{
            QStringLiteral("v1"), QStringLiteral("projects"), query.projectId, QStringLiteral("components")};
    return Build(path, {{"category_code", query.categoryCode}, {"keyword", query.keyword},
                           {"page", QString::number(query.page)}, {"page_size", QString::number(query.pageSize)}});
}

QUrl CatalogueUrls::Component(const QString& componentId, const QString& projectId) const
{
    QStringList path = ComponentPath(componentId, projectId);
    if (!projectId.isEmpty())
        path << QStringLiteral("detail");
    return Build(path);
}

QUrl CatalogueUrls::Existence(const QString& publicComponentId, const QString& projectId) const
{
    return Build(ComponentPath(QStringLiteral("existence"), projectId), {{"public_component_id", publicComponentId}});
}

QUrl CatalogueUrls::Specifications(const QString& componentId, const QString& projectId) const
{
    return Build(ComponentPath(componentId, projectId) << QStringLiteral("specifications"));
}

QUrl CatalogueUrls::Specification(const QString& componentId, const QString& familyType, const QString& projectId) const
{
    return Build(ComponentPath(componentId, projectId) << QStringLiteral("specifications") << familyType);
}

QUrl CatalogueUrls::PropertyTemplate(const QString& categoryCode) const
{
    return Build({QStringLiteral("v1"), QStringLiteral("categories"), categoryCode, QStringLiteral("properties")});
}

QUrl CatalogueUrls::Projects() const
{
    return Build({QStringLiteral("v1"), QStringLiteral("projects")});
}

QUrl CatalogueUrls::Legends(const QString& categoryCode, int view, int page, int pageSize, const QString& version) const
{
    return Build({QStringLiteral("v1"), QStringLiteral("metadata"), QStringLiteral("placeholders")},
        {{"category_code", categoryCode}, {"type", QString::number(view)}, {"page_size", QString::number(pageSize)},
            {"page", QString::number(page)}, {"software_version", version}});
}

QUrl CatalogueUrls::Mappings(const QString& version) const
{
    return Build(
        {QStringLiteral("v1"), QStringLiteral("hox_design"), QStringLiteral("category"), QStringLiteral("mappings")},
        {{"software_version", version}});
}

} // namespace componentlibrary
