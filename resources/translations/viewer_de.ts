<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CameraListPane</name>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Search names and descriptions</source>
        <translation>Namen und Beschreibungen durchsuchen</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Kameras durchsuchen</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>%1
On the command line: --camera %2</source>
        <translation>%1
Auf der Befehlszeile: --camera %2</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Looks for cameras on the network and the USB bus.</source>
        <translation>Sucht Kameras im Netzwerk und am USB-Bus.</translation>
    </message>
    <message>
        <source>GigE camera without hardware</source>
        <translation>GigE-Kamera ohne Hardware</translation>
    </message>
    <message>
        <source>A GigE Vision camera that this program plays itself</source>
        <translation>Eine GigE-Vision-Kamera, die dieses Programm selbst spielt</translation>
    </message>
    <message>
        <source>&amp;Try without hardware</source>
        <translation>&amp;Ohne Hardware testen</translation>
    </message>
    <message>
        <source>Opened by its address</source>
        <translation>Über die Adresse geöffnet</translation>
    </message>
    <message>
        <source>%1 (open)</source>
        <translation>%1 (offen)</translation>
    </message>
    <message>
        <source>%1 (does not answer)</source>
        <translation>%1 (antwortet nicht)</translation>
    </message>
    <message>
        <source>%1 (opening …)</source>
        <translation>%1 (wird geöffnet …)</translation>
    </message>
</context>
<context>
    <name>FeatureTablePane</name>
    <message>
        <source>Search names and descriptions</source>
        <translation>Namen und Beschreibungen durchsuchen</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>Features durchsuchen</translation>
    </message>
    <message>
        <source>Reading %1 features …</source>
        <translation>%1 Features werden gelesen …</translation>
    </message>
</context>
<context>
    <name>FeatureWritePane</name>
    <message>
        <source>&amp;Write</source>
        <translation>Sch&amp;reiben</translation>
    </message>
    <message>
        <source>%1 written.</source>
        <translation>%1 geschrieben.</translation>
    </message>
    <message>
        <source>%1 not written (code %2).</source>
        <translation>%1 nicht geschrieben (Code %2).</translation>
    </message>
    <message>
        <source>Feat&amp;ure:</source>
        <translation>F&amp;eature:</translation>
    </message>
    <message>
        <source>V&amp;alue:</source>
        <translation>&amp;Wert:</translation>
    </message>
</context>
<context>
    <name>GenicamFinder</name>
    <message>
        <source>%1 %2, serial number %3, at %4 (%5)</source>
        <translation>%1 %2, Seriennummer %3, unter %4 (%5)</translation>
    </message>
    <message>
        <source>The port of the camera without hardware is taken on this computer.</source>
        <translation>Der Port der Kamera ohne Hardware ist auf diesem Rechner belegt.</translation>
    </message>
</context>
<context>
    <name>GenicamSource</name>
    <message>
        <source>The stream does not start: %1</source>
        <translation>Der Bildstrom startet nicht: %1</translation>
    </message>
    <message>
        <source>%1 frames/s · %2 lost</source>
        <translation>%1 Bilder/s · %2 verloren</translation>
    </message>
