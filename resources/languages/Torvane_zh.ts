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
    <message>
        <source>Restore</source>
        <translation>还原</translation>
    </message>
</context>
<context>
    <name>HelpCard</name>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Takes effect</source>
        <translation>生效</translation>
    </message>
    <message>
        <source>Puts back what is stored</source>
        <translation>恢复已保存的值</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Puts in the default</source>
        <translation>设为默认值</translation>
    </message>
    <message>
        <source>Changed, and not applied yet.</source>
        <translation>已更改，尚未应用。</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>不是默认值。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Point at a setting, or move to it with the Tab key, to read here what it does.</source>
        <translation>指向某项设置，或用 Tab 键移到该设置，即可在此阅读其说明。</translation>
    </message>
</context>
<context>
    <name>ModelView</name>
    <message>
        <source>Level %1 of %2
%3 of %4 triangles</source>
        <translation>级别 %1 / %2
三角形 %3 / %4</translation>
    </message>
</context>
<context>
    <name>PendingList</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>尚未应用</translation>
    </message>
    <message>
        <source>Goes to the setting.</source>
        <translation>转到该设置。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
</context>
<context>
    <name>TurntableSettingsPanel</name>
    <message>
        <source>Turntable</source>
        <translation>转盘</translation>
    </message>
    <message>
        <source>Reset the turntable</source>
        <translation>重置转盘</translation>
    </message>
    <message>
        <source>Resets the turntable to its default values</source>
        <translation>将转盘重置为默认值</translation>
    </message>
    <message>
        <source>Present your model from all sides without touching the mouse.</source>
        <translation>无需触碰鼠标即可从各个方向展示模型。</translation>
    </message>
    <message>
        <source>Turn the model by itself</source>
        <translation>自动旋转模型</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>每秒角度</translation>
    </message>
    <message>
        <source>Whether the model turns by itself. You can still turn it with the mouse.</source>
        <translation>模型是否自动旋转。您仍可用鼠标旋转它。</translation>
    </message>
    <message>
        <source>How fast the model turns: at 90 degrees per second, once in four seconds.</source>
        <translation>模型旋转的速度：每秒 90 度时四秒转一圈。</translation>
    </message>
</context>
<context>
    <name>ViewerSettings</name>
    <message>
        <source>The folder &quot;%1&quot; for screenshots cannot be created.</source>
        <translation>无法创建用于屏幕截图的文件夹“%1”。</translation>
    </message>
    <message>
        <source>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</source>
        <translation>缓存和屏幕截图共用文件夹“%1”，清除缓存时屏幕截图也会丢失。请在“%2”中更改其中之一。</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Torvane Viewer</source>
        <translation>Torvane 查看器</translation>
    </message>
    <message>
        <source>Drag the model to turn it; the button at the top left opens the menu.</source>
        <translation>拖动模型可旋转它；左上角的按钮可打开菜单。</translation>
    </message>
    <message>
        <source>Menu and settings</source>
        <translation>菜单和设置</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>屏幕截图</translation>
    </message>
    <message>
        <source>Saves a picture of the view in the screenshot folder</source>
        <translation>将视图的图片保存到屏幕截图文件夹</translation>
    </message>
    <message>
        <source>Next Level</source>
        <translation>下一级别</translation>
    </message>
    <message>
        <source>Shows the next simplification level</source>
        <translation>显示下一个简化级别</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>线框</translation>
    </message>
    <message>
        <source>Shows the model&apos;s facets by their edges</source>
        <translation>以边线显示模型的面</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Gives the viewer the whole screen</source>
        <translation>让查看器占满整个屏幕</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>设置更改</translation>
    </message>
    <message>
        <source>Your settings have not been applied. Close the viewer?</source>
        <translation>您的设置尚未应用。是否关闭查看器？</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>已保存 %1</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>无法保存 %1</translation>
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
    <message>
        <source>Tab chooses a link, Return opens it.</source>
        <translation>按 Tab 选择链接，按回车打开。</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>设置文件</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>日志文件</translation>
    </message>
    <message>
        <source>Copies version, system, files and plug-ins, for the report of a fault</source>
        <translation>复制版本、系统、文件和插件信息，用于报告故障</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>复制报告</translation>
    </message>
    <message>
        <source>The text can be selected and copied.</source>
        <translation>可以选择并复制此文本。</translation>
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
        <source>it cannot be replaced by a new one</source>
        <translation>无法用新文件替换它</translation>
    </message>
    <message>
        <source>it belongs to another user, who would lose it</source>
        <translation>它属于其他用户，对方将失去它</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>“%1”妨碍了操作，且没有程序使用它：请将其删除</translation>
    </message>
    <message>
        <source>This page has changes that are not applied.</source>
        <translation>此页有尚未应用的更改。</translation>
    </message>
    <message>
        <source>Shows this page.</source>
        <translation>显示此页。</translation>
    </message>
    <message>
        <source>Help on this setting</source>
        <translation>此设置的帮助</translation>
    </message>
    <message>
        <source>Put back what was typed</source>
        <translation>撤销输入</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>Restore discarded changes</source>
        <translation>恢复已放弃的更改</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>向上滚动</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>向下滚动</translation>
    </message>
    <message>
        <source>Scroll to the top</source>
        <translation>滚动到顶部</translation>
    </message>
    <message>
        <source>Scroll to the bottom</source>
        <translation>滚动到底部</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>其他程序已将其锁定</translation>
    </message>
    <message>
        <source>a copy of it cannot be kept: %1</source>
        <translation>无法保留其副本:%1</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>无法读取到末尾</translation>
    </message>
    <message>
        <source>not all values can be kept in it</source>
        <translation>无法在其中保存所有值</translation>
    </message>
    <message>
        <source>it is being written already</source>
        <translation>正在写入中</translation>
    </message>
    <message>
        <source>a group of it is open</source>
        <translation>其中一个组尚未关闭</translation>
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
    <message>
        <source>Where your screenshots are saved. A click chooses a folder.</source>
        <translation>屏幕截图的保存位置。单击可选择文件夹。</translation>
    </message>
    <message>
        <source>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</source>
        <translation>已加载模型的部分数据在磁盘上的存放位置。请选择速度快且空间充足的磁盘。单击可选择文件夹。</translation>
    </message>
    <message>
        <source>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</source>
        <translation>缓存在磁盘上可达到的大小。缓存越大，以前打开过的模型加载越快。</translation>
    </message>
    <message>
        <source>No folder is set.</source>
        <translation>未设置文件夹。</translation>
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
    <message>
        <source>chosen by Torvane</source>
        <translation>由 Torvane 选择</translation>
    </message>
    <message>
        <source>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</source>
        <translation>导入 CAD 文件时将曲面划分为三角形的精细程度。高质量看起来更圆滑，但模型更大。默认由 Torvane 决定。</translation>
    </message>
    <message>
        <source>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</source>
        <translation>三角形与其所代表曲面之间允许的距离，以模型的单位表示。值越小看起来越圆滑，三角形越多。</translation>
    </message>
    <message>
        <source>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</source>
        <translation>三角形边长的上限，以模型的单位表示。值越小，三角形越多、大小越均匀。</translation>
    </message>
    <message>
        <source>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</source>
        <translation>曲面从一个三角形到下一个三角形允许转过的角度。值越小看起来越圆滑，三角形越多。</translation>
    </message>
