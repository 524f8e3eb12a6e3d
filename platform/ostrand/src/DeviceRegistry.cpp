// Reading the device registry file; see docs/registry.md for its format.
#include "ostrand/DeviceRegistry.h"

#include <cjson/cJSON.h>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <sys/stat.h>

#include "Plinth/Log.h"
#include "Plinth/StringUtil.h"

namespace ostrand {

namespace {

const char kDefaultRegistryPath[] = "velmora-registry.json";
constexpr long long kMissingFile = -2;

void logError(const std::string& message)
{
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Error("", message, PLINTH_LOCATION);
}

void logWarn(const std::string& message)
{
    Plinth::CSingleton<Plinth::details::CLog>::Instance().Warn("", message, PLINTH_LOCATION);
}

// Reads a string member; a missing or non-string member leaves `target` as it is.
void readString(const cJSON* object, const char* key, std::string& target)
{
    const cJSON* item = cJSON_GetObjectItemCaseSensitive(object, key);
    if (cJSON_IsString(item) && item->valuestring != nullptr)
        target = item->valuestring;
}

// Reads an integer member given as a number or as decimal text.
void readInt(const cJSON* object, const char* key, int& target)
{
    const cJSON* item = cJSON_GetObjectItemCaseSensitive(object, key);
    if (cJSON_IsNumber(item)) {
        target = item->valueint;
    } else if (cJSON_IsString(item) && item->valuestring != nullptr) {
        char* end = nullptr;
        const long value = std::strtol(item->valuestring, &end, 10);
        if (end != item->valuestring && *end == '\0')
            target = static_cast<int>(value);
    }
}

void readBool(const cJSON* object, const char* key, bool& target)
{
    const cJSON* item = cJSON_GetObjectItemCaseSensitive(object, key);
    if (cJSON_IsBool(item))
        target = cJSON_IsTrue(item);
}

} // namespace

CDeviceRegistry& CDeviceRegistry::instance()
{
    static CDeviceRegistry registry;
    return registry;
}

std::string CDeviceRegistry::path() const
{
    std::lock_guard<std::mutex> lock(m_mutex);
    if (!m_overridePath.empty())
        return m_overridePath;
    const char* fromEnvironment = std::getenv("VELMORA_REGISTRY");
    if (fromEnvironment != nullptr && *fromEnvironment != '\0')
        return fromEnvironment;
    return kDefaultRegistryPath;
}

void CDeviceRegistry::setPath(const std::string& path)
{
    std::lock_guard<std::mutex> lock(m_mutex);
    m_overridePath = path;
}

std::optional<DeviceEntry> CDeviceRegistry::find(const std::string& deviceGuid)
{
    reloadIfChanged();
    std::lock_guard<std::mutex> lock(m_mutex);
    const auto found = m_devices.find(deviceGuid);
    if (found == m_devices.end())
        return std::nullopt;
    return found->second;
}

std::vector<DeviceEntry> CDeviceRegistry::devices()
{
    reloadIfChanged();
    std::lock_guard<std::mutex> lock(m_mutex);
    std::vector<DeviceEntry> result;
    result.reserve(m_order.size());
    for (const std::string& id : m_order)
        result.push_back(m_devices.at(id));
    return result;
}

ServiceEntry CDeviceRegistry::services()
{
    reloadIfChanged();
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_services;
}

std::string CDeviceRegistry::lastError()
{
    reloadIfChanged();
    std::lock_guard<std::mutex> lock(m_mutex);
    return m_lastError;
}

void CDeviceRegistry::clearEntries()
{
    m_devices.clear();
    m_order.clear();
    m_services = ServiceEntry();
}

void CDeviceRegistry::reloadIfChanged()
{
    const std::string file = path();
    struct stat info {};
    long long mtime = kMissingFile;
    long long size = -1;
    unsigned long long inode = 0;
    if (::stat(file.c_str(), &info) == 0) {
        mtime = static_cast<long long>(info.st_mtim.tv_sec) * 1000000000LL + info.st_mtim.tv_nsec;
        size = static_cast<long long>(info.st_size);
        inode = static_cast<unsigned long long>(info.st_ino);
    }

    std::lock_guard<std::mutex> lock(m_mutex);
    // File time stamps advance in clock ticks of a few milliseconds: size and inode (a file
    // replaced by rename) catch most rewrites within one tick as well.
    if (file == m_loadedPath && mtime == m_loadedMtime && size == m_loadedSize && inode == m_loadedInode)
        return;
    m_loadedPath = file;
    m_loadedMtime = mtime;
    m_loadedSize = size;
    m_loadedInode = inode;
    load(file);
}

void CDeviceRegistry::load(const std::string& file)
{
    clearEntries();
    m_lastError.clear();

    std::ifstream stream(file, std::ios::binary);
    if (!stream) {
        m_lastError = "cannot open " + file;
        logError(Plinth::StringUtil::FormatString("Failed to read device registry [%s]: %s.", file.c_str(),
                                                  "cannot open the file"));
        return;
    }
    std::ostringstream content;
    content << stream.rdbuf();
    const std::string text = content.str();

    cJSON* root = cJSON_Parse(text.c_str());
    if (root == nullptr || !cJSON_IsObject(root)) {
        std::string where;
        if (root == nullptr) {
            const char* errorAt = cJSON_GetErrorPtr();
            if (errorAt != nullptr)
                where = std::string(errorAt).substr(0, 40);
        }
        m_lastError = root == nullptr ? "JSON syntax error near [" + where + "] in " + file
                                      : "the top level of " + file + " is not an object";
        cJSON_Delete(root);
        logError(Plinth::StringUtil::FormatString("Failed to read device registry [%s]: %s.", file.c_str(),
                                                  m_lastError.c_str()));
        return;
    }

    const cJSON* services = cJSON_GetObjectItemCaseSensitive(root, "services");
    const cJSON* devices = cJSON_GetObjectItemCaseSensitive(root, "devices");
    if ((services != nullptr && !cJSON_IsObject(services)) || (devices != nullptr && !cJSON_IsArray(devices))) {
        m_lastError = "\"services\" must be an object and \"devices\" an array in " + file;
        cJSON_Delete(root);
        logError(Plinth::StringUtil::FormatString("Failed to read device registry [%s]: %s.", file.c_str(),
                                                  m_lastError.c_str()));
        return;
    }

    if (services != nullptr) {
        readString(services, "topology", m_services.topology);
        readString(services, "alarm", m_services.alarm);
    }

    const int count = devices == nullptr ? 0 : cJSON_GetArraySize(devices);
    for (int i = 0; i < count; ++i) {
        const cJSON* object = cJSON_GetArrayItem(devices, i);
        DeviceEntry entry;
        if (cJSON_IsObject(object))
            readString(object, "id", entry.id);
        if (entry.id.empty()) {
            m_lastError = "device " + std::to_string(i) + " has no \"id\"";
            logWarn(Plinth::StringUtil::FormatString("Device registry [%s]: device %d has no id; skipped.",
                                                     file.c_str(), i));
            continue;
        }
        if (m_devices.count(entry.id) != 0) {
            m_lastError = "device id " + entry.id + " appears twice";
            logWarn(Plinth::StringUtil::FormatString("Device registry [%s]: id %s appears twice; the first is kept.",
                                                     file.c_str(), entry.id.c_str()));
            continue;
        }
        readString(object, "name", entry.name);
        readInt(object, "category", entry.category);
        readString(object, "model", entry.model);
        readString(object, "address", entry.address);
        readString(object, "scheme", entry.scheme);
        entry.port = entry.scheme == "https" ? 443 : 80;
        readInt(object, "port", entry.port);
        readString(object, "hostName", entry.hostName);
        readString(object, "user", entry.user);
        readString(object, "password", entry.password);
        readString(object, "auth", entry.auth);
        readBool(object, "verifyPeer", entry.verifyPeer);
        const cJSON* capabilities = cJSON_GetObjectItemCaseSensitive(object, "capabilities");
        if (cJSON_IsObject(capabilities)) {
            char* printed = cJSON_PrintUnformatted(capabilities);
            if (printed != nullptr) {
                entry.capabilitiesJson = printed;
                cJSON_free(printed);
            }
        }
        m_order.push_back(entry.id);
        m_devices.emplace(entry.id, std::move(entry));
    }
    cJSON_Delete(root);
}

} // namespace ostrand
