<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>选择背景颜色或图片</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>使用图片</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>使用颜色</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>所选图片</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>所选颜色</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>选择图片</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>使用白色</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>使用透明</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>请选择背景颜色</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>打开图像</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>图像文件 (*.png *.jpg *.bmp)</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>所选文件名</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>选择文件名</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>保持宽高比</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>JPG 文件 (*.jpg);;PNG 文件 (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Ornevo 帮助</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_zh_CN.html</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ornevo Pro</source>
        <translation>Ornevo Pro</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>进度</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>“保留”标记笔</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;“保留”标记笔&lt;/b&gt;&lt;/p&gt;&lt;p&gt;用于标记图像中要保留的区域。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>“去除”标记笔</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;“去除”标记笔&lt;/b&gt;&lt;/p&gt;&lt;p&gt;用于标记图像中要去除的区域。这些区域将成为背景。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;预览&lt;/b&gt;&lt;/p&gt;&lt;p&gt;切换到预览模式，查看最终图片的效果。部分工具仅在此模式下可用。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>蒙版</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;蒙版工具&lt;/b&gt;&lt;/p&gt;&lt;p&gt;用颜色突出显示前景和背景。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>选择背景</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>抓手工具</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>橡皮擦</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>背景橡皮擦</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>背景画笔</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>前景画笔</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>放大背景</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>背景缩放
背景为图片时对其进行缩放。</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>缩小背景</translation>
    </message>
    <message>
        <source>finematt</source>
        <translation>精细蒙版</translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation>蓝色标记笔</translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation>蓝色标记笔</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>联系我们</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;与我们交流！&lt;/b&gt;&lt;/p&gt;&lt;p&gt;有疑问？&lt;/p&gt;&lt;p&gt;不知道如何使用本产品？&lt;/p&gt;&lt;p&gt;想要新功能？&lt;/p&gt;&lt;p&gt;觉得我们的产品很糟糕？&lt;/p&gt;&lt;p&gt;想商谈价格？&lt;/p&gt;&lt;p&gt;&lt;b&gt;请告诉我们！我们重视每一条意见。&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>增加工具大小</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>减小工具大小</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>增大画笔强度</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>减小画笔强度</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>透明信息已丢失</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>已选择透明背景颜色，但保存为 JPEG，颜色的透明信息已丢失。要保存透明背景，请选择 .png。</translation>
    </message>
    <message>
        <source>Ornevo Pro 2.7 for MacOS X</source>
        <translation>Ornevo Pro 2.7 for MacOS X</translation>
    </message>
    <message>
        <source>Ornevo Pro 2.5</source>
        <translation>Ornevo Pro 2.5</translation>
    </message>
    <message>
        <source>More tools</source>
        <translation>更多工具</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>正在分离对象</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>正在显示图像</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>打开图像</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>图像文件 (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;所有文件 (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>未选择文件</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>无法读取图像</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>图像已打开</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>图像已加载。正在预处理图像。</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>内存不足，无法预览</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>正在获取反相蒙版</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>正在绘制 Alpha 通道</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>Alpha 通道绘制完成，正在羽化</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>羽化完成</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>保存文件？</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>即将覆盖原始文件。
确定要继续吗？</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>JPG 文件 (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>前景标记笔大小：%1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>工具大小：%1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>背景标记笔大小：%1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>背景画笔大小：%1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>前景画笔大小：%1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>背景画笔强度：%1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>前景画笔强度：%1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>请先打开一张照片：文件、打开 (Ctrl+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>内存不足，无法导出</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>Ornevo 可从照片中抠出对象。
制作：The Ornevo developers，2026 年。https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>内存不足，无法创建蒙版</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>内存不足，无法检测边缘</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>内存不足，无法保存</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>首选项</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>前景标记笔宽度</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>所有工具使用相同大小</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>背景标记笔宽度</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>平滑边缘</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>平滑边缘的核大小</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>橡皮擦宽度</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>蒙版不透明度</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>前景画笔宽度</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>前景画笔强度</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>背景画笔宽度</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>背景画笔强度</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>蓝色标记笔宽度</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>撤销</translation>
    </message>
</context>
</TS>
