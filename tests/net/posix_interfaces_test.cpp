#include "net/posix_interfaces.h"

#include <gtest/gtest.h>
#include <net/if.h>
#include <sys/socket.h>

#include <vector>

namespace vorlane {
namespace {

constexpr int NoAddress = -1;

struct Interface {
  unsigned Flags;
  int Family;
};

bool Reaches(const std::vector<Interface>& interfaces) {
  std::vector<ifaddrs> list(interfaces.size());
  std::vector<sockaddr> addresses(interfaces.size());
  for (std::size_t i = 0; i < interfaces.size(); ++i) {
    list[i].ifa_flags = interfaces[i].Flags;
    if (interfaces[i].Family != NoAddress) {
      addresses[i].sa_family = static_cast<sa_family_t>(interfaces[i].Family);
      list[i].ifa_addr = &addresses[i];
    }
    list[i].ifa_next = i + 1 < list.size() ? &list[i + 1] : nullptr;
  }
  return ReachesOutside(list.empty() ? nullptr : list.data());
}

TEST(Interfaces, OneThatRunsWithAnIPv4AddressReachesOutside) {
  EXPECT_TRUE(Reaches({{IFF_RUNNING, AF_INET}}));
  EXPECT_TRUE(Reaches({{IFF_RUNNING | IFF_LOOPBACK, AF_INET},
                       {IFF_RUNNING, AF_INET6},
                       {IFF_RUNNING | IFF_UP, AF_INET}}));
}

TEST(Interfaces, NoOtherOneDoes) {
  EXPECT_FALSE(Reaches({}));
  EXPECT_FALSE(Reaches({{IFF_RUNNING | IFF_LOOPBACK, AF_INET}}));
  EXPECT_FALSE(Reaches({{IFF_RUNNING, AF_INET6}}));
  EXPECT_FALSE(Reaches({{IFF_UP, AF_INET}}));
  EXPECT_FALSE(Reaches({{IFF_RUNNING, NoAddress}}));
}

}  // namespace
}  // namespace vorlane
