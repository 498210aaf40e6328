#include "generators/diashow.h"

#include "core/fault.h"
#include "core/numeric.h"
#include "generators/framecanvas.h"
#include "generators/picmosaik.h"
#include "paint/painter.h"
#include "paint/session.h"

#include <algorithm>

namespace tf {

namespace {
// Frames planned and decoded ahead: small, so that the first frame of a layout comes at once.
constexpr int ShowLookahead = 2;
} // namespace

DiaShow::DiaShow(Session &session, QSize workingSize)
    : m_session(session), m_size(workingSize.expandedTo(QSize(1, 1))),
      m_picture(QStringLiteral("picDiaShow"), m_size.width(), m_size.height()),
      m_undo(QStringLiteral("picDiaShowUndo"), m_size.width(), m_size.height()),
      m_work(QStringLiteral("picDiaShowWork"), m_size.width(), m_size.height())
{
    // The margins of a layout show as the dark ground of a show.
    for (PictureBox *p : {&m_picture, &m_undo, &m_work})
        p->setAutoRedraw(true);
    m_picture.setBackColor(0x000000);
    m_repaintFirst = m_session.mondrian().RepaintAsked;
    m_ctx = std::make_unique<PaintContext>(
        PaintContext{m_session, m_picture, m_undo, m_work, OptionVariables{}});
}

DiaShow::~DiaShow() = default;

int DiaShow::delayMs() const
{
    const double seconds = Val(m_session.controls().text(QStringLiteral("txtPicMosaik_Timer")));
    return int(std::clamp(roundHalfEven(seconds * 1000.0), 0.0, 600000.0));
}

QString DiaShow::statusText() const
{
    return m_status;
}

const QImage &DiaShow::image() const
{
    return m_kept.empty() ? m_picture.Image() : m_kept[m_at].image;
}

QString DiaShow::file() const
{
    return m_kept.empty() ? QString() : m_kept[m_at].file;
}

bool DiaShow::step()
{
    if (m_ended) return false;
    if (m_at + 1 < m_kept.size()) {
        ++m_at;
        return true;
    }
    bool moved = false;
    const bool ran = guarded(QStringLiteral("Do_PicMosaik"), [&] { moved = paintStep(); });
    if (!ran || !moved) m_ended = true;
    return ran && moved;
}

bool DiaShow::back()
{
    if (m_at == 0) return false;
    --m_at;
    return true;
}

bool DiaShow::paintStep()
{
    PictureCanvas canvas(m_picture);
    if (!m_run || m_finished) {
        m_run.reset();
        m_finished = false;
        m_ctx->opt = readOptionVariables(m_session.controls(), m_size.width(), m_size.height());
        // "Repaint letztes Set" with the show chosen (a loaded presentation) shows the kept
        // layout first; every later layout is new.
        const bool repaint = m_layouts == 0 && m_repaintFirst;
        PicMosaikCall call = picMosaikCallFromPanel(*m_ctx, m_size, repaint);
        call.Show = true;
        call.SuperW = NominalW;
        call.SuperH = NominalH;
        m_run = std::make_unique<PicMosaikRun>(*m_ctx, call);
        m_run->setLookahead(ShowLookahead);
        if (!m_run->start(canvas)) return false;
        ++m_layouts;
    }
    if (m_run->paintNext(canvas)) {
        keep(m_run->lastFile());
        return true;
    }
    m_status = m_run->maxSizesText();
    if (m_run->ended()) return false;
    m_run->finish(canvas);
    m_finished = true;
    keep(QString());
    return true;
}

void DiaShow::keep(const QString &file)
{
    ++m_steps;
    m_kept.push_back({m_picture.Image().copy(), file});
    while (m_kept.size() > size_t(KeptSteps))
        m_kept.pop_front();
    m_at = m_kept.size() - 1;
}

void paintPicDiaShow(PaintContext &ctx)
{
    if (!ctx.session.view().runDiaShow()) paintPicMosaik(ctx);
}

} // namespace tf
