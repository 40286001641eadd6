<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BaseTabPluginWidget</name>
    <message>
        <source>Vendor not supported for plugins, widget not created.</source>
        <translation>Fabricant non pris en charge par les plug-ins, page non créée.</translation>
    </message>
    <message>
        <source>The camera does not answer. The page shows its last known settings.</source>
        <translation>La caméra ne répond pas. La page affiche ses derniers réglages connus.</translation>
    </message>
</context>
<context>
    <name>CommandEditor</name>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Execute %1</source>
        <translation>Exécuter %1</translation>
    </message>
</context>
<context>
    <name>FeaturesTableWidget</name>
    <message>
        <source>Feature Name</source>
        <translation>Nom de la fonction</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Selected features:</source>
        <translation>Fonctions sélectionnées&#xa0;:</translation>
    </message>
    <message>
        <source>Saving feature &apos;%1&apos; to value=%2 failed.</source>
        <translation>La fonction «&#xa0;%1&#xa0;» n’a pas pu être réglée à la valeur %2.</translation>
    </message>
</context>
<context>
    <name>ImageFormatWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Image Format: </source>
        <translation>Format d’image&#xa0;: </translation>
    </message>
    <message>
        <source>Pixel Format: </source>
        <translation>Format de pixel&#xa0;: </translation>
    </message>
    <message>
        <source>Binning Selector: </source>
        <translation>Sélection binning&#xa0;: </translation>
    </message>
    <message>
        <source>Horizontal Mode: </source>
        <translation>Mode horizontal&#xa0;: </translation>
    </message>
    <message>
        <source>Binning Horizontal: </source>
        <translation>Binning horiz.&#xa0;: </translation>
    </message>
    <message>
        <source>Vertical Mode: </source>
        <translation>Mode vertical&#xa0;: </translation>
    </message>
    <message>
        <source>Binning Vertical: </source>
        <translation>Binning vert.&#xa0;: </translation>
    </message>
    <message>
        <source>Reverse X: </source>
        <translation>Inversion X&#xa0;: </translation>
    </message>
    <message>
        <source>Reverse Y: </source>
        <translation>Inversion Y&#xa0;: </translation>
    </message>
    <message>
        <source>Select Image for ROI: </source>
        <translation>Image pour la ROI&#xa0;: </translation>
    </message>
    <message>
        <source>Camera does not support color interpolation matrix, widget not created</source>
        <translation>La caméra ne prend pas en charge la matrice d’interpolation des couleurs, page non créée</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>Format d’image</translation>
    </message>
    <message>
        <source>Error accessing widget &apos;%s&apos;</source>
        <translation>Erreur d’accès au widget «&#xa0;%s&#xa0;»</translation>
    </message>
    <message>
        <source>Feature &apos;%1&apos; is not available in the camera.</source>
        <translation>La fonction «&#xa0;%1&#xa0;» n’est pas disponible dans la caméra.</translation>
    </message>
    <message>
        <source>Picture &apos;%1&apos; cannot be used: %2</source>
        <translation>L’image «&#xa0;%1&#xa0;» ne peut pas être utilisée&#xa0;: %2</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>Elle est trop grande.</translation>
    </message>
</context>
<context>
    <name>MultiROIWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>ATTENTION</translation>
    </message>
    <message>
        <source>MultipleRegionEnable: </source>
        <translation>Activer les régions multiples&#xa0;: </translation>
    </message>
    <message>
        <source>Select Mode: </source>
        <translation>Mode&#xa0;: </translation>
    </message>
    <message>
        <source>Load Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Région</translation>
    </message>
    <message>
        <source>column</source>
        <translation>colonne</translation>
    </message>
    <message>
        <source>row</source>
        <translation>ligne</translation>
    </message>
    <message>
        <source>Load Default Configuration</source>
        <translation>Charger la configuration par défaut</translation>
    </message>
    <message>
        <source>Overwrite the current region settings?</source>
        <translation>Remplacer les réglages actuels des régions&#xa0;?</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of the whole %2.</source>
        <translation>Le mode de disposition sélectionné «&#xa0;%1&#xa0;» exige la désactivation de toute la %2.</translation>
    </message>
    <message>
        <source>Deactivate Region</source>
        <translation>Désactiver la région</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of all subsequent regions.</source>
        <translation>Le mode de disposition sélectionné «&#xa0;%1&#xa0;» exige la désactivation de toutes les régions suivantes.</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;Tile&apos; requires deactivation of either a row or a column.
