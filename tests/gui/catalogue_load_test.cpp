// What becomes of the two files beside the program when they can't be read.
#include "ui/catalogue_load.h"

#include "gui/window_world.h"
#include "support/memory_file_system.h"

namespace vorlane {
namespace {

struct CatalogueLoadTest : testing::Test {
  void WriteUnreadable(TextView path) {
    Files.Write(path, "<A>");
    Files.SetUnreadable(path);
  }

  using Reports = std::vector<RecordingReport::Report>;
  MemoryFileSystem Files;
  WindowWorld World;
  ProgramServices Services{Files,        World.Time,   World.Report,   World.Prompts,
                           World.Memory, World.Sounds, World.Clipboard};
};

TEST_F(CatalogueLoadTest, AnUnreadableKeywordListIsReportedAndTheListStaysEmpty) {
  WriteUnreadable(u"/app/KeywordList.ini");
  LoadKeywords(World.Main, Services, u"/app/");
  EXPECT_EQ(World.Report.Reports, (Reports{{u"frmMain", u"LoadKeywordListFromFile", u"",
                                            static_cast<int>(ErrorNumber::PermissionDenied)}}));
  EXPECT_TRUE(World.Prompts.Boxes.empty());
  EXPECT_EQ(World.Find<QComboBox>("cboKeywords").count(), 0);
}

TEST_F(CatalogueLoadTest, UnreadableOperationsAreReportedAndTheTreeStaysEmpty) {
  WriteUnreadable(u"/app/Operations.ini");
  LoadOperations(World.Main, Services, u"/app/");
  EXPECT_EQ(World.Report.Reports, (Reports{{u"frmMain", u"LoadInterfaceElements", u"",
                                            static_cast<int>(ErrorNumber::PermissionDenied)}}));
  EXPECT_TRUE(World.Prompts.Boxes.empty());
  EXPECT_EQ(World.Find<QTreeView>("lstRenamingOperations").model()->rowCount(), 0);
}

}  // namespace
}  // namespace vorlane
