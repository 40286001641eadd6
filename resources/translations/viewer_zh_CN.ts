<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CameraListPane</name>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>Search names and descriptions</source>
        <translation>搜索名称和说明</translation>
    </message>
    <message>
        <source>Search cameras</source>
        <translation>搜索相机</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>%1
On the command line: --camera %2</source>
        <translation>%1
命令行：--camera %2</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>搜索(&amp;S)</translation>
    </message>
    <message>
        <source>Looks for cameras on the network and the USB bus.</source>
        <translation>在网络和 USB 总线上搜索相机。</translation>
    </message>
    <message>
        <source>GigE camera without hardware</source>
        <translation>无硬件的 GigE 相机</translation>
    </message>
    <message>
        <source>A GigE Vision camera that this program plays itself</source>
        <translation>由本程序模拟的 GigE Vision 相机</translation>
    </message>
    <message>
        <source>&amp;Try without hardware</source>
        <translation>无硬件试用(&amp;T)</translation>
    </message>
    <message>
        <source>Opened by its address</source>
        <translation>通过地址打开</translation>
    </message>
    <message>
        <source>%1 (open)</source>
        <translation>%1（已打开）</translation>
    </message>
    <message>
        <source>%1 (does not answer)</source>
        <translation>%1（无响应）</translation>
    </message>
    <message>
        <source>%1 (opening …)</source>
        <translation>%1（正在打开…）</translation>
    </message>
</context>
<context>
    <name>FeatureTablePane</name>
    <message>
        <source>Search names and descriptions</source>
        <translation>搜索名称和说明</translation>
    </message>
    <message>
        <source>Search features</source>
        <translation>搜索功能</translation>
    </message>
    <message>
        <source>Reading %1 features …</source>
        <translation>正在读取 %1 个功能…</translation>
    </message>
</context>
<context>
    <name>FeatureWritePane</name>
    <message>
        <source>&amp;Write</source>
        <translation>写入(&amp;W)</translation>
    </message>
    <message>
        <source>%1 written.</source>
        <translation>已写入 %1。</translation>
    </message>
    <message>
        <source>%1 not written (code %2).</source>
        <translation>未能写入 %1（代码 %2）。</translation>
    </message>
    <message>
        <source>Feat&amp;ure:</source>
        <translation>功能(&amp;U)：</translation>
    </message>
    <message>
        <source>V&amp;alue:</source>
        <translation>值(&amp;A)：</translation>
    </message>
</context>
<context>
    <name>GenicamFinder</name>
    <message>
        <source>%1 %2, serial number %3, at %4 (%5)</source>
        <translation>%1 %2，序列号 %3，地址 %4（%5）</translation>
    </message>
    <message>
        <source>The port of the camera without hardware is taken on this computer.</source>
        <translation>无硬件相机的端口在此计算机上已被占用。</translation>
    </message>
