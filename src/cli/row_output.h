// How a row of the list is printed.
#pragma once

#include <string>

#include "cli/json_text.h"
#include "form/form.h"

namespace vorlane {

// Name and folder as bytes on disk, so that what is printed can be used as a name again;
// on a terminal without control characters.
std::string PrintableName(TextView name);

// The row as the list shows it: row, folder, name, proposed, marker, artist, title, id3v1, id3v2,
// readOnly. A marker stands in "marker", and "proposed" is then empty.
Json RowJson(const Form& form, std::int32_t row);

// Prints a document that is a list, one element a line. Nothing is printed before the first call: a
// command that fails before it has anything to tell leaves no half of a document.
class JsonListPrinter {
 public:
  void Add(const Json& element);
  void Finish();

 private:
  bool first_ = true;
};

}  // namespace vorlane
