#include "ui/textdialog.h"

#include "core/colour.h"
#include "files/textfile.h"
#include "paint/colourdialog.h"
#include "paint/controls.h"
#include "paint/session.h"
#include "paint/textstate.h"
#include "ui/colourfield.h"
#include "ui/controlpanelwidget.h"
#include "ui/idleguard.h"

#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFileDialog>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tf::ui {

namespace {

const ControlKey TextKey{QStringLiteral("txtOrthoIn")};
const ControlKey FontKey{QStringLiteral("cmbFontName")};

const ControlPanel *textPanel()
{
    for (const ControlPanel *p : controlPanels())
        if (p->name == QLatin1String(TextDialogPanelName)) return p;
    return nullptr;
}

// frmTextZoom: the text in a larger box.
class TextZoom : public QDialog {
public:
    TextZoom(const QString &text, QWidget *parent) : QDialog(parent)
    {
        setObjectName(QStringLiteral("frmTextZoom"));
        setWindowTitle(TextDialog::tr("Text bearbeiten"));
        auto *layout = new QVBoxLayout(this);
        m_edit = new QPlainTextEdit(this);
        m_edit->setPlainText(text);
        layout->addWidget(m_edit);
        auto *buttons =
            new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
        connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
        layout->addWidget(buttons);
        resize(720, 520);
    }
    QString text() const { return m_edit->toPlainText(); }

private:
    QPlainTextEdit *m_edit;
};

} // namespace

TextDialog::TextDialog(Session &session, QWidget *parent) : QDialog(parent), m_session(session)
{
    setObjectName(QStringLiteral("frmTextDialog"));
    auto *layout = new QVBoxLayout(this);

    m_textLabel = new QLabel(this);
    layout->addWidget(m_textLabel);
    txtOrthoIn = new QPlainTextEdit(this);
    txtOrthoIn->setObjectName(QStringLiteral("txtOrthoIn"));
    txtOrthoIn->setTabChangesFocus(false);
    txtOrthoIn->setMinimumHeight(110);
    layout->addWidget(txtOrthoIn, 1);
    auto *textButtons = new QHBoxLayout;
    BtnTextLoad = new QPushButton(this);
    BtnTextLoad->setObjectName(QStringLiteral("BtnTextLoad"));
    BtnTextZoom = new QPushButton(this);
    BtnTextZoom->setObjectName(QStringLiteral("BtnTextZoom"));
    textButtons->addWidget(BtnTextLoad);
    textButtons->addWidget(BtnTextZoom);
    textButtons->addStretch(1);
    layout->addLayout(textButtons);

    auto *fontBox = new QGroupBox(this);
    feat_Fontstandard = fontBox;
    fontBox->setObjectName(QStringLiteral("feat_Fontstandard"));
    auto *fontLayout = new QVBoxLayout(fontBox);
    auto *fontRow = new QHBoxLayout;
    m_fontLabel = new QLabel(fontBox);
    cmbFontName = new QComboBox(fontBox);
    cmbFontName->setObjectName(QStringLiteral("cmbFontName"));
    cmbFontName->setEditable(true);
    cmbFontName->setInsertPolicy(QComboBox::NoInsert);
    if (session.text().FontList.isEmpty()) Load_SystemFonts(session.text());
    cmbFontName->addItems(session.text().FontList);
    fontRow->addWidget(m_fontLabel);
    fontRow->addWidget(cmbFontName, 1);
    fontLayout->addLayout(fontRow);
    if (const ControlPanel *panel = textPanel()) {
        m_fields = new ControlPanelWidget(*panel, session.controls(), fontBox);
        m_fields->setRunState(&session.runState());
        // The text and the font name stand above in widgets of their own.
        if (auto *form = qobject_cast<QFormLayout *>(m_fields->layout())) {
            form->setRowVisible(m_fields->widgetFor(TextKey), false);
            form->setRowVisible(m_fields->widgetFor(FontKey), false);
        }
        fontLayout->addWidget(m_fields);
    }
    layout->addWidget(fontBox);

    auto *colourRow = new QHBoxLayout;
    m_coloursLabel = new QLabel(this);
    txtForeColor = new ColourField(QString(), this);
    txtForeColor->setObjectName(QStringLiteral("txtForeColor"));
    txtBackColor = new ColourField(QString(), this);
    txtBackColor->setObjectName(QStringLiteral("txtBackColor"));
    lblTextSample = new QLabel(QStringLiteral("Aa"), this);
    lblTextSample->setObjectName(QStringLiteral("lblTextSample"));
    lblTextSample->setAlignment(Qt::AlignCenter);
    lblTextSample->setMinimumSize(96, 56);
    lblTextSample->setAutoFillBackground(true);
    colourRow->addWidget(m_coloursLabel);
    colourRow->addWidget(txtForeColor);
    colourRow->addWidget(txtBackColor);
    colourRow->addStretch(1);
    colourRow->addWidget(lblTextSample);
    layout->addLayout(colourRow);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    m_close = buttons->button(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::hide);
    layout->addWidget(buttons);

    connect(txtOrthoIn, &QPlainTextEdit::textChanged, this, [this] { commitText(); });
    connect(cmbFontName, &QComboBox::currentTextChanged, this,
            [this](const QString &name) { commitFont(name); });
    connect(BtnTextZoom, &QPushButton::clicked, this, whenIdle(session, [this] { openZoom(); }));
    connect(BtnTextLoad, &QPushButton::clicked, this,
            whenIdle(session, [this] { chooseTextFile(); }));
    connect(txtForeColor, &ColourField::doubleClicked, this,
            whenIdle(session, [this] { chooseTextColour(true); }));
    connect(txtBackColor, &ColourField::doubleClicked, this,
            whenIdle(session, [this] { chooseTextColour(false); }));
    // A right click takes the colour dialog's colour, as a right click there does.
    connect(txtForeColor, &ColourField::rightClicked, this, whenIdle(session, [this] {
                takeTextFore(m_session);
                refreshColours();
            }));
    connect(txtBackColor, &ColourField::rightClicked, this, whenIdle(session, [this] {
                takeTextBack(m_session);
                refreshColours();
            }));

    showText();
    refreshColours();
    retranslate();
    resize(460, 620);
}

