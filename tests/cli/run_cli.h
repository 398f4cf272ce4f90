// The script tool as the tests of its commands call it.
#pragma once

#include <gtest/gtest.h>

#include <nlohmann/json.hpp>
#include <sstream>
#include <string>
#include <vector>

#include "support/run_program.h"

namespace vorlane {

using Json = nlohmann::ordered_json;

inline constexpr const char* Journal = "UNDORENAME.TXT";

inline const ProgramFile Cli(VORLANE_CLI);

inline ProgramResult RunCli(std::vector<std::string> arguments, std::string input = {}) {
  return RunProgram(Cli, {.Arguments = std::move(arguments), .Input = std::move(input)});
}

// The output as the one JSON document that it has to be.
inline Json Document(const ProgramResult& result) {
  Json document = Json::parse(result.Output, nullptr, false);
  EXPECT_FALSE(document.is_discarded()) << result.Output << result.Errors;
  return document;
}

// The lines of a text, each of which has to end.
inline std::vector<std::string> Lines(const std::string& text) {
  EXPECT_TRUE(text.empty() || text.back() == '\n') << text;
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

// Wrong use: exactly one line on standard error, nothing on standard output. Returns the line.
inline std::string RefusalOf(const ProgramResult& result, int status) {
  EXPECT_EQ(result.Status, status);
  EXPECT_EQ(result.Output, "");
  const auto lines = Lines(result.Errors);
  EXPECT_EQ(lines.size(), 1U) << result.Errors;
  EXPECT_TRUE(result.Errors.starts_with("vorlane-cli: ")) << result.Errors;
  return lines.empty() ? std::string() : lines.front().substr(lines.front().find(' ') + 1);
}

}  // namespace vorlane
