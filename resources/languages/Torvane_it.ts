<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT" sourcelanguage="en">
<context>
    <name>ControlCenter</name>
    <message>
        <source>Application Settings</source>
        <translation>Impostazioni dell’applicazione</translation>
    </message>
    <message>
        <source>Resets all parameters</source>
        <translation>Ripristina tutti i parametri</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Applies your changes</source>
        <translation>Applica le modifiche</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
</context>
<context>
    <name>ControlCenterStandAlone</name>
    <message>
        <source>Torvane - Control Center</source>
        <translation>Torvane - Centro di controllo</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>Centro di controllo</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizza</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Massimizza</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
</context>
<context>
    <name>ZelAboutSettingsPanel</name>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Identify the Torvane version and all the third party components used while developping this software.</source>
        <translation>Consulta la versione di Torvane e tutti i componenti di terze parti utilizzati per sviluppare questo software.</translation>
    </message>
    <message>
        <source>Copyright © 2019 - %1 the makers of Torvane</source>
        <translation>Copyright © 2019 - %1 i creatori di Torvane</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugin</translation>
    </message>
    <message>
        <source>Plugin name</source>
        <translation>Nome del plugin</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Questo software utilizza le seguenti librerie:&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Librerie</translation>
    </message>
    <message>
        <source>application toolkit</source>
        <translation>kit di sviluppo di applicazioni</translation>
    </message>
    <message>
        <source>single running instance</source>
        <translation>esecuzione in istanza unica</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>tipi di carattere</translation>
    </message>
</context>
<context>
    <name>ZelControlCenter</name>
    <message>
        <source>it is not a file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>Could not read the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Impossibile leggere il file delle impostazioni di Torvane &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Could not write the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Impossibile scrivere il file delle impostazioni di Torvane &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Could not use the Torvane log file, file &quot;%1&quot; could not be created</source>
        <translation>Impossibile usare il file di log di Torvane, non è stato possibile creare il file &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</source>
        <translation>Impossibile usare la cache del database 3D, non è stato possibile creare la cartella &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Could not create compulsory folder &quot;%1&quot;</source>
        <translation>Impossibile creare la cartella obbligatoria &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Modifica delle impostazioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Changes the settings of the application</source>
        <translation>Modifica le impostazioni dell’applicazione</translation>
    </message>
    <message>
        <source>You need to restart your application to turn settings modification effective.</source>
        <translation>Devi riavviare l’applicazione per rendere effettiva la modifica delle impostazioni.</translation>
    </message>
    <message>
        <source>You have pending modifications. Continue and discard your changes ?</source>
        <translation>Ci sono modifiche in sospeso. Continuare e scartare le modifiche?</translation>
    </message>
    <message>
        <source>Your current changes will be discarded.
Continue and close the application ?</source>
        <translation>Le modifiche correnti verranno scartate.
Continuare e chiudere l’applicazione?</translation>
    </message>
    <message>
        <source>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Impossibile conservare una copia del file delle impostazioni di Torvane &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>non può essere sostituito da uno nuovo</translation>
    </message>
    <message>
        <source>it belongs to another user or group, who would lose it</source>
        <translation>appartiene a un altro utente o gruppo, che lo perderebbe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>«%1» è d’intralcio e nessun programma lo usa: rimuoverlo</translation>
    </message>
</context>
<context>
    <name>ZelControlCenterStandAloneWidget</name>
    <message>
        <source>Torvane - Fatal Error</source>
        <translation>Torvane - Errore irreversibile</translation>
    </message>
</context>
<context>
    <name>ZelGeneralSettingsPanel</name>
    <message>
        <source>Folders</source>
        <translation>Cartelle</translation>
    </message>
    <message>
        <source>Reset the folders</source>
        <translation>Ripristina le cartelle</translation>
    </message>
    <message>
        <source>Resets your folders to their default values</source>
        <translation>Ripristina i valori predefiniti delle cartelle</translation>
    </message>
    <message>
        <source>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</source>
        <translation>Torvane consente di caricare modelli di grandi dimensioni grazie a una gestione accurata della memoria disponibile. A tale scopo utilizza una cartella della cache di cui puoi impostare qui la dimensione massima e la posizione.
