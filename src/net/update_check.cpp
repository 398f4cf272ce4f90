#include "net/update_check.h"

#include <algorithm>
#include <utility>

#include "net/socket_calls.h"
#include "platform/code_page.h"
#include "platform/interface_texts.h"

namespace vorlane {

namespace {

constexpr std::size_t BufferSize = 8192;

// What a reader may see of the bytes: not the headers. Headers that arrive alone give no text.
std::string_view WithoutHeaders(std::string_view bytes) {
  constexpr std::string_view HeadersEnd = "\r\n\r\n";
  if (!bytes.starts_with("HTTP/")) {
    return bytes;
  }
  const auto end = bytes.find(HeadersEnd);
  return end == std::string_view::npos ? std::string_view() : bytes.substr(end + HeadersEnd.size());
}

bool IsControlCharacter(char16_t character) {
  const bool control = character < 0x20 || (character >= 0x7F && character < 0xA0);
  return control && character != u'\t' && character != u'\r' && character != u'\n';
}

// The text comes from outside: nothing in it but line ends and tabs may act on the box.
Text HarmlessText(std::string_view bytes) {
  Text text = TextFromCodePage(bytes);
  std::replace_if(text.begin(), text.end(), IsControlCharacter, u' ');
  return text;
}

}  // namespace

UpdateCheck::UpdateCheck(const UpdateCheckServices& services, UpdateCheckView& view,
                         UpdateCheckSettings settings)
    : services_(services), view_(view), settings_(std::move(settings)) {}

void UpdateCheck::lblUpdate_Click() {
  if (settings_.Host.empty()) {
    return;
  }
  if (!services_.IsConnected() &&
      services_.Prompts.AskYesNo(BoxIcon::Question, ApplicationTitle,
                                 InterfaceText(TextNumber::AskCheckWithoutConnection),
                                 BoxAnswer::No) != BoxAnswer::Yes) {
    return;
  }
  view_.SetUpdateCaption(InterfaceText(TextNumber::Checking));
  view_.SetHourglass(true);
  // Nobody reads the socket of an earlier check from now on, even if this request fails.
  services_.DataArrival.Unwatch();
  Text url = settings_.Host;
  url.append(u"/").append(VendorUpdateFile);
  socket_ = services_.Sockets.SendHttpRequest(url, u"GET", services_.DataArrival,
                                              GetProxy(services_.Proxy), {});
  WaitForAnswer();
  view_.SetUpdateCaption(InterfaceText(TextNumber::CheckForUpdate));
  view_.SetHourglass(false);
}

void UpdateCheck::WaitForAnswer() {
  const std::uint64_t start = services_.Time.Milliseconds();
  while (socket_ > 0) {
    const std::uint64_t elapsed = services_.Time.Milliseconds() - start;
    if (elapsed >= settings_.WaitMilliseconds) {
      return;
    }
    services_.Loop.YieldBlocking(static_cast<int>(settings_.WaitMilliseconds - elapsed));
  }
}

void UpdateCheck::DataArrival() {
  if (socket_ <= 0) {
    return;
  }
  const ReceivedBytes received = ReceiveBytes(socket_, BufferSize);
  if (received.Ended) {
    EndCheck();
    return;
  }
  const Text text = HarmlessText(WithoutHeaders(received.Bytes));
  if (text.empty()) {
    return;
  }
  // The box runs the message loop: a second part of the answer must find nobody who reads it.
  const int socket = TakeSocket();
  Text title(ApplicationTitle);
  title.append(u" ").append(InterfaceText(TextNumber::Version)).append(settings_.Version);
  services_.Prompts.Show(BoxIcon::Information, title, text);
  CloseSocket(socket);
  services_.Sockets.CancelBlocking();
}

void UpdateCheck::EndCheck() {
  if (socket_ > 0) {
    CloseSocket(TakeSocket());
    services_.Sockets.CancelBlocking();
  }
}

int UpdateCheck::TakeSocket() {
  services_.DataArrival.Unwatch();
  return std::exchange(socket_, 0);
}

}  // namespace vorlane
