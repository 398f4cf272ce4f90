// The proxy that a test enters.
#pragma once

#include "net/proxy.h"

namespace vorlane {

class FakeProxy final : public ProxySources {
 public:
  std::optional<Text> Server;
  std::optional<std::int32_t> Enable;
  std::optional<Text> Environment;

  std::optional<Text> ProxyServer() override { return Server; }
  std::optional<std::int32_t> ProxyEnable() override { return Enable; }
  std::optional<Text> HttpProxy() override { return Environment; }
};

}  // namespace vorlane
