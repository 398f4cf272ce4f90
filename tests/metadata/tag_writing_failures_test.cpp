// Every call of every way to write a tag fails once, and from then on.
#include <gtest/gtest.h>

#include "metadata/tag_writing.h"
#include "support/id3_bytes.h"
#include "support/memory_file_system.h"
#include "support/recording_prompter.h"
#include "support/recording_report.h"
#include "support/recording_status_line.h"

namespace vorlane {
namespace {

using id3::Audio;
using id3::Frame;
using id3::Header;
using id3::Tag;
using id3::V1;

const TextView Path = u"/m/a.mp3";
const std::string OldV1 = V1("old", "old", "old", "1999", "old", 1, 17);

ID3Tag Filled() {
  ID3Tag tag;
  tag.Present = true;
  tag.Artist = u"Artist";
  tag.Title = u"Title";
  tag.Track = u"07";
  tag.Genre = 17;
  return tag;
}

enum class Writer { V1, RemoveV1, V2, V2RemovingV1 };

struct Way {
  const char* Name;
  Writer Kind;
  std::string Before;
};

std::vector<Way> Ways() {
  const std::string audio = Audio(3000);
  const std::string large = Tag(1000, Frame("TIT2", "x"));
  const std::string small = Tag(200, Frame("TIT2", "x"));
  return {
      {"ID3v1, replaced", Writer::V1, audio + OldV1},
      {"ID3v1, appended", Writer::V1, audio},
      {"ID3v1, over a short file", Writer::V1, Audio(100)},
      {"ID3v1, to an empty file", Writer::V1, ""},
      {"ID3v1, removed", Writer::RemoveV1, audio + OldV1},
      {"ID3v2, updated", Writer::V2, large + audio + OldV1},
      {"ID3v2, updated past the end", Writer::V2, Header(1000) + audio.substr(0, 300)},
      {"ID3v2, updated, ID3v1 removed", Writer::V2RemovingV1, large + audio + OldV1},
      {"ID3v2, grown", Writer::V2, small + audio + OldV1},
      {"ID3v2, grown, ID3v1 removed", Writer::V2RemovingV1, small + audio + OldV1},
      {"ID3v2, grown a lot, ID3v1 removed", Writer::V2RemovingV1,
       Tag(20, "0123456789") + audio + OldV1},
      {"ID3v2, added", Writer::V2, audio + OldV1},
      {"ID3v2, added, ID3v1 removed", Writer::V2RemovingV1, audio + OldV1},
  };
}

class Trial {
 public:
  explicit Trial(const Way& way) : way_(way) { Files.Write(Path, way.Before); }

  void Run() {
    const ID3v2Services services{Files, report_, boxes_, status_};
    switch (way_.Kind) {
      case Writer::V1:
        return WriteID3v1(Files, report_, Path, Filled());
      case Writer::RemoveV1:
        return RemoveID3v1(Files, report_, Path);
      case Writer::V2:
        return WriteID3v2(services, Path, Filled(), false);
      case Writer::V2RemovingV1:
        return WriteID3v2(services, Path, Filled(), true);
    }
  }

  std::string Bytes() const { return Files.Read(Path); }
  bool Complained() const { return !report_.Reports.empty() || !boxes_.Boxes.empty(); }
  bool IsReady() const { return !status_.Stages.empty() && status_.Stages.back() == u"100 Ready"; }

  MemoryFileSystem Files;

