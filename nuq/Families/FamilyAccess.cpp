#include "Families/FamilyAccess.h"

#include "Commands/Texts.h"
#include "Families/InterruptibleBuild.h"
#include "Program/Session.h"

#include <QStringList>

namespace nuq {

using familyfiles::FamilyModel;
using familyfiles::FamilyShape;
using familyfiles::Reason;

namespace {

constexpr int kMostTypesNamed = 12;

bool IsChinese(const Session& session)
{
    return session.Options().language == QLatin1String("zh");
}

QString Preferred(const std::string& wanted, const std::string& other)
{
    return QString::fromStdString(wanted.empty() ? other : wanted);
}

ExitCode ExitCodeOf(const Reason& reason)
{
    return reason.code == "file.not-found" ? ExitCode::NotFound : ExitCode::Failed;
}

ExitCode FailWithoutType(Session& session, const FamilyModel& model, const QString& name)
{
    QStringList names;
    for (const auto& type : model.Manifest().types) {
        if (names.size() == kMostTypesNamed) {
            names << QStringLiteral("...");
            break;
        }
        names << QString::fromStdString(type.name);
    }
    return session.Fail(ExitCode::NotFound, "family.no-such-type",
        Say(QT_TRANSLATE_NOOP("Messages", "The family has no type \"%1\".")).arg(name),
        Say(QT_TRANSLATE_NOOP("Messages", "Its types: %1")).arg(names.join(QStringLiteral(", "))));
}

} // namespace

QString TextOf(const Session& session, const familyfiles::BilingualText& text)
{
    return IsChinese(session) ? Preferred(text.chinese, text.english) : Preferred(text.english, text.chinese);
}

QString SentenceOf(const Session& session, const Reason& reason)
{
    return IsChinese(session) ? Preferred(reason.chinese, reason.english) : Preferred(reason.english, reason.chinese);
}

void WriteReason(JsonWriter& json, const Session& session, const Reason& reason)
{
    if (!reason) {
        json.Null();
        return;
    }
    json.BeginObject();
    json.Member("code", reason.code);
    json.Member("subject", reason.subject);
    json.Member("text", SentenceOf(session, reason));
    json.EndObject();
}

ExitCode FailWith(Session& session, const Reason& reason)
{
    if (Interruption::HasHappened()) {
        componentlibrary::ErrorInfo error;
        error.code = componentlibrary::ErrorCode::Cancelled;
        return session.Fail(error);
    }
    return session.Fail(ExitCodeOf(reason), ("family." + reason.code).c_str(), SentenceOf(session, reason));
}

std::unique_ptr<FamilyModel> OpenFamily(Session& session, const QString& path, ExitCode& code)
{
    Reason reason;
    auto model = FamilyModel::Open(path.toStdString(), reason);
    if (!model)
        code = FailWith(session, reason);
    return model;
}

std::optional<std::size_t> TypeIndex(const FamilyModel& model, const QString& name)
{
    const auto& types = model.Manifest().types;
    for (std::size_t index = 0; index < types.size(); ++index) {
        if (types[index].name == name.toStdString())
            return index;
    }
    return std::nullopt;
}

std::optional<std::size_t> FindType(Session& session, const FamilyModel& model, const QString& name, ExitCode& code)
{
    if (name.isEmpty())
        return 0;
    const std::optional<std::size_t> index = TypeIndex(model, name);
    if (!index)
        code = FailWithoutType(session, model, name);
    return index;
}

std::optional<FamilyShape> BuildShape(Session& session, const QString& path, const QString& typeName, ExitCode& code)
{
    const auto model = OpenFamily(session, path, code);
    const auto type = model ? FindType(session, *model, typeName, code) : std::nullopt;
    if (!type)
        return std::nullopt;
    Reason reason;
    InterruptibleBuild progress(session);
    const auto values = model->TypeValues(*type, reason);
    std::optional<FamilyShape> shape;
    if (values)
        shape = FamilyShape::Build(*model, *values, reason, &progress);
    if (!shape) {
        progress.Clear();
        code = FailWith(session, reason);
    }
    return shape;
}

} // namespace nuq
