// Reading device answers into records against bare parses of the same text. The answers are
// the emulator's own: every page of the paged work state of its 1,000-port switch (XML) and
// every page of a controller's AP list (JSON). Each reader runs over the same texts:
//   - the records' Parse (one pass, libxml2's tree only for texts outside the plain form);
//   - the records read through libxml2's tree, as every XML answer was read before;
//   - bare parses with no record: libxml2's tree, libxml2's SAX2 with empty handlers,
//     expat with empty handlers, pugixml (when built with it), cJSON for the JSON pages.
// The ratios printed at the end put each record reading over the fastest bare parse of the
// same texts (the goal for XML is 1.5 at most).
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include <cjson/cJSON.h>
#include <expat.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#ifdef VELMORA_BENCH_PUGIXML
#include <pugixml.hpp>
#endif

#include "JSONStruct/PassThrough/NxrpcPassThroughJSONStruct.h"
#include "Plinth/GuidUtil.h"
#include "SwitchFields.h"
#include "WirelessFields.h"
#include "senvia/NXRPCPassThroughComm.h"
#include "support/EmulatorProcess.h"

namespace {

using velmora::test::EmulatorProcess;

std::vector<std::string> g_workStatePages; // XML
std::vector<std::string> g_apPages;        // JSON
std::size_t g_workStateBytes = 0;
std::size_t g_apBytes = 0;

bool send(const std::string& device, const std::string& requestLine, const std::string& body, std::string& answer)
{
    protocol::NxrpcPassThroughRspData response;
    protocol::NxrpcPassThroughReq request;
    request.requestUrl = requestLine;
    request.inBuffer = body;
    if (!senvia::CNXRPCPassThroughComm::request(response, request, device)) {
        return false;
    }
    answer = response.nxrpcPassThroughRsp.outBuffer;
    return true;
}

// Every page of one walk of the work-state search, as the walk asks for them.
bool fetchWorkState(const std::string& device)
{
    std::string text;
    if (!send(device, "GET /NXRPC/Transfers/Switches/workState/search/capabilities", "", text)) {
        return false;
    }
    const Quillon::SwitchesWorkStateSearchCap cap(text);
    Quillon::SwitchesWorkStateSearchCond cond;
    cond.searchID = Plinth::GuidUtil::CreateGuid();
    cond.maxResults = cap.maxResults;
    for (;;) {
        if (!send(device, "POST /NXRPC/Transfers/Switches/workState/search", cond.createXml(), text)) {
            return false;
        }
        g_workStatePages.push_back(text);
        g_workStateBytes += text.size();
        if (Quillon::SwitchesWorkStateSearchRes(text).responseStatus != "MORE") {
            return true;
        }
        cond.searchResultPosition += cap.maxResults;
    }
}

bool fetchApList(const std::string& device)
{
    Quillon::ApInfoSearchCond cond;
    cond.searchID = Plinth::GuidUtil::CreateGuid();
    cond.maxResults = 50;
    std::string text;
    for (;;) {
        if (!send(device, "POST /NXRPC/Transfers/AP/basicInfo?format=json", cond.Make(), text)) {
            return false;
        }
        g_apPages.push_back(text);
        g_apBytes += text.size();
        if (Quillon::ApInfoSearchResult(text).responseStatus != "MORE") {
            return true;
        }
        cond.searchResultPosition += 50;
    }
}

bool fetchAnswers(EmulatorProcess& emulator)
{
    for (const EmulatorProcess::Device& device : emulator.devices()) {
        if (g_workStatePages.empty() && device.category == 120 &&
            device.capabilitiesJson.find("\"supportWorkStatusBatch\":true") != std::string::npos) {
            Quillon::SwitchesBasicInfo info;
            std::string text;
            if (send(device.id, "GET /NXRPC/Transfers/Switches/basicInfo", "", text)) {
                info.Parse(text);
            }
            if (info.portList.size() == 1000 && !fetchWorkState(device.id)) {
                return false;
            }
        }
        if (g_apPages.empty() && device.category == 124) {
            fetchApList(device.id);
        }
    }
    return !g_workStatePages.empty();
}

template <typename F>
void overPages(benchmark::State& state, const std::vector<std::string>& pages, std::size_t bytes, F&& read)
{
    for (auto _ : state) {
        for (const std::string& page : pages) {
            read(page);
        }
    }
    state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * bytes));
}

