#pragma once
// The surface a frame painter of the Mondrian family draws on: a picture control (the work
// picture or a selection) or an off-screen surface of any size up to the Superformat's. The
// painter speaks in picture coordinates, (0,0) the top left pixel as shown, and uses four
// words: fill a box, draw a one-pixel line, clear, and the device context for block copies.
//
// Lines follow the picture control's rule on every surface: the end point is not drawn,
// except that a line of length 0 draws its one point. Only horizontal and vertical lines are
// asked for. Boxes are closed: both corners lie inside. Everything is clipped to the surface.

#include "core/colour.h"

namespace tf {

class DeviceContext;
class PictureBox;
class cDIBSection;

class FrameCanvas {
public:
    virtual ~FrameCanvas() = default;
    virtual int width() const = 0;
    virtual int height() const = 0;
    // Fills the closed box from (x1,y1) to (x2,y2).
    virtual void fillBox(int x1, int y1, int x2, int y2, ColorLong colour) = 0;
    // A horizontal or vertical line one pixel wide, without its end point.
    virtual void line(int x1, int y1, int x2, int y2, ColorLong colour) = 0;
    // Clears the surface to what it shows at rest (a picture control's Cls); a surface without
    // such a state keeps its pixels.
    virtual void clear() {}
    // The context over the pixels, for block copies; call changed() after writing through it.
    virtual DeviceContext &dc() = 0;
    virtual void changed() {}
};

// A picture control, drawn through its Line with DrawWidth 1 and DrawMode 13.
class PictureCanvas : public FrameCanvas {
public:
    explicit PictureCanvas(PictureBox &pic);
    int width() const override;
    int height() const override;
    void fillBox(int x1, int y1, int x2, int y2, ColorLong colour) override;
    void line(int x1, int y1, int x2, int y2, ColorLong colour) override;
    void clear() override;
    DeviceContext &dc() override;
    void changed() override;

private:
    PictureBox &m_pic;
};

// A 24-bit off-screen surface, drawn through LineDIB.
class DibCanvas : public FrameCanvas {
public:
    explicit DibCanvas(cDIBSection &dib) : m_dib(dib) {}
    int width() const override;
    int height() const override;
    void fillBox(int x1, int y1, int x2, int y2, ColorLong colour) override;
    void line(int x1, int y1, int x2, int y2, ColorLong colour) override;
    DeviceContext &dc() override;

private:
    cDIBSection &m_dib;
};

} // namespace tf
