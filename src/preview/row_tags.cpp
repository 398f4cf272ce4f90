#include "preview/row_tags.h"

#include "metadata/tag_reading.h"

namespace vorlane {

RowTags ReadRowTags(Form& form, Services& services, std::int32_t row) {
  const Text path = form.Rows.PathOf(row) + form.Rows.At(row).Name;
  RowTags tags{ReadID3v1(services.Files, services.Report, path),
               ReadID3v2(services.Files, services.Report, path)};
  form.SetTagPresence(row, Column::ID3v1, tags.V1.Present);
  form.SetTagPresence(row, Column::ID3v2, tags.V2.Present);
  if (!tags.V2.Present) {
    tags.V2 = tags.V1;
  }
  form.SetArtistAndTitle(row, tags.V2);
  return tags;
}

}  // namespace vorlane
