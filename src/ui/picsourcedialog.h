#pragma once
// frmDiaSetBildquelle, "Bildquelle": the source of the photo mosaic, the cube and the show.
// Two option buttons choose "Datei" (one picture, cut into the frames) or "Dateiverzeichnis"
// (every picture of a directory, with "Unterverzeichnisse" its subdirectories too); the path
// stands in a text field, typed or chosen with "..." in the system's file or folder dialog.
// OK hands a path that exists to the session (setPicSource); a path that does not exist is
// said under the field, and the dialog stays open. Abbrechen changes nothing.

#include <QDialog>

class QCheckBox;
class QLabel;
class QLineEdit;
class QRadioButton;

namespace tf {
class Session;
}

namespace tf::ui {

class PicSourceDialog : public QDialog {
    Q_OBJECT
public:
    PicSourceDialog(Session &session, QWidget *parent = nullptr);

    QRadioButton *optFile() const { return m_file; }
    QRadioButton *optDirectory() const { return m_directory; }
    QLineEdit *txtPath() const { return m_path; }
    QCheckBox *subDirs() const { return m_subDirs; }
    QString info() const;

    void browse();
    // Takes the choice when the path exists; false (with the reason under the field) when not.
    bool cmdOK();

private:
    void kindChanged();

    Session &m_session;
    QRadioButton *m_file = nullptr;
    QRadioButton *m_directory = nullptr;
    QLineEdit *m_path = nullptr;
    QCheckBox *m_subDirs = nullptr;
    QLabel *m_info = nullptr;
};

} // namespace tf::ui
