#pragma once
// A console reporter that keeps, per benchmark, the real and CPU time of one iteration:
// the median of the repetitions when the run has them (--benchmark_repetitions), else the
// last run's, so that a program can print ratios of its benchmarks at the end.
#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

namespace velmora::bench {

class MedianReporter : public benchmark::ConsoleReporter {
public:
    struct Times {
        double real = 0.0; // per iteration, in the benchmark's time unit
        double cpu = 0.0;  // this thread's CPU per iteration, in the same unit
    };

    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const std::string name = run.run_name.str();
            if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median") {
                m_times[name] = {run.GetAdjustedRealTime(), run.GetAdjustedCPUTime()};
                m_fromMedian[name] = true;
            } else if (run.run_type == Run::RT_Iteration && run.iterations > 0 && !m_fromMedian[name]) {
                m_times[name] = {run.GetAdjustedRealTime(), run.GetAdjustedCPUTime()};
            }
        }
        ConsoleReporter::ReportRuns(runs);
    }

    // The times of the first benchmark whose name starts with `prefix`; zero when none ran.
    Times times(const std::string& prefix) const
    {
        for (const auto& [name, value] : m_times) {
            if (name.rfind(prefix, 0) == 0)
                return value;
        }
        return {};
    }

private:
    std::map<std::string, Times> m_times;
    std::map<std::string, bool> m_fromMedian;
};

} // namespace velmora::bench
