#include "ClientModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

namespace {

const char kNoType[] = "--";

} // namespace

CClientModel::CClientModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    SetHorizontalHeader({tr("Index"), tr("TheMACAddress"), tr("IPAddress"), tr("TerminalType"), QStringLiteral("RSSI"),
                         tr("SendingRate"), tr("ReceivingRate"), tr("TheConnectionTime")});
}

int CClientModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CClientModel::setClientInfo(const std::vector<ClientInfo>& rows)
{
    removeRows(0, rowCount());
    int number = 0;
    for (const ClientInfo& row : rows) {
        QList<QStandardItem*> items;
        auto* index = new TarvexGUIToolkit::CStandardItem();
        index->setData(++number, Qt::DisplayRole); // a number, so that it sorts as one
        items << index;
        items << new TarvexGUIToolkit::CStandardItem(row.strMac);
        items << new TarvexGUIToolkit::CStandardItem(row.strIp);
        items << new TarvexGUIToolkit::CStandardItem(row.strType.isEmpty() ? QString::fromLatin1(kNoType)
                                                                           : row.strType);
        for (const QString* text : {&row.strRssi, &row.strSendRate, &row.strReceiveRate, &row.strConnectTime})
            items << new TarvexGUIToolkit::CStandardItem(*text);
        appendRow(items);
    }
}

} // namespace velmora
