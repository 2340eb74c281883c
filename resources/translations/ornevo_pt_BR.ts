<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>Selecionar cor ou imagem de fundo</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>Usar imagem</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>Usar cor</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Imagem escolhida</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>Cor escolhida</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Escolher a cor</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>Escolher a imagem</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>Usar branco</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>Usar transparência</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>Selecione a cor de fundo</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagem</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>Arquivos de imagem (*.png *.jpg *.bmp)</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>Nome de arquivo escolhido</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>Escolher o nome do arquivo</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Manter proporções</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salvar arquivo</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>Arquivos JPG (*.jpg);;Arquivos PNG (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Ajuda do Ornevo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_pt_BR.html</translation>
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
        <translation>Imagem</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Ações</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Ferramentas</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>Marcador “Manter”</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marcador “Manter”&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Usado para marcar as áreas da imagem que você quer manter.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>Marcador “Remover”</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marcador “Remover”&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Usado para marcar as áreas da imagem que você quer remover. Elas se tornarão o fundo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Mais zoom</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Menos zoom</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Pré-visualização</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Pré-visualização&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Alterna para o modo de pré-visualização para você ver como ficará a imagem final. Algumas ferramentas só estão disponíveis nesse modo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Ferramenta Máscara&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Mostra o primeiro plano e o fundo destacados com cores.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>Selecionar fundo</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>Ferramenta Mão</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Borracha</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>Borracha de plano de fundo</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>Pincel de fundo</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>Pincel de primeiro plano</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>Ampliar fundo</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>Zoom do fundo
Redimensiona o fundo quando ele é uma imagem.</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>Reduzir fundo</translation>
    </message>
    <message>
        <source>finematt</source>
        <translation>Máscara fina</translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation>Marcador azul</translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation>Marcador azul</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Fale conosco</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Fale conosco!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Tem alguma pergunta?&lt;/p&gt;&lt;p&gt;Não sabe como usar o produto?&lt;/p&gt;&lt;p&gt;Quer um novo recurso?&lt;/p&gt;&lt;p&gt;Acha nosso produto péssimo?&lt;/p&gt;&lt;p&gt;Quer negociar o preço?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Conte para nós! Sua opinião é importante.&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>Aumentar tamanho da ferramenta</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>Diminuir tamanho da ferramenta</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>Aumentar intensidade do pincel</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>Diminuir intensidade do pincel</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>A transparência foi perdida</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>Você selecionou uma cor de fundo transparente, mas está salvando como JPEG. A transparência da cor foi perdida. Escolha .png para salvar fundos transparentes.</translation>
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
        <translation>Mais ferramentas</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>Isolando o objeto</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>Exibindo a imagem</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagem</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>Arquivos de imagem (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;Todos os arquivos (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Nenhum arquivo selecionado</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>Não foi possível ler a imagem</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>imagem aberta</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>Imagem carregada. Pré-processando a imagem.</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>Memória insuficiente para a pré-visualização</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>obtendo a máscara invertida</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>pintando o canal alfa</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>canal alfa pintado, agora suavizando a borda</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>borda suavizada</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>Salvar o arquivo?</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>Você está prestes a sobrescrever o arquivo original.
Tem certeza de que deseja continuar?</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salvar arquivo</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>Arquivos JPG (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>Tamanho do marcador de primeiro plano: %1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>Tamanho da ferramenta: %1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>Tamanho do marcador de fundo: %1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>Tamanho do pincel de fundo: %1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>Tamanho do pincel de primeiro plano: %1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>Intensidade do pincel de fundo: %1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>Intensidade do pincel de primeiro plano: %1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>Para começar, abra uma foto: Arquivo, Abrir (Ctrl+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>Memória insuficiente para exportar</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>O Ornevo recorta objetos de fotografias.
Criado por The Ornevo developers, 2026. https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>Memória insuficiente para a máscara</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>Memória insuficiente para detectar as bordas</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>Memória insuficiente para salvar</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>Largura do marcador de primeiro plano</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>Mesmo tamanho para todas as ferramentas</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>Largura do marcador de fundo</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>Suavizar bordas</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>Tamanho do kernel de suavização de bordas</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>Largura da borracha</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>Opacidade da máscara</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>Largura do pincel de primeiro plano</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>Intensidade do pincel de primeiro plano</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>Largura do pincel de fundo</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>Intensidade do pincel de fundo</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>Largura do marcador azul</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>Desfazer</translation>
    </message>
</context>
</TS>
