// The tree of keys as the text of registry.conf: UTF-8, described in docs/file-formats.md. A person
// may edit it, so nothing in it is ever a failure.
#pragma once

#include <string>
#include <string_view>

#include "shell/registry_tree.h"

namespace vorlane {

// Takes any bytes. A line that can't be read costs that line alone and is kept; a section whose
// name can't be read is kept as a whole. A name that stands twice has its last value.
RegistryTree ReadRegistryText(std::string_view bytes);

// Reading this gives the same tree. Kept lines come before the values of their key, kept sections
// at the end, where they hide no value.
std::string WriteRegistryText(const RegistryTree& tree);

}  // namespace vorlane