TextDialog::~TextDialog() = default;

void TextDialog::controlChanged(const ControlKey &key)
{
    if (m_fields) m_fields->refresh(key);
    if (key == TextKey) showText();
    showSample();
}

void TextDialog::showText()
{
    const Controls &c = m_session.controls();
    m_showing = true;
    if (txtOrthoIn->toPlainText() != c.text(TextKey)) txtOrthoIn->setPlainText(c.text(TextKey));
    if (cmbFontName->currentText() != c.text(FontKey)) cmbFontName->setCurrentText(c.text(FontKey));
    m_showing = false;
    showSample();
}

void TextDialog::commitText()
{
    if (m_showing) return;
    if (isBusy(m_session)) {
        showText();
        return;
    }
    m_session.controls().set(TextKey, txtOrthoIn->toPlainText());
}

void TextDialog::commitFont(const QString &name)
{
    if (m_showing) return;
    if (isBusy(m_session)) {
        showText();
        return;
    }
    m_session.controls().set(FontKey, name);
    showSample();
}

void TextDialog::showSample()
{
    const Controls &c = m_session.controls();
    QFont f(c.text(FontKey));
    f.setPixelSize(32);
    f.setBold(c.checked(ControlKey{QStringLiteral("imgBold")}));
    if (!c.checked(ControlKey{QStringLiteral("XFntAntiAlias")}))
        f.setStyleStrategy(QFont::NoAntialias);
    lblTextSample->setFont(f);
    QPalette p = lblTextSample->palette();
    p.setColor(QPalette::Window, toQColor(m_session.colours().TextBack));
    p.setColor(QPalette::WindowText, toQColor(m_session.colours().TextFore));
    lblTextSample->setPalette(p);
}

void TextDialog::refreshColours()
{
    txtForeColor->setColour(m_session.colours().TextFore);
    txtBackColor->setColour(m_session.colours().TextBack);
    showSample();
}

void TextDialog::chooseTextColour(bool fore)
{
    ColorLong &target = fore ? m_session.colours().TextFore : m_session.colours().TextBack;
    const QColor chosen = QColorDialog::getColor(toQColor(target), this);
    if (!chosen.isValid()) return;
    target = fromQRgb(chosen.rgb());
    refreshColours();
}

void TextDialog::openZoom()
{
    TextZoom zoom(m_session.controls().text(TextKey), this);
    if (zoom.exec() == QDialog::Accepted) m_session.controls().set(TextKey, zoom.text());
}

bool TextDialog::loadTextFile(const QString &path)
{
    QString message;
    const auto text = readTextFile(path, message);
    if (!text) {
        QMessageBox::warning(this, windowTitle(), message);
        return false;
    }
    m_session.controls().set(TextKey, *text);
    return true;
}

void TextDialog::chooseTextFile()
{
    const QString path = QFileDialog::getOpenFileName(
        this, tr("Text laden"), QString(), tr("Textdateien (*.txt);;Alle Dateien (*)"));
    if (!path.isEmpty()) loadTextFile(path);
}

void TextDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    // The colour dialog may have handed its colours over while this one stood behind.
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) refreshColours();
    QDialog::changeEvent(event);
}

void TextDialog::showEvent(QShowEvent *event)
{
    refreshColours();
    QDialog::showEvent(event);
}

void TextDialog::retranslate()
{
    setWindowTitle(tr("Text und Schrift"));
    m_textLabel->setText(tr("Text (leer: ein lateinischer Mustertext)"));
    BtnTextLoad->setText(tr("Text laden ..."));
    BtnTextZoom->setText(tr("Zoom ..."));
    static_cast<QGroupBox *>(feat_Fontstandard)->setTitle(tr("Schrift"));
    m_fontLabel->setText(tr("Schriftart"));
    m_coloursLabel->setText(tr("Text- und Schattenfarbe"));
    txtForeColor->setToolTip(tr("Doppelklick: Farbe wählen; rechte Maustaste: die Vordergrundfarbe"));
    txtBackColor->setToolTip(
        tr("Doppelklick: Farbe wählen; rechte Maustaste: die Hintergrundfarbe"));
}

} // namespace tf::ui
