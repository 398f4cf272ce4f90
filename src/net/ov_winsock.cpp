#include "net/ov_winsock.h"

#include "net/http_request.h"
#include "platform/code_page.h"

namespace vorlane {

int OvWinsock::SendHttpRequest(TextView url, TextView method, SocketNotices& window, TextView proxy,
                               TextView body) {
  const auto target = SplitUrl(url, proxy);
  if (!target) {
    CancelBlocking();
    return -1;
  }
  int socket = ConnectToHost(target->Host, target->Port, window);
  if (socket == -1) {
    return -1;
  }
  SocketSend(socket, HttpRequestText(*target, method, body));
  if (socket == -1) {
    window.Unwatch();
  }
  return socket;
}

void OvWinsock::SocketSend(int& socket, TextView text) {
  SocketSend(socket, CodePageBytes(text));
}

}  // namespace vorlane
