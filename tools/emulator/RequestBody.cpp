#include "RequestBody.h"

#include <cjson/cJSON.h>
#include <libxml/parser.h>
#include <libxml/tree.h>

#include <cstdio>

namespace emulator {

namespace {

void collectXml(xmlNode* node, std::map<std::string, std::string>& fields)
{
    for (xmlNode* child = node ? node->children : nullptr; child; child = child->next) {
        if (child->type != XML_ELEMENT_NODE)
            continue;
        bool leaf = true;
        for (xmlNode* c = child->children; c; c = c->next)
            if (c->type == XML_ELEMENT_NODE)
                leaf = false;
        const std::string name = reinterpret_cast<const char*>(child->name);
        if (leaf) {
            xmlChar* text = xmlNodeGetContent(child);
            if (!fields.count(name))
                fields[name] = text ? reinterpret_cast<const char*>(text) : "";
            xmlFree(text);
        }
    }
}

void collectJson(const cJSON* object, std::map<std::string, std::string>& fields)
{
    const cJSON* item = nullptr;
    cJSON_ArrayForEach(item, object)
    {
        if (!item->string || fields.count(item->string))
            continue;
        if (cJSON_IsString(item)) {
            fields[item->string] = item->valuestring;
        } else if (cJSON_IsBool(item)) {
            fields[item->string] = cJSON_IsTrue(item) ? "true" : "false";
        } else if (cJSON_IsNumber(item)) {
            char buffer[64];
            if (item->valuedouble == static_cast<double>(static_cast<long long>(item->valuedouble)))
                std::snprintf(buffer, sizeof buffer, "%lld", static_cast<long long>(item->valuedouble));
            else
                std::snprintf(buffer, sizeof buffer, "%g", item->valuedouble);
            fields[item->string] = buffer;
        }
    }
}

} // namespace

bool readBodyFields(const std::string& body, std::map<std::string, std::string>& fields, BodyFormat& format)
{
    size_t first = body.find_first_not_of(" \t\r\n");
    if (first == std::string::npos) {
        format = BodyFormat::Xml;
        return false;
    }
    if (body[first] == '{') {
        format = BodyFormat::Json;
        cJSON* root = cJSON_ParseWithLength(body.c_str(), body.size());
        if (!root || !cJSON_IsObject(root)) {
            cJSON_Delete(root);
            return false;
        }
        // {"Root": {...}} or the bare record.
        const cJSON* object = root;
        if (cJSON_GetArraySize(root) == 1 && cJSON_IsObject(root->child))
            object = root->child;
        collectJson(object, fields);
        cJSON_Delete(root);
        return true;
    }
    format = BodyFormat::Xml;
    xmlDoc* doc = xmlReadMemory(body.data(), static_cast<int>(body.size()), "body.xml", nullptr,
                                XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING);
    if (!doc)
        return false;
    collectXml(xmlDocGetRootElement(doc), fields);
    xmlFreeDoc(doc);
    return true;
}

} // namespace emulator
