#include "generators/picmosaik_texts.h"

#include <QCoreApplication>

namespace tf::mosaiktext {

namespace {

const QString CrLf = QStringLiteral("\r\n");

QString useTheCommand()
{
    return QCoreApplication::translate("PicMosaik", "Verwenden Sie bitte den [...]-Befehl.");
}

} // namespace

QString chooseAPictureFirst()
{
    return QCoreApplication::translate("PicMosaik", "Wählen Sie bitte zuerst ein Bild aus!") + CrLf + useTheCommand();
}

QString chooseADirectoryFirst()
{
    return QCoreApplication::translate("PicMosaik", "Stellen Sie bitte zuerst ein Bildverzeichnis ein!") + CrLf + useTheCommand();
}

QString noValidPictures(const QString &path)
{
    return QCoreApplication::translate("PicMosaik", "Kann keine gültigen Bilder finden in ") + path;
}

QString pictureCount(int32_t n)
{
    return QString::number(n) + QCoreApplication::translate("PicMosaik", " pictures");
}

QString scanning(const QString &path)
{
    return QCoreApplication::translate("PicMosaik", "Suche Bilder in ") + path;
}

QString fewerPicturesThanFrames(int32_t pictures, int32_t frames)
{
    return QCoreApplication::translate("PicMosaik", "Anzahl Bilder ") + QString::number(pictures) +
           QCoreApplication::translate("PicMosaik", " in Verzeichnisauswahl kleiner als Anzahl Rahmen ") + QString::number(frames) +
           QCoreApplication::translate("PicMosaik", ". Reduzieren Sie die Splitanzahl oder verwenden Sie die Option [X] Duplikate "
              "zulassen!");
}

QString tooFewPictures(const QString &path)
{
    return QCoreApplication::translate("PicMosaik", "Zu wenig Bilder in ") + path +
           QCoreApplication::translate("PicMosaik", " um ohne Duplikate zu arbeiten. Reduzieren Sie bitte die Anzahl der Splits.");
}

QString picturesTooSmall(const QString &path)
{
    return QCoreApplication::translate("PicMosaik", "Die Bilder in ") + path +
           QCoreApplication::translate("PicMosaik", " sind zu klein für den aktuellen Ausschnitt! Verwenden Sie die Option: Kleine "
              "Bilder zulassen.");
}

QString loadedPictureTooSmall()
{
    return QCoreApplication::translate("PicMosaik", "Das geladene Bild ist zu klein für den aktuellen Ausschnitt! Verwenden Sie die "
              "Option: Kleine Bilder zulassen.");
}

QString noFileName(int32_t k, int32_t n)
{
    return QCoreApplication::translate("PicMosaik", "Kein Dateiname für ") + QString::number(k) + QCoreApplication::translate("PicMosaik", " von ") + QString::number(n);
}

QString maxSizes(QSize split, QSize hit)
{
    return QCoreApplication::translate("PicMosaik", "Max. Splitgrößen B/H = ") + QString::number(split.width()) + QLatin1Char('/') +
           QString::number(split.height()) + QCoreApplication::translate("PicMosaik", " --- Max. Treffer-Bildgröße B/H = ") +
           QString::number(hit.width()) + QLatin1Char('/') + QString::number(hit.height());
}

QString largeFramesQuestion(const QString &hint)
{
    return QCoreApplication::translate("PicMosaik", "Diese Aufteilung ergibt sehr große Einzelbildgrößen.") + CrLf +
           QCoreApplication::translate("PicMosaik", "Splitvorschlag: ") + hint + CrLf + QCoreApplication::translate("PicMosaik", "Wollen Sie abbrechen?");
}

QString hSplitsHint(int h)
{
    return QStringLiteral("H-Splits = ") + QString::number(h);
}

QString vSplitsHint(int v)
{
    return QStringLiteral("V-Splits = ") + QString::number(v);
}

QString hvSplitsJoin()
{
    return QStringLiteral(" / ");
}

QString longCalculation()
{
    return QCoreApplication::translate("PicMosaik", "Diese Bildgröße erfordert einige Berechnungszeit. Sorgen Sie bitte unbedingt "
              "dafür, daß die Quellbilder groß genug für dieses Mosaik sind, oder aktivieren Sie "
              "die Option [] Kleine Bilder zulassen!");
}

} // namespace tf::mosaiktext