 private:
  const Way& way_;
  RecordingReport report_;
  RecordingPrompter boxes_;
  RecordingStatusLine status_;
};

struct Result {
  std::string Bytes;
  std::size_t Calls = 0;
  std::size_t Mutations = 0;
};

Result Undisturbed(const Way& way) {
  Trial trial(way);
  trial.Run();
  EXPECT_FALSE(trial.Complained()) << way.Name;
  return {trial.Bytes(), trial.Files.CallCount, trial.Files.MutationCount};
}

// What a write gives that doesn't find the ID3v1 tag, because it can't be read just then. (That
// failure is told by the reader, and the tag stays.)
std::string KeepingV1(Way way) {
  if (way.Kind == Writer::V2RemovingV1) {
    way.Kind = Writer::V2;
  }
  return Undisturbed(way).Bytes;
}

TEST(TagWritingFailures, EachWayWrites) {
  for (const Way& way : Ways()) {
    const Result result = Undisturbed(way);
    EXPECT_NE(result.Bytes, way.Before) << way.Name;
    EXPECT_GE(result.Mutations, 1U) << way.Name;
  }
}

TEST(TagWritingFailures, OneFailedCallLeavesTheFileAsBeforeOrAsAfter) {
  for (const Way& way : Ways()) {
    const Result good = Undisturbed(way);
    for (std::size_t call = 1; call <= good.Calls; ++call) {
      Trial trial(way);
      trial.Files.Failure = FailurePlan{.At = call};
      trial.Run();
      const std::string bytes = trial.Bytes();
      if (bytes == way.Before) {
        EXPECT_TRUE(trial.Complained()) << way.Name << ", call " << call;
        EXPECT_FALSE(trial.IsReady()) << way.Name << ", call " << call;
      } else {
        EXPECT_TRUE(bytes == good.Bytes || bytes == KeepingV1(way)) << way.Name << ", " << call;
      }
    }
  }
}

TEST(TagWritingFailures, FailedWriteLeavesTheFileAsItWas) {
  for (const Way& way : Ways()) {
    const Result good = Undisturbed(way);
    for (std::size_t call = 1; call <= good.Mutations; ++call) {
      for (const ErrorNumber error : {ErrorNumber::DiskFull, ErrorNumber::DeviceError}) {
        Trial trial(way);
        trial.Files.Failure = FailurePlan{.At = call, .OnlyMutating = true, .Error = error};
        trial.Run();
        EXPECT_TRUE(trial.Bytes() == way.Before) << way.Name << ", call " << call;
        EXPECT_TRUE(trial.Complained()) << way.Name << ", call " << call;
      }
    }
  }
}

TEST(TagWritingFailures, FailureThatComesWithTheClosingIsTold) {
  for (const Way& way : Ways()) {
    Trial trial(way);
    trial.Files.BeforeCall = [](const CallInfo& call) {
      if (call.Method == u"Close") {
        throw RunError(ErrorNumber::DiskFull);
      }
    };
    trial.Run();
    EXPECT_TRUE(trial.Complained()) << way.Name;
    EXPECT_FALSE(trial.IsReady()) << way.Name;
  }
}

TEST(TagWritingFailures, FileThatChangesBeforeTheFirstWriteIsLeftAlone) {
  for (const Way& way : Ways()) {
    const Result good = Undisturbed(way);
    const std::string other = way.Before + "x";
    Trial trial(way);
    trial.Files.BeforeCall = [&](const CallInfo& call) {
      // The last look at the file's size comes before its first write and its closing.
      if (call.Number + good.Mutations + 1 == good.Calls) {
        trial.Files.Write(Path, other);
      }
    };
    trial.Run();
    EXPECT_TRUE(trial.Complained()) << way.Name;
    EXPECT_TRUE(trial.Bytes() == other) << way.Name;
  }
}

TEST(TagWritingFailures, FullDiskLeavesTheFileAsItWas) {
  for (const Way& way : Ways()) {
    const Result good = Undisturbed(way);
    const std::size_t grows =
        good.Bytes.size() > way.Before.size() ? good.Bytes.size() - way.Before.size() : 0;
    for (std::size_t room = 0; room <= grows; ++room) {
      Trial trial(way);
      trial.Files.FreeBytes = room;
      trial.Run();
      EXPECT_TRUE(trial.Bytes() == (room < grows ? way.Before : good.Bytes)) << way.Name << room;
      EXPECT_EQ(trial.Complained(), room < grows) << way.Name << room;
    }
  }
}

// How many bytes of the audio aren't in the file any more, at the start or behind one gap.
std::size_t MissingAudio(const std::string& bytes, const std::string& audio) {
  std::size_t head = 0;
  while (head < audio.size() && bytes.find(audio.substr(0, head + 1)) != std::string::npos) {
    ++head;
  }
  std::size_t tail = audio.size();
  while (tail > 0 && bytes.find(audio.substr(tail - 1)) != std::string::npos) {
    --tail;
  }
  return tail > head ? tail - head : 0;
}

TEST(TagWritingFailures, CallsThatFailFromThenOnCostAtMost257BytesOfTheAudio) {
  const std::string audio = Audio(3000);
  for (const Way& way : Ways()) {
    const Result good = Undisturbed(way);
    for (std::size_t call = 1; call <= good.Calls; ++call) {
      Trial trial(way);
      trial.Files.Failure = FailurePlan{.At = call, .FromThenOn = true};
      trial.Run();
      const std::string bytes = trial.Bytes();
      EXPECT_TRUE(trial.Complained()) << way.Name << ", call " << call;
      if (way.Before.find(audio) == std::string::npos) {
        continue;
      }
      EXPECT_LE(MissingAudio(bytes, audio), 257U) << way.Name << ", call " << call;
      const bool nothingMoves = good.Bytes.find(audio) == way.Before.find(audio);
      if (nothingMoves) {
        EXPECT_EQ(bytes.find(audio), way.Before.find(audio)) << way.Name << ", call " << call;
      }
    }
  }
}

}  // namespace
}  // namespace vorlane
