#pragma once
// Previews of the graphics types: each type painted at 100 x 100 by its own painter with a
// fixed seed, in a session of its own, so that the preview always shows what Paint gives.
// Previews are made on first request and kept; a type whose painter is not built in has none.

#include <QHash>
#include <QImage>
#include <QString>
#include <memory>

namespace tf {
class Session;
}

namespace tf::ui {

class PreviewCache {
public:
    static constexpr int Side = 100;
    static constexpr uint32_t Seed = 1;

    PreviewCache();
    ~PreviewCache();

    // The preview of a type; a null image when the type has no painter, paints from the photo
    // source or its paint failed.
    QImage preview(const QString &key);

private:
    std::unique_ptr<Session> m_session;
    QHash<QString, QImage> m_cache;
};

} // namespace tf::ui
