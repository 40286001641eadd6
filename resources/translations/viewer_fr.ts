<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CameraListPane</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>Search names and descriptions</source>
        <translation>Rechercher un nom ou une description</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>Rechercher une caméra</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>%1
On the command line: --camera %2</source>
        <translation>%1
En ligne de commande&#xa0;: --camera %2</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Looks for cameras on the network and the USB bus.</source>
        <translation>Recherche des caméras sur le réseau et le bus USB.</translation>
    </message>
    <message>
        <source>GigE camera without hardware</source>
        <translation>Caméra GigE sans matériel</translation>
    </message>
    <message>
        <source>A GigE Vision camera that this program plays itself</source>
        <translation>Une caméra GigE Vision jouée par ce programme</translation>
    </message>
    <message>
        <source>&amp;Try without hardware</source>
        <translation>Essai &amp;sans matériel</translation>
    </message>
    <message>
        <source>Opened by its address</source>
        <translation>Ouverte par son adresse</translation>
    </message>
    <message>
        <source>%1 (open)</source>
        <translation>%1 (ouverte)</translation>
    </message>
    <message>
        <source>%1 (does not answer)</source>
        <translation>%1 (ne répond pas)</translation>
    </message>
    <message>
        <source>%1 (opening …)</source>
        <translation>%1 (ouverture…)</translation>
    </message>
</context>
<context>
    <name>FeatureTablePane</name>
    <message>
        <source>Search names and descriptions</source>
        <translation>Rechercher un nom ou une description</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>Rechercher une fonction</translation>
    </message>
    <message>
        <source>Reading %1 features …</source>
        <translation>Lecture de %1 fonctions…</translation>
    </message>
</context>
<context>
    <name>FeatureWritePane</name>
    <message>
        <source>&amp;Write</source>
        <translation>É&amp;crire</translation>
    </message>
    <message>
        <source>%1 written.</source>
        <translation>%1&#xa0;: valeur écrite.</translation>
    </message>
    <message>
        <source>%1 not written (code %2).</source>
        <translation>%1&#xa0;: valeur non écrite (code %2).</translation>
    </message>
    <message>
        <source>Feat&amp;ure:</source>
        <translation>Fo&amp;nction&#xa0;:</translation>
    </message>
    <message>
        <source>V&amp;alue:</source>
        <translation>&amp;Valeur&#xa0;:</translation>
    </message>
</context>
<context>
    <name>GenicamFinder</name>
    <message>
        <source>%1 %2, serial number %3, at %4 (%5)</source>
        <translation>%1 %2, numéro de série %3, à l’adresse %4 (%5)</translation>
    </message>
    <message>
        <source>The port of the camera without hardware is taken on this computer.</source>
        <translation>Le port de la caméra sans matériel est déjà utilisé sur cet ordinateur.</translation>
    </message>
