#include "cli/console_form.h"

#include <chrono>
#include <iostream>
#include <thread>

#include "cli/message.h"
#include "platform/console.h"
#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

// A job that ends sooner needs no progress, and a line that changes faster can't be read.
constexpr std::uint64_t QuietMilliseconds = 500;
constexpr std::uint64_t RefreshMilliseconds = 100;

}  // namespace

void TroubleLog::Tell(TextView message) {
  PrintMessage(message);
  if (first_.empty()) {
    first_ = message;
  }
  any_ = true;
}

void ConsoleReport::ReportError(TextView /*module*/, TextView procedure, TextView extra,
                                const RunError& error) {
  Text message(procedure);
  if (!extra.empty()) {
    message.append(u" (").append(extra).append(u")");
  }
  message.append(u": ").append(error.Description());
  message.append(u" (error ").append(DecimalText(error.Number())).append(u")");
  troubles_.Tell(message);
}

void ConsolePrompter::Show(BoxIcon icon, TextView title, TextView text) {
  Text line(title);
  line.append(line.empty() ? u"" : u": ").append(text);
  ReplaceAll(line, u"\r\n\r\n", u"\r\n");
  ReplaceAll(line, u"\r\n", u" ");
  ReplaceAll(line, u"\n", u" ");
  if (icon == BoxIcon::Exclamation || icon == BoxIcon::Stop) {
    troubles_.Tell(line);
  } else {
    PrintMessage(line);
  }
}

BoxAnswer ConsolePrompter::AskYesNo(BoxIcon icon, TextView title, TextView text,
                                    BoxAnswer unasked) {
  Show(icon, title, text);
  return unasked;
}

void ConsoleLoop::Yield() {
  if (jobs_ != nullptr && StopSignalled()) {
    jobs_->RequestStop();
  }
}

void ConsoleLoop::YieldBlocking(int milliseconds) {
  Yield();
  std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

ConsoleProgress::ConsoleProgress(Clock& clock)
    : clock_(clock), shown_(StandardErrorIsTerminal()), started_(clock.Milliseconds()) {}

ConsoleProgress::~ConsoleProgress() {
  Clear();
}

void ConsoleProgress::ProgressChanged() {
  if (!shown_ || form_ == nullptr) {
    return;
  }
  const auto now = clock_.Milliseconds();
  if (now - started_ < QuietMilliseconds || now - lastShown_ < RefreshMilliseconds) {
    return;
  }
  lastShown_ = now;
  std::cerr << "\r\x1b[K" << form_->Progress << "% " << DisplayUtf8(form_->Status) << std::flush;
  lineIsDirty_ = true;
}

void ConsoleProgress::Clear() {
  if (lineIsDirty_) {
    std::cerr << "\r\x1b[K" << std::flush;
    lineIsDirty_ = false;
  }
}

}  // namespace vorlane