Puoi anche cambiare la posizione del tuo album degli screenshot.</translation>
    </message>
    <message>
        <source>Screenshot folder :</source>
        <translation>Cartella screenshot:</translation>
    </message>
    <message>
        <source>Screenshot folder</source>
        <translation>Cartella screenshot</translation>
    </message>
    <message>
        <source>Cache folder :</source>
        <translation>Cartella della cache:</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <translation>Cartella della cache</translation>
    </message>
    <message>
        <source>Cache size</source>
        <translation>Dimensione della cache</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Please set your database cache folder</source>
        <translation>Seleziona la cartella della cache del database</translation>
    </message>
    <message>
        <source>Please set your screenshot folder</source>
        <translation>Seleziona la cartella screenshot</translation>
    </message>
</context>
<context>
    <name>ZelImportSettingsPanel</name>
    <message>
        <source>Tessellation</source>
        <translation>Tassellazione</translation>
    </message>
    <message>
        <source>Reset the tessellation</source>
        <translation>Ripristina la tassellazione</translation>
    </message>
    <message>
        <source>Resets your tessellation parameters to their default values</source>
        <translation>Ripristina i valori predefiniti dei parametri di tassellazione</translation>
    </message>
    <message>
        <source>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</source>
        <translation>Quando si importano file CAD nativi, Torvane sceglie automaticamente i parametri di tassellazione che generano i triangoli.
