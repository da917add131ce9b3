<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>ControlCenter</name>
    <message>
        <source>Application Settings</source>
        <translation>Paramètres de l’application</translation>
    </message>
    <message>
        <source>Resets all parameters</source>
        <translation>Réinitialise tous les paramètres</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Applies your changes</source>
        <translation>Applique vos modifications</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>ControlCenterStandAlone</name>
    <message>
        <source>Torvane - Control Center</source>
        <translation>Torvane - Centre de contrôle</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>Centre de contrôle</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>ZelAboutSettingsPanel</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Identify the Torvane version and all the third party components used while developping this software.</source>
        <translation>Consultez la version de Torvane et tous les composants tiers utilisés pour développer ce logiciel.</translation>
    </message>
    <message>
        <source>Copyright © 2019 - %1 the makers of Torvane</source>
        <translation>Copyright © 2019 - %1 les créateurs de Torvane</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Plugin name</source>
        <translation>Nom du plug-in</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Ce logiciel utilise les bibliothèques suivantes&#xa0;:&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Bibliothèques</translation>
    </message>
    <message>
        <source>application toolkit</source>
        <translation>kit de développement d’applications</translation>
    </message>
    <message>
        <source>single running instance</source>
        <translation>exécution en instance unique</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>polices de caractères</translation>
    </message>
</context>
<context>
    <name>ZelControlCenter</name>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop volumineux</translation>
    </message>
    <message>
        <source>Could not read the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Impossible de lire le fichier de paramètres de Torvane «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not write the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Impossible d’écrire le fichier de paramètres de Torvane «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Could not use the Torvane log file, file &quot;%1&quot; could not be created</source>
        <translation>Impossible d’utiliser le fichier journal de Torvane, le fichier «&#xa0;%1&#xa0;» n’a pas pu être créé</translation>
    </message>
    <message>
        <source>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</source>
        <translation>Impossible d’utiliser le cache de la base de données 3D, le dossier «&#xa0;%1&#xa0;» n’a pas pu être créé</translation>
    </message>
    <message>
        <source>Could not create compulsory folder &quot;%1&quot;</source>
        <translation>Impossible de créer le dossier obligatoire «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Modification des paramètres</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Changes the settings of the application</source>
        <translation>Modifie les paramètres de l’application</translation>
    </message>
    <message>
        <source>You need to restart your application to turn settings modification effective.</source>
        <translation>Vous devez redémarrer l’application pour que la modification des paramètres prenne effet.</translation>
    </message>
    <message>
        <source>You have pending modifications. Continue and discard your changes ?</source>
        <translation>Des modifications sont en attente. Continuer et abandonner vos modifications&#xa0;?</translation>
    </message>
    <message>
        <source>Your current changes will be discarded.
Continue and close the application ?</source>
        <translation>Vos modifications en cours seront abandonnées.
Continuer et fermer l’application&#xa0;?</translation>
    </message>
    <message>
        <source>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Impossible de conserver une copie du fichier de paramètres de Torvane «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>il ne peut pas être remplacé par un nouveau</translation>
    </message>
    <message>
        <source>it belongs to another user or group, who would lose it</source>
        <translation>il appartient à un autre utilisateur ou groupe, qui le perdrait</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>« %1 » fait obstacle et n’est utilisé par aucun programme : supprimez-le</translation>
    </message>
</context>
<context>
    <name>ZelControlCenterStandAloneWidget</name>
    <message>
        <source>Torvane - Fatal Error</source>
        <translation>Torvane - Erreur fatale</translation>
    </message>
</context>
<context>
    <name>ZelGeneralSettingsPanel</name>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>Reset the folders</source>
        <translation>Réinitialiser les dossiers</translation>
    </message>
    <message>
        <source>Resets your folders to their default values</source>
        <translation>Rétablit les valeurs par défaut de vos dossiers</translation>
    </message>
    <message>
        <source>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</source>
        <translation>Torvane permet de charger de grands modèles grâce à une gestion fine de la mémoire disponible. Pour cela, il utilise un dossier de cache dont vous pouvez définir ici la taille maximale et l’emplacement.
