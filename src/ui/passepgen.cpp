#include "ui/passepgen.h"

#include "core/fault.h"
#include "files/passepartout.h"
#include "files/picturefile.h"
#include "paint/session.h"
#include "ui/colourfield.h"
#include "ui/passepdemo.h"
#include "ui/pselectdialog.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFileInfo>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace tf::ui {

namespace {

// The small preview: a grey stand-in picture in the mat, drawn at a third of its size.
constexpr QSize PreviewPicture(120, 90);
constexpr int PreviewBox = 260;

} // namespace

PassepGen::PassepGen(Session &session, const QString &dataFile, QWidget *parent)
    : QDialog(parent), m_session(session), m_sets(dataFile)
{
    setObjectName(QStringLiteral("frmPassepGen"));
    setWindowTitle(tr("Passepartouts"));
    auto *top = new QHBoxLayout(this);
    auto *left = new QVBoxLayout;
    top->addLayout(left);

    cmbSelection = new QComboBox;
    cmbSelection->setMinimumWidth(240);
    left->addWidget(cmbSelection);
    auto *nameRow = new QHBoxLayout;
    nameRow->addWidget(new QLabel(tr("Name:")));
    txtName = new QLineEdit;
    txtName->setMaxLength(60);
    nameRow->addWidget(txtName);
    left->addLayout(nameRow);

    auto *framesBox = new QGroupBox(tr(" Rahmen (1 am Bild, 7 außen) "));
    auto *grid = new QGridLayout(framesBox);
    grid->addWidget(new QLabel(tr("Breite")), 0, 1);
    grid->addWidget(new QLabel(tr("Farbe")), 0, 2);
    for (int k = 0; k < PPFrames; ++k) {
        grid->addWidget(
            new QLabel(k == PPFrames - 1 ? tr("7 Abschlußfarbe") : tr("Rahmen %1").arg(k + 1)),
            k + 1, 0);
        txtW[size_t(k)] = new QSpinBox;
        txtW[size_t(k)]->setRange(0, 2000);
        txtW[size_t(k)]->setSuffix(tr(" px"));
        grid->addWidget(txtW[size_t(k)], k + 1, 1);
        picBColor[size_t(k)] = new ColourField;
        picBColor[size_t(k)]->setToolTip(tr("Doppelklick: Farbe wählen"));
        grid->addWidget(picBColor[size_t(k)], k + 1, 2);
        connect(txtW[size_t(k)], &QSpinBox::valueChanged, this, [this] { updateFields(); });
        connect(picBColor[size_t(k)], &ColourField::doubleClicked, this,
                [this, k] { chooseColour(k); });
    }
    XUseGradient = new QCheckBox(tr("Farbverlauf zwischen den Rahmen"));
    grid->addWidget(XUseGradient, PPFrames + 1, 0, 1, 3);
    connect(XUseGradient, &QCheckBox::toggled, this, [this] { updateFields(); });
    left->addWidget(framesBox);

    auto *setButtons = new QHBoxLayout;
    auto *cmdApply = new QPushButton(tr("Über&nehmen"));
    auto *cmdDelete = new QPushButton(tr("&Löschen"));
    setButtons->addWidget(cmdApply);
    setButtons->addWidget(cmdDelete);
    left->addLayout(setButtons);
    connect(cmdApply, &QPushButton::clicked, this, [this] { apply(); });
    connect(cmdDelete, &QPushButton::clicked, this, [this] { deleteSet(); });
    left->addStretch();

    auto *right = new QVBoxLayout;
    top->addLayout(right);
    picPreview = new QLabel;
    picPreview->setFixedSize(PreviewBox, PreviewBox);
    picPreview->setAlignment(Qt::AlignCenter);
    picPreview->setFrameShape(QFrame::StyledPanel);
    right->addWidget(picPreview);

    auto *pictureBox = new QGroupBox(tr(" Bild "));
    auto *pictureLayout = new QGridLayout(pictureBox);
    XUseBild = new QCheckBox(tr("Arbeitsbild verwenden"));
    XUseBild->setChecked(true);
    pictureLayout->addWidget(XUseBild, 0, 0, 1, 2);
    lblFile = new QLabel;
    lblFile->setMinimumWidth(180);
    auto *BtnCMDirDialog = new QPushButton(QStringLiteral("..."));
    BtnCMDirDialog->setMaximumWidth(40);
    pictureLayout->addWidget(lblFile, 1, 0);
    pictureLayout->addWidget(BtnCMDirDialog, 1, 1);
    connect(BtnCMDirDialog, &QPushButton::clicked, this, [this] { BtnCMDirDialog_Click(); });
    right->addWidget(pictureBox);

    auto *sizeBox = new QGroupBox(tr(" Größenfenster anpassen "));
    auto *sizeLayout = new QGridLayout(sizeBox);
    const char *const sizeCaptions[] = {QT_TR_NOOP("Max. Höhe"), QT_TR_NOOP("Max. Breite")};
    for (int i = 0; i < 2; ++i) {
        sizeLayout->addWidget(new QLabel(tr(sizeCaptions[i])), i, 0);
        txtNewSize[size_t(i)] = new QComboBox;
        txtNewSize[size_t(i)]->setEditable(true);
        txtNewSize[size_t(i)]->setValidator(new QIntValidator(0, 14000, this));
        sizeLayout->addWidget(txtNewSize[size_t(i)], i, 1);
    }
    sizeLayout->addWidget(new QLabel(tr("0 = ohne Grenze")), 2, 0, 1, 2);
    right->addWidget(sizeBox);
    auto *BtnDemo = new QPushButton(tr("Vorschau"));
    connect(BtnDemo, &QPushButton::clicked, this, [this] { BtnDemo_Click(); });
    right->addWidget(BtnDemo);
    right->addStretch();
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PassepGen::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    right->addWidget(buttons);

    Init_NewSizeCombos();
    const PPReadResult read = m_sets.load();
    if (read.refused()) {
        Prompt p;
        p.text = read.message;
        p.icon = Icon::Exclamation;
        m_session.prompter().ask(p);
    }
    connect(cmbSelection, &QComboBox::currentIndexChanged, this, [this](int row) {
        if (!m_filling) chosen(row);
    });
    fillSelection(PassepartoutSets::StandardRow);
}

