#include "support/LoopbackServer.h"
#include "support/ReplyFetcher.h"

#include <QSslConfiguration>
#include <gtest/gtest.h>

using testsupport::FinishedReply;
using testsupport::LoopbackServer;
using testsupport::ReplyFetcher;
using testsupport::ScriptedResponse;

namespace {

class ATlsLoopbackServer : public ::testing::Test
{
protected:
    LoopbackServer m_server{LoopbackServer::Transport::Tls};
    ReplyFetcher m_fetcher;
};

} // namespace

TEST_F(ATlsLoopbackServer, IsRefusedByClientsThatDoNotKnowIt)
{
    const FinishedReply reply = m_fetcher.Get(m_server.Url());
    EXPECT_EQ(reply->error(), QNetworkReply::SslHandshakeFailedError);
    EXPECT_TRUE(m_server.Requests().empty());
}

TEST_F(ATlsLoopbackServer, IsTrustedByClientsThatKnowItsCertificate)
{
    m_server.On("/", ScriptedResponse::Status(200, "secret"));
    QNetworkRequest request(m_server.Url());
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.addCaCertificate(m_server.Certificate());
    request.setSslConfiguration(configuration);
    const FinishedReply reply = m_fetcher.Get(request);
    EXPECT_EQ(reply->error(), QNetworkReply::NoError) << reply->errorString().toStdString();
    EXPECT_EQ(reply->readAll(), "secret");
    EXPECT_EQ(m_server.Url().scheme(), QStringLiteral("https"));
}

TEST_F(ATlsLoopbackServer, HasACertificateOfItsOwn)
{
    const LoopbackServer other(LoopbackServer::Transport::Tls);
    EXPECT_FALSE(m_server.Certificate().isNull());
    EXPECT_NE(m_server.Certificate(), other.Certificate());
    EXPECT_TRUE(LoopbackServer().Certificate().isNull());
}
