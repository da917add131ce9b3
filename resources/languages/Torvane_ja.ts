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
        <source>Libraries</source>
        <translation>ライブラリ</translation>
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
        <source>Could not keep a copy of the Torvane settings file &quot;%1&quot;: %2</source>
        <translation>Torvane の設定ファイル「%1」のコピーを保存できませんでした：%2</translation>
    </message>
    <message>
        <source>it cannot be replaced by a new one</source>
        <translation>新しいファイルに置き換えられません</translation>
    </message>
    <message>
        <source>it belongs to another user or group, who would lose it</source>
        <translation>ほかのユーザーまたはグループのファイルで、その所有者が使えなくなります</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the way, which no program uses: remove it</source>
        <translation>「%1」が妨げになっています。どのプログラムも使用していないため、削除してください</translation>
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
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;低&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(どの環境でも動作)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>or</source>
        <translation>または</translation>
    </message>
    <message>
        <source>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;High&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(Discrete &lt;br/&gt;Graphic Card)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;html&gt;&lt;head/&gt;&lt;body&gt;&lt;p&gt;&lt;span style=&quot; font-size:11pt;&quot;&gt;高&lt;/span&gt;&lt;/p&gt;&lt;p&gt;&lt;span style=&quot; font-size:10pt; font-style:italic;&quot;&gt;(専用 &lt;br/&gt;グラフィックスカード)&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
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
</context>
</TS>
