#include "EmulatorClient.h"

#include <libxml/parser.h>

#include <chrono>
#include <cctype>

namespace velmora {
namespace test {

namespace {

size_t writeBody(char* data, size_t size, size_t count, void* user)
{
    static_cast<std::string*>(user)->append(data, size * count);
    return size * count;
}

size_t writeHeader(char* data, size_t size, size_t count, void* user)
{
    auto* headers = static_cast<std::map<std::string, std::string>*>(user);
    const std::string line(data, size * count);
    const size_t colon = line.find(':');
    if (colon != std::string::npos) {
        std::string name = line.substr(0, colon);
        for (char& c : name)
            c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        std::string value = line.substr(colon + 1);
        while (!value.empty() && (value.front() == ' '))
            value.erase(0, 1);
        while (!value.empty() && (value.back() == '\r' || value.back() == '\n'))
            value.pop_back();
        (*headers)[name] = value;
    }
    return size * count;
}

HttpResult perform(const std::string& url, const std::string& method, const std::string& body,
                   const std::string& host, const std::string& user, const std::string& password, long authType,
                   long timeoutMs)
{
    HttpResult result;
    CURL* curl = curl_easy_init();
    if (!curl) {
        result.code = CURLE_FAILED_INIT;
        return result;
    }
    curl_slist* headers = nullptr;
    if (!host.empty())
        headers = curl_slist_append(headers, ("Host: " + host).c_str());
    if (!body.empty())
        headers = curl_slist_append(headers, body.front() == '<' ? "Content-Type: application/xml" : "Content-Type: application/json");
    curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, headers);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, timeoutMs);
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, writeBody);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &result.body);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, writeHeader);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &result.headers);
    if (authType != CURLAUTH_NONE) {
        curl_easy_setopt(curl, CURLOPT_HTTPAUTH, authType);
        curl_easy_setopt(curl, CURLOPT_USERNAME, user.c_str());
        curl_easy_setopt(curl, CURLOPT_PASSWORD, password.c_str());
    }
    if (method == "POST" || method == "PUT") {
        curl_easy_setopt(curl, CURLOPT_CUSTOMREQUEST, method.c_str());
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, body.c_str());
        curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE, static_cast<long>(body.size()));
    } else if (method != "GET") {
        curl_easy_setopt(curl, CURLOPT_CUSTOMREQUEST, method.c_str());
    }
    const auto start = std::chrono::steady_clock::now();
    result.code = curl_easy_perform(curl);
    result.seconds = std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &result.status);
    curl_slist_free_all(headers);
    curl_easy_cleanup(curl);
    return result;
}

} // namespace

HttpResult deviceRequest(const EmulatorProcess& emulator, const EmulatorProcess::Device& device, const std::string& method,
                         const std::string& target, const std::string& body, const RequestOptions& options)
{
    const long auth = !options.digest ? CURLAUTH_NONE : (options.basic ? CURLAUTH_BASIC : CURLAUTH_DIGEST);
    // A device with a port of its own (--own-port) is reached there; the others on the fleet's.
    const std::string base = "http://127.0.0.1:" + std::to_string(device.port > 0 ? device.port : emulator.port());
    return perform(base + target, method, body, device.hostName, device.user,
                   options.password.empty() ? device.password : options.password, auth, options.timeoutMs);
}

HttpResult serviceRequest(const EmulatorProcess& emulator, const std::string& method, const std::string& target,
                          const std::string& body)
{
    return perform(emulator.baseUrl() + target, method, body, std::string(), std::string(), std::string(), CURLAUTH_NONE, 20000);
}

xmlNode* XmlDoc::root() const
{
    return doc ? xmlDocGetRootElement(doc.get()) : nullptr;
}

XmlDoc parseXml(const std::string& text)
{
    XmlDoc d;
    xmlDoc* doc = xmlReadMemory(text.data(), static_cast<int>(text.size()), "answer.xml", nullptr,
                                XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (doc)
        d.doc.reset(doc, xmlFreeDoc);
    return d;
}

std::string nodeName(const xmlNode* node)
{
    return node ? reinterpret_cast<const char*>(node->name) : std::string();
}

xmlNode* child(const xmlNode* node, const std::string& name)
{
    for (xmlNode* c = node ? node->children : nullptr; c; c = c->next)
        if (c->type == XML_ELEMENT_NODE && nodeName(c) == name)
            return c;
    return nullptr;
}

std::vector<xmlNode*> children(const xmlNode* node)
{
    std::vector<xmlNode*> out;
    for (xmlNode* c = node ? node->children : nullptr; c; c = c->next)
        if (c->type == XML_ELEMENT_NODE)
            out.push_back(c);
    return out;
}

std::string text(const xmlNode* node)
{
    if (!node)
        return std::string();
    xmlChar* content = xmlNodeGetContent(node);
    std::string out = content ? reinterpret_cast<const char*>(content) : "";
    xmlFree(content);
    return out;
}

JsonPtr parseJson(const std::string& text)
{
    return JsonPtr(cJSON_Parse(text.c_str()), cJSON_Delete);
}

const cJSON* jsonRecord(const cJSON* root, const std::string& name)
{
    const cJSON* record = cJSON_GetObjectItemCaseSensitive(root, name.c_str());
    return cJSON_IsObject(record) ? record : nullptr;
}

std::string searchCondition(const std::string& root, const std::string& searchId, int maxResults, int position, bool json)
{
    if (json)
        return "{\"" + root + "\": {\"searchID\": \"" + searchId + "\", \"maxResults\": " + std::to_string(maxResults) +
               ", \"searchResultPosition\": " + std::to_string(position) + "}}";
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<" + root + "><searchID>" + searchId + "</searchID><maxResults>" +
           std::to_string(maxResults) + "</maxResults><searchResultPosition>" + std::to_string(position) +
           "</searchResultPosition></" + root + ">";
}

} // namespace test
} // namespace velmora
