<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>ControlCenter</name>
    <message>
        <source>Application Settings</source>
        <translation>アプリケーション設定</translation>
    </message>
    <message>
        <source>Resets all parameters</source>
        <translation>すべてのパラメーターをリセットします</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Applies your changes</source>
        <translation>変更を適用します</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
</context>
<context>
    <name>ControlCenterStandAlone</name>
    <message>
        <source>Torvane - Control Center</source>
        <translation>Torvane - コントロールセンター</translation>
    </message>
    <message>
        <source>Control Center</source>
        <translation>コントロールセンター</translation>
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
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>元に戻す</translation>
    </message>
</context>
<context>
    <name>HelpCard</name>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>Stored</source>
        <translation>保存値</translation>
    </message>
    <message>
        <source>Takes effect</source>
        <translation>反映</translation>
    </message>
    <message>
        <source>Puts back what is stored</source>
        <translation>保存値に戻します</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Puts in the default</source>
        <translation>デフォルト値にします</translation>
    </message>
    <message>
        <source>Changed, and not applied yet.</source>
        <translation>変更されていますが、まだ適用されていません。</translation>
    </message>
    <message>
        <source>Not the default.</source>
        <translation>デフォルト値ではありません。</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Point at a setting, or move to it with the Tab key, to read here what it does.</source>
        <translation>設定にマウスを合わせるか Tab キーで移動すると、その説明がここに表示されます。</translation>
    </message>
</context>
<context>
    <name>ModelView</name>
    <message>
        <source>Level %1 of %2
%3 of %4 triangles</source>
        <translation>レベル %1 / %2
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
        <translation>未適用の変更</translation>
    </message>
    <message>
        <source>Goes to the setting.</source>
        <translation>設定に移動します。</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
    </message>
</context>
<context>
    <name>TurntableSettingsPanel</name>
    <message>
        <source>Turntable</source>
        <translation>ターンテーブル</translation>
    </message>
    <message>
        <source>Reset the turntable</source>
        <translation>ターンテーブルをリセット</translation>
    </message>
    <message>
        <source>Resets the turntable to its default values</source>
        <translation>ターンテーブルをデフォルト値に戻します</translation>
    </message>
    <message>
        <source>Present your model from all sides without touching the mouse.</source>
        <translation>マウスに触れずに、モデルをあらゆる方向から見せます。</translation>
    </message>
    <message>
        <source>Turn the model by itself</source>
        <translation>モデルを自動で回転</translation>
    </message>
    <message>
        <source>Degrees per second</source>
        <translation>毎秒の角度</translation>
    </message>
    <message>
        <source>Whether the model turns by itself. You can still turn it with the mouse.</source>
        <translation>モデルが自動で回転するかどうかです。マウスでも回転できます。</translation>
    </message>
    <message>
        <source>How fast the model turns: at 90 degrees per second, once in four seconds.</source>
        <translation>モデルの回転速度です。毎秒 90 度では 4 秒で 1 回転します。</translation>
    </message>
</context>
<context>
    <name>ViewerSettings</name>
    <message>
        <source>The folder &quot;%1&quot; for screenshots cannot be created.</source>
        <translation>スクリーンショット用のフォルダー「%1」を作成できません。</translation>
    </message>
    <message>
        <source>The cache and the screenshots share the folder &quot;%1&quot;, and screenshots would be lost with the cache. Please change one of them in &quot;%2&quot;.</source>
        <translation>キャッシュとスクリーンショットが同じフォルダー「%1」を使用しているため、キャッシュとともにスクリーンショットが失われます。「%2」でどちらかを変更してください。</translation>
    </message>
</context>
<context>
    <name>ViewerWindow</name>
    <message>
        <source>Torvane Viewer</source>
        <translation>Torvane ビューアー</translation>
    </message>
    <message>
        <source>Drag the model to turn it; the button at the top left opens the menu.</source>
        <translation>ドラッグするとモデルが回転します。左上のボタンでメニューが開きます。</translation>
    </message>
    <message>
        <source>Menu and settings</source>
        <translation>メニューと設定</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>スクリーンショット</translation>
    </message>
    <message>
        <source>Saves a picture of the view in the screenshot folder</source>
        <translation>ビューの画像をスクリーンショットフォルダーに保存します</translation>
    </message>
    <message>
        <source>Next Level</source>
        <translation>次のレベル</translation>
    </message>
    <message>
        <source>Shows the next simplification level</source>
        <translation>次の簡略化レベルを表示します</translation>
    </message>
    <message>
        <source>Wire Frame</source>
        <translation>ワイヤーフレーム</translation>
    </message>
    <message>
        <source>Shows the model&apos;s facets by their edges</source>
        <translation>モデルの面を辺で表示します</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Gives the viewer the whole screen</source>
        <translation>ビューアーを画面全体に表示します</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>設定の変更</translation>
    </message>
    <message>
        <source>Your settings have not been applied. Close the viewer?</source>
        <translation>設定が適用されていません。ビューアーを閉じますか？</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 を保存しました</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 を保存できませんでした</translation>
    </message>
