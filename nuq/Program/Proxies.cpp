#include "Program/Proxies.h"

#include <QHostAddress>
#include <QNetworkProxyFactory>

namespace nuq {
namespace {

class ProxyChoice final : public QNetworkProxyFactory
{
public:
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery& query) override
    {
        const QString host = query.peerHostName();
        if (host == QLatin1String("localhost") || QHostAddress(host).isLoopback())
            return {QNetworkProxy(QNetworkProxy::NoProxy)};
        return systemProxyForQuery(query);
    }
};

} // namespace

void InstallProxies()
{
    // Qt takes the factory over and deletes it.
    QNetworkProxyFactory::setApplicationProxyFactory(std::make_unique<ProxyChoice>().release());
}

} // namespace nuq
