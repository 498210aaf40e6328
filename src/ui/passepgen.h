#pragma once
// frmPassepGen ("Passepartouts"): edits the named passepartout sets and shows a picture in one.
//
// The list `cmbSelection` (new entry, "+ Standard", the stored sets) fills the name, the seven
// widths `txtW` (frame 1 at the picture, frame 7 the closing edge), the colour fields
// `picBColor` and `XUseGradient`; a colour field is shown only where its width is above 0,
// the closing colour always. "Übernehmen" stores, "Löschen" flags the set deleted, OK writes
// the file, Cancel leaves it. A small preview beside the fields shows the mat as it stands.
// "Vorschau" opens frmPasseDemo with the work picture ("Arbeitsbild verwenden") or a picture
// chosen with "...", scaled down into "Max. Höhe" and "Max. Breite".

#include "files/passepartoutsets.h"

#include <QDialog>
#include <QImage>
#include <array>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;

namespace tf {
class Session;
}

namespace tf::ui {

class ColourField;

class PassepGen : public QDialog {
    Q_OBJECT
public:
    // `dataFile` is tvlpassp.dat; the work picture and the prompter come from `session`.
    PassepGen(Session &session, const QString &dataFile, QWidget *parent = nullptr);

    PassepartoutSets &sets() { return m_sets; }
    QComboBox *selection() const { return cmbSelection; }
    // The set as the fields hold it.
    PPRecord fields() const;
    // Fills the fields from a set.
    void showSet(const PPRecord &set);
    // "Übernehmen": false after a message.
    bool apply();
    // "Löschen".
    void deleteSet();
    // The picture "Vorschau" would show (after a message when none can be had), fitted into the
    // limits is left to the demo.
    QImage demoPicture();
    // Sets the picture file of "..." (for the tests; the button chooses it).
    void setPictureFile(const QString &path);

    void accept() override;

private:
    void Init_NewSizeCombos();
    void fillSelection(int row);
    void chosen(int row);
    void chooseColour(int k);
    void updateFields();
    void BtnDemo_Click();
    void BtnCMDirDialog_Click();

    Session &m_session;
    PassepartoutSets m_sets;
    QString m_pictureFile;
    bool m_filling = false;

    QComboBox *cmbSelection = nullptr;
    QLineEdit *txtName = nullptr;
    std::array<QSpinBox *, PPFrames> txtW{};
    std::array<ColourField *, PPFrames> picBColor{};
    QCheckBox *XUseGradient = nullptr;
    QCheckBox *XUseBild = nullptr;
    QLabel *lblFile = nullptr;
    std::array<QComboBox *, 2> txtNewSize{}; // Max. Höhe, Max. Breite (0: no limit)
    QLabel *picPreview = nullptr;
};

} // namespace tf::ui
