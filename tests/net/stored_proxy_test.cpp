#include "net/stored_proxy.h"

#include <gtest/gtest.h>

#include "support/settings_world.h"

namespace vorlane {
namespace {

class StoredProxyTest : public testing::Test, protected SettingsWorld {
 protected:
  void Write(const std::string& lines) {
    File.Set("[Software\\Microsoft\\Windows\\CurrentVersion\\Internet Settings]\n" + lines);
  }

  StoredProxy Proxy{Registry};
};

TEST_F(StoredProxyTest, NothingEntered) {
  EXPECT_EQ(Proxy.ProxyServer(), std::nullopt);
  EXPECT_EQ(Proxy.ProxyEnable(), std::nullopt);
  Write("Other=sz:x\n");
  EXPECT_EQ(Proxy.ProxyServer(), std::nullopt);
  EXPECT_EQ(Proxy.ProxyEnable(), std::nullopt);
}

TEST_F(StoredProxyTest, BothValues) {
  Write("ProxyServer=sz:http=a:1;ftp=b:2\nProxyEnable=dword:1\n");
  EXPECT_EQ(Proxy.ProxyServer(), Text(u"http=a:1;ftp=b:2"));
  EXPECT_EQ(Proxy.ProxyEnable(), 1);
  EXPECT_EQ(GetProxy(Proxy), u"a:1");
  Write("ProxyServer=sz:http=a:1;ftp=b:2\nProxyEnable=dword:0\n");
  EXPECT_EQ(Proxy.ProxyEnable(), 0);
  EXPECT_EQ(GetProxy(Proxy), u"http=a:1;ftp=b:2");
}

TEST_F(StoredProxyTest, OtherTypes) {
  Write("ProxyServer=dword:1\nProxyEnable=sz:1\n");
  EXPECT_EQ(Proxy.ProxyServer(), std::nullopt);
  EXPECT_EQ(Proxy.ProxyEnable(), std::nullopt);
}

}  // namespace
}  // namespace vorlane
