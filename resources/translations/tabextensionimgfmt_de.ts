<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BaseTabPluginWidget</name>
    <message>
        <source>Vendor not supported for plugins, widget not created.</source>
        <translation>Der Hersteller wird von den Plug-ins nicht unterstützt, Seite nicht erstellt.</translation>
    </message>
    <message>
        <source>The camera does not answer. The page shows its last known settings.</source>
        <translation>Die Kamera antwortet nicht. Die Seite zeigt ihre letzten bekannten Einstellungen.</translation>
    </message>
</context>
<context>
    <name>CommandEditor</name>
    <message>
        <source>Execute</source>
        <translation>Ausführen</translation>
    </message>
    <message>
        <source>Execute %1</source>
        <translation>%1 ausführen</translation>
    </message>
</context>
<context>
    <name>FeaturesTableWidget</name>
    <message>
        <source>Feature Name</source>
        <translation>Feature-Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Selected features:</source>
        <translation>Ausgewählte Features:</translation>
    </message>
    <message>
        <source>Saving feature &apos;%1&apos; to value=%2 failed.</source>
        <translation>Feature „%1“ konnte nicht auf den Wert %2 gesetzt werden.</translation>
    </message>
</context>
<context>
    <name>ImageFormatWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Image Format: </source>
        <translation>Bildformat: </translation>
    </message>
    <message>
        <source>Pixel Format: </source>
        <translation>Pixelformat: </translation>
    </message>
    <message>
        <source>Binning Selector: </source>
        <translation>Binning-Auswahl: </translation>
    </message>
    <message>
        <source>Horizontal Mode: </source>
        <translation>Modus horizontal: </translation>
    </message>
    <message>
        <source>Binning Horizontal: </source>
        <translation>Binning horizontal: </translation>
    </message>
    <message>
        <source>Vertical Mode: </source>
        <translation>Modus vertikal: </translation>
    </message>
    <message>
        <source>Binning Vertical: </source>
        <translation>Binning vertikal: </translation>
    </message>
    <message>
        <source>Reverse X: </source>
        <translation>X spiegeln: </translation>
    </message>
    <message>
        <source>Reverse Y: </source>
        <translation>Y spiegeln: </translation>
    </message>
    <message>
        <source>Select Image for ROI: </source>
        <translation>Bild für ROI wählen: </translation>
    </message>
    <message>
        <source>Camera does not support color interpolation matrix, widget not created</source>
        <translation>Die Kamera unterstützt keine Farbinterpolationsmatrix, Seite nicht erstellt</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>Bildformat</translation>
    </message>
    <message>
        <source>Error accessing widget &apos;%s&apos;</source>
        <translation>Fehler beim Zugriff auf das Widget „%s“</translation>
    </message>
    <message>
        <source>Feature &apos;%1&apos; is not available in the camera.</source>
        <translation>Das Feature „%1“ ist in der Kamera nicht vorhanden.</translation>
    </message>
    <message>
        <source>Picture &apos;%1&apos; cannot be used: %2</source>
        <translation>Das Bild „%1“ kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Es ist keine Datei.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Es ist zu groß.</translation>
    </message>
</context>
<context>
    <name>MultiROIWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>WARNUNG</translation>
    </message>
    <message>
        <source>MultipleRegionEnable: </source>
        <translation>Mehrere Regionen aktivieren: </translation>
    </message>
    <message>
        <source>Select Mode: </source>
        <translation>Modus wählen: </translation>
    </message>
    <message>
        <source>Load Defaults</source>
        <translation>Standardwerte laden</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Region</translation>
    </message>
    <message>
        <source>column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Load Default Configuration</source>
        <translation>Standardkonfiguration laden</translation>
    </message>
    <message>
        <source>Overwrite the current region settings?</source>
        <translation>Die aktuellen Einstellungen der Regionen überschreiben?</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of the whole %2.</source>
        <translation>Der gewählte Anordnungsmodus „%1“ verlangt, dass die ganze %2 deaktiviert wird.</translation>
    </message>
    <message>
        <source>Deactivate Region</source>
        <translation>Region deaktivieren</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of all subsequent regions.</source>
        <translation>Der gewählte Anordnungsmodus „%1“ verlangt, dass alle folgenden Regionen deaktiviert werden.</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;Tile&apos; requires deactivation of either a row or a column.
What would you deactivate?</source>
        <translation>Der gewählte Anordnungsmodus „Tile“ verlangt, dass eine Zeile oder eine Spalte deaktiviert wird.
Was soll deaktiviert werden?</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Arrangement Mode &apos;%1&apos; requires activation of the whole %2.</source>
        <translation>Der Anordnungsmodus „%1“ verlangt, dass die ganze %2 aktiviert wird.</translation>
    </message>
    <message>
        <source>Activate Region</source>
        <translation>Region aktivieren</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings for %2 regions available.</source>
        <translation>Unbekannter Anordnungsmodus „%1“, keine Standardwerte für %2 Regionen vorhanden.</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings available.</source>
        <translation>Unbekannter Anordnungsmodus „%1“, keine Standardwerte vorhanden.</translation>
    </message>
    <message>
        <source>Multi ROI</source>
        <translation>Multi-ROI</translation>
    </message>
    <message>
        <source>The camera names %1 regions; the first %2 are shown.</source>
        <translation>Die Kamera meldet %1 Regionen; angezeigt werden die ersten %2.</translation>
    </message>
    <message>
        <source>Region%1</source>
        <translation>Region %1</translation>
    </message>
    <message>
        <source>SubRegion: %1, Saving feature &apos;%2&apos; to value=%3 failed.</source>
        <translation>Region %1: Feature „%2“ konnte nicht auf den Wert %3 gesetzt werden.</translation>
    </message>
    <message>
        <source>Multi ROI widget cannot be used in combination with Binning or ReverseX/Y.</source>
        <translation>Die Seite „Multi-ROI“ ist zusammen mit Binning oder Spiegelung (ReverseX/Y) nicht nutzbar.</translation>
    </message>
    <message>
        <source>Region%1 cannot be activated into a valid configuration due to the minimum size.</source>
        <translation>Region %1 lässt sich wegen der Mindestgröße nicht in einer gültigen Konfiguration aktivieren.</translation>
    </message>
    <message>
        <source>Regions must be activated continuously, ascending from Region0.</source>
        <translation>Regionen müssen lückenlos aktiviert werden, aufsteigend ab Region 0.</translation>
    </message>
    <message>
        <source>Regions must share a common line space (activate all preceding regions first).</source>
        <translation>Regionen müssen einen gemeinsamen Zeilenbereich haben (zuerst alle vorangehenden Regionen aktivieren).</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = &apos;%1&apos; failed!</source>
        <translation>„SubRegionSelector“ = „%1“ konnte nicht gesetzt werden!</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = %1 failed!</source>
        <translation>„SubRegionSelector“ = %1 konnte nicht gesetzt werden!</translation>
    </message>
</context>
<context>
    <name>RegionLabelWidget</name>
    <message>
        <source>Form</source>
        <translation>Formular</translation>
    </message>
    <message>
        <source>Region-ID, position and size:
  ID   ( X , Y )
        Width x Height
</source>
        <translation>Regions-ID, Position und Größe:
  ID   ( X , Y )
        Breite x Höhe
</translation>
    </message>
</context>
<context>
    <name>RegionTableWidget</name>
    <message>
        <source>tblFeatures.data(%1) cannot be converted to FeatureInfo: %2</source>
        <translation>tblFeatures.data(%1) ist nicht in FeatureInfo umwandelbar: %2</translation>
    </message>
</context>
</TS>
