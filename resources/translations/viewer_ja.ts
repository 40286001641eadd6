<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CameraListPane</name>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Search names and descriptions</source>
        <translation>名前と説明を検索</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>カメラを検索</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>%1
On the command line: --camera %2</source>
        <translation>%1
コマンドライン: --camera %2</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>検索(&amp;S)</translation>
    </message>
    <message>
        <source>Looks for cameras on the network and the USB bus.</source>
        <translation>ネットワークと USB バス上のカメラを検索します。</translation>
    </message>
    <message>
        <source>GigE camera without hardware</source>
        <translation>ハードウェアなしの GigE カメラ</translation>
    </message>
    <message>
        <source>A GigE Vision camera that this program plays itself</source>
        <translation>このプログラム自身が演じる GigE Vision カメラ</translation>
    </message>
    <message>
        <source>&amp;Try without hardware</source>
        <translation>ハードウェアなしで試す(&amp;T)</translation>
    </message>
    <message>
        <source>Opened by its address</source>
        <translation>アドレス指定で開いたカメラ</translation>
    </message>
    <message>
        <source>%1 (open)</source>
        <translation>%1 (使用中)</translation>
    </message>
    <message>
        <source>%1 (does not answer)</source>
        <translation>%1 (応答なし)</translation>
    </message>
    <message>
        <source>%1 (opening …)</source>
        <translation>%1 (開いています…)</translation>
    </message>
</context>
<context>
    <name>FeatureTablePane</name>
    <message>
        <source>Search names and descriptions</source>
        <translation>名前と説明を検索</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>機能を検索</translation>
    </message>
    <message>
        <source>Reading %1 features …</source>
        <translation>%1 個の機能を読み取っています…</translation>
    </message>
</context>
<context>
    <name>FeatureWritePane</name>
    <message>
        <source>&amp;Write</source>
        <translation>書き込む(&amp;W)</translation>
    </message>
    <message>
        <source>%1 written.</source>
        <translation>%1 に書き込みました。</translation>
    </message>
    <message>
        <source>%1 not written (code %2).</source>
        <translation>%1 に書き込めませんでした (コード %2)。</translation>
    </message>
    <message>
        <source>Feat&amp;ure:</source>
        <translation>機能(&amp;U):</translation>
    </message>
    <message>
        <source>V&amp;alue:</source>
        <translation>値(&amp;A):</translation>
    </message>
</context>
<context>
    <name>GenicamFinder</name>
    <message>
        <source>%1 %2, serial number %3, at %4 (%5)</source>
        <translation>%1 %2、シリアル番号 %3、アドレス %4 (%5)</translation>
    </message>
    <message>
        <source>The port of the camera without hardware is taken on this computer.</source>
        <translation>ハードウェアなしのカメラのポートは、このコンピューターで使用中です。</translation>
    </message>
</context>
<context>
    <name>GenicamSource</name>
    <message>
        <source>The stream does not start: %1</source>
        <translation>ストリームを開始できません: %1</translation>
    </message>
    <message>
        <source>%1 frames/s · %2 lost</source>
        <translation>%1 フレーム/秒 · 欠落 %2</translation>
    </message>
</context>
<context>
    <name>LivePane</name>
    <message>
        <source>%1 µs</source>
        <translation>%1 µs</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>1 region</source>
        <translation>領域 1 個</translation>
    </message>
    <message>
        <source>%1 regions</source>
        <translation>領域 %1 個</translation>
    </message>
    <message>
        <source>%1 × %2 at %3, %4</source>
        <translation>%1 × %2、位置 %3, %4</translation>
    </message>
    <message>
        <source>binning %1 × %2</source>
        <translation>ビニング %1 × %2</translation>
    </message>
    <message>
        <source>Sta&amp;rt</source>
        <translation>開始(&amp;R)</translation>
    </message>
    <message>
        <source>Sto&amp;p</source>
        <translation>停止(&amp;P)</translation>
    </message>
