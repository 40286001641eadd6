<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AutoROIWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Autofunction AOI</source>
        <translation>Autofunktions-AOI</translation>
    </message>
    <message>
        <source>Intensity Controller Region:</source>
        <translation>Region des Helligkeitsreglers:</translation>
    </message>
    <message>
        <source>Enable AutoMode:</source>
        <translation>AutoMode aktivieren:</translation>
    </message>
    <message>
        <source>Show Area:</source>
        <translation>Region anzeigen:</translation>
    </message>
    <message>
        <source>AutoMode Region</source>
        <translation>AutoMode-Region</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>Offset X:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Rechts:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Breite:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>Offset Y:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Unten:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Höhe:</translation>
    </message>
    <message>
        <source>Invalid settings:</source>
        <translation>Ungültig:</translation>
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
        <source>Exposure Auto</source>
        <translation>Belichtungsautomatik</translation>
    </message>
    <message>
        <source>Min:</source>
        <translation>Min.:</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Aktuell</translation>
    </message>
    <message>
        <source>Timebase:</source>
        <translation>Zeitbasis:</translation>
    </message>
    <message>
        <source>Max:</source>
        <translation>Max.:</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>Ungültig: </translation>
    </message>
    <message>
        <source>Autofunction ROI</source>
        <translation>Autofunktions-ROI</translation>
    </message>
    <message>
        <source>AutoMode ROI</source>
        <translation>AutoMode-ROI</translation>
    </message>
    <message>
        <source>DSPSubregion</source>
        <translation>DSP-Teilregion</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Oben:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Links:</translation>
    </message>
    <message>
        <source>Invalid settings:
Height + OffsetY &gt; %1 Height</source>
        <translation>Ungültig:
Höhe + Offset Y &gt; %1-Höhe</translation>
    </message>
    <message>
        <source>Invalid settings:
Width + OffsetX &gt; %1 Width</source>
        <translation>Ungültig:
Breite + Offset X &gt; %1-Breite</translation>
    </message>
    <message>
        <source>
Top &gt; Bottom! </source>
        <translation>
Oben &gt; Unten! </translation>
    </message>
    <message>
        <source>
Top &gt; ROI Height! </source>
        <translation>
Oben &gt; ROI-Höhe! </translation>
    </message>
    <message>
        <source>
Bottom &gt; ROI Height! </source>
        <translation>
Unten &gt; ROI-Höhe! </translation>
    </message>
    <message>
        <source>Left &gt; Right! </source>
        <translation>Links &gt; Rechts! </translation>
    </message>
    <message>
        <source>Left &gt; ROI Width! </source>
        <translation>Links &gt; ROI-Breite! </translation>
    </message>
    <message>
        <source>Right &gt; ROI Width! </source>
        <translation>Rechts &gt; ROI-Breite! </translation>
    </message>
</context>
</TS>
