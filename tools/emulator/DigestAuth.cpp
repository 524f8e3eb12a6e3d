#include "DigestAuth.h"

#include <array>
#include <chrono>
#include <cctype>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace emulator {

namespace {

// MD5 as in RFC 1321, small and self-contained: the emulator checks digests on its own.
class Md5 {
public:
    void update(const unsigned char* data, size_t size)
    {
        for (size_t i = 0; i < size; ++i) {
            m_buffer[m_bufferSize++] = data[i];
            if (m_bufferSize == 64) {
                transform(m_buffer.data());
                m_bufferSize = 0;
            }
        }
        m_length += size;
    }

    std::array<unsigned char, 16> finish()
    {
        const uint64_t bits = m_length * 8;
        const unsigned char pad = 0x80;
        update(&pad, 1);
        const unsigned char zero = 0;
        while (m_bufferSize != 56)
            update(&zero, 1);
        unsigned char lengthBytes[8];
        for (int i = 0; i < 8; ++i)
            lengthBytes[i] = static_cast<unsigned char>(bits >> (8 * i));
        update(lengthBytes, 8);
        std::array<unsigned char, 16> digest{};
        for (int i = 0; i < 4; ++i)
            for (int j = 0; j < 4; ++j)
                digest[static_cast<size_t>(i * 4 + j)] = static_cast<unsigned char>(m_state[i] >> (8 * j));
        return digest;
    }

private:
    static uint32_t rotl(uint32_t x, int c) { return (x << c) | (x >> (32 - c)); }

    void transform(const unsigned char* block)
    {
        static const uint32_t k[64] = {
            0xd76aa478, 0xe8c7b756, 0x242070db, 0xc1bdceee, 0xf57c0faf, 0x4787c62a, 0xa8304613, 0xfd469501,
            0x698098d8, 0x8b44f7af, 0xffff5bb1, 0x895cd7be, 0x6b901122, 0xfd987193, 0xa679438e, 0x49b40821,
            0xf61e2562, 0xc040b340, 0x265e5a51, 0xe9b6c7aa, 0xd62f105d, 0x02441453, 0xd8a1e681, 0xe7d3fbc8,
            0x21e1cde6, 0xc33707d6, 0xf4d50d87, 0x455a14ed, 0xa9e3e905, 0xfcefa3f8, 0x676f02d9, 0x8d2a4c8a,
            0xfffa3942, 0x8771f681, 0x6d9d6122, 0xfde5380c, 0xa4beea44, 0x4bdecfa9, 0xf6bb4b60, 0xbebfbc70,
            0x289b7ec6, 0xeaa127fa, 0xd4ef3085, 0x04881d05, 0xd9d4d039, 0xe6db99e5, 0x1fa27cf8, 0xc4ac5665,
            0xf4292244, 0x432aff97, 0xab9423a7, 0xfc93a039, 0x655b59c3, 0x8f0ccc92, 0xffeff47d, 0x85845dd1,
            0x6fa87e4f, 0xfe2ce6e0, 0xa3014314, 0x4e0811a1, 0xf7537e82, 0xbd3af235, 0x2ad7d2bb, 0xeb86d391};
        static const int r[64] = {7, 12, 17, 22, 7, 12, 17, 22, 7, 12, 17, 22, 7, 12, 17, 22,
                                  5, 9,  14, 20, 5, 9,  14, 20, 5, 9,  14, 20, 5, 9,  14, 20,
                                  4, 11, 16, 23, 4, 11, 16, 23, 4, 11, 16, 23, 4, 11, 16, 23,
                                  6, 10, 15, 21, 6, 10, 15, 21, 6, 10, 15, 21, 6, 10, 15, 21};
        uint32_t w[16];
        for (int i = 0; i < 16; ++i)
            w[i] = static_cast<uint32_t>(block[i * 4]) | (static_cast<uint32_t>(block[i * 4 + 1]) << 8) |
                   (static_cast<uint32_t>(block[i * 4 + 2]) << 16) | (static_cast<uint32_t>(block[i * 4 + 3]) << 24);
        uint32_t a = m_state[0], b = m_state[1], c = m_state[2], d = m_state[3];
        for (int i = 0; i < 64; ++i) {
            uint32_t f;
            int g;
            if (i < 16) {
                f = (b & c) | (~b & d);
                g = i;
            } else if (i < 32) {
                f = (d & b) | (~d & c);
                g = (5 * i + 1) % 16;
            } else if (i < 48) {
                f = b ^ c ^ d;
                g = (3 * i + 5) % 16;
            } else {
                f = c ^ (b | ~d);
                g = (7 * i) % 16;
            }
            const uint32_t tmp = d;
            d = c;
            c = b;
            b = b + rotl(a + f + k[i] + w[g], r[i]);
            a = tmp;
        }
        m_state[0] += a;
        m_state[1] += b;
        m_state[2] += c;
        m_state[3] += d;
    }

