<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en_US">
<context>
    <name>BackgroundDialog</name>
    <message>
        <source>Select Background Color or Picture</source>
        <translation>Wybór koloru lub obrazu tła</translation>
    </message>
    <message>
        <source>Use picture</source>
        <translation>Użyj obrazu</translation>
    </message>
    <message>
        <source>Use color</source>
        <translation>Użyj koloru</translation>
    </message>
    <message>
        <source>Chosen picture</source>
        <translation>Wybrany obraz</translation>
    </message>
    <message>
        <source>Chosen color</source>
        <translation>Wybrany kolor</translation>
    </message>
    <message>
        <source>Choose the color</source>
        <translation>Wybierz kolor</translation>
    </message>
    <message>
        <source>&quot;...&quot;</source>
        <translation>&quot;...&quot;</translation>
    </message>
    <message>
        <source>Choose the picture</source>
        <translation>Wybierz obraz</translation>
    </message>
    <message>
        <source>Use White</source>
        <translation>Użyj bieli</translation>
    </message>
    <message>
        <source>Use Transparent</source>
        <translation>Użyj przezroczystości</translation>
    </message>
    <message>
        <source>Please select the background color</source>
        <translation>Wybór koloru tła</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Otwieranie obrazu</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp)</source>
        <translation>Pliki obrazów (*.png *.jpg *.bmp)</translation>
    </message>
</context>
<context>
    <name>ExportDialog</name>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>FileName</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Chosen file name</source>
        <translation>Wybrana nazwa pliku</translation>
    </message>
    <message>
        <source>Choose the file name</source>
        <translation>Wybierz nazwę pliku</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Szerokość</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Wysokość</translation>
    </message>
    <message>
        <source>Keep Aspect Ratio</source>
        <translation>Zachowaj proporcje</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Zapisywanie pliku</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg);;PNG Files (*.png)</source>
        <translation>Pliki JPG (*.jpg);;Pliki PNG (*.png)</translation>
    </message>
</context>
<context>
    <name>HelpDialog</name>
    <message>
        <source>Ornevo Help</source>
        <translation>Pomoc programu Ornevo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>:/help/help_en.html</source>
        <extracomment>The help in this language: &quot;:/help/help_&quot; and the catalogue&apos;s language, then &quot;.html&quot;.</extracomment>
        <translation>:/help/help_pl.html</translation>
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
        <translation>Obraz</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Postęp</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Działania</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Narzędzia</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Zapisz</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&quot;Keep&quot; Marker</source>
        <translation>Znacznik „Zachowaj”</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Keep&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to keep.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Znacznik „Zachowaj”&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Służy do zaznaczania obszarów obrazu, które mają zostać zachowane.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&quot;Remove&quot; Marker</source>
        <translation>Znacznik „Usuń”</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;&amp;quot;Remove&amp;quot; Marker&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Used to mark the areas of image you want to remove. They will become background.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Znacznik „Usuń”&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Służy do zaznaczania obszarów obrazu, które mają zostać usunięte. Staną się one tłem.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Spis treści</translation>
    </message>
    <message>
        <source>About</source>
        <translation>O programie</translation>
    </message>
    <message>
        <source>Zoom In</source>
        <translation>Powiększ</translation>
    </message>
    <message>
        <source>Zoom Out</source>
        <translation>Pomniejsz</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Preview&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Switch to preview mode to see how your final picture will look. Some tools are only available in this mode.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Podgląd&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Przełącza w tryb podglądu, który pokazuje, jak będzie wyglądał gotowy obraz. Niektóre narzędzia są dostępne tylko w tym trybie.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Mask</source>
        <translation>Maska</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Mask Tool&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Preview your foreground and background highlighted with colors.&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Narzędzie Maska&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Pokazuje pierwszy plan i tło wyróżnione kolorami.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Select Background</source>
        <translation>Wybierz tło</translation>
    </message>
    <message>
        <source>HandTool</source>
        <translation>Narzędzie Rączka</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Eksportuj</translation>
    </message>
    <message>
        <source>Ctrl+S</source>
        <translation>Ctrl+S</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gumka</translation>
    </message>
    <message>
        <source>Background Eraser</source>
        <translation>Gumka tła</translation>
    </message>
    <message>
        <source>Background Brush</source>
        <translation>Pędzel tła</translation>
    </message>
    <message>
        <source>Foreground Brush</source>
        <translation>Pędzel pierwszego planu</translation>
    </message>
    <message>
        <source>backgroundZoomPlus</source>
        <translation>Powiększ tło</translation>
    </message>
    <message>
        <source>Background Zoom
