#include "form/job_states.h"

#include <gtest/gtest.h>

#include "support/form_world.h"

namespace vorlane {
namespace {

TEST(JobStates, StopTurnsOnlyRunningJobsIntoStopRequests) {
  JobStates jobs{JobState::Running, JobState::Idle, JobState::StopRequested};
  jobs.RequestStop();
  EXPECT_EQ(jobs.ListingState, JobState::StopRequested);
  EXPECT_EQ(jobs.PreviewState, JobState::Idle);
  EXPECT_EQ(jobs.BatchState, JobState::StopRequested);
}

TEST(JobStates, WaitingForAnIdleJobDoesNotAskItToStop) {
  SettableClock clock;
  ScriptedLoop loop(clock);
  JobState state = JobState::Idle;
  EXPECT_TRUE(WaitForStop(state, 3, clock, loop));
  EXPECT_EQ(state, JobState::Idle);
  EXPECT_EQ(loop.Yields, 0U);
}

TEST(JobStates, AJobThatStopsInTimeEndsTheWait) {
  SettableClock clock;
  ScriptedLoop loop(clock);
  JobState state = JobState::Running;
  loop.OnYield = [&] {
    EXPECT_EQ(state, JobState::StopRequested);
    if (loop.Yields == 3) {
      state = JobState::Idle;
    }
  };
  EXPECT_TRUE(WaitForStop(state, 3, clock, loop));
  EXPECT_EQ(loop.Yields, 3U);
}

TEST(JobStates, TheWaitEndsAfterWholeSeconds) {
  SettableClock clock;
  ScriptedLoop loop(clock);
  JobState state = JobState::Running;
  const auto start = clock.Ms;
  EXPECT_FALSE(WaitForStop(state, 3, clock, loop));
  EXPECT_EQ(clock.Ms - start, 3000U);
  EXPECT_EQ(state, JobState::StopRequested);
}

}  // namespace
}  // namespace vorlane