What would you deactivate?</source>
        <translation>Le mode de disposition sélectionné «&#xa0;Tile&#xa0;» exige la désactivation d’une ligne ou d’une colonne.
Que voulez-vous désactiver&#xa0;?</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Colonne</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Arrangement Mode &apos;%1&apos; requires activation of the whole %2.</source>
        <translation>Le mode de disposition «&#xa0;%1&#xa0;» exige l’activation de toute la %2.</translation>
    </message>
    <message>
        <source>Activate Region</source>
        <translation>Activer la région</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings for %2 regions available.</source>
        <translation>Mode de disposition «&#xa0;%1&#xa0;» inconnu, aucun réglage par défaut pour %2 régions.</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings available.</source>
        <translation>Mode de disposition «&#xa0;%1&#xa0;» inconnu, aucun réglage par défaut.</translation>
    </message>
    <message>
        <source>Multi ROI</source>
        <translation>Multi-ROI</translation>
    </message>
    <message>
        <source>The camera names %1 regions; the first %2 are shown.</source>
        <translation>La caméra indique %1 régions&#xa0;; les %2 premières sont affichées.</translation>
    </message>
    <message>
        <source>Region%1</source>
        <translation>Région&#xa0;%1</translation>
    </message>
    <message>
        <source>SubRegion: %1, Saving feature &apos;%2&apos; to value=%3 failed.</source>
        <translation>Région&#xa0;%1&#xa0;: la fonction «&#xa0;%2&#xa0;» n’a pas pu être réglée à la valeur %3.</translation>
    </message>
    <message>
        <source>Multi ROI widget cannot be used in combination with Binning or ReverseX/Y.</source>
        <translation>La page «&#xa0;Multi-ROI&#xa0;» n’est pas utilisable avec le binning ou l’inversion (ReverseX/Y).</translation>
    </message>
    <message>
        <source>Region%1 cannot be activated into a valid configuration due to the minimum size.</source>
        <translation>La région&#xa0;%1 ne peut pas être activée dans une configuration valide à cause de la taille minimale.</translation>
    </message>
    <message>
        <source>Regions must be activated continuously, ascending from Region0.</source>
        <translation>Les régions doivent être activées sans interruption, dans l’ordre croissant à partir de la région&#xa0;0.</translation>
    </message>
    <message>
        <source>Regions must share a common line space (activate all preceding regions first).</source>
        <translation>Les régions doivent partager une même plage de lignes (activez d’abord toutes les régions précédentes).</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = &apos;%1&apos; failed!</source>
        <translation>Échec du réglage de «&#xa0;SubRegionSelector&#xa0;» = «&#xa0;%1&#xa0;»&#xa0;!</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = %1 failed!</source>
        <translation>Échec du réglage de «&#xa0;SubRegionSelector&#xa0;» = %1&#xa0;!</translation>
    </message>
</context>
<context>
    <name>RegionLabelWidget</name>
    <message>
        <source>Form</source>
        <translation>Formulaire</translation>
    </message>
    <message>
        <source>Region-ID, position and size:
  ID   ( X , Y )
        Width x Height
</source>
        <translation>ID de la région, position et taille&#xa0;:
  ID   ( X , Y )
        Largeur x Hauteur
</translation>
    </message>
</context>
<context>
    <name>RegionTableWidget</name>
    <message>
        <source>tblFeatures.data(%1) cannot be converted to FeatureInfo: %2</source>
        <translation>tblFeatures.data(%1) ne peut pas être converti en FeatureInfo&#xa0;: %2</translation>
    </message>
</context>
</TS>
