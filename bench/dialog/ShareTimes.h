#pragma once
// Wall-clock and CPU time of the three parts of an opening's budget - the opening itself, the
// bare round trips of its requests and Qt's own forms - measured in rounds, one of each per
// round, and the module's own share, (opening - round trips - Qt's forms) / opening, from
// the medians. CPU time is this thread's: the emulator's work in its own process is not in
// it, while the wall-clock time waits for the emulator as well.
#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <vector>

namespace velmora::bench {

class ShareTimes {
public:
    enum Part { Opening, RoundTrips, QtForms, PartCount };

    template <class Work>
    void measure(Part part, Work&& work)
    {
        const double wallStart = wallMs();
        const double cpuStart = cpuMs();
        work();
        m_cpu[part].push_back(cpuMs() - cpuStart);
        m_wall[part].push_back(wallMs() - wallStart);
    }

    void print(int rounds) const
    {
        const double wall[PartCount] = {median(m_wall[Opening]), median(m_wall[RoundTrips]), median(m_wall[QtForms])};
        const double cpu[PartCount] = {median(m_cpu[Opening]), median(m_cpu[RoundTrips]), median(m_cpu[QtForms])};
        std::printf("medians of %d rounds of opening, round trips and Qt's forms:\n", rounds);
        std::printf("  wall: opening %.3f ms, round trips %.3f ms, Qt's forms %.3f ms; ratio to round trips %.3f\n",
                    wall[Opening], wall[RoundTrips], wall[QtForms], wall[Opening] / wall[RoundTrips]);
        std::printf("  CPU:  opening %.3f ms, round trips %.3f ms, Qt's forms %.3f ms\n", cpu[Opening],
                    cpu[RoundTrips], cpu[QtForms]);
        std::printf("  Qt's forms / opening: %.1f %% wall, %.1f %% CPU\n", 100.0 * wall[QtForms] / wall[Opening],
                    100.0 * cpu[QtForms] / cpu[Opening]);
        std::printf("  module's own share: %.1f %% wall, %.1f %% CPU (goal <= 30 %%)\n", share(wall), share(cpu));
    }

private:
    static double wallMs()
    {
        return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now().time_since_epoch()).count();
    }
    static double cpuMs()
    {
        timespec now{};
        clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
        return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
    }
    static double median(std::vector<double> values)
    {
        if (values.empty())
            return 0.0;
        const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
        std::nth_element(values.begin(), middle, values.end());
        return *middle;
    }
    static double share(const double (&times)[PartCount])
    {
        return times[Opening] > 0.0 ? 100.0 * (times[Opening] - times[RoundTrips] - times[QtForms]) / times[Opening]
                                    : 0.0;
    }

    std::vector<double> m_wall[PartCount];
    std::vector<double> m_cpu[PartCount];
};

} // namespace velmora::bench
