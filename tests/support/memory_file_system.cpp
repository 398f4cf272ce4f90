#include "support/memory_file_system.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "platform/file_name_bytes.h"

namespace vorlane {

namespace {

bool IsHiddenName(TextView name) {
  if (name == u"." || name == u"..") {
    return false;
  }
  return name.starts_with(u'.') || name == JournalName;
}

}  // namespace

MemoryFileSystem::MemoryFileSystem(PathStyle style, LetterCase letterCase)
    : style_(style), tree_(style, letterCase == LetterCase::Ignored) {}

// The log and the failures.

void MemoryFileSystem::ForgetCalls() {
  Calls.clear();
  CallCount = 0;
  MutationCount = 0;
}

bool MemoryFileSystem::Query(TextView method, TextView path) {
  return Begin({Text(method), Text(path), {}, false, ++CallCount, 0});
}

bool MemoryFileSystem::Action(TextView method, TextView path, TextView target) {
  return Begin({Text(method), Text(path), Text(target), true, ++CallCount, ++MutationCount});
}

bool MemoryFileSystem::Begin(CallInfo call) {
  Calls.push_back(call.Method + u" " + call.Path +
                  (call.Target.empty() ? Text() : u" -> " + call.Target));
  const std::size_t number = Failure && Failure->OnlyMutating ? call.MutationNumber : call.Number;
  if (BeforeCall) {
    BeforeCall(call);
  }
  return !Failure || (Failure->FromThenOn ? number < Failure->At : number != Failure->At);
}

void MemoryFileSystem::ThrowPlanned() const {
  throw RunError(Failure->Error);
}

// Queries.

EntryStatus MemoryFileSystem::StatusFor(const MemoryNode* node, TextView name) const {
  if (node == nullptr) {
    return {};
  }
  EntryStatus status;
  status.Kind = node->Kind == MemoryKind::File     ? EntryKind::File
                : node->Kind == MemoryKind::Folder ? EntryKind::Folder
                                                   : EntryKind::Other;
  status.Hidden = IsHiddenName(name);
  status.ReadOnly = node->ReadOnly;
  status.Size = node->ReportedSize.value_or(node->Bytes.size());
  return status;
}

EntryStatus MemoryFileSystem::StatusOf(TextView path) {
  if (!Query(u"StatusOf", path)) {
    return {};
  }
  const auto spot = tree_.Locate(path);
  return spot ? StatusFor(tree_.Resolve(path).get(), spot->Name) : EntryStatus();
}

bool MemoryFileSystem::NameExists(TextView path) {
  return Query(u"NameExists", path) && tree_.Lookup(path) != nullptr;
}

std::optional<FileIdentity> MemoryFileSystem::IdentityOf(TextView path) {
  if (!Query(u"IdentityOf", path)) {
    return std::nullopt;
  }
  const auto node = tree_.Lookup(path);
  if (!node) {
    return std::nullopt;
  }
  FileIdentity identity = node->Identity;
  identity.HasOneName = TellsOfOneName;
  return identity;
}

MemoryNodePointer MemoryFileSystem::ReadableFolder(TextView folder) const {
  const auto node = tree_.Resolve(folder);
  if (!node || node->Kind != MemoryKind::Folder || node->Unreadable) {
    throw RunError(ErrorNumber::PathNotFound);
  }
  return node;
}

std::vector<FolderEntry> MemoryFileSystem::ListFolder(TextView folder) {
  if (!Query(u"ListFolder", folder)) {
    throw RunError(ErrorNumber::PathNotFound);
  }
  const auto node = ReadableFolder(folder);
  std::vector<FolderEntry> entries;
  for (auto child = node->Children.rbegin(); child != node->Children.rend(); ++child) {
    const auto& [name, entry] = child->second;
    const auto end = tree_.Follow(node, entry);
    entries.push_back({name, StatusFor(end.get(), name), end ? end->Identity : FileIdentity(),
                       entry->Kind == MemoryKind::Link});
  }
  return entries;
}

std::vector<Text> MemoryFileSystem::ListNames(TextView folder) {
  if (!Query(u"ListNames", folder)) {
    throw RunError(ErrorNumber::PathNotFound);
  }
  const auto node = ReadableFolder(folder);
  std::vector<Text> names;
  for (auto child = node->Children.rbegin(); child != node->Children.rend(); ++child) {
    names.push_back(child->second.Name);
  }
  return names;
}

std::optional<FileTimes> MemoryFileSystem::TimesOf(TextView path) {
  if (!Query(u"TimesOf", path)) {
    return std::nullopt;
  }
  const auto node = tree_.Resolve(path);
  if (!node || node->Kind != MemoryKind::File || node->Unreadable) {
    return std::nullopt;
  }
  return node->Times;
}

EntryUse MemoryFileSystem::UseOf(TextView path) {
  if (!Query(u"UseOf", path)) {
    return {};
  }
  const auto spot = tree_.Locate(path);
  const auto node = spot ? tree_.Resolve(path) : nullptr;
  EntryUse use{node ? StatusFor(node.get(), spot->Name) : EntryStatus()};
  const EntryStatus& status = use.Status;
  use.InUse = status.Kind == EntryKind::File && !status.Hidden && !status.ReadOnly &&
              !node->Unreadable && (node->InUse || node->Writers > 0);
  return use;
}

// Bytes.

class MemoryFileSystem::Handle final : public OpenFile {
 public:
  Handle(MemoryFileSystem& files, MemoryNodePointer node, TextView path, OpenMode mode)
      : files_(files), node_(std::move(node)), path_(path), isWriter_(mode == OpenMode::ReadWrite) {
    node_->Writers += isWriter_ ? 1 : 0;
  }
  Handle(const Handle&) = delete;
  Handle& operator=(const Handle&) = delete;
  ~Handle() override { node_->Writers -= isWriter_ ? 1 : 0; }

