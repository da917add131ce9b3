<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES" sourcelanguage="en">
<context>
    <name>ControlCenter</name>
    <message>
        <source>Application Settings</source>
        <translation>Ajustes de la aplicación</translation>
    </message>
    <message>
        <source>Resets all parameters</source>
        <translation>Restablece todos los parámetros</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Applies your changes</source>
        <translation>Aplica sus cambios</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
</context>
<context>
    <name>ControlCenterStandAlone</name>
    <message>
        <source>Torvane - Control Center</source>
        <translation>Torvane - Centro de control</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>Centro de control</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimizar</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximizar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
</context>
<context>
    <name>HelpCard</name>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Takes effect</source>
        <translation>Surte efecto</translation>
    </message>
    <message>
        <source>Puts back what is stored</source>
        <translation>Vuelve a poner el valor guardado</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Puts in the default</source>
        <translation>Pone el valor predeterminado</translation>
    </message>
    <message>
        <source>Changed, and not applied yet.</source>
        <translation>Cambiado y aún sin aplicar.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>No es el valor predeterminado.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Point at a setting, or move to it with the Tab key, to read here what it does.</source>
        <translation>Señale un ajuste, o vaya a él con la tecla Tab, para leer aquí para qué sirve.</translation>
    </message>
</context>
<context>
    <name>ModelView</name>
    <message>
        <source>Level %1 of %2
%3 of %4 triangles</source>
        <translation>Nivel %1 de %2
%3 de %4 triángulos</translation>
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
        <translation>Aún sin aplicar</translation>
    </message>
    <message>
        <source>Goes to the setting.</source>
        <translation>Va al ajuste.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
</context>
<context>
    <name>TurntableSettingsPanel</name>
    <message>
        <source>Turntable</source>
        <translation>Plataforma giratoria</translation>
    </message>
    <message>
        <source>Reset the turntable</source>
        <translation>Restablecer la plataforma giratoria</translation>
    </message>
    <message>
        <source>Resets the turntable to its default values</source>
        <translation>Restablece los valores predeterminados de la plataforma giratoria</translation>
    </message>
    <message>
        <source>Present your model from all sides without touching the mouse.</source>
        <translation>Presente su modelo por todos los lados sin tocar el ratón.</translation>
    </message>
    <message>
        <source>Turn the model by itself</source>
        <translation>Girar el modelo automáticamente</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>Grados por segundo</translation>
    </message>
    <message>
        <source>Whether the model turns by itself. You can still turn it with the mouse.</source>
        <translation>Indica si el modelo gira por sí solo. Puede seguir girándolo con el ratón.</translation>
    </message>
    <message>
        <source>How fast the model turns: at 90 degrees per second, once in four seconds.</source>
        <translation>Velocidad de giro del modelo: a 90 grados por segundo, una vuelta cada cuatro segundos.</translation>
    </message>
</context>
<context>
    <name>ViewerSettings</name>
    <message>
        <source>The folder &quot;%1&quot; for screenshots cannot be created.</source>
        <translation>No se puede crear la carpeta «%1» para las capturas.</translation>
    </message>
    <message>
        <source>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</source>
        <translation>La caché y las capturas comparten la carpeta «%1», y las capturas se perderían con la caché. Cambie una de las dos en «%2».</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Torvane Viewer</source>
        <translation>Visor Torvane</translation>
    </message>
    <message>
        <source>Drag the model to turn it; the button at the top left opens the menu.</source>
        <translation>Arrastre el modelo para girarlo; el botón de arriba a la izquierda abre el menú.</translation>
    </message>
    <message>
        <source>Menu and settings</source>
        <translation>Menú y ajustes</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Captura</translation>
    </message>
    <message>
        <source>Saves a picture of the view in the screenshot folder</source>
        <translation>Guarda una imagen de la vista en la carpeta de capturas</translation>
    </message>
    <message>
        <source>Next Level</source>
        <translation>Nivel siguiente</translation>
    </message>
    <message>
        <source>Shows the next simplification level</source>
        <translation>Muestra el siguiente nivel de simplificación</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>Malla de alambre</translation>
    </message>
    <message>
        <source>Shows the model&apos;s facets by their edges</source>
        <translation>Muestra las facetas del modelo por sus bordes</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Gives the viewer the whole screen</source>
        <translation>Da al visor toda la pantalla</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Modificación de los ajustes</translation>
    </message>
    <message>
        <source>Your settings have not been applied. Close the viewer?</source>
        <translation>Sus ajustes no se han aplicado. ¿Cerrar el visor?</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Se guardó %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
