#pragma once
// A photo laid on a face of the photo cube: the picture and its halved copies (a pyramid of
// 2 x 2 means down to one pixel), sampled so that a face shown much smaller than its photo
// stays clean: bilinear in the copy whose texels match the screen's pixels, and between the
// two nearest copies where the face is foreshortened (trilinear).
//
// Coordinates: (u, v) in the unit square, (0, 0) the photo's top left corner, (1, 1) its
// bottom right; values outside are held at the edge. Colours come back as blue, green, red
// in 0..255.
#include <QImage>
#include <cstdint>
#include <vector>

namespace tf {

class CubeTexture {
public:
    CubeTexture() = default;
    // Any QImage format; a null picture gives a null texture (which samples black).
    explicit CubeTexture(const QImage &picture);

    bool isNull() const { return m_levels.empty(); }
    int width() const { return m_levels.empty() ? 0 : m_levels.front().w; }
    int height() const { return m_levels.empty() ? 0 : m_levels.front().h; }
    int levels() const { return int(m_levels.size()); }

    // The colour at (u, v) for a screen pixel that covers `footprint` texels of the photo
    // (the longer side of its footprint): up to 1 the photo itself, bilinear.
    void sample(double u, double v, double footprint, float bgr[3]) const;

private:
    struct Level {
        int w = 0, h = 0;
        std::vector<uint8_t> bgr; // 3 bytes a texel, rows top-down, no padding
    };
    static void bilinear(const Level &l, double u, double v, float bgr[3]);

    std::vector<Level> m_levels;
};

} // namespace tf
