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
        auto* mac = new TarvexGUIToolkit::CStandardItem(row.strMac);
        items << mac;
        items << new TarvexGUIToolkit::CStandardItem(row.strIp);
        // The type keeps what the vendor look-up gave; the tooltip says why there is none.
        auto* type = new TarvexGUIToolkit::CStandardItem(row.strType.isEmpty() ? QString::fromLatin1(kNoType)
                                                                               : row.strType);
        items << type;
        const QString tip = privateAddressToolTip(row.strMac);
        if (!tip.isEmpty()) {
            mac->setToolTip(tip);
            type->setToolTip(tip);
        }
        for (const QString* text : {&row.strRssi, &row.strSendRate, &row.strReceiveRate, &row.strConnectTime})
            items << new TarvexGUIToolkit::CStandardItem(*text);
        appendRow(items);
    }
}

bool CClientModel::isPrivateAddress(const QString& mac)
{
    int digits = 0;
    for (const QChar c : mac) {
        if (c == QLatin1Char(':') || c == QLatin1Char('-') || c == QLatin1Char('.') || c.isSpace())
            continue;
        bool ok = false;
        const int value = QString(c).toInt(&ok, 16);
        if (!ok)
            return false;
        if (++digits == 2)
            // Bit 1 of the first octet: locally administered; bit 0 (group address) clear.
            return (value & 0x3) == 0x2;
    }
    return false;
}

QString CClientModel::privateAddressToolTip(const QString& mac)
{
    return isPrivateAddress(mac) ? tr("A private (randomised) address: it belongs to no vendor.") : QString();
}

} // namespace velmora
