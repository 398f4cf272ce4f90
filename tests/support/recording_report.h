// Collects what a routine reports, one line a report.
#pragma once

#include <vector>

#include "platform/failure.h"

namespace vorlane {

class RecordingReport final : public FailureReport {
 public:
  void ReportError(TextView module, TextView procedure, TextView extra,
                   const RunError& error) override {
    Reports.push_back({Text(module), Text(procedure), Text(extra), error.Number()});
  }

  struct Report {
    Text Module;
    Text Procedure;
    Text Extra;
    int Number = 0;
    bool operator==(const Report&) const = default;
  };
  std::vector<Report> Reports;
};

}  // namespace vorlane
