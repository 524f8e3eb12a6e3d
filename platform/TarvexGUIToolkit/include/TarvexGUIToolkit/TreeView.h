#pragma once
// Tree view of the toolkit: whole-row selection and SignalClicked on a left click.

#include <QTreeView>

#include "TarvexGUIToolkit/AbstractItemView.h"

namespace TarvexGUIToolkit {

class CTreeView : public QTreeView, public CAbstractItemView {
    Q_OBJECT
public:
    explicit CTreeView(QWidget* parent = nullptr);
    ~CTreeView() override;

Q_SIGNALS:
    void SignalClicked(const QModelIndex& index) override;
};

} // namespace TarvexGUIToolkit
