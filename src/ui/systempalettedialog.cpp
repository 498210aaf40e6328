#include "ui/systempalettedialog.h"

#include "paint/jascpalette.h"
#include "paint/palette.h"
#include "paint/systempalettes.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QVBoxLayout>

namespace tf::ui {

SystemPaletteDialog::SystemPaletteDialog(QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Systempaletten"));
    auto *layout = new QVBoxLayout(this);
    m_list = new QListWidget(this);
    m_list->setIconSize(QSize(128, 16));
    for (const SystemPalette &p : systemPalettes()) {
        const JascPalette read = readJascPalette(LoadPalette(p.index));
        std::vector<ColorLong> colours = read.entries;
        colours.resize(256, 0);
        auto *item = new QListWidgetItem(QIcon(QPixmap::fromImage(pal256Strip(colours, QSize(128, 16)))),
                                         p.name, m_list);
        item->setData(Qt::UserRole, p.index);
    }
    m_list->setCurrentRow(0);
    m_list->setMinimumSize(360, 420);
    layout->addWidget(m_list);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(m_list, &QListWidget::itemDoubleClicked, this, &QDialog::accept);
    layout->addWidget(buttons);
}

int SystemPaletteDialog::chosen() const
{
    const QListWidgetItem *item = m_list->currentItem();
    return item ? item->data(Qt::UserRole).toInt() : 0;
}

int SystemPaletteDialog::ShowDialog(QWidget *parent)
{
    SystemPaletteDialog dialog(parent);
    return dialog.exec() == QDialog::Accepted ? dialog.chosen() : 0;
}

} // namespace tf::ui