</context>
<context>
    <name>ZelAboutSettingsPanel</name>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Identify the Torvane version and all the third party components used while developping this software.</source>
        <translation>Torvane のバージョンと、本ソフトウェアの開発に使用されたすべてのサードパーティ製コンポーネントを確認できます。</translation>
    </message>
    <message>
        <source>Copyright © 2019 - %1 the makers of Torvane</source>
        <translation>Copyright © 2019 - %1 Torvane 開発元</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>プラグイン</translation>
    </message>
    <message>
        <source>Plugin name</source>
        <translation>プラグイン名</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;This software uses the following libraries :&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;本ソフトウェアは次のライブラリを使用しています：&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>application toolkit</source>
        <translation>アプリケーションツールキット</translation>
    </message>
    <message>
        <source>single running instance</source>
        <translation>単一インスタンスでの実行</translation>
    </message>
    <message>
        <source>fonts</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Tab chooses a link, Return opens it.</source>
        <translation>Tab でリンクを選び、Enter で開きます。</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>Log file</source>
        <translation>ログファイル</translation>
    </message>
    <message>
        <source>Copies version, system, files and plug-ins, for the report of a fault</source>
        <translation>不具合の報告のために、バージョン、システム、ファイル、プラグインをコピーします</translation>
    </message>
    <message>
        <source>Copy report</source>
        <translation>レポートをコピー</translation>
    </message>
    <message>
        <source>The text can be selected and copied.</source>
        <translation>テキストは選択してコピーできます。</translation>
    </message>
</context>
<context>
    <name>ZelControlCenter</name>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>サイズが大きすぎます</translation>
    </message>
    <message>
        <source>Could not read the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Torvane の設定ファイル「%1」を読み取れませんでした：%2</translation>
    </message>
    <message>
        <source>Could not write the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Torvane の設定ファイル「%1」に書き込めませんでした：%2</translation>
    </message>
    <message>
        <source>Could not use the Torvane log file, file &quot;%1&quot; could not be created</source>
        <translation>Torvane のログファイルを使用できません。ファイル「%1」を作成できませんでした</translation>
    </message>
    <message>
        <source>Could not use the 3D database cache, folder &quot;%1&quot; could not be created</source>
        <translation>3D データベースのキャッシュを使用できません。フォルダー「%1」を作成できませんでした</translation>
    </message>
    <message>
        <source>Could not create compulsory folder &quot;%1&quot;</source>
        <translation>必須のフォルダー「%1」を作成できませんでした</translation>
    </message>
    <message>
        <source>Settings Modification</source>
        <translation>設定の変更</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Changes the settings of the application</source>
        <translation>アプリケーションの設定を変更します</translation>
    </message>
    <message>
        <source>You need to restart your application to turn settings modification effective.</source>
        <translation>設定の変更を有効にするには、アプリケーションを再起動する必要があります。</translation>
    </message>
    <message>
        <source>You have pending modifications. Continue and discard your changes ?</source>
        <translation>適用されていない変更があります。続行して変更を破棄しますか？</translation>
    </message>
    <message>
        <source>Your current changes will be discarded.
Continue and close the application ?</source>
        <translation>現在の変更は破棄されます。
