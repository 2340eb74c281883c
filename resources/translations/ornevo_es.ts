<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>Seleccionar color o imagen de fondo</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>Usar una imagen</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>Usar un color</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Imagen elegida</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>Color elegido</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Elegir el color</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>Elegir la imagen</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>Usar blanco</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>Usar transparencia</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>Seleccione el color de fondo</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagen</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>Archivos de imagen (*.png *.jpg *.bmp)</translation>
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
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>Nombre de archivo elegido</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>Elegir el nombre de archivo</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Anchura</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altura</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Mantener proporciones</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>Archivos JPG (*.jpg);;Archivos PNG (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Ayuda de Ornevo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_es.html</translation>
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
        <translation>Imagen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Acciones</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Herramientas</translation>
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
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>Marcador «Conservar»</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marcador «Conservar»&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sirve para marcar las zonas de la imagen que desea conservar.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>Marcador «Quitar»</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marcador «Quitar»&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sirve para marcar las zonas de la imagen que desea quitar. Pasarán a ser el fondo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Índice</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Acercar</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Alejar</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Vista previa&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Pasa al modo de vista previa para ver cómo quedará la imagen final. Algunas herramientas solo están disponibles en este modo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Máscara</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Herramienta de máscara&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Muestra el primer plano y el fondo resaltados con colores.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>Seleccionar fondo</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>Herramienta Mano</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
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
        <translation>Borrador</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>Borrador de fondos</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>Pincel de fondo</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>Pincel de primer plano</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>Ampliar fondo</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>Zoom del fondo
Cambia la escala del fondo cuando es una imagen.</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>Reducir fondo</translation>
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
        <translation>Contacto</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;¡Hable con nosotros!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;¿Tiene alguna pregunta?&lt;/p&gt;&lt;p&gt;¿No sabe cómo usar el producto?&lt;/p&gt;&lt;p&gt;¿Desea una función nueva?&lt;/p&gt;&lt;p&gt;¿Cree que nuestro producto es malísimo?&lt;/p&gt;&lt;p&gt;¿Quiere negociar el precio?&lt;/p&gt;&lt;p&gt;&lt;b&gt;¡Cuéntenoslo! Su opinión nos importa.&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>Aumentar tamaño de la herramienta</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>Reducir tamaño de la herramienta</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>Aumentar intensidad del pincel</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>Reducir intensidad del pincel</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>Se ha perdido la transparencia</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>Ha seleccionado un color de fondo transparente, pero guarda en formato JPEG. La transparencia del color se ha perdido. Elija .png para guardar fondos transparentes.</translation>
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
        <translation>Más herramientas</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>Aislando el objeto</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>Mostrando la imagen</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Abrir imagen</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>Archivos de imagen (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>No se ha seleccionado ningún archivo</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>No se ha podido leer la imagen</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>imagen abierta</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>Imagen cargada. Preprocesando la imagen.</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>No hay memoria suficiente para la vista previa</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>obteniendo la máscara invertida</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>pintando el canal alfa</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>canal alfa pintado, ahora se suaviza el borde</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>borde suavizado</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>¿Guardar el archivo?</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>Va a sobrescribir el archivo original.
¿Seguro que desea continuar?</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>Archivos JPG (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>Tamaño del marcador de primer plano: %1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>Tamaño de la herramienta: %1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>Tamaño del marcador de fondo: %1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>Tamaño del pincel de fondo: %1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>Tamaño del pincel de primer plano: %1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>Intensidad del pincel de fondo: %1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>Intensidad del pincel de primer plano: %1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>Para empezar, abra una foto: Archivo, Abrir (Ctrl+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>No hay memoria suficiente para exportar</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>Ornevo recorta objetos de fotografías.
Creado por The Ornevo developers, 2026. https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>No hay memoria suficiente para la máscara</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>No hay memoria suficiente para detectar los bordes</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>No hay memoria suficiente para guardar</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>Anchura del marcador de primer plano</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>Mismo tamaño para todas las herramientas</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>Anchura del marcador de fondo</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>Suavizar bordes</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>Tamaño del núcleo de suavizado de bordes</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>Anchura del borrador</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>Opacidad de la máscara</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>Anchura del pincel de primer plano</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>Intensidad del pincel de primer plano</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>Anchura del pincel de fondo</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>Intensidad del pincel de fondo</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>Anchura del marcador azul</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>Deshacer</translation>
    </message>
</context>
</TS>
