// The two tags of a row's MP3 file, read for the list and for the keywords.
#pragma once

#include "form/form.h"
#include "metadata/id3_tag.h"

namespace vorlane {

struct RowTags {
  ID3Tag V1;
  ID3Tag V2;  // a copy of V1 where there is no ID3v2 tag
};

// Reads both tags of the row's file and shows them in columns 2 to 5: whether each is there, and
// artist and title of the ID3v2 tag, or else of the ID3v1 tag. A reader's failure is reported and
// counts as no tag.
RowTags ReadRowTags(Form& form, Services& services, std::int32_t row);

}  // namespace vorlane
