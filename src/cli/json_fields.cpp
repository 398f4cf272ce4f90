#include "cli/json_fields.h"

#include "cli/exit_status.h"

namespace vorlane {

namespace {

[[noreturn]] void ThrowExpected(const std::string& name, const std::string& what) {
  throw CommandError(ExitStatus::Usage, name + ": expected " + what);
}

const Json* Find(const Json& object, const std::string& name) {
  const auto found = object.find(name);
  return found == object.end() ? nullptr : &*found;
}

}  // namespace

Json ReadJsonObject(const std::string& text) {
  Json object;
  try {
    object = ReadJson(text);
  } catch (const Json::parse_error& error) {
    throw CommandError(ExitStatus::Usage, "not JSON at byte " + std::to_string(error.byte));
  } catch (const Json::out_of_range&) {
    throw CommandError(ExitStatus::Usage, "a number is too large");
  }
  if (!object.is_object()) {
    throw CommandError(ExitStatus::Usage, "expected a JSON object");
  }
  return object;
}

Text TextOfValue(const Json& value, const std::string& name) {
  if (!value.is_string()) {
    ThrowExpected(name, "a text");
  }
  return TextOfJson(value.get<std::string>());
}

std::optional<Text> TextField(const Json& object, const std::string& name) {
  const Json* value = Find(object, name);
  return value == nullptr ? std::nullopt : std::optional(TextOfValue(*value, name));
}

std::optional<bool> FlagField(const Json& object, const std::string& name) {
  const Json* value = Find(object, name);
  if (value == nullptr) {
    return std::nullopt;
  }
  if (!value->is_boolean()) {
    ThrowExpected(name, "true or false");
  }
  return value->get<bool>();
}

std::optional<std::int64_t> NumberField(const Json& object, const std::string& name,
                                        std::int64_t least, std::int64_t most) {
  const Json* value = Find(object, name);
  if (value == nullptr) {
    return std::nullopt;
  }
  // Past 63 bits a number is unsigned or no whole one.
  const bool fits = value->is_number_integer() &&
                    (!value->is_number_unsigned() ||
                     value->get<std::uint64_t>() <= static_cast<std::uint64_t>(most));
  if (!fits || value->get<std::int64_t>() < least || value->get<std::int64_t>() > most) {
    ThrowExpected(name,
                  "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return value->get<std::int64_t>();
}

const Json* ObjectField(const Json& object, const std::string& name) {
  const Json* value = Find(object, name);
  if (value != nullptr && !value->is_object()) {
    ThrowExpected(name, "an object");
  }
  return value;
}

}  // namespace vorlane
