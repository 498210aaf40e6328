#include "core/numeric.h"

namespace tf {

Single CSng(double x)
{
    if (std::isfinite(x) && std::fabs(x) > static_cast<double>(std::numeric_limits<float>::max()))
        throw Fault(Fault::Overflow);
    return static_cast<Single>(x);
}

int32_t IntDiv(int32_t a, int32_t b)
{
    if (b == 0)
        throw Fault(Fault::DivisionByZero);
    if (a == std::numeric_limits<int32_t>::min() && b == -1)
        throw Fault(Fault::Overflow);
    return a / b;
}

int32_t IntDiv(double a, double b) { return IntDiv(CLng(a), CLng(b)); }

int32_t Mod(int32_t a, int32_t b)
{
    if (b == 0)
        throw Fault(Fault::DivisionByZero);
    if (b == -1)
        return 0;
    return a % b;
}

int32_t Mod(double a, double b) { return Mod(CLng(a), CLng(b)); }

double checkedDiv(double a, double b)
{
    if (b == 0.0)
        throw Fault(a == 0.0 ? Fault::Overflow : Fault::DivisionByZero);
    return a / b;
}

} // namespace tf
