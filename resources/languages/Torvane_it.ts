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
    <message>
        <source>Restore</source>
        <translation>Ripristina</translation>
    </message>
</context>
<context>
    <name>HelpCard</name>
    <message>
        <source>Range</source>
        <translation>Intervallo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Takes effect</source>
        <translation>Ha effetto</translation>
    </message>
    <message>
        <source>Puts back what is stored</source>
        <translation>Rimette il valore salvato</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Puts in the default</source>
        <translation>Imposta il valore predefinito</translation>
    </message>
    <message>
        <source>Changed, and not applied yet.</source>
        <translation>Modificato e non ancora applicato.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>Non è il valore predefinito.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Point at a setting, or move to it with the Tab key, to read here what it does.</source>
        <translation>Punta un’impostazione, o raggiungila con il tasto Tab, per leggere qui che cosa fa.</translation>
    </message>
</context>
<context>
    <name>ModelView</name>
    <message>
        <source>Level %1 of %2
%3 of %4 triangles</source>
        <translation>Livello %1 di %2
%3 di %4 triangoli</translation>
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
        <translation>Non ancora applicato</translation>
    </message>
    <message>
        <source>Goes to the setting.</source>
        <translation>Va all’impostazione.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Scarta</translation>
    </message>
</context>
<context>
    <name>TurntableSettingsPanel</name>
    <message>
        <source>Turntable</source>
        <translation>Piattaforma girevole</translation>
    </message>
    <message>
        <source>Reset the turntable</source>
        <translation>Ripristina la piattaforma girevole</translation>
    </message>
    <message>
        <source>Resets the turntable to its default values</source>
        <translation>Ripristina i valori predefiniti della piattaforma girevole</translation>
    </message>
    <message>
        <source>Present your model from all sides without touching the mouse.</source>
        <translation>Presenta il modello da tutti i lati senza toccare il mouse.</translation>
    </message>
    <message>
        <source>Turn the model by itself</source>
        <translation>Ruota il modello da solo</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>Gradi al secondo</translation>
    </message>
    <message>
        <source>Whether the model turns by itself. You can still turn it with the mouse.</source>
        <translation>Indica se il modello ruota da solo. Puoi comunque ruotarlo con il mouse.</translation>
    </message>
    <message>
        <source>How fast the model turns: at 90 degrees per second, once in four seconds.</source>
        <translation>Velocità di rotazione del modello: a 90 gradi al secondo, un giro ogni quattro secondi.</translation>
    </message>