続行してアプリケーションを閉じますか？</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>新しいファイルに置き換えられません</translation>
    </message>
    <message>
        <source>it belongs to another user, who would lose it</source>
        <translation>ほかのユーザーのファイルで、その所有者が使えなくなります</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>「%1」が妨げになっています。どのプログラムも使用していないため、削除してください</translation>
    </message>
    <message>
        <source>This page has changes that are not applied.</source>
        <translation>このページには適用されていない変更があります。</translation>
    </message>
    <message>
        <source>Shows this page.</source>
        <translation>このページを表示します。</translation>
    </message>
    <message>
        <source>Help on this setting</source>
        <translation>この設定のヘルプ</translation>
    </message>
    <message>
        <source>Put back what was typed</source>
        <translation>入力を元に戻す</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>変更を破棄</translation>
    </message>
    <message>
        <source>Restore discarded changes</source>
        <translation>破棄した変更を元に戻す</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>上へスクロール</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>下へスクロール</translation>
    </message>
    <message>
        <source>Scroll to the top</source>
        <translation>先頭へスクロール</translation>
    </message>
    <message>
        <source>Scroll to the bottom</source>
        <translation>末尾へスクロール</translation>
    </message>
    <message>
        <source>another program has locked it</source>
        <translation>別のプログラムがロックしています</translation>
    </message>
    <message>
        <source>a copy of it cannot be kept: %1</source>
        <translation>コピーを保存できません: %1</translation>
    </message>
    <message>
        <source>it cannot be read to its end</source>
        <translation>最後まで読み取れません</translation>
    </message>
    <message>
        <source>not all values can be kept in it</source>
        <translation>すべての値を保存できません</translation>
    </message>
    <message>
        <source>it is being written already</source>
        <translation>すでに書き込み中です</translation>
    </message>
    <message>
        <source>a group of it is open</source>
        <translation>グループが開かれたままです</translation>
    </message>
</context>
<context>
    <name>ZelControlCenterStandAloneWidget</name>
    <message>
        <source>Torvane - Fatal Error</source>
        <translation>Torvane - 致命的なエラー</translation>
    </message>
</context>
<context>
    <name>ZelGeneralSettingsPanel</name>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Reset the folders</source>
        <translation>フォルダーをリセット</translation>
    </message>
    <message>
        <source>Resets your folders to their default values</source>
        <translation>フォルダーをデフォルト値に戻します</translation>
    </message>
    <message>
        <source>Torvane allows to load large models thanks to a fine handling of the available memory. To achieve such a goal, it uses a cache folder which you can set here its maximum size and its location.
You may also change the location for your screenshots album.</source>
        <translation>Torvane は、使用可能なメモリをきめ細かく管理することで、大規模なモデルを読み込むことができます。そのために使用するキャッシュフォルダーの最大サイズと場所を、ここで設定できます。
スクリーンショットのアルバムの場所も変更できます。</translation>
    </message>
    <message>
        <source>Screenshot folder :</source>
        <translation>スクリーンショットフォルダー：</translation>
    </message>
    <message>
        <source>Screenshot folder</source>
        <translation>スクリーンショットフォルダー</translation>
    </message>
    <message>
        <source>Cache folder :</source>
        <translation>キャッシュフォルダー：</translation>
    </message>
    <message>
        <source>Cache folder</source>
        <translation>キャッシュフォルダー</translation>
    </message>
    <message>
        <source>Cache size</source>
        <translation>キャッシュサイズ</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Please set your database cache folder</source>
        <translation>データベースのキャッシュフォルダーを設定してください</translation>
    </message>
    <message>
        <source>Please set your screenshot folder</source>
        <translation>スクリーンショットフォルダーを設定してください</translation>
    </message>
    <message>
        <source>Where your screenshots are saved. A click chooses a folder.</source>
        <translation>スクリーンショットの保存先です。クリックしてフォルダーを選びます。</translation>
    </message>
    <message>
        <source>Where parts of loaded models are kept on the disk. Choose a fast disk with enough free space. A click chooses a folder.</source>
        <translation>読み込んだモデルの一部をディスクに保存する場所です。空き容量が十分にある高速なディスクを選んでください。クリックしてフォルダーを選びます。</translation>
    </message>
    <message>
        <source>How large the cache may grow on the disk. With a larger one, models that you have opened before load faster.</source>
        <translation>ディスク上のキャッシュの最大サイズです。大きくすると、一度開いたモデルの読み込みが速くなります。</translation>
    </message>
    <message>
        <source>No folder is set.</source>
        <translation>フォルダーが設定されていません。</translation>
    </message>
</context>
<context>
    <name>ZelImportSettingsPanel</name>
    <message>
        <source>Tessellation</source>
        <translation>テッセレーション</translation>
    </message>
    <message>
        <source>Reset the tessellation</source>
        <translation>テッセレーションをリセット</translation>
    </message>
    <message>
        <source>Resets your tessellation parameters to their default values</source>
        <translation>テッセレーションのパラメーターをデフォルト値に戻します</translation>
    </message>
    <message>
        <source>When importing native CAD files, Torvane chooses automatically the tesselation parameters that will output triangles. 
