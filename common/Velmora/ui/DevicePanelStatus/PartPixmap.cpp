#include "PartPixmap.h"

#include <QGridLayout>
#include <QLabel>
#include <QPixmap>

namespace velmora {

CPartPixmap::CPartPixmap(QWidget* parent)
    : QFrame(parent, Qt::ToolTip | Qt::FramelessWindowHint), m_pLabel(new QLabel(this))
{
    auto* layout = new QGridLayout(this);
    layout->setSpacing(0);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_pLabel, 0, 0);
}

void CPartPixmap::setPixmap(const QPixmap& pixmap)
{
    m_pLabel->setPixmap(pixmap);
    resize(pixmap.size() / pixmap.devicePixelRatio());
}

} // namespace velmora