</context>
<context>
    <name>LivePane</name>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>1 region</source>
        <translation>1 Region</translation>
    </message>
    <message>
        <source>%1 regions</source>
        <translation>%1 Regionen</translation>
    </message>
    <message>
        <source>%1 × %2 at %3, %4</source>
        <translation>%1 × %2 bei %3, %4</translation>
    </message>
    <message>
        <source>binning %1 × %2</source>
        <translation>Binning %1 × %2</translation>
    </message>
    <message>
        <source>Sta&amp;rt</source>
        <translation>S&amp;tarten</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Sto&amp;ppen</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>Live picture</source>
        <translation>Livebild</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>Keine Kamera ist geöffnet.</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Feature access</source>
        <translation>Feature-Zugriff</translation>
    </message>
    <message>
        <source>Multi-region</source>
        <translation>Mehrere Regionen</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Kategorie %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Messages of the pages appear here.</source>
        <translation>Hier erscheinen die Meldungen der Seiten.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Camera viewer</source>
        <translation>Kamera-Viewer</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 lässt sich nicht öffnen: %2</translation>
    </message>
    <message>
        <source>%1 does not answer any more.</source>
        <translation>%1 antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>%1 answers again.</source>
        <translation>%1 antwortet wieder.</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on are presented as supported: the vendor&apos;s name is not the camera&apos;s own.</source>
        <translation>Kameras, die ab jetzt geöffnet werden, gelten als unterstützt: Der Herstellername ist nicht der der Kamera.</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on tell their own vendor.</source>
        <translation>Kameras, die ab jetzt geöffnet werden, nennen ihren eigenen Hersteller.</translation>
    </message>
    <message>
        <source>%1 opened.</source>
        <translation>%1 geöffnet.</translation>
    </message>
    <message>
        <source>%1 closed.</source>
        <translation>%1 geschlossen.</translation>
    </message>
    <message>
        <source>Open a camera to see its page.</source>
        <translation>Öffnen Sie eine Kamera, um ihre Seite zu sehen.</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Kameras</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Livebild</translation>
    </message>
    <message>
        <source>Camera features</source>
        <translation>Kamera-Features</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Another client</source>
        <translation>Anderer Client</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Present cameras as supported</source>
        <translation>Kameras als &amp;unterstützt ausgeben</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;First layout</source>
        <translation>&amp;Ursprüngliche Anordnung</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>&amp;Previous pane</source>
        <translation>&amp;Voriger Bereich</translation>
    </message>
    <message>
        <source>&amp;Dark colours</source>
        <translation>&amp;Dunkle Farben</translation>
    </message>
    <message>
        <source>Opening %1 …</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
    <message>
        <source>Building the page of %1 …</source>
        <translation>Die Seite für %1 wird aufgebaut …</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>No page</source>
        <translation>Keine Seite</translation>
    </message>
    <message>
        <source>Preparing the last picture …</source>
        <translation>Das letzte Bild wird vorbereitet …</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>The module does not support this camera (result code %1).</source>
        <translation>Das Modul unterstützt diese Kamera nicht (Ergebniscode %1).</translation>
    </message>
    <message>
        <source>The module could not build a page for this camera (result code %1).</source>
        <translation>Das Modul konnte für diese Kamera keine Seite aufbauen (Ergebniscode %1).</translation>
    </message>
    <message>
        <source>The module %1 cannot be loaded: %2</source>
        <translation>Das Modul %1 lässt sich nicht laden: %2</translation>
    </message>
    <message>
        <source>%1 is not a module for this viewer.</source>
        <translation>%1 ist kein Modul für diesen Viewer.</translation>
    </message>
    <message>
        <source>The module failed: %1</source>
        <translation>Das Modul ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The module failed for an unknown reason.</source>
        <translation>Das Modul ist aus unbekanntem Grund fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>ScriptRunner</name>
    <message>
        <source>there is no widget %1</source>
        <translation>es gibt kein Widget %1</translation>
    </message>
    <message>
        <source>%1 is not in the table</source>
        <translation>%1 steht nicht in der Tabelle</translation>
    </message>
    <message>
        <source>no camera is open</source>
        <translation>keine Kamera ist geöffnet</translation>
    </message>
    <message>
        <source>%1 is not written (code %2)</source>
        <translation>%1 ist nicht geschrieben (Code %2)</translation>
    </message>
