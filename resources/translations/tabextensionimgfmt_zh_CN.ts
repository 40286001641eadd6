<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BaseTabPluginWidget</name>
    <message>
        <source>Vendor not supported for plugins, widget not created.</source>
        <translation>插件不支持该厂商，未创建页面。</translation>
    </message>
    <message>
        <source>The camera does not answer. The page shows its last known settings.</source>
        <translation>相机没有响应。页面显示其最后已知的设置。</translation>
    </message>
</context>
<context>
    <name>CommandEditor</name>
    <message>
        <source>Execute</source>
        <translation>执行</translation>
    </message>
    <message>
        <source>Execute %1</source>
        <translation>执行 %1</translation>
    </message>
</context>
<context>
    <name>FeaturesTableWidget</name>
    <message>
        <source>Feature Name</source>
        <translation>功能名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Selected features:</source>
        <translation>所选功能：</translation>
    </message>
    <message>
        <source>Saving feature &apos;%1&apos; to value=%2 failed.</source>
        <translation>无法将功能“%1”设为 %2。</translation>
    </message>
</context>
<context>
    <name>ImageFormatWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Image Format: </source>
        <translation>图像格式： </translation>
    </message>
    <message>
        <source>Pixel Format: </source>
        <translation>像素格式： </translation>
    </message>
    <message>
        <source>Binning Selector: </source>
        <translation>像素合并选择： </translation>
    </message>
    <message>
        <source>Horizontal Mode: </source>
        <translation>水平模式： </translation>
    </message>
    <message>
        <source>Binning Horizontal: </source>
        <translation>水平像素合并： </translation>
    </message>
    <message>
        <source>Vertical Mode: </source>
        <translation>垂直模式： </translation>
    </message>
    <message>
        <source>Binning Vertical: </source>
        <translation>垂直像素合并： </translation>
    </message>
    <message>
        <source>Reverse X: </source>
        <translation>X 翻转： </translation>
    </message>
    <message>
        <source>Reverse Y: </source>
        <translation>Y 翻转： </translation>
    </message>
    <message>
        <source>Select Image for ROI: </source>
        <translation>选择 ROI 图像： </translation>
    </message>
    <message>
        <source>Camera does not support color interpolation matrix, widget not created</source>
        <translation>相机不支持颜色插值矩阵，未创建页面</translation>
    </message>
    <message>
        <source>Image Format</source>
        <translation>图像格式</translation>
    </message>
    <message>
        <source>Error accessing widget &apos;%s&apos;</source>
        <translation>访问控件“%s”时出错</translation>
    </message>
    <message>
        <source>Feature &apos;%1&apos; is not available in the camera.</source>
        <translation>相机不支持功能“%1”。</translation>
    </message>
    <message>
        <source>Picture &apos;%1&apos; cannot be used: %2</source>
        <translation>无法使用图片“%1”：%2</translation>
    </message>
    <message>
        <source>It is no file.</source>
        <translation>这不是文件。</translation>
    </message>
    <message>
        <source>It is too large.</source>
        <translation>图片过大。</translation>
    </message>
</context>
<context>
    <name>MultiROIWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>WARNING</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>MultipleRegionEnable: </source>
        <translation>启用多区域： </translation>
    </message>
    <message>
        <source>Select Mode: </source>
        <translation>选择模式： </translation>
    </message>
    <message>
        <source>Load Defaults</source>
        <translation>加载默认值</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>区域</translation>
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
        <translation>加载默认配置</translation>
    </message>
    <message>
        <source>Overwrite the current region settings?</source>
        <translation>要覆盖当前的区域设置吗？</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of the whole %2.</source>
        <translation>当前选择的排列模式“%1”要求停用整%2。</translation>
    </message>
    <message>
        <source>Deactivate Region</source>
        <translation>停用区域</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;%1&apos; requires deactivation of all subsequent regions.</source>
        <translation>当前选择的排列模式“%1”要求停用所有后续区域。</translation>
    </message>
    <message>
        <source>Currently selected Arrangement Mode &apos;Tile&apos; requires deactivation of either a row or a column.
What would you deactivate?</source>
        <translation>当前选择的排列模式“Tile”要求停用一行或一列。
要停用哪一项？</translation>
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
        <translation>取消</translation>
    </message>
    <message>
        <source>Arrangement Mode &apos;%1&apos; requires activation of the whole %2.</source>
        <translation>排列模式“%1”要求启用整%2。</translation>
    </message>
    <message>
        <source>Activate Region</source>
        <translation>启用区域</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings for %2 regions available.</source>
        <translation>未知的排列模式“%1”，没有适用于 %2 个区域的默认设置。</translation>
    </message>
    <message>
        <source>Unknown Arrangement Mode &apos;%1&apos;, no default settings available.</source>
        <translation>未知的排列模式“%1”，没有默认设置。</translation>
    </message>
    <message>
        <source>Multi ROI</source>
        <translation>多 ROI</translation>
    </message>
    <message>
        <source>The camera names %1 regions; the first %2 are shown.</source>
        <translation>相机有 %1 个区域，仅显示前 %2 个。</translation>
    </message>
    <message>
        <source>Region%1</source>
        <translation>区域%1</translation>
    </message>
    <message>
        <source>SubRegion: %1, Saving feature &apos;%2&apos; to value=%3 failed.</source>
        <translation>区域%1：无法将功能“%2”设为 %3。</translation>
    </message>
    <message>
        <source>Multi ROI widget cannot be used in combination with Binning or ReverseX/Y.</source>
        <translation>“多 ROI”页面不能与像素合并或翻转（ReverseX/Y）同时使用。</translation>
    </message>
    <message>
        <source>Region%1 cannot be activated into a valid configuration due to the minimum size.</source>
        <translation>由于最小尺寸的限制，无法在有效配置中启用区域%1。</translation>
    </message>
    <message>
        <source>Regions must be activated continuously, ascending from Region0.</source>
        <translation>必须从区域0开始按升序连续启用区域。</translation>
    </message>
    <message>
        <source>Regions must share a common line space (activate all preceding regions first).</source>
        <translation>各区域必须共用同一行范围（请先启用前面的所有区域）。</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = &apos;%1&apos; failed!</source>
        <translation>无法设置“SubRegionSelector”=“%1”！</translation>
    </message>
    <message>
        <source>Set &apos;SubRegionSelector&apos; = %1 failed!</source>
        <translation>无法设置“SubRegionSelector”= %1！</translation>
    </message>
</context>
<context>
    <name>RegionLabelWidget</name>
    <message>
        <source>Form</source>
        <translation>窗体</translation>
    </message>
    <message>
        <source>Region-ID, position and size:
  ID   ( X , Y )
        Width x Height
</source>
        <translation>区域 ID、位置和尺寸：
  ID   ( X , Y )
        宽度 x 高度
</translation>
    </message>
</context>
<context>
    <name>RegionTableWidget</name>
    <message>
        <source>tblFeatures.data(%1) cannot be converted to FeatureInfo: %2</source>
        <translation>tblFeatures.data(%1) 无法转换为 FeatureInfo：%2</translation>
    </message>
</context>
</TS>
