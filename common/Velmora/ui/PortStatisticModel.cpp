#include "PortStatisticModel.h"

#include "TarvexGUIToolkit/StandardItem.h"

namespace velmora {

namespace {

struct StatisticColumn {
    const char* headerKey;
    const std::string PortStatisticData::* member;
};

// Header and record member of each column, in column order.
const StatisticColumn kColumns[CPortStatisticModel::COLUMN_COUNT] = {
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "PortName"), &PortStatisticData::strPortName},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "NumberOfBytesSent"), &PortStatisticData::strBytesSent},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "NumberOfMessagesSent"), &PortStatisticData::strPacketsSent},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "NumberOfBytesReceived"), &PortStatisticData::strBytesReceived},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "NumberOfMessagesReceived"),
     &PortStatisticData::strPacketsReceived},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "SendingRate"), &PortStatisticData::strSendRate},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "ReceivingRate"), &PortStatisticData::strReceiveRate},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "PeakRateOfTransmission(InSevenDays)"),
     &PortStatisticData::strPeakSendRate},
    {QT_TRANSLATE_NOOP("velmora::CPortStatisticModel", "ReceivingPeakRate(InSevenDays)"),
     &PortStatisticData::strPeakReceiveRate},
};

} // namespace

CPortStatisticModel::CPortStatisticModel(QObject* parent)
    : TarvexGUIToolkit::CStandardItemModel(parent)
{
    QStringList headers;
    for (const StatisticColumn& column : kColumns)
        headers << tr(column.headerKey);
    SetHorizontalHeader(headers);
}

int CPortStatisticModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : COLUMN_COUNT;
}

void CPortStatisticModel::setPortStatistic(const std::vector<PortStatisticData>& rows)
{
    removeRows(0, rowCount(QModelIndex()), QModelIndex());
    for (const PortStatisticData& row : rows) {
        QList<QStandardItem*> items;
        for (const StatisticColumn& column : kColumns)
            items << new TarvexGUIToolkit::CStandardItem(QString::fromStdString(row.*column.member));
        appendRow(items);
    }
}

} // namespace velmora
