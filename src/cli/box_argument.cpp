#include "cli/box_argument.h"

#include "cli/exit_status.h"
#include "form/option_box.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

std::optional<std::size_t> BoxIndexOf(std::string_view number) {
  if (number.size() != 1 || number[0] < '1' || number[0] >= '1' + OptionBoxCount) {
    return std::nullopt;
  }
  return static_cast<std::size_t>(number[0] - '1');
}

BoxArgument::BoxArgument(const std::string& argument) {
  const auto equals = argument.find('=');
  const auto index = BoxIndexOf(argument.substr(0, equals));
  if (equals == std::string::npos || !index) {
    throw CommandError(ExitStatus::Usage, "--box " + argument + ": expected N=TEXT with N 1 to 6");
  }
  Index = *index;
  Content = TextFromBytes(argument.substr(equals + 1));
}

}  // namespace vorlane