You may manually choose the parameters that will best fit your needs.</source>
        <translation>ネイティブ CAD ファイルをインポートするとき、Torvane は三角形を生成するテッセレーションパラメーターを自動的に選択します。
必要に応じて、最適なパラメーターを手動で選択できます。</translation>
    </message>
    <message>
        <source>Tessellation Quality</source>
        <translation>テッセレーションの品質</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>High Quality</source>
        <translation>高品質</translation>
    </message>
    <message>
        <source>Low Quality</source>
        <translation>低品質</translation>
    </message>
    <message>
        <source>Max Face Sag</source>
        <translation>面の最大サグ</translation>
    </message>
    <message>
        <source>Max Face Length</source>
        <translation>面の最大長さ</translation>
    </message>
    <message>
        <source>Max Face Angle</source>
        <translation>面の最大角度</translation>
    </message>
    <message>
        <source> °</source>
        <translation> °</translation>
    </message>
    <message>
        <source>chosen by Torvane</source>
        <translation>Torvane が選択</translation>
    </message>
    <message>
        <source>How finely curved faces are cut into triangles when a CAD file is imported. High quality looks rounder and makes larger models. By default, Torvane decides.</source>
        <translation>CAD ファイルのインポート時に、曲面をどれだけ細かく三角形に分割するかです。高品質ではより滑らかに見えますが、モデルが大きくなります。デフォルトでは Torvane が決定します。</translation>
    </message>
    <message>
        <source>How far a triangle may lie from the curved face that it stands for, in the unit of the model. A smaller value looks rounder and makes more triangles.</source>
        <translation>三角形と、それが表す曲面との許容距離です。単位はモデルの単位です。小さいほど滑らかに見え、三角形が増えます。</translation>
    </message>
    <message>
        <source>How long the edges of a triangle may be, in the unit of the model. A smaller value makes more triangles of more even sizes.</source>
        <translation>三角形の辺の最大長です。単位はモデルの単位です。小さいほど三角形が増え、大きさが揃います。</translation>
    </message>
    <message>
        <source>How far a curved face may turn from one triangle to the next. A smaller value looks rounder and makes more triangles.</source>
        <translation>隣り合う三角形の間で曲面が曲がってよい角度です。小さいほど滑らかに見え、三角形が増えます。</translation>
    </message>
</context>
<context>
    <name>ZelPageHelp</name>
    <message>
        <source>Range: %1.</source>
        <translation>範囲：%1。</translation>
    </message>
    <message>
        <source>Default: %1.</source>
        <translation>デフォルト：%1。</translation>
    </message>
    <message>
        <source>Takes effect: %1.</source>
        <translation>反映：%1。</translation>
    </message>
    <message>
        <source>at once</source>
        <translation>すぐに</translation>
    </message>
    <message>
        <source>with the next import</source>
        <translation>次回のインポート時</translation>
    </message>
    <message>
        <source>after a restart</source>
        <translation>再起動後</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>on</source>
        <translation>オン</translation>
    </message>
    <message>
        <source>off</source>
        <translation>オフ</translation>
    </message>
    <message>
        <source>%1 or %2</source>
        <translation>%1 または %2</translation>
    </message>
    <message>
        <source>Put back</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>デフォルト</translation>
    </message>
    <message>
        <source>What is this?</source>
        <translation>これは何ですか?</translation>
    </message>
</context>
<context>
    <name>ZelRendererSelector</name>
    <message>
        <source>Torvane - Please select your display type</source>
        <translation>Torvane - 表示タイプを選択してください</translation>
    </message>
    <message>
        <source>Select your display type - Torvane</source>
        <translation>表示タイプの選択 - Torvane</translation>
    </message>
    <message>
        <source>Please select your rendering engine :</source>
        <translation>レンダリングエンジンを選択してください：</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;Low&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Run everywhere)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;低&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt;&quot;&gt;(どの環境でも動作)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>または</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;高&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt;&quot;&gt;(専用 &lt;br/&gt;グラフィックスカード)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Closes without a choice</source>
        <translation>選択せずに閉じます</translation>
    </message>
    <message>
        <source>Draws with the processor</source>
        <translation>プロセッサーで描画します</translation>
    </message>
    <message>
        <source>Draws with the graphics card</source>
        <translation>グラフィックスカードで描画します</translation>
    </message>
    <message>
        <source>Uses the chosen engine</source>
        <translation>選択したエンジンを使用します</translation>
    </message>
