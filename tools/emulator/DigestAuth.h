#pragma once
// HTTP digest authentication of the emulated devices (MD5, qop "auth"): the challenge the
// device sends and the check of the client's answer. Nonces carry their time and a keyed
// hash, so the device keeps no table of them.
#include <map>
#include <string>

namespace emulator {

std::string md5Hex(const std::string& data);

class DigestAuth {
public:
    explicit DigestAuth(std::string realm, std::string secret);

    enum class Result { Ok, Missing, Wrong, Stale };

    // The value of the WWW-Authenticate header of a 401.
    std::string challenge(bool stale) const;
    // Checks an Authorization header for `method` and the request target.
    Result check(const std::string& authorization, const std::string& method, const std::string& target,
                 const std::string& user, const std::string& password) const;
    // Basic authentication, for devices that the fleet file sets to "basic".
    static Result checkBasic(const std::string& authorization, const std::string& user, const std::string& password);

    // Splits `key=value, key="value"` pairs of an Authorization header (keys lower-cased).
    static std::map<std::string, std::string> parseParameters(const std::string& text);

    static constexpr long long kNonceLifetimeMs = 300000;

private:
    std::string makeNonce(long long nowMs) const;
    bool nonceValid(const std::string& nonce, bool* stale) const;

    std::string m_realm;
    std::string m_secret;
    std::string m_opaque;
};

} // namespace emulator
