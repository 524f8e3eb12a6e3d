#include "Network.h"

#include "Hash.h"
#include "ModelCatalog.h"
#include "RequestBody.h"

#include <algorithm>
#include <cctype>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace emulator {

namespace {

const char* const kXml = "application/xml; charset=UTF-8";
const char* const kJson = "application/json; charset=UTF-8";

// Vendor prefixes of the terminals (phones, laptops, boards); the last one is a locally
// administered address that no vendor table knows.
const char* const kClientOuis[] = {"608B0E", "88B291", "7C8956", "88299C", "ACED5C", "34F64B", "A44519", "D09C7A",
                                   "30FBB8", "44D791", "98E743", "C8F750", "DCA632", "5C17CF", "2479F3", "1802AE",
                                   "246F28", "70BC10", "58CB52", "040E3C", "2446C8", "98E8FA", "68DBF5", "DA7E11"};

std::string clientMac(uint64_t key, const char* separator, bool upper)
{
    const char* oui = kClientOuis[key % (sizeof kClientOuis / sizeof kClientOuis[0])];
    const uint64_t h = hashKeys({key, 0x636c});
    char text[32];
    const char* f = upper ? "%c%c%s%c%c%s%c%c%s%02X%s%02X%s%02X" : "%c%c%s%c%c%s%c%c%s%02x%s%02x%s%02x";
    auto c = [&](int i) { return upper ? oui[i] : static_cast<char>(std::tolower(static_cast<unsigned char>(oui[i]))); };
    std::snprintf(text, sizeof text, f, c(0), c(1), separator, c(2), c(3), separator, c(4), c(5), separator,
                  static_cast<unsigned>(h & 0xFF), separator, static_cast<unsigned>((h >> 8) & 0xFF), separator,
                  static_cast<unsigned>((h >> 16) & 0xFF));
    return text;
}

// The MAC address of the n-th BSS of a radio: the device's address with the last octet moved.
std::string bssMac(const std::string& deviceMac, int band, int index)
{
    std::string mac = deviceMac;
    if (mac.size() < 17)
        return mac;
    const unsigned last = static_cast<unsigned>(std::strtoul(mac.substr(15, 2).c_str(), nullptr, 16));
    char octet[4];
    std::snprintf(octet, sizeof octet, "%02x", (last + static_cast<unsigned>(band * 16 + index + 1)) & 0xFF);
    mac.replace(15, 2, octet);
    return mac;
}

bool splitMatch(const char* pattern, const std::string& path, std::string& param)
{
    const std::string p = pattern;
    size_t i = 0, j = 0;
    while (i < p.size() && j < path.size()) {
        if (p.compare(i, 2, "{}") == 0) {
            const size_t end = path.find('/', j);
            param = path.substr(j, end == std::string::npos ? std::string::npos : end - j);
            if (param.empty())
                return false;
            i += 2;
            j = end == std::string::npos ? path.size() : end;
            continue;
        }
        if (p[i] != path[j])
            return false;
        ++i;
        ++j;
    }
    return i == p.size() && j == path.size();
}

bool isAll(const DevicePlan&) { return true; }
bool isPaged(const DevicePlan& d) { return d.workStatePageCap > 0; }
bool isChassis(const DevicePlan& d) { return !d.slots.empty(); }
bool hasPanel(const DevicePlan& d) { return d.caps.bIsSupportPanelStatus; }
bool isFiberCrate(const DevicePlan& d) { return d.caps.supportCrateSlotStatus; }
bool isController(const DevicePlan& d) { return d.category == kWirelessController; }
bool searchesGroups(const DevicePlan& d) { return d.category == kWirelessController && d.acSearchGroups; }
bool isAccessPoint(const DevicePlan& d) { return d.category == kWirelessAp || d.category == kWirelessRouter; }
bool hasWan(const DevicePlan& d)
{
    return d.category == kWirelessController || d.category == kWirelessRouter || d.category == kEnterpriseRouter;
}
bool isBridge(const DevicePlan& d) { return d.category == kBridge; }

const std::vector<std::string>& regionCodes()
{
    static const std::vector<std::string> codes = {"CN", "US", "EU", "JP", "KR", "AU", "IN", "BR", "RU", "Other"};
    return codes;
}

const char* errorText(int status, int& code, const char*& sub)
{
    switch (status) {
    case 400: code = 6; sub = "badParameters"; return "Invalid Content";
    case 401: code = 4; sub = "unauthorized"; return "Invalid Operation";
    case 404: code = 4; sub = "notSupport"; return "Invalid Operation";
    case 405: code = 4; sub = "methodNotAllowed"; return "Invalid Operation";
    case 500: code = 3; sub = "deviceError"; return "Device Error";
    case 503: code = 2; sub = "deviceBusy"; return "Device Busy";
    default: code = 1; sub = "error"; return "Error";
    }
}

double round1(double v) { return std::round(v * 10.0) / 10.0; }

} // namespace

// ---------------------------------------------------------------------------------------

Clock::Clock(int tickMs, long long frozenAt)
    : m_tickMs(tickMs > 0 ? tickMs : 1000), m_start(std::chrono::steady_clock::now()), m_frozen(frozenAt)
{
}

long long Clock::tick() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_frozen >= 0)
        return m_frozen;
    const auto elapsed = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - m_start);
    return m_base + elapsed.count() / m_tickMs;
}

void Clock::freeze(long long tick)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_frozen = tick < 0 ? 0 : tick;
}

void Clock::run()
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (m_frozen < 0)
        return;
    m_base = m_frozen;
    m_start = std::chrono::steady_clock::now();
    m_frozen = -1;
}

bool Clock::frozen() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_frozen >= 0;
}

// ---------------------------------------------------------------------------------------

struct Network::Context {
    const DevicePlan& d;
    Runtime& rt;
    long long tick;
    bool json;
    const std::string& method;
    const std::string& path;
    const std::string& target;
    const std::string& body;
    const SearchFault& fault;
    std::string param;
};

struct Network::Terminal {
    size_t ap = 0;
    int band = 0;
    std::string ssid;
    std::string mac;
    std::string ip;
    int rssi = -60;
    double receiveRate = 0.0;
    double sendRate = 0.0;
    long long seconds = 0;
};

struct Network::BssView {
    std::string ssid;
    std::string securityMode;
    std::string mac;
    int band = 0;
    bool enabled = true;
    int index = 0;
};

Network::Network(Fleet fleet, uint64_t seed, int tickMs, long long frozenAt)
    : m_fleet(std::move(fleet)), m_live(seed), m_clock(tickMs, frozenAt)
{
    m_topology.build(m_fleet);
    for (const DevicePlan& d : m_fleet.devices) {
        m_runtimes.push_back(std::make_unique<Runtime>());
        m_runtimes.back()->region = d.region;
    }
}

Network::Runtime& Network::runtime(const DevicePlan& device)
{
    return *m_runtimes[static_cast<size_t>(device.index)];
}

