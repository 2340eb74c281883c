<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>FileName</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Ornevo Pro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Index</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>finematt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ornevo Pro 2.7 for MacOS X</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ornevo Pro 2.5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>image opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>feather done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
