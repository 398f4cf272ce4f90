#include "net/stored_proxy.h"

namespace vorlane {

namespace {

template <typename Value>
std::optional<Value> ReadValue(Registry& registry, TextView name) {
  RegistryValue value;
  const auto status =
      registry.QueryKeyValue(RegistryRoot::CurrentUser, InternetSettingsKey, name, value);
  const auto* found = std::get_if<Value>(&value);
  return status == RegistryStatus::Done && found != nullptr ? std::optional(*found) : std::nullopt;
}

}  // namespace

std::optional<Text> StoredProxy::ProxyServer() {
  return ReadValue<Text>(registry_, u"ProxyServer");
}

std::optional<std::int32_t> StoredProxy::ProxyEnable() {
  const auto value = ReadValue<std::uint32_t>(registry_, u"ProxyEnable");
  return value ? std::optional(static_cast<std::int32_t>(*value)) : std::nullopt;
}

}  // namespace vorlane
