// The emulator as a load: round trips per second for a small answer on a kept-alive,
// digest-authenticated connection, for the whole work state of a 1,000-port switch, and
// for many clients at once.
#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <curl/curl.h>

#include <cstdio>
#include <string>

#include "support/EmulatorProcess.h"

namespace {

using velmora::test::EmulatorProcess;

EmulatorProcess* g_emulator = nullptr;

size_t discard(char*, size_t size, size_t count, void* bytes)
{
    *static_cast<size_t*>(bytes) += size * count;
    return size * count;
}

size_t keep(char* data, size_t size, size_t count, void* body)
{
    static_cast<std::string*>(body)->append(data, size * count);
    return size * count;
}

// One client: a kept-alive libcurl handle with the device's digest credentials.
class Client {
public:
    explicit Client(const EmulatorProcess::Device& device)
        : m_handle(curl_easy_init()), m_headers(curl_slist_append(nullptr, ("Host: " + device.hostName).c_str()))
    {
        m_base = g_emulator->baseUrl();
        curl_easy_setopt(m_handle, CURLOPT_HTTPHEADER, m_headers);
        curl_easy_setopt(m_handle, CURLOPT_HTTPAUTH, CURLAUTH_DIGEST);
        curl_easy_setopt(m_handle, CURLOPT_USERNAME, device.user.c_str());
        curl_easy_setopt(m_handle, CURLOPT_PASSWORD, device.password.c_str());
        curl_easy_setopt(m_handle, CURLOPT_WRITEFUNCTION, discard);
        curl_easy_setopt(m_handle, CURLOPT_WRITEDATA, &m_bytes);
        curl_easy_setopt(m_handle, CURLOPT_NOSIGNAL, 1L);
    }
    ~Client()
    {
        curl_easy_cleanup(m_handle);
        curl_slist_free_all(m_headers);
    }

    // A GET; the body is kept in `body` when given.
    bool get(const std::string& path, std::string* body = nullptr)
    {
        curl_easy_setopt(m_handle, CURLOPT_URL, (m_base + path).c_str());
        curl_easy_setopt(m_handle, CURLOPT_WRITEFUNCTION, body ? keep : discard);
        curl_easy_setopt(m_handle, CURLOPT_WRITEDATA, body ? static_cast<void*>(body) : static_cast<void*>(&m_bytes));
        long status = 0;
        const bool ok = curl_easy_perform(m_handle) == CURLE_OK;
        curl_easy_getinfo(m_handle, CURLINFO_RESPONSE_CODE, &status);
        return ok && status == 200;
    }
    size_t bytes() const { return m_bytes; }

private:
    CURL* m_handle;
    curl_slist* m_headers;
    std::string m_base;
    size_t m_bytes = 0;
};

// The switch of a thousand ports that answers the paged work state (fleet "large").
EmulatorProcess::Device thousandPortSwitch()
{
    for (const EmulatorProcess::Device& d : g_emulator->devices()) {
        if (d.model != "QN-2048")
            continue;
        std::string body;
        Client client(d);
        if (client.get("/NXRPC/Transfers/Switches/basicInfo", &body) && body.find("<portNum>1000</portNum>") != std::string::npos)
            return d;
    }
    return g_emulator->devices().front();
}

void BM_SmallAnswer(benchmark::State& state)
{
    Client client(*g_emulator->device(g_emulator->deviceId(120, "QN-1040")));
    for (auto _ : state)
        if (!client.get("/NXRPC/System/status"))
            state.SkipWithError("request failed");
    state.SetBytesProcessed(static_cast<int64_t>(client.bytes()));
}
BENCHMARK(BM_SmallAnswer)->UseRealTime()->Threads(1)->Threads(4)->Threads(16);

void BM_WorkStateOfAThousandPorts(benchmark::State& state)
{
    const EmulatorProcess::Device d = thousandPortSwitch();
    Client client(d);
    for (auto _ : state)
        if (!client.get("/NXRPC/Transfers/Switches/workState"))
            state.SkipWithError("request failed");
    state.SetBytesProcessed(static_cast<int64_t>(client.bytes()));
}
BENCHMARK(BM_WorkStateOfAThousandPorts)->UseRealTime()->Unit(benchmark::kMillisecond);

void BM_TopologyNode(benchmark::State& state)
{
    const EmulatorProcess::Device core = g_emulator->devices().front();
    std::string body;
    for (auto _ : state)
        if (g_emulator->httpRequest("GET", "/topology/v1/deviceNode?guid=" + core.id, std::string(), &body) != 200)
            state.SkipWithError("request failed");
}
BENCHMARK(BM_TopologyNode)->UseRealTime();

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication app(argc, argv);
    curl_global_init(CURL_GLOBAL_ALL);
    EmulatorProcess emulator("large", 1, {"--quiet"});
    if (!emulator.isRunning()) {
        std::fprintf(stderr, "emulator: %s\n", emulator.errorString().c_str());
        return 1;
    }
    g_emulator = &emulator;
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    g_emulator = nullptr;
    curl_global_cleanup();
    return 0;
}
