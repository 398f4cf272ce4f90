#include "support/limited_memory.h"

#include <sys/resource.h>
#include <unistd.h>

#include <cstdint>
#include <fstream>
#include <new>

namespace vorlane {

void RunWithLimitedMemory(std::size_t room, const std::function<bool()>& steps) {
  std::uint64_t pages = 0;
  std::ifstream("/proc/self/statm") >> pages;
  const rlimit limit = {pages * static_cast<std::uint64_t>(getpagesize()) + room, RLIM_INFINITY};
  setrlimit(RLIMIT_AS, &limit);
  try {
    _exit(steps() ? 0 : 1);
  } catch (const std::bad_alloc&) {
    _exit(2);
  }
}

}  // namespace vorlane
