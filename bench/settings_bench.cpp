// A setting of a store with 300 of them, on a real disk: one is saved at each key that is pressed
// in a remembered box, and one is read wherever the program needs it.
#include <benchmark/benchmark.h>

#include "platform/posix_registry_file.h"
#include "shell/settings.h"
#include "shell/stored_registry.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

class Store {
 public:
  Store() {
    for (int i = 0; i < 300; ++i) {
      Settings.SaveSetting(OperationsSection, u"Box " + DecimalText(i), u"what was typed in it");
    }
  }

 private:
  TemporaryFolder folder_;
  PosixRegistryFile file_{folder_.TextPath() + u"registry.conf"};
  StoredRegistry calls_{file_};

 public:
  vorlane::Settings Settings{calls_};
};

void SaveSetting(benchmark::State& state) {
  Store store;
  std::int64_t number = 0;
  for (auto step : state) {
    if (!store.Settings.SaveSetting(OperationsSection, u"Box 150", DecimalText(++number))) {
      state.SkipWithError("not saved");
      return;
    }
  }
}
BENCHMARK(SaveSetting)->Unit(benchmark::kMillisecond)->UseRealTime();

void GetSetting(benchmark::State& state) {
  Store store;
  for (auto step : state) {
    benchmark::DoNotOptimize(store.Settings.GetSetting(OperationsSection, u"Box 150", u""));
  }
}
BENCHMARK(GetSetting)->Unit(benchmark::kMicrosecond)->UseRealTime();

}  // namespace
}  // namespace vorlane

BENCHMARK_MAIN();