const std::vector<Network::Route>& Network::routes()
{
    static const std::vector<Route> table = {
        {"GET", "/NXRPC/System/status", isAll, &Network::deviceStatus},
        {"GET", "/NXRPC/Transfers/Switches/basicInfo", isAll, &Network::basicInfo},
        {"GET", "/NXRPC/Transfers/Switches/workState", isAll, &Network::workState},
        {"POST", "/NXRPC/Transfers/Switches/workState/search", isPaged, &Network::workStateSearch},
        {"GET", "/NXRPC/Transfers/Switches/workState/search/capabilities", isPaged, &Network::workStateSearchCap},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portBasic", isAll, &Network::portBasic},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portRate", isAll, &Network::portRate},
        {"PUT", "/NXRPC/Transfers/Switches/portSumClear", isAll, &Network::portSumClear},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portPOEInfo", isAll, &Network::poeInfo},
        {"GET", "/NXRPC/Transfers/Switches/portCfg/portPOEInfo/capabilities", isAll, &Network::poeInfoCap},
        {"GET", "/NXRPC/Transfers/Switches/slotInfo", isChassis, &Network::slotInfo},
        {"GET", "/NXRPC/Transfers/Switches/slotInfo/{}/panelStatus", hasPanel, &Network::panelStatus},
        {"GET", "/NXRPC/Transfers/FiberConvert/slot", isFiberCrate, &Network::fiberSlots},
        {"GET", "/NXRPC/Transfers/AC/capabilities", isController, &Network::acCapabilities},
        {"GET", "/NXRPC/Transfers/AC/APGroup", isController, &Network::apGroups},
        {"GET", "/NXRPC/System/Network/interfaces/bssParaCfg/APGroup", isController, &Network::apGroupBss},
        {"POST", "/NXRPC/System/Network/interfaces/bssParaCfg/SearchAPGroup", searchesGroups, &Network::apGroupBssSearch},
        {"POST", "/NXRPC/Transfers/AP/basicInfo", isController, &Network::apInfoSearch},
        {"POST", "/NXRPC/Transfers/AC/terminalInfo", isController, &Network::terminalSearch},
        {"GET", "/NXRPC/System/Network/interfaces/bssParaCfg", isAccessPoint, &Network::bssParaCfg},
        {"POST", "/NXRPC/System/Network/interfaces/bssParaCfg", isAccessPoint, &Network::bssParaCfgSearch},
        {"GET", "/NXRPC/Transfers/AP/bssClientInfo", isAccessPoint, &Network::bssClients},
        {"GET", "/NXRPC/System/Network/interfaces/rfParaCfg", isAccessPoint, &Network::rfParaCfg},
        {"GET", "/NXRPC/System/Network/PPPoE/status", hasWan, &Network::pppoeStatus},
        {"GET", "/NXRPC/Transfers/Routers/deviceInfo", hasWan, &Network::routerTerminals},
        {"GET", "/NXRPC/System/Network/interfaces/{}/wireless", isBridge, &Network::wireless},
        {"GET", "/NXRPC/System/Network/interfaces/{}/wireless/transmissionList", isBridge, &Network::transmissionList},
        {"GET", "/NXRPC/System/Network/wirelessServer/Region", isBridge, &Network::region},
        {"GET", "/NXRPC/System/Network/wirelessServer/RegionCapabilities", isBridge, &Network::regionCapabilities},
        {"PUT", "/NXRPC/System/Network/wirelessServer/Region", isBridge, &Network::setRegion},
    };
    return table;
}

Answer Network::deviceRequest(const DevicePlan& device, const std::string& method, const std::string& path,
                              const std::string& target, bool json, const std::string& body, const SearchFault& fault)
{
    bool otherVerb = false;
    for (const Route& r : routes()) {
        std::string param;
        if (!splitMatch(r.path, path, param) || !r.serves(device))
            continue;
        if (method != r.method) {
            otherVerb = true;
            continue;
        }
        Context c{device, runtime(device), m_clock.tick(), json, method, path, target, body, fault, param};
        return (this->*r.handler)(c);
    }
    return errorAnswer(otherVerb ? 405 : 404, target, json);
}

Answer Network::write(const Record& record, bool json) const
{
    Answer a;
    a.body = json ? record.toJson() : record.toXml();
    a.contentType = json ? kJson : kXml;
    return a;
}

Answer Network::errorAnswer(int httpStatus, const std::string& target, bool json, const std::string& subStatus)
{
    int code = 1;
    const char* sub = "error";
    const char* text = errorText(httpStatus, code, sub);
    Record r("ResponseStatus");
    r.text("requestURL", target).integer("statusCode", code).text("statusString", text).text("subStatusCode",
                                                                                           subStatus.empty() ? sub : subStatus);
    Answer a;
    a.status = httpStatus;
    a.body = json ? r.toJson() : r.toXml();
    a.contentType = json ? kJson : kXml;
    return a;
}

long long Network::clearTickOf(const DevicePlan& device)
{
    Runtime& rt = runtime(device);
    std::lock_guard<std::mutex> lock(rt.mutex);
    return rt.clearTick;
}

// ---------------------------------------------------------------------------------------
// Device and switch answers

Answer Network::deviceStatus(Context& c)
{
    const DeviceSample s = m_live.device(c.d, c.tick);
    Record r("DeviceStatus");
    r.integer("deviceUpTime", s.upTime);
    Record& cpus = r.list("cpuList");
    const int cpuCount = c.d.caps.bIsChassisDevice && c.d.category == kSwitch ? 2 : 1;
    for (int i = 0; i < cpuCount; ++i) {
        const int cpu = i == 0 ? s.cpu
                               : static_cast<int>(std::lround(m_live.wander(hashKeys({hashText(c.d.id), 44}), c.tick, 2.0, 20.0, 400)));
        cpus.item("DeviceCpuInfo").integer("cpuUtilization", cpu);
    }
    r.list("memoryList").item("DeviceMemoryInfo").real("memoryUsage", s.memoryUsed).real("memoryAvailable", s.memoryAvailable);
    Record& poe = r.list("poeList");
    if (c.d.poe)
        poe.item("DevicePoeInfo").real("poeUsed", s.poeUsed).real("poeTotal", s.poeTotal).real("poePeak", s.poePeak);
    return write(r, c.json);
}

Answer Network::basicInfo(Context& c)
{
    Record r("SwitchBaseInfo");
    r.text("deviceModel", c.d.reportedModel);
    Record& ports = r.list("portList");
    for (const PortPlan& p : c.d.ports)
        ports.item("SwitchBasePort").integer("portId", p.id).text("portName", p.name);
    r.text("deviceName", c.d.name)
        .text("serialNumber", c.d.serialNumber)
        .text("macAddress", c.d.macAddress)
        .text("firmwareVersion", c.d.firmwareVersion)
        .text("hardwareVersion", c.d.hardwareVersion)
        .integer("portNum", static_cast<long long>(c.d.ports.size()));
    return write(r, c.json);
}

bool Network::wanConnected(const DevicePlan& d, const WanPlan& wan, long long tick) const
{
    if (wan.alwaysUp)
        return true;
    return m_live.presence(hashText(d.id), static_cast<uint64_t>(wan.portId) + 0x57414e, tick, 0.6, 600, 3600).present;
}

