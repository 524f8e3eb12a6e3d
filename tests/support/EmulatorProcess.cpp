// Runs tools/emulator as a child process and talks to its control endpoint over a plain
// loopback socket, so that tests need nothing beyond Qt Core.
#include "EmulatorProcess.h"

#include <QByteArray>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QStringList>
#include <QTemporaryDir>

#include <arpa/inet.h>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/socket.h>
#include <sys/time.h>
#include <unistd.h>

#ifndef VELMORA_EMULATOR_PATH
#define VELMORA_EMULATOR_PATH "velmora-emulator"
#endif

namespace velmora {
namespace test {

struct EmulatorProcess::Private {
    QTemporaryDir dir;
    QProcess process;
};

namespace {

const char* const kRegistryVariable = "VELMORA_REGISTRY";

std::string faultJson(const std::string& deviceId, const std::string& path, const EmulatorProcess::Fault& fault)
{
    QJsonObject o;
    o.insert("device", QString::fromStdString(deviceId));
    o.insert("path", QString::fromStdString(path));
    o.insert("kind", QString::fromStdString(fault.kind));
    if (fault.delayMs)
        o.insert("ms", fault.delayMs);
    if (fault.status)
        o.insert("status", fault.status);
    if (fault.page)
        o.insert("page", fault.page);
    if (fault.count)
        o.insert("count", fault.count);
    if (!fault.method.empty())
        o.insert("method", QString::fromStdString(fault.method));
    if (fault.kind == "answer") {
        o.insert("body", QString::fromStdString(fault.body));
        if (!fault.contentType.empty())
            o.insert("contentType", QString::fromStdString(fault.contentType));
    }
    return QJsonDocument(o).toJson(QJsonDocument::Compact).toStdString();
}

std::string urlEncode(const std::string& text)
{
    return QByteArray::fromStdString(text).toPercentEncoding().toStdString();
}

} // namespace

void EmulatorProcess::start(const std::string& fleet, unsigned seed, const std::vector<std::string>& extraArgs,
                            int startTimeoutMs)
{
    d = new Private;
    if (!d->dir.isValid()) {
        m_error = "cannot create a temporary folder";
        return;
    }
    m_registryPath = d->dir.filePath("velmora-registry.json").toStdString();
    m_logPath = d->dir.filePath("emulator.log").toStdString();

    QStringList args;
    args << "--port" << "0"
         << "--fleet" << QString::fromStdString(fleet)
         << "--seed" << QString::number(seed)
         << "--registry" << QString::fromStdString(m_registryPath)
         << "--log-file" << QString::fromStdString(m_logPath);
    for (const std::string& a : extraArgs)
        args << QString::fromStdString(a);

    // Only the "listening on" line comes on stdout; errors pass through to the test's stderr.
    d->process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    d->process.start(QString::fromUtf8(VELMORA_EMULATOR_PATH), args, QIODevice::ReadOnly);
    if (!d->process.waitForStarted(10000)) {
        m_error = "cannot start " + std::string(VELMORA_EMULATOR_PATH) + ": " + d->process.errorString().toStdString();
        return;
    }

    QByteArray out;
    QElapsedTimer timer;
    timer.start();
    while (timer.elapsed() < startTimeoutMs) {
        const int idx = out.indexOf("listening on 127.0.0.1:");
        if (idx >= 0 && out.indexOf('\n', idx) > idx) {
            const int colon = out.indexOf(':', idx);
            m_port = out.mid(colon + 1, out.indexOf('\n', idx) - colon - 1).trimmed().toInt();
            break;
        }
        if (d->process.state() != QProcess::Running) {
            m_error = "the emulator ended before it listened (exit code " +
                      std::to_string(d->process.exitCode()) + ")";
            return;
        }
        d->process.waitForReadyRead(100);
        out += d->process.readAllStandardOutput();
    }
    if (m_port <= 0) {
        m_error = "the emulator did not report its port in time";
        return;
    }
    if (!readRegistry())
        return;
    setRegistryEnvironment();
}

EmulatorProcess::~EmulatorProcess()
{
    if (m_detachRegistry)
        m_detachRegistry();
    restoreRegistryEnvironment();
    if (d && d->process.state() != QProcess::NotRunning) {
        d->process.terminate();
        if (!d->process.waitForFinished(5000)) {
            d->process.kill();
            d->process.waitForFinished(5000);
        }
    }
    delete d;
}

bool EmulatorProcess::isRunning() const
{
    return d && m_port > 0 && m_error.empty() && d->process.state() == QProcess::Running;
}

long long EmulatorProcess::processId() const
{
    return d ? static_cast<long long>(d->process.processId()) : 0;
}

std::string EmulatorProcess::baseUrl() const
{
    return "http://127.0.0.1:" + std::to_string(m_port);
}

bool EmulatorProcess::readRegistry()
{
    QFile file(QString::fromStdString(m_registryPath));
    if (!file.open(QIODevice::ReadOnly)) {
        m_error = "the emulator wrote no registry at " + m_registryPath;
        return false;
    }
    QJsonParseError parseError;
    const QJsonDocument doc = QJsonDocument::fromJson(file.readAll(), &parseError);
    if (!doc.isObject()) {
        m_error = "the registry is not a JSON object: " + parseError.errorString().toStdString();
        return false;
    }
    m_devices.clear();
    for (const QJsonValue& v : doc.object().value("devices").toArray()) {
        const QJsonObject o = v.toObject();
        Device dev;
        dev.id = o.value("id").toString().toStdString();
        dev.name = o.value("name").toString().toStdString();
        dev.category = o.value("category").toInt(-1);
        dev.model = o.value("model").toString().toStdString();
        dev.hostName = o.value("hostName").toString().toStdString();
        dev.user = o.value("user").toString().toStdString();
        dev.password = o.value("password").toString().toStdString();
        dev.port = o.value("port").toInt();
        dev.capabilitiesJson =
            QJsonDocument(o.value("capabilities").toObject()).toJson(QJsonDocument::Compact).toStdString();
        m_devices.push_back(dev);
    }
    return true;
}

void EmulatorProcess::setRegistryEnvironment()
{
    if (const char* old = std::getenv(kRegistryVariable)) {
        m_hadEnvironment = true;
        m_oldEnvironment = old;
    }
    setenv(kRegistryVariable, m_registryPath.c_str(), 1);
}

void EmulatorProcess::restoreRegistryEnvironment()
{
    if (m_registryPath.empty())
        return;
    const char* now = std::getenv(kRegistryVariable);
    if (!now || m_registryPath != now)
        return; // someone else set it meanwhile
    if (m_hadEnvironment)
        setenv(kRegistryVariable, m_oldEnvironment.c_str(), 1);
    else
        unsetenv(kRegistryVariable);
}

std::optional<EmulatorProcess::Device> EmulatorProcess::device(const std::string& id) const
{
    for (const Device& dev : m_devices)
        if (dev.id == id)
            return dev;
    return std::nullopt;
}

std::vector<std::string> EmulatorProcess::deviceIds(int category) const
{
    std::vector<std::string> ids;
    for (const Device& dev : m_devices)
        if (dev.category == category)
            ids.push_back(dev.id);
    return ids;
}

std::vector<std::string> EmulatorProcess::deviceIdsByModel(const std::string& model) const
{
    std::vector<std::string> ids;
    for (const Device& dev : m_devices)
        if (dev.model == model)
            ids.push_back(dev.id);
    return ids;
}

std::string EmulatorProcess::deviceId(int category, const std::string& model) const
{
    for (const Device& dev : m_devices)
        if (dev.category == category && (model.empty() || dev.model == model))
            return dev.id;
    return std::string();
}

int EmulatorProcess::httpRequest(const std::string& method, const std::string& target, const std::string& body,
                                 std::string* responseBody, const std::string& host) const
{
    if (m_port <= 0)
        return 0;
    const int fd = ::socket(AF_INET, SOCK_STREAM, 0);
    if (fd < 0)
        return 0;
    timeval tv{30, 0};
    ::setsockopt(fd, SOL_SOCKET, SO_RCVTIMEO, &tv, sizeof tv);
    ::setsockopt(fd, SOL_SOCKET, SO_SNDTIMEO, &tv, sizeof tv);
    sockaddr_in addr{};
    addr.sin_family = AF_INET;
    addr.sin_port = htons(static_cast<uint16_t>(m_port));
    addr.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    if (::connect(fd, reinterpret_cast<sockaddr*>(&addr), sizeof addr) != 0) {
        ::close(fd);
        return 0;
    }
    std::string request = method + " " + target + " HTTP/1.1\r\n";
    request += "Host: " + (host.empty() ? "127.0.0.1:" + std::to_string(m_port) : host) + "\r\n";
    request += "Connection: close\r\n";
    if (!body.empty() || method == "POST" || method == "PUT") {
        request += "Content-Type: application/json\r\n";
        request += "Content-Length: " + std::to_string(body.size()) + "\r\n";
    }
    request += "\r\n" + body;
    size_t sent = 0;
    while (sent < request.size()) {
        const ssize_t n = ::send(fd, request.data() + sent, request.size() - sent, MSG_NOSIGNAL);
        if (n <= 0) {
            ::close(fd);
            return 0;
        }
        sent += static_cast<size_t>(n);
    }
    std::string answer;
    char buffer[16384];
    for (;;) {
        const ssize_t n = ::recv(fd, buffer, sizeof buffer, 0);
        if (n < 0 && errno == EINTR)
            continue;
        if (n <= 0)
            break;
        answer.append(buffer, static_cast<size_t>(n));
    }
    ::close(fd);

    const size_t lineEnd = answer.find("\r\n");
    const size_t headerEnd = answer.find("\r\n\r\n");
    if (lineEnd == std::string::npos || headerEnd == std::string::npos)
        return 0;
    const std::string statusLine = answer.substr(0, lineEnd);
    const size_t sp = statusLine.find(' ');
    const int status = sp == std::string::npos ? 0 : std::atoi(statusLine.c_str() + sp + 1);
    if (responseBody) {
        // The control endpoint answers with Content-Length; chunked bodies are not used.
        *responseBody = answer.substr(headerEnd + 4);
    }
    return status;
}

bool EmulatorProcess::setFault(const std::string& deviceId, const std::string& path, const Fault& fault)
{
    std::string answer;
    return httpRequest("POST", "/_emulator/faults", faultJson(deviceId, path, fault), &answer) == 200;
}

bool EmulatorProcess::clearFaults()
{
    return httpRequest("DELETE", "/_emulator/faults", std::string(), nullptr) == 200;
}

std::vector<EmulatorProcess::Request> EmulatorProcess::requestLog(const std::string& deviceId) const
{
    std::vector<Request> log;
    std::string answer;
    if (httpRequest("GET", "/_emulator/requests?device=" + urlEncode(deviceId), std::string(), &answer) != 200)
        return log;
    const QJsonDocument doc = QJsonDocument::fromJson(QByteArray::fromStdString(answer));
    for (const QJsonValue& v : doc.object().value("requests").toArray()) {
        const QJsonObject o = v.toObject();
        Request r;
        r.seq = static_cast<long long>(o.value("seq").toDouble());
        r.method = o.value("method").toString().toStdString();
        r.target = o.value("target").toString().toStdString();
        r.requestLine = o.value("requestLine").toString().toStdString();
        r.body = o.value("body").toString().toStdString();
        r.status = o.value("status").toInt();
        log.push_back(r);
    }
    return log;
}

bool EmulatorProcess::clearRequestLog()
{
    return httpRequest("DELETE", "/_emulator/requests", std::string(), nullptr) == 200;
}

bool EmulatorProcess::freezeClock(long long tick)
{
    return httpRequest("POST", "/_emulator/clock", "{\"tick\":" + std::to_string(tick) + "}", nullptr) == 200;
}

bool EmulatorProcess::runClock()
{
    return httpRequest("POST", "/_emulator/clock", "{\"run\":true}", nullptr) == 200;
}

} // namespace test
} // namespace velmora
