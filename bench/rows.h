// The rows of a benchmark: each measures one thing against another in the same run and tells their
// ratio, so that the figures hold on any machine.
#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <string>
#include <vector>

namespace holdem::bench {

struct Row {
  std::string what;
  std::string against;
  enum class Limit { AtLeastTimesFaster, AtMostTimesSlower } limit;
  double times;
  // One call is one round; what is measured is the time of one item, of which a round has so many.
  int items;
  std::function<void()> run;
  std::function<void()> runAgainst;
};

// Measures the rows, in turns, and prints a line for each. The arguments are Google Benchmark's.
int Measure(int argc, char** argv, const std::vector<Row>& rows);

}  // namespace holdem::bench