void Network::addWorkStateItem(Record& list, const DevicePlan& d, const PortPlan& p, long long tick, long long clearTick) const
{
    const PortSample s = m_live.port(d, p, tick, clearTick);
    bool internet = false;
    if (p.wan && s.up) {
        internet = true;
        for (const WanPlan& w : d.wans)
            if (w.portId == p.id)
                internet = wanConnected(d, w, tick);
    }
    Record& item = list.item("SwitchesWorkStateItem");
    item.integer("portId", p.id)
        .boolean("portEnabled", s.enabled)
        .text("linkState", s.up ? "connected" : "disconnected")
        .text("rate", s.rate)
        .boolean("flowCtrl", s.flowCtrl)
        .text("duplex", s.duplex)
        .text("portType", portTypeText(p.type))
        .counter("bytesSent", s.bytesSent)
        .integer("sendRate", s.sendRate)
        .counter("packetsSent", s.packetsSent)
        .integer("sendReserved", 0)
        .counter("bytesReceived", s.bytesReceived)
        .integer("receiveRate", s.receiveRate)
        .counter("packetsReceived", s.packetsReceived);
    item.list("counterReserved").plainInteger(0).plainInteger(0).plainInteger(0);
    item.integer("peakSendRate", s.peakSendRate)
        .integer("peakReceiveRate", s.peakReceiveRate)
        .real("poePower", s.poePower)
        .text("portRemark", internet ? "connected" : "");
}

Answer Network::workState(Context& c)
{
    const long long clear = clearTickOf(c.d);
    Record r("SwitchesWorkState");
    Record& list = r.list("portList");
    for (const PortPlan& p : c.d.ports)
        addWorkStateItem(list, c.d, p, c.tick, clear);
    r.text("portOrder", c.d.portOrder);
    return write(r, c.json);
}

template <typename CountFn, typename WriteFn>
Answer Network::pagedSearch(Context& c, const char* root, const char* listName, int firstPosition, int largestPage,
                            CountFn count, WriteFn writeItems)
{
    std::map<std::string, std::string> fields;
    BodyFormat format = BodyFormat::Xml;
    if (!readBodyFields(c.body, fields, format))
        return errorAnswer(400, c.target, c.json, format == BodyFormat::Json ? "badJsonContent" : "badXmlContent");
    if (!fields.count("maxResults") || !fields.count("searchResultPosition"))
        return errorAnswer(400, c.target, c.json);
    const std::string searchId = fields.count("searchID") ? fields["searchID"] : std::string();
    const long long maxResults = std::atoll(fields["maxResults"].c_str());
    const long long position = std::atoll(fields["searchResultPosition"].c_str());
    if (maxResults < 1 || position < firstPosition)
        return errorAnswer(400, c.target, c.json);

    // One walk sees one snapshot of the device: the tick of its first page.
    long long tick = c.tick;
    int page = 0;
    {
        std::lock_guard<std::mutex> lock(c.rt.mutex);
        auto it = c.rt.sessions.find(searchId);
        if (it == c.rt.sessions.end()) {
            if (c.rt.sessions.size() >= 256) {
                auto oldest = std::min_element(c.rt.sessions.begin(), c.rt.sessions.end(),
                                               [](const auto& a, const auto& b) { return a.second.lastUse < b.second.lastUse; });
                c.rt.sessions.erase(oldest);
            }
            it = c.rt.sessions.emplace(searchId, Session{c.tick, 0, 0}).first;
        }
        it->second.lastUse = ++m_seq;
        page = ++it->second.pages;
        tick = it->second.tick;
    }
    if (c.fault.failPage > 0 && page == c.fault.failPage)
        return errorAnswer(c.fault.failStatus, c.target, c.json);

    const long long total = count(tick);
    const long long first = position - firstPosition;
    const long long take = std::max(0LL, std::min<long long>(std::min<long long>(maxResults, largestPage), total - first));
    const bool more = c.fault.moreForever || first + take < total;
    Record r(root);
    r.text("searchID", searchId).text("responseStatus", more ? "MORE" : "OK").integer("numOfMatches", take);
    Record& list = r.list(listName);
    if (take > 0)
        writeItems(list, first, take, tick);
    return write(r, c.json);
}

Answer Network::workStateSearch(Context& c)
{
    const long long clear = clearTickOf(c.d);
    const DevicePlan& d = c.d;
    return pagedSearch(
        c, "SwitchesWorkStateSearchRes", "portList", 0, d.workStatePageCap,
        [&d](long long) { return static_cast<long long>(d.ports.size()); },
        [this, &d, clear](Record& list, long long first, long long n, long long tick) {
            for (long long i = first; i < first + n; ++i)
                addWorkStateItem(list, d, d.ports[static_cast<size_t>(i)], tick, clear);
        });
}

Answer Network::workStateSearchCap(Context& c)
{
    Record r("SwitchesWorkStateSearchCap");
    r.integer("maxResults", c.d.workStatePageCap);
    return write(r, c.json);
}

Answer Network::portBasic(Context& c)
{
    Record r("PortBasicList");
    Record& list = r.list("portList");
    for (const PortPlan& p : c.d.ports) {
        const PortSample s = m_live.port(c.d, p, c.tick, 0);
        list.item("PortBasic")
            .integer("portId", p.id)
            .text("portName", p.name)
            .boolean("portEnabled", s.enabled)
            .text("portType", portTypeText(p.type))
            .text("maxSpeed", p.speedMbps >= 10000 ? std::to_string(p.speedMbps / 1000) + "G" : std::to_string(p.speedMbps) + "M")
            .text("duplex", "auto")
            .boolean("flowCtrl", s.flowCtrl)
            .text("portDescription", p.uplink ? "uplink" : (p.linked ? "access" : ""));
    }
    return write(r, c.json);
}

Answer Network::portRate(Context& c)
{
    Record r("PortRateList");
    Record& list = r.list("portList");
    const uint64_t dk = hashText(c.d.id);
    for (const PortPlan& p : c.d.ports) {
        const bool limited = unitOf({dk, static_cast<uint64_t>(p.id), 90}) < 0.1;
        list.item("PortRate")
            .integer("portId", p.id)
            .boolean("rateLimitEnabled", limited)
            .integer("ingressRate", limited ? 10240 * rangeOf(1, 50, {dk, static_cast<uint64_t>(p.id), 91}) : 0)
            .integer("egressRate", limited ? 10240 * rangeOf(1, 50, {dk, static_cast<uint64_t>(p.id), 92}) : 0);
    }
    return write(r, c.json);
}

Answer Network::portSumClear(Context& c)
{
    {
        std::lock_guard<std::mutex> lock(c.rt.mutex);
        c.rt.clearTick = c.tick;
    }
    Record r("ResponseStatus");
    r.text("requestURL", c.target).integer("statusCode", 1).text("statusString", "OK").text("subStatusCode", "ok");
    return write(r, c.json);
}

