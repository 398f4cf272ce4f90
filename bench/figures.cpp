#include "figures.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace vorlane {

namespace {

double SecondsOn(clockid_t clock) {
  std::timespec now = {};
  clock_gettime(clock, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

void Print(const std::string& what, Times figures, const char* unit) {
  const auto middle = figures.size() / 2;
  const auto sortBy = [&](double Time::*clock) {
    std::sort(figures.begin(), figures.end(),
              [clock](const Time& a, const Time& b) { return a.*clock < b.*clock; });
  };
  sortBy(&Time::Processor);
  const double processor = figures[middle].Processor;
  sortBy(&Time::Elapsed);
  std::printf("  %-50s %7.3f%s  (%.3f to %.3f)  %7.3f%s\n", what.c_str(), figures[middle].Elapsed,
              unit, figures.front().Elapsed, figures.back().Elapsed, processor, unit);
  std::fflush(stdout);
}

}  // namespace

Time TimeNow() {
  return {SecondsOn(CLOCK_MONOTONIC), SecondsOn(CLOCK_PROCESS_CPUTIME_ID)};
}

void PrintHeading(const std::string& text) {
  std::printf("%-53s  median  (least to most)     processor\n", text.c_str());
}

void PrintTimes(const std::string& what, const Times& times) {
  Print(what, times, " s");
}

void PrintRatio(const std::string& what, const Times& of, const Times& to) {
  Times ratios;
  for (std::size_t round = 0; round < of.size(); ++round) {
    ratios.push_back(
        {of[round].Elapsed / to[round].Elapsed, of[round].Processor / to[round].Processor});
  }
  Print(what, ratios, " x");
}

}  // namespace vorlane