    uint32_t m_state[4] = {0x67452301, 0xefcdab89, 0x98badcfe, 0x10325476};
    std::array<unsigned char, 64> m_buffer{};
    size_t m_bufferSize = 0;
    uint64_t m_length = 0;
};

long long nowMs()
{
    return std::chrono::duration_cast<std::chrono::milliseconds>(
               std::chrono::system_clock::now().time_since_epoch())
        .count();
}

std::string lower(std::string text)
{
    for (char& c : text)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

bool startsWithNoCase(const std::string& text, const char* prefix)
{
    const size_t n = std::strlen(prefix);
    return text.size() >= n && lower(text.substr(0, n)) == lower(prefix);
}

std::string base64Decode(const std::string& in)
{
    static const std::string chars = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::string out;
    int val = 0;
    int bits = -8;
    for (char c : in) {
        const size_t pos = chars.find(c);
        if (pos == std::string::npos)
            break;
        val = (val << 6) + static_cast<int>(pos);
        bits += 6;
        if (bits >= 0) {
            out += static_cast<char>((val >> bits) & 0xFF);
            bits -= 8;
        }
    }
    return out;
}

} // namespace

std::string md5Hex(const std::string& data)
{
    Md5 md5;
    md5.update(reinterpret_cast<const unsigned char*>(data.data()), data.size());
    const auto digest = md5.finish();
    std::string hex;
    char buffer[3];
    for (unsigned char b : digest) {
        std::snprintf(buffer, sizeof buffer, "%02x", b);
        hex += buffer;
    }
    return hex;
}

DigestAuth::DigestAuth(std::string realm, std::string secret)
    : m_realm(std::move(realm)), m_secret(std::move(secret)), m_opaque(md5Hex("opaque:" + m_secret))
{
}

std::string DigestAuth::makeNonce(long long now) const
{
    char stamp[32];
    std::snprintf(stamp, sizeof stamp, "%016llx", static_cast<unsigned long long>(now));
    return std::string(stamp) + md5Hex(std::string(stamp) + ":" + m_secret);
}

bool DigestAuth::nonceValid(const std::string& nonce, bool* stale) const
{
    *stale = false;
    if (nonce.size() != 48)
        return false;
    const std::string stamp = nonce.substr(0, 16);
    if (md5Hex(stamp + ":" + m_secret) != nonce.substr(16))
        return false;
    const long long issued = static_cast<long long>(std::strtoull(stamp.c_str(), nullptr, 16));
    if (nowMs() - issued > kNonceLifetimeMs) {
        *stale = true;
        return false;
    }
    return true;
}

std::string DigestAuth::challenge(bool stale) const
{
    std::string value = "Digest realm=\"" + m_realm + "\", qop=\"auth\", nonce=\"" + makeNonce(nowMs()) +
                        "\", opaque=\"" + m_opaque + "\", algorithm=MD5";
    if (stale)
        value += ", stale=true";
    return value;
}

std::map<std::string, std::string> DigestAuth::parseParameters(const std::string& text)
{
    std::map<std::string, std::string> params;
    size_t i = 0;
    const size_t n = text.size();
    while (i < n) {
        while (i < n && (text[i] == ' ' || text[i] == ',' || text[i] == '\t'))
            ++i;
        const size_t keyStart = i;
        while (i < n && text[i] != '=' && text[i] != ',')
            ++i;
        std::string key = lower(text.substr(keyStart, i - keyStart));
        while (!key.empty() && key.back() == ' ')
            key.pop_back();
        if (i >= n || text[i] != '=') {
            continue;
        }
        ++i; // '='
        while (i < n && text[i] == ' ')
            ++i;
        std::string value;
        if (i < n && text[i] == '"') {
            ++i;
            while (i < n && text[i] != '"') {
                if (text[i] == '\\' && i + 1 < n)
                    ++i;
                value += text[i++];
            }
            ++i; // closing quote
        } else {
            const size_t valueStart = i;
            while (i < n && text[i] != ',')
                ++i;
            value = text.substr(valueStart, i - valueStart);
            while (!value.empty() && value.back() == ' ')
                value.pop_back();
        }
        if (!key.empty())
            params[key] = value;
    }
    return params;
}

DigestAuth::Result DigestAuth::check(const std::string& authorization, const std::string& method,
                                     const std::string& target, const std::string& user,
                                     const std::string& password) const
{
    if (authorization.empty())
        return Result::Missing;
    if (!startsWithNoCase(authorization, "Digest "))
        return Result::Wrong;
    const auto p = parseParameters(authorization.substr(7));
    auto get = [&p](const char* key) {
        const auto it = p.find(key);
        return it == p.end() ? std::string() : it->second;
    };
    if (get("username") != user || get("realm") != m_realm)
        return Result::Wrong;
    const std::string uri = get("uri");
    if (uri != target)
        return Result::Wrong;
    const std::string algorithm = get("algorithm");
    if (!algorithm.empty() && lower(algorithm) != "md5")
        return Result::Wrong;
    bool stale = false;
    if (!nonceValid(get("nonce"), &stale))
        return stale ? Result::Stale : Result::Wrong;
    const std::string ha1 = md5Hex(user + ":" + m_realm + ":" + password);
    const std::string ha2 = md5Hex(method + ":" + uri);
    const std::string qop = get("qop");
    std::string expected;
    if (qop.empty())
        expected = md5Hex(ha1 + ":" + get("nonce") + ":" + ha2);
    else if (qop == "auth")
        expected = md5Hex(ha1 + ":" + get("nonce") + ":" + get("nc") + ":" + get("cnonce") + ":" + qop + ":" + ha2);
    else
        return Result::Wrong;
    return lower(get("response")) == expected ? Result::Ok : Result::Wrong;
}

DigestAuth::Result DigestAuth::checkBasic(const std::string& authorization, const std::string& user,
                                          const std::string& password)
{
    if (authorization.empty())
        return Result::Missing;
    if (!startsWithNoCase(authorization, "Basic "))
        return Result::Wrong;
    return base64Decode(authorization.substr(6)) == user + ":" + password ? Result::Ok : Result::Wrong;
}

} // namespace emulator
