// Port names from a switch's basic information.
#include <gtest/gtest.h>

#include "SwitchPorts.h"

TEST(SwitchPortName, FirstPortWithTheIdentifierNamesIt)
{
    Quillon::CSwitchBaseInfo info;
    Quillon::SwitchBasePort port;
    port.portId = 7;
    port.portName = "GE1/0/7";
    info.portList.push_back(port);
    port.portName = "later";
    info.portList.push_back(port);
    EXPECT_EQ(velmora::switchPortName(info, 7), "GE1/0/7");
}

TEST(SwitchPortName, UnknownPortHasAnEmptyName)
{
    Quillon::CSwitchBaseInfo info;
    EXPECT_EQ(velmora::switchPortName(info, 1), "");
    Quillon::SwitchBasePort port;
    port.portId = 2;
    port.portName = "GE1/0/2";
    info.portList.push_back(port);
    EXPECT_EQ(velmora::switchPortName(info, 1), "");
    EXPECT_EQ(velmora::switchPortName(info, -2), "");
}
