// The variable keywords: keywords without a closing tag, such as "<NAMEONLY>", and what an entry
// says for each. A value that can't be had leaves its keyword in the text.
#pragma once

#include <cstdint>

#include "engine/evaluation_context.h"
#include "metadata/id3_tag.h"
#include "platform/text.h"

namespace vorlane {

// The entry that keywords ask about, and its place among the rows.
struct KeywordEntry {
  TextView Path;  // its folder, with a trailing separator
  TextView FileName;
  std::int32_t AutoNumber;
  std::int32_t RowCount;
};

// Replaces the keywords of name, folder, number, size, dates and picture, in a fixed order. A value
// is text like any other: one that holds a later keyword is expanded by that one. A fact is asked
// for only if its keyword occurs, and a date of the file or picture only once. True if
// "<AUTONUMBER>" was among the keywords replaced.
bool ReplaceFileKeywords(Text& work, const KeywordEntry& entry, EvaluationContext& context);

// Replaces the keywords of an MP3 file's tag by its fields, empty ones if it isn't present, and
// "<KBIT>" by the bit rate of the file.
void ReplaceTagKeywords(Text& work, const ID3Tag& tag, TextView fullPath, EntryFacts& facts);

}  // namespace vorlane