// ---- XML: records

void XmlRecordsParse(benchmark::State& state)
{
    overPages(state, g_workStatePages, g_workStateBytes, [](const std::string& page) {
        Quillon::SwitchesWorkStateSearchRes result(std::string{});
        result.Parse(page);
        benchmark::DoNotOptimize(result.portList.data());
    });
}

void XmlRecordsThroughTree(benchmark::State& state)
{
    overPages(state, g_workStatePages, g_workStateBytes, [](const std::string& page) {
        Quillon::SwitchesWorkStateSearchRes result(std::string{});
        Quillon::detail::parseAnswerTree(result, page);
        benchmark::DoNotOptimize(result.portList.data());
    });
}

// ---- XML: bare parses

void XmlBareLibxml2Tree(benchmark::State& state)
{
    overPages(state, g_workStatePages, g_workStateBytes, [](const std::string& page) {
        xmlDocPtr doc = Quillon::detail::readXmlDocument(page.data(), page.size());
        benchmark::DoNotOptimize(doc);
        xmlFreeDoc(doc);
    });
}

void XmlBareLibxml2Sax(benchmark::State& state)
{
    xmlSAXHandler handler;
    std::memset(&handler, 0, sizeof handler);
    handler.initialized = XML_SAX2_MAGIC;
    handler.startElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*, int, const xmlChar**, int, int,
                                const xmlChar**) {};
    handler.endElementNs = [](void*, const xmlChar*, const xmlChar*, const xmlChar*) {};
    handler.characters = [](void*, const xmlChar*, int) {};
    overPages(state, g_workStatePages, g_workStateBytes, [&](const std::string& page) {
        benchmark::DoNotOptimize(xmlSAXUserParseMemory(&handler, nullptr, page.data(), static_cast<int>(page.size())));
    });
}

void XmlBareExpat(benchmark::State& state)
{
    overPages(state, g_workStatePages, g_workStateBytes, [](const std::string& page) {
        XML_Parser parser = XML_ParserCreate(nullptr);
        XML_SetElementHandler(parser, [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {});
        XML_SetCharacterDataHandler(parser, [](void*, const XML_Char*, int) {});
        benchmark::DoNotOptimize(XML_Parse(parser, page.data(), static_cast<int>(page.size()), 1));
        XML_ParserFree(parser);
    });
}

#ifdef VELMORA_BENCH_PUGIXML
void XmlBarePugixml(benchmark::State& state)
{
    overPages(state, g_workStatePages, g_workStateBytes, [](const std::string& page) {
        pugi::xml_document doc;
        benchmark::DoNotOptimize(doc.load_buffer(page.data(), page.size()).status);
    });
}
#endif

// ---- JSON

void JsonRecordsParse(benchmark::State& state)
{
    overPages(state, g_apPages, g_apBytes, [](const std::string& page) {
        Quillon::ApInfoSearchResult result(std::string{});
        result.Parse(page);
        benchmark::DoNotOptimize(result.apList.data());
    });
}

void JsonBareCjson(benchmark::State& state)
{
    overPages(state, g_apPages, g_apBytes, [](const std::string& page) {
        cJSON* root = cJSON_ParseWithLength(page.data(), page.size());
        benchmark::DoNotOptimize(root);
        cJSON_Delete(root);
    });
}

// Keeps each benchmark's real time (the median with --benchmark_repetitions) for the ratios.
class RatioReporter : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            if (run.error_occurred) {
                continue;
            }
            const std::string& name = run.run_name.function_name;
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
                m_times[name] = run.GetAdjustedCPUTime();
                m_fromMedian[name] = true;
            } else if (run.run_type == Run::RT_Iteration && !m_fromMedian[name]) {
                m_times[name] = run.GetAdjustedCPUTime();
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }
    double time(const std::string& name) const
    {
        const auto found = m_times.find(name);
        return found == m_times.end() ? 0.0 : found->second;
    }

