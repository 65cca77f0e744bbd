// What the doubles of platform services have in common.
//
// A double is a header that defines the functions of one service. A test program that includes it,
// in one source file, is linked with these functions instead of the service's own, wherever the
// library calls them.
#pragma once

#include <utility>

namespace qx::test {

// A double answers from its construction to its destruction; of several the last one made does.
// While there is none, a default one answers, which lasts.
template <typename Double>
class InForce {
  public:
    InForce(const InForce&) = delete;
    InForce& operator=(const InForce&) = delete;

    static Double& Current()
    {
        if (!s_current)
            new Double;
        return *s_current;
    }

  protected:
    InForce() : m_outer(std::exchange(s_current, static_cast<Double*>(this))) {}
    ~InForce() { s_current = m_outer; }

  private:
    static inline Double* s_current = nullptr;
    Double* m_outer;
};

}  // namespace qx::test
