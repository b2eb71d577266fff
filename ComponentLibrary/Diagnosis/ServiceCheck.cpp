#include "Diagnosis/ServiceCheck.h"

#include "Diagnosis/ImageProbe.h"
#include "Errors/ErrorTexts.h"
#include "Records/IProjectComponent.h"

#include <QCoreApplication>
#include <QHostAddress>
#include <QHostInfo>
#include <QNetworkProxyFactory>
#include <QTimer>

#include <array>
#include <cstdlib>

namespace componentlibrary {
namespace {

constexpr std::array<const char*, 7> kSteps = {{"network.name", "network.connection", "network.tls", "service.sign_in",
    "service.answer", "service.clock", "static.thumbnail"}};
constexpr qint64 kDoubtfulSeconds = 30;
constexpr qint64 kWrongSeconds = 300;

QString Tr(const char* text)
{
    return QCoreApplication::translate("Diagnosis", text);
}

QString DifferenceText(qint64 seconds)
{
    constexpr qint64 minute = 60;
    constexpr qint64 hour = 60 * minute;
    constexpr qint64 day = 24 * hour;
    // The whole part of the largest unit that gives at least two of it: nobody reads 31536000 s.
    if (seconds < 2 * minute)
        return Tr(QT_TRANSLATE_NOOP("Diagnosis", "%1 s apart from the server's")).arg(seconds);
    if (seconds < 2 * hour)
        return Tr(QT_TRANSLATE_NOOP("Diagnosis", "%1 min apart from the server's")).arg(seconds / minute);
    if (seconds < 2 * day)
        return Tr(QT_TRANSLATE_NOOP("Diagnosis", "%1 h apart from the server's")).arg(seconds / hour);
    return Tr(QT_TRANSLATE_NOOP("Diagnosis", "%1 days apart from the server's")).arg(seconds / day);
}

bool IsTls(ErrorCode code)
{
    return code >= ErrorCode::TlsMissing && code <= ErrorCode::TlsFault;
}

bool IsBehindProxy(const QUrl& url)
{
    const auto proxies = QNetworkProxyFactory::proxyForQuery(QNetworkProxyQuery(url));
    return !proxies.isEmpty() && proxies.first().type() != QNetworkProxy::NoProxy;
}

} // namespace

ServiceCheck::ServiceCheck(Catalogue& catalogue, QObject* parent)
    : QObject(parent), m_catalogue(catalogue), m_address(catalogue.Urls().Projects())
{
    ChannelSettings settings = catalogue.Channel().Settings();
    settings.retry.tries = 1;  // a fault that comes and goes is a finding
    settings.isPacked = false; // and one that cuts answers shows its name only in plain ones
    catalogue.Channel().SetSettings(settings);
}

ServiceCheck::~ServiceCheck() = default;

void ServiceCheck::Start()
{
    QTimer::singleShot(0, this, &ServiceCheck::LookUpName);
}

void ServiceCheck::Add(const char* check, Verdict verdict, const QString& text, const QString& hint)
{
    m_findings.push_back({QString::fromLatin1(check), verdict, text, hint, m_sinceStep.elapsed()});
    m_sinceStep.restart();
    emit Found(m_findings.back().check);
}

void ServiceCheck::AddError(const char* check, const ErrorInfo& error)
{
    Add(check, Verdict::Fault, ErrorCause(error), ErrorHint(error));
}

void ServiceCheck::SkipRest()
{
    SkipRest(Tr(QT_TRANSLATE_NOOP("Diagnosis", "not checked because of the fault above")));
}

void ServiceCheck::SkipRest(const QString& reason)
{
    if (m_hasEnded)
        return;
    m_hasEnded = true;
    for (std::size_t step = m_findings.size(); step < kSteps.size(); ++step)
        Add(kSteps[step], Verdict::Skipped, reason);
    emit Finished();
}

void ServiceCheck::LookUpName()
{
    m_sinceStep.start();
    if (m_catalogue.Channel().Settings().isOffline)
        return SkipRest(Tr(QT_TRANSLATE_NOOP("Diagnosis", "not checked offline")));
    if (!m_address.isValid())
        return SkipRest();
    const QString host = m_address.host();
    if (IsBehindProxy(m_address)) {
        Add("network.name", Verdict::Skipped, Tr(QT_TRANSLATE_NOOP("Diagnosis", "a proxy looks host names up")));
        return AskService();
    }
    if (!QHostAddress(host).isNull()) {
        Add("network.name", Verdict::Good, host);
        return AskService();
    }
    QHostInfo::lookupHost(host, this, &ServiceCheck::OnName);
}

void ServiceCheck::OnName(const QHostInfo& info)
{
    if (info.error() == QHostInfo::NoError && !info.addresses().isEmpty()) {
        Add("network.name", Verdict::Good,
            QStringLiteral("%1 = %2").arg(info.hostName(), info.addresses().first().toString()));
        return AskService();
    }
    ErrorInfo error;
    error.code = ErrorCode::NetworkHostNotFound;
    error.address = m_address.toString();
    AddError("network.name", error);
    SkipRest();
}

void ServiceCheck::AskService()
{
    m_service = m_catalogue.Projects();
    connect(m_service.get(), &RequestBase::Finished, this, &ServiceCheck::OnService);
    m_service->Start();
}

void ServiceCheck::OnService()
{
    const ErrorInfo& error = m_service->Error();
    JudgeConnection(error);
    if (!m_hasEnded)
        JudgeEncryption(error);
    if (!m_hasEnded)
        JudgeSignIn(error);
    if (!m_hasEnded)
        JudgeAnswer(error);
    if (!m_hasEnded)
        JudgeClock();
    if (!m_hasEnded)
        AskComponent();
}

void ServiceCheck::JudgeConnection(const ErrorInfo& error)
{
    const ErrorGroup group = GroupOf(error.code);
    if ((group != ErrorGroup::Network && group != ErrorGroup::Cancelled) || IsTls(error.code))
        return Add("network.connection", Verdict::Good, m_address.authority());
    AddError("network.connection", error);
    SkipRest();
}

void ServiceCheck::JudgeEncryption(const ErrorInfo& error)
{
    if (IsTls(error.code)) {
        AddError("network.tls", error);
        return SkipRest();
    }
    if (m_address.scheme() == QLatin1String("https"))
        return Add("network.tls", Verdict::Good, Tr(QT_TRANSLATE_NOOP("Diagnosis", "certificate accepted")));
    const bool isLocal = m_address.host() == QLatin1String("localhost") || QHostAddress(m_address.host()).isLoopback();
    if (isLocal)
        return Add("network.tls", Verdict::Good, Tr(QT_TRANSLATE_NOOP("Diagnosis", "not needed on this computer")));
    Add("network.tls", Verdict::Warning,
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "The connection is not encrypted; others can read the token.")),
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "Use an https address if the server has one.")));
}

