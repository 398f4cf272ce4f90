// What a Linux desktop knows about programs and files.
#pragma once

#include "platform/text.h"

namespace vorlane {

class DesktopTools {
 public:
  virtual ~DesktopTools() = default;

  // The file name of the desktop entry that opens folders; empty if there is none, or nobody can
  // tell.
  virtual Text DefaultFolderHandler() = 0;

  // The desktop entries in the folder have changed.
  virtual void UpdateDesktopDatabase(TextView folder) = 0;
};

}  // namespace vorlane
