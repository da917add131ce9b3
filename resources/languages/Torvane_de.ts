<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ControlCenter</name>
    <message>
        <source>Application Settings</source>
        <translation>Anwendungseinstellungen</translation>
    </message>
    <message>
        <source>Resets all parameters</source>
        <translation>Setzt alle Parameter zurück</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Applies your changes</source>
        <translation>Wendet Ihre Änderungen an</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
</context>
<context>
    <name>ControlCenterStandAlone</name>
    <message>
        <source>Torvane - Control Center</source>
        <translation>Torvane - Kontrollzentrum</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>Kontrollzentrum</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
</context>
<context>
    <name>HelpCard</name>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Takes effect</source>
        <translation>Wirksam</translation>
    </message>
    <message>
        <source>Puts back what is stored</source>
        <translation>Stellt den gespeicherten Wert wieder her</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Puts in the default</source>
        <translation>Setzt den Standardwert ein</translation>
    </message>
    <message>
        <source>Changed, and not applied yet.</source>
        <translation>Geändert und noch nicht angewendet.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>Nicht der Standardwert.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Point at a setting, or move to it with the Tab key, to read here what it does.</source>
        <translation>Zeigen Sie auf eine Einstellung oder gehen Sie mit der Tabulatortaste zu ihr, um hier zu lesen, was sie bewirkt.</translation>
    </message>
</context>
<context>
    <name>ModelView</name>
    <message>
        <source>Level %1 of %2
%3 of %4 triangles</source>
        <translation>Stufe %1 von %2
%3 von %4 Dreiecken</translation>
    </message>
</context>
<context>
    <name>PendingList</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>Noch nicht angewendet</translation>
    </message>
    <message>
        <source>Goes to the setting.</source>
        <translation>Springt zur Einstellung.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
</context>
<context>
    <name>TurntableSettingsPanel</name>
    <message>
        <source>Turntable</source>
        <translation>Drehteller</translation>
    </message>
    <message>
        <source>Reset the turntable</source>
        <translation>Drehteller zurücksetzen</translation>
    </message>
    <message>
        <source>Resets the turntable to its default values</source>
        <translation>Setzt den Drehteller auf die Standardwerte zurück</translation>
    </message>
    <message>
        <source>Present your model from all sides without touching the mouse.</source>
        <translation>Zeigen Sie Ihr Modell von allen Seiten, ohne die Maus zu berühren.</translation>
    </message>
    <message>
        <source>Turn the model by itself</source>
        <translation>Modell von selbst drehen</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>Grad pro Sekunde</translation>
    </message>
    <message>
        <source>Whether the model turns by itself. You can still turn it with the mouse.</source>
        <translation>Ob sich das Modell von selbst dreht. Sie können es weiterhin mit der Maus drehen.</translation>
    </message>
    <message>
        <source>How fast the model turns: at 90 degrees per second, once in four seconds.</source>
        <translation>Wie schnell sich das Modell dreht: bei 90 Grad pro Sekunde einmal in vier Sekunden.</translation>
    </message>
