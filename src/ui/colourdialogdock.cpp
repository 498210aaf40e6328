#include "ui/colourdialogdock.h"

#include "paint/palette.h"
#include "paint/session.h"
#include "ui/colourfield.h"
#include "ui/idleguard.h"
#include "ui/pictureview.h"

#include <QApplication>
#include <QCheckBox>
#include <QColorDialog>
#include <QEvent>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPalette>
#include <QProgressBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace tf::ui {

namespace {

// The colour chart: the hues from left to right, from white at the top through the pure hue
// in the middle to black at the bottom.
QImage colourChart(int w, int h)
{
    QImage img(w, h, QImage::Format_RGB32);
    const int half = h / 2;
    for (int y = 0; y < h; ++y) {
        auto *row = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = 0; x < w; ++x) {
            const QColor pure = QColor::fromHsv(x * 360 / w % 360, 255, 255);
            double r = pure.red(), g = pure.green(), b = pure.blue();
            if (y < half) {
                const double t = double(y) / half; // 0 white .. 1 pure
                r = 255 + (r - 255) * t;
                g = 255 + (g - 255) * t;
                b = 255 + (b - 255) * t;
            } else {
                const double t = double(h - 1 - y) / (h - 1 - half); // 1 pure .. 0 black
                r *= t;
                g *= t;
                b *= t;
            }
            row[x] = qRgb(int(r + 0.5), int(g + 0.5), int(b + 0.5));
        }
    }
    return img;
}

// The grey chart: black on the left to white on the right.
QImage greyChart(int w, int h)
{
    QImage img(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y) {
        auto *row = reinterpret_cast<QRgb *>(img.scanLine(y));
        for (int x = 0; x < w; ++x) {
            const int v = x * 255 / (w - 1);
            row[x] = qRgb(v, v, v);
        }
    }
    return img;
}

PickButtons buttonsOf(Qt::MouseButton button, Qt::KeyboardModifiers modifiers)
{
    PickButtons b;
    b.right = button == Qt::RightButton;
    b.shift = modifiers & Qt::ShiftModifier;
    b.ctrl = modifiers & Qt::ControlModifier;
    return b;
}

} // namespace

