#pragma once
// Item of the toolkit's models: a QStandardItem that is read-only by default, since the
// toolkit's tables show device state and are never edited in place.

#include <QStandardItem>

namespace TarvexGUIToolkit {

class CStandardItem : public QStandardItem {
public:
    // type() of toolkit items.
    static constexpr int kItemType = QStandardItem::UserType + 1;

    CStandardItem();
    explicit CStandardItem(const QString& text);
    CStandardItem(const QIcon& icon, const QString& text);
    ~CStandardItem() override;

    int type() const override;
    QStandardItem* clone() const override;
};

} // namespace TarvexGUIToolkit
