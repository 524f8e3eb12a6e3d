#pragma once
// Combo box of the toolkit. Each item carries its shown text, a data value in Qt::UserRole
// (what itemData() and currentData() return) and a second, free value of the caller.

#include <QComboBox>
#include <QVariant>

namespace TarvexGUIToolkit {

class CComboBox : public QComboBox {
    Q_OBJECT
public:
    // Roles of an item's two values.
    enum ItemRole { ItemDataRole = Qt::UserRole, ItemUserDataRole = Qt::UserRole + 1 };

    // Characters an empty box has room for; the box grows to fit longer items.
    static constexpr int kMinimumContentsLength = 10;

    explicit CComboBox(QWidget* parent = nullptr);
    ~CComboBox() override;

    // Appends an item. Its tool tip is the text, for texts wider than the box. On an empty
    // box the new item becomes current, and currentIndexChanged fires, as with addItem().
    void AddItem(const QString& text, const QVariant& data, const QVariant& userData = QVariant());

    // The second value of item `index`; invalid for an item without one or a bad index.
    QVariant GetItemUserData(int index) const;
};

} // namespace TarvexGUIToolkit
