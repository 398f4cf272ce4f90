// Every operation that is shipped does to real files what its samples say, and Undo takes it back.
// The samples stand in tests/data/operations/samples.txt; docs/operations.md shows them.
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

#include "catalogue/operation_keys.h"
#include "support/literal_tags.h"
#include "support/operation_samples.h"
#include "support/sample_files.h"
#include "support/shipped_catalogue.h"

namespace vorlane {
namespace {

const std::vector<OperationSample>& Samples() {
  static const auto samples = ReadOperationSamples();
  return samples;
}

// One sample in a folder of its own. Folders on the way to an entry needn't be named.
class SampleRun {
 public:
  explicit SampleRun(const OperationSample& sample) : sample_(sample), catalogue_(folder_) {
    for (const SampleEntry& entry : sample.Entries) {
      if (entry.Facts.IsFolder) {
        folder_.MakeFolder(entry.Before);
        continue;
      }
      folder_.Write(entry.Before, SampleBytes(entry));
      if (!entry.Facts.Changed.empty()) {
        SetChangeTime(folder_.Path() + entry.Before, entry.Facts.Changed);
      }
    }
    before_ = folder_.Contents();
    creationDay_ = CreationDay(folder_.Path() + sample.Entries.at(0).Before);
  }

  void Go() {
    if (!sample_.Today.empty()) {
      catalogue_.SetToday(sample_.Today);
    }
    catalogue_.Select(sample_.Operation, sample_.Folder, sample_.ListFolders);
    if (!sample_.Wildcard.empty()) {
      catalogue_.List(sample_.Wildcard);
    }
    if (!sample_.Only.empty()) {
      catalogue_.PickRow(sample_.Only);
    }
    for (const auto& [box, text] : sample_.Boxes) {
      catalogue_.Type(box, text);
    }
    catalogue_.Go();
    auto found = folder_.Contents();
    for (const SampleEntry& entry : sample_.Entries) {
      ExpectEntry(entry, NameAfter(entry), entry.Changes, found);
    }
    ExpectNothingElse(found);
  }

  void Undo() {
    catalogue_.Undo();
    isUndone_ = true;
    auto found = folder_.Contents();
    for (const SampleEntry& entry : sample_.Entries) {
      ExpectEntry(entry, entry.Before, entry.Leaves.value_or(SampleTraits()), found);
    }
    ExpectNothingElse(found);
    catalogue_.ExpectQuiet();
  }

 private:
  using Files = std::map<std::string, std::string>;

  // "YYYY-MM-DD" stands for the day on which the file was made: nobody can set that.
  std::string NameAfter(const SampleEntry& entry) const {
    std::string name = entry.After;
    if (name.starts_with("YYYY-MM-DD")) {
      name.replace(0, 10, creationDay_);
    }
    return name;
  }

  // Takes the entry out of `found`.
  void ExpectEntry(const SampleEntry& entry, const std::string& name, const SampleTraits& changes,
                   Files& found) const {
    SCOPED_TRACE("samples.txt:" + std::to_string(entry.Line));
    if (entry.Facts.IsFolder) {
      EXPECT_EQ(found.erase(name + "/"), 1U) << name;
      return;
    }
    const auto file = found.find(name);
    if (file == found.end()) {
      ADD_FAILURE() << "no " << name;
      return;
    }
    const std::string& old = before_.at(entry.Before);
    if (changes.HasTags()) {
      EXPECT_NE(file->second, old) << "a change that is told, but not made";
      ExpectTags(file->second, old, changes);
      const auto audio = file->second.find(SampleAudio(entry));
      ASSERT_NE(audio, std::string::npos) << "the audio has changed";
    } else {
      EXPECT_TRUE(file->second == old) << name << " has other bytes";
    }
    found.erase(file);
  }

  static void ExpectTags(const std::string& bytes, const std::string& old,
                         const SampleTraits& changes) {
    {
      SCOPED_TRACE("ID3v1");
      const ID3Tag before = literal::ReadV1(old);
      if (changes.V1) {
        ExpectTag(literal::ReadV1(bytes), before, *changes.V1);
      } else {
        EXPECT_TRUE(literal::ReadV1(bytes) == before);
      }
    }
    SCOPED_TRACE("ID3v2");
    const ID3Tag before = literal::ReadV2(old);
    if (changes.V2) {
      ExpectTag(literal::ReadV2(bytes), before, *changes.V2);
    } else {
      EXPECT_TRUE(literal::ReadV2(bytes) == before);
    }
  }

