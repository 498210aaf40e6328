#pragma once
// The messages and status texts of the photo mosaic, in the user's language.

#include <QSize>
#include <QString>
#include <cstdint>

namespace tf::mosaiktext {

// "Wählen Sie bitte zuerst ein Bild aus!" and the line "Verwenden Sie bitte den [...]-Befehl."
QString chooseAPictureFirst();
// "Stellen Sie bitte zuerst ein Bildverzeichnis ein!" and the same second line.
QString chooseADirectoryFirst();
// "Kann keine gültigen Bilder finden in <path>"
QString noValidPictures(const QString &path);
// "<n> pictures", the status after a scan.
QString pictureCount(int32_t n);
// The status while a directory is scanned.
QString scanning(const QString &path);
// "Anzahl Bilder <p> in Verzeichnisauswahl kleiner als Anzahl Rahmen <f>. Reduzieren ..."
QString fewerPicturesThanFrames(int32_t pictures, int32_t frames);
// "Zu wenig Bilder in <path> um ohne Duplikate zu arbeiten. ..."
QString tooFewPictures(const QString &path);
// "Die Bilder in <path> sind zu klein für den aktuellen Ausschnitt! ..."
QString picturesTooSmall(const QString &path);
// "Das geladene Bild ist zu klein für den aktuellen Ausschnitt! ..."
QString loadedPictureTooSmall();
// "Kein Dateiname für <k> von <n>"
QString noFileName(int32_t k, int32_t n);
// "Max. Splitgrößen B/H = w/h --- Max. Treffer-Bildgröße B/H = w/h"
QString maxSizes(QSize split, QSize hit);
// The question of a split that gives very large frames, with the suggestion.
QString largeFramesQuestion(const QString &hint);
QString hSplitsHint(int h);
QString vSplitsHint(int v);
QString hvSplitsJoin();
// The confirmation of a Superformat mosaic above 4600 pixels a side.
QString longCalculation();

} // namespace tf::mosaiktext
