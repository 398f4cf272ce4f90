#include "cli/row_output.h"

#include <iostream>

#include "cli/message.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

std::string PrintableName(TextView name) {
  const auto bytes = BytesFromText(name);
  return ForOutput(bytes ? *bytes : DisplayUtf8(name));
}

Json RowJson(const Form& form, std::int32_t row) {
  const FileRow& cells = form.Rows.At(row);
  const bool marked = cells.Proposed.starts_with(u"<");
  Json json;
  json["row"] = row;
  json["folder"] = JsonString(form.Rows.PathOf(row));
  json["name"] = JsonString(cells.Name);
  json["proposed"] = marked ? std::string() : JsonString(cells.Proposed);
  json["marker"] = marked ? Json(JsonString(cells.Proposed)) : Json(nullptr);
  json["artist"] = JsonString(cells.Artist);
  json["title"] = JsonString(cells.Title);
  json["id3v1"] = JsonString(TextOf(cells.ID3v1));
  json["id3v2"] = JsonString(TextOf(cells.ID3v2));
  json["readOnly"] = JsonString(TextOf(cells.ReadOnly));
  return json;
}

void JsonListPrinter::Add(const Json& element) {
  std::cout << (first_ ? "[\n" : ",\n") << WriteJson(element);
  first_ = false;
}

void JsonListPrinter::Finish() {
  std::cout << (first_ ? "[]\n" : "\n]\n");
}

}  // namespace vorlane