private:
    std::map<std::string, double> m_times;
    std::map<std::string, bool> m_fromMedian;
};

} // namespace

int main(int argc, char** argv)
{
    setenv("VELMORA_LOG_LEVEL", "warn", 0);
    QCoreApplication app(argc, argv);
    benchmark::Initialize(&argc, argv);
    EmulatorProcess emulator("large");
    if (!emulator.isRunning()) {
        std::fprintf(stderr, "emulator did not start: %s\n", emulator.errorString().c_str());
        return 1;
    }
    if (!fetchAnswers(emulator)) {
        std::fprintf(stderr, "the fleet has no switch of 1,000 ports with the paged work state\n");
        return 1;
    }
    std::printf("work state: %zu pages, %zu bytes; AP list: %zu pages, %zu bytes\n", g_workStatePages.size(),
                g_workStateBytes, g_apPages.size(), g_apBytes);

    const std::vector<std::string> bareXml = {"XmlBareLibxml2Tree", "XmlBareLibxml2Sax", "XmlBareExpat",
#ifdef VELMORA_BENCH_PUGIXML
                                              "XmlBarePugixml"
#endif
    };
    benchmark::RegisterBenchmark("XmlRecordsParse", XmlRecordsParse)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("XmlRecordsThroughTree", XmlRecordsThroughTree)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("XmlBareLibxml2Tree", XmlBareLibxml2Tree)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("XmlBareLibxml2Sax", XmlBareLibxml2Sax)->Unit(benchmark::kMicrosecond);
    benchmark::RegisterBenchmark("XmlBareExpat", XmlBareExpat)->Unit(benchmark::kMicrosecond);
#ifdef VELMORA_BENCH_PUGIXML
    benchmark::RegisterBenchmark("XmlBarePugixml", XmlBarePugixml)->Unit(benchmark::kMicrosecond);
#endif
    if (!g_apPages.empty()) {
        benchmark::RegisterBenchmark("JsonRecordsParse", JsonRecordsParse)->Unit(benchmark::kMicrosecond);
        benchmark::RegisterBenchmark("JsonBareCjson", JsonBareCjson)->Unit(benchmark::kMicrosecond);
    }

    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);

    std::string floorName;
    double floor = 0.0;
    for (const std::string& name : bareXml) {
        const double t = reporter.time(name);
        if (t > 0.0 && (floor == 0.0 || t < floor)) {
            floor = t;
            floorName = name;
        }
    }
    if (floor > 0.0) {
        std::printf("\nfastest bare XML parse: %s, %.1f us for all pages\n", floorName.c_str(), floor);
        for (const char* name : {"XmlRecordsParse", "XmlRecordsThroughTree"}) {
            const double t = reporter.time(name);
            if (t > 0.0) {
                std::printf("%-24s / fastest bare parse = %.3f%s\n", name, t / floor,
                            std::strcmp(name, "XmlRecordsParse") == 0 ? (t / floor <= 1.5 ? "  (goal <= 1.5: met)"
                                                                                       : "  (goal <= 1.5: NOT met)")
                                                                   : "");
            }
        }
    }
    if (reporter.time("JsonBareCjson") > 0.0 && reporter.time("JsonRecordsParse") > 0.0) {
        std::printf("%-24s / cJSON_Parse alone  = %.3f\n", "JsonRecordsParse",
                    reporter.time("JsonRecordsParse") / reporter.time("JsonBareCjson"));
    }
    benchmark::Shutdown();
    return 0;
}