</context>
<context>
    <name>GenicamSource</name>
    <message>
        <source>The stream does not start: %1</source>
        <translation>Le flux ne démarre pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 frames/s · %2 lost</source>
        <translation>%1 images/s · %2 perdues</translation>
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
        <translation>1 région</translation>
    </message>
    <message>
        <source>%1 regions</source>
        <translation>%1 régions</translation>
    </message>
    <message>
        <source>%1 × %2 at %3, %4</source>
        <translation>%1 × %2 à %3, %4</translation>
    </message>
    <message>
        <source>binning %1 × %2</source>
        <translation>binning %1 × %2</translation>
    </message>
    <message>
        <source>Sta&amp;rt</source>
        <translation>&amp;Démarrer</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>Arrê&amp;ter</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>Live picture</source>
        <translation>Image en direct</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>Aucune caméra n’est ouverte.</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Feature access</source>
        <translation>Accès aux fonctions</translation>
    </message>
    <message>
        <source>Multi-region</source>
        <translation>Régions multiples</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>Catégorie %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Messages of the pages appear here.</source>
        <translation>Les messages des pages apparaissent ici.</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Camera viewer</source>
        <translation>Visionneuse de caméra</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 ne peut pas être ouverte&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 does not answer any more.</source>
        <translation>%1 ne répond plus.</translation>
    </message>
    <message>
        <source>%1 answers again.</source>
        <translation>%1 répond de nouveau.</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on are presented as supported: the vendor&apos;s name is not the camera&apos;s own.</source>
        <translation>Les caméras ouvertes à partir de maintenant sont présentées comme prises en charge&#xa0;: le nom du fabricant n’est pas celui de la caméra.</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on tell their own vendor.</source>
        <translation>Les caméras ouvertes à partir de maintenant indiquent leur propre fabricant.</translation>
    </message>
    <message>
        <source>%1 opened.</source>
        <translation>%1 ouverte.</translation>
    </message>
    <message>
        <source>%1 closed.</source>
        <translation>%1 fermée.</translation>
    </message>
    <message>
        <source>Open a camera to see its page.</source>
        <translation>Ouvrez une caméra pour voir sa page.</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>Caméras</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Image en direct</translation>
    </message>
    <message>
        <source>Camera features</source>
        <translation>Fonctions de la caméra</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Another client</source>
        <translation>Autre client</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Present cameras as supported</source>
        <translation>&amp;Présenter les caméras comme prises en charge</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;First layout</source>
        <translation>Disposition &amp;initiale</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>Volet &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Previous pane</source>
        <translation>Volet &amp;précédent</translation>
    </message>
    <message>
        <source>&amp;Dark colours</source>
        <translation>&amp;Couleurs sombres</translation>
    </message>
    <message>
        <source>Opening %1 …</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>Building the page of %1 …</source>
        <translation>Construction de la page de %1…</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>No page</source>
        <translation>Aucune page</translation>
    </message>
    <message>
        <source>Preparing the last picture …</source>
        <translation>Préparation de la dernière image…</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>The module does not support this camera (result code %1).</source>
        <translation>Le module ne prend pas en charge cette caméra (code de résultat %1).</translation>
    </message>
    <message>
        <source>The module could not build a page for this camera (result code %1).</source>
        <translation>Le module n’a pas pu construire de page pour cette caméra (code de résultat %1).</translation>
    </message>
    <message>
        <source>The module %1 cannot be loaded: %2</source>
        <translation>Le module %1 ne peut pas être chargé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is not a module for this viewer.</source>
        <translation>%1 n’est pas un module pour cette visionneuse.</translation>
    </message>
    <message>
        <source>The module failed: %1</source>
        <translation>Le module a échoué&#xa0;: %1</translation>
    </message>
    <message>
        <source>The module failed for an unknown reason.</source>
        <translation>Le module a échoué pour une raison inconnue.</translation>
    </message>
</context>
<context>
    <name>ScriptRunner</name>
    <message>
        <source>there is no widget %1</source>
        <translation>il n’y a pas de widget %1</translation>
    </message>
    <message>
        <source>%1 is not in the table</source>
        <translation>%1 n’est pas dans le tableau</translation>
    </message>
    <message>
        <source>no camera is open</source>
        <translation>aucune caméra n’est ouverte</translation>
    </message>
    <message>
        <source>%1 is not written (code %2)</source>
        <translation>%1 n’est pas écrite (code %2)</translation>
    </message>
