#include "rows.h"

#include <chrono>
#include <cstdio>
#include <map>

namespace holdem::bench {
namespace {

constexpr int kRepetitions = 15;
constexpr double kSeconds = 0.1;  // each

// The best time of each benchmark, in nanoseconds a round: whatever else the machine does can only
// add to it.
using BestTimes = std::map<std::string, double>;

void MeasureRound(const std::function<void()>& round, double& best) {
  using Clock = std::chrono::steady_clock;
  const auto start = Clock::now();
  round();
  const std::chrono::duration<double, std::nano> time = Clock::now() - start;
  if (best == 0 || time.count() < best) best = time.count();
}

// The rows are printed when all are done.
class Silent : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context&) override { return true; }
  void ReportRuns(const std::vector<Run>&) override {}
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
  BestTimes best;  // by name
  for (const Row& row : rows) {
    const auto add = [&](const std::string& name, const std::function<void()>& round) {
      benchmark::RegisterBenchmark(name.c_str(),
                                   [&best, name, round](benchmark::State& state) {
                                     for ([[maybe_unused]] const auto _ : state) {
                                       MeasureRound(round, best[name]);
                                     }
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

  Silent silent;
  benchmark::RunSpecifiedBenchmarks(&silent);
  for (const Row& row : rows) {
    if (!best.contains(row.what)) continue;  // not chosen
    Print(row, best[row.what], best[row.what + " against"]);
  }
  return 0;
}

}  // namespace holdem::bench
