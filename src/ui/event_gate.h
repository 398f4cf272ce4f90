// The one door through which the window's events reach the rules. It knows how deep the program
// stands in handlers: a long job yields to the message loop, and the handlers of the events that
// come then run inside it.
#pragma once

#include <deque>
#include <functional>

#include "form/job_states.h"

namespace vorlane {

class EventGate {
 public:
  explicit EventGate(JobStates& jobs) : jobs_(jobs) {}

  // A handler that may begin a job. Inside a preview it could only wait for a preview that can't go
  // on while it waits; so the preview is asked to stop and the handler runs right behind it. Inside
  // any other job it runs at once, and finds out for itself that it has to do nothing.
  void Start(std::function<void()> handler);

  // A handler that runs at once, wherever the program stands.
  void Run(const std::function<void()>& handler);

  bool IsIdle() const { return depth_ == 0; }

  // What waits behind a preview is forgotten.
  void ForgetWaiting() { waiting_.clear(); }

  // From here on no handler runs.
  void Close() { closed_ = true; }

  // Called whenever the outermost handler has returned and nothing waits behind it.
  std::function<void()> OnIdle;

 private:
  class Inside;

  JobStates& jobs_;
  int depth_ = 0;
  bool closed_ = false;
  std::deque<std::function<void()>> waiting_;
};

}  // namespace vorlane
