// The common report of a failure: a message box for the user, and a text for the maker of the
// program with the state of the run, on the clipboard and in a file of its own.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "form/form.h"
#include "platform/clipboard.h"
#include "platform/failure.h"
#include "shell/settings.h"

namespace vorlane {

// What the program is doing. Whatever can't be had is left out.
struct RunValues {
  std::optional<std::uint64_t> ProgramSize{};    // of the program's file, in bytes
  std::optional<std::int32_t> ScreenWidth{};     // in pixels
  std::optional<std::int32_t> ScreenHeight{};    // in pixels
  std::optional<std::int32_t> ListCount{};       // rows
  std::optional<std::int32_t> ListColCount{};    // columns
  std::optional<std::int32_t> OperationIndex{};  // of the selected operation
  Text OperationText{};
  Text CurrentPath{};
  Text CurrentFile{};  // of the selected row, and what is proposed for it
  Text CurrentPreview{};
};

// What a form tells of them: all but program, screen and the text of the operation.
RunValues RunValuesOf(const Form& form);

// The files' folders, with their trailing separators.
struct ErrorLogFolders {
  Text Program;
  Text Fallback;  // made and used where the program's folder takes no file
};

class ErrorLog final : public FailureReport {
 public:
  struct Services {
    Prompter& Prompts;
    vorlane::Clipboard& Clipboard;
    FileSystem& Files;
    Clock& Time;
    vorlane::Settings& Settings;
  };

  ErrorLog(const Services& services, ErrorLogFolders folders)
      : services_(services), folders_(std::move(folders)) {}

  // Where the run's values come from, once there is a run. What it throws is passed over.
  void SetRunValues(std::function<RunValues()> values) { values_ = std::move(values); }

  void ReportError(TextView module, TextView procedure, TextView extra,
                   const RunError& error) override;

  // Each step is tried: a clipboard or a file that can't be had is passed over. The file has the
  // second of the moment in its name; one that has this name already is replaced.
  void WriteErrorLog(TextView message);

 private:
  Text DiagnosticText(TextView message);
  void WriteFile(TextView text);

  Services services_;
  ErrorLogFolders folders_;
  std::function<RunValues()> values_;
};

}  // namespace vorlane
