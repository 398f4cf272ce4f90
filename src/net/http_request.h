// What goes where: the rules by which a URL and a proxy give the host to connect to, and the text
// of the request.
#pragma once

#include <cstdint>
#include <optional>

#include "platform/text.h"

namespace vorlane {

struct HttpTarget {
  Text Host;               // to connect to
  std::int16_t Port = 80;  // the port's 16 bits: one above 32767 is negative here
  Text Request;            // what the server, or the proxy, is asked for
  bool operator==(const HttpTarget&) const = default;
};

// `proxy` is "host:port" or empty. The scheme of the URL may be missing. Nothing if a port isn't a
// number of 16 bits, signed or not, or the proxy has no ":".
std::optional<HttpTarget> SplitUrl(TextView url, TextView proxy);

// The whole request by HTTP/1.0. Only the method "POST", in exactly these letters, sends the body
// and the lines about it.
Text HttpRequestText(const HttpTarget& target, TextView method, TextView body);

}  // namespace vorlane
