// A DeviceResponseListData of 1,000 device answers, each with a few channels, alarm inputs
// and ports: read (cJSON_Parse and fromJSON) against cJSON_Parse alone, and written (toJSON
// and cJSON_Print) against cJSON_Print of the same tree alone, and beside it the same tree
// built by cJSON's own copy and printed.
#include <benchmark/benchmark.h>

#include <string>

#include "JSONStruct/Device/DeviceJSONStruct.h"
#include "RecordListBench.h"

namespace {

constexpr int kDevices = 1000;
constexpr int kChannelsPerDevice = 4;
constexpr int kAlarmInputsPerDevice = 2;
constexpr int kPortsPerDevice = 4;

protocol::DeviceResponseListData makeDevices()
{
    protocol::DeviceResponseListData list;
    list.deviceCount = kDevices;
    list.code = "0-0";
    list.deviceResponseList.resize(kDevices);
    int n = 0;
    for (protocol::DeviceResponse& device : list.deviceResponseList) {
        ++n;
        const std::string id = std::to_string(n);
        device.isLocal = true;
        device.guid = "device-guid-" + id;
        device.deviceId = n;
        device.alias = "Entrance camera " + id;
        device.deviceCategory = 1 + n % 4;
        device.deviceType = 20000 + n % 50;
        device.deviceTypeName = "IPC";
        device.addMode = 0;
        device.address = "10.2." + std::to_string(n / 250) + "." + std::to_string(n % 250);
        device.port = 8000;
        device.httpPort = 80;
        device.username = "admin";
        device.serialNo = "SN" + std::to_string(500000000 + n);
        device.isOnline = n % 5 != 0;
        device.loginIp = device.address;
        device.loginPort = 8000;
        device.startChanNo = 1;
        device.startDChanNo = 33;
        device.softwareVersion = "V5.7.3 build 220112";
        device.supportWeb = true;
        device.support = 0x3F;
        device.support1 = 0x11;
        device.componentId = "component-" + id;
        device.supportPtz = n % 3 == 0;
        device.videoLevel = {1, 2, 3};
        device.smsName = "Media server";
        device.channelList.resize(kChannelsPerDevice);
        int c = 0;
        for (protocol::Channel& channel : device.channelList) {
            ++c;
            channel.type = 1;
            channel.guid = device.guid + "-channel-" + std::to_string(c);
            channel.resourceGuid = channel.guid + "-resource";
            channel.name = "Camera " + std::to_string(c);
            channel.no = c;
            channel.enable = true;
            channel.online = device.isOnline;
            channel.channelStatus = c % 2;
        }
        device.alarmInputList.resize(kAlarmInputsPerDevice);
        int a = 0;
        for (protocol::AlarmInput& input : device.alarmInputList) {
            ++a;
            input.type = 2;
            input.guid = device.guid + "-alarm-in-" + std::to_string(a);
            input.name = "Alarm input " + std::to_string(a);
            input.no = a;
            input.online = true;
        }
        device.portList.resize(kPortsPerDevice);
        int p = 0;
        for (protocol::SwitchPort& port : device.portList) {
            ++p;
            port.guid = device.guid + "-port-" + std::to_string(p);
            port.name = "eth" + std::to_string(p);
            port.no = p;
            port.type = 1;
        }
    }
    return list;
}

const std::string& devicesText()
{
    static const std::string text = recordbench::printedText(makeDevices());
    return text;
}

void BM_DeviceResponseParseOnly(benchmark::State& state) { recordbench::parseOnly(state, devicesText()); }

void BM_DeviceResponseParseAndRead(benchmark::State& state)
{
    recordbench::parseAndRead<protocol::DeviceResponseListData>(state, devicesText());
}

void BM_DeviceResponsePrintOnly(benchmark::State& state) { recordbench::printOnly(state, devicesText()); }

void BM_DeviceResponseCopyTreeAndPrint(benchmark::State& state)
{
    recordbench::copyTreeAndPrint(state, devicesText());
}

void BM_DeviceResponseWriteAndPrint(benchmark::State& state)
{
    protocol::DeviceResponseListData list = makeDevices();
    recordbench::writeAndPrint(state, list);
}

} // namespace

BENCHMARK(BM_DeviceResponseParseOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DeviceResponseParseAndRead)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DeviceResponsePrintOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DeviceResponseCopyTreeAndPrint)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_DeviceResponseWriteAndPrint)->Unit(benchmark::kMillisecond);
