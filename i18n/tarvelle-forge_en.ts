<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="de">
<context>
    <name>Blurize</name>
    <message>
        <source>Es gibt noch kein Bild vor der letzten Änderung: laden oder malen Sie zuerst zwei Bilder nacheinander.</source>
        <translation>There is no picture before the last change yet: first load or paint two pictures one after the other.</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message>
        <source>Unbekannte Sprache: %1 (de oder en)</source>
        <translation>Unknown language: %1 (de or en)</translation>
    </message>
    <message>
        <source>Der Option %1 fehlt ihr Wert.</source>
        <translation>The option %1 lacks its value.</translation>
    </message>
    <message>
        <source>Unbekannte Option: %1</source>
        <translation>Unknown option: %1</translation>
    </message>
    <message>
        <source>Unbekannter Grafiktyp: %1</source>
        <translation>Unknown graphics type: %1</translation>
    </message>
    <message>
        <source>Ungültige Größe: %1 (BREITExHÖHE, 1 bis 14000)</source>
        <translation>Invalid size: %1 (WIDTHxHEIGHT, 1 to 14000)</translation>
    </message>
    <message>
        <source>Ungültige Farbe: %1 (#RRGGBB)</source>
        <translation>Invalid colour: %1 (#RRGGBB)</translation>
    </message>
    <message>
        <source>Ungültiger Wert für %1: %2</source>
        <translation>Invalid value for %1: %2</translation>
    </message>
    <message>
        <source>Ungültiger Startwert: %1</source>
        <translation>Invalid seed: %1</translation>
    </message>
    <message>
        <source>Ungültige Einstellung: %1 (STEUERELEMENT=WERT)</source>
        <translation>Invalid setting: %1 (CONTROL=VALUE)</translation>
    </message>
    <message>
        <source>Ungültige Transparenz: %1 (0 bis 100)</source>
        <translation>Invalid transparency: %1 (0 to 100)</translation>
    </message>
    <message>
        <source>Überzähliges Argument: %1</source>
        <translation>Unexpected argument: %1</translation>
    </message>
    <message>
        <source>Es fehlt der Grafiktyp.</source>
        <translation>The graphics type is missing.</translation>
    </message>
    <message>
        <source>Unbekanntes Steuerelement: %1</source>
        <translation>Unknown control: %1</translation>
    </message>
    <message>
        <source>Das Malen wurde abgebrochen.</source>
        <translation>The paint was interrupted.</translation>
    </message>
    <message>
        <source>Das Malen ist fehlgeschlagen.</source>
        <translation>The paint failed.</translation>
    </message>
    <message>
        <source>Unbekannte Systempalette: %1 (1 bis %2)</source>
        <translation>Unknown system palette: %1 (1 to %2)</translation>
    </message>
    <message>
        <source>Unbekannter Filter: %1 (siehe `filters`)</source>
        <translation>Unknown filter: %1 (see `filters`)</translation>
    </message>
    <message>
        <source>Der Filter %1 ist noch nicht eingebaut.</source>
        <translation>The filter %1 is not built in yet.</translation>
    </message>
    <message>
        <source>Ungültige Einstellung: %1 (REGLER=WERT)</source>
        <translation>Invalid setting: %1 (SLIDER=VALUE)</translation>
    </message>
    <message>
        <source>%1 liegt außerhalb von %2 bis %3.</source>
        <translation>%1 lies outside %2 to %3.</translation>
    </message>
    <message>
        <source>Der Filter %1 hat keinen Regler %2.</source>
        <translation>The filter %1 has no slider %2.</translation>
    </message>
    <message>
        <source>Es fehlt der Filter.</source>
        <translation>The filter is missing.</translation>
    </message>
    <message>
        <source>Ungültige Position: %1 (X,Y)</source>
        <translation>Invalid position: %1 (X,Y)</translation>
    </message>
    <message>
        <source>Es fehlt das Bild, das gefiltert wird.</source>
        <translation>The picture to filter is missing.</translation>
    </message>
    <message>
        <source>Es fehlt die Ausgabe (-o DATEI).</source>
        <translation>The output is missing (-o FILE).</translation>
    </message>
    <message>
        <source>Das Filtern ist fehlgeschlagen.</source>
        <translation>The filter failed.</translation>
    </message>
    <message>
        <source>Die Datei %1 enthält kein Rezept.</source>
        <translation>The file %1 holds no recipe.</translation>
    </message>
    <message>
        <source>Aufruf: tarvelle-forge recipe DATEI</source>
        <translation>Usage: tarvelle-forge recipe FILE</translation>
    </message>
    <message>
        <source>Es fehlt der Ordner (-o ORDNER).</source>
        <translation>The folder is missing (-o FOLDER).</translation>
    </message>
    <message>
        <source>Der Ordner %1 kann nicht angelegt werden.</source>
        <translation>The folder %1 cannot be made.</translation>
    </message>
    <message>
        <source>„%1“ konnte nicht gemalt werden.</source>
        <translation>&quot;%1&quot; could not be painted.</translation>
    </message>
    <message>
        <source>Ungültige Größe: %1 (BxH)</source>
        <translation>Invalid size: %1 (WxH)</translation>
    </message>
    <message>
        <source>Ungültiger Ausschnitt: %1 (X,Y,B,H)</source>
        <translation>Invalid part: %1 (X,Y,W,H)</translation>
    </message>
    <message>
        <source>Ungültige Lage: %1 (top-left, top, ..., middle, ..., bottom-right)</source>
        <translation>Invalid place: %1 (top-left, top, ..., middle, ..., bottom-right)</translation>
    </message>
    <message>
        <source>Ungültiger Halbspiegel: %1 (left-to-right, right-to-left, top-to-bottom, bottom-to-top, prismatic)</source>
        <translation>Invalid half mirror: %1 (left-to-right, right-to-left, top-to-bottom, bottom-to-top, prismatic)</translation>
    </message>
    <message>
        <source>Es fehlt die Umformung.</source>
        <translation>The transformation is missing.</translation>
    </message>
    <message>
        <source>Es fehlt der Wert der Umformung %1.</source>
        <translation>The value of the transformation %1 is missing.</translation>
    </message>
    <message>
        <source>Es fehlt das Bild, das umgeformt wird.</source>
        <translation>The picture to transform is missing.</translation>
    </message>
    <message>
        <source>Die Umformung %1 braucht ein zweites Bild (--with DATEI).</source>
        <translation>The transformation %1 needs a second picture (--with FILE).</translation>
    </message>
    <message>
        <source>Unbekannte Umformung: %1 (siehe --help)</source>
        <translation>Unknown transformation: %1 (see --help)</translation>
    </message>
    <message>
        <source>Das Umformen ist fehlgeschlagen.</source>
        <translation>The transformation failed.</translation>
    </message>
    <message>
        <source>%1 erwartet eine Zahl von 0 bis 14000, nicht &quot;%2&quot;</source>
        <translation>%1 expects a number from 0 to 14000, not &quot;%2&quot;</translation>
    </message>
    <message>
        <source>Aufruf: tarvelle-forge passepartouts [--data DATEI]</source>
        <translation>Usage: tarvelle-forge passepartouts [--data FILE]</translation>
    </message>
    <message>
        <source>--gradient erwartet on oder off, nicht &quot;%1&quot;</source>
        <translation>--gradient expects on or off, not &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Unbekannte Angabe: %1</source>
        <translation>Unknown argument: %1</translation>
    </message>
    <message>
        <source>Aufruf: tarvelle-forge passepartout --set NAME BILD -o AUSGABE</source>
        <translation>Usage: tarvelle-forge passepartout --set NAME PICTURE -o OUTPUT</translation>
    </message>
    <message>
        <source>Es gibt kein Passepartout &quot;%1&quot; (siehe tarvelle-forge passepartouts).</source>
        <translation>There is no passepartout &quot;%1&quot; (see tarvelle-forge passepartouts).</translation>
    </message>
    <message>
        <source>Das Bild im Passepartout wäre größer als 14000 Pixel.</source>
        <translation>The picture in the passepartout would be larger than 14000 pixels.</translation>
    </message>
    <message>
        <source>Ein Superformat wird in ein eigenes Bild gemalt, nicht über ein anderes.</source>
        <translation>A Superformat is painted into a picture of its own, not over another.</translation>
    </message>
    <message>
        <source>Ungültiger Wert für %1: %2 (%3 bis %4)</source>
        <translation>Invalid value for %1: %2 (%3 to %4)</translation>
    </message>
    <message>
        <source>Es fehlt der Wert zu %1.</source>
        <translation>The value of %1 is missing.</translation>
    </message>
    <message>
        <source>Der Grafiktyp %1 hat keine Animation.</source>
        <translation>The graphics type %1 has no animation.</translation>
    </message>
    <message>
        <source>Eine Animation wird als .png oder .gif geschrieben: %1</source>
        <translation>An animation is written as .png or .gif: %1</translation>
    </message>
    <message>
        <source>Zu wenig Speicher für die Animation.</source>
        <translation>Not enough memory for the animation.</translation>
    </message>
    <message>
        <source>Eine Präsentation (--presentation) malt nur PIC-Mosaik oder PIC-MosaikSuper.</source>
        <translation>A presentation (--presentation) paints only PIC-Mosaik or PIC-MosaikSuper.</translation>
    </message>
    <message>
        <source>Die Option --source gilt nur für Typen mit Fotos, nicht für %1.</source>
        <translation>The option --source is only for types with photos, not for %1.</translation>
    </message>
</context>
<context>
    <name>ControlLinks</name>
    <message>
        <source>oder</source>
        <translation>or</translation>
    </message>
    <message>
        <source>und</source>
        <translation>and</translation>
    </message>
    <message>
        <source>nur mit %1</source>
        <translation>only with %1</translation>
    </message>
    <message>
        <source>setzt %1 auf %2 bei %3</source>
        <translation>sets %1 to %2 when %3</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>Freies Format (pixel)</source>
        <translation>Free format (pixel)</translation>
    </message>
    <message>
        <source>Freies Format (cm)</source>
        <translation>Free format (inch)</translation>
    </message>
    <message>
        <source>DIN-A4 Hochformat</source>
        <translation>DIN-A4 vertical</translation>
    </message>
    <message>
        <source>DIN-A4 Querformat</source>
        <translation>DIN-A4 horizontal</translation>
    </message>
    <message>
        <source>DIN-A3 Hochformat</source>
        <translation>DIN-A3 vertical</translation>
    </message>
    <message>
        <source>DIN-A3 Querformat</source>
        <translation>DIN-A3 horizontal</translation>
    </message>
    <message>
        <source>DIN-A2 Hochformat</source>
        <translation>DIN-A2 vertical</translation>
    </message>
    <message>
        <source>DIN-A2 Querformat</source>
        <translation>DIN-A2 horizontal</translation>
    </message>
    <message>
        <source>DIN-A1 Hochformat</source>
        <translation>DIN-A1 vertical</translation>
    </message>
    <message>
        <source>DIN-A1 Querformat</source>
        <translation>DIN-A1 horizontal</translation>
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
        <translation>General</translation>
    </message>
    <message>
        <source>Anzahl</source>
        <translation>Number</translation>
    </message>
    <message>
        <source>Stift</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>Schrittweite</source>
        <translation>Step</translation>
    </message>
    <message>
        <source>Transparenz</source>
        <translation>Transparency</translation>
    </message>
    <message>
        <source>Ränder</source>
        <translation>Borders</translation>
    </message>
    <message>
        <source>Zentrieren</source>
        <translation>Center</translation>
    </message>
    <message>
        <source>Füllen</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>Weiß füllen</source>
        <translation>Fill white</translation>
    </message>
    <message>
        <source>Auto-Anti-Aliasing</source>
        <translation>Auto anti-aliasing</translation>
    </message>
    <message>
        <source>Bildformat</source>
        <translation>Picture format</translation>
    </message>
    <message>
        <source>DPI</source>
        <translation>DPI</translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Höhe</source>
        <translation>Height</translation>
    </message>
    <message>
        <source>Superformat Breite</source>
        <translation>Supersize width</translation>
    </message>
    <message>
        <source>Superformat Höhe</source>
        <translation>Supersize height</translation>
    </message>
    <message>
        <source>Chromofilter</source>
        <translation>Chromo filter</translation>
    </message>
    <message>
        <source>Bandbreite</source>
        <translation>Band width</translation>
    </message>
    <message>
        <source>Ausrichtung</source>
        <translation>Orientation</translation>
    </message>
    <message>
        <source>Oben</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>Unten</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>Rechts</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>Rahmenverlauf</source>
        <translation>Frame gradient</translation>
    </message>
    <message>
        <source>Farbanteil</source>
        <translation>Colour share</translation>
    </message>
    <message>
        <source>Verlaufsart</source>
        <translation>Gradient kind</translation>
    </message>
    <message>
        <source>Linear</source>
        <translation>Linear</translation>
    </message>
    <message>
        <source>Rahmen</source>
        <translation>Frame</translation>
    </message>
    <message>
        <source>Rechteck</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Richtung</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Vertikal</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Farben tauschen</source>
        <translation>Swap colours</translation>
    </message>
    <message>
        <source>Weicher Verlauf</source>
        <translation>Soft gradient</translation>
    </message>
    <message>
        <source>Rand links und rechts</source>
        <translation>Border left and right</translation>
    </message>
    <message>
        <source>Rand oben und unten</source>
        <translation>Border top and bottom</translation>
    </message>
    <message>
        <source>Passepartout</source>
        <translation>Passe-partout</translation>
    </message>
    <message>
        <source>Passepartout-Breite</source>
        <translation>Passe-partout width</translation>
    </message>
    <message>
        <source>Frequenzen</source>
        <translation>Frequencies</translation>
    </message>
    <message>
        <source>Wellenform</source>
        <translation>Wave form</translation>
    </message>
    <message>
        <source>Kreiswellen</source>
        <translation>Circular waves</translation>
    </message>
    <message>
        <source>Parallele Wellen</source>
        <translation>Parallel waves</translation>
    </message>
    <message>
        <source>Deckkraft</source>
        <translation>Opacity</translation>
    </message>
    <message>
        <source>Wellenzüge</source>
        <translation>Wave trains</translation>
    </message>
    <message>
        <source>Kacheln</source>
        <translation>Tiles</translation>
    </message>
    <message>
        <source>Kacheln je Bildbreite</source>
        <translation>Tiles across the picture</translation>
    </message>
    <message>
        <source>Ellipsen</source>
        <translation>Ellipses</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Shape</translation>
    </message>
    <message>
        <source>Kreise</source>
        <translation>Circles</translation>
    </message>
    <message>
        <source>Gemischt</source>
        <translation>Mixed</translation>
    </message>
    <message>
        <source>Vielecke und Sterne</source>
        <translation>Polygons and stars</translation>
    </message>
    <message>
        <source>Figur</source>
        <translation>Figure</translation>
    </message>
    <message>
        <source>Vieleck</source>
        <translation>Polygon</translation>
    </message>
    <message>
        <source>Stern</source>
        <translation>Star</translation>
    </message>
    <message>
        <source>Ecken</source>
        <translation>Corners</translation>
    </message>
    <message>
        <source>Farbmodus</source>
        <translation>Colour mode</translation>
    </message>
    <message>
        <source>Einfache Farben</source>
        <translation>Plain colours</translation>
    </message>
    <message>
        <source>Farbtabelle zufällig</source>
        <translation>Random colour table</translation>
    </message>
    <message>
        <source>Farbtabelle aus zwei Farben</source>
        <translation>Colour table from two colours</translation>
    </message>
    <message>
        <source>Lissajous-Figur</source>
        <translation>Lissajous figure</translation>
    </message>
    <message>
        <source>Frequenz waagrecht</source>
        <translation>Horizontal frequency</translation>
    </message>
    <message>
        <source>Frequenz senkrecht</source>
        <translation>Vertical frequency</translation>
    </message>
    <message>
        <source>Rose</source>
        <translation>Rose</translation>
    </message>
    <message>
        <source>Zähler</source>
        <translation>Numerator</translation>
    </message>
    <message>
        <source>Nenner</source>
        <translation>Denominator</translation>
    </message>
    <message>
        <source>Fadenrosette</source>
        <translation>Thread rosette</translation>
    </message>
    <message>
        <source>Faktor</source>
        <translation>Factor</translation>
    </message>
    <message>
        <source>Interne Kacheln</source>
        <translation>Internal tiles</translation>
    </message>
    <message>
        <source>Kachel</source>
        <translation>Tile</translation>
    </message>
    <message>
        <source>In den Malfarben</source>
        <translation>In the painting colours</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Zeichengröße</source>
        <translation>Glyph size</translation>
    </message>
    <message>
        <source>Geschwindigkeit</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Wellen</source>
        <translation>Waves</translation>
    </message>
    <message>
        <source>Rauten</source>
        <translation>Diamonds</translation>
    </message>
    <message>
        <source>Schuppen</source>
        <translation>Scales</translation>
    </message>
    <message>
        <source>Ziegel</source>
        <translation>Bricks</translation>
    </message>
    <message>
        <source>Marmor</source>
        <translation>Marble</translation>
    </message>
    <message>
        <source>Leinen</source>
        <translation>Linen</translation>
    </message>
    <message>
        <source>Ringe</source>
        <translation>Rings</translation>
    </message>
    <message>
        <source>Flechtwerk</source>
        <translation>Basketwork</translation>
    </message>
    <message>
        <source>Sterne</source>
        <translation>Stars</translation>
    </message>
    <message>
        <source>Holz</source>
        <translation>Wood</translation>
    </message>
    <message>
        <source>Waben</source>
        <translation>Honeycomb</translation>
    </message>
    <message>
        <source>Rahmendicke A.</source>
        <translation>Outer frame width</translation>
    </message>
    <message>
        <source>Rahmenbreite I.</source>
        <translation>Inner frame width</translation>
    </message>
    <message>
        <source>Rahmenhöhe I.</source>
        <translation>Inner frame height</translation>
    </message>
    <message>
        <source>Trapeze</source>
        <translation>Trapezes</translation>
    </message>
    <message>
        <source>Ausschnitt</source>
        <translation>Cut-out size</translation>
    </message>
    <message>
        <source>Papiere</source>
        <translation>Papers</translation>
    </message>
    <message>
        <source>Winkel</source>
        <translation>Angle</translation>
    </message>
    <message>
        <source>Jalousie</source>
        <translation>Venetian blind</translation>
    </message>
    <message>
        <source>4 Farben</source>
        <translation>4 colours</translation>
    </message>
    <message>
        <source>Diagonal</source>
        <translation>Diagonal</translation>
    </message>
    <message>
        <source>Jalousie step 1-255</source>
        <translation>Blind step 1-255</translation>
    </message>
    <message>
        <source>Berge</source>
        <translation>Mountains</translation>
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
        <translation>Circle gradients</translation>
    </message>
    <message>
        <source>Teilungen</source>
        <translation>Divisions</translation>
    </message>
    <message>
        <source>Endwinkel</source>
        <translation>End angle</translation>
    </message>
    <message>
        <source>Startwinkel</source>
        <translation>Start angle</translation>
    </message>
    <message>
        <source>Stift verwenden</source>
        <translation>Use pen</translation>
    </message>
    <message>
        <source>Textdialog</source>
        <translation>Text dialog</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Schrift</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Größe</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Z.-Breite</source>
        <translation>Char. width</translation>
    </message>
    <message>
        <source>Zeichenbreite (%)</source>
        <translation>Character width (%)</translation>
    </message>
    <message>
        <source>Schatten</source>
        <translation>Shadow</translation>
    </message>
    <message>
        <source>3D-Farbe</source>
        <translation>3-D colour</translation>
    </message>
    <message>
        <source>Schattenfarbe</source>
        <translation>Shadow colour</translation>
    </message>
    <message>
        <source>Schwarz</source>
        <translation>Black</translation>
    </message>
    <message>
        <source>Grau</source>
        <translation>Grey</translation>
    </message>
    <message>
        <source>Weiß</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Textfarbe abgedunkelt</source>
        <translation>Text colour darkened</translation>
    </message>
    <message>
        <source>Anti-Aliasing</source>
        <translation>Anti-aliasing</translation>
    </message>
    <message>
        <source>Bold</source>
        <translation>Bold</translation>
    </message>
    <message>
        <source>Schriften mischen</source>
        <translation>Mix fonts</translation>
    </message>
    <message>
        <source>Position links</source>
        <translation>Position left</translation>
    </message>
    <message>
        <source>Position oben</source>
        <translation>Position top</translation>
    </message>
    <message>
        <source>Rotationswinkel</source>
        <translation>Rotation angle</translation>
    </message>
    <message>
        <source>Position ist die Textmitte</source>
        <translation>Position is the middle of the text</translation>
    </message>
    <message>
        <source>Nur Großbuchstaben</source>
        <translation>Capitals only</translation>
    </message>
    <message>
        <source>Textblock</source>
        <translation>Text block</translation>
    </message>
    <message>
        <source> Ausrichtung </source>
        <translation> Alignment </translation>
    </message>
    <message>
        <source>Zentriert</source>
        <translation>Centred</translation>
    </message>
    <message>
        <source>Kinoabspann</source>
        <translation>Film credits</translation>
    </message>
    <message>
        <source>Links &amp;&amp; rechts</source>
        <translation>Left &amp;&amp; right</translation>
    </message>
    <message>
        <source>Abstand links</source>
        <translation>Left margin</translation>
    </message>
    <message>
        <source>Abstand oben</source>
        <translation>Top margin</translation>
    </message>
    <message>
        <source>Lücke (Pixel)</source>
        <translation>Gap (pixels)</translation>
    </message>
    <message>
        <source>Text auf Kreis und Spirale</source>
        <translation>Text on circle and spiral</translation>
    </message>
    <message>
        <source>Kreismodus</source>
        <translation>Circle mode</translation>
    </message>
    <message>
        <source>Textwinkel</source>
        <translation>Text angle</translation>
    </message>
    <message>
        <source>Radius</source>
        <translation>Radius</translation>
    </message>
    <message>
        <source>Teilungswinkel</source>
        <translation>Division angle</translation>
    </message>
    <message>
        <source>Formen</source>
        <translation>Forms</translation>
    </message>
    <message>
        <source>Quadrat am Ankerpunkt</source>
        <translation>Square at the anchor</translation>
    </message>
    <message>
        <source>Kreis</source>
        <translation>Circle</translation>
    </message>
    <message>
        <source>Kreis um den Ankerpunkt</source>
        <translation>Circle round the anchor</translation>
    </message>
    <message>
        <source>Umrandet</source>
        <translation>Outlined</translation>
    </message>
    <message>
        <source>Gefüllt</source>
        <translation>Filled</translation>
    </message>
    <message>
        <source>Freihand</source>
        <translation>Freehand</translation>
    </message>
    <message>
        <source> Stiftart </source>
        <translation> Pen type </translation>
    </message>
    <message>
        <source>Runde Spitze</source>
        <translation>Round tip</translation>
    </message>
    <message>
        <source>Feder \</source>
        <translation>Nib \</translation>
    </message>
    <message>
        <source>Feder /</source>
        <translation>Nib /</translation>
    </message>
    <message>
        <source>Feder waagerecht</source>
        <translation>Nib horizontal</translation>
    </message>
    <message>
        <source>Feder senkrecht</source>
        <translation>Nib vertical</translation>
    </message>
    <message>
        <source>Spitzenbreite </source>
        <translation>Tip width </translation>
    </message>
    <message>
        <source>Spray</source>
        <translation>Spray</translation>
    </message>
    <message>
        <source>Pinselart</source>
        <translation>Brush type</translation>
    </message>
    <message>
        <source>Airbrush</source>
        <translation>Airbrush</translation>
    </message>
    <message>
        <source>Pinsel</source>
        <translation>Brush</translation>
    </message>
    <message>
        <source>Pinsel (Sättigung)</source>
        <translation>Brush (saturation)</translation>
    </message>
    <message>
        <source>Weichzeichnen</source>
        <translation>Soften</translation>
    </message>
    <message>
        <source>Schärfen</source>
        <translation>Sharpen</translation>
    </message>
    <message>
        <source>Grösse </source>
        <translation>Size </translation>
    </message>
    <message>
        <source>Druck </source>
        <translation>Pressure </translation>
    </message>
    <message>
        <source>Verbundener Pinsel</source>
        <translation>Connected brush</translation>
    </message>
    <message>
        <source>Weichz. + Überlagern</source>
        <translation>Soften + overlay</translation>
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
        <translation>Square</translation>
    </message>
    <message>
        <source>Typ</source>
        <translation>Type</translation>
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
        <translation>Backcolor</translation>
    </message>
    <message>
        <source>Zufall</source>
        <translation>Randomized</translation>
    </message>
    <message>
        <source>Vordergrundfarbe</source>
        <translation>Forecolor</translation>
    </message>
    <message>
        <source>Rahmenfarbe</source>
        <translation>Bordercolor</translation>
    </message>
    <message>
        <source>Weiss</source>
        <translation>White</translation>
    </message>
    <message>
        <source>Rot</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Grün</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Blau</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Gelb</source>
        <translation>Yellow</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>Violett</source>
        <translation>Purpur</translation>
    </message>
    <message>
        <source>Haupt-Knotenfarben</source>
        <translation>Main node colours</translation>
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
        <translation>Margin</translation>
    </message>
    <message>
        <source>Horizontal symmetrisch</source>
        <translation>Horizontally symmetric</translation>
    </message>
    <message>
        <source>Vertikal symmetrisch</source>
        <translation>Vertically symmetric</translation>
    </message>
    <message>
        <source>Unterteilung verwenden</source>
        <translation>Use subdivision</translation>
    </message>
    <message>
        <source>Unterteilung H x</source>
        <translation>Subdivision H x</translation>
    </message>
    <message>
        <source>Unterteilung V x</source>
        <translation>Subdivision V x</translation>
    </message>
    <message>
        <source>Unterteilung harmonisch</source>
        <translation>Harmonic subdivision</translation>
    </message>
    <message>
        <source>Alle Rahmen zeichnen</source>
        <translation>Draw all frames</translation>
    </message>
    <message>
        <source>Kaleidoskop</source>
        <translation>Kaleidoscope</translation>
    </message>
    <message>
        <source> 4 Farben </source>
        <translation> 4 colours </translation>
    </message>
    <message>
        <source>Boogies?</source>
        <translation>Boogies?</translation>
    </message>
    <message>
        <source>Farbtiefe reduzieren</source>
        <translation>Reduce colour depth</translation>
    </message>
    <message>
        <source>Chaos</source>
        <translation>Chaos</translation>
    </message>
    <message>
        <source>Farbe 1</source>
        <translation>Colour 1</translation>
    </message>
    <message>
        <source>Farbe 2</source>
        <translation>Colour 2</translation>
    </message>
    <message>
        <source>Farbe 3</source>
        <translation>Colour 3</translation>
    </message>
    <message>
        <source>Farbe 4</source>
        <translation>Colour 4</translation>
    </message>
    <message>
        <source>Grund im Superformat</source>
        <translation>Superformat ground</translation>
    </message>
    <message>
        <source>Repaint letztes Set</source>
        <translation>Repaint last set</translation>
    </message>
    <message>
        <source>Plasma</source>
        <translation>Plasma</translation>
    </message>
    <message>
        <source>Körnung</source>
        <translation>Grain</translation>
    </message>
    <message>
        <source>Skalierung</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>Horizontal einhüllen</source>
        <translation>Wrap horizontally</translation>
    </message>
    <message>
        <source>Vertikal einhüllen</source>
        <translation>Wrap vertically</translation>
    </message>
    <message>
        <source>Gelad. Palette verwenden</source>
        <translation>Use loaded palette</translation>
    </message>
    <message>
        <source>Rotieren</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>Loch</source>
        <translation>Hole</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message>
        <source>Textraster</source>
        <translation>Text grid</translation>
    </message>
    <message>
        <source>Teilung</source>
        <translation>Split</translation>
    </message>
    <message>
        <source>Mix</source>
        <translation>Mix</translation>
    </message>
    <message>
        <source>Buchstaben</source>
        <translation>Single letters</translation>
    </message>
    <message>
        <source>Wörter</source>
        <translation>Only words</translation>
    </message>
    <message>
        <source>Rahmen zeichnen</source>
        <translation>Draw frames</translation>
    </message>
    <message>
        <source>Mindestschrift +8</source>
        <translation>Smallest font +8</translation>
    </message>
    <message>
        <source>Kathedralen-Fenster</source>
        <translation>Cathedral window</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>Set</translation>
    </message>
    <message>
        <source>Bleiglas</source>
        <translation>Lead glass</translation>
    </message>
    <message>
        <source>H.-/V.symmetrisch</source>
        <translation>H./V. symmetric</translation>
    </message>
    <message>
        <source>Tiffany-Rahmen</source>
        <translation>Tiffany border</translation>
    </message>
    <message>
        <source>Sonnenringe</source>
        <translation>Sun rings</translation>
    </message>
    <message>
        <source>Rosette</source>
        <translation>Rosette</translation>
    </message>
    <message>
        <source>Blume</source>
        <translation>Flower</translation>
    </message>
    <message>
        <source>Pflanzen</source>
        <translation>Plants</translation>
    </message>
    <message>
        <source>Kristalle</source>
        <translation>Crystals</translation>
    </message>
    <message>
        <source> Formen </source>
        <translation> Forms </translation>
    </message>
    <message>
        <source>Ohne</source>
        <translation>None</translation>
    </message>
    <message>
        <source>Sonne</source>
        <translation>Sun</translation>
    </message>
    <message>
        <source>Rahmendicke</source>
        <translation>Border width</translation>
    </message>
    <message>
        <source>Grössen-Korrektur %</source>
        <translation>Size correction %</translation>
    </message>
    <message>
        <source>Neue Werte</source>
        <translation>New values</translation>
    </message>
    <message>
        <source>Fotomosaik</source>
        <translation>Photo mosaic</translation>
    </message>
    <message>
        <source>H. symmetrisch</source>
        <translation>H. symmetric</translation>
    </message>
    <message>
        <source>V. symmetrisch</source>
        <translation>V. symmetric</translation>
    </message>
    <message>
        <source> Quelle </source>
        <translation> Source </translation>
    </message>
    <message>
        <source>Datei</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Dateiverzeichnis</source>
        <translation>Directory</translation>
    </message>
    <message>
        <source>Dupl.</source>
        <translation>Dupl.</translation>
    </message>
    <message>
        <source>Unterverzeichnisse</source>
        <translation>Subdirectories</translation>
    </message>
    <message>
        <source>Bild-Mix</source>
        <translation>Picture mix</translation>
    </message>
    <message>
        <source>Kleine Bilder zulassen</source>
        <translation>Allow small pictures</translation>
    </message>
    <message>
        <source>Kleine Bilder kacheln</source>
        <translation>Tile small pictures</translation>
    </message>
    <message>
        <source>Bilder verkleinern</source>
        <translation>Shrink pictures</translation>
    </message>
    <message>
        <source>Bilder zentrieren</source>
        <translation>Center pictures</translation>
    </message>
    <message>
        <source>Kolorieren</source>
        <translation>Colorize</translation>
    </message>
    <message>
        <source>Farbton</source>
        <translation>Hue</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Saturationstart</source>
        <translation>Saturation start</translation>
    </message>
    <message>
        <source>Saturationrange</source>
        <translation>Saturation range</translation>
    </message>
    <message>
        <source>Graustufen</source>
        <translation>Greyscale</translation>
    </message>
    <message>
        <source>Alle Rahmen füllen</source>
        <translation>Fill all frames</translation>
    </message>
    <message>
        <source>Nur freie Rahmen füllen</source>
        <translation>Fill only empty frames</translation>
    </message>
    <message>
        <source>Dateinamen anzeigen</source>
        <translation>Show filename</translation>
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
        <translation>Blur small</translation>
    </message>
    <message>
        <source>Blur große</source>
        <translation>Blur big</translation>
    </message>
    <message>
        <source>Blur große (stark)</source>
        <translation>Blur big (strong)</translation>
    </message>
    <message>
        <source>Blur zufällig</source>
        <translation>Blur randomized</translation>
    </message>
    <message>
        <source>Blur alle</source>
        <translation>Blur all</translation>
    </message>
    <message>
        <source>Kolorieren zufällig</source>
        <translation>Colorize randomly</translation>
    </message>
    <message>
        <source>Graustufen zufällig</source>
        <translation>Greyscale randomly</translation>
    </message>
    <message>
        <source>Nur Randbilder</source>
        <translation>Only borderpictures</translation>
    </message>
    <message>
        <source>Nur Innenbilder</source>
        <translation>Only centerpictures</translation>
    </message>
    <message>
        <source>Foto-Würfel</source>
        <translation>Photo cube</translation>
    </message>
    <message>
        <source>Drehung</source>
        <translation>Turn</translation>
    </message>
    <message>
        <source>Blick von oben</source>
        <translation>View from above</translation>
    </message>
    <message>
        <source>Licht</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>von links</source>
        <translation>from the left</translation>
    </message>
    <message>
        <source>von rechts</source>
        <translation>from the right</translation>
    </message>
</context>
<context>
    <name>Decode</name>
    <message>
        <source>Das Bild ist %1 x %2 Pixel groß, mehr als %3 Pixel an einer Seite.</source>
        <translation>The picture is %1 x %2 pixels, more than %3 pixels on a side.</translation>
    </message>
    <message>
        <source>Die Datei gibt %1 x %2 Pixel an, mehr als ihre Daten fassen können.</source>
        <translation>The file claims %1 x %2 pixels, more than its data can hold.</translation>
    </message>
    <message>
        <source>Die Datei ist kein Bild im Format BMP, GIF, JPEG oder PNG.</source>
        <translation>The file is not a BMP, GIF, JPEG or PNG picture.</translation>
    </message>
    <message>
        <source>Die Datei gibt die Größe %1 x %2 Pixel an.</source>
        <translation>The file gives the size %1 x %2 pixels.</translation>
    </message>
</context>
<context>
    <name>Fixings</name>
    <message>
        <source>fixiert</source>
        <translation>fixed</translation>
    </message>
    <message>
        <source>nicht fixiert</source>
        <translation>not fixed</translation>
    </message>
</context>
<context>
    <name>Geometry</name>
    <message>
        <source>Die Größe %1 x %2 ist nicht möglich: jede Seite muss zwischen 1 und %3 Pixeln liegen.</source>
        <translation>The size %1 x %2 is not possible: each side must lie between 1 and %3 pixels.</translation>
    </message>
    <message>
        <source>Zum Freistellen ziehen Sie zuerst eine Auswahl auf.</source>
        <translation>To crop, first draw a selection.</translation>
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
        <translation>STO&amp;P !</translation>
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
        <translation>Boxes, Lines</translation>
    </message>
    <message>
        <source>Foto &amp;&amp; Künstler</source>
        <translation>Photo &amp;&amp; Arts</translation>
    </message>
    <message>
        <source>Runde Graphen</source>
        <translation>Round graphs</translation>
    </message>
    <message>
        <source>pOp - Art </source>
        <translation>pOp - Art </translation>
    </message>
    <message>
        <source>Gradienten</source>
        <translation>Gradients</translation>
    </message>
    <message>
        <source>Balken &amp;&amp; Kurven</source>
        <translation>Bars &amp;&amp; Waves</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Ränder</source>
        <translation>Borders</translation>
    </message>
    <message>
        <source>Formen</source>
        <translation>Forms</translation>
    </message>
    <message>
        <source>Papiermuster</source>
        <translation>Papers</translation>
    </message>
</context>
<context>
    <name>LoadImage</name>
    <message>
        <source>Die Datei %1 gibt es nicht.</source>
        <translation>The file %1 does not exist.</translation>
    </message>
    <message>
        <source>Bild automatisch einpassen?</source>
        <translation>Fit picture automatically?</translation>
    </message>
    <message>
        <source>Fehlerhaftes Bild - Siehe Statusbar!</source>
        <translation>Corrupt image - See Statusbar!</translation>
    </message>
    <message>
        <source>Fehlerhaftes Bild</source>
        <translation>Corrupt image</translation>
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
        <translation>Output stopped! Please confirm.</translation>
    </message>
    <message>
        <source>Sie haben keine Grafikoption ausgewählt!</source>
        <translation>Please select a graficoption!</translation>
    </message>
    <message>
        <source>Eine Trennlinie malt nichts.</source>
        <translation>A separator paints nothing.</translation>
    </message>
    <message>
        <source>„%1“ malt noch nichts: sein Maler ist noch nicht eingebaut.</source>
        <translation>&quot;%1&quot; paints nothing yet: its painter is not built in.</translation>
    </message>
    <message>
        <source>Startwert %1</source>
        <translation>Seed %1</translation>
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
        <translation>Wrong fileformat for passepartouts.</translation>
    </message>
    <message>
        <source>Die Passepartout-Datei ist beschädigt (%1). Sie bleibt, wie sie ist.</source>
        <translation>The passepartout file is damaged (%1). It is left as it is.</translation>
    </message>
    <message>
        <source>die Anzahl fehlt</source>
        <translation>the count is missing</translation>
    </message>
    <message>
        <source>%1 Sets angegeben</source>
        <translation>%1 sets declared</translation>
    </message>
    <message>
        <source>Set %1 ohne Namen</source>
        <translation>set %1 without a name</translation>
    </message>
    <message>
        <source>die Datei endet in Set %1</source>
        <translation>the file ends inside set %1</translation>
    </message>
    <message>
        <source>%1 Bytes nach dem letzten Set</source>
        <translation>%1 bytes after the last set</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gelesen werden: %2</source>
        <translation>The file %1 cannot be read: %2</translation>
    </message>
</context>
<context>
    <name>PicMosaik</name>
    <message>
        <source>Ungültiges Bild </source>
        <translation>No valid picture </translation>
    </message>
    <message>
        <source>Verwenden Sie bitte den [...]-Befehl.</source>
        <translation>Please use the [...] command.</translation>
    </message>
    <message>
        <source>Wählen Sie bitte zuerst ein Bild aus!</source>
        <translation>Please choose a picture first!</translation>
    </message>
    <message>
        <source>Stellen Sie bitte zuerst ein Bildverzeichnis ein!</source>
        <translation>Please set a picture directory first!</translation>
    </message>
    <message>
        <source>Kann keine gültigen Bilder finden in </source>
        <translation>No valid pictures in </translation>
    </message>
    <message>
        <source> pictures</source>
        <translation> pictures</translation>
    </message>
    <message>
        <source>Suche Bilder in </source>
        <translation>Searching pictures in </translation>
    </message>
    <message>
        <source>Anzahl Bilder </source>
        <translation>Number of pictures </translation>
    </message>
    <message>
        <source> in Verzeichnisauswahl kleiner als Anzahl Rahmen </source>
        <translation> in selected directory less than number of frames </translation>
    </message>
    <message>
        <source>. Reduzieren Sie die Splitanzahl oder verwenden Sie die Option [X] Duplikate zulassen!</source>
        <translation>. Reduce the splitsizes or activate the option [X] Allow duplicates!</translation>
    </message>
    <message>
        <source>Zu wenig Bilder in </source>
        <translation>Not enough pictures in </translation>
    </message>
    <message>
        <source> um ohne Duplikate zu arbeiten. Reduzieren Sie bitte die Anzahl der Splits.</source>
        <translation> to work without duplicates. Please reduce the number of splits.</translation>
    </message>
    <message>
        <source>Die Bilder in </source>
        <translation>The pictures in </translation>
    </message>
    <message>
        <source> sind zu klein für den aktuellen Ausschnitt! Verwenden Sie die Option: Kleine Bilder zulassen.</source>
        <translation> are too small for the current cut! Use the option: Allow small pictures.</translation>
    </message>
    <message>
        <source>Das geladene Bild ist zu klein für den aktuellen Ausschnitt! Verwenden Sie die Option: Kleine Bilder zulassen.</source>
        <translation>The loaded picture is too small for the current cut! Use the option: Allow small pictures.</translation>
    </message>
    <message>
        <source>Kein Dateiname für </source>
        <translation>No filename for </translation>
    </message>
    <message>
        <source> von </source>
        <translation> of </translation>
    </message>
    <message>
        <source>Max. Splitgrößen B/H = </source>
        <translation>Max. Splitsizes W/H = </translation>
    </message>
    <message>
        <source> --- Max. Treffer-Bildgröße B/H = </source>
        <translation> --- Max. hitted picturesize W/H = </translation>
    </message>
    <message>
        <source>Diese Aufteilung ergibt sehr große Einzelbildgrößen.</source>
        <translation>This splitting results to very large picture size frames.</translation>
    </message>
    <message>
        <source>Splitvorschlag: </source>
        <translation>Split suggestion: </translation>
    </message>
    <message>
        <source>Wollen Sie abbrechen?</source>
        <translation>Do you want to cancel?</translation>
    </message>
    <message>
        <source>Diese Bildgröße erfordert einige Berechnungszeit. Sorgen Sie bitte unbedingt dafür, daß die Quellbilder groß genug für dieses Mosaik sind, oder aktivieren Sie die Option [] Kleine Bilder zulassen!</source>
        <translation>This mosaic will take some time for calculations. Please make sure that the source pictures are not too small, or active the option [] Allow small pictures!</translation>
    </message>
</context>
<context>
    <name>PictureFormats</name>
    <message>
        <source>Freies Format ...</source>
        <translation>Free format ...</translation>
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
        <translation>DIN-A4 vertical (504 x 712)</translation>
    </message>
    <message>
        <source>DIN-A4 Querformat (712 x 504)</source>
        <translation>DIN-A4 horizontal (712 x 504)</translation>
    </message>
    <message>
        <source>20 x 30 Hochformat (475 x 712)</source>
        <translation>20 x 30 vertical (475 x 712)</translation>
    </message>
    <message>
        <source>30 x 20 Querformat (712 x 475)</source>
        <translation>30 x 20 horizontal (712 x 475)</translation>
    </message>
    <message>
        <source>24 x 30 Hochformat (570 x 712)</source>
        <translation>24 x 30 vertical (570 x 712)</translation>
    </message>
    <message>
        <source>30 x 24 Querformat (712 x 570)</source>
        <translation>30 x 24 horizontal (712 x 570)</translation>
    </message>
</context>
<context>
    <name>Plasma</name>
    <message>
        <source>Tunnel angehalten</source>
        <translation>Tunnel stopped</translation>
    </message>
    <message>
        <source>Tunnel läuft</source>
        <translation>Tunnel running</translation>
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
        <translation>The file ends before line %1</translation>
    </message>
    <message>
        <source>Die Zahl %1 in Zeile %2 ist zu groß</source>
        <translation>The number %1 in line %2 is too large</translation>
    </message>
    <message>
        <source>Die Datei %1 lässt sich nicht öffnen</source>
        <translation>The file %1 cannot be opened</translation>
    </message>
    <message>
        <source>Falsches Dateiformat!</source>
        <translation>Wrong filetype!</translation>
    </message>
    <message>
        <source>Der Bildpfad %1 ist auf diesem PC nicht verfügbar. Stellen Sie bitte einen korrekten Pfad mit dem Befehl [...] ein.</source>
        <translation>The directory %1 is not available on this PC. Please set a correct path with the command [...].</translation>
    </message>
    <message>
        <source>Die Präsentation wurde mit der Bildschirmauflösung %1/%2 erstellt. Eine korrekte Darstellung mit der aktuellen Bildschirmauflösung von %3/%4 ist deshalb nicht möglich!</source>
        <translation>The presentation was created with a screen resolution of %1/%2. A correct presentation with the actual screen resolution of %3/%4 is not possible!</translation>
    </message>
    <message>
        <source>Bildpräsentation laden</source>
        <translation>Load picture presentation</translation>
    </message>
    <message>
        <source>Erzeugen Sie bitte zuerst mit dem Befehl [Paint &lt;F5&gt;] eine Bildpräsentation!</source>
        <translation>Please create a picture presentation first with the command [Paint &lt;F5&gt;]!</translation>
    </message>
    <message>
        <source>Bildpräsentation speichern</source>
        <translation>Save picture presentation</translation>
    </message>
    <message>
        <source>Starten Sie die geladene Präsentation mit dem Befehlsknopf [Repaint letztes Set]. Verwenden Sie nicht den Befehl [Paint &lt;F5&gt;]!</source>
        <translation>Start the loaded presentation with the button [Repaint last set]. Do not use the command [Paint &lt;F5&gt;]!</translation>
    </message>
</context>
<context>
    <name>Recipe</name>
    <message>
        <source>Keine Malanweisung: %1</source>
        <translation>Not a paint command: %1</translation>
    </message>
    <message>
        <source>Die Malanweisung darf %1 nicht enthalten: %2</source>
        <translation>A paint command of a recipe must not hold %1: %2</translation>
    </message>
</context>
<context>
    <name>Rescue</name>
    <message>
        <source>Nach dem letzten Beenden von Tarvelle-Forge gibt es noch ein wiederherstellbares Undobild. Dies ist die letzte Chance das Bild zu retten. Soll das Bild gerettet werden?</source>
        <translation>Since Tarvelle-Forge was last closed, a recoverable undo picture has been left over. This is the last chance to save the picture. Shall the picture be saved?</translation>
    </message>
    <message>
        <source>Der Pfad/Name des geretteten Bildes ist %1</source>
        <translation>The path/name of the saved picture is %1</translation>
    </message>
    <message>
        <source>Nach dem letzten Beenden von Tarvelle-Forge gibt es noch eine wiederherstellbare Undobildmaske. Dies ist die letzte Chance das Bild zu retten. Soll die Bildmaske gerettet werden?</source>
        <translation>Since Tarvelle-Forge was last closed, a recoverable undo picture mask has been left over. This is the last chance to save the picture. Shall the picture mask be saved?</translation>
    </message>
    <message>
        <source>Der Pfad/Name des geretteten Bildmaske ist %1</source>
        <translation>The path/name of the saved picture mask is %1</translation>
    </message>
</context>
<context>
    <name>SafeFile</name>
    <message>
        <source>Bilder werden als .png, .jpg oder .bmp gespeichert: %1</source>
        <translation>Pictures are saved as .png, .jpg or .bmp: %1</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden: den Ordner %2 gibt es nicht.</source>
        <translation>The file %1 cannot be saved: the folder %2 does not exist.</translation>
    </message>
    <message>
        <source>Die Datei %1 ist schreibgeschützt und bleibt, wie sie war.</source>
        <translation>The file %1 is read-only and stays as it was.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden: in den Ordner %2 darf nicht geschrieben werden.</source>
        <translation>The file %1 cannot be saved: the folder %2 may not be written to.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden: der Datenträger ist voll. Eine vorhandene Datei bleibt, wie sie war.</source>
        <translation>The file %1 cannot be saved: the disk is full. A file already there stays as it was.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht gespeichert werden (%2). Eine vorhandene Datei bleibt, wie sie war.</source>
        <translation>The file %1 cannot be saved (%2). A file already there stays as it was.</translation>
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
        <translation>Superformat: %1 x %2 px = %3 x %4 cm at %5 DPI, %6 MB</translation>
    </message>
    <message>
        <source>Memory problem creating Superimage!</source>
        <translation>Memory problem creating Superimage!</translation>
    </message>
    <message>
        <source>Superformat %1 x %2 wird angelegt ...</source>
        <translation>Creating Superformat %1 x %2 ...</translation>
    </message>
</context>
<context>
    <name>SystemPalettes</name>
    <message>
        <source>Regenbogen</source>
        <translation>Rainbow</translation>
    </message>
    <message>
        <source>Pastell</source>
        <translation>Pastels</translation>
    </message>
    <message>
        <source>Doppelter Regenbogen</source>
        <translation>Double rainbow</translation>
    </message>
    <message>
        <source>Farbbänder</source>
        <translation>Colour bands</translation>
    </message>
    <message>
        <source>Graustufen</source>
        <translation>Greys</translation>
    </message>
    <message>
        <source>Graue Wellen</source>
        <translation>Grey waves</translation>
    </message>
    <message>
        <source>Sepia</source>
        <translation>Sepia</translation>
    </message>
    <message>
        <source>Cyanotypie</source>
        <translation>Cyanotype</translation>
    </message>
    <message>
        <source>Feuer</source>
        <translation>Fire</translation>
    </message>
    <message>
        <source>Lava</source>
        <translation>Lava</translation>
    </message>
    <message>
        <source>Eis</source>
        <translation>Ice</translation>
    </message>
    <message>
        <source>Gletscher</source>
        <translation>Glacier</translation>
    </message>
    <message>
        <source>Meer</source>
        <translation>Sea</translation>
    </message>
    <message>
        <source>Tiefsee</source>
        <translation>Deep sea</translation>
    </message>
    <message>
        <source>Erde</source>
        <translation>Earth</translation>
    </message>
    <message>
        <source>Wüste</source>
        <translation>Desert</translation>
    </message>
    <message>
        <source>Wald</source>
        <translation>Forest</translation>
    </message>
    <message>
        <source>Herbst</source>
        <translation>Autumn</translation>
    </message>
    <message>
        <source>Frühling</source>
        <translation>Spring</translation>
    </message>
    <message>
        <source>Sonnenuntergang</source>
        <translation>Sunset</translation>
    </message>
    <message>
        <source>Nordlicht</source>
        <translation>Northern lights</translation>
    </message>
    <message>
        <source>Nacht</source>
        <translation>Night</translation>
    </message>
    <message>
        <source>Wärmebild</source>
        <translation>Thermal</translation>
    </message>
    <message>
        <source>Kupfer</source>
        <translation>Copper</translation>
    </message>
    <message>
        <source>Gold</source>
        <translation>Gold</translation>
    </message>
    <message>
        <source>Silber</source>
        <translation>Silver</translation>
    </message>
    <message>
        <source>Neon</source>
        <translation>Neon</translation>
    </message>
    <message>
        <source>Bonbon</source>
        <translation>Candy</translation>
    </message>
    <message>
        <source>Blau und Orange</source>
        <translation>Blue and orange</translation>
    </message>
    <message>
        <source>Rot und Cyan</source>
        <translation>Red and cyan</translation>
    </message>
    <message>
        <source>Violett und Gelb</source>
        <translation>Violet and yellow</translation>
    </message>
    <message>
        <source>Grün und Magenta</source>
        <translation>Green and magenta</translation>
    </message>
    <message>
        <source>Psychedelisch</source>
        <translation>Psychedelic</translation>
    </message>
    <message>
        <source>Interferenz</source>
        <translation>Interference</translation>
    </message>
</context>
<context>
    <name>TempFiles</name>
    <message>
        <source>Das neue Verzeichnis %1 wurde erstellt.</source>
        <translation>The new directory %1 was created.</translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Klicken Sie in das Bild: dort steht der Text.</source>
        <translation>Click into the picture: the text goes there.</translation>
    </message>
</context>
<context>
    <name>TextFile</name>
    <message>
        <source>Die Textdatei %1 gibt es nicht.</source>
        <translation>The text file %1 does not exist.</translation>
    </message>
    <message>
        <source>Die Textdatei %1 ist zu groß (höchstens 1 MB).</source>
        <translation>The text file %1 is too large (1 MB at most).</translation>
    </message>
    <message>
        <source>Die Textdatei %1 kann nicht gelesen werden: %2</source>
        <translation>The text file %1 cannot be read: %2</translation>
    </message>
</context>
<context>
    <name>Tools</name>
    <message>
        <source>&amp;Ausschneiden</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>&amp;Kopieren</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>&amp;Einfügen...</source>
        <translation>&amp;Paste...</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Alles aus&amp;wählen</source>
        <translation>Select &amp;all</translation>
    </message>
    <message>
        <source>Auswahl auf&amp;heben</source>
        <translation>Des&amp;elect</translation>
    </message>
    <message>
        <source>Auswahl in Datei &amp;speichern...</source>
        <translation>Save s&amp;election to file...</translation>
    </message>
    <message>
        <source>&amp;1 Links oben</source>
        <translation>&amp;1 Top left</translation>
    </message>
    <message>
        <source>&amp;2 Rechts oben</source>
        <translation>&amp;2 Top right</translation>
    </message>
    <message>
        <source>&amp;3 Zentrieren</source>
        <translation>&amp;3 Centre</translation>
    </message>
    <message>
        <source>&amp;4 Links unten</source>
        <translation>&amp;4 Bottom left</translation>
    </message>
    <message>
        <source>&amp;5 Rechts unten</source>
        <translation>&amp;5 Bottom right</translation>
    </message>
    <message>
        <source>Die Zwischenablage enthält kein Bild.</source>
        <translation>The clipboard holds no picture.</translation>
    </message>
    <message>
        <source>Auswahl</source>
        <translation>Selection</translation>
    </message>
    <message>
        <source>Ein Rechteck aus dem Bild ausschneiden</source>
        <translation>Cut a rectangle out of the picture</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Eine Ellipse aus dem Bild ausschneiden (Umschalt: ein Kreis)</source>
        <translation>Cut an ellipse out of the picture (Shift: a circle)</translation>
    </message>
    <message>
        <source>Füllen</source>
        <translation>Fill</translation>
    </message>
    <message>
        <source>Eine Fläche gleicher Farbe füllen</source>
        <translation>Fill an area of one colour</translation>
    </message>
    <message>
        <source>Pipette</source>
        <translation>Pipette</translation>
    </message>
    <message>
        <source>Farbe aufnehmen: links Vordergrund, rechts Hintergrund</source>
        <translation>Pick a colour: left foreground, right background</translation>
    </message>
    <message>
        <source>Linie</source>
        <translation>Line</translation>
    </message>
    <message>
        <source>Eine gerade Linie ziehen</source>
        <translation>Draw a straight line</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Shape</translation>
    </message>
    <message>
        <source>Rechteck, Kreis oder Ellipse aufziehen</source>
        <translation>Drag a rectangle, circle or ellipse</translation>
    </message>
    <message>
        <source>Stift</source>
        <translation>Pen</translation>
    </message>
    <message>
        <source>Freihand zeichnen</source>
        <translation>Draw freehand</translation>
    </message>
    <message>
        <source>Pinsel</source>
        <translation>Brush</translation>
    </message>
    <message>
        <source>Airbrush, Pinsel, Weichzeichnen und Schärfen von Hand</source>
        <translation>Airbrush, brush, soften and sharpen by hand</translation>
    </message>
    <message>
        <source>Textposition</source>
        <translation>Text position</translation>
    </message>
    <message>
        <source>Ein Klick setzt die Position des Textes und malt ihn</source>
        <translation>A click sets the position of the text and paints it</translation>
    </message>
</context>
<context>
    <name>frmPassepGen</name>
    <message>
        <source>&lt;-- Neuer Eintrag --&gt;</source>
        <translation>&lt;-- New entry --&gt;</translation>
    </message>
    <message>
        <source>Geben Sie bitte einen Namen für das neue Set ein.</source>
        <translation>Enter a name for the new set please.</translation>
    </message>
    <message>
        <source>Geben Sie bitte einen Namen für das Set ein.</source>
        <translation>Enter a name for the set please.</translation>
    </message>
    <message>
        <source>Name existiert schon!</source>
        <translation>Name is existing!</translation>
    </message>
    <message>
        <source>Der Name kann so nicht gespeichert werden: erlaubt sind Buchstaben, Ziffern und Zeichen westeuropäischer Sprachen.</source>
        <translation>The name cannot be stored like this: letters, digits and the characters of Western European languages are allowed.</translation>
    </message>
    <message>
        <source>Sie haben keine Werte eingegeben!</source>
        <translation>Please enter some values!</translation>
    </message>
    <message>
        <source>Die Datei %1 enthält keine lesbaren Passepartouts. Soll sie durch die Sets dieses Fensters ersetzt werden?</source>
        <translation>The file %1 holds no readable passepartouts. Do you want to replace it with the sets of this window?</translation>
    </message>
</context>
<context>
    <name>tf::ui::AnimationDialog</name>
    <message>
        <source>Animation speichern</source>
        <translation>Save animation</translation>
    </message>
    <message>
        <source>endlos</source>
        <translation>endless</translation>
    </message>
    <message>
        <source>Bilder</source>
        <translation>Frames</translation>
    </message>
    <message>
        <source>Bilder je Sekunde</source>
        <translation>Frames per second</translation>
    </message>
    <message>
        <source>Wiederholungen</source>
        <translation>Repetitions</translation>
    </message>
</context>
<context>
    <name>tf::ui::BlurizeDialog</name>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>tf::ui::ColourDialogDock</name>
    <message>
        <source>Farben</source>
        <translation>Colours</translation>
    </message>
    <message>
        <source>Vordergrund</source>
        <translation>Foreground</translation>
    </message>
    <message>
        <source>Hintergrund</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>Rand</source>
        <translation>Border</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: Textfarbe</source>
        <translation>Double click: choose a colour; right button: text colour</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: Texthintergrund</source>
        <translation>Double click: choose a colour; right button: text background</translation>
    </message>
    <message>
        <source>Doppelklick: Randfarbe wählen</source>
        <translation>Double click: choose the border colour</translation>
    </message>
    <message>
        <source>Vorder- und Hintergrundfarbe tauschen</source>
        <translation>Exchange foreground and background colour</translation>
    </message>
    <message>
        <source>Hintergrundfarbe gleich Vordergrundfarbe</source>
        <translation>Background colour equal to foreground colour</translation>
    </message>
    <message>
        <source>Links: Vordergrund, mit Umschalt auch Rand, mit Strg nur Rand; rechts: Hintergrund</source>
        <translation>Left: foreground, with Shift also border, with Ctrl border only; right: background</translation>
    </message>
    <message>
        <source>Zufallsfarben</source>
        <translation>Random colors</translation>
    </message>
    <message>
        <source>Zufallswerte</source>
        <translation>Random values</translation>
    </message>
    <message>
        <source>Palette sperren</source>
        <translation>Lock palette</translation>
    </message>
    <message>
        <source>Farbtabelle</source>
        <translation>Colour table</translation>
    </message>
    <message>
        <source>Z.-Duotones</source>
        <translation>R.-Duotones</translation>
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
        <translation>Hue/Saturation</translation>
    </message>
    <message>
        <source>Auswahl:</source>
        <translation>Selection:</translation>
    </message>
    <message>
        <source>Monochrome</source>
        <translation>Monochrome</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Hue:</source>
        <translation>Hue:</translation>
    </message>
    <message>
        <source>Sättigung:</source>
        <translation>Saturation:</translation>
    </message>
</context>
<context>
    <name>tf::ui::DiaShowWindow</name>
    <message>
        <source>Dia-Show</source>
        <translation>Slide show</translation>
    </message>
    <message>
        <source>Bei Klick auf einen Dateinamen wird er gesichert</source>
        <translation>A click on a file name saves it</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>%1 – nicht gesichert: %2</source>
        <translation>%1 – not saved: %2</translation>
    </message>
    <message>
        <source>%1 – gesichert</source>
        <translation>%1 – saved</translation>
    </message>
    <message>
        <source>Weiter</source>
        <translation>Go on</translation>
    </message>
    <message>
        <source>Nächstes Bild</source>
        <translation>Next picture</translation>
    </message>
    <message>
        <source>Vorheriges Bild</source>
        <translation>Previous picture</translation>
    </message>
    <message>
        <source>Vollbild beenden</source>
        <translation>Leave full screen</translation>
    </message>
    <message>
        <source>Vollbild</source>
        <translation>Full screen</translation>
    </message>
    <message>
        <source>Schließen</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>tf::ui::FeatDialogDock</name>
    <message>
        <source>Optionen</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Dieser Grafiktyp liest nur die allgemeinen Optionen des Maldialogs.</source>
        <translation>This graphics type reads only the general options of the paint dialog.</translation>
    </message>
    <message>
        <source>Setze Position ...</source>
        <translation>Set position ...</translation>
    </message>
    <message>
        <source>Der nächste Klick in das Bild setzt die linke obere Ecke des Textes.</source>
        <translation>The next click into the picture sets the top left corner of the text.</translation>
    </message>
    <message>
        <source>Setze Mitte ...</source>
        <translation>Set middle ...</translation>
    </message>
    <message>
        <source>Der nächste Klick in das Bild setzt die Mitte des Textes.</source>
        <translation>The next click into the picture sets the middle of the text.</translation>
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
        <translation>Hue/Saturation...</translation>
    </message>
</context>
<context>
    <name>tf::ui::GammaDialog</name>
    <message>
        <source>Klicken Sie auf das Bild, um die Farbe zu wählen.</source>
        <translation>Click on the picture to choose the colour.</translation>
    </message>
    <message>
        <source>Kanäle</source>
        <translation>Channels</translation>
    </message>
    <message>
        <source>Rot</source>
        <translation>Red</translation>
    </message>
    <message>
        <source>Grün</source>
        <translation>Green</translation>
    </message>
    <message>
        <source>Blau</source>
        <translation>Blue</translation>
    </message>
    <message>
        <source>Invertieren</source>
        <translation>Invert</translation>
    </message>
    <message>
        <source>Löschen</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Farbe von</source>
        <translation>Color from</translation>
    </message>
    <message>
        <source>Farbe nach/Hintergrund</source>
        <translation>Color to/back</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>an</source>
        <translation>on</translation>
    </message>
    <message>
        <source>aus</source>
        <translation>off</translation>
    </message>
    <message>
        <source>Größe anpassen</source>
        <translation>Fit size</translation>
    </message>
    <message>
        <source>Hintergrund löschen</source>
        <translation>Clear background</translation>
    </message>
    <message>
        <source>Vergrößern</source>
        <translation>Zoom in</translation>
    </message>
    <message>
        <source>Verkleinern</source>
        <translation>Zoom out</translation>
    </message>
    <message>
        <source>Doppelklick: Wert eingeben</source>
        <translation>Double-click: type the value</translation>
    </message>
</context>
<context>
    <name>tf::ui::GetStepsDialog</name>
    <message>
        <source>Schritte</source>
        <translation>Steps</translation>
    </message>
    <message>
        <source>(%1 bis %2)</source>
        <translation>(%1 to %2)</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Bitte geben Sie eine Zahl von %1 bis %2 ein.</source>
        <translation>Please enter a number from %1 to %2.</translation>
    </message>
</context>
<context>
    <name>tf::ui::GrafDialogDock</name>
    <message>
        <source>(keine Vorschau)</source>
        <translation>(no preview)</translation>
    </message>
    <message>
        <source>Malen &lt;F5&gt;</source>
        <translation>Paint &lt;F5&gt;</translation>
    </message>
    <message>
        <source>Vorheriger Typ der Gruppe, dann malen</source>
        <translation>Previous type of the group, then paint</translation>
    </message>
    <message>
        <source>Nächster Typ der Gruppe, dann malen</source>
        <translation>Next type of the group, then paint</translation>
    </message>
    <message>
        <source>Fixieren</source>
        <translation>Fix</translation>
    </message>
    <message>
        <source>Restaurieren</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Clip</source>
        <translation>Clip</translation>
    </message>
    <message>
        <source>Das Bild in die Zwischenablage kopieren</source>
        <translation>Copy the picture to the clipboard</translation>
    </message>
</context>
<context>
    <name>tf::ui::MainWindow</name>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Neu</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>&amp;Undo / Redo</source>
        <translation>&amp;Undo / Redo</translation>
    </message>
    <message>
        <source>&amp;Beenden</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Grafikmodus</source>
        <translation>&amp;Graphics mode</translation>
    </message>
    <message>
        <source>Werkzeugleiste</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Alle Optionen auf ihre Vorgaben setzen</source>
        <translation>Set all options to their defaults</translation>
    </message>
    <message>
        <source>Drucken</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert.</source>
        <translation>The picture has been changed and its current state has not been saved yet.</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie trotzdem beenden?</source>
        <translation>The picture has been changed and its current state has not been saved yet. Do you want to exit anyway?</translation>
    </message>
    <message>
        <source>Fixieren  &lt;F4&gt;</source>
        <translation>Fix  &lt;F4&gt;</translation>
    </message>
    <message>
        <source>Fixieren</source>
        <translation>Fix</translation>
    </message>
    <message>
        <source>Restaurieren</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>&amp;Optionen ...</source>
        <translation>&amp;Options ...</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Save picture</translation>
    </message>
    <message>
        <source>Malen</source>
        <translation>Paint</translation>
    </message>
    <message>
        <source>Als Befehlszeile kopieren</source>
        <translation>Copy as command line</translation>
    </message>
    <message>
        <source>Den Befehl, der das letzte Bild wieder malt, in die Zwischenablage kopieren</source>
        <translation>Copy the command that paints the last picture again to the clipboard</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>Es wurde noch nichts gemalt.</source>
        <translation>Nothing has been painted yet.</translation>
    </message>
    <message>
        <source>Befehlszeile in die Zwischenablage kopiert.</source>
        <translation>Command line copied to the clipboard.</translation>
    </message>
    <message>
        <source>&amp;Farben</source>
        <translation>&amp;Colours</translation>
    </message>
    <message>
        <source>&amp;Palette laden...</source>
        <translation>Load &amp;palette...</translation>
    </message>
    <message>
        <source>Syste&amp;mpaletten...</source>
        <translation>Syste&amp;m palettes...</translation>
    </message>
    <message>
        <source>Palette laden</source>
        <translation>Load palette</translation>
    </message>
    <message>
        <source>JASC-Palette (*.pal)</source>
        <translation>JASC palette (*.pal)</translation>
    </message>
    <message>
        <source>Speichern</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>&amp;Gemaltes löschen</source>
        <translation>&amp;Clear painting</translation>
    </message>
    <message>
        <source>Was auf der gezeigten Auswahl gemalt wurde, wieder löschen</source>
        <translation>Clear what was painted on the shown selection</translation>
    </message>
    <message>
        <source>Bild &amp;leeren</source>
        <translation>Clear &amp;picture</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie das aktuelle Bild verwerfen?</source>
        <translation>The picture was changed and the current state has not been saved. Do you want to discard the current picture?</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>&amp;Importieren...</source>
        <translation>&amp;Import...</translation>
    </message>
    <message>
        <source>&amp;Kachel laden...</source>
        <translation>Load &amp;tile...</translation>
    </message>
    <message>
        <source>&amp;Speichern</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Speichern &amp;unter...</source>
        <translation>Save &amp;as...</translation>
    </message>
    <message>
        <source>Auswahl in Datei &amp;speichern...</source>
        <translation>Save s&amp;election to file...</translation>
    </message>
    <message>
        <source>Bild laden</source>
        <translation>Load picture</translation>
    </message>
    <message>
        <source>Bild importieren</source>
        <translation>Import picture</translation>
    </message>
    <message>
        <source>Web-Background-Bild</source>
        <translation>Web-Background picture</translation>
    </message>
    <message>
        <source>Auswahl speichern</source>
        <translation>Save selection</translation>
    </message>
    <message>
        <source>Soll die Datei %1 überschrieben werden?</source>
        <translation>Do you want to overwrite the file %1 ?</translation>
    </message>
    <message>
        <source>&amp;Passepartouts...</source>
        <translation>&amp;Passe-partouts...</translation>
    </message>
    <message>
        <source>Kachel&amp;ansicht...</source>
        <translation>Tile &amp;viewer...</translation>
    </message>
    <message>
        <source>Bild</source>
        <translation>Picture</translation>
    </message>
    <message>
        <source>Superformat anzeigen</source>
        <translation>Show Superformat</translation>
    </message>
    <message>
        <source>&amp;Text und Schrift...</source>
        <translation>&amp;Text and font...</translation>
    </message>
    <message>
        <source>Werkzeuge</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>Auswahl aus&amp;richten</source>
        <translation>&amp;Align selection</translation>
    </message>
    <message>
        <source>Zwischenablage leeren</source>
        <translation>Empty the clipboard</translation>
    </message>
    <message>
        <source>Sättigung </source>
        <translation>Saturation </translation>
    </message>
    <message>
        <source>Animation speichern...</source>
        <translation>Save animation...</translation>
    </message>
    <message>
        <source>Es gibt keine Animation zum Speichern: starten Sie zuerst den Tunnel des Plasmas.</source>
        <translation>There is no animation to save: start the plasma&apos;s tunnel first.</translation>
    </message>
    <message>
        <source>Animiertes PNG (*.png)</source>
        <translation>Animated PNG (*.png)</translation>
    </message>
    <message>
        <source>Animiertes GIF (*.gif)</source>
        <translation>Animated GIF (*.gif)</translation>
    </message>
    <message>
        <source>Animation speichern</source>
        <translation>Save animation</translation>
    </message>
    <message>
        <source>Animation wird gespeichert...</source>
        <translation>Saving the animation...</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Bild-Prä&amp;sentation</source>
        <translation>Picture pre&amp;sentation</translation>
    </message>
    <message>
        <source>Präsentation &amp;laden...</source>
        <translation>&amp;Load presentation...</translation>
    </message>
    <message>
        <source>Präsentation &amp;speichern...</source>
        <translation>&amp;Save presentation...</translation>
    </message>
</context>
<context>
    <name>tf::ui::MosaikShow</name>
    <message>
        <source>%1 x %2 Pixel</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>Es gibt noch kein Superformat-Bild.</source>
        <translation>There is no Superformat picture yet.</translation>
    </message>
    <message>
        <source>Soll die Datei %1 überschrieben werden?</source>
        <translation>Do you want to overwrite the file %1 ?</translation>
    </message>
    <message>
        <source>Gespeichert: %1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>Das Bild wird mit %1% JPQ - Qualität gespeichert.</source>
        <translation>The picture will be saved with %1% JPQ - quality.</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Save picture</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>All Files (*)</translation>
    </message>
    <message>
        <source>Superformat</source>
        <translation>Superformat</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Speichern als JPEG</source>
        <translation>&amp;Save as JPEG</translation>
    </message>
    <message>
        <source>Speichern andere For&amp;mate...</source>
        <translation>Save other for&amp;mats...</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>&amp;Print...</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;Bearbeiten</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Undo / Redo</source>
        <translation>&amp;Undo / Redo</translation>
    </message>
    <message>
        <source>&amp;Ansicht</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Einpassen</source>
        <translation>&amp;Fit to window</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Ver&amp;größern</source>
        <translation>Zoom &amp;in</translation>
    </message>
    <message>
        <source>Ver&amp;kleinern</source>
        <translation>Zoom &amp;out</translation>
    </message>
</context>
<context>
    <name>tf::ui::OptionsDialog</name>
    <message>
        <source>Systemoptionen</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source> Sonstige </source>
        <translation> Miscellaneous </translation>
    </message>
    <message>
        <source> Sprache </source>
        <translation> Language </translation>
    </message>
    <message>
        <source>Zwischenablage beim Beenden leeren</source>
        <translation>Empty the clipboard on exit</translation>
    </message>
    <message>
        <source> Fixieren / Restaurieren </source>
        <translation> Fix / Restore </translation>
    </message>
    <message>
        <source>Fixierungen beim Beenden löschen</source>
        <translation>Delete fixings on exit</translation>
    </message>
    <message>
        <source>Anzahl der Fixierungen:</source>
        <translation>Number of fixings:</translation>
    </message>
    <message>
        <source>Verzeichnis für temporäre Dateien:</source>
        <translation>Folder for temporary files:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Übernehmen</source>
        <translation>Apply</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>tf::ui::PSelectDialog</name>
    <message>
        <source>Bild öffnen</source>
        <translation>Open picture</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Ver&amp;zeichnis anlegen...</source>
        <translation>Create &amp;directory...</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Ungültiges Bild</source>
        <translation>Invalid picture</translation>
    </message>
    <message>
        <source>Kein gültiger Pfad.</source>
        <translation>No valid path.</translation>
    </message>
    <message>
        <source>Bitte öffnen Sie das Verzeichnis zuerst zum Löschen!</source>
        <translation>Please open directory first for deletion!</translation>
    </message>
    <message>
        <source>Soll das Verzeichnis %1 in den Papierkorb verschoben werden?</source>
        <translation>Move the directory %1 into the trashcan?</translation>
    </message>
    <message>
        <source>Datei löschen</source>
        <translation>Delete file</translation>
    </message>
    <message>
        <source>Kein gültiges Bild.</source>
        <translation>No valid picture.</translation>
    </message>
    <message>
        <source>Soll die Datei %1 in den Papierkorb verschoben werden?</source>
        <translation>Move %1 into the trashcan?</translation>
    </message>
    <message>
        <source>Soll ein Verzeichnis unter %1 angelegt werden?</source>
        <translation>Create a directory below %1?</translation>
    </message>
    <message>
        <source>Verzeichnis anlegen</source>
        <translation>Create directory</translation>
    </message>
    <message>
        <source>Geben Sie bitte einen Verzeichnisnamen ein.</source>
        <translation>Please enter a directoryname.</translation>
    </message>
    <message>
        <source>Neuer Ordner</source>
        <translation>New folder</translation>
    </message>
    <message>
        <source>Kein gültiger Verzeichnisname.</source>
        <translation>No valid directoryname.</translation>
    </message>
</context>
<context>
    <name>tf::ui::PasseDemo</name>
    <message>
        <source>Passepartout</source>
        <translation>Passe-partout</translation>
    </message>
    <message>
        <source>&amp;Datei</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Speichern als JPEG</source>
        <translation>&amp;Save as JPEG</translation>
    </message>
    <message>
        <source>Speichern andere For&amp;mate...</source>
        <translation>Save other for&amp;mats...</translation>
    </message>
    <message>
        <source>&amp;Drucken...</source>
        <translation>&amp;Print...</translation>
    </message>
    <message>
        <source>S&amp;chließen</source>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Das Bild im Passepartout wäre größer als 14000 Pixel. Geben Sie eine kleinere Max. Höhe oder Max. Breite an.</source>
        <translation>The picture in the passepartout would be larger than 14000 pixels. Enter a smaller max. height or max. width.</translation>
    </message>
    <message>
        <source>Soll die Datei %1 überschrieben werden?</source>
        <translation>Do you want to overwrite the file %1 ?</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Save picture</translation>
    </message>
    <message>
        <source>Alle Dateien (*)</source>
        <translation>All Files (*)</translation>
    </message>
</context>
<context>
    <name>tf::ui::PassepGen</name>
    <message>
        <source>Passepartouts</source>
        <translation>Passe-partouts</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source> Rahmen (1 am Bild, 7 außen) </source>
        <translation> Frames (1 at the picture, 7 outside) </translation>
    </message>
    <message>
        <source>Breite</source>
        <translation>Width</translation>
    </message>
    <message>
        <source>Farbe</source>
        <translation>Colour</translation>
    </message>
    <message>
        <source>7 Abschlußfarbe</source>
        <translation>7 Closing colour</translation>
    </message>
    <message>
        <source>Rahmen %1</source>
        <translation>Frame %1</translation>
    </message>
    <message>
        <source> px</source>
        <translation> px</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen</source>
        <translation>Double click: choose a colour</translation>
    </message>
    <message>
        <source>Farbverlauf zwischen den Rahmen</source>
        <translation>Gradient between the frames</translation>
    </message>
    <message>
        <source>Über&amp;nehmen</source>
        <translation>&amp;Apply</translation>
    </message>
    <message>
        <source>&amp;Löschen</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source> Bild </source>
        <translation> Picture </translation>
    </message>
    <message>
        <source>Arbeitsbild verwenden</source>
        <translation>Use work picture</translation>
    </message>
    <message>
        <source> Größenfenster anpassen </source>
        <translation> Fit into size </translation>
    </message>
    <message>
        <source>Max. Höhe</source>
        <translation>Max. height</translation>
    </message>
    <message>
        <source>Max. Breite</source>
        <translation>Max. width</translation>
    </message>
    <message>
        <source>0 = ohne Grenze</source>
        <translation>0 = no limit</translation>
    </message>
    <message>
        <source>Vorschau</source>
        <translation>Preview</translation>
    </message>
    <message>
        <source>Bild laden</source>
        <translation>Load picture</translation>
    </message>
    <message>
        <source>Wählen Sie bitte zuerst ein Bild aus!</source>
        <translation>Please choose a picture first!</translation>
    </message>
    <message>
        <source>Verwenden Sie bitte den [...]-Befehl.</source>
        <translation>Please use the [...] command.</translation>
    </message>
    <message>
        <source>Die Datei %1 gibt es nicht.</source>
        <translation>The file %1 does not exist.</translation>
    </message>
</context>
<context>
    <name>tf::ui::PicImportDialog</name>
    <message>
        <source>Bild anpassen</source>
        <translation>Fit picture</translation>
    </message>
    <message>
        <source>Grössenanpassung</source>
        <translation>Resize</translation>
    </message>
    <message>
        <source>Automatisch einpassen ( mit Verzerrung )</source>
        <translation>Fit automatically ( with distortion )</translation>
    </message>
    <message>
        <source>Seitenverhältnis beibehalten und automatisch anpassen</source>
        <translation>Keep aspect ratio and fit automatically</translation>
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
        <translation>Picture source</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Bild wählen</source>
        <translation>Choose a picture</translation>
    </message>
    <message>
        <source>Bilder</source>
        <translation>Pictures</translation>
    </message>
    <message>
        <source>Bildverzeichnis wählen</source>
        <translation>Choose a picture directory</translation>
    </message>
    <message>
        <source>Die Datei gibt es nicht.</source>
        <translation>The file does not exist.</translation>
    </message>
    <message>
        <source>Das Verzeichnis gibt es nicht.</source>
        <translation>The directory does not exist.</translation>
    </message>
</context>
<context>
    <name>tf::ui::PicturePrintPreview</name>
    <message>
        <source>Druckvorschau</source>
        <translation>Print preview</translation>
    </message>
    <message>
        <source>An Seite anpassen</source>
        <translation>Fit to page</translation>
    </message>
    <message>
        <source>Das Bild so groß drucken, wie die Seite erlaubt, statt in seiner Größe bei %1 dpi</source>
        <translation>Print the picture as large as the page allows instead of at its size at %1 dpi</translation>
    </message>
    <message>
        <source>Keine Druckausgabe möglich!</source>
        <translation>Unable to print!</translation>
    </message>
</context>
<context>
    <name>tf::ui::PictureSizeDialog</name>
    <message>
        <source>Bildgröße</source>
        <translation>Picture size</translation>
    </message>
    <message>
        <source>Arbeitsfläche</source>
        <translation>Canvas size</translation>
    </message>
    <message>
        <source> Pixel</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>Seitenverhältnis beibehalten</source>
        <translation>Keep proportion</translation>
    </message>
    <message>
        <source>Glätten (bilinear)</source>
        <translation>Smooth (bilinear)</translation>
    </message>
    <message>
        <source>Nächster Bildpunkt</source>
        <translation>Nearest pixel</translation>
    </message>
    <message>
        <source>Verfahren:</source>
        <translation>Method:</translation>
    </message>
    <message>
        <source>Lage des Bildes:</source>
        <translation>Place of the picture:</translation>
    </message>
    <message>
        <source>Abbrechen</source>
        <translation>Cancel</translation>
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
        <translation>New picture</translation>
    </message>
    <message>
        <source> Pixel</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Breite:</source>
        <translation>Width:</translation>
    </message>
    <message>
        <source>Höhe:</source>
        <translation>Height:</translation>
    </message>
    <message>
        <source>frei</source>
        <translation>free</translation>
    </message>
    <message>
        <source>quadratisch 1:1</source>
        <translation>square 1:1</translation>
    </message>
    <message>
        <source>quer 4:3</source>
        <translation>landscape 4:3</translation>
    </message>
    <message>
        <source>quer 3:2</source>
        <translation>landscape 3:2</translation>
    </message>
    <message>
        <source>quer 16:9</source>
        <translation>landscape 16:9</translation>
    </message>
    <message>
        <source>hoch 3:4</source>
        <translation>portrait 3:4</translation>
    </message>
    <message>
        <source>hoch 2:3</source>
        <translation>portrait 2:3</translation>
    </message>
    <message>
        <source>hoch DIN (1:1,414)</source>
        <translation>portrait ISO (1:1.414)</translation>
    </message>
    <message>
        <source>Seitenverhältnis:</source>
        <translation>Proportion:</translation>
    </message>
</context>
<context>
    <name>tf::ui::SystemPaletteDialog</name>
    <message>
        <source>Systempaletten</source>
        <translation>System palettes</translation>
    </message>
</context>
<context>
    <name>tf::ui::TextDialog</name>
    <message>
        <source>Text bearbeiten</source>
        <translation>Edit text</translation>
    </message>
    <message>
        <source>Text laden</source>
        <translation>Load text</translation>
    </message>
    <message>
        <source>Textdateien (*.txt);;Alle Dateien (*)</source>
        <translation>Text files (*.txt);;All files (*)</translation>
    </message>
    <message>
        <source>Text und Schrift</source>
        <translation>Text and font</translation>
    </message>
    <message>
        <source>Text (leer: ein lateinischer Mustertext)</source>
        <translation>Text (empty: a Latin sample text)</translation>
    </message>
    <message>
        <source>Text laden ...</source>
        <translation>Load text ...</translation>
    </message>
    <message>
        <source>Zoom ...</source>
        <translation>Zoom ...</translation>
    </message>
    <message>
        <source>Schrift</source>
        <translation>Font</translation>
    </message>
    <message>
        <source>Schriftart</source>
        <translation>Typeface</translation>
    </message>
    <message>
        <source>Text- und Schattenfarbe</source>
        <translation>Text and shadow colour</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: die Vordergrundfarbe</source>
        <translation>Double click: choose a colour; right button: the foreground colour</translation>
    </message>
    <message>
        <source>Doppelklick: Farbe wählen; rechte Maustaste: die Hintergrundfarbe</source>
        <translation>Double click: choose a colour; right button: the background colour</translation>
    </message>
</context>
<context>
    <name>tf::ui::TileViewer</name>
    <message>
        <source>Kachelansicht</source>
        <translation>Tile viewer</translation>
    </message>
    <message>
        <source>Kachel laden...</source>
        <translation>Load tile...</translation>
    </message>
    <message>
        <source>Arbeitsbild neu holen</source>
        <translation>Take the work picture again</translation>
    </message>
    <message>
        <source>Kachelgrenzen</source>
        <translation>Tile edges</translation>
    </message>
    <message>
        <source>Versatz um eine halbe Kachel</source>
        <translation>Shift by half a tile</translation>
    </message>
    <message>
        <source>Kachel %1 x %2</source>
        <translation>Tile %1 x %2</translation>
    </message>
</context>
<context>
    <name>tf::ui::TransformMenu</name>
    <message>
        <source>B&amp;ild</source>
        <translation>P&amp;icture</translation>
    </message>
    <message>
        <source>&amp;Vertikal spiegeln</source>
        <translation>Mirror &amp;vertically</translation>
    </message>
    <message>
        <source>&amp;Horizontal spiegeln</source>
        <translation>Mirror &amp;horizontally</translation>
    </message>
    <message>
        <source>Halb&amp;spiegel</source>
        <translation>Half &amp;mirrors</translation>
    </message>
    <message>
        <source>&amp;Links nach rechts</source>
        <translation>&amp;Left to right</translation>
    </message>
    <message>
        <source>&amp;Rechts nach links</source>
        <translation>&amp;Right to left</translation>
    </message>
    <message>
        <source>&amp;Oben nach unten</source>
        <translation>&amp;Top to bottom</translation>
    </message>
    <message>
        <source>&amp;Unten nach oben</source>
        <translation>&amp;Bottom to top</translation>
    </message>
    <message>
        <source>&amp;Prismatisch</source>
        <translation>&amp;Prismatic</translation>
    </message>
    <message>
        <source>90° nach &amp;rechts drehen</source>
        <translation>Turn 90° &amp;right</translation>
    </message>
    <message>
        <source>90° nach &amp;links drehen</source>
        <translation>Turn 90° &amp;left</translation>
    </message>
    <message>
        <source>&amp;180° drehen</source>
        <translation>Turn &amp;180°</translation>
    </message>
    <message>
        <source>Bild&amp;größe...</source>
        <translation>Picture &amp;size...</translation>
    </message>
    <message>
        <source>&amp;Arbeitsfläche...</source>
        <translation>&amp;Canvas size...</translation>
    </message>
    <message>
        <source>Auf Auswahl &amp;zuschneiden</source>
        <translation>Crop to &amp;selection</translation>
    </message>
    <message>
        <source>3-D &amp;Unschärfe und Überblenden</source>
        <translation>3-D &amp;blur and blends</translation>
    </message>
</context>
</TS>
