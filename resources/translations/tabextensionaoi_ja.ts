<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>AOIWidget</name>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>AOI</source>
        <translation>AOI</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>領域</translation>
    </message>
    <message>
        <source>OffsetX: </source>
        <translation>オフセット X: </translation>
    </message>
    <message>
        <source>OffsetY: </source>
        <translation>オフセット Y: </translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>幅: </translation>
    </message>
    <message>
        <source>Height: </source>
        <translation>高さ: </translation>
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
        <source>Invalid Settings: </source>
        <translation>無効な設定: </translation>
    </message>
    <message>
        <source>ROI</source>
        <translation>ROI</translation>
    </message>
    <message>
        <source>&apos;%1&apos; widget cannot be used if &apos;MultipleRegionsEnabled&apos; is on.</source>
        <translation>「MultipleRegionsEnabled」がオンの間は「%1」ページを使用できません。</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>無効な設定: </translation>
    </message>
    <message>
        <source>
	OffsetX + Width &gt; Maximum Width! </source>
        <translation>
	オフセット X + 幅 &gt; 最大幅! </translation>
    </message>
    <message>
        <source>
	OffsetY + Height &gt; Maximum Height! </source>
        <translation>
	オフセット Y + 高さ &gt; 最大高さ! </translation>
    </message>
</context>
</TS>