void PassepGen::Init_NewSizeCombos()
{
    for (QComboBox *c : txtNewSize) {
        c->clear();
        for (const int v : {0, 300, 400, 600, 800, 1000, 1200, 1600})
            c->addItem(QString::number(v));
    }
    txtNewSize[0]->setCurrentText(QStringLiteral("600"));
    txtNewSize[1]->setCurrentText(QStringLiteral("800"));
}

void PassepGen::fillSelection(int row)
{
    m_filling = true;
    cmbSelection->clear();
    cmbSelection->addItems(m_sets.rows());
    m_filling = false;
    const int chosenRow = std::clamp(row, 0, cmbSelection->count() - 1);
    cmbSelection->setCurrentIndex(chosenRow);
    chosen(chosenRow);
}

void PassepGen::chosen(int row)
{
    showSet(m_sets.recordOfRow(row));
}

void PassepGen::showSet(const PPRecord &set)
{
    m_filling = true;
    txtName->setText(set.name);
    for (int k = 0; k < PPFrames; ++k) {
        txtW[size_t(k)]->setValue(std::max<int>(set.width[size_t(k)], 0));
        picBColor[size_t(k)]->setColour(set.colour[size_t(k)]);
    }
    XUseGradient->setChecked(set.gradient());
    m_filling = false;
    updateFields();
}

PPRecord PassepGen::fields() const
{
    PPRecord r = m_sets.recordOfRow(cmbSelection->currentIndex());
    r.name = txtName->text();
    for (int k = 0; k < PPFrames; ++k) {
        r.width[size_t(k)] = int16_t(txtW[size_t(k)]->value());
        r.colour[size_t(k)] = picBColor[size_t(k)]->colour();
    }
    r.useGradient = XUseGradient->isChecked() ? -1 : 0;
    return r;
}