</context>
<context>
    <name>LivePicture</name>
    <message>
        <source>Live picture</source>
        <translation>ライブ画像</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>カメラは開かれていません。</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Feature access</source>
        <translation>機能アクセス</translation>
    </message>
    <message>
        <source>Multi-region</source>
        <translation>複数領域</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>カテゴリ %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Messages of the pages appear here.</source>
        <translation>ページのメッセージがここに表示されます。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Camera viewer</source>
        <translation>カメラビューアー</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>%1 を開けません: %2</translation>
    </message>
    <message>
        <source>%1 does not answer any more.</source>
        <translation>%1 が応答しなくなりました。</translation>
    </message>
    <message>
        <source>%1 answers again.</source>
        <translation>%1 が再び応答しています。</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on are presented as supported: the vendor&apos;s name is not the camera&apos;s own.</source>
        <translation>今後開くカメラは対応機種として扱われます。メーカー名はカメラ本来のものではありません。</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on tell their own vendor.</source>
        <translation>今後開くカメラは本来のメーカー名を示します。</translation>
    </message>
    <message>
        <source>%1 opened.</source>
        <translation>%1 を開きました。</translation>
    </message>
    <message>
        <source>%1 closed.</source>
        <translation>%1 を閉じました。</translation>
    </message>
    <message>
        <source>Open a camera to see its page.</source>
        <translation>カメラを開くと、そのページが表示されます。</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>ライブ画像</translation>
    </message>
    <message>
        <source>Camera features</source>
        <translation>カメラの機能</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Another client</source>
        <translation>別のクライアント</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Present cameras as supported</source>
        <translation>カメラを対応機種として扱う(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;First layout</source>
        <translation>最初のレイアウト(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>次のペイン(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous pane</source>
        <translation>前のペイン(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Dark colours</source>
        <translation>暗い配色(&amp;D)</translation>
    </message>
    <message>
        <source>Opening %1 …</source>
        <translation>%1 を開いています…</translation>
    </message>
    <message>
        <source>Building the page of %1 …</source>
        <translation>%1 のページを作成しています…</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>No page</source>
        <translation>ページなし</translation>
    </message>
    <message>
        <source>Preparing the last picture …</source>
        <translation>最後の画像を準備しています…</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>The module does not support this camera (result code %1).</source>
        <translation>モジュールはこのカメラに対応していません (結果コード %1)。</translation>
    </message>
    <message>
        <source>The module could not build a page for this camera (result code %1).</source>
        <translation>モジュールはこのカメラのページを作成できませんでした (結果コード %1)。</translation>
    </message>
    <message>
        <source>The module %1 cannot be loaded: %2</source>
        <translation>モジュール %1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>%1 is not a module for this viewer.</source>
        <translation>%1 はこのビューアー用のモジュールではありません。</translation>
    </message>
    <message>
        <source>The module failed: %1</source>
        <translation>モジュールでエラーが発生しました: %1</translation>
    </message>
    <message>
        <source>The module failed for an unknown reason.</source>
        <translation>原因不明のエラーがモジュールで発生しました。</translation>
    </message>
</context>
<context>
    <name>ScriptRunner</name>
    <message>
        <source>there is no widget %1</source>
        <translation>ウィジェット %1 はありません</translation>
    </message>
    <message>
        <source>%1 is not in the table</source>
        <translation>%1 は表にありません</translation>
    </message>
    <message>
        <source>no camera is open</source>
        <translation>カメラが開かれていません</translation>
    </message>
    <message>
        <source>%1 is not written (code %2)</source>
        <translation>%1 に書き込めません (コード %2)</translation>
    </message>
</context>
<context>
    <name>SimulatedModels</name>
    <message>
        <source>Standard camera, 5 megapixels</source>
        <translation>標準カメラ、500 万画素</translation>
    </message>
    <message>
        <source>All that a camera of today has</source>
        <translation>現在のカメラが備えるすべての機能</translation>
    </message>
    <message>
        <source>Standard camera, 20 megapixels</source>
        <translation>標準カメラ、2000 万画素</translation>
    </message>
    <message>
        <source>The same with a larger sensor</source>
        <translation>同じ機能で、より大きなセンサー</translation>
    </message>
    <message>
        <source>Standard camera, 150 megapixels</source>
        <translation>標準カメラ、1 億 5000 万画素</translation>
    </message>
    <message>
        <source>The same with the largest sensor</source>
        <translation>同じ機能で、最大のセンサー</translation>
    </message>
    <message>
        <source>Simple camera</source>
        <translation>単純なカメラ</translation>
    </message>
    <message>
        <source>No binning, no reversal, one region only</source>
        <translation>ビニングも反転もなく、領域は 1 個のみ</translation>
    </message>
    <message>
        <source>Older camera</source>
        <translation>旧型カメラ</translation>
    </message>
    <message>
        <source>Older feature names, binning without stages</source>
        <translation>旧い機能名、段階のないビニング</translation>
    </message>
    <message>
        <source>Camera of another maker</source>
        <translation>他メーカーのカメラ</translation>
    </message>
    <message>
        <source>The page refuses it</source>
        <translation>ページは対応しません</translation>
    </message>
    <message>
        <source>Camera without Height</source>
        <translation>Height のないカメラ</translation>
    </message>
    <message>
        <source>There is no region to edit</source>
        <translation>編集できる領域がありません</translation>
    </message>
    <message>
        <source>Camera with 400 features</source>
        <translation>400 個の機能を持つカメラ</translation>
    </message>
    <message>
        <source>A long table of camera features</source>
        <translation>カメラ機能の長い表</translation>
    </message>
    <message>
        <source>Colour camera</source>
        <translation>カラーカメラ</translation>
    </message>
    <message>
        <source>Bayer formats, a region that moves by single pixels</source>
        <translation>Bayer フォーマット、1 画素単位で動く領域</translation>
    </message>
    <message>
        <source>Camera with a coarse grid</source>
        <translation>粗い格子のカメラ</translation>
    </message>
    <message>
        <source>A region that moves in wide steps, which the sensor is no multiple of</source>
        <translation>センサーの約数でない大きな刻みで動く領域</translation>
    </message>
    <message>
        <source>Auto-function region</source>
        <translation>自動機能の領域</translation>
    </message>
    <message>
        <source>With switch and overlay, fine exposure limits</source>
        <translation>スイッチとオーバーレイ付き、細かい露光範囲</translation>
    </message>
    <message>
        <source>Auto-function region, gated</source>
        <translation>自動機能の領域、保護付き</translation>
    </message>
    <message>
        <source>The same, writable only while it is switched on</source>
        <translation>同じ機能、オンの間だけ変更可能</translation>
    </message>
    <message>
        <source>Auto-function region, plain</source>
        <translation>自動機能の領域、単純</translation>
    </message>
    <message>
        <source>Without switch and overlay</source>
        <translation>スイッチとオーバーレイなし</translation>
    </message>
    <message>
        <source>Auto-mode region</source>
        <translation>AutoMode 領域</translation>
    </message>
    <message>
        <source>Offset and size bound each other</source>
        <translation>オフセットとサイズが互いに制限し合う</translation>
    </message>
    <message>
        <source>Auto-mode region, fixed</source>
        <translation>AutoMode 領域、固定</translation>
    </message>
    <message>
        <source>Offset and size have fixed ranges</source>
        <translation>オフセットとサイズの範囲は固定</translation>
    </message>
    <message>
        <source>Auto-function region by edges</source>
        <translation>辺で指定する自動機能の領域</translation>
    </message>
    <message>
        <source>Left, top, right and bottom; no exposure time</source>
        <translation>左、上、右、下、露光時間なし</translation>
    </message>
    <message>
        <source>Auto-function and auto-mode region</source>
        <translation>自動機能と AutoMode の領域</translation>
    </message>
    <message>
        <source>Both kinds in one camera</source>
        <translation>1 台のカメラに両方の種類</translation>
    </message>
    <message>
        <source>Auto-function region by size and edges</source>
        <translation>サイズと辺で指定する自動機能の領域</translation>
    </message>
    <message>
        <source>Four regions</source>
        <translation>4 個の領域</translation>
    </message>
    <message>
        <source>Several regions in one picture</source>
        <translation>1 枚の画像に複数の領域</translation>
    </message>
    <message>
        <source>Six regions</source>
        <translation>6 個の領域</translation>
    </message>
    <message>
        <source>Four regions by number</source>
        <translation>番号で選ぶ 4 個の領域</translation>
    </message>
    <message>
        <source>The camera selects a region by a number</source>
        <translation>カメラは番号で領域を選択する</translation>
    </message>
    <message>
        <source>Two regions</source>
        <translation>2 個の領域</translation>
    </message>
    <message>
        <source>The fewest that make an arrangement</source>
        <translation>配置できる最小の数</translation>
    </message>
    <message>
        <source>Three regions</source>
        <translation>3 個の領域</translation>
    </message>
    <message>
        <source>The older name of the regions&apos; switch</source>
        <translation>領域スイッチの旧い名前</translation>
    </message>
    <message>
        <source>256 regions by number</source>
        <translation>番号で選ぶ 256 個の領域</translation>
    </message>
    <message>
        <source>The most that a camera may have</source>
        <translation>1 台のカメラが持てる最大の数</translation>
    </message>
    <message>
        <source>Older camera with four regions</source>
        <translation>4 個の領域を持つ旧型カメラ</translation>
    </message>
    <message>
        <source>The older names OffsetX and Width</source>
        <translation>旧い名前 OffsetX と Width</translation>
    </message>
</context>
<context>
    <name>UserInput</name>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 は表示されていません</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 は無効です</translation>
    </message>
    <message>
        <source>%1 does not take the value &apos;%2&apos;</source>
        <translation>%1 に値「%2」は設定できません</translation>
    </message>
    <message>
        <source>there is no tab &apos;%1&apos;</source>
        <translation>タブ「%1」はありません</translation>
    </message>
</context>
<context>
    <name>ViewerOptions</name>
    <message>
        <source>There is no camera &apos;%1&apos;; --list-cameras names them.</source>
        <translation>カメラ「%1」はありません。--list-cameras で一覧を表示します。</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>%1 に書き込めません。</translation>
    </message>
    <message>
        <source>Click a widget; in a dialog, the button of this text.</source>
        <translation>ウィジェットをクリックする。ダイアログではこの文字のボタン。</translation>
    </message>
    <message>
        <source>Set a spin box, choice, check box or field as a user would.</source>
        <translation>数値、選択肢、チェックボックス、入力欄をユーザーのように設定する。</translation>
    </message>
    <message>
        <source>Open the editor of a feature in the table of camera features.</source>
        <translation>カメラ機能の表で機能のエディターを開く。</translation>
    </message>
    <message>
        <source>Write a feature as another client of the camera.</source>
        <translation>カメラの別のクライアントとして機能に書き込む。</translation>
    </message>
    <message>
        <source>Start streaming.</source>
        <translation>ストリームを開始する。</translation>
    </message>
    <message>
        <source>Stop streaming.</source>
        <translation>ストリームを停止する。</translation>
    </message>
    <message>
        <source>Close the camera.</source>
        <translation>カメラを閉じる。</translation>
    </message>
    <message>
        <source>Wait, with the window alive.</source>
        <translation>ウィンドウを動かしたまま待つ。</translation>
    </message>
    <message>
        <source>Opens simulated cameras and shows the module&apos;s page for them.
Actions (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) may be given several times; they are carried out in the order given, then the screenshot is written.</source>
        <translation>シミュレートされたカメラを開き、モジュールのページを表示します。
アクション (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) は複数指定でき、指定した順に実行された後、スクリーンショットが書き込まれます。</translation>
    </message>
    <message>
        <source>List the cameras and end; where built with GenICam cameras, those found as well.</source>
        <translation>カメラを一覧表示して終了する。GenICam 対応のビルドでは検出されたものも含む。</translation>
    </message>
    <message>
        <source>Open this camera: NAME of the list, NAME+N with N features more, or genicam:ADDRESS.</source>
        <translation>このカメラを開く: 一覧の NAME、機能を N 個追加した NAME+N、または genicam:ADDRESS。</translation>
    </message>
    <message>
        <source>Load the module from this file instead of plugins/ beside the program.</source>
        <translation>プログラムの隣の plugins/ ではなく、このファイルからモジュールを読み込む。</translation>
    </message>
    <message>
        <source>Size of the window; with it, nothing is remembered.</source>
        <translation>ウィンドウのサイズ。指定すると何も記憶されない。</translation>
    </message>
    <message>
        <source>Tell the page a vendor that it supports, whoever made the camera.</source>
        <translation>カメラのメーカーにかかわらず、対応メーカーをページに伝える。</translation>
    </message>
    <message>
        <source>Take this language for the system&apos;s: de, fr, ja, zh_CN, or en.</source>
        <translation>この言語をシステムの言語とする: de、fr、ja、zh_CN、en。</translation>
    </message>
    <message>
        <source>Use dark colours.</source>
        <translation>暗い配色を使う。</translation>
    </message>
    <message>
        <source>Write a picture of the window to this PNG file and end.</source>
        <translation>ウィンドウの画像をこの PNG ファイルに書き込んで終了する。</translation>
    </message>
    <message>
        <source>Report actions that cannot be done and go on.</source>
        <translation>実行できないアクションを報告して続行する。</translation>
    </message>
    <message>
        <source>End after so many milliseconds.</source>
        <translation>指定したミリ秒後に終了する。</translation>
    </message>
    <message>
        <source>--size takes a width and a height, as in 1400x900.</source>
        <translation>--size には 1400x900 のように幅と高さを指定します。</translation>
    </message>
    <message>
        <source>--quit-after takes a number of milliseconds.</source>
        <translation>--quit-after にはミリ秒数を指定します。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>予期しない引数「%1」です。</translation>
    </message>
    <message>
        <source>Select the tab of this text, or of the page of this object name.</source>
        <translation>この文字のタブ、またはこのオブジェクト名のページのタブを選ぶ。</translation>
    </message>
</context>
<context>
    <name>WorkNotice</name>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
</TS>
