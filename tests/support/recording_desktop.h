// A desktop that opens folders with what the test says.
#pragma once

#include <vector>

#include "platform/desktop_tools.h"

namespace vorlane {

class RecordingDesktop final : public DesktopTools {
 public:
  Text DefaultFolderHandler() override {
    ++Questions;
    return Handler;
  }
  void UpdateDesktopDatabase(TextView folder) override { Updated.emplace_back(folder); }

  Text Handler = u"org.gnome.Nautilus.desktop";
  int Questions = 0;
  std::vector<Text> Updated;
};

}  // namespace vorlane
