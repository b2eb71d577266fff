#include "Families/FamilyValidation.h"

#include "Commands/Texts.h"
#include "Families/FamilyAccess.h"
#include "Families/InterruptibleBuild.h"
#include "FamilyFiles/FamilyCompletion.h"
#include "FamilyFiles/FamilyFileReader.h"
#include "FamilyFiles/FamilyModel.h"
#include "FamilyFiles/Recipe/PlanDigest.h"
#include "Program/Session.h"

#include <QImage>

#include <algorithm>
#include <cmath>
#include <set>

namespace nuq {

using componentlibrary::Verdict;
using familyfiles::FamilyFileContent;
using familyfiles::FamilyModel;
using familyfiles::Reason;

namespace {

constexpr std::size_t kMostFaultsTold = 20;

/// Runs the checks of one file and collects what they find.
class Validator
{
public:
    Validator(Session& session, ValidatedFamily& family) : m_session(session), m_family(family) {}

    void Run(bool isQuick)
    {
        Reason reason;
        const auto content = familyfiles::FamilyFileReader::Read(m_family.file.toStdString(), reason);
        if (!content)
            return AddFault("file", reason);
        AddGood("file", Say(QT_TRANSLATE_NOOP("Messages", "whole, with %1 entries")).arg(content->entries.size() + 1));
        const auto model = FamilyModel::Make(content->manifest, reason);
        if (!model)
            return AddFault("formulas", reason);
        AddGood("formulas", Say(QT_TRANSLATE_NOOP("Messages", "%1 driven parameters")).arg(DrivenCount(*model)));
        CheckTypes(*model);
        if (!content->manifest.geometry.empty() && CheckRecipe(*model) && !isQuick)
            CheckGeometry(*model);
        CheckPictures(*content);
    }

private:
    using Values = std::vector<familyfiles::Value>;

    static std::size_t DrivenCount(const FamilyModel& model) { return model.Formulas().Order().size(); }

    void AddGood(const char* check, const QString& text)
    {
        m_family.findings.push_back({check, Verdict::Good, {}, text});
    }

    void AddFault(const char* check, const Reason& reason)
    {
        m_family.findings.push_back({check, Verdict::Fault, reason, SentenceOf(m_session, reason)});
    }

    void AddWarning(const char* check, const char* code, const QString& text)
    {
        m_family.findings.push_back({check, Verdict::Warning, {code, {}, {}, {}}, text});
    }

    /// A family may have thousands of types that fail for one reason.
    void AddTypeFault(const char* check, const FamilyModel& model, std::size_t type, const Reason& reason)
    {
        if (++m_typeFaults > kMostFaultsTold)
            return;
        const QString name = QString::fromStdString(model.Manifest().types[type].name);
        m_family.findings.push_back(
            {check, Verdict::Fault, reason, QStringLiteral("%1: %2").arg(name, SentenceOf(m_session, reason))});
    }

    void EndTypes(const char* check, const QString& good)
    {
        if (m_typeFaults == 0)
            AddGood(check, good);
        if (m_typeFaults > kMostFaultsTold) {
            const Reason more{"family.more", {}, {}, {}};
            m_family.findings.push_back({check, Verdict::Fault, more,
                Say(QT_TRANSLATE_NOOP("Messages", "and %1 more types")).arg(m_typeFaults - kMostFaultsTold)});
        }
        m_typeFaults = 0;
    }

    void CheckTypes(const FamilyModel& model)
    {
        const std::size_t count = model.Manifest().types.size();
        m_values.resize(count);
        for (std::size_t type = 0; type < count; ++type) {
            Reason reason;
            m_values[type] = model.TypeValues(type, reason);
            if (!m_values[type])
                AddTypeFault("types", model, type, reason);
        }
        EndTypes("types", Say(QT_TRANSLATE_NOOP("Messages", "%1 types with possible values")).arg(count));
    }

    bool CheckRecipe(const FamilyModel& model)
    {
        Reason reason;
        if (model.GeometryRecipe(reason) == nullptr) {
            AddFault("recipe", reason);
            return false;
        }
        AddGood("recipe", Say(QT_TRANSLATE_NOOP("Messages", "can be followed")));
        return true;
    }

