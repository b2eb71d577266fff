#include "TarnNuqService/ResponseHandlers/HandlerFixture.h"

#include "EnvSvcs/EnvService.h"

namespace testsupport {

QByteArray SuccessBody(const QByteArray& data)
{
    return R"({"code":"success","message":"","data":)" + data + "}";
}

HandlerFixture::HandlerFixture()
{
    folder.WriteEndPoints(QStringLiteral("http://api.example"), QString::fromLatin1(StaticEndPoint));
    host.appService.appDir = folder.AppDir();
    EXPECT_EQ(tarnnuq::EnvService::GetPyxStaticEndPoint(), QString::fromLatin1(StaticEndPoint).toStdWString());
    host.logger.Clear();
}

FinishedReply HandlerFixture::Fetch(const ScriptedResponse& response)
{
    return Fetch(response, QStringLiteral("/api/v1/things/%1?page=1").arg(++m_fetched));
}

FinishedReply HandlerFixture::Fetch(const ScriptedResponse& response, const QString& target)
{
    const QUrl url = server.Url(target);
    server.On(url.toEncoded(QUrl::RemoveScheme | QUrl::RemoveAuthority), response);
    return fetcher.Get(url);
}

FinishedReply HandlerFixture::FetchBody(const QByteArray& body)
{
    FinishedReply reply = Fetch(ScriptedResponse::Json(body));
    EXPECT_EQ(reply->error(), QNetworkReply::NoError) << reply->errorString().toStdString();
    return reply;
}

} // namespace testsupport
