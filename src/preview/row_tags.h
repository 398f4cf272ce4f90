// The two tags of a row's MP3 file, read for the list and for the keywords.
#pragma once

#include "form/form.h"
#include "metadata/tag_reading.h"

namespace vorlane {

// Reads both tags of the row's file and shows them in columns 2 to 5: whether each is there, and
// artist and title of the ID3v2 tag, or else of the ID3v1 tag, of which V2 is a copy then. A
// reader's failure is reported and counts as no tag. `opened` is the file, if it is open already.
ID3Tags ReadRowTags(Form& form, Services& services, std::int32_t row,
                    std::unique_ptr<OpenFile> opened = nullptr);

}  // namespace vorlane
