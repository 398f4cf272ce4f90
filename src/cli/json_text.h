// JSON whose texts may hold lone surrogates, which stand as "\udc80" escapes in both directions.
// The JSON library knows only whole characters, so a lone surrogate travels through it under a
// private-use mark.
#pragma once

#include <nlohmann/json.hpp>
#include <string>
#include <string_view>

#include "platform/text.h"

namespace vorlane {

using Json = nlohmann::ordered_json;

// A text as a JSON string, and back. Only for documents that go through WriteJson and ReadJson.
std::string JsonString(TextView text);
Text TextOfJson(const std::string& string);

// The document on one line, as UTF-8.
std::string WriteJson(const Json& document);

// Throws Json::parse_error for text that is no JSON, Json::out_of_range for a number beyond those
// that can be held.
Json ReadJson(std::string_view document);

}  // namespace vorlane
