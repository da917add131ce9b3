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
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
</context>
<context>
    <name>HelpCard</name>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Takes effect</source>
        <translation>Prend effet</translation>
    </message>
    <message>
        <source>Puts back what is stored</source>
        <translation>Remet la valeur enregistrée</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Puts in the default</source>
        <translation>Met la valeur par défaut</translation>
    </message>
    <message>
        <source>Changed, and not applied yet.</source>
        <translation>Modifié et pas encore appliqué.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>Ce n’est pas la valeur par défaut.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Point at a setting, or move to it with the Tab key, to read here what it does.</source>
        <translation>Pointez un paramètre, ou allez-y avec la touche Tab, pour lire ici ce qu’il fait.</translation>
    </message>
</context>
<context>
    <name>ModelView</name>
    <message>
        <source>Level %1 of %2
%3 of %4 triangles</source>
        <translation>Niveau %1 sur %2
%3 triangles sur %4</translation>
    </message>
</context>
<context>
    <name>PendingList</name>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>Pas encore appliqué</translation>
    </message>
    <message>
        <source>Goes to the setting.</source>
        <translation>Va au paramètre.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
</context>
<context>
    <name>TurntableSettingsPanel</name>
    <message>
        <source>Turntable</source>
        <translation>Plateau tournant</translation>
    </message>
    <message>
        <source>Reset the turntable</source>
        <translation>Réinitialiser le plateau tournant</translation>
    </message>
    <message>
        <source>Resets the turntable to its default values</source>
        <translation>Rétablit les valeurs par défaut du plateau tournant</translation>
    </message>
    <message>
        <source>Present your model from all sides without touching the mouse.</source>
        <translation>Présentez votre modèle sous tous les angles sans toucher à la souris.</translation>
    </message>
    <message>
        <source>Turn the model by itself</source>
        <translation>Faire tourner le modèle tout seul</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>Degrés par seconde</translation>
    </message>
    <message>
        <source>Whether the model turns by itself. You can still turn it with the mouse.</source>
        <translation>Indique si le modèle tourne tout seul. Vous pouvez toujours le tourner à la souris.</translation>
    </message>
    <message>
        <source>How fast the model turns: at 90 degrees per second, once in four seconds.</source>
        <translation>Vitesse de rotation du modèle&#xa0;: à 90 degrés par seconde, un tour en quatre secondes.</translation>
    </message>
