// Any code text on any name: the evaluation ends, whatever stands in it.
// Seeds: fuzz/corpus/evaluator; words: fuzz/tag_language.dict.
#include "engine/process_file_name.h"
#include "fuzz/input.h"
#include "fuzz/require.h"
#include "support/counting_loop.h"
#include "support/fake_facts.h"

using namespace vorlane;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput input(data, size);
  const std::uint8_t switches = input.NextNumber();
  const Text code = input.NextText();
  const Text name = input.NextText();
  BoxValues boxes;
  for (std::size_t box = 0; box < boxes.Visible.size(); ++box) {
    boxes.Visible[box] = (switches & 1U << box) != 0;
    boxes.Values[box] = boxes.Visible[box] ? input.NextText() : Text();
  }
  FakeFacts facts;
  CountingLoop loop;
  ID3Tag tagV1;
  tagV1.Present = true;
  tagV1.Artist = input.NextText();
  ID3Tag tagV2;
  const bool windows = (switches & 64U) != 0;
  const bool steps = (switches & 128U) != 0;
  EvaluationContext context{facts, loop, windows ? PathStyle::Windows : PathStyle::Posix};
  const Text result = ProcessFileName({.Code = code,
                                       .FileName = name,
                                       .Path = windows ? u"C:\\Music\\Rock\\" : u"/Music/Rock/",
                                       .TagV1 = tagV1,
                                       .TagV2 = tagV2,
                                       .AutoNumber = 7,
                                       .AllowTagSteps = steps,
                                       .AllowFolderSteps = steps,
                                       .Boxes = boxes,
                                       .RowCount = 120},
                                      context);
  const bool hasBrackets = Contains(code, u"<") && Contains(code, u">");
  Require(hasBrackets || result.empty());
  return 0;
}
