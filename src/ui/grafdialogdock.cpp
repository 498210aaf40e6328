#include "ui/grafdialogdock.h"

#include "paint/bildformate.h"
#include "paint/catalogue.h"
#include "paint/grafdialogpanel.h"
#include "paint/grafmenu.h"
#include "paint/session.h"
#include "paint/superformat.h"
#include "ui/controlpanelwidget.h"
#include "ui/previewcache.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <algorithm>
#include <QPainter>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace tf::ui {

namespace {

// A small icon of a preview for the list.
QIcon iconOf(const QImage &preview)
{
    if (preview.isNull()) {
        // An empty place of the icon's size keeps the captions in line.
        QPixmap blank(32, 32);
        blank.fill(Qt::transparent);
        return QIcon(blank);
    }
    return QIcon(QPixmap::fromImage(preview.scaled(32, 32, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)));
}

} // namespace

GrafDialogDock::GrafDialogDock(Session &session, PreviewCache &previews, QWidget *parent)
    : QDockWidget(parent), m_session(session), m_previews(previews)
{
    setObjectName(QStringLiteral("frmGrafDialog"));
    setFeatures(QDockWidget::DockWidgetMovable | QDockWidget::DockWidgetFloatable);

    auto *content = new QWidget(this);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(4, 4, 4, 4);

    m_groups = new QComboBox(content);
    m_groups->setObjectName(QStringLiteral("cmbGroup"));
    for (int g = 1; g <= GroupCount; ++g)
        m_groups->addItem(QString());
    layout->addWidget(m_groups);

    auto *listRow = new QHBoxLayout;
    ListBoxType = new QListWidget(content);
    ListBoxType->setObjectName(QStringLiteral("ListBoxType"));
    ListBoxType->setIconSize(QSize(32, 32));
    // Ten rows with their previews at the least, more when the dock is higher.
    const int row = std::max(ListBoxType->iconSize().height(), ListBoxType->fontMetrics().height()) + 4;
    ListBoxType->setMinimumHeight(10 * row + 2 * ListBoxType->frameWidth());
    listRow->addWidget(ListBoxType, 1);
    m_preview = new QLabel(content);
    m_preview->setFixedSize(PreviewCache::Side + 2, PreviewCache::Side + 2);
    m_preview->setFrameShape(QFrame::Box);
    m_preview->setAlignment(Qt::AlignCenter);
    listRow->addWidget(m_preview, 0, Qt::AlignTop);
    layout->addLayout(listRow, 2);

    auto *buttons = new QGridLayout;
    BtnPaintRoll[0] = new QPushButton(QStringLiteral("<<"), content);
    BtnPaint = new QPushButton(content);
    BtnPaint->setObjectName(QStringLiteral("BtnPaint"));
    BtnPaint->setMinimumHeight(32);
    BtnPaintRoll[1] = new QPushButton(QStringLiteral(">>"), content);
    buttons->addWidget(BtnPaintRoll[0], 0, 0);
    buttons->addWidget(BtnPaint, 0, 1);
    buttons->addWidget(BtnPaintRoll[1], 0, 2);
    BtnFix = new QPushButton(content);
    BtnRestore = new QPushButton(content);
    BtnClip = new QPushButton(content);
    BtnFix->setObjectName(QStringLiteral("BtnFix"));
    BtnRestore->setObjectName(QStringLiteral("BtnRestore"));
    BtnClip->setObjectName(QStringLiteral("BtnClip"));
    BtnPaintRoll[0]->setObjectName(QStringLiteral("BtnPaintRoll(0)"));
    BtnPaintRoll[1]->setObjectName(QStringLiteral("BtnPaintRoll(1)"));
    buttons->addWidget(BtnFix, 1, 0);
    buttons->addWidget(BtnRestore, 1, 1);
    buttons->addWidget(BtnClip, 1, 2);
    buttons->setColumnStretch(1, 1);
    layout->addLayout(buttons);

    m_general = new ControlPanelWidget(grafDialogPanel(), session.controls(), content);
    m_general->setRunState(&session.runState());
    auto *scroll = new QScrollArea(content);
    // The Superformat fields are the panel's last: their label stands right under them.
    auto *general = new QWidget;
    auto *generalLayout = new QVBoxLayout(general);
    generalLayout->setContentsMargins(0, 0, 0, 0);
    generalLayout->addWidget(m_general);
    lblSuperSize = new QLabel(general);
    lblSuperSize->setObjectName(QStringLiteral("lblSuperSize"));
    lblSuperSize->setWordWrap(true);
    generalLayout->addWidget(lblSuperSize);
    generalLayout->addStretch(1);
    scroll->setWidget(general);
    scroll->setWidgetResizable(true);
    scroll->setFrameShape(QFrame::NoFrame);
    layout->addWidget(scroll, 1);
    lblPixelSize = new QLabel(content);
    layout->addWidget(lblPixelSize);
    setWidget(content);

    connect(BtnPaint, &QPushButton::clicked, this, &GrafDialogDock::paintRequested);
    connect(BtnPaintRoll[0], &QPushButton::clicked, this, [this] { emit rollRequested(0); });
    connect(BtnPaintRoll[1], &QPushButton::clicked, this, [this] { emit rollRequested(1); });
    connect(BtnClip, &QPushButton::clicked, this, &GrafDialogDock::clipRequested);
    connect(BtnFix, &QPushButton::clicked, this, &GrafDialogDock::fixRequested);
    connect(BtnRestore, &QPushButton::clicked, this, &GrafDialogDock::restoreRequested);
    connect(m_groups, &QComboBox::currentIndexChanged, this, [this](int i) {
        if (!m_loading && i >= 0)
            emit groupChosen(i + 1);
    });
    // The engine's click refuses while a paint runs and shows the paint's row again.
    connect(ListBoxType, &QListWidget::currentRowChanged, this, [this](int row) {
        if (m_loading)
            return;
        ListBoxType_Click(m_session, row);
        showPreview();
    });
    // After a change of group the group's last type is shown chosen but not yet taken up:
    // a click on that row, which changes no row, takes it up and brings its panel on top.
    connect(ListBoxType, &QListWidget::itemClicked, this, [this](QListWidgetItem *item) {
        if (m_loading || !m_session.paint().GrafKey.isEmpty())
            return;
        ListBoxType_Click(m_session, ListBoxType->row(item));
        showPreview();
    });
    retranslate(); // loads the type list too
}

