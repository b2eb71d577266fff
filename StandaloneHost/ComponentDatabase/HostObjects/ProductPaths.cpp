#include "ComponentDatabase/HostObjects/ProductPaths.h"

#include <QFileInfo>

namespace componentdatabase {

std::wstring ProductPaths::DoGetCurrentProductDBFilePath() const
{
    return m_database.Path().toStdWString();
}

std::wstring ProductPaths::DoGetCurrentProduct2DFolderPath() const
{
    const ComponentDatabase* const database = m_database.Get();
    if (database == nullptr) {
        return {};
    }
    DatabaseReason reason;
    const QString folder = database->LegendFolder(reason);
    m_database.Tell(reason);
    return folder.isEmpty() ? std::wstring()
                            : (QFileInfo(m_database.Path()).absolutePath() + QLatin1Char('/') + folder).toStdWString();
}

} // namespace componentdatabase
