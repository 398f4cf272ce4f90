// The proxy that the user has entered.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/text.h"

namespace vorlane {

// Where the user's settings store has its two values.
inline constexpr TextView InternetSettingsKey =
    u"Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings";

class ProxySources {
 public:
  virtual ~ProxySources() = default;

  // The values of these names in the settings store; nothing for one that isn't there.
  virtual std::optional<Text> ProxyServer() = 0;
  virtual std::optional<std::int32_t> ProxyEnable() = 0;

  // The environment variable http_proxy, in lower case only; nothing if it isn't set or empty.
  virtual std::optional<Text> HttpProxy();
};

// The proxy for OvWinsock, "host:port", possibly empty. A value of the store goes before the
// environment, whose proxy counts as switched on.
//
// A proxy that is entered but switched off is used all the same. Of a list by protocol ("http=...")
// the piece for HTTP is taken if the proxy is switched on; without a ";" behind it the piece loses
// its last character.
Text GetProxy(ProxySources& sources);

// "host:port" of a proxy given as a URL: no scheme, no user, no path.
Text HostAndPort(TextView url);

}  // namespace vorlane
