#include "cli/tag_change.h"

#include <iostream>
#include <optional>

#include "cli/error_json.h"
#include "cli/file_argument.h"
#include "cli/file_tags.h"
#include "cli/message.h"
#include "platform/console.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

// Keeps the first failure.
class KeptReport final : public FailureReport {
 public:
  void ReportError(TextView /*module*/, TextView /*procedure*/, TextView /*extra*/,
                   const RunError& error) override {
    if (!First) {
      First = error;
    }
  }

  std::optional<RunError> First;
};

}  // namespace

ExitStatus ChangeTags(
    const std::string& file, bool asJson,
    const std::function<void(CommandWorld&, FailureReport&, TextView path)>& change) {
  CatchStopSignals();
  CommandWorld world;
  const Text path = FileArgument(world.Files, file);
  KeptReport report;
  ReportingFailures(report, u"", u"", u"", [&] { change(world, report, path); });
  if (report.First) {
    if (asJson) {
      std::cout << WriteJson({{"error", ErrorToJson(*report.First)}}) << '\n';
    }
    PrintMessage(file + ": " + DisplayUtf8(report.First->Description()) + " (error " +
                 std::to_string(report.First->Number()) + ")");
    return ExitStatus::Refused;
  }
  if (asJson) {
    const FileTags tags = ReadFileTags(world.Files, world.Report, path);
    std::cout << WriteJson(FileTagsToJson(file, tags)) << '\n';
  }
  return world.Status();
}

}  // namespace vorlane
