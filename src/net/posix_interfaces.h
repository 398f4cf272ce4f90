// The network interfaces of this machine, as the system lists them.
#pragma once

#include <ifaddrs.h>

namespace vorlane {

// True if any running interface of the list other than loopback has an IPv4 address.
bool ReachesOutside(const ifaddrs* first);

}  // namespace vorlane
