// The rules of the tags written as they read, step by step over a file that is one string: searched
// and cut by positions that count from 1, emptied and written anew. What the reading and writing of
// files has to agree with. Slow, and with no regard to what fails in the middle.
#pragma once

#include <string>

#include "metadata/id3_tag.h"

namespace vorlane::literal {

// All of them throw RunError where the rules have a failure; the file is unchanged then.

ID3Tag ReadV1(const std::string& file);
ID3Tag ReadV2(const std::string& file);

std::string ReplaceFrame(const std::string& tag, const std::string& id, const std::string& value);

// The tag of a file that had none, and the one that takes the place of an old one.
std::string NewV2(const ID3Tag& tag);
std::string UpdatedV2(const std::string& oldTag, const ID3Tag& tag);

void RemoveV1(std::string& file);
void WriteV1(std::string& file, const ID3Tag& tag);
void WriteV2(std::string& file, const ID3Tag& tag, bool removeV1);

}  // namespace vorlane::literal