Vous pouvez également changer l’emplacement de votre album de captures d’écran.</translation>
    </message>
    <message>
        <source>Screenshot folder :</source>
        <translation>Dossier des captures&#xa0;:</translation>
    </message>
    <message>
        <source>Screenshot folder</source>
        <translation>Dossier des captures</translation>
    </message>
    <message>
        <source>Cache folder :</source>
        <translation>Dossier de cache&#xa0;:</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <translation>Dossier de cache</translation>
    </message>
    <message>
        <source>Cache size</source>
        <translation>Taille du cache</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Please set your database cache folder</source>
        <translation>Veuillez choisir le dossier de cache de la base de données</translation>
    </message>
    <message>
        <source>Please set your screenshot folder</source>
        <translation>Veuillez choisir le dossier des captures</translation>
    </message>
</context>
<context>
    <name>ZelImportSettingsPanel</name>
    <message>
        <source>Tessellation</source>
        <translation>Tessellation</translation>
    </message>
    <message>
        <source>Reset the tessellation</source>
        <translation>Réinitialiser la tessellation</translation>
    </message>
    <message>
        <source>Resets your tessellation parameters to their default values</source>
        <translation>Rétablit les valeurs par défaut de vos paramètres de tessellation</translation>
    </message>
    <message>
        <source>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</source>
        <translation>Lors de l’importation de fichiers CAO natifs, Torvane choisit automatiquement les paramètres de tessellation qui produisent les triangles.
Vous pouvez choisir manuellement les paramètres qui répondent le mieux à vos besoins.</translation>
    </message>
    <message>
        <source>Tessellation Quality</source>
        <translation>Qualité de la tessellation</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Haute qualité</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Basse qualité</translation>
    </message>
    <message>
        <source>Max Face Sag</source>
        <translation>Flèche maximale des faces</translation>
    </message>
    <message>
        <source>Max Face Length</source>
        <translation>Longueur maximale des faces</translation>
    </message>
    <message>
        <source>Max Face Angle</source>
        <translation>Angle maximal des faces</translation>
    </message>
    <message>
        <source> °</source>
        <translation> °</translation>
    </message>
