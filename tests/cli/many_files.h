// A folder of thousands of files whose rows fill a pipe many times over.
#pragma once

#include <filesystem>
#include <string>

#include "support/temporary_folder.h"

namespace vorlane {

// Files are numbered from 0.
inline std::string NameOfMany(int file) {
  return "file " + std::to_string(file) + " " + std::string(80, 'x');
}

// All of them are one file under many names, which is much faster to make.
inline void WriteMany(const TemporaryFolder& folder, int count) {
  folder.Write(NameOfMany(0));
  for (int file = 1; file < count; ++file) {
    std::filesystem::create_hard_link(folder.Path() + NameOfMany(0),
                                      folder.Path() + NameOfMany(file));
  }
}

}  // namespace vorlane
