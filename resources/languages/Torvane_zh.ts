<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>ControlCenter</name>
    <message>
        <source>Application Settings</source>
        <translation>应用程序设置</translation>
    </message>
    <message>
        <source>Resets all parameters</source>
        <translation>重置所有参数</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Applies your changes</source>
        <translation>应用您的更改</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
</context>
<context>
    <name>ControlCenterStandAlone</name>
    <message>
        <source>Torvane - Control Center</source>
        <translation>Torvane - 控制中心</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>控制中心</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>最小化</translation>
    </message>
    <message>
        <source>Maximize</source>
        <translation>最大化</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
</context>
<context>
    <name>ZelAboutSettingsPanel</name>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Identify the Torvane version and all the third party components used while developping this software.</source>
        <translation>查看 Torvane 的版本以及开发本软件时使用的所有第三方组件。</translation>
    </message>
    <message>
        <source>Copyright © 2019 - %1 the makers of Torvane</source>
        <translation>版权所有 © 2019 - %1 Torvane 开发者</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Plugin name</source>
        <translation>插件名称</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;本软件使用以下库：&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>库</translation>
    </message>
    <message>
        <source>application toolkit</source>
        <translation>应用程序工具包</translation>
    </message>
    <message>
        <source>single running instance</source>
        <translation>单实例运行</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>字体</translation>
    </message>
</context>
<context>
    <name>ZelControlCenter</name>
    <message>
        <source>it is not a file</source>
        <translation>不是文件</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>文件过大</translation>
    </message>
    <message>
        <source>Could not read the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>无法读取 Torvane 设置文件“%1”：%2</translation>
    </message>
    <message>
        <source>Could not write the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>无法写入 Torvane 设置文件“%1”：%2</translation>
    </message>
    <message>
        <source>Could not use the Torvane log file, file &quot;%1&quot; could not be created</source>
        <translation>无法使用 Torvane 日志文件，无法创建文件“%1”</translation>
    </message>
    <message>
        <source>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</source>
        <translation>无法使用 3D 数据库缓存，无法创建文件夹“%1”</translation>
    </message>
    <message>
        <source>Could not create compulsory folder &quot;%1&quot;</source>
        <translation>无法创建必需的文件夹“%1”</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>设置更改</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Changes the settings of the application</source>
        <translation>更改应用程序的设置</translation>
    </message>
    <message>
        <source>You need to restart your application to turn settings modification effective.</source>
        <translation>您需要重新启动应用程序，设置更改才能生效。</translation>
    </message>
    <message>
        <source>You have pending modifications. Continue and discard your changes ?</source>
        <translation>您有尚未应用的更改。是否继续并放弃更改？</translation>
    </message>
    <message>
        <source>Your current changes will be discarded.
Continue and close the application ?</source>
        <translation>您当前的更改将被放弃。
是否继续并关闭应用程序？</translation>
    </message>
    <message>
        <source>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>无法保留 Torvane 设置文件“%1”的副本：%2</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>无法用新文件替换它</translation>
    </message>
    <message>
        <source>it belongs to another user or group, who would lose it</source>
        <translation>它属于其他用户或组，对方将失去它</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>“%1”妨碍了操作，且没有程序使用它：请将其删除</translation>
    </message>
</context>
<context>
    <name>ZelControlCenterStandAloneWidget</name>
    <message>
        <source>Torvane - Fatal Error</source>
        <translation>Torvane - 致命错误</translation>
    </message>
</context>
<context>
    <name>ZelGeneralSettingsPanel</name>
    <message>
        <source>Folders</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Reset the folders</source>
        <translation>重置文件夹</translation>
    </message>
    <message>
        <source>Resets your folders to their default values</source>
        <translation>将您的文件夹重置为默认值</translation>
    </message>
    <message>
        <source>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</source>
        <translation>Torvane 通过对可用内存的精细管理，能够加载大型模型。为此，它会使用一个缓存文件夹，您可以在此设置该文件夹的最大大小和位置。
您还可以更改屏幕截图相册的位置。</translation>
    </message>
    <message>
        <source>Screenshot folder :</source>
        <translation>屏幕截图文件夹：</translation>
    </message>
    <message>
        <source>Screenshot folder</source>
        <translation>屏幕截图文件夹</translation>
    </message>
    <message>
        <source>Cache folder :</source>
        <translation>缓存文件夹：</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <translation>缓存文件夹</translation>
    </message>
    <message>
        <source>Cache size</source>
        <translation>缓存大小</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Please set your database cache folder</source>
        <translation>请设置数据库缓存文件夹</translation>
    </message>
    <message>
        <source>Please set your screenshot folder</source>
        <translation>请设置屏幕截图文件夹</translation>
    </message>
</context>
<context>
    <name>ZelImportSettingsPanel</name>
    <message>
        <source>Tessellation</source>
        <translation>镶嵌</translation>
    </message>
    <message>
        <source>Reset the tessellation</source>
        <translation>重置镶嵌</translation>
    </message>
    <message>
        <source>Resets your tessellation parameters to their default values</source>
        <translation>将您的镶嵌参数重置为默认值</translation>
    </message>
    <message>
        <source>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</source>
        <translation>导入原生 CAD 文件时，Torvane 会自动选择生成三角形的镶嵌参数。
