#include "ui/filtermenu.h"

#include "filters/colourcommand.h"
#include "filters/filtercommand.h"
#include "filters/filtertable.h"
#include "paint/session.h"
#include "ui/colourisedialog.h"
#include "ui/gammadialog.h"
#include "ui/idleguard.h"

#include <QApplication>
#include <QEvent>
#include <algorithm>

namespace tf::ui {

FilterMenu::FilterMenu(Session &session, QWidget *parent) : QMenu(parent), m_session(session)
{
    for (const FilterMenuTitle &t : filterMenus())
        m_menus[int(t.menu)] = t.menu == tf::FilterMenu::Main ? this : addMenu(QString());
    // Every entry of the table, sorted into its menu by its place there.
    struct Placed {
        const FilterRow *row;
        const FilterMenuEntry *entry;
    };
    std::vector<Placed> placed;
    for (const FilterRow &row : filterTable())
        for (const FilterMenuEntry &e : row.entries)
            placed.push_back({&row, &e});
    std::stable_sort(placed.begin(), placed.end(), [](const Placed &a, const Placed &b) {
        return std::pair(int(a.entry->menu), a.entry->order) < std::pair(int(b.entry->menu), b.entry->order);
    });
    QAction *firstSub = actions().value(0);
    for (const Placed &p : placed) {
        QMenu *menu = m_menus[int(p.entry->menu)];
        auto *a = new QAction(this);
        a->setObjectName(QString::fromUtf8(p.entry->control) +
                         (p.entry->index >= 0 ? QString::number(p.entry->index) : QString()));
        a->setEnabled(p.row->available());
        connect(a, &QAction::triggered, this, [this, row = p.row, e = p.entry] { run(*row, *e); });
        // The main menu's own entries stand above its sub-menus.
        if (menu == this && firstSub) {
            if (p.entry->separatorBefore) insertSeparator(firstSub);
            insertAction(firstSub, a);
        } else {
            if (p.entry->separatorBefore) menu->addSeparator();
            menu->addAction(a);
        }
        m_actions.emplace_back(a, p.entry);
    }
    if (firstSub) insertSeparator(firstSub);
    QMenu *colours = m_menus[int(tf::FilterMenu::Colours)];
    colours->addSeparator();
    m_sepia = colours->addAction(QString(), this, [this] {
        mn_Sepia(m_session);
        emit pictureChanged();
    });
    m_sepia->setObjectName(QStringLiteral("mn_Sepia"));
    m_colourise = colours->addAction(QString(), this, [this] {
        ColouriseDialog dialog(m_session, parentWidget());
        dialog.exec();
        emit pictureChanged();
    });
    m_colourise->setObjectName(QStringLiteral("mn_Colorize"));
    retranslate();
}

QAction *FilterMenu::entryAction(const QString &control, int index) const
{
    for (const auto &[a, e] : m_actions)
        if (QString::fromUtf8(e->control) == control && e->index == index) return a;
    return nullptr;
}

void FilterMenu::run(const FilterRow &row, const FilterMenuEntry &entry)
{
    if (isBusy(m_session)) return;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    if (entry.run == RunMode::Dialog) {
        QApplication::restoreOverrideCursor();
        GammaDialog dialog(m_session, row, parentWidget());
        dialog.exec();
    } else {
        runMenuEntry(m_session, row, entry);
        QApplication::restoreOverrideCursor();
    }
    emit pictureChanged();
}

void FilterMenu::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange) retranslate();
    QMenu::changeEvent(event);
}

void FilterMenu::retranslate()
{
    const Language lang = currentLanguage();
    for (const FilterMenuTitle &t : filterMenus())
        m_menus[int(t.menu)]->setTitle(QString::fromUtf8(lang == Language::English ? t.english : t.german));
    for (const auto &[a, e] : m_actions)
        a->setText(entryCaption(*e, lang));
    m_sepia->setText(tr("Sepia"));
    m_colourise->setText(tr("Hue/Sättigung..."));
}

} // namespace tf::ui
