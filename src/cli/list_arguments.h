// The arguments that say what is listed.
#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "cli/session.h"

namespace vorlane {

struct ListArguments {
  std::string Folder;
  std::string Wildcard;
  bool Recursive = false;
  bool Folders = false;

  void AddTo(CLI::App& command);

  // Fills the session's list; no operation is selected meanwhile, so nothing is previewed yet.
  void List(Session& session, TextView defaultWildcard) const;
};

}  // namespace vorlane
