// Prints each row of a run as the run finishes it.
#pragma once

#include <memory>

#include "batch/batch_run.h"
#include "cli/command_world.h"
#include "cli/row_output.h"

namespace vorlane {

class RunPrinter final : public RunListener {
 public:
  // `all` prints unchanged rows too.
  RunPrinter(CommandWorld& world, bool asJson, bool all);

  void RowStarted(std::int32_t row) override;
  void RowFinished(const RowOutcome& outcome) override;

  // A row that was asked for has gone from the list before its turn came.
  void RowVanished(TextView name);

  // Ends the output; a summary goes to standard error, with JSON only if the run was stopped. True
  // if nothing was refused.
  bool Finish(bool stopped);

 private:
  struct Verdict {
    bool Done = false;
    bool Renamed = false;
    Text Reason{};            // what was refused; empty if nothing was
    bool ReasonTold = false;  // a message has told it already
  };

  Verdict VerdictOn(const RowOutcome& outcome);
  void PrintJson(const RowOutcome& outcome, const Verdict& verdict);
  void PrintPlain(const RowOutcome& outcome, const Verdict& verdict);

  CommandWorld& world_;
  std::unique_ptr<JsonListPrinter> json_;
  const bool all_;
  std::size_t rows_ = 0;
  std::size_t changes_ = 0;
  std::size_t refusals_ = 0;
};

}  // namespace vorlane
