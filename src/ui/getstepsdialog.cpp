#include "ui/getstepsdialog.h"

#include "core/language.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>
#include <cmath>

namespace tf::ui {

namespace {

// The value as the text box shows it: whole numbers without decimals, else two, with the
// decimal comma in German.
QString textOf(Single v)
{
    if (v == std::floor(v)) return QString::number(double(v), 'f', 0);
    QString t = QString::number(double(v), 'f', 2);
    if (currentLanguage() == Language::German) t.replace(QLatin1Char('.'), QLatin1Char(','));
    return t;
}

} // namespace

GetStepsDialog::GetStepsDialog(const QString &prompt, Single value, Single min, Single max,
                               Single step, QWidget *parent)
    : QDialog(parent), m_value(std::clamp(value, min, max)), m_min(min), m_max(max),
      m_step(step > 0 ? step : 1.0f)
{
    setObjectName(QStringLiteral("frmGetSteps"));
    setWindowTitle(tr("Schritte"));
    auto *layout = new QVBoxLayout(this);
    if (!prompt.isEmpty()) layout->addWidget(new QLabel(prompt, this));
    auto *row = new QHBoxLayout;
    m_text = new QLineEdit(this);
    m_text->setObjectName(QStringLiteral("txtValue"));
    m_text->setMinimumWidth(100);
    row->addWidget(m_text);
    // The scroll control counts steps from the minimum; inverted, so that its upper arrow
    // gives more.
    m_scroll = new QScrollBar(Qt::Vertical, this);
    m_scroll->setObjectName(QStringLiteral("vscroll"));
    m_scroll->setRange(0, int(std::lround((m_max - m_min) / m_step)));
    m_scroll->setInvertedAppearance(true);
    m_scroll->setInvertedControls(true);
    m_scroll->setFixedHeight(m_text->sizeHint().height() + 8);
    row->addWidget(m_scroll);
    row->addWidget(new QLabel(tr("(%1 bis %2)").arg(textOf(m_min), textOf(m_max)), this));
    layout->addLayout(row);
    m_info = new QLabel(this);
    m_info->setObjectName(QStringLiteral("lblInfo"));
    m_info->setStyleSheet(QStringLiteral("color: #b00000"));
    layout->addWidget(m_info);
    auto *buttons = new QDialogButtonBox(this);
    auto *ok = buttons->addButton(QDialogButtonBox::Ok);
    ok->setObjectName(QStringLiteral("cmdOK"));
    auto *cancel = buttons->addButton(tr("Abbrechen"), QDialogButtonBox::RejectRole);
    cancel->setObjectName(QStringLiteral("cmdCancel"));
    connect(ok, &QPushButton::clicked, this, &GetStepsDialog::cmdOK);
    connect(cancel, &QPushButton::clicked, this, &GetStepsDialog::cmdCancel);
    layout->addWidget(buttons);

    connect(m_scroll, &QScrollBar::valueChanged, this, [this](int steps) {
        const Single v = std::min(m_max, m_min + Single(steps) * m_step);
        if (typedValue() != v) m_text->setText(textOf(v));
    });
    connect(m_text, &QLineEdit::textEdited, this, [this] {
        m_info->clear();
        if (const auto v = typedValue()) {
            const QSignalBlocker block(m_scroll);
            m_scroll->setValue(int(std::lround((*v - m_min) / m_step)));
        }
    });
    show(m_value);
}

QString GetStepsDialog::info() const
{
    return m_info->text();
}

void GetStepsDialog::show(Single value)
{
    m_text->setText(textOf(value));
    const QSignalBlocker block(m_scroll);
    m_scroll->setValue(int(std::lround((value - m_min) / m_step)));
}

std::optional<Single> GetStepsDialog::typedValue() const
{
    QString t = m_text->text().trimmed();
    t.replace(QLatin1Char(','), QLatin1Char('.'));
    bool ok = false;
    const double v = t.toDouble(&ok);
    if (!ok || !std::isfinite(v) || v < double(m_min) || v > double(m_max)) return std::nullopt;
    return Single(v);
}

void GetStepsDialog::cmdOK()
{
    const auto v = typedValue();
    if (!v) {
        m_info->setText(tr("Bitte geben Sie eine Zahl von %1 bis %2 ein.")
                            .arg(textOf(m_min), textOf(m_max)));
        m_text->setFocus();
        m_text->selectAll();
        return;
    }
    m_value = *v;
    m_cancelled = false;
    accept();
}

void GetStepsDialog::cmdCancel()
{
    m_cancelled = true;
    QDialog::reject();
}

std::optional<Single> GetStepsDialog::ask(QWidget *parent, const QString &prompt, Single value,
                                          Single min, Single max, Single step)
{
    GetStepsDialog d(prompt, value, min, max, step, parent);
    d.exec();
    if (d.Cancelled()) return std::nullopt;
    return d.GD_Wert();
}

} // namespace tf::ui
