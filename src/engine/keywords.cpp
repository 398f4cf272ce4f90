#include "engine/keywords.h"

#include <array>
#include <optional>

#include "engine/auto_number.h"
#include "engine/file_size.h"
#include "engine/occurring_tags.h"
#include "engine/replacing.h"
#include "platform/failure.h"
#include "platform/numbers.h"

namespace vorlane {
namespace {

// The values of one entry. Each throws RunError if it can't be had.
class KeywordValues {
 public:
  KeywordValues(const KeywordEntry& entry, EvaluationContext& context)
      : entry_(entry), facts_(context.Facts), paths_(context.Paths) {}

  Text FileCreationTime() { return GeneralDate(Created().TimePart()); }
  Text FileCreationDate() { return GeneralDate(Created().DatePart()); }
  Text FileLastModifiedTime() { return GeneralDate(Modified().TimePart()); }
  Text FileLastModifiedDate() { return GeneralDate(Modified().DatePart()); }

  Text FileSize() {
    const auto length = facts_.FileLength(FullPath());
    if (!length) {
      throw RunError(ErrorNumber::FileNotFound);
    }
    return ShortestDecimal(FileSizeKB(*length));
  }

  Text ImageMake() {
    constexpr std::int32_t makeTag = 271;
    return facts_.ExifValue(FullPath(), makeTag);
  }

  // A picture without a usable date has the empty text for both.
  Text ImageTime() {
    const auto date = ReadDate(ImageDateText());
    return date ? GeneralDate(date->TimePart()) : Text();
  }
  Text ImageDate() {
    const auto date = ReadDate(ImageDateText());
    return date ? GeneralDate(date->DatePart()) : Text();
  }

  Text LocalTime() { return GeneralDate(facts_.Now().TimePart()); }
  Text LocalDate() { return GeneralDate(facts_.Now().DatePart()); }
  Text FileName() { return Text(entry_.FileName); }
  Text NameOnly() { return NameOnlyOf(entry_.FileName); }

  Text ExtOnly() {
    const Text extension = ExtensionOf(entry_.FileName);
    return extension.empty() ? extension : u"." + extension;
  }

  Text AutoNumber() { return FormatAutoNumber(entry_.AutoNumber, entry_.RowCount); }

  Text FolderName() { return FolderNameOf(FullPath(), paths_); }
  Text ParentFolderName() { return ParentFolderNameOf(FullPath(), paths_); }
  Text ParentParentFolderName() { return ParentParentFolderNameOf(FullPath(), paths_); }

 private:
  // Few keywords ask for it, and none twice.
  Text FullPath() const { return Text(entry_.Path).append(entry_.FileName); }

  DateTime Created() { return DateOfFile(WhichDate::Created, created_); }
  DateTime Modified() { return DateOfFile(WhichDate::Written, modified_); }

  // The date goes through text, as a step would write and read it.
  DateTime DateOfFile(WhichDate which, std::optional<Text>& text) {
    if (!text) {
      text.emplace();
      text = GeneralDate(facts_.FileDate(FullPath(), which));
    }
    const auto date = ReadDate(*text);
    if (!date) {
      throw RunError(ErrorNumber::TypeMismatch);
    }
    return *date;
  }

  const Text& ImageDateText() {
    if (!imageDate_) {
      imageDate_.emplace();
      Attempt([&] { imageDate_ = facts_.ImageDateOf(FullPath()); });
    }
    return *imageDate_;
  }

  const KeywordEntry& entry_;
  EntryFacts& facts_;
  PathStyle paths_;

  // Each asked for once; empty if it couldn't be had.
  std::optional<Text> created_;
  std::optional<Text> modified_;
  std::optional<Text> imageDate_;
};

struct FileKeyword {
  TextView Tag;
  Text (KeywordValues::*Value)();
};

// The order is the order of replacement.
constexpr std::array<FileKeyword, 17> FileKeywords = {{
    {u"<FILECREATIONTIME>", &KeywordValues::FileCreationTime},
    {u"<FILECREATIONDATE>", &KeywordValues::FileCreationDate},
    {u"<FILELASTMODIFIEDTIME>", &KeywordValues::FileLastModifiedTime},
    {u"<FILELASTMODIFIEDDATE>", &KeywordValues::FileLastModifiedDate},
    {u"<FILESIZE>", &KeywordValues::FileSize},
    {u"<IMAGEMAKE>", &KeywordValues::ImageMake},
    {u"<IMAGETIME>", &KeywordValues::ImageTime},
    {u"<IMAGEDATE>", &KeywordValues::ImageDate},
    {u"<LOCALTIME>", &KeywordValues::LocalTime},
    {u"<LOCALDATE>", &KeywordValues::LocalDate},
    {u"<FILENAME>", &KeywordValues::FileName},
    {u"<NAMEONLY>", &KeywordValues::NameOnly},
    {u"<EXTONLY>", &KeywordValues::ExtOnly},
    {u"<AUTONUMBER>", &KeywordValues::AutoNumber},
    {u"<FOLDERNAME>", &KeywordValues::FolderName},
    {u"<PARENTFOLDERNAME>", &KeywordValues::ParentFolderName},
    {u"<PARENTPARENTFOLDERNAME>", &KeywordValues::ParentParentFolderName},
}};

constexpr TagFinder FileKeywordFinder(FileKeywords, &FileKeyword::Tag);

struct TagKeyword {
  TextView Tag;
  Text ID3Tag::*Field;
};

constexpr std::array<TagKeyword, 5> TagKeywords = {{
    {u"<ARTIST>", &ID3Tag::Artist},
    {u"<TITLE>", &ID3Tag::Title},
    {u"<ALBUM>", &ID3Tag::Album},
    {u"<COMMENTS>", &ID3Tag::Comment},
    {u"<TRACK>", &ID3Tag::Track},
}};

}  // namespace

bool ReplaceFileKeywords(Text& work, const KeywordEntry& entry, EvaluationContext& context) {
  KeywordValues values(entry, context);
  bool wasNumbered = false;
  auto occurring = FileKeywordFinder.Occurring(work);
  for (std::size_t i = 0; i < FileKeywords.size(); ++i) {
    if ((occurring >> i & 1) == 0) {
      continue;
    }
    Attempt([&] {
      ReplaceEvery(work, FileKeywords[i].Tag, (values.*FileKeywords[i].Value)());
      wasNumbered |= FileKeywords[i].Value == &KeywordValues::AutoNumber;
      occurring = FileKeywordFinder.Occurring(work);
    });
  }
  return wasNumbered;
}

void ReplaceTagKeywords(Text& work, const ID3Tag& tag, TextView fullPath, EntryFacts& facts) {
  for (const auto& keyword : TagKeywords) {
    Attempt([&] {
      ReplaceEvery(work, keyword.Tag, tag.Present ? TextView(tag.*keyword.Field) : TextView());
    });
  }
  if (Contains(work, u"<KBIT>")) {
    Attempt([&] { ReplaceEvery(work, u"<KBIT>", DecimalText(facts.GetKbit(fullPath))); });
  }
}

}  // namespace vorlane
