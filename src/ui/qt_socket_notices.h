// Notices of a socket by the toolkit's event loop.
#pragma once

#include <QSocketNotifier>
#include <functional>

#include "net/socket_notices.h"

namespace vorlane {

class QtSocketNotices final : public SocketNotices {
 public:
  // `onNotice` is called from the event loop.
  explicit QtSocketNotices(std::function<void()> onNotice) : onNotice_(std::move(onNotice)) {}

  void Watch(int socket) override;
  void Unwatch() override;

 private:
  std::function<void()> onNotice_;
  QObject owner_;
  QSocketNotifier* notifier_ = nullptr;
};

}  // namespace vorlane