  std::uint64_t Size() override {
    if (!files_.Query(u"Size", path_)) {
      files_.ThrowPlanned();
    }
    return node_->Bytes.size();
  }

  std::string ReadAt(std::uint64_t position, std::size_t length) override {
    if (!files_.Query(u"ReadAt", path_)) {
      files_.ThrowPlanned();
    }
    return position < node_->Bytes.size() ? node_->Bytes.substr(position, length) : std::string();
  }

  void WriteAt(std::uint64_t position, std::string_view bytes) override {
    const bool allowed = files_.Action(u"WriteAt", path_);
    RequireWriting();
    if (!allowed) {
      Put(position, bytes.substr(0, bytes.size() / 2));
      files_.ThrowPlanned();
    }
    if (Put(position, bytes) < bytes.size()) {
      throw RunError(ErrorNumber::DiskFull);
    }
  }

  void SetSize(std::uint64_t size) override {
    const bool allowed = files_.Action(u"SetSize", path_);
    RequireWriting();
    if (!allowed) {
      files_.ThrowPlanned();
    }
    node_->Bytes.resize(size);
  }

  void Close() override {
    node_->Writers -= std::exchange(isWriter_, false) ? 1 : 0;
    if (!files_.Query(u"Close", path_)) {
      files_.ThrowPlanned();
    }
  }

 private:
  void RequireWriting() const {
    if (!isWriter_) {
      throw RunError(ErrorNumber::PathAccess);
    }
  }

  // Writes as much as there is room for, and returns how much that was.
  std::size_t Put(std::uint64_t position, std::string_view bytes) {
    std::string& content = node_->Bytes;
    const std::size_t inside =
        position < content.size() ? std::min(bytes.size(), content.size() - position) : 0;
    const std::size_t count = inside + files_.TakeRoom(bytes.size() - inside);
    if (count > 0) {
      content.resize(std::max<std::size_t>(content.size(), position + count));
      content.replace(position, count, bytes.substr(0, count));
    }
    return count;
  }