</context>
<context>
    <name>ViewerSettings</name>
    <message>
        <source>The folder &quot;%1&quot; for screenshots cannot be created.</source>
        <translation>Der Ordner „%1“ für Screenshots kann nicht erstellt werden.</translation>
    </message>
    <message>
        <source>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</source>
        <translation>Cache und Screenshots teilen sich den Ordner „%1“; mit dem Cache gingen die Screenshots verloren. Bitte ändern Sie einen der beiden in „%2“.</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Torvane Viewer</source>
        <translation>Torvane-Betrachter</translation>
    </message>
    <message>
        <source>Drag the model to turn it; the button at the top left opens the menu.</source>
        <translation>Ziehen Sie das Modell, um es zu drehen; die Schaltfläche oben links öffnet das Menü.</translation>
    </message>
    <message>
        <source>Menu and settings</source>
        <translation>Menü und Einstellungen</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Saves a picture of the view in the screenshot folder</source>
        <translation>Speichert ein Bild der Ansicht im Screenshot-Ordner</translation>
    </message>
    <message>
        <source>Next Level</source>
        <translation>Nächste Stufe</translation>
    </message>
    <message>
        <source>Shows the next simplification level</source>
        <translation>Zeigt die nächste Vereinfachungsstufe</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Shows the model&apos;s facets by their edges</source>
        <translation>Zeigt die Flächen des Modells durch ihre Kanten</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Gives the viewer the whole screen</source>
        <translation>Gibt dem Betrachter den ganzen Bildschirm</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Änderung der Einstellungen</translation>
    </message>
    <message>
        <source>Your settings have not been applied. Close the viewer?</source>
        <translation>Ihre Einstellungen wurden nicht angewendet. Betrachter schließen?</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>ZelAboutSettingsPanel</name>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Identify the Torvane version and all the third party components used while developping this software.</source>
        <translation>Informieren Sie sich über die Version von Torvane und alle Komponenten von Drittanbietern, die bei der Entwicklung dieser Software verwendet wurden.</translation>
    </message>
    <message>
        <source>Copyright © 2019 - %1 the makers of Torvane</source>
        <translation>Copyright © 2019 - %1 die Entwickler von Torvane</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Plugin name</source>
        <translation>Name des Plug-ins</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Diese Software verwendet die folgenden Bibliotheken:&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>application toolkit</source>
        <translation>Anwendungs-Toolkit</translation>
    </message>
    <message>
        <source>single running instance</source>
        <translation>Ausführung als einzige Instanz</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>Schriftarten</translation>
    </message>
    <message>
        <source>Tab chooses a link, Return opens it.</source>
        <translation>Mit Tab wählen Sie einen Link, mit der Eingabetaste öffnen Sie ihn.</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Protokolldatei</translation>
    </message>
    <message>
        <source>Copies version, system, files and plug-ins, for the report of a fault</source>
        <translation>Kopiert Version, System, Dateien und Plug-ins, um einen Fehler zu melden</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Bericht kopieren</translation>
    </message>
    <message>
        <source>The text can be selected and copied.</source>
        <translation>Der Text kann markiert und kopiert werden.</translation>
    </message>
</context>
<context>
    <name>ZelControlCenter</name>
    <message>
        <source>it is not a file</source>
        <translation>es ist keine Datei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>Could not read the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Die Torvane-Einstellungsdatei „%1“ konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>Could not write the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Die Torvane-Einstellungsdatei „%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Could not use the Torvane log file, file &quot;%1&quot; could not be created</source>
        <translation>Die Torvane-Protokolldatei kann nicht verwendet werden, die Datei „%1“ konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</source>
        <translation>Der Cache der 3D-Datenbank kann nicht verwendet werden, der Ordner „%1“ konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Could not create compulsory folder &quot;%1&quot;</source>
        <translation>Der erforderliche Ordner „%1“ konnte nicht erstellt werden</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Änderung der Einstellungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Changes the settings of the application</source>
        <translation>Ändert die Einstellungen der Anwendung</translation>
    </message>
    <message>
        <source>You need to restart your application to turn settings modification effective.</source>
        <translation>Sie müssen die Anwendung neu starten, damit die Änderung der Einstellungen wirksam wird.</translation>
    </message>
    <message>
        <source>You have pending modifications. Continue and discard your changes ?</source>
        <translation>Es gibt noch nicht angewendete Änderungen. Fortfahren und Ihre Änderungen verwerfen?</translation>
    </message>
    <message>
        <source>Your current changes will be discarded.
Continue and close the application ?</source>
        <translation>Ihre aktuellen Änderungen werden verworfen.
