<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ControlCenter</name>
    <message>
        <source>Application Settings</source>
        <translation>Application Settings</translation>
    </message>
    <message>
        <source>Resets all parameters</source>
        <translation>Resets all parameters</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>Applies your changes</source>
        <translation>Applies your changes</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Apply</translation>
    </message>
</context>
<context>
    <name>ControlCenterStandAlone</name>
    <message>
        <source>Torvane - Control Center</source>
        <translation>Torvane - Control Center</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>Control Center</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Minimize</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>Maximize</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>ZelAboutSettingsPanel</name>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Identify the Torvane version and all the third party components used while developping this software.</source>
        <translation>Identify the Torvane version and all the third party components used while developping this software.</translation>
    </message>
    <message>
        <source>Copyright © 2019 - %1 the makers of Torvane</source>
        <translation>Copyright © 2019 - %1 the makers of Torvane</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>Plugins</translation>
    </message>
    <message>
        <source>Plugin name</source>
        <translation>Plugin name</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>Libraries</translation>
    </message>
    <message>
        <source>application toolkit</source>
        <translation>application toolkit</translation>
    </message>
    <message>
        <source>single running instance</source>
        <translation>single running instance</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>fonts</translation>
    </message>
</context>
<context>
    <name>ZelControlCenter</name>
    <message>
        <source>it is not a file</source>
        <translation>it is not a file</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>it is too large</translation>
    </message>
    <message>
        <source>Could not read the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Could not read the Torvane settings file &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Could not write the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Could not write the Torvane settings file &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>Could not use the Torvane log file, file &quot;%1&quot; could not be created</source>
        <translation>Could not use the Torvane log file, file &quot;%1&quot; could not be created</translation>
    </message>
    <message>
        <source>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</source>
        <translation>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</translation>
    </message>
    <message>
        <source>Could not create compulsory folder &quot;%1&quot;</source>
        <translation>Could not create compulsory folder &quot;%1&quot;</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Settings Modification</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <source>Changes the settings of the application</source>
        <translation>Changes the settings of the application</translation>
    </message>
    <message>
        <source>You need to restart your application to turn settings modification effective.</source>
        <translation>You need to restart your application to turn settings modification effective.</translation>
    </message>
    <message>
        <source>You have pending modifications. Continue and discard your changes ?</source>
        <translation>You have pending modifications. Continue and discard your changes ?</translation>
    </message>
    <message>
        <source>Your current changes will be discarded.
Continue and close the application ?</source>
        <translation>Your current changes will be discarded.
Continue and close the application ?</translation>
    </message>
    <message>
        <source>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>it cannot be replaced by a new one</translation>
    </message>
    <message>
        <source>it belongs to another user or group, who would lose it</source>
        <translation>it belongs to another user or group, who would lose it</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>&quot;%1&quot; is in the way, which no program uses: remove it</translation>
    </message>
</context>
<context>
    <name>ZelControlCenterStandAloneWidget</name>
    <message>
        <source>Torvane - Fatal Error</source>
        <translation>Torvane - Fatal Error</translation>
    </message>
</context>
<context>
    <name>ZelGeneralSettingsPanel</name>
    <message>
        <source>Folders</source>
        <translation>Folders</translation>
    </message>
    <message>
        <source>Reset the folders</source>
        <translation>Reset the folders</translation>
    </message>
    <message>
        <source>Resets your folders to their default values</source>
        <translation>Resets your folders to their default values</translation>
    </message>
    <message>
        <source>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</source>
        <translation>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</translation>
    </message>
    <message>
        <source>Screenshot folder :</source>
        <translation>Screenshot folder :</translation>
    </message>
    <message>
        <source>Screenshot folder</source>
        <translation>Screenshot folder</translation>
    </message>
    <message>
        <source>Cache folder :</source>
        <translation>Cache folder :</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <translation>Cache folder</translation>
    </message>
    <message>
        <source>Cache size</source>
        <translation>Cache size</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Please set your database cache folder</source>
        <translation>Please set your database cache folder</translation>
    </message>
    <message>
        <source>Please set your screenshot folder</source>
        <translation>Please set your screenshot folder</translation>
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
        <translation>Reset the tessellation</translation>
    </message>
    <message>
        <source>Resets your tessellation parameters to their default values</source>
        <translation>Resets your tessellation parameters to their default values</translation>
    </message>
    <message>
        <source>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</source>
        <translation>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</translation>
    </message>
    <message>
        <source>Tessellation Quality</source>
        <translation>Tessellation Quality</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>High Quality</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>Low Quality</translation>
    </message>
    <message>
        <source>Max Face Sag</source>
        <translation>Max Face Sag</translation>
    </message>
    <message>
        <source>Max Face Length</source>
        <translation>Max Face Length</translation>
    </message>
    <message>
        <source>Max Face Angle</source>
        <translation>Max Face Angle</translation>
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
        <translation>Torvane - Please select your display type</translation>
    </message>
    <message>
        <source>Select your display type - Torvane</source>
        <translation>Select your display type - Torvane</translation>
    </message>
    <message>
        <source>Please select your rendering engine :</source>
        <translation>Please select your rendering engine :</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>or</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
