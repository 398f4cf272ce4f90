#include "form/status_texts.h"

#include "platform/interface_texts.h"

namespace vorlane {

Text TimeTakenText(std::int32_t seconds) {
  return Text(InterfaceText(TextNumber::TimeTaken)).append(FormatElapsed(seconds));
}

Text ReadyAfterText(std::int32_t seconds) {
  return Text(InterfaceText(TextNumber::Ready)).append(u" - ").append(TimeTakenText(seconds));
}

}  // namespace vorlane
