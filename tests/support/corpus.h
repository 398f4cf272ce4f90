// The folders of small files that scripts of the project make.
#pragma once

#include <filesystem>
#include <map>
#include <string>

namespace vorlane {

using FilesByName = std::map<std::string, std::string>;

// Every file of a folder with its bytes.
FilesByName BytesOf(const std::filesystem::path& folder);

// What a script of tools/ makes now. Fails the test if it can't be run.
FilesByName MadeBy(const std::string& script);

}  // namespace vorlane
