<?xml version='1.0' encoding='utf-8'?>
<TS version="2.1" language="de" sourcelanguage="de">
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