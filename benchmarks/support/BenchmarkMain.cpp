#include "QuietHost.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const bench::QuietHost host;
#ifdef QT_NO_DEBUG
    benchmark::AddCustomContext("library_build", "release");
#else
    benchmark::AddCustomContext("library_build", "debug: figures mean nothing");
#endif
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 2;
    }
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