</context>
<context>
    <name>SimulatedModels</name>
    <message>
        <source>Standard camera, 5 megapixels</source>
        <translation>Caméra standard, 5 mégapixels</translation>
    </message>
    <message>
        <source>All that a camera of today has</source>
        <translation>Tout ce qu’offre une caméra actuelle</translation>
    </message>
    <message>
        <source>Standard camera, 20 megapixels</source>
        <translation>Caméra standard, 20 mégapixels</translation>
    </message>
    <message>
        <source>The same with a larger sensor</source>
        <translation>La même avec un capteur plus grand</translation>
    </message>
    <message>
        <source>Standard camera, 150 megapixels</source>
        <translation>Caméra standard, 150 mégapixels</translation>
    </message>
    <message>
        <source>The same with the largest sensor</source>
        <translation>La même avec le plus grand capteur</translation>
    </message>
    <message>
        <source>Simple camera</source>
        <translation>Caméra simple</translation>
    </message>
    <message>
        <source>No binning, no reversal, one region only</source>
        <translation>Ni binning ni inversion, une seule région</translation>
    </message>
    <message>
        <source>Older camera</source>
        <translation>Caméra ancienne</translation>
    </message>
    <message>
        <source>Older feature names, binning without stages</source>
        <translation>Anciens noms de fonctions, binning sans étages</translation>
    </message>
    <message>
        <source>Camera of another maker</source>
        <translation>Caméra d’un autre fabricant</translation>
    </message>
    <message>
        <source>The page refuses it</source>
        <translation>La page la refuse</translation>
    </message>
    <message>
        <source>Camera without Height</source>
        <translation>Caméra sans Height</translation>
    </message>
    <message>
        <source>There is no region to edit</source>
        <translation>Aucune région à modifier</translation>
    </message>
    <message>
        <source>Camera with 400 features</source>
        <translation>Caméra à 400 fonctions</translation>
    </message>
    <message>
        <source>A long table of camera features</source>
        <translation>Un long tableau de fonctions</translation>
    </message>
    <message>
        <source>Colour camera</source>
        <translation>Caméra couleur</translation>
    </message>
    <message>
        <source>Bayer formats, a region that moves by single pixels</source>
        <translation>Formats Bayer, région déplaçable pixel par pixel</translation>
    </message>
    <message>
        <source>Camera with a coarse grid</source>
        <translation>Caméra à grille grossière</translation>
    </message>
    <message>
        <source>A region that moves in wide steps, which the sensor is no multiple of</source>
        <translation>Une région qui se déplace par grands pas, dont le capteur n’est pas un multiple</translation>
    </message>
    <message>
        <source>Auto-function region</source>
        <translation>Région des fonctions auto</translation>
    </message>
    <message>
        <source>With switch and overlay, fine exposure limits</source>
        <translation>Avec commutateur et incrustation, limites d’exposition fines</translation>
    </message>
    <message>
        <source>Auto-function region, gated</source>
        <translation>Région des fonctions auto, protégée</translation>
    </message>
    <message>
        <source>The same, writable only while it is switched on</source>
        <translation>La même, modifiable seulement lorsqu’elle est activée</translation>
    </message>
    <message>
        <source>Auto-function region, plain</source>
        <translation>Région des fonctions auto, simple</translation>
    </message>
    <message>
        <source>Without switch and overlay</source>
        <translation>Sans commutateur ni incrustation</translation>
    </message>
    <message>
        <source>Auto-mode region</source>
        <translation>Région AutoMode</translation>
    </message>
    <message>
        <source>Offset and size bound each other</source>
        <translation>Décalage et taille se limitent mutuellement</translation>
    </message>
    <message>
        <source>Auto-mode region, fixed</source>
        <translation>Région AutoMode, fixe</translation>
    </message>
    <message>
        <source>Offset and size have fixed ranges</source>
        <translation>Décalage et taille ont des plages fixes</translation>
    </message>
    <message>
        <source>Auto-function region by edges</source>
        <translation>Région des fonctions auto par bords</translation>
    </message>
    <message>
        <source>Left, top, right and bottom; no exposure time</source>
        <translation>Gauche, haut, droite et bas&#xa0;; pas de temps d’exposition</translation>
    </message>
    <message>
        <source>Auto-function and auto-mode region</source>
        <translation>Régions des fonctions auto et AutoMode</translation>
    </message>
    <message>
        <source>Both kinds in one camera</source>
        <translation>Les deux sortes dans une caméra</translation>
    </message>
    <message>
        <source>Auto-function region by size and edges</source>
        <translation>Région des fonctions auto par taille et bords</translation>
    </message>
    <message>
        <source>Four regions</source>
        <translation>Quatre régions</translation>
    </message>
    <message>
        <source>Several regions in one picture</source>
        <translation>Plusieurs régions dans une image</translation>
    </message>
    <message>
        <source>Six regions</source>
        <translation>Six régions</translation>
    </message>
    <message>
        <source>Four regions by number</source>
        <translation>Quatre régions par numéro</translation>
    </message>
    <message>
        <source>The camera selects a region by a number</source>
        <translation>La caméra sélectionne une région par un numéro</translation>
    </message>
    <message>
        <source>Two regions</source>
        <translation>Deux régions</translation>
    </message>
    <message>
        <source>The fewest that make an arrangement</source>
        <translation>Le minimum pour une disposition</translation>
    </message>
    <message>
        <source>Three regions</source>
        <translation>Trois régions</translation>
    </message>
    <message>
        <source>The older name of the regions&apos; switch</source>
        <translation>L’ancien nom du commutateur des régions</translation>
    </message>
    <message>
        <source>256 regions by number</source>
        <translation>256 régions par numéro</translation>
    </message>
    <message>
        <source>The most that a camera may have</source>
        <translation>Le maximum qu’une caméra peut avoir</translation>
    </message>
    <message>
        <source>Older camera with four regions</source>
        <translation>Caméra ancienne à quatre régions</translation>
    </message>
    <message>
        <source>The older names OffsetX and Width</source>
        <translation>Les anciens noms OffsetX et Width</translation>
    </message>
