#include "cli/box_argument.h"

#include "cli/exit_status.h"
#include "form/option_box.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

BoxArgument::BoxArgument(const std::string& argument) {
  if (argument.size() < 2 || argument[1] != '=' || argument[0] < '1' ||
      argument[0] >= '1' + OptionBoxCount) {
    throw CommandError(ExitStatus::Usage, "--box " + argument + ": expected N=TEXT with N 1 to 6");
  }
  Index = static_cast<std::size_t>(argument[0] - '1');
  Content = TextFromBytes(argument.substr(2));
}

}  // namespace vorlane
