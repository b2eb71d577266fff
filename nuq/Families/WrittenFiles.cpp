#include "Families/WrittenFiles.h"

#include "Commands/Texts.h"
#include "Output/VisibleText.h"
#include "Program/Session.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QSaveFile>

namespace nuq {

bool WrittenFiles::Write(const QString& path, const QByteArray& bytes)
{
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit()) {
        m_paths << path;
        return true;
    }
    m_code = m_session.Fail(ExitCode::Failed, "family.file.not-written",
        Say(QT_TRANSLATE_NOOP("Messages", "The file %1 cannot be written: %2.")).arg(path, file.errorString()),
        Say(QT_TRANSLATE_NOOP("Messages", "Check the rights of the folder and the space on its disk.")));
    return false;
}

bool WrittenFiles::Write(const QString& path, const QImage& picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    return Write(path, bytes);
}

ExitCode WrittenFiles::Tell()
{
    if (!m_session.Options().json) {
        for (const QString& path : m_paths)
            m_session.Out().Write(VisibleText(path) + "\n");
        return ExitCode::Done;
    }
    JsonWriter json;
    json.BeginObject();
    json.List("files", m_paths, [](JsonWriter& list, const QString& path) {
        list.BeginObject();
        list.Member("bytes", static_cast<std::int64_t>(QFileInfo(path).size()));
        list.Member("path", path);
        list.EndObject();
    });
    json.Member("schema", kSchema);
    json.EndObject();
    m_session.WriteDocument(json);
    return ExitCode::Done;
}

} // namespace nuq
