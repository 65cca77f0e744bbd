// Measures the library against named peers: all contestants of a case take turns, round by round,
// so that a busy machine slows them alike; a contestant's time is the median of its rounds. Time is
// the processor's, in the program and in the system: waiting for a disk does not count.
//
//     int main(int argc, char** argv)
//     {
//         qx::bench::Table table("Reading lines", argc, argv);
//         table.Compare("20 characters", [&] { ReadOurs(); },
//                       {{"getline(3)", [&] { ReadPeer(); }, qx::bench::Faster(1.5)},
//                        {"std::getline", [&] { ReadOther(); }}});
//         return table.Print();
//     }
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

namespace qx::bench {

// Makes the compiler believe that a value is used.
template <class T>
inline void DoNotOptimize(const T& value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}

// What is asked of ours beside a peer.
struct Goal {
    enum class Kind { None, Faster, CostAtMost };
    Kind kind = Kind::None;
    double factor = 0;
};
// The peer takes at least `times` as long as ours.
inline Goal Faster(double times)
{
    return {Goal::Kind::Faster, times};
}
// Ours takes at most `times` as long as the peer (ours again on a smaller input, for one).
inline Goal CostAtMost(double times)
{
    return {Goal::Kind::CostAtMost, times};
}

// A piece of work, repeated without a call in between.
class Work {
  public:
    template <class F>
    requires(!std::is_same_v<std::remove_cvref_t<F>, Work>)
        Work(F once)  // implicit: a lambda is a piece of work
        : m_repeat([once = std::move(once)](std::size_t times) mutable {
              for (; times > 0; --times)
                  once();
          })
    {
    }
    void Repeat(std::size_t times) const { m_repeat(times); }

  private:
    std::function<void(std::size_t)> m_repeat;
};

struct Peer {
    std::string name;
    Work work;
    Goal goal = {};
};

class Table {
  public:
    // Options: --rounds N, --filter TEXT (only the cases whose name contains it).
    Table(std::string title, int argc, char** argv);

    // Measures one case at once. `operations` is how many operations one piece of work does: times
    // are shown for one operation.
    void Compare(const std::string& name, const Work& ours, const std::vector<Peer>& peers,
                 std::size_t operations = 1);

    // Measures one case for which there is a time that it may take at most.
    void Limit(const std::string& name, const Work& ours, double seconds);

    // Prints all cases; returns what main returns: 0 when every goal was reached, otherwise 1.
    int Print() const;

  private:
    struct Row {
        std::string name, peer;
        double ours, theirs;  // seconds for one operation
        Goal goal;
    };
    static bool Reached(const Row& row);
    static double Ratio(const Row& row);

    std::string m_title, m_filter;
    int m_rounds = 15;
    std::vector<Row> m_rows;
};

}  // namespace qx::bench
