#include "TarvexGUIToolkit/AbstractItemView.h"

#include <QAbstractItemView>

namespace TarvexGUIToolkit {

CAbstractItemView::~CAbstractItemView() = default;

void CAbstractItemView::InitItemView(QAbstractItemView* view)
{
    if (!view)
        return;
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    view->setSelectionMode(QAbstractItemView::SingleSelection);
    view->setEditTriggers(QAbstractItemView::NoEditTriggers);
    // QAbstractItemView emits clicked() only for the left button, on press and release over
    // the same valid index; that is exactly a click on an item.
    QObject::connect(view, &QAbstractItemView::clicked, view,
                     [this](const QModelIndex& index) { SignalClicked(index); });
}

} // namespace TarvexGUIToolkit
