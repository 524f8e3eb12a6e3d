#pragma once
// Table view of the toolkit: whole-row selection, alternating rows, no row numbers, the
// last column stretched, and SignalClicked on a left click.

#include <QTableView>

#include "TarvexGUIToolkit/AbstractItemView.h"

namespace TarvexGUIToolkit {

class CTableView : public QTableView, public CAbstractItemView {
    Q_OBJECT
public:
    explicit CTableView(QWidget* parent = nullptr);
    ~CTableView() override;

    // Row height in pixels that the table starts with.
    static constexpr int kDefaultRowHeight = 30;

Q_SIGNALS:
    void SignalClicked(const QModelIndex& index) override;
};

} // namespace TarvexGUIToolkit
