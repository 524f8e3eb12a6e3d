#pragma once
// Table view of the toolkit: whole-row selection, alternating rows, no row numbers, the
// last column stretched, and SignalClicked on a left click.
//
// Every table also answers "Copy" (the selected rows with the header row, tab-separated, to
// the clipboard) and "Export CSV…" (all rows in the order shown, the visible columns, UTF-8,
// RFC 4180 quoting) from its context menu and the platform's shortcuts. Both read what the
// view shows: its own model (a sorting or filtering proxy included), the header texts as
// displayed, the columns in their visual order.

#include <QTableView>

#include "TarvexGUIToolkit/AbstractItemView.h"

class QAction;

namespace TarvexGUIToolkit {

class CTableView : public QTableView, public CAbstractItemView {
    Q_OBJECT
public:
    explicit CTableView(QWidget* parent = nullptr);
    ~CTableView() override;

    // Row height in pixels that the table starts with.
    static constexpr int kDefaultRowHeight = 30;

    // The header row and the selected rows, top to bottom, cells separated by tabs and rows
    // ended by a line break. Tabs and line breaks inside a cell become spaces.
    QString SelectedRowsText() const;
    // The header row and every row of the view's model in its current order, as CSV.
    QString CsvText() const;
    // Writes CsvText() to `fileName` through a temporary file in the same folder that is
    // renamed at the end, so a failed write leaves no file behind. On failure `errorText`
    // (when given) says why.
    bool WriteCsv(const QString& fileName, QString* errorText = nullptr) const;

    QAction* CopyAction() const { return m_pCopyAction; }
    QAction* ExportCsvAction() const { return m_pExportCsvAction; }

public Q_SLOTS:
    // Puts SelectedRowsText() on the clipboard; nothing when no row is selected.
    void CopySelectedRows();
    // Asks for a file name and writes the CSV; a failure is shown in a message box.
    void ExportCsv();
    // Writes the CSV to `fileName`; a failure is shown in a message box. False on failure.
    bool ExportCsvTo(const QString& fileName);

Q_SIGNALS:
    void SignalClicked(const QModelIndex& index) override;

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    // The visible columns of the model in their visual order.
    QList<int> VisibleColumns() const;

    QAction* m_pCopyAction = nullptr;
    QAction* m_pExportCsvAction = nullptr;
};

} // namespace TarvexGUIToolkit
