#include "platform/path_style.h"

#include "platform/letter_case.h"

namespace vorlane {
namespace {

// The position of the last separator in front of `end`; npos if there is none.
std::size_t SeparatorBefore(TextView path, std::size_t end, PathStyle style) {
  return path.substr(0, end).rfind(Separator(style));
}

// The name of the folder that holds the entry, or of one of those above it.
Text FolderAbove(TextView fullPath, int levels, PathStyle style) {
  std::size_t end = SeparatorBefore(fullPath, fullPath.size(), style);
  for (; end != TextView::npos && levels > 0; --levels) {
    end = SeparatorBefore(fullPath, end, style);
  }
  if (end == TextView::npos) {
    return {};
  }
  const std::size_t above = SeparatorBefore(fullPath, end, style);
  const std::size_t start = above == TextView::npos ? 0 : above + 1;
  return Text(fullPath.substr(start, end - start));
}

}  // namespace

bool IsRooted(TextView path, PathStyle style) {
  if (style == PathStyle::Posix) {
    return path.starts_with(Separator(style));
  }
  return path.size() >= 3 && path[1] == u':' && path[2] == Separator(style);
}

Text EnsureTrailingSeparator(TextView path, PathStyle style) {
  Text result(path);
  if (!path.ends_with(Separator(style))) {
    result.push_back(Separator(style));
  }
  return result;
}

Text WithoutDotPieces(TextView path, PathStyle style) {
  const Text separator(1, Separator(style));
  std::vector<Text> kept;
  for (Text& piece : Split(path, separator)) {
    // The first piece is the root: a drive, or the nothing in front of "/".
    if (piece == u".." && !kept.empty()) {
      if (kept.size() > 1) {
        kept.pop_back();
      }
    } else if (piece != u".") {
      kept.push_back(std::move(piece));
    }
  }
  Text resolved;
  for (const Text& piece : kept) {
    resolved += (&piece == &kept.front() ? Text() : separator) + piece;
  }
  return path.ends_with(separator) ? EnsureTrailingSeparator(resolved, style) : resolved;
}

Text FileNameOf(TextView path, PathStyle style) {
  const std::size_t separator = path.rfind(Separator(style));
  return Text(separator == TextView::npos ? path : path.substr(separator + 1));
}

Text ExtensionOf(TextView name) {
  const std::size_t point = name.rfind(u'.');
  if (point == TextView::npos || point == 0) {
    return {};
  }
  return Text(name.substr(point + 1));
}

Text NameOnlyOf(TextView name) {
  const std::size_t point = name.rfind(u'.');
  if (point == TextView::npos || point == 0) {
    return Text(name);
  }
  return Text(name.substr(0, point));
}

bool HasMp3Extension(TextView name) {
  return EqualIgnoringCase(ExtensionOf(name), u"mp3");
}

Text FolderNameOf(TextView fullPath, PathStyle style) {
  return FolderAbove(fullPath, 0, style);
}

Text ParentFolderNameOf(TextView fullPath, PathStyle style) {
  return FolderAbove(fullPath, 1, style);
}

Text ParentParentFolderNameOf(TextView fullPath, PathStyle style) {
  return FolderAbove(fullPath, 2, style);
}

}  // namespace vorlane
