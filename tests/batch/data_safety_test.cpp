// Nothing is ever lost: runs and undos over random trees, and runs in which every single call to
// the file system fails in turn.
#include <gtest/gtest.h>

#include <random>
#include <set>

#include "platform/posix_file_system.h"
#include "support/form_world.h"
#include "support/temporary_folder.h"

namespace vorlane {
namespace {

using Contents = std::map<std::string, std::string>;

// Steps that rename, make folders and move, in ways that collide with each other.
const std::vector<std::vector<Text>>& Operations() {
  static const std::vector<std::vector<Text>> operations{
      {u"same<EXTONLY>"},
      {u"<LOWERCASE><FILENAME></LOWERCASE>"},
      {u"<UPPERCASE><FILENAME></UPPERCASE>"},
      {u"<REPLACE><FILENAME>|a|b|</REPLACE>"},
      {u"<REPLACE><FILENAME>|b|a|</REPLACE>"},
      {u".<FILENAME>"},
      {u"UNDORENAME.TXT<MID>| |9|</MID>"},
      {u"<MID> |||</MID>UNDORENAME.TXT"},
      {u"<LEFTTRIM><FILENAME>||1|</LEFTTRIM>"},
      {u"<CREATEFOLDER>sub/<NAMEONLY></CREATEFOLDER>", u"<MOVE>sub/<NAMEONLY></MOVE>"},
      {u"<CREATEFOLDER>a</CREATEFOLDER>", u"<MOVE>a</MOVE>", u"x<FILENAME>"},
      {u"<CREATEFOLDER>new<EXTONLY></CREATEFOLDER>", u"<MOVE>new<EXTONLY></MOVE>"},
      {u"<MOVE>b</MOVE>", u"<BOX1><FILENAME>"},
      {u"<BOX1>"},
      {u"<FOLDERNAME> <FILENAME>"},
      {u"<NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY>"
       u"<NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY><NAMEONLY>"},
  };
  return operations;
}

class RandomTree {
 public:
  explicit RandomTree(unsigned seed) : random_(seed) {}

  unsigned Below(std::size_t limit) { return static_cast<unsigned>(random_() % limit); }

  Text Name() {
    static const std::vector<Text> names{u"a",
                                         u"A",
                                         u"b",
                                         u"a.txt",
                                         u"A.TXT",
                                         u"b.txt",
                                         u"same",
                                         u"same.txt",
                                         u"(1)same",
                                         u"(1)same.txt",
                                         u".a",
                                         u".b.txt",
                                         u"a|b",
                                         u"a\r\nb",
                                         u"x\u00E4",
                                         u"x\u00C4",
                                         u"\u65E5.txt",
                                         u"a\\b",
                                         u"a.b.c",
                                         u"<a>",
                                         u"UNDORENAME.TXT",
                                         u"new",
                                         u"a very much longer name indeed",
                                         Text(u"odd") + static_cast<char16_t>(0xDCE9) + u".txt"};
    return names[Below(names.size())];
  }

  // Fills "/R/" with up to a dozen entries, some of them in folders.
  void Fill(MemoryFileSystem& disk, const Text& root) {
    disk.MakeFolder(root);
    const unsigned count = 1 + Below(12);
    for (unsigned i = 0; i < count; ++i) {
      Text folder = root;
      for (unsigned depth = Below(3); depth > 0; --depth) {
        folder += Name() + u"/";
      }
      try {
        const unsigned kind = Below(12);
        const Text path = folder + Name();
        if (path.starts_with(root + Text(JournalName))) {
          continue;  // with that name taken a run has no journal, and no undo
        }
        if (kind == 0) {
          disk.MakeFolder(path);
        } else if (kind == 1) {
          disk.MakeLink(path, u"/nowhere");
        } else if (!disk.Exists(path)) {
          disk.Write(path, std::to_string(i) + " bytes");
        }
        if (kind == 2) {
          disk.SetReadOnly(path);
        }
      } catch (const std::logic_error&) {
        // A file stands where a folder would have to be: this entry is left out.
      }
    }
  }

