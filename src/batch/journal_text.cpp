#include "batch/journal_text.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/code_page.h"
#include "platform/vendor.h"

namespace vorlane {

namespace {

constexpr std::string_view JournalLineEnd = "\r\n";
constexpr std::string_view HeaderEnd = "\r\n\r\n\r\n";
constexpr std::string_view Warning = "This is an automatically generated Undo File. Do not edit.";
constexpr std::string_view EscapeMark = "//";
constexpr std::size_t EscapeDigits = 4;

void AppendField(std::string& field, char16_t unit) {
  const auto byte = ByteOfCharacter(unit);
  if (byte && unit != u'|' && unit != u'\r' && unit != u'\n') {
    field.push_back(static_cast<char>(*byte));
  } else {
    AppendUnitEscape(field, unit);
  }
}

std::vector<std::string> SplitBytes(std::string_view text, std::string_view separator) {
  std::vector<std::string> pieces;
  std::size_t start = 0;
  for (auto hit = text.find(separator); hit != std::string_view::npos;
       hit = text.find(separator, start)) {
    pieces.emplace_back(text.substr(start, hit - start));
    start = hit + separator.size();
  }
  pieces.emplace_back(text.substr(start));
  return pieces;
}

// What stands for a character of a tag that would end its record, and for the start of a text that
// would be taken for one of these.
struct TagEscape {
  char16_t Unit;
  TextView Written;
};
constexpr std::array<TagEscape, 3> TagEscapes = {
    {{u'\r', u"//000D"}, {u'\n', u"//000A"}, {u'/', u"//002F"}}};

auto TagEscapeAt(TextView text) {
  return std::find_if(TagEscapes.begin(), TagEscapes.end(),
                      [text](const TagEscape& escape) { return text.starts_with(escape.Written); });
}

}  // namespace

std::string JournalHeader() {
  std::string header = CodePageBytes(ApplicationTitle) + " - " + CodePageBytes(VendorAddress);
  header.append(JournalLineEnd).append(JournalLineEnd);
  header.append(Warning).append(JournalLineEnd);
  header.append(80, '-').append(HeaderEnd);
  return header;
}

bool IsJournalText(std::string_view head) {
  return head.find(Warning) != std::string_view::npos ||
         (head.size() >= ApplicationTitle.size() && JournalHeader().starts_with(head));
}

std::string JournalNameField(TextView name) {
  std::string field;
  for (const char16_t unit : name) {
    AppendField(field, unit);
  }
  return field;
}

std::string JournalFolderField(TextView folder, PathStyle style) {
  std::string field;
  bool afterSeparator = false;
  for (const char16_t unit : folder) {
    // "//" is the mark of an escape. Two backslashes are none, and begin the name of a server.
    const bool isSeparator = style == PathStyle::Posix && unit == u'/';
    if (!(isSeparator && afterSeparator)) {
      AppendField(field, unit);
    }
    afterSeparator = isSeparator;
  }
  return field;
}

Text TextOfJournalField(std::string_view field) {
  Text text;
  for (std::size_t i = 0; i < field.size(); ++i) {
    const auto digits = field.substr(i).substr(0, EscapeMark.size() + EscapeDigits);
    std::uint16_t unit = 0;
    if (digits.size() == EscapeMark.size() + EscapeDigits && digits.starts_with(EscapeMark)) {
      const char* end = digits.data() + digits.size();
      const auto read = std::from_chars(digits.data() + EscapeMark.size(), end, unit, 16);
      if (read.ec == std::errc() && read.ptr == end) {
        text.push_back(static_cast<char16_t>(unit));
        i += digits.size() - 1;
        continue;
      }
    }
    text.push_back(CharacterOfByte(static_cast<std::uint8_t>(field[i])));
  }
  return text;
}

std::string JournalTagFields(TextView tagText) {
  Text text;
  for (std::size_t i = 0; i < tagText.size(); ++i) {
    const char16_t unit = tagText[i];
    const auto escape = std::find_if(TagEscapes.begin(), TagEscapes.end(),
                                     [unit](const TagEscape& each) { return each.Unit == unit; });
    const bool isNeeded = escape != TagEscapes.end() &&
                          (unit != u'/' || TagEscapeAt(tagText.substr(i)) != TagEscapes.end());
    text += isNeeded ? escape->Written : tagText.substr(i, 1);
  }
  return CodePageBytes(text);
}

Text TextOfJournalTagFields(std::string_view fields) {
  const Text written = TextFromCodePage(fields);
  Text text;
  for (TextView rest = written; !rest.empty();) {
    const auto escape = TagEscapeAt(rest);
    const bool isEscape = escape != TagEscapes.end();
    text += isEscape ? escape->Unit : rest.front();
    rest.remove_prefix(isEscape ? escape->Written.size() : 1);
  }
  return text;
}

std::vector<std::string> JournalLines(std::string_view journal) {
  const auto end = journal.find(HeaderEnd);
  if (end == std::string_view::npos || journal.size() <= end + HeaderEnd.size() + 1) {
    return {};
  }
  const auto body = journal.substr(end + HeaderEnd.size());
  return SplitBytes(body.substr(0, body.size() - JournalLineEnd.size()), JournalLineEnd);
}

std::vector<std::string> SplitRecord(std::string_view line) {
  return SplitBytes(line, "|");
}

}  // namespace vorlane
