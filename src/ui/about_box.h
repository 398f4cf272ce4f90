// frmAbout: who the program is, and the check for a newer version. It isn't modal, and closing it
// only hides it: a check goes on.
#pragma once

#include <QDialog>
#include <QPushButton>
#include <functional>

#include "net/update_check.h"
#include "ui/event_gate.h"
#include "ui/link_label.h"
#include "ui/qt_socket_notices.h"

namespace vorlane {

// What the box stands on. Everything outlives it.
struct AboutBoxServices {
  EventGate& Gate;
  OvWinsock& Sockets;
  ProxySources& Proxy;
  Clock& Time;
  MessageLoop& Loop;
  Prompter& Prompts;
  std::function<bool()> IsConnected;                // may be OvWinsock::IsConnected
  std::function<void(const QString&)> OpenAddress;  // shows a web address in the browser
};

class AboutBox final : public QDialog, private UpdateCheckView {
 public:
  // A box is destroyed only while no handler of the gate runs.
  AboutBox(const AboutBoxServices& services, const UpdateCheckSettings& settings,
           QWidget* parent = nullptr);

  // Ends a check that is waiting for its answer, so that the program can end.
  void EndCheck() { check_.EndCheck(); }

  // cmdExit, when the box has been closed: the main window is to close as well.
  std::function<void()> OnExit;

 private:
  void GiveTexts(const Text& version);
  void PlaceControls();
  void SetUpdateCaption(TextView caption) override;
  void SetHourglass(bool shown) override;

  QLabel* lblTitle_;
  QLabel* lblVersion_;
  LinkLabel* lblUrl_;
  LinkLabel* lblUpdate_;
  QPushButton* cmdOk_;
  QPushButton* cmdExit_;
  QtSocketNotices dataArrival_;
  UpdateCheck check_;
};

// Opens an address in the user's browser. An empty one opens nothing.
void OpenInBrowser(const QString& address);

}  // namespace vorlane
