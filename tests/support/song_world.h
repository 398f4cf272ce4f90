// One MP3 file in a folder of its own, for tests of what a run and an undo do to its tags.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "metadata/tag_reading.h"
#include "support/form_world.h"
#include "support/id3_bytes.h"

namespace vorlane {

inline constexpr TextView Song = u"/R/song.mp3";

// One file "song.mp3" with these bytes, listed in All mode.
struct SongWorld : MemoryWorld {
  explicit SongWorld(const std::string& bytes, const Text& name = u"song.mp3")
      : Before(bytes), Path(u"/R/" + name) {
    Disk.Write(Path, bytes);
    World.ListAll(u"/R/");
  }

  void Run(const std::vector<Text>& steps) {
    World.SelectSteps(steps);
    World.RunAll();
  }
  void Undo() { World.Undo.cmdUndo_Click(); }

  // The Nth record of the journal, from 1, can't be written.
  void FailRecord(std::size_t number) {
    Disk.BeforeCall = [number, count = std::size_t{0}](const CallInfo& call) mutable {
      if (call.Method == u"AppendToFile" && ++count == number) {
        throw RunError(ErrorNumber::DiskFull);
      }
    };
  }

  std::string Body() const { return Disk.Read(u"/R/UNDORENAME.TXT").substr(JournalHeaderSize); }
  std::ptrdiff_t CountInBody(char character) const {
    const std::string body = Body();
    return std::count(body.begin(), body.end(), character);
  }
  ID3Tag TagV1() { return ReadID3v1(Disk, World.Report, Path); }
  ID3Tag TagV2() { return ReadID3v2(Disk, World.Report, Path); }
  const FileRow& Row() const { return World.State.Rows.At(1); }

  const std::string Before;
  const Text Path;
};

// The bytes of a file with an ID3v1 tag that has something in each field.
inline std::string TaggedV1() {
  return id3::Audio(500) + id3::V1("Title", "Artist", "Album", "1999", "Note", 7, 17);
}

}  // namespace vorlane
