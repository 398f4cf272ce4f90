#include "cli/remaining_arguments.h"

namespace vorlane {

void AddRemainingArguments(CLI::App& command, const std::string& name,
                           std::vector<std::string>& values, const std::string& description) {
  // Without extra arguments, which are the ones that are looked into, an option takes more only as
  // long as it lacks some. TakeAll keeps that from being an error at the end.
  constexpr int more = CLI::detail::expected_max_vector_size / 2;
  command.add_option(name, values, description)
      ->type_name("")
      ->required()
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->expected(more, -1)
      ->allow_extra_args(false);
}

}  // namespace vorlane
