<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AOIWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>ATTENTION</translation>
    </message>
    <message>
        <source>AOI</source>
        <translation>AOI</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>OffsetX: </source>
        <translation>Décalage X&#xa0;: </translation>
    </message>
    <message>
        <source>OffsetY: </source>
        <translation>Décalage Y&#xa0;: </translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>Largeur&#xa0;: </translation>
    </message>
    <message>
        <source>Height: </source>
        <translation>Hauteur&#xa0;: </translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Entier</translation>
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
        <translation>Réglages non valides&#xa0;: </translation>
    </message>
    <message>
        <source>ROI</source>
        <translation>ROI</translation>
    </message>
    <message>
        <source>&apos;%1&apos; widget cannot be used if &apos;MultipleRegionsEnabled&apos; is on.</source>
        <translation>La page «&#xa0;%1&#xa0;» n’est pas utilisable tant que «&#xa0;MultipleRegionsEnabled&#xa0;» est activé.</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>Réglages non valides&#xa0;: </translation>
    </message>
    <message>
        <source>
	OffsetX + Width &gt; Maximum Width! </source>
        <translation>
	Décalage X + largeur &gt; largeur maximale&#xa0;! </translation>
    </message>
    <message>
        <source>
	OffsetY + Height &gt; Maximum Height! </source>
        <translation>
	Décalage Y + hauteur &gt; hauteur maximale&#xa0;! </translation>
    </message>
</context>
</TS>
