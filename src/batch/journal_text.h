// The text of the undo journal: its header and its records. The format is described in
// docs/file-formats.md.
//
// The file is Windows-1252 text with CR LF line ends. A name may hold what that can't carry: "|", a
// line break, or a character that the code page lacks. Such a character stands as "//" and the four
// upper-case hex digits of its UTF-16 unit. No name can hold "//", so every other name stands as it
// is.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/path_style.h"
#include "platform/text.h"

namespace vorlane {

// The length of a journal without records. A journal of this length has nothing to undo.
inline constexpr std::uint64_t JournalHeaderSize = 193;

std::string JournalHeader();

// True if a file that begins with these bytes is a journal, also one whose header was cut short
// behind the title. An empty file may be anybody's.
bool IsJournalText(std::string_view head);

// A field of a record: a bare name, or a folder, in which repeated "/" become one.
std::string JournalNameField(TextView name);
std::string JournalFolderField(TextView folder, PathStyle style);
Text TextOfJournalField(std::string_view field);

// The nine fields of a tag as one piece of a record. They stand as they are but for line breaks,
// which a tag's year or track may hold and which would end the record: these are written as in a
// name. A text that only looks like such an escape has the first "/" of it written that way.
std::string JournalTagFields(TextView tagText);
Text TextOfJournalTagFields(std::string_view fields);

// What is behind the header without the last line end, split into lines; none if there is no
// header or nothing behind it.
std::vector<std::string> JournalLines(std::string_view journal);

std::vector<std::string> SplitRecord(std::string_view line);

}  // namespace vorlane
