#include "TarvexGUIToolkit/StandardItem.h"

namespace TarvexGUIToolkit {

CStandardItem::CStandardItem()
{
    setEditable(false);
}

CStandardItem::CStandardItem(const QString& text)
    : QStandardItem(text)
{
    setEditable(false);
}

CStandardItem::CStandardItem(const QIcon& icon, const QString& text)
    : QStandardItem(icon, text)
{
    setEditable(false);
}

CStandardItem::~CStandardItem() = default;

int CStandardItem::type() const
{
    return kItemType;
}

QStandardItem* CStandardItem::clone() const
{
    return new CStandardItem(*this);
}

} // namespace TarvexGUIToolkit