Answer Network::poeInfo(Context& c)
{
    Record r("PortPoeInfoList");
    Record& list = r.list("portList");
    const uint64_t dk = hashText(c.d.id);
    for (const PortPlan& p : c.d.ports) {
        if (!p.poe)
            continue;
        const PortSample s = m_live.port(c.d, p, c.tick, 0);
        const bool enabled = unitOf({dk, static_cast<uint64_t>(p.id), 93}) > 0.06;
        const double power = enabled ? s.poePower : 0.0;
        list.item("PortPoeInfo")
            .integer("portId", p.id)
            .boolean("poeEnable", enabled)
            .text("poeStatus", !enabled ? "disabled" : (power > 0.0 ? "powering" : "searching"))
            .real("poePower", power)
            .real("poeMaxPower", 30.0);
    }
    return write(r, c.json);
}

Answer Network::poeInfoCap(Context& c)
{
    Record r("PortPoeInfoListCap");
    r.boolean("isSupportPoe", c.d.poe);
    Record& list = r.list("portList");
    if (c.d.poe) {
        for (const PortPlan& p : c.d.ports) {
            if (p.type == 'W')
                continue;
            Record& item = list.item("PortPoeInfoCap");
            item.integer("portId", p.id);
            Record& options = item.list("poeEnableOptions");
            if (p.poe)
                options.plainBoolean(true);
            options.plainBoolean(false);
        }
    }
    return write(r, c.json);
}

Answer Network::slotInfo(Context& c)
{
    Record r("SwitchSlotInfolList");
    Record& list = r.list("slotList");
    for (const SlotPlan& s : c.d.slots)
        list.item("SwitchSlotInfo")
            .integer("slotId", s.slotId)
            .text("boardType", s.mainBoard ? "mainBoard" : "interfaceBoard")
            .boolean("inserted", s.inserted)
            .text("boardName", s.inserted ? s.boardName : "")
            .integer("portNum", s.inserted ? s.portCount : 0);
    return write(r, c.json);
}

Answer Network::panelStatus(Context& c)
{
    if (c.param != "1")
        return errorAnswer(404, c.target, c.json);
    std::vector<const PortPlan*> ports;
    for (const PortPlan& p : c.d.ports)
        if (p.type != 'W')
            ports.push_back(&p);
    const int rows = ports.size() > 12 ? 2 : 1;

    Record r("PanelStatus");
    Record& panel = r.list("panelList").item("Panel");
    panel.integer("rowCount", rows);
    Record& cells = panel.list("cellList");
    int columns = 0;
    auto blank = [&](const char* type) {
        for (int k = 0; k < rows; ++k)
            cells.item("Cell").text("cellType", type).text("portType", "").integer("portId", 0).text("label", "").text("direction", "");
        ++columns;
    };
    auto portCell = [&](const PortPlan* p, bool up) {
        if (!p) {
            cells.item("Cell").text("cellType", "none").text("portType", "").integer("portId", 0).text("label", "").text("direction", "");
            return;
        }
        cells.item("Cell")
            .text("cellType", "port")
            .text("portType", p->type == 'O' ? "optical" : "electrical")
            .integer("portId", p->id)
            .text("label", std::to_string(p->id))
            .text("direction", up ? "up" : "down");
    };
    blank("border");
    size_t i = 0;
    int inGroup = 0;
    while (i < ports.size()) {
        const PortPlan* top = ports[i];
        // A new port kind, or every eight columns, starts a new group behind a gap.
        if (i > 0 && (ports[i - 1]->type == 'O') != (top->type == 'O'))
            inGroup = 0, blank("septalSpace");
        else if (inGroup == 8)
            inGroup = 0, blank("septalSpace");
        if (rows == 2) {
            const PortPlan* bottom = nullptr;
            if (i + 1 < ports.size() && (ports[i + 1]->type == 'O') == (top->type == 'O')) {
                bottom = ports[i + 1];
                ++i;
            }
            portCell(top, true);
            portCell(bottom, false);
        } else {
            portCell(top, true);
        }
        ++i;
        ++inGroup;
        ++columns;
    }
    blank("border");
    panel.integer("columnCount", columns).integer("portMargin", 2);
    return write(r, c.json);
}

Answer Network::fiberSlots(Context& c)
{
    Record r("FiberConvertSlotList");
    Record& list = r.list("slotList");
    for (const FiberCardPlan& card : c.d.fiberCards)
        list.item("FiberConvertSlot")
            .integer("slotId", card.slotId)
            .text("receivingCardIP", card.receivingCardIP)
            .text("receiveCardSerialNumber", card.receiveCardSerialNumber)
            .text("transmitterIP", card.transmitterIP)
            .text("transmitterSerialNumber", card.transmitterSerialNumber)
            .text("senderName", card.senderName);
    return write(r, c.json);
}

// ---------------------------------------------------------------------------------------
// Controller answers

Answer Network::acCapabilities(Context& c)
{
    Record r("AcCapabilities");
    r.boolean("isSupportSearchAPGroup", c.d.acSearchGroups)
        .integer("maxAPNum", 512)
        .integer("maxAPGroupNum", 64)
        .integer("maxTerminalNum", 4096);
    return write(r, c.json);
}

Answer Network::apGroups(Context& c)
{
    Record r("APGroupInfoList");
    Record& list = r.list("groupList");
    for (size_t g = 0; g < c.d.groupNames.size(); ++g) {
        long long aps = 0;
        for (const ManagedApPlan& ap : c.d.aps)
            aps += ap.group == static_cast<int>(g) ? 1 : 0;
        list.item("APGroupInfo")
            .integer("groupId", static_cast<long long>(g) + 1)
            .text("groupName", c.d.groupNames[g])
            .integer("apNum", aps)
            .text("description", g == 0 ? "APs not assigned to a group" : "");
    }
    return write(r, c.json);
}

void Network::addGroupBss(Record& list, const DevicePlan& d, size_t g) const
{
    Record& group = list.item("APGroupBSS");
    group.text("groupName", d.groupNames[g]);
    Record& bss = group.list("bssList");
    for (const SsidPlan& s : d.groupSsids[g])
        for (int band : s.bands)
            bss.item("APGroupBssParaCfg")
                .integer("ssidIndex", s.ssidIndex)
                .integer("band", band)
                .boolean("enabled", s.enabled && !(band == 2 && s.ssidIndex == 4))
                .text("ssid", s.ssid)
                .text("securityMode", s.securityMode);
}

Answer Network::apGroupBss(Context& c)
{
    Record r("APGroupBSSList");
    Record& list = r.list("groupList");
    for (size_t g = 0; g < c.d.groupNames.size(); ++g)
        addGroupBss(list, c.d, g);
    return write(r, c.json);
}

Answer Network::apGroupBssSearch(Context& c)
{
    const DevicePlan& d = c.d;
    return pagedSearch(
        c, "APGroupBssSearchResult", "groupList", 1, 32,
        [&d](long long) { return static_cast<long long>(d.groupNames.size()); },
        [this, &d](Record& list, long long first, long long n, long long) {
            for (long long g = first; g < first + n; ++g)
                addGroupBss(list, d, static_cast<size_t>(g));
        });
}

std::string Network::apState(const DevicePlan& d, size_t ap, long long tick) const
{
    const ManagedApPlan& plan = d.aps[ap];
    if (!plan.fixedState.empty())
        return plan.fixedState;
    return m_live.presence(hashText(d.id), hashText(plan.id), tick, 0.92, 1800, 7200).present ? "online" : "offline";
}

