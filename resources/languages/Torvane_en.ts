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
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
</context>
<context>
    <name>HelpCard</name>
    <message>
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>Stored</translation>
    </message>
    <message>
        <source>Takes effect</source>
        <translation>Takes effect</translation>
    </message>
    <message>
        <source>Puts back what is stored</source>
        <translation>Puts back what is stored</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Put back</translation>
    </message>
    <message>
        <source>Puts in the default</source>
        <translation>Puts in the default</translation>
    </message>
    <message>
        <source>Changed, and not applied yet.</source>
        <translation>Changed, and not applied yet.</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>Not the default.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Point at a setting, or move to it with the Tab key, to read here what it does.</source>
        <translation>Point at a setting, or move to it with the Tab key, to read here what it does.</translation>
    </message>
</context>
<context>
    <name>ModelView</name>
    <message>
        <source>Level %1 of %2
%3 of %4 triangles</source>
        <translation>Level %1 of %2
%3 of %4 triangles</translation>
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
        <translation>Not applied yet</translation>
    </message>
    <message>
        <source>Goes to the setting.</source>
        <translation>Goes to the setting.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
</context>
<context>
    <name>TurntableSettingsPanel</name>
    <message>
        <source>Turntable</source>
        <translation>Turntable</translation>
    </message>
    <message>
        <source>Reset the turntable</source>
        <translation>Reset the turntable</translation>
    </message>
    <message>
        <source>Resets the turntable to its default values</source>
        <translation>Resets the turntable to its default values</translation>
    </message>
    <message>
        <source>Present your model from all sides without touching the mouse.</source>
        <translation>Present your model from all sides without touching the mouse.</translation>
    </message>
    <message>
        <source>Turn the model by itself</source>
        <translation>Turn the model by itself</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>Degrees per second</translation>
    </message>
    <message>
        <source>Whether the model turns by itself. You can still turn it with the mouse.</source>
        <translation>Whether the model turns by itself. You can still turn it with the mouse.</translation>
    </message>
    <message>
        <source>How fast the model turns: at 90 degrees per second, once in four seconds.</source>
        <translation>How fast the model turns: at 90 degrees per second, once in four seconds.</translation>
    </message>
