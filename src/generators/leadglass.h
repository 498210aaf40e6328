#pragma once
// "ART-Mondrian-LeadGlass": a Mondrian layout (mondrianlayout.h) painted as a leaded window.
// The frames are coloured panes from the lead-glass colour table, their top and left edges
// are lead; over them lie the lead figures: sun rings, a rosette, a flower, plant and hill
// arcs, crystals, and a Tiffany border of small panes (Draw_LeadBorder, which the frames type
// "Border-Tiffany-Rect" paints on its own).
//
// Lead looks like lead: every line is the frame colour at the pen's width; straight edges are
// whole pixels, curves and diagonals are anti-aliased polylines (leadpen.h).
//
// The options are the panel "feat_20MLeadGlass" (leadglass_panels.cpp), read when a paint
// starts. "Repaint letztes Set" keeps the frames of the last set and draws new colours and
// figures; "Neue Werte" paints a new set.

#include <QString>
#include <cstdint>

namespace tf {

class PictureBox;
class Session;
struct PaintContext;
enum class PaintOutcome;

constexpr const char *LeadGlassPanelName = "feat_20MLeadGlass";

struct LeadGlassCall {
    int32_t Side = 0;      // the larger of the picture's width and height
    int16_t PenWidth = 1;  // cmbPen
    bool Repaint = false;  // keep the frames of the last set where they still fit
    int16_t SymH = 0;      // XMLG(0), (1)
    int16_t SymV = 0;
    int16_t AllFrames = 0; // XMLG(2)
    int32_t Format = 0;    // cmbMLG_Format(0): 0 square, 1 vertical, 2 horizontal
    int32_t Type = 0;      // cmbMLG_Format(1): 0 Standard, 1 Be-Pop
};

// Paints onto ctx.XBild; faults go to the handler under "Draw_MLeadGlass", what was painted
// stays.
void Draw_MLeadGlass(PaintContext &ctx, LeadGlassCall call);

// The border of panes along the four edges, `Width` plus the pen's width deep. Kind
// "LEADRECT" is the lead-glass window's border (unfilled cells are drawn again, lead always);
// any other kind is the frames type's (unfilled cells are white with XFill_White, lead only
// with XBorders). A picture too small for one pane per side is a division fault, reported
// under "Draw_LeadBorder"; the picture keeps what was painted.
void Draw_LeadBorder(PaintContext &ctx, PictureBox &picture, int32_t &Width, const QString &Kind);

void paintLeadGlass(PaintContext &ctx);
// "Border-Tiffany-Rect" inside the frames routine: the lead border of txtRahmendicke over the
// picture, its panes from the lead-glass table with XFill.
void paintTiffanyBorder(PaintContext &ctx);

// BtnMLG_Repaint(0) "Repaint letztes Set" and (1) "Neue Werte".
PaintOutcome BtnMLG_Repaint(Session &s);
PaintOutcome BtnMLG_NewValues(Session &s);

void registerLeadGlassPanels();

} // namespace tf
