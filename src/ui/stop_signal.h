// A signal that asks the program to end, as an event: the program then closes in good order.
#pragma once

#include <QSocketNotifier>
#include <functional>
#include <memory>

namespace vorlane {

// At most one in a program.
class StopSignal {
 public:
  explicit StopSignal(std::function<void()> onStop);

 private:
  std::function<void()> onStop_;
  std::unique_ptr<QSocketNotifier> notifier_;
};

}  // namespace vorlane
