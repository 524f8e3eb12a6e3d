// What Qt itself costs for the forms of the dialog's opening: the same uic forms, style
// sheet, parenting and stacking as the opening of a switch's first page, without device,
// queries, records or page logic (BareForms.cpp). One cold build first (fonts, style and
// platform start-up), then warm builds; run with --benchmark_repetitions=N for the median.
// velmora-bench-dialog runs the same build beside the full opening and prints the shares.
#include <QApplication>
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>

#include "BareForms.h"
#include "MedianReporter.h"
#include "ui/DevicePanelStatus/PanelResources.h"

int main(int argc, char** argv)
{
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    // The forms' images and the page's style sheet are the module's resources.
    velmora::initResources();
    velmora::bench::buildBareForms();

    velmora::bench::registerQtFormsBenchmark();

    velmora::bench::MedianReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const velmora::bench::MedianReporter::Times forms = reporter.times("QtForms");
    std::printf("Qt's own forms: %.3f ms wall, %.3f ms CPU per opening\n", forms.real, forms.cpu);
    benchmark::Shutdown();
    return 0;
}
