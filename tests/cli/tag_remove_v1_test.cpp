// vorlane-cli tag-remove-v1.
#include "cli/run_cli.h"
#include "support/id3_bytes.h"

namespace vorlane {
namespace {

using id3::Audio;
using id3::V1;

class CliTagRemoveV1 : public testing::Test {
 protected:
  ProgramResult Remove(const std::string& before, std::vector<std::string> more = {}) {
    folder_.Write("a.mp3", before);
    more.insert(more.begin(), {"tag-remove-v1", Path()});
    return RunCli(more);
  }

  std::string Path() { return folder_.Path() + "a.mp3"; }
  std::string Bytes() { return folder_.Read("a.mp3"); }

  TemporaryFolder folder_;
};

TEST_F(CliTagRemoveV1, TakesTheTagOff) {
  const ProgramResult result = Remove(Audio(200) + V1("T", "A", "", "", "", 1, 0));
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(result.Output + result.Errors, "");
  EXPECT_EQ(Bytes(), Audio(200));
}

TEST_F(CliTagRemoveV1, WithoutATagThereIsNothingToDo) {
  EXPECT_EQ(Remove(Audio(200)).Status, 0);
  EXPECT_EQ(Bytes(), Audio(200));
}

TEST_F(CliTagRemoveV1, InJsonTheTagsAreToldAsTheyAreAfterwards) {
  const ProgramResult result = Remove(Audio(200) + V1("T", "A", "", "", "", 1, 0), {"--json"});
  EXPECT_EQ(result.Status, 0);
  EXPECT_EQ(Document(result)["file"], Path());
  EXPECT_EQ(Document(result)["id3v1"]["present"], false);
}

TEST_F(CliTagRemoveV1, AFileThatIsNothingButATagIsRefused) {
  const std::string before = V1("T", "A", "", "", "", 1, 0);
  EXPECT_EQ(RefusalOf(Remove(before), 1), Path() + ": Subscript out of range (error 9)");
  EXPECT_EQ(Bytes(), before);
  const ProgramResult json = Remove(before, {"--json"});
  EXPECT_EQ(json.Status, 1);
  EXPECT_EQ(json.Output, R"({"error":{"number":9,"description":"Subscript out of range"}})"
                         "\n");
}

TEST_F(CliTagRemoveV1, AFileThatIsNotThereIsStatus3) {
  EXPECT_EQ(RefusalOf(RunCli({"tag-remove-v1", Path()}), 3), "no such file: " + Path());
  EXPECT_EQ(RefusalOf(RunCli({"tag-remove-v1"}), 2), "FILE is required");
}

}  // namespace
}  // namespace vorlane
