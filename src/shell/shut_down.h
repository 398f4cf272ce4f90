// What is kept, and what is cleared away, when the main window goes.
#pragma once

#include "form/form.h"
#include "shell/stored_values.h"

namespace vorlane {

// What only the window knows of itself.
class ClosingWindow {
 public:
  virtual ~ClosingWindow() = default;

  virtual Twips ColumnWidth(Column column) = 0;
  virtual bool IsMaximized() = 0;
  virtual NormalPlace Placement() = 0;  // asked for unless it is maximized
};

struct ShutDownServices {
  FileSystem& Files;
  vorlane::Settings& Settings;
  vorlane::Registry& Registry;
};

// Saves the settings of window and list, writes the verb on folders or removes it as the setting
// "Context" says, and deletes the journal of the last run, so that undo doesn't outlive the
// program. Nothing that fails is reported or keeps the rest from being done. `programPath` is that
// of FullProgramPath.
void SaveSettingsAtExit(Form& form, ClosingWindow& window, const ShutDownServices& services,
                        TextView programPath);

}  // namespace vorlane
