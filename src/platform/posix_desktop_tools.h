// The desktop's own command line tools. One that isn't installed, fails or takes too long is as
// good as none.
#pragma once

#include <chrono>

#include "platform/desktop_tools.h"

namespace vorlane {

class PosixDesktopTools final : public DesktopTools {
 public:
  // `patience` is how long a tool may take.
  explicit PosixDesktopTools(std::chrono::milliseconds patience = std::chrono::seconds(3))
      : patience_(patience) {}

  Text DefaultFolderHandler() override;
  void UpdateDesktopDatabase(TextView folder) override;

 private:
  std::chrono::milliseconds patience_;
};

}  // namespace vorlane
