#include "paint/mondriantables.h"

#include "core/fault.h"

namespace tf {

void Table3::redim(int f, int i, int j)
{
    if (f < 0 || i < 0 || j < 0)
        throw Fault(Fault::SubscriptOutOfRange);
    m_f = f + 1;
    m_i = i + 1;
    m_j = j + 1;
    m_values.assign(size_t(m_f) * size_t(m_i) * size_t(m_j), 0);
}

void Table3::erase()
{
    m_f = m_i = m_j = 0;
    m_values.clear();
    m_values.shrink_to_fit();
}

size_t Table3::offset(int f, int i, int j) const
{
    if (f < 0 || f >= m_f || i < 0 || i >= m_i || j < 0 || j >= m_j)
        throw Fault(Fault::SubscriptOutOfRange);
    return (size_t(j) * size_t(m_i) + size_t(i)) * size_t(m_f) + size_t(f);
}

void MondrianTables::eraseLastSet()
{
    ArrCellH.erase();
    ArrCellV.erase();
}

bool MondrianTables::holdsLayout() const
{
    return MondrianHSplits > 0 && MondrianVSplits > 0 &&
           ArrCellH.upperI() >= MondrianHSplits && ArrCellH.upperJ() >= MondrianVSplits &&
           ArrCellV.upperI() >= MondrianHSplits && ArrCellV.upperJ() >= MondrianVSplits;
}

} // namespace tf
