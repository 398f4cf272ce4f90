#include "catalogue/program_files.h"

#include <vector>

#include "platform/failure.h"
#include "platform/letter_case.h"

namespace vorlane {

std::optional<Text> FindProgramFile(FileSystem& files, TextView folder, TextView name) {
  const auto pathOf = [&](TextView bare) { return Text(folder).append(bare); };
  if (PlainFileExists(files, pathOf(name))) {
    return pathOf(name);
  }
  std::vector<Text> names;
  Attempt([&] { names = files.ListNames(folder); });
  std::erase_if(names, [&](const Text& other) {
    return !EqualIgnoringCase(other, name) || !PlainFileExists(files, pathOf(other));
  });
  if (names.size() != 1) {
    return std::nullopt;
  }
  return pathOf(names.front());
}

}  // namespace vorlane
