#include "core/rescue.h"

#include "core/fault.h"
#include "core/prompter.h"
#include "core/tempfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace tf {

namespace {

const char *const kContext = "Rescue";

struct LostFile {
    const char *name;
    bool mask;
    const char *question;
    const char *savedAt;
};

const LostFile kLostFiles[] = {
    {TempFiles::UndoBild, false,
     QT_TRANSLATE_NOOP("Rescue",
                       "Nach dem letzten Beenden von Tarvelle-Forge gibt es noch ein "
                       "wiederherstellbares Undobild. Dies ist die letzte Chance das Bild zu "
                       "retten. Soll das Bild gerettet werden?"),
     QT_TRANSLATE_NOOP("Rescue", "Der Pfad/Name des geretteten Bildes ist %1")},
    {TempFiles::UndoMask, true,
     QT_TRANSLATE_NOOP("Rescue",
                       "Nach dem letzten Beenden von Tarvelle-Forge gibt es noch eine "
                       "wiederherstellbare Undobildmaske. Dies ist die letzte Chance das Bild "
                       "zu retten. Soll die Bildmaske gerettet werden?"),
     QT_TRANSLATE_NOOP("Rescue", "Der Pfad/Name des geretteten Bildmaske ist %1")},
};

} // namespace

QString rescueFileName(bool mask, const QDateTime &now)
{
    const int seconds = now.time().msecsSinceStartOfDay() / 1000;
    return now.date().toString(QStringLiteral("yyyyMMdd")) +
           (mask ? QStringLiteral("_restm_") : QStringLiteral("_restp_")) +
           QString::number(seconds) + QStringLiteral(".bmp");
}

QStringList CheckRestore_lost_Undopics(const QString &tempDir, const QDateTime &now)
{
    QStringList rescued;
    guarded(QStringLiteral("CheckRestore_lost_Undopics"), [&] {
        const QDir dir(tempDir);
        for (const LostFile &lost : kLostFiles) {
            const QString from = dir.filePath(QString::fromLatin1(lost.name));
            if (!QFileInfo::exists(from))
                continue;
            Prompt question;
            question.text = QCoreApplication::translate(kContext, lost.question);
            question.buttons = Buttons::YesNo;
            question.icon = Icon::Question;
            if (currentPrompter().ask(question) != Answer::Yes)
                continue; // the next undo overwrites it
            const QString to = dir.filePath(rescueFileName(lost.mask, now));
            if (!QFile::rename(from, to))
                throw Fault(Fault::PathFileAccessError);
            rescued << to;
            Prompt info;
            info.text = QCoreApplication::translate(kContext, lost.savedAt)
                            .arg(QDir::toNativeSeparators(to));
            info.icon = Icon::Information;
            currentPrompter().ask(info);
        }
    });
    return rescued;
}

} // namespace tf
