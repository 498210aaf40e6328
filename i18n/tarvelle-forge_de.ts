<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de" sourcelanguage="de">
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
    <name>TempFiles</name>
    <message>
        <source>Das neue Verzeichnis %1 wurde erstellt.</source>
        <translation>Das neue Verzeichnis %1 wurde erstellt.</translation>
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
        <source>Bild drucken</source>
        <translation>Bild drucken</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie trotzdem beenden?</source>
        <translation>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie trotzdem beenden?</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen ...</source>
        <translation>Ö&amp;ffnen ...</translation>
    </message>
    <message>
        <source>&amp;Speichern unter ...</source>
        <translation>&amp;Speichern unter ...</translation>
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
        <source>Die Datei %1 kann nicht als Bild gelesen werden.</source>
        <translation>Die Datei %1 kann nicht als Bild gelesen werden.</translation>
    </message>
    <message>
        <source>Bilder werden als BMP, JPEG oder PNG gespeichert: die Endung %1 ist unbekannt.</source>
        <translation>Bilder werden als BMP, JPEG oder PNG gespeichert: die Endung %1 ist unbekannt.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht geschrieben werden.</source>
        <translation>Die Datei %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Bild öffnen</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Bilder (*.bmp *.jpg *.jpeg *.png *.gif);;Alle Dateien (*)</source>
        <translation>Bilder (*.bmp *.jpg *.jpeg *.png *.gif);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>PNG (*.png);;JPEG (*.jpg *.jpeg);;BMP (*.bmp)</source>
        <translation>PNG (*.png);;JPEG (*.jpg *.jpeg);;BMP (*.bmp)</translation>
    </message>
</context>
<context>
    <name>tf::ui::OptionsDialog</name>
    <message>
        <source>Ordner suchen</source>
        <translation>Ordner suchen</translation>
    </message>
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
</context>
</TS>