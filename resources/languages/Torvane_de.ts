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
        <source>Libraries</source>
        <translation>Bibliotheken</translation>
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
        <source>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Eine Kopie der Torvane-Einstellungsdatei „%1“ konnte nicht aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>sie lässt sich nicht durch eine neue ersetzen</translation>
    </message>
    <message>
        <source>it belongs to another user or group, who would lose it</source>
        <translation>sie gehört einem anderen Benutzer oder einer anderen Gruppe und ginge diesen verloren</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>„%1“ ist im Weg und wird von keinem Programm benutzt: Entfernen Sie es</translation>
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
</context>
</TS>