</context>
<context>
    <name>ViewerSettings</name>
    <message>
        <source>The folder &quot;%1&quot; for screenshots cannot be created.</source>
        <translation>Impossibile creare la cartella &quot;%1&quot; per gli screenshot.</translation>
    </message>
    <message>
        <source>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</source>
        <translation>La cache e gli screenshot usano la stessa cartella &quot;%1&quot; e gli screenshot andrebbero persi con la cache. Cambia una delle due in &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Torvane Viewer</source>
        <translation>Visualizzatore Torvane</translation>
    </message>
    <message>
        <source>Drag the model to turn it; the button at the top left opens the menu.</source>
        <translation>Trascina il modello per ruotarlo; il pulsante in alto a sinistra apre il menu.</translation>
    </message>
    <message>
        <source>Menu and settings</source>
        <translation>Menu e impostazioni</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Saves a picture of the view in the screenshot folder</source>
        <translation>Salva un’immagine della vista nella cartella screenshot</translation>
    </message>
    <message>
        <source>Next Level</source>
        <translation>Livello successivo</translation>
    </message>
    <message>
        <source>Shows the next simplification level</source>
        <translation>Mostra il livello di semplificazione successivo</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>Fil di ferro</translation>
    </message>
    <message>
        <source>Shows the model&apos;s facets by their edges</source>
        <translation>Mostra le faccette del modello con i loro bordi</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Gives the viewer the whole screen</source>
        <translation>Dà al visualizzatore tutto lo schermo</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Modifica delle impostazioni</translation>
    </message>
    <message>
        <source>Your settings have not been applied. Close the viewer?</source>
        <translation>Le impostazioni non sono state applicate. Chiudere il visualizzatore?</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 salvato</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossibile salvare %1</translation>
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
    <message>
        <source>Tab chooses a link, Return opens it.</source>
        <translation>Tab sceglie un collegamento, Invio lo apre.</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>File di impostazioni</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>File di log</translation>
    </message>
    <message>
        <source>Copies version, system, files and plug-ins, for the report of a fault</source>
        <translation>Copia versione, sistema, file e plug-in per segnalare un errore</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copia rapporto</translation>
    </message>
    <message>
        <source>The text can be selected and copied.</source>
        <translation>Il testo può essere selezionato e copiato.</translation>
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
        <source>it cannot be replaced by a new one</source>
        <translation>non può essere sostituito da uno nuovo</translation>
    </message>
    <message>
        <source>it belongs to another user, who would lose it</source>
        <translation>appartiene a un altro utente, che lo perderebbe</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>&quot;%1&quot; è d’intralcio e nessun programma lo usa: rimuoverlo</translation>
    </message>
    <message>
        <source>This page has changes that are not applied.</source>
        <translation>Questa pagina ha modifiche non applicate.</translation>
    </message>
    <message>
        <source>Shows this page.</source>
        <translation>Mostra questa pagina.</translation>
    </message>
    <message>
        <source>Help on this setting</source>
        <translation>Aiuto su questa impostazione</translation>
    </message>
    <message>
        <source>Put back what was typed</source>
        <translation>Annulla ciò che è stato digitato</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Scarta le modifiche</translation>
    </message>
    <message>
        <source>Restore discarded changes</source>
        <translation>Ripristina le modifiche scartate</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scorri verso l’alto</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scorri verso il basso</translation>
    </message>
    <message>
        <source>Scroll to the top</source>
        <translation>Vai all’inizio</translation>
    </message>
    <message>
        <source>Scroll to the bottom</source>
        <translation>Vai alla fine</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>un altro programma l’ha bloccato</translation>
    </message>
    <message>
        <source>a copy of it cannot be kept: %1</source>
        <translation>non è possibile conservarne una copia: %1</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>non può essere letto fino alla fine</translation>
    </message>
    <message>
        <source>not all values can be kept in it</source>
        <translation>non tutti i valori possono esservi conservati</translation>
    </message>
    <message>
        <source>it is being written already</source>
        <translation>è già in fase di scrittura</translation>
    </message>
    <message>
        <source>a group of it is open</source>
        <translation>un suo gruppo è aperto</translation>
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
    <message>
        <source>Where your screenshots are saved. A click chooses a folder.</source>
        <translation>Dove vengono salvati gli screenshot. Un clic permette di scegliere una cartella.</translation>
    </message>
    <message>
        <source>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</source>
        <translation>Dove vengono conservate su disco parti dei modelli caricati. Scegli un disco veloce con spazio libero sufficiente. Un clic permette di scegliere una cartella.</translation>
    </message>
    <message>
        <source>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</source>
        <translation>Quanto può crescere la cache su disco. Se è più grande, i modelli già aperti si caricano più in fretta.</translation>
    </message>
    <message>
        <source>No folder is set.</source>
        <translation>Nessuna cartella impostata.</translation>
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
    <message>
        <source>chosen by Torvane</source>
        <translation>scelto da Torvane</translation>
    </message>
    <message>
        <source>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</source>
        <translation>Con quale finezza le facce curve vengono divise in triangoli quando si importa un file CAD. L’alta qualità appare più rotonda e produce modelli più grandi. Normalmente decide Torvane.</translation>
    </message>
    <message>
        <source>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</source>
        <translation>Quanto un triangolo può distare dalla faccia curva che rappresenta, nell’unità del modello. Un valore più piccolo appare più rotondo e produce più triangoli.</translation>
    </message>
    <message>
        <source>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</source>
        <translation>Quanto possono essere lunghi i lati di un triangolo, nell’unità del modello. Un valore più piccolo produce triangoli più numerosi e più uniformi.</translation>
    </message>
    <message>
        <source>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</source>
        <translation>Quanto una faccia curva può ruotare da un triangolo al successivo. Un valore più piccolo appare più rotondo e produce più triangoli.</translation>
    </message>
