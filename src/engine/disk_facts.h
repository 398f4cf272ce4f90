// What the disk and the system's clock say of an entry.
#pragma once

#include "engine/entry_facts.h"
#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/file_system.h"
#include "platform/prompter.h"

namespace vorlane {

class DiskFacts final : public EntryFacts {
 public:
  DiskFacts(FileSystem& files, Clock& clock, FailureReport& report, Prompter& boxes)
      : files_(files), clock_(clock), report_(report), boxes_(boxes) {}

  std::optional<std::int32_t> FileLength(TextView path) override;

  // A time that can't be expressed shows a message box and gives the zero date.
  DateTime FileDate(TextView path, WhichDate which) override;
  DateTime Now() override;
  std::int16_t GetKbit(TextView path) override;
  Text ExifValue(TextView path, std::int32_t tagNumber) override;
  Text ExifValueByName(TextView path, TextView tagName) override;
  Text ImageDateOf(TextView path) override;

 private:
  FileSystem& files_;
  Clock& clock_;
  FailureReport& report_;
  Prompter& boxes_;
};

}  // namespace vorlane
