// A tag record as JSON: {"present":true,"artist":"","title":"","album":"","track":"00",
// "comment":"","year":"","genre":0,"unicode":false}.
#pragma once

#include "cli/json_text.h"
#include "metadata/id3_tag.h"

namespace vorlane {

Json TagToJson(const ID3Tag& tag);

// Fields that aren't there keep what an absent tag has. Throws CommandError (Usage) for a field of
// the wrong kind.
ID3Tag TagOfJson(const Json& object);

}  // namespace vorlane
