#include "form/job_states.h"

namespace vorlane {

void JobStates::RequestStop() {
  for (JobState* state : {&ListingState, &PreviewState, &BatchState}) {
    if (*state == JobState::Running) {
      *state = JobState::StopRequested;
    }
  }
}

bool WaitForStop(JobState& state, std::int16_t seconds, Clock& clock, MessageLoop& loop) {
  if (state == JobState::Idle) {
    return true;
  }
  state = JobState::StopRequested;
  const auto start = clock.Milliseconds();
  while (state != JobState::Idle) {
    if (static_cast<std::int64_t>((clock.Milliseconds() - start) / 1000) >= seconds) {
      return false;
    }
    loop.YieldBlocking(10);
  }
  return true;
}

}  // namespace vorlane
