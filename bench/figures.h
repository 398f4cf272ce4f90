// Times of several rounds and how they are printed: the median, and from where to where they lie,
// so that noise shows.
#pragma once

#include <string>
#include <vector>

namespace vorlane {

struct Time {
  double Elapsed = 0;    // seconds
  double Processor = 0;  // seconds that this process and the system on its behalf were at work
};

// One job, round by round.
using Times = std::vector<Time>;

// The moment, on both clocks.
Time TimeNow();

template <typename Job>
Time TimeOf(Job&& job) {
  const Time start = TimeNow();
  job();
  const Time end = TimeNow();
  return {end.Elapsed - start.Elapsed, end.Processor - start.Processor};
}

void PrintHeading(const std::string& text);

void PrintTimes(const std::string& what, const Times& times);

// The ratio of each round by itself, so that what slows a whole round down doesn't count.
void PrintRatio(const std::string& what, const Times& of, const Times& to);

}  // namespace vorlane
