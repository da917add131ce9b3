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
        <source>Libraries</source>
        <translation>Bibliotecas</translation>
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
        <source>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>No se pudo conservar una copia del archivo de ajustes de Torvane «%1»: %2</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>no se puede sustituir por uno nuevo</translation>
    </message>
    <message>
        <source>it belongs to another user or group, who would lose it</source>
        <translation>pertenece a otro usuario o grupo, que lo perdería</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>«%1» estorba y ningún programa lo usa: elimínelo</translation>
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
        <translation>Por defecto</translation>
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
</context>
</TS>