Fortfahren und die Anwendung schließen?</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>sie lässt sich nicht durch eine neue ersetzen</translation>
    </message>
    <message>
        <source>it belongs to another user, who would lose it</source>
        <translation>sie gehört einem anderen Benutzer, der den Zugriff darauf verlieren würde</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>„%1“ blockiert den Vorgang und wird von keinem Programm benutzt: Bitte entfernen</translation>
    </message>
    <message>
        <source>This page has changes that are not applied.</source>
        <translation>Diese Seite hat Änderungen, die nicht angewendet sind.</translation>
    </message>
    <message>
        <source>Shows this page.</source>
        <translation>Zeigt diese Seite.</translation>
    </message>
    <message>
        <source>Help on this setting</source>
        <translation>Hilfe zu dieser Einstellung</translation>
    </message>
    <message>
        <source>Put back what was typed</source>
        <translation>Eingabe zurücknehmen</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Änderungen verwerfen</translation>
    </message>
    <message>
        <source>Restore discarded changes</source>
        <translation>Verworfene Änderungen wiederherstellen</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Nach oben blättern</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Nach unten blättern</translation>
    </message>
    <message>
        <source>Scroll to the top</source>
        <translation>Zum Anfang blättern</translation>
    </message>
    <message>
        <source>Scroll to the bottom</source>
        <translation>Zum Ende blättern</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>ein anderes Programm hat sie gesperrt</translation>
    </message>
    <message>
        <source>a copy of it cannot be kept: %1</source>
        <translation>eine Kopie davon kann nicht aufbewahrt werden: %1</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>sie kann nicht bis zum Ende gelesen werden</translation>
    </message>
    <message>
        <source>not all values can be kept in it</source>
        <translation>nicht alle Werte können darin aufbewahrt werden</translation>
    </message>
    <message>
        <source>it is being written already</source>
        <translation>sie wird bereits geschrieben</translation>
    </message>
    <message>
        <source>a group of it is open</source>
        <translation>eine Gruppe darin ist geöffnet</translation>
    </message>
</context>
<context>
    <name>ZelControlCenterStandAloneWidget</name>
    <message>
        <source>Torvane - Fatal Error</source>
        <translation>Torvane - Schwerwiegender Fehler</translation>
    </message>
</context>
<context>
    <name>ZelGeneralSettingsPanel</name>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Reset the folders</source>
        <translation>Ordner zurücksetzen</translation>
    </message>
    <message>
        <source>Resets your folders to their default values</source>
        <translation>Setzt Ihre Ordner auf die Standardwerte zurück</translation>
    </message>
    <message>
        <source>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</source>
        <translation>Torvane kann dank einer feinen Verwaltung des verfügbaren Speichers große Modelle laden. Dazu verwendet es einen Cache-Ordner, dessen maximale Größe und Speicherort Sie hier festlegen können.
Sie können auch den Speicherort Ihres Screenshot-Albums ändern.</translation>
    </message>
    <message>
        <source>Screenshot folder :</source>
        <translation>Screenshot-Ordner:</translation>
    </message>
    <message>
        <source>Screenshot folder</source>
        <translation>Screenshot-Ordner</translation>
    </message>
    <message>
        <source>Cache folder :</source>
        <translation>Cache-Ordner:</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <translation>Cache-Ordner</translation>
    </message>
    <message>
        <source>Cache size</source>
        <translation>Cache-Größe</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Please set your database cache folder</source>
        <translation>Bitte wählen Sie den Cache-Ordner der Datenbank</translation>
    </message>
    <message>
        <source>Please set your screenshot folder</source>
        <translation>Bitte wählen Sie den Screenshot-Ordner</translation>
    </message>
    <message>
        <source>Where your screenshots are saved. A click chooses a folder.</source>
        <translation>Wo Ihre Screenshots gespeichert werden. Mit einem Klick wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</source>
        <translation>Wo Teile geladener Modelle auf der Festplatte aufbewahrt werden. Wählen Sie ein schnelles Laufwerk mit genug freiem Platz. Mit einem Klick wählen Sie einen Ordner.</translation>
    </message>
    <message>
        <source>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</source>
        <translation>Wie groß der Cache auf der Festplatte werden darf. Ist er größer, laden Modelle schneller, die Sie schon einmal geöffnet haben.</translation>
    </message>
    <message>
        <source>No folder is set.</source>
        <translation>Es ist kein Ordner festgelegt.</translation>
    </message>
