<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de" sourcelanguage="de">
<context>
    <name>Blurize</name>
    <message>
        <source>Es gibt noch kein Bild vor der letzten Änderung: laden oder malen Sie zuerst zwei Bilder nacheinander.</source>
        <translation>Es gibt noch kein Bild vor der letzten Änderung: laden oder malen Sie zuerst zwei Bilder nacheinander.</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Unbekannte Sprache: %1 (de oder en)</source>
        <translation>Unbekannte Sprache: %1 (de oder en)</translation>
    </message>
    <message>
        <source>Der Option %1 fehlt ihr Wert.</source>
        <translation>Der Option %1 fehlt ihr Wert.</translation>
    </message>
    <message>
        <source>Unbekannte Option: %1</source>
        <translation>Unbekannte Option: %1</translation>
    </message>
    <message>
        <source>Unbekannter Grafiktyp: %1</source>
        <translation>Unbekannter Grafiktyp: %1</translation>
    </message>
    <message>
        <source>Ungültige Größe: %1 (BREITExHÖHE, 1 bis 14000)</source>
        <translation>Ungültige Größe: %1 (BREITExHÖHE, 1 bis 14000)</translation>
    </message>
    <message>
        <source>Ungültige Farbe: %1 (#RRGGBB)</source>
        <translation>Ungültige Farbe: %1 (#RRGGBB)</translation>
    </message>
    <message>
        <source>Ungültiger Wert für %1: %2</source>
        <translation>Ungültiger Wert für %1: %2</translation>
    </message>
    <message>
        <source>Ungültiger Startwert: %1</source>
        <translation>Ungültiger Startwert: %1</translation>
    </message>
    <message>
        <source>Ungültige Einstellung: %1 (STEUERELEMENT=WERT)</source>
        <translation>Ungültige Einstellung: %1 (STEUERELEMENT=WERT)</translation>
    </message>
    <message>
        <source>Ungültige Transparenz: %1 (0 bis 100)</source>
        <translation>Ungültige Transparenz: %1 (0 bis 100)</translation>
    </message>
    <message>
        <source>Überzähliges Argument: %1</source>
        <translation>Überzähliges Argument: %1</translation>
    </message>
    <message>
        <source>Es fehlt der Grafiktyp.</source>
        <translation>Es fehlt der Grafiktyp.</translation>
    </message>
    <message>
        <source>Unbekanntes Steuerelement: %1</source>
        <translation>Unbekanntes Steuerelement: %1</translation>
    </message>
    <message>
        <source>Das Malen wurde abgebrochen.</source>
        <translation>Das Malen wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Das Malen ist fehlgeschlagen.</source>
        <translation>Das Malen ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Unbekannte Systempalette: %1 (1 bis %2)</source>
        <translation>Unbekannte Systempalette: %1 (1 bis %2)</translation>
    </message>
    <message>
        <source>Unbekannter Filter: %1 (siehe `filters`)</source>
        <translation>Unbekannter Filter: %1 (siehe `filters`)</translation>
    </message>
    <message>
        <source>Der Filter %1 ist noch nicht eingebaut.</source>
        <translation>Der Filter %1 ist noch nicht eingebaut.</translation>
    </message>
    <message>
        <source>Ungültige Einstellung: %1 (REGLER=WERT)</source>
        <translation>Ungültige Einstellung: %1 (REGLER=WERT)</translation>
    </message>
    <message>
        <source>%1 liegt außerhalb von %2 bis %3.</source>
        <translation>%1 liegt außerhalb von %2 bis %3.</translation>
    </message>
    <message>
        <source>Der Filter %1 hat keinen Regler %2.</source>
        <translation>Der Filter %1 hat keinen Regler %2.</translation>
    </message>
    <message>
        <source>Es fehlt der Filter.</source>
        <translation>Es fehlt der Filter.</translation>
    </message>
    <message>
        <source>Ungültige Position: %1 (X,Y)</source>
        <translation>Ungültige Position: %1 (X,Y)</translation>
    </message>
    <message>
        <source>Es fehlt das Bild, das gefiltert wird.</source>
        <translation>Es fehlt das Bild, das gefiltert wird.</translation>
    </message>
    <message>
        <source>Es fehlt die Ausgabe (-o DATEI).</source>
        <translation>Es fehlt die Ausgabe (-o DATEI).</translation>
    </message>
    <message>
        <source>Das Filtern ist fehlgeschlagen.</source>
        <translation>Das Filtern ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>Die Datei %1 enthält kein Rezept.</source>
        <translation>Die Datei %1 enthält kein Rezept.</translation>
    </message>
    <message>
        <source>Aufruf: tarvelle-forge recipe DATEI</source>
        <translation>Aufruf: tarvelle-forge recipe DATEI</translation>
    </message>
    <message>
        <source>Es fehlt der Ordner (-o ORDNER).</source>
        <translation>Es fehlt der Ordner (-o ORDNER).</translation>
    </message>
    <message>
        <source>Der Ordner %1 kann nicht angelegt werden.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>„%1“ konnte nicht gemalt werden.</source>
        <translation>„%1“ konnte nicht gemalt werden.</translation>
    </message>
    <message>
        <source>Ungültige Größe: %1 (BxH)</source>
        <translation>Ungültige Größe: %1 (BxH)</translation>
    </message>
    <message>
        <source>Ungültiger Ausschnitt: %1 (X,Y,B,H)</source>
        <translation>Ungültiger Ausschnitt: %1 (X,Y,B,H)</translation>
    </message>
    <message>
        <source>Ungültige Lage: %1 (top-left, top, ..., middle, ..., bottom-right)</source>
        <translation>Ungültige Lage: %1 (top-left, top, ..., middle, ..., bottom-right)</translation>
    </message>
    <message>
        <source>Ungültiger Halbspiegel: %1 (left-to-right, right-to-left, top-to-bottom, bottom-to-top, prismatic)</source>
        <translation>Ungültiger Halbspiegel: %1 (left-to-right, right-to-left, top-to-bottom, bottom-to-top, prismatic)</translation>
    </message>
    <message>
        <source>Es fehlt die Umformung.</source>
        <translation>Es fehlt die Umformung.</translation>
    </message>
    <message>
        <source>Es fehlt der Wert der Umformung %1.</source>
        <translation>Es fehlt der Wert der Umformung %1.</translation>
    </message>
    <message>
        <source>Es fehlt das Bild, das umgeformt wird.</source>
        <translation>Es fehlt das Bild, das umgeformt wird.</translation>
    </message>
    <message>
        <source>Die Umformung %1 braucht ein zweites Bild (--with DATEI).</source>
        <translation>Die Umformung %1 braucht ein zweites Bild (--with DATEI).</translation>
    </message>
    <message>
        <source>Unbekannte Umformung: %1 (siehe --help)</source>
        <translation>Unbekannte Umformung: %1 (siehe --help)</translation>
    </message>
    <message>
        <source>Das Umformen ist fehlgeschlagen.</source>
        <translation>Das Umformen ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>%1 erwartet eine Zahl von 0 bis 14000, nicht "%2"</source>
        <translation>%1 erwartet eine Zahl von 0 bis 14000, nicht "%2"</translation>
    </message>
    <message>
        <source>Aufruf: tarvelle-forge passepartouts [--data DATEI]</source>
        <translation>Aufruf: tarvelle-forge passepartouts [--data DATEI]</translation>
    </message>
    <message>
        <source>--gradient erwartet on oder off, nicht "%1"</source>
        <translation>--gradient erwartet on oder off, nicht "%1"</translation>
    </message>
    <message>
        <source>Unbekannte Angabe: %1</source>
        <translation>Unbekannte Angabe: %1</translation>
    </message>
    <message>
        <source>Aufruf: tarvelle-forge passepartout --set NAME BILD -o AUSGABE</source>
        <translation>Aufruf: tarvelle-forge passepartout --set NAME BILD -o AUSGABE</translation>
    </message>
    <message>
        <source>Es gibt kein Passepartout "%1" (siehe tarvelle-forge passepartouts).</source>
        <translation>Es gibt kein Passepartout "%1" (siehe tarvelle-forge passepartouts).</translation>
    </message>
    <message>
        <source>Das Bild im Passepartout wäre größer als 14000 Pixel.</source>
        <translation>Das Bild im Passepartout wäre größer als 14000 Pixel.</translation>
    </message>
    <message>
        <source>Ein Superformat wird in ein eigenes Bild gemalt, nicht über ein anderes.</source>
        <translation>Ein Superformat wird in ein eigenes Bild gemalt, nicht über ein anderes.</translation>
    </message>
    <message>
        <source>Ungültiger Wert für %1: %2 (%3 bis %4)</source>
        <translation>Ungültiger Wert für %1: %2 (%3 bis %4)</translation>
    </message>
    <message>
        <source>Es fehlt der Wert zu %1.</source>
        <translation>Es fehlt der Wert zu %1.</translation>
    </message>
    <message>
        <source>Der Grafiktyp %1 hat keine Animation.</source>
        <translation>Der Grafiktyp %1 hat keine Animation.</translation>
    </message>
    <message>
        <source>Eine Animation wird als .png oder .gif geschrieben: %1</source>
        <translation>Eine Animation wird als .png oder .gif geschrieben: %1</translation>
    </message>
    <message>
        <source>Zu wenig Speicher für die Animation.</source>
        <translation>Zu wenig Speicher für die Animation.</translation>
    </message>
    <message>
        <source>Eine Präsentation (--presentation) malt nur PIC-Mosaik oder PIC-MosaikSuper.</source>
        <translation>Eine Präsentation (--presentation) malt nur PIC-Mosaik oder PIC-MosaikSuper.</translation>
    </message>
    <message>
        <source>Die Option --source gilt nur für Typen mit Fotos, nicht für %1.</source>
        <translation>Die Option --source gilt nur für Typen mit Fotos, nicht für %1.</translation>
    </message>
</context>
<context>
    <name>ControlLinks</name>
    <message>
        <source>oder</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>und</source>
        <translation>und</translation>
    </message>
    <message>
        <source>nur mit %1</source>
        <translation>nur mit %1</translation>
    </message>
    <message>
        <source>setzt %1 auf %2 bei %3</source>
        <translation>setzt %1 auf %2 bei %3</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Freies Format (pixel)</source>
        <translation>Freies Format (pixel)</translation>
    </message>
    <message>
        <source>Freies Format (cm)</source>
        <translation>Freies Format (cm)</translation>
    </message>
    <message>
        <source>DIN-A4 Hochformat</source>
        <translation>DIN-A4 Hochformat</translation>
    </message>
    <message>
        <source>DIN-A4 Querformat</source>
        <translation>DIN-A4 Querformat</translation>
    </message>
    <message>
        <source>DIN-A3 Hochformat</source>
        <translation>DIN-A3 Hochformat</translation>
    </message>
    <message>
        <source>DIN-A3 Querformat</source>
        <translation>DIN-A3 Querformat</translation>
    </message>
    <message>
        <source>DIN-A2 Hochformat</source>
        <translation>DIN-A2 Hochformat</translation>
    </message>
    <message>
        <source>DIN-A2 Querformat</source>
        <translation>DIN-A2 Querformat</translation>
    </message>
    <message>
        <source>DIN-A1 Hochformat</source>
        <translation>DIN-A1 Hochformat</translation>
    </message>
    <message>
        <source>DIN-A1 Querformat</source>
        <translation>DIN-A1 Querformat</translation>
    </message>
    <message>
        <source>12 x 12 cm</source>
        <translation>12 x 12 cm</translation>
    </message>
    <message>
        <source>20 x 30 cm</source>
        <translation>20 x 30 cm</translation>
    </message>
    <message>
        <source>30 x 20 cm</source>
        <translation>30 x 20 cm</translation>
    </message>
    <message>
        <source>24 x 30 cm</source>
        <translation>24 x 30 cm</translation>
    </message>
    <message>
        <source>30 x 24 cm</source>
        <translation>30 x 24 cm</translation>
    </message>
    <message>
        <source>30 x 40 cm</source>
        <translation>30 x 40 cm</translation>
    </message>
    <message>
        <source>40 x 30 cm</source>
        <translation>40 x 30 cm</translation>
    </message>
    <message>
        <source>30 x 45 cm</source>
        <translation>30 x 45 cm</translation>
    </message>
    <message>
        <source>45 x 30 cm</source>
        <translation>45 x 30 cm</translation>
    </message>
    <message>
        <source>Allgemein</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Anzahl</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Stift</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Schrittweite</source>
        <translation>Schrittweite</translation>
    </message>
    <message>
        <source>Transparenz</source>
        <translation>Transparenz</translation>
    </message>
    <message>
        <source>Ränder</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>Zentrieren</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>Füllen</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Weiß füllen</source>
        <translation>Weiß füllen</translation>
    </message>
    <message>
        <source>Auto-Anti-Aliasing</source>
        <translation>Auto-Anti-Aliasing</translation>
    </message>
    <message>
        <source>Bildformat</source>
        <translation>Bildformat</translation>
    </message>
    <message>
        <source>DPI</source>
        <translation>DPI</translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Höhe</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Superformat Breite</source>
        <translation>Superformat Breite</translation>
    </message>
    <message>
        <source>Superformat Höhe</source>
        <translation>Superformat Höhe</translation>
    </message>
    <message>
        <source>Chromofilter</source>
        <translation>Chromofilter</translation>
    </message>
    <message>
        <source>Bandbreite</source>
        <translation>Bandbreite</translation>
    </message>
    <message>
        <source>Ausrichtung</source>
        <translation>Ausrichtung</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Unten</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Rahmenverlauf</source>
        <translation>Rahmenverlauf</translation>
    </message>
    <message>
        <source>Farbanteil</source>
        <translation>Farbanteil</translation>
    </message>
    <message>
        <source>Verlaufsart</source>
        <translation>Verlaufsart</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Rechteck</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Richtung</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertikal</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>Farben tauschen</source>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>Weicher Verlauf</source>
        <translation>Weicher Verlauf</translation>
    </message>
    <message>
        <source>Rand links und rechts</source>
        <translation>Rand links und rechts</translation>
    </message>
    <message>
        <source>Rand oben und unten</source>
        <translation>Rand oben und unten</translation>
    </message>
    <message>
        <source>Passepartout</source>
        <translation>Passepartout</translation>
    </message>
    <message>
        <source>Passepartout-Breite</source>
        <translation>Passepartout-Breite</translation>
    </message>
    <message>
        <source>Frequenzen</source>
        <translation>Frequenzen</translation>
    </message>
    <message>
        <source>Wellenform</source>
        <translation>Wellenform</translation>
    </message>
    <message>
        <source>Kreiswellen</source>
        <translation>Kreiswellen</translation>
    </message>
    <message>
        <source>Parallele Wellen</source>
        <translation>Parallele Wellen</translation>
    </message>
    <message>
        <source>Deckkraft</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Wellenzüge</source>
        <translation>Wellenzüge</translation>
    </message>
    <message>
        <source>Kacheln</source>
        <translation>Kacheln</translation>
    </message>
    <message>
        <source>Kacheln je Bildbreite</source>
        <translation>Kacheln je Bildbreite</translation>
    </message>
    <message>
        <source>Ellipsen</source>
        <translation>Ellipsen</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Kreise</source>
        <translation>Kreise</translation>
    </message>
    <message>
        <source>Gemischt</source>
        <translation>Gemischt</translation>
    </message>
    <message>
        <source>Vielecke und Sterne</source>
        <translation>Vielecke und Sterne</translation>
    </message>
    <message>
        <source>Figur</source>
        <translation>Figur</translation>
    </message>
    <message>
        <source>Vieleck</source>
        <translation>Vieleck</translation>
    </message>
    <message>
        <source>Stern</source>
        <translation>Stern</translation>
    </message>
    <message>
        <source>Ecken</source>
        <translation>Ecken</translation>
    </message>
    <message>
        <source>Farbmodus</source>
        <translation>Farbmodus</translation>
    </message>
    <message>
        <source>Einfache Farben</source>
        <translation>Einfache Farben</translation>
    </message>
    <message>
        <source>Farbtabelle zufällig</source>
        <translation>Farbtabelle zufällig</translation>
    </message>
    <message>
        <source>Farbtabelle aus zwei Farben</source>
        <translation>Farbtabelle aus zwei Farben</translation>
    </message>
    <message>
        <source>Lissajous-Figur</source>
        <translation>Lissajous-Figur</translation>
    </message>
    <message>
        <source>Frequenz waagrecht</source>
        <translation>Frequenz waagrecht</translation>
    </message>
    <message>
        <source>Frequenz senkrecht</source>
        <translation>Frequenz senkrecht</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Zähler</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>Nenner</source>
        <translation>Nenner</translation>
    </message>
    <message>
        <source>Fadenrosette</source>
        <translation>Fadenrosette</translation>
    </message>
    <message>
        <source>Faktor</source>
        <translation>Faktor</translation>
    </message>
    <message>
        <source>Interne Kacheln</source>
        <translation>Interne Kacheln</translation>
    </message>
    <message>
        <source>Kachel</source>
        <translation>Kachel</translation>
    </message>
    <message>
        <source>In den Malfarben</source>
        <translation>In den Malfarben</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Zeichengröße</source>
        <translation>Zeichengröße</translation>
    </message>
    <message>
        <source>Geschwindigkeit</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Wellen</source>
        <translation>Wellen</translation>
    </message>
    <message>
        <source>Rauten</source>
        <translation>Rauten</translation>
    </message>
    <message>
        <source>Schuppen</source>
        <translation>Schuppen</translation>
    </message>
    <message>
        <source>Ziegel</source>
        <translation>Ziegel</translation>
    </message>
    <message>
        <source>Marmor</source>
        <translation>Marmor</translation>
    </message>
    <message>
        <source>Leinen</source>
        <translation>Leinen</translation>
    </message>
    <message>
        <source>Ringe</source>
        <translation>Ringe</translation>
    </message>
    <message>
        <source>Flechtwerk</source>
        <translation>Flechtwerk</translation>
    </message>
    <message>
        <source>Sterne</source>
        <translation>Sterne</translation>
    </message>
    <message>
        <source>Holz</source>
        <translation>Holz</translation>
    </message>
    <message>
        <source>Waben</source>
        <translation>Waben</translation>
    </message>
    <message>
        <source>Rahmendicke A.</source>
        <translation>Rahmendicke A.</translation>
    </message>
    <message>
        <source>Rahmenbreite I.</source>
        <translation>Rahmenbreite I.</translation>
    </message>
    <message>
        <source>Rahmenhöhe I.</source>
        <translation>Rahmenhöhe I.</translation>
    </message>
    <message>
        <source>Trapeze</source>
        <translation>Trapeze</translation>
    </message>
    <message>
        <source>Ausschnitt</source>
        <translation>Ausschnitt</translation>
    </message>
    <message>
        <source>Papiere</source>
        <translation>Papiere</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Jalousie</source>
        <translation>Jalousie</translation>
    </message>
    <message>
        <source>4 Farben</source>
        <translation>4 Farben</translation>
    </message>
    <message>
        <source>Diagonal</source>
        <translation>Diagonal</translation>
    </message>
    <message>
        <source>Jalousie step 1-255</source>
        <translation>Jalousie step 1-255</translation>
    </message>
    <message>
        <source>Berge</source>
        <translation>Berge</translation>
    </message>
    <message>
        <source>3D</source>
        <translation>3D</translation>
    </message>
    <message>
        <source>Amplitude</source>
        <translation>Amplitude</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Kreisverläufe</source>
        <translation>Kreisverläufe</translation>
    </message>
    <message>
        <source>Teilungen</source>
        <translation>Teilungen</translation>
    </message>
    <message>
        <source>Endwinkel</source>
        <translation>Endwinkel</translation>
    </message>
    <message>
        <source>Startwinkel</source>
        <translation>Startwinkel</translation>
    </message>
    <message>
        <source>Stift verwenden</source>
        <translation>Stift verwenden</translation>
    </message>
    <message>
        <source>Textdialog</source>
        <translation>Textdialog</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Schrift</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Größe</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Z.-Breite</source>
        <translation>Z.-Breite</translation>
    </message>
    <message>
        <source>Zeichenbreite (%)</source>
        <translation>Zeichenbreite (%)</translation>
    </message>
    <message>
        <source>Schatten</source>
        <translation>Schatten</translation>
    </message>
    <message>
        <source>3D-Farbe</source>
        <translation>3D-Farbe</translation>
    </message>
    <message>
        <source>Schattenfarbe</source>
        <translation>Schattenfarbe</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Grau</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Textfarbe abgedunkelt</source>
        <translation>Textfarbe abgedunkelt</translation>
    </message>
    <message>
        <source>Anti-Aliasing</source>
        <translation>Anti-Aliasing</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Schriften mischen</source>
        <translation>Schriften mischen</translation>
    </message>
    <message>
        <source>Position links</source>
        <translation>Position links</translation>
    </message>
    <message>
        <source>Position oben</source>
        <translation>Position oben</translation>
    </message>
    <message>
        <source>Rotationswinkel</source>
        <translation>Rotationswinkel</translation>
    </message>
    <message>
        <source>Position ist die Textmitte</source>
        <translation>Position ist die Textmitte</translation>
    </message>
    <message>
        <source>Nur Großbuchstaben</source>
        <translation>Nur Großbuchstaben</translation>
    </message>
    <message>
        <source>Textblock</source>
        <translation>Textblock</translation>
    </message>
    <message>
        <source> Ausrichtung </source>
        <translation> Ausrichtung </translation>
    </message>
    <message>
        <source>Zentriert</source>
        <translation>Zentriert</translation>
    </message>
    <message>
        <source>Kinoabspann</source>
        <translation>Kinoabspann</translation>
    </message>
    <message>
        <source>Links &amp;&amp; rechts</source>
        <translation>Links &amp;&amp; rechts</translation>
    </message>
    <message>
        <source>Abstand links</source>
        <translation>Abstand links</translation>
    </message>
    <message>
        <source>Abstand oben</source>
        <translation>Abstand oben</translation>
    </message>
    <message>
        <source>Lücke (Pixel)</source>
        <translation>Lücke (Pixel)</translation>
    </message>
    <message>
        <source>Text auf Kreis und Spirale</source>
        <translation>Text auf Kreis und Spirale</translation>
    </message>
    <message>
        <source>Kreismodus</source>
        <translation>Kreismodus</translation>
    </message>
    <message>
        <source>Textwinkel</source>
        <translation>Textwinkel</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Teilungswinkel</source>
        <translation>Teilungswinkel</translation>
    </message>
    <message>
        <source>Formen</source>
        <translation>Formen</translation>
    </message>
    <message>
        <source>Quadrat am Ankerpunkt</source>
        <translation>Quadrat am Ankerpunkt</translation>
    </message>
    <message>
        <source>Kreis</source>
        <translation>Kreis</translation>
    </message>
    <message>
        <source>Kreis um den Ankerpunkt</source>
        <translation>Kreis um den Ankerpunkt</translation>
    </message>
    <message>
        <source>Umrandet</source>
        <translation>Umrandet</translation>
    </message>
    <message>
        <source>Gefüllt</source>
        <translation>Gefüllt</translation>
    </message>
    <message>
        <source>Freihand</source>
        <translation>Freihand</translation>
    </message>
    <message>
        <source> Stiftart </source>
        <translation> Stiftart </translation>
    </message>
    <message>
        <source>Runde Spitze</source>
        <translation>Runde Spitze</translation>
    </message>
    <message>
        <source>Feder \</source>
        <translation>Feder \</translation>
    </message>
    <message>
        <source>Feder /</source>
        <translation>Feder /</translation>
    </message>
    <message>
        <source>Feder waagerecht</source>
        <translation>Feder waagerecht</translation>
    </message>
    <message>
        <source>Feder senkrecht</source>
        <translation>Feder senkrecht</translation>
    </message>
    <message>
        <source>Spitzenbreite </source>
        <translation>Spitzenbreite </translation>
    </message>
    <message>
        <source>Spray</source>
        <translation>Spray</translation>
    </message>
    <message>
        <source>Pinselart</source>
        <translation>Pinselart</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Airbrush</translation>
    </message>
    <message>
        <source>Pinsel</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Pinsel (Sättigung)</source>
        <translation>Pinsel (Sättigung)</translation>
    </message>
    <message>
        <source>Weichzeichnen</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>Schärfen</source>
        <translation>Schärfen</translation>
    </message>
    <message>
        <source>Grösse </source>
        <translation>Grösse </translation>
    </message>
    <message>
        <source>Druck </source>
        <translation>Druck </translation>
    </message>
    <message>
        <source>Verbundener Pinsel</source>
        <translation>Verbundener Pinsel</translation>
    </message>
    <message>
        <source>Weichz. + Überlagern</source>
        <translation>Weichz. + Überlagern</translation>
    </message>
    <message>
        <source>Mondrian</source>
        <translation>Mondrian</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Quadratisch</source>
        <translation>Quadratisch</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Be-Pop</source>
        <translation>Be-Pop</translation>
    </message>
    <message>
        <source>Boogie-Woogie</source>
        <translation>Boogie-Woogie</translation>
    </message>
    <message>
        <source>Boogie-Rocks</source>
        <translation>Boogie-Rocks</translation>
    </message>
    <message>
        <source>Boogie-Blocks</source>
        <translation>Boogie-Blocks</translation>
    </message>
    <message>
        <source>Boogie-Soft-Ice</source>
        <translation>Boogie-Soft-Ice</translation>
    </message>
    <message>
        <source>Hintergrundfarbe</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Zufall</source>
        <translation>Zufall</translation>
    </message>
    <message>
        <source>Vordergrundfarbe</source>
        <translation>Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Rahmenfarbe</source>
        <translation>Rahmenfarbe</translation>
    </message>
    <message>
        <source>Weiss</source>
        <translation>Weiss</translation>
    </message>
    <message>
        <source>Rot</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Grün</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blau</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Gelb</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Violett</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>Haupt-Knotenfarben</source>
        <translation>Haupt-Knotenfarben</translation>
    </message>
    <message>
        <source>H-Splits</source>
        <translation>H-Splits</translation>
    </message>
    <message>
        <source>V-Splits</source>
        <translation>V-Splits</translation>
    </message>
    <message>
        <source>Randabstand</source>
        <translation>Randabstand</translation>
    </message>
    <message>
        <source>Horizontal symmetrisch</source>
        <translation>Horizontal symmetrisch</translation>
    </message>
    <message>
        <source>Vertikal symmetrisch</source>
        <translation>Vertikal symmetrisch</translation>
    </message>
    <message>
        <source>Unterteilung verwenden</source>
        <translation>Unterteilung verwenden</translation>
    </message>
    <message>
        <source>Unterteilung H x</source>
        <translation>Unterteilung H x</translation>
    </message>
    <message>
        <source>Unterteilung V x</source>
        <translation>Unterteilung V x</translation>
    </message>
    <message>
        <source>Unterteilung harmonisch</source>
        <translation>Unterteilung harmonisch</translation>
    </message>
    <message>
        <source>Alle Rahmen zeichnen</source>
        <translation>Alle Rahmen zeichnen</translation>
    </message>
    <message>
        <source>Kaleidoskop</source>
        <translation>Kaleidoskop</translation>
    </message>
    <message>
        <source> 4 Farben </source>
        <translation> 4 Farben </translation>
    </message>
    <message>
        <source>Boogies?</source>
        <translation>Boogies?</translation>
    </message>
    <message>
        <source>Farbtiefe reduzieren</source>
        <translation>Farbtiefe reduzieren</translation>
    </message>
    <message>
        <source>Chaos</source>
        <translation>Chaos</translation>
    </message>
    <message>
        <source>Farbe 1</source>
        <translation>Farbe 1</translation>
    </message>
    <message>
        <source>Farbe 2</source>
        <translation>Farbe 2</translation>
    </message>
    <message>
        <source>Farbe 3</source>
        <translation>Farbe 3</translation>
    </message>
    <message>
        <source>Farbe 4</source>
        <translation>Farbe 4</translation>
    </message>
    <message>
        <source>Grund im Superformat</source>
        <translation>Grund im Superformat</translation>
    </message>
    <message>
        <source>Repaint letztes Set</source>
        <translation>Repaint letztes Set</translation>
    </message>
    <message>
        <source>Plasma</source>
        <translation>Plasma</translation>
    </message>
    <message>
        <source>Körnung</source>
        <translation>Körnung</translation>
    </message>
    <message>
        <source>Skalierung</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Horizontal einhüllen</source>
        <translation>Horizontal einhüllen</translation>
    </message>
    <message>
        <source>Vertikal einhüllen</source>
        <translation>Vertikal einhüllen</translation>
    </message>
    <message>
        <source>Gelad. Palette verwenden</source>
        <translation>Gelad. Palette verwenden</translation>
    </message>
    <message>
        <source>Rotieren</source>
        <translation>Rotieren</translation>
    </message>
    <message>
        <source>Loch</source>
        <translation>Loch</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Textraster</source>
        <translation>Textraster</translation>
    </message>
    <message>
        <source>Teilung</source>
        <translation>Teilung</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mix</translation>
    </message>
    <message>
        <source>Buchstaben</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>Wörter</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>Rahmen zeichnen</source>
        <translation>Rahmen zeichnen</translation>
    </message>
    <message>
        <source>Mindestschrift +8</source>
        <translation>Mindestschrift +8</translation>
    </message>
    <message>
        <source>Kathedralen-Fenster</source>
        <translation>Kathedralen-Fenster</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Bleiglas</source>
        <translation>Bleiglas</translation>
    </message>
    <message>
        <source>H.-/V.symmetrisch</source>
        <translation>H.-/V.symmetrisch</translation>
    </message>
    <message>
        <source>Tiffany-Rahmen</source>
        <translation>Tiffany-Rahmen</translation>
    </message>
    <message>
        <source>Sonnenringe</source>
        <translation>Sonnenringe</translation>
    </message>
    <message>
        <source>Rosette</source>
        <translation>Rosette</translation>
    </message>
    <message>
        <source>Blume</source>
        <translation>Blume</translation>
    </message>
    <message>
        <source>Pflanzen</source>
        <translation>Pflanzen</translation>
    </message>
    <message>
        <source>Kristalle</source>
        <translation>Kristalle</translation>
    </message>
    <message>
        <source> Formen </source>
        <translation> Formen </translation>
    </message>
    <message>
        <source>Ohne</source>
        <translation>Ohne</translation>
    </message>
    <message>
        <source>Sonne</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Rahmendicke</source>
        <translation>Rahmendicke</translation>
    </message>
    <message>
        <source>Grössen-Korrektur %</source>
        <translation>Grössen-Korrektur %</translation>
    </message>
    <message>
        <source>Neue Werte</source>
        <translation>Neue Werte</translation>
    </message>
    <message>
        <source>Fotomosaik</source>
        <translation>Fotomosaik</translation>
    </message>
    <message>
        <source>H. symmetrisch</source>
        <translation>H. symmetrisch</translation>
    </message>
    <message>
        <source>V. symmetrisch</source>
        <translation>V. symmetrisch</translation>
    </message>
    <message>
        <source> Quelle </source>
        <translation> Quelle </translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Dateiverzeichnis</source>
        <translation>Dateiverzeichnis</translation>
    </message>
    <message>
        <source>Dupl.</source>
        <translation>Dupl.</translation>
    </message>
    <message>
        <source>Unterverzeichnisse</source>
        <translation>Unterverzeichnisse</translation>
    </message>
    <message>
        <source>Bild-Mix</source>
        <translation>Bild-Mix</translation>
    </message>
    <message>
        <source>Kleine Bilder zulassen</source>
        <translation>Kleine Bilder zulassen</translation>
    </message>
    <message>
        <source>Kleine Bilder kacheln</source>
        <translation>Kleine Bilder kacheln</translation>
    </message>
    <message>
        <source>Bilder verkleinern</source>
        <translation>Bilder verkleinern</translation>
    </message>
    <message>
        <source>Bilder zentrieren</source>
        <translation>Bilder zentrieren</translation>
    </message>
    <message>
        <source>Kolorieren</source>
        <translation>Kolorieren</translation>
    </message>
    <message>
        <source>Farbton</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Saturationstart</source>
        <translation>Saturationstart</translation>
    </message>
    <message>
        <source>Saturationrange</source>
        <translation>Saturationrange</translation>
    </message>
    <message>
        <source>Graustufen</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Alle Rahmen füllen</source>
        <translation>Alle Rahmen füllen</translation>
    </message>
    <message>
        <source>Nur freie Rahmen füllen</source>
        <translation>Nur freie Rahmen füllen</translation>
    </message>
    <message>
        <source>Dateinamen anzeigen</source>
        <translation>Dateinamen anzeigen</translation>
    </message>
    <message>
        <source>Timer (s)</source>
        <translation>Timer (s)</translation>
    </message>
    <message>
        <source>Opt.</source>
        <translation>Opt.</translation>
    </message>
    <message>
        <source>Blur kleine</source>
        <translation>Blur kleine</translation>
    </message>
    <message>
        <source>Blur große</source>
        <translation>Blur große</translation>
    </message>
    <message>
        <source>Blur große (stark)</source>
        <translation>Blur große (stark)</translation>
    </message>
    <message>
        <source>Blur zufällig</source>
        <translation>Blur zufällig</translation>
    </message>
    <message>
        <source>Blur alle</source>
        <translation>Blur alle</translation>
    </message>
    <message>
        <source>Kolorieren zufällig</source>
        <translation>Kolorieren zufällig</translation>
    </message>
    <message>
        <source>Graustufen zufällig</source>
        <translation>Graustufen zufällig</translation>
    </message>
    <message>
        <source>Nur Randbilder</source>
        <translation>Nur Randbilder</translation>
    </message>
    <message>
        <source>Nur Innenbilder</source>
        <translation>Nur Innenbilder</translation>
    </message>
    <message>
        <source>Foto-Würfel</source>
        <translation>Foto-Würfel</translation>
    </message>
    <message>
        <source>Drehung</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Blick von oben</source>
        <translation>Blick von oben</translation>
    </message>
    <message>
        <source>Licht</source>
        <translation>Licht</translation>
    </message>
    <message>
        <source>von links</source>
        <translation>von links</translation>
    </message>
    <message>
        <source>von rechts</source>
        <translation>von rechts</translation>
    </message>
</context>
<context>
    <name>Decode</name>
    <message>
        <source>Das Bild ist %1 x %2 Pixel groß, mehr als %3 Pixel an einer Seite.</source>
        <translation>Das Bild ist %1 x %2 Pixel groß, mehr als %3 Pixel an einer Seite.</translation>
    </message>
    <message>
        <source>Die Datei gibt %1 x %2 Pixel an, mehr als ihre Daten fassen können.</source>
        <translation>Die Datei gibt %1 x %2 Pixel an, mehr als ihre Daten fassen können.</translation>
    </message>
    <message>
        <source>Die Datei ist kein Bild im Format BMP, GIF, JPEG oder PNG.</source>
        <translation>Die Datei ist kein Bild im Format BMP, GIF, JPEG oder PNG.</translation>
    </message>
    <message>
        <source>Die Datei gibt die Größe %1 x %2 Pixel an.</source>
        <translation>Die Datei gibt die Größe %1 x %2 Pixel an.</translation>
    </message>
</context>
<context>
    <name>Fixings</name>
    <message>
        <source>fixiert</source>
        <translation>fixiert</translation>
    </message>
    <message>
        <source>nicht fixiert</source>
        <translation>nicht fixiert</translation>
    </message>
</context>
<context>
    <name>Geometry</name>
    <message>
        <source>Die Größe %1 x %2 ist nicht möglich: jede Seite muss zwischen 1 und %3 Pixeln liegen.</source>
        <translation>Die Größe %1 x %2 ist nicht möglich: jede Seite muss zwischen 1 und %3 Pixeln liegen.</translation>
    </message>
    <message>
        <source>Zum Freistellen ziehen Sie zuerst eine Auswahl auf.</source>
        <translation>Zum Freistellen ziehen Sie zuerst eine Auswahl auf.</translation>
    </message>
</context>
<context>
    <name>GrafDialog</name>
    <message>
        <source>Paint &lt;F5&gt;</source>
        <translation>Paint &lt;F5&gt;</translation>
    </message>
    <message>
        <source>STO&amp;PP !</source>
        <translation>STO&amp;PP !</translation>
    </message>
    <message>
        <source>Stopped - Wait!</source>
        <translation>Stopped - Wait!</translation>
    </message>
</context>
<context>
    <name>Groups</name>
    <message>
        <source>Rechtecke, Linien</source>
        <translation>Rechtecke, Linien</translation>
    </message>
    <message>
        <source>Foto &amp;&amp; Künstler</source>
        <translation>Foto &amp;&amp; Künstler</translation>
    </message>
    <message>
        <source>Runde Graphen</source>
        <translation>Runde Graphen</translation>
    </message>
    <message>
        <source>pOp - Art </source>
        <translation>pOp - Art </translation>
    </message>
    <message>
        <source>Gradienten</source>
        <translation>Gradienten</translation>
    </message>
    <message>
        <source>Balken &amp;&amp; Kurven</source>
        <translation>Balken &amp;&amp; Kurven</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Ränder</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>Formen</source>
        <translation>Formen</translation>
    </message>
    <message>
        <source>Papiermuster</source>
        <translation>Papiermuster</translation>
    </message>
</context>
<context>
    <name>LoadImage</name>
    <message>
        <source>Die Datei %1 gibt es nicht.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Bild automatisch einpassen?</source>
        <translation>Bild automatisch einpassen?</translation>
    </message>
    <message>
        <source>Fehlerhaftes Bild - Siehe Statusbar!</source>
        <translation>Fehlerhaftes Bild - Siehe Statusbar!</translation>
    </message>
    <message>
        <source>Fehlerhaftes Bild</source>
        <translation>Fehlerhaftes Bild</translation>
    </message>
</context>
<context>
    <name>Mondrian</name>
    <message>
        <source>0 - sizes not allowed</source>
        <translation>0 - sizes not allowed</translation>
    </message>
</context>
<context>
    <name>PaintDriver</name>
    <message>
        <source>Die Ausgabe wurde angehalten! Bitte bestätigen.</source>
        <translation>Die Ausgabe wurde angehalten! Bitte bestätigen.</translation>
    </message>
    <message>
        <source>Sie haben keine Grafikoption ausgewählt!</source>
        <translation>Sie haben keine Grafikoption ausgewählt!</translation>
    </message>
    <message>
        <source>Eine Trennlinie malt nichts.</source>
        <translation>Eine Trennlinie malt nichts.</translation>
    </message>
    <message>
        <source>„%1“ malt noch nichts: sein Maler ist noch nicht eingebaut.</source>
        <translation>„%1“ malt noch nichts: sein Maler ist noch nicht eingebaut.</translation>
    </message>
    <message>
        <source>Startwert %1</source>
        <translation>Startwert %1</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>Palette file error or not there</source>
        <translation>Palette file error or not there</translation>
    </message>
</context>
<context>
    <name>Passepartout</name>
    <message>
        <source>Falsches Dateiformat für Passepartouts.</source>
        <translation>Falsches Dateiformat für Passepartouts.</translation>
    </message>
    <message>
        <source>Die Passepartout-Datei ist beschädigt (%1). Sie bleibt, wie sie ist.</source>
        <translation>Die Passepartout-Datei ist beschädigt (%1). Sie bleibt, wie sie ist.</translation>
    </message>
    <message>
        <source>die Anzahl fehlt</source>
        <translation>die Anzahl fehlt</translation>
    </message>
    <message>
        <source>%1 Sets angegeben</source>
        <translation>%1 Sets angegeben</translation>
    </message>
    <message>
        <source>Set %1 ohne Namen</source>
        <translation>Set %1 ohne Namen</translation>
    </message>
    <message>
        <source>die Datei endet in Set %1</source>
        <translation>die Datei endet in Set %1</translation>
    </message>
    <message>
        <source>%1 Bytes nach dem letzten Set</source>
        <translation>%1 Bytes nach dem letzten Set</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gelesen werden: %2</source>
        <translation>Die Datei %1 kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>PicMosaik</name>
    <message>
        <source>Ungültiges Bild </source>
        <translation>Ungültiges Bild </translation>
    </message>
    <message>
        <source>Verwenden Sie bitte den [...]-Befehl.</source>
        <translation>Verwenden Sie bitte den [...]-Befehl.</translation>
    </message>
    <message>
        <source>Wählen Sie bitte zuerst ein Bild aus!</source>
        <translation>Wählen Sie bitte zuerst ein Bild aus!</translation>
    </message>
    <message>
        <source>Stellen Sie bitte zuerst ein Bildverzeichnis ein!</source>
        <translation>Stellen Sie bitte zuerst ein Bildverzeichnis ein!</translation>
    </message>
    <message>
        <source>Kann keine gültigen Bilder finden in </source>
        <translation>Kann keine gültigen Bilder finden in </translation>
    </message>
    <message>
        <source> pictures</source>
        <translation> pictures</translation>
    </message>
    <message>
        <source>Suche Bilder in </source>
        <translation>Suche Bilder in </translation>
    </message>
    <message>
        <source>Anzahl Bilder </source>
        <translation>Anzahl Bilder </translation>
    </message>
    <message>
        <source> in Verzeichnisauswahl kleiner als Anzahl Rahmen </source>
        <translation> in Verzeichnisauswahl kleiner als Anzahl Rahmen </translation>
    </message>
    <message>
        <source>. Reduzieren Sie die Splitanzahl oder verwenden Sie die Option [X] Duplikate zulassen!</source>
        <translation>. Reduzieren Sie die Splitanzahl oder verwenden Sie die Option [X] Duplikate zulassen!</translation>
    </message>
    <message>
        <source>Zu wenig Bilder in </source>
        <translation>Zu wenig Bilder in </translation>
    </message>
    <message>
        <source> um ohne Duplikate zu arbeiten. Reduzieren Sie bitte die Anzahl der Splits.</source>
        <translation> um ohne Duplikate zu arbeiten. Reduzieren Sie bitte die Anzahl der Splits.</translation>
    </message>
    <message>
        <source>Die Bilder in </source>
        <translation>Die Bilder in </translation>
    </message>
    <message>
        <source> sind zu klein für den aktuellen Ausschnitt! Verwenden Sie die Option: Kleine Bilder zulassen.</source>
        <translation> sind zu klein für den aktuellen Ausschnitt! Verwenden Sie die Option: Kleine Bilder zulassen.</translation>
    </message>
    <message>
        <source>Das geladene Bild ist zu klein für den aktuellen Ausschnitt! Verwenden Sie die Option: Kleine Bilder zulassen.</source>
        <translation>Das geladene Bild ist zu klein für den aktuellen Ausschnitt! Verwenden Sie die Option: Kleine Bilder zulassen.</translation>
    </message>
    <message>
        <source>Kein Dateiname für </source>
        <translation>Kein Dateiname für </translation>
    </message>
    <message>
        <source> von </source>
        <translation> von </translation>
    </message>
    <message>
        <source>Max. Splitgrößen B/H = </source>
        <translation>Max. Splitgrößen B/H = </translation>
    </message>
    <message>
        <source> --- Max. Treffer-Bildgröße B/H = </source>
        <translation> --- Max. Treffer-Bildgröße B/H = </translation>
    </message>
    <message>
        <source>Diese Aufteilung ergibt sehr große Einzelbildgrößen.</source>
        <translation>Diese Aufteilung ergibt sehr große Einzelbildgrößen.</translation>
    </message>
    <message>
        <source>Splitvorschlag: </source>
        <translation>Splitvorschlag: </translation>
    </message>
    <message>
        <source>Wollen Sie abbrechen?</source>
        <translation>Wollen Sie abbrechen?</translation>
    </message>
    <message>
        <source>Diese Bildgröße erfordert einige Berechnungszeit. Sorgen Sie bitte unbedingt dafür, daß die Quellbilder groß genug für dieses Mosaik sind, oder aktivieren Sie die Option [] Kleine Bilder zulassen!</source>
        <translation>Diese Bildgröße erfordert einige Berechnungszeit. Sorgen Sie bitte unbedingt dafür, daß die Quellbilder groß genug für dieses Mosaik sind, oder aktivieren Sie die Option [] Kleine Bilder zulassen!</translation>
    </message>
</context>
<context>
    <name>PictureFormats</name>
    <message>
        <source>Freies Format ...</source>
        <translation>Freies Format ...</translation>
    </message>
    <message>
        <source>256 x 256</source>
        <translation>256 x 256</translation>
    </message>
    <message>
        <source>512 x 512</source>
        <translation>512 x 512</translation>
    </message>
    <message>
        <source>640 x 640</source>
        <translation>640 x 640</translation>
    </message>
    <message>
        <source>712 x 712</source>
        <translation>712 x 712</translation>
    </message>
    <message>
        <source>768 x 768</source>
        <translation>768 x 768</translation>
    </message>
    <message>
        <source>896 x 896</source>
        <translation>896 x 896</translation>
    </message>
    <message>
        <source>DIN-A4 Hochformat (504 x 712)</source>
        <translation>DIN-A4 Hochformat (504 x 712)</translation>
    </message>
    <message>
        <source>DIN-A4 Querformat (712 x 504)</source>
        <translation>DIN-A4 Querformat (712 x 504)</translation>
    </message>
    <message>
        <source>20 x 30 Hochformat (475 x 712)</source>
        <translation>20 x 30 Hochformat (475 x 712)</translation>
    </message>
    <message>
        <source>30 x 20 Querformat (712 x 475)</source>
        <translation>30 x 20 Querformat (712 x 475)</translation>
    </message>
    <message>
        <source>24 x 30 Hochformat (570 x 712)</source>
        <translation>24 x 30 Hochformat (570 x 712)</translation>
    </message>
    <message>
        <source>30 x 24 Querformat (712 x 570)</source>
        <translation>30 x 24 Querformat (712 x 570)</translation>
    </message>
</context>
<context>
    <name>Plasma</name>
    <message>
        <source>Tunnel angehalten</source>
        <translation>Tunnel angehalten</translation>
    </message>
    <message>
        <source>Tunnel läuft</source>
        <translation>Tunnel läuft</translation>
    </message>
    <message>
        <source>Blit Error - Tunnel</source>
        <translation>Blit Error - Tunnel</translation>
    </message>
</context>
<context>
    <name>Presentation</name>
    <message>
        <source>Die Datei endet vor Zeile %1</source>
        <translation>Die Datei endet vor Zeile %1</translation>
    </message>
    <message>
        <source>Die Zahl %1 in Zeile %2 ist zu groß</source>
        <translation>Die Zahl %1 in Zeile %2 ist zu groß</translation>
    </message>
    <message>
        <source>Die Datei %1 lässt sich nicht öffnen</source>
        <translation>Die Datei %1 lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>Falsches Dateiformat!</source>
        <translation>Falsches Dateiformat!</translation>
    </message>
    <message>
        <source>Der Bildpfad %1 ist auf diesem PC nicht verfügbar. Stellen Sie bitte einen korrekten Pfad mit dem Befehl [...] ein.</source>
        <translation>Der Bildpfad %1 ist auf diesem PC nicht verfügbar. Stellen Sie bitte einen korrekten Pfad mit dem Befehl [...] ein.</translation>
    </message>
    <message>
        <source>Die Präsentation wurde mit der Bildschirmauflösung %1/%2 erstellt. Eine korrekte Darstellung mit der aktuellen Bildschirmauflösung von %3/%4 ist deshalb nicht möglich!</source>
        <translation>Die Präsentation wurde mit der Bildschirmauflösung %1/%2 erstellt. Eine korrekte Darstellung mit der aktuellen Bildschirmauflösung von %3/%4 ist deshalb nicht möglich!</translation>
    </message>
    <message>
        <source>Bildpräsentation laden</source>
        <translation>Bildpräsentation laden</translation>
    </message>
    <message>
        <source>Erzeugen Sie bitte zuerst mit dem Befehl [Paint &lt;F5&gt;] eine Bildpräsentation!</source>
        <translation>Erzeugen Sie bitte zuerst mit dem Befehl [Paint &lt;F5&gt;] eine Bildpräsentation!</translation>
    </message>
    <message>
        <source>Bildpräsentation speichern</source>
        <translation>Bildpräsentation speichern</translation>
    </message>
    <message>
        <source>Starten Sie die geladene Präsentation mit dem Befehlsknopf [Repaint letztes Set]. Verwenden Sie nicht den Befehl [Paint &lt;F5&gt;]!</source>
        <translation>Starten Sie die geladene Präsentation mit dem Befehlsknopf [Repaint letztes Set]. Verwenden Sie nicht den Befehl [Paint &lt;F5&gt;]!</translation>
    </message>
</context>
<context>
    <name>Recipe</name>
    <message>
        <source>Keine Malanweisung: %1</source>
        <translation>Keine Malanweisung: %1</translation>
    </message>
    <message>
        <source>Die Malanweisung darf %1 nicht enthalten: %2</source>
        <translation>Die Malanweisung darf %1 nicht enthalten: %2</translation>
    </message>
</context>
<context>
    <name>Rescue</name>
    <message>
        <source>Nach dem letzten Beenden von Tarvelle-Forge gibt es noch ein wiederherstellbares Undobild. Dies ist die letzte Chance das Bild zu retten. Soll das Bild gerettet werden?</source>
        <translation>Nach dem letzten Beenden von Tarvelle-Forge gibt es noch ein wiederherstellbares Undobild. Dies ist die letzte Chance das Bild zu retten. Soll das Bild gerettet werden?</translation>
    </message>
    <message>
        <source>Der Pfad/Name des geretteten Bildes ist %1</source>
        <translation>Der Pfad/Name des geretteten Bildes ist %1</translation>
    </message>
    <message>
        <source>Nach dem letzten Beenden von Tarvelle-Forge gibt es noch eine wiederherstellbare Undobildmaske. Dies ist die letzte Chance das Bild zu retten. Soll die Bildmaske gerettet werden?</source>
        <translation>Nach dem letzten Beenden von Tarvelle-Forge gibt es noch eine wiederherstellbare Undobildmaske. Dies ist die letzte Chance das Bild zu retten. Soll die Bildmaske gerettet werden?</translation>
    </message>
    <message>
        <source>Der Pfad/Name des geretteten Bildmaske ist %1</source>
        <translation>Der Pfad/Name des geretteten Bildmaske ist %1</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>Bilder werden als .png, .jpg oder .bmp gespeichert: %1</source>
        <translation>Bilder werden als .png, .jpg oder .bmp gespeichert: %1</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden: den Ordner %2 gibt es nicht.</source>
        <translation>Die Datei %1 kann nicht gespeichert werden: den Ordner %2 gibt es nicht.</translation>
    </message>
    <message>
        <source>Die Datei %1 ist schreibgeschützt und bleibt, wie sie war.</source>
        <translation>Die Datei %1 ist schreibgeschützt und bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden: in den Ordner %2 darf nicht geschrieben werden.</source>
        <translation>Die Datei %1 kann nicht gespeichert werden: in den Ordner %2 darf nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden: der Datenträger ist voll. Eine vorhandene Datei bleibt, wie sie war.</source>
        <translation>Die Datei %1 kann nicht gespeichert werden: der Datenträger ist voll. Eine vorhandene Datei bleibt, wie sie war.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden (%2). Eine vorhandene Datei bleibt, wie sie war.</source>
        <translation>Die Datei %1 kann nicht gespeichert werden (%2). Eine vorhandene Datei bleibt, wie sie war.</translation>
    </message>
</context>
<context>
    <name>SingleInstance</name>
    <message>
        <source>Sorry</source>
        <translation>Sorry</translation>
    </message>
    <message>
        <source>Tarvelle-Forge is running soon!</source>
        <translation>Tarvelle-Forge is running soon!</translation>
    </message>
</context>
<context>
    <name>Superformat</name>
    <message>
        <source>0 - sizes not allowed</source>
        <translation>0 - sizes not allowed</translation>
    </message>
    <message>
        <source>Superformat: %1 x %2 px = %3 x %4 cm bei %5 DPI, %6 MB</source>
        <translation>Superformat: %1 x %2 px = %3 x %4 cm bei %5 DPI, %6 MB</translation>
    </message>
    <message>
        <source>Memory problem creating Superimage!</source>
        <translation>Memory problem creating Superimage!</translation>
    </message>
    <message>
        <source>Superformat %1 x %2 wird angelegt ...</source>
        <translation>Superformat %1 x %2 wird angelegt ...</translation>
    </message>
</context>
<context>
    <name>SystemPalettes</name>
    <message>
        <source>Regenbogen</source>
        <translation>Regenbogen</translation>
    </message>
    <message>
        <source>Pastell</source>
        <translation>Pastell</translation>
    </message>
    <message>
        <source>Doppelter Regenbogen</source>
        <translation>Doppelter Regenbogen</translation>
    </message>
    <message>
        <source>Farbbänder</source>
        <translation>Farbbänder</translation>
    </message>
    <message>
        <source>Graustufen</source>
        <translation>Graustufen</translation>
    </message>
    <message>
        <source>Graue Wellen</source>
        <translation>Graue Wellen</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Cyanotypie</source>
        <translation>Cyanotypie</translation>
    </message>
    <message>
        <source>Feuer</source>
        <translation>Feuer</translation>
    </message>
    <message>
        <source>Lava</source>
        <translation>Lava</translation>
    </message>
    <message>
        <source>Eis</source>
        <translation>Eis</translation>
    </message>
    <message>
        <source>Gletscher</source>
        <translation>Gletscher</translation>
    </message>
    <message>
        <source>Meer</source>
        <translation>Meer</translation>
    </message>
    <message>
        <source>Tiefsee</source>
        <translation>Tiefsee</translation>
    </message>
    <message>
        <source>Erde</source>
        <translation>Erde</translation>
    </message>
    <message>
        <source>Wüste</source>
        <translation>Wüste</translation>
    </message>
    <message>
        <source>Wald</source>
        <translation>Wald</translation>
    </message>
    <message>
        <source>Herbst</source>
        <translation>Herbst</translation>
    </message>
    <message>
        <source>Frühling</source>
        <translation>Frühling</translation>
    </message>
    <message>
        <source>Sonnenuntergang</source>
        <translation>Sonnenuntergang</translation>
    </message>
    <message>
        <source>Nordlicht</source>
        <translation>Nordlicht</translation>
    </message>
    <message>
        <source>Nacht</source>
        <translation>Nacht</translation>
    </message>
    <message>
        <source>Wärmebild</source>
        <translation>Wärmebild</translation>
    </message>
    <message>
        <source>Kupfer</source>
        <translation>Kupfer</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Silber</source>
        <translation>Silber</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>Bonbon</source>
        <translation>Bonbon</translation>
    </message>
    <message>
        <source>Blau und Orange</source>
        <translation>Blau und Orange</translation>
    </message>
    <message>
        <source>Rot und Cyan</source>
        <translation>Rot und Cyan</translation>
    </message>
    <message>
        <source>Violett und Gelb</source>
        <translation>Violett und Gelb</translation>
    </message>
    <message>
        <source>Grün und Magenta</source>
        <translation>Grün und Magenta</translation>
    </message>
    <message>
        <source>Psychedelisch</source>
        <translation>Psychedelisch</translation>
    </message>
    <message>
        <source>Interferenz</source>
        <translation>Interferenz</translation>
    </message>
</context>
<context>
    <name>TempFiles</name>
    <message>
        <source>Das neue Verzeichnis %1 wurde erstellt.</source>
        <translation>Das neue Verzeichnis %1 wurde erstellt.</translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Klicken Sie in das Bild: dort steht der Text.</source>
        <translation>Klicken Sie in das Bild: dort steht der Text.</translation>
    </message>
</context>
<context>
    <name>TextFile</name>
    <message>
        <source>Die Textdatei %1 gibt es nicht.</source>
        <translation>Die Textdatei %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>Die Textdatei %1 ist zu groß (höchstens 1 MB).</source>
        <translation>Die Textdatei %1 ist zu groß (höchstens 1 MB).</translation>
    </message>
    <message>
        <source>Die Textdatei %1 kann nicht gelesen werden: %2</source>
        <translation>Die Textdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>&amp;Ausschneiden</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Kopieren</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Einfügen...</source>
        <translation>&amp;Einfügen...</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Alles aus&amp;wählen</source>
        <translation>Alles aus&amp;wählen</translation>
    </message>
    <message>
        <source>Auswahl auf&amp;heben</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>Auswahl in Datei &amp;speichern...</source>
        <translation>Auswahl in Datei &amp;speichern...</translation>
    </message>
    <message>
        <source>&amp;1 Links oben</source>
        <translation>&amp;1 Links oben</translation>
    </message>
    <message>
        <source>&amp;2 Rechts oben</source>
        <translation>&amp;2 Rechts oben</translation>
    </message>
    <message>
        <source>&amp;3 Zentrieren</source>
        <translation>&amp;3 Zentrieren</translation>
    </message>
    <message>
        <source>&amp;4 Links unten</source>
        <translation>&amp;4 Links unten</translation>
    </message>
    <message>
        <source>&amp;5 Rechts unten</source>
        <translation>&amp;5 Rechts unten</translation>
    </message>
    <message>
        <source>Die Zwischenablage enthält kein Bild.</source>
        <translation>Die Zwischenablage enthält kein Bild.</translation>
    </message>
    <message>
        <source>Auswahl</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Ein Rechteck aus dem Bild ausschneiden</source>
        <translation>Ein Rechteck aus dem Bild ausschneiden</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Eine Ellipse aus dem Bild ausschneiden (Umschalt: ein Kreis)</source>
        <translation>Eine Ellipse aus dem Bild ausschneiden (Umschalt: ein Kreis)</translation>
    </message>
    <message>
        <source>Füllen</source>
        <translation>Füllen</translation>
    </message>
    <message>
        <source>Eine Fläche gleicher Farbe füllen</source>
        <translation>Eine Fläche gleicher Farbe füllen</translation>
    </message>
    <message>
        <source>Pipette</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Farbe aufnehmen: links Vordergrund, rechts Hintergrund</source>
        <translation>Farbe aufnehmen: links Vordergrund, rechts Hintergrund</translation>
    </message>
    <message>
        <source>Linie</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Eine gerade Linie ziehen</source>
        <translation>Eine gerade Linie ziehen</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>Rechteck, Kreis oder Ellipse aufziehen</source>
        <translation>Rechteck, Kreis oder Ellipse aufziehen</translation>
    </message>
    <message>
        <source>Stift</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Freihand zeichnen</source>
        <translation>Freihand zeichnen</translation>
    </message>
    <message>
        <source>Pinsel</source>
        <translation>Pinsel</translation>
    </message>
    <message>
        <source>Airbrush, Pinsel, Weichzeichnen und Schärfen von Hand</source>
        <translation>Airbrush, Pinsel, Weichzeichnen und Schärfen von Hand</translation>
    </message>
    <message>
        <source>Textposition</source>
        <translation>Textposition</translation>
    </message>
    <message>
        <source>Ein Klick setzt die Position des Textes und malt ihn</source>
        <translation>Ein Klick setzt die Position des Textes und malt ihn</translation>
    </message>
</context>
<context>
    <name>frmPassepGen</name>
    <message>
        <source>&lt;-- Neuer Eintrag --&gt;</source>
        <translation>&lt;-- Neuer Eintrag --&gt;</translation>
    </message>
    <message>
        <source>Geben Sie bitte einen Namen für das neue Set ein.</source>
        <translation>Geben Sie bitte einen Namen für das neue Set ein.</translation>
    </message>
    <message>
        <source>Geben Sie bitte einen Namen für das Set ein.</source>
        <translation>Geben Sie bitte einen Namen für das Set ein.</translation>
    </message>
    <message>
        <source>Name existiert schon!</source>
        <translation>Name existiert schon!</translation>
    </message>
    <message>
        <source>Der Name kann so nicht gespeichert werden: erlaubt sind Buchstaben, Ziffern und Zeichen westeuropäischer Sprachen.</source>
        <translation>Der Name kann so nicht gespeichert werden: erlaubt sind Buchstaben, Ziffern und Zeichen westeuropäischer Sprachen.</translation>
    </message>
    <message>
        <source>Sie haben keine Werte eingegeben!</source>
        <translation>Sie haben keine Werte eingegeben!</translation>
    </message>
    <message>
        <source>Die Datei %1 enthält keine lesbaren Passepartouts. Soll sie durch die Sets dieses Fensters ersetzt werden?</source>
        <translation>Die Datei %1 enthält keine lesbaren Passepartouts. Soll sie durch die Sets dieses Fensters ersetzt werden?</translation>
    </message>
</context>
<context>
    <name>tf::ui::AnimationDialog</name>
    <message>
        <source>Animation speichern</source>
        <translation>Animation speichern</translation>
    </message>
    <message>
        <source>endlos</source>
        <translation>endlos</translation>
    </message>
    <message>
        <source>Bilder</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Bilder je Sekunde</source>
        <translation>Bilder je Sekunde</translation>
    </message>
    <message>
        <source>Wiederholungen</source>
        <translation>Wiederholungen</translation>
    </message>
</context>
<context>
    <name>tf::ui::BlurizeDialog</name>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tf::ui::ColourDialogDock</name>
    <message>
        <source>Farben</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Vordergrund</source>
        <translation>Vordergrund</translation>
    </message>
    <message>
        <source>Hintergrund</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Rand</source>
        <translation>Rand</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: Textfarbe</source>
        <translation>Doppelklick: Farbe wählen; rechte Maustaste: Textfarbe</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: Texthintergrund</source>
        <translation>Doppelklick: Farbe wählen; rechte Maustaste: Texthintergrund</translation>
    </message>
    <message>
        <source>Doppelklick: Randfarbe wählen</source>
        <translation>Doppelklick: Randfarbe wählen</translation>
    </message>
    <message>
        <source>Vorder- und Hintergrundfarbe tauschen</source>
        <translation>Vorder- und Hintergrundfarbe tauschen</translation>
    </message>
    <message>
        <source>Hintergrundfarbe gleich Vordergrundfarbe</source>
        <translation>Hintergrundfarbe gleich Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Links: Vordergrund, mit Umschalt auch Rand, mit Strg nur Rand; rechts: Hintergrund</source>
        <translation>Links: Vordergrund, mit Umschalt auch Rand, mit Strg nur Rand; rechts: Hintergrund</translation>
    </message>
    <message>
        <source>Zufallsfarben</source>
        <translation>Zufallsfarben</translation>
    </message>
    <message>
        <source>Zufallswerte</source>
        <translation>Zufallswerte</translation>
    </message>
    <message>
        <source>Palette sperren</source>
        <translation>Palette sperren</translation>
    </message>
    <message>
        <source>Farbtabelle</source>
        <translation>Farbtabelle</translation>
    </message>
    <message>
        <source>Z.-Duotones</source>
        <translation>Z.-Duotones</translation>
    </message>
    <message>
        <source>Duo-Tones</source>
        <translation>Duo-Tones</translation>
    </message>
</context>
<context>
    <name>tf::ui::ColouriseDialog</name>
    <message>
        <source>Hue/Sättigung</source>
        <translation>Hue/Sättigung</translation>
    </message>
    <message>
        <source>Auswahl:</source>
        <translation>Auswahl:</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Hue:</source>
        <translation>Hue:</translation>
    </message>
    <message>
        <source>Sättigung:</source>
        <translation>Sättigung:</translation>
    </message>
</context>
<context>
    <name>tf::ui::DiaShowWindow</name>
    <message>
        <source>Dia-Show</source>
        <translation>Dia-Show</translation>
    </message>
    <message>
        <source>Bei Klick auf einen Dateinamen wird er gesichert</source>
        <translation>Bei Klick auf einen Dateinamen wird er gesichert</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>%1 – nicht gesichert: %2</source>
        <translation>%1 – nicht gesichert: %2</translation>
    </message>
    <message>
        <source>%1 – gesichert</source>
        <translation>%1 – gesichert</translation>
    </message>
    <message>
        <source>Weiter</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Nächstes Bild</source>
        <translation>Nächstes Bild</translation>
    </message>
    <message>
        <source>Vorheriges Bild</source>
        <translation>Vorheriges Bild</translation>
    </message>
    <message>
        <source>Vollbild beenden</source>
        <translation>Vollbild beenden</translation>
    </message>
    <message>
        <source>Vollbild</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>tf::ui::FeatDialogDock</name>
    <message>
        <source>Optionen</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Dieser Grafiktyp liest nur die allgemeinen Optionen des Maldialogs.</source>
        <translation>Dieser Grafiktyp liest nur die allgemeinen Optionen des Maldialogs.</translation>
    </message>
    <message>
        <source>Setze Position ...</source>
        <translation>Setze Position ...</translation>
    </message>
    <message>
        <source>Der nächste Klick in das Bild setzt die linke obere Ecke des Textes.</source>
        <translation>Der nächste Klick in das Bild setzt die linke obere Ecke des Textes.</translation>
    </message>
    <message>
        <source>Setze Mitte ...</source>
        <translation>Setze Mitte ...</translation>
    </message>
    <message>
        <source>Der nächste Klick in das Bild setzt die Mitte des Textes.</source>
        <translation>Der nächste Klick in das Bild setzt die Mitte des Textes.</translation>
    </message>
</context>
<context>
    <name>tf::ui::FilterMenu</name>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Hue/Sättigung...</source>
        <translation>Hue/Sättigung...</translation>
    </message>
</context>
<context>
    <name>tf::ui::GammaDialog</name>
    <message>
        <source>Klicken Sie auf das Bild, um die Farbe zu wählen.</source>
        <translation>Klicken Sie auf das Bild, um die Farbe zu wählen.</translation>
    </message>
    <message>
        <source>Kanäle</source>
        <translation>Kanäle</translation>
    </message>
    <message>
        <source>Rot</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>Grün</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>Blau</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>Invertieren</source>
        <translation>Invertieren</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Farbe von</source>
        <translation>Farbe von</translation>
    </message>
    <message>
        <source>Farbe nach/Hintergrund</source>
        <translation>Farbe nach/Hintergrund</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>an</source>
        <translation>an</translation>
    </message>
    <message>
        <source>aus</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>Größe anpassen</source>
        <translation>Größe anpassen</translation>
    </message>
    <message>
        <source>Hintergrund löschen</source>
        <translation>Hintergrund löschen</translation>
    </message>
    <message>
        <source>Vergrößern</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Verkleinern</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Doppelklick: Wert eingeben</source>
        <translation>Doppelklick: Wert eingeben</translation>
    </message>
</context>
<context>
    <name>tf::ui::GetStepsDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Schritte</translation>
    </message>
    <message>
        <source>(%1 bis %2)</source>
        <translation>(%1 bis %2)</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Bitte geben Sie eine Zahl von %1 bis %2 ein.</source>
        <translation>Bitte geben Sie eine Zahl von %1 bis %2 ein.</translation>
    </message>
</context>
<context>
    <name>tf::ui::GrafDialogDock</name>
    <message>
        <source>(keine Vorschau)</source>
        <translation>(keine Vorschau)</translation>
    </message>
    <message>
        <source>Malen &lt;F5&gt;</source>
        <translation>Malen &lt;F5&gt;</translation>
    </message>
    <message>
        <source>Vorheriger Typ der Gruppe, dann malen</source>
        <translation>Vorheriger Typ der Gruppe, dann malen</translation>
    </message>
    <message>
        <source>Nächster Typ der Gruppe, dann malen</source>
        <translation>Nächster Typ der Gruppe, dann malen</translation>
    </message>
    <message>
        <source>Fixieren</source>
        <translation>Fixieren</translation>
    </message>
    <message>
        <source>Restaurieren</source>
        <translation>Restaurieren</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Das Bild in die Zwischenablage kopieren</source>
        <translation>Das Bild in die Zwischenablage kopieren</translation>
    </message>
</context>
<context>
    <name>tf::ui::MainWindow</name>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Neu</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Undo / Redo</source>
        <translation>&amp;Undo / Redo</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Grafikmodus</source>
        <translation>&amp;Grafikmodus</translation>
    </message>
    <message>
        <source>Werkzeugleiste</source>
        <translation>Werkzeugleiste</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Alle Optionen auf ihre Vorgaben setzen</source>
        <translation>Alle Optionen auf ihre Vorgaben setzen</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert.</source>
        <translation>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert.</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie trotzdem beenden?</source>
        <translation>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie trotzdem beenden?</translation>
    </message>
    <message>
        <source>Fixieren  &lt;F4&gt;</source>
        <translation>Fixieren  &lt;F4&gt;</translation>
    </message>
    <message>
        <source>Fixieren</source>
        <translation>Fixieren</translation>
    </message>
    <message>
        <source>Restaurieren</source>
        <translation>Restaurieren</translation>
    </message>
    <message>
        <source>&amp;Optionen ...</source>
        <translation>&amp;Optionen ...</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Malen</source>
        <translation>Malen</translation>
    </message>
    <message>
        <source>Als Befehlszeile kopieren</source>
        <translation>Als Befehlszeile kopieren</translation>
    </message>
    <message>
        <source>Den Befehl, der das letzte Bild wieder malt, in die Zwischenablage kopieren</source>
        <translation>Den Befehl, der das letzte Bild wieder malt, in die Zwischenablage kopieren</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Es wurde noch nichts gemalt.</source>
        <translation>Es wurde noch nichts gemalt.</translation>
    </message>
    <message>
        <source>Befehlszeile in die Zwischenablage kopiert.</source>
        <translation>Befehlszeile in die Zwischenablage kopiert.</translation>
    </message>
    <message>
        <source>&amp;Farben</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>&amp;Palette laden...</source>
        <translation>&amp;Palette laden...</translation>
    </message>
    <message>
        <source>Syste&amp;mpaletten...</source>
        <translation>Syste&amp;mpaletten...</translation>
    </message>
    <message>
        <source>Palette laden</source>
        <translation>Palette laden</translation>
    </message>
    <message>
        <source>JASC-Palette (*.pal)</source>
        <translation>JASC-Palette (*.pal)</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>&amp;Gemaltes löschen</source>
        <translation>&amp;Gemaltes löschen</translation>
    </message>
    <message>
        <source>Was auf der gezeigten Auswahl gemalt wurde, wieder löschen</source>
        <translation>Was auf der gezeigten Auswahl gemalt wurde, wieder löschen</translation>
    </message>
    <message>
        <source>Bild &amp;leeren</source>
        <translation>Bild &amp;leeren</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie das aktuelle Bild verwerfen?</source>
        <translation>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie das aktuelle Bild verwerfen?</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Importieren...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>&amp;Kachel laden...</source>
        <translation>&amp;Kachel laden...</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>Auswahl in Datei &amp;speichern...</source>
        <translation>Auswahl in Datei &amp;speichern...</translation>
    </message>
    <message>
        <source>Bild laden</source>
        <translation>Bild laden</translation>
    </message>
    <message>
        <source>Bild importieren</source>
        <translation>Bild importieren</translation>
    </message>
    <message>
        <source>Web-Background-Bild</source>
        <translation>Web-Background-Bild</translation>
    </message>
    <message>
        <source>Auswahl speichern</source>
        <translation>Auswahl speichern</translation>
    </message>
    <message>
        <source>Soll die Datei %1 überschrieben werden?</source>
        <translation>Soll die Datei %1 überschrieben werden?</translation>
    </message>
    <message>
        <source>&amp;Passepartouts...</source>
        <translation>&amp;Passepartouts...</translation>
    </message>
    <message>
        <source>Kachel&amp;ansicht...</source>
        <translation>Kachel&amp;ansicht...</translation>
    </message>
    <message>
        <source>Bild</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Superformat anzeigen</source>
        <translation>Superformat anzeigen</translation>
    </message>
    <message>
        <source>&amp;Text und Schrift...</source>
        <translation>&amp;Text und Schrift...</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Auswahl aus&amp;richten</source>
        <translation>Auswahl aus&amp;richten</translation>
    </message>
    <message>
        <source>Zwischenablage leeren</source>
        <translation>Zwischenablage leeren</translation>
    </message>
    <message>
        <source>Sättigung </source>
        <translation>Sättigung </translation>
    </message>
    <message>
        <source>Animation speichern...</source>
        <translation>Animation speichern...</translation>
    </message>
    <message>
        <source>Es gibt keine Animation zum Speichern: starten Sie zuerst den Tunnel des Plasmas.</source>
        <translation>Es gibt keine Animation zum Speichern: starten Sie zuerst den Tunnel des Plasmas.</translation>
    </message>
    <message>
        <source>Animiertes PNG (*.png)</source>
        <translation>Animiertes PNG (*.png)</translation>
    </message>
    <message>
        <source>Animiertes GIF (*.gif)</source>
        <translation>Animiertes GIF (*.gif)</translation>
    </message>
    <message>
        <source>Animation speichern</source>
        <translation>Animation speichern</translation>
    </message>
    <message>
        <source>Animation wird gespeichert...</source>
        <translation>Animation wird gespeichert...</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Bild-Prä&amp;sentation</source>
        <translation>Bild-Prä&amp;sentation</translation>
    </message>
    <message>
        <source>Präsentation &amp;laden...</source>
        <translation>Präsentation &amp;laden...</translation>
    </message>
    <message>
        <source>Präsentation &amp;speichern...</source>
        <translation>Präsentation &amp;speichern...</translation>
    </message>
</context>
<context>
    <name>tf::ui::MosaikShow</name>
    <message>
        <source>%1 x %2 Pixel</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
    <message>
        <source>Es gibt noch kein Superformat-Bild.</source>
        <translation>Es gibt noch kein Superformat-Bild.</translation>
    </message>
    <message>
        <source>Soll die Datei %1 überschrieben werden?</source>
        <translation>Soll die Datei %1 überschrieben werden?</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Das Bild wird mit %1% JPQ - Qualität gespeichert.</source>
        <translation>Das Bild wird mit %1% JPQ - Qualität gespeichert.</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Superformat</source>
        <translation>Superformat</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Speichern als JPEG</source>
        <translation>&amp;Speichern als JPEG</translation>
    </message>
    <message>
        <source>Speichern andere For&amp;mate...</source>
        <translation>Speichern andere For&amp;mate...</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo / Redo</source>
        <translation>&amp;Undo / Redo</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Einpassen</source>
        <translation>&amp;Einpassen</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Ver&amp;größern</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>Ver&amp;kleinern</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
</context>
<context>
    <name>tf::ui::OptionsDialog</name>
    <message>
        <source>Systemoptionen</source>
        <translation>Systemoptionen</translation>
    </message>
    <message>
        <source> Sonstige </source>
        <translation> Sonstige </translation>
    </message>
    <message>
        <source> Sprache </source>
        <translation> Sprache </translation>
    </message>
    <message>
        <source>Zwischenablage beim Beenden leeren</source>
        <translation>Zwischenablage beim Beenden leeren</translation>
    </message>
    <message>
        <source> Fixieren / Restaurieren </source>
        <translation> Fixieren / Restaurieren </translation>
    </message>
    <message>
        <source>Fixierungen beim Beenden löschen</source>
        <translation>Fixierungen beim Beenden löschen</translation>
    </message>
    <message>
        <source>Anzahl der Fixierungen:</source>
        <translation>Anzahl der Fixierungen:</translation>
    </message>
    <message>
        <source>Verzeichnis für temporäre Dateien:</source>
        <translation>Verzeichnis für temporäre Dateien:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tf::ui::PSelectDialog</name>
    <message>
        <source>Bild öffnen</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Ver&amp;zeichnis anlegen...</source>
        <translation>Ver&amp;zeichnis anlegen...</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Ungültiges Bild</source>
        <translation>Ungültiges Bild</translation>
    </message>
    <message>
        <source>Kein gültiger Pfad.</source>
        <translation>Kein gültiger Pfad.</translation>
    </message>
    <message>
        <source>Bitte öffnen Sie das Verzeichnis zuerst zum Löschen!</source>
        <translation>Bitte öffnen Sie das Verzeichnis zuerst zum Löschen!</translation>
    </message>
    <message>
        <source>Soll das Verzeichnis %1 in den Papierkorb verschoben werden?</source>
        <translation>Soll das Verzeichnis %1 in den Papierkorb verschoben werden?</translation>
    </message>
    <message>
        <source>Datei löschen</source>
        <translation>Datei löschen</translation>
    </message>
    <message>
        <source>Kein gültiges Bild.</source>
        <translation>Kein gültiges Bild.</translation>
    </message>
    <message>
        <source>Soll die Datei %1 in den Papierkorb verschoben werden?</source>
        <translation>Soll die Datei %1 in den Papierkorb verschoben werden?</translation>
    </message>
    <message>
        <source>Soll ein Verzeichnis unter %1 angelegt werden?</source>
        <translation>Soll ein Verzeichnis unter %1 angelegt werden?</translation>
    </message>
    <message>
        <source>Verzeichnis anlegen</source>
        <translation>Verzeichnis anlegen</translation>
    </message>
    <message>
        <source>Geben Sie bitte einen Verzeichnisnamen ein.</source>
        <translation>Geben Sie bitte einen Verzeichnisnamen ein.</translation>
    </message>
    <message>
        <source>Neuer Ordner</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>Kein gültiger Verzeichnisname.</source>
        <translation>Kein gültiger Verzeichnisname.</translation>
    </message>
</context>
<context>
    <name>tf::ui::PasseDemo</name>
    <message>
        <source>Passepartout</source>
        <translation>Passepartout</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Speichern als JPEG</source>
        <translation>&amp;Speichern als JPEG</translation>
    </message>
    <message>
        <source>Speichern andere For&amp;mate...</source>
        <translation>Speichern andere For&amp;mate...</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Das Bild im Passepartout wäre größer als 14000 Pixel. Geben Sie eine kleinere Max. Höhe oder Max. Breite an.</source>
        <translation>Das Bild im Passepartout wäre größer als 14000 Pixel. Geben Sie eine kleinere Max. Höhe oder Max. Breite an.</translation>
    </message>
    <message>
        <source>Soll die Datei %1 überschrieben werden?</source>
        <translation>Soll die Datei %1 überschrieben werden?</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>tf::ui::PassepGen</name>
    <message>
        <source>Passepartouts</source>
        <translation>Passepartouts</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source> Rahmen (1 am Bild, 7 außen) </source>
        <translation> Rahmen (1 am Bild, 7 außen) </translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>7 Abschlußfarbe</source>
        <translation>7 Abschlußfarbe</translation>
    </message>
    <message>
        <source>Rahmen %1</source>
        <translation>Rahmen %1</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen</source>
        <translation>Doppelklick: Farbe wählen</translation>
    </message>
    <message>
        <source>Farbverlauf zwischen den Rahmen</source>
        <translation>Farbverlauf zwischen den Rahmen</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>Über&amp;nehmen</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source> Bild </source>
        <translation> Bild </translation>
    </message>
    <message>
        <source>Arbeitsbild verwenden</source>
        <translation>Arbeitsbild verwenden</translation>
    </message>
    <message>
        <source> Größenfenster anpassen </source>
        <translation> Größenfenster anpassen </translation>
    </message>
    <message>
        <source>Max. Höhe</source>
        <translation>Max. Höhe</translation>
    </message>
    <message>
        <source>Max. Breite</source>
        <translation>Max. Breite</translation>
    </message>
    <message>
        <source>0 = ohne Grenze</source>
        <translation>0 = ohne Grenze</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Bild laden</source>
        <translation>Bild laden</translation>
    </message>
    <message>
        <source>Wählen Sie bitte zuerst ein Bild aus!</source>
        <translation>Wählen Sie bitte zuerst ein Bild aus!</translation>
    </message>
    <message>
        <source>Verwenden Sie bitte den [...]-Befehl.</source>
        <translation>Verwenden Sie bitte den [...]-Befehl.</translation>
    </message>
    <message>
        <source>Die Datei %1 gibt es nicht.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>tf::ui::PicImportDialog</name>
    <message>
        <source>Bild anpassen</source>
        <translation>Bild anpassen</translation>
    </message>
    <message>
        <source>Grössenanpassung</source>
        <translation>Grössenanpassung</translation>
    </message>
    <message>
        <source>Automatisch einpassen ( mit Verzerrung )</source>
        <translation>Automatisch einpassen ( mit Verzerrung )</translation>
    </message>
    <message>
        <source>Seitenverhältnis beibehalten und automatisch anpassen</source>
        <translation>Seitenverhältnis beibehalten und automatisch anpassen</translation>
    </message>
    <message>
        <source>Anti-Aliasing</source>
        <translation>Anti-Aliasing</translation>
    </message>
</context>
<context>
    <name>tf::ui::PicSourceDialog</name>
    <message>
        <source>Bildquelle</source>
        <translation>Bildquelle</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Bild wählen</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Bilder</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Bildverzeichnis wählen</source>
        <translation>Bildverzeichnis wählen</translation>
    </message>
    <message>
        <source>Die Datei gibt es nicht.</source>
        <translation>Die Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>Das Verzeichnis gibt es nicht.</source>
        <translation>Das Verzeichnis gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>tf::ui::PicturePrintPreview</name>
    <message>
        <source>Druckvorschau</source>
        <translation>Druckvorschau</translation>
    </message>
    <message>
        <source>An Seite anpassen</source>
        <translation>An Seite anpassen</translation>
    </message>
    <message>
        <source>Das Bild so groß drucken, wie die Seite erlaubt, statt in seiner Größe bei %1 dpi</source>
        <translation>Das Bild so groß drucken, wie die Seite erlaubt, statt in seiner Größe bei %1 dpi</translation>
    </message>
    <message>
        <source>Keine Druckausgabe möglich!</source>
        <translation>Keine Druckausgabe möglich!</translation>
    </message>
</context>
<context>
    <name>tf::ui::PictureSizeDialog</name>
    <message>
        <source>Bildgröße</source>
        <translation>Bildgröße</translation>
    </message>
    <message>
        <source>Arbeitsfläche</source>
        <translation>Arbeitsfläche</translation>
    </message>
    <message>
        <source> Pixel</source>
        <translation> Pixel</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Seitenverhältnis beibehalten</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Glätten (bilinear)</source>
        <translation>Glätten (bilinear)</translation>
    </message>
    <message>
        <source>Nächster Bildpunkt</source>
        <translation>Nächster Bildpunkt</translation>
    </message>
    <message>
        <source>Verfahren:</source>
        <translation>Verfahren:</translation>
    </message>
    <message>
        <source>Lage des Bildes:</source>
        <translation>Lage des Bildes:</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>tf::ui::PlasmaPanelExtras</name>
    <message>
        <source>Start Tunnel</source>
        <translation>Start Tunnel</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
</context>
<context>
    <name>tf::ui::SizeDialog</name>
    <message>
        <source>Neues Bild</source>
        <translation>Neues Bild</translation>
    </message>
    <message>
        <source> Pixel</source>
        <translation> Pixel</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>frei</source>
        <translation>frei</translation>
    </message>
    <message>
        <source>quadratisch 1:1</source>
        <translation>quadratisch 1:1</translation>
    </message>
    <message>
        <source>quer 4:3</source>
        <translation>quer 4:3</translation>
    </message>
    <message>
        <source>quer 3:2</source>
        <translation>quer 3:2</translation>
    </message>
    <message>
        <source>quer 16:9</source>
        <translation>quer 16:9</translation>
    </message>
    <message>
        <source>hoch 3:4</source>
        <translation>hoch 3:4</translation>
    </message>
    <message>
        <source>hoch 2:3</source>
        <translation>hoch 2:3</translation>
    </message>
    <message>
        <source>hoch DIN (1:1,414)</source>
        <translation>hoch DIN (1:1,414)</translation>
    </message>
    <message>
        <source>Seitenverhältnis:</source>
        <translation>Seitenverhältnis:</translation>
    </message>
</context>
<context>
    <name>tf::ui::SystemPaletteDialog</name>
    <message>
        <source>Systempaletten</source>
        <translation>Systempaletten</translation>
    </message>
</context>
<context>
    <name>tf::ui::TextDialog</name>
    <message>
        <source>Text bearbeiten</source>
        <translation>Text bearbeiten</translation>
    </message>
    <message>
        <source>Text laden</source>
        <translation>Text laden</translation>
    </message>
    <message>
        <source>Textdateien (*.txt);;Alle Dateien (*)</source>
        <translation>Textdateien (*.txt);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Text und Schrift</source>
        <translation>Text und Schrift</translation>
    </message>
    <message>
        <source>Text (leer: ein lateinischer Mustertext)</source>
        <translation>Text (leer: ein lateinischer Mustertext)</translation>
    </message>
    <message>
        <source>Text laden ...</source>
        <translation>Text laden ...</translation>
    </message>
    <message>
        <source>Zoom ...</source>
        <translation>Zoom ...</translation>
    </message>
    <message>
        <source>Schrift</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Schriftart</translation>
    </message>
    <message>
        <source>Text- und Schattenfarbe</source>
        <translation>Text- und Schattenfarbe</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: die Vordergrundfarbe</source>
        <translation>Doppelklick: Farbe wählen; rechte Maustaste: die Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: die Hintergrundfarbe</source>
        <translation>Doppelklick: Farbe wählen; rechte Maustaste: die Hintergrundfarbe</translation>
    </message>
</context>
<context>
    <name>tf::ui::TileViewer</name>
    <message>
        <source>Kachelansicht</source>
        <translation>Kachelansicht</translation>
    </message>
    <message>
        <source>Kachel laden...</source>
        <translation>Kachel laden...</translation>
    </message>
    <message>
        <source>Arbeitsbild neu holen</source>
        <translation>Arbeitsbild neu holen</translation>
    </message>
    <message>
        <source>Kachelgrenzen</source>
        <translation>Kachelgrenzen</translation>
    </message>
    <message>
        <source>Versatz um eine halbe Kachel</source>
        <translation>Versatz um eine halbe Kachel</translation>
    </message>
    <message>
        <source>Kachel %1 x %2</source>
        <translation>Kachel %1 x %2</translation>
    </message>
</context>
<context>
    <name>tf::ui::TransformMenu</name>
    <message>
        <source>B&amp;ild</source>
        <translation>B&amp;ild</translation>
    </message>
    <message>
        <source>&amp;Vertikal spiegeln</source>
        <translation>&amp;Vertikal spiegeln</translation>
    </message>
    <message>
        <source>&amp;Horizontal spiegeln</source>
        <translation>&amp;Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Halb&amp;spiegel</source>
        <translation>Halb&amp;spiegel</translation>
    </message>
    <message>
        <source>&amp;Links nach rechts</source>
        <translation>&amp;Links nach rechts</translation>
    </message>
    <message>
        <source>&amp;Rechts nach links</source>
        <translation>&amp;Rechts nach links</translation>
    </message>
    <message>
        <source>&amp;Oben nach unten</source>
        <translation>&amp;Oben nach unten</translation>
    </message>
    <message>
        <source>&amp;Unten nach oben</source>
        <translation>&amp;Unten nach oben</translation>
    </message>
    <message>
        <source>&amp;Prismatisch</source>
        <translation>&amp;Prismatisch</translation>
    </message>
    <message>
        <source>90° nach &amp;rechts drehen</source>
        <translation>90° nach &amp;rechts drehen</translation>
    </message>
    <message>
        <source>90° nach &amp;links drehen</source>
        <translation>90° nach &amp;links drehen</translation>
    </message>
    <message>
        <source>&amp;180° drehen</source>
        <translation>&amp;180° drehen</translation>
    </message>
    <message>
        <source>Bild&amp;größe...</source>
        <translation>Bild&amp;größe...</translation>
    </message>
    <message>
        <source>&amp;Arbeitsfläche...</source>
        <translation>&amp;Arbeitsfläche...</translation>
    </message>
    <message>
        <source>Auf Auswahl &amp;zuschneiden</source>
        <translation>Auf Auswahl &amp;zuschneiden</translation>
    </message>
    <message>
        <source>3-D &amp;Unschärfe und Überblenden</source>
        <translation>3-D &amp;Unschärfe und Überblenden</translation>
    </message>
</context>
</TS>