<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AOIWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>WARNUNG</translation>
    </message>
    <message>
        <source>AOI</source>
        <translation>AOI</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>OffsetX: </source>
        <translation>Offset X: </translation>
    </message>
    <message>
        <source>OffsetY: </source>
        <translation>Offset Y: </translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>Breite: </translation>
    </message>
    <message>
        <source>Height: </source>
        <translation>Höhe: </translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>1/4</source>
        <translation>1/4</translation>
    </message>
    <message>
        <source>1/16</source>
        <translation>1/16</translation>
    </message>
    <message>
        <source>Invalid Settings: </source>
        <translation>Ungültige Einstellungen: </translation>
    </message>
    <message>
        <source>ROI</source>
        <translation>ROI</translation>
    </message>
    <message>
        <source>&apos;%1&apos; widget cannot be used if &apos;MultipleRegionsEnabled&apos; is on.</source>
        <translation>Die Seite „%1“ ist nicht nutzbar, solange „MultipleRegionsEnabled“ aktiviert ist.</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>Ungültige Einstellungen: </translation>
    </message>
    <message>
        <source>
	OffsetX + Width &gt; Maximum Width! </source>
        <translation>
	Offset X + Breite &gt; maximale Breite! </translation>
    </message>
    <message>
        <source>
	OffsetY + Height &gt; Maximum Height! </source>
        <translation>
	Offset Y + Höhe &gt; maximale Höhe! </translation>
    </message>
</context>
</TS>
