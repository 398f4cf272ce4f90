// "N=TEXT": the text of option box N.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace vorlane {

// "1" to "6" as an index from 0; nothing for any other text.
std::optional<std::size_t> BoxIndexOf(std::string_view number);

struct BoxArgument {
  // Throws CommandError (Usage) unless N is 1 to 6 and "=" follows.
  explicit BoxArgument(const std::string& argument);

  std::size_t Index = 0;  // from 0
  Text Content;
};

}  // namespace vorlane
