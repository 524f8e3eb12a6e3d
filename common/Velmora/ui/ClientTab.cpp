#include "ClientTab.h"

#include <QHeaderView>
#include <new>

#include "TarvexGUIToolkit/MutilColumnFilterProxyModel.h"

namespace velmora {

CClientTab::CClientTab(QWidget* parent)
    : QWidget(parent)
    , m_pClientModel(nullptr)
    , m_pProxyModel(nullptr)
{
    ui.setupUi(this);
    m_pClientModel = new (std::nothrow) CClientModel(this);
    m_pProxyModel = new (std::nothrow) TarvexGUIToolkit::CMutilColumnFilterProxyModel(this);
    if (m_pProxyModel) {
        m_pProxyModel->setDynamicSortFilter(false);
        m_pProxyModel->setSourceModel(m_pClientModel);
        m_pProxyModel->setSortRole(Qt::DisplayRole);
    }
    ui.treeView->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ui.treeView->setSortingEnabled(true);
    if (m_pProxyModel)
        ui.treeView->setModel(m_pProxyModel);
    ui.treeView->horizontalHeader()->setSortIndicator(0, Qt::AscendingOrder);
    // The text form of the signal: the SSID is the key into the band's terminals.
    connect(ui.comboBox, SIGNAL(currentIndexChanged(QString)), this, SLOT(onSSIDChanged(QString)));
}

void CClientTab::setClientInfo(ClientInfoBySsid clients)
{
    const QString remembered = ui.comboBox->currentText();
    ui.comboBox->clear();
    m_mapClient.clear();
    m_mapClient = std::move(clients);
    // The first item becomes current and shows its terminals.
    for (const auto& [ssid, rows] : m_mapClient) {
        const QString text = QString::fromUtf8(ssid.data(), static_cast<int>(ssid.size()));
        ui.comboBox->AddItem(text, text, QVariant());
    }
    const int found = ui.comboBox->findData(remembered, Qt::DisplayRole, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (found >= 0)
        ui.comboBox->setCurrentIndex(found);
}

void CClientTab::onSSIDChanged(QString ssid)
{
    // An unknown SSID (the empty one of a cleared combo) gets an empty list.
    const std::vector<ClientInfo>& rows = m_mapClient[ssid.toUtf8().toStdString()];
    if (m_pClientModel)
        m_pClientModel->setClientInfo(rows);
    if (m_pProxyModel)
        m_pProxyModel->sort(m_pProxyModel->sortColumn(), m_pProxyModel->sortOrder());
}

} // namespace velmora