</context>
<context>
    <name>GenicamSource</name>
    <message>
        <source>The stream does not start: %1</source>
        <translation>无法启动图像流：%1</translation>
    </message>
    <message>
        <source>%1 frames/s · %2 lost</source>
        <translation>%1 帧/秒 · 丢失 %2</translation>
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
        <translation>1 个区域</translation>
    </message>
    <message>
        <source>%1 regions</source>
        <translation>%1 个区域</translation>
    </message>
    <message>
        <source>%1 × %2 at %3, %4</source>
        <translation>%1 × %2，位于 %3, %4</translation>
    </message>
    <message>
        <source>binning %1 × %2</source>
        <translation>像素合并 %1 × %2</translation>
    </message>
    <message>
        <source>Sta&amp;rt</source>
        <translation>启动(&amp;R)</translation>
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
        <translation>实时图像</translation>
    </message>
    <message>
        <source>No camera is open.</source>
        <translation>未打开相机。</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Feature access</source>
        <translation>功能访问</translation>
    </message>
    <message>
        <source>Multi-region</source>
        <translation>多区域</translation>
    </message>
    <message>
        <source>Category %1</source>
        <translation>类别 %1</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Messages of the pages appear here.</source>
        <translation>页面的消息显示在此处。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Camera viewer</source>
        <translation>相机查看器</translation>
    </message>
    <message>
        <source>%1 cannot be opened: %2</source>
        <translation>无法打开 %1：%2</translation>
    </message>
    <message>
        <source>%1 does not answer any more.</source>
        <translation>%1 不再响应。</translation>
    </message>
    <message>
        <source>%1 answers again.</source>
        <translation>%1 已恢复响应。</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on are presented as supported: the vendor&apos;s name is not the camera&apos;s own.</source>
        <translation>此后打开的相机将作为受支持的相机呈现：厂商名称并非相机自身的名称。</translation>
    </message>
    <message>
        <source>Cameras that are opened from now on tell their own vendor.</source>
        <translation>此后打开的相机将显示其自身的厂商。</translation>
    </message>
    <message>
        <source>%1 opened.</source>
        <translation>已打开 %1。</translation>
    </message>
    <message>
        <source>%1 closed.</source>
        <translation>已关闭 %1。</translation>
    </message>
    <message>
        <source>Open a camera to see its page.</source>
        <translation>打开相机以查看其页面。</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>实时图像</translation>
    </message>
    <message>
        <source>Camera features</source>
        <translation>相机功能</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Another client</source>
        <translation>其他客户端</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Present cameras as supported</source>
        <translation>将相机作为受支持的相机呈现(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;First layout</source>
        <translation>初始布局(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Next pane</source>
        <translation>下一个窗格(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous pane</source>
        <translation>上一个窗格(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Dark colours</source>
        <translation>深色配色(&amp;D)</translation>
    </message>
    <message>
        <source>Opening %1 …</source>
        <translation>正在打开 %1…</translation>
    </message>
    <message>
        <source>Building the page of %1 …</source>
        <translation>正在创建 %1 的页面…</translation>
    </message>
</context>
<context>
    <name>PageHost</name>
    <message>
        <source>No page</source>
        <translation>无页面</translation>
    </message>
    <message>
        <source>Preparing the last picture …</source>
        <translation>正在准备最后一幅图像…</translation>
    </message>
</context>
<context>
    <name>PluginHost</name>
    <message>
        <source>The module does not support this camera (result code %1).</source>
        <translation>模块不支持此相机（结果代码 %1）。</translation>
    </message>
    <message>
        <source>The module could not build a page for this camera (result code %1).</source>
        <translation>模块无法为此相机创建页面（结果代码 %1）。</translation>
    </message>
    <message>
        <source>The module %1 cannot be loaded: %2</source>
        <translation>无法加载模块 %1：%2</translation>
    </message>
    <message>
        <source>%1 is not a module for this viewer.</source>
        <translation>%1 不是适用于此查看器的模块。</translation>
    </message>
    <message>
        <source>The module failed: %1</source>
        <translation>模块出错：%1</translation>
    </message>
    <message>
        <source>The module failed for an unknown reason.</source>
        <translation>模块因未知原因出错。</translation>
    </message>
</context>
<context>
    <name>ScriptRunner</name>
    <message>
        <source>there is no widget %1</source>
        <translation>没有控件 %1</translation>
    </message>
    <message>
        <source>%1 is not in the table</source>
        <translation>%1 不在表中</translation>
    </message>
    <message>
        <source>no camera is open</source>
        <translation>未打开相机</translation>
    </message>
    <message>
        <source>%1 is not written (code %2)</source>
        <translation>未写入 %1（代码 %2）</translation>
    </message>
</context>
<context>
    <name>SimulatedModels</name>
    <message>
        <source>Standard camera, 5 megapixels</source>
        <translation>标准相机，500 万像素</translation>
    </message>
    <message>
        <source>All that a camera of today has</source>
        <translation>具备当今相机的全部功能</translation>
    </message>
    <message>
        <source>Standard camera, 20 megapixels</source>
        <translation>标准相机，2000 万像素</translation>
    </message>
    <message>
        <source>The same with a larger sensor</source>
        <translation>功能相同，传感器更大</translation>
    </message>
    <message>
        <source>Standard camera, 150 megapixels</source>
        <translation>标准相机，1.5 亿像素</translation>
    </message>
    <message>
        <source>The same with the largest sensor</source>
        <translation>功能相同，传感器最大</translation>
    </message>
    <message>
        <source>Simple camera</source>
        <translation>简单相机</translation>
    </message>
    <message>
        <source>No binning, no reversal, one region only</source>
        <translation>无像素合并，无翻转，仅一个区域</translation>
    </message>
    <message>
        <source>Older camera</source>
        <translation>旧式相机</translation>
    </message>
    <message>
        <source>Older feature names, binning without stages</source>
        <translation>旧功能名称，像素合并不分级</translation>
    </message>
    <message>
        <source>Camera of another maker</source>
        <translation>其他厂商的相机</translation>
    </message>
    <message>
        <source>The page refuses it</source>
        <translation>页面不接受</translation>
    </message>
    <message>
        <source>Camera without Height</source>
        <translation>没有 Height 的相机</translation>
    </message>
    <message>
        <source>There is no region to edit</source>
        <translation>没有可编辑的区域</translation>
    </message>
    <message>
        <source>Camera with 400 features</source>
        <translation>具有 400 个功能的相机</translation>
    </message>
    <message>
        <source>A long table of camera features</source>
        <translation>很长的相机功能表</translation>
    </message>
    <message>
        <source>Colour camera</source>
        <translation>彩色相机</translation>
    </message>
    <message>
        <source>Bayer formats, a region that moves by single pixels</source>
        <translation>Bayer 格式，区域可逐像素移动</translation>
    </message>
    <message>
        <source>Camera with a coarse grid</source>
        <translation>粗网格相机</translation>
    </message>
    <message>
        <source>A region that moves in wide steps, which the sensor is no multiple of</source>
        <translation>区域以大步长移动，传感器尺寸不是其整数倍</translation>
    </message>
    <message>
        <source>Auto-function region</source>
        <translation>自动功能区域</translation>
    </message>
    <message>
        <source>With switch and overlay, fine exposure limits</source>
        <translation>带开关和叠加显示，曝光限值精细</translation>
    </message>
    <message>
        <source>Auto-function region, gated</source>
        <translation>自动功能区域，受保护</translation>
    </message>
    <message>
        <source>The same, writable only while it is switched on</source>
        <translation>功能相同，仅在开启时可写</translation>
    </message>
    <message>
        <source>Auto-function region, plain</source>
        <translation>自动功能区域，简单</translation>
    </message>
    <message>
        <source>Without switch and overlay</source>
        <translation>无开关和叠加显示</translation>
    </message>
    <message>
        <source>Auto-mode region</source>
        <translation>AutoMode 区域</translation>
    </message>
    <message>
        <source>Offset and size bound each other</source>
        <translation>偏移和尺寸相互限制</translation>
    </message>
    <message>
        <source>Auto-mode region, fixed</source>
        <translation>AutoMode 区域，固定</translation>
    </message>
    <message>
        <source>Offset and size have fixed ranges</source>
        <translation>偏移和尺寸的范围固定</translation>
    </message>
    <message>
        <source>Auto-function region by edges</source>
        <translation>以边指定的自动功能区域</translation>
    </message>
    <message>
        <source>Left, top, right and bottom; no exposure time</source>
        <translation>左、上、右、下；无曝光时间</translation>
    </message>
    <message>
        <source>Auto-function and auto-mode region</source>
        <translation>自动功能和 AutoMode 区域</translation>
    </message>
    <message>
        <source>Both kinds in one camera</source>
        <translation>一台相机兼有两种</translation>
    </message>
    <message>
        <source>Auto-function region by size and edges</source>
        <translation>以尺寸和边指定的自动功能区域</translation>
    </message>
    <message>
        <source>Four regions</source>
        <translation>四个区域</translation>
    </message>
    <message>
        <source>Several regions in one picture</source>
        <translation>一幅图像中有多个区域</translation>
    </message>
    <message>
        <source>Six regions</source>
        <translation>六个区域</translation>
    </message>
    <message>
        <source>Four regions by number</source>
        <translation>按编号选择的四个区域</translation>
    </message>
    <message>
        <source>The camera selects a region by a number</source>
        <translation>相机通过编号选择区域</translation>
    </message>
    <message>
        <source>Two regions</source>
        <translation>两个区域</translation>
    </message>
    <message>
        <source>The fewest that make an arrangement</source>
        <translation>可构成排列的最少数量</translation>
    </message>
    <message>
        <source>Three regions</source>
        <translation>三个区域</translation>
    </message>
    <message>
        <source>The older name of the regions&apos; switch</source>
        <translation>区域开关的旧名称</translation>
    </message>
    <message>
        <source>256 regions by number</source>
        <translation>按编号选择的 256 个区域</translation>
    </message>
    <message>
        <source>The most that a camera may have</source>
        <translation>一台相机可有的最大数量</translation>
    </message>
    <message>
        <source>Older camera with four regions</source>
        <translation>有四个区域的旧式相机</translation>
    </message>
    <message>
        <source>The older names OffsetX and Width</source>
        <translation>旧名称 OffsetX 和 Width</translation>
    </message>
</context>
<context>
    <name>UserInput</name>
    <message>
        <source>%1 is not visible</source>
        <translation>%1 不可见</translation>
    </message>
    <message>
        <source>%1 is disabled</source>
        <translation>%1 已禁用</translation>
    </message>
    <message>
        <source>%1 does not take the value &apos;%2&apos;</source>
        <translation>%1 不接受值“%2”</translation>
    </message>
    <message>
        <source>there is no tab &apos;%1&apos;</source>
        <translation>没有标签页“%1”</translation>
    </message>
</context>
<context>
    <name>ViewerOptions</name>
    <message>
        <source>There is no camera &apos;%1&apos;; --list-cameras names them.</source>
        <translation>没有相机“%1”；--list-cameras 可列出所有相机。</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Click a widget; in a dialog, the button of this text.</source>
        <translation>单击控件；在对话框中为带此文字的按钮。</translation>
    </message>
    <message>
        <source>Set a spin box, choice, check box or field as a user would.</source>
        <translation>像用户一样设置数值框、选项、复选框或输入框。</translation>
    </message>
    <message>
        <source>Open the editor of a feature in the table of camera features.</source>
        <translation>在相机功能表中打开某功能的编辑器。</translation>
    </message>
    <message>
        <source>Write a feature as another client of the camera.</source>
        <translation>作为相机的另一个客户端写入功能。</translation>
    </message>
    <message>
        <source>Start streaming.</source>
        <translation>启动图像流。</translation>
    </message>
    <message>
        <source>Stop streaming.</source>
        <translation>停止图像流。</translation>
    </message>
    <message>
        <source>Close the camera.</source>
        <translation>关闭相机。</translation>
    </message>
    <message>
        <source>Wait, with the window alive.</source>
        <translation>等待，窗口保持响应。</translation>
    </message>
    <message>
        <source>Opens simulated cameras and shows the module&apos;s page for them.
Actions (--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait) may be given several times; they are carried out in the order given, then the screenshot is written.</source>
        <translation>打开模拟相机并显示模块的页面。
操作（--click, --set, --tab, --edit, --write, --start, --stop, --close, --wait）可多次给出；它们按给出的顺序执行，然后写入屏幕截图。</translation>
    </message>
    <message>
        <source>List the cameras and end; where built with GenICam cameras, those found as well.</source>
        <translation>列出相机并结束；若构建时包含 GenICam，也列出找到的相机。</translation>
    </message>
    <message>
        <source>Open this camera: NAME of the list, NAME+N with N features more, or genicam:ADDRESS.</source>
        <translation>打开此相机：列表中的 NAME、增加 N 个功能的 NAME+N，或 genicam:ADDRESS。</translation>
    </message>
    <message>
        <source>Load the module from this file instead of plugins/ beside the program.</source>
        <translation>从此文件加载模块，而不是程序旁的 plugins/。</translation>
    </message>
    <message>
        <source>Size of the window; with it, nothing is remembered.</source>
        <translation>窗口大小；给出时不记忆布局。</translation>
    </message>
    <message>
        <source>Tell the page a vendor that it supports, whoever made the camera.</source>
        <translation>无论相机由谁制造，都向页面报告受支持的厂商。</translation>
    </message>
    <message>
        <source>Take this language for the system&apos;s: de, fr, ja, zh_CN, or en.</source>
        <translation>将此语言作为系统语言：de、fr、ja、zh_CN 或 en。</translation>
    </message>
    <message>
        <source>Use dark colours.</source>
        <translation>使用深色配色。</translation>
    </message>
    <message>
        <source>Write a picture of the window to this PNG file and end.</source>
        <translation>将窗口的图片写入此 PNG 文件并结束。</translation>
    </message>
    <message>
        <source>Report actions that cannot be done and go on.</source>
        <translation>报告无法执行的操作并继续。</translation>
    </message>
    <message>
        <source>End after so many milliseconds.</source>
        <translation>在指定的毫秒数后结束。</translation>
    </message>
    <message>
        <source>--size takes a width and a height, as in 1400x900.</source>
        <translation>--size 需要宽度和高度，例如 1400x900。</translation>
    </message>
    <message>
        <source>--quit-after takes a number of milliseconds.</source>
        <translation>--quit-after 需要毫秒数。</translation>
    </message>
    <message>
        <source>Unexpected argument &apos;%1&apos;.</source>
        <translation>意外的参数“%1”。</translation>
    </message>
    <message>
        <source>Select the tab of this text, or of the page of this object name.</source>
        <translation>选择带此文字的标签页，或该对象名所属页面的标签页。</translation>
    </message>
</context>
<context>
    <name>WorkNotice</name>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
</TS>
