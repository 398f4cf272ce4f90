// Evaluations a second of pieces of operation code on one file name.
#include <benchmark/benchmark.h>

#include <cstdlib>

#include "engine/process_file_name.h"

namespace vorlane {
namespace {

// The codes here ask for nothing but the name.
class NoFacts final : public EntryFacts {
 public:
  std::optional<std::int32_t> FileLength(TextView) override { std::abort(); }
  DateTime FileDate(TextView, WhichDate) override { std::abort(); }
  DateTime Now() override { std::abort(); }
  std::int16_t GetKbit(TextView) override { std::abort(); }
  Text ExifValue(TextView, std::int32_t) override { std::abort(); }
  Text ExifValueByName(TextView, TextView) override { std::abort(); }
  Text ImageDateOf(TextView) override { std::abort(); }
};

class NoEvents final : public MessageLoop {
 public:
  void Yield() override {}
  void YieldBlocking(int) override {}
};

void Evaluate(benchmark::State& state, TextView code, TextView expected) {
  NoFacts facts;
  NoEvents loop;
  EvaluationContext context{facts, loop, PathStyle::Posix};
  const ID3Tag tagV1;
  ID3Tag tagV2;
  const BoxValues boxes;
  const ProcessRequest request{.Code = code,
                               .FileName = u"01 - the_first song (live).txt",
                               .Path = u"/home/someone/Music/",
                               .TagV1 = tagV1,
                               .TagV2 = tagV2,
                               .Boxes = boxes,
                               .RowCount = 100'000};
  if (ProcessFileName(request, context) != expected) {
    state.SkipWithError("not the expected result");
    return;
  }
  for (auto step : state) {
    benchmark::DoNotOptimize(ProcessFileName(request, context));
  }
  state.SetItemsProcessed(state.iterations());
}

BENCHMARK_CAPTURE(Evaluate, Simple, u"<UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>",
                  u"01 - THE_FIRST SONG (LIVE).txt");

BENCHMARK_CAPTURE(
    Evaluate, Nested,
    u"<PROPERCASE><MID><REPLACE><NAMEONLY>|_| |</REPLACE>|- |1|(</MID></PROPERCASE><EXTONLY>",
    u"The First Song.txt");

}  // namespace
}  // namespace vorlane

BENCHMARK_MAIN();
