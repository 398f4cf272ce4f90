// From what the system tells of an entry to what the rules know of it.
#pragma once

#include <sys/stat.h>

#include "platform/file_system.h"

namespace vorlane {

// `path` ends in a bare name; a separator behind that changes nothing.
bool IsHiddenPath(TextView path);

// ReadOnly left out.
EntryStatus MakePresence(const struct stat& status, bool hidden);

// Asked besides the access test, which lets the superuser through whatever the mode says.
bool NobodyMayWrite(mode_t mode);

// `name` is relative to the open folder `folder`, or a whole path with AT_FDCWD.
bool IsReadOnly(int folder, const char* name, const struct stat& status);

// The same of an open entry. Its path is for systems that can't be asked about a descriptor.
bool IsOpenedReadOnly(int descriptor, const char* path, const struct stat& status);

FileIdentity MakeIdentity(const struct stat& status);

}  // namespace vorlane
