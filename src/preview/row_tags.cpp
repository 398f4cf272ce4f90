#include "preview/row_tags.h"

namespace vorlane {

ID3Tags ReadRowTags(Form& form, Services& services, std::int32_t row,
                    std::unique_ptr<OpenFile> opened) {
  const Text path = form.Rows.PathOf(row) + form.Rows.At(row).Name;
  const std::uint64_t listed = form.Rows.Generation();
  ID3Tags tags = ReadID3Tags(services.Files, services.Report, path, std::move(opened));
  if (form.Rows.Generation() != listed) {
    return tags;  // while a message box told of the file the folder was listed anew
  }
  form.SetTagPresence(row, Column::ID3v1, tags.V1.Present);
  form.SetTagPresence(row, Column::ID3v2, tags.V2.Present);
  if (!tags.V2.Present) {
    tags.V2 = tags.V1;
  }
  form.SetArtistAndTitle(row, tags.V2);
  return tags;
}

}  // namespace vorlane
