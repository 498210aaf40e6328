#pragma once
// The numeric rules that every painter, filter and tool shares.
//
// - A floating value that becomes an integer is rounded to the nearest integer, a half going
//   to the even neighbour (2.5 -> 2, 3.5 -> 4): CInt, CLng, CByte and every Round here.
// - A narrowing conversion outside the target's range is an Overflow fault; so are integer
//   sums and products that leave the range (checkedAdd, checkedMul).
// - Int is the floor, Fix truncates towards 0; IntDiv (the "\" operator) truncates too, and
//   Mod takes the sign of the dividend. Both round their operands to whole numbers first.
// - Single-precision values stay single: `Single` is float, CSng rounds a double to it.
// - Pi is 4 * Atn(1); True is -1 and False 0 wherever a Boolean is stored.

#include "core/fault.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace tf {

using Single = float;
constexpr int VbTrue = -1;
constexpr int VbFalse = 0;

inline int vbBool(bool b) { return b ? VbTrue : VbFalse; }

// Round half to even, no range check.
inline double roundHalfEven(double x) { return std::nearbyint(x); }

namespace detail {
template <typename T> T narrow(double x)
{
    const double r = roundHalfEven(x);
    if (!(r >= static_cast<double>(std::numeric_limits<T>::min()) &&
          r <= static_cast<double>(std::numeric_limits<T>::max())))
        throw Fault(Fault::Overflow);
    return static_cast<T>(r);
}
} // namespace detail

// 16-bit integer: -32768..32767.
inline int16_t CInt(double x) { return detail::narrow<int16_t>(x); }
// 32-bit integer.
inline int32_t CLng(double x) { return detail::narrow<int32_t>(x); }
// Byte: 0..255.
inline uint8_t CByte(double x) { return detail::narrow<uint8_t>(x); }
// Single precision.
Single CSng(double x);

// Floor and truncation, staying floating as the classic functions do.
inline double Int(double x) { return std::floor(x); }
inline double Fix(double x) { return std::trunc(x); }

// The "\" operator on 32-bit integers: truncating; a zero divisor is a fault.
int32_t IntDiv(int32_t a, int32_t b);
// The "\" operator on floating operands: both are rounded to 32-bit integers first.
int32_t IntDiv(double a, double b);
// Mod: the remainder with the sign of the dividend; a zero divisor is a fault.
int32_t Mod(int32_t a, int32_t b);
int32_t Mod(double a, double b);

// Integer arithmetic that faults when it leaves the range of T.
template <typename T> T checkedAdd(T a, T b)
{
    T r;
    if (__builtin_add_overflow(a, b, &r))
        throw Fault(Fault::Overflow);
    return r;
}
template <typename T> T checkedSub(T a, T b)
{
    T r;
    if (__builtin_sub_overflow(a, b, &r))
        throw Fault(Fault::Overflow);
    return r;
}
template <typename T> T checkedMul(T a, T b)
{
    T r;
    if (__builtin_mul_overflow(a, b, &r))
        throw Fault(Fault::Overflow);
    return r;
}

// Floating division; a zero divisor is a fault, as the classic "/" has it.
double checkedDiv(double a, double b);

inline double Atn(double x) { return std::atan(x); }
inline const double Pi = 4.0 * std::atan(1.0);

// Larger and smaller of two values.
template <typename T> T Max(T a, T b) { return a > b ? a : b; }
template <typename T> T Min(T a, T b) { return a < b ? a : b; }

} // namespace tf
