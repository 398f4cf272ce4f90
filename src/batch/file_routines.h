// What a run and an undo do to the disk. Each routine tries its steps one after the other, passes
// over a failing one and reports nothing.
#pragma once

#include <cstdint>

#include "batch/undo_journal.h"
#include "platform/file_system.h"
#include "platform/path_style.h"
#include "platform/rename.h"

namespace vorlane {

// Creates what is missing of a path, level by level, and leaves the path with a trailing separator.
// Returns how many folders it made.
std::int16_t CreatePath(FileSystem& files, Text& path, PathStyle style);

// Removes the folder if it is empty.
void RemoveFolder(FileSystem& files, TextView path);

enum class RenameFor : std::uint8_t {
  Run,   // a hidden entry can't be renamed
  Undo,  // what a run did may have left a hidden name, or a link that leads nowhere from there
};

// Moves an entry into another folder. False, and nothing changed, if a name is empty, the entry
// isn't there, the new folder isn't, the target is taken (by whatever kind of entry), or the
// system refuses, as it does between volumes.
bool MoveFile(FileSystem& files, TextView folder, TextView name, TextView newFolder,
              TextView newName, RenameFor purpose = RenameFor::Run);

struct RenameResult {
  // The checks passed and the rename was tried. This is what decides about the journal and the row.
  bool Attempted = false;
  // What came of it. A refusal by the system after the checks still counts as attempted.
  RenameOutcome Outcome = RenameOutcome::Refused;
};

// Renames an entry within its folder, never over another. `journal` takes the record of it: null
// for none; with `tagLineOpen` the record closes the open tag line.
RenameResult RenameFile(FileSystem& files, TextView folder, TextView oldName, TextView newName,
                        RenameFor purpose, UndoJournal* journal, bool tagLineOpen);

}  // namespace vorlane