void ServiceCheck::JudgeSignIn(const ErrorInfo& error)
{
    if (GroupOf(error.code) == ErrorGroup::Access) {
        AddError("service.sign_in", error);
        return SkipRest();
    }
    // Any other error came up before or instead of a verdict on the token.
    if (error.IsError())
        return Add("service.sign_in", Verdict::Skipped,
            Tr(QT_TRANSLATE_NOOP("Diagnosis", "not checked because of the fault below")));
    Add("service.sign_in", Verdict::Good, Tr(QT_TRANSLATE_NOOP("Diagnosis", "token accepted")));
}

void ServiceCheck::JudgeAnswer(const ErrorInfo& error)
{
    if (error.IsError()) {
        AddError("service.answer", error);
        return SkipRest();
    }
    Add("service.answer", Verdict::Good,
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "%1 projects")).arg(m_service->Result().size()));
}

void ServiceCheck::JudgeClock()
{
    const std::optional<qint64> difference = m_service->ClockDifference();
    if (!difference)
        return Add(
            "service.clock", Verdict::Skipped, Tr(QT_TRANSLATE_NOOP("Diagnosis", "the server does not tell its time")));
    const qint64 seconds = std::llabs(*difference);
    const QString text = DifferenceText(seconds);
    if (seconds <= kDoubtfulSeconds)
        return Add("service.clock", Verdict::Good, text);
    Add("service.clock", seconds > kWrongSeconds ? Verdict::Fault : Verdict::Warning, text,
        Tr(QT_TRANSLATE_NOOP("Diagnosis", "Set this computer's clock; sign-in and certificates depend on it.")));
}

void ServiceCheck::AskComponent()
{
    ComponentQuery query;
    query.pageSize = 1;
    m_component = m_catalogue.ComponentPage(query);
    connect(m_component.get(), &RequestBase::Finished, this, &ServiceCheck::OnComponent);
    m_component->Start();
}

void ServiceCheck::OnComponent()
{
    const auto& list = m_component->Result().List;
    if (m_component->Error().IsError()) {
        AddError("static.thumbnail", m_component->Error());
        return SkipRest();
    }
    const QUrl address = list.empty() ? QUrl() : QUrl(QString::fromStdWString(list.front()->Thumbnail));
    if (!address.isValid() || address.host().isEmpty()) {
        Add("static.thumbnail", Verdict::Skipped,
            Tr(QT_TRANSLATE_NOOP("Diagnosis", "no component with a thumbnail to try")));
        return SkipRest();
    }
    m_thumbnail = std::make_unique<ImageProbe>(m_catalogue.Channel(), address);
    connect(m_thumbnail.get(), &ImageProbe::Finished, this, &ServiceCheck::OnThumbnail);
    m_thumbnail->Start();
}

void ServiceCheck::OnThumbnail()
{
    if (m_thumbnail->Error().IsError())
        AddError("static.thumbnail", m_thumbnail->Error());
    else
        Add("static.thumbnail", Verdict::Good, m_thumbnail->Error().address);
    SkipRest();
}

} // namespace componentlibrary