ColourDialogDock::ColourDialogDock(Session &session, QWidget *parent)
    : QDockWidget(parent), m_session(session)
{
    setObjectName(QStringLiteral("frmColorDialog"));
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);
    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->setSpacing(2);

    for (PictureBox *p : {&m_picPalette, &m_picPaletteGrey, &m_picPal256})
        p->setAutoRedraw(true);
    m_picPalette.resize(ChartWidth, ChartHeight);
    m_picPalette.setPicture(colourChart(ChartWidth, ChartHeight));
    m_picPaletteGrey.resize(ChartWidth, 14);
    m_picPaletteGrey.setPicture(greyChart(ChartWidth, 14));
    m_picPal256.resize(ChartWidth, 14);
    m_paletteView = new PictureView(m_picPalette, content);
    m_greyView = new PictureView(m_picPaletteGrey, content);
    m_stripView = new PictureView(m_picPal256, content);
    for (PictureView *v : {m_paletteView, m_greyView, m_stripView}) {
        v->setObjectName(v->picture().name());
        v->setCursor(Qt::CrossCursor);
        layout->addWidget(v, 0, Qt::AlignHCenter);
    }
    connectChart(m_paletteView, PaletteChart::picPalette);
    connectChart(m_greyView, PaletteChart::picPaletteGrey);
    connectChart(m_stripView, PaletteChart::picPal256);

    auto *fields = new QGridLayout;
    picForeColor = new ColourField(QString(), content);
    picBackColor = new ColourField(QString(), content);
    clkBorderColor = new ColourField(QStringLiteral("B"), content);
    picForeColor->setObjectName(QStringLiteral("picForeColor"));
    picBackColor->setObjectName(QStringLiteral("picBackColor"));
    clkBorderColor->setObjectName(QStringLiteral("clkBorderColor"));
    picColoSwitch = new QToolButton(content);
    picColoSwitch->setText(QStringLiteral("\u21C4"));
    picColoIdent = new QToolButton(content);
    picColoIdent->setText(QStringLiteral("="));
    picColoSwitch->setObjectName(QStringLiteral("picColoSwitch"));
    picColoIdent->setObjectName(QStringLiteral("picColoIdent"));
    m_foreLabel = new QLabel(content);
    m_backLabel = new QLabel(content);
    m_borderLabel = new QLabel(content);
    fields->addWidget(m_foreLabel, 0, 0);
    fields->addWidget(m_backLabel, 0, 2);
    fields->addWidget(m_borderLabel, 0, 4);
    fields->addWidget(picForeColor, 1, 0);
    fields->addWidget(picColoSwitch, 1, 1);
    fields->addWidget(picBackColor, 1, 2);
    fields->addWidget(picColoIdent, 1, 3);
    fields->addWidget(clkBorderColor, 1, 4);
    picTempColor = new QLabel(content);
    picTempColor->setFixedSize(28, 28);
    picTempColor->setFrameShape(QFrame::Panel);
    picTempColor->setFrameShadow(QFrame::Sunken);
    picTempColor->setAutoFillBackground(true);
    fields->addWidget(picTempColor, 1, 5);
    lblTextColor = new QLabel(QStringLiteral("R:0 G:0: B:0"), content);
    lblTextColor->setObjectName(QStringLiteral("lblTextColor"));
    fields->addWidget(lblTextColor, 0, 5, 1, 2);
    fields->setColumnStretch(6, 1);
    layout->addLayout(fields);

    auto *switches = new QGridLayout;
    XRandomColors = new QCheckBox(content);
    XRandomValues = new QCheckBox(content);
    XLockPalette = new QCheckBox(content);
    switches->addWidget(XRandomColors, 0, 0);
    switches->addWidget(XRandomValues, 1, 0);
    switches->addWidget(XLockPalette, 2, 0);
    frameDuocolors = new QGroupBox(content);
    auto *duo = new QVBoxLayout(frameDuocolors);
    XRandomColors->setObjectName(QStringLiteral("XRandomColors"));
    for (int i = 0; i < 2; ++i) {
        XDuotones[i] = new QCheckBox(frameDuocolors);
        XDuotones[i]->setObjectName(QStringLiteral("XDuotones(%1)").arg(i));
        duo->addWidget(XDuotones[i]);
    }
    switches->addWidget(frameDuocolors, 0, 1, 3, 1);
    layout->addLayout(switches);
    ProgressBar1 = new QProgressBar(content);
    ProgressBar1->setMaximumHeight(12);
    ProgressBar1->setTextVisible(false);
    ProgressBar1->hide();
    layout->addWidget(ProgressBar1);
    layout->addStretch();
    setWidget(content);

    // While a paint runs, the colours stay as the paint found them.
    const auto idle = [this](auto handler) {
        return whenIdle(m_session, std::move(handler), [this] { refreshFromState(); });
    };
    connect(picForeColor, &ColourField::doubleClicked, this, idle([this] { chooseColour(0); }));
    connect(picBackColor, &ColourField::doubleClicked, this, idle([this] { chooseColour(1); }));
    connect(clkBorderColor, &ColourField::doubleClicked, this, idle([this] { chooseColour(2); }));
    connect(picForeColor, &ColourField::rightClicked, this,
            idle([this] { takeTextFore(m_session); }));
    connect(picBackColor, &ColourField::rightClicked, this,
            idle([this] { takeTextBack(m_session); }));
    connect(picColoSwitch, &QToolButton::clicked, this, idle([this] {
                switchColours(m_session);
                Create2ColorPAL(m_session, &m_picPal256);
                foregroundChanged();
            }));
    connect(picColoIdent, &QToolButton::clicked, this, idle([this] {
                identColours(m_session);
                refreshFromState();
            }));
    connect(XRandomColors, &QCheckBox::clicked, this, idle([this](bool on) {
                clickRandomColors(m_session, on);
                refreshFromState();
            }));
    connect(XRandomValues, &QCheckBox::clicked, this, idle([this](bool on) {
                clickRandomValues(m_session, on);
                refreshFromState();
            }));
    connect(XLockPalette, &QCheckBox::clicked, this, idle([this](bool on) {
                clickLockPalette(m_session, on, &m_picPal256);
                refreshFromState();
            }));
    for (int i = 0; i < 2; ++i)
        connect(XDuotones[i], &QCheckBox::clicked, this, idle([this, i](bool on) {
                    clickDuotones(m_session, i, on);
                    refreshFromState();
                }));
    ColorDialog_Load(m_session, &m_picPal256);
    clearColourUnderMouse();
    retranslate();
    refreshFromState();
}

ColourDialogDock::~ColourDialogDock() = default;

void ColourDialogDock::connectChart(PictureView *view, PaletteChart chart)
{
    PictureBox &picture = view->picture();
    connect(view, &PictureView::mousePressed, this,
            whenIdle(m_session,
                     [this, chart, &picture](Qt::MouseButton b, Qt::KeyboardModifiers m,
                                             QPoint at) { pick(chart, picture, b, m, at); }));
    connect(view, &PictureView::mouseMoved, this,
            [this, chart, &picture](Qt::MouseButtons held, Qt::KeyboardModifiers m, QPoint at) {
                showColourUnderMouse(picture, at);
                // Dragging with a button held picks as a press does.
                if (isBusy(m_session)) return;
                if (held & Qt::LeftButton)
                    pick(chart, picture, Qt::LeftButton, m, at);
                else if (held & Qt::RightButton)
                    pick(chart, picture, Qt::RightButton, m, at);
            });
    connect(view, &PictureView::mouseReleased, this,
            [this, chart](Qt::MouseButton, Qt::KeyboardModifiers, QPoint) {
                clearColourUnderMouse();
                if (isBusy(m_session)) return;
                releaseChart(m_session, chart);
                refreshFromState();
            });
    connect(view, &PictureView::mouseLeft, this, [this] { clearColourUnderMouse(); });
}

