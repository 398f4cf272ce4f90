#include "catalogue/operation_keys.h"

#include <cmath>
#include <cstddef>

#include "platform/numbers.h"

namespace vorlane {
namespace {

constexpr TextView wildcardKey = u"Wildcard:";
constexpr TextView registryPrefix = u"Registry(";
constexpr int lastBox = 5;  // boxes count from 0

// Reads one key after another from a code text. The cursor stays where it is when a key is missing.
class KeyReader {
 public:
  explicit KeyReader(TextView code) : code_(code) {}

  // The trimmed value of the next such line.
  std::optional<Text> Next(TextView key) {
    const auto found = code_.find(key, cursor_);
    if (found == TextView::npos) {
      return std::nullopt;
    }
    const auto start = found + key.size();
    const auto end = code_.find(LineEnd, start);
    if (end == TextView::npos) {
      return std::nullopt;
    }
    cursor_ = end;
    return Text(Trim(code_.substr(start, end - start)));
  }

  // What the wildcard is to hold, as OperationKeys tells it.
  std::optional<Text> Wildcard() {
    const auto found = code_.find(wildcardKey);
    if (found == TextView::npos) {
      return u"*.*";
    }
    const auto start = found + wildcardKey.size();
    const auto end = code_.find(LineEnd, start);
    if (end == TextView::npos) {
      // The cursor would be in front of the text, where no search can begin.
      throw RunError(ErrorNumber::InvalidArgument);
    }
    cursor_ = end;
    if (end == start) {
      return std::nullopt;
    }
    return Text(Trim(code_.substr(start, end - start)));
  }

 private:
  TextView code_;
  std::size_t cursor_ = 0;
};

// Index of the last box that the "Available Boxes:" value asks for, below 0 for none.
int LastBox(TextView count) {
  const auto number = ReadNumber(count);
  if (!number) {
    throw RunError(ErrorNumber::TypeMismatch);
  }
  // Rounded after the subtraction, ties to the even one: "2.5" shows three boxes, "1.5" one.
  const double last = std::nearbyint(*number - 1);
  if (last < 0) {
    return -1;
  }
  return last > lastBox ? lastBox : static_cast<int>(last);
}

// Everything behind the wildcard. Returns early where a missing key ends the reading.
void ReadBoxes(KeyReader& reader, OperationKeys& keys) {
  const auto count = reader.Next(u"Available Boxes:");
  if (!count) {
    return;
  }
  const int last = LastBox(*count);
  for (int box = 0; box <= last; ++box) {
    keys.Boxes.emplace_back();  // shown even if its caption is missing
    auto caption = reader.Next(u"Box Name:");
    if (!caption) {
      return;
    }
    keys.Boxes.back().Caption = std::move(*caption);
  }
  for (auto& box : keys.Boxes) {
    auto display = reader.Next(u"Box Display:");
    if (!display) {
      break;
    }
    box.BoxCode = std::move(*display);
    box.Remembered = ReadRegistryBox(box.BoxCode);
  }
  keys.ReachedListing = true;
  for (auto& box : keys.Boxes) {
    auto toolTip = reader.Next(u"Box ToolTip:");
    if (!toolTip) {
      break;
    }
    box.ToolTip = std::move(*toolTip);
  }
  for (auto& box : keys.Boxes) {
    auto check = reader.Next(u"Box Check:");
    if (!check) {
      break;
    }
    box.CheckCaption = std::move(*check);
  }
}

}  // namespace

std::optional<RegistryBox> ReadRegistryBox(TextView boxCode) {
  if (!boxCode.starts_with(registryPrefix)) {
    return std::nullopt;
  }
  if (boxCode.size() == registryPrefix.size()) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  boxCode.remove_prefix(registryPrefix.size());
  boxCode.remove_suffix(1);
  const auto bar = boxCode.find(u'|', 1);
  if (bar == TextView::npos) {
    return RegistryBox{Text(boxCode), {}};
  }
  return RegistryBox{Text(boxCode.substr(0, bar)), Text(boxCode.substr(bar + 1))};
}

OperationKeys ReadOperationKeys(TextView code) {
  OperationKeys keys;
  try {
    KeyReader reader(code);
    keys.HelpMessage = reader.Next(u"Help Message:");
    if (keys.HelpMessage) {
      keys.Wildcard = reader.Wildcard();
      ReadBoxes(reader, keys);
    }
  } catch (const RunError& failure) {
    keys.Failure = failure;
  }
  return keys;
}

}  // namespace vorlane