</context>
<context>
    <name>SimulatedModels</name>
    <message>
        <source>Standard camera, 5 megapixels</source>
        <translation>Standardkamera, 5 Megapixel</translation>
    </message>
    <message>
        <source>All that a camera of today has</source>
        <translation>Alles, was eine heutige Kamera hat</translation>
    </message>
    <message>
        <source>Standard camera, 20 megapixels</source>
        <translation>Standardkamera, 20 Megapixel</translation>
    </message>
    <message>
        <source>The same with a larger sensor</source>
        <translation>Das Gleiche mit größerem Sensor</translation>
    </message>
    <message>
        <source>Standard camera, 150 megapixels</source>
        <translation>Standardkamera, 150 Megapixel</translation>
    </message>
    <message>
        <source>The same with the largest sensor</source>
        <translation>Das Gleiche mit dem größten Sensor</translation>
    </message>
    <message>
        <source>Simple camera</source>
        <translation>Einfache Kamera</translation>
    </message>
    <message>
        <source>No binning, no reversal, one region only</source>
        <translation>Kein Binning, keine Spiegelung, nur eine Region</translation>
    </message>
    <message>
        <source>Older camera</source>
        <translation>Ältere Kamera</translation>
    </message>
    <message>
        <source>Older feature names, binning without stages</source>
        <translation>Ältere Feature-Namen, Binning ohne Stufen</translation>
    </message>
    <message>
        <source>Camera of another maker</source>
        <translation>Kamera eines anderen Herstellers</translation>
    </message>
    <message>
        <source>The page refuses it</source>
        <translation>Die Seite lehnt sie ab</translation>
    </message>
    <message>
        <source>Camera without Height</source>
        <translation>Kamera ohne Height</translation>
    </message>
    <message>
        <source>There is no region to edit</source>
        <translation>Es gibt keine Region zum Bearbeiten</translation>
    </message>
    <message>
        <source>Camera with 400 features</source>
        <translation>Kamera mit 400 Features</translation>
    </message>
    <message>
        <source>A long table of camera features</source>
        <translation>Eine lange Tabelle der Kamera-Features</translation>
    </message>
    <message>
        <source>Colour camera</source>
        <translation>Farbkamera</translation>
    </message>
    <message>
        <source>Bayer formats, a region that moves by single pixels</source>
        <translation>Bayer-Formate, eine pixelweise verschiebbare Region</translation>
    </message>
    <message>
        <source>Camera with a coarse grid</source>
        <translation>Kamera mit grobem Raster</translation>
    </message>
    <message>
        <source>A region that moves in wide steps, which the sensor is no multiple of</source>
        <translation>Eine Region, die sich in großen Schritten bewegt, von denen der Sensor kein Vielfaches ist</translation>
    </message>
    <message>
        <source>Auto-function region</source>
        <translation>Autofunktions-Region</translation>
    </message>
    <message>
        <source>With switch and overlay, fine exposure limits</source>
        <translation>Mit Schalter und Einblendung, feinen Belichtungsgrenzen</translation>
    </message>
    <message>
        <source>Auto-function region, gated</source>
        <translation>Autofunktions-Region, geschützt</translation>
    </message>
    <message>
        <source>The same, writable only while it is switched on</source>
        <translation>Das Gleiche, nur im eingeschalteten Zustand änderbar</translation>
    </message>
    <message>
        <source>Auto-function region, plain</source>
        <translation>Autofunktions-Region, einfach</translation>
    </message>
    <message>
        <source>Without switch and overlay</source>
        <translation>Ohne Schalter und Einblendung</translation>
    </message>
    <message>
        <source>Auto-mode region</source>
        <translation>AutoMode-Region</translation>
    </message>
    <message>
        <source>Offset and size bound each other</source>
        <translation>Offset und Größe begrenzen einander</translation>
    </message>
    <message>
        <source>Auto-mode region, fixed</source>
        <translation>AutoMode-Region, fest</translation>
    </message>
    <message>
        <source>Offset and size have fixed ranges</source>
        <translation>Offset und Größe haben feste Bereiche</translation>
    </message>
    <message>
        <source>Auto-function region by edges</source>
        <translation>Autofunktions-Region durch Kanten</translation>
    </message>
    <message>
        <source>Left, top, right and bottom; no exposure time</source>
        <translation>Links, oben, rechts und unten; keine Belichtungszeit</translation>
    </message>
    <message>
        <source>Auto-function and auto-mode region</source>
        <translation>Autofunktions- und AutoMode-Region</translation>
    </message>
    <message>
        <source>Both kinds in one camera</source>
        <translation>Beide Arten in einer Kamera</translation>
    </message>
    <message>
        <source>Auto-function region by size and edges</source>
        <translation>Autofunktions-Region durch Größe und Kanten</translation>
    </message>
    <message>
        <source>Four regions</source>
        <translation>Vier Regionen</translation>
    </message>
    <message>
        <source>Several regions in one picture</source>
        <translation>Mehrere Regionen in einem Bild</translation>
    </message>
    <message>
        <source>Six regions</source>
        <translation>Sechs Regionen</translation>
    </message>
    <message>
        <source>Four regions by number</source>
        <translation>Vier Regionen nach Nummer</translation>
    </message>
    <message>
        <source>The camera selects a region by a number</source>
        <translation>Die Kamera wählt eine Region über eine Zahl</translation>
    </message>
    <message>
        <source>Two regions</source>
        <translation>Zwei Regionen</translation>
    </message>
    <message>
        <source>The fewest that make an arrangement</source>
        <translation>Die wenigsten, die eine Anordnung ergeben</translation>
    </message>
    <message>
        <source>Three regions</source>
        <translation>Drei Regionen</translation>
    </message>
    <message>
        <source>The older name of the regions&apos; switch</source>
        <translation>Der ältere Name des Regionenschalters</translation>
    </message>
    <message>
        <source>256 regions by number</source>
        <translation>256 Regionen nach Nummer</translation>
    </message>
    <message>
        <source>The most that a camera may have</source>
        <translation>Die meisten, die eine Kamera haben kann</translation>
    </message>
    <message>
        <source>Older camera with four regions</source>
        <translation>Ältere Kamera mit vier Regionen</translation>
    </message>
    <message>
        <source>The older names OffsetX and Width</source>
        <translation>Die älteren Namen OffsetX und Width</translation>
    </message>
