#include "ui/blurizedialog.h"

#include "filters/blurize.h"
#include "filters/dografic.h"
#include "paint/session.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>
#include <QVBoxLayout>

namespace tf::ui {

namespace {
constexpr int PreviewSide = 240;

QImage reduced(const QImage &img)
{
    if (std::max(img.width(), img.height()) <= PreviewSide) return img;
    return img.scaled(PreviewSide, PreviewSide, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}
} // namespace

BlurizeDialog::BlurizeDialog(Session &session, const BlurizeRow &row, const QImage &before,
                             QWidget *parent)
    : QDialog(parent), m_session(session), m_row(row),
      m_now(reduced(session.workspace().Bild.Image())), m_before(reduced(before))
{
    setObjectName(QStringLiteral("frmBlurize"));
    const Language lang = currentLanguage();
    setWindowTitle(QString::fromUtf8(lang == Language::English ? row.english : row.german)
                       .remove(QLatin1Char('&'))
                       .remove(QStringLiteral("...")));
    auto *layout = new QVBoxLayout(this);
    m_picture = new QLabel(this);
    m_picture->setObjectName(QStringLiteral("picPreview"));
    m_picture->setFixedSize(PreviewSide, PreviewSide);
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setFrameShape(QFrame::Panel);
    m_picture->setFrameShadow(QFrame::Sunken);
    layout->addWidget(m_picture, 0, Qt::AlignHCenter);
    auto *grid = new QGridLayout;
    for (size_t i = 0; i < row.sliders.size() && i < 3; ++i) {
        const FilterSlider &sl = row.sliders[i];
        m_labels[i] = new QLabel(this);
        m_labels[i]->setMinimumWidth(130);
        auto *s = new QSlider(Qt::Horizontal, this);
        s->setObjectName(QStringLiteral("Scroll%1").arg(i));
        s->setRange(sl.min, sl.max);
        s->setPageStep(sl.change);
        s->setValue(sl.def);
        s->setMinimumWidth(240);
        connect(s, &QSlider::valueChanged, this, &BlurizeDialog::refresh);
        m_sliders[i] = s;
        grid->addWidget(m_labels[i], int(i), 0);
        grid->addWidget(s, int(i), 1);
    }
    layout->addLayout(grid);
    // The cancel button is our own: a standard one takes Qt's caption at a language change.
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok, this);
    buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole)
        ->setObjectName(QStringLiteral("cmdCancel"));
    connect(buttons, &QDialogButtonBox::accepted, this, [this] {
        apply();
        accept();
    });
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
    refresh();
}

FilterArgs BlurizeDialog::values() const
{
    FilterArgs a = blurizeDefaults(m_row);
    for (size_t i = 0; i < 3; ++i)
        if (m_sliders[i]) a.sliders[i] = m_sliders[i]->value();
    a.argument = a.sliders[0];
    return a;
}

void BlurizeDialog::refresh()
{
    for (size_t i = 0; i < m_row.sliders.size() && i < 3; ++i)
        m_labels[i]->setText(m_row.sliders[i].label() + QStringLiteral("  ") +
                             QString::number(m_sliders[i]->value()));
    FilterArgs a = values();
    // The radius shrinks with the picture, so the preview shows the blur as it will look.
    const double scale = double(m_now.width()) / std::max(1, m_session.workspace().Bild.Width());
    if (m_row.selector <= 2) a.sliders[0] = std::max(1, int(a.sliders[0] * scale + 0.5));
    m_preview = m_before;
    DoGraficFilters2(m_session, m_row.selector, m_now, m_preview, a);
    m_picture->setPixmap(QPixmap::fromImage(m_preview));
}

bool BlurizeDialog::apply()
{
    return Menu_Blurize(m_session, m_row.selector, values());
}

} // namespace tf::ui