</context>
<context>
    <name>UserInput</name>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 n’est pas visible</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 est désactivé</translation>
    </message>
    <message>
        <source>%1 does not take the value &apos;%2&apos;</source>
        <translation>%1 n’accepte pas la valeur «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>there is no tab &apos;%1&apos;</source>
        <translation>il n’y a pas d’onglet «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>ViewerOptions</name>
    <message>
        <source>There is no camera &apos;%1&apos;; --list-cameras names them.</source>
        <translation>Il n’y a pas de caméra «&#xa0;%1&#xa0;»&#xa0;; --list-cameras les énumère.</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>Impossible d’écrire %1.</translation>
    </message>
    <message>
        <source>Click a widget; in a dialog, the button of this text.</source>
        <translation>Cliquer sur un widget ou, dans un dialogue, sur le bouton portant ce texte.</translation>
    </message>
    <message>
        <source>Set a spin box, choice, check box or field as a user would.</source>
        <translation>Régler un champ, une liste ou une case à cocher comme le ferait un utilisateur.</translation>
    </message>
    <message>
        <source>Open the editor of a feature in the table of camera features.</source>
        <translation>Ouvrir l’éditeur d’une fonction dans le tableau des fonctions.</translation>
    </message>
    <message>
        <source>Write a feature as another client of the camera.</source>
        <translation>Écrire une fonction comme le ferait un autre client de la caméra.</translation>
    </message>
    <message>
        <source>Start streaming.</source>
        <translation>Démarrer le flux.</translation>
    </message>
    <message>
        <source>Stop streaming.</source>
        <translation>Arrêter le flux.</translation>
    </message>
    <message>
        <source>Close the camera.</source>
        <translation>Fermer la caméra.</translation>
    </message>
    <message>
        <source>Wait, with the window alive.</source>
        <translation>Attendre, la fenêtre restant active.</translation>
    </message>
    <message>
        <source>Opens simulated cameras and shows the module&apos;s page for them.
Actions (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) may be given several times; they are carried out in the order given, then the screenshot is written.</source>
        <translation>Ouvre des caméras simulées et affiche la page du module pour elles.
Les actions (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) peuvent être répétées&#xa0;; elles sont exécutées dans l’ordre donné, puis la capture d’écran est écrite.</translation>
    </message>
    <message>
        <source>List the cameras and end; where built with GenICam cameras, those found as well.</source>
        <translation>Énumérer les caméras et terminer&#xa0;; avec GenICam, aussi celles trouvées.</translation>
    </message>
    <message>
        <source>Open this camera: NAME of the list, NAME+N with N features more, or genicam:ADDRESS.</source>
        <translation>Ouvrir cette caméra&#xa0;: NAME de la liste, NAME+N avec N fonctions de plus, ou genicam:ADDRESS.</translation>
    </message>
    <message>
        <source>Load the module from this file instead of plugins/ beside the program.</source>
        <translation>Charger le module depuis ce fichier au lieu de plugins/ à côté du programme.</translation>
    </message>
    <message>
        <source>Size of the window; with it, nothing is remembered.</source>
        <translation>Taille de la fenêtre&#xa0;; rien n’est alors mémorisé.</translation>
    </message>
    <message>
        <source>Tell the page a vendor that it supports, whoever made the camera.</source>
        <translation>Indiquer à la page un fabricant pris en charge, quel que soit celui de la caméra.</translation>
    </message>
    <message>
        <source>Take this language for the system&apos;s: de, fr, ja, zh_CN, or en.</source>
        <translation>Prendre cette langue pour celle du système&#xa0;: de, fr, ja, zh_CN ou en.</translation>
    </message>
    <message>
        <source>Use dark colours.</source>
        <translation>Utiliser des couleurs sombres.</translation>
    </message>
    <message>
        <source>Write a picture of the window to this PNG file and end.</source>
        <translation>Écrire une image de la fenêtre dans ce fichier PNG et terminer.</translation>
    </message>
    <message>
        <source>Report actions that cannot be done and go on.</source>
        <translation>Signaler les actions impossibles et continuer.</translation>
    </message>
    <message>
        <source>End after so many milliseconds.</source>
        <translation>Terminer après ce nombre de millisecondes.</translation>
    </message>
    <message>
        <source>--size takes a width and a height, as in 1400x900.</source>
        <translation>--size prend une largeur et une hauteur, comme dans 1400x900.</translation>
    </message>
    <message>
        <source>--quit-after takes a number of milliseconds.</source>
        <translation>--quit-after prend un nombre de millisecondes.</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>Argument inattendu «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Select the tab of this text, or of the page of this object name.</source>
        <translation>Choisir l’onglet portant ce texte, ou celui de la page de ce nom d’objet.</translation>
    </message>
</context>
<context>
    <name>WorkNotice</name>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
</TS>
