// The proxy by the user's registry and the environment.
#pragma once

#include "net/proxy.h"
#include "shell/registry.h"

namespace vorlane {

class StoredProxy final : public ProxySources {
 public:
  explicit StoredProxy(Registry& registry) : registry_(registry) {}

  // A value of another type counts as not there.
  std::optional<Text> ProxyServer() override;
  std::optional<std::int32_t> ProxyEnable() override;

 private:
  Registry& registry_;
};

}  // namespace vorlane