Scales the background when it is a picture.</source>
        <translation>Powiększenie tła
Skaluje tło, gdy jest nim obraz.</translation>
    </message>
    <message>
        <source>backgroundZoomMinus</source>
        <translation>Pomniejsz tło</translation>
    </message>
    <message>
        <source>finematt</source>
        <translation>Dokładna maska</translation>
    </message>
    <message>
        <source>BlueMarker</source>
        <translation>Niebieski znacznik</translation>
    </message>
    <message>
        <source>Blue marker</source>
        <translation>Niebieski znacznik</translation>
    </message>
    <message>
        <source>Contact Us</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>&lt;p&gt;&lt;b&gt;Talk to us!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Have a question?&lt;/p&gt;&lt;p&gt;Don&apos;t know how to use the product?&lt;/p&gt;&lt;p&gt;Want a new feature?&lt;/p&gt;&lt;p&gt;Think our product sucks?&lt;/p&gt;&lt;p&gt;Want to negotiate price?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Tell us about that! Your opinion matters to us.&lt;/b&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;&lt;b&gt;Porozmawiajmy!&lt;/b&gt;&lt;/p&gt;&lt;p&gt;Jakieś pytania?&lt;/p&gt;&lt;p&gt;Nie wiadomo, jak używać programu?&lt;/p&gt;&lt;p&gt;Potrzebna jest nowa funkcja?&lt;/p&gt;&lt;p&gt;Program jest do niczego?&lt;/p&gt;&lt;p&gt;Cena do negocjacji?&lt;/p&gt;&lt;p&gt;&lt;b&gt;Prosimy o tym napisać! Każda opinia jest dla nas ważna.&lt;/b&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>increaseToolSize</source>
        <translation>Zwiększ rozmiar narzędzia</translation>
    </message>
    <message>
        <source>Ctrl+Right</source>
        <translation>Ctrl+Right</translation>
    </message>
    <message>
        <source>decreaseToolSize</source>
        <translation>Zmniejsz rozmiar narzędzia</translation>
    </message>
    <message>
        <source>Ctrl+Left</source>
        <translation>Ctrl+Left</translation>
    </message>
    <message>
        <source>increaseBrushIntensity</source>
        <translation>Zwiększ intensywność pędzla</translation>
    </message>
    <message>
        <source>Ctrl+Up</source>
        <translation>Ctrl+Up</translation>
    </message>
    <message>
        <source>decreaseBrushIntensity</source>
        <translation>Zmniejsz intensywność pędzla</translation>
    </message>
    <message>
        <source>Ctrl+Down</source>
        <translation>Ctrl+Down</translation>
    </message>
    <message>
        <source>Transparency was lost</source>
        <translation>Utracono przezroczystość</translation>
    </message>
    <message>
        <source>You&apos;ve selected a transparent background color but saving as jpeg. Transparency of the color was lost. Please choose .png to save transparent backgrounds</source>
        <translation>Wybrano przezroczysty kolor tła, ale zapisano w formacie JPEG. Przezroczystość koloru została utracona. Aby zapisywać przezroczyste tła, należy wybrać .png.</translation>
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
        <translation>Więcej narzędzi</translation>
    </message>
    <message>
        <source>Isolating object</source>
        <translation>Wyodrębnianie obiektu</translation>
    </message>
    <message>
        <source>Displaying image</source>
        <translation>Wyświetlanie obrazu</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gotowe</translation>
    </message>
    <message>
        <source>Open Image</source>
        <translation>Otwieranie obrazu</translation>
    </message>
    <message>
        <source>Image Files (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;All files (*.*)</source>
        <translation>Pliki obrazów (*.png *.jpg *.bmp *.jpeg *.tiff *.tif *.gif);;Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <source>No file selected</source>
        <translation>Nie wybrano pliku</translation>
    </message>
    <message>
        <source>Failed to read image</source>
        <translation>Nie udało się odczytać obrazu</translation>
    </message>
    <message>
        <source>image opened</source>
        <translation>otwarto obraz</translation>
    </message>
    <message>
        <source>Image loaded. Preprocessing image.</source>
        <translation>Wczytano obraz. Wstępne przetwarzanie obrazu.</translation>
    </message>
    <message>
        <source>Not enough memory for a preview</source>
        <translation>Za mało pamięci na podgląd</translation>
    </message>
    <message>
        <source>getting inversed mask</source>
        <translation>wyznaczanie odwróconej maski</translation>
    </message>
    <message>
        <source>painting alpha channel</source>
        <translation>malowanie kanału alfa</translation>
    </message>
    <message>
        <source>painting alpha channel done, now feather</source>
        <translation>pomalowano kanał alfa, teraz wygładzanie krawędzi</translation>
    </message>
    <message>
        <source>feather done</source>
        <translation>krawędź wygładzona</translation>
    </message>
    <message>
        <source>Save file?</source>
        <translation>Zapisać plik?</translation>
    </message>
    <message>
        <source>You are going to overwrite your original file.
Are you sure you want to continue?</source>
        <translation>Oryginalny plik zostanie nadpisany.
Czy na pewno kontynuować?</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Zapisywanie pliku</translation>
    </message>
    <message>
        <source>JPG Files (*.jpg)</source>
        <translation>Pliki JPG (*.jpg)</translation>
    </message>
    <message>
        <source>Foreground marker size is %1</source>
        <translation>Rozmiar znacznika pierwszego planu: %1</translation>
    </message>
    <message>
        <source>Tool size is %1</source>
        <translation>Rozmiar narzędzia: %1</translation>
    </message>
    <message>
        <source>Background marker size is %1</source>
        <translation>Rozmiar znacznika tła: %1</translation>
    </message>
    <message>
        <source>Background brush size is %1</source>
        <translation>Rozmiar pędzla tła: %1</translation>
    </message>
    <message>
        <source>Foreground brush size is %1</source>
        <translation>Rozmiar pędzla pierwszego planu: %1</translation>
    </message>
    <message>
        <source>Background brush intensity is %1</source>
        <translation>Intensywność pędzla tła: %1</translation>
    </message>
    <message>
        <source>Foreground brush intensity is %1</source>
        <translation>Intensywność pędzla pierwszego planu: %1</translation>
    </message>
    <message>
        <source>Open a photo to begin: File, Open (Ctrl+O)</source>
        <translation>Na początek należy otworzyć zdjęcie: Plik, Otwórz (Ctrl+O)</translation>
    </message>
    <message>
        <source>Not enough memory to export</source>
        <translation>Za mało pamięci na eksport</translation>
    </message>
    <message>
        <source>Ornevo cuts objects out of photographs.
Made by the Ornevo developers, 2026. https://ornevo.example</source>
        <translation>Ornevo wycina obiekty ze zdjęć.
Autorzy: The Ornevo developers, 2026. https://ornevo.example</translation>
    </message>
    <message>
        <source>Not enough memory for a mask</source>
        <translation>Za mało pamięci na maskę</translation>
    </message>
    <message>
        <source>Not enough memory to find the edges</source>
        <translation>Za mało pamięci, aby znaleźć krawędzie</translation>
    </message>
    <message>
        <source>Not enough memory to save</source>
        <translation>Za mało pamięci, aby zapisać</translation>
    </message>
</context>
<context>
    <name>OptionsDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Preferencje</translation>
    </message>
    <message>
        <source>Foreground Marker width</source>
        <translation>Szerokość znacznika pierwszego planu</translation>
    </message>
    <message>
        <source>Same size for all tools</source>
        <translation>Ten sam rozmiar dla wszystkich narzędzi</translation>
    </message>
    <message>
        <source>Background Marker width</source>
        <translation>Szerokość znacznika tła</translation>
    </message>
    <message>
        <source>Smooth Edges</source>
        <translation>Wygładzaj krawędzie</translation>
    </message>
    <message>
        <source>Smooth Edges kernel size</source>
        <translation>Rozmiar jądra wygładzania krawędzi</translation>
    </message>
    <message>
        <source>Eraser width</source>
        <translation>Szerokość gumki</translation>
    </message>
    <message>
        <source>Mask opacity</source>
        <translation>Krycie maski</translation>
    </message>
    <message>
        <source>Foreground Brush width</source>
        <translation>Szerokość pędzla pierwszego planu</translation>
    </message>
    <message>
        <source>Foreground Brush Intensity</source>
        <translation>Intensywność pędzla pierwszego planu</translation>
    </message>
    <message>
        <source>Background Brush width</source>
        <translation>Szerokość pędzla tła</translation>
    </message>
    <message>
        <source>Background Brush Intensity</source>
        <translation>Intensywność pędzla tła</translation>
    </message>
    <message>
        <source>Blue Marker width</source>
        <translation>Szerokość niebieskiego znacznika</translation>
    </message>
</context>
<context>
    <name>QUndoStack</name>
    <message>
        <source>Undo</source>
        <comment>Default text for undo action</comment>
        <translation>Cofnij</translation>
    </message>
</context>
</TS>
