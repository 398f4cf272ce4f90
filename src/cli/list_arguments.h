// The arguments that say what is listed.
#pragma once

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "cli/command_world.h"

namespace vorlane {

struct ListArguments {
  std::string Folder;
  std::optional<std::string> Wildcard;
  bool Recursive = false;
  bool Folders = false;

  void AddTo(CLI::App& command);

  // Fills the world's list. As in the window's wildcard box, the empty text means "*.*". No
  // operation is selected meanwhile, so nothing is previewed yet.
  void List(CommandWorld& world, TextView defaultWildcard) const;
};

}  // namespace vorlane
