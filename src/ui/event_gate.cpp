#include "ui/event_gate.h"

namespace vorlane {

class EventGate::Inside {
 public:
  explicit Inside(EventGate& gate) : gate_(gate) { ++gate_.depth_; }
  ~Inside() { --gate_.depth_; }
  Inside(const Inside&) = delete;
  Inside& operator=(const Inside&) = delete;

 private:
  EventGate& gate_;
};

void EventGate::Start(std::function<void()> handler) {
  const bool insidePreview = depth_ > 0 && jobs_.PreviewState != JobState::Idle &&
                             jobs_.ListingState == JobState::Idle &&
                             jobs_.BatchState == JobState::Idle;
  if (!insidePreview) {
    Run(handler);
    return;
  }
  jobs_.RequestStop();
  waiting_.push_back(std::move(handler));
}

void EventGate::Run(const std::function<void()>& handler) {
  if (closed_) {
    return;
  }
  {
    const Inside inside(*this);
    handler();
    while (depth_ == 1 && !waiting_.empty()) {
      const auto next = std::move(waiting_.front());
      waiting_.pop_front();
      next();
    }
  }
  if (depth_ == 0 && OnIdle) {
    OnIdle();
  }
}

}  // namespace vorlane