</context>
<context>
    <name>ViewerSettings</name>
    <message>
        <source>The folder &quot;%1&quot; for screenshots cannot be created.</source>
        <translation>Impossible de créer le dossier «&#xa0;%1&#xa0;» pour les captures.</translation>
    </message>
    <message>
        <source>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</source>
        <translation>Le cache et les captures partagent le dossier «&#xa0;%1&#xa0;»&#xa0;; les captures seraient perdues avec le cache. Veuillez changer l’un des deux dans «&#xa0;%2&#xa0;».</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Torvane Viewer</source>
        <translation>Visionneuse Torvane</translation>
    </message>
    <message>
        <source>Drag the model to turn it; the button at the top left opens the menu.</source>
        <translation>Faites glisser le modèle pour le tourner&#xa0;; le bouton en haut à gauche ouvre le menu.</translation>
    </message>
    <message>
        <source>Menu and settings</source>
        <translation>Menu et paramètres</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture</translation>
    </message>
    <message>
        <source>Saves a picture of the view in the screenshot folder</source>
        <translation>Enregistre une image de la vue dans le dossier des captures</translation>
    </message>
    <message>
        <source>Next Level</source>
        <translation>Niveau suivant</translation>
    </message>
    <message>
        <source>Shows the next simplification level</source>
        <translation>Affiche le niveau de simplification suivant</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>Fil de fer</translation>
    </message>
    <message>
        <source>Shows the model&apos;s facets by their edges</source>
        <translation>Affiche les facettes du modèle par leurs arêtes</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Gives the viewer the whole screen</source>
        <translation>Donne tout l’écran à la visionneuse</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Modification des paramètres</translation>
    </message>
    <message>
        <source>Your settings have not been applied. Close the viewer?</source>
        <translation>Vos paramètres n’ont pas été appliqués. Fermer la visionneuse&#xa0;?</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
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
    <message>
        <source>Tab chooses a link, Return opens it.</source>
        <translation>Tab choisit un lien, Entrée l’ouvre.</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Fichier de paramètres</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Fichier journal</translation>
    </message>
    <message>
        <source>Copies version, system, files and plug-ins, for the report of a fault</source>
        <translation>Copie la version, le système, les fichiers et les plug-ins pour signaler une erreur</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copier le rapport</translation>
    </message>
    <message>
        <source>The text can be selected and copied.</source>
        <translation>Le texte peut être sélectionné et copié.</translation>
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
        <source>it cannot be replaced by a new one</source>
        <translation>il ne peut pas être remplacé par un nouveau</translation>
    </message>
    <message>
        <source>it belongs to another user, who would lose it</source>
        <translation>il appartient à un autre utilisateur, qui le perdrait</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>«&#xa0;%1&#xa0;» fait obstacle et n’est utilisé par aucun programme&#xa0;: supprimez-le</translation>
    </message>
    <message>
        <source>This page has changes that are not applied.</source>
        <translation>Cette page a des modifications non appliquées.</translation>
    </message>
    <message>
        <source>Shows this page.</source>
        <translation>Affiche cette page.</translation>
    </message>
    <message>
        <source>Help on this setting</source>
        <translation>Aide sur ce réglage</translation>
    </message>
    <message>
        <source>Put back what was typed</source>
        <translation>Annuler la saisie</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Abandonner les modifications</translation>
    </message>
    <message>
        <source>Restore discarded changes</source>
        <translation>Rétablir les modifications abandonnées</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Faire défiler vers le haut</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Faire défiler vers le bas</translation>
    </message>
    <message>
        <source>Scroll to the top</source>
        <translation>Aller au début</translation>
    </message>
    <message>
        <source>Scroll to the bottom</source>
        <translation>Aller à la fin</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>un autre programme l’a verrouillé</translation>
    </message>
    <message>
        <source>a copy of it cannot be kept: %1</source>
        <translation>une copie ne peut pas en être conservée : %1</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>il ne peut pas être lu jusqu&apos;à la fin</translation>
    </message>
    <message>
        <source>not all values can be kept in it</source>
        <translation>toutes les valeurs ne peuvent pas y être conservées</translation>
    </message>
    <message>
        <source>it is being written already</source>
        <translation>il est déjà en cours d&apos;écriture</translation>
    </message>
    <message>
        <source>a group of it is open</source>
        <translation>un de ses groupes est ouvert</translation>
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
    <message>
        <source>Where your screenshots are saved. A click chooses a folder.</source>
        <translation>L’endroit où vos captures sont enregistrées. Un clic permet de choisir un dossier.</translation>
    </message>
    <message>
        <source>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</source>
        <translation>L’endroit du disque où sont gardées des parties des modèles chargés. Choisissez un disque rapide avec assez d’espace libre. Un clic permet de choisir un dossier.</translation>
    </message>
    <message>
        <source>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</source>
        <translation>La taille que le cache peut atteindre sur le disque. S’il est plus grand, les modèles déjà ouverts se chargent plus vite.</translation>
    </message>
    <message>
        <source>No folder is set.</source>
        <translation>Aucun dossier n’est défini.</translation>
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
    <message>
        <source>chosen by Torvane</source>
        <translation>choisi par Torvane</translation>
    </message>
    <message>
        <source>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</source>
        <translation>La finesse avec laquelle les faces courbes sont découpées en triangles à l’import d’un fichier CAO. La haute qualité paraît plus ronde et donne des modèles plus gros. Par défaut, Torvane décide.</translation>
    </message>
    <message>
        <source>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</source>
        <translation>L’écart permis entre un triangle et la face courbe qu’il représente, dans l’unité du modèle. Une valeur plus petite paraît plus ronde et donne plus de triangles.</translation>
    </message>
    <message>
        <source>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</source>
        <translation>La longueur permise des côtés d’un triangle, dans l’unité du modèle. Une valeur plus petite donne des triangles plus nombreux et plus réguliers.</translation>
    </message>
    <message>
        <source>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</source>
        <translation>L’angle dont une face courbe peut tourner d’un triangle au suivant. Une valeur plus petite paraît plus ronde et donne plus de triangles.</translation>
    </message>
