#pragma once
// Small pictures with known pixels for the filter tests, and a session whose questions are
// answered by script.
#include "core/colour.h"
#include "core/prompter.h"
#include "core/random.h"
#include "paint/session.h"

#include <QImage>
#include <gtest/gtest.h>
#include <array>
#include <initializer_list>
#include <vector>

namespace filtertest {

struct FilterSession : ::testing::Test {
    tf::Session s;
    tf::ScriptedPrompter prompter;
    void SetUp() override { s.setPrompter(&prompter); }
};

// A picture of w x h whose pixels are given row by row as colour longs.
inline QImage picture(int w, int h, std::initializer_list<tf::ColorLong> pixels)
{
    QImage img(w, h, QImage::Format_RGB32);
    auto it = pixels.begin();
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            img.setPixel(x, y, tf::toQRgb(*it++));
    return img;
}

inline QImage flat(int w, int h, tf::ColorLong c)
{
    QImage img(w, h, QImage::Format_RGB32);
    img.fill(tf::toQRgb(c));
    return img;
}

// A picture of varied colours from the system's generator, the same every time.
inline QImage noisy(int w, int h)
{
    tf::Random r;
    QImage img(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x) {
            const int red = int(r.Rnd() * 256), green = (x * 7 + y * 3) & 255, blue = int(r.Rnd() * 256);
            img.setPixel(x, y, qRgb(red, green, blue));
        }
    return img;
}

inline tf::ColorLong at(const QImage &img, int x, int y)
{
    return tf::fromQRgb(img.pixel(x, y));
}

// Channels of a pixel as {red, green, blue}.
inline std::array<int, 3> rgb(const QImage &img, int x, int y)
{
    const QRgb p = img.pixel(x, y);
    return {qRed(p), qGreen(p), qBlue(p)};
}

// The red channel along row y.
inline std::vector<int> reds(const QImage &img, int y = 0)
{
    std::vector<int> out;
    for (int x = 0; x < img.width(); ++x)
        out.push_back(qRed(img.pixel(x, y)));
    return out;
}

} // namespace filtertest
