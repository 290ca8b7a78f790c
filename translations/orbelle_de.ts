<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>Core</name>
    <message>
        <source>Add Layer</source>
        <translation>Ebene hinzufügen</translation>
    </message>
    <message>
        <source>Delete Layer</source>
        <translation>Ebene löschen</translation>
    </message>
    <message>
        <source>Delete Selection</source>
        <translation>Auswahl löschen</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Merge Down</source>
        <translation>Nach unten vereinen</translation>
    </message>
    <message>
        <source>To Front</source>
        <translation>In den Vordergrund</translation>
    </message>
    <message>
        <source>To Back</source>
        <translation>In den Hintergrund</translation>
    </message>
    <message>
        <source>Back One</source>
        <translation>Schrittweise nach hinten</translation>
    </message>
    <message>
        <source>Forward One</source>
        <translation>Schrittweise nach vorn</translation>
    </message>
    <message>
        <source>Set Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Rename Layer</source>
        <translation>Ebene umbenennen</translation>
    </message>
    <message>
        <source>Flip Horizontal</source>
        <translation>Horizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip Vertical</source>
        <translation>Vertikal spiegeln</translation>
    </message>
    <message>
        <source>Rotate 90 CW</source>
        <translation>Um 90° nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate 90 CWW</source>
        <translation>Um 90° nach links drehen</translation>
    </message>
    <message>
        <source>Move Layer</source>
        <translation>Ebene verschieben</translation>
    </message>
    <message>
        <source>Move Selection</source>
        <translation>Auswahl verschieben</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Page Size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Page Background</source>
        <translation>Seitenhintergrund</translation>
    </message>
    <message>
        <source>Draw by Hand</source>
        <translation>Von Hand zeichnen</translation>
    </message>
    <message>
        <source>Copy to Size</source>
        <translation>In Größe kopieren</translation>
    </message>
    <message>
        <source>Back to Master&apos;s</source>
        <translation>Zurück zum Master</translation>
    </message>
    <message>
        <source>Disabled State</source>
        <translation>Deaktivierter Zustand</translation>
    </message>
    <message>
        <source>Hot State</source>
        <translation>Hervorgehobener Zustand</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>Fresh</translation>
    </message>
    <message>
        <source>IOS</source>
        <translation>iOS</translation>
    </message>
    <message>
        <source>Origami</source>
        <translation>Origami</translation>
    </message>
    <message>
        <source>Mac</source>
        <translation>Mac</translation>
    </message>
    <message>
        <source>Vista</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Crystal</source>
        <translation>Kristall</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichnen</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>Scharfzeichnen</translation>
    </message>
    <message>
        <source>Irradiation</source>
        <translation>Lichteinfall</translation>
    </message>
    <message>
        <source>Shade</source>
        <translation>Schattierung</translation>
    </message>
    <message>
        <source>Reflection</source>
        <translation>Spiegelung</translation>
    </message>
    <message>
        <source>Drop Shadow</source>
        <translation>Schlagschatten</translation>
    </message>
    <message>
        <source>Pencil</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Filled Rectangle</source>
        <translation>Gefülltes Rechteck</translation>
    </message>
    <message>
        <source>Filled Ellipse</source>
        <translation>Gefüllte Ellipse</translation>
    </message>
    <message>
        <source>Pencil Eraser</source>
        <translation>Stiftradierer</translation>
    </message>
    <message>
        <source>Brush Eraser</source>
        <translation>Pinselradierer</translation>
    </message>
    <message>
        <source>Click on the &quot;New&quot; button or &quot;Open&quot; Button to create a new icon or open an existing file.</source>
        <translation>Mit „Neu“ ein neues Icon anlegen oder mit „Öffnen“ eine vorhandene Datei öffnen.</translation>
    </message>
    <message>
        <source>Click on the &quot;Import&quot; button, you can import one or more images.</source>
        <translation>Mit „Importieren“ lassen sich ein oder mehrere Bilder hinzufügen.</translation>
    </message>
    <message>
        <source>Not satisfied with the current results? You can click on the Undo/Redo button to restore.</source>
        <translation>Gefällt das Ergebnis nicht? „Rückgängig“ nimmt den Schritt zurück, „Wiederholen“ stellt ihn wieder her.</translation>
    </message>
    <message>
        <source>Here you can change the opacity of the Reflection.</source>
        <translation>Hier lässt sich die Deckkraft der Spiegelung ändern.</translation>
    </message>
    <message>
        <source>Here you can change the opacity of the Crystal.</source>
        <translation>Hier lässt sich die Deckkraft des Kristall-Stils ändern.</translation>
    </message>
    <message>
        <source>Here you can change the opacity of the Shade.</source>
        <translation>Hier lässt sich die Deckkraft der Schattierung ändern.</translation>
    </message>
    <message>
        <source>Here you can change the opacity of the Vista style.</source>
        <translation>Hier lässt sich die Deckkraft des Vista-Stils ändern.</translation>
    </message>
    <message>
        <source>Click here, you could try to draw a rectangle, or click File/Import to import a picture. it will look more perfect.</source>
        <translation>Hier klicken und ein Rechteck zeichnen oder mit Datei/Importieren ein Bild hinzufügen: Damit sieht das Icon noch besser aus.</translation>
    </message>
    <message>
        <source>To move the icon, you must to choose an icon object.</source>
        <translation>Um ein Icon zu verschieben, zuerst ein Objekt auswählen.</translation>
    </message>
    <message>
        <source>Click right-click to rotate, flip or adjust the order the selected icon.</source>
        <translation>Ein Rechtsklick dreht oder spiegelt das ausgewählte Icon oder ändert seine Reihenfolge.</translation>
    </message>
    <message>
        <source>Using the mouse Drag &amp; Drop or direction key to move the selected icon. Click &quot;Style&quot; menu to ornament your icon.</source>
        <translation>Das ausgewählte Icon mit der Maus ziehen oder mit den Pfeiltasten verschieben. Das Menü „Stil“ verziert das Icon.</translation>
    </message>
    <message>
        <source>You aslo can click the &quot;Add&quot; button to import a new icon image.</source>
        <translation>Auch „Hinzufügen“ importiert ein neues Bild.</translation>
    </message>
    <message>
        <source>Single click or Drag &amp; Drop to draw a single pixel on the selected icon layer.</source>
        <translation>Klicken oder ziehen zeichnet Pixel auf die ausgewählte Ebene.</translation>
    </message>
    <message>
        <source>Using the mouse Drag &amp; Drop to draw a line on the selected icon layer.</source>
        <translation>Mit der Maus ziehen, um eine Linie auf die ausgewählte Ebene zu zeichnen.</translation>
    </message>
    <message>
        <source>Using the mouse Drag &amp; Drop to draw a rectangle on the selected icon layer. Press Shift key to draw a square.</source>
        <translation>Mit der Maus ziehen, um ein Rechteck auf die ausgewählte Ebene zu zeichnen. Mit der Umschalttaste wird es ein Quadrat.</translation>
    </message>
    <message>
        <source>Using the mouse Drag &amp; Drop to draw a ellipse on the selected icon layer. Press Shift key to draw a circle.</source>
        <translation>Mit der Maus ziehen, um eine Ellipse auf die ausgewählte Ebene zu zeichnen. Mit der Umschalttaste wird es ein Kreis.</translation>
    </message>
    <message>
        <source>Single click or Drag &amp; Drop to change a pixel to transparent on the selected icon layer.</source>
        <translation>Klicken oder ziehen macht einzelne Pixel der ausgewählten Ebene transparent.</translation>
    </message>
    <message>
        <source>Using the mouse Drag &amp; Drop to draw a selection region. Then choose Edit/Cut or Edit/Copy to cut or copy the selection region.</source>
        <translation>Mit der Maus ziehen, um einen Bereich auszuwählen. Bearbeiten/Ausschneiden oder Bearbeiten/Kopieren übernimmt ihn dann.</translation>
    </message>
    <message>
        <source>Single click or Drag &amp; Drop to change pixels to transparent on the selected icon layer.</source>
        <translation>Klicken oder ziehen macht Pixel der ausgewählten Ebene transparent.</translation>
    </message>
    <message>
        <source>Set the pencil color and opacity. Double-click to set background color/foreground color.</source>
        <translation>Farbe und Deckkraft des Stifts einstellen. Ein Doppelklick ändert Vorder- oder Hintergrundfarbe.</translation>
    </message>
    <message>
        <source>Set the line color, width and opacity. Double-click to set background color/foreground color.</source>
        <translation>Farbe, Breite und Deckkraft der Linie einstellen. Ein Doppelklick ändert Vorder- oder Hintergrundfarbe.</translation>
    </message>
    <message>
        <source>Set the rectangle color, width and opacity. Double-click to set background color/foreground color.</source>
        <translation>Farbe, Linienbreite und Deckkraft des Rechtecks einstellen. Ein Doppelklick ändert Vorder- oder Hintergrundfarbe.</translation>
    </message>
    <message>
        <source>Set the ellipse color, width and opacity. Double-click to set background color/foreground color.</source>
        <translation>Farbe, Linienbreite und Deckkraft der Ellipse einstellen. Ein Doppelklick ändert Vorder- oder Hintergrundfarbe.</translation>
    </message>
    <message>
        <source>Brush eraser have more options: An opacity of 100% erases pixels completely. A lower opacity erases pixels partially.</source>
        <translation>Der Pinselradierer hat mehr Einstellungen: Eine Deckkraft von 100% löscht Pixel ganz, eine geringere nur teilweise.</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>Invalid File</source>
        <translation>Ungültige Datei</translation>
    </message>
    <message>
        <source>Please input a integer from 1 to 512.</source>
        <translation>Bitte eine ganze Zahl von 1 bis 512 eingeben.</translation>
    </message>
    <message>
        <source>The layer is too large to be moved by half a pixel.</source>
        <translation>Die Ebene ist zu groß, um sie um einen halben Pixel zu verschieben.</translation>
    </message>
    <message>
        <source>The layer lies more than 4194304 pixels away from the page.</source>
        <translation>Die Ebene liegt mehr als 4194304 Pixel von der Seite entfernt.</translation>
    </message>
    <message>
        <source>The two layers are too far apart to become one picture.</source>
        <translation>Die beiden Ebenen liegen zu weit auseinander, um ein Bild zu werden.</translation>
    </message>
    <message>
        <source>a newer version has written it</source>
        <translation>eine neuere Version hat das geschrieben</translation>
    </message>
    <message>
        <source>a picture is missing in the journal</source>
        <translation>im Journal fehlt ein Bild</translation>
    </message>
    <message>
        <source>a size can&apos;t be copied to itself</source>
        <translation>eine Größe kann nicht in sich selbst kopiert werden</translation>
    </message>
    <message>
        <source>it has several names</source>
        <translation>die Datei hat mehrere Namen</translation>
    </message>
    <message>
        <source>its checksum is wrong</source>
        <translation>die Prüfsumme stimmt nicht</translation>
    </message>
    <message>
        <source>its opacity is not a number</source>
        <translation>die Deckkraft ist keine Zahl</translation>
    </message>
    <message>
        <source>its rectangle lies too far out</source>
        <translation>das Rechteck liegt zu weit außen</translation>
    </message>
    <message>
        <source>its sizes are not in order</source>
        <translation>die Größen sind nicht geordnet</translation>
    </message>
    <message>
        <source>larger than 256 x 256 pixels</source>
        <translation>größer als 256 x 256 Pixel</translation>
    </message>
    <message>
        <source>not a PNG, JPEG, GIF or BMP picture</source>
        <translation>kein PNG-, JPEG-, GIF- oder BMP-Bild</translation>
    </message>
    <message>
        <source>not a PNG, JPEG, GIF, BMP, WebP or SVG picture</source>
        <translation>kein PNG-, JPEG-, GIF-, BMP-, WebP- oder SVG-Bild</translation>
    </message>
    <message>
        <source>not a Windows icon</source>
        <translation>kein Windows-Icon</translation>
    </message>
    <message>
        <source>not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>the GIF file holds no picture</source>
        <translation>die GIF-Datei enthält kein Bild</translation>
    </message>
    <message>
        <source>the BMP picture is of a kind that is not supported</source>
        <translation>diese Art von BMP-Bild wird nicht unterstützt</translation>
    </message>
    <message>
        <source>the SVG drawing takes too long</source>
        <translation>die SVG-Zeichnung braucht zu lange</translation>
    </message>
    <message>
        <source>the SVG drawing takes too much memory, or is damaged</source>
        <translation>die SVG-Zeichnung braucht zu viel Speicher oder ist beschädigt</translation>
    </message>
    <message>
        <source>the artwork of a size keeps its size</source>
        <translation>das eigene Bild einer Größe behält seine Größe</translation>
    </message>
    <message>
        <source>the bitmap is of a kind that icons do not have</source>
        <translation>diese Art von Bitmap gibt es in Icons nicht</translation>
    </message>
    <message>
        <source>the file is cut short</source>
        <translation>die Datei ist unvollständig</translation>
    </message>
    <message>
        <source>the icon holds no image</source>
        <translation>das Icon enthält kein Bild</translation>
    </message>
    <message>
        <source>the icon&apos;s directory is cut short</source>
        <translation>das Verzeichnis des Icons ist unvollständig</translation>
    </message>
    <message>
        <source>the images of the icon are too large together</source>
        <translation>die Bilder des Icons sind zusammen zu groß</translation>
    </message>
    <message>
        <source>the journal is damaged</source>
        <translation>das Journal ist beschädigt</translation>
    </message>
    <message>
        <source>the picture can&apos;t be read</source>
        <translation>das Bild kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the pictures of the document are not complete</source>
        <translation>die Bilder des Dokuments sind nicht vollständig</translation>
    </message>
    <message>
        <source>the pictures of the document have no place</source>
        <translation>die Bilder des Dokuments haben keinen Platz</translation>
    </message>
    <message>
        <source>there is no home folder</source>
        <translation>es gibt keinen persönlichen Ordner</translation>
    </message>
    <message>
        <source>there is no page to export</source>
        <translation>es gibt keine Seite zum Exportieren</translation>
    </message>
    <message>
        <source>there is something else of that name</source>
        <translation>etwas anderes trägt schon diesen Namen</translation>
    </message>
    <message>
        <source>Varnel Orbelle - Project *</source>
        <translation>Varnel Orbelle - Projekt *</translation>
    </message>
    <message>
        <source>Varnel Orbelle - Project * - %1</source>
        <translation>Varnel Orbelle - Projekt * - %1</translation>
    </message>
    <message>
        <source>A document can&apos;t have more than %1 layers.</source>
        <translation>Ein Dokument kann nicht mehr als %1 Ebenen haben.</translation>
    </message>
    <message>
        <source>The undo history is full after %1 changes. Save the document and open it again to go on.</source>
        <translation>Nach %1 Änderungen ist der Verlauf voll. Zum Weitermachen das Dokument speichern und wieder öffnen.</translation>
    </message>
    <message>
        <source>The page is too large: %1 pixels.</source>
        <translation>Die Seite ist zu groß: %1 Pixel.</translation>
    </message>
    <message>
        <source>The layer is too large: %1 pixels.</source>
        <translation>Die Ebene ist zu groß: %1 Pixel.</translation>
    </message>
    <message>
        <source>The document has %1 layers, more than the %2 that can be opened again.</source>
        <translation>Das Dokument hat %1 Ebenen; nur mit %2 ließe es sich wieder öffnen.</translation>
    </message>
    <message>
        <source>The page and its layers have %1 pixels together, more than the %2 that a document can hold.</source>
        <translation>Seite und Ebenen haben zusammen %1 Pixel, mehr als die %2, die ein Dokument fasst.</translation>
    </message>
    <message>
        <source>the page and the layers up to here have %1 pixels together, more than the %2 that a document can hold</source>
        <translation>Seite und Ebenen bis hierher haben zusammen %1 Pixel, mehr als die %2, die ein Dokument fasst</translation>
    </message>
    <message>
        <source>the page is too large: %1 pixels</source>
        <translation>die Seite ist zu groß: %1 Pixel</translation>
    </message>
    <message>
        <source>its picture is too large: %1 pixels</source>
        <translation>das Bild ist zu groß: %1 Pixel</translation>
    </message>
    <message>
        <source>the hot spot %1 lies outside the page</source>
        <translation>der Hotspot %1 liegt außerhalb der Seite</translation>
    </message>
    <message>
        <source>artwork of its own has a size of %1 to %2</source>
        <translation>ein eigenes Bild gibt es in den Größen %1 bis %2</translation>
    </message>
    <message>
        <source>the size %1 has no artwork of its own</source>
        <translation>die Größe %1 hat kein eigenes Bild</translation>
    </message>
    <message>
        <source>there is no size %1</source>
        <translation>es gibt keine Größe %1</translation>
    </message>
    <message>
        <source>there is no image %1; the icon has %2</source>
        <translation>es gibt kein Bild %1; das Icon hat %2</translation>
    </message>
    <message>
        <source>larger than %1 MiB</source>
        <translation>größer als %1 MiB</translation>
    </message>
    <message>
        <source>the picture claims a size of %1 pixels</source>
        <translation>das Bild gibt eine Größe von %1 Pixel an</translation>
    </message>
    <message>
        <source>the picture claims %1 pixels, more than %2 a side or %3 in all</source>
        <translation>das Bild gibt %1 Pixel an, mehr als %2 je Seite oder %3 insgesamt</translation>
    </message>
    <message>
        <source>the picture of %1 pixels is too large: there is room for %2 pixels</source>
        <translation>das Bild mit %1 Pixel ist zu groß: Platz ist für %2 Pixel</translation>
    </message>
    <message>
        <source>the SVG drawing is too large: more than %1 MiB, or damaged</source>
        <translation>die SVG-Zeichnung ist zu groß: mehr als %1 MiB, oder beschädigt</translation>
    </message>
    <message>
        <source>the WebP picture is too large: %1 MiB, more than %2</source>
        <translation>das WebP-Bild ist zu groß: %1 MiB, mehr als %2</translation>
    </message>
    <message>
        <source>the JPEG picture is too large: %1 MiB of arithmetic coding, more than %2</source>
        <translation>das JPEG-Bild ist zu groß: %1 MiB in arithmetischer Kodierung, mehr als %2</translation>
    </message>
    <message>
        <source>the JPEG picture is too large: %1 MiB in several scans, more than %2</source>
        <translation>das JPEG-Bild ist zu groß: %1 MiB in mehreren Durchgängen, mehr als %2</translation>
    </message>
    <message>
        <source>the JPEG picture is too large: %1 MiB to put its scans together, more than %2</source>
        <translation>das JPEG-Bild ist zu groß: %1 MiB, um seine Durchgänge zusammenzusetzen, mehr als %2</translation>
    </message>
    <message>
        <source>the %1 picture is cut short or damaged: %2</source>
        <translation>das %1-Bild ist unvollständig oder beschädigt: %2</translation>
    </message>
    <message>
        <source>the GIF picture can&apos;t be written: %1</source>
        <translation>das GIF-Bild kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>the SVG drawing can&apos;t be read: %1: %2</source>
        <translation>die SVG-Zeichnung kann nicht gelesen werden: %1: %2</translation>
    </message>
    <message>
        <source>%1, and a copy for writing in place can&apos;t be made: %2</source>
        <translation>%1, und die Kopie, um an Ort und Stelle zu schreiben, ist nicht möglich: %2</translation>
    </message>
    <message>
        <source>%1. What was to be saved is in %2</source>
        <translation>%1. Was gespeichert werden sollte, liegt in %2</translation>
    </message>
    <message>
        <source>the icon has no square image of 8 to 256 pixels that can be read: %1</source>
        <translation>das Icon hat kein lesbares quadratisches Bild von 8 bis 256 Pixel: %1</translation>
    </message>
    <message>
        <source>no image of the icon can be read: %1</source>
        <translation>kein Bild des Icons kann gelesen werden: %1</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>ausgelassen: %1</translation>
    </message>
    <message>
        <source>the artwork of single sizes could not be read: %1</source>
        <translation>die eigenen Bilder einzelner Größen konnten nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>%1 of %2 layers could be read</source>
        <translation>%1 von %2 Ebenen konnten gelesen werden</translation>
    </message>
    <message>
        <source>more than %1 layers</source>
        <translation>mehr als %1 Ebenen</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>image %1: %2</source>
        <translation>Bild %1: %2</translation>
    </message>
    <message>
        <source>layer %1: %2</source>
        <translation>Ebene %1: %2</translation>
    </message>
    <message>
        <source>size %1, %2</source>
        <translation>Größe %1, %2</translation>
    </message>
    <message>
        <source>a channel&apos;s bits are not in a row</source>
        <translation>die Bits eines Kanals liegen nicht beieinander</translation>
    </message>
    <message>
        <source>its drawing ended too early</source>
        <translation>das Zeichnen endete zu früh</translation>
    </message>
    <message>
        <source>its drawing has a wrong size</source>
        <translation>die Zeichnung hat eine falsche Größe</translation>
    </message>
    <message>
        <source>its header is too long</source>
        <translation>der Kopf ist zu lang</translation>
    </message>
    <message>
        <source>its parts don&apos;t fit together</source>
        <translation>die Teile passen nicht zusammen</translation>
    </message>
    <message>
        <source>its pixels can&apos;t be decoded</source>
        <translation>die Pixel lassen sich nicht dekodieren</translation>
    </message>
    <message>
        <source>it can&apos;t be drawn</source>
        <translation>es lässt sich nicht zeichnen</translation>
    </message>
    <message>
        <source>it has no picture</source>
        <translation>es enthält kein Bild</translation>
    </message>
    <message>
        <source>it has no size</source>
        <translation>es hat keine Größe</translation>
    </message>
    <message>
        <source>it has too many scans for its size</source>
        <translation>es hat zu viele Durchgänge für seine Größe</translation>
    </message>
    <message>
        <source>it is no SVG document</source>
        <translation>es ist kein SVG-Dokument</translation>
    </message>
    <message>
        <source>no room for it</source>
        <translation>kein Platz dafür</translation>
    </message>
    <message>
        <source>the data can&apos;t be read</source>
        <translation>die Daten können nicht gelesen werden</translation>
    </message>
    <message>
        <source>the data ends too early</source>
        <translation>die Daten enden zu früh</translation>
    </message>
    <message>
        <source>the library is of another version</source>
        <translation>die Bibliothek hat eine andere Version</translation>
    </message>
    <message>
        <source>the pixels lie outside the file</source>
        <translation>die Pixel liegen außerhalb der Datei</translation>
    </message>
    <message>
        <source>too little data for its size</source>
        <translation>zu wenig Daten für die Größe</translation>
    </message>
    <message>
        <source>unknown error</source>
        <translation>unbekannter Fehler</translation>
    </message>
    <message>
        <source>unknown header</source>
        <translation>unbekannter Kopf</translation>
    </message>
    <message>
        <source>another program keeps the file open</source>
        <translation>ein anderes Programm hält die Datei offen</translation>
    </message>
    <message>
        <source>SVG drawings can&apos;t be read on Windows</source>
        <translation>SVG-Zeichnungen können unter Windows nicht gelesen werden</translation>
    </message>
    <message>
        <source>error %1 of the system</source>
        <translation>Fehler %1 des Systems</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>ICO Files (*.ICO)</source>
        <translation>ICO-Dateien (*.ICO)</translation>
    </message>
    <message>
        <source>PNG Files (*.PNG)</source>
        <translation>PNG-Dateien (*.PNG)</translation>
    </message>
    <message>
        <source>GIF Files (*.GIF)</source>
        <translation>GIF-Dateien (*.GIF)</translation>
    </message>
    <message>
        <source>JPEG Files (*.JPG;*.JPEG)</source>
        <translation>JPEG-Dateien (*.JPG;*.JPEG)</translation>
    </message>
    <message>
        <source>BMP Files (*.BMP)</source>
        <translation>BMP-Dateien (*.BMP)</translation>
    </message>
    <message>
        <source>CUR Files (*.CUR)</source>
        <translation>CUR-Dateien (*.CUR)</translation>
    </message>
    <message>
        <source>WebP Files (*.WEBP)</source>
        <translation>WebP-Dateien (*.WEBP)</translation>
    </message>
    <message>
        <source>SVG Files (*.SVG;*.SVGZ)</source>
        <translation>SVG-Dateien (*.SVG;*.SVGZ)</translation>
    </message>
    <message>
        <source>All Supported Formats</source>
        <translation>Alle unterstützten Formate</translation>
    </message>
    <message>
        <source>Varnel Orbelle Files (*.VOLF)</source>
        <translation>Varnel-Orbelle-Dateien (*.VOLF)</translation>
    </message>
    <message>
        <source>%1: the file is not there any more</source>
        <translation>%1: Die Datei ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Page Background</source>
        <translation>Seitenhintergrund</translation>
    </message>
    <message>
        <source>Foreground Color</source>
        <translation>Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Background Color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Page width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Page height</source>
        <translation>Seitenhöhe</translation>
    </message>
    <message>
        <source>Page size</source>
        <translation>Seitengröße</translation>
    </message>
    <message>
        <source>Page background</source>
        <translation>Seitenhintergrund</translation>
    </message>
    <message>
        <source>No page background</source>
        <translation>Kein Seitenhintergrund</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Foreground color</source>
        <translation>Vordergrundfarbe</translation>
    </message>
    <message>
        <source>Background color</source>
        <translation>Hintergrundfarbe</translation>
    </message>
    <message>
        <source>%1: click to use it, double-click to change it</source>
        <translation>%1: Klick zum Verwenden, Doppelklick zum Ändern</translation>
    </message>
    <message>
        <source>Exchange the colors</source>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>Colors</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Color opacity</source>
        <translation>Farbdeckkraft</translation>
    </message>
    <message>
        <source>Line width</source>
        <translation>Linienbreite</translation>
    </message>
    <message>
        <source>Brush size</source>
        <translation>Pinselgröße</translation>
    </message>
    <message>
        <source>Brush opacity</source>
        <translation>Pinseldeckkraft</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
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
        <source>Original Size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Website</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>Move tool</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Selection tool</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>Pencil tool</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Line tool</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Rectangle tool</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Filled Rectangle tool</source>
        <translation>Gefülltes Rechteck</translation>
    </message>
    <message>
        <source>Ellipse tool</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Filled Ellipse tool</source>
        <translation>Gefüllte Ellipse</translation>
    </message>
    <message>
        <source>Color Pick tool</source>
        <translation>Farbpipette</translation>
    </message>
    <message>
        <source>Erase tool</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Solid</source>
        <translation>Einfarbig</translation>
    </message>
    <message>
        <source>Horizontal Gradient</source>
        <translation>Horizontaler Verlauf</translation>
    </message>
    <message>
        <source>Vertical Gradient</source>
        <translation>Vertikaler Verlauf</translation>
    </message>
    <message>
        <source>Radial Gradient</source>
        <translation>Radialer Verlauf</translation>
    </message>
    <message>
        <source>Import Icon...</source>
        <translation>Icon importieren...</translation>
    </message>
    <message>
        <source>Remove Layer</source>
        <translation>Ebene entfernen</translation>
    </message>
    <message>
        <source>Hide Layer</source>
        <translation>Ebene ausblenden</translation>
    </message>
    <message>
        <source>Set Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>Merge Down</source>
        <translation>Nach unten vereinen</translation>
    </message>
    <message>
        <source>Rectangle Selection</source>
        <translation>Rechteckige Auswahl</translation>
    </message>
    <message>
        <source>Ellipse Selection</source>
        <translation>Elliptische Auswahl</translation>
    </message>
    <message>
        <source>Polygon Selection</source>
        <translation>Polygon-Auswahl</translation>
    </message>
    <message>
        <source>Brush Eraser</source>
        <translation>Pinselradierer</translation>
    </message>
    <message>
        <source>Pencil Eraser</source>
        <translation>Stiftradierer</translation>
    </message>
    <message>
        <source>Main tool bar</source>
        <translation>Hauptwerkzeugleiste</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Fill kinds</source>
        <translation>Füllarten</translation>
    </message>
    <message>
        <source>Layer commands</source>
        <translation>Ebenenbefehle</translation>
    </message>
    <message>
        <source>Selection kinds</source>
        <translation>Auswahlarten</translation>
    </message>
    <message>
        <source>Erasers</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Undo %1</source>
        <translation>Rückgängig: %1</translation>
    </message>
    <message>
        <source>Redo %1</source>
        <translation>Wiederholen: %1</translation>
    </message>
    <message>
        <source>You can choose Help/Tips to close the tips if you already know how to use the Orbelle.</source>
        <translation>Wer Orbelle schon kennt, schaltet die Tipps mit Hilfe/Tipps ab.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <source>Old</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>#RRGGBB or #AARRGGBB</source>
        <translation>#RRGGBB oder #AARRGGBB</translation>
    </message>
    <message>
        <source>Colo&amp;r:</source>
        <translation>&amp;Farbe:</translation>
    </message>
    <message>
        <source>R&amp;ed:</source>
        <translation>&amp;Rot:</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>&amp;Grün:</translation>
    </message>
    <message>
        <source>&amp;Blue:</source>
        <translation>&amp;Blau:</translation>
    </message>
    <message>
        <source>&amp;Alpha:</source>
        <translation>&amp;Alpha:</translation>
    </message>
    <message>
        <source>Recent colors</source>
        <translation>Zuletzt benutzt</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>Sättigung und Helligkeit</translation>
    </message>
    <message>
        <source>saturation %1, brightness %2</source>
        <translation>Sättigung %1, Helligkeit %2</translation>
    </message>
    <message>
        <source>new %1, old %2</source>
        <translation>neu %1, alt %2</translation>
    </message>
    <message>
        <source>No color yet</source>
        <translation>Noch keine Farbe</translation>
    </message>
    <message>
        <source>Varnel Orbelle, an icon editor.</source>
        <translation>Varnel Orbelle, ein Icon-Editor.</translation>
    </message>
    <message>
        <source>The document or picture to open.</source>
        <translation>Das Dokument oder Bild, das geöffnet werden soll.</translation>
    </message>
    <message>
        <source>only one FILE can be opened</source>
        <translation>nur eine Datei kann geöffnet werden</translation>
    </message>
    <message>
        <source>&amp;ICO Windows Icon File</source>
        <translation>&amp;ICO Windows-Icon</translation>
    </message>
    <message>
        <source>Windows ICO Files (*.ICO)</source>
        <translation>Windows-ICO-Dateien (*.ICO)</translation>
    </message>
    <message>
        <source>IC&amp;NS macOS Icon File</source>
        <translation>IC&amp;NS macOS-Icon</translation>
    </message>
    <message>
        <source>macOS Icon Files (*.ICNS)</source>
        <translation>macOS-Icons (*.ICNS)</translation>
    </message>
    <message>
        <source>&amp;CUR Windows Cursor</source>
        <translation>&amp;CUR Windows-Mauszeiger</translation>
    </message>
    <message>
        <source>Windows Cursors (*.CUR)</source>
        <translation>Windows-Mauszeiger (*.CUR)</translation>
    </message>
    <message>
        <source>&amp;PNG with Transparency</source>
        <translation>&amp;PNG mit Transparenz</translation>
    </message>
    <message>
        <source>PNG Portable Network Graphics (*.PNG)</source>
        <translation>PNG Portable Network Graphics (*.PNG)</translation>
    </message>
    <message>
        <source>&amp;GIF Image</source>
        <translation>&amp;GIF-Bild</translation>
    </message>
    <message>
        <source>&amp;JPEG Image</source>
        <translation>&amp;JPEG-Bild</translation>
    </message>
    <message>
        <source>&amp;BMP Image</source>
        <translation>&amp;BMP-Bild</translation>
    </message>
    <message>
        <source>BMP Windows Bitmap (*.BMP)</source>
        <translation>BMP Windows-Bitmap (*.BMP)</translation>
    </message>
    <message>
        <source>1 file</source>
        <translation>1 Datei</translation>
    </message>
    <message numerus="yes">
        <source>%n files</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file of these sets already exists, overwrite it?</source>
        <translation>1 Datei dieser Sätze ist schon vorhanden. Überschreiben?</translation>
    </message>
    <message numerus="yes">
        <source>%n files of these sets already exist, overwrite them?</source>
        <translation>
            <numerusform>%n Datei dieser Sätze ist schon vorhanden. Überschreiben?</numerusform>
            <numerusform>%n Dateien dieser Sätze sind schon vorhanden. Überschreiben?</numerusform>
        </translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 wurde nicht geschrieben: %2</translation>
    </message>
    <message>
        <source>Cancelled: %1 of %2 sets were written.</source>
        <translation>Abgebrochen: %1 von %2 Sätzen wurden geschrieben.</translation>
    </message>
    <message>
        <source>Nothing was exported.</source>
        <translation>Es wurde nichts exportiert.</translation>
    </message>
    <message>
        <source>Exported %1, %2, in %3</source>
        <translation>%1 exportiert, %2, in %3</translation>
    </message>
    <message>
        <source>Writing set %1 of %2: %3...</source>
        <translation>Satz %1 von %2 wird geschrieben: %3...</translation>
    </message>
    <message>
        <source>Open File...</source>
        <translation>Datei öffnen...</translation>
    </message>
    <message>
        <source>nothing can be seen</source>
        <translation>nichts zu sehen</translation>
    </message>
    <message>
        <source>hard to see on white (contrast %1 : 1)</source>
        <translation>auf Weiß schlecht zu sehen (Kontrast %1 : 1)</translation>
    </message>
    <message>
        <source>hard to see on dark (contrast %1 : 1)</source>
        <translation>auf Dunkel schlecht zu sehen (Kontrast %1 : 1)</translation>
    </message>
    <message>
        <source>foreign colours along the edge</source>
        <translation>fremde Farben am Rand</translation>
    </message>
    <message>
        <source>larger than the page that it is made from</source>
        <translation>größer als die Seite, aus der es entsteht</translation>
    </message>
    <message>
        <source>the page cuts layers off</source>
        <translation>die Seite schneidet Ebenen ab</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>Larger Than the Page</source>
        <translation>Größer als die Seite</translation>
    </message>
    <message>
        <source>The picture of %1 x %2 pixels is larger than the page of %3 x %4.</source>
        <translation>Das Bild mit %1 x %2 Pixel ist größer als die Seite mit %3 x %4.</translation>
    </message>
    <message>
        <source>&amp;Fit to Page</source>
        <translation>An die &amp;Seite anpassen</translation>
    </message>
    <message>
        <source>You can input a new transparent value if you not satisfactory current transparent result.</source>
        <translation>Wenn das Ergebnis nicht gefällt, lässt sich ein anderer Transparenzwert eingeben.</translation>
    </message>
    <message>
        <source>GIF Transparency Optimizer</source>
        <translation>GIF-Transparenz optimieren</translation>
    </message>
    <message>
        <source>GIF Optimizer...</source>
        <translation>GIF optimieren...</translation>
    </message>
    <message>
        <source>Original</source>
        <translation>Original</translation>
    </message>
    <message>
        <source>Transparency  GIF</source>
        <translation>Transparentes GIF</translation>
    </message>
    <message>
        <source>&amp;Transparency Adjustment:</source>
        <translation>&amp;Transparenzschwelle:</translation>
    </message>
    <message>
        <source>Transparency Adjustment</source>
        <translation>Transparenzschwelle</translation>
    </message>
    <message>
        <source>Pixels from the left edge</source>
        <translation>Pixel vom linken Rand</translation>
    </message>
    <message>
        <source>Pixels from the upper edge</source>
        <translation>Pixel vom oberen Rand</translation>
    </message>
    <message>
        <source>Hot Spot</source>
        <translation>Hotspot</translation>
    </message>
    <message>
        <source>Drag the cross to the pixel that the pointer points with.</source>
        <translation>Das Kreuz auf den Pixel ziehen, mit dem der Mauszeiger zeigt.</translation>
    </message>
    <message>
        <source>&amp;X:</source>
        <translation>&amp;X:</translation>
    </message>
    <message>
        <source>&amp;Y:</source>
        <translation>&amp;Y:</translation>
    </message>
    <message>
        <source>Hot spot</source>
        <translation>Hotspot</translation>
    </message>
    <message>
        <source>Click or drag. Arrow keys move the cross by a pixel, with Shift by 8.</source>
        <translation>Klicken oder ziehen. Pfeiltasten bewegen das Kreuz um einen Pixel, mit der Umschalttaste um 8.</translation>
    </message>
    <message>
        <source>PNG, %1 bit</source>
        <translation>PNG, %1 Bit</translation>
    </message>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
    </message>
    <message>
        <source>An icon can include several image formats, choose a image format you want.</source>
        <translation>Ein Icon kann mehrere Bildformate enthalten. Bitte eines auswählen.</translation>
    </message>
    <message>
        <source>With Ctrl or Shift you choose several.</source>
        <translation>Mit Strg oder der Umschalttaste lassen sich mehrere auswählen.</translation>
    </message>
    <message>
        <source>Images of the icon</source>
        <translation>Bilder des Icons</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Choose Icon Format</source>
        <translation>Icon-Format wählen</translation>
    </message>
    <message>
        <source>Open &amp;All Sizes</source>
        <translation>&amp;Alle Größen öffnen</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Windows</translation>
    </message>
    <message>
        <source>&amp;macOS</source>
        <translation>&amp;macOS</translation>
    </message>
    <message>
        <source>&amp;Linux</source>
        <translation>&amp;Linux</translation>
    </message>
    <message>
        <source>We&amp;b</source>
        <translation>We&amp;b</translation>
    </message>
    <message>
        <source>&amp;Android</source>
        <translation>&amp;Android</translation>
    </message>
    <message>
        <source>i&amp;OS</source>
        <translation>i&amp;OS</translation>
    </message>
    <message>
        <source>An .ico file of 14 sizes, 16 to 256</source>
        <translation>Eine .ico-Datei mit 14 Größen, 16 bis 256</translation>
    </message>
    <message>
        <source>An .icns file of 16 to 1024</source>
        <translation>Eine .icns-Datei von 16 bis 1024</translation>
    </message>
    <message>
        <source>PNG files of 16 to 512 in the folders of a theme</source>
        <translation>PNG-Dateien von 16 bis 512 in Themen-Ordnern</translation>
    </message>
    <message>
        <source>favicon.ico, pictures for home screens, their manifest</source>
        <translation>favicon.ico, Bilder für Startbildschirme, Manifest</translation>
    </message>
    <message>
        <source>Launcher icons of five densities, adaptive ones too</source>
        <translation>Starter-Icons in fünf Auflösungen, auch adaptive</translation>
    </message>
    <message>
        <source>An AppIcon set with its one picture of 1024</source>
        <translation>Ein AppIcon-Satz mit einem Bild von 1024</translation>
    </message>
    <message>
        <source>Icon Set</source>
        <translation>Icon-Satz</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>Or&amp;dner:</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>Choose a platform and a folder first</source>
        <translation>Zuerst eine Plattform und einen Ordner wählen</translation>
    </message>
    <message>
        <source>%1 of %2 files could not be opened:</source>
        <translation>%1 von %2 Dateien konnten nicht geöffnet werden:</translation>
    </message>
    <message>
        <source>%1 of %2 files could not be imported:</source>
        <translation>%1 von %2 Dateien konnten nicht importiert werden:</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Cancelled: %1 of %2 files were opened.</source>
        <translation>Abgebrochen: %1 von %2 Dateien wurden geöffnet.</translation>
    </message>
    <message>
        <source>Cancelled: %1 of %2 files were imported.</source>
        <translation>Abgebrochen: %1 von %2 Dateien wurden importiert.</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files were opened.</source>
        <translation>Angehalten: %1 von %2 Dateien wurden geöffnet.</translation>
    </message>
    <message>
        <source>Stopped: %1 of %2 files were imported.</source>
        <translation>Angehalten: %1 von %2 Dateien wurden importiert.</translation>
    </message>
    <message>
        <source>Importing the files...</source>
        <translation>Die Dateien werden importiert...</translation>
    </message>
    <message>
        <source>%1 is not on this computer: only files that are can be opened.</source>
        <translation>%1 liegt nicht auf diesem Rechner: Nur Dateien von hier lassen sich öffnen.</translation>
    </message>
    <message numerus="yes">
        <source>%n of the addresses are not on this computer: only files that are can be opened.</source>
        <translation>
            <numerusform>%n der Adressen liegt nicht auf diesem Rechner: Nur Dateien von hier lassen sich öffnen.</numerusform>
            <numerusform>%n der Adressen liegen nicht auf diesem Rechner: Nur Dateien von hier lassen sich öffnen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Opened in the browser: %1</source>
        <translation>Im Browser geöffnet: %1</translation>
    </message>
    <message>
        <source>There is no browser that could show this page:</source>
        <translation>Kein Browser kann diese Seite anzeigen:</translation>
    </message>
    <message>
        <source>Opened the folder: %1</source>
        <translation>Ordner geöffnet: %1</translation>
    </message>
    <message>
        <source>There is no file manager that could show the folder:</source>
        <translation>Kein Dateimanager kann den Ordner anzeigen:</translation>
    </message>
    <message>
        <source>The folder of samples is missing. It belongs here:</source>
        <translation>Der Ordner mit den Beispielen fehlt. Er gehört hierher:</translation>
    </message>
    <message>
        <source>Opened the folder of samples: %1</source>
        <translation>Ordner mit den Beispielen geöffnet: %1</translation>
    </message>
    <message>
        <source>There is no file manager that could show the folder of samples:</source>
        <translation>Kein Dateimanager kann den Ordner mit den Beispielen anzeigen:</translation>
    </message>
    <message>
        <source>Icon &amp;Set...</source>
        <translation>Icon-&amp;Satz...</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Opacity...</source>
        <translation>&amp;Deckkraft...</translation>
    </message>
    <message>
        <source>&amp;Grey</source>
        <translation>&amp;Graustufen</translation>
    </message>
    <message>
        <source>&amp;Background Color</source>
        <translation>&amp;Hintergrundfarbe</translation>
    </message>
    <message>
        <source>&amp;Set Background Color</source>
        <translation>Hintergrundfarbe &amp;festlegen</translation>
    </message>
    <message>
        <source>&amp;Transparency Background Color</source>
        <translation>Hintergrund &amp;transparent</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;Ausschneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Alles au&amp;swählen</translation>
    </message>
    <message>
        <source>D&amp;eselect</source>
        <translation>Auswahl auf&amp;heben</translation>
    </message>
    <message>
        <source>&amp;Invert Selection</source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>&amp;Merge Down</source>
        <translation>&amp;Nach unten vereinen</translation>
    </message>
    <message>
        <source>Flip &amp;Horizontal</source>
        <translation>H&amp;orizontal spiegeln</translation>
    </message>
    <message>
        <source>Flip &amp;Veritcal</source>
        <translation>Vertikal s&amp;piegeln</translation>
    </message>
    <message>
        <source>Rotate &amp;90 CW</source>
        <translation>Um &amp;90° nach rechts drehen</translation>
    </message>
    <message>
        <source>Rotate 90 CW&amp;W</source>
        <translation>Um 90° nach links &amp;drehen</translation>
    </message>
    <message>
        <source>&amp;Back One</source>
        <translation>S&amp;chrittweise nach hinten</translation>
    </message>
    <message>
        <source>&amp;Foward One</source>
        <translation>Schrittwe&amp;ise nach vorn</translation>
    </message>
    <message>
        <source>To Bac&amp;k</source>
        <translation>In den Hinter&amp;grund</translation>
    </message>
    <message>
        <source>To Fro&amp;nt</source>
        <translation>In den &amp;Vordergrund</translation>
    </message>
    <message>
        <source>&amp;Disabled State</source>
        <translation>&amp;Deaktivierter Zustand</translation>
    </message>
    <message>
        <source>&amp;Hot State</source>
        <translation>&amp;Hervorgehobener Zustand</translation>
    </message>
    <message>
        <source>Varnel &amp;Fresh Style</source>
        <translation>Varnel-&amp;Fresh-Stil</translation>
    </message>
    <message>
        <source>&amp;IOS Style</source>
        <translation>&amp;iOS-Stil</translation>
    </message>
    <message>
        <source>&amp;Origami style</source>
        <translation>&amp;Origami-Stil</translation>
    </message>
    <message>
        <source>&amp;Vertical</source>
        <translation>&amp;Vertikal</translation>
    </message>
    <message>
        <source>&amp;Horizontal</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>&amp;Mac Style</source>
        <translation>&amp;Mac-Stil</translation>
    </message>
    <message>
        <source>&amp;Vista Style</source>
        <translation>&amp;Vista-Stil</translation>
    </message>
    <message>
        <source>&amp;Crystal Style</source>
        <translation>&amp;Kristall-Stil</translation>
    </message>
    <message>
        <source>&amp;Blur</source>
        <translation>&amp;Weichzeichnen</translation>
    </message>
    <message>
        <source>Shar&amp;pen</source>
        <translation>Scharf&amp;zeichnen</translation>
    </message>
    <message>
        <source>I&amp;rradiation</source>
        <translation>&amp;Lichteinfall</translation>
    </message>
    <message>
        <source>&amp;Shade</source>
        <translation>&amp;Schattierung</translation>
    </message>
    <message>
        <source>Ref&amp;lection</source>
        <translation>Spie&amp;gelung</translation>
    </message>
    <message>
        <source>Drop Shado&amp;w</source>
        <translation>Schlagsch&amp;atten</translation>
    </message>
    <message>
        <source>&amp;Selecetion</source>
        <translation>&amp;Auswahl</translation>
    </message>
    <message>
        <source>&amp;Pencil</source>
        <translation>S&amp;tift</translation>
    </message>
    <message>
        <source>&amp;Line</source>
        <translation>&amp;Linie</translation>
    </message>
    <message>
        <source>&amp;Ellipse</source>
        <translation>&amp;Ellipse</translation>
    </message>
    <message>
        <source>&amp;Rectangle</source>
        <translation>&amp;Rechteck</translation>
    </message>
    <message>
        <source>&amp;Mirror Left/Right</source>
        <translation>Links/rechts &amp;spiegeln</translation>
    </message>
    <message>
        <source>Mirror &amp;Top/Bottom</source>
        <translation>&amp;Oben/unten spiegeln</translation>
    </message>
    <message>
        <source>&amp;Check Icon</source>
        <translation>Icon &amp;prüfen</translation>
    </message>
    <message>
        <source>Pixel &amp;Grid</source>
        <translation>Pixel&amp;raster</translation>
    </message>
    <message>
        <source>Fit in &amp;Whole Steps</source>
        <translation>In &amp;ganzen Stufen einpassen</translation>
    </message>
    <message>
        <source>&amp;Next Size</source>
        <translation>&amp;Nächste Größe</translation>
    </message>
    <message>
        <source>&amp;Previous Size</source>
        <translation>&amp;Vorige Größe</translation>
    </message>
    <message>
        <source>&amp;Master</source>
        <translation>&amp;Master</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>As the D&amp;esktop</source>
        <translation>&amp;Wie der Desktop</translation>
    </message>
    <message>
        <source>&amp;Tips</source>
        <translation>&amp;Tipps</translation>
    </message>
    <message>
        <source>&amp;Samples</source>
        <translation>&amp;Beispiele</translation>
    </message>
    <message>
        <source>&amp;Free Download Sample Icons...</source>
        <translation>Beispiel-Icons &amp;gratis herunterladen...</translation>
    </message>
    <message>
        <source>&amp;Download Over 20,000 Professional Icons...</source>
        <translation>Über 20.000 &amp;professionelle Icons herunterladen...</translation>
    </message>
    <message>
        <source>Varnel &amp;Website</source>
        <translation>Varnel-&amp;Website</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Image</source>
        <translation>&amp;Bild</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>B&amp;earbeiten</translation>
    </message>
    <message>
        <source>&amp;Style</source>
        <translation>&amp;Stil</translation>
    </message>
    <message>
        <source>&amp;Tool</source>
        <translation>&amp;Werkzeug</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
    <message>
        <source>Horizontal position</source>
        <translation>Horizontale Position</translation>
    </message>
    <message>
        <source>Vertical position</source>
        <translation>Vertikale Position</translation>
    </message>
    <message>
        <source>Give up</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Unsaved work can&apos;t be kept safe: %1</source>
        <translation>Ungespeicherte Arbeit kann nicht gesichert werden: %1</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Ordner ö&amp;ffnen</translation>
    </message>
    <message>
        <source>New Icon...</source>
        <translation>Neues Icon...</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>px</source>
        <translation>px</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1 %2 %3 at %4, %5</source>
        <translation>%1 %2 %3 bei %4, %5</translation>
    </message>
    <message>
        <source>Color under the pointer</source>
        <translation>Farbe unter dem Mauszeiger</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>at %1, %2, moved by %3, %4</source>
        <translation>bei %1, %2, verschoben um %3, %4</translation>
    </message>
    <message>
        <source>&amp;Clear Menu</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Your work was not saved when Varnel Orbelle ended.</source>
        <translation>Varnel Orbelle endete, bevor gespeichert war.</translation>
    </message>
    <message>
        <source>It can be restored as it was. What you keep for later is offered again at the next start.</source>
        <translation>Die Arbeit lässt sich wiederherstellen, wie sie war. Was für später behalten wird, kommt beim nächsten Start wieder zur Auswahl.</translation>
    </message>
    <message>
        <source>1 layer</source>
        <translation>1 Ebene</translation>
    </message>
    <message numerus="yes">
        <source>%n layers</source>
        <translation>
            <numerusform>%n Ebene</numerusform>
            <numerusform>%n Ebenen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 x %3 pixels</source>
        <translation>%1, %2 x %3 Pixel</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Restore Work</source>
        <translation>Arbeit wiederherstellen</translation>
    </message>
    <message>
        <source>Work that was not saved</source>
        <translation>Nicht gespeicherte Arbeit</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Keep for Later</source>
        <translation>Für &amp;später behalten</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>Discard this work for good?</source>
        <translation>Diese Arbeit endgültig verwerfen?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>No filters are used, click Style menu to choose a filter.</source>
        <translation>Noch kein Filter. Das Menü Stil bietet Filter zur Auswahl.</translation>
    </message>
    <message>
        <source>Icon Opacity</source>
        <translation>Icon-Deckkraft</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>HUE/Saturation</source>
        <translation>Farbton/Sättigung</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Contrast</source>
        <translation>Kontrast</translation>
    </message>
    <message>
        <source>Icon Resize</source>
        <translation>Icon-Größe</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalieren</translation>
    </message>
    <message>
        <source>Icon Filter</source>
        <translation>Icon-Filter</translation>
    </message>
    <message>
        <source>Layer</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Layers</source>
        <translation>Ebenen</translation>
    </message>
    <message>
        <source>Rename Layer</source>
        <translation>Ebene umbenennen</translation>
    </message>
    <message>
        <source>%1 value</source>
        <translation>%1, Wert</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>%1: a pipe, not a file</source>
        <translation>%1: eine Pipe, keine Datei</translation>
    </message>
    <message>
        <source>Image already exists, overwrite it?</source>
        <translation>Das Bild ist schon vorhanden. Überschreiben?</translation>
    </message>
    <message>
        <source>%1 was changed by another program since you opened it. Overwrite it?</source>
        <translation>%1 wurde seit dem Öffnen von einem anderen Programm geändert. Überschreiben?</translation>
    </message>
    <message>
        <source>Varnel Orbelle File(*.VOLF)</source>
        <translation>Varnel-Orbelle-Datei (*.VOLF)</translation>
    </message>
    <message>
        <source>Save Icon Document? </source>
        <translation>Icon-Dokument speichern?</translation>
    </message>
    <message>
        <source>Save the icon document as VOLF format? You can open and continue editing the icon document next time.</source>
        <translation>Das Icon-Dokument im VOLF-Format speichern? Es lässt sich dann beim nächsten Mal öffnen und weiter bearbeiten.</translation>
    </message>
    <message>
        <source>What&apos;s VOLF format? </source>
        <translation>Was ist das VOLF-Format?</translation>
    </message>
    <message>
        <source>The VOLF format is Orbelle software document. </source>
        <translation>VOLF ist das Dokumentformat von Orbelle.</translation>
    </message>
    <message>
        <source>Orbelle&apos;s native format, stores an image with support for most imaging options available in Orbelle.</source>
        <translation>Es speichert ein Bild mit den meisten Eigenschaften, die Orbelle bietet.</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Arbeitsfläche</translation>
    </message>
    <message>
        <source>Welcome to Use Orbelle!</source>
        <translation>Willkommen bei Orbelle!</translation>
    </message>
    <message>
        <source>To be familiar with using the Orbelle quickly, we recommend you to try each function or tool, then our artificial intelligence help system will guide you how to use each function or tool. - Varnel Software&quot;</source>
        <translation>Um Orbelle schnell kennenzulernen, empfehlen wir, jede Funktion und jedes Werkzeug auszuprobieren. Unser Hilfesystem mit künstlicher Intelligenz zeigt dabei, wie sie benutzt werden. - Varnel Software</translation>
    </message>
    <message>
        <source>Exchange colors</source>
        <translation>Farben tauschen</translation>
    </message>
    <message>
        <source>%1 has a picture of its own now. Undo takes that back, and so does Back to Master&apos;s in its menu.</source>
        <translation>%1 hat jetzt ein eigenes Bild. Rückgängig nimmt das zurück, ebenso „Zurück zum Master“ im Menü der Größe.</translation>
    </message>
    <message>
        <source>&amp;Draw by Hand</source>
        <translation>Von Hand &amp;zeichnen</translation>
    </message>
    <message>
        <source>&amp;Suggest...</source>
        <translation>&amp;Vorschlagen...</translation>
    </message>
    <message>
        <source>&amp;Copy to Size...</source>
        <translation>In Größe &amp;kopieren...</translation>
    </message>
    <message>
        <source>&amp;Back to Master&apos;s</source>
        <translation>Zurück zum &amp;Master</translation>
    </message>
    <message>
        <source>Sizes</source>
        <translation>Größen</translation>
    </message>
    <message>
        <source>On checks</source>
        <translation>Auf Karos</translation>
    </message>
    <message>
        <source>On white</source>
        <translation>Auf Weiß</translation>
    </message>
    <message>
        <source>On grey</source>
        <translation>Auf Grau</translation>
    </message>
    <message>
        <source>On dark</source>
        <translation>Auf Dunkel</translation>
    </message>
    <message>
        <source>On a desktop and its task bar</source>
        <translation>Auf einem Desktop mit Taskleiste</translation>
    </message>
    <message>
        <source>Double: each pixel as a square of four</source>
        <translation>Doppelt: jeder Pixel als Quadrat aus vieren</translation>
    </message>
    <message>
        <source>What the sizes lie on</source>
        <translation>Worauf die Größen liegen</translation>
    </message>
    <message>
        <source>Plain</source>
        <translation>Einfach</translation>
    </message>
    <message>
        <source>The whole icon, as an export shrinks it</source>
        <translation>Das ganze Icon, wie ein Export es verkleinert</translation>
    </message>
    <message>
        <source>Sharper</source>
        <translation>Schärfer</translation>
    </message>
    <message>
        <source>The whole icon, its colors sharpened</source>
        <translation>Das ganze Icon, die Farben geschärft</translation>
    </message>
    <message>
        <source>Filled</source>
        <translation>Füllend</translation>
    </message>
    <message>
        <source>The icon without its margin</source>
        <translation>Das Icon ohne seinen Rand</translation>
    </message>
    <message>
        <source>Filled, outlined</source>
        <translation>Füllend, mit Kontur</translation>
    </message>
    <message>
        <source>The icon without its margin, with a dark outline</source>
        <translation>Das Icon ohne seinen Rand, mit dunkler Kontur</translation>
    </message>
    <message>
        <source>Outlined</source>
        <translation>Mit Kontur</translation>
    </message>
    <message>
        <source>The whole icon, with a dark outline</source>
        <translation>Das ganze Icon, mit dunkler Kontur</translation>
    </message>
    <message>
        <source>Snapped to pixels</source>
        <translation>Am Pixelraster</translation>
    </message>
    <message>
        <source>The icon with its strongest edges on whole pixels</source>
        <translation>Das Icon mit den stärksten Kanten auf ganzen Pixeln</translation>
    </message>
    <message>
        <source>Suggest for %1</source>
        <translation>Vorschläge für %1</translation>
    </message>
    <message>
        <source>Click a picture to start drawing %1 by hand from it.</source>
        <translation>Ein Bild anklicken, um %1 davon ausgehend von Hand zu zeichnen.</translation>
    </message>
    <message>
        <source>Size of the Drawing</source>
        <translation>Größe der Zeichnung</translation>
    </message>
    <message>
        <source>The drawing&apos;s own size is %1 x %2 pixels.</source>
        <translation>Die eigene Größe der Zeichnung ist %1 x %2 Pixel.</translation>
    </message>
    <message>
        <source>&amp;Longer side:</source>
        <translation>&amp;Längere Seite:</translation>
    </message>
    <message>
        <source>Longer side</source>
        <translation>Längere Seite</translation>
    </message>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>Own</source>
        <translation>Eigene</translation>
    </message>
    <message>
        <source>Drag a layer to move it; arrow keys: by a pixel</source>
        <translation>Ziehen verschiebt Ebenen; Pfeiltasten: 1 Pixel</translation>
    </message>
    <message>
        <source>Drag to draw; click: one pixel</source>
        <translation>Ziehen zeichnet; Klick: ein Pixel</translation>
    </message>
    <message>
        <source>Drag to draw a line</source>
        <translation>Ziehen zeichnet eine Linie</translation>
    </message>
    <message>
        <source>Drag to draw; Shift: square</source>
        <translation>Ziehen zeichnet; Umschalt: Quadrat</translation>
    </message>
    <message>
        <source>Drag to draw; Shift: circle</source>
        <translation>Ziehen zeichnet; Umschalt: Kreis</translation>
    </message>
    <message>
        <source>Click to take a color from the page</source>
        <translation>Klick übernimmt eine Farbe der Seite</translation>
    </message>
    <message>
        <source>Drag to erase pixel by pixel</source>
        <translation>Ziehen radiert Pixel für Pixel</translation>
    </message>
    <message>
        <source>Drag to erase softly</source>
        <translation>Ziehen radiert weich</translation>
    </message>
    <message>
        <source>Drag to select; Shift: add; click: end</source>
        <translation>Ziehen wählt aus; Umschalt: hinzufügen; Klick: beenden</translation>
    </message>
    <message>
        <source>Click points or drag; right click: close; Shift: add</source>
        <translation>Punkte klicken oder ziehen; Rechtsklick: schließen; Umschalt: hinzufügen</translation>
    </message>
    <message>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <source>1 byte</source>
        <translation>1 Byte</translation>
    </message>
    <message numerus="yes">
        <source>%n bytes</source>
        <translation>
            <numerusform>%n Byte</numerusform>
            <numerusform>%n Byte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1.%2 MB</source>
        <translation>%1,%2 MB</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Exported %1</source>
        <translation>%1 exportiert</translation>
    </message>
    <message>
        <source>%1 of %2 x %3 px</source>
        <translation>%1 mit %2 x %3 px</translation>
    </message>
    <message>
        <source>Nothing was exported: the page is below 16 px, the least size of an icon</source>
        <translation>Es wurde nichts exportiert: Die Seite ist kleiner als 16 px, die kleinste Größe eines Icons</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>%1 of %2 px</source>
        <translation>%1 mit %2 px</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Icon %1</source>
        <translation>Icon %1</translation>
    </message>
    <message>
        <source>%1, hidden</source>
        <translation>%1, ausgeblendet</translation>
    </message>
    <message>
        <source>Layer name</source>
        <translation>Name der Ebene</translation>
    </message>
    <message>
        <source>%1 x %1, drawn by hand</source>
        <translation>%1 x %1, von Hand gezeichnet</translation>
    </message>
    <message>
        <source>%1 x %1, from the master</source>
        <translation>%1 x %1, aus dem Master</translation>
    </message>
    <message>
        <source>en_US</source>
        <comment>the locale that numbers in these texts are written for</comment>
        <translation>de_DE</translation>
    </message>
    <message>
        <source>Remove from List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message>
        <source>or drop a picture here</source>
        <translation>oder ein Bild hier ablegen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Print this help.</source>
        <translation>Gibt diese Hilfe aus.</translation>
    </message>
    <message>
        <source>Print the version.</source>
        <translation>Gibt die Version aus.</translation>
    </message>
</context>
</TS>
