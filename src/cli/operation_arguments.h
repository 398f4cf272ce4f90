// The arguments of preview and apply: what is listed, which operation, and what its boxes hold.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "catalogue/operation_keys.h"
#include "cli/command_world.h"
#include "cli/list_arguments.h"

namespace vorlane {

struct OperationArguments {
  ListArguments Entries;
  std::optional<std::string> Operation;
  std::vector<std::string> Codes;
  std::optional<std::string> Catalogue;
  std::vector<std::string> BoxTexts;  // "N=TEXT"
  std::vector<int> Checks;
  std::vector<std::string> Only;
  bool AsJson = false;
  bool All = false;

  void AddTo(CLI::App& command);

  // Lists the folder and selects the operation, all boxes as the arguments want them.
  // Throws CommandError.
  void Prepare(CommandWorld& world) const;

  // Previews the rows that --only names, one by one as in One mode, and returns them from the top
  // down: a proposal takes account of those above it. After a stop signal the rows that are
  // left keep no proposal. Throws CommandError (NotFound) for a name that isn't listed.
  std::vector<std::int32_t> PreviewOnly(CommandWorld& world) const;

  // Selects the row as a click does, and types the box texts again.
  void SelectRow(CommandWorld& world, std::int32_t row) const;

 private:
  std::int32_t FindOperation(const OperationsTree& tree) const;
  void LoadCodes(CommandWorld& world, OperationKeys& keys) const;
  void FillBoxes(CommandWorld& world, const OperationKeys& keys) const;
  void ShowBoxes(Form& form, const OperationKeys& keys) const;
  void TypeBoxTexts(Form& form) const;
  void TickChecks(Form& form) const;
  std::vector<std::int32_t> OnlyRows(const FileRows& rows) const;
};

}  // namespace vorlane