void PassepGen::updateFields()
{
    if (m_filling) return;
    // The closing colour is always shown; the others where their frame is drawn.
    for (int k = 0; k < PPFrames - 1; ++k)
        picBColor[size_t(k)]->setVisible(txtW[size_t(k)]->value() > 0);
    QImage stand(PreviewPicture, QImage::Format_RGB32);
    stand.fill(QColor(150, 160, 175));
    const QImage mat = Draw_Passepartout(stand, fields());
    if (mat.isNull()) {
        picPreview->clear();
        return;
    }
    picPreview->setPixmap(
        QPixmap::fromImage(mat.scaled(QSize(PreviewBox - 8, PreviewBox - 8).boundedTo(mat.size()),
                                      Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void PassepGen::chooseColour(int k)
{
    ColourField *field = picBColor[size_t(k)];
    const QColor chosen = QColorDialog::getColor(toQColor(field->colour()), this);
    if (!chosen.isValid()) return;
    field->setColour(fromQRgb(chosen.rgb()));
    updateFields();
}

bool PassepGen::apply()
{
    const PassepartoutSets::Applied a = m_sets.apply(cmbSelection->currentIndex(), fields());
    if (!a.ok()) {
        Prompt p;
        p.text = a.error;
        p.icon = Icon::Exclamation;
        m_session.prompter().ask(p);
        return false;
    }
    fillSelection(a.row);
    return true;
}

void PassepGen::deleteSet()
{
    const int row = cmbSelection->currentIndex();
    if (m_sets.remove(row)) fillSelection(std::min(row, cmbSelection->count() - 2));
}

void PassepGen::setPictureFile(const QString &path)
{
    m_pictureFile = path;
    lblFile->setText(QFileInfo(path).fileName());
    lblFile->setToolTip(path);
    XUseBild->setChecked(path.isEmpty());
}

void PassepGen::BtnCMDirDialog_Click()
{
    PSelectDialog dialog(
        m_session, tr("Bild laden"),
        m_pictureFile.isEmpty() ? QString() : QFileInfo(m_pictureFile).absolutePath(), true, this);
    if (dialog.exec() != QDialog::Accepted) return;
    const QString chosen = dialog.answer();
    if (!chosen.isEmpty() && chosen != QLatin1String("DIR")) setPictureFile(chosen);
}

QImage PassepGen::demoPicture()
{
    const auto tell = [this](const QString &text) {
        Prompt p;
        p.text = text;
        p.icon = Icon::Exclamation;
        m_session.prompter().ask(p);
    };
    if (XUseBild->isChecked()) return m_session.workspace().Bild.Image();
    if (m_pictureFile.isEmpty()) {
        tell(tr("Wählen Sie bitte zuerst ein Bild aus!") + QLatin1Char('\n') +
             tr("Verwenden Sie bitte den [...]-Befehl."));
        return {};
    }
    const LoadResult loaded = LoadImage(m_pictureFile);
    if (!loaded.loaded()) {
        tell(loaded.status == LoadResult::Status::Missing
                 ? tr("Die Datei %1 gibt es nicht.").arg(m_pictureFile)
                 : corruptPictureText() + QStringLiteral(": ") + loaded.detail);
        return {};
    }
    return loaded.image;
}

void PassepGen::BtnDemo_Click()
{
    guarded(QStringLiteral("BtnDemo"), [&] {
        const QImage picture = demoPicture();
        if (picture.isNull()) return;
        PasseDemo demo(m_session.prompter(),
                       int(m_session.controls().number(ControlKey{QStringLiteral("cmbDPI")})),
                       this);
        demo.setPassepartout(fields());
        demo.new_PicHeight(txtNewSize[0]->currentText().toInt());
        demo.new_PicWidth(txtNewSize[1]->currentText().toInt());
        demo.use_ABILD(picture);
        demo.exec();
    });
}

void PassepGen::accept()
{
    PassepartoutSets::Saved s = m_sets.save();
    if (s.status == PassepartoutSets::SaveStatus::NeedsConsent) {
        Prompt p;
        p.text = s.message;
        p.buttons = Buttons::YesNo;
        p.icon = Icon::Question;
        p.defaultButton = 1;
        if (m_session.prompter().ask(p) != Answer::Yes) return;
        s = m_sets.save(true);
    }
    if (s.status == PassepartoutSets::SaveStatus::Failed) {
        Prompt p;
        p.text = s.message;
        p.icon = Icon::Exclamation;
        m_session.prompter().ask(p);
        return;
    }
    QDialog::accept();
}

} // namespace tf::ui
