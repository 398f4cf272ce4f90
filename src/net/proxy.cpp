#include "net/proxy.h"

#include <algorithm>
#include <cstdlib>

#include "platform/file_name_bytes.h"
#include "platform/letter_case.h"

namespace vorlane {

std::optional<Text> ProxySources::HttpProxy() {
  const char* value = std::getenv("http_proxy");
  if (value == nullptr || *value == '\0') {
    return std::nullopt;
  }
  return TextFromBytes(value);
}

Text HostAndPort(TextView url) {
  const auto scheme = url.find(u"://");
  if (scheme != TextView::npos) {
    url.remove_prefix(scheme + 3);
  }
  url = url.substr(0, url.find(u'/'));
  const auto user = url.rfind(u'@');
  if (user != TextView::npos) {
    url.remove_prefix(user + 1);
  }
  return Text(url);
}

Text GetProxy(ProxySources& sources) {
  const auto environment = sources.HttpProxy();
  Text server = sources.ProxyServer().value_or(environment ? HostAndPort(*environment) : Text());
  const bool enabled = sources.ProxyEnable().value_or(environment ? 1 : 0) != 0;
  constexpr TextView Mark = u"http=";
  const auto mark = FoldCase(server).find(FoldCase(Mark));
  if (mark == Text::npos || !enabled) {
    return server;
  }
  const auto start = mark + Mark.size();
  const auto semicolon = server.find(u';', mark);
  const auto end = semicolon != Text::npos ? semicolon : std::max(start, server.size() - 1);
  return server.substr(start, end - start);
}

}  // namespace vorlane
