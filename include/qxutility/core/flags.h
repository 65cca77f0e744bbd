// A set of up to 32 on/off options.
#pragma once

#include <qxutility/export.h>

// The options are the bits of one 32-bit word; the caller defines the masks, and a mask may name
// several options at once. Bits above the 32nd, where a long has them, are ignored.
class QX_API QXFlags {
  public:
    QXFlags() = default;  // no option set

    void Set(unsigned long mask);
    void Clear(unsigned long mask);
    // The bits of `mask` that are set: non-zero when any of them is.
    unsigned long Test(unsigned long mask) const;

    QXFlags& operator+=(unsigned long mask);  // Set
    QXFlags& operator-=(unsigned long mask);  // Clear

    // Membership, not equality, on purpose: == is Test (non-zero when any bit of `mask` is set),
    // != is 1 when none is, else 0.
    unsigned long operator==(unsigned long mask) const;
    unsigned long operator!=(unsigned long mask) const;

    void ResetFlags();
    unsigned long Value() const;
    int Count() const;  // number of options set, 0 to 32

  private:
    unsigned long m_word = 0;
};
