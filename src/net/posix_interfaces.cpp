#include "net/posix_interfaces.h"

#include <net/if.h>
#include <sys/socket.h>

namespace vorlane {

bool ReachesOutside(const ifaddrs* first) {
  for (const ifaddrs* each = first; each != nullptr; each = each->ifa_next) {
    const bool running = (each->ifa_flags & IFF_RUNNING) != 0;
    const bool loopback = (each->ifa_flags & IFF_LOOPBACK) != 0;
    if (running && !loopback && each->ifa_addr != nullptr && each->ifa_addr->sa_family == AF_INET) {
      return true;
    }
  }
  return false;
}

}  // namespace vorlane
