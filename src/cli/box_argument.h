// "N=TEXT": the text of option box N.
#pragma once

#include <string>

#include "platform/text.h"

namespace vorlane {

struct BoxArgument {
  // Throws CommandError (Usage) unless N is 1 to 6 and "=" follows.
  explicit BoxArgument(const std::string& argument);

  std::size_t Index = 0;  // from 0
  Text Content;
};

}  // namespace vorlane
