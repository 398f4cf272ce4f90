// From what the system tells of an entry to what the rules know of it.
#pragma once

#include <sys/stat.h>

#include "platform/file_system.h"

namespace vorlane {

// `path` ends in a bare name; a separator behind that changes nothing.
bool IsHiddenPath(TextView path);

// `name` is relative to the open folder `folder`, or a whole path with AT_FDCWD; it is needed to
// ask whether this process may write there.
EntryStatus MakeStatus(int folder, const char* name, const struct stat& status, bool hidden);

FileIdentity MakeIdentity(const struct stat& status);

}  // namespace vorlane
