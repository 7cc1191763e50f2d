#include <QCoreApplication>

#include <benchmark/benchmark.h>

int main(int argc, char* argv[])
{
    QCoreApplication application(argc, argv); // the models work with timers
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
