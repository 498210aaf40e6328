#pragma once
// "The Matrix": columns of glyphs falling down a black picture in the classic green, each
// column a bright head that leaves a fading trail while single glyphs keep changing. The
// model steps and draws itself; the matrix window animates it with a timer, and a paint
// without a window (the command line, a preview) draws one frame of it into the picture.

#include <QImage>
#include <QString>
#include <cstdint>
#include <vector>

namespace tf {

struct PaintContext;

class MatrixRain {
public:
    // A picture of width x height with glyph cells of `glyph` pixels; `speed` 1..10 sets how
    // far the heads fall per step. The seed fixes every column and glyph.
    MatrixRain(int width, int height, int glyph, int speed, uint32_t seed);

    // One step: the heads fall, a few glyphs change, a column that has run out starts again.
    void step();
    // Draws the present frame over the whole image (black ground).
    void render(QImage &image) const;
    // Steps enough for the trails to reach the bottom, as a frame in the middle of the rain.
    void fill();

    int columns() const { return int(m_columns.size()); }
    int rows() const { return m_rows; }
    // The glyph set drawn from (katakana where the font has them, digits and capitals).
    static QString glyphSet();

private:
    struct Column {
        double head = 0;  // the head's row, may lie above the picture
        double speed = 1; // rows per step
        int trail = 12;   // rows of the fading trail
    };
    double random();
    QChar randomGlyph();
    void restart(Column &c, bool anywhere);

    int m_width, m_height, m_glyph, m_rows;
    double m_speedScale;
    uint32_t m_state;
    QString m_glyphs;
    std::vector<Column> m_columns;
    std::vector<QChar> m_cells; // rows x columns
};

// The painter: with a window, the session's view opens the matrix window and the picture
// stays as it was; without one, a frame of the rain is drawn over the target.
void paintTheMatrix(PaintContext &ctx);

} // namespace tf
