#pragma once
// The colour commands that are not numbered filters: "Sepia" and the hue dialog
// (mn_Colorize, frmColourise). Both replace the hue of the filter target with Colourise.

#include "core/numeric.h"

#include <QImage>
#include <QString>

namespace tf {

class Session;

struct ColouriseValues {
    Single hue = 0.0f;        // -1..5, sextants
    Single saturation = 0.5f; // 0..1
    bool monochrome = true;
};

// The values of "Sepia".
constexpr ColouriseValues SepiaValues{0.5f, 0.25f, true};

// Colourise on a picture (Format_RGB32) in place, with the session's thread limit.
void colourisePicture(Session &s, QImage &picture, const ColouriseValues &v);

// mn_Sepia: Colourise with hue 0.5, saturation 0.25, monochrome, through the target routine.
bool mn_Sepia(Session &s);

// The steps of mn_Colorize around frmColourise, as FilterDialogRun does for frmGamma:
// construction takes the undo image of the filter target; preview() shows the values on the
// target; finish() gives the picture back (cancelled) or keeps the values, applying them
// when they were not previewed. Faults are reported under "Menu_Colorize".
class ColouriseRun {
public:
    explicit ColouriseRun(Session &s);
    ~ColouriseRun();
    ColouriseRun(const ColouriseRun &) = delete;
    ColouriseRun &operator=(const ColouriseRun &) = delete;

    const QImage &original() const { return m_original; }
    void preview(const ColouriseValues &v);
    bool finish(bool cancelled, bool previewed, const ColouriseValues &v);

private:
    Session &m_s;
    QImage m_original;
    bool m_finished = false;
};

} // namespace tf
