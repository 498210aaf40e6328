// `tarvelle-forge animate TYPE --frames N --fps F -o out.png|out.gif ...`: the animation of a
// type (the plasma tunnel) written as an animated PNG or GIF. It takes the options of `paint`
// for the size, the seed, the controls and the colours, so the same command gives the same
// file.
#include "app/cli_common.h"
#include "app/cli_paint.h"

#include "files/animationfile.h"
#include "generators/animations.h"
#include "generators/painters.h"
#include "paint/catalogue.h"
#include "paint/grafmenu.h"
#include "paint/session.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QRegularExpression>

namespace tf::cli {

namespace {

struct AnimateOptions {
    int frames = 60;
    int fps = 30;
    int loops = 0;
};

int number(const QString &option, const QString &text, int lo, int hi)
{
    bool ok = false;
    const int n = text.toInt(&ok);
    if (!ok || n < lo || n > hi)
        throw UsageError(QCoreApplication::translate("Cli", "Ungültiger Wert für %1: %2 (%3 bis %4)")
                             .arg(option, text)
                             .arg(lo)
                             .arg(hi));
    return n;
}

// Takes the options of its own out of `words`; the rest are paint's.
AnimateOptions takeAnimateOptions(QStringList &words)
{
    AnimateOptions o;
    for (qsizetype i = 0; i < words.size(); ++i) {
        const QString w = words[i];
        int *target = nullptr;
        int lo = 1, hi = 1;
        if (w == QLatin1String("--frames")) {
            target = &o.frames;
            hi = 3000;
        } else if (w == QLatin1String("--fps")) {
            target = &o.fps;
            hi = 60;
        } else if (w == QLatin1String("--loop")) {
            target = &o.loops;
            lo = 0;
            hi = 65535;
        }
        if (!target) continue;
        if (i + 1 >= words.size())
            throw UsageError(QCoreApplication::translate("Cli", "Es fehlt der Wert zu %1.").arg(w));
        *target = number(w, words[i + 1], lo, hi);
        words.remove(i, 2);
        --i;
    }
    return o;
}

} // namespace

int runAnimate(const QStringList &args)
{
    QStringList words = args;
    const AnimateOptions a = takeAnimateOptions(words);
    const PaintOptions o = parsePaintOptions(words);
    if (!o.over.isEmpty() || !o.recipe.isEmpty())
        throw UsageError(QCoreApplication::translate("Cli", "Unbekannte Option: %1")
                             .arg(o.over.isEmpty() ? QStringLiteral("--recipe")
                                                   : QStringLiteral("--over")));
    const AnimationEntry *entry = findAnimation(o.type);
    if (!entry)
        throw UsageError(
            QCoreApplication::translate("Cli", "Der Grafiktyp %1 hat keine Animation.").arg(o.type));
    QString output = o.output;
    if (output.isEmpty()) {
        output = o.type;
        output.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9_-]")), QStringLiteral("_"));
        output += QStringLiteral(".png");
    }
    if (!animationKindOf(output))
        throw UsageError(QCoreApplication::translate(
                             "Cli", "Eine Animation wird als .png oder .gif geschrieben: %1")
                             .arg(output));
    registerAllPanels();

    CliPrompter prompter;
    TerminalStatus status;
    Session s;
    s.setPainters(painterTable());
    s.setPrompter(&prompter);
    s.setStatus(&status);
    InterruptYield interrupt;
    s.setYieldHook(&interrupt);
    applyControls(s, o);
    const QSize size = o.size.value_or(QSize(712, 712));
    s.workspace().New_BildSize(size.width(), size.height());
    if (!applyColours(s, o)) return ExitFailed;
    const TypeLocation where = *findType(o.type);
    mn_Grafmodes(s, where.group);
    ListBoxType_Click(s, where.listIndex);

    const auto now = uint64_t(QDateTime::currentMSecsSinceEpoch());
    const uint32_t seed = o.seed.value_or(uint32_t(now) ^ uint32_t(now >> 32));
    s.seed(seed);
    std::unique_ptr<Animation> animation;
    try {
        animation = entry->make(s, size.width(), size.height());
    } catch (const std::bad_alloc &) {
        printError(QCoreApplication::translate("Cli", "Zu wenig Speicher für die Animation."));
        return ExitFailed;
    }
    const WriteResult w = writeAnimation(
        output, *animation, a.frames, a.fps, a.loops, [&](int done, int total) {
            status.setProgress(done, total);
            s.DoEvents();
            return !s.paint().StopPaint && !interrupt.interrupted();
        });
    status.setProgress(0, 0);
    if (interrupt.interrupted()) {
        printError(QCoreApplication::translate("Cli", "Das Malen wurde abgebrochen."));
        return ExitFailed;
    }
    if (!w.ok()) {
        printError(w.message);
        return ExitFailed;
    }
    if (!o.seed)
        print(stderr, QCoreApplication::translate("PaintDriver", "Startwert %1").arg(seed) +
                          QLatin1Char('\n'));
    return ExitOk;
}

} // namespace tf::cli
