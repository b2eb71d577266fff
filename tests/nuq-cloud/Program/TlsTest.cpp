#include "nuq-cloud/support/CloudProcess.h"
#include "nuq-cloud/support/TestLibrary.h"

#include "Program/TlsIdentity.h"
#include "support/WaitFor.h"

#include <QFile>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QSslConfiguration>
#include <QTemporaryDir>
#include <fstream>
#include <gtest/gtest.h>
#include <memory>

namespace cloudtest {
namespace {

class Tls : public ::testing::Test
{
protected:
    QStringList Arguments(const QStringList& further = {}) const
    {
        return QStringList{QStringLiteral("--library"), QString::fromStdString(m_library.Path().string()),
                   QStringLiteral("--quiet"), QStringLiteral("--tls"), QStringLiteral("--write-config"),
                   m_folder.path()} +
               further;
    }

    /// Asks with the server's certificate as the only one that is trusted.
    std::unique_ptr<QNetworkReply> Ask(int port, const char* fault = "")
    {
        QNetworkRequest request(
            QUrl(QStringLiteral("https://127.0.0.1:%1/api/v1/projects").arg(QString::number(port))));
        request.setRawHeader("Authorization", "demo-token");
        request.setRawHeader("X-Nuq-Fault", fault);
        QSslConfiguration trust = QSslConfiguration::defaultConfiguration();
        trust.setCaCertificates(
            QSslCertificate::fromPath(m_folder.filePath(QStringLiteral("nuq_env_config/nuq-cloud.pem"))));
        request.setSslConfiguration(trust);
        std::unique_ptr<QNetworkReply> reply(m_manager.get(request));
        QObject::connect(reply.get(), &QNetworkReply::sslErrors, [this](const QList<QSslError>& errors) {
            for (const QSslError& error : errors) {
                m_errors.append(error.error());
            }
        });
        EXPECT_TRUE(testsupport::WaitFor([&reply] { return reply->isFinished(); }));
        return reply;
    }

    const TestLibrary m_library;
    const QTemporaryDir m_folder;
    QNetworkAccessManager m_manager;
    QList<QSslError::SslError> m_errors;
};

TEST_F(Tls, IsSpokenWithACertificateThatClientsCanTrust)
{
    CloudProcess cloud(Arguments());
    ASSERT_TRUE(cloud.WaitUntilReady());
    EXPECT_EQ(cloud.ReadyLine(), "{\"url\":\"https://127.0.0.1:" + std::to_string(cloud.Port()) + "\"}\n");
    const auto reply = Ask(cloud.Port());
    EXPECT_EQ(reply->error(), QNetworkReply::NoError) << reply->errorString().toStdString();
    EXPECT_TRUE(m_errors.isEmpty());
    EXPECT_TRUE(reply->readAll().startsWith("{\"code\":\"success\""));
    QFile file(m_folder.filePath(QStringLiteral("nuq_env_config/pyx_env.json")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().contains("\"https://127.0.0.1:"));
    cloud.Terminate();
    EXPECT_EQ(cloud.WaitForEnd(), 0);
}

TEST_F(Tls, DoesNotObeyTheFaultHeaderByItself)
{
    CloudProcess cloud(Arguments());
    ASSERT_TRUE(cloud.WaitUntilReady());
    EXPECT_EQ(Ask(cloud.Port(), "truncate=1")->error(), QNetworkReply::NoError);
    EXPECT_EQ(Ask(cloud.Port(), "status=500")->error(), QNetworkReply::NoError);
}

TEST_F(Tls, CarriesFaultsOfTheConnectionToo)
{
    CloudProcess cloud(Arguments({QStringLiteral("--allow-faults")}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    EXPECT_EQ(Ask(cloud.Port(), "truncate=1")->error(), QNetworkReply::RemoteHostClosedError);
    EXPECT_EQ(Ask(cloud.Port(), "status=500")->error(), QNetworkReply::InternalServerError);
}

TEST_F(Tls, PresentsCertificatesThatMustBeRefused)
{
    const QList<QPair<QString, QSslError::SslError>> faults = {
        {QStringLiteral("expired"), QSslError::CertificateExpired},
        {QStringLiteral("not-yet-valid"), QSslError::CertificateNotYetValid},
        {QStringLiteral("wrong-host"), QSslError::HostNameMismatch}};
    for (const auto& [fault, error] : faults) {
        CloudProcess cloud(Arguments({QStringLiteral("--tls-fault"), fault}));
        ASSERT_TRUE(cloud.WaitUntilReady());
        m_errors.clear();
        EXPECT_EQ(Ask(cloud.Port())->error(), QNetworkReply::SslHandshakeFailedError) << fault.toStdString();
        EXPECT_TRUE(m_errors.contains(error)) << fault.toStdString();
        m_manager.clearConnectionCache();
    }
}

TEST_F(Tls, UsesAGivenCertificate)
{
    const auto identity = nuqcloud::MakeTlsIdentity("127.0.0.1", nuqcloud::CertificateFault::None);
    const QString certificate = m_folder.filePath(QStringLiteral("certificate.pem"));
    const QString key = m_folder.filePath(QStringLiteral("key.pem"));
    std::ofstream(certificate.toStdString()) << identity.certificatePem;
    std::ofstream(key.toStdString()) << identity.privateKeyPem;
    CloudProcess cloud(Arguments({QStringLiteral("--tls-cert"), certificate, QStringLiteral("--tls-key"), key}));
    ASSERT_TRUE(cloud.WaitUntilReady());
    EXPECT_EQ(Ask(cloud.Port())->error(), QNetworkReply::NoError);
}

TEST_F(Tls, RefusesAFileThatIsNoCertificate)
{
    CloudProcess cloud(Arguments({QStringLiteral("--tls-cert"), QStringLiteral("/dev/null"),
        QStringLiteral("--tls-key"), QStringLiteral("/dev/null")}));
    EXPECT_EQ(cloud.WaitForEnd(), 1);
    EXPECT_EQ(cloud.Errors(), "nuq-cloud: The certificate \"/dev/null\" cannot be read as PEM.\n");
}

} // namespace
} // namespace cloudtest
