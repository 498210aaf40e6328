#include "generators/longrun.h"

#include "paint/painter.h"
#include "paint/session.h"

namespace tf {

StopRule::StopRule(PaintContext &ctx)
    : m_ctx(ctx)
{
    ctx.session.paint().dialog.setButtonState(GrafDialogState::Button::Running);
}

void StopRule::Yield_IfInput()
{
    ++m_calls;
    if (m_calls > 32000) m_calls = 0;
    m_ctx.DoEvents();
}

bool StopRule::next()
{
    if (m_stopped) return false;
    Yield_IfInput();
    if (m_ctx.stopRequested()) {
        m_stopped = true;
        m_ctx.session.paint().dialog.setButtonState(GrafDialogState::Button::Waiting);
        return false;
    }
    return true;
}

} // namespace tf
