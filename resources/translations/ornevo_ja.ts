<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>背景の色または画像の選択</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>画像を使用</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>色を使用</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>選択した画像</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>選択した色</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>色を選択</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>画像を選択</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>白を使用</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>透明を使用</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>背景色を選択してください</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>画像を開く</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>画像ファイル (*.png *.jpg *.bmp)</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>選択したファイル名</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>ファイル名を選択</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>縦横比を保持</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>JPG ファイル (*.jpg);;PNG ファイル (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Ornevo ヘルプ</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_ja.html</translation>
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
        <translation>画像</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
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
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>「残す」マーカー</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;「残す」マーカー&lt;/b&gt;&lt;/p&gt;&lt;p&gt;画像の中で残したい部分に印を付けます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>「取り除く」マーカー</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;「取り除く」マーカー&lt;/b&gt;&lt;/p&gt;&lt;p&gt;画像の中で取り除きたい部分に印を付けます。その部分は背景になります。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>目次</translation>
    </message>
    <message>
        <source>About</source>
        <translation>バージョン情報</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>ズームイン</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>ズームアウト</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;プレビュー&lt;/b&gt;&lt;/p&gt;&lt;p&gt;プレビューモードに切り替えて、仕上がりの画像を確認します。一部のツールはこのモードでのみ使用できます。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>マスク</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;マスクツール&lt;/b&gt;&lt;/p&gt;&lt;p&gt;前景と背景を色分けして表示します。&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>背景を選択</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>手のひらツール</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>消しゴム</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>背景消しゴム</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>背景ブラシ</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>前景ブラシ</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>背景を拡大</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>背景のズーム
背景が画像のときに拡大・縮小します。</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>背景を縮小</translation>
    </message>
    <message>
        <source>finematt</source>
        <translation>精細マット</translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation>青マーカー</translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation>青マーカー</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>お問い合わせ</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;ご連絡ください！&lt;/b&gt;&lt;/p&gt;&lt;p&gt;ご質問がありますか？&lt;/p&gt;&lt;p&gt;使い方がわかりませんか？&lt;/p&gt;&lt;p&gt;新しい機能をご希望ですか？&lt;/p&gt;&lt;p&gt;この製品にご不満がありますか？&lt;/p&gt;&lt;p&gt;価格についてのご相談ですか？&lt;/p&gt;&lt;p&gt;&lt;b&gt;ぜひお聞かせください！皆さまのご意見を大切にしています。&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>ツールサイズを大きく</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>ツールサイズを小さく</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>ブラシを強く</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>ブラシを弱く</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>透明度が失われました</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>透明な背景色が選択されていますが、JPEG 形式で保存したため、色の透明度が失われました。透明な背景を保存するには .png を選択してください。</translation>
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
        <translation>その他のツール</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>被写体を分離しています</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>画像を表示しています</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>画像を開く</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>画像ファイル (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;すべてのファイル (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>ファイルが選択されていません</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>画像を読み込めませんでした</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>画像を開きました</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>画像を読み込みました。前処理をしています。</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>メモリ不足のためプレビューを表示できません</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>反転マスクを取得しています</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>アルファチャンネルを描画しています</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>アルファチャンネルの描画完了、境界をぼかしています</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>境界のぼかしが完了しました</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>ファイルを保存しますか？</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>元のファイルを上書きしようとしています。
続行してもよろしいですか？</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>ファイルを保存</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>JPG ファイル (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>前景マーカーのサイズ: %1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>ツールのサイズ: %1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>背景マーカーのサイズ: %1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>背景ブラシのサイズ: %1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>前景ブラシのサイズ: %1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>背景ブラシの強さ: %1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>前景ブラシの強さ: %1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>まず写真を開いてください：ファイル、開く (Ctrl+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>メモリ不足のためエクスポートできません</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>Ornevo は写真から被写体を切り抜くソフトウェアです。
制作：The Ornevo developers、2026 年 https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>メモリ不足のためマスクを作成できません</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>メモリ不足のためエッジを検出できません</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>メモリ不足のため保存できません</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>前景マーカーの幅</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>すべてのツールを同じサイズにする</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>背景マーカーの幅</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>エッジを滑らかにする</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>エッジを滑らかにするカーネルのサイズ</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>消しゴムの幅</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>マスクの不透明度</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>前景ブラシの幅</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>前景ブラシの強さ</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>背景ブラシの幅</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>背景ブラシの強さ</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>青マーカーの幅</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>元に戻す</translation>
    </message>
</context>
</TS>
