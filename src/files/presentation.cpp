#include "files/presentation.h"

#include "core/fault.h"
#include "core/numeric.h"
#include "files/safefile.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace tf {

namespace {

using PV = PresentationValue;

// Where each value of lines 4 to 21 lives in the session: a control (read when saving, set
// when loading), a colour of the colour state, or, for H, V and the margin, the layout's
// scalars when saving and the panel's fields when loading.
struct ValueHome {
    PV value;
    const char *control; // null: a colour
    int index;
    ColorLong ColourState::*colour;
    int32_t MondrianTables::*wideScalar;
    int16_t MondrianTables::*scalar;
};

constexpr ValueHome Homes[] = {
    {PV::SubDirs, "XPicMosaikSubDirs", -1, nullptr, nullptr, nullptr},
    {PV::Stretch, "XPicMosaikStretchpics", -1, nullptr, nullptr, nullptr},
    {PV::Aliasing, "XPicMosaikAliasing", -1, nullptr, nullptr, nullptr},
    {PV::Center, "XPicMosaikCenterPics", -1, nullptr, nullptr, nullptr},
    {PV::Fore, nullptr, -1, &ColourState::ColorFore, nullptr, nullptr},
    {PV::Back, nullptr, -1, &ColourState::ColorBack, nullptr, nullptr},
    {PV::Border, nullptr, -1, &ColourState::ColorBorder, nullptr, nullptr},
    {PV::H, "txtPMKachel", 0, nullptr, nullptr, &MondrianTables::MondrianHSplits},
    {PV::V, "txtPMKachel", 1, nullptr, nullptr, &MondrianTables::MondrianVSplits},
    {PV::SymH, "XPicMosaik", 0, nullptr, nullptr, nullptr},
    {PV::SymV, "XPicMosaik", 1, nullptr, nullptr, nullptr},
    {PV::DoSub, "XPicMosaik", 2, nullptr, nullptr, nullptr},
    {PV::Margin, "txtPMKachel", 2, nullptr, &MondrianTables::MondrianMargin, nullptr},
    {PV::Timer, "txtPicMosaik_Timer", -1, nullptr, nullptr, nullptr},
    {PV::Pen, "cmbPen", -1, nullptr, nullptr, nullptr},
    {PV::Borders, "XBorders", -1, nullptr, nullptr, nullptr},
    {PV::EachFrame, "YPicMosaik_EachRahmen", -1, nullptr, nullptr, nullptr},
    {PV::UseSmall, "XPicMosaik_UseSmallPics", 0, nullptr, nullptr, nullptr},
};
static_assert(std::size(Homes) == size_t(PresentationValueCount));

ControlKey keyOf(const ValueHome &h)
{
    return {QString::fromLatin1(h.control), h.index};
}

bool isWide(PV v)
{
    for (const PresentationLine &l : presentationLines())
        if (l.value == v) return l.wide;
    return true;
}

// The source folder of line 2 is looked at only when it is a full path.
bool looksLikeFullPath(const QString &path)
{
    return path.contains(QStringLiteral(":\\")) || path.startsWith(QLatin1Char('/'));
}

// The file holds a cell's sub-frames only as far as the cell tables' bounds reach (0..H+1 of
// a row, 0..V+1 of a column). A count beyond them would send a repaint past the tables: it is
// cut to what the file holds, and the frames beyond stay empty.
void keepSubFramesInBounds(MondrianTables &m)
{
    for (int c = 0; c < m.MondrianHSplits; ++c)
        for (int r = 0; r < m.MondrianVSplits; ++r) {
            int32_t &rowCount = m.ArrSubH(2, c, r);
            rowCount = std::min(rowCount, int32_t(m.ArrSubH.upperI() + 1));
            int32_t &columnCount = m.ArrSubV(2, c, r);
            columnCount = std::min(columnCount, int32_t(m.ArrSubV.upperJ() + 1));
        }
}

// The size of the rectangle the layout divides, which the file does not hold: the farthest
// right and bottom edges of its cells.
void takeLayoutSize(MondrianTables &m)
{
    int32_t w = 0, h = 0;
    for (int c = 0; c < m.MondrianHSplits; ++c)
        for (int r = 0; r < m.MondrianVSplits; ++r) {
            w = std::max(w, m.ArrCellH(1, c, r));
            h = std::max(h, m.ArrCellV(1, c, r));
        }
    m.MondrianW = w;
    m.MondrianH = h;
}

const QString &fileFilter()
{
    static const QString filter = QStringLiteral("Tvl Pic.Presentation (*.tvp)");
    return filter;
}

} // namespace