</context>
<context>
    <name>ZelPageHelp</name>
    <message>
        <source>Range: %1.</source>
        <translation>范围：%1。</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>默认：%1。</translation>
    </message>
    <message>
        <source>Takes effect: %1.</source>
        <translation>生效：%1。</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>with the next import</source>
        <translation>下次导入时</translation>
    </message>
    <message>
        <source>after a restart</source>
        <translation>重新启动后</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 至 %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>开</translation>
    </message>
    <message>
        <source>off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 或 %2</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>撤消</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>这是什么?</translation>
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
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;低&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt;&quot;&gt;(可在任何设备上运行)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>或</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;高&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt;&quot;&gt;(独立 &lt;br/&gt;显卡)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Closes without a choice</source>
        <translation>不选择并关闭</translation>
    </message>
    <message>
        <source>Draws with the processor</source>
        <translation>用处理器绘制</translation>
    </message>
    <message>
        <source>Draws with the graphics card</source>
        <translation>用显卡绘制</translation>
    </message>
    <message>
        <source>Uses the chosen engine</source>
        <translation>使用所选的引擎</translation>
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
    <message>
        <source>Rendering engine</source>
        <translation>渲染引擎</translation>
    </message>
    <message>
        <source>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</source>
        <translation>决定用什么绘制模型。高模式使用显卡；低模式使用处理器，可在任何设备上运行。仅显示所选模式的设置。</translation>
    </message>
    <message>
        <source>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</source>
        <translation>场景建模所用的单位。SSAO 据此确定阴影大小：单位不对时阴影会过重或看不见。仅在使用 SSAO 时有效。</translation>
    </message>
    <message>
        <source>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</source>
        <translation>光线追踪器计算画面的精细程度。质量越高画面越好，耗时越长。</translation>
    </message>
    <message>
        <source>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</source>
        <translation>光线追踪器可使用的处理器核心数。核心越多速度越快，留给其他程序的越少。</translation>
    </message>
    <message>
        <source>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</source>
        <translation>平滑画面中的锯齿边缘。在当前的显卡上耗时很少。</translation>
    </message>
    <message>
        <source>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</source>
        <translation>像柔和的光线那样使角落和缝隙变暗，让形状更易辨认。每幅画面都会耗费一些时间。</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</source>
        <translation>沿部件的边缘绘制线条。有助于区分颜色相同的部件。</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</source>
        <translation>显卡绘制模型时，模型可占用的计算机内存。内存越多，保持加载的细节越多。</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</source>
        <translation>光线追踪器可占用的计算机内存。内存越多，可绘制的模型越大。</translation>
    </message>
    <message>
        <source>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</source>
        <translation>模型可占用的显存。请低于显卡的容量：其他程序也需要显存。</translation>
    </message>
    <message>
        <source>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</source>
        <translation>一幅画面最多可有的三角形数。越少，模型移动越流畅；越多，显示的细节越精细。</translation>
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
    <message>
        <source>This level keeps every triangle of the model. It cannot be changed.</source>
        <translation>此级别保留模型的所有三角形，无法更改。</translation>
    </message>
    <message>
        <source>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</source>
        <translation>此级别的导出保留模型三角形的百分比。任何级别都不会比上一级别保留得更多。</translation>
    </message>
</context>
</TS>
