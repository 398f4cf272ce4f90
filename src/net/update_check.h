// The check for a newer version: it fetches a small text from the vendor's server and shows it in a
// message box, as plain text, beside the version of the running program. It compares nothing.
//
// No failure is told in words: the caption of the click comes back, and that is all.
#pragma once

#include <cstdint>
#include <functional>

#include "net/ov_winsock.h"
#include "net/proxy.h"
#include "platform/clock.h"
#include "platform/message_loop.h"
#include "platform/prompter.h"
#include "platform/vendor.h"

namespace vorlane {

// What the check shows of itself.
class UpdateCheckView {
 public:
  virtual ~UpdateCheckView() = default;

  // The caption of lblUpdate. It has to be on the screen when this returns: the call that follows
  // may block.
  virtual void SetUpdateCaption(TextView caption) = 0;

  // The mouse pointer: the hourglass or the usual one.
  virtual void SetHourglass(bool shown) = 0;
};

// What the check stands on. Everything outlives it.
struct UpdateCheckServices {
  OvWinsock& Sockets;
  SocketNotices& DataArrival;  // whose owner calls UpdateCheck::DataArrival at each notice
  ProxySources& Proxy;
  Clock& Time;
  MessageLoop& Loop;
  Prompter& Prompts;
  std::function<bool()> IsConnected;
};

struct UpdateCheckSettings {
  Text Version;                  // of the running program
  Text Host = Text(VendorHost);  // an empty one switches the check off: a click then does nothing
  std::uint64_t WaitMilliseconds = 10000;
};

class UpdateCheck {
 public:
  UpdateCheck(const UpdateCheckServices& services, UpdateCheckView& view,
              UpdateCheckSettings settings);
  ~UpdateCheck() { EndCheck(); }
  UpdateCheck(const UpdateCheck&) = delete;
  UpdateCheck& operator=(const UpdateCheck&) = delete;

  // The check. Returns when an answer has been shown, the connection has ended or the time is over;
  // after that a late answer is still shown. It yields while it waits, so a second click can run
  // inside it: that one's request takes the place of the first, whose socket is forgotten open.
  void lblUpdate_Click();

  // The read step: shows what has arrived, if that is text, and closes the connection. It does
  // nothing while no answer is due.
  void DataArrival();

  // Gives up an answer that is still due, and ends the wait for it: the program is about to end.
  void EndCheck();

 private:
  void WaitForAnswer();
  int TakeSocket();

  UpdateCheckServices services_;
  UpdateCheckView& view_;
  UpdateCheckSettings settings_;
  int socket_ = 0;  // 0 while no answer is due, -1 after a failed request
};

}  // namespace vorlane
