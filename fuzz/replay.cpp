// Runs a fuzz target once over each file of the folders and files given: a short, always equal
// run for the test suite, without the fuzzer.
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <set>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

int main(int argc, char** argv) {
  namespace fs = std::filesystem;
  std::set<fs::path> files;
  for (int i = 1; i < argc; ++i) {
    if (fs::is_regular_file(argv[i])) {
      files.insert(argv[i]);
      continue;
    }
    for (const auto& entry : fs::recursive_directory_iterator(argv[i])) {
      if (entry.is_regular_file()) {
        files.insert(entry.path());
      }
    }
  }
  for (const fs::path& path : files) {
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  }
  std::cout << files.size() << " inputs\n";
  return files.empty() ? 1 : 0;
}
