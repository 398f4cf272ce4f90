// The whole job on real folders: list, preview, apply and undo, beside the bare loop.
//
// Every round goes through all jobs of a folder, so that what slows the machine down for a while
// falls upon all of them. Waiting writes are flushed before each job that changes the disk. What
// was just made is in the system's cache: the times are those of a warm start. The processor times
// leave out what other programs took.
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <stdexcept>

#include "bare_loop.h"
#include "batch/batch_run.h"
#include "batch/undo_run.h"
#include "engine/disk_facts.h"
#include "figures.h"
#include "filelist/file_list.h"
#include "form/form.h"
#include "platform/file_name_bytes.h"
#include "platform/posix_file_system.h"
#include "preview/preview.h"
#include "support/temporary_folder.h"

namespace vorlane {

namespace {

constexpr int Rounds = 5;

constexpr TextView RenamingStep = u"Song <UPPERCASE><NAMEONLY></UPPERCASE><EXTONLY>";
constexpr TextView SameNameStep = u"Same<EXTONLY>";

std::string OldName(std::int32_t number) {
  return "01 - the first song " + std::to_string(1'000'000 + number) + ".txt";
}

std::string NewName(std::int32_t number) {
  return "Song 01 - THE FIRST SONG " + std::to_string(1'000'000 + number) + ".txt";
}

void Require(bool holds, const char* what) {
  if (!holds) {
    throw std::runtime_error(what);
  }
}

// Failures and questions don't belong to the job.
class NoReport final : public FailureReport {
 public:
  void ReportError(TextView, TextView procedure, TextView, const RunError& error) override {
    throw std::runtime_error(DisplayUtf8(procedure) + ": " + DisplayUtf8(error.Description()));
  }
};

class NoBoxes final : public Prompter {
 public:
  void Show(BoxIcon, TextView, TextView text) override {
    throw std::runtime_error(DisplayUtf8(text));
  }
  BoxAnswer AskYesNo(BoxIcon, TextView, TextView text, BoxAnswer) override {
    throw std::runtime_error(DisplayUtf8(text));
  }
};

class NoEvents final : public MessageLoop {
 public:
  void Yield() override {}
  void YieldBlocking(int) override {}
};

// The form with all that belongs to it, as a program without a window makes it.
class Job {
 public:
  Job(const TemporaryFolder& folder, TextView step) {
    form_.CurrentPath = folder.TextPath();
    form_.DoAll = true;
    form_.OperationCodes = {Text(), Text(u"Step:").append(step).append(u"\r\n")};
  }

  // No operation is selected meanwhile, so the first row isn't previewed yet.
  void List() {
    form_.SelectedOperation = 0;
    list_.PathChangedEvent();
    form_.SelectedOperation = 1;
  }
  void PreviewAll() { previews_.UpdateFilePreviewAll(true, 0); }
  void Apply() { batch_.cmdGo_Click(); }
  void Undo() { undo_.cmdUndo_Click(); }

  const FileRows& Rows() const { return form_.Rows; }

 private:
  SystemClock time_;
  PosixFileSystem files_;
  NoReport report_;
  NoBoxes boxes_;
  NoEvents loop_;
  FormView view_;
  Services outside_{files_, time_, loop_, report_, boxes_};
  Form form_{view_, loop_};
  DiskFacts facts_{files_, time_, report_, boxes_};
  Preview previews_{form_, outside_, facts_};
  FileList list_{form_, outside_, previews_};
  BatchRun batch_{form_, outside_, facts_, previews_, list_};
  UndoRun undo_{form_, outside_, list_};
};

// A folder of files, which every round leaves as it found it.
class SongFolder {
 public:
  explicit SongFolder(std::int32_t files) : files_(files) {
    for (std::int32_t i = 1; i <= files; ++i) {
      folder_.Write(OldName(i));
      there_.push_back({folder_.Path() + OldName(i), folder_.Path() + NewName(i),
                        "<VORL>|" + folder_.Path() + "|" + OldName(i) + "|" + NewName(i) + "\r\n"});
      back_.push_back({there_.back().To, there_.back().From, there_.back().Record});
    }
    // The first renames let the folder itself grow.
    BareRenames(there_);
    RenameBack();
  }

  const TemporaryFolder& Folder() const { return folder_; }
  std::int32_t Count() const { return files_; }
  const std::vector<BareRename>& Renames() const { return there_; }
  std::string Journal() const { return folder_.Path() + "UNDORENAME.TXT"; }

