<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>Choisir une couleur ou une image d’arrière-plan</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>Utiliser une image</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>Utiliser une couleur</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Image choisie</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>Couleur choisie</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Choisir la couleur</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>Choisir l’image</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>Utiliser le blanc</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>Utiliser la transparence</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>Veuillez choisir la couleur d’arrière-plan</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>Fichiers image (*.png *.jpg *.bmp)</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>Nom de fichier choisi</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>Choisir le nom du fichier</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Hauteur</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Conserver les proportions</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>Fichiers JPG (*.jpg);;Fichiers PNG (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Aide d’Ornevo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_fr.html</translation>
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
        <translation>Image</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>Marqueur «&#xa0;Conserver&#xa0;»</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marqueur «&#xa0;Conserver&#xa0;»&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sert à marquer les zones de l’image que vous voulez conserver.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>Marqueur «&#xa0;Retirer&#xa0;»</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Marqueur «&#xa0;Retirer&#xa0;»&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Sert à marquer les zones de l’image que vous voulez retirer. Elles deviendront l’arrière-plan.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Aperçu&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Passe en mode aperçu pour voir à quoi ressemblera l’image finale. Certains outils ne sont disponibles que dans ce mode.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Masque</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Outil Masque&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Affiche le premier plan et l’arrière-plan mis en évidence par des couleurs.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>Choisir l’arrière-plan</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>Outil Main</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>Gomme d’arrière-plan</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>Pinceau d’arrière-plan</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>Pinceau de premier plan</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>Agrandir l’arrière-plan</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>Zoom de l’arrière-plan
Met l’arrière-plan à l’échelle lorsqu’il s’agit d’une image.</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>Réduire l’arrière-plan</translation>
    </message>
    <message>
        <source>finematt</source>
        <translation>Masque fin</translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation>Marqueur bleu</translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation>Marqueur bleu</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Nous contacter</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Parlez-nous&#xa0;!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Vous avez une question&#xa0;?&lt;/p&gt;&lt;p&gt;Vous ne savez pas comment utiliser le produit&#xa0;?&lt;/p&gt;&lt;p&gt;Vous souhaitez une nouvelle fonction&#xa0;?&lt;/p&gt;&lt;p&gt;Vous trouvez notre produit nul&#xa0;?&lt;/p&gt;&lt;p&gt;Vous voulez négocier le prix&#xa0;?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Dites-le-nous&#xa0;! Votre avis compte pour nous.&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>Augmenter la taille de l’outil</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>Réduire la taille de l’outil</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>Augmenter l’intensité du pinceau</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>Réduire l’intensité du pinceau</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>La transparence a été perdue</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>Vous avez choisi une couleur d’arrière-plan transparente, mais vous enregistrez au format JPEG. La transparence de la couleur a été perdue. Veuillez choisir .png pour enregistrer des arrière-plans transparents.</translation>
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
        <translation>Plus d’outils</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>Détourage de l’objet</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>Affichage de l’image</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>Fichiers image (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Aucun fichier sélectionné</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>Impossible de lire l’image</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>image ouverte</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>Image chargée. Prétraitement de l’image.</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>Mémoire insuffisante pour un aperçu</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>calcul du masque inversé</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>dessin de la couche alpha</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>couche alpha dessinée, adoucissement du contour</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>contour adouci</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>Enregistrer le fichier&#xa0;?</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>Vous êtes sur le point d’écraser votre fichier d’origine.
Voulez-vous vraiment continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>Fichiers JPG (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>Taille du marqueur de premier plan&#xa0;: %1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>Taille de l’outil&#xa0;: %1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>Taille du marqueur d’arrière-plan&#xa0;: %1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>Taille du pinceau d’arrière-plan&#xa0;: %1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>Taille du pinceau de premier plan&#xa0;: %1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>Intensité du pinceau d’arrière-plan&#xa0;: %1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>Intensité du pinceau de premier plan&#xa0;: %1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>Pour commencer, ouvrez une photo&#xa0;: Fichier, Ouvrir (Ctrl+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>Mémoire insuffisante pour exporter</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>Ornevo détoure des objets dans des photos.
Réalisé par The Ornevo developers, 2026. https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>Mémoire insuffisante pour un masque</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>Mémoire insuffisante pour détecter les contours</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>Mémoire insuffisante pour enregistrer</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>Largeur du marqueur de premier plan</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>Même taille pour tous les outils</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>Largeur du marqueur d’arrière-plan</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>Lisser les contours</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>Taille du noyau de lissage des contours</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>Largeur de la gomme</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>Opacité du masque</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>Largeur du pinceau de premier plan</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>Intensité du pinceau de premier plan</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>Largeur du pinceau d’arrière-plan</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>Intensité du pinceau d’arrière-plan</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>Largeur du marqueur bleu</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>Annuler</translation>
    </message>
</context>
</TS>
