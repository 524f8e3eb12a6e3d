#pragma once
// What the toolkit's item views share: a left click on an item is reported as
// SignalClicked(index), with the index of the view's own model.
//
// A view derives from its Qt view class and from CAbstractItemView, redeclares
// SignalClicked as a signal (moc writes its body) and calls InitItemView(this) in its
// constructor:
//
//     class CListView : public QListView, public CAbstractItemView {
//         Q_OBJECT
//     public:
//         explicit CListView(QWidget* parent = nullptr) : QListView(parent) { InitItemView(this); }
//     Q_SIGNALS:
//         void SignalClicked(const QModelIndex& index) override;
//     };
//
// Connect to the concrete class's signal (&CTreeView::SignalClicked); the signal is public,
// so code outside may emit it too, to take the same road as a user's click.

#include <QModelIndex>

class QAbstractItemView;

namespace TarvexGUIToolkit {

class CAbstractItemView {
public:
    virtual ~CAbstractItemView();

    // A left click pressed and released on the same valid item.
    virtual void SignalClicked(const QModelIndex& index) = 0;

protected:
    CAbstractItemView() = default;

    // Forwards the view's left clicks to SignalClicked and sets the shared selection
    // behaviour: whole rows, one at a time, no editing.
    void InitItemView(QAbstractItemView* view);
};

} // namespace TarvexGUIToolkit
