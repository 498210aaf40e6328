#include "paint/superformatpaint.h"

#include "paint/painter.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <algorithm>

namespace tf {

QString superimageMemoryText()
{
    return QCoreApplication::translate("Superformat", "Memory problem creating Superimage!");
}

SuperformatPaint::SuperformatPaint(PaintContext &ctx) : m_ctx(ctx) {}

SuperformatPaint::~SuperformatPaint()
{
    if (m_begun && !m_ended) end();
}

bool SuperformatPaint::begin(ColorLong back)
{
    const auto size = superformatSize(m_ctx.session.controls());
    if (!size) {
        m_ctx.session.ask(QCoreApplication::translate("Superformat", "0 - sizes not allowed"),
                          Buttons::Ok, Icon::Exclamation);
        return false;
    }
    return begin(*size, back);
}

bool SuperformatPaint::begin(QSize size, ColorLong back)
{
    Session &s = m_ctx.session;
    m_size = QSize(std::clamp(size.width(), SuperMinSide, SuperMaxSide),
                   std::clamp(size.height(), SuperMinSide, SuperMaxSide));
    m_savedW = m_ctx.opt.W;
    m_savedH = m_ctx.opt.H;
    s.status().setPanelText(
        sbrState, QCoreApplication::translate("Superformat", "Superformat %1 x %2 wird angelegt ...")
                      .arg(m_size.width())
                      .arg(m_size.height()));
    const auto prepared = s.superformat().prepare(m_size, back);
    if (prepared == SuperformatSurfaces::Prepared::Failed) {
        s.ask(superimageMemoryText(), Buttons::Ok, Icon::Critical,
              QStringLiteral("Tarvelle-Forge"));
        s.status().setPanelText(sbrState, QString());
        return false;
    }
    m_ctx.opt.W = m_size.width();
    m_ctx.opt.H = m_size.height();
    m_begun = true;
    m_ended = false;
    return true;
}

cDIBSection &SuperformatPaint::surface() { return m_ctx.session.superformat().SuperDIB; }

bool SuperformatPaint::isNew() const { return m_ctx.session.superformat().XsupDibNeu; }

void SuperformatPaint::progress(int done, int total)
{
    if (total <= 0) return;
    // The bar moves in thousandths: a paint of many frames does not redraw it for each.
    const int permille = int(std::clamp<qint64>(qint64(done) * 1000 / total, 0, 1000));
    if (permille == m_lastPermille) return;
    m_lastPermille = permille;
    m_ctx.session.status().setProgress(permille, 1000);
}

bool SuperformatPaint::stopRequested()
{
    m_ctx.DoEvents();
    return m_ctx.stopRequested();
}

void SuperformatPaint::end()
{
    if (!m_begun || m_ended) return;
    m_ended = true;
    Session &s = m_ctx.session;
    m_ctx.opt.W = m_savedW;
    m_ctx.opt.H = m_savedH;
    s.status().setProgress(0, 0);
    SuperformatSurfaces &sf = s.superformat();
    sf.XsupDibNeu = false;
    sf.touch();
    if (auto &record = s.paint().lastPaint) {
        record->width = m_size.width();
        record->height = m_size.height();
    }
    s.view().showSuperformat();
}

} // namespace tf
