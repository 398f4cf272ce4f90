#include "platform/program_version.h"

namespace vorlane {

Text VersionText() {
  Text version = AsciiText(VORLANE_VERSION);
  const auto secondPoint = version.find(u'.', version.find(u'.') + 1);
  return version.erase(secondPoint, 1);
}

}  // namespace vorlane
