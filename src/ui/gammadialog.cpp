#include "ui/gammadialog.h"

#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "paint/session.h"
#include "ui/colourfield.h"
#include "ui/getstepsdialog.h"

#include <QApplication>
#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSlider>
#include <QTimer>
#include <QVBoxLayout>
#include <cmath>

namespace tf::ui {

namespace {

// The side of the preview pictures; a larger picture is previewed on a reduced copy.
constexpr int PreviewSide = 240;

QLabel *pictureLabel(QWidget *parent)
{
    auto *l = new QLabel(parent);
    l->setFixedSize(PreviewSide, PreviewSide);
    l->setAlignment(Qt::AlignCenter);
    l->setFrameShape(QFrame::Panel);
    l->setFrameShadow(QFrame::Sunken);
    return l;
}

} // namespace

GammaDialog::GammaDialog(Session &session, const FilterRow &row, QWidget *parent)
    : QDialog(parent), m_session(session), m_row(row),
      m_zoom(QSize(1, 1), PreviewSide)
{
    setObjectName(QStringLiteral("frmGamma"));
    setWindowTitle(row.dialogTitle());
    m_run = std::make_unique<FilterDialogRun>(session, row);
    const QImage &original = m_run->original();
    m_scale = std::min(1.0, double(PreviewSide) / std::max(original.width(), original.height()));
    m_reduced = m_scale < 1.0 ? original.scaled(std::max(1, int(original.width() * m_scale)),
                                                std::max(1, int(original.height() * m_scale)),
                                                Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                              : original;
    m_scale = double(m_reduced.width()) / std::max(1, original.width());

    auto *layout = new QVBoxLayout(this);
    auto *pictures = new QHBoxLayout;
    m_picOriginal = pictureLabel(this);
    m_picOriginal->setObjectName(QStringLiteral("picOriginal"));
    m_picOriginal->setPixmap(QPixmap::fromImage(m_reduced));
    m_picOriginal->installEventFilter(this);
    pictures->addWidget(m_picOriginal, 0, Qt::AlignTop);
    if (row.beforeAfter) {
        m_zoom = PreviewZoom(original.size(), PreviewSide);
        auto *after = new QGridLayout;
        after->setSpacing(0);
        m_picPreview = pictureLabel(this);
        m_picPreview->setObjectName(QStringLiteral("picPreview"));
        after->addWidget(m_picPreview, 0, 0);
        m_vScroll = new QScrollBar(Qt::Vertical, this);
        m_vScroll->setObjectName(QStringLiteral("VScroll1"));
        after->addWidget(m_vScroll, 0, 1);
        m_hScroll = new QScrollBar(Qt::Horizontal, this);
        m_hScroll->setObjectName(QStringLiteral("HScroll1"));
        after->addWidget(m_hScroll, 1, 0);
        for (QScrollBar *bar : {m_hScroll, m_vScroll})
            connect(bar, &QScrollBar::valueChanged, this, [this] {
                if (!m_ready) return;
                m_zoom.setOffset(QPoint(m_hScroll->value(), m_vScroll->value()));
                refreshSmallPreview();
            });
        auto *zoomRow = new QHBoxLayout;
        m_zoomIn = new QPushButton(QStringLiteral("+"), this);
        m_zoomIn->setObjectName(QStringLiteral("BtnZoom0"));
        m_zoomIn->setToolTip(tr("Vergrößern"));
        m_zoomOut = new QPushButton(QStringLiteral("-"), this);
        m_zoomOut->setObjectName(QStringLiteral("BtnZoom1"));
        m_zoomOut->setToolTip(tr("Verkleinern"));
        for (QPushButton *b : {m_zoomIn, m_zoomOut}) {
            b->setFixedWidth(32);
            b->setAutoDefault(false);
            zoomRow->addWidget(b);
        }
        zoomRow->addStretch();
        connect(m_zoomIn, &QPushButton::clicked, this, [this] { zoomBy(true); });
        connect(m_zoomOut, &QPushButton::clicked, this, [this] { zoomBy(false); });
        after->addLayout(zoomRow, 2, 0, 1, 2);
        pictures->addLayout(after);
        updateScrollBars();
    }
    layout->addLayout(pictures);
    const Language lang = currentLanguage();
    if (row.previewed == StartsPreviewed::Position) {
        QString prompt = row.prompt(lang);
        if (prompt.isEmpty()) prompt = tr("Klicken Sie auf das Bild, um die Farbe zu wählen.");
        auto *p = new QLabel(prompt, this);
        p->setObjectName(QStringLiteral("lblPrompt"));
        layout->addWidget(p);
    }

    if (row.mixer) {
        auto *frBanks = new QGroupBox(tr("Kanäle"), this);
        frBanks->setObjectName(QStringLiteral("frBanks"));
        auto *grid = new QGridLayout(frBanks);
        const QString outputs[3] = {tr("Rot"), tr("Grün"), tr("Blau")};
        const char *names[3] = {"optRChannel", "optGChannel", "optBChannel"};
        for (int o = 0; o < 3; ++o) {
            grid->addWidget(new QLabel(outputs[o], frBanks), o, 0);
            auto *group = new QButtonGroup(frBanks);
            for (int src = 0; src < 3; ++src) {
                auto *b = new QRadioButton(QStringLiteral("RGB").mid(src, 1), frBanks);
                b->setObjectName(QString::fromLatin1(names[src]) + QString::number(o));
                b->setChecked(src == o);
                group->addButton(b);
                grid->addWidget(b, o, 1 + src);
                m_source[size_t(o)][size_t(src)] = b;
                connect(b, &QRadioButton::toggled, this, &GammaDialog::sliderChanged);
            }
            m_invert[size_t(o)] = new QCheckBox(tr("Invertieren"), frBanks);
            m_invert[size_t(o)]->setObjectName(QStringLiteral("chkInvt%1").arg(o));
            m_kill[size_t(o)] = new QCheckBox(tr("Löschen"), frBanks);
            m_kill[size_t(o)]->setObjectName(QStringLiteral("chkKill%1").arg(o));
            grid->addWidget(m_invert[size_t(o)], o, 4);
            grid->addWidget(m_kill[size_t(o)], o, 5);
            connect(m_invert[size_t(o)], &QCheckBox::toggled, this, &GammaDialog::sliderChanged);
            connect(m_kill[size_t(o)], &QCheckBox::toggled, this, &GammaDialog::sliderChanged);
        }
        layout->addWidget(frBanks);
    } else {
        auto *frScrolls = new QWidget(this);
        frScrolls->setObjectName(QStringLiteral("frScrolls"));
        auto *grid = new QGridLayout(frScrolls);
        grid->setContentsMargins(0, 0, 0, 0);
        for (size_t i = 0; i < row.sliders.size() && i < 3; ++i) {
            const FilterSlider &sl = row.sliders[i];
            m_labels[i] = new QLabel(frScrolls);
            m_labels[i]->setMinimumWidth(150);
            m_labels[i]->setObjectName(QStringLiteral("lblScroll%1").arg(i));
            m_labels[i]->setToolTip(tr("Doppelklick: Wert eingeben"));
            m_labels[i]->installEventFilter(this);
            auto *s = new QSlider(Qt::Horizontal, frScrolls);
            s->setObjectName(QStringLiteral("Scroll%1").arg(i));
            s->setRange(sl.min, sl.max);
            s->setSingleStep(1);
            s->setPageStep(sl.change);
            s->setValue(sl.def);
            s->setMinimumWidth(260);
            connect(s, &QSlider::valueChanged, this, &GammaDialog::sliderChanged);
            m_sliders[i] = s;
            grid->addWidget(m_labels[i], int(i), 0);
            grid->addWidget(s, int(i), 1);
        }
        layout->addWidget(frScrolls);
    }
    if (row.resizeOptions) {
        // Stretching and rotation: the picture may take the result's size; uncovered room
        // takes the background colour or shows the picture as it was.
        auto *boxes = new QHBoxLayout;
        m_maskResize = new QCheckBox(tr("Größe anpassen"), this);
        m_maskResize->setObjectName(QStringLiteral("XMaskResize"));
        m_cleanBack = new QCheckBox(tr("Hintergrund löschen"), this);
        m_cleanBack->setObjectName(QStringLiteral("XCleanBack"));
        m_cleanBack->setChecked(true);
        for (QCheckBox *b : {m_maskResize, m_cleanBack}) {
            boxes->addWidget(b);
            connect(b, &QCheckBox::toggled, this, &GammaDialog::sliderChanged);
        }
        boxes->addStretch();
        layout->addLayout(boxes);
    }
    if (row.colourFields > 0) {
        auto *colours = new QHBoxLayout;
        const QString captions[2] = {tr("Farbe von"), tr("Farbe nach/Hintergrund")};
        for (int i = 0; i < row.colourFields && i < 2; ++i) {
            auto *f = new ColourField(QString(), this);
            f->setObjectName(QStringLiteral("lblCol%1").arg(i));
            f->setColour(row.colourDefaults[size_t(i)]);
            connect(f, &ColourField::doubleClicked, this, [this, f] {
                const QColor c = QColorDialog::getColor(toQColor(f->colour()), this);
                if (!c.isValid()) return;
                f->setColour(fromQRgb(c.rgb()));
                sliderChanged();
            });
            colours->addWidget(new QLabel(captions[i], this));
            colours->addWidget(f);
            m_colours[size_t(i)] = f;
        }
        colours->addStretch();
        layout->addLayout(colours);
    }

    auto *buttons = new QDialogButtonBox(this);
    auto *preview = buttons->addButton(tr("Vorschau"), QDialogButtonBox::ActionRole);
    preview->setObjectName(QStringLiteral("cmdPreview"));
    auto *ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto *cancel = buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(preview, &QPushButton::clicked, this, &GammaDialog::cmdPreview);
    connect(ok, &QPushButton::clicked, this, &GammaDialog::cmdOK);
    connect(cancel, &QPushButton::clicked, this, &GammaDialog::cmdCancel);
    layout->addWidget(buttons);

    m_previewed = row.previewed == StartsPreviewed::Yes;
    updateLabels();
    refreshSmallPreview();
    m_ready = true;
}

GammaDialog::~GammaDialog() = default;

FilterArgs GammaDialog::values() const
{
    FilterArgs a = defaultArguments(m_row);
    for (size_t i = 0; i < 3; ++i)
        if (m_sliders[i]) a.sliders[i] = m_sliders[i]->value();
    a.argument = a.sliders[0];
    for (size_t i = 0; i < 2; ++i)
        if (m_colours[i]) a.colours[i] = m_colours[i]->colour();
    if (m_row.mixer)
        for (size_t o = 0; o < 3; ++o) {
            for (size_t src = 0; src < 3; ++src)
                if (m_source[o][src]->isChecked()) a.mixSource[o] = int(src);
            a.invert[o] = m_invert[o]->isChecked();
            a.kill[o] = m_kill[o]->isChecked();
        }
    a.position = m_position;
    if (m_maskResize) a.resizeToFit = m_maskResize->isChecked();
    if (m_cleanBack) a.cleanBack = m_cleanBack->isChecked();
    return a;
}

void GammaDialog::sliderChanged()
{
    if (!m_ready) return;
    m_previewed = false;
    updateLabels();
    refreshSmallPreview();
}

void GammaDialog::updateLabels()
{
    for (size_t i = 0; i < m_row.sliders.size() && i < 3; ++i) {
        const FilterSlider &sl = m_row.sliders[i];
        m_labels[i]->setText(sl.label() + QStringLiteral("  ") + sl.display(m_sliders[i]->value()));
    }
    if (m_row.mixer)
        for (size_t o = 0; o < 3; ++o)
            m_invert[o]->setText(tr("Invertieren") + QStringLiteral("  ") +
                                 (m_invert[o]->isChecked() ? tr("an") : tr("aus")));
}

void GammaDialog::refreshSmallPreview()
{
    if (!m_picPreview) return;
    // The whole picture is previewed on the reduced copy; a zoomed view on its part alone.
    m_previewImage = m_zoom.level() == 0 ? m_run->previewOf(m_reduced, values(), m_scale)
                                         : previewPart(*m_run, m_run->original(), m_zoom, values());
    m_picPreview->setPixmap(QPixmap::fromImage(m_previewImage));
}

void GammaDialog::zoomBy(bool in)
{
    if (in) m_zoom.zoomIn();
    else m_zoom.zoomOut();
    updateScrollBars();
    refreshSmallPreview();
}

void GammaDialog::updateScrollBars()
{
    const bool ready = m_ready;
    m_ready = false; // moving the bars here is no move of the user's
    const QPoint most = m_zoom.maxOffset();
    m_hScroll->setRange(0, most.x());
    m_vScroll->setRange(0, most.y());
    m_hScroll->setPageStep(PreviewSide);
    m_vScroll->setPageStep(PreviewSide);
    m_hScroll->setSingleStep(PreviewSide / 10);
    m_vScroll->setSingleStep(PreviewSide / 10);
    m_hScroll->setValue(m_zoom.offset().x());
    m_vScroll->setValue(m_zoom.offset().y());
    m_hScroll->setEnabled(most.x() > 0);
    m_vScroll->setEnabled(most.y() > 0);
    m_zoomIn->setEnabled(m_zoom.canZoomIn());
    m_zoomOut->setEnabled(m_zoom.canZoomOut());
    m_ready = ready;
}

void GammaDialog::pickAt(const QPoint &xy)
{
    const QImage &original = m_run->original();
    if (!original.rect().contains(xy)) return;
    m_position = xy;
    // The colour filters take the colour under the mouse as "Color from".
    if (m_colours[0] && m_row.previewed == StartsPreviewed::Position)
        m_colours[0]->setColour(fromQRgb(original.pixel(xy)));
    m_previewed = false;
    refreshSmallPreview();
}

void GammaDialog::askSliderValue(int i)
{
    const FilterSlider &sl = m_row.sliders[size_t(i)];
    // Gamma is typed as it is shown, value / 100.
    const Single unit = sl.asGamma ? 0.01f : 1.0f;
    GetStepsDialog d(sl.label(), Single(m_sliders[size_t(i)]->value()) * unit,
                     Single(sl.min) * unit, Single(sl.max) * unit, unit, this);
    if (d.exec() == QDialog::Accepted && !d.Cancelled())
        m_sliders[size_t(i)]->setValue(int(std::lround(d.GD_Wert() / unit)));
}

bool GammaDialog::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonDblClick)
        for (size_t i = 0; i < m_labels.size(); ++i)
            if (watched == m_labels[i]) {
                askSliderValue(int(i));
                return true;
            }
    if (watched == m_picOriginal && event->type() == QEvent::MouseButtonPress) {
        const QPoint p = static_cast<QMouseEvent *>(event)->position().toPoint();
        // The reduced picture stands in the middle of its label.
        const QPoint origin((m_picOriginal->width() - m_reduced.width()) / 2,
                            (m_picOriginal->height() - m_reduced.height()) / 2);
        const QPoint inPicture = p - origin;
        pickAt(QPoint(int(inPicture.x() / m_scale), int(inPicture.y() / m_scale)));
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void GammaDialog::cmdPreview()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_previewed = m_run->preview(values());
    QApplication::restoreOverrideCursor();
}

void GammaDialog::cmdOK()
{
    if (!m_previewed) cmdPreview();
    m_cancelled = false;
    m_run->finish(false, m_previewed);
    accept();
}

void GammaDialog::cmdCancel()
{
    m_cancelled = true;
    m_run->finish(true, m_previewed);
    QDialog::reject();
}

void GammaDialog::reject()
{
    cmdCancel();
}

} // namespace tf::ui