QSize presentScreenSize()
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance())) return {};
    const QScreen *screen = QGuiApplication::primaryScreen();
    if (!screen) return {};
    const QSize logical = screen->size();
    const qreal ratio = screen->devicePixelRatio();
    return {int(roundHalfEven(logical.width() * ratio)),
            int(roundHalfEven(logical.height() * ratio))};
}

PicPresentation presentationOfSession(const Session &s, QSize screen)
{
    const Controls &c = s.controls();
    const MondrianTables &m = s.mondrian();
    const PicSourceList &sources = s.picSources();
    PicPresentation p;
    p.source = sources.FromFile ? QString() : sources.PicSource;
    p.screenW = CInt(screen.width());
    p.screenH = CInt(screen.height());
    for (const ValueHome &h : Homes) {
        double v = 0;
        if (h.colour)
            v = s.colours().*h.colour;
        else if (h.scalar)
            v = m.*h.scalar;
        else if (h.wideScalar)
            v = m.*h.wideScalar;
        else
            v = c.number(keyOf(h));
        p[h.value] = isWide(h.value) ? CLng(v) : CInt(v);
    }
    p.ArrCellH = m.ArrCellH;
    p.ArrSubH = m.ArrSubH;
    p.ArrSubVX = m.ArrSubVX;
    p.ArrCellV = m.ArrCellV;
    p.ArrSubHY = m.ArrSubHY;
    p.ArrSubV = m.ArrSubV;
    return p;
}

bool presentationLayoutReady(const Session &s)
{
    const MondrianTables &m = s.mondrian();
    return int(m.MondrianLastH) * int(m.MondrianLastV) > 0 && m.holdsLayout();
}

bool picPresentation_Save(Session &s, const QString &Path, QSize screen)
{
    bool written = false;
    guarded(QStringLiteral("picPresentation_Save"), [&] {
        const QByteArray bytes = presentationBytes(presentationOfSession(s, screen));
        const WriteResult r = writeFileSafely(
            Path, [&](QIODevice &out, QString &) { return out.write(bytes) == bytes.size(); });
        if (!r.ok()) {
            s.ask(r.message, Buttons::Ok, Icon::Exclamation);
            return;
        }
        written = true;
    });
    return written;
}

