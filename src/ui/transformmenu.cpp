#include "ui/transformmenu.h"

#include "core/language.h"
#include "filters/blurize.h"
#include "filters/geometry.h"
#include "filters/mirrors.h"
#include "paint/session.h"
#include "ui/blurizedialog.h"
#include "ui/idleguard.h"
#include "ui/picturesizedialog.h"

#include <QEvent>

namespace tf::ui {

namespace {
// The half mirrors' menu indices, in menu order.
constexpr int KlappIndex[] = {0, 1, 2, 3, 5};
} // namespace

TransformMenu::TransformMenu(Session &session, QWidget *parent) : QMenu(parent), m_session(session)
{
    setObjectName(QStringLiteral("mn_Bild"));
    auto run = [this](auto command) {
        return [this, command] {
            command(m_session);
            emit pictureChanged();
        };
    };
    auto action = [this](QMenu *menu, const QString &name, auto handler) {
        auto *a = menu->addAction(QString());
        a->setObjectName(name);
        connect(a, &QAction::triggered, this, whenIdle(m_session, handler));
        return a;
    };
    m_mirrorV = action(this, QStringLiteral("mn_MirrorV"), run(mn_MirrorV));
    m_mirrorH = action(this, QStringLiteral("mn_MirrorH"), run(mn_MirrorH));
    m_klapp = addMenu(QString());
    for (size_t i = 0; i < m_klappH.size(); ++i) {
        const int index = KlappIndex[i];
        if (index == 5) m_klapp->addSeparator();
        m_klappH[i] = action(m_klapp, QStringLiteral("mn_KlappH%1").arg(index),
                             run([index](Session &s) { return mn_KlappH(s, index); }));
    }
    addSeparator();
    m_turnRight =
        action(this, QStringLiteral("mn_Turn90R"), run([](Session &s) { return Menu_Turn(s, 1); }));
    m_turnLeft =
        action(this, QStringLiteral("mn_Turn90L"), run([](Session &s) { return Menu_Turn(s, 3); }));
    m_turn180 =
        action(this, QStringLiteral("mn_Turn180"), run([](Session &s) { return Menu_Turn(s, 2); }));
    addSeparator();
    m_size = action(this, QStringLiteral("mn_BildGroesse"), [this] { pictureSize(); });
    m_canvas = action(this, QStringLiteral("mn_Arbeitsflaeche"), [this] { canvasSize(); });
    m_crop = action(this, QStringLiteral("mn_Freistellen"), run(Menu_CropToSelection));
    addSeparator();
    m_blurize = addMenu(QString());
    for (const BlurizeRow &row : blurizeTable()) {
        if (row.selector == 3) m_blurize->addSeparator();
        const int selector = row.selector;
        m_blurizeActions.push_back(action(m_blurize, QString::fromLatin1(row.control),
                                          [this, selector] { blurize(selector); }));
    }
    retranslate();
}

QAction *TransformMenu::entry(const QString &name) const
{
    for (QAction *a : findChildren<QAction *>())
        if (a->objectName() == name) return a;
    return nullptr;
}

void TransformMenu::pictureSize()
{
    const Workspace &ws = m_session.workspace();
    PictureSizeDialog dialog(PictureSizeDialog::Mode::PictureSize, ws.BildW, ws.BildH,
                             parentWidget());
    if (dialog.exec() != QDialog::Accepted) return;
    Menu_PictureSize(m_session, dialog.pictureWidth(), dialog.pictureHeight(), dialog.smooth());
    emit pictureChanged();
}

void TransformMenu::canvasSize()
{
    const Workspace &ws = m_session.workspace();
    PictureSizeDialog dialog(PictureSizeDialog::Mode::Canvas, ws.BildW, ws.BildH, parentWidget());
    if (dialog.exec() != QDialog::Accepted) return;
    Menu_CanvasSize(m_session, dialog.pictureWidth(), dialog.pictureHeight(), dialog.anchor());
    emit pictureChanged();
}

void TransformMenu::blurize(int selector)
{
    const QImage before = pictureBefore(m_session);
    if (before.isNull()) {
        // Without a picture before, the command says so itself.
        Menu_Blurize(m_session, selector, blurizeDefaults(*findBlurize(selector)));
        return;
    }
    BlurizeDialog dialog(m_session, *findBlurize(selector), before, parentWidget());
    dialog.exec();
    emit pictureChanged();
}

void TransformMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QMenu::changeEvent(event);
}

void TransformMenu::retranslate()
{
    setTitle(tr("B&ild"));
    m_mirrorV->setText(tr("&Vertikal spiegeln"));
    m_mirrorH->setText(tr("&Horizontal spiegeln"));
    m_klapp->setTitle(tr("Halb&spiegel"));
    const QString klapp[] = {tr("&Links nach rechts"), tr("&Rechts nach links"),
                             tr("&Oben nach unten"), tr("&Unten nach oben"), tr("&Prismatisch")};
    for (size_t i = 0; i < m_klappH.size(); ++i)
        m_klappH[i]->setText(klapp[i]);
    m_turnRight->setText(tr("90° nach &rechts drehen"));
    m_turnLeft->setText(tr("90° nach &links drehen"));
    m_turn180->setText(tr("&180° drehen"));
    m_size->setText(tr("Bild&größe..."));
    m_canvas->setText(tr("&Arbeitsfläche..."));
    m_crop->setText(tr("Auf Auswahl &zuschneiden"));
    m_blurize->setTitle(tr("3-D &Unschärfe und Überblenden"));
    const Language lang = currentLanguage();
    for (size_t i = 0; i < m_blurizeActions.size(); ++i) {
        const BlurizeRow &row = blurizeTable()[i];
        m_blurizeActions[i]->setText(
            QString::fromUtf8(lang == Language::English ? row.english : row.german));
    }
}

} // namespace tf::ui
