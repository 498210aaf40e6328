#include "paint/grafdialog.h"

namespace tf {

QString GrafDialogState::BtnPaintCaption() const
{
    switch (m_button) {
    case Button::Rest:
        return tr("Paint <F5>");
    case Button::Running:
        return tr("STO&PP !");
    case Button::Waiting:
        return tr("Stopped - Wait!");
    }
    return QString();
}

void GrafDialogState::setButtonState(Button state)
{
    if (state == m_button) return;
    m_button = state;
    notify(Change::Caption);
}

bool GrafDialogState::captionSaysStop() const
{
    return BtnPaintCaption().left(3).toUpper() == QLatin1String("STO");
}

void GrafDialogState::setListIndex(int index)
{
    if (index == m_listIndex) return;
    m_listIndex = index;
    notify(Change::ListIndex);
}

void GrafDialogState::notify(Change change)
{
    if (m_view) m_view->grafDialogChanged(change);
}

} // namespace tf