</context>
<context>
    <name>ZelRendererSettingsPanel</name>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Reset the display</source>
        <translation>表示をリセット</translation>
    </message>
    <message>
        <source>Resets the display parameters to their default values</source>
        <translation>表示パラメーターをデフォルト値に戻します</translation>
    </message>
    <message>
        <source>Adapt the quality and performances of your display to your needs and your material.</source>
        <translation>用途とハードウェアに合わせて、表示の品質とパフォーマンスを調整します。</translation>
    </message>
    <message>
        <source>High Mode (Discrete Graphic Card)</source>
        <translation>高モード (専用グラフィックスカード)</translation>
    </message>
    <message>
        <source>Low Mode (Run everywhere)</source>
        <translation>低モード (どの環境でも動作)</translation>
    </message>
    <message>
        <source>Antialiasing </source>
        <translation>アンチエイリアス </translation>
    </message>
    <message>
        <source>use SSAO</source>
        <translation>SSAO を使用</translation>
    </message>
    <message>
        <source>SSAO Units</source>
        <translation>SSAO の単位</translation>
    </message>
    <message>
        <source>Kilometer (km)</source>
        <translation>キロメートル (km)</translation>
    </message>
    <message>
        <source>Hectometer (hm)</source>
        <translation>ヘクトメートル (hm)</translation>
    </message>
    <message>
        <source>Decameter (dam)</source>
        <translation>デカメートル (dam)</translation>
    </message>
    <message>
        <source>Meter (m)</source>
        <translation>メートル (m)</translation>
    </message>
    <message>
        <source>Decimeter (dm)</source>
        <translation>デシメートル (dm)</translation>
    </message>
    <message>
        <source>Centimeter (cm)</source>
        <translation>センチメートル (cm)</translation>
    </message>
    <message>
        <source>Millimeter (mm)</source>
        <translation>ミリメートル (mm)</translation>
    </message>
    <message>
        <source>use Edge Detect</source>
        <translation>エッジ検出を使用</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>低</translation>
    </message>
    <message>
        <source>Processing power</source>
        <translation>処理能力</translation>
    </message>
    <message>
        <source>SD resolution</source>
        <translation>SD 解像度</translation>
    </message>
    <message>
        <source>SD width</source>
        <translation>SD の幅</translation>
    </message>
    <message>
        <source>SD height</source>
        <translation>SD の高さ</translation>
    </message>
    <message>
        <source>HD resolution</source>
        <translation>HD 解像度</translation>
    </message>
    <message>
        <source>HD width</source>
        <translation>HD の幅</translation>
    </message>
    <message>
        <source>HD height</source>
        <translation>HD の高さ</translation>
    </message>
    <message>
        <source>SD Antialiasing</source>
        <translation>SD アンチエイリアス</translation>
    </message>
    <message>
        <source>HD Antialiasing</source>
        <translation>HD アンチエイリアス</translation>
    </message>
    <message>
        <source>Max CPU memory</source>
        <translation>最大 CPU メモリ</translation>
    </message>
    <message>
        <source> Mo</source>
        <translation> MB</translation>
    </message>
    <message>
        <source>Max CPU Memory</source>
        <translation>最大 CPU メモリ</translation>
    </message>
    <message>
        <source>Max GPU Memory</source>
        <translation>最大 GPU メモリ</translation>
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
        <translation>ウルトラ</translation>
    </message>
    <message>
        <source>%1 core</source>
        <translation>%1 コア</translation>
    </message>
    <message>
        <source>%1 cores</source>
        <translation>%1 コア</translation>
    </message>
    <message>
        <source>Rendering engine</source>
        <translation>レンダリングエンジン</translation>
    </message>
    <message>
        <source>Decides what draws your models. The high mode uses the graphics card; the low mode uses the processor and runs everywhere. Only the settings of the chosen mode are shown.</source>
        <translation>モデルを何で描画するかを決めます。高モードはグラフィックスカードを使用し、低モードはプロセッサーを使用してどの環境でも動作します。選んだモードの設定だけが表示されます。</translation>
    </message>
    <message>
        <source>The unit in which your scene is modelled. SSAO sizes its shadows by it: with a wrong unit they are too strong or cannot be seen. It counts only while SSAO is used.</source>
        <translation>シーンをモデリングした単位です。SSAO の影の大きさはこの単位で決まり、間違っていると影が濃すぎたり見えなかったりします。SSAO を使用している間だけ有効です。</translation>
    </message>
    <message>
        <source>How carefully the raytracer computes a picture. A higher quality looks better and takes longer.</source>
        <translation>レイトレーサーが画像をどれだけ丁寧に計算するかです。品質が高いほど美しく、時間がかかります。</translation>
    </message>
    <message>
        <source>How many cores of the processor the raytracer may use. More cores make it faster and leave less to other programs.</source>
        <translation>レイトレーサーが使用できるプロセッサーのコア数です。多いほど速くなりますが、ほかのプログラムの分が減ります。</translation>
    </message>
    <message>
        <source>Smooths the jagged edges of the picture. It takes little time on a current graphics card.</source>
        <translation>画像のギザギザした縁を滑らかにします。最近のグラフィックスカードではほとんど時間がかかりません。</translation>
    </message>
    <message>
        <source>Darkens corners and gaps as soft light does, so that shapes are easier to see. It takes some time in every picture.</source>
        <translation>柔らかい光のように角や隙間を暗くし、形を見やすくします。画像ごとに少し時間がかかります。</translation>
    </message>
    <message>
        <source>Draws lines along the edges of the parts. This helps to tell parts of the same colour apart.</source>
        <translation>部品の縁に沿って線を描きます。同じ色の部品を見分けやすくなります。</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the models may take while the graphics card draws them. With more of it, more details stay loaded.</source>
        <translation>グラフィックスカードで描画する間、モデルが使用できるコンピューターのメモリ量です。多いほど多くの細部が読み込まれたままになります。</translation>
    </message>
    <message>
        <source>How much of the computer&apos;s memory the raytracer may take. With more of it, larger models can be drawn.</source>
        <translation>レイトレーサーが使用できるコンピューターのメモリ量です。多いほど大きなモデルを描画できます。</translation>
    </message>
    <message>
        <source>How much of the graphics card&apos;s memory the models may take. Stay below what the card has: other programs need some too.</source>
        <translation>モデルが使用できるグラフィックスカードのメモリ量です。ほかのプログラムも使用するため、カードの容量より小さくしてください。</translation>
    </message>
    <message>
        <source>How many triangles one picture may have at most. With fewer, models move more smoothly; with more, they show finer details.</source>
        <translation>1 枚の画像に含められる三角形の最大数です。少ないほどモデルの動きが滑らかになり、多いほど細部が表示されます。</translation>
    </message>
