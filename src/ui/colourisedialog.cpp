#include "ui/colourisedialog.h"

#include "core/colour.h"
#include "filters/hls.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QSlider>

namespace tf::ui {

// The hue strip: hue -1 at the left edge to 5 at the right, at full saturation and L 0.5.
class HueStrip : public QWidget {
public:
    explicit HueStrip(ColouriseDialog *dialog) : QWidget(dialog), m_dialog(dialog)
    {
        setObjectName(QStringLiteral("picHue"));
        setFixedSize(360, 24);
    }
    static Single hueAt(int x, int width) { return -1.0f + 6.0f * Single(x) / Single(std::max(1, width - 1)); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter p(this);
        for (int x = 0; x < width(); ++x) {
            int r, g, b;
            HLSToRGB(hueAt(x, width()), 1.0f, 0.5f, r, g, b);
            p.setPen(QColor(std::clamp(r, 0, 255), std::clamp(g, 0, 255), std::clamp(b, 0, 255)));
            p.drawLine(x, 0, x, height());
        }
    }
    void mousePressEvent(QMouseEvent *e) override { pick(e); }
    void mouseMoveEvent(QMouseEvent *e) override
    {
        if (e->buttons() & Qt::LeftButton) pick(e);
    }

private:
    void pick(QMouseEvent *e)
    {
        const int x = std::clamp(int(e->position().x()), 0, width() - 1);
        m_dialog->setHue(hueAt(x, width()));
    }
    ColouriseDialog *m_dialog;
};

ColouriseDialog::ColouriseDialog(Session &session, QWidget *parent)
    : QDialog(parent), m_run(std::make_unique<ColouriseRun>(session))
{
    setObjectName(QStringLiteral("frmColourise"));
    setWindowTitle(tr("Hue/Sättigung"));
    auto *grid = new QGridLayout(this);
    m_lblInfo = new QLabel(this);
    m_lblInfo->setObjectName(QStringLiteral("lblInfo"));
    grid->addWidget(m_lblInfo, 0, 0);
    m_picHue = new HueStrip(this);
    grid->addWidget(m_picHue, 0, 1);
    m_lblscrollSaturation = new QLabel(this);
    grid->addWidget(m_lblscrollSaturation, 1, 0);
    m_scrollSaturation = new QSlider(Qt::Horizontal, this);
    m_scrollSaturation->setObjectName(QStringLiteral("scrollSaturation"));
    m_scrollSaturation->setRange(0, 100);
    m_scrollSaturation->setPageStep(10);
    m_scrollSaturation->setValue(int(m_values.saturation * 100));
    connect(m_scrollSaturation, &QSlider::valueChanged, this, &ColouriseDialog::setSaturation);
    grid->addWidget(m_scrollSaturation, 1, 1);
    grid->addWidget(new QLabel(tr("Auswahl:"), this), 2, 0);
    m_picSelected = new QLabel(this);
    m_picSelected->setObjectName(QStringLiteral("picSelected"));
    m_picSelected->setFixedSize(60, 24);
    m_picSelected->setAutoFillBackground(true);
    grid->addWidget(m_picSelected, 2, 1, Qt::AlignLeft);
    m_XMonochrome = new QCheckBox(tr("Monochrome"), this);
    m_XMonochrome->setObjectName(QStringLiteral("XMonochrome"));
    m_XMonochrome->setChecked(m_values.monochrome);
    connect(m_XMonochrome, &QCheckBox::toggled, this, [this](bool on) {
        m_values.monochrome = on;
        m_scrollSaturation->setEnabled(on);
        changed();
    });
    grid->addWidget(m_XMonochrome, 3, 1);
    auto *buttons = new QDialogButtonBox(this);
    auto *preview = buttons->addButton(tr("Vorschau"), QDialogButtonBox::ActionRole);
    preview->setObjectName(QStringLiteral("cmdPreview"));
    auto *ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto *cancel = buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(preview, &QPushButton::clicked, this, &ColouriseDialog::cmdPreview);
    connect(ok, &QPushButton::clicked, this, &ColouriseDialog::cmdOK);
    connect(cancel, &QPushButton::clicked, this, &ColouriseDialog::cmdCancel);
    grid->addWidget(buttons, 4, 0, 1, 2);
    changed();
    m_previewed = false;
}

ColouriseDialog::~ColouriseDialog() = default;

void ColouriseDialog::setHue(Single hue)
{
    m_values.hue = hue;
    changed();
}

void ColouriseDialog::setSaturation(int percent)
{
    m_values.saturation = Single(percent) / 100.0f;
    if (m_scrollSaturation->value() != percent) m_scrollSaturation->setValue(percent);
    changed();
}

void ColouriseDialog::changed()
{
    m_previewed = false;
    m_lblInfo->setText(tr("Hue:") + QStringLiteral(" ") + QString::number(double(m_values.hue), 'f', 2));
    m_lblscrollSaturation->setText(tr("Sättigung:") + QStringLiteral(" ") +
                                   QString::number(m_scrollSaturation->value()));
    int r, g, b;
    HLSToRGB(m_values.hue, m_values.saturation, 0.5f, r, g, b);
    QPalette pal = m_picSelected->palette();
    pal.setColor(QPalette::Window, QColor(std::clamp(r, 0, 255), std::clamp(g, 0, 255), std::clamp(b, 0, 255)));
    m_picSelected->setPalette(pal);
}

void ColouriseDialog::cmdPreview()
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    m_run->preview(m_values);
    QApplication::restoreOverrideCursor();
    m_previewed = true;
}

void ColouriseDialog::cmdOK()
{
    m_cancelled = false;
    m_run->finish(false, m_previewed, m_values);
    accept();
}

void ColouriseDialog::cmdCancel()
{
    m_cancelled = true;
    m_run->finish(true, m_previewed, m_values);
    QDialog::reject();
}

void ColouriseDialog::reject()
{
    cmdCancel();
}

} // namespace tf::ui
