#include "ui/previewcache.h"

#include "generators/painters.h"
#include "paint/paintdriver.h"
#include "paint/painter.h"
#include "core/surfacepreview.h"
#include "paint/session.h"
#include "paint/superformat.h"
#include "paint/typepanels.h"

#include <algorithm>

namespace tf::ui {

PreviewCache::PreviewCache() : m_session(std::make_unique<Session>())
{
    m_session->setPainters(painterTable());
    m_session->workspace().New_BildSize(Side, Side);
    // A Superformat type paints its preview at the smallest Superformat size; the preview
    // keeps no former picture.
    m_session->superformat().setKeepUndo(false);
    m_session->controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 0},
                                 QString::number(SuperMinSide));
    m_session->controls().setRaw(ControlKey{QStringLiteral("txtSuperSize"), 1},
                                 QString::number(SuperMinSide));
}

PreviewCache::~PreviewCache() = default;

QImage PreviewCache::preview(const QString &key)
{
    auto it = m_cache.find(key);
    if (it != m_cache.end())
        return *it;
    QImage image;
    const PainterEntry *entry = findPainter(m_session->painters(), key);
    // A photo type paints from the user's photos, which a preview does not have: it would only
    // say that a source is missing.
    if (entry && entry->paint && !readsPhotoSource(key)) {
        Session &s = *m_session;
        Workspace &ws = s.workspace();
        ws.Bild.setPicture(QImage());
        ws.Bild.setBackColor(0xFFFFFF);
        ws.Bild_CLEAR();
        ws.lastaction.clear();
        // A type that reworks the picture that stands shows its work over a painted one.
        bool under = true;
        if (entry->overPicture) {
            s.paint().GrafKey = QStringLiteral("Boxes-Randomized");
            s.paint().nextSeed = Seed;
            under = Create_Polygraphics(s) == PaintOutcome::Painted;
        }
        s.paint().GrafKey = key;
        s.paint().nextSeed = Seed;
        if (under && Create_Polygraphics(s) == PaintOutcome::Painted) {
            SuperformatSurfaces &sf = s.superformat();
            if (isSuperformatType(key) && sf.hasPicture()) {
                const double zoom = double(Side) / std::max(sf.SuperDIB.dib_width(),
                                                            sf.SuperDIB.dib_height());
                image = renderSurfacePart(sf.SuperDIB, QRect(QPoint(0, 0), zoomedSize(sf.SuperDIB, zoom)),
                                          zoom);
                sf.drop();
            } else {
                image = ws.Bild.Image().copy();
            }
        }
    }
    m_cache.insert(key, image);
    return image;
}

} // namespace tf::ui
