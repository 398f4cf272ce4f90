// The one way in which anything gets a new name. Built on FileSystem::RenameNoReplace alone, so no
// rename can replace a file, whatever the kind of disk.
#pragma once

#include "platform/file_system.h"
#include "platform/path_style.h"

namespace vorlane {

// Renames `folder` + `oldName` to `folder` + `newName`; both names are bare.
//
// Names that differ by case alone: on a disk that tells them apart this is a rename like any other.
// On one that doesn't, the new name "exists" because it is the same entry; then the rename goes
// through a fresh temporary name, "vorlane-renaming-N", and back if the second step fails; if not
// even that works the file keeps the temporary name. If both names stand in the folder (two
// entries, or two hard links of one), the outcome is TargetExists and nothing changes.
// Equal names: Done, nothing to do.
RenameOutcome RenameWithinFolder(FileSystem& files, TextView folder, TextView oldName,
                                 TextView newName);

}  // namespace vorlane
