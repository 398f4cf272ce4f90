#include "ui/stop_signal.h"

#include "platform/stop_signals.h"

namespace vorlane {

StopSignal::StopSignal(std::function<void()> onStop) : onStop_(std::move(onStop)) {
  const int descriptor = OpenStopSignals();
  if (descriptor < 0) {
    return;
  }
  notifier_ = std::make_unique<QSocketNotifier>(descriptor, QSocketNotifier::Read);
  QObject::connect(notifier_.get(), &QSocketNotifier::activated, [this, descriptor] {
    DrainStopSignals(descriptor);
    onStop_();
  });
}

}  // namespace vorlane