  // Folders that hold an entry of the sample may be there.
  void ExpectNothingElse(const Files& found) const {
    for (const auto& [name, bytes] : found) {
      const bool isOnTheWay = name.ends_with('/') && before_.count(name) == 1;
      const bool isJournal = !isUndone_ && name == sample_.Folder + "UNDORENAME.TXT";
      EXPECT_TRUE(isOnTheWay || IsMade(name) || isJournal) << "there is a " << name;
    }
  }

  bool IsMade(const std::string& folder) const {
    return folder.ends_with('/') && !isUndone_ &&
           std::any_of(sample_.Entries.begin(), sample_.Entries.end(),
                       [&](const SampleEntry& entry) { return entry.After.starts_with(folder); });
  }

  const OperationSample& sample_;
  const TemporaryFolder folder_;
  ShippedCatalogue catalogue_;
  Files before_;
  std::string creationDay_;
  bool isUndone_ = false;
};

class ShippedOperation : public testing::TestWithParam<std::string> {};

TEST_P(ShippedOperation, DoesWhatItsSamplesSay) {
  int shown = 0;
  for (const OperationSample& sample : Samples()) {
    if (sample.Operation != GetParam()) {
      continue;
    }
    SCOPED_TRACE("samples.txt:" + std::to_string(sample.Line));
    shown += static_cast<int>(std::count_if(sample.Entries.begin(), sample.Entries.end(),
                                            [](const SampleEntry& entry) { return entry.InDocs; }));
    SampleRun run(sample);
    run.Go();
    run.Undo();
  }
  EXPECT_GT(shown, 0) << "no sample to show in the docs";
}

// The same sample with its first entry that changes selected, one file at a time: nothing else
// does.
std::optional<OperationSample> ForOneFile(OperationSample sample) {
  const auto changes = [](const SampleEntry& entry) {
    return entry.After != entry.Before || entry.Changes.HasTags();
  };
  const auto first = std::find_if(sample.Entries.begin(), sample.Entries.end(), changes);
  if (first == sample.Entries.end() || !sample.Only.empty()) {
    return std::nullopt;
  }
  sample.Only = first->Before.substr(sample.Folder.size());
  for (auto entry = sample.Entries.begin(); entry != sample.Entries.end(); ++entry) {
    if (entry != first) {
      entry->After = entry->Before;
      entry->Changes = {};
      entry->Leaves.reset();
    }
  }
  return sample;
}

TEST_P(ShippedOperation, DoesTheSameToOneFileAtATime) {
  for (const OperationSample& told : Samples()) {
    const auto sample = ForOneFile(told);
    if (told.Operation == GetParam() && sample) {
      SCOPED_TRACE("samples.txt:" + std::to_string(sample->Line));
      SampleRun run(*sample);
      run.Go();
      run.Undo();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, ShippedOperation, testing::ValuesIn(ShippedOperationPaths()),
                         NameOfPath);

TEST(ShippedSamples, AreOfOperationsThatThereAre) {
  const auto paths = ShippedOperationPaths();
  for (const OperationSample& sample : Samples()) {
    EXPECT_EQ(std::count(paths.begin(), paths.end(), sample.Operation), 1)
        << "samples.txt:" << sample.Line;
  }
}

bool LeavesSomething(const std::string& operation) {
  return std::any_of(Samples().begin(), Samples().end(), [&](const OperationSample& sample) {
    return sample.Operation == operation &&
           std::any_of(sample.Entries.begin(), sample.Entries.end(),
                       [](const SampleEntry& entry) { return entry.Leaves.has_value(); });
  });
}

TEST(ShippedSamples, UndoLeavesSomethingWhereTheHelpSaysSoAndNowhereElse) {
  const OperationsTree tree = LoadShippedOperations();
  for (const auto& [path, index] : OperationsByPath(tree)) {
    const OperationKeys keys = ReadOperationKeys(tree.OperationCodes.at(index));
    EXPECT_EQ(Contains(keys.HelpMessage.value_or(u""), u"Beyond Undo: "), LeavesSomething(path))
        << path;
  }
}

}  // namespace
}  // namespace vorlane
