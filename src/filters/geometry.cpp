#include "filters/geometry.h"

#include "core/dibsection.h"
#include "core/fault.h"
#include "filters/filtercommand.h"
#include "filters/filterrun.h"
#include "paint/colourstate.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <QPainter>
#include <cstring>

namespace tf {

namespace {

bool sizeAllowed(int w, int h)
{
    return w >= 1 && h >= 1 && w <= MaxPictureSide && h <= MaxPictureSide;
}

void refuseSize(Session &s, int w, int h)
{
    s.ask(QCoreApplication::translate("Geometry",
                                      "Die Größe %1 x %2 ist nicht möglich: "
                                      "jede Seite muss zwischen 1 und %3 Pixeln liegen.")
              .arg(w)
              .arg(h)
              .arg(MaxPictureSide),
          Buttons::Ok, Icon::Exclamation);
}

FilterTarget pictureTarget(Session &s)
{
    Workspace &ws = s.workspace();
    return {&ws.Bild, &ws.BildWork, FilterTarget::Picture};
}

} // namespace

QImage turnedQuarters(const QImage &picture, int quarters, int threads)
{
    const QImage src = picture.convertToFormat(QImage::Format_RGB32);
    const int q = ((quarters % 4) + 4) % 4;
    if (q == 0) return src;
    const int W = src.width(), H = src.height();
    QImage out = q == 2 ? QImage(W, H, QImage::Format_RGB32) : QImage(H, W, QImage::Format_RGB32);
    const int w = out.width(), h = out.height();
    parallelRows(
        h, w,
        [&](int first, int last) {
            for (int y = first; y < last; ++y) {
                auto *o = reinterpret_cast<uint32_t *>(out.scanLine(y));
                for (int x = 0; x < w; ++x) {
                    int sx, sy;
                    if (q == 1) {
                        sx = y;
                        sy = H - 1 - x;
                    } else if (q == 2) {
                        sx = W - 1 - x;
                        sy = H - 1 - y;
                    } else {
                        sx = W - 1 - y;
                        sy = x;
                    }
                    o[x] = reinterpret_cast<const uint32_t *>(src.constScanLine(sy))[sx];
                }
            }
        },
        1 << 16, threads);
    return out;
}

QImage scaledPicture(const QImage &picture, int w, int h, bool smooth)
{
    cDIBSection from;
    if (!from.CreateFromPicture(picture)) return QImage();
    const std::unique_ptr<cDIBSection> to = smooth ? from.Resample(w, h) : from.Resize(w, h);
    if (!to) return QImage();
    QImage out(w, h, QImage::Format_RGB32);
    DeviceContext dc(&out, false);
    to->PaintPicture(dc, 0, 0);
    return out;
}

QImage onCanvas(const QImage &picture, int w, int h, int anchor, ColorLong background)
{
    QImage out(w, h, QImage::Format_RGB32);
    out.fill(toQRgb(background));
    const int col = anchor % 3, row = anchor / 3;
    const int x = col == 0 ? 0 : col == 1 ? (w - picture.width()) / 2 : w - picture.width();
    const int y = row == 0 ? 0 : row == 1 ? (h - picture.height()) / 2 : h - picture.height();
    QPainter p(&out);
    p.setCompositionMode(QPainter::CompositionMode_Source);
    p.drawImage(x, y, picture);
    return out;
}

bool Menu_Turn(Session &s, int quarters)
{
    return runOnTarget(
        s, chooseFilterTarget(s), QStringLiteral("Menu_Turn"),
        [quarters](QImage &p) { p = turnedQuarters(p, quarters); }, "$TURN90");
}

bool Menu_PictureSize(Session &s, int w, int h, bool smooth)
{
    if (!sizeAllowed(w, h)) {
        refuseSize(s, w, h);
        return false;
    }
    return runOnTarget(s, pictureTarget(s),
                       smooth ? QStringLiteral("Resample") : QStringLiteral("Resize"),
                       [&](QImage &p) {
                           QImage scaled = scaledPicture(p, w, h, smooth);
                           if (scaled.isNull()) throw Fault(Fault::OutOfMemory);
                           p = scaled;
                       });
}

bool Menu_CropToSelection(Session &s)
{
    Workspace &ws = s.workspace();
    PictureBox *selection = ws.PicSelect.Visible()    ? &ws.PicSelect
                            : ws.picSelectC.Visible() ? &ws.picSelectC
                                                      : nullptr;
    if (!selection) {
        s.ask(QCoreApplication::translate("Geometry",
                                          "Zum Freistellen ziehen Sie zuerst eine Auswahl auf."),
              Buttons::Ok, Icon::Information);
        return false;
    }
    const QImage part = selection->Image();
    if (!runOnTarget(s, pictureTarget(s), QStringLiteral("Menu_CropToSelection"),
                     [&](QImage &p) { p = part.convertToFormat(QImage::Format_RGB32); }))
        return false;
    selection->setVisible(false);
    return true;
}

bool Menu_CanvasSize(Session &s, int w, int h, int anchor)
{
    if (!sizeAllowed(w, h)) {
        refuseSize(s, w, h);
        return false;
    }
    const ColorLong back = s.colours().ColorBack;
    return runOnTarget(s, pictureTarget(s), QStringLiteral("Menu_CanvasSize"),
                       [&](QImage &p) { p = onCanvas(p, w, h, anchor, back); });
}

} // namespace tf
