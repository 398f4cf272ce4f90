// Takes a fuzzer's bytes apart into the values that a target needs.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/code_page.h"
#include "platform/file_name_bytes.h"
#include "platform/text.h"

namespace vorlane {

class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  // The bytes up to the next NUL, which is dropped.
  std::string NextBytes() {
    const auto end = rest_.find('\0');
    const std::string bytes(rest_.substr(0, end));
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return bytes;
  }

  Text NextText() { return TextFromBytes(NextBytes()); }

  std::uint8_t NextNumber() {
    if (rest_.empty()) {
      return 0;
    }
    const auto number = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return number;
  }

  std::string Rest() const { return std::string(rest_); }

 private:
  std::string_view rest_;
};

}  // namespace vorlane