</context>
<context>
    <name>ZelRendererSelector</name>
    <message>
        <source>Torvane - Please select your display type</source>
        <translation>Torvane - Veuillez choisir votre type d’affichage</translation>
    </message>
    <message>
        <source>Select your display type - Torvane</source>
        <translation>Choisissez votre type d’affichage - Torvane</translation>
    </message>
    <message>
        <source>Please select your rendering engine :</source>
        <translation>Veuillez choisir votre moteur de rendu&#xa0;:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Bas&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Fonctionne partout)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Élevé&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Carte graphique &lt;br/&gt;dédiée)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>ZelRendererSettingsPanel</name>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Reset the display</source>
        <translation>Réinitialiser l’affichage</translation>
    </message>
    <message>
        <source>Resets the display parameters to their default values</source>
        <translation>Rétablit les valeurs par défaut des paramètres d’affichage</translation>
    </message>
    <message>
        <source>Adapt the quality and performances of your display to your needs and your material.</source>
        <translation>Adaptez la qualité et les performances de votre affichage à vos besoins et à votre matériel.</translation>
    </message>
    <message>
        <source>High Mode (Discrete Graphic Card)</source>
        <translation>Mode élevé (carte graphique dédiée)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>Mode bas (fonctionne partout)</translation>
    </message>
    <message>
        <source>Antialiasing </source>
        <translation>Anticrénelage </translation>
    </message>
    <message>
        <source>use SSAO</source>
        <translation>Utiliser le SSAO</translation>
    </message>
    <message>
        <source>SSAO Units</source>
        <translation>Unités SSAO</translation>
    </message>
    <message>
        <source>Kilometer (km)</source>
        <translation>Kilomètre (km)</translation>
    </message>
    <message>
        <source>Hectometer (hm)</source>
        <translation>Hectomètre (hm)</translation>
    </message>
    <message>
        <source>Decameter (dam)</source>
        <translation>Décamètre (dam)</translation>
    </message>
    <message>
        <source>Meter (m)</source>
        <translation>Mètre (m)</translation>
    </message>
    <message>
        <source>Decimeter (dm)</source>
        <translation>Décimètre (dm)</translation>
    </message>
    <message>
        <source>Centimeter (cm)</source>
        <translation>Centimètre (cm)</translation>
    </message>
    <message>
        <source>Millimeter (mm)</source>
        <translation>Millimètre (mm)</translation>
    </message>
    <message>
        <source>use Edge Detect</source>
        <translation>Utiliser la détection des contours</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Basse</translation>
    </message>
    <message>
        <source>Processing power</source>
        <translation>Puissance de calcul</translation>
    </message>
    <message>
        <source>SD resolution</source>
        <translation>Résolution SD</translation>
    </message>
    <message>
        <source>SD width</source>
        <translation>Largeur SD</translation>
    </message>
    <message>
        <source>SD height</source>
        <translation>Hauteur SD</translation>
    </message>
    <message>
        <source>HD resolution</source>
        <translation>Résolution HD</translation>
    </message>
    <message>
        <source>HD width</source>
        <translation>Largeur HD</translation>
    </message>
    <message>
        <source>HD height</source>
        <translation>Hauteur HD</translation>
    </message>
    <message>
        <source>SD Antialiasing</source>
        <translation>Anticrénelage SD</translation>
    </message>
    <message>
        <source>HD Antialiasing</source>
        <translation>Anticrénelage HD</translation>
    </message>
    <message>
        <source>Max CPU memory</source>
        <translation>Mémoire CPU max.</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Max CPU Memory</source>
        <translation>Mémoire CPU max.</translation>
    </message>
    <message>
        <source>Max GPU Memory</source>
        <translation>Mémoire GPU max.</translation>
    </message>
    <message>
        <source>Max triangles nb</source>
        <translation>Nombre max. de triangles</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Haute</translation>
    </message>
    <message>
        <source>Ultra</source>
        <translation>Ultra</translation>
    </message>
    <message>
        <source>%1 core</source>
        <translation>%1 cœur</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 cœurs</translation>
    </message>
</context>
<context>
    <name>ZelSimplificationSettingsPanel</name>
    <message>
        <source>Compression / Simplification</source>
        <translation>Compression / Simplification</translation>
    </message>
    <message>
        <source>Reset the simplification ratios</source>
        <translation>Réinitialiser les taux de simplification</translation>
    </message>
    <message>
        <source>Resets the simplification ratios to their original values</source>
        <translation>Rétablit les valeurs d’origine des taux de simplification</translation>
    </message>
    <message>
        <source>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</source>
        <translation>La simplification est utilisée lors de l’exportation de votre scène pour réduire la taille de vos fichiers.
Vous pouvez définir ici le pourcentage de triangles du modèle source que vous obtiendrez pour une qualité donnée, à l’exception du niveau 5, qui est sans compression (soit 100&#xa0;% des triangles du modèle source).</translation>
    </message>
    <message>
        <source>No
compression</source>
        <translation>Aucune
compression</translation>
    </message>
    <message>
        <source>Low compression</source>
        <translation>Compression faible</translation>
    </message>
    <message>
        <source>Medium Compression</source>
        <translation>Compression moyenne</translation>
    </message>
    <message>
        <source>High Compression</source>
        <translation>Compression élevée</translation>
    </message>
    <message>
        <source>Best compression</source>
        <translation>Meilleure compression</translation>
    </message>
    <message>
        <source>Simplification</source>
        <translation>Simplification</translation>
    </message>
</context>
</TS>