std::vector<Network::Terminal> Network::terminals(const DevicePlan& d, long long tick) const
{
    std::vector<Terminal> out;
    for (size_t a = 0; a < d.aps.size(); ++a) {
        const ManagedApPlan& ap = d.aps[a];
        const std::string state = apState(d, a, tick);
        if (state != "online" && state != "success")
            continue;
        const uint64_t apKey = hashText(ap.id);
        const int pool = d.terminalsPerAp * 2;
        for (int j = 0; j < pool; ++j) {
            const Presence p = m_live.presence(apKey, static_cast<uint64_t>(j), tick, 0.5, 300, 3600);
            if (!p.present)
                continue;
            const uint64_t key = hashKeys({apKey, static_cast<uint64_t>(j), 0x7465});
            Terminal t;
            t.ap = a;
            t.band = static_cast<int>(rangeOf(0, ap.radios - 1, {key, 1}));
            t.ssid = "Corp";
            if (!d.groupSsids.empty()) {
                std::vector<const SsidPlan*> candidates;
                for (const SsidPlan& s : d.groupSsids[static_cast<size_t>(ap.group)])
                    if (std::find(s.bands.begin(), s.bands.end(), t.band) != s.bands.end())
                        candidates.push_back(&s);
                if (!candidates.empty())
                    t.ssid = candidates[static_cast<size_t>(rangeOf(0, static_cast<long long>(candidates.size()) - 1, {key, 2}))]->ssid;
            } else {
                t.ssid = rangeOf(0, 3, {key, 2}) ? "Corp" : "Guest";
            }
            t.mac = clientMac(key, "-", true);
            t.ip = "192.168." + std::to_string(10 + ap.group % 200) + "." + std::to_string(rangeOf(20, 250, {key, 3}));
            t.rssi = static_cast<int>(std::lround(m_live.wander(key, tick, -82.0, -38.0, 240)));
            t.receiveRate = round1(m_live.wander(hashKeys({key, 4}), tick, 200.0, 86000.0, 120));
            t.sendRate = round1(m_live.wander(hashKeys({key, 5}), tick, 100.0, 24000.0, 150));
            t.seconds = p.connectedSeconds;
            out.push_back(t);
        }
    }
    return out;
}

void Network::addApInfo(Record& list, const DevicePlan& d, size_t a, long long tick, const std::vector<Terminal>& present) const
{
    const ManagedApPlan& ap = d.aps[a];
    const std::string state = apState(d, a, tick);
    const bool up = state == "online" || state == "success";
    const uint64_t apKey = hashText(ap.id);
    const Presence since = m_live.presence(hashText(d.id), apKey, tick, 0.92, 1800, 7200);
    Record& item = list.item("ApInfo");
    item.text("deviceName", ap.deviceName)
        .text("model", ap.model)
        .text("macAddress", ap.macAddress)
        .text("ipAddress", ap.ipAddress)
        .text("serialNumber", ap.serialNumber)
        .text("softwareVersion", ap.softwareVersion)
        .text("state", state)
        .integer("runTime", up ? since.connectedSeconds + rangeOf(0, 86400 * 20, {apKey, 9}) : 0)
        .integer("cpuUsage", up ? std::lround(m_live.wander(hashKeys({apKey, 10}), tick, 3.0, 45.0, 300)) : 0)
        .integer("memoryUsage", up ? std::lround(m_live.wander(hashKeys({apKey, 11}), tick, 25.0, 70.0, 900)) : 0);
    Record& radios = item.list("rfList");
    static const int channels24[] = {1, 6, 11};
    static const int channels5[] = {36, 44, 52, 149, 157, 165};
    for (int band = 0; band < ap.radios; ++band) {
        const uint64_t rk = hashKeys({apKey, static_cast<uint64_t>(band), 12});
        int online = 0;
        for (const Terminal& t : present)
            online += (t.ap == a && t.band == band) ? 1 : 0;
        // Interference level, changing every ten minutes: mostly none, now and then in the
        // band the client calls interference (10 to 14), sometimes in the others.
        unsigned interference = 0;
        const uint64_t ik = hashKeys({rk, static_cast<uint64_t>(tick / 600)});
        const double u = m_live.noise(ik, 0);
        if (u >= 0.99)
            interference = static_cast<unsigned>(rangeOf(21, 30, {ik, 1}));
        else if (u >= 0.94)
            interference = static_cast<unsigned>(rangeOf(1, 9, {ik, 1}));
        else if (u >= 0.80)
            interference = static_cast<unsigned>(rangeOf(10, 14, {ik, 1}));
        else if (u >= 0.65)
            interference = static_cast<unsigned>(rangeOf(15, 20, {ik, 1}));
        radios.item("rfInfo")
            .integer("band", band)
            .integer("transmitPower", band == 0 ? rangeOf(12, 20, {rk, 1}) : rangeOf(15, 23, {rk, 1}))
            .integer("channel", band == 0 ? channels24[rangeOf(0, 2, {rk, 2})] : channels5[rangeOf(band == 1 ? 0 : 3, band == 1 ? 2 : 5, {rk, 2})])
            .integer("channelInterference", up ? interference : 0)
            .integer("onlineCount", online)
            .integer("sendUtilization", up ? std::lround(m_live.wander(hashKeys({rk, 3}), tick, 1.0, 55.0, 180)) : 0)
            .integer("receiveUtilization", up ? std::lround(m_live.wander(hashKeys({rk, 4}), tick, 1.0, 40.0, 200)) : 0);
    }
}

Answer Network::apInfoSearch(Context& c)
{
    const DevicePlan& d = c.d;
    return pagedSearch(
        c, "ApInfoSearchResult", "apList", 0, 64, [&d](long long) { return static_cast<long long>(d.aps.size()); },
        [this, &d](Record& list, long long first, long long n, long long tick) {
            const std::vector<Terminal> present = terminals(d, tick);
            for (long long a = first; a < first + n; ++a)
                addApInfo(list, d, static_cast<size_t>(a), tick, present);
        });
}

Answer Network::terminalSearch(Context& c)
{
    const DevicePlan& d = c.d;
    return pagedSearch(
        c, "TerminalInfoSearchResult", "terminalList", 1, 64,
        [this, &d](long long tick) { return static_cast<long long>(terminals(d, tick).size()); },
        [this, &d](Record& list, long long first, long long n, long long tick) {
            const std::vector<Terminal> present = terminals(d, tick);
            for (long long i = first; i < first + n && i < static_cast<long long>(present.size()); ++i) {
                const Terminal& t = present[static_cast<size_t>(i)];
                list.item("AcTerminalInfo")
                    .text("ipAddress", t.ip)
                    .text("macAddress", t.mac)
                    .text("apMacAddress", d.aps[t.ap].macAddress)
                    .integer("rssi", t.rssi)
                    .real("receiveRate", t.receiveRate)
                    .real("sendRate", t.sendRate)
                    .integer("connectSeconds", t.seconds)
                    .integer("band", t.band)
                    .text("ssid", t.ssid);
            }
        });
}

