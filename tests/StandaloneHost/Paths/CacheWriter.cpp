// Started by UrlCacheProcessesTest: CacheWriter FOLDER LETTER COUNT keeps contents of that letter COUNT times under a
// few URLs, and reads after each what is kept there now. Ends with 1 when that is no whole content.

#include "Paths/CacheContent.h"
#include "Paths/UrlCache.h"

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        return 2;
    }
    const standalone::UrlCache cache(arguments.at(1));
    const char letter = arguments.at(2).at(0).toLatin1();
    for (int number = 0; number < arguments.at(3).toInt(); ++number) {
        const QString url = CacheUrl(number);
        const QString fault = cache.Store(url, QStringLiteral(".png"), CacheContent(letter, 1 + number * 7919 % 90000));
        const std::optional<QByteArray> kept = cache.Read(url, QStringLiteral(".png"));
        if (!fault.isEmpty() || !kept || !IsWholeCacheContent(*kept)) {
            std::fprintf(stderr, "%s: %d bytes kept\n", qPrintable(fault), kept ? kept->size() : -1);
            return 1;
        }
    }
    return 0;
}