</context>
<context>
    <name>ZelAboutSettingsPanel</name>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Identify the Torvane version and all the third party components used while developping this software.</source>
        <translation>Consulte la versión de Torvane y todos los componentes de terceros utilizados en el desarrollo de este software.</translation>
    </message>
    <message>
        <source>Copyright © 2019 - %1 the makers of Torvane</source>
        <translation>Copyright © 2019 - %1 los creadores de Torvane</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Complementos</translation>
    </message>
    <message>
        <source>Plugin name</source>
        <translation>Complemento</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;Este software utiliza las siguientes bibliotecas:&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>application toolkit</source>
        <translation>kit de desarrollo de aplicaciones</translation>
    </message>
    <message>
        <source>single running instance</source>
        <translation>ejecución en instancia única</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>fuentes</translation>
    </message>
    <message>
        <source>Tab chooses a link, Return opens it.</source>
        <translation>Tab elige un enlace, Intro lo abre.</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Archivo de ajustes</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Archivo de registro</translation>
    </message>
    <message>
        <source>Copies version, system, files and plug-ins, for the report of a fault</source>
        <translation>Copia versión, sistema, archivos y complementos para informar de un fallo</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copiar informe</translation>
    </message>
    <message>
        <source>The text can be selected and copied.</source>
        <translation>El texto se puede seleccionar y copiar.</translation>
    </message>
</context>
<context>
    <name>ZelControlCenter</name>
    <message>
        <source>it is not a file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
    <message>
        <source>Could not read the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>No se pudo leer el archivo de ajustes de Torvane «%1»: %2</translation>
    </message>
    <message>
        <source>Could not write the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>No se pudo escribir el archivo de ajustes de Torvane «%1»: %2</translation>
    </message>
    <message>
        <source>Could not use the Torvane log file, file &quot;%1&quot; could not be created</source>
        <translation>No se pudo usar el archivo de registro de Torvane, no se pudo crear el archivo «%1»</translation>
    </message>
    <message>
        <source>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</source>
        <translation>No se pudo usar la caché de la base de datos 3D, no se pudo crear la carpeta «%1»</translation>
    </message>
    <message>
        <source>Could not create compulsory folder &quot;%1&quot;</source>
        <translation>No se pudo crear la carpeta obligatoria «%1»</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Modificación de los ajustes</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Changes the settings of the application</source>
        <translation>Cambia los ajustes de la aplicación</translation>
    </message>
    <message>
        <source>You need to restart your application to turn settings modification effective.</source>
        <translation>Debe reiniciar la aplicación para que la modificación de los ajustes surta efecto.</translation>
    </message>
    <message>
        <source>You have pending modifications. Continue and discard your changes ?</source>
        <translation>Tiene modificaciones pendientes. ¿Continuar y descartar sus cambios?</translation>
    </message>
    <message>
        <source>Your current changes will be discarded.
Continue and close the application ?</source>
        <translation>Se descartarán sus cambios actuales.
¿Continuar y cerrar la aplicación?</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>no se puede sustituir por uno nuevo</translation>
    </message>
    <message>
        <source>it belongs to another user, who would lose it</source>
        <translation>pertenece a otro usuario, que lo perdería</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>«%1» impide la operación y ningún programa lo usa: elimínelo</translation>
    </message>
    <message>
        <source>This page has changes that are not applied.</source>
        <translation>Esta página tiene cambios sin aplicar.</translation>
    </message>
    <message>
        <source>Shows this page.</source>
        <translation>Muestra esta página.</translation>
    </message>
    <message>
        <source>Help on this setting</source>
        <translation>Ayuda sobre este ajuste</translation>
    </message>
    <message>
        <source>Put back what was typed</source>
        <translation>Deshacer lo escrito</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Descartar los cambios</translation>
    </message>
    <message>
        <source>Restore discarded changes</source>
        <translation>Recuperar los cambios descartados</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Desplazar hacia arriba</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Desplazar hacia abajo</translation>
    </message>
    <message>
        <source>Scroll to the top</source>
        <translation>Ir al principio</translation>
    </message>
    <message>
        <source>Scroll to the bottom</source>
        <translation>Ir al final</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>otro programa lo ha bloqueado</translation>
    </message>
    <message>
        <source>a copy of it cannot be kept: %1</source>
        <translation>no se puede conservar una copia de él: %1</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>no se puede leer hasta el final</translation>
    </message>
    <message>
        <source>not all values can be kept in it</source>
        <translation>no se pueden conservar todos los valores en él</translation>
    </message>
    <message>
        <source>it is being written already</source>
        <translation>ya se está escribiendo</translation>
    </message>
    <message>
        <source>a group of it is open</source>
        <translation>uno de sus grupos está abierto</translation>
    </message>