bool picPresentation_Load(Session &s, const QString &Path, QSize screen)
{
    bool read = false;
    guarded(QStringLiteral("picPresentation_Load"), [&] {
        QFile file(Path);
        if (!file.open(QIODevice::ReadOnly))
            throw Fault(
                Fault::FileNotFound,
                QCoreApplication::translate("Presentation", "Die Datei %1 lässt sich nicht öffnen")
                    .arg(Path));
        const QByteArray bytes = file.readAll();
        file.close();
        if (!hasPresentationHeader(bytes)) {
            s.ask(QCoreApplication::translate("Presentation", "Falsches Dateiformat!"), Buttons::Ok,
                  Icon::Critical);
            return;
        }
        PicPresentation p = parsePresentation(bytes);

        if (looksLikeFullPath(p.source)) {
            if (QFileInfo(p.source).isDir()) {
                // A folder in line 2 is a folder source ("Dateiverzeichnis").
                s.picSources().PicSource = p.source;
                s.picSources().FromFile = false;
                s.controls().set(ControlKey{QStringLiteral("optPicMosaikSource")},
                                 QStringLiteral("1"));
            } else
                s.ask(QCoreApplication::translate(
                          "Presentation",
                          "Der Bildpfad %1 ist auf diesem PC nicht verfügbar. Stellen Sie bitte "
                          "einen korrekten Pfad mit dem Befehl [...] ein.")
                          .arg(p.source),
                      Buttons::Ok, Icon::Exclamation);
        }
        if (screen.isValid() && (p.screenW != screen.width() || p.screenH != screen.height()))
            s.ask(QCoreApplication::translate(
                      "Presentation",
                      "Die Präsentation wurde mit der Bildschirmauflösung %1/%2 erstellt. Eine "
                      "korrekte Darstellung mit der aktuellen Bildschirmauflösung von %3/%4 ist "
                      "deshalb nicht möglich!")
                      .arg(p.screenW)
                      .arg(p.screenH)
                      .arg(screen.width())
                      .arg(screen.height()),
                  Buttons::Ok, Icon::Exclamation);

        // Without borders there are no frame lines to draw at all.
        if (p[PV::Borders] == 0) p[PV::EachFrame] = 0;

        MondrianTables &m = s.mondrian();
        m.MondrianHSplits = m.MondrianLastH = int16_t(p[PV::H]);
        m.MondrianVSplits = m.MondrianLastV = int16_t(p[PV::V]);
        m.MondrianMargin = p[PV::Margin];
        m.ArrCellH = std::move(p.ArrCellH);
        m.ArrSubH = std::move(p.ArrSubH);
        m.ArrSubVX = std::move(p.ArrSubVX);
        m.ArrCellV = std::move(p.ArrCellV);
        m.ArrSubHY = std::move(p.ArrSubHY);
        m.ArrSubV = std::move(p.ArrSubV);
        keepSubFramesInBounds(m);
        takeLayoutSize(m);
        // The file does not hold the layout's type: it is the panel's, so that the repaint
        // keeps the frames.
        m.MondrianLastType = int16_t(std::clamp(
            s.controls().listIndex(ControlKey{QStringLiteral("cmbPicMosaik_Format"), 1}), 0, 1));

        for (const ValueHome &h : Homes) {
            if (h.colour)
                s.colours().*h.colour = ColorLong(p[h.value]);
            else
                s.controls().set(keyOf(h), QString::number(p[h.value]));
        }
        // The next repaint keeps these values instead of drawing its own.
        s.colours().RandomValues = false;
        s.DoEvents();
        read = true;
    });
    return read;
}

void afterPresentationLoaded(Session &s)
{
    s.picSources().ListValid = false;
    s.mondrian().MondrianFrames = 0;
    s.mondrian().MondrianFrames32 = 0;
}

bool Menu_OpenPicPresentation(Session &s, int Mode, PresentationChooser &chooser,
                              QString &PresentationDir, const QString &pictureDir)
{
    bool done = false;
    guarded(QStringLiteral("Menu_OpenPicPresentation"), [&] {
        const QString dir = PresentationDir.isEmpty() ? pictureDir : PresentationDir;
        QString path;
        if (Mode == 0) {
            path = chooser.chooseToLoad(
                dir, QCoreApplication::translate("Presentation", "Bildpräsentation laden"),
                fileFilter());
        } else {
            if (!presentationLayoutReady(s)) {
                s.ask(QCoreApplication::translate(
                          "Presentation",
                          "Erzeugen Sie bitte zuerst mit dem Befehl [Paint <F5>] eine "
                          "Bildpräsentation!"),
                      Buttons::Ok, Icon::Exclamation);
                return;
            }
            path = chooser.chooseToSave(
                dir, QCoreApplication::translate("Presentation", "Bildpräsentation speichern"),
                fileFilter());
        }
        if (path.isEmpty()) return;
        if (!path.endsWith(QStringLiteral(".tvp"), Qt::CaseInsensitive))
            path += QStringLiteral(".tvp");
        const QString folder = QFileInfo(path).absolutePath();
        if (folder != PresentationDir) PresentationDir = folder;
        if (Mode == 0) {
            if (picPresentation_Load(s, path)) {
                s.ask(QCoreApplication::translate(
                          "Presentation",
                          "Starten Sie die geladene Präsentation mit dem Befehlsknopf [Repaint "
                          "letztes Set]. Verwenden Sie nicht den Befehl [Paint <F5>]!"),
                      Buttons::Ok, Icon::Information);
                afterPresentationLoaded(s);
                done = true;
            }
        } else {
            done = picPresentation_Save(s, path);
        }
    });
    return done;
}

} // namespace tf
