<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Alertor</name>
    <message>
        <source>Cannot save the settings: check the free space and the permissions of your home folder. Your changes apply until you quit.</source>
        <translation>无法保存首选项：请检查主文件夹的可用空间和权限。更改在退出程序前有效。</translation>
    </message>
</context>
<context>
    <name>AlertorClass</name>
    <message>
        <source>Tarrow Alertor</source>
        <translation>Tarrow Alertor</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>&amp;Menu</source>
        <translation>菜单(&amp;M)</translation>
    </message>
    <message>
        <source>Opens the menu of the tray icon and of this window (F10)</source>
        <translation>打开托盘图标和此窗口的菜单（F10）</translation>
    </message>
</context>
<context>
    <name>CacheTotals</name>
    <message>
        <source>VRAM Cache Usage: %1% RAM Cache Usage: %2% </source>
        <translation>VRAM 缓存占用：%1% RAM 缓存占用：%2% </translation>
    </message>
</context>
<context>
    <name>CalibrationPanel</name>
    <message>
        <source>Input gamma</source>
        <translation>输入 Gamma</translation>
    </message>
    <message>
        <source>Output gamma</source>
        <translation>输出 Gamma</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>对比度</translation>
    </message>
    <message>
        <source>Input level start</source>
        <translation>输入色阶下限</translation>
    </message>
    <message>
        <source>Input level end</source>
        <translation>输入色阶上限</translation>
    </message>
    <message>
        <source>Output level start</source>
        <translation>输出色阶下限</translation>
    </message>
    <message>
        <source>Output level end</source>
        <translation>输出色阶上限</translation>
    </message>
    <message>
        <source>Soft clip</source>
        <translation>软裁切</translation>
    </message>
</context>
<context>
    <name>CalibrationRow</name>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>ConnectionTest</name>
    <message>
        <source>Connecting to %1…</source>
        <translation>正在连接到 %1…</translation>
    </message>
    <message>
        <source>Connected to %1. Waiting whether it refuses the log-in of %2…</source>
        <translation>已连接到 %1。正在等待，看它是否拒绝 %2 的登录…</translation>
    </message>
    <message>
        <source>Connected to %1 and logged in as %2: it did not refuse within 2 seconds.</source>
        <translation>已连接到 %1 并以 %2 的身份登录：对方在 2 秒内没有拒绝。</translation>
    </message>
    <message>
        <source>Connected to %1, but it refused the log-in of %2. Check login and password.</source>
        <translation>已连接到 %1，但它拒绝了 %2 的登录。请检查用户名和密码。</translation>
    </message>
    <message>
        <source>The name %1 is not known. Check the address.</source>
        <translation>找不到名称 %1。请检查地址。</translation>
    </message>
    <message>
        <source>Nobody listens at %1. Check the port, and whether the Dispatcher runs.</source>
        <translation>%1 上没有程序在监听。请检查端口以及 Dispatcher 是否正在运行。</translation>
    </message>
    <message>
        <source>No answer from %1 within 10 seconds. Check the address.</source>
        <translation>%1 在 10 秒内没有响应。请检查地址。</translation>
    </message>
    <message>
        <source>What answers at %1 is no Dispatcher. Check the port.</source>
        <translation>在 %1 上响应的不是 Dispatcher。请检查端口。</translation>
    </message>
    <message>
        <source>Connected to %1, but it hung up after the log-in of %2.</source>
        <translation>已连接到 %1，但在 %2 登录后对方断开了连接。</translation>
    </message>
    <message>
        <source>Cannot connect to %1: %2</source>
        <translation>无法连接到 %1：%2</translation>
    </message>
</context>
<context>
    <name>DisplayControls</name>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD 颜色</translation>
    </message>
    <message>
        <source>%1 (no %2)</source>
        <translation>%1（无 %2）</translation>
    </message>
</context>
<context>
    <name>EmptyList</name>
    <message>
        <source>&amp;Configure</source>
        <translation>首选项(&amp;C)</translation>
    </message>
    <message>
        <source>Opens the preferences: where the Dispatcher is, and who logs in</source>
        <translation>打开首选项：设置 Dispatcher 地址和登录用户</translation>
    </message>
    <message>
        <source>Nothing has happened yet.
What the farm tells of your jobs appears here.</source>
        <translation>暂无事件。
渲染农场发来的作业消息将显示在此处。</translation>
    </message>