</context>
<context>
    <name>ZelSimplificationSettingsPanel</name>
    <message>
        <source>Compression / Simplification</source>
        <translation>圧縮 / 簡略化</translation>
    </message>
    <message>
        <source>Reset the simplification ratios</source>
        <translation>簡略化率をリセット</translation>
    </message>
    <message>
        <source>Resets the simplification ratios to their original values</source>
        <translation>簡略化率を元の値に戻します</translation>
    </message>
    <message>
        <source>The simplification process is used when exporting your scene to reduce the size of your files.
You can set here the resulting percentage of triangles from the source model you will obtain when using a given quality, with the exception of level 5 that has no compression (thus 100 % of the triangles of the source model).</source>
        <translation>簡略化は、シーンをエクスポートするときにファイルのサイズを小さくするために使用されます。
各品質で得られる、元のモデルに対する三角形の割合をここで設定できます。ただし、レベル 5 は圧縮なし (元のモデルの三角形の 100%) です。</translation>
    </message>
    <message>
        <source>No
compression</source>
        <translation>圧縮
なし</translation>
    </message>
    <message>
        <source>Low compression</source>
        <translation>低圧縮</translation>
    </message>
    <message>
        <source>Medium Compression</source>
        <translation>中圧縮</translation>
    </message>
    <message>
        <source>High Compression</source>
        <translation>高圧縮</translation>
    </message>
    <message>
        <source>Best compression</source>
        <translation>最高圧縮</translation>
    </message>
    <message>
        <source>Simplification</source>
        <translation>簡略化</translation>
    </message>
    <message>
        <source>This level keeps every triangle of the model. It cannot be changed.</source>
        <translation>このレベルはモデルのすべての三角形を残します。変更できません。</translation>
    </message>
    <message>
        <source>How many of the model&apos;s triangles an export at this level keeps, in percent. A level never keeps more than the one above it.</source>
        <translation>このレベルのエクスポートで残すモデルの三角形の割合 (%) です。上のレベルより多く残すことはありません。</translation>
    </message>
</context>
</TS>
