// What a panel costs to paint: the largest fixed panel against one bare drawPixmap of its
// frame, and the logical panel of a 100-column device (drawing its image from the cells, and
// painting it shrunk into its frame with the magnifier up).
#include <QApplication>
#include <QImage>
#include <QLayout>
#include <QPainter>
#include <QPixmap>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "Quillon/SwitchRecords.h"
#include "ui/DevicePanelStatus/LayoutPanel.h"
#include "ui/DevicePanelStatus/PanelFactory.h"
#include "ui/DevicePanelStatus/PanelLayouts.h"
#include "ui/DevicePanelStatus/PanelResources.h"
#include "ui/DevicePanelStatus/SwitchLogicalPanel.h"

namespace velmora {

// The panels name this struct as a friend; the benchmark feeds records through it.
struct PanelTestAccess {
    static void applyWorkState(CLayoutPanel* p, const Quillon::SwitchesWorkState& s) { p->applyWorkState(s); }
    static QPixmap* frame(CPanelStatusBase* p) { return p->pixmaps.at(0); }
    static void setPanel(CSwitchLogicalPanel* p, const Quillon::Panel& panel, int category) { p->setPanel(panel, category); }
    static void applyWorkState(CSwitchLogicalPanel* p, const Quillon::SwitchesWorkState& s) { p->applyWorkState(s); }
    static void renderPanelPixmap(CSwitchLogicalPanel* p) { p->renderPanelPixmap(); }
    static void hover(CSwitchLogicalPanel* p, int x, int y)
    {
        p->mouseX = x;
        p->mouseY = y;
        p->hovering = true;
    }
};

namespace {

using A = PanelTestAccess;

// The fixed switch with the most ports.
const layouts::PanelLayout& largestFixedRow()
{
    const layouts::PanelLayout* largest = nullptr;
    size_t most = 0;
    for (const layouts::PanelLayout& row : layouts::fixedSwitchLayouts()) {
        const layouts::ArtSizes sizes(row);
        const size_t ports = layouts::placePorts(row, sizes).size();
        if (ports > most) {
            most = ports;
            largest = &row;
        }
    }
    return *largest;
}

Quillon::SwitchesWorkState everyPort(int count)
{
    Quillon::SwitchesWorkState state;
    for (int port = 1; port <= count; ++port) {
        Quillon::SwitchesWorkStateItem item;
        item.portId = port;
        item.portType = "electrical";
        item.linkState = port % 3 ? "connected" : "disconnected";
        state.portList.push_back(item);
    }
    return state;
}

// A panel painted by its own paintEvent only: no background, no child widgets.
void paintOnly(QWidget* widget, QImage& target)
{
    widget->render(&target, QPoint(), QRegion(), QWidget::RenderFlags());
}

void BM_PaintLargestFixedPanel(benchmark::State& state)
{
    const layouts::PanelLayout& row = largestFixedRow();
    std::unique_ptr<CPanelStatusBase> panel(createPanel(row.className, row.modes().front(), nullptr));
    auto* layoutPanel = static_cast<CLayoutPanel*>(panel.get());
    A::applyWorkState(layoutPanel, everyPort(60));
    panel->setPortAlarm(5, true);
    panel->resize(1095, 242);
    panel->layout()->activate();
    QImage target(panel->size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        paintOnly(panel.get(), target);
        benchmark::DoNotOptimize(target.constBits());
    }
    state.SetLabel(row.className);
}
BENCHMARK(BM_PaintLargestFixedPanel)->Unit(benchmark::kMicrosecond);

void BM_BareFrameDrawPixmap(benchmark::State& state)
{
    const layouts::PanelLayout& row = largestFixedRow();
    std::unique_ptr<CPanelStatusBase> panel(createPanel(row.className, row.modes().front(), nullptr));
    const QPixmap frame = *A::frame(panel.get());
    QImage target(QSize(1095, 242), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        QPainter painter(&target);
        painter.drawPixmap(QPointF(200, 60), frame);
        painter.end();
        benchmark::DoNotOptimize(target.constBits());
    }
    state.SetLabel(row.className);
}
BENCHMARK(BM_BareFrameDrawPixmap)->Unit(benchmark::kMicrosecond);

Quillon::Panel hundredColumns()
{
    Quillon::Panel panel;
    panel.rowCount = 2;
    panel.portMargin = 2;
    auto add = [&](const char* type, int port, const char* dir) {
        Quillon::PanelCell cell;
        cell.cellType = type;
        cell.portType = port ? "electrical" : "";
        cell.portId = port;
        cell.direction = dir;
        cell.label = port ? std::to_string(port) : std::string();
        panel.cellList.push_back(cell);
    };
    add("border", 0, "");
    add("border", 0, "");
    for (int c = 0; c < 100; ++c) {
        add("port", 2 * c + 1, "up");
        add("port", 2 * c + 2, "down");
    }
    add("border", 0, "");
    add("border", 0, "");
    return panel;
}

void BM_RenderLogicalPanel100Columns(benchmark::State& state)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, hundredColumns(), 120);
    Quillon::SwitchesWorkState work = everyPort(200);
    work.portOrder = "portNO1";
    A::applyWorkState(&panel, work);
    for (auto _ : state)
        A::renderPanelPixmap(&panel);
}
BENCHMARK(BM_RenderLogicalPanel100Columns)->Unit(benchmark::kMicrosecond);

void BM_PaintLogicalPanel100ColumnsMagnified(benchmark::State& state)
{
    CSwitchLogicalPanel panel(nullptr);
    A::setPanel(&panel, hundredColumns(), 120);
    Quillon::SwitchesWorkState work = everyPort(200);
    work.portOrder = "portNO1";
    A::applyWorkState(&panel, work);
    panel.resize(1095, 242);
    panel.layout()->activate();
    A::hover(&panel, 400, 80);
    QImage target(panel.size(), QImage::Format_ARGB32_Premultiplied);
    for (auto _ : state) {
        paintOnly(&panel, target);
        benchmark::DoNotOptimize(target.constBits());
    }
}
BENCHMARK(BM_PaintLogicalPanel100ColumnsMagnified)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace velmora

// The offscreen platform tells at every show of the magnifier that it cannot raise windows.
void quietOffscreen(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    if (message.startsWith(QLatin1String("This plugin does not support")))
        return;
    if (type != QtDebugMsg)
        fprintf(stderr, "%s\n", qPrintable(message));
}

int main(int argc, char** argv)
{
    qInstallMessageHandler(quietOffscreen);
    if (!std::getenv("QT_QPA_PLATFORM"))
        setenv("QT_QPA_PLATFORM", "offscreen", 1);
    if (!std::getenv("VELMORA_LOG_LEVEL"))
        setenv("VELMORA_LOG_LEVEL", "error", 1);
    QApplication app(argc, argv);
    velmora::initResources();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
