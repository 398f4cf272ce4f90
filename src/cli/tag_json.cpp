#include "cli/tag_json.h"

namespace vorlane {

namespace {

Text TextField(const Json& json, const char* name) {
  return json.contains(name) ? TextOfJson(json.at(name).get<std::string>()) : Text();
}

}  // namespace

Json TagToJson(const ID3Tag& tag) {
  return {{"present", tag.Present},         {"artist", JsonString(tag.Artist)},
          {"title", JsonString(tag.Title)}, {"album", JsonString(tag.Album)},
          {"track", JsonString(tag.Track)}, {"comment", JsonString(tag.Comment)},
          {"year", JsonString(tag.Year)},   {"genre", tag.Genre},
          {"unicode", tag.Unicode}};
}

ID3Tag TagOfJson(const Json& json) {
  ID3Tag tag;
  tag.Present = json.value("present", false);
  tag.Artist = TextField(json, "artist");
  tag.Title = TextField(json, "title");
  tag.Album = TextField(json, "album");
  tag.Track = TextField(json, "track");
  tag.Comment = TextField(json, "comment");
  tag.Year = TextField(json, "year");
  tag.Genre = json.value("genre", std::int16_t{0});
  tag.Unicode = json.value("unicode", false);
  return tag;
}

}  // namespace vorlane