</context>
<context>
    <name>ZelPageHelp</name>
    <message>
        <source>Range: %1.</source>
        <translation>Intervallo: %1.</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>Predefinito: %1.</translation>
    </message>
    <message>
        <source>Takes effect: %1.</source>
        <translation>Ha effetto: %1.</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>subito</translation>
    </message>
    <message>
        <source>with the next import</source>
        <translation>con la prossima importazione</translation>
    </message>
    <message>
        <source>after a restart</source>
        <translation>dopo il riavvio</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>attivo</translation>
    </message>
    <message>
        <source>off</source>
        <translation>disattivo</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predefinito</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>Che cos’è?</translation>
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
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Basso&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Funziona ovunque)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Alto&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Scheda grafica &lt;br/&gt;dedicata)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>Closes without a choice</source>
        <translation>Chiude senza scegliere</translation>
    </message>
    <message>
        <source>Draws with the processor</source>
        <translation>Disegna con il processore</translation>
    </message>
    <message>
        <source>Draws with the graphics card</source>
        <translation>Disegna con la scheda grafica</translation>
    </message>
    <message>
        <source>Uses the chosen engine</source>
        <translation>Usa il motore scelto</translation>
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
    <message>
        <source>Rendering engine</source>
        <translation>Motore di rendering</translation>
    </message>
    <message>
        <source>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</source>
        <translation>Decide che cosa disegna i modelli. La modalità alta usa la scheda grafica; la modalità bassa usa il processore e funziona ovunque. Sono mostrate solo le impostazioni della modalità scelta.</translation>
    </message>
    <message>
        <source>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</source>
        <translation>L’unità in cui è modellata la scena. SSAO vi adatta le ombre: con un’unità sbagliata sono troppo forti o non si vedono. Conta solo mentre si usa SSAO.</translation>
    </message>
    <message>
        <source>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</source>
        <translation>Con quanta cura il raytracer calcola un’immagine. Una qualità più alta è più bella e richiede più tempo.</translation>
    </message>
    <message>
        <source>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</source>
        <translation>Quanti core del processore può usare il raytracer. Con più core è più veloce e ne lascia meno agli altri programmi.</translation>
    </message>
    <message>
        <source>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</source>
        <translation>Leviga i bordi frastagliati dell’immagine. Su una scheda grafica recente richiede poco tempo.</translation>
    </message>
    <message>
        <source>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</source>
        <translation>Scurisce angoli e fessure come fa una luce morbida, così che le forme si vedano meglio. Richiede un po’ di tempo per ogni immagine.</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</source>
        <translation>Disegna linee lungo i bordi delle parti. Aiuta a distinguere parti dello stesso colore.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</source>
        <translation>Quanta memoria del computer possono occupare i modelli mentre la scheda grafica li disegna. Con più memoria restano caricati più dettagli.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</source>
        <translation>Quanta memoria del computer può occupare il raytracer. Con più memoria si possono disegnare modelli più grandi.</translation>
    </message>
    <message>
        <source>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</source>
        <translation>Quanta memoria della scheda grafica possono occupare i modelli. Resta al di sotto di quella della scheda: ne hanno bisogno anche altri programmi.</translation>
    </message>
    <message>
        <source>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</source>
        <translation>Quanti triangoli può avere al massimo un’immagine. Con meno triangoli i modelli si muovono in modo più fluido; con più triangoli mostrano dettagli più fini.</translation>
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
    <message>
        <source>This level keeps every triangle of the model. It cannot be changed.</source>
        <translation>Questo livello conserva tutti i triangoli del modello. Non si può cambiare.</translation>
    </message>
    <message>
        <source>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</source>
        <translation>Quale percentuale dei triangoli del modello conserva un’esportazione a questo livello. Un livello non ne conserva mai più di quello sopra.</translation>
    </message>
</context>
</TS>
