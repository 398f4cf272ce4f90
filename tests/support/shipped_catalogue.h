// The operations that are shipped, at work on real files as a user sets them to work.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

#include "catalogue/operation_selection.h"
#include "catalogue/operations_tree.h"
#include "catalogue/option_boxes.h"
#include "platform/posix_file_system.h"
#include "support/form_world.h"
#include "support/memory_box_memory.h"
#include "support/temporary_folder.h"

namespace vorlane {

std::string ShippedOperationsBytes();
OperationsTree LoadShippedOperations();

// Each operation's index by its path of titles, "Case/Upper case"; headings are left out.
std::map<std::string, std::int32_t> OperationsByPath(const OperationsTree& tree);

// For tests that run once for each operation: their paths, and a test's name made of one,
// Case_Upper_case.
std::vector<std::string> ShippedOperationPaths();
std::string NameOfPath(const testing::TestParamInfo<std::string>& info);

// One folder and the window's rules over it, for a new user: all boxes have their defaults.
class ShippedCatalogue {
 public:
  explicit ShippedCatalogue(const TemporaryFolder& folder);

  // A day as "2026-03-05".
  void SetToday(const std::string& day);
  // Lists the folder, or one inside it, and clicks on an operation.
  void Select(const std::string& operation, const std::string& inside = "",
              bool listFolders = false);
  // Types a wildcard and waits for the list.
  void List(const std::string& wildcard);
  // Picks the row of One mode; all others stay as they are.
  void PickRow(const std::string& name);
  // Types a text into a box, ticking its check box if it has one.
  void Type(int box, const std::string& text);
  void Go();
  void Undo();

  // Nothing has been reported and no message has been shown since the start.
  void ExpectQuiet() const;

 private:
  const TemporaryFolder& folder_;
  PosixFileSystem files_;
  FormWorld world_{files_};
  WildcardBox wildcard_{world_.State};
  MemoryBoxMemory memory_;
  OperationSelection selection_{world_.State, world_.Outside, world_.List, wildcard_, memory_};
  OptionBoxes boxes_{world_.State, world_.Outside, memory_};
  std::map<std::string, std::int32_t> operations_;
};

}  // namespace vorlane
