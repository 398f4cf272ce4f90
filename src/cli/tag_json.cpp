#include "cli/tag_json.h"

#include "cli/json_fields.h"

namespace vorlane {

Json TagToJson(const ID3Tag& tag) {
  return {{"present", tag.Present},         {"artist", JsonString(tag.Artist)},
          {"title", JsonString(tag.Title)}, {"album", JsonString(tag.Album)},
          {"track", JsonString(tag.Track)}, {"comment", JsonString(tag.Comment)},
          {"year", JsonString(tag.Year)},   {"genre", tag.Genre},
          {"unicode", tag.Unicode}};
}

ID3Tag TagOfJson(const Json& object) {
  ID3Tag tag;
  tag.Present = FlagField(object, "present").value_or(false);
  tag.Artist = TextField(object, "artist").value_or(Text());
  tag.Title = TextField(object, "title").value_or(Text());
  tag.Album = TextField(object, "album").value_or(Text());
  tag.Track = TextField(object, "track").value_or(Text());
  tag.Comment = TextField(object, "comment").value_or(Text());
  tag.Year = TextField(object, "year").value_or(Text());
  tag.Genre = NumberField<std::int16_t>(object, "genre").value_or(std::int16_t{0});
  tag.Unicode = FlagField(object, "unicode").value_or(false);
  return tag;
}

}  // namespace vorlane
