#include "shell/registry_text.h"

#include <charconv>
#include <optional>

#include "platform/file_name_bytes.h"
#include "shell/registry_escapes.h"

namespace vorlane {

namespace {

constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";

std::optional<std::uint32_t> ReadNumberValue(TextView text) {
  const auto bytes = BytesFromText(text);
  std::uint32_t number = 0;
  const char* end = bytes ? bytes->data() + bytes->size() : nullptr;
  if (!bytes || bytes->empty()) {
    return std::nullopt;
  }
  const auto result = std::from_chars(bytes->data(), end, number);
  return result.ec == std::errc() && result.ptr == end ? std::optional(number) : std::nullopt;
}

std::optional<std::string> ReadBinaryValue(TextView text) {
  if (text.size() % 2 != 0) {
    return std::nullopt;
  }
  std::string bytes;
  for (std::size_t i = 0; i < text.size(); i += 2) {
    const auto byte = ReadHex(text.substr(i, 2));
    if (!byte) {
      return std::nullopt;
    }
    bytes.push_back(static_cast<char>(*byte));
  }
  return bytes;
}

std::optional<RegistryValue> ReadValue(TextView type, TextView text) {
  if (type == u"sz") {
    return Unescape(text);
  }
  if (type == u"dword") {
    return ReadNumberValue(text);
  }
  if (type == u"binary") {
    return ReadBinaryValue(text);
  }
  return std::nullopt;
}

// False if the line isn't name=type:text.
bool ReadValueLine(TextView line, RegistryKey& key) {
  const std::size_t equals = EndOfName(line);
  if (equals == TextView::npos || line.starts_with(u'#')) {
    return false;
  }
  const TextView value = line.substr(equals + 1);
  const std::size_t colon = value.find(u':');
  if (colon == TextView::npos) {
    return false;
  }
  auto read = ReadValue(value.substr(0, colon), value.substr(colon + 1));
  if (!read) {
    return false;
  }
  key.SetValue(Unescape(line.substr(0, equals)), std::move(*read));
  return true;
}

class Reader {
 public:
  RegistryTree Read(std::string_view bytes) {
    while (!bytes.empty()) {
      const std::size_t end = std::min(bytes.find('\n'), bytes.size());
      std::string_view line = bytes.substr(0, end);
      bytes.remove_prefix(std::min(end + 1, bytes.size()));
      while (line.starts_with(ByteOrderMark)) {
        line.remove_prefix(ByteOrderMark.size());
      }
      while (line.ends_with('\r')) {
        line.remove_suffix(1);
      }
      TakeLine(line);
    }
    return std::move(tree_);
  }

 private:
  void TakeLine(std::string_view bytes) {
    if (bytes.find_first_not_of(" \t") == std::string_view::npos) {
      return;
    }
    if (bytes.starts_with('[')) {
      TakeHeader(bytes);
    } else if (key_ == nullptr) {
      tree_.KeptSections.emplace_back(bytes);
    } else if (key_ == &tree_.Root || !ReadValueLine(TextFromBytes(bytes), *key_)) {
      key_->KeptLines.emplace_back(bytes);
    }
  }

  void TakeHeader(std::string_view bytes) {
    std::string_view header = bytes;
    header.remove_suffix(header.size() - 1 - header.find_last_not_of(" \t"));
    const bool isClosed = header.ends_with(']');
    const Text path = TextFromBytes(header.substr(1, header.size() - (isClosed ? 2 : 1)));
    const bool hasName = path.find_first_not_of(u'\\') != Text::npos;
    key_ = isClosed && hasName ? tree_.Make(path) : nullptr;
    if (key_ == nullptr) {
      tree_.KeptSections.emplace_back(bytes);
    }
  }

  RegistryTree tree_;
  RegistryKey* key_ = &tree_.Root;  // null in a section that can't be read
};

Text ValueText(const RegistryValue& value) {
  if (const auto* text = std::get_if<Text>(&value)) {
    return u"sz:" + Escape(*text);
  }
  if (const auto* number = std::get_if<std::uint32_t>(&value)) {
    return u"dword:" + DecimalText(*number);
  }
  Text text = u"binary:";
  for (const char byte : std::get<std::string>(value)) {
    AppendHex(text, static_cast<std::uint8_t>(byte), 2);
  }
  return text;
}

class Writer {
 public:
  std::string Write(const RegistryTree& tree) {
    AddLines(tree.Root.KeptLines);
    for (const RegistryKey& key : tree.Root.Subkeys) {
      AddKey(key, key.Name);
    }
    if (!tree.KeptSections.empty()) {
      AddBlankLine();
      AddLines(tree.KeptSections);
    }
    return std::move(bytes_);
  }

 private:
  void AddKey(const RegistryKey& key, const Text& path) {
    // A key that has only subkeys exists by theirs.
    if (key.Subkeys.empty() || !key.Values.empty() || !key.KeptLines.empty()) {
      AddBlankLine();
      AddLine(Text(u"[").append(path).append(u"]"));
      AddLines(key.KeptLines);
      for (const auto& [name, value] : key.Values) {
        AddLine(EscapeName(name).append(u"=").append(ValueText(value)));
      }
    }
    for (const RegistryKey& subkey : key.Subkeys) {
      AddKey(subkey, Text(path).append(u"\\").append(subkey.Name));
    }
  }

  void AddBlankLine() { bytes_.append(bytes_.empty() ? "" : "\n"); }

  // Nothing is left in these that has no bytes.
  void AddLine(const Text& line) { bytes_.append(BytesFromText(line).value()).push_back('\n'); }

  void AddLines(const std::vector<std::string>& lines) {
    for (const std::string& line : lines) {
      bytes_.append(line).push_back('\n');
    }
  }

  std::string bytes_;
};

}  // namespace

RegistryTree ReadRegistryText(std::string_view bytes) {
  return Reader().Read(bytes);
}

std::string WriteRegistryText(const RegistryTree& tree) {
  return Writer().Write(tree);
}

}  // namespace vorlane
