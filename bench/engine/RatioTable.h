#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace korvane::bench {

/// Collects the times of benchmarks named "<work>|<party>" and prints a row for each work: the time of
/// "ours", its counter "pixels" if it has one, and how many times as fast it is as each peer. Times are the
/// least of the repetitions, which noise can only lengthen.
class RatioTable : public benchmark::BenchmarkReporter {
  public:
    bool ReportContext(const Context& context) override;
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

  private:
    std::map<std::string, std::map<std::string, double>> microseconds_;
    std::map<std::string, double> pixels_;
};

}  // namespace korvane::bench
