#include "ui/pselectdialog.h"

#include "core/fault.h"
#include "files/picturefile.h"
#include "paint/session.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFileSystemModel>
#include <QGridLayout>
#include <QHeaderView>
#include <QInputDialog>
#include <QLabel>
#include <QListView>
#include <QMenu>
#include <QStorageInfo>
#include <QTreeView>

namespace tf::ui {

namespace {
constexpr int PreviewSide = 260;
} // namespace

const std::vector<PSelectDialog::Pattern> &PSelectDialog::patterns()
{
    static const std::vector<Pattern> list{
        {"Graphic (*.gif;*.jpg;*.bmp;*.png)", "*.gif;*.jpg;*.bmp;*.png"},
        {"Bitmaps (*.bmp)", "*.bmp"},
        {"GIF (*.gif)", "*.gif"},
        {"JPEG (*.jpg)", "*.jpg"},
        {"PNG (*.png)", "*.png"},
        {"All Files (*.*)", "*"},
    };
    return list;
}

bool PSelectDialog::validDirectoryName(const QString &name)
{
    if (name.trimmed().isEmpty() || name == QLatin1String(".") || name == QLatin1String(".."))
        return false;
    for (const QChar c : QStringLiteral("/\\:*?<>|"))
        if (name.contains(c))
            return false;
    return true;
}

PSelectDialog::PSelectDialog(Session &session, const QString &title, const QString &folder,
                             bool preview, QWidget *parent)
    : QDialog(parent), m_session(session)
{
    setWindowTitle(tr("Bild öffnen") + QStringLiteral(" - ") + title);
    auto *grid = new QGridLayout(this);

    DriveList = new QComboBox;
    for (const QStorageInfo &v : QStorageInfo::mountedVolumes())
        if (v.isValid() && v.isReady() && !v.rootPath().startsWith(QLatin1String("/proc")) &&
            !v.rootPath().startsWith(QLatin1String("/sys")))
            DriveList->addItem(v.rootPath(), v.rootPath());
    DriveList->addItem(QDir::homePath(), QDir::homePath());
    grid->addWidget(DriveList, 0, 0);

    m_dirs = new QFileSystemModel(this);
    m_dirs->setFilter(QDir::AllDirs | QDir::NoDotAndDotDot);
    m_dirs->setRootPath(QStringLiteral("/"));
    DirList = new QTreeView;
    DirList->setModel(m_dirs);
    for (int c = 1; c < m_dirs->columnCount(); ++c)
        DirList->hideColumn(c);
    DirList->header()->hide();
    grid->addWidget(DirList, 1, 0, 2, 1);

    m_files = new QFileSystemModel(this);
    m_files->setFilter(QDir::Files);
    m_files->setNameFilterDisables(false);
    FileList = new QListView;
    FileList->setModel(m_files);
    FileList->setContextMenuPolicy(Qt::CustomContextMenu);
    grid->addWidget(FileList, 0, 1, 2, 1);

    PatternCombo = new QComboBox;
    for (const Pattern &p : patterns())
        PatternCombo->addItem(QString::fromLatin1(p.caption));
    grid->addWidget(PatternCombo, 2, 1);

    picImage = new QLabel;
    picImage->setFixedSize(PreviewSide, PreviewSide);
    picImage->setAlignment(Qt::AlignCenter);
    picImage->setFrameShape(QFrame::Panel);
    picImage->setFrameShadow(QFrame::Sunken);
    lbl_WH = new QLabel;
    mn_Preview = new QCheckBox(tr("Vorschau"));
    mn_Preview->setChecked(preview);
    auto *right = new QVBoxLayout;
    right->addWidget(picImage);
    right->addWidget(lbl_WH);
    right->addWidget(mn_Preview);
    right->addStretch();
    grid->addLayout(right, 0, 2, 3, 1);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &PSelectDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    grid->addWidget(buttons, 3, 0, 1, 3);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 2);

    mp_File = new QMenu(this);
    connect(mp_File->addAction(tr("Ö&ffnen")), &QAction::triggered, this, &PSelectDialog::accept);
    connect(mp_File->addAction(tr("&Löschen")), &QAction::triggered, this, &PSelectDialog::deleteChosen);
    connect(mp_File->addAction(tr("Ver&zeichnis anlegen...")), &QAction::triggered, this,
            &PSelectDialog::createDirectory);
    connect(mp_File->addAction(tr("S&chließen")), &QAction::triggered, this, &QDialog::reject);
    connect(FileList, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &at) { mp_File->popup(FileList->viewport()->mapToGlobal(at)); });
    DirList->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(DirList, &QWidget::customContextMenuRequested, this,
            [this](const QPoint &at) { mp_File->popup(DirList->viewport()->mapToGlobal(at)); });

    connect(DriveList, &QComboBox::activated, this,
            [this](int i) { openFolder(DriveList->itemData(i).toString()); });
    connect(DirList, &QTreeView::clicked, this,
            [this](const QModelIndex &i) { openFolder(m_dirs->filePath(i)); });
    connect(FileList, &QListView::clicked, this,
            [this](const QModelIndex &i) { chooseFile(m_files->filePath(i)); });
    connect(FileList, &QListView::activated, this, [this](const QModelIndex &i) {
        chooseFile(m_files->filePath(i));
        accept();
    });
    connect(PatternCombo, &QComboBox::currentIndexChanged, this, &PSelectDialog::setPattern);
    // The tree fills in the background: the open folder is shown once its parent is read.
    connect(m_dirs, &QFileSystemModel::directoryLoaded, this,
            [this] { DirList->scrollTo(DirList->currentIndex(), QAbstractItemView::PositionAtCenter); });
    connect(mn_Preview, &QCheckBox::toggled, this, &PSelectDialog::showPreview);

    setPattern(0);
    openFolder(QFileInfo(folder).isDir() ? folder : QDir::homePath());
    resize(860, 520);
}

