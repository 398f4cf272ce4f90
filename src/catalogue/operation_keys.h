// What an operation's code text says beside its steps: its help, its wildcard and its option boxes.
#pragma once

#include <optional>
#include <vector>

#include "platform/failure.h"
#include "platform/text.h"

namespace vorlane {

// An option box whose text is kept in the settings store, section "Operations".
struct RegistryBox {
  Text Key;
  Text Default;  // what a new user sees; may be empty

  bool operator==(const RegistryBox&) const = default;
};

// Takes a box's code of the form "Registry(key|default)" or "Registry(key)" apart; nothing if it
// doesn't begin with "Registry(". The last character is taken for the parenthesis, whatever it is.
// A bar right behind the opening parenthesis is part of the key. Throws RunError 5 for the bare
// text "Registry(", which has no last character to leave out.
std::optional<RegistryBox> ReadRegistryBox(TextView boxCode);

struct OptionBoxKeys {
  Text Caption;
  Text BoxCode;                           // empty for a plain box
  std::optional<RegistryBox> Remembered;  // where BoxCode has that form
  Text ToolTip;
  Text CheckCaption;  // not empty: there is a check box, and the text box starts disabled

  bool operator==(const OptionBoxKeys&) const = default;
};

// All that the selection of an operation does to the form can be told from this, in the order of
// the members. Texts that the code doesn't give are empty, and are to be shown as empty.
struct OperationKeys {
  // For the status line and the help button; nothing: both stay as the selection left them.
  std::optional<Text> HelpMessage;

  // What the wildcard is to hold: an operation that names none asks for "*.*". Nothing: it stays as
  // it is. The empty text comes of a line with spaces alone.
  std::optional<Text> Wildcard;

  // The boxes to show, six at most.
  std::vector<OptionBoxKeys> Boxes;

  // True if the reading got behind the boxes' codes, which is where a changed wildcard lists the
  // folder again. If it is false a changed wildcard doesn't do so.
  bool ReachedListing = false;

  // What stopped the reading, for the caller to report: 13 if the number of boxes is no number, 5
  // for a "Wildcard:" line that is the last one and for the box code "Registry(". What was read
  // before it counts.
  std::optional<RunError> Failure;
};

// Reads the keys of an operation's code text; docs/file-formats.md tells them. Takes any text; a
// heading's empty one gives the empty record.
//
// Keys are plain strings, found anywhere in a line: "Help Message:" and "Wildcard:" from the start
// of the code, the others each behind the line found before. A missing help message, box count or
// box name ends the reading; a missing display line or tool tip ends that kind of line only. A key
// whose line has no CR LF behind it counts as missing, but for "Wildcard:".
OperationKeys ReadOperationKeys(TextView code);

}  // namespace vorlane
