#pragma once

#include "Requests/ComponentQuery.h"

#include <QString>
#include <QUrl>

#include <utility>
#include <vector>

namespace componentlibrary {

/**
 * The addresses of the catalogue service; the only place that knows its paths and parameters.
 *
 * Every value is percent-encoded, so a keyword, an id or a family type name arrives as it was typed. An address is
 * invalid (QUrl::isValid) when the endpoint is empty or is not an http or https address, or when an id cannot be part
 * of a path (IsUsableId).
 */
class CatalogueUrls
{
public:
    /** @param apiEndPoint base address of the interface, with or without a slash at its end */
    explicit CatalogueUrls(const QString& apiEndPoint);

    /** Whether a text can stand as one part of a path: not empty, not "." and not "..". */
    static bool IsUsableId(const QString& id);

    /** The flat list of all categories with their counts. @param major "" for all, else "0", "1", "2" */
    QUrl Categories(const QString& keyword, const QString& major, const QString& version) const;

    QUrl ComponentPage(const ComponentQuery& query) const;

    /** A component with its details; of the public catalogue, or of a project when projectId is not empty. */
    QUrl Component(const QString& componentId, const QString& projectId) const;

    /** Whether a public component exists in a project. */
    QUrl Existence(const QString& publicComponentId, const QString& projectId) const;

    /** All family types of a component. */
    QUrl Specifications(const QString& componentId, const QString& projectId) const;

    /** One family type of a component. */
    QUrl Specification(const QString& componentId, const QString& familyType, const QString& projectId) const;

    /** The property template of a category. */
    QUrl PropertyTemplate(const QString& categoryCode) const;

    QUrl Projects() const;

    /** @param view -1 for all views, 0 plan, 1 elevation, 2 profile */
    QUrl Legends(const QString& categoryCode, int view, int page, int pageSize, const QString& version) const;

    /** How the categories map onto those of the component editor. */
    QUrl Mappings(const QString& version) const;

private:
    using Parameters = std::vector<std::pair<const char*, QString>>;

    QUrl Build(const QStringList& segments, const Parameters& parameters = {}) const;
    static QStringList ComponentPath(const QString& componentId, const QString& projectId);

    QString m_apiEndPoint;
};

} // namespace componentlibrary