 private:
  std::mt19937 random_;
};

void Remove(Contents& contents, const std::string& name) {
  contents.erase(name);
}

// The bytes of all files, without regard to their names: what must never change in number.
std::multiset<std::string> BytesOf(const Contents& contents) {
  std::multiset<std::string> bytes;
  for (const auto& [name, content] : contents) {
    if (name.back() != '/' && !content.starts_with("Vorlane 2006")) {
      bytes.insert(content);
    }
  }
  return bytes;
}

void PrepareRun(RandomTree& random, MemoryWorld& on) {
  random.Fill(on.Disk, u"/R/");
  Form& form = on.World.State;
  form.IncludeSubFolders = random.Below(2) == 0;
  form.ListFolders = random.Below(4) == 0;
  form.WildCard = random.Below(4) == 0 ? u"*.txt" : u"*.*";
  form.Rows.SetSort(Column::CurrentName,
                    random.Below(2) == 0 ? SortOrder::Ascending : SortOrder::Descending);
  on.World.SelectSteps(Operations()[random.Below(Operations().size())]);
  if (random.Below(2) == 0) {
    on.World.ShowBox(1, random.Below(2) == 0 ? u"<AUTONUMBER>" : u"a");
  }
  on.World.ListAll(u"/R/");
}

TEST(DataSafety, RunThenUndoRestoresARandomTree) {
  constexpr unsigned FirstSeed = 1;
  constexpr unsigned Trees = 4000;
  unsigned changed = 0;
  for (unsigned seed = FirstSeed; seed < FirstSeed + Trees; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomTree random(seed);
    MemoryWorld on(PathStyle::Posix, seed % 3 == 0 ? LetterCase::Ignored : LetterCase::Matters);
    PrepareRun(random, on);
    const Contents before = on.Disk.Contents(u"/R/");
    on.World.RunAll();
    Contents after = on.Disk.Contents(u"/R/");
    ASSERT_EQ(BytesOf(after), BytesOf(before));
    Remove(after, "UNDORENAME.TXT");
    changed += after != before ? 1 : 0;
    on.World.Undo.cmdUndo_Click();
    ASSERT_EQ(on.Disk.Contents(u"/R/"), before);
    ASSERT_TRUE(on.World.Report.Reports.empty());
  }
  RecordProperty("changed", static_cast<int>(changed));
  EXPECT_GT(changed, Trees / 2);  // the operations do something
}

TEST(DataSafety, RunThenUndoRestoresRandomTreesOnARealDisk) {
  for (unsigned seed = 1; seed <= 60; ++seed) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    RandomTree random(seed);
    TemporaryFolder folder;
    MemoryFileSystem pattern;
    random.Fill(pattern, u"/R/");
    for (const auto& [name, bytes] : pattern.Contents(u"/R/")) {
      if (name.back() == '/') {
        folder.MakeFolder(name);
      } else if (name.back() != '@') {
        folder.Write(name, bytes);
      }
    }
    const auto before = folder.Contents();
    PosixFileSystem disk;
    FormWorld on(disk);
    on.State.IncludeSubFolders = random.Below(2) == 0;
    on.State.ListFolders = random.Below(4) == 0;
    on.SelectSteps(Operations()[random.Below(Operations().size())]);
    on.ListAll(folder.TextPath());
    on.RunAll();
    on.Undo.cmdUndo_Click();
    ASSERT_EQ(folder.Contents(), before);
  }
}

// For every N the Nth call fails, once and from then on. Whatever fails, no file's bytes are lost,
// and whatever the journal says can be taken back or is passed over.
TEST(DataSafety, NoFailingCallLosesAFile) {
  for (const auto& steps : Operations()) {
    for (const bool fromThenOn : {false, true}) {
      bool reachedEnd = false;
      for (std::size_t at = 1; !reachedEnd; ++at) {
        SCOPED_TRACE("call " + std::to_string(at) + (fromThenOn ? " and all later ones" : ""));
        MemoryWorld on;
        for (const Text name : {u"a.txt", u"A.TXT", u"b.txt", u"b/c.txt", u".a.txt"}) {
          on.Disk.Write(u"/R/" + name, "bytes of " + std::to_string(name.size()));
        }
        on.World.State.IncludeSubFolders = true;
        on.World.SelectSteps(steps);
        on.World.ShowBox(1, u"<AUTONUMBER>");
        on.World.ListAll(u"/R/");
        const Contents before = on.Disk.Contents(u"/R/");
        on.Disk.ForgetCalls();
        on.Disk.Failure = FailurePlan{.At = at, .FromThenOn = fromThenOn};
        on.World.RunAll();
        reachedEnd = on.Disk.CallCount < at;
        const Contents after = on.Disk.Contents(u"/R/");
        ASSERT_EQ(BytesOf(after), BytesOf(before));
        // Every rename that the journal tells of has happened, or its file still has the old name.
        on.Disk.Failure.reset();
        const auto journal = after.find("UNDORENAME.TXT");
        for (const std::string& line :
             JournalLines(journal == after.end() ? "" : journal->second)) {
          const auto fields = SplitRecord(line);
          if (fields[0] == "<VORL>") {
            const Text folder = TextOfJournalField(fields[1]);
            ASSERT_TRUE(on.Disk.Exists(folder + TextOfJournalField(fields[2])) ||
                        on.Disk.Exists(folder + TextOfJournalField(fields[3])))
                << line;
          }
        }
        on.World.Undo.cmdUndo_Click();
        ASSERT_EQ(BytesOf(on.Disk.Contents(u"/R/")), BytesOf(before));
        ASSERT_LT(at, 10'000U);
      }
    }
  }
}

// The same for undo: a failing call may leave a record undone, and never loses a file.
TEST(DataSafety, NoFailingCallInUndoLosesAFile) {
  for (const auto& steps : Operations()) {
    bool reachedEnd = false;
    for (std::size_t at = 1; !reachedEnd; ++at) {
      SCOPED_TRACE("call " + std::to_string(at));
      MemoryWorld on;
      for (const Text name : {u"a.txt", u"b.txt", u"b/c.txt"}) {
        on.Disk.Write(u"/R/" + name, "bytes of " + std::to_string(name.size()));
      }
      on.World.State.IncludeSubFolders = true;
      on.World.SelectSteps(steps);
      on.World.ListAll(u"/R/");
      const auto before = BytesOf(on.Disk.Contents(u"/R/"));
      on.World.RunAll();
      on.Disk.ForgetCalls();
      on.Disk.Failure = FailurePlan{.At = at};
      on.World.Undo.cmdUndo_Click();
      reachedEnd = on.Disk.CallCount < at;
      ASSERT_EQ(BytesOf(on.Disk.Contents(u"/R/")), before);
    }
  }
}

}  // namespace
}  // namespace vorlane
