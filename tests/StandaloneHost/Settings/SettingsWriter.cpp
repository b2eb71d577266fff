// Started by SettingsProcessesTest: SettingsWriter FILE PREFIX COUNT writes the keys "PREFIX/0" … one by one.

#include "Settings/SettingsStore.h"

#include <QCoreApplication>
#include <cstdio>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4) {
        return 2;
    }
    standalone::SettingsStore settings(arguments.at(1));
    for (int number = 0; number < arguments.at(3).toInt(); ++number) {
        const QString key = QStringLiteral("%1/%2").arg(arguments.at(2)).arg(number);
        const QString fault = settings.Set(key, number);
        if (!fault.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(fault));
            return 1;
        }
    }
    return 0;
}
