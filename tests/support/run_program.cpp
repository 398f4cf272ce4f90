#include "support/run_program.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <stdlib.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <stdexcept>

namespace vorlane {

namespace {

constexpr unsigned SecondsUntilItHangs = 120;
constexpr int PollMilliseconds = 10;

struct Ends {
  int Ours = -1;
  int Theirs = -1;
};

int Checked(int result, const char* what) {
  if (result < 0) {
    throw std::runtime_error(what);
  }
  return result;
}

Ends OpenPipe() {
  std::array<int, 2> ends{};
  Checked(pipe2(ends.data(), O_CLOEXEC), "no pipe");
  return {ends[0], ends[1]};
}

Ends OpenTerminal() {
  const int ours = Checked(posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC), "no terminal");
  Checked(grantpt(ours), "no terminal");
  Checked(unlockpt(ours), "no terminal");
  std::array<char, 128> name{};
  Checked(-ptsname_r(ours, name.data(), name.size()), "no terminal");
  return {ours, Checked(open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC), "no terminal")};
}

int OpenInput(const std::string& input) {
  char name[] = "/tmp/vorlane-input-XXXXXX";
  const int file = Checked(mkostemp(name, O_CLOEXEC), "no input file");
  unlink(name);
  if (write(file, input.data(), input.size()) != static_cast<ssize_t>(input.size())) {
    throw std::runtime_error("can't write the input file");
  }
  lseek(file, 0, SEEK_SET);
  return file;
}

std::vector<std::string> EnvironmentOf(const ProgramCall& call, const std::string& home) {
  std::map<std::string, std::string> all = {
      {"HOME", home},
      {"TZ", "UTC"},
      {"XDG_CACHE_HOME", home + "cache"},
      {"XDG_CONFIG_HOME", home + "config"},
      {"XDG_DATA_HOME", home + "data"},
      {"XDG_STATE_HOME", home + "state"},
  };
  for (const auto& [name, value] : call.Environment) {
    all[name] = value;
  }
  std::vector<std::string> lines;
  for (const auto& [name, value] : all) {
    lines.push_back(name + "=" + value);
  }
  return lines;
}

std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

}  // namespace

ProgramFile::ProgramFile(std::string path)
    : path_(std::move(path)), descriptor_(open(path_.c_str(), O_PATH | O_CLOEXEC)) {}

ProgramFile::~ProgramFile() {
  close(descriptor_);
}

RunningProgram::RunningProgram(const ProgramFile& program, const ProgramCall& call) {
  const Ends output = call.OutputOnTerminal ? OpenTerminal() : OpenPipe();
  const Ends errors = call.ErrorsOnTerminal ? OpenTerminal() : OpenPipe();
  const int input = OpenInput(call.Input);
  std::vector<std::string> words = call.Arguments;
  words.insert(words.begin(), program.Path());
  std::vector<std::string> environment = EnvironmentOf(call, home_.Path());
  const auto arguments = Pointers(words);
  const auto variables = Pointers(environment);
  std::fflush(nullptr);
  process_ = Checked(fork(), "no process");
  if (process_ == 0) {
    const int full = call.OutputOnFullDevice ? open("/dev/full", O_WRONLY) : -1;
    dup2(input, STDIN_FILENO);
    dup2(call.OutputOnFullDevice ? full : output.Theirs, STDOUT_FILENO);
    dup2(errors.Theirs, STDERR_FILENO);
    if (chdir(call.Folder.c_str()) == 0) {
      alarm(SecondsUntilItHangs);
      fexecve(program.Descriptor(), arguments.data(), variables.data());
    }
    _exit(127);
  }
  close(input);
  close(output.Theirs);
  close(errors.Theirs);
  output_.End = output.Ours;
  errors_.End = errors.Ours;
}

RunningProgram::~RunningProgram() {
  for (Stream* stream : {&output_, &errors_}) {
    if (stream->End >= 0) {
      close(stream->End);
    }
  }
  if (process_ > 0) {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
  }
}

void RunningProgram::Signal(int number) const {
  kill(process_, number);
}

bool RunningProgram::WaitFor(const std::vector<Stream*>& streams, int milliseconds) {
  std::vector<pollfd> ends;
  for (const Stream* stream : streams) {
    ends.push_back({stream->End, POLLIN, 0});  // poll passes over an end of -1
  }
  if (poll(ends.data(), ends.size(), milliseconds) <= 0) {
    return false;
  }
  for (std::size_t i = 0; i < ends.size(); ++i) {
    if (ends[i].revents != 0) {
      constexpr std::size_t most = 65536;
      ReadOnce(*streams[i], most);
    }
  }
  return true;
}

void RunningProgram::ReadOnce(Stream& stream, std::size_t most) {
  std::string bytes(most, '\0');
  const ssize_t count = read(stream.End, bytes.data(), bytes.size());
  if (count > 0) {
    stream.Text.append(bytes, 0, static_cast<std::size_t>(count));
  } else {  // the end; a terminal whose other side is closed gives an error
    close(stream.End);
    stream.End = -1;
  }
}

void RunningProgram::ReadSomeOutput() {
  constexpr std::size_t some = 1024;
  if (output_.End >= 0) {
    ReadOnce(output_, some);
  }
}

const std::string& RunningProgram::ReadErrors() {
  WaitFor({&errors_}, PollMilliseconds);
  return errors_.Text;
}

ProgramResult RunningProgram::Finish() {
  while (output_.End >= 0 || errors_.End >= 0) {
    WaitFor({&output_, &errors_}, -1);
  }
  int status = 0;
  waitpid(process_, &status, 0);
  process_ = -1;
  return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), std::move(output_.Text),
          std::move(errors_.Text)};
}

ProgramResult RunProgram(const ProgramFile& program, const ProgramCall& call) {
  return RunningProgram(program, call).Finish();
}

}  // namespace vorlane