</context>
<context>
    <name>ZelPageHelp</name>
    <message>
        <source>Range: %1.</source>
        <translation>Plage&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>Par défaut&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Takes effect: %1.</source>
        <translation>Prend effet&#xa0;: %1.</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>immédiatement</translation>
    </message>
    <message>
        <source>with the next import</source>
        <translation>au prochain import</translation>
    </message>
    <message>
        <source>after a restart</source>
        <translation>après un redémarrage</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activé</translation>
    </message>
    <message>
        <source>off</source>
        <translation>désactivé</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 ou %2</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>Qu’est-ce que c’est ?</translation>
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
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Basse qualité&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Fonctionne partout)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>ou</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Haute qualité&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Carte graphique &lt;br/&gt;dédiée)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Closes without a choice</source>
        <translation>Ferme sans choisir</translation>
    </message>
    <message>
        <source>Draws with the processor</source>
        <translation>Dessine avec le processeur</translation>
    </message>
    <message>
        <source>Draws with the graphics card</source>
        <translation>Dessine avec la carte graphique</translation>
    </message>
    <message>
        <source>Uses the chosen engine</source>
        <translation>Utilise le moteur choisi</translation>
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
        <translation>Mode haute qualité (carte graphique dédiée)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>Mode basse qualité (fonctionne partout)</translation>
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
    <message>
        <source>Rendering engine</source>
        <translation>Moteur de rendu</translation>
    </message>
    <message>
        <source>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</source>
        <translation>Détermine ce qui dessine vos modèles. Le mode haute qualité utilise la carte graphique&#xa0;; le mode basse qualité utilise le processeur et fonctionne partout. Seuls les paramètres du mode choisi sont affichés.</translation>
    </message>
    <message>
        <source>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</source>
        <translation>L’unité dans laquelle votre scène est modélisée. Le SSAO y adapte ses ombres&#xa0;: avec une mauvaise unité, elles sont trop fortes ou invisibles. Elle ne compte que si le SSAO est utilisé.</translation>
    </message>
    <message>
        <source>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</source>
        <translation>Le soin avec lequel le lanceur de rayons calcule une image. Une meilleure qualité est plus belle et prend plus de temps.</translation>
    </message>
    <message>
        <source>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</source>
        <translation>Le nombre de cœurs du processeur que le lanceur de rayons peut utiliser. Plus de cœurs l’accélèrent et en laissent moins aux autres programmes.</translation>
    </message>
    <message>
        <source>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</source>
        <translation>Lisse les bords crénelés de l’image. Cela prend peu de temps sur une carte graphique récente.</translation>
    </message>
    <message>
        <source>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</source>
        <translation>Assombrit les coins et les creux comme une lumière douce, pour mieux voir les formes. Cela prend un peu de temps à chaque image.</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</source>
        <translation>Trace des lignes le long des contours des pièces. Cela aide à distinguer des pièces de même couleur.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</source>
        <translation>La mémoire de l’ordinateur que les modèles peuvent occuper pendant que la carte graphique les dessine. Avec plus de mémoire, plus de détails restent chargés.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</source>
        <translation>La mémoire de l’ordinateur que le lanceur de rayons peut occuper. Avec plus de mémoire, de plus gros modèles peuvent être dessinés.</translation>
    </message>
    <message>
        <source>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</source>
        <translation>La mémoire de la carte graphique que les modèles peuvent occuper. Restez en dessous de ce que possède la carte&#xa0;: d’autres programmes en ont besoin aussi.</translation>
    </message>
    <message>
        <source>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</source>
        <translation>Le nombre maximal de triangles d’une image. Avec moins de triangles, les modèles bougent plus facilement&#xa0;; avec plus, ils montrent des détails plus fins.</translation>
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
    <message>
        <source>This level keeps every triangle of the model. It cannot be changed.</source>
        <translation>Ce niveau garde tous les triangles du modèle. Il ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</source>
        <translation>Le pourcentage des triangles du modèle que garde un export à ce niveau. Un niveau n’en garde jamais plus que celui du dessus.</translation>
    </message>
</context>
</TS>