void PSelectDialog::setPattern(int index)
{
    const auto &list = patterns();
    if (index < 0 || size_t(index) >= list.size())
        return;
    m_files->setNameFilters(QString::fromLatin1(list[size_t(index)].filters).split(QLatin1Char(';')));
}

void PSelectDialog::openFolder(const QString &path)
{
    const QString clean = QDir::cleanPath(path);
    FileList->setRootIndex(m_files->setRootPath(clean));
    const QModelIndex dir = m_dirs->index(clean);
    DirList->setCurrentIndex(dir);
    DirList->scrollTo(dir);
    DirList->expand(dir);
    m_chosen.clear();
    showPreview();
}

QString PSelectDialog::folder() const
{
    return m_files->rootPath();
}

bool PSelectDialog::previewOn() const
{
    return mn_Preview->isChecked();
}

QString PSelectDialog::chosenFile() const
{
    return m_chosen;
}

void PSelectDialog::chooseFile(const QString &path)
{
    // A folder path that ends in a separator gets no second one.
    QString dir = QFileInfo(path).absolutePath();
    if (!dir.endsWith(QLatin1Char('/')))
        dir += QLatin1Char('/');
    m_chosen = dir + QFileInfo(path).fileName();
    const QModelIndex i = m_files->index(m_chosen);
    if (i.isValid())
        FileList->setCurrentIndex(i);
    showPreview();
}

QString PSelectDialog::sizeText() const
{
    return lbl_WH->text();
}

void PSelectDialog::showPreview()
{
    picImage->clear();
    lbl_WH->clear();
    if (m_chosen.isEmpty() || !mn_Preview->isChecked())
        return;
    const LoadResult r = loadPreview(m_chosen, QSize(PreviewSide - 4, PreviewSide - 4));
    if (!r.loaded()) {
        if (r.status == LoadResult::Status::Corrupt)
            lbl_WH->setText(tr("Ungültiges Bild"));
        return;
    }
    picImage->setPixmap(QPixmap::fromImage(r.image));
    lbl_WH->setText(QStringLiteral("W/H= %1 / %2").arg(r.stored.width()).arg(r.stored.height()));
}

void PSelectDialog::accept()
{
    if (!m_chosen.isEmpty() && QFileInfo(m_chosen).isFile())
        m_answer = m_chosen;
    else if (DirList->hasFocus() && DirList->currentIndex().isValid())
        m_answer = QStringLiteral("DIR");
    else
        return;
    QDialog::accept();
}

void PSelectDialog::deleteChosen()
{
    guarded(QStringLiteral("DialogFileMenu"), [&] {
        if (DirList->hasFocus()) {
            const QString dir = m_dirs->filePath(DirList->currentIndex());
            if (dir.isEmpty() || !QFileInfo(dir).isDir()) {
                m_session.ask(tr("Kein gültiger Pfad."), Buttons::Ok, Icon::Exclamation);
                return;
            }
            if (QDir::cleanPath(dir) != QDir::cleanPath(folder())) {
                m_session.ask(tr("Bitte öffnen Sie das Verzeichnis zuerst zum Löschen!"), Buttons::Ok,
                              Icon::Exclamation);
                return;
            }
            if (m_session.ask(tr("Soll das Verzeichnis %1 in den Papierkorb verschoben werden?")
                                  .arg(QDir::toNativeSeparators(dir)),
                              Buttons::YesNo, Icon::Question, tr("Datei löschen")) != Answer::Yes)
                return;
            const QString parent = QFileInfo(dir).absolutePath();
            if (!QFile::moveToTrash(dir))
                throw Fault(Fault::PathFileAccessError);
            openFolder(parent);
            return;
        }
        if (m_chosen.isEmpty() || !QFileInfo(m_chosen).isFile()) {
            m_session.ask(tr("Kein gültiges Bild."), Buttons::Ok, Icon::Exclamation);
            return;
        }
        if (m_session.ask(tr("Soll die Datei %1 in den Papierkorb verschoben werden?")
                              .arg(QDir::toNativeSeparators(m_chosen)),
                          Buttons::YesNo, Icon::Question, tr("Datei löschen")) != Answer::Yes)
            return;
        if (!QFile::moveToTrash(m_chosen))
            throw Fault(Fault::PathFileAccessError);
        m_chosen.clear();
        showPreview();
    });
}

void PSelectDialog::createDirectory()
{
    guarded(QStringLiteral("DialogFileMenu"), [&] {
        const QString below = folder();
        if (below.isEmpty() || !QFileInfo(below).isDir()) {
            m_session.ask(tr("Kein gültiger Pfad."), Buttons::Ok, Icon::Exclamation);
            return;
        }
        if (m_session.ask(tr("Soll ein Verzeichnis unter %1 angelegt werden?")
                              .arg(QDir::toNativeSeparators(below)),
                          Buttons::YesNo, Icon::Question) != Answer::Yes)
            return;
        bool ok = false;
        const QString name =
            QInputDialog::getText(this, tr("Verzeichnis anlegen"),
                                  tr("Geben Sie bitte einen Verzeichnisnamen ein."),
                                  QLineEdit::Normal, tr("Neuer Ordner"), &ok);
        if (!ok)
            return;
        if (!validDirectoryName(name)) {
            m_session.ask(tr("Kein gültiger Verzeichnisname."), Buttons::Ok, Icon::Exclamation);
            return;
        }
        if (!QDir(below).mkdir(name))
            throw Fault(Fault::PathFileAccessError);
        openFolder(QDir(below).filePath(name));
    });
}

} // namespace tf::ui
