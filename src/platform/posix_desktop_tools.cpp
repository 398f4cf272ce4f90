#include "platform/posix_desktop_tools.h"

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "platform/file_name_bytes.h"
#include "platform/posix_handle.h"

extern char** environ;

namespace vorlane {

namespace {

using std::chrono::milliseconds;
using std::chrono::steady_clock;

struct RunningTool {
  pid_t Process = -1;
  FileHandle Output;
};

// The tool has nothing to read, and its messages go nowhere. It leads a group of its own, with
// everything that it starts.
std::optional<RunningTool> StartTool(const std::vector<std::string>& arguments) {
  std::array<int, 2> ends{};
  if (pipe2(ends.data(), O_CLOEXEC) != 0) {
    return std::nullopt;
  }
  RunningTool tool{-1, FileHandle(ends[0])};
  const FileHandle writeEnd(ends[1]);
  std::vector<char*> words;
  words.reserve(arguments.size() + 1);
  for (const std::string& argument : arguments) {
    words.push_back(const_cast<char*>(argument.c_str()));
  }
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawnattr_t attributes;
  posix_spawn_file_actions_init(&actions);
  posix_spawnattr_init(&attributes);
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_addopen(&actions, STDERR_FILENO, "/dev/null", O_WRONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, writeEnd.Descriptor(), STDOUT_FILENO);
  posix_spawnattr_setflags(&attributes, POSIX_SPAWN_SETPGROUP);
  const int error =
      posix_spawnp(&tool.Process, words[0], &actions, &attributes, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  posix_spawnattr_destroy(&attributes);
  return error == 0 ? std::optional(std::move(tool)) : std::nullopt;
}

// What the tool writes until it closes its output; nothing if that takes too long.
std::optional<std::string> ReadOutput(const FileHandle& output, steady_clock::time_point deadline) {
  std::string text;
  for (;;) {
    const auto left = std::chrono::duration_cast<milliseconds>(deadline - steady_clock::now());
    pollfd end{output.Descriptor(), POLLIN, 0};
    const int ready = poll(&end, 1, static_cast<int>(std::max(left, milliseconds(0)).count()));
    if (ready < 0 && errno == EINTR) {
      continue;
    }
    if (ready <= 0) {
      return std::nullopt;
    }
    std::array<char, 512> buffer{};
    const ssize_t count = read(output.Descriptor(), buffer.data(), buffer.size());
    if (count <= 0) {
      return text;
    }
    text.append(buffer.data(), static_cast<std::size_t>(count));
  }
}

// True if the tool ends well by then.
bool HasEndedWell(pid_t process, steady_clock::time_point deadline) {
  constexpr milliseconds pause(2);
  for (;;) {
    int status = -1;
    const pid_t ended = waitpid(process, &status, WNOHANG);
    if (ended != 0 || steady_clock::now() >= deadline) {
      return ended == process && status == 0;
    }
    std::this_thread::sleep_for(pause);
  }
}

// The tool's output; empty if it isn't installed, fails or takes too long.
std::string OutputOf(const std::vector<std::string>& arguments, milliseconds patience) {
  const auto tool = StartTool(arguments);
  if (!tool) {
    return {};
  }
  const auto deadline = steady_clock::now() + patience;
  const auto output = ReadOutput(tool->Output, deadline);
  if (output && HasEndedWell(tool->Process, deadline)) {
    return *output;
  }
  kill(-tool->Process, SIGKILL);
  waitpid(tool->Process, nullptr, 0);
  return {};
}

}  // namespace

Text PosixDesktopTools::DefaultFolderHandler() {
  const std::string output =
      OutputOf({"xdg-mime", "query", "default", "inode/directory"}, patience_);
  return TextFromBytes(output.substr(0, output.find('\n')));
}

void PosixDesktopTools::UpdateDesktopDatabase(TextView folder) {
  if (const auto bytes = BytesFromText(folder)) {
    OutputOf({"update-desktop-database", *bytes}, patience_);
  }
}

}  // namespace vorlane
