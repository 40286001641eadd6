<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>AutoROIWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Autofunction AOI</source>
        <translation>AOI des fonctions auto</translation>
    </message>
    <message>
        <source>Intensity Controller Region:</source>
        <translation>Région du contrôle d’intensité&#xa0;:</translation>
    </message>
    <message>
        <source>Enable AutoMode:</source>
        <translation>Activer AutoMode&#xa0;:</translation>
    </message>
    <message>
        <source>Show Area:</source>
        <translation>Afficher la région&#xa0;:</translation>
    </message>
    <message>
        <source>AutoMode Region</source>
        <translation>Région AutoMode</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>Décalage X&#xa0;:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>Droite&#xa0;:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Largeur&#xa0;:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>Décalage Y&#xa0;:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>Bas&#xa0;:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Hauteur&#xa0;:</translation>
    </message>
    <message>
        <source>Invalid settings:</source>
        <translation>Non valide&#xa0;:</translation>
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
        <source>Exposure Auto</source>
        <translation>Exposition auto</translation>
    </message>
    <message>
        <source>Min:</source>
        <translation>Min.&#xa0;:</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>Actuel</translation>
    </message>
    <message>
        <source>Timebase:</source>
        <translation>Base de temps&#xa0;:</translation>
    </message>
    <message>
        <source>Max:</source>
        <translation>Max.&#xa0;:</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>Non valide&#xa0;: </translation>
    </message>
    <message>
        <source>Autofunction ROI</source>
        <translation>ROI des fonctions auto</translation>
    </message>
    <message>
        <source>Invalid settings:
Height + OffsetY &gt; %1 Height</source>
        <translation>Non valide&#xa0;:
Hauteur + décalage Y &gt; hauteur %1</translation>
    </message>
    <message>
        <source>Invalid settings:
Width + OffsetX &gt; %1 Width</source>
        <translation>Non valide&#xa0;:
Largeur + décalage X &gt; largeur %1</translation>
    </message>
    <message>
        <source>AutoMode ROI</source>
        <translation>ROI AutoMode</translation>
    </message>
    <message>
        <source>DSPSubregion</source>
        <translation>Sous-région DSP</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>Haut&#xa0;:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>Gauche&#xa0;:</translation>
    </message>
    <message>
        <source>
Top &gt; Bottom! </source>
        <translation>
Haut &gt; Bas&#xa0;! </translation>
    </message>
    <message>
        <source>
Top &gt; ROI Height! </source>
        <translation>
Haut &gt; hauteur ROI&#xa0;! </translation>
    </message>
    <message>
        <source>
Bottom &gt; ROI Height! </source>
        <translation>
Bas &gt; hauteur ROI&#xa0;! </translation>
    </message>
    <message>
        <source>Left &gt; Right! </source>
        <translation>Gauche &gt; Droite&#xa0;! </translation>
    </message>
    <message>
        <source>Left &gt; ROI Width! </source>
        <translation>Gauche &gt; largeur ROI&#xa0;! </translation>
    </message>
    <message>
        <source>Right &gt; ROI Width! </source>
        <translation>Droite &gt; largeur ROI&#xa0;! </translation>
    </message>
</context>
</TS>