</context>
<context>
    <name>UserInput</name>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 ist nicht sichtbar</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 ist deaktiviert</translation>
    </message>
    <message>
        <source>%1 does not take the value &apos;%2&apos;</source>
        <translation>%1 nimmt den Wert „%2“ nicht an</translation>
    </message>
    <message>
        <source>there is no tab &apos;%1&apos;</source>
        <translation>es gibt keinen Reiter „%1“</translation>
    </message>
</context>
<context>
    <name>ViewerOptions</name>
    <message>
        <source>There is no camera &apos;%1&apos;; --list-cameras names them.</source>
        <translation>Es gibt keine Kamera „%1“; --list-cameras nennt alle.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Click a widget; in a dialog, the button of this text.</source>
        <translation>Ein Widget anklicken, in einem Dialog die Schaltfläche mit diesem Text.</translation>
    </message>
    <message>
        <source>Set a spin box, choice, check box or field as a user would.</source>
        <translation>Drehfeld, Auswahl, Kontrollkästchen oder Feld setzen, wie ein Anwender es täte.</translation>
    </message>
    <message>
        <source>Open the editor of a feature in the table of camera features.</source>
        <translation>Den Editor eines Features in der Tabelle der Kamera-Features öffnen.</translation>
    </message>
    <message>
        <source>Write a feature as another client of the camera.</source>
        <translation>Ein Feature schreiben, wie ein anderer Client der Kamera es täte.</translation>
    </message>
    <message>
        <source>Start streaming.</source>
        <translation>Bildstrom starten.</translation>
    </message>
    <message>
        <source>Stop streaming.</source>
        <translation>Bildstrom stoppen.</translation>
    </message>
    <message>
        <source>Close the camera.</source>
        <translation>Die Kamera schließen.</translation>
    </message>
    <message>
        <source>Wait, with the window alive.</source>
        <translation>Warten, während das Fenster bedienbar bleibt.</translation>
    </message>
    <message>
        <source>Opens simulated cameras and shows the module&apos;s page for them.
Actions (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) may be given several times; they are carried out in the order given, then the screenshot is written.</source>
        <translation>Öffnet simulierte Kameras und zeigt die Seite des Moduls dafür.
Aktionen (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) sind mehrfach möglich; sie werden in der angegebenen Reihenfolge ausgeführt, danach wird das Bildschirmfoto geschrieben.</translation>
    </message>
    <message>
        <source>List the cameras and end; where built with GenICam cameras, those found as well.</source>
        <translation>Die Kameras auflisten und enden; mit GenICam gebaut auch die gefundenen.</translation>
    </message>
    <message>
        <source>Open this camera: NAME of the list, NAME+N with N features more, or genicam:ADDRESS.</source>
        <translation>Diese Kamera öffnen: NAME aus der Liste, NAME+N mit N weiteren Features oder genicam:ADDRESS.</translation>
    </message>
    <message>
        <source>Load the module from this file instead of plugins/ beside the program.</source>
        <translation>Das Modul aus dieser Datei laden statt aus plugins/ neben dem Programm.</translation>
    </message>
    <message>
        <source>Size of the window; with it, nothing is remembered.</source>
        <translation>Größe des Fensters; damit wird nichts gemerkt.</translation>
    </message>
    <message>
        <source>Tell the page a vendor that it supports, whoever made the camera.</source>
        <translation>Der Seite einen unterstützten Hersteller nennen, wer immer die Kamera gebaut hat.</translation>
    </message>
    <message>
        <source>Take this language for the system&apos;s: de, fr, ja, zh_CN, or en.</source>
        <translation>Diese Sprache statt der des Systems nehmen: de, fr, ja, zh_CN oder en.</translation>
    </message>
    <message>
        <source>Use dark colours.</source>
        <translation>Dunkle Farben verwenden.</translation>
    </message>
    <message>
        <source>Write a picture of the window to this PNG file and end.</source>
        <translation>Ein Bild des Fensters in diese PNG-Datei schreiben und enden.</translation>
    </message>
    <message>
        <source>Report actions that cannot be done and go on.</source>
        <translation>Aktionen melden, die nicht möglich sind, und fortfahren.</translation>
    </message>
    <message>
        <source>End after so many milliseconds.</source>
        <translation>Nach so vielen Millisekunden enden.</translation>
    </message>
    <message>
        <source>--size takes a width and a height, as in 1400x900.</source>
        <translation>--size braucht Breite und Höhe, wie in 1400x900.</translation>
    </message>
    <message>
        <source>--quit-after takes a number of milliseconds.</source>
        <translation>--quit-after braucht eine Zahl von Millisekunden.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>Select the tab of this text, or of the page of this object name.</source>
        <translation>Den Reiter mit diesem Text wählen oder den der Seite mit diesem Objektnamen.</translation>
    </message>
</context>
<context>
    <name>WorkNotice</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
</TS>
