#include "BareForms.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QGridLayout>
#include <QProgressBar>
#include <QString>
#include <QStringList>
#include <benchmark/benchmark.h>

#include "TarvexGUIToolkit/BaseDialog.h"
#include "TarvexGUIToolkit/File.h"
#include "TarvexGUIToolkit/StandardItem.h"
#include "TarvexGUIToolkit/StandardItemModel.h"
#include "ui_PanelStatusBase.h"
#include "ui_UiPanelStatusWidget.h"
#include "ui_UiSwitchDeviceStatusWidget.h"

namespace velmora::bench {

namespace {

// The style sheet the status page reads at each construction, from the same resource.
const char kPageStyleSheet[] = ":/ClientCommon/Qss/Qss/Velmora/Velmora.qss";

// The shape of what the opening puts in the forms: the dialog's size, the rows of a
// switch's option tree, the port table's columns and their widths.
constexpr int kDialogWidth = 920;
constexpr int kDialogHeight = 700;
const char* const kTreeRows[] = {"DeviceStatus", "PortStatus", "ThePortStatistical", "POEPortState"};
const char* const kPortColumns[] = {"PortName", "OppositeDeviceType", "OppositeIPAddress", "OppositeDeviceAlias"};
const int kPortColumnWidths[] = {150, 120, 120, 120};

QString translated(const char* context, const char* key)
{
    return QCoreApplication::translate(context, key);
}

} // namespace

void buildBareForms()
{
    // The dialog and its form, set up on the dialog's content widget.
    TarvexGUIToolkit::CBaseDialog dialog(nullptr);
    Ui_UiSwitchDeviceStatusWidget dialogForm;
    dialogForm.setupUi(dialog.GetSetUpUiWidget());
    dialog.SetTitle(translated("velmora::CSwitchDeviceStatusWidget", "DeviceStatus"));
    dialog.SetCloseBtnVisible(true);
    dialog.resize(kDialogWidth, kDialogHeight);
    dialogForm.m_pBackButton->hide();
    dialogForm.m_pItemTreeView->setHeaderHidden(true);
    dialogForm.m_pItemTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    dialogForm.deviceName->setText(translated("velmora::CSwitchDeviceStatusWidget", "Device") + " Agg-SW-31");

    // The option tree's rows.
    TarvexGUIToolkit::CStandardItemModel treeModel(nullptr);
    int key = 0;
    for (const char* row : kTreeRows) {
        auto* item = new TarvexGUIToolkit::CStandardItem(translated("QObject", row));
        item->setData(++key, Qt::UserRole);
        treeModel.appendRow(item);
    }
    dialogForm.m_pItemTreeView->setModel(&treeModel);
    dialogForm.runTime->setText(translated("velmora::CSwitchDeviceStatusWidget", "RunTime") + " 4w 6d 5h 36m");
    dialogForm.m_pItemTreeView->setCurrentIndex(treeModel.index(0, 0));

    // The first page: made with the dialog as parent, its form and style sheet set up, then
    // put on the stack.
    auto* page = new QWidget(&dialog);
    Ui_UiPanelStatusWidget pageForm;
    pageForm.setupUi(page);
    page->setStyleSheet(TarvexGUIToolkit::CFile::ReadAll(kPageStyleSheet));
    // The port table's model is the page's child, as the page's own is.
    auto* portModel = new TarvexGUIToolkit::CStandardItemModel(page);
    QStringList headers;
    for (const char* header : kPortColumns)
        headers << translated("velmora::CPortDetailInfoModel", header);
    portModel->SetHorizontalHeader(headers);
    pageForm.m_pPortInfoTreeView->setModel(portModel);
    int column = 0;
    for (int width : kPortColumnWidths)
        pageForm.m_pPortInfoTreeView->setColumnWidth(column++, width);
    pageForm.m_pPortInfoTreeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    for (QProgressBar* bar : {pageForm.m_memoryProgressBar, pageForm.m_cpuProgressBar, pageForm.m_poeProgressBar,
                              pageForm.m_wholePOEProgressBar})
        bar->setTextVisible(false);
    dialogForm.m_pStackedWidget->addWidget(page);
    dialogForm.m_pStackedWidget->setCurrentWidget(page);

    // A panel-sized widget with the panel's form, in a grid on the page's panel frame.
    auto* panel = new QWidget(page);
    Ui::UiPanelStatusBase panelForm;
    panelForm.setupUi(panel);
    auto* panelLayout = new QGridLayout(pageForm.m_pPanelFrame);
    panelLayout->setContentsMargins(0, 0, 0, 0);
    panelLayout->addWidget(panel, 0, 0, 1, 1);

    // As in the dialog's destructor: the page goes first, then the tree's model, then the
    // dialog with the rest of its children.
    delete page;
}

void registerQtFormsBenchmark()
{
    benchmark::RegisterBenchmark("QtForms", [](benchmark::State& state) {
        for (auto _ : state)
            buildBareForms();
    })->Unit(benchmark::kMillisecond)->UseRealTime();
}

} // namespace velmora::bench
