#pragma once
// The frame tables of the Mondrian family: the layout that the subdivision engine
// (generators/mondrianlayout.h) builds and every painter of the family reads. The session owns
// one set; it outlives a paint, which is how "Repaint letztes Set" paints the same frames again.
//
// A table is a signed 32-bit array of three dimensions with lower bounds 0, addressed
// (field, i, j). Reading or writing outside its bounds is a SubscriptOutOfRange fault, as an
// erased table answers to every index.
//
//   ArrCellH (0..3, 0..H+1, 0..V+1)   cell x: field 0 left, 1 right, 2 split mark
//   ArrCellV (0..2, 0..H+1, 0..V+1)   cell y: field 0 top, 1 bottom, 2 split mark
//   ArrSubH  (0..3, 0..MaxSubH, 0..MaxSubV)  a row's sub-frames (field, k, row): 0 left,
//                                            1 right, 2 count
//   ArrSubHY (0..2, same)             their y (field, k, row): 0 top, 1 bottom
//   ArrSubVX (0..3, same)             a column's sub-frames' x (field, column, k): 0 left, 1 right
//   ArrSubV  (0..2, same)             their y (field, column, k): 0 top, 1 bottom, 2 count
//
// with MaxSubH = 2 + H * Max(1, SubH) and MaxSubV = 2 + V * Max(1, SubV).

#include "core/numeric.h"

#include <cstdint>
#include <vector>

namespace tf {

class Table3 {
public:
    Table3() = default;
    // Re-dimensions to (0..f, 0..i, 0..j) with every entry 0.
    void redim(int f, int i, int j);
    // Empties the table: every index is out of range afterwards.
    void erase();
    bool empty() const { return m_values.empty(); }

    int32_t &operator()(int f, int i, int j) { return m_values[offset(f, i, j)]; }
    int32_t operator()(int f, int i, int j) const { return m_values[offset(f, i, j)]; }
    // The upper bounds of the three dimensions (-1 when erased).
    int upperF() const { return m_f - 1; }
    int upperI() const { return m_i - 1; }
    int upperJ() const { return m_j - 1; }

private:
    size_t offset(int f, int i, int j) const;

    int m_f = 0, m_i = 0, m_j = 0;
    std::vector<int32_t> m_values;
};

struct MondrianTables {
    Table3 ArrCellH, ArrCellV, ArrSubH, ArrSubHY, ArrSubVX, ArrSubV;
    // The scratch table of LadeArr_Asym_Mondrian: entry k (1..n) is the width of part k.
    std::vector<Single> ArrAsym;

    int16_t MondrianHSplits = 0; // H, the number of columns
    int16_t MondrianVSplits = 0; // V, the number of rows
    // H, V and the type as they stood when the tables were last rebuilt; a repaint needs
    // them unchanged.
    int16_t MondrianLastH = 0;
    int16_t MondrianLastV = 0;
    int16_t MondrianLastType = 0;
    int32_t MondrianW = 0; // the size of the rectangle the tables divide
    int32_t MondrianH = 0;
    int32_t MondrianMargin = 0; // Randabstand
    int16_t MondrianFrames = 0; // H*V plus H-1 per subdivided row and V-1 per subdivided column
    int32_t MondrianFrames32 = 0;
    // The grid unit the tables were built with (1 but for the Boogies), and the Boogie grid's
    // offsets: a repaint of a Boogie keeps its frames only on the same grid.
    Single MondrianUnit = 1.0f;
    int32_t MondrianGridW = 0;
    int32_t MondrianGridH = 0;

    // "Repaint letztes Set" asks the next paint of the family to keep the layout.
    bool RepaintAsked = false;

    // The paint driver's erase before another paint: the two cell tables of the last set.
    // A repaint then finds no layout and paints anew.
    void eraseLastSet();
    // The cell tables hold a layout of H x V cells.
    bool holdsLayout() const;
};

} // namespace tf
