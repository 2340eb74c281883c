<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>Hintergrundfarbe oder -bild auswählen</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>Bild verwenden</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>Farbe verwenden</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Gewähltes Bild</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>Gewählte Farbe</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Farbe auswählen</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>Bild auswählen</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>Weiß verwenden</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>Transparenz verwenden</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>Bitte wählen Sie die Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>Bilddateien (*.png *.jpg *.bmp)</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>Gewählter Dateiname</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>Dateinamen auswählen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Seitenverhältnis beibehalten</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>JPG-Dateien (*.jpg);;PNG-Dateien (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Ornevo-Hilfe</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_de.html</translation>
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
        <translation>Bild</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Aktionen</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>Marker „Behalten“</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marker „Behalten“&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Markiert die Bildbereiche, die Sie behalten möchten.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>Marker „Entfernen“</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marker „Entfernen“&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Markiert die Bildbereiche, die Sie entfernen möchten. Sie werden zum Hintergrund.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Vorschau&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Wechselt in den Vorschaumodus, in dem Sie sehen, wie das fertige Bild aussehen wird. Einige Werkzeuge sind nur in diesem Modus verfügbar.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maske</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Maskenwerkzeug&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Zeigt Vordergrund und Hintergrund farbig hervorgehoben.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>Hintergrund auswählen</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>Hand-Werkzeug</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radiergummi</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>Hintergrund-Radiergummi</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>Hintergrundpinsel</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>Vordergrundpinsel</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>Hintergrund vergrößern</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>Hintergrundzoom
Skaliert den Hintergrund, wenn er ein Bild ist.</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>Hintergrund verkleinern</translation>
    </message>
    <message>
        <source>finematt</source>
        <translation>Feine Maske</translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation>Blauer Marker</translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation>Blauer Marker</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Sprechen Sie mit uns!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Haben Sie eine Frage?&lt;/p&gt;&lt;p&gt;Wissen Sie nicht, wie man das Programm benutzt?&lt;/p&gt;&lt;p&gt;Wünschen Sie sich eine neue Funktion?&lt;/p&gt;&lt;p&gt;Finden Sie unser Programm schlecht?&lt;/p&gt;&lt;p&gt;Möchten Sie über den Preis verhandeln?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Schreiben Sie es uns! Ihre Meinung ist uns wichtig.&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>Werkzeug vergrößern</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>Werkzeug verkleinern</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>Pinselintensität erhöhen</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>Pinselintensität verringern</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>Transparenz ging verloren</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>Sie haben eine transparente Hintergrundfarbe ausgewählt, speichern aber als JPEG. Die Transparenz der Farbe ging verloren. Bitte wählen Sie .png, um transparente Hintergründe zu speichern.</translation>
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
        <translation>Weitere Werkzeuge</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>Objekt wird freigestellt</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>Bild wird angezeigt</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>Bilddateien (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Keine Datei ausgewählt</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>Das Bild konnte nicht gelesen werden</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>Bild geöffnet</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>Bild geladen. Bild wird vorverarbeitet.</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>Nicht genügend Arbeitsspeicher für eine Vorschau</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>umgekehrte Maske wird ermittelt</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>Alphakanal wird gezeichnet</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>Alphakanal gezeichnet, Kante wird geglättet</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>Kante geglättet</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>Datei speichern?</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>Sie sind dabei, Ihre Originaldatei zu überschreiben.
Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Datei speichern</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>JPG-Dateien (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>Größe des Vordergrundmarkers: %1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>Werkzeuggröße: %1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>Größe des Hintergrundmarkers: %1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>Größe des Hintergrundpinsels: %1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>Größe des Vordergrundpinsels: %1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>Intensität des Hintergrundpinsels: %1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>Intensität des Vordergrundpinsels: %1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>Öffnen Sie zuerst ein Foto: Datei, Öffnen (Strg+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>Nicht genügend Arbeitsspeicher zum Exportieren</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>Ornevo stellt Objekte aus Fotos frei.
Erstellt von The Ornevo developers, 2026. https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>Nicht genügend Arbeitsspeicher für eine Maske</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>Nicht genügend Speicher, um die Kanten zu finden</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>Nicht genügend Arbeitsspeicher, um zu speichern</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>Breite des Vordergrundmarkers</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>Gleiche Größe für alle Werkzeuge</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>Breite des Hintergrundmarkers</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>Kanten glätten</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>Kernelgröße der Kantenglättung</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>Breite des Radiergummis</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>Deckkraft der Maske</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>Breite des Vordergrundpinsels</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>Intensität des Vordergrundpinsels</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>Breite des Hintergrundpinsels</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>Intensität des Hintergrundpinsels</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>Breite des blauen Markers</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>Rückgängig</translation>
    </message>
</context>
</TS>
