#include "ui/qt_socket_notices.h"

#include <utility>

namespace vorlane {

void QtSocketNotices::Watch(int socket) {
  Unwatch();
  notifier_ = new QSocketNotifier(socket, QSocketNotifier::Read, &owner_);
  QObject::connect(notifier_, &QSocketNotifier::activated, &owner_, [this] { onNotice_(); });
}

void QtSocketNotices::Unwatch() {
  if (notifier_ != nullptr) {
    // It may be the one that is giving notice now.
    notifier_->setEnabled(false);
    std::exchange(notifier_, nullptr)->deleteLater();
  }
}

}  // namespace vorlane
