#include "net/http_request.h"

#include <gtest/gtest.h>

#include "platform/code_page.h"

namespace vorlane {

namespace {

using Splits = std::optional<HttpTarget>;

struct SplitCase {
  Text Url;
  Text Proxy;
  Splits Result;
};

void ExpectSplits(const std::vector<SplitCase>& cases) {
  for (const SplitCase& each : cases) {
    const auto result = SplitUrl(each.Url, each.Proxy);
    const std::string what = CodePageBytes(each.Url) + " by \"" + CodePageBytes(each.Proxy) + '"';
    ASSERT_EQ(result.has_value(), each.Result.has_value()) << what;
    if (result) {
      EXPECT_EQ(CodePageBytes(result->Host), CodePageBytes(each.Result->Host)) << what;
      EXPECT_EQ(result->Port, each.Result->Port) << what;
      EXPECT_EQ(CodePageBytes(result->Request), CodePageBytes(each.Result->Request)) << what;
    }
  }
}

}  // namespace

TEST(HttpRequest, UrlWithoutProxy) {
  ExpectSplits({
      {u"example.test/a.txt", u"", {{u"example.test", 80, u"/a.txt"}}},
      {u"http://example.test", u"", {{u"example.test", 80, u"/"}}},
      {u"http://example.test/", u"", {{u"example.test", 80, u"/"}}},
      {u"HTTP://example.test/a//b", u"", {{u"example.test", 80, u"/a//b"}}},
      {u"https://example.test/a", u"", {{u"example.test", 80, u"/a"}}},
      {u"example.test:8080/a", u"", {{u"example.test", 8080, u"/a"}}},
      {u"http://example.test:8080/a", u"", {{u"example.test", 8080, u"/a"}}},
      {u"example.test:8080", u"", {{u"example.test", 8080, u"/"}}},
      {u"a/b:c", u"", {{u"a", 80, u"/b:c"}}},
      {u"a:81/b:c/d", u"", {{u"a", 81, u"/b:c/d"}}},
      {u"/vorl.txt", u"", {{u"", 80, u"/vorl.txt"}}},
      {u"", u"", {{u"", 80, u"/"}}},
  });
}

TEST(HttpRequest, SchemeThatIsntOne) {
  ExpectSplits({
      // Four letters decide, so a host may be taken for a scheme; then the first "//" ends it.
      {u"http.example.test/a//b/c", u"", {{u"b", 80, u"/c"}}},
      {u"http.example.test/a", u"", {{u"http.example.test", 80, u"/a"}}},
      {u"ftp://example.test/a", u"", {}},  // "ftp" is the host, and "" no port
      {u"htt", u"", {{u"htt", 80, u"/"}}},
      {u"http//a/b", u"", {{u"a", 80, u"/b"}}},
  });
}

TEST(HttpRequest, Ports) {
  ExpectSplits({
      {u"a:0/", u"", {{u"a", 0, u"/"}}},
      {u"a:32767/", u"", {{u"a", 32767, u"/"}}},
      {u"a:40000/", u"", {{u"a", static_cast<std::int16_t>(40000), u"/"}}},
      {u"a:65535/", u"", {{u"a", -1, u"/"}}},
      {u"a:-1/", u"", {{u"a", -1, u"/"}}},
      {u"a:65536/", u"", {}},
      {u"a:-32769/", u"", {}},
      {u"a:9999999999/", u"", {}},
      {u"a:/", u"", {}},
      {u"a:", u"", {}},
      {u"a:80b/", u"", {}},
  });
}

TEST(HttpRequest, UrlThroughProxy) {
  ExpectSplits({
      {u"example.test/a.txt", u"p:3128", {{u"p", 3128, u"http://example.test/a.txt"}}},
      {u"http://example.test/a.txt", u"p:3128", {{u"p", 3128, u"http://example.test/a.txt"}}},
      {u"example.test", u"p:3128", {{u"p", 3128, u"http://example.test/"}}},
      {u"http://a/", u"p:3128", {{u"p", 3128, u"http://a/"}}},
      {u"https://a", u"p:3128", {{u"p", 3128, u"https://a/"}}},
      {u"HTTP://example.test", u"p:3128", {{u"p", 3128, u"HTTP://example.test/"}}},
      {u"example.test:8080/a", u"p:3128", {{u"p", 3128, u"http://example.test:8080/a"}}},
      {u"a", u":3128", {{u"", 3128, u"http://a/"}}},
      {u"a", u"p:3128:1", {}},
      {u"a", u"p", {}},
      {u"a", u"p:", {}},
      {u"a", u"p:x", {}},
      {u"a", u"ftp=b:2;x", {}},
      {u"a", u"http://p:3128", {}},
  });
}

TEST(HttpRequest, ListOfProxiesWithoutHttpIsntAPort) {
  // It passes for a host called "ftp=b", which nobody finds.
  ExpectSplits({{u"a", u"ftp=b:2", {{u"ftp=b", 2, u"http://a/"}}}});
}

TEST(HttpRequest, Get) {
  EXPECT_EQ(CodePageBytes(HttpRequestText({u"example.test", 80, u"/a.txt"}, u"GET", u"unsent")),
            "GET /a.txt HTTP/1.0\r\n"
            "Accept: */*\r\n"
            "User-Agent: Vorlane 2006\r\n"
            "Host: example.test\r\n"
            "\r\n");
}

TEST(HttpRequest, Post) {
  EXPECT_EQ(CodePageBytes(HttpRequestText({u"p", 3128, u"http://a/"}, u"POST", u"a=1&b=\u20AC")),
            "POST http://a/ HTTP/1.0\r\n"
            "Accept: */*\r\n"
            "User-Agent: Vorlane 2006\r\n"
            "Host: p\r\n"
            "Content-Type: application/x-www-form-urlencoded\r\n"
            "Content-Length: 7\r\n"
            "\r\n"
            "a=1&b=\x80");
}

TEST(HttpRequest, PostInOtherLettersHasNoBody) {
  EXPECT_EQ(CodePageBytes(HttpRequestText({u"a", 80, u"/"}, u"Post", u"body")),
            "Post / HTTP/1.0\r\n"
            "Accept: */*\r\n"
            "User-Agent: Vorlane 2006\r\n"
            "Host: a\r\n"
            "\r\n");
}

TEST(HttpRequest, PostOfNothing) {
  const Text text = HttpRequestText({u"a", 80, u"/"}, u"POST", u"");
  EXPECT_TRUE(text.ends_with(u"Content-Length: 0\r\n\r\n"));
}

}  // namespace vorlane
