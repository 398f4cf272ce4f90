// Real files for the samples of operations: made by what a sample says of them, and looked at
// afterwards.
#pragma once

#include <string>

#include "metadata/id3_tag.h"
#include "support/operation_samples.h"

namespace vorlane {

// The bytes of an entry that is a file. No two names give the same. An MP3 file has audio between
// its tags; its ID3v2 tag has room for longer texts, unless the field "room" is "none".
std::string SampleBytes(const SampleEntry& entry);

// The part of SampleBytes that no operation may touch.
std::string SampleAudio(const SampleEntry& entry);

// Sets the time of the last change, given as local time ("2026-01-15 10:02:03").
void SetChangeTime(const std::string& path, const std::string& localTime);

// The local day on which a file was made, or last written where the disk doesn't know: 2026-01-15.
std::string CreationDay(const std::string& path);

// Fails the test if a tag isn't `before` with the fields changed that are named.
void ExpectTag(const ID3Tag& found, const ID3Tag& before, const TagFields& changes);

}  // namespace vorlane
