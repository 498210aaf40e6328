#pragma once
// frmPSelect ("Bild öffnen"): the picture chooser of the three load commands.
//
// The drive list (mounted volumes), the folder tree and the file list are views over one
// QFileSystemModel each; the pattern list filters the files. Choosing a file shows a preview
// decoded reduced (never the whole of a large file) with "W/H= w / h", or "Invalid picture".
// The file list's popup menu opens, deletes into the desktop's trash (after a question),
// creates a folder below the open one, and closes.
//
// The answer: the chosen file's path, "DIR" when a folder was chosen, empty on Cancel.

#include <QDialog>
#include <QStringList>

class QComboBox;
class QFileSystemModel;
class QLabel;
class QListView;
class QMenu;
class QModelIndex;
class QTreeView;
class QCheckBox;

namespace tf {
class Session;
}

namespace tf::ui {

class PSelectDialog : public QDialog {
    Q_OBJECT
public:
    // The patterns of PatternCombo, in their order: caption and the name filters.
    struct Pattern {
        const char *caption;
        const char *filters; // ";"-separated
    };
    static const std::vector<Pattern> &patterns();
    // A folder name without any of the characters /\:*?<>| (and not empty or blank).
    static bool validDirectoryName(const QString &name);

    // `title` is the command's caption, shown after "Bild öffnen"; `folder` the one to open.
    PSelectDialog(Session &session, const QString &title, const QString &folder, bool preview,
                  QWidget *parent = nullptr);

    QString answer() const { return m_answer; }
    QString folder() const;
    bool previewOn() const;
    // Chooses a file as a click in the list would (for the command and for tests).
    void chooseFile(const QString &path);
    // The preview's size text ("W/H= 640 / 480", "Invalid picture" or empty).
    QString sizeText() const;
    QLabel *preview() const { return picImage; }

    // The popup menu's commands.
    void deleteChosen();
    void createDirectory();

protected:
    void accept() override;

private:
    void openFolder(const QString &path);
    void showPreview();
    QString chosenFile() const;
    void setPattern(int index);

    Session &m_session;
    QString m_answer;
    QString m_chosen;
    QFileSystemModel *m_dirs = nullptr;
    QFileSystemModel *m_files = nullptr;
    QComboBox *DriveList = nullptr;
    QTreeView *DirList = nullptr;
    QListView *FileList = nullptr;
    QComboBox *PatternCombo = nullptr;
    QLabel *picImage = nullptr;
    QLabel *lbl_WH = nullptr;
    QCheckBox *mn_Preview = nullptr;
    QMenu *mp_File = nullptr;
};

} // namespace tf::ui