  MemoryFileSystem& files_;
  MemoryNodePointer node_;
  Text path_;
  bool isWriter_;  // until it is closed
};

EntryUse MemoryFileSystem::UseAndOpen(TextView path) {
  EntryUse use = UseOf(path);
  const auto node = tree_.Resolve(path);
  const EntryStatus& status = use.Status;
  if (status.Kind == EntryKind::File && !status.Hidden && !status.ReadOnly && !use.InUse &&
      !node->Unreadable) {
    use.File = std::make_unique<Handle>(*this, node, path, OpenMode::Read);
  }
  return use;
}

MemoryNodePointer MemoryFileSystem::ReadableFile(TextView path) const {
  const auto node = tree_.Resolve(path);
  if (!node) {
    throw RunError(ErrorNumber::FileNotFound);
  }
  if (node->Kind != MemoryKind::File) {
    throw RunError(ErrorNumber::PathAccess);
  }
  if (node->Unreadable) {
    throw RunError(ErrorNumber::PermissionDenied);
  }
  return node;
}

std::string MemoryFileSystem::ReadFileBytes(TextView path) {
  if (!Query(u"ReadFileBytes", path)) {
    ThrowPlanned();
  }
  return ReadableFile(path)->Bytes;
}

std::unique_ptr<OpenFile> MemoryFileSystem::Open(TextView path, OpenMode mode) {
  if (!Query(u"Open", path)) {
    ThrowPlanned();
  }
  auto node = ReadableFile(path);
  if (mode == OpenMode::ReadWrite && node->ReadOnly) {
    throw RunError(ErrorNumber::PermissionDenied);
  }
  return std::make_unique<Handle>(*this, std::move(node), path, mode);
}

std::size_t MemoryFileSystem::TakeRoom(std::size_t bytes) {
  const std::size_t taken = FreeBytes ? std::min<std::size_t>(bytes, *FreeBytes) : bytes;
  if (FreeBytes) {
    *FreeBytes -= taken;
  }
  return taken;
}

void MemoryFileSystem::CreateFile(TextView path, std::string_view bytes) {
  if (!Action(u"CreateFile", path)) {
    ThrowPlanned();
  }
  if (!BytesFromText(path)) {
    throw RunError(ErrorNumber::BadFileName);
  }
  const auto spot = tree_.Locate(path);
  if (!spot) {
    throw RunError(ErrorNumber::PathNotFound);
  }
  if (spot->Node) {
    throw RunError(ErrorNumber::FileExists);
  }
  if (spot->EndsInSeparator) {
    throw RunError(ErrorNumber::PathAccess);
  }
  if (spot->Folder->ReadOnly) {
    throw RunError(ErrorNumber::PermissionDenied);
  }
  if (FreeBytes && *FreeBytes < bytes.size()) {
    throw RunError(ErrorNumber::DiskFull);
  }
  TakeRoom(bytes.size());
  tree_.Put(*spot, MemoryKind::File)->Bytes = bytes;
}

void MemoryFileSystem::AppendToFile(TextView path, std::string_view bytes) {
  if (!Action(u"AppendToFile", path)) {
    ThrowPlanned();
  }
  const auto node = tree_.Lookup(path);
  if (!node) {
    throw RunError(ErrorNumber::FileNotFound);
  }
  if (node->Kind != MemoryKind::File) {
    throw RunError(ErrorNumber::PathAccess);
  }
  if (node->ReadOnly) {
    throw RunError(ErrorNumber::PermissionDenied);
  }
  if (FreeBytes && *FreeBytes < bytes.size()) {
    throw RunError(ErrorNumber::DiskFull);
  }
  TakeRoom(bytes.size());
  node->Bytes += bytes;
}

// Names and folders.

// The spot of an entry that may be taken out of its folder.
std::optional<MemorySpot> MemoryFileSystem::RemovableSpot(TextView path) const {
  auto spot = tree_.Locate(path);
  if (!spot || !spot->Node || spot->Name.empty() || spot->Folder->ReadOnly) {
    return std::nullopt;
  }
  const bool isFolder = spot->Node->Kind == MemoryKind::Folder;
  const bool isVolume = isFolder && spot->Node->Identity.Device != spot->Folder->Identity.Device;
  return isVolume || (spot->EndsInSeparator && !isFolder) ? std::nullopt : spot;
}

RenameOutcome MemoryFileSystem::RenameNoReplace(TextView from, TextView to) {
  if (!Action(u"RenameNoReplace", from, to)) {
    return RenameOutcome::Refused;
  }
  const auto source = RemovableSpot(from);
  const auto target = tree_.Locate(to);
  if (!source || !target || source->Folder->Identity.Device != target->Folder->Identity.Device) {
    return RenameOutcome::Refused;
  }
  if (target->Node) {
    return RenameOutcome::TargetExists;
  }
  const bool isFolder = source->Node->Kind == MemoryKind::Folder;
  if (target->Folder->ReadOnly || (target->EndsInSeparator && !isFolder)) {
    return RenameOutcome::Refused;
  }
  for (auto above = target->Folder; above; above = above->Parent.lock()) {
    if (above == source->Node) {
      return RenameOutcome::Refused;
    }
  }
  tree_.Take(*source);
  tree_.Put(*target, source->Node);
  return RenameOutcome::Done;
}

bool MemoryFileSystem::CreateFolder(TextView path) {
  if (!Action(u"CreateFolder", path)) {
    return false;
  }
  const auto spot = tree_.Locate(path);
  if (!spot || spot->Node || spot->Folder->ReadOnly) {
    return false;
  }
  tree_.Put(*spot, MemoryKind::Folder);
  return true;
}

bool MemoryFileSystem::RemoveFolder(TextView path) {
  if (!Action(u"RemoveFolder", path)) {
    return false;
  }
  const auto spot = RemovableSpot(path);
  if (!spot || spot->Node->Kind != MemoryKind::Folder || !spot->Node->Children.empty()) {
    return false;
  }
  tree_.Take(*spot);
  return true;
}

bool MemoryFileSystem::MakeExecutable(TextView path) {
  if (!Action(u"MakeExecutable", path)) {
    return false;
  }
  const auto node = tree_.Resolve(path);
  if (node == nullptr || node->Kind != MemoryKind::File) {
    return false;
  }
  node->Executable = true;
  return true;
}

bool MemoryFileSystem::RemoveFile(TextView path) {
  if (!Action(u"RemoveFile", path)) {
    return false;
  }
  const auto spot = RemovableSpot(path);
  if (!spot || spot->Node->Kind == MemoryKind::Folder) {
    return false;
  }
  tree_.Take(*spot);
  return true;
}

}  // namespace vorlane
