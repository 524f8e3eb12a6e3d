#include "FleetWindow.h"

#include <QAction>
#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QWidget>
#include <algorithm>
#include <vector>

#include "FleetModel.h"
#include "PageSnapshots.h"
#include "SwitchDeviceStatusWidget.h"
#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"
#include "TarvexGUIToolkit/TableView.h"
#include "ViewerTranslations.h"
#include "ostrand/DeviceRegistry.h"
#include "ui_UiFleetWindow.h"

namespace velmora {
namespace viewer {

namespace {

// Dialogs open right of the window, this far from it; each further one this far right and
// down of the one before, so that every dialog's title stays in sight.
constexpr int kDialogGap = 12;
constexpr int kCascadeOffset = 40;

} // namespace

CFleetWindow::CFleetWindow(QWidget* parent)
    : QMainWindow(parent)
    , m_pUi(new Ui_UiFleetWindow)
    , m_pFleetModel(new CFleetModel(this))
    , m_pProxyModel(new TarvexGUIToolkit::CMutilColumnFilterProxyModel(this))
    , m_pLanguageMenu(nullptr)
    , m_pLanguageGroup(nullptr)
    , m_pEnglishAction(nullptr)
    , m_pChineseAction(nullptr)
    , m_pKeysAction(nullptr)
    , m_registryDeviceCount(0)
{
    m_pUi->setupUi(this);
    m_pUi->m_pProblemLabel->setTextFormat(Qt::PlainText);
    m_pUi->m_pProblemLabel->hide();

    // The search matches any column, ignoring case; rows are sorted again after each reload.
    m_pProxyModel->setSourceModel(m_pFleetModel);
    m_pProxyModel->setDynamicSortFilter(false);
    m_pProxyModel->setSortRole(Qt::DisplayRole);
    m_pProxyModel->setSortCaseSensitivity(Qt::CaseInsensitive);
    m_pProxyModel->setFilterKeyColumn(-1);
    m_pProxyModel->setFilterCaseSensitivity(Qt::CaseInsensitive);

    TarvexGUIToolkit::CTableView* table = m_pUi->m_pDeviceTable;
    table->setModel(m_pProxyModel);
    table->sortByColumn(CFleetModel::COLUMN_NAME, Qt::AscendingOrder);
    table->installEventFilter(this);

    connect(table, &QAbstractItemView::doubleClicked, this, &CFleetWindow::onRowActivated);
    connect(m_pUi->m_pSearchEdit, &QLineEdit::textChanged, this, &CFleetWindow::onSearchTextChanged);
    connect(m_pUi->m_pSearchEdit, &QLineEdit::returnPressed, this, &CFleetWindow::openCurrentDevice);
    connect(m_pUi->m_pOpenAction, &QAction::triggered, this, &CFleetWindow::openCurrentDevice);
    connect(m_pUi->m_pReloadAction, &QAction::triggered, this, &CFleetWindow::reloadRegistry);
    connect(m_pUi->m_pQuitAction, &QAction::triggered, this, &QWidget::close);
    createLanguageMenu();

    reloadRegistry();
}

CFleetWindow::~CFleetWindow()
{
    delete m_pUi;
}

QMenu* CFleetWindow::deviceMenu() const
{
    return m_pUi->m_pDeviceMenu;
}

QMenu* CFleetWindow::languageMenu() const
{
    return m_pLanguageMenu;
}

QString CFleetWindow::language() const
{
    return installedViewerLanguage();
}

void CFleetWindow::createLanguageMenu()
{
    m_pLanguageMenu = menuBar()->addMenu(QString());
    m_pLanguageMenu->setObjectName(QStringLiteral("m_pLanguageMenu"));
    m_pLanguageMenu->setToolTipsVisible(true);
    m_pLanguageGroup = new QActionGroup(this);
    m_pLanguageGroup->setExclusive(true);
    const auto addLanguage = [this](const char* objectName, const QString& language) {
        QAction* action = m_pLanguageMenu->addAction(QString());
        action->setObjectName(QString::fromLatin1(objectName));
        action->setCheckable(true);
        action->setData(language);
        m_pLanguageGroup->addAction(action);
        connect(action, &QAction::triggered, this, [this, language] { switchLanguage(language); });
        return action;
    };
    m_pEnglishAction = addLanguage("m_pEnglishAction", QStringLiteral("en"));
    m_pChineseAction = addLanguage("m_pChineseAction", QStringLiteral("zh_CN"));
    m_pKeysAction = addLanguage("m_pKeysAction", QStringLiteral("keys"));
    retranslateLanguageMenu();
}

bool CFleetWindow::switchLanguage(const QString& language)
{
    const bool switched = installViewerLanguage(language);
    // On failure the check mark goes back to the language still installed.
    retranslate();
    return switched;
}

void CFleetWindow::retranslate()
{
    m_pUi->retranslateUi(this);
    m_pFleetModel->retranslate();
    // Class names change with the language: sorted and fitted again.
    sortAndFitColumns();
    retranslateLanguageMenu();
    showCurrentProblem();
    showCount();
}

void CFleetWindow::retranslateLanguageMenu()
{
    if (m_pLanguageMenu) {
        m_pLanguageMenu->setTitle(tr("&Language"));
        // Each language is named in its own words as well, so that it is found from any other.
        m_pEnglishAction->setText(tr("English"));
        m_pChineseAction->setText(tr("中文 (简体)"));
        m_pKeysAction->setText(tr("Keys"));
        const QString keepNote =
            tr("Status dialogs opened from now on use the new language; open ones keep theirs.");
        m_pEnglishAction->setToolTip(tr("Show the texts in English") + '\n' + keepNote);
        m_pChineseAction->setToolTip(tr("Show the texts in Simplified Chinese") + '\n' + keepNote);
        m_pKeysAction->setToolTip(tr("Show the raw translation keys") + '\n' + keepNote);
        const QString current = installedViewerLanguage();
        for (QAction* action : m_pLanguageGroup->actions()) {
            action->setStatusTip(keepNote);
            action->setChecked(action->data().toString() == current);
        }
    }
}

void CFleetWindow::changeEvent(QEvent* event)
{
    // Catalogs installed by anyone else (the viewer's start, a test) reach the window too.
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QMainWindow::changeEvent(event);
}

void CFleetWindow::showCurrentProblem()
{
    if (!m_strMissingDeviceId.isEmpty()) {
        showProblem(tr("The device %1 is no longer in the registry; reload it.").arg(m_strMissingDeviceId));
        return;
    }
    showProblem(registryProblemMessage(m_strRegistryPath, m_registryDeviceCount, m_strRegistryError));
}

void CFleetWindow::reloadRegistry()
{
    ostrand::CDeviceRegistry& registry = ostrand::CDeviceRegistry::instance();
    const std::vector<ostrand::DeviceEntry> devices = registry.devices();
    std::vector<FleetDeviceRow> rows;
    rows.reserve(devices.size());
    for (const ostrand::DeviceEntry& device : devices)
        rows.push_back(fleetDeviceRow(device));
    m_pFleetModel->setDevices(rows);
    sortAndFitColumns();

    m_strMissingDeviceId.clear();
    m_strRegistryPath = QString::fromStdString(registry.path());
    m_registryDeviceCount = static_cast<int>(devices.size());
    m_strRegistryError = QString::fromStdString(registry.lastError());
    showCurrentProblem();
    showCount();
}

void CFleetWindow::sortAndFitColumns()
{
    m_pProxyModel->sort(m_pProxyModel->sortColumn(), m_pProxyModel->sortOrder());
    // The address column takes the rest of the width.
    for (int column : {CFleetModel::COLUMN_NAME, CFleetModel::COLUMN_CLASS, CFleetModel::COLUMN_MODEL})
        m_pUi->m_pDeviceTable->resizeColumnToContents(column);
}

QString CFleetWindow::registryProblemMessage(const QString& path, int deviceCount, const QString& lastError)
{
    const QFileInfo file(path);
    const QString shownPath = QDir::toNativeSeparators(file.absoluteFilePath());
    if (!file.exists())
        return tr("The device registry %1 does not exist.").arg(shownPath);
    if (file.size() == 0)
        return tr("The device registry %1 is empty.").arg(shownPath);
    if (!lastError.isEmpty() && deviceCount == 0)
        return tr("The device registry %1 could not be read: %2.").arg(shownPath, lastError);
    if (!lastError.isEmpty())
        return tr("Some entries of the device registry %1 were skipped: %2.").arg(shownPath, lastError);
    if (deviceCount == 0)
        return tr("The device registry %1 lists no devices.").arg(shownPath);
    return QString();
}

QString CFleetWindow::problemText() const
{
    return m_pUi->m_pProblemLabel->isHidden() ? QString() : m_pUi->m_pProblemLabel->text();
}

QString CFleetWindow::countText() const
{
    return m_pUi->m_pCountLabel->text();
}

void CFleetWindow::showProblem(const QString& text)
{
    m_pUi->m_pProblemLabel->setText(text);
    m_pUi->m_pProblemLabel->setVisible(!text.isEmpty());
}

void CFleetWindow::showCount()
{
    m_pUi->m_pCountLabel->setText(tr("%1 of %2 devices").arg(m_pProxyModel->rowCount()).arg(m_pFleetModel->rowCount()));
}

void CFleetWindow::onSearchTextChanged(const QString& text)
{
    m_pProxyModel->setFilterFixedString(text.trimmed());
    showCount();
}

void CFleetWindow::onRowActivated(const QModelIndex& index)
{
    const QString id = CFleetModel::deviceId(index);
    if (!id.isEmpty())
        openDevice(id);
}

void CFleetWindow::openCurrentDevice()
{
    QModelIndex index = m_pUi->m_pDeviceTable->currentIndex();
    if (!index.isValid() && m_pProxyModel->rowCount() == 1)
        index = m_pProxyModel->index(0, CFleetModel::COLUMN_NAME);
    onRowActivated(index);
}

CSwitchDeviceStatusWidget* CFleetWindow::openDevice(const QString& deviceId)
{
    const std::string id = deviceId.toStdString();
    for (const QPointer<CSwitchDeviceStatusWidget>& dialog : m_dialogs) {
        if (dialog && dialog->getDeviceGuid() == id) {
            dialog->showNormal();
            dialog->raise();
            dialog->activateWindow();
            return dialog;
        }
    }
    const auto device = ostrand::CDeviceRegistry::instance().find(id);
    if (!device) {
        m_strMissingDeviceId = deviceId;
        showCurrentProblem();
        return nullptr;
    }

    // The dialog asks the device while it is built.
    QApplication::setOverrideCursor(Qt::WaitCursor);
    auto* dialog = new CSwitchDeviceStatusWidget(device->id, capabilitiesFromJson(device->capabilitiesJson), this);
    QApplication::restoreOverrideCursor();
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    m_dialogs.removeAll(QPointer<CSwitchDeviceStatusWidget>());
    const int alreadyOpen = m_dialogs.size();
    m_dialogs.append(dialog);
    placeDialog(dialog, alreadyOpen);
    dialog->show();
    return dialog;
}

void CFleetWindow::placeDialog(QWidget* dialog, int alreadyOpen) const
{
    const QScreen* screen = this->screen();
    const QRect available = screen ? screen->availableGeometry() : QRect();
    QPoint position = frameGeometry().topRight() + QPoint(kDialogGap, 0);
    if (available.isValid()) {
        // On a narrow screen the dialogs cover the list's right part rather than leave the screen.
        position.setX(std::max(available.left(), std::min(position.x(), available.right() + 1 - dialog->width())));
        position.setY(std::max(available.top(), std::min(position.y(), available.bottom() + 1 - dialog->height())));
    }
    dialog->move(position + QPoint(kCascadeOffset, kCascadeOffset) * alreadyOpen);
}

QList<CSwitchDeviceStatusWidget*> CFleetWindow::openDialogs() const
{
    QList<CSwitchDeviceStatusWidget*> dialogs;
    for (const QPointer<CSwitchDeviceStatusWidget>& dialog : m_dialogs) {
        if (dialog && dialog->isVisible())
            dialogs.append(dialog);
    }
    return dialogs;
}

bool CFleetWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_pUi->m_pDeviceTable && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            openCurrentDevice();
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

void CFleetWindow::closeEvent(QCloseEvent* event)
{
    // The dialogs belong to this window: closing it ends the viewer.
    for (const QPointer<CSwitchDeviceStatusWidget>& dialog : m_dialogs) {
        if (dialog)
            dialog->close();
    }
    QMainWindow::closeEvent(event);
}

} // namespace viewer
} // namespace velmora
