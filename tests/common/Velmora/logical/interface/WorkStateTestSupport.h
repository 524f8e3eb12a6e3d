#pragma once
// Shared pieces of the work state tests: the emulated switches and what they were sent.
#include <cjson/cJSON.h>
#include <libxml/parser.h>
#include <libxml/tree.h>
#include <string>
#include <vector>

#include "JSONStruct/Switch/SwitchJSONStruct.h"
#include "support/EmulatorProcess.h"

namespace velmora {
namespace test {

const char* const kWorkStateGet = "GET /NXRPC/Transfers/Switches/workState";
const char* const kWorkStateSearch = "POST /NXRPC/Transfers/Switches/workState/search";
const char* const kWorkStateSearchPath = "/NXRPC/Transfers/Switches/workState/search";
const char* const kSearchCapability = "GET /NXRPC/Transfers/Switches/workState/search/capabilities";
const char* const kSearchCapabilityPath = "/NXRPC/Transfers/Switches/workState/search/capabilities";

inline bool hasFlag(const EmulatorProcess::Device& device, const char* key)
{
    cJSON* root = cJSON_Parse(device.capabilitiesJson.c_str());
    const bool value = cJSON_IsTrue(cJSON_GetObjectItemCaseSensitive(root, key));
    cJSON_Delete(root);
    return value;
}

// Switches of the fleet that serve the paged search (`batch`) or only the plain GET.
inline std::vector<std::string> switches(const EmulatorProcess& emulator, bool batch)
{
    std::vector<std::string> ids;
    for (const EmulatorProcess::Device& device : emulator.devices()) {
        if (device.category == 120 && hasFlag(device, "supportWorkStatusBatch") == batch) {
            ids.push_back(device.id);
        }
    }
    return ids;
}

inline protocol::SwitchCapabilities capabilities(bool batch)
{
    protocol::SwitchCapabilities capability;
    capability.supportWorkStatusBatch = batch;
    return capability;
}

// The search condition that a request carried (XML body).
struct SentSearch {
    std::string searchID;
    int maxResults = 0;
    int searchResultPosition = 0;
};

inline SentSearch sentSearch(const EmulatorProcess::Request& request)
{
    SentSearch sent;
    xmlDocPtr doc = xmlReadMemory(request.body.data(), static_cast<int>(request.body.size()), nullptr, nullptr,
                                  XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (doc == nullptr) {
        return sent;
    }
    for (xmlNode* child = xmlDocGetRootElement(doc)->children; child != nullptr; child = child->next) {
        if (child->type != XML_ELEMENT_NODE) {
            continue;
        }
        xmlChar* content = xmlNodeGetContent(child);
        const std::string name = reinterpret_cast<const char*>(child->name);
        const std::string text = reinterpret_cast<const char*>(content);
        xmlFree(content);
        if (name == "searchID") {
            sent.searchID = text;
        } else if (name == "maxResults") {
            sent.maxResults = std::stoi(text);
        } else if (name == "searchResultPosition") {
            sent.searchResultPosition = std::stoi(text);
        }
    }
    xmlFreeDoc(doc);
    return sent;
}

// What the device was asked, leaving out the digest challenges of the login.
inline std::vector<EmulatorProcess::Request> answered(const EmulatorProcess& emulator, const std::string& id)
{
    std::vector<EmulatorProcess::Request> found;
    for (const EmulatorProcess::Request& request : emulator.requestLog(id)) {
        if (request.status != 401) {
            found.push_back(request);
        }
    }
    return found;
}

inline std::vector<EmulatorProcess::Request> sentWith(const EmulatorProcess& emulator, const std::string& id,
                                                      const std::string& requestLine)
{
    std::vector<EmulatorProcess::Request> found;
    for (const EmulatorProcess::Request& request : answered(emulator, id)) {
        if (request.requestLine == requestLine) {
            found.push_back(request);
        }
    }
    return found;
}

} // namespace test
} // namespace velmora
