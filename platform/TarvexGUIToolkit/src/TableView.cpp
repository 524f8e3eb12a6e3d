#include "TarvexGUIToolkit/TableView.h"

#include <QHeaderView>

namespace TarvexGUIToolkit {

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
}

CTableView::~CTableView() = default;

} // namespace TarvexGUIToolkit
