// The three long jobs of the program and how one asks another to stop.
//
// There is one thread and there are no locks: these three states are the only guard. Every long
// loop and every timer tick tests them.
#pragma once

#include <cstdint>

#include "platform/clock.h"
#include "platform/message_loop.h"

namespace vorlane {

enum class JobState : std::int32_t { Idle = 0, Running = 1, StopRequested = 2 };

struct JobStates {
  JobState ListingState = JobState::Idle;
  JobState PreviewState = JobState::Idle;
  JobState BatchState = JobState::Idle;

  bool AllIdle() const {
    return ListingState == JobState::Idle && PreviewState == JobState::Idle &&
           BatchState == JobState::Idle;
  }

  // What a press of Stop does: each running job is asked to stop.
  void RequestStop();
};

// Asks a job that isn't idle to stop and polls it, with yields, until it is idle or that many whole
// seconds have passed. True if it ended in time.
bool WaitForStop(JobState& state, std::int16_t seconds, Clock& clock, MessageLoop& loop);

}  // namespace vorlane
