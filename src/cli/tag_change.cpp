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

ExitStatus ChangeTags(const std::string& file, bool asJson,
                      const std::function<void(Session&, FailureReport&, TextView path)>& change) {
  CatchStopSignals();
  Session session;
  const Text path = FileArgument(session.Files, file);
  KeptReport report;
  ReportingFailures(report, u"", u"", u"", [&] { change(session, report, path); });
  if (report.First) {
    if (asJson) {
      std::cout << WriteJson({{"error", ErrorToJson(*report.First)}}) << '\n';
    }
    PrintMessage(file + ": " + DisplayUtf8(report.First->Description()) + " (error " +
                 std::to_string(report.First->Number()) + ")");
    return ExitStatus::Refused;
  }
  if (asJson) {
    const FileTags tags = ReadFileTags(session.Files, session.Report, path);
    std::cout << WriteJson(FileTagsToJson(file, tags)) << '\n';
  }
  return session.Status();
}

}  // namespace vorlane
