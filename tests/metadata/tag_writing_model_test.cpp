// The writers on random files, against a plain version of the same rules that empties the file and
// writes it anew from memory.
#include <gtest/gtest.h>

#include <random>

#include "metadata/id3v1.h"
#include "metadata/id3v2_frame.h"
#include "metadata/id3v2_writer.h"
#include "metadata/tag_reading.h"
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
using id3::Nuls;
using id3::V1;

// A file as a program sees that writes at a position of it.
void Put(std::string& file, std::size_t position, const std::string& bytes) {
  if (file.size() < position + bytes.size()) {
    file.resize(position + bytes.size());
  }
  file.replace(position, bytes.size(), bytes);
}

bool HasV1(const std::string& file) {
  return file.size() >= 128 && file.substr(file.size() - 128, 3) == "TAG";
}

// `count` bytes of the file from `from` on. Throws RunError 5 for a count below zero.
std::string Part(const std::string& file, std::size_t from, std::ptrdiff_t count) {
  if (count < 0) {
    throw RunError(ErrorNumber::InvalidArgument);
  }
  return from < file.size() ? file.substr(from, static_cast<std::size_t>(count)) : std::string();
}

std::ptrdiff_t Length(const std::string& file) {
  return static_cast<std::ptrdiff_t>(file.size());
}

void PlainUpdate(std::string& file, const ID3Tag& tag, bool remove) {
  const auto oldSize = static_cast<std::size_t>(DeclaredTagSize(file));
  if (oldSize == 0) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  std::string oldText = file.substr(0, oldSize);
  oldText.resize(oldSize);
  const std::string newText = UpdatedID3v2(oldText, tag);
  const bool grown = oldSize < 257;
  if (remove && HasV1(file)) {
    std::string rest;
    if (grown) {
      rest = Part(file, oldSize, Length(file) - static_cast<std::ptrdiff_t>(oldSize) - 128);
    } else {
      if (newText != oldText) {
        Put(file, 0, newText);
      }
      rest = Part(file, 0, Length(file) - 128);
    }
    file.clear();
    if (grown) {
      file = newText;
    }
    file += rest;
  } else if (grown) {
    const std::string rest = oldSize < file.size() ? file.substr(oldSize) : std::string();
    Put(file, 0, newText);
    Put(file, newText.size(), rest);
  } else if (newText != oldText) {
    Put(file, 0, newText);
  }
}

void PlainWriteID3v2(std::string& file, const ID3Tag& tag, bool remove) {
  if (file.starts_with("ID3")) {
    PlainUpdate(file, tag, remove);
  } else {
    const std::string newText = NewID3v2(tag);
    file = newText + file.substr(0, file.size() - (remove && HasV1(file) ? 128 : 0));
  }
}

void PlainRemoveID3v1(std::string& file) {
  if (!HasV1(file)) {
    return;
  }
  if (file.size() == 128) {
    throw RunError(ErrorNumber::SubscriptOutOfRange);
  }
  file = file.substr(0, file.size() - 128);
}

void PlainWriteID3v1(std::string& file, const ID3Tag& tag) {
  if (!tag.Present) {
    return PlainRemoveID3v1(file);
  }
  const std::string newTag = BuildID3v1(tag);
  const std::size_t position = file.size() < 128 ? 0 : file.size();
  Put(file, HasV1(file) ? file.size() - 128 : position, newTag);
}

