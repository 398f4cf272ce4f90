#include "metadata/in_place.h"

#include <gtest/gtest.h>

#include <vector>

#include "platform/failure.h"
#include "support/memory_file_system.h"

namespace vorlane {
namespace {

const TextView Path = u"/a.mp3";

// Bytes of which each four are a number of their own, so that each can be found again.
std::string Numbered(std::size_t length) {
  std::string bytes;
  for (std::uint32_t number = 1; bytes.size() < length; ++number) {
    for (const unsigned shift : {24U, 16U, 8U, 0U}) {
      bytes += static_cast<char>(number >> shift & 0xFF);
    }
  }
  return bytes;
}

std::uint32_t NumberAt(const std::string& bytes, std::size_t place) {
  std::uint32_t number = 0;
  for (std::size_t i = place; i < place + 4; ++i) {
    number = number << 8 | static_cast<std::uint8_t>(bytes[i]);
  }
  return number;
}

// How many of the numbers between two places of the old bytes aren't in these any more.
std::size_t Missing(const std::string& bytes, const std::string& old, std::size_t from,
                    std::size_t to) {
  std::vector<bool> present(old.size() / 4 + 1);
  for (std::size_t i = 0; i + 4 <= bytes.size(); i += 4) {
    const std::uint32_t number = NumberAt(bytes, i);
    if (number < present.size()) {
      present[number] = true;
    }
  }
  std::size_t missing = 0;
  for (std::size_t i = from; i < to; i += 4) {
    if (!present[NumberAt(old, i)]) {
      ++missing;
    }
  }
  return missing;
}

struct Sample {
  const char* Name;
  std::string Old;
  InPlaceChange Change;
  std::string New;
  std::size_t MovedFrom = 0;  // in Old: bytes that come to another place
  std::size_t MovedTo = 0;
  bool MovesDown = false;
};

bool Moves(const Sample& sample) {
  return sample.MovedFrom < sample.MovedTo;
}

constexpr std::size_t Distance = 16;
constexpr std::size_t Replaced = 40 - Distance;
const std::string Head(40, 'h');

// The first bytes give way to more of them, the last `dropped` bytes go.
Sample Moving(const char* name, const std::string& old, std::size_t dropped) {
  InPlaceChange change;
  change.NewBytes = Head;
  change.OldBytes = old;
  change.OldSize = old.size();
  change.MovedFrom = Replaced;
  change.MovedLength = old.size() - Replaced - dropped;
  change.NewSize = change.NewBytes.size() + change.MovedLength;
  return {name,     old,
          change,   Head + old.substr(Replaced, change.MovedLength),
          Replaced, old.size() - dropped};
}

// A tag in front of the file for another one of its size, whose start is longer or shorter.
Sample Exchanging(const char* name, std::size_t tag, bool down) {
  const std::string file = Numbered(tag + 400);
  const std::string start = down ? Head.substr(0, Replaced - Distance) : Head;
  std::string bytes = start + file.substr(Replaced, tag - Replaced) + std::string(Distance, 'p');
  bytes.resize(tag);
  InPlaceChange change;
  change.OldSize = file.size();
  change.NewSize = file.size();
  change.NewBytes = bytes;
  change.OldBytes = file.substr(0, tag);
  return {name, file, change, bytes + file.substr(tag), Replaced, down ? tag : tag - Distance,
          down};
}

InPlaceChange ChangeOf(std::uint64_t oldSize, std::uint64_t newSize, std::uint64_t position,
                       std::string newBytes, std::string oldBytes) {
  InPlaceChange change;
  change.OldSize = oldSize;
  change.NewSize = newSize;
  change.Position = position;
  change.NewBytes = std::move(newBytes);
  change.OldBytes = std::move(oldBytes);
  return change;
}

std::vector<Sample> Samples() {
  const std::string large = Numbered(2 * InPlaceBlock + 4000);
  const std::string small = Numbered(400);
  return {
      {"appending", "0123", ChangeOf(4, 7, 4, "abc", ""), "0123abc"},
      {"to an empty file", "", ChangeOf(0, 3, 0, "abc", ""), "abc"},
      {"in the middle", "0123456789", ChangeOf(10, 10, 2, "abc", "234"), "01abc56789"},
      {"at the end", "0123456789", ChangeOf(10, 10, 7, "abc", "789"), "0123456abc"},
      {"over the end", "0123456789", ChangeOf(10, 14, 6, "abcdefgh", "6789"), "012345abcdefgh"},
      {"all of a short file", "0123", ChangeOf(4, 6, 0, "abcdef", "0123"), "abcdef"},
      {"cutting", "0123456789", ChangeOf(10, 6, 6, "", ""), "012345"},
      {"the start, cutting the end", "0123456789", ChangeOf(10, 8, 0, "ab", "01"), "ab234567"},
      Moving("moving a small file", small, 0),
      Moving("moving a small file, dropping its end", small, 8),
      Moving("moving a small file, dropping more than it grows", small, 128),
      Moving("moving several blocks", large, 0),
      Moving("moving several blocks, dropping the end", large, 128),
      Exchanging("a small tag, moving up", 400, false),
      Exchanging("a small tag, moving down", 400, true),
      Exchanging("a tag larger than two blocks, moving up", 2 * InPlaceBlock + 400, false),
      Exchanging("a tag larger than two blocks, moving down", 2 * InPlaceBlock + 400, true),
  };
}

// The failure's number, 0 if there is none.
int Apply(MemoryFileSystem& files, const InPlaceChange& change) {
  try {
    ChangeInPlace(*files.Open(Path, OpenMode::ReadWrite), change);
    return 0;
  } catch (const RunError& error) {
    return error.Number();
  }
}

TEST(ChangeInPlace, LeavesTheNewBytes) {
  for (const Sample& sample : Samples()) {
    MemoryFileSystem files;
    files.Write(Path, sample.Old);
    EXPECT_EQ(Apply(files, sample.Change), 0) << sample.Name;
    EXPECT_TRUE(files.Read(Path) == sample.New) << sample.Name;
  }
}

TEST(ChangeInPlace, DoesNothingWhereNothingChanges) {
  MemoryFileSystem files;
  files.Write(Path, "0123");
  EXPECT_EQ(Apply(files, ChangeOf(4, 4, 0, "", "")), 0);
  EXPECT_EQ(files.MutationCount, 0U);
}

TEST(ChangeInPlace, EndedBetweenAnyTwoCallsLosesNothingThatMoves) {
  for (const Sample& sample : Samples()) {
    if (!Moves(sample)) {
      continue;
    }
    MemoryFileSystem files;
    files.Write(Path, sample.Old);
    std::size_t looks = 0;
    const auto look = [&] {
      ++looks;
      EXPECT_EQ(Missing(files.Read(Path), sample.Old, sample.MovedFrom, sample.MovedTo), 0U)
          << sample.Name << ", call " << looks;
    };
    files.BeforeCall = [&](const CallInfo&) { look(); };
    EXPECT_EQ(Apply(files, sample.Change), 0);
    look();
    EXPECT_GE(looks, 3U) << sample.Name;
  }
}

TEST(ChangeInPlace, AnyCallThatFailsOnceLeavesTheFileAsItWas) {
  for (const Sample& sample : Samples()) {
    MemoryFileSystem counted;
    counted.Write(Path, sample.Old);
    Apply(counted, sample.Change);
    for (std::size_t call = 1; call <= counted.MutationCount; ++call) {
      MemoryFileSystem files;
      files.Write(Path, sample.Old);
      files.Failure =
          FailurePlan{.At = call, .OnlyMutating = true, .Error = ErrorNumber::DeviceError};
      EXPECT_EQ(Apply(files, sample.Change), 57) << sample.Name << ", call " << call;
      EXPECT_TRUE(files.Read(Path) == sample.Old) << sample.Name << ", call " << call;
    }
  }
}

// A write that fails has written half of its bytes: as after a kill in the middle of it, if nothing
// is put back.
TEST(ChangeInPlace, AWriteCutShortCostsAtMostOneStretchOfWhatMoves) {
  for (const Sample& sample : Samples()) {
    MemoryFileSystem counted;
    counted.Write(Path, sample.Old);
    Apply(counted, sample.Change);
    for (std::size_t call = 1; call <= counted.MutationCount; ++call) {
      for (const bool putsBackHalf : {false, true}) {
        MemoryFileSystem files;
        files.Write(Path, sample.Old);
        files.Failure = FailurePlan{.At = call, .FromThenOn = true, .OnlyMutating = true};
        files.BeforeCall = [&](const CallInfo& info) {
          if (!putsBackHalf && info.MutationNumber > call) {
            throw RunError(ErrorNumber::DeviceError);
          }
        };
        EXPECT_EQ(Apply(files, sample.Change), 57) << sample.Name << ", call " << call;
        EXPECT_LE(Missing(files.Read(Path), sample.Old, sample.MovedFrom, sample.MovedTo),
                  sample.MovesDown ? 0 : Distance / 4)
            << sample.Name << ", call " << call;
      }
    }
  }
}

TEST(ChangeInPlace, FullDiskIsMetBeforeAnythingIsOverwritten) {
  for (const Sample& sample : Samples()) {
    const std::size_t grows =
        sample.New.size() > sample.Old.size() ? sample.New.size() - sample.Old.size() : 0;
    for (std::size_t room = 0; room <= grows; ++room) {
      MemoryFileSystem files;
      files.Write(Path, sample.Old);
      files.FreeBytes = room;
      EXPECT_EQ(Apply(files, sample.Change), room < grows ? 61 : 0) << sample.Name << room;
      EXPECT_TRUE(files.Read(Path) == (room < grows ? sample.Old : sample.New)) << sample.Name;
      if (room < grows) {
        EXPECT_EQ(files.MutationCount, room == 0 ? 1U : 2U) << sample.Name << room;
      }
    }
  }
}

TEST(ChangeInPlace, AFailureToPutBackIsNotTheOneThatIsTold) {
  for (const Sample& sample : Samples()) {
    MemoryFileSystem files;
    files.Write(Path, sample.Old);
    files.Failure = FailurePlan{.OnlyMutating = true, .Error = ErrorNumber::DiskFull};
    files.BeforeCall = [&](const CallInfo& call) {
      if (call.MutationNumber == 2) {
        throw RunError(ErrorNumber::DeviceError);
      }
    };
    EXPECT_EQ(Apply(files, sample.Change), 61) << sample.Name;
  }
}

TEST(ChangeInPlace, AFileThatHasChangedItsSizeSinceIsLeftAlone) {
  for (const Sample& sample : Samples()) {
    for (const std::string& bytes :
         {sample.Old + "x", sample.Old.substr(0, sample.Old.size() / 2), sample.New + "x"}) {
      if (bytes.size() == sample.Old.size()) {
        continue;
      }
      MemoryFileSystem files;
      files.Write(Path, bytes);
      EXPECT_EQ(Apply(files, sample.Change), 75) << sample.Name;
      EXPECT_EQ(files.MutationCount, 0U) << sample.Name;
      EXPECT_TRUE(files.Read(Path) == bytes) << sample.Name;
    }
  }
}

TEST(ChangeInPlace, AFailureThatComesWithTheClosingIsTold) {
  for (const Sample& sample : Samples()) {
    MemoryFileSystem files;
    files.Write(Path, sample.Old);
    files.BeforeCall = [&](const CallInfo& call) {
      if (call.Method == u"Close") {
        throw RunError(ErrorNumber::DiskFull);
      }
    };
    EXPECT_EQ(Apply(files, sample.Change), 61) << sample.Name;
    EXPECT_TRUE(files.Read(Path) == sample.New) << sample.Name;
  }
}

TEST(ReadExactly, RefusesAShortRead) {
  MemoryFileSystem files;
  files.Write(Path, "0123456789");
  const auto file = files.Open(Path, OpenMode::Read);
  EXPECT_EQ(ReadExactly(*file, 2, 8), "23456789");
  EXPECT_EQ(ReadExactly(*file, 10, 0), "");
  try {
    ReadExactly(*file, 2, 9);
    FAIL();
  } catch (const RunError& error) {
    EXPECT_EQ(error.Number(), 62);
  }
}

}  // namespace
}  // namespace vorlane
