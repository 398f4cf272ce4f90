#include "catalogue/program_files.h"

#include <vector>

#include "platform/failure.h"
#include "platform/letter_case.h"

namespace vorlane {

namespace {

using ExistenceTest = bool (*)(FileSystem&, TextView);

std::optional<Text> Find(FileSystem& files, TextView folder, TextView name, ExistenceTest exists) {
  const auto pathOf = [&](TextView bare) { return Text(folder).append(bare); };
  if (exists(files, pathOf(name))) {
    return pathOf(name);
  }
  std::vector<Text> names;
  Attempt([&] { names = files.ListNames(folder); });
  std::erase_if(names, [&](const Text& other) {
    return !EqualIgnoringCase(other, name) || !exists(files, pathOf(other));
  });
  if (names.size() != 1) {
    return std::nullopt;
  }
  return pathOf(names.front());
}

}  // namespace

std::optional<Text> FindProgramFile(FileSystem& files, TextView folder, TextView name) {
  return Find(files, folder, name, PlainFileExists);
}

std::optional<Text> FindProgramFolder(FileSystem& files, TextView folder, TextView name) {
  auto path = Find(files, folder, name, FolderExists);
  if (path) {
    path->push_back(folder.back());
  }
  return path;
}

}  // namespace vorlane