</context>
<context>
    <name>ViewerSettings</name>
    <message>
        <source>The folder &quot;%1&quot; for screenshots cannot be created.</source>
        <translation>The folder &quot;%1&quot; for screenshots cannot be created.</translation>
    </message>
    <message>
        <source>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</source>
        <translation>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Torvane Viewer</source>
        <translation>Torvane Viewer</translation>
    </message>
    <message>
        <source>Drag the model to turn it; the button at the top left opens the menu.</source>
        <translation>Drag the model to turn it; the button at the top left opens the menu.</translation>
    </message>
    <message>
        <source>Menu and settings</source>
        <translation>Menu and settings</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Screenshot</translation>
    </message>
    <message>
        <source>Saves a picture of the view in the screenshot folder</source>
        <translation>Saves a picture of the view in the screenshot folder</translation>
    </message>
    <message>
        <source>Next Level</source>
        <translation>Next Level</translation>
    </message>
    <message>
        <source>Shows the next simplification level</source>
        <translation>Shows the next simplification level</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>Wire Frame</translation>
    </message>
    <message>
        <source>Shows the model&apos;s facets by their edges</source>
        <translation>Shows the model&apos;s facets by their edges</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Full Screen</translation>
    </message>
    <message>
        <source>Gives the viewer the whole screen</source>
        <translation>Gives the viewer the whole screen</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>Settings Modification</translation>
    </message>
    <message>
        <source>Your settings have not been applied. Close the viewer?</source>
        <translation>Your settings have not been applied. Close the viewer?</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Could not save %1</translation>
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
    <message>
        <source>Tab chooses a link, Return opens it.</source>
        <translation>Tab chooses a link, Return opens it.</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Settings file</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>Log file</translation>
    </message>
    <message>
        <source>Copies version, system, files and plug-ins, for the report of a fault</source>
        <translation>Copies version, system, files and plug-ins, for the report of a fault</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>Copy report</translation>
    </message>
    <message>
        <source>The text can be selected and copied.</source>
        <translation>The text can be selected and copied.</translation>
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
        <source>it cannot be replaced by a new one</source>
        <translation>it cannot be replaced by a new one</translation>
    </message>
    <message>
        <source>it belongs to another user, who would lose it</source>
        <translation>it belongs to another user, who would lose it</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>&quot;%1&quot; is in the way, which no program uses: remove it</translation>
    </message>
    <message>
        <source>This page has changes that are not applied.</source>
        <translation>This page has changes that are not applied.</translation>
    </message>
    <message>
        <source>Shows this page.</source>
        <translation>Shows this page.</translation>
    </message>
    <message>
        <source>Help on this setting</source>
        <translation>Help on this setting</translation>
    </message>
    <message>
        <source>Put back what was typed</source>
        <translation>Put back what was typed</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>Discard changes</translation>
    </message>
    <message>
        <source>Restore discarded changes</source>
        <translation>Restore discarded changes</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Scroll up</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Scroll down</translation>
    </message>
    <message>
        <source>Scroll to the top</source>
        <translation>Scroll to the top</translation>
    </message>
    <message>
        <source>Scroll to the bottom</source>
        <translation>Scroll to the bottom</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>another program has locked it</translation>
    </message>
    <message>
        <source>a copy of it cannot be kept: %1</source>
        <translation>a copy of it cannot be kept: %1</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>it cannot be read to its end</translation>
    </message>
    <message>
        <source>not all values can be kept in it</source>
        <translation>not all values can be kept in it</translation>
    </message>
    <message>
        <source>it is being written already</source>
        <translation>it is being written already</translation>
    </message>
    <message>
        <source>a group of it is open</source>
        <translation>a group of it is open</translation>
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
    <message>
        <source>Where your screenshots are saved. A click chooses a folder.</source>
        <translation>Where your screenshots are saved. A click chooses a folder.</translation>
    </message>
    <message>
        <source>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</source>
        <translation>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</translation>
    </message>
    <message>
        <source>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</source>
        <translation>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</translation>
    </message>
    <message>
        <source>No folder is set.</source>
        <translation>No folder is set.</translation>
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
    <message>
        <source>chosen by Torvane</source>
        <translation>chosen by Torvane</translation>
    </message>
    <message>
        <source>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</source>
        <translation>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</translation>
    </message>
    <message>
        <source>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</source>
        <translation>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</translation>
    </message>
    <message>
        <source>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</source>
        <translation>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</translation>
    </message>
    <message>
        <source>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</source>
        <translation>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</translation>
    </message>
</context>
<context>
    <name>ZelPageHelp</name>
    <message>
        <source>Range: %1.</source>
        <translation>Range: %1.</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>Default: %1.</translation>
    </message>
    <message>
        <source>Takes effect: %1.</source>
        <translation>Takes effect: %1.</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>at once</translation>
    </message>
    <message>
        <source>with the next import</source>
        <translation>with the next import</translation>
    </message>
    <message>
        <source>after a restart</source>
        <translation>after a restart</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 to %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>on</translation>
    </message>
    <message>
        <source>off</source>
        <translation>off</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 or %2</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>Put back</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>What is this?</translation>
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
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Closes without a choice</source>
        <translation>Closes without a choice</translation>
    </message>
    <message>
        <source>Draws with the processor</source>
        <translation>Draws with the processor</translation>
    </message>
    <message>
        <source>Draws with the graphics card</source>
        <translation>Draws with the graphics card</translation>
    </message>
    <message>
        <source>Uses the chosen engine</source>
        <translation>Uses the chosen engine</translation>
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
    <message>
        <source>Rendering engine</source>
        <translation>Rendering engine</translation>
    </message>
    <message>
        <source>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</source>
        <translation>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</translation>
    </message>
    <message>
        <source>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</source>
        <translation>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</translation>
    </message>
    <message>
        <source>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</source>
        <translation>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</translation>
    </message>
    <message>
        <source>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</source>
        <translation>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</translation>
    </message>
    <message>
        <source>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</source>
        <translation>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</translation>
    </message>
    <message>
        <source>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</source>
        <translation>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</source>
        <translation>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</source>
        <translation>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</source>
        <translation>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</translation>
    </message>
    <message>
        <source>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</source>
        <translation>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</translation>
    </message>
    <message>
        <source>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</source>
        <translation>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</translation>
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
    <message>
        <source>This level keeps every triangle of the model. It cannot be changed.</source>
        <translation>This level keeps every triangle of the model. It cannot be changed.</translation>
    </message>
    <message>
        <source>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</source>
        <translation>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</translation>
    </message>
</context>
</TS>