// ---------------------------------------------------------------------------------------
// Access point and router answers

std::vector<Network::BssView> Network::bssOf(const DevicePlan& d) const
{
    std::vector<BssView> out;
    int perBand[3] = {0, 0, 0};
    for (const SsidPlan& s : d.ssids)
        for (int band : s.bands) {
            if (band < 0 || band >= static_cast<int>(d.radios.size()))
                continue;
            BssView b;
            b.ssid = s.ssid;
            b.securityMode = s.securityMode;
            b.band = band;
            b.enabled = s.enabled;
            b.index = s.ssidIndex;
            b.mac = bssMac(d.macAddress, band, perBand[band]++);
            out.push_back(b);
        }
    return out;
}

int Network::clientsOn(const DevicePlan& d, const BssView& bss, long long tick, Record* list) const
{
    if (!bss.enabled || !d.radios[static_cast<size_t>(bss.band)].enabled)
        return 0;
    const uint64_t group = hashKeys({hashText(d.id), hashText(bss.mac)});
    int n = 0;
    for (int j = 0; j < d.clientsPerBss * 2; ++j) {
        const Presence p = m_live.presence(group, static_cast<uint64_t>(j), tick, 0.5, 240, 2400);
        if (!p.present)
            continue;
        ++n;
        if (!list)
            continue;
        const uint64_t key = hashKeys({group, static_cast<uint64_t>(j), 0x6263});
        list->item("BssClient")
            .text("ipAddress", "192.168.1." + std::to_string(rangeOf(100, 250, {key, 1})))
            .text("macAddress", clientMac(key, "-", true))
            .integer("rssi", std::lround(m_live.wander(key, tick, -80.0, -35.0, 240)))
            .real("receiveRate", round1(m_live.wander(hashKeys({key, 2}), tick, 300.0, 120000.0, 120)))
            .real("sendRate", round1(m_live.wander(hashKeys({key, 3}), tick, 100.0, 30000.0, 150)))
            .integer("connectSeconds", p.connectedSeconds);
    }
    return n;
}

// The BSSs whose SSID holds `key`, or whose MAC address is `key` (case ignored); all
// of them for an empty key.
static Record bssRecord(const std::vector<Network::BssView>& all, std::string key)
{
    auto lower = [](std::string s) {
        for (char& ch : s)
            ch = static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
        return s;
    };
    key = lower(key);
    Record r("BssParaCfg");
    Record& list = r.list("bssList");
    for (const Network::BssView& b : all) {
        if (!key.empty() && lower(b.ssid).find(key) == std::string::npos && lower(b.mac) != key)
            continue;
        list.item("BssParaCfgInfo")
            .text("macAddress", b.mac)
            .integer("band", b.band)
            .boolean("enabled", b.enabled)
            .text("ssid", b.ssid)
            .text("securityMode", b.securityMode);
    }
    return r;
}

Answer Network::bssParaCfg(Context& c)
{
    return write(bssRecord(bssOf(c.d), std::string()), c.json);
}

Answer Network::bssParaCfgSearch(Context& c)
{
    std::map<std::string, std::string> fields;
    BodyFormat format = BodyFormat::Json;
    if (!readBodyFields(c.body, fields, format))
        return errorAnswer(400, c.target, c.json, format == BodyFormat::Json ? "badJsonContent" : "badXmlContent");
    return write(bssRecord(bssOf(c.d), fields["searchKey"]), c.json);
}

Answer Network::bssClients(Context& c)
{
    Record r("BssClientInfoList");
    Record& list = r.list("bssList");
    for (const BssView& b : bssOf(c.d)) {
        Record& item = list.item("BssClientInfo");
        item.text("ssid", b.ssid).integer("band", b.band);
        Record& clients = item.list("clientList");
        clientsOn(c.d, b, c.tick, &clients);
    }
    return write(r, c.json);
}

Answer Network::rfParaCfg(Context& c)
{
    Record r("RfParaCfgList");
    Record& list = r.list("rfList");
    for (const RadioPlan& radio : c.d.radios)
        list.item("RfParaCfg")
            .integer("band", radio.band)
            .boolean("enabled", radio.enabled)
            .text("wirelessMode", radio.wirelessMode)
            .integer("transmitPower", radio.transmitPower)
            .integer("channel", radio.channel);
    return write(r, c.json);
}

Answer Network::pppoeStatus(Context& c)
{
    const long long clear = clearTickOf(c.d);
    Record r("PPPoEStatusList");
    Record& list = r.list("statusList");
    for (const WanPlan& w : c.d.wans) {
        const PortPlan* port = c.d.port(w.portId);
        const bool up = wanConnected(c.d, w, c.tick) && port && m_live.linkUp(c.d, *port, c.tick);
        PortSample s;
        if (port && up)
            s = m_live.port(c.d, *port, c.tick, clear);
        list.item("PPPoEStatus")
            .text("id", std::to_string(w.portId))
            .text("ipAddress", up ? w.ipAddress : "0.0.0.0")
            .text("subnetMask", up ? w.subnetMask : "0.0.0.0")
            .text("gateway", up ? w.gateway : "0.0.0.0")
            .text("primaryDNS", up ? w.primaryDNS : "")
            .text("secondaryDNS", up ? w.secondaryDNS : "")
            .text("status", up ? "connected" : "disconnected")
            .text("addressingType", w.addressingType)
            .real("uplinkRate", round1(s.sendRate / 1000.0))
            .real("downlinkRate", round1(s.receiveRate / 1000.0));
    }
    return write(r, c.json);
}

Answer Network::routerTerminals(Context& c)
{
    Record r("TerminalInfoList");
    Record& list = r.list("terminalList");
    const uint64_t dk = hashText(c.d.id);
    static const char* names[] = {"iPhone", "DESKTOP-7H2K9Q", "Galaxy-S21", "raspberrypi", "printer-2F", "MacBook-Pro",
                                  "小米手机", "ESP-Sensor", "Surface-Go", "Pixel-7", "HP-LaserJet", "Switch"};
    for (int j = 0; j < 24; ++j) {
        const Presence p = m_live.presence(dk, static_cast<uint64_t>(j) + 0x7274, c.tick, 0.55, 600, 5400);
        if (!p.present)
            continue;
        const uint64_t key = hashKeys({dk, static_cast<uint64_t>(j), 0x7274});
        const bool wired = c.d.radios.empty() || j % 3 == 0;
        list.item("TerminalInfo")
            .text("ipAddress", "192.168.1." + std::to_string(10 + j))
            .text("macAddress", clientMac(key, ":", false))
            .text("deviceName", names[j % 12])
            .text("connectType", wired ? "wired" : "wireless")
            .integer("band", wired ? -1 : static_cast<int>(rangeOf(0, 1, {key, 1})))
            .integer("onlineSeconds", p.connectedSeconds);
    }
    return write(r, c.json);
}

// ---------------------------------------------------------------------------------------
// Bridge answers