</context>
<context>
    <name>ZelControlCenterStandAloneWidget</name>
    <message>
        <source>Torvane - Fatal Error</source>
        <translation>Torvane - Error fatal</translation>
    </message>
</context>
<context>
    <name>ZelGeneralSettingsPanel</name>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>Reset the folders</source>
        <translation>Restablecer las carpetas</translation>
    </message>
    <message>
        <source>Resets your folders to their default values</source>
        <translation>Restablece los valores predeterminados de sus carpetas</translation>
    </message>
    <message>
        <source>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</source>
        <translation>Torvane permite cargar modelos grandes gracias a una gestión precisa de la memoria disponible. Para ello utiliza una carpeta de caché cuyo tamaño máximo y ubicación puede definir aquí.
También puede cambiar la ubicación de su álbum de capturas de pantalla.</translation>
    </message>
    <message>
        <source>Screenshot folder :</source>
        <translation>Carpeta de capturas:</translation>
    </message>
    <message>
        <source>Screenshot folder</source>
        <translation>Carpeta de capturas</translation>
    </message>
    <message>
        <source>Cache folder :</source>
        <translation>Carpeta de caché:</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <translation>Carpeta de caché</translation>
    </message>
    <message>
        <source>Cache size</source>
        <translation>Tamaño de la caché</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Please set your database cache folder</source>
        <translation>Seleccione la carpeta de caché de la base de datos</translation>
    </message>
    <message>
        <source>Please set your screenshot folder</source>
        <translation>Seleccione la carpeta de capturas</translation>
    </message>
    <message>
        <source>Where your screenshots are saved. A click chooses a folder.</source>
        <translation>Dónde se guardan sus capturas. Un clic permite elegir una carpeta.</translation>
    </message>
    <message>
        <source>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</source>
        <translation>Dónde se guardan en el disco partes de los modelos cargados. Elija un disco rápido con espacio libre suficiente. Un clic permite elegir una carpeta.</translation>
    </message>
    <message>
        <source>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</source>
        <translation>Cuánto puede crecer la caché en el disco. Con una mayor, los modelos que ya ha abierto se cargan más rápido.</translation>
    </message>
    <message>
        <source>No folder is set.</source>
        <translation>No hay ninguna carpeta definida.</translation>
    </message>
</context>
<context>
    <name>ZelImportSettingsPanel</name>
    <message>
        <source>Tessellation</source>
        <translation>Teselación</translation>
    </message>
    <message>
        <source>Reset the tessellation</source>
        <translation>Restablecer la teselación</translation>
    </message>
    <message>
        <source>Resets your tessellation parameters to their default values</source>
        <translation>Restablece los valores predeterminados de sus parámetros de teselación</translation>
    </message>
    <message>
        <source>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</source>
        <translation>Al importar archivos CAD nativos, Torvane elige automáticamente los parámetros de teselación que generan los triángulos.
Puede elegir manualmente los parámetros que mejor se adapten a sus necesidades.</translation>
    </message>
    <message>
        <source>Tessellation Quality</source>
        <translation>Calidad de la teselación</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>Alta calidad</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Baja calidad</translation>
    </message>
    <message>
        <source>Max Face Sag</source>
        <translation>Flecha máxima de las caras</translation>
    </message>
    <message>
        <source>Max Face Length</source>
        <translation>Longitud máxima de las caras</translation>
    </message>
    <message>
        <source>Max Face Angle</source>
        <translation>Ángulo máximo de las caras</translation>
    </message>
    <message>
        <source> °</source>
        <translation> °</translation>
    </message>
    <message>
        <source>chosen by Torvane</source>
        <translation>a elección de Torvane</translation>
    </message>
    <message>
        <source>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</source>
        <translation>Con qué finura se dividen en triángulos las caras curvas al importar un archivo CAD. La alta calidad se ve más redonda y produce modelos más grandes. Normalmente decide Torvane.</translation>
    </message>
    <message>
        <source>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</source>
        <translation>Cuánto puede separarse un triángulo de la cara curva que representa, en la unidad del modelo. Un valor menor se ve más redondo y produce más triángulos.</translation>
    </message>
    <message>
        <source>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</source>
        <translation>Cuánto pueden medir los lados de un triángulo, en la unidad del modelo. Un valor menor produce más triángulos y de tamaño más uniforme.</translation>
    </message>
    <message>
        <source>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</source>
        <translation>Cuánto puede girar una cara curva de un triángulo al siguiente. Un valor menor se ve más redondo y produce más triángulos.</translation>
    </message>