</context>
<context>
    <name>ZelRendererSettingsPanel</name>
    <message>
        <source>Display</source>
        <translation>Display</translation>
    </message>
    <message>
        <source>Reset the display</source>
        <translation>Reset the display</translation>
    </message>
    <message>
        <source>Resets the display parameters to their default values</source>
        <translation>Resets the display parameters to their default values</translation>
    </message>
    <message>
        <source>Adapt the quality and performances of your display to your needs and your material.</source>
        <translation>Adapt the quality and performances of your display to your needs and your material.</translation>
    </message>
    <message>
        <source>High Mode (Discrete Graphic Card)</source>
        <translation>High Mode (Discrete Graphic Card)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>Low Mode (Run everywhere)</translation>
    </message>
    <message>
        <source>Antialiasing </source>
        <translation>Antialiasing </translation>
    </message>
    <message>
        <source>use SSAO</source>
        <translation>use SSAO</translation>
    </message>
    <message>
        <source>SSAO Units</source>
        <translation>SSAO Units</translation>
    </message>
    <message>
        <source>Kilometer (km)</source>
        <translation>Kilometer (km)</translation>
    </message>
    <message>
        <source>Hectometer (hm)</source>
        <translation>Hectometer (hm)</translation>
    </message>
    <message>
        <source>Decameter (dam)</source>
        <translation>Decameter (dam)</translation>
    </message>
    <message>
        <source>Meter (m)</source>
        <translation>Meter (m)</translation>
    </message>
    <message>
        <source>Decimeter (dm)</source>
        <translation>Decimeter (dm)</translation>
    </message>
    <message>
        <source>Centimeter (cm)</source>
        <translation>Centimeter (cm)</translation>
    </message>
    <message>
        <source>Millimeter (mm)</source>
        <translation>Millimeter (mm)</translation>
    </message>
    <message>
        <source>use Edge Detect</source>
        <translation>use Edge Detect</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Low</translation>
    </message>
    <message>
        <source>Processing power</source>
        <translation>Processing power</translation>
    </message>
    <message>
        <source>SD resolution</source>
        <translation>SD resolution</translation>
    </message>
    <message>
        <source>SD width</source>
        <translation>SD width</translation>
    </message>
    <message>
        <source>SD height</source>
        <translation>SD height</translation>
    </message>
    <message>
        <source>HD resolution</source>
        <translation>HD resolution</translation>
    </message>
    <message>
        <source>HD width</source>
        <translation>HD width</translation>
    </message>
    <message>
        <source>HD height</source>
        <translation>HD height</translation>
    </message>
    <message>
        <source>SD Antialiasing</source>
        <translation>SD Antialiasing</translation>
    </message>
    <message>
        <source>HD Antialiasing</source>
        <translation>HD Antialiasing</translation>
    </message>
    <message>
        <source>Max CPU memory</source>
        <translation>Max CPU memory</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> Mo</translation>
    </message>
    <message>
        <source>Max CPU Memory</source>
        <translation>Max CPU Memory</translation>
    </message>
    <message>
        <source>Max GPU Memory</source>
        <translation>Max GPU Memory</translation>
    </message>
    <message>
        <source>Max triangles nb</source>
        <translation>Max triangles nb</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>High</source>
        <translation>High</translation>
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
        <translation>%1 cores</translation>
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
        <translation>Reset the simplification ratios</translation>
    </message>
    <message>
        <source>Resets the simplification ratios to their original values</source>
        <translation>Resets the simplification ratios to their original values</translation>
    </message>
    <message>
        <source>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</source>
        <translation>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</translation>
    </message>
    <message>
        <source>No
compression</source>
        <translation>No
compression</translation>
    </message>
    <message>
        <source>Low compression</source>
        <translation>Low compression</translation>
    </message>
    <message>
        <source>Medium Compression</source>
        <translation>Medium Compression</translation>
    </message>
    <message>
        <source>High Compression</source>
        <translation>High Compression</translation>
    </message>
    <message>
        <source>Best compression</source>
        <translation>Best compression</translation>
    </message>
    <message>
        <source>Simplification</source>
        <translation>Simplification</translation>
    </message>
</context>
</TS>
