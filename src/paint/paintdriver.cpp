#include "paint/paintdriver.h"
#include "paint/typepanels.h"

#include "core/fault.h"
#include "paint/catalogue.h"
#include "paint/colourstate.h"
#include "paint/grafmenu.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <QDateTime>

namespace tf {

namespace {

const QLatin1String PaintWord("$PAINT");

bool contains(const QString &text, const char *word)
{
    return text.contains(QLatin1String(word));
}

// Brings the controls of the dialog back to rest after a click.
void restoreControls(Session &s)
{
    s.paint().dialog.setButtonState(GrafDialogState::Button::Rest);
}

uint32_t seedFromClock()
{
    // Two paints within the same millisecond still differ.
    static uint32_t count = 0;
    const auto ms = uint64_t(QDateTime::currentMSecsSinceEpoch());
    return uint32_t(ms) ^ uint32_t(ms >> 32) ^ (++count * 0x9E3779B9u);
}

void setStatusText(Session &s, const QString &text)
{
    s.status().setPanelText(sbrState, text);
}

// The undo image and the resets of the main window before a paint.
void prepare(Session &s)
{
    Workspace &ws = s.workspace();
    ws.Bild.setDrawMode(13);
    s.view().reset_imgButtons();
    s.view().clr_DrawStyleButtons();
    ws.Bild_nachUndo();
    // A paint on a selection blends over the selection's own undo image.
    if (ws.PicSelect.Visible())
        ws.PicSelect_nachUndo();
    else if (ws.picSelectC.Visible())
        ws.PicSelectC_nachUndo();
    // Set_Toolbarstatus, Set_Fixstatus and Set_Fontstatus: the status panels start anew.
    setStatusText(s, QString());
    s.fixings().Set_Fixstatus(false);
    s.status().setPanelText(sbrFont, QString());
}

PaintRecord recordOf(const Session &s, uint32_t seed)
{
    const TransparencyState &t = s.transparency();
    const ColourState &c = s.colours();
    PaintRecord r;
    r.GrafKey = s.paint().GrafKey;
    r.width = t.XBild->Width();
    r.height = t.XBild->Height();
    r.ColorFore = c.ColorFore;
    r.ColorBack = c.ColorBack;
    r.ColorBorder = c.ColorBorder;
    r.TextFore = c.TextFore;
    r.TextBack = c.TextBack;
    r.RandomColors = c.RandomColors;
    r.RandomValues = c.RandomValues;
    r.TranspPercent = t.TranspPercent;
    r.duotones = c.XDuotones[0] ? 0 : c.XDuotones[1] ? 1 : -1;
    r.paletteFile = c.paletteFile;
    r.systemPalette = c.systemPalette;
    if (optionPanelOf(r.GrafKey) == QLatin1String(PicSourcePanelName))
        r.photoSource = s.picSources().PicSource;
    for (auto &changed : s.controls().changed())
        if (changed.first.name != QLatin1String("ScrollTransparence"))
            r.controls.push_back(std::move(changed));
    r.seed = seed;
    return r;
}

// Create_Polygraphics, then the paint becomes the persistent picture.
PaintOutcome paintAndKeep(Session &s)
{
    const PaintOutcome outcome = Create_Polygraphics(s);
    if (outcome != PaintOutcome::Painted) return outcome;

    Workspace &ws = s.workspace();
    // The paint becomes the persistent picture.
    ws.Bild.setPicture(ws.Bild.Image());
    // The work picture of a transparent paint likewise; one that no paint has used stays
    // blank and takes no memory.
    if (ws.BildWork.holdsPixels()) ws.BildWork.setPicture(ws.BildWork.Image());
    CommandState commands = ws.commands;
    commands.save = true;
    if (!s.paint().AutoPaintRun) commands.print = true;
    ws.setCommands(commands);
    return PaintOutcome::Painted;
}

PaintOutcome paintButton(Session &s)
{
    PaintState &p = s.paint();
    Workspace &ws = s.workspace();
    if (p.AutoPaintRun) patch_lastactionpaint(s);

    const QString kind = ws.lastaction.left(4);
    if (kind == QLatin1String("RECT"))
        ws.lastaction = ws.PicSelect.Visible() ? QStringLiteral("RECT") : QString();
    else if (kind == QLatin1String("CIRC"))
        ws.lastaction = ws.picSelectC.Visible() ? QStringLiteral("CIRC") : QString();
    if (!ws.lastaction.contains(PaintWord)) ws.lastaction += PaintWord;
    // The selections' flags of "moved or stamped since the cut" tell Undo about the state
    // before this paint; a paint makes a new state, on the selection shown or on the picture.
    ws.SelFlagRect = false;
    ws.SelFlagCirc = false;

    if (p.dialog.captionSaysStop()) {
        p.dialog.setButtonState(GrafDialogState::Button::Waiting);
        const Answer a =
            s.ask(QCoreApplication::translate("PaintDriver",
                                              "Die Ausgabe wurde angehalten! Bitte bestätigen."),
                  Buttons::OkCancel, Icon::Question);
        if (a == Answer::Cancel) {
            p.dialog.setButtonState(GrafDialogState::Button::Running);
            p.dialog.notify(GrafDialogState::Change::FocusButton);
            return PaintOutcome::StopCancelled;
        }
        p.StopPaint = true;
        restoreControls(s);
        return PaintOutcome::StopConfirmed;
    }
    if (p.Timer1) {
        p.StopPaint = true;
        restoreControls(s);
        return PaintOutcome::StopConfirmed;
    }
    restoreControls(s);
    // A paint stopped but not yet at its next check still runs: no second one meanwhile.
    if (s.runState().busy()) return PaintOutcome::Busy;

    Set_BILD(s);
    s.view().reset_imgButtons();
    // The layout of the last Mondrian set does not outlive another press of Paint.
    s.mondrian().eraseLastSet();
    const int listIndex = p.dialog.ListIndex();
    if (listIndex + 1 < 1) {
        s.ask(
            QCoreApplication::translate("PaintDriver", "Sie haben keine Grafikoption ausgewählt!"),
            Buttons::Ok, Icon::Information);
        return PaintOutcome::NoTypeChosen;
    }
    if (p.GrafGroup >= 1 && p.GrafGroup <= GroupCount)
        p.GrafTypeMem[size_t(p.GrafGroup)] = listIndex;
    Hole_GMENU(s, listIndex + 1);

    return paintAndKeep(s);
}

} // namespace

PaintOutcome BtnPaint_Click(Session &s)
{
    PaintOutcome outcome = PaintOutcome::Failed;
    guarded(QStringLiteral("DoPaintButton"), [&] { outcome = paintButton(s); });
    return outcome;
}

PaintOutcome BtnPaintRoll_Click(Session &s, int index)
{
    PaintState &p = s.paint();
    if (p.dialog.captionSaysStop()) {
        restoreControls(s);
        s.DoEvents();
        p.StopPaint = true;
        return PaintOutcome::StopConfirmed;
    }
    const auto rows = groupRows(p.GrafGroup);
    const int n = int(rows.size());
    if (n == 0) return PaintOutcome::NoTypeChosen;
    const int step = index == 0 ? -1 : 1;
    // From no row, ">>" starts at the first row and "<<" at the last.
    int i = p.dialog.ListIndex();
    if (i < 0 || i >= n) i = step > 0 ? -1 : n;
    for (int tries = 0; tries < n; ++tries) {
        i = (i + step + n) % n;
        if (!rows[size_t(i)].isSeparator()) break;
    }
    ListBoxType_Click(s, i);
    return BtnPaint_Click(s);
}

PaintOutcome paintAgain(Session &s)
{
    PaintOutcome outcome = PaintOutcome::Failed;
    guarded(QStringLiteral("DoPaintButton"), [&] {
        if (s.runState().busy()) {
            outcome = PaintOutcome::Busy;
            return;
        }
        Workspace &ws = s.workspace();
        if (!ws.lastaction.contains(PaintWord)) ws.lastaction += PaintWord;
        Set_BILD(s);
        s.view().reset_imgButtons();
        outcome = paintAndKeep(s);
    });
    return outcome;
}

void patch_lastactionpaint(Session &s)
{
    Workspace &ws = s.workspace();
    if (!ws.PicSelect.Visible() && !ws.picSelectC.Visible()) ws.lastaction.clear();
    ws.BildChanged = true;
    if (!ws.lastaction.contains(PaintWord) && contains(ws.lastaction, "MOVED"))
        ws.lastaction = ws.lastaction.left(4) + PaintWord;
}

PaintOutcome Create_Polygraphics(Session &s)
{
    PaintState &p = s.paint();
    if (s.runState().busy()) return PaintOutcome::Busy;
    if (p.GrafKey == QLatin1String(SeparatorKey)) {
        setStatusText(s,
                      QCoreApplication::translate("PaintDriver", "Eine Trennlinie malt nichts."));
        return PaintOutcome::NotPaintable;
    }
    const PainterEntry *entry = findPainter(s.painters(), p.GrafKey);
    if (!entry || !entry->paint) {
        setStatusText(
            s, QCoreApplication::translate(
                   "PaintDriver", "„%1“ malt noch nichts: sein Maler ist noch nicht eingebaut.")
                   .arg(p.GrafKey));
        return PaintOutcome::NotPaintable;
    }

    s.runState().setPainting(true);
    p.StopPaint = false;
    struct Finish {
        Session &s;
        ~Finish()
        {
            s.unseed();
            s.runState().setPainting(false);
            restoreControls(s);
        }
    } finish{s};
    p.dialog.setButtonState(GrafDialogState::Button::Running);

    if (entry->prepare) prepare(s);
    TransparencyState &t = s.transparency();
    t.setPercent(s.controls().value(ControlKey{QStringLiteral("ScrollTransparence")}));

    const uint32_t seed = p.nextSeed.value_or(seedFromClock());
    p.nextSeed.reset();
    p.lastPaint = recordOf(s, seed);
    s.seed(seed);
    // The caption shows, and a Stop can come, before the painter starts.
    s.DoEvents();

    bool ok = true;
    if (!p.StopPaint) {
        ok = guarded(QStringLiteral("Create_Polygraphics"), [&] {
            PaintContext ctx{
                s, *t.XBild, *t.XUndo, *t.XWork,
                readOptionVariables(s.controls(), t.XBild->Width(), t.XBild->Height())};
            // The figures take the colour table when one of its two switches is set.
            ctx.opt.UseDuoTable = s.colours().XDuotones[0] || s.colours().XDuotones[1];
            entry->paint(ctx);
        });
    }
    setStatusText(s, QCoreApplication::translate("PaintDriver", "Startwert %1").arg(seed));
    return ok ? PaintOutcome::Painted : PaintOutcome::Failed;
}

void init_Progress2(Session &s, int lValue)
{
    s.paint().progress2Max = std::max(1, lValue);
    s.status().setProgress(0, s.paint().progress2Max);
    s.DoEvents();
}

void set_Progress2(Session &s, int value)
{
    if (s.paint().progress2Max > 0)
        s.status().setProgress(std::clamp(value, 0, s.paint().progress2Max),
                               s.paint().progress2Max);
}

void exit_Progress2(Session &s)
{
    s.paint().progress2Max = 0;
    s.status().setProgress(0, 0);
}

} // namespace tf