  // A failure means that the job before wasn't complete.
  void RenameBack() const {
    BareRenames(back_);
    std::remove(Journal().c_str());
    sync();
  }

 private:
  const std::int32_t files_;
  TemporaryFolder folder_;
  std::vector<BareRename> there_;
  std::vector<BareRename> back_;
};

struct RunTimes {
  Times List;
  Times Preview;
  Times Apply;
  Times BareKeptOpen;
  Times BareOpenedForEach;

  void Measure(const SongFolder& songs) {
    MeasureJob(songs);
    BareKeptOpen.push_back(
        TimeOf([&] { BareRenamesJournalKeptOpen(songs.Renames(), songs.Journal()); }));
    songs.RenameBack();
    BareOpenedForEach.push_back(
        TimeOf([&] { BareRenamesJournalOpenedForEach(songs.Renames(), songs.Journal()); }));
    songs.RenameBack();
  }

 private:
  void MeasureJob(const SongFolder& songs) {
    Job job(songs.Folder(), RenamingStep);
    List.push_back(TimeOf([&] { job.List(); }));
    Require(job.Rows().Count() == songs.Count(), "the listing isn't complete");
    Preview.push_back(TimeOf([&] { job.PreviewAll(); }));
    Require(job.Rows().At(songs.Count()).Proposed == AsciiText(NewName(songs.Count())),
            "the preview is wrong");
    // The run does its own preview of all rows; it is to find the list as it was.
    job.List();
    Apply.push_back(TimeOf([&] { job.Apply(); }));
    songs.RenameBack();
  }
};

struct UndoTimes {
  Times Undo;
  Times Bare;

  void Measure(const SongFolder& songs) {
    Job job(songs.Folder(), RenamingStep);
    job.List();
    job.Apply();
    sync();
    Undo.push_back(TimeOf([&] { job.Undo(); }));
    sync();
    Bare.push_back(TimeOf([&] { BareRenames(songs.Renames()); }));
    songs.RenameBack();
  }
};

Times SameNamePreviews(const SongFolder& songs) {
  Job job(songs.Folder(), SameNameStep);
  job.List();
  Times times;
  for (int round = 0; round < Rounds; ++round) {
    times.push_back(TimeOf([&] { job.PreviewAll(); }));
    Require(job.Rows().At(songs.Count()).Proposed ==
                u"(" + DecimalText(songs.Count() - 1) + u")Same.txt",
            "the preview is wrong");
  }
  return times;
}

void MeasureRuns(const SongFolder& songs) {
  RunTimes times;
  for (int round = 0; round < Rounds; ++round) {
    times.Measure(songs);
  }
  PrintHeading(std::to_string(songs.Count()) + " files");
  PrintTimes("list", times.List);
  PrintTimes("preview of all rows", times.Preview);
  PrintTimes("apply, with its preview, checks and journal", times.Apply);
  PrintTimes("bare loop, journal kept open", times.BareKeptOpen);
  PrintTimes("bare loop, journal opened for each record", times.BareOpenedForEach);
  PrintRatio("apply / bare loop, journal kept open", times.Apply, times.BareKeptOpen);
  PrintRatio("apply / bare loop, journal opened for each record", times.Apply,
             times.BareOpenedForEach);
}

void MeasureUndo(const SongFolder& songs) {
  UndoTimes times;
  for (int round = 0; round < Rounds; ++round) {
    times.Measure(songs);
  }
  PrintHeading("\n" + std::to_string(songs.Count()) + " files (undo takes 32,767 records at most)");
  PrintTimes("undo, with the listing after it", times.Undo);
  PrintTimes("bare loop, renames alone", times.Bare);
  PrintRatio("undo / bare loop", times.Undo, times.Bare);
}

void RunAll() {
  const SongFolder songs(100'000);
  MeasureRuns(songs);
  MeasureUndo(SongFolder(30'000));
  PrintHeading("\nAll rows propose the same name");
  PrintTimes("preview of 25000 rows", SameNamePreviews(SongFolder(25'000)));
  PrintTimes("preview of 50000 rows", SameNamePreviews(SongFolder(50'000)));
  PrintTimes("preview of 100000 rows", SameNamePreviews(songs));
}

}  // namespace

}  // namespace vorlane

int main() {
  try {
    vorlane::RunAll();
  } catch (const std::exception& error) {
    std::cerr << "whole_job_bench: " << error.what() << '\n';
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
