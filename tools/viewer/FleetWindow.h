#pragma once
// The viewer's main window: the devices of the registry in a sortable table with a search
// field over every column. Double-click or Enter on a row opens the status dialog of that
// device; each device has at most one dialog, and any number may be open side by side.
// Problems of the registry file are told above the table; the devices it could read are
// listed all the same. The "Language" menu switches the viewer's language while it runs.
#include <QList>
#include <QMainWindow>
#include <QPointer>
#include <QString>

class QAction;
class QActionGroup;
class QMenu;
class QModelIndex;
class Ui_UiFleetWindow;

namespace TarvexGUIToolkit {
class CMutilColumnFilterProxyModel;
}

namespace velmora {

class CSwitchDeviceStatusWidget;

namespace viewer {

class CFleetModel;

class CFleetWindow : public QMainWindow {
    Q_OBJECT
public:
    explicit CFleetWindow(QWidget* parent = nullptr);
    ~CFleetWindow() override;

    // The window's "Device" menu; other menus go beside it on menuBar().
    QMenu* deviceMenu() const;
    // The "Language" menu beside it: English, Chinese or the raw keys, the current one checked.
    QMenu* languageMenu() const;
    // The language the window shows: "en", "zh_CN" or "keys".
    QString language() const;

    // Opens the status dialog of `deviceId`, or brings its open dialog to the front.
    // Null when the registry does not know the device.
    CSwitchDeviceStatusWidget* openDevice(const QString& deviceId);
    // The status dialogs that are open now, oldest first.
    QList<CSwitchDeviceStatusWidget*> openDialogs() const;

    // The problem with the registry file told above the table; empty when it read well.
    QString problemText() const;
    // The text beside the search field: how many devices are shown of how many.
    QString countText() const;

    // The message for a registry at `path` that gave `deviceCount` devices with the last
    // load problem `lastError` (empty when none); empty when there is nothing to tell.
    static QString registryProblemMessage(const QString& path, int deviceCount, const QString& lastError);

public Q_SLOTS:
    // Reads the registry again and lists its devices; the search stays.
    void reloadRegistry();
    // Opens the dialog of the selected row (of the only row left by the search when none is).
    void openCurrentDevice();
    // Installs the catalogs of `language` ("en", "zh_CN" or "keys") and shows this window in
    // it. Status dialogs opened afterwards use it; those open keep the texts they were built
    // with. False, changing nothing, when the catalogs cannot be installed.
    bool switchLanguage(const QString& language);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

private Q_SLOTS:
    void onSearchTextChanged(const QString& text);
    void onRowActivated(const QModelIndex& index);

private:
    void showCount();
    // Sorts the rows again and fits the columns to their texts.
    void sortAndFitColumns();
    // Moves a new dialog beside the window, after the `alreadyOpen` ones.
    void placeDialog(QWidget* dialog, int alreadyOpen) const;
    void showProblem(const QString& text);
    // Tells the registry's problem, or that `m_strMissingDeviceId` has gone from it.
    void showCurrentProblem();
    void createLanguageMenu();
    // Sets every text of the window anew from the installed catalogs.
    void retranslate();
    void retranslateLanguageMenu();

    Ui_UiFleetWindow* m_pUi;
    CFleetModel* m_pFleetModel;
    TarvexGUIToolkit::CMutilColumnFilterProxyModel* m_pProxyModel;
    QList<QPointer<CSwitchDeviceStatusWidget>> m_dialogs;
    QMenu* m_pLanguageMenu;
    QActionGroup* m_pLanguageGroup;
    QAction* m_pEnglishAction;
    QAction* m_pChineseAction;
    QAction* m_pKeysAction;
    // The device whose dialog was asked for after it left the registry; empty when none.
    QString m_strMissingDeviceId;
    // What the last reload found, so that its problem can be told again in another language.
    QString m_strRegistryPath;
    int m_registryDeviceCount;
    QString m_strRegistryError;
};

} // namespace viewer
} // namespace velmora
