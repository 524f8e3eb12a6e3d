#include "TarvexGUIToolkit/ComboBox.h"

#include <QStandardItemModel>

namespace TarvexGUIToolkit {

CComboBox::CComboBox(QWidget* parent)
    : QComboBox(parent)
{
    // Items arrive after the first show (SSIDs, groups), so the box keeps growing to fit
    // them, and an empty box still has room for a short name.
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    setMinimumContentsLength(kMinimumContentsLength);
}

CComboBox::~CComboBox() = default;

void CComboBox::AddItem(const QString& text, const QVariant& data, const QVariant& userData)
{
    // With the box's own model the item goes in complete, so that a slot on
    // currentIndexChanged, fired by the first item, already reads both values.
    auto* standardModel = qobject_cast<QStandardItemModel*>(model());
    QStandardItem* parentItem = standardModel ? standardModel->itemFromIndex(rootModelIndex()) : nullptr;
    if (standardModel && !parentItem)
        parentItem = standardModel->invisibleRootItem();
    if (parentItem && modelColumn() == 0) {
        auto* item = new QStandardItem(text);
        item->setData(data, ItemDataRole);
        item->setToolTip(text);
        if (userData.isValid())
            item->setData(userData, ItemUserDataRole);
        parentItem->appendRow(item);
        return;
    }
    const int index = count();
    insertItem(index, text, data);
    setItemData(index, text, Qt::ToolTipRole);
    if (userData.isValid())
        setItemData(index, userData, ItemUserDataRole);
}

QVariant CComboBox::GetItemUserData(int index) const
{
    if (index < 0 || index >= count())
        return QVariant();
    return itemData(index, ItemUserDataRole);
}

} // namespace TarvexGUIToolkit