GrafDialogDock::~GrafDialogDock() = default;

void GrafDialogDock::setPaintRunning(bool running)
{
    // Only the Paint button (Stop) and the roll buttons stay live while a paint runs.
    for (QWidget *w : std::initializer_list<QWidget *>{m_groups, ListBoxType, m_general, BtnClip,
                                                       BtnFix, BtnRestore})
        w->setEnabled(!running);
}

void GrafDialogDock::engineChanged(GrafDialogState::Change c)
{
    switch (c) {
    case GrafDialogState::Change::Caption:
        BtnPaint->setText(m_session.paint().dialog.BtnPaintCaption());
        emit paintRunningChanged(m_session.paint().dialog.buttonState() !=
                                 GrafDialogState::Button::Rest);
        break;
    case GrafDialogState::Change::TypeList:
        loadTypeList();
        break;
    case GrafDialogState::Change::ListIndex: {
        const int row = m_session.paint().dialog.ListIndex();
        if (ListBoxType->currentRow() != row) {
            m_loading = true;
            ListBoxType->setCurrentRow(row);
            m_loading = false;
        }
        showPreview();
        break;
    }
    case GrafDialogState::Change::FocusButton:
        BtnPaint->setFocus();
        break;
    }
}

void GrafDialogDock::controlChanged(const ControlKey &key)
{
    m_general->refresh(key);
    updatePixelSize();
}

void GrafDialogDock::syncFromEngine()
{
    loadTypeList();
    BtnPaint->setText(m_session.paint().dialog.BtnPaintCaption());
}

void GrafDialogDock::loadTypeList()
{
    m_loading = true;
    const int group = m_session.paint().GrafGroup;
    m_groups->setCurrentIndex(group - 1);
    setWindowTitle(groupLabel(group));
    ListBoxType->clear();
    const auto rows = groupRows(group);
    for (const CatalogueRow &row : rows) {
        auto *item = new QListWidgetItem(ListBoxType);
        if (row.isSeparator()) {
            // A separator shows as a line and cannot be chosen for a paint.
            item->setText(QString(24, QChar(0x2500)));
            item->setFlags(Qt::NoItemFlags);
            continue;
        }
        item->setText(row.caption());
        item->setIcon(iconOf(m_previews.preview(QString::fromLatin1(row.key))));
    }
    ListBoxType->setCurrentRow(m_session.paint().dialog.ListIndex());
    m_loading = false;
    showPreview();
}

void GrafDialogDock::showPreview()
{
    const CatalogueRow *row = groupRow(m_session.paint().GrafGroup, ListBoxType->currentRow());
    QImage image;
    if (row && !row->isSeparator())
        image = m_previews.preview(QString::fromLatin1(row->key));
    if (image.isNull()) {
        m_preview->setPixmap(QPixmap());
        m_preview->setText(row && !row->isSeparator() ? tr("(keine Vorschau)") : QString());
    } else {
        m_preview->setPixmap(QPixmap::fromImage(image));
    }
}

void GrafDialogDock::updatePixelSize()
{
    // The pixel size of the chosen format, with " px" behind it.
    lblPixelSize->setText(pixelSizeLabel(Calc_Bildformate_WH(m_session.controls())));
    lblSuperSize->setText(superformatPlanLabel(m_session.controls()));
}

void GrafDialogDock::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDockWidget::changeEvent(event);
}

void GrafDialogDock::retranslate()
{
    m_loading = true;
    for (int g = 1; g <= GroupCount; ++g)
        m_groups->setItemText(g - 1, groupLabel(g));
    m_loading = false;
    BtnPaint->setText(m_session.paint().dialog.BtnPaintCaption());
    BtnPaint->setToolTip(tr("Malen <F5>"));
    BtnPaintRoll[0]->setToolTip(tr("Vorheriger Typ der Gruppe, dann malen"));
    BtnPaintRoll[1]->setToolTip(tr("Nächster Typ der Gruppe, dann malen"));
    BtnFix->setText(tr("Fixieren"));
    BtnRestore->setText(tr("Restaurieren"));
    BtnClip->setText(tr("Clip"));
    BtnClip->setToolTip(tr("Das Bild in die Zwischenablage kopieren"));
    loadTypeList();
    updatePixelSize();
}

} // namespace tf::ui
