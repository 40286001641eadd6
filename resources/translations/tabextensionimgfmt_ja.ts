<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BaseTabPluginWidget</name>
    <message>
        <source>Vendor not supported for plugins, widget not created.</source>
        <translation>このメーカーはプラグインの対象外のため、ページは作成されませんでした。</translation>
    </message>
    <message>
        <source>The camera does not answer. The page shows its last known settings.</source>
        <translation>カメラが応答しません。ページには最後に確認された設定が表示されています。</translation>
    </message>
</context>
<context>
    <name>CommandEditor</name>
    <message>
        <source>Execute</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>Execute %1</source>
        <translation>%1 を実行</translation>
    </message>
</context>
<context>
    <name>FeaturesTableWidget</name>
    <message>
        <source>Feature Name</source>
        <translation>機能名</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Selected features:</source>
        <translation>選択される機能:</translation>
    </message>
    <message>
        <source>Saving feature &apos;%1&apos; to value=%2 failed.</source>
        <translation>機能「%1」に値 %2 を設定できませんでした。</translation>
    </message>
</context>
<context>
    <name>ImageFormatWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Image Format: </source>
        <translation>画像フォーマット: </translation>
    </message>
    <message>
        <source>Pixel Format: </source>
        <translation>ピクセルフォーマット: </translation>
    </message>
    <message>
        <source>Binning Selector: </source>
        <translation>ビニングセレクター: </translation>
    </message>
    <message>
        <source>Horizontal Mode: </source>
        <translation>水平モード: </translation>
    </message>
    <message>
        <source>Binning Horizontal: </source>
        <translation>水平ビニング: </translation>
    </message>
    <message>
        <source>Vertical Mode: </source>
        <translation>垂直モード: </translation>
    </message>
    <message>
        <source>Binning Vertical: </source>
        <translation>垂直ビニング: </translation>
    </message>
    <message>
        <source>Reverse X: </source>
        <translation>X 反転: </translation>
    </message>
    <message>
        <source>Reverse Y: </source>
        <translation>Y 反転: </translation>
    </message>
    <message>
        <source>Select Image for ROI: </source>
        <translation>ROI 用の画像を選択: </translation>
    </message>
    <message>
        <source>Camera does not support color interpolation matrix, widget not created</source>
        <translation>カメラが色補間マトリックスに対応していないため、ページは作成されませんでした</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>画像フォーマット</translation>
    </message>
    <message>
        <source>Error accessing widget &apos;%s&apos;</source>
        <translation>ウィジェット「%s」へのアクセスに失敗しました</translation>
    </message>
    <message>
        <source>Feature &apos;%1&apos; is not available in the camera.</source>
        <translation>カメラに機能「%1」はありません。</translation>
    </message>
    <message>
        <source>Picture &apos;%1&apos; cannot be used: %2</source>
        <translation>画像「%1」は使用できません: %2</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>ファイルではありません。</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>大きすぎます。</translation>
    </message>
</context>
<context>
    <name>MultiROIWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>MultipleRegionEnable: </source>
        <translation>複数領域を有効にする: </translation>
    </message>
    <message>
        <source>Select Mode: </source>
        <translation>モードを選択: </translation>
    </message>
    <message>
        <source>Load Defaults</source>
        <translation>デフォルト値を読み込む</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Load Default Configuration</source>
        <translation>デフォルト設定を読み込む</translation>
    </message>
    <message>
        <source>Overwrite the current region settings?</source>
        <translation>現在の領域の設定を上書きしますか?</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of the whole %2.</source>
        <translation>選択中の配置モード「%1」では、%2全体を無効にする必要があります。</translation>
    </message>
    <message>
        <source>Deactivate Region</source>
        <translation>領域を無効にする</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of all subsequent regions.</source>
        <translation>選択中の配置モード「%1」では、後続の領域をすべて無効にする必要があります。</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;Tile&apos; requires deactivation of either a row or a column.
What would you deactivate?</source>
        <translation>選択中の配置モード「Tile」では、行または列のいずれかを無効にする必要があります。
どちらを無効にしますか?</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Arrangement Mode &apos;%1&apos; requires activation of the whole %2.</source>
        <translation>配置モード「%1」では、%2全体を有効にする必要があります。</translation>
    </message>
    <message>
        <source>Activate Region</source>
        <translation>領域を有効にする</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings for %2 regions available.</source>
        <translation>不明な配置モード「%1」です。%2 個の領域に対するデフォルト値はありません。</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings available.</source>
        <translation>不明な配置モード「%1」です。デフォルト値はありません。</translation>
    </message>
    <message>
        <source>Multi ROI</source>
        <translation>マルチROI</translation>
    </message>
    <message>
        <source>The camera names %1 regions; the first %2 are shown.</source>
        <translation>カメラには %1 個の領域があります。最初の %2 個を表示します。</translation>
    </message>
    <message>
        <source>Region%1</source>
        <translation>領域%1</translation>
    </message>
    <message>
        <source>SubRegion: %1, Saving feature &apos;%2&apos; to value=%3 failed.</source>
        <translation>領域%1: 機能「%2」に値 %3 を設定できませんでした。</translation>
    </message>
    <message>
        <source>Multi ROI widget cannot be used in combination with Binning or ReverseX/Y.</source>
        <translation>「マルチROI」ページは、ビニングまたは反転 (ReverseX/Y) と併用できません。</translation>
    </message>
    <message>
        <source>Region%1 cannot be activated into a valid configuration due to the minimum size.</source>
        <translation>最小サイズの制約により、領域%1を有効にすると正しい構成になりません。</translation>
    </message>
    <message>
        <source>Regions must be activated continuously, ascending from Region0.</source>
        <translation>領域は、領域0から昇順に連続して有効にする必要があります。</translation>
    </message>
    <message>
        <source>Regions must share a common line space (activate all preceding regions first).</source>
        <translation>領域は共通のライン範囲を持つ必要があります (先に前の領域をすべて有効にしてください)。</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = &apos;%1&apos; failed!</source>
        <translation>「SubRegionSelector」=「%1」を設定できませんでした!</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = %1 failed!</source>
        <translation>「SubRegionSelector」= %1 を設定できませんでした!</translation>
    </message>
</context>
<context>
    <name>RegionLabelWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Region-ID, position and size:
  ID   ( X , Y )
        Width x Height
</source>
        <translation>領域ID、位置、サイズ:
  ID   ( X , Y )
        幅 x 高さ
</translation>
    </message>
</context>
<context>
    <name>RegionTableWidget</name>
    <message>
        <source>tblFeatures.data(%1) cannot be converted to FeatureInfo: %2</source>
        <translation>tblFeatures.data(%1) を FeatureInfo に変換できません: %2</translation>
    </message>
</context>
</TS>
