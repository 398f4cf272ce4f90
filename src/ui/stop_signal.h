// SIGTERM and SIGINT as events: the program then closes in good order.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace vorlane {

// At most one in a program. The handlers stay in place when it goes.
class StopSignal {
 public:
  explicit StopSignal(std::function<void()> onStop);
  ~StopSignal();
  StopSignal(const StopSignal&) = delete;
  StopSignal& operator=(const StopSignal&) = delete;

 private:
  void Drain();

  std::function<void()> onStop_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vorlane
