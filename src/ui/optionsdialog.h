#pragma once
// The options dialog `frmOptions`: a page of sundry options (clipboard, fixings, the temp
// folder) and a page for the language. OK applies and closes, Apply applies, Cancel closes.

#include "core/language.h"

#include <QDialog>
#include <functional>

class QCheckBox;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QSpinBox;
class QTabWidget;
class QGroupBox;
class QLabel;

namespace tf::ui {

struct SystemOptions {
    bool killClipboard = true; // empty the clipboard at program end
    bool killFixings = false;  // delete all fixings at program end
    int fixNumber = 10;        // fixings kept in the ring
    QString tempPath;
    Language language = Language::German;
};

class OptionsDialog : public QDialog {
    Q_OBJECT
public:
    // `apply` receives the options at OK and Apply.
    OptionsDialog(const SystemOptions &options,
                  std::function<void(const SystemOptions &)> apply, QWidget *parent = nullptr);

    SystemOptions options() const;

    // The highest number of fixings: their files are numbered with two digits.
    static constexpr int MaxFixNumber = 99;

protected:
    void changeEvent(QEvent *event) override;

private:
    bool applyOptions();
    void retranslate();
    void browse();

    std::function<void(const SystemOptions &)> m_apply;
    QTabWidget *tbsOptions;
    QWidget *m_pageSundry;
    QWidget *frameLanaguage;
    QCheckBox *XKillClipboard;
    QGroupBox *m_fixFrame;
    QCheckBox *XKillFixings;
    QSpinBox *txtFixNumber;
    QLineEdit *txtPfad;
    QPushButton *BtnGetPath;
    QRadioButton *optLanguage[2];
    QPushButton *cmdOK;
    QPushButton *cmdApply;
    QPushButton *cmdCancel;
    QLabel *m_fixNumberLabel;
    QLabel *m_pathLabel;
};

} // namespace tf::ui
