// The core's seams as a console program fills them: messages and progress go to standard error,
// questions get the answer for when nobody can be asked.
#pragma once

#include <utility>

#include "form/form.h"
#include "platform/failure.h"
#include "platform/prompter.h"

namespace vorlane {

// Prints what went wrong, one line each, and remembers that something did.
class TroubleLog {
 public:
  void Tell(TextView message);
  bool HasAny() const { return any_; }

  // The first thing that was told of since the last call; empty if there was none.
  Text Take() { return std::exchange(first_, Text()); }

 private:
  bool any_ = false;
  Text first_;
};

class ConsoleReport final : public FailureReport {
 public:
  explicit ConsoleReport(TroubleLog& troubles) : troubles_(troubles) {}
  void ReportError(TextView module, TextView procedure, TextView extra,
                   const RunError& error) override;

 private:
  TroubleLog& troubles_;
};

class ConsolePrompter final : public Prompter {
 public:
  explicit ConsolePrompter(TroubleLog& troubles) : troubles_(troubles) {}
  void Show(BoxIcon icon, TextView title, TextView text) override;
  BoxAnswer AskYesNo(BoxIcon icon, TextView title, TextView text, BoxAnswer unasked) override;

 private:
  TroubleLog& troubles_;
};

// Yields by looking whether the user wants to stop; a stop signal acts as a press of Stop.
class ConsoleLoop final : public MessageLoop {
 public:
  void Attach(JobStates& jobs) { jobs_ = &jobs; }
  void Yield() override;
  void YieldBlocking(int milliseconds) override;

 private:
  JobStates* jobs_ = nullptr;
};

// Shows the progress of a long job where standard error is a terminal.
class ConsoleProgress final : public FormView {
 public:
  explicit ConsoleProgress(Clock& clock);
  ~ConsoleProgress() override;
  ConsoleProgress(const ConsoleProgress&) = delete;
  ConsoleProgress& operator=(const ConsoleProgress&) = delete;

  void Attach(const Form& form) { form_ = &form; }
  void ProgressChanged() override;
  void Clear();

 private:
  Clock& clock_;
  const Form* form_ = nullptr;
  const bool shown_;
  bool lineIsDirty_ = false;
  std::uint64_t started_;
  std::uint64_t lastShown_ = 0;
};

}  // namespace vorlane
