// The times of a file.
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"

namespace vorlane {

namespace {

// Whole seconds are left when the nanoseconds are dropped, before 1970 too: they count upwards.
DateTime LocalTime(const struct statx_timestamp& time) {
  const auto local = LocalDateTime(time.tv_sec);
  if (!local) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return *local;
}

}  // namespace

std::optional<FileTimes> PosixFileSystem::TimesOf(TextView path) {
  const auto bytes = BytesFromText(path);
  if (!bytes) {
    return std::nullopt;
  }
  struct statx times {};
  if (statx(AT_FDCWD, bytes->c_str(), 0, STATX_BASIC_STATS | STATX_BTIME, &times) != 0 ||
      !S_ISREG(times.stx_mode) || faccessat(AT_FDCWD, bytes->c_str(), R_OK, AT_EACCESS) != 0) {
    return std::nullopt;
  }
  const bool hasCreated = (times.stx_mask & STATX_BTIME) != 0;
  return FileTimes{LocalTime(hasCreated ? times.stx_btime : times.stx_mtime),
                   LocalTime(times.stx_mtime), LocalTime(times.stx_atime)};
}

}  // namespace vorlane