Answer Network::wireless(Context& c)
{
    if (c.param != c.d.caps.wirelessCardID)
        return errorAnswer(404, c.target, c.json);
    const uint64_t dk = hashText(c.d.id);
    const int noise = static_cast<int>(std::lround(m_live.wander(hashKeys({dk, 95}), c.tick, -98.0, -86.0, 300)));
    const std::string ssid = "Bridge-Link-" + std::to_string(c.d.pairedWith >= 0 ? std::min(c.d.index, c.d.pairedWith) + 1 : c.d.index + 1);
    Record r("Wireless");
    // Each flavour leaves out other values, as the bridge models do.
    switch (c.d.bridgeFlavour) {
    case 0:
        r.text("ssid", ssid).text("securityMode", "WPA2-personal").text("workScene", "computerRoom")
            .text("wirelessMode", "802.11ac").text("channelWidthMode", "auto").text("channelWidth", "80")
            .text("channel", "149").integer("transmitPower", 23).integer("noise", noise)
            .boolean("antennaGainPresent", true).integer("antennaGain", 14);
        break;
    case 1:
        r.text("ssid", ssid).text("securityMode", "disable").text("workScene", "monitorTerminal")
            .text("channelWidth", "40").text("channel", "5745MHz").integer("transmitPower", 20);
        break;
    case 2:
        r.text("ssid", ssid).text("securityMode", "WPA3-SAE").text("workScene", "centralTerminal")
            .text("wirelessMode", "802.11n").text("channelWidthMode", "manual").text("channelWidth", "20")
            .text("channel", "6").integer("noise", noise).boolean("antennaGainPresent", false).integer("antennaGain", 5);
        break;
    default:
        r.text("workScene", "elevatorCar").text("wirelessMode", "802.11ax").text("channelWidthMode", "auto")
            .text("channelWidth", "160").integer("transmitPower", 27).integer("noise", noise)
            .boolean("antennaGainPresent", true).integer("antennaGain", 10);
        break;
    }
    return write(r, c.json);
}

Answer Network::transmissionList(Context& c)
{
    if (c.param != c.d.caps.wirelessCardID)
        return errorAnswer(404, c.target, c.json);
    const uint64_t dk = hashText(c.d.id);
    Record r("TransmissionList");
    Record& list = r.list("transmissionList");
    struct Peer {
        std::string mac;
        std::string ip;
        uint64_t key;
    };
    std::vector<Peer> peers;
    if (c.d.pairedWith >= 0) {
        const DevicePlan& far = m_fleet.devices[static_cast<size_t>(c.d.pairedWith)];
        peers.push_back({far.macAddress, far.lanIp, hashText(far.id) ^ dk});
    }
    if (c.d.bridgeWorkType == 1) {
        // Stations of other sites that come and go on the access point side.
        for (int j = 0; j < 3; ++j) {
            const uint64_t key = hashKeys({dk, static_cast<uint64_t>(j), 0x7374});
            if (!m_live.presence(dk, key, c.tick, 0.45, 600, 3600).present)
                continue;
            char ip[32];
            std::snprintf(ip, sizeof ip, "10.21.%d.%d", 200 + c.d.index % 50, 20 + j);
            peers.push_back({clientMac(key, ":", false), ip, key});
        }
    }
    for (size_t i = 0; i < peers.size(); ++i) {
        const Peer& p = peers[i];
        const Presence since = m_live.presence(dk, p.key, c.tick, 1.0, 86400, 86400 * 3);
        Record& item = list.item("Transmission");
        item.text("macAddress", p.mac)
            .text("ipAddress", p.ip)
            .integer("signal", std::lround(m_live.wander(p.key, c.tick, -72.0, -44.0, 300)));
        const int flavour = (c.d.bridgeFlavour + static_cast<int>(i)) % 4;
        // Noise: a value, none at all, or the device's "no value" mark.
        if (flavour == 0 || flavour == 3)
            item.integer("noise", std::lround(m_live.wander(hashKeys({p.key, 1}), c.tick, -97.0, -88.0, 400)));
        else if (flavour == 2)
            item.integer("noise", -1000);
        item.real("sendRate", round1(m_live.wander(hashKeys({p.key, 2}), c.tick, 2.0, 433.0, 200)))
            .real("receiveRate", round1(m_live.wander(hashKeys({p.key, 3}), c.tick, 2.0, 433.0, 220)));
        // Distance: measured, unknown (-1), left out, or right next to it (0).
        if (flavour == 0)
            item.real("distance", 0.05 + static_cast<double>(rangeOf(10, 4800, {p.key, 4})) / 1000.0);
        else if (flavour == 1)
            item.real("distance", -1.0);
        else if (flavour == 3)
            item.real("distance", 0.0);
        item.integer("connectSeconds", since.connectedSeconds);
    }
    return write(r, c.json);
}

Answer Network::region(Context& c)
{
    std::string current;
    {
        std::lock_guard<std::mutex> lock(c.rt.mutex);
        current = c.rt.region;
    }
    Record r("BridgeRegion");
    r.text("region", current);
    return write(r, c.json);
}

Answer Network::regionCapabilities(Context& c)
{
    Record r("BridgeRegionCapabilities");
    Record& list = r.list("regionList");
    for (const std::string& code : regionCodes())
        list.plainText(code);
    return write(r, c.json);
}

Answer Network::setRegion(Context& c)
{
    std::map<std::string, std::string> fields;
    BodyFormat format = BodyFormat::Xml;
    if (!readBodyFields(c.body, fields, format))
        return errorAnswer(400, c.target, c.json, format == BodyFormat::Json ? "badJsonContent" : "badXmlContent");
    const std::string wanted = fields["region"];
    const auto& codes = regionCodes();
    if (std::find(codes.begin(), codes.end(), wanted) == codes.end())
        return errorAnswer(400, c.target, c.json);
    {
        std::lock_guard<std::mutex> lock(c.rt.mutex);
        c.rt.region = wanted;
    }
    Record r("BridgeRegionRes");
    r.integer("statusCode", 1).text("statusString", "OK").text("region", wanted).boolean("needReboot", false);
    return write(r, c.json);
}

// ---------------------------------------------------------------------------------------
// Topology and alarm services

Answer Network::envelope(int httpStatus, int code, const std::string& msg, const std::string& data)
{
    Answer a;
    a.status = httpStatus;
    a.contentType = kJson;
    a.body = "{\"code\": " + std::to_string(code) + ", \"msg\": \"" + jsonEscape(msg) + "\", \"data\": " + data + "}\n";
    return a;
}

Answer Network::serviceRequest(const std::string& method, const std::string& path, const std::string& guid)
{
    const bool known = path == "/topology/v1/deviceNode" || path == "/alarm/v1/switchPortAlarms";
    if (!known)
        return envelope(404, 1404, "unknown service path", "{}");
    if (method != "GET")
        return envelope(405, 1405, "method not allowed", "{}");
    if (guid.empty())
        return envelope(200, 1001, "invalid parameter", "{}");
    return path == "/topology/v1/deviceNode" ? deviceNode(guid) : portAlarms(guid);
}

