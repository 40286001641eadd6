<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AutoROIWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Autofunction AOI</source>
        <translation>自动功能 AOI</translation>
    </message>
    <message>
        <source>Intensity Controller Region:</source>
        <translation>亮度控制区域：</translation>
    </message>
    <message>
        <source>Enable AutoMode:</source>
        <translation>启用 AutoMode：</translation>
    </message>
    <message>
        <source>Show Area:</source>
        <translation>显示区域：</translation>
    </message>
    <message>
        <source>AutoMode Region</source>
        <translation>AutoMode 区域</translation>
    </message>
    <message>
        <source>OffsetX:</source>
        <translation>X 偏移：</translation>
    </message>
    <message>
        <source>Right:</source>
        <translation>右：</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>OffsetY:</source>
        <translation>Y 偏移：</translation>
    </message>
    <message>
        <source>Bottom:</source>
        <translation>下：</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>Invalid settings:</source>
        <translation>设置无效：</translation>
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
        <source>Exposure Auto</source>
        <translation>自动曝光</translation>
    </message>
    <message>
        <source>Min:</source>
        <translation>最小值：</translation>
    </message>
    <message>
        <source>Current</source>
        <translation>当前值</translation>
    </message>
    <message>
        <source>Timebase:</source>
        <translation>时基：</translation>
    </message>
    <message>
        <source>Max:</source>
        <translation>最大值：</translation>
    </message>
    <message>
        <source>Invalid settings: </source>
        <translation>设置无效： </translation>
    </message>
    <message>
        <source>Autofunction ROI</source>
        <translation>自动功能 ROI</translation>
    </message>
    <message>
        <source>Invalid settings:
Height + OffsetY &gt; %1 Height</source>
        <translation>设置无效：
高度 + Y 偏移 &gt; %1 高度</translation>
    </message>
    <message>
        <source>Invalid settings:
Width + OffsetX &gt; %1 Width</source>
        <translation>设置无效：
宽度 + X 偏移 &gt; %1 宽度</translation>
    </message>
    <message>
        <source>AutoMode ROI</source>
        <translation>AutoMode ROI</translation>
    </message>
    <message>
        <source>DSPSubregion</source>
        <translation>DSP 子区域</translation>
    </message>
    <message>
        <source>Top:</source>
        <translation>上：</translation>
    </message>
    <message>
        <source>Left:</source>
        <translation>左：</translation>
    </message>
    <message>
        <source>
Top &gt; Bottom! </source>
        <translation>
上 &gt; 下！ </translation>
    </message>
    <message>
        <source>
Top &gt; ROI Height! </source>
        <translation>
上 &gt; ROI 高度！ </translation>
    </message>
    <message>
        <source>
Bottom &gt; ROI Height! </source>
        <translation>
下 &gt; ROI 高度！ </translation>
    </message>
    <message>
        <source>Left &gt; Right! </source>
        <translation>左 &gt; 右！ </translation>
    </message>
    <message>
        <source>Left &gt; ROI Width! </source>
        <translation>左 &gt; ROI 宽度！ </translation>
    </message>
    <message>
        <source>Right &gt; ROI Width! </source>
        <translation>右 &gt; ROI 宽度！ </translation>
    </message>
</context>
</TS>
