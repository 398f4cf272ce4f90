// The fields of a JSON object that somebody wrote by hand or with a script of theirs. Each function
// gives nothing for a field that isn't there, and throws CommandError (Usage), which names the
// field, for one of the wrong kind.
#pragma once

#include <cstdint>
#include <limits>
#include <optional>
#include <string>

#include "cli/json_text.h"

namespace vorlane {

// The text as an object. Throws CommandError (Usage) for anything else.
Json ReadJsonObject(const std::string& text);

std::optional<Text> TextField(const Json& object, const std::string& name);
std::optional<bool> FlagField(const Json& object, const std::string& name);
std::optional<std::int64_t> NumberField(const Json& object, const std::string& name,
                                        std::int64_t least, std::int64_t most);

// Null if it isn't there; lives as long as the object around it.
const Json* ObjectField(const Json& object, const std::string& name);

// A whole number that fits the type.
template <typename Number>
std::optional<Number> NumberField(const Json& object, const std::string& name) {
  using Limits = std::numeric_limits<Number>;
  const auto number = NumberField(object, name, Limits::min(), Limits::max());
  return number ? std::optional(static_cast<Number>(*number)) : std::nullopt;
}

// A text that isn't a field of its own.
Text TextOfValue(const Json& value, const std::string& name);

}  // namespace vorlane
