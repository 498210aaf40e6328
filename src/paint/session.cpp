#include "paint/session.h"

#include "paint/palette.h"

namespace tf {

Session::Session()
    : m_workspace(std::make_unique<Workspace>()),
      m_fixings(std::make_unique<Fixings>(*m_workspace, m_statusDoor, m_run)),
      m_superformat(std::make_unique<SuperformatSurfaces>(*m_workspace))
{
    m_transparency.XBild = &m_workspace->Bild;
    m_transparency.XUndo = &m_workspace->BildUndo;
    m_transparency.XWork = &m_workspace->BildWork;
    // The palette stands from the start, as the colour dialog builds it when it loads.
    Create2ColorPAL(*this);
}

Session::~Session()
{
    // The tools hold on to the workspace and the doors: they go first.
    m_handTools.reset();
    if (m_installedPrompter)
        installPrompter(m_prompterBefore);
}

void Session::setHandTools(std::unique_ptr<HandTools> tools)
{
    m_handTools = std::move(tools);
}

void Session::setPrompter(Prompter *p)
{
    m_prompter = p ? p : &m_defaultPrompter;
    Prompter *before = installPrompter(m_prompter);
    if (!m_installedPrompter) {
        m_prompterBefore = before;
        m_installedPrompter = true;
    }
}

void Session::setView(SessionView *view)
{
    m_view = view ? view : &m_noView;
    m_workspace->setView(m_view);
    m_paint.dialog.setView(m_view);
    m_controls.setView(m_view);
}

Answer Session::ask(const QString &text, Buttons buttons, Icon icon, const QString &title)
{
    Prompt p;
    p.text = text;
    p.buttons = buttons;
    p.icon = icon;
    p.title = title;
    return m_prompter->ask(p);
}

void Session::DoEvents()
{
    if (m_yield->yield())
        m_paint.StopPaint = true;
}

void Session::seed(uint32_t seed)
{
    m_clock.useSeed(seed);
    // The generator has 24 bits of state: the seed is mixed down to them, so that nearby seeds
    // give unrelated sequences.
    uint32_t x = seed;
    x ^= x >> 16;
    x *= 0x7FEB352Du;
    x ^= x >> 15;
    x *= 0x846CA68Bu;
    x ^= x >> 16;
    m_random.setState(x);
}

} // namespace tf
