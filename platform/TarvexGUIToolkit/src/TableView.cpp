#include "TarvexGUIToolkit/TableView.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QMenu>
#include <QMessageBox>
#include <QSaveFile>
#include <algorithm>

namespace TarvexGUIToolkit {

namespace {

// A cell of a tab-separated row: the separators it may hold become spaces.
QString TabCell(QString text)
{
    text.replace(QLatin1Char('\t'), QLatin1Char(' '));
    text.replace(QLatin1String("\r\n"), QLatin1String(" "));
    text.replace(QLatin1Char('\r'), QLatin1Char(' '));
    text.replace(QLatin1Char('\n'), QLatin1Char(' '));
    return text;
}

// A field of RFC 4180: quoted when it holds a comma, a quote or a line break, with its
// quotes doubled.
QString CsvField(QString text)
{
    if (!text.contains(QLatin1Char(',')) && !text.contains(QLatin1Char('"')) && !text.contains(QLatin1Char('\n')) &&
        !text.contains(QLatin1Char('\r')))
        return text;
    text.replace(QLatin1String("\""), QLatin1String("\"\""));
    return QLatin1Char('"') + text + QLatin1Char('"');
}

} // namespace

CTableView::CTableView(QWidget* parent)
    : QTableView(parent)
{
    InitItemView(this);
    setAlternatingRowColors(true);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideRight);
    verticalHeader()->setVisible(false);
    verticalHeader()->setDefaultSectionSize(kDefaultRowHeight);
    horizontalHeader()->setStretchLastSection(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);

    // The shortcuts act while the table (or its viewport) has the focus.
    m_pCopyAction = new QAction(tr("Copy"), this);
    m_pCopyAction->setShortcut(QKeySequence::Copy);
    m_pCopyAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(m_pCopyAction, &QAction::triggered, this, &CTableView::CopySelectedRows);
    addAction(m_pCopyAction);

    m_pExportCsvAction = new QAction(tr("Export CSV…"), this);
    m_pExportCsvAction->setShortcut(QKeySequence::SaveAs);
    m_pExportCsvAction->setShortcutContext(Qt::WidgetWithChildrenShortcut);
    connect(m_pExportCsvAction, &QAction::triggered, this, &CTableView::ExportCsv);
    addAction(m_pExportCsvAction);
}

CTableView::~CTableView() = default;

QList<int> CTableView::VisibleColumns() const
{
    QList<int> columns;
    const QAbstractItemModel* itemModel = model();
    if (!itemModel)
        return columns;
    const QHeaderView* header = horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int logical = header->logicalIndex(visual);
        if (logical >= 0 && logical < itemModel->columnCount() && !isColumnHidden(logical))
            columns << logical;
    }
    return columns;
}

QString CTableView::SelectedRowsText() const
{
    const QAbstractItemModel* itemModel = model();
    if (!itemModel || !selectionModel())
        return QString();
    QList<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedIndexes())
        if (!rows.contains(index.row()))
            rows << index.row();
    if (rows.isEmpty())
        return QString();
    std::sort(rows.begin(), rows.end());
    const QList<int> columns = VisibleColumns();
    QStringList lines;
    QStringList cells;
    for (int column : columns)
        cells << TabCell(itemModel->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    lines << cells.join(QLatin1Char('\t'));
    for (int row : rows) {
        cells.clear();
        for (int column : columns)
            cells << TabCell(itemModel->index(row, column).data(Qt::DisplayRole).toString());
        lines << cells.join(QLatin1Char('\t'));
    }
    return lines.join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QString CTableView::CsvText() const
{
    const QAbstractItemModel* itemModel = model();
    if (!itemModel)
        return QString();
    const QList<int> columns = VisibleColumns();
    QString text;
    QStringList fields;
    for (int column : columns)
        fields << CsvField(itemModel->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString());
    // RFC 4180 ends every record, the last one included, with CR LF.
    text += fields.join(QLatin1Char(',')) + QLatin1String("\r\n");
    for (int row = 0; row < itemModel->rowCount(); ++row) {
        fields.clear();
        for (int column : columns)
            fields << CsvField(itemModel->index(row, column).data(Qt::DisplayRole).toString());
        text += fields.join(QLatin1Char(',')) + QLatin1String("\r\n");
    }
    return text;
}

bool CTableView::WriteCsv(const QString& fileName, QString* errorText) const
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly)) {
        if (errorText)
            *errorText = file.errorString();
        return false;
    }
    // A byte order mark, so that spreadsheet programs read the file as UTF-8.
    QByteArray bytes("\xEF\xBB\xBF");
    bytes += CsvText().toUtf8();
    if (file.write(bytes) != bytes.size()) {
        if (errorText)
            *errorText = file.errorString();
        file.cancelWriting();
        file.commit();
        return false;
    }
    if (!file.commit()) {
        if (errorText)
            *errorText = file.errorString();
        return false;
    }
    return true;
}

void CTableView::CopySelectedRows()
{
    const QString text = SelectedRowsText();
    if (text.isEmpty())
        return;
    if (QClipboard* clipboard = QApplication::clipboard())
        clipboard->setText(text);
}

void CTableView::ExportCsv()
{
    const QString fileName = QFileDialog::getSaveFileName(this, tr("Export CSV…"), QDir::homePath(),
                                                          tr("CSV files (*.csv)"));
    if (fileName.isEmpty())
        return;
    ExportCsvTo(fileName);
}

bool CTableView::ExportCsvTo(const QString& fileName)
{
    QString error;
    if (WriteCsv(fileName, &error))
        return true;
    QMessageBox::warning(this, tr("Export CSV…"),
                         tr("The table could not be saved to %1: %2").arg(QDir::toNativeSeparators(fileName), error));
    return false;
}

void CTableView::contextMenuEvent(QContextMenuEvent* event)
{
    if (!model()) {
        QTableView::contextMenuEvent(event);
        return;
    }
    m_pCopyAction->setEnabled(selectionModel() && selectionModel()->hasSelection());
    QMenu menu(this);
    menu.addAction(m_pCopyAction);
    menu.addAction(m_pExportCsvAction);
    menu.exec(event->globalPos());
    m_pCopyAction->setEnabled(true);
    event->accept();
}

} // namespace TarvexGUIToolkit