</context>
<context>
    <name>ZelPageHelp</name>
    <message>
        <source>Range: %1.</source>
        <translation>Intervalo: %1.</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>Predeterminado: %1.</translation>
    </message>
    <message>
        <source>Takes effect: %1.</source>
        <translation>Surte efecto: %1.</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>de inmediato</translation>
    </message>
    <message>
        <source>with the next import</source>
        <translation>en la próxima importación</translation>
    </message>
    <message>
        <source>after a restart</source>
        <translation>tras reiniciar</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>activado</translation>
    </message>
    <message>
        <source>off</source>
        <translation>desactivado</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 o %2</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>¿Qué es esto?</translation>
    </message>
</context>
<context>
    <name>ZelRendererSelector</name>
    <message>
        <source>Torvane - Please select your display type</source>
        <translation>Torvane - Seleccione su tipo de visualización</translation>
    </message>
    <message>
        <source>Select your display type - Torvane</source>
        <translation>Seleccione su tipo de visualización - Torvane</translation>
    </message>
    <message>
        <source>Please select your rendering engine :</source>
        <translation>Seleccione su motor de renderizado:</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Bajo&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Funciona en todas partes)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>o</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Alto&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Tarjeta gráfica &lt;br/&gt;dedicada)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Closes without a choice</source>
        <translation>Cierra sin elegir</translation>
    </message>
    <message>
        <source>Draws with the processor</source>
        <translation>Dibuja con el procesador</translation>
    </message>
    <message>
        <source>Draws with the graphics card</source>
        <translation>Dibuja con la tarjeta gráfica</translation>
    </message>
    <message>
        <source>Uses the chosen engine</source>
        <translation>Usa el motor elegido</translation>
    </message>
</context>
<context>
    <name>ZelRendererSettingsPanel</name>
    <message>
        <source>Display</source>
        <translation>Visualización</translation>
    </message>
    <message>
        <source>Reset the display</source>
        <translation>Restablecer la visualización</translation>
    </message>
    <message>
        <source>Resets the display parameters to their default values</source>
        <translation>Restablece los valores predeterminados de los parámetros de visualización</translation>
    </message>
    <message>
        <source>Adapt the quality and performances of your display to your needs and your material.</source>
        <translation>Adapte la calidad y el rendimiento de la visualización a sus necesidades y a su equipo.</translation>
    </message>
    <message>
        <source>High Mode (Discrete Graphic Card)</source>
        <translation>Modo alto (tarjeta gráfica dedicada)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>Modo bajo (funciona en todas partes)</translation>
    </message>
    <message>
        <source>Antialiasing </source>
        <translation>Suavizado de bordes </translation>
    </message>
    <message>
        <source>use SSAO</source>
        <translation>Usar SSAO</translation>
    </message>
    <message>
        <source>SSAO Units</source>
        <translation>Unidades de SSAO</translation>
    </message>
    <message>
        <source>Kilometer (km)</source>
        <translation>Kilómetro (km)</translation>
    </message>
    <message>
        <source>Hectometer (hm)</source>
        <translation>Hectómetro (hm)</translation>
    </message>
    <message>
        <source>Decameter (dam)</source>
        <translation>Decámetro (dam)</translation>
    </message>
    <message>
        <source>Meter (m)</source>
        <translation>Metro (m)</translation>
    </message>
    <message>
        <source>Decimeter (dm)</source>
        <translation>Decímetro (dm)</translation>
    </message>
    <message>
        <source>Centimeter (cm)</source>
        <translation>Centímetro (cm)</translation>
    </message>
    <message>
        <source>Millimeter (mm)</source>
        <translation>Milímetro (mm)</translation>
    </message>
    <message>
        <source>use Edge Detect</source>
        <translation>Usar detección de bordes</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Calidad</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Baja</translation>
    </message>
    <message>
        <source>Processing power</source>
        <translation>Potencia de cálculo</translation>
    </message>
    <message>
        <source>SD resolution</source>
        <translation>Resolución SD</translation>
    </message>
    <message>
        <source>SD width</source>
        <translation>Ancho SD</translation>
    </message>
    <message>
        <source>SD height</source>
        <translation>Alto SD</translation>
    </message>
    <message>
        <source>HD resolution</source>
        <translation>Resolución HD</translation>
    </message>
    <message>
        <source>HD width</source>
        <translation>Ancho HD</translation>
    </message>
    <message>
        <source>HD height</source>
        <translation>Alto HD</translation>
    </message>
    <message>
        <source>SD Antialiasing</source>
        <translation>Suavizado de bordes SD</translation>
    </message>
    <message>
        <source>HD Antialiasing</source>
        <translation>Suavizado de bordes HD</translation>
    </message>
    <message>
        <source>Max CPU memory</source>
        <translation>Memoria máx. de CPU</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Max CPU Memory</source>
        <translation>Memoria máx. de CPU</translation>
    </message>
    <message>
        <source>Max GPU Memory</source>
        <translation>Memoria máx. de GPU</translation>
    </message>
    <message>
        <source>Max triangles nb</source>
        <translation>N.º máx. de triángulos</translation>
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
        <translation>%1 núcleo</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 núcleos</translation>
    </message>
    <message>
        <source>Rendering engine</source>
        <translation>Motor de renderizado</translation>
    </message>
    <message>
        <source>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</source>
        <translation>Decide qué dibuja sus modelos. El modo alto usa la tarjeta gráfica; el modo bajo usa el procesador y funciona en todas partes. Solo se muestran los ajustes del modo elegido.</translation>
    </message>
    <message>
        <source>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</source>
        <translation>La unidad en la que está modelada su escena. SSAO ajusta a ella sus sombras: con una unidad equivocada son demasiado fuertes o no se ven. Solo cuenta mientras se usa SSAO.</translation>
    </message>
    <message>
        <source>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</source>
        <translation>Con cuánto detalle calcula el trazador de rayos una imagen. Una calidad mayor se ve mejor y tarda más.</translation>
    </message>
    <message>
        <source>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</source>
        <translation>Cuántos núcleos del procesador puede usar el trazador de rayos. Con más núcleos es más rápido y deja menos a otros programas.</translation>
    </message>
    <message>
        <source>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</source>
        <translation>Suaviza los bordes dentados de la imagen. En una tarjeta gráfica actual lleva poco tiempo.</translation>
    </message>
    <message>
        <source>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</source>
        <translation>Oscurece rincones y huecos como lo hace una luz suave, para que las formas se vean mejor. Lleva algo de tiempo en cada imagen.</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</source>
        <translation>Dibuja líneas a lo largo de los bordes de las piezas. Ayuda a distinguir piezas del mismo color.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</source>
        <translation>Cuánta memoria del equipo pueden ocupar los modelos mientras los dibuja la tarjeta gráfica. Con más memoria permanecen cargados más detalles.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</source>
        <translation>Cuánta memoria del equipo puede ocupar el trazador de rayos. Con más memoria se pueden dibujar modelos más grandes.</translation>
    </message>
    <message>
        <source>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</source>
        <translation>Cuánta memoria de la tarjeta gráfica pueden ocupar los modelos. Quédese por debajo de la que tiene la tarjeta: otros programas también la necesitan.</translation>
    </message>
    <message>
        <source>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</source>
        <translation>Cuántos triángulos puede tener como máximo una imagen. Con menos, los modelos se mueven con más fluidez; con más, muestran detalles más finos.</translation>
    </message>
