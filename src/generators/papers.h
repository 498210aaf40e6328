#pragma once
// Ruled paper, sheet music and squared paper, the jalousie and the frames and cut-out forms
// of group 8 (papers.cpp, jalousie.cpp, borders*.cpp).

#include <QString>

namespace tf {

struct PaintContext;
class Controls;

constexpr const char *PapersPanelName = "feat_08Papers";
constexpr const char *JalousiePanelName = "feat_06Jalousie";

// "PAP-Lines", "PAP-Notes", "PAP-Karo": parallel lines across the picture at a distance of
// h/n, rotated about a centre; the notes in staves of five lines, the squares in both
// directions.
void Create_Papers(PaintContext &ctx);

// "Jalousie": horizontal (or diagonal) slats whose colour runs from one colour towards a
// second, with four colours the right half of each slat in a second pair.
void Create_Jalousie(PaintContext &ctx);
// The slat step of txtStep: Val of its text, at least 1, at most the picture width.
int jalousieStep(const QString &text, int width);

void registerPaperPanels();

} // namespace tf
