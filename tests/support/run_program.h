// Runs a built program as a user would: a process of its own, with real pipes and a home of its
// own. Arguments and texts are bytes.
#pragma once

#include <sys/types.h>

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "support/temporary_folder.h"

namespace vorlane {

struct ProgramCall {
  std::vector<std::string> Arguments;  // behind the program's name
  std::string Input{};                 // what stands on standard input

  // Besides HOME and the XDG folders, which are the program's own; nothing else is handed down.
  std::map<std::string, std::string> Environment{};

  std::string Folder = "/";         // where it works
  bool ErrorsOnTerminal = false;    // standard error is a terminal
  bool OutputOnTerminal = false;    // standard output is one
  bool OutputOnFullDevice = false;  // standard output takes nothing
};

struct ProgramResult {
  int Status = -1;  // the exit status, or 128 and the number of the signal that ended the program
  std::string Output;
  std::string Errors;
};

// A built program, opened when this is made: it can be run by an ordinary user who may not enter
// the folders above it.
class ProgramFile {
 public:
  explicit ProgramFile(std::string path);
  ProgramFile(const ProgramFile&) = delete;
  ProgramFile& operator=(const ProgramFile&) = delete;
  ~ProgramFile();

  const std::string& Path() const { return path_; }
  int Descriptor() const { return descriptor_; }

 private:
  std::string path_;
  int descriptor_;
};

// A program while it runs. It is ended with this object if it still runs then, and by the system
// if it hangs.
class RunningProgram {
 public:
  RunningProgram(const ProgramFile& program, const ProgramCall& call);
  RunningProgram(const RunningProgram&) = delete;
  RunningProgram& operator=(const RunningProgram&) = delete;
  ~RunningProgram();

  void Signal(int number) const;

  // Reads some of what the program writes; nothing of it is lost, Finish gives it all. Until
  // somebody reads, a program that writes much is held up in the middle of its work.
  void ReadSomeOutput();
  // What stands on standard error so far.
  const std::string& ReadErrors();

  ProgramResult Finish();

 private:
  struct Stream {
    int End = -1;  // -1: closed
    std::string Text;
  };

  static bool WaitFor(const std::vector<Stream*>& streams, int milliseconds);
  static void ReadOnce(Stream& stream, std::size_t most);

  TemporaryFolder home_;
  pid_t process_ = -1;
  Stream output_;
  Stream errors_;
};

ProgramResult RunProgram(const ProgramFile& program, const ProgramCall& call);

}  // namespace vorlane