</context>
<context>
    <name>ZelSimplificationSettingsPanel</name>
    <message>
        <source>Compression / Simplification</source>
        <translation>Compresión / Simplificación</translation>
    </message>
    <message>
        <source>Reset the simplification ratios</source>
        <translation>Restablecer las tasas de simplificación</translation>
    </message>
    <message>
        <source>Resets the simplification ratios to their original values</source>
        <translation>Restablece los valores originales de las tasas de simplificación</translation>
    </message>
    <message>
        <source>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</source>
        <translation>La simplificación se utiliza al exportar la escena para reducir el tamaño de los archivos.
Aquí puede definir el porcentaje de triángulos del modelo de origen que obtendrá con una calidad determinada, a excepción del nivel 5, que no tiene compresión (es decir, el 100&#xa0;% de los triángulos del modelo de origen).</translation>
    </message>
    <message>
        <source>No
compression</source>
        <translation>Sin
compresión</translation>
    </message>
    <message>
        <source>Low compression</source>
        <translation>Compresión baja</translation>
    </message>
    <message>
        <source>Medium Compression</source>
        <translation>Compresión media</translation>
    </message>
    <message>
        <source>High Compression</source>
        <translation>Compresión alta</translation>
    </message>
    <message>
        <source>Best compression</source>
        <translation>La mejor compresión</translation>
    </message>
    <message>
        <source>Simplification</source>
        <translation>Simplificación</translation>
    </message>
    <message>
        <source>This level keeps every triangle of the model. It cannot be changed.</source>
        <translation>Este nivel conserva todos los triángulos del modelo. No se puede cambiar.</translation>
    </message>
    <message>
        <source>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</source>
        <translation>Qué porcentaje de los triángulos del modelo conserva una exportación de este nivel. Un nivel nunca conserva más que el que tiene encima.</translation>
    </message>
</context>
</TS>