class Generator {
 public:
  explicit Generator(unsigned seed) : random_(seed) {}

  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }

  std::string File() {
    constexpr unsigned sizes[] = {0, 1, 9, 10, 11, 100, 255, 256, 257, 258, 300, 1000};
    constexpr unsigned lengths[] = {0, 1, 50, 100, 127, 128, 129, 400};
    std::string file;
    if (Below(4) > 0) {
      const unsigned size = sizes[Below(std::size(sizes))];
      file = Header(size) + Frames();
      const unsigned behind = Below(3);
      if (behind == 0) {
        file.resize(size);
      }
      if (behind == 1) {
        file.resize(std::max<std::size_t>(size, file.size()));
      }
    }
    file += Audio(lengths[Below(std::size(lengths))]);
    if (Below(2) == 0) {
      file += V1("t", "a", "l", "1999", "c", 7, 17);
    }
    return file;
  }

  ID3Tag Record() {
    ID3Tag tag;
    tag.Present = Below(4) > 0;
    for (Text ID3Tag::*field :
         {&ID3Tag::Artist, &ID3Tag::Title, &ID3Tag::Album, &ID3Tag::Comment, &ID3Tag::Year}) {
      constexpr unsigned lengths[] = {0, 1, 3, 10, 29, 30, 31, 254, 255};
      tag.*field = Text(lengths[Below(Below(4) == 0 ? std::size(lengths) : 5)], u'x');
    }
    tag.Track = DecimalText(Below(300));
    tag.Genre = static_cast<std::int16_t>(Below(200));
    return tag;
  }

 private:
  std::string Frames() {
    std::string frames;
    for (const char* id : {"TPE1", "TIT2", "XXXX", "COMM", "TALB", "TCON", "TRCK", "TYER"}) {
      if (Below(2) == 0) {
        frames += Frame(id, std::string(Below(20), 'y'));
      }
      if (Below(4) == 0) {
        frames += Nuls(Below(100));
      }
    }
    return frames;
  }

  std::mt19937 random_;
};

class TagWritingModel : public testing::Test {
 protected:
  // The number of the error that was reported or shown, 0 for none.
  template <typename Write>
  int Run(const std::string& bytes, Write&& write) {
    files_.Write(Path, bytes);
    files_.ForgetCalls();
    report_.Reports.clear();
    boxes_.Boxes.clear();
    write();
    if (!report_.Reports.empty()) {
      return report_.Reports[0].Number;
    }
    if (boxes_.Boxes.empty()) {
      return 0;
    }
    return boxes_.Boxes[0].Title == u"Error number: 5" ? 5 : 9;
  }

  // The plain version's error; its file is as before after one.
  template <typename Write>
  static int RunPlain(std::string& bytes, Write&& write) {
    const std::string before = bytes;
    try {
      write();
      return 0;
    } catch (const RunError& error) {
      bytes = before;
      return error.Number();
    }
  }

  static constexpr TextView Path = u"/a.mp3";
  static constexpr unsigned Rounds = 4000;
  MemoryFileSystem files_;
  RecordingReport report_;
  RecordingPrompter boxes_;
  RecordingStatusLine status_;
};

TEST_F(TagWritingModel, WriteID3v2) {
  unsigned written = 0;
  for (unsigned seed = 1; seed <= Rounds; ++seed) {
    Generator generator(seed);
    const std::string before = generator.File();
    const ID3Tag tag = generator.Record();
    const bool remove = generator.Below(2) == 0;
    std::string expected = before;
    const int error = RunPlain(expected, [&] { PlainWriteID3v2(expected, tag, remove); });
    EXPECT_EQ(Run(before,
                  [&] {
                    WriteID3v2({files_, report_, boxes_, status_}, Path, tag, remove);
                  }),
              error)
        << "seed " << seed;
    EXPECT_TRUE(files_.Read(Path) == expected) << "seed " << seed;
    if (expected == before) {
      EXPECT_EQ(files_.MutationCount, 0U) << "seed " << seed;
    } else {
      ++written;
    }
  }
  EXPECT_GT(written, Rounds / 3);
}

TEST_F(TagWritingModel, WriteID3v1) {
  unsigned written = 0;
  for (unsigned seed = 1; seed <= Rounds; ++seed) {
    Generator generator(seed);
    const std::string before = generator.File();
    const ID3Tag tag = generator.Record();
    std::string expected = before;
    const int error = RunPlain(expected, [&] { PlainWriteID3v1(expected, tag); });
    EXPECT_EQ(Run(before, [&] { WriteID3v1(files_, report_, Path, tag); }), error)
        << "seed " << seed;
    EXPECT_TRUE(files_.Read(Path) == expected) << "seed " << seed;
    written += expected == before ? 0 : 1;
  }
  EXPECT_GT(written, Rounds / 5);
}

}  // namespace
}  // namespace vorlane
