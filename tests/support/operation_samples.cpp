#include "support/operation_samples.h"

#include <gtest/gtest.h>

#include <fstream>
#include <stdexcept>
#include <string_view>

namespace vorlane {
namespace {

// One line as words; a quoted text is a word that says so.
class Words {
 public:
  explicit Words(std::string_view line) : rest_(line) {}

  bool AtEnd() {
    SkipBlanks();
    return rest_.empty();
  }

  bool Take(std::string_view word) {
    SkipBlanks();
    if (!rest_.starts_with(word)) {
      return false;
    }
    rest_.remove_prefix(word.size());
    return true;
  }

  std::string Word() {
    SkipBlanks();
    const auto end = rest_.find_first_of(" }");
    std::string word(rest_.substr(0, end));
    rest_.remove_prefix(word.size());
    return word;
  }

  int Number() { return std::stoi(Word()); }

  // "\xNN" stands for a byte; a backslash in front of anything else for that.
  std::string Quoted() {
    if (!Take("\"")) {
      throw std::runtime_error("a quoted text is missing");
    }
    std::string text;
    while (!rest_.empty() && rest_[0] != '"') {
      if (rest_.starts_with("\\x")) {
        text += static_cast<char>(std::stoi(std::string(rest_.substr(2, 2)), nullptr, 16));
        rest_.remove_prefix(4);
        continue;
      }
      if (rest_[0] == '\\') {
        rest_.remove_prefix(1);
      }
      text += rest_.at(0);
      rest_.remove_prefix(1);
    }
    rest_.remove_prefix(1);
    return text;
  }

 private:
  void SkipBlanks() {
    while (!rest_.empty() && rest_[0] == ' ') {
      rest_.remove_prefix(1);
    }
  }

  std::string_view rest_;
};

SampleTraits ReadTraits(Words& words) {
  SampleTraits traits;
  std::optional<TagFields>* tag = nullptr;
  while (!words.Take("}")) {
    if (words.AtEnd()) {
      throw std::runtime_error("a closing brace is missing");
    }
    const std::string word = words.Word();
    if (word == "v1" || word == "v2") {
      tag = word == "v1" ? &traits.V1 : &traits.V2;
      *tag = TagFields();
    } else if (word == "none" && tag != nullptr) {
      (**tag)["none"];
    } else if (word == "exif") {
      const int number = words.Number();
      traits.Exif[number] = words.Quoted();
    } else if (word == "changed") {
      traits.Changed = words.Quoted();
    } else if (word == "size") {
      traits.Size = static_cast<std::size_t>(words.Number());
    } else if (word == "kbit") {
      traits.Kbit = static_cast<unsigned>(words.Number());
    } else if (word == "folder") {
      traits.IsFolder = true;
    } else if (tag != nullptr) {
      (**tag)[word] = words.Quoted();
    } else {
      throw std::runtime_error("an unknown word: " + word);
    }
  }
  return traits;
}

SampleEntry ReadEntry(Words& words) {
  SampleEntry entry;
  entry.Before = words.Quoted();
  if (words.Take("{")) {
    entry.Facts = ReadTraits(words);
  }
  entry.InDocs = words.Take("=>");
  if (!entry.InDocs && !words.Take("->")) {
    throw std::runtime_error("an arrow is missing");
  }
  entry.After = words.Take("same") ? entry.Before : words.Quoted();
  if (words.Take("{")) {
    entry.Changes = ReadTraits(words);
  }
  if (words.Take("undo") && words.Take("{")) {
    entry.Leaves = ReadTraits(words);
  }
  if (!words.AtEnd()) {
    throw std::runtime_error("more than an entry");
  }
  return entry;
}

void ReadLine(const std::string& line, int number, std::vector<OperationSample>& samples) {
  if (line.empty() || line[0] == '#') {
    return;
  }
  if (line[0] == '[') {
    samples.emplace_back();
    samples.back().Operation = line.substr(1, line.size() - 2);
    samples.back().Line = number;
    return;
  }
  OperationSample& sample = samples.at(samples.size() - 1);
  Words words(line);
  if (words.Take("box ")) {
    const int box = words.Number();
    sample.Boxes[box] = words.Quoted();
  } else if (words.Take("only ")) {
    sample.Only = words.Quoted();
  } else if (words.Take("today ")) {
    sample.Today = words.Quoted();
  } else if (words.Take("list ")) {
    sample.Wildcard = words.Quoted();
  } else if (words.Take("in ")) {
    sample.Folder = words.Quoted();
  } else if (words.Take("folders")) {
    sample.ListFolders = true;
  } else {
    sample.Entries.push_back(ReadEntry(words));
    sample.Entries.back().Line = number;
  }
}

}  // namespace

std::vector<OperationSample> ReadOperationSamples() {
  std::ifstream file(VORLANE_TEST_DATA "/operations/samples.txt");
  std::vector<OperationSample> samples;
  std::string line;
  for (int number = 1; std::getline(file, line); ++number) {
    try {
      ReadLine(line, number, samples);
    } catch (const std::exception& error) {
      ADD_FAILURE() << "samples.txt:" << number << ": " << error.what();
    }
  }
  return samples;
}

}  // namespace vorlane
