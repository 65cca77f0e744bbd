#include <qxutility/core/flags.h>

#include <bit>

static constexpr unsigned long kAllFlags = 0xFFFFFFFF;

void QXFlags::Set(unsigned long mask)
{
    m_word |= mask & kAllFlags;
}

void QXFlags::Clear(unsigned long mask)
{
    m_word &= ~mask;
}

unsigned long QXFlags::Test(unsigned long mask) const
{
    return m_word & mask;
}

QXFlags& QXFlags::operator+=(unsigned long mask)
{
    Set(mask);
    return *this;
}

QXFlags& QXFlags::operator-=(unsigned long mask)
{
    Clear(mask);
    return *this;
}

unsigned long QXFlags::operator==(unsigned long mask) const
{
    return Test(mask);
}

unsigned long QXFlags::operator!=(unsigned long mask) const
{
    return Test(mask) == 0 ? 1 : 0;
}

void QXFlags::ResetFlags()
{
    m_word = 0;
}

unsigned long QXFlags::Value() const
{
    return m_word;
}

int QXFlags::Count() const
{
    return std::popcount(m_word);
}
