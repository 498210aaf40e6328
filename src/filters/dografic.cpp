#include "filters/dografic.h"

#include "core/fault.h"
#include "filters/blurize.h"
#include "filters/filterrun.h"
#include "filters/gradientkernels.h"
#include "filters/filtertable.h"
#include "paint/session.h"

namespace tf {

namespace {

// FilterBusy for the time of one call, and the progress bar of the main window unless the
// filter dialog previews.
class BusyScope {
public:
    explicit BusyScope(Session &s) : m_s(s)
    {
        FilterState &f = s.filters();
        s.runState().setFiltering(true);
        f.FilterPercent = 0;
        f.FilterProgressOn = !f.dialogOpen;
        if (f.FilterProgressOn) s.status().setProgress(0, 101);
    }
    ~BusyScope()
    {
        FilterState &f = m_s.filters();
        if (f.FilterProgressOn) m_s.status().setProgress(0, 0);
        f.FilterProgressOn = false;
        m_s.runState().setFiltering(false);
    }
    BusyScope(const BusyScope &) = delete;
    BusyScope &operator=(const BusyScope &) = delete;

private:
    Session &m_s;
};

} // namespace

bool DoGraficFilters(Session &s, int number, QImage &picture, const FilterArgs &args)
{
    return DoGraficFilters(s, number, picture, args, OnFault::KeepPicture);
}

bool DoGraficFilters(Session &s, int number, QImage &picture, const FilterArgs &args,
                     OnFault onFault)
{
    if (s.runState().filtering()) return false;
    BusyScope busy(s);
    if (picture.width() < 1 || picture.height() < 1) return true;
    const FilterRow *row = number >= 1 && number <= 54 ? findFilter(number) : nullptr;
    if (!row || !row->kernel) return true;
    return guarded(QStringLiteral("DoGraficFilters [%1]").arg(number), [&] {
        // The arrays' size is checked as the workspace would size them.
        checkedMul<int32_t>(checkedMul<int32_t>(picture.width(), 4), picture.height());
        FilterWorkspace ws = onFault == OnFault::PictureSpent
                                 ? FilterWorkspace(std::move(picture), row->reads)
                                 : FilterWorkspace(picture, row->reads);
        FilterRun run(ws.D(), ws.S(), args, s);
        row->kernel(run);
        run.progress(100);
        picture = run.resized.isNull() ? ws.result() : run.resized;
    });
}

bool DoGraficFilters2(Session &s, int selector, const QImage &first, QImage &second,
                      const FilterArgs &args)
{
    if (s.runState().filtering()) return false;
    BusyScope busy(s);
    if (first.isNull() || second.isNull()) return true;
    return guarded(QStringLiteral("DoGraficFilters2 [%1]").arg(selector), [&] {
        checkedMul<int32_t>(checkedMul<int32_t>(second.width(), 4), second.height());
        QImage result = second.convertToFormat(QImage::Format_RGB32);
        result.detach();
        QImage other = first.convertToFormat(QImage::Format_RGB32);
        if (other.size() != result.size())
            other = other.scaled(result.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        runBlurize(selector, other, result, args, s.filters().threads);
        s.filters().FilterPercent = 100;
        second = result;
    });
}

bool DoFrequencyWaves(Session &s, int selector, const QImage &first, QImage &second,
                      const FilterArgs &args)
{
    if (s.runState().filtering()) return false;
    BusyScope busy(s);
    if (first.isNull() || second.isNull() || (selector != 3 && selector != 4)) return true;
    return guarded(QStringLiteral("DoGraficFilters2 [%1]").arg(selector), [&] {
        checkedMul<int32_t>(checkedMul<int32_t>(second.width(), 4), second.height());
        QImage result = second.convertToFormat(QImage::Format_RGB32);
        result.detach();
        frequencyWaves(selector, first.convertToFormat(QImage::Format_RGB32), result, args);
        second = result;
    });
}

} // namespace tf
