#include "filters/hls.h"

#include "core/parallel.h"
#include "filters/filterrun.h"

namespace tf {

Single maximumOf(const Single &a, const Single &b, const Single &c)
{
    Single m = a;
    if (b > m) m = b;
    if (c > m) m = c;
    return m;
}

Single minimumOf(const Single &a, const Single &b, const Single &c)
{
    Single m = a;
    if (b < m) m = b;
    if (c < m) m = c;
    return m;
}

void RGBToHLS(int red, int green, int blue, Single &H, Single &S, Single &L)
{
    const Single r = Single(red) / 255.0f, g = Single(green) / 255.0f, b = Single(blue) / 255.0f;
    const Single max = maximumOf(r, g, b), min = minimumOf(r, g, b);
    L = (max + min) / 2.0f;
    if (max == min) {
        S = 0.0f;
        H = 0.0f;
        return;
    }
    S = L <= 0.5f ? (max - min) / (max + min) : (max - min) / (2.0f - max - min);
    const Single delta = max - min;
    if (r == max)
        H = (g - b) / delta;
    else if (g == max)
        H = 2.0f + (b - r) / delta;
    else
        H = 4.0f + (r - g) / delta;
}

void HLSToRGB(Single H, Single S, Single L, int &red, int &green, int &blue)
{
    Single r, g, b;
    if (S == 0.0f) {
        r = g = b = L;
    } else {
        const Single min = L <= 0.5f ? L * (1.0f - S) : L - S * (1.0f - L);
        const Single max = L + L - min;
        const Single delta = max - min;
        if (H < 1.0f) {
            r = max;
            if (H < 0.0f) {
                g = min;
                b = min - H * delta;
            } else {
                b = min;
                g = H * delta + min;
            }
        } else if (H < 3.0f) {
            g = max;
            if (H < 2.0f) {
                b = min;
                r = min - (H - 2.0f) * delta;
            } else {
                r = min;
                b = (H - 2.0f) * delta + min;
            }
        } else {
            b = max;
            if (H < 4.0f) {
                r = min;
                g = min - (H - 4.0f) * delta;
            } else {
                g = min;
                r = (H - 4.0f) * delta + min;
            }
        }
    }
    const auto channel = [](Single v) {
        const Single scaled = v * 255.0f;
        return int(roundHalfEven(double(scaled)));
    };
    red = channel(r);
    green = channel(g);
    blue = channel(b);
}

void Colourise(const PixelPlane &picture, Single fHue, Single fSaturation, bool Monochrome,
               int threads)
{
    const int w = picture.width;
    parallelRows(picture.height, w * 8, [&](int first, int last) {
        for (int y = first; y < last; ++y) {
            uint8_t *p = picture.row(y);
            for (int x = 0; x < w * 4; x += 4) {
                Single H, S, L;
                RGBToHLS(p[x + 2], p[x + 1], p[x], H, S, L);
                int r, g, b;
                HLSToRGB(fHue, Monochrome ? fSaturation : S, L, r, g, b);
                p[x] = clampByte(b);
                p[x + 1] = clampByte(g);
                p[x + 2] = clampByte(r);
            }
        }
    }, 1 << 14, threads);
}

} // namespace tf