您也可以手动选择最符合您需求的参数。</translation>
    </message>
    <message>
        <source>Tessellation Quality</source>
        <translation>镶嵌质量</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>高质量</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>低质量</translation>
    </message>
    <message>
        <source>Max Face Sag</source>
        <translation>最大面弦高</translation>
    </message>
    <message>
        <source>Max Face Length</source>
        <translation>最大面长度</translation>
    </message>
    <message>
        <source>Max Face Angle</source>
        <translation>最大面角度</translation>
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
        <translation>Torvane - 请选择显示类型</translation>
    </message>
    <message>
        <source>Select your display type - Torvane</source>
        <translation>选择显示类型 - Torvane</translation>
    </message>
    <message>
        <source>Please select your rendering engine :</source>
        <translation>请选择渲染引擎：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;低&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(可在任何设备上运行)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>或</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;高&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(独立 &lt;br/&gt;显卡)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>ZelRendererSettingsPanel</name>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Reset the display</source>
        <translation>重置显示</translation>
    </message>
    <message>
        <source>Resets the display parameters to their default values</source>
        <translation>将显示参数重置为默认值</translation>
    </message>
    <message>
        <source>Adapt the quality and performances of your display to your needs and your material.</source>
        <translation>根据您的需求和硬件调整显示的质量和性能。</translation>
    </message>
    <message>
        <source>High Mode (Discrete Graphic Card)</source>
        <translation>高模式 (独立显卡)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>低模式 (可在任何设备上运行)</translation>
    </message>
    <message>
        <source>Antialiasing </source>
        <translation>抗锯齿 </translation>
    </message>
    <message>
        <source>use SSAO</source>
        <translation>使用 SSAO</translation>
    </message>
    <message>
        <source>SSAO Units</source>
        <translation>SSAO 单位</translation>
    </message>
    <message>
        <source>Kilometer (km)</source>
        <translation>千米 (km)</translation>
    </message>
    <message>
        <source>Hectometer (hm)</source>
        <translation>百米 (hm)</translation>
    </message>
    <message>
        <source>Decameter (dam)</source>
        <translation>十米 (dam)</translation>
    </message>
    <message>
        <source>Meter (m)</source>
        <translation>米 (m)</translation>
    </message>
    <message>
        <source>Decimeter (dm)</source>
        <translation>分米 (dm)</translation>
    </message>
    <message>
        <source>Centimeter (cm)</source>
        <translation>厘米 (cm)</translation>
    </message>
    <message>
        <source>Millimeter (mm)</source>
        <translation>毫米 (mm)</translation>
    </message>
    <message>
        <source>use Edge Detect</source>
        <translation>使用边缘检测</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>质量</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Processing power</source>
        <translation>处理能力</translation>
    </message>
    <message>
        <source>SD resolution</source>
        <translation>SD 分辨率</translation>
    </message>
    <message>
        <source>SD width</source>
        <translation>SD 宽度</translation>
    </message>
    <message>
        <source>SD height</source>
        <translation>SD 高度</translation>
    </message>
    <message>
        <source>HD resolution</source>
        <translation>HD 分辨率</translation>
    </message>
    <message>
        <source>HD width</source>
        <translation>HD 宽度</translation>
    </message>
    <message>
        <source>HD height</source>
        <translation>HD 高度</translation>
    </message>
    <message>
        <source>SD Antialiasing</source>
        <translation>SD 抗锯齿</translation>
    </message>
    <message>
        <source>HD Antialiasing</source>
        <translation>HD 抗锯齿</translation>
    </message>
    <message>
        <source>Max CPU memory</source>
        <translation>最大 CPU 内存</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Max CPU Memory</source>
        <translation>最大 CPU 内存</translation>
    </message>
    <message>
        <source>Max GPU Memory</source>
        <translation>最大 GPU 内存</translation>
    </message>
    <message>
        <source>Max triangles nb</source>
        <translation>最大三角形数</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>中</translation>
    </message>
    <message>
        <source>High</source>
        <translation>高</translation>
    </message>
    <message>
        <source>Ultra</source>
        <translation>超高</translation>
    </message>
    <message>
        <source>%1 core</source>
        <translation>%1 个核心</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 个核心</translation>
    </message>
</context>
<context>
    <name>ZelSimplificationSettingsPanel</name>
    <message>
        <source>Compression / Simplification</source>
        <translation>压缩 / 简化</translation>
    </message>
    <message>
        <source>Reset the simplification ratios</source>
        <translation>重置简化比率</translation>
    </message>
    <message>
        <source>Resets the simplification ratios to their original values</source>
        <translation>将简化比率重置为原始值</translation>
    </message>
    <message>
        <source>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</source>
        <translation>简化用于在导出场景时减小文件的大小。
您可以在此设置使用某一质量时所得三角形占源模型三角形的百分比，但级别 5 除外，该级别不压缩（即保留源模型 100% 的三角形）。</translation>
    </message>
    <message>
        <source>No
compression</source>
        <translation>无
压缩</translation>
    </message>
    <message>
        <source>Low compression</source>
        <translation>低压缩</translation>
    </message>
    <message>
        <source>Medium Compression</source>
        <translation>中等压缩</translation>
    </message>
    <message>
        <source>High Compression</source>
        <translation>高压缩</translation>
    </message>
    <message>
        <source>Best compression</source>
        <translation>最佳压缩</translation>
    </message>
    <message>
        <source>Simplification</source>
        <translation>简化</translation>
    </message>
</context>
</TS>
