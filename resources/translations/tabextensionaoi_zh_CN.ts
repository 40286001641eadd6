<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AOIWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
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
        <translation>区域</translation>
    </message>
    <message>
        <source>OffsetX: </source>
        <translation>X 偏移： </translation>
    </message>
    <message>
        <source>OffsetY: </source>
        <translation>Y 偏移： </translation>
    </message>
    <message>
        <source>Width: </source>
        <translation>宽度： </translation>
    </message>
    <message>
        <source>Height: </source>
        <translation>高度： </translation>
    </message>
    <message>
        <source>Full</source>
        <translation>全部</translation>
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
        <translation>设置无效： </translation>
    </message>
    <message>
        <source>ROI</source>
        <translation>ROI</translation>
    </message>
    <message>
        <source>&apos;%1&apos; widget cannot be used if &apos;MultipleRegionsEnabled&apos; is on.</source>
        <translation>“MultipleRegionsEnabled”开启时无法使用“%1”页面。</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>设置无效： </translation>
    </message>
    <message>
        <source>
	OffsetX + Width &gt; Maximum Width! </source>
        <translation>
	X 偏移 + 宽度 &gt; 最大宽度！ </translation>
    </message>
    <message>
        <source>
	OffsetY + Height &gt; Maximum Height! </source>
        <translation>
	Y 偏移 + 高度 &gt; 最大高度！ </translation>
    </message>
</context>
</TS>