</context>
<context>
    <name>ZelImportSettingsPanel</name>
    <message>
        <source>Tessellation</source>
        <translation>Tessellierung</translation>
    </message>
    <message>
        <source>Reset the tessellation</source>
        <translation>Tessellierung zurücksetzen</translation>
    </message>
    <message>
        <source>Resets your tessellation parameters to their default values</source>
        <translation>Setzt Ihre Tessellierungsparameter auf die Standardwerte zurück</translation>
    </message>
    <message>
        <source>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</source>
        <translation>Beim Importieren nativer CAD-Dateien wählt Torvane automatisch die Tessellierungsparameter, mit denen die Dreiecke erzeugt werden.
Sie können die Parameter, die Ihren Anforderungen am besten entsprechen, auch manuell wählen.</translation>
    </message>
    <message>
        <source>Tessellation Quality</source>
        <translation>Tessellierungsqualität</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Hohe Qualität</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Niedrige Qualität</translation>
    </message>
    <message>
        <source>Max Face Sag</source>
        <translation>Max. Flächendurchhang</translation>
    </message>
    <message>
        <source>Max Face Length</source>
        <translation>Max. Flächenlänge</translation>
    </message>
    <message>
        <source>Max Face Angle</source>
        <translation>Max. Flächenwinkel</translation>
    </message>
    <message>
        <source> °</source>
        <translation> °</translation>
    </message>
    <message>
        <source>chosen by Torvane</source>
        <translation>von Torvane gewählt</translation>
    </message>
    <message>
        <source>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</source>
        <translation>Wie fein gekrümmte Flächen beim Import einer CAD-Datei in Dreiecke zerlegt werden. Hohe Qualität sieht runder aus und ergibt größere Modelle. Normalerweise entscheidet Torvane.</translation>
    </message>
    <message>
        <source>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</source>
        <translation>Wie weit ein Dreieck von der gekrümmten Fläche abweichen darf, die es darstellt, in der Einheit des Modells. Ein kleinerer Wert sieht runder aus und ergibt mehr Dreiecke.</translation>
    </message>
    <message>
        <source>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</source>
        <translation>Wie lang die Kanten eines Dreiecks sein dürfen, in der Einheit des Modells. Ein kleinerer Wert ergibt mehr und gleichmäßigere Dreiecke.</translation>
    </message>
    <message>
        <source>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</source>
        <translation>Wie weit sich eine gekrümmte Fläche von einem Dreieck zum nächsten drehen darf. Ein kleinerer Wert sieht runder aus und ergibt mehr Dreiecke.</translation>
    </message>
</context>
<context>
    <name>ZelPageHelp</name>
    <message>
        <source>Range: %1.</source>
        <translation>Bereich: %1.</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>Standard: %1.</translation>
    </message>
    <message>
        <source>Takes effect: %1.</source>
        <translation>Wirksam: %1.</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>sofort</translation>
    </message>
    <message>
        <source>with the next import</source>
        <translation>mit dem nächsten Import</translation>
    </message>
    <message>
        <source>after a restart</source>
        <translation>nach einem Neustart</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>ein</translation>
    </message>
    <message>
        <source>off</source>
        <translation>aus</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 oder %2</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>Was ist das?</translation>
    </message>
</context>
<context>
    <name>ZelRendererSelector</name>
    <message>
        <source>Torvane - Please select your display type</source>
        <translation>Torvane - Bitte wählen Sie Ihren Anzeigetyp</translation>
    </message>
    <message>
        <source>Select your display type - Torvane</source>
        <translation>Anzeigetyp wählen - Torvane</translation>
    </message>
    <message>
        <source>Please select your rendering engine :</source>
        <translation>Bitte wählen Sie Ihre Rendering-Engine:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Niedrig&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Läuft überall)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>oder</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Hoch&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Dedizierte &lt;br/&gt;Grafikkarte)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Closes without a choice</source>
        <translation>Schließt ohne Auswahl</translation>
    </message>
    <message>
        <source>Draws with the processor</source>
        <translation>Zeichnet mit dem Prozessor</translation>
    </message>
    <message>
        <source>Draws with the graphics card</source>
        <translation>Zeichnet mit der Grafikkarte</translation>
    </message>
    <message>
        <source>Uses the chosen engine</source>
        <translation>Verwendet die gewählte Engine</translation>
    </message>