</context>
<context>
    <name>EventColumns</name>
    <message>
        <source>Co&amp;lumns</source>
        <translation>列(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>排序方式(&amp;S)</translation>
    </message>
    <message>
        <source>Order of arrival</source>
        <translation>到达顺序</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>重置(&amp;R)</translation>
    </message>
</context>
<context>
    <name>EventKind</name>
    <message>
        <source>Success</source>
        <translation>成功</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>警报</translation>
    </message>
</context>
<context>
    <name>EventsModel</name>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>User</source>
        <translation>用户</translation>
    </message>
    <message>
        <source>Job</source>
        <translation>作业</translation>
    </message>
    <message>
        <source>Chunk</source>
        <translation>分块</translation>
    </message>
    <message>
        <source>Output path</source>
        <translation>输出路径</translation>
    </message>
    <message>
        <source>Acknowledged</source>
        <translation>已确认</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Pending</source>
        <translation>待确认</translation>
    </message>
    <message>
        <source>Acknowledged just now</source>
        <translation>刚刚确认</translation>
    </message>
</context>
<context>
    <name>FieldChecks</name>
    <message>
        <source>A port is a number from 1 to 65535</source>
        <translation>端口必须是 1 到 65535 之间的数字</translation>
    </message>
    <message>
        <source>Enter a number of bytes, as digits alone</source>
        <translation>请输入字节数，只能使用数字</translation>
    </message>
    <message>
        <source>A gamma is a number above 0, as 2.2</source>
        <translation>Gamma 必须是大于 0 的数字，例如 2.2</translation>
    </message>
    <message>
        <source>Enter the name or the address of a machine</source>
        <translation>请输入计算机的名称或地址</translation>
    </message>
</context>
<context>
    <name>FirstRun</name>
    <message>
        <source>&amp;Connect</source>
        <translation>连接(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>稍后(&amp;L)</translation>
    </message>
    <message>
        <source>connected</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>正在连接</translation>
    </message>
    <message>
        <source>not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>completed with errors</source>
        <translation>完成，有错误</translation>
    </message>
    <message>
        <source>completed with warnings</source>
        <translation>完成，有警告</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>service activity or alert</source>
        <translation>服务活动或警报</translation>
    </message>
</context>
<context>
    <name>FirstRunClass</name>
    <message>
        <source>Set up the connection</source>
        <translation>设置连接</translation>
    </message>
    <message>
        <source>Where is the farm&apos;s Dispatcher, and who are you? Ask whoever runs the farm.</source>
        <translation>请填写渲染农场的 Dispatcher 地址以及您的身份。如不清楚，请询问农场管理员。</translation>
    </message>
    <message>
        <source>&amp;Server:</source>
        <translation>服务器(&amp;S)：</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>服务器</translation>
    </message>
    <message>
        <source>&amp;Port:</source>
        <translation>端口(&amp;P)：</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>端口</translation>
    </message>
    <message>
        <source>Lo&amp;gin:</source>
        <translation>用户名(&amp;G)：</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Pass&amp;word:</source>
        <translation>密码(&amp;W)：</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>&amp;Test the connection</source>
        <translation>测试连接(&amp;T)</translation>
    </message>
    <message>
        <source>Nothing is stored by a test.</source>
        <translation>测试不会保存任何内容。</translation>
    </message>
    <message>
        <source>The icon in the system tray tells how the link stands and, in turn with that, the worst event that you have not looked at yet:</source>
        <translation>系统托盘图标交替显示连接状态和您尚未查看的最严重事件：</translation>
    </message>
</context>
<context>
    <name>Hud</name>
    <message>
        <source>Pixel format: U8</source>
        <translation>像素格式：U8</translation>
    </message>
    <message>
        <source>Pixel format: U16</source>
        <translation>像素格式：U16</translation>
    </message>
    <message>
        <source>Pixel format: U32</source>
        <translation>像素格式：U32</translation>
    </message>
    <message>
        <source>Pixel format: F32</source>
        <translation>像素格式：F32</translation>
    </message>
    <message>
        <source>Pixel format: F16</source>
        <translation>像素格式：F16</translation>
    </message>
    <message>
        <source>Pixel format: Unknown</source>
        <translation>像素格式：未知</translation>
    </message>
    <message>
        <source>Bit format: RGB</source>
        <translation>位格式：RGB</translation>
    </message>
    <message>
        <source>Bit format: RGBA</source>
        <translation>位格式：RGBA</translation>
    </message>
    <message>
        <source>Bit format: Luminance</source>
        <translation>位格式：明亮度</translation>
    </message>
    <message>
        <source>Bit format: Unknown</source>
        <translation>位格式：未知</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>文件：%1</translation>
    </message>
    <message>
        <source>File format: %1, deep</source>
        <translation>文件格式：%1，Deep</translation>
    </message>
    <message>
        <source>File format: %1</source>
        <translation>文件格式：%1</translation>
    </message>
    <message>
        <source>Image size: %1x%2</source>
        <translation>图像尺寸：%1x%2</translation>
    </message>
    <message>
        <source>Layers: %1</source>
        <translation>图层：%1</translation>
    </message>
    <message>
        <source>Samples per channel: %1</source>
        <translation>每通道样本数：%1</translation>
    </message>
</context>
<context>
    <name>ImageViewer</name>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>选择图像</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2) chunk ID %3</source>
        <translation>图像查看器 - 作业 %1（%2）分块 ID %3</translation>
    </message>
    <message>
        <source>Images viewer on job %1 (%2)</source>
        <translation>图像查看器 - 作业 %1（%2）</translation>
    </message>
    <message>
        <source>Images viewer</source>
        <translation>图像查看器</translation>
    </message>
</context>
<context>
    <name>ImageViewerClass</name>
    <message>
        <source>Frames path</source>
        <translation>帧路径</translation>
    </message>
    <message>
        <source>File, numbered sequence or mask that is shown</source>
        <translation>显示的文件、编号序列或文件名模式</translation>
    </message>
    <message>
        <source>Select images</source>
        <translation>选择图像</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>重新加载</translation>
    </message>
    <message>
        <source>Read the frames from disk again</source>
        <translation>从磁盘重新读取帧</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Show the picture alone on the whole screen</source>
        <translation>在整个屏幕上只显示画面</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>所有通道</translation>
    </message>
    <message>
        <source>Red channel</source>
        <translation>红色通道</translation>
    </message>
    <message>
        <source>Green channel</source>
        <translation>绿色通道</translation>
    </message>
    <message>
        <source>Blue channel</source>
        <translation>蓝色通道</translation>
    </message>
    <message>
        <source>Alpha channel</source>
        <translation>Alpha 通道</translation>
    </message>
    <message>
        <source>Luminance: the largest of red, green and blue</source>
        <translation>明亮度：红、绿、蓝中的最大值</translation>
    </message>
    <message>
        <source>Luminance</source>
        <translation>明亮度</translation>
    </message>
    <message>
        <source>Layer:</source>
        <translation>图层：</translation>
    </message>
    <message>
        <source>Layer of the file that is shown</source>
        <translation>所显示文件的图层</translation>
    </message>
    <message>
        <source>Downsampling:</source>
        <translation>降采样：</translation>
    </message>
    <message>
        <source>Size at which frames are kept and shown</source>
        <translation>帧保留和显示时的尺寸</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应</translation>
    </message>
    <message>
        <source>Fit the picture to the view</source>
        <translation>使画面适应视图</translation>
    </message>
    <message>
        <source>A pixel of the picture is a pixel of the screen</source>
        <translation>画面的一个像素对应屏幕的一个像素</translation>
    </message>
    <message>
        <source>Pixels 1:1</source>
        <translation>像素 1:1</translation>
    </message>
    <message>
        <source>Checker</source>
        <translation>棋盘格</translation>
    </message>
    <message>
        <source>Checker behind the picture</source>
        <translation>画面后方的棋盘格</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Colour behind the picture</source>
        <translation>画面后方的颜色</translation>
    </message>
    <message>
        <source>Composite</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Blend the picture over what is behind it</source>
        <translation>将画面与其后方的内容混合</translation>
    </message>
    <message>
        <source>Premultiplied</source>
        <translation>预乘</translation>
    </message>
    <message>
        <source>Take the colours of files that say so as multiplied by alpha</source>
        <translation>对于有相应标注的文件，将其颜色视为已与 Alpha 相乘</translation>
    </message>
    <message>
        <source>HUD</source>
        <translation>HUD</translation>
    </message>
    <message>
        <source>Information over the picture</source>
        <translation>叠加在画面上的信息</translation>
    </message>
    <message>
        <source>HUD colour</source>
        <translation>HUD 颜色</translation>
    </message>
    <message>
        <source>Colour of the information</source>
        <translation>叠加信息的颜色</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>存为默认</translation>
    </message>
    <message>
        <source>Save the display settings as default</source>
        <translation>将显示设置存为默认</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>校准</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>Vertical position in the picture</source>
        <translation>画面中的垂直位置</translation>
    </message>
    <message>
        <source>Horizontal position in the picture</source>
        <translation>画面中的水平位置</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Calibration for the current file</source>
        <translation>当前文件的校准</translation>
    </message>
    <message>
        <source>Reset to defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message>
        <source>The default calibration</source>
        <translation>默认校准</translation>
    </message>
    <message>
        <source>Save the calibration as default</source>
        <translation>将校准存为默认</translation>
    </message>
    <message>
        <source>Frames in the cache</source>
        <translation>缓存中的帧</translation>
    </message>
    <message>
        <source>Frames kept in video memory (green) and in main memory (yellow)</source>
        <translation>保留在显存（绿色）和内存（黄色）中的帧</translation>
    </message>
    <message>
        <source>Timeline</source>
        <translation>时间线</translation>
    </message>
    <message>
        <source>Drag to choose a frame. Shift marks its chunk, Control the frame; with Alt they take the mark away</source>
        <translation>拖动以选择帧。按住 Shift 标记其分块，按住 Ctrl 标记该帧；同时按住 Alt 则取消标记</translation>
    </message>
    <message>
        <source>Marked frames</source>
        <translation>已标记的帧</translation>
    </message>
    <message>
        <source>Marked chunks (orange) and frames (yellow)</source>
        <translation>已标记的分块（橙色）和帧（黄色）</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>起:(%1)</translation>
    </message>
    <message>
        <source>First frame to play</source>
        <translation>播放的第一帧</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>止:(%1)</translation>
    </message>
    <message>
        <source>Last frame to play</source>
        <translation>播放的最后一帧</translation>
    </message>
    <message>
        <source>By:</source>
        <translation>步长：</translation>
    </message>
    <message>
        <source>Step between frames</source>
        <translation>帧间步长</translation>
    </message>
    <message>
        <source>First frame (Up)</source>
        <translation>第一帧 (↑)</translation>
    </message>
    <message>
        <source>First frame</source>
        <translation>第一帧</translation>
    </message>
    <message>
        <source>Previous frame (Left)</source>
        <translation>上一帧 (←)</translation>
    </message>
    <message>
        <source>Previous frame</source>
        <translation>上一帧</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>播放 (空格)</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Next frame (Right)</source>
        <translation>下一帧 (→)</translation>
    </message>
    <message>
        <source>Next frame</source>
        <translation>下一帧</translation>
    </message>
    <message>
        <source>Last frame (Down)</source>
        <translation>最后一帧 (↓)</translation>
    </message>
    <message>
        <source>Last frame</source>
        <translation>最后一帧</translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>当前帧</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 帧</translation>
    </message>
    <message>
        <source>FPS:</source>
        <translation>FPS：</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>每秒帧数</translation>
    </message>
    <message>
        <source>Frames per second to play at</source>
        <translation>播放时的每秒帧数</translation>
    </message>
    <message>
        <source>Mark frame</source>
        <translation>标记帧</translation>
    </message>
    <message>
        <source>Mark the current frame, or take its mark away</source>
        <translation>标记当前帧，或取消其标记</translation>
    </message>
    <message>
        <source>0 frame(s)</source>
        <translation>0 帧</translation>
    </message>
    <message>
        <source>Marked frames; the right button copies them</source>
        <translation>已标记的帧；右键单击可复制</translation>
    </message>
    <message>
        <source>Requeue marked frames</source>
        <translation>将标记的帧重新加入队列</translation>
    </message>
    <message>
        <source>Clear markings</source>
        <translation>清除标记</translation>
    </message>
    <message>
        <source>Remove all marks</source>
        <translation>移除所有标记</translation>
    </message>
    <message>
        <source>Mark chunk</source>
        <translation>标记分块</translation>
    </message>
    <message>
        <source>Mark the chunk of the current frame, or take its mark away</source>
        <translation>标记当前帧所在的分块，或取消其标记</translation>
    </message>
    <message>
        <source>0 chunk(s)</source>
        <translation>0 个分块</translation>
    </message>
    <message>
        <source>Marked chunks; the right button copies them</source>
        <translation>已标记的分块；右键单击可复制</translation>
    </message>
    <message>
        <source>Requeue marked chunks</source>
        <translation>将标记的分块重新加入队列</translation>
    </message>
    <message>
        <source>Download chunks</source>
        <translation>下载分块</translation>
    </message>
    <message>
        <source>Job:</source>
        <translation>作业：</translation>
    </message>
    <message>
        <source>Chunk:</source>
        <translation>分块：</translation>
    </message>
    <message>
        <source>Progress of the load</source>
        <translation>加载进度</translation>
    </message>
    <message>
        <source>Live scrubbing</source>
        <translation>拖动时实时预览</translation>
    </message>
    <message>
        <source>Load frames while the timeline is dragged</source>
        <translation>拖动时间线时加载帧</translation>
    </message>
    <message>
        <source>Your graphic card has no support for HALF float values. Images support or accuracy may be limited!</source>
        <translation>您的显卡不支持 HALF（半精度浮点）值，图像可能无法显示或精度受限！</translation>
    </message>
    <message>
        <source>Side panel</source>
        <translation>侧面板</translation>
    </message>
    <message>
        <source>Show or hide the calibration and what is known of the file</source>
        <translation>显示或隐藏校准和文件信息</translation>
    </message>
    <message>
        <source>Drop images or a folder here, or open them with Ctrl+O</source>
        <translation>将图像或文件夹拖放到此处，或按 Ctrl+O 打开</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Frames per second that are shown</source>
        <translation>实际显示的每秒帧数</translation>
    </message>
    <message>
        <source>How much of the memory for frames is in use</source>
        <translation>帧所用存储空间的占用情况</translation>
    </message>
    <message>
        <source>Frames of the sequence</source>
        <translation>序列的帧数</translation>
    </message>
</context>
<context>
    <name>IncompleteFrame</name>
    <message>
        <source>%1 of %2 chunks are damaged</source>
        <translation>%2 个分块中有 %1 个已损坏</translation>
    </message>
    <message>
        <source>%1 % written</source>
        <translation>已写入 %1%</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
</context>
<context>
    <name>LinkWords</name>
    <message>
        <source>Not a Dispatcher: it sent %1</source>
        <translation>对方不是 Dispatcher：它发送了 %1</translation>
    </message>
    <message>
        <source>The Dispatcher&apos;s stream was damaged</source>
        <translation>来自 Dispatcher 的数据流已损坏</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未连接</translation>
    </message>
    <message>
        <source>Looking up %1</source>
        <translation>正在查找 %1</translation>
    </message>
    <message>
        <source>Connecting to %1 as %2</source>
        <translation>正在以 %2 的身份连接到 %1</translation>
    </message>
    <message>
        <source>Connected to %1 as %2</source>
        <translation>已以 %2 的身份连接到 %1</translation>
    </message>
    <message>
        <source>Log-in refused by %1 for %2</source>
        <translation>%1 拒绝了 %2 的登录</translation>
    </message>
    <message>
        <source>Not connected to %1 as %2</source>
        <translation>未以 %2 的身份连接到 %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <comment>state of the link and why</comment>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>Next try at %1</source>
        <translation>下次尝试：%1</translation>
    </message>
    <message>
        <source>Link was down %1 to %2; events of that time are not sent again</source>
        <translation>%1 至 %2 期间连接中断；该时段的事件不会重新发送</translation>
    </message>
    <message>
        <source>larger than 1 MiB</source>
        <translation>大于 1 MiB</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>the Dispatcher does not read</source>
        <translation>Dispatcher 未读取</translation>
    </message>
    <message>
        <source>one to the Dispatcher was larger than 1 MiB</source>
        <translation>有一条发往 Dispatcher 的消息大于 1 MiB</translation>
    </message>
    <message>
        <source>Messages of or to the Dispatcher lost at %1: %2 (%3)</source>
        <translation>与 Dispatcher 之间丢失的消息（%1）：%2 条（%3）</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Acknowledge selection</source>
        <translation>确认所选项(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Open output folder</source>
        <translation>打开输出文件夹(&amp;O)</translation>
    </message>
    <message>
        <source>Open &amp;frame(s)</source>
        <translation>打开帧(&amp;F)</translation>
    </message>
    <message>
        <source>Open frame(s) exter&amp;nally</source>
        <translation>用外部程序打开帧(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Remove selection	DEL</source>
        <translation>移除所选项(&amp;R)	Del</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>全部移除</translation>
    </message>
</context>
<context>
    <name>LoadStatus</name>
    <message>
        <source>File not found at path: %1</source>
        <translation>找不到文件：%1</translation>
    </message>
    <message>
        <source>Corrupted file at path: %1</source>
        <translation>文件已损坏：%1</translation>
    </message>
    <message>
        <source>File that cannot be shown at path: %1</source>
        <translation>无法显示的文件：%1</translation>
    </message>
    <message>
        <source>Too large for OpenGL: shown at 1/%1 of its size</source>
        <translation>对 OpenGL 而言过大：以 1/%1 的尺寸显示</translation>
    </message>
    <message>
        <source>OpenGL does not start.</source>
        <translation>OpenGL 无法启动。</translation>
    </message>
    <message>
        <source>OpenGL does not build the shaders that draw pictures. The log says why.</source>
        <translation>OpenGL 无法编译绘制画面的着色器。原因请见日志。</translation>
    </message>
    <message>
        <source>OpenGL has no memory for it. Choose a higher downsampling.</source>
        <translation>OpenGL 没有足够的显存。请选择更高的降采样。</translation>
    </message>
    <message>
        <source>It is too large for OpenGL.</source>
        <translation>对 OpenGL 而言过大。</translation>
    </message>
    <message>
        <source>This OpenGL cannot show samples of its kind.</source>
        <translation>此 OpenGL 无法显示这种类型的样本。</translation>
    </message>
    <message>
        <source>It holds too few samples for its size.</source>
        <translation>其样本数少于其尺寸所需。</translation>
    </message>
    <message>
        <source>You have no permission to read it.</source>
        <translation>您没有读取权限。</translation>
    </message>
    <message>
        <source>It is no image of a format that the viewer reads.</source>
        <translation>不是查看器能读取的图像格式。</translation>
    </message>
    <message>
        <source>Its picture is too large for the memory of this computer.</source>
        <translation>画面过大，本机内存不足。</translation>
    </message>
    <message>
        <source>The viewer cannot read it: %1</source>
        <translation>查看器无法读取：%1</translation>
    </message>
    <message>
        <source>What is wrong: %1</source>
        <translation>问题：%1</translation>
    </message>
    <message>
        <source>%1 s ahead</source>
        <translation>已预读 %1 秒</translation>
    </message>
</context>
<context>
    <name>MarkingControls</name>
    <message>
        <source>Copy marked frames</source>
        <translation>复制标记的帧</translation>
    </message>
    <message>
        <source>Copy marked chunks</source>
        <translation>复制标记的分块</translation>
    </message>
    <message>
        <source>Copy frames of marked chunks</source>
        <translation>复制标记分块中的帧</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 帧</translation>
    </message>
    <message>
        <source>%1 chunk(s)</source>
        <translation>%1 个分块</translation>
    </message>
    <message>
        <source>Are you sure you want to remove the current markings ?</source>
        <translation>确定要移除当前的标记吗？</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Tarrow Alertor %1 (build %2)

Log: %3</source>
        <translation>Tarrow Alertor %1（构建 %2）

日志：%3</translation>
    </message>
    <message>
        <source>Are you sure you want to close the Alertor?</source>
        <translation>确定要退出 Alertor 吗？</translation>
    </message>
    <message>
        <source>Dispatcher denied Alertor connection. Please double check the login and password in the Alertor applet configuration dialog!</source>
        <translation>Dispatcher 拒绝了 Alertor 的连接。请在 Alertor 首选项中检查用户名和密码！</translation>
    </message>
    <message>
        <source>&amp;Set up the connection…</source>
        <translation>设置连接(&amp;S)…</translation>
    </message>
</context>
<context>
    <name>PendingCounts</name>
    <message>
        <source>%1. Click to see these alone, again to see all</source>
        <translation>%1。单击只显示这些，再次单击显示全部</translation>
    </message>
    <message>
        <source>Pending errors: %1</source>
        <translation>待确认的错误：%1</translation>
    </message>
    <message>
        <source>Pending warnings: %1</source>
        <translation>待确认的警告：%1</translation>
    </message>
    <message>
        <source>Pending successes: %1</source>
        <translation>待确认的成功：%1</translation>
    </message>
    <message>
        <source>Pending service events: %1</source>
        <translation>待确认的服务事件：%1</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialog</name>
    <message>
        <source>defaultSkinnedDialog</source>
        <translation>defaultSkinnedDialog</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Set default size and position</source>
        <translation>将当前大小和位置存为默认</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Are you sure you want to set the default size and position for this dialog ?</source>
        <translation>确定要将当前大小和位置存为此对话框的默认值吗？</translation>
    </message>
</context>
<context>
    <name>QSkinnedDialogHeader</name>
    <message>
        <source>Double click: restore the window</source>
        <translation>双击：还原窗口</translation>
    </message>
    <message>
        <source>Drag: move the window. Double click: maximise it</source>
        <translation>拖动：移动窗口。双击：最大化</translation>
    </message>
</context>
<context>
    <name>QSkinnedMessageBox</name>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Abort</source>
        <translation>中止(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Ok</source>
        <translation>确定(&amp;O)</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>确认</translation>
    </message>
</context>
<context>
    <name>ResultOpener</name>
    <message>
        <source>Cannot open output folder %1</source>
        <translation>无法打开输出文件夹 %1</translation>
    </message>
    <message>
        <source>Cannot launch image viewer to shown selected frame</source>
        <translation>无法启动用于显示所选帧的图像查看器</translation>
    </message>
</context>
<context>
    <name>Splash</name>
    <message>
        <source>Initializing...</source>
        <translation>正在初始化...</translation>
    </message>
    <message>
        <source>Enumerating templates...</source>
        <translation>正在枚举模板...</translation>
    </message>
    <message>
        <source>%1 - Release Build %2 %3</source>
        <translation>%1 - 正式版构建 %2 %3</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Connect &amp;now</source>
        <translation>立即连接(&amp;N)</translation>
    </message>
    <message>
        <source>Tries to connect to the Dispatcher at once</source>
        <translation>立即尝试连接到 Dispatcher</translation>
    </message>
</context>
<context>
    <name>Templates</name>
    <message>
        <source>Loading template %1...</source>
        <translation>正在加载模板 %1...</translation>
    </message>
</context>
<context>
    <name>TransportControls</name>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>S:(%1)</source>
        <translation>起:(%1)</translation>
    </message>
    <message>
        <source>E:(%1)</source>
        <translation>止:(%1)</translation>
    </message>
    <message>
        <source>%1 frame(s)</source>
        <translation>%1 帧</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Stop (Space)</source>
        <translation>停止 (空格)</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>播放 (空格)</translation>
    </message>
</context>
<context>
    <name>Tray</name>
    <message>
        <source>Tarrow Alertor</source>
        <translation>Tarrow Alertor</translation>
    </message>
    <message>
        <source>Tarrow Alertor (not connected)</source>
        <translation>Tarrow Alertor（未连接）</translation>
    </message>
    <message>
        <source>New event available!</source>
        <translation>有新事件！</translation>
    </message>
    <message>
        <source>Tarrow Alertor is running in the background.
Right-click on this icon to access the context menu or double click to raise the application.</source>
        <translation>Tarrow Alertor 正在后台运行。
右键单击此图标可打开菜单，双击可显示程序窗口。</translation>
    </message>
</context>
<context>
    <name>TrayMenu</name>
    <message>
        <source>&amp;Restore</source>
        <translation>显示窗口(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Acknowledge pending events</source>
        <translation>确认待确认事件(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Silent</source>
        <translation>静音(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Open images viewer</source>
        <translation>打开图像查看器(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>首选项(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>ViewerWindows</name>
    <message>
        <source>OpenGL not supported by your GPU! Image viewer cannot be used!</source>
        <translation>您的 GPU 不支持 OpenGL！无法使用图像查看器！</translation>
    </message>
</context>
<context>
    <name>WindowMenu</name>
    <message>
        <source>A&amp;bout</source>
        <translation>关于(&amp;B)</translation>
    </message>
    <message>
        <source>Shows the version, and where the log is</source>
        <translation>显示版本以及日志所在位置</translation>
    </message>
</context>
<context>
    <name>ZoomControl</name>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Unlock</source>
        <translation>解锁</translation>
    </message>
</context>
<context>
    <name>preferences</name>
    <message>
        <source>Select File</source>
        <translation>选择文件</translation>
    </message>
    <message>
        <source>Audio Files (*.wav)</source>
        <translation>音频文件 (*.wav)</translation>
    </message>
    <message>
        <source>Executables (*.exe)</source>
        <translation>可执行文件 (*.exe)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <comment>budget, and what the machine has</comment>
        <translation>%1（共 %2）</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>文件不存在</translation>
    </message>
    <message>
        <source>it is no WAV file that can be played</source>
        <translation>不是可播放的 WAV 文件</translation>
    </message>
    <message>
        <source>there is no sound device</source>
        <translation>没有声音设备</translation>
    </message>
    <message>
        <source>a part of the program is missing; install it again</source>
        <translation>缺少程序组件；请重新安装</translation>
    </message>
    <message>
        <source>Cannot play %1: %2</source>
        <translation>无法播放 %1：%2</translation>
    </message>
</context>
<context>
    <name>preferencesClass</name>
    <message>
        <source>Alertor Preferences</source>
        <translation>Alertor 首选项</translation>
    </message>
    <message>
        <source>Notifications filters</source>
        <translation>通知筛选</translation>
    </message>
    <message>
        <source>Job&apos;s start</source>
        <translation>作业开始</translation>
    </message>
    <message>
        <source>Chunk&apos;s start</source>
        <translation>分块开始</translation>
    </message>
    <message>
        <source>Job&apos;s complete with errors</source>
        <translation>作业完成，有错误</translation>
    </message>
    <message>
        <source>Job&apos;s complete with warnings</source>
        <translation>作业完成，有警告</translation>
    </message>
    <message>
        <source>Job&apos;s complete with success</source>
        <translation>作业成功完成</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with errors</source>
        <translation>分块完成，有错误</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with warnings</source>
        <translation>分块完成，有警告</translation>
    </message>
    <message>
        <source>Chunk&apos;s complete with success</source>
        <translation>分块成功完成</translation>
    </message>
    <message>
        <source>Service activities</source>
        <translation>服务活动</translation>
    </message>
    <message>
        <source>Sounds</source>
        <translation>声音</translation>
    </message>
    <message>
        <source>Play sound on errors</source>
        <translation>出错时播放声音</translation>
    </message>
    <message>
        <source>Sound file for errors</source>
        <translation>用于错误的声音文件</translation>
    </message>
    <message>
        <source>Choose the sound file for errors</source>
        <translation>选择用于错误的声音文件</translation>
    </message>
    <message>
        <source>Play sound on warning</source>
        <translation>警告时播放声音</translation>
    </message>
    <message>
        <source>Sound file for warnings</source>
        <translation>用于警告的声音文件</translation>
    </message>
    <message>
        <source>Choose the sound file for warnings</source>
        <translation>选择用于警告的声音文件</translation>
    </message>
    <message>
        <source>Play sound on success</source>
        <translation>成功时播放声音</translation>
    </message>
    <message>
        <source>Sound file for successes</source>
        <translation>用于成功的声音文件</translation>
    </message>
    <message>
        <source>Choose the sound file for successes</source>
        <translation>选择用于成功的声音文件</translation>
    </message>
    <message>
        <source>Play sound on items start</source>
        <translation>项目开始时播放声音</translation>
    </message>
    <message>
        <source>Sound file for starts of items</source>
        <translation>用于项目开始的声音文件</translation>
    </message>
    <message>
        <source>Choose the sound file for starts of items</source>
        <translation>选择用于项目开始的声音文件</translation>
    </message>
    <message>
        <source>Play sound on service events</source>
        <translation>服务事件时播放声音</translation>
    </message>
    <message>
        <source>Sound file for service events</source>
        <translation>用于服务事件的声音文件</translation>
    </message>
    <message>
        <source>Choose the sound file for service events</source>
        <translation>选择用于服务事件的声音文件</translation>
    </message>
    <message>
        <source>Single frame jobs</source>
        <translation>单帧作业</translation>
    </message>
    <message>
        <source>Image viewer mode:</source>
        <translation>图像查看器模式：</translation>
    </message>
    <message>
        <source>Integrated</source>
        <translation>内置</translation>
    </message>
    <message>
        <source>External</source>
        <translation>外部</translation>
    </message>
    <message>
        <source>Launch image viewer automatically</source>
        <translation>自动启动图像查看器</translation>
    </message>
    <message>
        <source>Image viewer application:</source>
        <translation>图像查看程序：</translation>
    </message>
    <message>
        <source>Image viewer application</source>
        <translation>图像查看程序</translation>
    </message>
    <message>
        <source>Choose the image viewer application</source>
        <translation>选择图像查看程序</translation>
    </message>
    <message>
        <source>GPU/RAM viewer cache:</source>
        <translation>GPU/RAM 查看器缓存：</translation>
    </message>
    <message>
        <source>GPU viewer cache, bytes</source>
        <translation>GPU 查看器缓存（字节）</translation>
    </message>
    <message>
        <source>RAM viewer cache, bytes</source>
        <translation>RAM 查看器缓存（字节）</translation>
    </message>
    <message>
        <source>EXR/Default import gamma:</source>
        <translation>EXR/默认导入 Gamma：</translation>
    </message>
    <message>
        <source>EXR import gamma</source>
        <translation>EXR 导入 Gamma</translation>
    </message>
    <message>
        <source>Default import gamma</source>
        <translation>默认导入 Gamma</translation>
    </message>
    <message>
        <source>Network and behaviours</source>
        <translation>网络与行为</translation>
    </message>
    <message>
        <source>Dispatcher address:</source>
        <translation>Dispatcher 地址：</translation>
    </message>
    <message>
        <source>Dispatcher address</source>
        <translation>Dispatcher 地址</translation>
    </message>
    <message>
        <source>Alertor port:</source>
        <translation>Alertor 端口：</translation>
    </message>
    <message>
        <source>Alertor port</source>
        <translation>Alertor 端口</translation>
    </message>
    <message>
        <source>Login:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Login</source>
        <translation>用户名</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Skip directory server authentication</source>
        <translation>跳过目录服务器身份验证</translation>
    </message>
    <message>
        <source>Show bubble (when supported)</source>
        <translation>显示气泡通知（如支持）</translation>
    </message>
    <message>
        <source>Automatic aknowledge notifications when raising the application</source>
        <translation>显示程序窗口时自动确认通知</translation>
    </message>
    <message>
        <source>Keep the list above other windows</source>
        <translation>使列表保持在其他窗口之上</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>通知</translation>
    </message>
    <message>
        <source>Viewer</source>
        <translation>查看器</translation>
    </message>
    <message>
        <source>Network</source>
        <translation>网络</translation>
    </message>
    <message>
        <source>Play the sound file for errors</source>
        <translation>播放用于错误的声音文件</translation>
    </message>
    <message>
        <source>Play the sound file for warnings</source>
        <translation>播放用于警告的声音文件</translation>
    </message>
    <message>
        <source>Play the sound file for successes</source>
        <translation>播放用于成功的声音文件</translation>
    </message>
    <message>
        <source>Play the sound file for starts of items</source>
        <translation>播放用于项目开始的声音文件</translation>
    </message>
    <message>
        <source>Play the sound file for service events</source>
        <translation>播放用于服务事件的声音文件</translation>
    </message>
    <message>
        <source>Show incomplete frames</source>
        <translation>显示不完整的帧</translation>
    </message>
    <message>
        <source>Read ahead</source>
        <translation>预读</translation>
    </message>
</context>
</TS>