Puoi scegliere manualmente i parametri più adatti alle tue esigenze.</translation>
    </message>
    <message>
        <source>Tessellation Quality</source>
        <translation>Qualità della tassellazione</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Alta qualità</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Bassa qualità</translation>
    </message>
    <message>
        <source>Max Face Sag</source>
        <translation>Freccia massima delle facce</translation>
    </message>
    <message>
        <source>Max Face Length</source>
        <translation>Lunghezza massima delle facce</translation>
    </message>
    <message>
        <source>Max Face Angle</source>
        <translation>Angolo massimo delle facce</translation>
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
        <translation>Torvane - Seleziona il tipo di visualizzazione</translation>
    </message>
    <message>
        <source>Select your display type - Torvane</source>
        <translation>Seleziona il tipo di visualizzazione - Torvane</translation>
    </message>
    <message>
        <source>Please select your rendering engine :</source>
        <translation>Seleziona il motore di rendering:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Bassa&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Funziona ovunque)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Alta&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Scheda grafica &lt;br/&gt;dedicata)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
        <translation>Visualizzazione</translation>
    </message>
    <message>
        <source>Reset the display</source>
        <translation>Ripristina la visualizzazione</translation>
    </message>
    <message>
        <source>Resets the display parameters to their default values</source>
        <translation>Ripristina i valori predefiniti dei parametri di visualizzazione</translation>
    </message>
    <message>
        <source>Adapt the quality and performances of your display to your needs and your material.</source>
        <translation>Adatta la qualità e le prestazioni della visualizzazione alle tue esigenze e al tuo hardware.</translation>
    </message>
    <message>
        <source>High Mode (Discrete Graphic Card)</source>
        <translation>Modalità alta (scheda grafica dedicata)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>Modalità bassa (funziona ovunque)</translation>
    </message>
    <message>
        <source>Antialiasing </source>
        <translation>Antialiasing </translation>
    </message>
    <message>
        <source>use SSAO</source>
        <translation>Usa SSAO</translation>
    </message>
    <message>
        <source>SSAO Units</source>
        <translation>Unità SSAO</translation>
    </message>
    <message>
        <source>Kilometer (km)</source>
        <translation>Chilometro (km)</translation>
    </message>
    <message>
        <source>Hectometer (hm)</source>
        <translation>Ettometro (hm)</translation>
    </message>
    <message>
        <source>Decameter (dam)</source>
        <translation>Decametro (dam)</translation>
    </message>
    <message>
        <source>Meter (m)</source>
        <translation>Metro (m)</translation>
    </message>
    <message>
        <source>Decimeter (dm)</source>
        <translation>Decimetro (dm)</translation>
    </message>
    <message>
        <source>Centimeter (cm)</source>
        <translation>Centimetro (cm)</translation>
    </message>
    <message>
        <source>Millimeter (mm)</source>
        <translation>Millimetro (mm)</translation>
    </message>
    <message>
        <source>use Edge Detect</source>
        <translation>Usa il rilevamento dei bordi</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Bassa</translation>
    </message>
    <message>
        <source>Processing power</source>
        <translation>Potenza di calcolo</translation>
    </message>
    <message>
        <source>SD resolution</source>
        <translation>Risoluzione SD</translation>
    </message>
    <message>
        <source>SD width</source>
        <translation>Larghezza SD</translation>
    </message>
    <message>
        <source>SD height</source>
        <translation>Altezza SD</translation>
    </message>
    <message>
        <source>HD resolution</source>
        <translation>Risoluzione HD</translation>
    </message>
    <message>
        <source>HD width</source>
        <translation>Larghezza HD</translation>
    </message>
    <message>
        <source>HD height</source>
        <translation>Altezza HD</translation>
    </message>
    <message>
        <source>SD Antialiasing</source>
        <translation>Antialiasing SD</translation>
    </message>
    <message>
        <source>HD Antialiasing</source>
        <translation>Antialiasing HD</translation>
    </message>
    <message>
        <source>Max CPU memory</source>
        <translation>Memoria CPU max</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Max CPU Memory</source>
        <translation>Memoria CPU max</translation>
    </message>
    <message>
        <source>Max GPU Memory</source>
        <translation>Memoria GPU max</translation>
    </message>
    <message>
        <source>Max triangles nb</source>
        <translation>Numero max di triangoli</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Media</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Alta</translation>
    </message>
    <message>
        <source>Ultra</source>
        <translation>Ultra</translation>
    </message>
    <message>
        <source>%1 core</source>
        <translation>%1 core</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 core</translation>
    </message>
</context>
<context>
    <name>ZelSimplificationSettingsPanel</name>
    <message>
        <source>Compression / Simplification</source>
        <translation>Compressione / Semplificazione</translation>
    </message>
    <message>
        <source>Reset the simplification ratios</source>
        <translation>Ripristina i rapporti di semplificazione</translation>
    </message>
    <message>
        <source>Resets the simplification ratios to their original values</source>
        <translation>Ripristina i valori originali dei rapporti di semplificazione</translation>
    </message>
    <message>
        <source>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</source>
        <translation>La semplificazione viene utilizzata durante l’esportazione della scena per ridurre le dimensioni dei file.
Puoi impostare qui la percentuale di triangoli del modello di origine che otterrai con una determinata qualità, a eccezione del livello 5, che non ha compressione (quindi il 100&#xa0;% dei triangoli del modello di origine).</translation>
    </message>
    <message>
        <source>No
compression</source>
        <translation>Nessuna
compressione</translation>
    </message>
    <message>
        <source>Low compression</source>
        <translation>Compressione bassa</translation>
    </message>
    <message>
        <source>Medium Compression</source>
        <translation>Compressione media</translation>
    </message>
    <message>
        <source>High Compression</source>
        <translation>Compressione alta</translation>
    </message>
    <message>
        <source>Best compression</source>
        <translation>Compressione migliore</translation>
    </message>
    <message>
        <source>Simplification</source>
        <translation>Semplificazione</translation>
    </message>
</context>
</TS>