</context>
<context>
    <name>ZelRendererSettingsPanel</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Reset the display</source>
        <translation>Anzeige zurücksetzen</translation>
    </message>
    <message>
        <source>Resets the display parameters to their default values</source>
        <translation>Setzt die Anzeigeparameter auf die Standardwerte zurück</translation>
    </message>
    <message>
        <source>Adapt the quality and performances of your display to your needs and your material.</source>
        <translation>Passen Sie Qualität und Leistung der Anzeige an Ihre Anforderungen und Ihre Hardware an.</translation>
    </message>
    <message>
        <source>High Mode (Discrete Graphic Card)</source>
        <translation>Modus „Hoch“ (dedizierte Grafikkarte)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>Modus „Niedrig“ (läuft überall)</translation>
    </message>
    <message>
        <source>Antialiasing </source>
        <translation>Kantenglättung </translation>
    </message>
    <message>
        <source>use SSAO</source>
        <translation>SSAO verwenden</translation>
    </message>
    <message>
        <source>SSAO Units</source>
        <translation>SSAO-Einheiten</translation>
    </message>
    <message>
        <source>Kilometer (km)</source>
        <translation>Kilometer (km)</translation>
    </message>
    <message>
        <source>Hectometer (hm)</source>
        <translation>Hektometer (hm)</translation>
    </message>
    <message>
        <source>Decameter (dam)</source>
        <translation>Dekameter (dam)</translation>
    </message>
    <message>
        <source>Meter (m)</source>
        <translation>Meter (m)</translation>
    </message>
    <message>
        <source>Decimeter (dm)</source>
        <translation>Dezimeter (dm)</translation>
    </message>
    <message>
        <source>Centimeter (cm)</source>
        <translation>Zentimeter (cm)</translation>
    </message>
    <message>
        <source>Millimeter (mm)</source>
        <translation>Millimeter (mm)</translation>
    </message>
    <message>
        <source>use Edge Detect</source>
        <translation>Kantenerkennung verwenden</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Processing power</source>
        <translation>Rechenleistung</translation>
    </message>
    <message>
        <source>SD resolution</source>
        <translation>SD-Auflösung</translation>
    </message>
    <message>
        <source>SD width</source>
        <translation>SD-Breite</translation>
    </message>
    <message>
        <source>SD height</source>
        <translation>SD-Höhe</translation>
    </message>
    <message>
        <source>HD resolution</source>
        <translation>HD-Auflösung</translation>
    </message>
    <message>
        <source>HD width</source>
        <translation>HD-Breite</translation>
    </message>
    <message>
        <source>HD height</source>
        <translation>HD-Höhe</translation>
    </message>
    <message>
        <source>SD Antialiasing</source>
        <translation>SD-Kantenglättung</translation>
    </message>
    <message>
        <source>HD Antialiasing</source>
        <translation>HD-Kantenglättung</translation>
    </message>
    <message>
        <source>Max CPU memory</source>
        <translation>Max. CPU-Speicher</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Max CPU Memory</source>
        <translation>Max. CPU-Speicher</translation>
    </message>
    <message>
        <source>Max GPU Memory</source>
        <translation>Max. GPU-Speicher</translation>
    </message>
    <message>
        <source>Max triangles nb</source>
        <translation>Max. Anzahl Dreiecke</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Ultra</source>
        <translation>Ultra</translation>
    </message>
    <message>
        <source>%1 core</source>
        <translation>%1 Kern</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 Kerne</translation>
    </message>
    <message>
        <source>Rendering engine</source>
        <translation>Rendering-Engine</translation>
    </message>
    <message>
        <source>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</source>
        <translation>Entscheidet, was Ihre Modelle zeichnet. Der Modus „Hoch“ nutzt die Grafikkarte; der Modus „Niedrig“ nutzt den Prozessor und läuft überall. Nur die Einstellungen des gewählten Modus werden angezeigt.</translation>
    </message>
    <message>
        <source>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</source>
        <translation>Die Einheit, in der Ihre Szene modelliert ist. SSAO bemisst danach seine Schatten: Mit einer falschen Einheit sind sie zu stark oder nicht zu sehen. Sie zählt nur, solange SSAO verwendet wird.</translation>
    </message>
    <message>
        <source>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</source>
        <translation>Wie sorgfältig der Raytracer ein Bild berechnet. Eine höhere Qualität sieht besser aus und dauert länger.</translation>
    </message>
    <message>
        <source>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</source>
        <translation>Wie viele Kerne des Prozessors der Raytracer nutzen darf. Mit mehr Kernen ist er schneller, und anderen Programmen bleibt weniger.</translation>
    </message>
    <message>
        <source>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</source>
        <translation>Glättet die gezackten Kanten des Bildes. Auf einer aktuellen Grafikkarte kostet das wenig Zeit.</translation>
    </message>
    <message>
        <source>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</source>
        <translation>Dunkelt Ecken und Spalten ab, wie weiches Licht es tut, sodass Formen besser zu erkennen sind. Das kostet bei jedem Bild etwas Zeit.</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</source>
        <translation>Zeichnet Linien entlang der Kanten der Teile. So lassen sich Teile gleicher Farbe leichter unterscheiden.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</source>
        <translation>Wie viel Arbeitsspeicher die Modelle belegen dürfen, während die Grafikkarte sie zeichnet. Mit mehr davon bleiben mehr Details geladen.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</source>
        <translation>Wie viel Arbeitsspeicher der Raytracer belegen darf. Mit mehr davon lassen sich größere Modelle zeichnen.</translation>
    </message>
    <message>
        <source>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</source>
        <translation>Wie viel Speicher der Grafikkarte die Modelle belegen dürfen. Bleiben Sie unter dem, was die Karte hat: Andere Programme brauchen auch etwas davon.</translation>
    </message>
    <message>
        <source>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</source>
        <translation>Wie viele Dreiecke ein Bild höchstens haben darf. Mit weniger bewegen sich Modelle flüssiger, mit mehr zeigen sie feinere Details.</translation>
    </message>
