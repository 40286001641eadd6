<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AutoROIWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>Autofunction AOI</source>
        <translation>自動機能AOI</translation>
    </message>
    <message>
        <source>Intensity Controller Region:</source>
        <translation>輝度制御の領域:</translation>
    </message>
    <message>
        <source>Enable AutoMode:</source>
        <translation>AutoMode を有効にする:</translation>
    </message>
    <message>
        <source>Show Area:</source>
        <translation>領域を表示:</translation>
    </message>
    <message>
        <source>AutoMode Region</source>
        <translation>AutoMode 領域</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>オフセット X:</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右:</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>オフセット Y:</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>下:</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Invalid settings:</source>
        <translation>無効な設定:</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>1/4</source>
        <translation>1/4</translation>
    </message>
    <message>
        <source>1/16</source>
        <translation>1/16</translation>
    </message>
    <message>
        <source>Exposure Auto</source>
        <translation>自動露光</translation>
    </message>
    <message>
        <source>Min:</source>
        <translation>最小:</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>現在値</translation>
    </message>
    <message>
        <source>Timebase:</source>
        <translation>タイムベース:</translation>
    </message>
    <message>
        <source>Max:</source>
        <translation>最大:</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>無効な設定: </translation>
    </message>
    <message>
        <source>Autofunction ROI</source>
        <translation>自動機能ROI</translation>
    </message>
    <message>
        <source>Invalid settings:
Height + OffsetY &gt; %1 Height</source>
        <translation>無効な設定:
高さ + オフセット Y &gt; %1 の高さ</translation>
    </message>
    <message>
        <source>Invalid settings:
Width + OffsetX &gt; %1 Width</source>
        <translation>無効な設定:
幅 + オフセット X &gt; %1 の幅</translation>
    </message>
    <message>
        <source>AutoMode ROI</source>
        <translation>AutoMode ROI</translation>
    </message>
    <message>
        <source>DSPSubregion</source>
        <translation>DSPサブ領域</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>上:</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左:</translation>
    </message>
    <message>
        <source>
Top &gt; Bottom! </source>
        <translation>
上 &gt; 下! </translation>
    </message>
    <message>
        <source>
Top &gt; ROI Height! </source>
        <translation>
上 &gt; ROI の高さ! </translation>
    </message>
    <message>
        <source>
Bottom &gt; ROI Height! </source>
        <translation>
下 &gt; ROI の高さ! </translation>
    </message>
    <message>
        <source>Left &gt; Right! </source>
        <translation>左 &gt; 右! </translation>
    </message>
    <message>
        <source>Left &gt; ROI Width! </source>
        <translation>左 &gt; ROI の幅! </translation>
    </message>
    <message>
        <source>Right &gt; ROI Width! </source>
        <translation>右 &gt; ROI の幅! </translation>
    </message>
</context>
</TS>
