#pragma once
// Plain libcurl and parser helpers for the emulator's tests: a request to one device with
// its registry credentials, a request to the services, and readers of the answers.
#include "support/EmulatorProcess.h"

#include <cjson/cJSON.h>
#include <libxml/tree.h>

#include <curl/curl.h>
#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace velmora {
namespace test {

struct HttpResult {
    CURLcode code = CURLE_OK;
    long status = 0;
    std::string body;
    std::map<std::string, std::string> headers; // lower-case names
    double seconds = 0.0;

    std::string header(const std::string& lowerCaseName) const
    {
        const auto it = headers.find(lowerCaseName);
        return it == headers.end() ? std::string() : it->second;
    }
};

struct RequestOptions {
    std::string password;   // empty: the registry's
    bool digest = true;     // false: send no credentials
    bool basic = false;     // Basic instead of Digest
    long timeoutMs = 20000;
};

HttpResult deviceRequest(const EmulatorProcess& emulator, const EmulatorProcess::Device& device,
                         const std::string& method, const std::string& target, const std::string& body = std::string(),
                         const RequestOptions& options = RequestOptions());
HttpResult serviceRequest(const EmulatorProcess& emulator, const std::string& method, const std::string& target,
                          const std::string& body = std::string());

// XML: a parsed document and element helpers.
struct XmlDoc {
    std::shared_ptr<xmlDoc> doc;
    xmlNode* root() const;
    bool ok() const { return doc != nullptr; }
};
XmlDoc parseXml(const std::string& text);
std::string nodeName(const xmlNode* node);
xmlNode* child(const xmlNode* node, const std::string& name);
std::vector<xmlNode*> children(const xmlNode* node);
std::string text(const xmlNode* node);

// JSON: the parsed tree, deleted with the pointer.
using JsonPtr = std::shared_ptr<cJSON>;
JsonPtr parseJson(const std::string& text);

// The wrapped record of a JSON answer ({"Root": {...}}), or null.
const cJSON* jsonRecord(const cJSON* root, const std::string& name);

// A test suite that shares one emulator among its tests. Derive as
// `class MyTest : public EmulatorSuite<MyTest>` and give `static EmulatorOptions options()`.
struct EmulatorOptions {
    std::string fleet = "demo";
    unsigned seed = 1;
    std::vector<std::string> extraArgs;
};

template <typename Derived>
class EmulatorSuite : public ::testing::Test {
protected:
    static void SetUpTestSuite()
    {
        const EmulatorOptions o = Derived::options();
        s_emulator = new EmulatorProcess(o.fleet, o.seed, o.extraArgs);
    }
    static void TearDownTestSuite()
    {
        delete s_emulator;
        s_emulator = nullptr;
    }
    void SetUp() override { ASSERT_TRUE(s_emulator->isRunning()) << s_emulator->errorString(); }

    static EmulatorProcess::Device device(int category, const std::string& model = std::string())
    {
        return *s_emulator->device(s_emulator->deviceId(category, model));
    }

    static inline EmulatorProcess* s_emulator = nullptr;
};

// The body of a paged search condition.
std::string searchCondition(const std::string& root, const std::string& searchId, int maxResults, int position, bool json);

} // namespace test
} // namespace velmora