</context>
<context>
    <name>ZelSimplificationSettingsPanel</name>
    <message>
        <source>Compression / Simplification</source>
        <translation>Komprimierung / Vereinfachung</translation>
    </message>
    <message>
        <source>Reset the simplification ratios</source>
        <translation>Vereinfachungsraten zurücksetzen</translation>
    </message>
    <message>
        <source>Resets the simplification ratios to their original values</source>
        <translation>Setzt die Vereinfachungsraten auf die ursprünglichen Werte zurück</translation>
    </message>
    <message>
        <source>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</source>
        <translation>Die Vereinfachung wird beim Exportieren Ihrer Szene verwendet, um Ihre Dateien zu verkleinern.
Sie können hier festlegen, welchen Prozentsatz der Dreiecke des Quellmodells Sie bei einer bestimmten Qualität erhalten, mit Ausnahme der Stufe 5, die keine Komprimierung hat (also 100&#xa0;% der Dreiecke des Quellmodells).</translation>
    </message>
    <message>
        <source>No
compression</source>
        <translation>Keine
Komprimierung</translation>
    </message>
    <message>
        <source>Low compression</source>
        <translation>Niedrige Komprimierung</translation>
    </message>
    <message>
        <source>Medium Compression</source>
        <translation>Mittlere Komprimierung</translation>
    </message>
    <message>
        <source>High Compression</source>
        <translation>Hohe Komprimierung</translation>
    </message>
    <message>
        <source>Best compression</source>
        <translation>Beste Komprimierung</translation>
    </message>
    <message>
        <source>Simplification</source>
        <translation>Vereinfachung</translation>
    </message>
    <message>
        <source>This level keeps every triangle of the model. It cannot be changed.</source>
        <translation>Diese Stufe behält jedes Dreieck des Modells. Sie lässt sich nicht ändern.</translation>
    </message>
    <message>
        <source>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</source>
        <translation>Wie viel Prozent der Dreiecke des Modells ein Export auf dieser Stufe behält. Eine Stufe behält nie mehr als die über ihr.</translation>
    </message>
</context>
</TS>
