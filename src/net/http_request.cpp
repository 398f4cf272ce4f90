#include "net/http_request.h"

#include <algorithm>
#include <limits>

#include "platform/letter_case.h"
#include "platform/numbers.h"
#include "platform/vendor.h"

namespace vorlane {

namespace {

constexpr TextView SchemeStart = u"http";

std::optional<std::int16_t> ReadPort(TextView text) {
  const auto number = ReadInt32(text);
  if (!number || *number < std::numeric_limits<std::int16_t>::min() ||
      *number > std::numeric_limits<std::uint16_t>::max()) {
    return std::nullopt;
  }
  return static_cast<std::int16_t>(*number);
}

std::optional<HttpTarget> SplitDirect(TextView url) {
  const auto colon = url.find(u':');
  const auto slash = url.find(u'/');
  HttpTarget target;
  // A ":" behind the first "/" belongs to the path.
  const auto hostEnd = std::min({colon, slash, url.size()});
  target.Host = url.substr(0, hostEnd);
  const auto requestStart = std::min(slash, url.size());
  if (colon < slash) {
    const auto port = ReadPort(url.substr(colon + 1, requestStart - colon - 1));
    if (!port) {
      return std::nullopt;
    }
    target.Port = *port;
  }
  target.Request = url.substr(requestStart);
  if (target.Request.empty()) {
    target.Request = u"/";
  }
  return target;
}

std::optional<HttpTarget> SplitForProxy(Text url, TextView proxy) {
  const auto colon = proxy.find(u':');
  if (colon == TextView::npos) {
    return std::nullopt;
  }
  const auto port = ReadPort(proxy.substr(colon + 1));
  if (!port) {
    return std::nullopt;
  }
  constexpr std::size_t BehindScheme = 8;
  if (url.find(u'/', BehindScheme) == Text::npos) {
    url += u'/';
  }
  return HttpTarget{Text(proxy.substr(0, colon)), *port, std::move(url)};
}

}  // namespace

std::optional<HttpTarget> SplitUrl(TextView url, TextView proxy) {
  const bool isHttp = EqualIgnoringCase(url.substr(0, SchemeStart.size()), SchemeStart);
  if (!proxy.empty()) {
    return SplitForProxy((isHttp ? Text() : Text(u"http://")).append(url), proxy);
  }
  const auto slashes = isHttp ? url.find(u"//", SchemeStart.size()) : TextView::npos;
  return SplitDirect(slashes == TextView::npos ? url : url.substr(slashes + 2));
}

Text HttpRequestText(const HttpTarget& target, TextView method, TextView body) {
  Text text;
  const auto addLine = [&text](TextView start, TextView rest) {
    text.append(start).append(rest).append(LineEnd);
  };
  text.append(method).append(u" ").append(target.Request);
  addLine(u" HTTP/1.0", {});
  addLine(u"Accept: */*", {});
  addLine(u"User-Agent: ", ApplicationTitle);
  addLine(u"Host: ", target.Host);
  const bool hasBody = method == u"POST";
  if (hasBody) {
    addLine(u"Content-Type: application/x-www-form-urlencoded", {});
    // A character is one byte on its way.
    addLine(u"Content-Length: ", DecimalText(static_cast<std::int64_t>(body.size())));
  }
  text.append(LineEnd);
  if (hasBody) {
    text.append(body);
  }
  return text;
}

}  // namespace vorlane
