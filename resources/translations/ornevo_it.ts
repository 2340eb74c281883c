<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>Seleziona colore o immagine di sfondo</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>Usa un’immagine</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>Usa un colore</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Immagine scelta</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>Colore scelto</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Scegli il colore</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>Scegli l’immagine</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>Usa il bianco</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>Usa la trasparenza</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>Selezionare il colore di sfondo</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Apri immagine</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>File immagine (*.png *.jpg *.bmp)</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>Nome del file</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>Nome del file scelto</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>Scegli il nome del file</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Larghezza</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Altezza</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Mantieni proporzioni</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>File JPG (*.jpg);;File PNG (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Guida di Ornevo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_it.html</translation>
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
        <translation>Immagine</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Avanzamento</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Azioni</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Strumenti</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>Marcatore “Mantieni”</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marcatore “Mantieni”&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Serve a marcare le zone dell’immagine da mantenere.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>Marcatore “Rimuovi”</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marcatore “Rimuovi”&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Serve a marcare le zone dell’immagine da rimuovere. Diventeranno sfondo.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Indice</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Informazioni</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Anteprima&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Passa alla modalità anteprima per vedere come apparirà l’immagine finale. Alcuni strumenti sono disponibili solo in questa modalità.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maschera</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Strumento Maschera&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Mostra il primo piano e lo sfondo evidenziati con colori.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>Seleziona sfondo</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>Strumento Mano</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomma</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>Gomma per sfondo</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>Pennello sfondo</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>Pennello primo piano</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>Ingrandisci sfondo</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>Zoom dello sfondo
Ridimensiona lo sfondo quando è un’immagine.</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>Riduci sfondo</translation>
    </message>
    <message>
        <source>finematt</source>
        <translation>Maschera fine</translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation>Marcatore blu</translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation>Marcatore blu</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Contattaci</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Scriveteci!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Avete una domanda?&lt;/p&gt;&lt;p&gt;Non sapete come usare il prodotto?&lt;/p&gt;&lt;p&gt;Desiderate una nuova funzione?&lt;/p&gt;&lt;p&gt;Pensate che il nostro prodotto sia pessimo?&lt;/p&gt;&lt;p&gt;Volete trattare sul prezzo?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Fatecelo sapere! La vostra opinione è importante.&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>Aumenta dimensione strumento</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>Riduci dimensione strumento</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>Aumenta intensità pennello</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>Riduci intensità pennello</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>Trasparenza persa</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>È stato selezionato un colore di sfondo trasparente, ma il salvataggio è in formato JPEG. La trasparenza del colore è andata persa. Scegliere .png per salvare sfondi trasparenti.</translation>
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
        <translation>Altri strumenti</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>Isolamento dell’oggetto</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>Visualizzazione dell’immagine</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Apri immagine</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>File immagine (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;Tutti i file (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Nessun file selezionato</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>Impossibile leggere l’immagine</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>immagine aperta</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>Immagine caricata. Pre-elaborazione dell’immagine.</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>Memoria insufficiente per l’anteprima</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>calcolo della maschera invertita</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>disegno del canale alfa</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>canale alfa disegnato, ora sfumatura del bordo</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>sfumatura completata</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>Salvare il file?</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>Il file originale sta per essere sovrascritto.
Continuare?</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salva file</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>File JPG (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>Dimensione del marcatore primo piano: %1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>Dimensione dello strumento: %1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>Dimensione del marcatore sfondo: %1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>Dimensione del pennello sfondo: %1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>Dimensione del pennello primo piano: %1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>Intensità del pennello sfondo: %1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>Intensità del pennello primo piano: %1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>Per iniziare, aprire una foto: File, Apri (Ctrl+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>Memoria insufficiente per esportare</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>Ornevo scontorna oggetti dalle fotografie.
Realizzato da The Ornevo developers, 2026. https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>Memoria insufficiente per la maschera</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>Memoria insufficiente per rilevare i bordi</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>Memoria insufficiente per salvare</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferenze</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>Larghezza marcatore primo piano</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>Stessa dimensione per tutti gli strumenti</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>Larghezza marcatore sfondo</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>Smussa i bordi</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>Dimensione del kernel di smussatura</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>Larghezza gomma</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>Opacità maschera</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>Larghezza pennello primo piano</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>Intensità pennello primo piano</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>Larghezza pennello sfondo</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>Intensità pennello sfondo</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>Larghezza marcatore blu</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>Annulla</translation>
    </message>
</context>
</TS>
