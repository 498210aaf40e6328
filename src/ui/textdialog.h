#pragma once
// The text dialog `frmTextDialog`: the text of the text types and its font. It lives as long
// as the main window and shows the session's values: the fields are the controls of the panel
// "frmTextDialog" (paint/textstate.h), the two colour fields the colour state's TextFore and
// TextBack. A text file (.txt, UTF-8 or Windows-1252) can be loaded into the text;
// `BtnTextZoom` opens a larger box to edit it (`frmTextZoom`).

#include <QDialog>

class QComboBox;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace tf {
class Session;
struct ControlKey;
}

namespace tf::ui {

class ColourField;
class ControlPanelWidget;

class TextDialog : public QDialog {
    Q_OBJECT
public:
    explicit TextDialog(Session &session, QWidget *parent = nullptr);
    ~TextDialog() override;

    // Shows a control's new value.
    void controlChanged(const ControlKey &key);
    // Shows the text colours as the colour state holds them.
    void refreshColours();
    // Loads a text file into the text; false after a message when it cannot be read.
    bool loadTextFile(const QString &path);

protected:
    void changeEvent(QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    void retranslate();
    void commitText();
    void commitFont(const QString &name);
    void showText();
    void showSample();
    void chooseTextColour(bool fore);
    void openZoom();
    void chooseTextFile();

    Session &m_session;
    QPlainTextEdit *txtOrthoIn = nullptr;
    QComboBox *cmbFontName = nullptr;
    QLabel *m_fontLabel = nullptr;
    ControlPanelWidget *m_fields = nullptr;
    ColourField *txtForeColor = nullptr;
    ColourField *txtBackColor = nullptr;
    QLabel *lblTextSample = nullptr;
    QLabel *m_textLabel = nullptr;
    QLabel *m_coloursLabel = nullptr;
    QPushButton *BtnTextZoom = nullptr;
    QPushButton *BtnTextLoad = nullptr;
    QPushButton *m_close = nullptr;
    QWidget *feat_Fontstandard = nullptr;
    bool m_showing = false;
};

} // namespace tf::ui