Answer Network::deviceNode(const std::string& guid)
{
    const TopoNode* node = m_topology.find(guid);
    if (!node)
        return envelope(200, 1002, "device not found", "{}");
    const long long tick = m_clock.tick();
    const uint64_t nk = hashText(node->guid);
    const DevicePlan* d = node->fleetIndex >= 0 ? &m_fleet.devices[static_cast<size_t>(node->fleetIndex)] : nullptr;

    bool online = true;
    int clients24 = 0, clients5 = 0, clientsAll = 0;
    if (node->controllerIndex >= 0) {
        const DevicePlan& ac = m_fleet.devices[static_cast<size_t>(node->controllerIndex)];
        const std::string state = apState(ac, static_cast<size_t>(node->apIndex), tick);
        online = state == "online" || state == "success";
        for (const Terminal& t : terminals(ac, tick)) {
            if (t.ap != static_cast<size_t>(node->apIndex))
                continue;
            ++clientsAll;
            (t.band == 0 ? clients24 : clients5) += 1;
        }
    } else if (!d) {
        online = m_live.presence(nk, 0x6f6e, tick, 0.97, 3600, 7200).present;
    } else if (d->category == kWirelessAp || d->category == kWirelessRouter) {
        for (const BssView& b : bssOf(*d)) {
            const int n = clientsOn(*d, b, tick, nullptr);
            clientsAll += n;
            (b.band == 0 ? clients24 : clients5) += n;
        }
    } else if (d->category == kWirelessController) {
        clientsAll = static_cast<int>(terminals(*d, tick).size());
    }

    Record r("DeviceNode");
    r.text("guid", node->guid)
        .text("name", node->name)
        .text("ip", node->ip)
        .integer("deviceCategory", node->category)
        .integer("sdkDeviceType", node->sdkDeviceType)
        .integer("deviceClassType", node->classType)
        .integer("bridgeWorkType", d && d->category == kBridge ? d->bridgeWorkType : 0)
        .integer("dataSource", unitOf({nk, 1}) < 0.85 ? 1 : 2)
        .boolean("online", online)
        .integer("wifiStrength", d && d->category == kBridge ? rangeOf(2, 4, {nk, 2}) : 0)
        .text("serialNo", node->serialNo)
        .text("longSerialNo", (d ? d->model : std::string(node->category == kEncodingDevice ? "IPC" : "DEV")) + "-" + node->serialNo)
        .boolean("isRoot", node->isRoot);
    Record& ports = r.list("portNodeList");
    Record& lines = r.list("lineList");
    for (const TopoLink& l : node->links) {
        Record& pn = ports.item("PortNode");
        pn.text("guid", node->guid.substr(0, 24) + std::to_string(100000000000LL + l.localPort))
            .integer("linkPort", l.localPort)
            .text("portName", l.localName)
            .integer("portType", l.localType)
            .integer("nodePosType", l.nodePosType)
            .text("lineGuid", l.lineGuid);
        Record& peers = pn.list("peerNodeList");
        for (const TopoPeer& p : l.peers)
            peers.item("PeerNode")
                .text("guid", m_topology.nodes()[static_cast<size_t>(p.node)].guid)
                .integer("linkPort", p.linkPort)
                .text("portName", p.portName)
                .integer("portType", p.portType);

        // The line's state and load, read at this node's end when it is a device of the fleet.
        bool lineUp = true;
        double up = 0.0, down = 0.0, mbps = 1000.0;
        if (d) {
            if (const PortPlan* port = d->port(l.localPort)) {
                lineUp = m_live.linkUp(*d, *port, tick);
                const PortSample s = m_live.port(*d, *port, tick, 0);
                up = s.sendRate / 1000.0;
                down = s.receiveRate / 1000.0;
                mbps = port->speedMbps;
            }
        }
        Record& line = lines.item("Line");
        line.text("lineGuid", l.lineGuid)
            .integer("enable", 1)
            .integer("online", lineUp && online ? 1 : 0)
            .integer("lineType", l.lineType)
            .integer("uploadSpeed", std::llround(up))
            .integer("downSpeed", std::llround(down))
            .integer("sendUseRatio", std::min(100LL, std::llround(up / (mbps * 10.0))))
            .integer("recvUseRatio", std::min(100LL, std::llround(down / (mbps * 10.0))));
        Record& ends = line.list("portDeviceList");
        ends.item("PortDevice")
            .integer("portDeviceType", node->category)
            .text("guid", node->guid)
            .text("ip", node->ip)
            .integer("linkPort", l.localPort)
            .text("portName", l.localName)
            .integer("portType", l.localType)
            .text("portBandWidth", l.bandWidth);
        for (const TopoPeer& p : l.peers) {
            const TopoNode& far = m_topology.nodes()[static_cast<size_t>(p.node)];
            ends.item("PortDevice")
                .integer("portDeviceType", far.category)
                .text("guid", far.guid)
                .text("ip", far.ip)
                .integer("linkPort", p.linkPort)
                .text("portName", p.portName)
                .integer("portType", p.portType)
                .text("portBandWidth", l.bandWidth);
        }
    }
    const bool safeCapable = d && d->category == kSwitch;
    r.integer("clientCount2_4", clients24)
        .integer("clientCount5", clients5)
        .integer("aPclientCount", clientsAll)
        .boolean("isSupportSafe", safeCapable)
        .boolean("isSafe", safeCapable && unitOf({nk, 3}) < 0.7)
        // The service writes the safe mode as a boolean, though its readers take an integer.
        .boolean("safeMode", safeCapable && unitOf({nk, 4}) < 0.5);
    return envelope(200, 0, "success", r.toJsonValue());
}

Answer Network::portAlarms(const std::string& guid)
{
    const TopoNode* node = m_topology.find(guid);
    if (!node)
        return envelope(200, 1002, "device not found", "{}");
    Record r("SwitchAlarmListData");
    Record& list = r.list("switchAlarmList");
    if (node->fleetIndex >= 0) {
        const DevicePlan& d = m_fleet.devices[static_cast<size_t>(node->fleetIndex)];
        const long long tick = m_clock.tick();
        for (const PortPlan& p : d.ports)
            if (p.type != 'W' && m_live.portAlarm(d, p, tick))
                list.item("SwitchAlarm").integer("port", p.id).boolean("isAlarm", true);
    }
    return envelope(200, 0, "success", r.toJsonValue());
}

// ---------------------------------------------------------------------------------------

void Network::logRequest(const DevicePlan& device, LoggedRequest entry)
{
    Runtime& rt = runtime(device);
    entry.seq = ++m_seq;
    std::lock_guard<std::mutex> lock(rt.mutex);
    rt.log.push_back(std::move(entry));
    while (rt.log.size() > 2000)
        rt.log.pop_front();
}

std::vector<LoggedRequest> Network::requestLog(const std::string& deviceId) const
{
    const DevicePlan* d = m_fleet.find(deviceId);
    if (!d)
        return {};
    const Runtime& rt = *m_runtimes[static_cast<size_t>(d->index)];
    std::lock_guard<std::mutex> lock(rt.mutex);
    return std::vector<LoggedRequest>(rt.log.begin(), rt.log.end());
}

void Network::clearRequestLogs()
{
    for (auto& rt : m_runtimes) {
        std::lock_guard<std::mutex> lock(rt->mutex);
        rt->log.clear();
    }
}

} // namespace emulator
