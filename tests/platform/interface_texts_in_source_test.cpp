// No word of the interface stands as a literal outside the table. The script tool has messages of
// its own, which are no texts of the window.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

#include "platform/code_page.h"
#include "platform/interface_texts.h"

namespace vorlane {
namespace {

namespace fs = std::filesystem;

// The string literals of C++ source text, neighbours joined as the compiler joins them. Escapes
// stay as they are written; comments and characters in single quotes are passed over.
class LiteralScanner {
 public:
  explicit LiteralScanner(std::string_view source) : rest_(source) {}

  std::vector<std::string> Literals() {
    while (!rest_.empty()) {
      if (rest_.starts_with("//")) {
        SkipBehind("\n", 0);
      } else if (rest_.starts_with("/*")) {
        SkipBehind("*/", 2);
      } else if (rest_.starts_with("R\"(")) {
        TakeRaw();
      } else if (rest_.front() == '"') {
        TakeQuoted();
      } else if (rest_.front() == '\'' && !isInNumber_) {
        TakeCharacter();
      } else {
        TakeCode();
      }
    }
    return literals_;
  }

 private:
  void SkipBehind(std::string_view end, std::size_t from) {
    const auto hit = rest_.find(end, from);
    rest_.remove_prefix(hit == std::string_view::npos ? rest_.size() : hit + end.size());
  }

  void Add(std::string_view content) {
    if (joins_) {
      literals_.back() += content;
    } else {
      literals_.emplace_back(content);
    }
    joins_ = true;
  }

  void TakeRaw() {
    const auto end = std::min(rest_.find(")\""), rest_.size());
    Add(rest_.substr(3, end - 3));
    rest_.remove_prefix(std::min(end + 2, rest_.size()));
  }

  std::size_t EndOfQuote(char quote) const {
    std::size_t end = 1;
    while (end < rest_.size() && rest_[end] != quote) {
      end += rest_[end] == '\\' ? 2 : 1;
    }
    return std::min(end, rest_.size() - 1);
  }

  void TakeQuoted() {
    const auto end = EndOfQuote('"');
    Add(rest_.substr(1, end - 1));
    rest_.remove_prefix(end + 1);
  }

  void TakeCharacter() {
    rest_.remove_prefix(EndOfQuote('\'') + 1);
    joins_ = false;
  }

  // Only blanks and the prefix of the next literal may stand between two that join.
  void TakeCode() {
    const char character = rest_.front();
    isInNumber_ = character >= '0' && character <= '9';  // where "'" parts digits
    joins_ = joins_ && (character == ' ' || character == '\n' || character == 'u');
    rest_.remove_prefix(1);
  }

  std::string_view rest_;
  std::vector<std::string> literals_;
  bool joins_ = false;
  bool isInNumber_ = false;
};

// A literal gives a text away if it is one, or holds one that is too long to be there by chance.
std::vector<std::string> TextsIn(std::string_view source) {
  constexpr std::size_t LongText = 10;
  std::vector<std::string> found;
  for (const std::string& literal : LiteralScanner(source).Literals()) {
    for (const int number : InterfaceTextNumbers()) {
      const std::string text = CodePageBytes(InterfaceText(number));
      if (text != " " && (literal == text ||
                          (text.size() >= LongText && literal.find(text) != std::string::npos))) {
        found.push_back(text);
      }
    }
  }
  return found;
}

TEST(InterfaceTextsInSource, TheScannerSeesLiterals) {
  const auto texts = [](std::string_view source) { return TextsIn(source); };
  using Found = std::vector<std::string>;
  EXPECT_EQ(texts(R"(Show(u"Ready");)"), Found{"Ready"});
  EXPECT_EQ(texts(R"(Show(QStringLiteral("Undo complete"));)"), Found{"Undo complete"});
  EXPECT_EQ(texts("u\"Ready - Time taken: \""), Found{"Time taken: "});
  EXPECT_EQ(texts("u\"Undo \"\n    u\"complete\""), Found{"Undo complete"});
  EXPECT_EQ(texts("'\"', \"Yes\""), Found{"Yes"});
  EXPECT_EQ(texts("10'000, \"Yes\", 20'000"), Found{"Yes"});
  EXPECT_EQ(texts("\"\\\"\", \"No\""), Found{"No"});
  EXPECT_EQ(texts("// \"Ready\"\n/* \"Ready\" */ \"Readying\", \"Undo\" + \"complete\""),
            Found{"Undo"});
}

TEST(InterfaceTextsInSource, OnlyTheTableHoldsThem) {
  const fs::path root = fs::path(VORLANE_SOURCE_DIR) / "src";
  std::size_t files = 0;
  for (const auto& entry : fs::recursive_directory_iterator(root)) {
    const fs::path name = entry.path().lexically_relative(root);
    if (!entry.is_regular_file() || *name.begin() == "cli" ||
        name == "platform/interface_texts.cpp") {
      continue;
    }
    std::ifstream file(entry.path(), std::ios::binary);
    const std::string source{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(TextsIn(source), std::vector<std::string>{}) << name;
    ++files;
  }
  EXPECT_GT(files, 100U);
}

}  // namespace
}  // namespace vorlane
