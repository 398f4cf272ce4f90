// Whether a proposed name would collide with a neighbour's, and a free name where it does.
//
// A proposal collides with an earlier row's proposal, with a name that a later row has or an
// earlier row keeps, and with a file that the wildcard hides from the list. Names compare without
// regard to case, folders exactly. The test only shapes a proposal: the rename itself makes its own
// check.
//
// Cost: a test looks names up in an index, whatever the number of rows.
#pragma once

#include <cstdint>
#include <unordered_map>

#include "form/form.h"

namespace vorlane {

class NameCollisions {
 public:
  NameCollisions(Form& form, Services& services) : form_(form), services_(services) {}

  // To be called at the start of each pass over the rows: what was learned in an earlier pass about
  // taken names no longer holds.
  void StartPass();

  // True if `name` would collide for that row in its folder. False while no preview runs.
  // A row is read by the index into CurrentNames, which is in finding order: after a sort that may
  // be another row. It is kept so, since the outcome is only a proposal.
  bool IsNameTaken(TextView name, std::int32_t row);

  // "(1)" + name, or with the lowest number that isn't taken.
  Text MakeNameUnique(TextView name, std::int32_t row);

 private:
  bool IsProposedAbove(std::uint64_t key, TextView name, std::int32_t row) const;
  bool IsHeldByNeighbour(std::uint64_t key, TextView name, std::int32_t row) const;
  bool IsOnDiskUnlisted(TextView name, std::int32_t row);

  Form& form_;
  Services& services_;

  std::uint64_t generation_ = 0;  // of the rows that the indexes describe

  // For a folder and name: all numbers below this one are proposed by rows above. Rows above keep
  // their proposals during a pass, so these numbers can't become free again in it.
  std::unordered_map<Text, std::int32_t> firstCandidate_;
};

}  // namespace vorlane
