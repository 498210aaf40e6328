<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="en" sourcelanguage="de">
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
        <translation>The new directory %1 was created.</translation>
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
        <source>Bild drucken</source>
        <translation>Print picture</translation>
    </message>
    <message>
        <source>Das Bild wurde geändert und der aktuelle Stand noch nicht gesichert. Wollen Sie trotzdem beenden?</source>
        <translation>The picture has been changed and its current state has not been saved yet. Do you want to exit anyway?</translation>
    </message>
    <message>
        <source>Ö&amp;ffnen ...</source>
        <translation>&amp;Open ...</translation>
    </message>
    <message>
        <source>&amp;Speichern unter ...</source>
        <translation>Save &amp;as ...</translation>
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
        <source>Die Datei %1 kann nicht als Bild gelesen werden.</source>
        <translation>The file %1 cannot be read as a picture.</translation>
    </message>
    <message>
        <source>Bilder werden als BMP, JPEG oder PNG gespeichert: die Endung %1 ist unbekannt.</source>
        <translation>Pictures are saved as BMP, JPEG or PNG: the extension %1 is unknown.</translation>
    </message>
    <message>
        <source>Die Datei %1 kann nicht geschrieben werden.</source>
        <translation>The file %1 cannot be written.</translation>
    </message>
    <message>
        <source>Bild öffnen</source>
        <translation>Open picture</translation>
    </message>
    <message>
        <source>Bilder (*.bmp *.jpg *.jpeg *.png *.gif);;Alle Dateien (*)</source>
        <translation>Pictures (*.bmp *.jpg *.jpeg *.png *.gif);;All files (*)</translation>
    </message>
    <message>
        <source>Bild speichern</source>
        <translation>Save picture</translation>
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
        <translation>Browse for Folder</translation>
    </message>
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
</context>
</TS>