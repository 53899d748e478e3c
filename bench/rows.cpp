#include "rows.h"

#include <algorithm>
#include <cstdio>
#include <map>

namespace holdem::bench {
namespace {

constexpr int kRepetitions = 15;
constexpr double kSeconds = 0.1;  // each

// Keeps the best time of each benchmark, in nanoseconds a round: whatever else the machine does can
// only add to it.
class BestTimes : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      const double time = run.GetAdjustedRealTime();
      const auto [best, isFirst] = of.try_emplace(run.run_name.function_name, time);
      if (!isFirst) best->second = std::min(best->second, time);
    }
  }

  std::map<std::string, double> of;  // by name
};

std::string Readable(double nanoseconds) {
  const auto [amount, unit] =
      nanoseconds < 1e5 ? std::pair(nanoseconds, "ns") : std::pair(nanoseconds / 1e6, "ms");
  char text[32];
  std::snprintf(text, sizeof text, "%.1f %s", amount, unit);
  return text;
}

void Print(const Row& row, double time, double timeAgainst) {
  const bool faster = row.limit == Row::Limit::AtLeastTimesFaster;
  const double ratio = faster ? timeAgainst / time : time / timeAgainst;
  const bool kept = faster ? ratio >= row.times : ratio <= row.times;
  std::printf("%-62s %10s, %s %10s: %5.1f x (at %s %g x) %s\n", row.what.c_str(),
              Readable(time / row.items).c_str(), row.against.c_str(),
              Readable(timeAgainst / row.items).c_str(), ratio, faster ? "least" : "most",
              row.times, kept ? "ok" : "MISSED");
}

}  // namespace

int Measure(int argc, char** argv, const std::vector<Row>& rows) {
  for (const Row& row : rows) {
    const auto add = [](const std::string& name, const std::function<void()>& round) {
      benchmark::RegisterBenchmark(name.c_str(),
                                   [round](benchmark::State& state) {
                                     for ([[maybe_unused]] const auto _ : state) round();
                                   })
          ->MinTime(kSeconds)
          ->Repetitions(kRepetitions);
    };
    add(row.what, row.run);
    add(row.what + " against", row.runAgainst);
  }
  // Both sides share the machine's good and bad moments.
  std::vector<char*> arguments(argv, argv + argc);
  std::string interleaving = "--benchmark_enable_random_interleaving=true";
  arguments.insert(arguments.begin() + 1, interleaving.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  if (benchmark::ReportUnrecognizedArguments(count, arguments.data())) return 2;

  BestTimes best;
  benchmark::RunSpecifiedBenchmarks(&best);
  for (const Row& row : rows) {
    if (!best.of.contains(row.what)) continue;  // not chosen
    Print(row, best.of[row.what], best.of[row.what + " against"]);
  }
  return 0;
}

}  // namespace holdem::bench