    void CheckGeometry(const FamilyModel& model)
    {
        InterruptibleBuild progress(m_session);
        std::set<std::string> built;
        for (std::size_t type = 0; type < m_values.size(); ++type) {
            if (!m_values[type])
                continue;
            progress.SetSubject(QString::fromStdString(model.Manifest().types[type].name));
            CheckBody(model, type, progress, built);
            if (Interruption::HasHappened())
                return;
        }
        EndTypes("geometry", Say(QT_TRANSLATE_NOOP("Messages", "%1 different bodies, all sound")).arg(built.size()));
        if (m_firstVolume)
            CheckRecord(model, *m_firstVolume);
    }

    void CheckBody(
        const FamilyModel& model, std::size_t type, InterruptibleBuild& progress, std::set<std::string>& built)
    {
        Reason reason;
        const auto plan = model.Plan(*m_values[type], reason);
        if (!plan)
            return AddTypeFault("geometry", model, type, reason);
        if (!built.insert(familyfiles::PlanDigest(*plan, {})).second)
            return;
        const auto result = model.Build(*m_values[type], &progress);
        if (!result.solid)
            return AddTypeFault("geometry", model, type, result.reason);
        if (type == 0)
            m_firstVolume = result.solid->Volume();
    }

    /// What the file says about its first type against what has been built now.
    void CheckRecord(const FamilyModel& model, double volume)
    {
        const auto& record = model.Manifest().built;
        if (!record)
            return AddWarning("record", "record.missing",
                Say(QT_TRANSLATE_NOOP("Messages", "The file does not say what came out when it was built.")));
        if (std::fabs(record->volume - volume) > 1e-6 * volume)
            return AddWarning("record", "record.differs",
                Say(QT_TRANSLATE_NOOP("Messages", "The volume was %1 mm3 when the file was written and is %2 mm3 now."))
                    .arg(record->volume, 0, 'f', 1)
                    .arg(volume, 0, 'f', 1));
        AddGood("record", Say(QT_TRANSLATE_NOOP("Messages", "the volume is the recorded one")));
    }

    void CheckPictures(const FamilyFileContent& content)
    {
        if (content.manifest.geometry.empty())
            return;
        for (const int pixels : familyfiles::PreviewSizes) {
            const std::string name = familyfiles::PreviewEntryName(pixels);
            const QImage picture = QImage::fromData(EntryBytes(content, name));
            if (picture.width() != pixels || picture.height() != pixels)
                return AddWarning("pictures", "pictures.missing",
                    Say(QT_TRANSLATE_NOOP("Messages", "The picture %1 is missing or not of its size."))
                        .arg(QString::fromStdString(name)));
        }
        for (const auto view : familyfiles::AllViews) {
            const std::string name = familyfiles::DrawingEntryName(view);
            if (!EntryBytes(content, name).contains("<svg"))
                return AddWarning("pictures", "pictures.missing",
                    Say(QT_TRANSLATE_NOOP("Messages", "The drawing %1 is missing or damaged."))
                        .arg(QString::fromStdString(name)));
        }
        AddGood("pictures", Say(QT_TRANSLATE_NOOP("Messages", "pictures in four sizes and three drawings")));
    }

    static QByteArray EntryBytes(const FamilyFileContent& content, const std::string& name)
    {
        const auto found = std::find_if(
            content.entries.begin(), content.entries.end(), [&name](const auto& entry) { return entry.name == name; });
        return found == content.entries.end() ? QByteArray() : QByteArray::fromStdString(found->bytes);
    }

    Session& m_session;
    ValidatedFamily& m_family;
    std::vector<std::optional<Values>> m_values;
    std::size_t m_typeFaults = 0;
    std::optional<double> m_firstVolume; ///< of the first type's body, mm3
};

} // namespace

bool ValidatedFamily::HasFault() const
{
    return std::any_of(findings.begin(), findings.end(),
        [](const FamilyFinding& finding) { return finding.verdict == Verdict::Fault; });
}

ValidatedFamily ValidateFamily(Session& session, const QString& file, bool isQuick)
{
    ValidatedFamily family;
    family.file = file;
    Validator(session, family).Run(isQuick);
    return family;
}

} // namespace nuq
