// A DeviceNodeListData of 1,000 nodes with ports, peers and lines: read (cJSON_Parse and
// fromJSON) against cJSON_Parse alone, and written (toJSON and cJSON_Print) against
// cJSON_Print of the same tree alone. The ratios of each pair are the records' cost. For
// scale, the same tree is also built by hand with cJSON's own calls, as code without the
// records would write it.
#include <benchmark/benchmark.h>

#include <string>

#include "JSONStruct/Topology/TopologyJSONStruct.h"
#include "RecordListBench.h"

namespace {

constexpr int kNodes = 1000;
constexpr int kPortsPerNode = 8;
constexpr int kPeersPerPort = 2;
constexpr int kLinesPerNode = 2;

protocol::DeviceNodeListData makeNodes()
{
    protocol::DeviceNodeListData list;
    list.deviceNodeList.resize(kNodes);
    int n = 0;
    for (protocol::DeviceNode& node : list.deviceNodeList) {
        ++n;
        node.guid = "device-guid-" + std::to_string(n);
        node.name = "Access switch " + std::to_string(n);
        node.ip = "10.1." + std::to_string(n / 250) + "." + std::to_string(n % 250);
        node.deviceCategory = 40;
        node.sdkDeviceType = 1200 + n % 7;
        node.deviceClassType = n % 5;
        node.online = n % 3 != 0;
        node.serialNo = "SN" + std::to_string(100000 + n);
        node.longSerialNo = "DS-3E1510P-EI" + std::to_string(1000000000 + n);
        node.safeMode = n % 2;
        node.portNodeList.resize(kPortsPerNode);
        int p = 0;
        for (protocol::PortNode& port : node.portNodeList) {
            ++p;
            port.guid = node.guid + "-port-" + std::to_string(p);
            port.linkPort = p;
            port.portName = "GigabitEthernet1/0/" + std::to_string(p);
            port.portType = 1;
            port.lineGuid = node.guid + "-line-" + std::to_string(p);
            port.peerNodeList.resize(kPeersPerPort);
            int q = 0;
            for (protocol::PeerNode& peer : port.peerNodeList) {
                peer.guid = "peer-" + std::to_string(n) + "-" + std::to_string(p) + "-" + std::to_string(++q);
                peer.linkPort = q;
                peer.portName = "eth" + std::to_string(q);
                peer.portType = 2;
            }
        }
        node.lineList.resize(kLinesPerNode);
        int l = 0;
        for (protocol::Line& line : node.lineList) {
            line.lineGuid = node.guid + "-line-" + std::to_string(++l);
            line.enable = 1;
            line.online = 1;
            line.uploadSpeed = 1000 * l;
            line.downSpeed = 900 * l;
            line.portDeviceList.resize(2);
            for (protocol::PortDevice& end : line.portDeviceList) {
                end.guid = line.lineGuid + "-end";
                end.ip = node.ip;
                end.linkPort = l;
                end.portName = "GigabitEthernet1/0/" + std::to_string(l);
                end.portBandWidth = "1000M";
            }
        }
    }
    return list;
}

const std::string& nodesText()
{
    static const std::string text = recordbench::printedText(makeNodes());
    return text;
}

void BM_ParseOnly(benchmark::State& state) { recordbench::parseOnly(state, nodesText()); }

void BM_ParseAndReadRecords(benchmark::State& state)
{
    recordbench::parseAndRead<protocol::DeviceNodeListData>(state, nodesText());
}

void BM_PrintOnly(benchmark::State& state) { recordbench::printOnly(state, nodesText()); }

void BM_WriteRecordsAndPrint(benchmark::State& state)
{
    protocol::DeviceNodeListData list = makeNodes();
    recordbench::writeAndPrint(state, list);
}

// The tree that toJSON builds, written out with cJSON's calls.
cJSON* handBuilt(const protocol::DeviceNodeListData& list)
{
    cJSON* root = cJSON_CreateObject();
    cJSON* nodes = cJSON_AddArrayToObject(root, "deviceNodeList");
    for (const protocol::DeviceNode& node : list.deviceNodeList) {
        cJSON* n = cJSON_CreateObject();
        cJSON_AddStringToObject(n, "guid", node.guid.c_str());
        cJSON_AddStringToObject(n, "name", node.name.c_str());
        cJSON_AddStringToObject(n, "ip", node.ip.c_str());
        cJSON_AddNumberToObject(n, "deviceCategory", node.deviceCategory);
        cJSON_AddNumberToObject(n, "sdkDeviceType", node.sdkDeviceType);
        cJSON_AddNumberToObject(n, "deviceClassType", node.deviceClassType);
        cJSON_AddNumberToObject(n, "bridgeWorkType", node.bridgeWorkType);
        cJSON_AddNumberToObject(n, "dataSource", node.dataSource);
        cJSON_AddBoolToObject(n, "online", node.online);
        cJSON_AddNumberToObject(n, "wifiStrength", node.wifiStrength);
        cJSON_AddStringToObject(n, "serialNo", node.serialNo.c_str());
        cJSON_AddStringToObject(n, "longSerialNo", node.longSerialNo.c_str());
        cJSON_AddBoolToObject(n, "isRoot", node.isRoot);
        cJSON* ports = cJSON_AddArrayToObject(n, "portNodeList");
        for (const protocol::PortNode& port : node.portNodeList) {
            cJSON* p = cJSON_CreateObject();
            cJSON_AddStringToObject(p, "guid", port.guid.c_str());
            cJSON_AddNumberToObject(p, "linkPort", port.linkPort);
            cJSON_AddStringToObject(p, "portName", port.portName.c_str());
            cJSON_AddNumberToObject(p, "portType", port.portType);
            cJSON_AddNumberToObject(p, "nodePosType", port.nodePosType);
            cJSON_AddStringToObject(p, "lineGuid", port.lineGuid.c_str());
            cJSON* peers = cJSON_AddArrayToObject(p, "peerNodeList");
            for (const protocol::PeerNode& peer : port.peerNodeList) {
                cJSON* q = cJSON_CreateObject();
                cJSON_AddStringToObject(q, "guid", peer.guid.c_str());
                cJSON_AddNumberToObject(q, "linkPort", peer.linkPort);
                cJSON_AddStringToObject(q, "portName", peer.portName.c_str());
                cJSON_AddNumberToObject(q, "portType", peer.portType);
                cJSON_AddItemToArray(peers, q);
            }
            cJSON_AddItemToArray(ports, p);
        }
        cJSON* lines = cJSON_AddArrayToObject(n, "lineList");
        for (const protocol::Line& line : node.lineList) {
            cJSON* l = cJSON_CreateObject();
            cJSON_AddStringToObject(l, "lineGuid", line.lineGuid.c_str());
            cJSON_AddNumberToObject(l, "enable", line.enable);
            cJSON_AddNumberToObject(l, "online", line.online);
            cJSON_AddNumberToObject(l, "lineType", line.lineType);
            cJSON_AddNumberToObject(l, "uploadSpeed", line.uploadSpeed);
            cJSON_AddNumberToObject(l, "downSpeed", line.downSpeed);
            cJSON_AddNumberToObject(l, "sendUseRatio", line.sendUseRatio);
            cJSON_AddNumberToObject(l, "recvUseRatio", line.recvUseRatio);
            cJSON* ends = cJSON_AddArrayToObject(l, "portDeviceList");
            for (const protocol::PortDevice& end : line.portDeviceList) {
                cJSON* e = cJSON_CreateObject();
                cJSON_AddNumberToObject(e, "portDeviceType", end.portDeviceType);
                cJSON_AddStringToObject(e, "guid", end.guid.c_str());
                cJSON_AddStringToObject(e, "ip", end.ip.c_str());
                cJSON_AddNumberToObject(e, "linkPort", end.linkPort);
                cJSON_AddStringToObject(e, "portName", end.portName.c_str());
                cJSON_AddNumberToObject(e, "portType", end.portType);
                cJSON_AddStringToObject(e, "portBandWidth", end.portBandWidth.c_str());
                cJSON_AddItemToArray(ends, e);
            }
            cJSON_AddItemToArray(lines, l);
        }
        cJSON_AddNumberToObject(n, "clientCount2_4", node.clientCount2_4);
        cJSON_AddNumberToObject(n, "clientCount5", node.clientCount5);
        cJSON_AddNumberToObject(n, "aPclientCount", node.aPclientCount);
        cJSON_AddBoolToObject(n, "isSupportSafe", node.isSupportSafe);
        cJSON_AddBoolToObject(n, "isSafe", node.isSafe);
        cJSON_AddBoolToObject(n, "safeMode", node.safeMode != 0);
        cJSON_AddItemToArray(nodes, n);
    }
    return root;
}

void BM_HandBuiltTreeAndPrint(benchmark::State& state)
{
    protocol::DeviceNodeListData list = makeNodes();
    for (auto _ : state) {
        cJSON* json = handBuilt(list);
        char* printed = cJSON_Print(json);
        benchmark::DoNotOptimize(printed);
        cJSON_free(printed);
        cJSON_Delete(json);
    }
}

} // namespace

BENCHMARK(BM_ParseOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ParseAndReadRecords)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PrintOnly)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_WriteRecordsAndPrint)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_HandBuiltTreeAndPrint)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