void ColourDialogDock::pick(PaletteChart chart, PictureBox &picture, Qt::MouseButton button,
                            Qt::KeyboardModifiers modifiers, QPoint at)
{
    const ColorLong c = picture.Point(at.x(), at.y());
    if (c < 0 || (button != Qt::LeftButton && button != Qt::RightButton))
        return;
    const PickButtons b = buttonsOf(button, modifiers);
    pickChartColour(m_session, chart, c, b, &m_picPal256);
    if (b.right && chart != PaletteChart::picPal256)
        backgroundUnderSelection(m_session);
    foregroundChanged();
}

void ColourDialogDock::chooseColour(int field)
{
    ColourState &c = m_session.colours();
    const ColorLong current = field == 0 ? c.ColorFore : field == 1 ? c.ColorBack : c.ColorBorder;
    const QColor chosen = QColorDialog::getColor(toQColor(current), this);
    if (!chosen.isValid())
        return;
    const ColorLong colour = fromQRgb(chosen.rgb());
    if (field == 0) {
        chooseForeColor(m_session, colour, &m_picPal256);
    } else if (field == 1) {
        chooseBackColor(m_session, colour, &m_picPal256);
        backgroundUnderSelection(m_session);
    } else {
        chooseBorderColor(m_session, colour);
    }
    foregroundChanged();
}

void ColourDialogDock::foregroundChanged()
{
    refreshFromState();
    if (DispDialogColor)
        DispDialogColor(m_session.colours().ColorFore);
}

void ColourDialogDock::showColourUnderMouse(PictureBox &picture, QPoint at)
{
    const ColorLong c = picture.Point(at.x(), at.y());
    if (c < 0) {
        clearColourUnderMouse();
        return;
    }
    QPalette pal = picTempColor->palette();
    pal.setColor(QPalette::Window, toQColor(c));
    picTempColor->setPalette(pal);
    lblTextColor->setText(QStringLiteral("R:%1 G:%2: B:%3").arg(RedOf(c)).arg(GreenOf(c)).arg(BlueOf(c)));
}

void ColourDialogDock::clearColourUnderMouse()
{
    // Back to the colour of the dialog's face.
    picTempColor->setPalette(QApplication::palette(picTempColor));
}

void ColourDialogDock::refreshFromState()
{
    const ColourState &c = m_session.colours();
    picForeColor->setColour(c.ColorFore);
    picBackColor->setColour(c.ColorBack);
    clkBorderColor->setColour(c.ColorBorder);
    XRandomColors->setChecked(c.RandomColors);
    XRandomValues->setChecked(c.RandomValues);
    XLockPalette->setChecked(c.XLockPalette);
    XDuotones[0]->setChecked(c.XDuotones[0]);
    XDuotones[1]->setChecked(c.XDuotones[1]);
}

void ColourDialogDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDockWidget::changeEvent(event);
}

void ColourDialogDock::retranslate()
{
    setWindowTitle(tr("Farben"));
    m_foreLabel->setText(tr("Vordergrund"));
    m_backLabel->setText(tr("Hintergrund"));
    m_borderLabel->setText(tr("Rand"));
    picForeColor->setStatusTip(tr("Doppelklick: Farbe wählen; rechte Maustaste: Textfarbe"));
    picBackColor->setStatusTip(tr("Doppelklick: Farbe wählen; rechte Maustaste: Texthintergrund"));
    clkBorderColor->setStatusTip(tr("Doppelklick: Randfarbe wählen"));
    picColoSwitch->setToolTip(tr("Vorder- und Hintergrundfarbe tauschen"));
    picColoIdent->setToolTip(tr("Hintergrundfarbe gleich Vordergrundfarbe"));
    m_paletteView->setToolTip(tr("Links: Vordergrund, mit Umschalt auch Rand, mit Strg nur Rand; rechts: Hintergrund"));
    m_greyView->setToolTip(m_paletteView->toolTip());
    m_stripView->setToolTip(m_paletteView->toolTip());
    XRandomColors->setText(tr("Zufallsfarben"));
    XRandomValues->setText(tr("Zufallswerte"));
    XLockPalette->setText(tr("Palette sperren"));
    frameDuocolors->setTitle(tr("Farbtabelle"));
    XDuotones[0]->setText(tr("Z.-Duotones"));
    XDuotones[1]->setText(tr("Duo-Tones"));
}

} // namespace tf::ui
