#include "ui/previewcache.h"

#include "generators/painters.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "paint/session.h"

namespace tf::ui {

PreviewCache::PreviewCache() : m_session(std::make_unique<Session>())
{
    m_session->setPainters(painterTable());
    m_session->workspace().New_BildSize(Side, Side);
}

PreviewCache::~PreviewCache() = default;

QImage PreviewCache::preview(const QString &key)
{
    auto it = m_cache.find(key);
    if (it != m_cache.end())
        return *it;
    QImage image;
    const PainterEntry *entry = findPainter(m_session->painters(), key);
    if (entry && entry->paint) {
        Session &s = *m_session;
        Workspace &ws = s.workspace();
        ws.Bild.setPicture(QImage());
        ws.Bild.setBackColor(0xFFFFFF);
        ws.Bild_CLEAR();
        ws.lastaction.clear();
        s.paint().GrafKey = key;
        s.paint().nextSeed = Seed;
        if (Create_Polygraphics(s) == PaintOutcome::Painted)
            image = ws.Bild.Image().copy();
    }
    m_cache.insert(key, image);
    return image;
}

} // namespace tf::ui
