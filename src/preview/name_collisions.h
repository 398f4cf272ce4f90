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
#include <map>
#include <set>
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

  // "(1)" + name, or with the lowest number that isn't taken. Cost: next to constant over a pass,
  // but for numbers that are taken on disk by files outside the list: those are asked for again.
  Text MakeNameUnique(TextView name, std::int32_t row);

 private:
  bool IsProposedAbove(std::uint64_t key, TextView name, std::int32_t row) const;
  bool IsHeldByNeighbour(std::uint64_t key, TextView name, std::int32_t row) const;
  bool IsOnDiskUnlisted(TextView name, std::int32_t row);

  Form& form_;
  Services& services_;

  std::uint64_t generation_ = 0;  // of the rows that the indexes describe

  // What a pass has learned of the numbers in front of one name in one folder. A number that a row
  // above proposes stays taken for the rest of the pass and is forgotten. The others can become
  // free: a later row's own name when the pass has reached that row, a file on disk at any time.
  struct Numbers {
    std::int32_t Untried = 1;      // no number from here on has been tried
    std::set<std::int32_t> Retry;  // below Untried, to be asked for again
    std::multimap<std::int32_t, std::int32_t> HeldUntilRow;  // by the row whose name it is
  };

  std::int32_t NextCandidate(const Text& key, TextView name, std::int32_t after, std::int32_t row);
  void NoteTaken(const Text& key, TextView name, std::int32_t number, std::int32_t row);

  std::unordered_map<Text, Numbers> numbers_;  // by folded name and folder
};

}  // namespace vorlane
