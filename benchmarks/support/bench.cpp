#include "support/bench.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <string_view>

namespace qx::bench {

namespace {

constexpr double kSampleSeconds = 0.02;

// Time of the processor, not of the clock on the wall: others may be using the machine too.
double Now()
{
    timespec time;
    ::clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

double Seconds(const Work& work, std::size_t times)
{
    const double start = Now();
    work.Repeat(times);
    return Now() - start;
}

// How often a piece of work is repeated for a sample of kSampleSeconds or more; also warms up.
std::size_t Calibrate(const Work& work)
{
    std::size_t times = 1;
    for (;;) {
        const double seconds = Seconds(work, times);
        if (seconds >= kSampleSeconds)
            return times;
        const double wanted = 1.2 * kSampleSeconds / std::max(seconds, 1e-9);
        times =
            static_cast<std::size_t>(std::clamp(wanted, 2.0, 100.0) * static_cast<double>(times));
    }
}

double Median(std::vector<double> values)
{
    const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

// Seconds for one repetition of each piece of work.
std::vector<double> Measure(const std::vector<const Work*>& works, int rounds)
{
    std::vector<std::size_t> times;
    for (const Work* work : works)
        times.push_back(Calibrate(*work));
    std::vector<std::vector<double>> samples(works.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t turn = 0; turn < works.size(); ++turn) {
            const std::size_t i = (turn + static_cast<std::size_t>(round)) % works.size();
            samples[i].push_back(Seconds(*works[i], times[i]) / static_cast<double>(times[i]));
        }
    }
    std::vector<double> medians;
    for (std::vector<double>& sample : samples)
        medians.push_back(Median(std::move(sample)));
    return medians;
}

std::string TimeText(double seconds)
{
    static constexpr struct {
        double seconds;
        const char* name;
    } kUnits[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "us"}, {1e-9, "ns"}};
    const auto* unit = std::find_if(std::begin(kUnits), std::end(kUnits) - 1,
                                    [&](const auto& each) { return seconds >= each.seconds; });
    char text[32];
    std::snprintf(text, sizeof text, "%.3g %s", seconds / unit->seconds, unit->name);
    return text;
}

std::string GoalText(const Goal& goal)
{
    char text[32] = "";
    if (goal.kind == Goal::Kind::Faster)
        std::snprintf(text, sizeof text, ">= %.2f", goal.factor);
    else if (goal.kind == Goal::Kind::CostAtMost)
        std::snprintf(text, sizeof text, "<= %.2f", goal.factor);
    return text;
}

}  // namespace

Table::Table(std::string title, int argc, char** argv) : m_title(std::move(title))
{
    for (int i = 1; i + 1 < argc; i += 2) {
        const std::string_view option = argv[i];
        if (option == "--rounds")
            m_rounds = std::max(1, std::atoi(argv[i + 1]));
        else if (option == "--filter")
            m_filter = argv[i + 1];
    }
}

void Table::Compare(const std::string& name, const Work& ours, const std::vector<Peer>& peers,
                    std::size_t operations)
{
    if (name.find(m_filter) == std::string::npos)
        return;
    std::vector<const Work*> works = {&ours};
    for (const Peer& peer : peers)
        works.push_back(&peer.work);
    std::vector<double> seconds = Measure(works, m_rounds);
    for (double& each : seconds)
        each /= static_cast<double>(operations);
    for (std::size_t i = 0; i < peers.size(); ++i)
        m_rows.push_back({name, peers[i].name, seconds[0], seconds[i + 1], peers[i].goal});
}

void Table::Limit(const std::string& name, const Work& ours, double seconds)
{
    if (name.find(m_filter) != std::string::npos)
        m_rows.push_back({name, "limit", Measure({&ours}, m_rounds)[0], seconds, Faster(1)});
}

double Table::Ratio(const Row& row)
{
    return row.goal.kind == Goal::Kind::CostAtMost ? row.ours / row.theirs : row.theirs / row.ours;
}

bool Table::Reached(const Row& row)
{
    switch (row.goal.kind) {
        case Goal::Kind::Faster:
            return Ratio(row) >= row.goal.factor;
        case Goal::Kind::CostAtMost:
            return Ratio(row) <= row.goal.factor;
        case Goal::Kind::None:
            break;
    }
    return true;
}

int Table::Print() const
{
    std::printf("%s (medians of %d rounds, contestants taking turns)\n", m_title.c_str(), m_rounds);
    std::printf("%-34s %10s  %-26s %10s %8s %8s\n", "case", "ours", "peer", "its time", "ratio",
                "goal");
    bool allReached = true;
    for (const Row& row : m_rows) {
        const bool reached = Reached(row);
        const char* verdict = row.goal.kind == Goal::Kind::None ? ""
                              : reached                         ? "reached"
                                                                : "MISSED";
        std::printf("%-34s %10s  %-26s %10s %8.2f %8s %s\n", row.name.c_str(),
                    TimeText(row.ours).c_str(), row.peer.c_str(), TimeText(row.theirs).c_str(),
                    Ratio(row), GoalText(row.goal).c_str(), verdict);
        allReached = allReached && reached;
    }
    std::printf("ratio: time of the peer over ours; beside a goal \"<=\", ours over the peer's\n");
    return allReached ? 0 : 1;
}

}  // namespace qx::bench
