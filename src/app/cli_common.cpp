#include "app/cli_common.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <csignal>
#include <unistd.h>

namespace tf::cli {

void print(FILE *to, const QString &text)
{
    std::fputs(text.toUtf8().constData(), to);
}

void printError(const QString &message)
{
    print(stderr, QStringLiteral("tarvelle-forge: %1\n").arg(message));
}

UsageError::UsageError(const QString &m) : std::runtime_error(m.toStdString()), message(m) {}

QString Arguments::valueOf(const QString &option)
{
    if (atEnd())
        throw UsageError(
            QCoreApplication::translate("Cli", "Der Option %1 fehlt ihr Wert.").arg(option));
    return next();
}

Answer CliPrompter::ask(const Prompt &p)
{
    if (p.icon == Icon::Exclamation || p.icon == Icon::Critical) m_faultSeen = true;
    return StderrPrompter::ask(p);
}

void TerminalStatus::setProgress(int value, int max)
{
    RecordingStatus::setProgress(value, max);
    if (!isatty(STDERR_FILENO)) return;
    if (max <= 0) {
        std::fputs("\r\033[K", stderr);
        return;
    }
    constexpr int Width = 40;
    const int filled = int(qint64(Width) * std::clamp(value, 0, max) / max);
    std::fprintf(stderr, "\r[%s%s] %3d%%", QByteArray(filled, '#').constData(),
                 QByteArray(Width - filled, ' ').constData(), int(qint64(100) * value / max));
    std::fflush(stderr);
}

namespace {
volatile std::sig_atomic_t g_interrupted = 0;
void onInterrupt(int)
{
    g_interrupted = 1;
}
} // namespace

InterruptYield::InterruptYield()
{
    g_interrupted = 0;
    std::signal(SIGINT, onInterrupt);
}

InterruptYield::~InterruptYield()
{
    std::signal(SIGINT, SIG_DFL);
}

bool InterruptYield::yield()
{
    return g_interrupted != 0;
}

bool InterruptYield::interrupted() const
{
    return g_interrupted != 0;
}

ColorLong parseColour(const QString &text)
{
    static const QRegularExpression re(QStringLiteral(R"(^#([0-9A-Fa-f]{6})$)"));
    const auto m = re.match(text);
    if (!m.hasMatch())
        throw UsageError(
            QCoreApplication::translate("Cli", "Ungültige Farbe: %1 (#RRGGBB)").arg(text));
    return fromQRgb(m.captured(1).toUInt(nullptr, 16));
}

} // namespace tf::cli
