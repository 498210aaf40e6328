#include "ui/controlpanelwidget.h"

#include "core/colour.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>

#include <algorithm>
#include <cmath>

namespace tf::ui {

namespace {

QString caption(const ControlSpec &def)
{
    return QCoreApplication::translate("Controls", def.caption);
}

// A list item as shown: "&&" in a caption written for an option button is one "&" in a list.
QString itemText(const char *item)
{
    return QCoreApplication::translate("Controls", item).replace(QLatin1String("&&"),
                                                                 QLatin1String("&"));
}

void setButtonColour(QPushButton *b, ColorLong c)
{
    // A disabled colour field shows its colour faded into grey, as the other widgets grey out.
    const QColor shown = toQColor(c);
    const QColor faded = QColor::fromRgb((shown.red() + 3 * 224) / 4, (shown.green() + 3 * 224) / 4,
                                         (shown.blue() + 3 * 224) / 4);
    b->setStyleSheet(QStringLiteral("QPushButton { background-color: %1; min-width: 40px; }"
                                    "QPushButton:disabled { background-color: %2; }")
                         .arg(shown.name(), faded.name()));
}

} // namespace

ControlPanelWidget::ControlPanelWidget(const ControlPanel &panel, Controls &controls, QWidget *parent)
    : QWidget(parent), m_panel(panel), m_controls(controls)
{
    setObjectName(panel.name);
    build();
    refresh();
}

ControlPanelWidget::~ControlPanelWidget() = default;

void ControlPanelWidget::build()
{
    auto *form = new QFormLayout(this);
    form->setContentsMargins(4, 4, 4, 4);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    for (const ControlSpec &def : m_panel.controls) {
        const ControlSpec *sp = &def;
        Binding b{sp, nullptr, nullptr, {}};
        switch (def.kind) {
        case ControlKind::Text: {
            if (!def.items.empty()) {
                auto *combo = new QComboBox(this);
                combo->setEditable(true);
                for (const char *item : def.items)
                    combo->addItem(QCoreApplication::translate("Controls", item));
                connect(combo, &QComboBox::currentTextChanged, this,
                        [this, sp](const QString &t) { commit(*sp, t); });
                b.widget = combo;
                b.show = [this, combo, sp] { combo->setCurrentText(m_controls.stored(sp->key)); };
            } else {
                auto *edit = new QLineEdit(this);
                connect(edit, &QLineEdit::editingFinished, this, [this, sp, edit] { commit(*sp, edit->text()); });
                b.widget = edit;
                b.show = [this, edit, sp] { edit->setText(m_controls.stored(sp->key)); };
            }
            break;
        }
        case ControlKind::Value: {
            auto *box = new QWidget(this);
            auto *row = new QHBoxLayout(box);
            row->setContentsMargins(0, 0, 0, 0);
            auto *slider = new QSlider(Qt::Horizontal, box);
            slider->setRange(def.min, def.hasRange() ? def.max : 1000);
            auto *number = new QLabel(box);
            number->setMinimumWidth(44);
            row->addWidget(slider, 1);
            row->addWidget(number);
            connect(slider, &QSlider::valueChanged, this, [this, sp, number](int v) {
                number->setText(QString::number(v) + QString::fromUtf8(sp->unit));
                commit(*sp, QString::number(v));
            });
            b.widget = box;
            b.show = [this, slider, number, sp] {
                const int v = storedNumber(sp->key);
                slider->setValue(v);
                number->setText(QString::number(v) + QString::fromUtf8(sp->unit));
            };
            break;
        }
        case ControlKind::Checked: {
            auto *check = new QCheckBox(this);
            connect(check, &QCheckBox::toggled, this,
                    [this, sp](bool on) { commit(*sp, on ? QStringLiteral("1") : QStringLiteral("0")); });
            b.widget = check;
            b.show = [this, check, sp] { check->setChecked(storedNumber(sp->key) != 0); };
            break;
        }
        case ControlKind::ListIndex: {
            auto *combo = new QComboBox(this);
            for (const char *item : def.items)
                combo->addItem(itemText(item));
            connect(combo, &QComboBox::currentIndexChanged, this,
                    [this, sp](int i) { commit(*sp, QString::number(i)); });
            b.widget = combo;
            b.show = [this, combo, sp] { combo->setCurrentIndex(storedNumber(sp->key)); };
            break;
        }
        case ControlKind::Colour: {
            auto *button = new QPushButton(this);
            connect(button, &QPushButton::clicked, this, [this, sp] {
                const QColor c = QColorDialog::getColor(toQColor(storedNumber(sp->key)), this);
                if (c.isValid())
                    commit(*sp, QString::number(fromQRgb(c.rgb())));
            });
            b.widget = button;
            b.show = [this, button, sp] { setButtonColour(button, storedNumber(sp->key)); };
            break;
        }
        }
        b.widget->setObjectName(def.key.toString());
        if (def.kind == ControlKind::Checked) {
            form->addRow(b.widget);
        } else {
            b.label = new QLabel(this);
            form->addRow(b.label, b.widget);
        }
        m_bindings.emplace(def.key, std::move(b));
    }
    for (const PanelAction &action : m_panel.actions) {
        auto *button = new QPushButton(this);
        button->setObjectName(QString::fromLatin1(action.name));
        const PanelAction *a = &action;
        connect(button, &QPushButton::clicked, this, [this, a] { emit actionRequested(a); });
        form->addRow(button);
        m_actions.emplace_back(button, a);
    }
    retranslate();
}

QWidget *ControlPanelWidget::widgetFor(const ControlKey &key) const
{
    auto it = m_bindings.find(key);
    return it == m_bindings.end() ? nullptr : it->second.widget;
}

QLabel *ControlPanelWidget::labelFor(const ControlKey &key) const
{
    auto it = m_bindings.find(key);
    return it == m_bindings.end() ? nullptr : it->second.label;
}

void ControlPanelWidget::refresh()
{
    m_showing = true;
    for (auto &[key, b] : m_bindings)
        b.show();
    m_showing = false;
    showEnabled();
}

void ControlPanelWidget::refresh(const ControlKey &key)
{
    auto it = m_bindings.find(key);
    if (it != m_bindings.end()) {
        m_showing = true;
        it->second.show();
        m_showing = false;
    }
    // A control of this panel, or of another one (the paint dialog's), may enable ours.
    if (!m_controls.linksReading(key).empty())
        showEnabled();
}

void ControlPanelWidget::showEnabled()
{
    for (auto &[key, b] : m_bindings) {
        if (m_controls.linksEnabling(key).empty())
            continue;
        const bool on = m_controls.enabled(key);
        b.widget->setEnabled(on);
        if (b.label)
            b.label->setEnabled(on);
    }
}

int ControlPanelWidget::storedNumber(const ControlKey &key) const
{
    return int(std::clamp(std::nearbyint(Val(m_controls.stored(key))), -2147483648.0, 2147483647.0));
}

void ControlPanelWidget::commit(const ControlSpec &def, const QString &value)
{
    if (m_showing)
        return;
    if ((m_run && m_run->busy()) || !m_controls.set(def.key, value)) {
        refresh(def.key); // an unfitting value: show the value that stands
        return;
    }
    // The normalising rule may have rewritten the value ("1" split becomes "2").
    if (m_controls.stored(def.key) != value)
        refresh(def.key);
    // The change may enable or disable controls by a link (the session's view is told as well,
    // but a panel shown on its own must follow too).
    if (!m_controls.linksReading(def.key).empty())
        showEnabled();
}

void ControlPanelWidget::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QWidget::changeEvent(event);
}

void ControlPanelWidget::retranslate()
{
    for (auto &[button, action] : m_actions)
        button->setText(QCoreApplication::translate("Controls", action->caption));
    for (auto &[key, b] : m_bindings) {
        const ControlSpec &def = *b.def;
        if (b.label)
            b.label->setText(caption(def));
        if (auto *check = qobject_cast<QCheckBox *>(b.widget))
            check->setText(caption(def));
        if (def.kind == ControlKind::ListIndex || (def.kind == ControlKind::Text && !def.items.empty())) {
            auto *combo = static_cast<QComboBox *>(b.widget);
            m_showing = true;
            for (int i = 0; i < combo->count() && size_t(i) < def.items.size(); ++i)
                combo->setItemText(i, itemText(def.items[size_t(i)]));
            b.show();
            m_showing = false;
        }
    }
}

} // namespace tf::ui
