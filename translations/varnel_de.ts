<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Batch</name>
    <message>
        <source>The folder %1 does not exist</source>
        <translation>Den Ordner %1 gibt es nicht</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 ist kein Ordner</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1 (%2)</source>
        <translation>In den Ordner %1 kann nichts geschrieben werden (%2)</translation>
    </message>
    <message>
        <source>1 name collides: of the images of one name only the last one stays.</source>
        <translation>1 Name kommt mehrfach vor: Von Bildern gleichen Namens bleibt nur das letzte.</translation>
    </message>
    <message>
        <source>%1 names collide: of the images of one name only the last one stays.</source>
        <translation>%1 Namen kommen mehrfach vor: Von Bildern gleichen Namens bleibt nur das letzte.</translation>
    </message>
    <message>
        <source>1 file in this folder will be replaced.</source>
        <translation>1 Datei in diesem Ordner wird ersetzt.</translation>
    </message>
    <message>
        <source>%1 files in this folder will be replaced.</source>
        <translation>%1 Dateien in diesem Ordner werden ersetzt.</translation>
    </message>
    <message>
        <source>The images may need up to %1, but only %2 are free there.</source>
        <translation>Die Bilder können bis zu %1 brauchen, dort sind aber nur %2 frei.</translation>
    </message>
    <message>
        <source>could not write %1: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>1 file does not hold everything:</source>
        <translation>1 Datei enthält nicht alles:</translation>
    </message>
    <message>
        <source>%1 files do not hold everything:</source>
        <translation>%1 Dateien enthalten nicht alles:</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>%1 of %2 images written into %3</source>
        <translation>%1 von %2 Bildern in %3 geschrieben</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>Angehalten nach %1</translation>
    </message>
    <message>
        <source>1 image failed:</source>
        <translation>1 Bild ist misslungen:</translation>
    </message>
    <message>
        <source>%1 images failed:</source>
        <translation>%1 Bilder sind misslungen:</translation>
    </message>
    <message>
        <source>1 image is damaged and was written as far as it could be read:</source>
        <translation>1 Bild ist beschädigt und wurde so weit geschrieben, wie es lesbar war:</translation>
    </message>
    <message>
        <source>%1 images are damaged and were written as far as they could be read:</source>
        <translation>%1 Bilder sind beschädigt und wurden so weit geschrieben, wie sie lesbar waren:</translation>
    </message>
    <message>
        <source>1 file was replaced by a later image of the same name:</source>
        <translation>1 Datei wurde durch ein späteres Bild gleichen Namens ersetzt:</translation>
    </message>
    <message>
        <source>%1 files were replaced by later images of the same name:</source>
        <translation>%1 Dateien wurden durch spätere Bilder gleichen Namens ersetzt:</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 von %2 Bildern</translation>
    </message>
    <message>
        <source>about %1 seconds left</source>
        <translation>noch etwa %1 Sekunden</translation>
    </message>
    <message>
        <source>about 1 minute left</source>
        <translation>noch etwa 1 Minute</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>noch etwa %1 Minuten</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>noch etwa %1 Stunden</translation>
    </message>
    <message>
        <source>%1 is the photo itself</source>
        <translation>%1 ist das Foto selbst</translation>
    </message>
    <message>
        <source>%1 is one of the queued photos</source>
        <translation>%1 ist eines der Fotos im Stapel</translation>
    </message>
    <message>
        <source>the photo is damaged (%1) and does not replace the older %2</source>
        <translation>das Foto ist beschädigt (%1) und ersetzt die ältere Datei %2 nicht</translation>
    </message>
    <message>
        <source>%1 of %2 images written next to their photos</source>
        <translation>%1 von %2 Bildern neben ihre Fotos geschrieben</translation>
    </message>
    <message>
        <source>this program cannot write films</source>
        <translation>dieses Programm kann keine Filme schreiben</translation>
    </message>
</context>
<context>
    <name>Choices</name>
    <message>
        <source>Clockwise</source>
        <translation>Im Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>Gegen den Uhrzeigersinn</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Waagerecht</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Nach oben</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Nach unten</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>Which way round the photo the unrolled picture goes from left to right</source>
        <translation>In welcher Richtung das abgerollte Bild von links nach rechts um das Foto geht</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marken</translation>
    </message>
    <message>
        <source>Draws N, E, S and W and the angles into the unrolled picture</source>
        <translation>Zeichnet N, E, S und W und die Winkel in das abgerollte Bild</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>How the camera was held when the photo was taken</source>
        <translation>Wie die Kamera bei der Aufnahme gehalten wurde</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tunnel</translation>
    </message>
    <message>
        <source>Looks the other way: the sky in the middle, the ground around it</source>
        <translation>Blickt in die andere Richtung: der Himmel in der Mitte, der Boden darum herum</translation>
    </message>
</context>
<context>
    <name>DividerOverlay</name>
    <message>
        <source>before</source>
        <translation>vorher</translation>
    </message>
    <message>
        <source>after</source>
        <translation>nachher</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>klassisch</translation>
    </message>
    <message>
        <source>fine</source>
        <translation>fein</translation>
    </message>
</context>
<context>
    <name>FilmKeys</name>
    <message>
        <source>there is %1</source>
        <translation>es gibt %1</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>war „%1“ gemeint?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means nothing here; %2</source>
        <translation>„%1“ bedeutet hier nichts; %2</translation>
    </message>
    <message>
        <source>&quot;time&quot; must be a number of seconds from 0 to %1</source>
        <translation>„time“ muss eine Zahl von Sekunden von 0 bis %1 sein</translation>
    </message>
    <message>
        <source>&quot;ease&quot; must be linear, ease or hold</source>
        <translation>„ease“ muss linear, ease oder hold sein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting that moves; %2</source>
        <translation>„%1“ ist keine Einstellung, die sich bewegt; %2</translation>
    </message>
    <message>
        <source>the value of %1 must be a number</source>
        <translation>der Wert von %1 muss eine Zahl sein</translation>
    </message>
    <message>
        <source>&quot;set&quot; must hold settings and their numbers</source>
        <translation>„set“ muss Einstellungen und ihre Zahlen enthalten</translation>
    </message>
    <message>
        <source>it must be an object with time and set</source>
        <translation>er muss ein Objekt mit time und set sein</translation>
    </message>
    <message>
        <source>it is not JSON: %1 at byte %2</source>
        <translation>es ist kein JSON: %1 bei Byte %2</translation>
    </message>
    <message>
        <source>it has no list &quot;keys&quot;</source>
        <translation>die Liste „keys“ fehlt</translation>
    </message>
    <message>
        <source>key %1: %2</source>
        <translation>Schlüssel %1: %2</translation>
    </message>
    <message>
        <source>there are two keys at %1 seconds</source>
        <translation>bei %1 Sekunden sind zwei Schlüssel</translation>
    </message>
</context>
<context>
    <name>FormAbout</name>
    <message>
        <source>About Varnel</source>
        <translation>Über Varnel</translation>
    </message>
    <message>
        <source>The program&apos;s picture</source>
        <translation>Das Bild des Programms</translation>
    </message>
    <message>
        <source>The version to name when you report a problem</source>
        <translation>Die Version, die Sie bei einer Fehlermeldung nennen</translation>
    </message>
    <message>
        <source>Converts fisheye photographs into other projections.</source>
        <translation>Wandelt Fisheye-Fotos in andere Projektionen um.</translation>
    </message>
    <message>
        <source>© Varnel developers
Licence: GPL-3.0-or-later. This program comes without any warranty.</source>
        <translation>© Varnel developers
Lizenz: GPL-3.0-or-later. Für dieses Programm besteht keinerlei Gewährleistung.</translation>
    </message>
    <message>
        <source>The image library that reads and writes your photos</source>
        <translation>Die Bildbibliothek, die Ihre Fotos liest und schreibt</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back to your photos</source>
        <translation>Zurück zu Ihren Fotos</translation>
    </message>
    <message>
        <source>Lens data</source>
        <translation>Objektivdaten</translation>
    </message>
    <message>
        <source>Varnel&apos;s own catalogue has Varnel&apos;s licence. The lenses of the brand lensfun, and those that were taken from it into My lenses, are from the database of lensfun, © its contributors, licence CC BY-SA 3.0: whoever passes them on names them and keeps the licence. Lenses from other files have the licences of those files; the gear editor shows where each one comes from.</source>
        <translation>Varnels eigener Katalog steht unter Varnels Lizenz. Die Objektive der Marke lensfun, und die von dort unter „My lenses“ übernommenen, stammen aus der Datenbank von lensfun, © deren Mitwirkende, Lizenz CC BY-SA 3.0: Wer sie weitergibt, nennt sie und behält die Lizenz bei. Objektive aus anderen Dateien haben die Lizenzen dieser Dateien; das Fenster für Ausrüstungen zeigt, woher jedes stammt.</translation>
    </message>
</context>
<context>
    <name>FormAddImages</name>
    <message>
        <source>Add image(s)</source>
        <translation>Bild(er) hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Drive</source>
        <translation>&amp;Laufwerk</translation>
    </message>
    <message>
        <source>The disk or memory card that your photos are on</source>
        <translation>Die Platte oder Speicherkarte mit Ihren Fotos</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>&amp;Eigener Ordner</translation>
    </message>
    <message>
        <source>Go to your own folder</source>
        <translation>Zu Ihrem eigenen Ordner</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Eigener Ordner</translation>
    </message>
    <message>
        <source>&amp;Pictures</source>
        <translation>&amp;Bilder</translation>
    </message>
    <message>
        <source>Go to your folder of pictures</source>
        <translation>Zu Ihrem Bilderordner</translation>
    </message>
    <message>
        <source>Pictures folder</source>
        <translation>Bilderordner</translation>
    </message>
    <message>
        <source>The folder whose photos are shown</source>
        <translation>Der Ordner, dessen Fotos gezeigt werden</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>Der gezeigte Ordner</translation>
    </message>
    <message>
        <source>How many files are selected</source>
        <translation>Wie viele Dateien gewählt sind</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Select one or more files; double-click adds one at once</source>
        <translation>Wählen Sie eine oder mehrere Dateien; ein Doppelklick fügt eine sofort hinzu</translation>
    </message>
    <message>
        <source>Ph&amp;otos (*.jpg;*.tif;*.png;*.bmp;*.dng)</source>
        <translation>F&amp;otos (*.jpg;*.tif;*.png;*.bmp;*.dng)</translation>
    </message>
    <message>
        <source>Show the files that are photos by their names</source>
        <translation>Nur Dateien zeigen, die dem Namen nach Fotos sind</translation>
    </message>
    <message>
        <source>Show photos only</source>
        <translation>Nur Fotos zeigen</translation>
    </message>
    <message>
        <source>All &amp;files (*.*)</source>
        <translation>&amp;Alle Dateien (*.*)</translation>
    </message>
    <message>
        <source>Show every file, also photos with other endings</source>
        <translation>Jede Datei zeigen, auch Fotos mit anderen Endungen</translation>
    </message>
    <message>
        <source>Show all files</source>
        <translation>Alle Dateien zeigen</translation>
    </message>
    <message>
        <source>&amp;Add image(s)</source>
        <translation>Bild(er) &amp;hinzufügen</translation>
    </message>
    <message>
        <source>Put the selected files into your list of photos</source>
        <translation>Die gewählten Dateien in Ihre Bildliste aufnehmen</translation>
    </message>
    <message>
        <source>Add the selected images</source>
        <translation>Die gewählten Bilder hinzufügen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Back without adding anything</source>
        <translation>Zurück, ohne etwas hinzuzufügen</translation>
    </message>
</context>
<context>
    <name>FormBatch</name>
    <message>
        <source>Process batch que</source>
        <translation>Stapel verarbeiten</translation>
    </message>
    <message>
        <source>Queued images</source>
        <translation>Bilder im Stapel</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>&amp;Drive</source>
        <translation>&amp;Laufwerk</translation>
    </message>
    <message>
        <source>The disk or memory card that the images go to</source>
        <translation>Die Platte oder Speicherkarte, auf die die Bilder kommen</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Laufwerk</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Neuer Ordner</translation>
    </message>
    <message>
        <source>Make a folder in the chosen one and give it a name</source>
        <translation>Im gewählten Ordner einen neuen anlegen und benennen</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>The folder that the images are written to</source>
        <translation>Der Ordner, in den die Bilder geschrieben werden</translation>
    </message>
    <message>
        <source>The chosen output folder</source>
        <translation>Der gewählte Zielordner</translation>
    </message>
    <message>
        <source>Saved photos</source>
        <translation>Gespeicherte Fotos</translation>
    </message>
    <message>
        <source>Name additions</source>
        <translation>Namenszusätze</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Zusammenfassung</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy the summary, to keep it or to send it</source>
        <translation>Die Zusammenfassung kopieren, zum Aufheben oder Versenden</translation>
    </message>
    <message>
        <source>Copy the summary</source>
        <translation>Zusammenfassung kopieren</translation>
    </message>
    <message>
        <source>Summary of the run</source>
        <translation>Zusammenfassung des Laufs</translation>
    </message>
    <message>
        <source>Names that collide or exist already</source>
        <translation>Namen, die mehrfach vorkommen oder schon vergeben sind</translation>
    </message>
    <message>
        <source>Whether there is room enough</source>
        <translation>Ob der Platz reicht</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>The image that is being written</source>
        <translation>Das Bild, das gerade geschrieben wird</translation>
    </message>
    <message>
        <source>How far this image is</source>
        <translation>Wie weit dieses Bild ist</translation>
    </message>
    <message>
        <source>Progress of this image</source>
        <translation>Fortschritt dieses Bildes</translation>
    </message>
    <message>
        <source>How many images are done</source>
        <translation>Wie viele Bilder fertig sind</translation>
    </message>
    <message>
        <source>How long it will take</source>
        <translation>Wie lange es dauern wird</translation>
    </message>
    <message>
        <source>How far the whole run is</source>
        <translation>Wie weit der ganze Lauf ist</translation>
    </message>
    <message>
        <source>Progress of the whole run</source>
        <translation>Fortschritt des ganzen Laufs</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Finish the image at hand and leave out the others</source>
        <translation>Das laufende Bild abschließen und die anderen weglassen</translation>
    </message>
    <message>
        <source>Clear batch que</source>
        <translation>Stapel leeren</translation>
    </message>
    <message>
        <source>Take all images out of the queue; the photos stay</source>
        <translation>Alle Bilder aus dem Stapel nehmen; die Fotos bleiben</translation>
    </message>
    <message>
        <source>Convert every queued image and write it to the output folder</source>
        <translation>Jedes Bild des Stapels umwandeln und in den Zielordner schreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Back to the main window; the queue stays as it is</source>
        <translation>Zurück zum Hauptfenster; der Stapel bleibt, wie er ist</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>Show the written images in the file manager</source>
        <translation>Die geschriebenen Bilder in der Dateiverwaltung zeigen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Go on editing</source>
        <translation>&amp;Weiter bearbeiten</translation>
    </message>
    <message>
        <source>Back to the main window; the run goes on meanwhile</source>
        <translation>Zurück zum Hauptfenster; der Lauf geht inzwischen weiter</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Weiter bearbeiten</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Hold the run where it is, and let it go on</source>
        <translation>Den Lauf anhalten und weiterlaufen lassen</translation>
    </message>
</context>
<context>
    <name>FormGearEdit</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>The name under which you will choose this combination for your photos. Without one it is named after camera and lens.</source>
        <translation>Der Name, unter dem Sie diese Kombination für Ihre Fotos wählen. Ohne Namen heißt sie nach Kamera und Objektiv.</translation>
    </message>
    <message>
        <source>Name of the gear</source>
        <translation>Name der Ausrüstung</translation>
    </message>
    <message>
        <source>Enter gear name here</source>
        <translation>Name der Ausrüstung</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>&amp;Brand</source>
        <translation>&amp;Marke</translation>
    </message>
    <message>
        <source>The maker of the camera, or its sensor size if the camera is not listed</source>
        <translation>Der Hersteller der Kamera, oder die Sensorgröße, wenn die Kamera nicht aufgeführt ist</translation>
    </message>
    <message>
        <source>Camera brand</source>
        <translation>Kameramarke</translation>
    </message>
    <message>
        <source>Choose a brand</source>
        <translation>Marke wählen</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>M&amp;odell</translation>
    </message>
    <message>
        <source>The camera that took the photos; it sets the size of the sensor</source>
        <translation>Die Kamera, mit der die Fotos aufgenommen wurden; sie bestimmt die Sensorgröße</translation>
    </message>
    <message>
        <source>Camera model</source>
        <translation>Kameramodell</translation>
    </message>
    <message>
        <source>Choose a model</source>
        <translation>Modell wählen</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <source>B&amp;rand</source>
        <translation>Ma&amp;rke</translation>
    </message>
    <message>
        <source>The maker of the fisheye lens</source>
        <translation>Der Hersteller des Fisheye-Objektivs</translation>
    </message>
    <message>
        <source>Lens brand</source>
        <translation>Objektivmarke</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>Mo&amp;dell</translation>
    </message>
    <message>
        <source>The fisheye lens; a zoom is listed once for every focal length</source>
        <translation>Das Fisheye-Objektiv; ein Zoom ist für jede Brennweite einmal aufgeführt</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Objektivmodell</translation>
    </message>
    <message>
        <source>Fine adjustment</source>
        <translation>Feineinstellung</translation>
    </message>
    <message>
        <source>Horizontal angle of &amp;view</source>
        <translation>Waagerechter &amp;Bildwinkel</translation>
    </message>
    <message>
        <source>How much of the scene a landscape photo shows from its left to its right edge; the catalogue tells it unless you move it</source>
        <translation>Wie viel der Szene ein Foto im Querformat vom linken bis zum rechten Rand zeigt; der Katalog gibt ihn vor, solange Sie ihn nicht verstellen</translation>
    </message>
    <message>
        <source>Horizontal angle of view in degrees</source>
        <translation>Waagerechter Bildwinkel in Grad</translation>
    </message>
    <message>
        <source>Horizontal angle of view in degrees, exact value</source>
        <translation>Waagerechter Bildwinkel in Grad, genauer Wert</translation>
    </message>
    <message>
        <source>Sensor &amp;width / image circle</source>
        <translation>&amp;Sensorbreite / Bildkreis</translation>
    </message>
    <message>
        <source>The width of the sensor compared with the circle that the lens draws; raise it when the circle in the photo is smaller than expected</source>
        <translation>Die Breite des Sensors im Vergleich zum Kreis, den das Objektiv zeichnet; größer stellen, wenn der Kreis im Foto kleiner ist als erwartet</translation>
    </message>
    <message>
        <source>Sensor width in percent of the image circle</source>
        <translation>Sensorbreite in Prozent des Bildkreises</translation>
    </message>
    <message>
        <source>Sensor width in percent of the image circle, exact value</source>
        <translation>Sensorbreite in Prozent des Bildkreises, genauer Wert</translation>
    </message>
    <message>
        <source>Circle off centre, &amp;horizontally</source>
        <translation>Kreis außer Mitte, &amp;waagerecht</translation>
    </message>
    <message>
        <source>How far the middle of the image circle lies from the middle of the photo, in thousandths of its width</source>
        <translation>Wie weit die Mitte des Bildkreises von der Mitte des Fotos entfernt liegt, in Tausendsteln seiner Breite</translation>
    </message>
    <message>
        <source>Horizontal offset of the image circle in thousandths</source>
        <translation>Waagerechter Versatz des Bildkreises in Tausendsteln</translation>
    </message>
    <message>
        <source>Horizontal offset of the image circle in thousandths, exact value</source>
        <translation>Waagerechter Versatz des Bildkreises in Tausendsteln, genauer Wert</translation>
    </message>
    <message>
        <source>Circle off centre, ver&amp;tically</source>
        <translation>Kreis außer Mitte, senkre&amp;cht</translation>
    </message>
    <message>
        <source>How far the middle of the image circle lies from the middle of the photo, in thousandths of its height</source>
        <translation>Wie weit die Mitte des Bildkreises von der Mitte des Fotos entfernt liegt, in Tausendsteln seiner Höhe</translation>
    </message>
    <message>
        <source>Vertical offset of the image circle in thousandths</source>
        <translation>Senkrechter Versatz des Bildkreises in Tausendsteln</translation>
    </message>
    <message>
        <source>Vertical offset of the image circle in thousandths, exact value</source>
        <translation>Senkrechter Versatz des Bildkreises in Tausendsteln, genauer Wert</translation>
    </message>
    <message>
        <source>&amp;Catalogue values</source>
        <translation>&amp;Katalogwerte</translation>
    </message>
    <message>
        <source>Forget your own values and take those of the catalogue for this camera and lens</source>
        <translation>Die eigenen Werte vergessen und die des Katalogs für diese Kamera und dieses Objektiv nehmen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Keep this combination of camera and lens</source>
        <translation>Diese Kombination aus Kamera und Objektiv behalten</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without a change</source>
        <translation>Schließen, ohne etwas zu ändern</translation>
    </message>
    <message>
        <source>Read &amp;from a photo ...</source>
        <translation>Aus einem &amp;Foto lesen ...</translation>
    </message>
    <message>
        <source>Take the camera and the lens that the EXIF of a photo names</source>
        <translation>Nimmt Kamera und Objektiv, die die EXIF-Daten eines Fotos nennen</translation>
    </message>
    <message>
        <source>Not listed: a t&amp;ypical fisheye</source>
        <translation>Fehlt: &amp;typisches Fischauge</translation>
    </message>
    <message>
        <source>A fisheye of 180 degrees stands in for a lens that is not listed; measure it later from a photo</source>
        <translation>Ein Fischauge mit 180 Grad vertritt ein Objektiv, das nicht in der Liste steht; vermessen lässt es sich später an einem Foto</translation>
    </message>
    <message>
        <source>My len&amp;ses</source>
        <translation>Meine Objekti&amp;ve</translation>
    </message>
    <message>
        <source>Import a calibrated lens; rename, export or delete one of your own. Files may be dropped here, too.</source>
        <translation>Ein kalibriertes Objektiv importieren; ein eigenes umbenennen, exportieren oder löschen. Dateien lassen sich auch hierher ziehen.</translation>
    </message>
    <message>
        <source>New name of the lens</source>
        <translation>Neuer Name des Objektivs</translation>
    </message>
    <message>
        <source>The name under which the lens is listed; gears that have it follow</source>
        <translation>Der Name, unter dem das Objektiv in der Liste steht; Ausrüstungen mit ihm folgen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Umbenennen</translation>
    </message>
    <message>
        <source>Give the lens this name now</source>
        <translation>Dem Objektiv jetzt diesen Namen geben</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Take the deleted lens back</source>
        <translation>Das gelöschte Objektiv zurückholen</translation>
    </message>
    <message>
        <source>How far the optical axis lies from where the lens or the middle of the photo puts it, in thousandths of its width</source>
        <translation>Wie weit die optische Achse von ihrem Ort nach dem Objektiv oder von der Bildmitte liegt, in Tausendsteln der Bildbreite</translation>
    </message>
    <message>
        <source>Horizontal offset of the optical axis in thousandths, exact value</source>
        <translation>Waagerechter Versatz der optischen Achse in Tausendsteln, genauer Wert</translation>
    </message>
    <message>
        <source>How far the optical axis lies from where the lens or the middle of the photo puts it, in thousandths of its height</source>
        <translation>Wie weit die optische Achse von ihrem Ort nach dem Objektiv oder von der Bildmitte liegt, in Tausendsteln der Bildhöhe</translation>
    </message>
    <message>
        <source>Vertical offset of the optical axis in thousandths, exact value</source>
        <translation>Senkrechter Versatz der optischen Achse in Tausendsteln, genauer Wert</translation>
    </message>
    <message>
        <source>Curve of the &amp;lens, A (mm) and B</source>
        <translation>K&amp;urve des Objektivs, A (mm) und B</translation>
    </message>
    <message>
        <source>The first of the two numbers of the lens: how far from the centre rays land</source>
        <translation>Die erste der beiden Zahlen des Objektivs: wie weit von der Mitte Strahlen auftreffen</translation>
    </message>
    <message>
        <source>A of the lens in millimetres</source>
        <translation>A des Objektivs in Millimetern</translation>
    </message>
    <message>
        <source>The second of the two numbers of the lens: how much it squeezes towards the rim</source>
        <translation>Die zweite der beiden Zahlen des Objektivs: wie sehr es zum Rand hin staucht</translation>
    </message>
    <message>
        <source>B of the lens</source>
        <translation>B des Objektivs</translation>
    </message>
    <message>
        <source>Small result</source>
        <translation>Kleines Ergebnis</translation>
    </message>
    <message>
        <source>What these numbers make of a photo</source>
        <translation>Was diese Zahlen aus einem Foto machen</translation>
    </message>
    <message>
        <source>The projection of the small result: Rectilinear shows whether lines are straight, Varnel and Horizon where the circle lies</source>
        <translation>Die Projektion des kleinen Ergebnisses: Rectilinear zeigt, ob Linien gerade sind, Varnel und Horizon, wo der Kreis liegt</translation>
    </message>
    <message>
        <source>Projection of the small result</source>
        <translation>Projektion des kleinen Ergebnisses</translation>
    </message>
</context>
<context>
    <name>FormGearList</name>
    <message>
        <source>Camera + lens combinations</source>
        <translation>Kombinationen aus Kamera und Objektiv</translation>
    </message>
    <message>
        <source>Your combinations of camera and lens; double-click one to redefine it</source>
        <translation>Ihre Kombinationen aus Kamera und Objektiv; ein Doppelklick ändert eine</translation>
    </message>
    <message>
        <source>Add new</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Define another combination of camera and lens</source>
        <translation>Eine weitere Kombination aus Kamera und Objektiv festlegen</translation>
    </message>
    <message>
        <source>Redefine</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Change the selected combination</source>
        <translation>Die gewählte Kombination ändern</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Take the selected combination off the list (Del)</source>
        <translation>Die gewählte Kombination aus der Liste nehmen (Entf)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save the list and close</source>
        <translation>Die Liste speichern und schließen</translation>
    </message>
    <message>
        <source>New photos get the combination in bold. Changes are saved with OK.</source>
        <translation>Neue Fotos bekommen die fett gezeigte Kombination. OK speichert die Änderungen.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close and leave all combinations as they were (Esc)</source>
        <translation>Schließen und alle Kombinationen lassen, wie sie waren (Esc)</translation>
    </message>
</context>
<context>
    <name>FormMorph</name>
    <message>
        <source>Morph</source>
        <translation>Morph</translation>
    </message>
    <message>
        <source>First image</source>
        <translation>Erstes Bild</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>Letztes Bild</translation>
    </message>
    <message>
        <source>First image of the sequence</source>
        <translation>Erstes Bild der Sequenz</translation>
    </message>
    <message>
        <source>An image between the first and the last</source>
        <translation>Ein Bild zwischen dem ersten und dem letzten</translation>
    </message>
    <message>
        <source>Last image of the sequence</source>
        <translation>Letztes Bild der Sequenz</translation>
    </message>
    <message>
        <source>Runs through the sequence: the picture in the middle shows the image at this place</source>
        <translation>Fährt durch die Sequenz: In der Mitte steht das Bild an dieser Stelle</translation>
    </message>
    <message>
        <source>Image shown between the first and the last</source>
        <translation>Gezeigtes Bild zwischen dem ersten und dem letzten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>&amp;Anzahl der Bilder</translation>
    </message>
    <message>
        <source>How many images the sequence has, the first and the last included</source>
        <translation>Wie viele Bilder die Sequenz hat, das erste und das letzte eingeschlossen</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Anzahl der Bilder</translation>
    </message>
    <message>
        <source>What was added</source>
        <translation>Was hinzugefügt wurde</translation>
    </message>
    <message>
        <source>&amp;Add to batch que</source>
        <translation>&amp;Zum Stapel hinzufügen</translation>
    </message>
    <message>
        <source>Puts every image of the sequence into the batch queue, where &quot;Process batch que&quot; writes them</source>
        <translation>Legt jedes Bild der Sequenz in den Stapel, wo „Stapel verarbeiten“ sie schreibt</translation>
    </message>
    <message>
        <source>Add the sequence to the batch queue</source>
        <translation>Die Sequenz zum Stapel hinzufügen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back to the photos; what was added stays in the queue</source>
        <translation>Zurück zu den Fotos; was hinzugefügt wurde, bleibt im Stapel</translation>
    </message>
    <message>
        <source>&amp;Write as film</source>
        <translation>Als &amp;Film schreiben</translation>
    </message>
    <message>
        <source>The images become one film at once instead of pictures in the batch queue</source>
        <translation>Aus den Bildern wird sofort ein Film statt Bilder im Stapel</translation>
    </message>
    <message>
        <source>Images in a second of the film</source>
        <translation>Bilder in einer Sekunde des Films</translation>
    </message>
    <message>
        <source>How many images the film shows in a second</source>
        <translation>Wie viele Bilder der Film in einer Sekunde zeigt</translation>
    </message>
    <message>
        <source> images a second</source>
        <translation> Bilder je Sekunde</translation>
    </message>
    <message>
        <source>Images written</source>
        <translation>Geschriebene Bilder</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Stops writing the film; nothing of it is kept</source>
        <translation>Hört auf, den Film zu schreiben; nichts davon bleibt</translation>
    </message>
</context>
<context>
    <name>FormPresets</name>
    <message>
        <source>Manage presets</source>
        <translation>Voreinstellungen verwalten</translation>
    </message>
    <message>
        <source>Your own presets; double-click one to rename it</source>
        <translation>Ihre eigenen Voreinstellungen; ein Doppelklick benennt eine um</translation>
    </message>
    <message>
        <source>Your presets</source>
        <translation>Ihre Voreinstellungen</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Give the selected preset another name (F2)</source>
        <translation>Der gewählten Voreinstellung einen anderen Namen geben (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Delete the selected preset (Del); it can be brought back</source>
        <translation>Die gewählte Voreinstellung löschen (Entf); sie lässt sich zurückholen</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren ...</translation>
    </message>
    <message>
        <source>Add the presets of a file</source>
        <translation>Die Voreinstellungen einer Datei hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren ...</translation>
    </message>
    <message>
        <source>Write all your presets into a file</source>
        <translation>Alle Ihre Voreinstellungen in eine Datei schreiben</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Changes are saved already</source>
        <translation>Änderungen sind bereits gespeichert</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Bring the deleted preset back</source>
        <translation>Die gelöschte Voreinstellung zurückholen</translation>
    </message>
</context>
<context>
    <name>FormSavePreset</name>
    <message>
        <source>Save as preset</source>
        <translation>Als Voreinstellung speichern</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Under this name the preset stands in the Edit menu, and for varnel-convert --preset</source>
        <translation>Unter diesem Namen steht die Voreinstellung im Menü Bearbeiten und für varnel-convert --preset</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Name der Voreinstellung</translation>
    </message>
    <message>
        <source>What the preset sets; gear and circle stay each photo&apos;s own:</source>
        <translation>Was die Voreinstellung setzt; Ausrüstung und Bildkreis behält jedes Foto:</translation>
    </message>
    <message>
        <source>&amp;Projection and its effect</source>
        <translation>&amp;Projektion und ihre Wirkung</translation>
    </message>
    <message>
        <source>The projection, and how strong it is</source>
        <translation>Die Projektion und wie stark sie wirkt</translation>
    </message>
    <message>
        <source>Output &amp;angle</source>
        <translation>&amp;Bildwinkel der Ausgabe</translation>
    </message>
    <message>
        <source>The angle of view of the result</source>
        <translation>Der Bildwinkel des Ergebnisses</translation>
    </message>
    <message>
        <source>&amp;Rotation of the camera</source>
        <translation>&amp;Drehung der Kamera</translation>
    </message>
    <message>
        <source>All three rotations, also where they are 0</source>
        <translation>Alle drei Drehungen, auch wo sie 0 sind</translation>
    </message>
    <message>
        <source>&amp;Shift of the image</source>
        <translation>&amp;Verschiebung des Bildes</translation>
    </message>
    <message>
        <source>Both shifts, also where they are 0</source>
        <translation>Beide Verschiebungen, auch wo sie 0 sind</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>Aus&amp;gabe</translation>
    </message>
    <message>
        <source>File type, quality, colour, metadata and names of saved photos</source>
        <translation>Dateityp, Qualität, Farbe, Metadaten und Namen gespeicherter Fotos</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save the preset</source>
        <translation>Die Voreinstellung speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Close without a preset (Esc)</source>
        <translation>Ohne Voreinstellung schließen (Esc)</translation>
    </message>
</context>
<context>
    <name>FormSetup</name>
    <message>
        <source>Defaults</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Default gear</source>
        <translation>Übliche Ausrüstung</translation>
    </message>
    <message>
        <source>&amp;Camera + lens combination</source>
        <translation>&amp;Kamera + Objektiv</translation>
    </message>
    <message>
        <source>The camera and lens that your photos were taken with, unless you choose another</source>
        <translation>Kamera und Objektiv, mit denen Ihre Fotos aufgenommen wurden, solange Sie nichts anderes wählen</translation>
    </message>
    <message>
        <source>Default camera and lens combination</source>
        <translation>Übliche Kombination aus Kamera und Objektiv</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>Größe der Vorschau</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>How wide the previews may become; smaller previews follow the sliders faster</source>
        <translation>Wie breit die Vorschau werden darf; eine kleinere folgt den Reglern schneller</translation>
    </message>
    <message>
        <source>Preview width in pixels</source>
        <translation>Breite der Vorschau in Pixeln</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Höhe</translation>
    </message>
    <message>
        <source>How high the previews may become; smaller previews follow the sliders faster</source>
        <translation>Wie hoch die Vorschau werden darf; eine kleinere folgt den Reglern schneller</translation>
    </message>
    <message>
        <source>Preview height in pixels</source>
        <translation>Höhe der Vorschau in Pixeln</translation>
    </message>
    <message>
        <source>Opened photos</source>
        <translation>Geöffnete Fotos</translation>
    </message>
    <message>
        <source>Turn photos upright</source>
        <translation>Fotos aufrecht drehen</translation>
    </message>
    <message>
        <source>Photos that were taken with the camera on its side stand upright, as the camera noted it</source>
        <translation>Fotos, die mit gedrehter Kamera aufgenommen wurden, stehen aufrecht, wie die Kamera es vermerkt hat</translation>
    </message>
    <message>
        <source>Offer the gear that a photo tells</source>
        <translation>Ausrüstung anbieten, die ein Foto verrät</translation>
    </message>
    <message>
        <source>When a photo tells its camera and lens, the matching gear is offered; you decide</source>
        <translation>Wenn ein Foto Kamera und Objektiv verrät, wird die passende Ausrüstung angeboten; Sie entscheiden</translation>
    </message>
    <message>
        <source>Saved photos</source>
        <translation>Gespeicherte Fotos</translation>
    </message>
    <message>
        <source>File &amp;type</source>
        <translation>Datei&amp;typ</translation>
    </message>
    <message>
        <source>The file type that is proposed when you save: TIFF and PNG keep every detail, JPEG makes small files</source>
        <translation>Der Dateityp, der beim Speichern vorgeschlagen wird: TIFF und PNG behalten jede Einzelheit, JPEG macht kleine Dateien</translation>
    </message>
    <message>
        <source>File type of saved photos</source>
        <translation>Dateityp gespeicherter Fotos</translation>
    </message>
    <message>
        <source>JPEG &amp;quality</source>
        <translation>JPEG-&amp;Qualität</translation>
    </message>
    <message>
        <source>100 keeps the most detail, lower values make smaller JPEG files</source>
        <translation>100 behält die meisten Einzelheiten, niedrigere Werte machen kleinere JPEG-Dateien</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 100</source>
        <translation>JPEG-Qualität, 1 bis 100</translation>
    </message>
    <message>
        <source>Full colour resolution (4:4:4)</source>
        <translation>Volle Farbauflösung (4:4:4)</translation>
    </message>
    <message>
        <source>Fine coloured detail stays sharp in JPEG files, which become larger</source>
        <translation>Feine farbige Einzelheiten bleiben in JPEG-Dateien scharf, die dabei größer werden</translation>
    </message>
    <message>
        <source>Keep the photo&apos;s metadata</source>
        <translation>Metadaten des Fotos behalten</translation>
    </message>
    <message>
        <source>Camera, lens, date, place, captions and keywords (EXIF, IPTC, XMP) go into the saved file; the colour profile always does</source>
        <translation>Kamera, Objektiv, Datum, Ort, Bildtexte und Stichwörter (EXIF, IPTC, XMP) kommen in die gespeicherte Datei; das Farbprofil immer</translation>
    </message>
    <message>
        <source>Write the settings into the picture</source>
        <translation>Einstellungen ins Bild schreiben</translation>
    </message>
    <message>
        <source>Projection, gear and adjustments are written into the saved file, so that they can be had back from it; the photo&apos;s name is among them and, while its metadata are kept, where it lies beside the file</source>
        <translation>Projektion, Ausrüstung und Anpassungen werden in die gespeicherte Datei geschrieben, sodass sie sich daraus zurückholen lassen; der Name des Fotos gehört dazu und, solange seine Metadaten behalten werden, auch, wo es von der Datei aus liegt</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Sp&amp;rache</translation>
    </message>
    <message>
        <source>The language of menus, buttons and messages; names and file names stay as they are</source>
        <translation>Die Sprache der Menüs, Schaltflächen und Meldungen; Namen und Dateinamen bleiben, wie sie sind</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Sprache des Fensters</translation>
    </message>
    <message>
        <source>Saved as default, it changes at the next start.</source>
        <translation>Als Vorgabe gespeichert, wechselt sie beim nächsten Start.</translation>
    </message>
    <message>
        <source>&amp;Save as default</source>
        <translation>Als Vorgabe &amp;speichern</translation>
    </message>
    <message>
        <source>Use these values now and at every start of Varnel</source>
        <translation>Diese Werte jetzt und bei jedem Start von Varnel verwenden</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>Als Vorgabe speichern</translation>
    </message>
    <message>
        <source>Whether the defaults were saved</source>
        <translation>Ob die Vorgaben gespeichert wurden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Use these values until Varnel is closed</source>
        <translation>Diese Werte verwenden, bis Varnel geschlossen wird</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Leave everything as it was</source>
        <translation>Alles lassen, wie es war</translation>
    </message>
    <message>
        <source>Give added photos their own gear</source>
        <translation>Hinzugefügten Fotos ihre eigene Ausrüstung geben</translation>
    </message>
    <message>
        <source>Photos that are added get the gear that they tell, or a typical fisheye as a guess; otherwise the default gear, and their own is only offered</source>
        <translation>Hinzugefügte Fotos bekommen die Ausrüstung, die sie verraten, oder ein typisches Fischauge als Annahme; sonst die übliche Ausrüstung, und ihre eigene wird nur angeboten</translation>
    </message>
    <message>
        <source>TIFF c&amp;ompression</source>
        <translation>TIFF-K&amp;omprimierung</translation>
    </message>
    <message>
        <source>All of them keep every value; automatic is LZW for 8 bits and Deflate for more, which LZW would make larger</source>
        <translation>Alle behalten jeden Wert; automatisch ist LZW bei 8 Bit und Deflate bei mehr, was LZW größer machen würde</translation>
    </message>
    <message>
        <source>Compression of TIFF files</source>
        <translation>Komprimierung von TIFF-Dateien</translation>
    </message>
    <message>
        <source>Keep the depth of photos</source>
        <translation>Tiefe der Fotos behalten</translation>
    </message>
    <message>
        <source>Photos of 16 bits and floating point are read and saved as such, as far as the file type goes; otherwise everything has 8 bits</source>
        <translation>Fotos mit 16 Bit und in Gleitkomma werden als solche gelesen und gespeichert, soweit der Dateityp das kann; sonst hat alles 8 Bit</translation>
    </message>
    <message>
        <source>Best quality (fine sampling)</source>
        <translation>Beste Qualität (feine Abtastung)</translation>
    </message>
    <message>
        <source>Sharper where the view enlarges the photo, no moire where it makes it smaller, smooth borders; takes several times as long</source>
        <translation>Schärfer, wo die Ansicht das Foto vergrößert, kein Moiré, wo sie es verkleinert, glatte Ränder; dauert um ein Mehrfaches länger</translation>
    </message>
    <message>
        <source>Less memory</source>
        <translation>Weniger Speicher</translation>
    </message>
    <message>
        <source>With classic sampling the batch reads large JPEG photos in half the memory and draws results a band at a time; they are the same and take somewhat longer</source>
        <translation>Mit klassischer Abtastung liest der Stapel große JPEG-Fotos in halb so viel Speicher und zeichnet die Ergebnisse streifenweise; sie sind dieselben und dauern etwas länger</translation>
    </message>
</context>
<context>
    <name>FormStraighten</name>
    <message>
        <source>Straighten</source>
        <translation>Geraderichten</translation>
    </message>
    <message>
        <source>Coloured edges count as straight. Click one that is bent to take it away; click near both ends of another one to add it. Ctrl and the wheel zoom.</source>
        <translation>Farbige Kanten gelten als gerade. Klicken Sie eine an, die gebogen ist, um sie wegzunehmen; klicken Sie nahe an beide Enden einer anderen, um sie hinzuzufügen. Strg und das Rad vergrößern.</translation>
    </message>
    <message>
        <source>The photo that is shown; all of them are measured together</source>
        <translation>Das gezeigte Foto; gemessen wird aus allen zusammen</translation>
    </message>
    <message>
        <source>Photo that is shown</source>
        <translation>Gezeigtes Foto</translation>
    </message>
    <message>
        <source>&amp;Add photos...</source>
        <translation>&amp;Fotos hinzufügen...</translation>
    </message>
    <message>
        <source>Adds photos of the same size, camera and lens, four at most: they make the result surer</source>
        <translation>Fügt Fotos derselben Größe, Kamera und desselben Objektivs hinzu, höchstens vier: sie machen das Ergebnis sicherer</translation>
    </message>
    <message>
        <source>Add photos of the same lens</source>
        <translation>Fotos desselben Objektivs hinzufügen</translation>
    </message>
    <message>
        <source>The edges, the longest first: how far each is off straight with the measured lens</source>
        <translation>Die Kanten, die längste zuerst: wie weit jede mit dem gemessenen Objektiv von gerade abweicht</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Kanten</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>A&amp;ufrecht</translation>
    </message>
    <message>
        <source>The chosen edge is upright in space</source>
        <translation>Die gewählte Kante steht im Raum aufrecht</translation>
    </message>
    <message>
        <source>Le&amp;vel</source>
        <translation>&amp;Waagerecht</translation>
    </message>
    <message>
        <source>The chosen edge is level and crosses the view; all of one photo are parallel</source>
        <translation>Die gewählte Kante liegt waagerecht quer zum Blick; alle eines Fotos sind parallel</translation>
    </message>
    <message>
        <source>&amp;Runs away</source>
        <translation>&amp;Läuft weg</translation>
    </message>
    <message>
        <source>The chosen edge is level and runs away from the camera, at right angles to those that are level</source>
        <translation>Die gewählte Kante liegt waagerecht und läuft von der Kamera weg, im rechten Winkel zu den waagerechten</translation>
    </message>
    <message>
        <source>&amp;No direction</source>
        <translation>Keine &amp;Richtung</translation>
    </message>
    <message>
        <source>Nothing is known of the chosen edge but that it is straight</source>
        <translation>Von der gewählten Kante ist nur bekannt, dass sie gerade ist</translation>
    </message>
    <message>
        <source>&amp;Take away</source>
        <translation>Weg&amp;nehmen</translation>
    </message>
    <message>
        <source>Takes the chosen edge out of the measuring, or brings it back</source>
        <translation>Nimmt die gewählte Kante aus der Messung oder holt sie zurück</translation>
    </message>
    <message>
        <source>&amp;Focal length</source>
        <translation>&amp;Brennweite</translation>
    </message>
    <message>
        <source>Of the lens, to some 2 percent; it fixes the scale of angles, which edges alone do not tell</source>
        <translation>Des Objektivs, auf etwa 2 Prozent; sie legt den Maßstab der Winkel fest, den Kanten allein nicht verraten</translation>
    </message>
    <message>
        <source>Focal length, millimetres</source>
        <translation>Brennweite in Millimetern</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Circle at &amp;90°</source>
        <translation>Kreis bei &amp;90°</translation>
    </message>
    <message>
        <source>The rim of the image circle is known to be at 90 degrees from the axis</source>
        <translation>Der Rand des Bildkreises liegt bekanntlich 90 Grad von der Achse</translation>
    </message>
    <message>
        <source>Estimate &amp;colour fringes</source>
        <translation>Farb&amp;säume schätzen</translation>
    </message>
    <message>
        <source>Measures from the same edges how far red and blue are off green, and takes it out</source>
        <translation>Misst an denselben Kanten, wie weit Rot und Blau neben Grün liegen, und gleicht es aus</translation>
    </message>
    <message>
        <source>What the edges tell</source>
        <translation>Was die Kanten verraten</translation>
    </message>
    <message>
        <source>Na&amp;me of the lens</source>
        <translation>Na&amp;me des Objektivs</translation>
    </message>
    <message>
        <source>What the measured lens is called</source>
        <translation>Wie das gemessene Objektiv heißt</translation>
    </message>
    <message>
        <source>Name of the lens</source>
        <translation>Name des Objektivs</translation>
    </message>
    <message>
        <source>&amp;Save as my lens ...</source>
        <translation>Als mein Ob&amp;jektiv speichern ...</translation>
    </message>
    <message>
        <source>Keeps the measured lens under this name, for any camera, under the brand &quot;My lenses&quot;</source>
        <translation>Behält das gemessene Objektiv unter diesem Namen, für jede Kamera, unter der Marke „My lenses“</translation>
    </message>
    <message>
        <source>Use for all photos of this camera and &amp;lens</source>
        <translation>Für alle Fotos dieser &amp;Kamera und dieses Objektivs</translation>
    </message>
    <message>
        <source>Gives the measured lens to all photos of the list that were taken with this camera and lens</source>
        <translation>Gibt das gemessene Objektiv allen Fotos der Liste, die mit dieser Kamera und diesem Objektiv aufgenommen wurden</translation>
    </message>
    <message>
        <source>Use for this ph&amp;oto</source>
        <translation>Für &amp;dieses Foto</translation>
    </message>
    <message>
        <source>Gives the measured lens to the current photo</source>
        <translation>Gibt das gemessene Objektiv dem aktuellen Foto</translation>
    </message>
    <message>
        <source>State of the measuring</source>
        <translation>Stand der Messung</translation>
    </message>
    <message>
        <source>The edges are measured</source>
        <translation>Die Kanten werden gemessen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Ends the measuring; nothing is changed</source>
        <translation>Beendet die Messung; nichts wird geändert</translation>
    </message>
    <message>
        <source>%1 of %2 edges are used. Edges held out of the measuring are off straight by %3 pixels with the present numbers, by %4 with the measured lens.</source>
        <translation>%1 von %2 Kanten zählen. Kanten, die nicht in die Messung eingingen, weichen mit den jetzigen Zahlen um %3 Pixel von gerade ab, mit dem gemessenen Objektiv um %4.</translation>
    </message>
    <message>
        <source>Expected error of angles: %1°.</source>
        <translation>Zu erwartender Fehler der Winkel: %1°.</translation>
    </message>
    <message>
        <source>Angles not fixed: tag edges, or give the focal length.</source>
        <translation>Die Winkel liegen nicht fest: geben Sie Kanten eine Richtung, oder nennen Sie die Brennweite.</translation>
    </message>
    <message>
        <source>Angles not fixed: tag edges that are upright, level or run away.</source>
        <translation>Die Winkel liegen nicht fest: bezeichnen Sie Kanten, die aufrecht oder waagerecht sind oder weglaufen.</translation>
    </message>
    <message>
        <source>Colour at the outermost edges: red off by %1 ± %2 pixels, blue by %3 ± %4.</source>
        <translation>Farbe an den äußersten Kanten: Rot um %1 ± %2 Pixel daneben, Blau um %3 ± %4.</translation>
    </message>
    <message>
        <source>This is too small by up to half a pixel: the JPEG file has colours at half its resolution.</source>
        <translation>Das ist bis zu einem halben Pixel zu wenig: die JPEG-Datei hat Farben in halber Auflösung.</translation>
    </message>
    <message>
        <source>Too few straight edges: %1 are needed at least, more are better. Click near both ends of edges to add them.</source>
        <translation>Zu wenige gerade Kanten: mindestens %1 sind nötig, mehr sind besser. Klicken Sie nahe an beide Enden von Kanten, um sie hinzuzufügen.</translation>
    </message>
    <message>
        <source>The present numbers do as well or better: they stay.</source>
        <translation>Die jetzigen Zahlen sind ebenso gut oder besser: sie bleiben.</translation>
    </message>
    <message>
        <source>Expected bend: %1 pixels, in a view 110° across with 24 megapixels.</source>
        <translation>Zu erwartende Biegung: %1 Pixel, in einer 110° breiten Ansicht mit 24 Megapixeln.</translation>
    </message>
    <message>
        <source>The edges do not tell of colour fringes.</source>
        <translation>Die Kanten verraten nichts über Farbsäume.</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>aufrecht</translation>
    </message>
    <message>
        <source>level</source>
        <translation>waagerecht</translation>
    </message>
    <message>
        <source>runs away</source>
        <translation>läuft weg</translation>
    </message>
</context>
<context>
    <name>FormStretch</name>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>&amp;Open image ...</source>
        <translation>Bild &amp;öffnen ...</translation>
    </message>
    <message>
        <source>Chooses the photo to stretch; it can also be dropped on this window</source>
        <translation>Wählt das Foto, das gestreckt wird; es lässt sich auch auf dieses Fenster ziehen</translation>
    </message>
    <message>
        <source>Open an image</source>
        <translation>Ein Bild öffnen</translation>
    </message>
    <message>
        <source>File name of the photo</source>
        <translation>Dateiname des Fotos</translation>
    </message>
    <message>
        <source>S&amp;trength</source>
        <translation>S&amp;tärke</translation>
    </message>
    <message>
        <source>How much the rows are widened or narrowed away from the middle row. Double-click the name to reset it</source>
        <translation>Wie stark die Zeilen abseits der Mittelzeile verbreitert oder verschmälert werden. Ein Doppelklick auf den Namen setzt zurück</translation>
    </message>
    <message>
        <source>Strength of the stretch, percent</source>
        <translation>Stärke der Streckung, Prozent</translation>
    </message>
    <message>
        <source>&amp;Middle row</source>
        <translation>&amp;Mittelzeile</translation>
    </message>
    <message>
        <source>The row that keeps its width: up is toward the top of the picture. Double-click the name to reset it</source>
        <translation>Die Zeile, die ihre Breite behält: oben ist zum oberen Bildrand hin. Ein Doppelklick auf den Namen setzt zurück</translation>
    </message>
    <message>
        <source>Row that keeps its width, percent up from the middle</source>
        <translation>Zeile, die ihre Breite behält, Prozent oberhalb der Mitte</translation>
    </message>
    <message>
        <source>State of the photo</source>
        <translation>Zustand des Fotos</translation>
    </message>
    <message>
        <source>Progress of the save</source>
        <translation>Fortschritt des Speicherns</translation>
    </message>
    <message>
        <source>&amp;Save image as ...</source>
        <translation>Bild &amp;speichern unter ...</translation>
    </message>
    <message>
        <source>Stretches the photo at full size and writes it to a new file</source>
        <translation>Streckt das Foto in voller Größe und schreibt es in eine neue Datei</translation>
    </message>
    <message>
        <source>Save the stretched image</source>
        <translation>Das gestreckte Bild speichern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Back to the photos</source>
        <translation>Zurück zu den Fotos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ends the saving without a file</source>
        <translation>Beendet das Speichern ohne Datei</translation>
    </message>
    <message>
        <source>Cancel the saving</source>
        <translation>Speichern abbrechen</translation>
    </message>
</context>
<context>
    <name>GearOffer</name>
    <message>
        <source> (cropped?)</source>
        <translation> (beschnitten?)</translation>
    </message>
    <message>
        <source>Taken with %1</source>
        <translation>Aufgenommen mit %1</translation>
    </message>
    <message>
        <source>its shape, %1 : 1, is not the sensor&apos;s, %2 : 1; if it was cropped, the gear&apos;s numbers do not fit</source>
        <translation>sein Seitenverhältnis, %1 : 1, ist nicht das des Sensors, %2 : 1; wenn es beschnitten wurde, passen die Werte der Ausrüstung nicht</translation>
    </message>
    <message>
        <source>Not this photo&apos;s gear</source>
        <translation>Nicht die Ausrüstung dieses Fotos</translation>
    </message>
    <message>
        <source> (camera not in the list)</source>
        <translation> (Kamera nicht in der Liste)</translation>
    </message>
    <message>
        <source>The lens &quot;%1&quot; is not there</source>
        <translation>Das Objektiv „%1“ fehlt</translation>
    </message>
</context>
<context>
    <name>GearStore</name>
    <message>
        <source>Please define at least one camera + lens combination ...</source>
        <translation>Bitte legen Sie mindestens eine Kombination aus Kamera und Objektiv fest ...</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; needs the lens &quot;%2&quot; of &quot;My lenses&quot;, which is not there.</source>
        <translation>Die Ausrüstung „%1“ braucht das Objektiv „%2“ unter „My lenses“, das fehlt.</translation>
    </message>
</context>
<context>
    <name>LensChoice</name>
    <message>
        <source>Measured on %1</source>
        <translation>Gemessen am %1</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source> from %1</source>
        <translation> an %1</translation>
    </message>
    <message>
        <source>; its edges are straight to %1 px</source>
        <translation>; seine Kanten sind auf %1 px gerade</translation>
    </message>
</context>
<context>
    <name>LevelTools</name>
    <message>
        <source>it takes %1, %2° more than the slider has</source>
        <translation>nötig sind %1, %2° mehr, als der Regler hat</translation>
    </message>
    <message>
        <source>Not levelled: %1.</source>
        <translation>Nicht ausgerichtet: %1.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>Not levelled: the gear&apos;s numbers make no lens.</source>
        <translation>Nicht ausgerichtet: Die Werte der Ausrüstung ergeben kein Objektiv.</translation>
    </message>
    <message>
        <source>Not levelled: the line is too short.</source>
        <translation>Nicht ausgerichtet: Die Linie ist zu kurz.</translation>
    </message>
    <message>
        <source>Not levelled: through this lens no horizon is bent like this line.</source>
        <translation>Nicht ausgerichtet: Durch dieses Objektiv ist kein Horizont so gebogen wie diese Linie.</translation>
    </message>
    <message>
        <source>The horizon is level already.</source>
        <translation>Der Horizont ist schon waagerecht.</translation>
    </message>
    <message>
        <source>Levelled: %1.</source>
        <translation>Ausgerichtet: %1.</translation>
    </message>
</context>
<context>
    <name>ListBadges</name>
    <message>
        <source>adjusted</source>
        <translation>angepasst</translation>
    </message>
    <message>
        <source>in the batch queue</source>
        <translation>im Stapel</translation>
    </message>
    <message>
        <source>the gear is a guess</source>
        <translation>die Ausrüstung ist angenommen</translation>
    </message>
    <message>
        <source>film</source>
        <translation>Film</translation>
    </message>
</context>
<context>
    <name>MagnificationOverlay</name>
    <message>
        <source>shrunk</source>
        <translation>verkleinert</translation>
    </message>
    <message>
        <source>about 1 : 1</source>
        <translation>etwa 1 : 1</translation>
    </message>
    <message>
        <source>stretched</source>
        <translation>gedehnt</translation>
    </message>
</context>
<context>
    <name>MenuStart</name>
    <message>
        <source>New pictures beside the photos: %1</source>
        <translation>Neue Bilder neben den Fotos: %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>Not everything went well. New pictures beside the photos: %1</source>
        <translation>Nicht alles ist gelungen. Neue Bilder neben den Fotos: %1</translation>
    </message>
    <message>
        <source>No picture was written.</source>
        <translation>Es wurde kein Bild geschrieben.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>Straighten with Varnel</source>
        <translation>Mit Varnel geraderichten</translation>
    </message>
    <message>
        <source>Convert fisheye photos into new files beside them</source>
        <translation>Fischaugenfotos in neue Dateien daneben umwandeln</translation>
    </message>
</context>
<context>
    <name>Morph</name>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>%1 is out of range: a sequence has at most %2 frames.</source>
        <translation>%1 liegt außerhalb des Bereichs: Eine Sequenz hat höchstens %2 Bilder.</translation>
    </message>
</context>
<context>
    <name>NamePattern</name>
    <message>
        <source>a name needs at least one token or letter</source>
        <translation>ein Name braucht mindestens einen Platzhalter oder Buchstaben</translation>
    </message>
    <message>
        <source>a name cannot hold / or \</source>
        <translation>ein Name kann weder / noch \ enthalten</translation>
    </message>
    <message>
        <source>there is no token %1; there are %2</source>
        <translation>es gibt keinen Platzhalter %1; es gibt %2</translation>
    </message>
</context>
<context>
    <name>OutputPanel</name>
    <message>
        <source>File &amp;type</source>
        <translation>Datei&amp;typ</translation>
    </message>
    <message>
        <source>TIFF and PNG keep every detail, JPEG makes small files</source>
        <translation>TIFF und PNG behalten jede Einzelheit, JPEG macht kleine Dateien</translation>
    </message>
    <message>
        <source>File type of the images</source>
        <translation>Dateityp der Bilder</translation>
    </message>
    <message>
        <source>JPEG &amp;quality</source>
        <translation>JPEG-&amp;Qualität</translation>
    </message>
    <message>
        <source>100 keeps the most detail, lower values make smaller JPEG files</source>
        <translation>100 behält die meisten Einzelheiten, niedrigere Werte machen kleinere JPEG-Dateien</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 100</source>
        <translation>JPEG-Qualität, 1 bis 100</translation>
    </message>
    <message>
        <source>Full colour resolution (4:4:4)</source>
        <translation>Volle Farbauflösung (4:4:4)</translation>
    </message>
    <message>
        <source>Fine coloured detail stays sharp in JPEG files, which become larger</source>
        <translation>Feine farbige Einzelheiten bleiben in JPEG-Dateien scharf, die dabei größer werden</translation>
    </message>
    <message>
        <source>Keep the photo&apos;s metadata</source>
        <translation>Metadaten des Fotos behalten</translation>
    </message>
    <message>
        <source>Camera, lens, date, place, captions and keywords (EXIF, IPTC, XMP) go into the saved file; the colour profile always does</source>
        <translation>Kamera, Objektiv, Datum, Ort, Bildtexte und Stichwörter (EXIF, IPTC, XMP) kommen in die gespeicherte Datei; das Farbprofil immer</translation>
    </message>
    <message>
        <source>Na&amp;mes</source>
        <translation>Na&amp;men</translation>
    </message>
    <message>
        <source>Pattern of the names</source>
        <translation>Muster der Namen</translation>
    </message>
    <message>
        <source>Name of the first image</source>
        <translation>Name des ersten Bildes</translation>
    </message>
    <message>
        <source>What photos usually need; fine detail takes up to four times as much</source>
        <translation>Was Fotos üblicherweise brauchen; feine Einzelheiten brauchen bis zum Vierfachen</translation>
    </message>
    <message>
        <source>Size to expect</source>
        <translation>Zu erwartende Größe</translation>
    </message>
    <message>
        <source>Save next to the photo</source>
        <translation>Neben dem Foto speichern</translation>
    </message>
    <message>
        <source>Each file goes into the folder of its photo</source>
        <translation>Jede Datei kommt in den Ordner ihres Fotos</translation>
    </message>
    <message>
        <source>Best quality (fine sampling)</source>
        <translation>Beste Qualität (feine Abtastung)</translation>
    </message>
    <message>
        <source>Sharper where the view enlarges the photo, no moire where it makes it smaller, smooth borders; takes several times as long</source>
        <translation>Schärfer, wo die Ansicht das Foto vergrößert, kein Moiré, wo sie es verkleinert, glatte Ränder; dauert um ein Mehrfaches länger</translation>
    </message>
</context>
<context>
    <name>OverlayGeometry</name>
    <message>
        <source>keeps %1 % of the circle</source>
        <translation>behält %1 % des Bildkreises</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keines</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
    <message>
        <source>Half-way resolution %1</source>
        <translation>Auflösung auf halbem Weg %1</translation>
    </message>
    <message>
        <source>Centre resolution %1</source>
        <translation>Auflösung Mitte %1</translation>
    </message>
    <message>
        <source>%1   |   Worst corner stretch %2   |   Area kept %3 %   |   Largest rectangle without black %4</source>
        <translation>%1   |   Eckdehnung bis %2   |   Fläche %3 %   |   Größtes Rechteck ohne Schwarz %4</translation>
    </message>
</context>
<context>
    <name>PhotoGear</name>
    <message>
        <source>the file does not tell what took it</source>
        <translation>die Datei verrät nicht, womit sie aufgenommen wurde</translation>
    </message>
    <message>
        <source>the camera %1 is not in the catalogue</source>
        <translation>die Kamera %1 steht nicht im Katalog</translation>
    </message>
    <message>
        <source>the lens %1 is not in the catalogue</source>
        <translation>das Objektiv %1 steht nicht im Katalog</translation>
    </message>
    <message>
        <source>the file does not tell well enough which lens took it</source>
        <translation>die Datei verrät nicht genau genug, mit welchem Objektiv sie aufgenommen wurde</translation>
    </message>
    <message>
        <source>the file does not tell which gear of its camera took it</source>
        <translation>die Datei verrät nicht, welche Ausrüstung mit dieser Kamera sie aufgenommen hat</translation>
    </message>
    <message>
        <source>no gear has this camera and this lens</source>
        <translation>keine Ausrüstung hat diese Kamera und dieses Objektiv</translation>
    </message>
</context>
<context>
    <name>PhotoGearTools</name>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>The gear of this photo is a guess.</source>
        <translation>Die Ausrüstung dieses Fotos ist angenommen.</translation>
    </message>
    <message>
        <source>The gear of this photo is a guess: %1.</source>
        <translation>Die Ausrüstung dieses Fotos ist angenommen: %1.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the diagonal.</source>
        <translation>Es gilt ein typisches Fischauge, 180 Grad über die Diagonale.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the image circle, which is not found exactly.</source>
        <translation>Es gilt ein typisches Fischauge, 180 Grad über den Bildkreis, der nicht genau gefunden ist.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the image circle.</source>
        <translation>Es gilt ein typisches Fischauge, 180 Grad über den Bildkreis.</translation>
    </message>
    <message>
        <source>The image circle is not where the gear says; the photo&apos;s own is used.</source>
        <translation>Der Bildkreis liegt nicht da, wo die Ausrüstung ihn angibt; es gilt der des Fotos.</translation>
    </message>
    <message>
        <source>Cropped, and no image circle was found: the largest piece of the sensor of this shape is assumed, %1.</source>
        <translation>Beschnitten, und es wurde kein Bildkreis gefunden: Angenommen ist das größte Stück des Sensors mit diesem Seitenverhältnis, %1.</translation>
    </message>
    <message>
        <source>Cropped: it shows about %1 of the sensor by its image circle, which is not found exactly.</source>
        <translation>Beschnitten: Nach dem Bildkreis, der nicht genau gefunden ist, zeigt es etwa %1 des Sensors.</translation>
    </message>
    <message>
        <source>Cropped: it shows %1 of the sensor by its image circle.</source>
        <translation>Beschnitten: Nach dem Bildkreis zeigt es %1 des Sensors.</translation>
    </message>
</context>
<context>
    <name>PictureSettings</name>
    <message>
        <source>the setting %1 cannot be &quot;%2&quot;</source>
        <translation>die Einstellung %1 kann nicht „%2“ sein</translation>
    </message>
    <message>
        <source>the setting %1 is out of range: %2</source>
        <translation>die Einstellung %1 liegt außerhalb ihres Bereichs: %2</translation>
    </message>
    <message>
        <source>the setting &quot;%1&quot; cannot be kept</source>
        <translation>die Einstellung „%1“ kann nicht behalten werden</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Real estate</source>
        <translation>Immobilie</translation>
    </message>
    <message>
        <source>Group photo</source>
        <translation>Gruppenfoto</translation>
    </message>
    <message>
        <source>Whole circle</source>
        <translation>Ganzer Kreis</translation>
    </message>
    <message>
        <source>Horizon strip</source>
        <translation>Horizontstreifen</translation>
    </message>
    <message>
        <source>A preset needs a name of 1 to %1 letters.</source>
        <translation>Eine Voreinstellung braucht einen Namen von 1 bis %1 Zeichen.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already.</source>
        <translation>Es gibt schon eine Voreinstellung „%1“.</translation>
    </message>
</context>
<context>
    <name>ProjectFile</name>
    <message>
        <source>it is damaged: line %1 cannot be read</source>
        <translation>es ist beschädigt: Zeile %1 ist nicht lesbar</translation>
    </message>
    <message>
        <source>it is not a Varnel project</source>
        <translation>es ist kein Varnel-Projekt</translation>
    </message>
    <message>
        <source>a newer version of Varnel wrote it</source>
        <translation>eine neuere Version von Varnel hat es geschrieben</translation>
    </message>
    <message>
        <source>it is damaged: it should hold %1 photos and holds %2</source>
        <translation>es ist beschädigt: Es sollte %1 Fotos enthalten und enthält %2</translation>
    </message>
    <message>
        <source>it is damaged: its end is missing</source>
        <translation>es ist beschädigt: Das Ende fehlt</translation>
    </message>
    <message>
        <source>the setting %1 cannot be used</source>
        <translation>die Einstellung %1 ist nicht verwendbar</translation>
    </message>
    <message>
        <source>it is not a text file</source>
        <translation>es ist keine Textdatei</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es ist zu groß</translation>
    </message>
</context>
<context>
    <name>Projections</name>
    <message>
        <source>Stretches every row of the circle sideways to the full width; no row moves up or down</source>
        <translation>Streckt jede Zeile des Bildkreises seitwärts auf die volle Breite; keine Zeile rückt nach oben oder unten</translation>
    </message>
    <message>
        <source>Straight lines of the scene come out straight</source>
        <translation>Gerade Linien der Szene bleiben gerade</translation>
    </message>
    <message>
        <source>A fisheye in which equal angles take equal room</source>
        <translation>Ein Fisheye, in dem gleiche Winkel gleich viel Platz haben</translation>
    </message>
    <message>
        <source>Unrolls a circle shot straight up or down into a panorama</source>
        <translation>Rollt einen senkrecht nach oben oder unten aufgenommenen Kreis zum Panorama ab</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Stereografisch</translation>
    </message>
    <message>
        <source>Small shapes stay true however wide the view; straight lines bow</source>
        <translation>Kleine Formen bleiben treu, wie weit der Blick auch ist; gerade Linien biegen sich</translation>
    </message>
    <message>
        <source>Panini</source>
        <translation>Panini</translation>
    </message>
    <message>
        <source>Wide rooms and streets: uprights and lines toward the middle stay straight</source>
        <translation>Weite Räume und Straßen: Senkrechte und Linien zur Mitte hin bleiben gerade</translation>
    </message>
    <message>
        <source>Cylindrical</source>
        <translation>Zylindrisch</translation>
    </message>
    <message>
        <source>A panorama around an upright cylinder: uprights stay straight</source>
        <translation>Ein Panorama auf einem stehenden Zylinder: Senkrechte bleiben gerade</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>Mercator</translation>
    </message>
    <message>
        <source>Equirectangular</source>
        <translation>Rektangulär</translation>
    </message>
    <message>
        <source>Even angles across and up: what 360 degree viewers take</source>
        <translation>Gleiche Winkel quer und hoch: was 360-Grad-Betrachter nehmen</translation>
    </message>
    <message>
        <source>Fisheye, equidistant</source>
        <translation>Fischauge, äquidistant</translation>
    </message>
    <message>
        <source>A fisheye in which the distance from the middle is the angle, whatever the sensor</source>
        <translation>Ein Fischauge, bei dem der Abstand von der Mitte der Winkel ist, gleich welcher Sensor</translation>
    </message>
    <message>
        <source>Fisheye, equisolid</source>
        <translation>Fischauge, flächentreu</translation>
    </message>
    <message>
        <source>A fisheye in which equal parts of the view take equal areas</source>
        <translation>Ein Fischauge, bei dem gleiche Teile des Blicks gleiche Flächen einnehmen</translation>
    </message>
    <message>
        <source>Orthographic</source>
        <translation>Orthografisch</translation>
    </message>
    <message>
        <source>The half in front as on a globe seen from far away</source>
        <translation>Die vordere Hälfte wie auf einem Globus aus der Ferne</translation>
    </message>
    <message>
        <source>Little planet</source>
        <translation>Kleiner Planet</translation>
    </message>
    <message>
        <source>The ground as a small planet, the sky around it</source>
        <translation>Der Boden als kleiner Planet, der Himmel darum herum</translation>
    </message>
    <message>
        <source>Unrolled</source>
        <translation>Abgerollt</translation>
    </message>
    <message>
        <source>Directions around the axis become columns, angles from it rows</source>
        <translation>Richtungen um die Achse werden Spalten, Winkel von ihr Zeilen</translation>
    </message>
    <message>
        <source>A panorama that keeps small shapes true, less tall than around a cylinder</source>
        <translation>Ein Panorama, das kleine Formen treu lässt, weniger hoch als auf einem Zylinder</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Save image as ...</source>
        <translation>Bild speichern unter ...</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it?</source>
        <translation>%1 gibt es schon. Ersetzen?</translation>
    </message>
    <message>
        <source>Open image</source>
        <translation>Bild öffnen</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Varnel projects (%1)</source>
        <translation>Varnel-Projekte (%1)</translation>
    </message>
    <message>
        <source>Save the present image list as a project first?</source>
        <translation>Soll die jetzige Bildliste zuerst als Projekt gespeichert werden?</translation>
    </message>
    <message>
        <source>The project %1 was changed. Save it first?</source>
        <translation>Das Projekt %1 wurde geändert. Soll es zuerst gespeichert werden?</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>Save project as</source>
        <translation>Projekt speichern unter</translation>
    </message>
    <message>
        <source>1 photo uses this gear. Give it the new numbers?</source>
        <translation>1 Foto verwendet diese Ausrüstung. Soll es die neuen Werte bekommen?</translation>
    </message>
    <message>
        <source>%1 photos use this gear. Give them the new numbers?</source>
        <translation>%1 Fotos verwenden diese Ausrüstung. Sollen sie die neuen Werte bekommen?</translation>
    </message>
    <message>
        <source>Photos with unsaved adjustments: %1</source>
        <translation>Fotos mit ungespeicherten Anpassungen: %1</translation>
    </message>
    <message>
        <source>Images waiting in the batch queue, which no project holds: %1</source>
        <translation>Bilder im Stapel, die kein Projekt enthält: %1</translation>
    </message>
    <message>
        <source>Varnel was not closed properly. Its image list of %1 is still there. Open it again?</source>
        <translation>Varnel wurde nicht richtig beendet. Seine Bildliste vom %1 ist noch da. Wieder öffnen?</translation>
    </message>
    <message>
        <source>Photos in the list: %1. &quot;No&quot; removes it for good.</source>
        <translation>Fotos in der Liste: %1. „Nein“ löscht sie endgültig.</translation>
    </message>
    <message>
        <source>Import lenses</source>
        <translation>Objektive importieren</translation>
    </message>
    <message>
        <source>Lens files (%1)</source>
        <translation>Objektivdateien (%1)</translation>
    </message>
    <message>
        <source>Varnel&apos;s lens file (%1)</source>
        <translation>Objektivdatei von Varnel (%1)</translation>
    </message>
    <message>
        <source>Calibration for OpenCV (%1)</source>
        <translation>Kalibrierung für OpenCV (%1)</translation>
    </message>
    <message>
        <source>Entry for lensfun (%1)</source>
        <translation>Eintrag für lensfun (%1)</translation>
    </message>
    <message>
        <source>Export the lens</source>
        <translation>Objektiv exportieren</translation>
    </message>
    <message>
        <source>Varnel&apos;s presets (%1)</source>
        <translation>Voreinstellungen von Varnel (%1)</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Voreinstellungen importieren</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>Voreinstellungen exportieren</translation>
    </message>
    <message>
        <source>Save film as</source>
        <translation>Film speichern unter</translation>
    </message>
    <message>
        <source>Films (%1)</source>
        <translation>Filme (%1)</translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading photos ...</source>
        <translation>Fotos werden gelesen ...</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>Overflow: %1 does not fit 32 bits</source>
        <translation>Überlauf: %1 passt nicht in 32 Bit</translation>
    </message>
    <message>
        <source>Overflow: %1 does not fit 16 bits</source>
        <translation>Überlauf: %1 passt nicht in 16 Bit</translation>
    </message>
    <message>
        <source>Overflow: %1 does not fit a single-precision number</source>
        <translation>Überlauf: %1 passt nicht in eine Zahl einfacher Genauigkeit</translation>
    </message>
    <message>
        <source>Division by zero: %1 is 0</source>
        <translation>Division durch null: %1 ist 0</translation>
    </message>
    <message>
        <source>Division by zero: %1 is no number</source>
        <translation>Division durch null: %1 ist keine Zahl</translation>
    </message>
    <message>
        <source>Division by zero: %1</source>
        <translation>Division durch null: %1</translation>
    </message>
    <message>
        <source>a sequence of one frame has no steps</source>
        <translation>eine Sequenz aus einem Bild hat keine Schritte</translation>
    </message>
    <message>
        <source>half the picture&apos;s width</source>
        <translation>die halbe Bildbreite</translation>
    </message>
    <message>
        <source>the tangent of half the angle of view</source>
        <translation>der Tangens des halben Bildwinkels</translation>
    </message>
    <message>
        <source>the sine of LensMapFactor x OutputAOV x effect / 2</source>
        <translation>der Sinus von LensMapFactor x OutputAOV x Wirkung / 2</translation>
    </message>
    <message>
        <source>the reference radius (from ImageCircleRadius and Ratio)</source>
        <translation>der Bezugsradius (aus ImageCircleRadius und Ratio)</translation>
    </message>
    <message>
        <source>the row divisor (the picture is more than three times as wide as high)</source>
        <translation>der Zeilenteiler (das Bild ist mehr als dreimal so breit wie hoch)</translation>
    </message>
    <message>
        <source>the row divisor</source>
        <translation>der Zeilenteiler</translation>
    </message>
    <message>
        <source>the picture&apos;s side</source>
        <translation>die Bildseite</translation>
    </message>
    <message>
        <source>the progress value</source>
        <translation>der Fortschrittswert</translation>
    </message>
    <message>
        <source>the scale</source>
        <translation>der Maßstab</translation>
    </message>
    <message>
        <source>the effect</source>
        <translation>die Wirkung</translation>
    </message>
    <message>
        <source>a rotation angle</source>
        <translation>ein Drehwinkel</translation>
    </message>
    <message>
        <source>a translation</source>
        <translation>eine Verschiebung</translation>
    </message>
    <message>
        <source>a side</source>
        <translation>eine Seite</translation>
    </message>
    <message>
        <source>a preview side</source>
        <translation>eine Seite der Vorschau</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>ein Bild</translation>
    </message>
    <message>
        <source>an output column</source>
        <translation>eine Ausgabespalte</translation>
    </message>
    <message>
        <source>an output row</source>
        <translation>eine Ausgabezeile</translation>
    </message>
    <message>
        <source>an output position</source>
        <translation>eine Ausgabeposition</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>der Speicher reicht nicht</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>es ist kein Bild da</translation>
    </message>
    <message>
        <source>the picture could not be encoded</source>
        <translation>das Bild konnte nicht kodiert werden</translation>
    </message>
    <message>
        <source>the file would be larger than %1 bytes</source>
        <translation>die Datei würde größer als %1 Bytes</translation>
    </message>
    <message>
        <source>written without its EXIF: too long for a JPEG file</source>
        <translation>ohne EXIF geschrieben: zu lang für eine JPEG-Datei</translation>
    </message>
    <message>
        <source>written without part of its EXIF: too long for a JPEG file</source>
        <translation>ohne einen Teil der EXIF-Daten geschrieben: zu lang für eine JPEG-Datei</translation>
    </message>
    <message>
        <source>written without its XMP: too long for a JPEG file</source>
        <translation>ohne XMP geschrieben: zu lang für eine JPEG-Datei</translation>
    </message>
    <message>
        <source>written without its IPTC: too long for a JPEG file</source>
        <translation>ohne IPTC geschrieben: zu lang für eine JPEG-Datei</translation>
    </message>
    <message>
        <source>written without its settings: too long for a JPEG file</source>
        <translation>ohne die Einstellungen geschrieben: zu lang für eine JPEG-Datei</translation>
    </message>
    <message>
        <source>written without its settings: the photo&apos;s XMP has no place for them</source>
        <translation>ohne die Einstellungen geschrieben: im XMP des Fotos ist kein Platz für sie</translation>
    </message>
    <message>
        <source>written without its metadata: it cannot be read</source>
        <translation>ohne Metadaten geschrieben: nicht lesbar</translation>
    </message>
    <message>
        <source>written without its %1: it cannot be read</source>
        <translation>ohne %1 geschrieben: nicht lesbar</translation>
    </message>
    <message>
        <source>written without its colour profile: %1</source>
        <translation>ohne Farbprofil geschrieben: %1</translation>
    </message>
    <message>
        <source>written without its metadata: %1</source>
        <translation>ohne Metadaten geschrieben: %1</translation>
    </message>
    <message>
        <source>%1 files hold no metadata</source>
        <translation>%1-Dateien enthalten keine Metadaten</translation>
    </message>
    <message>
        <source>%1 files hold no settings</source>
        <translation>%1-Dateien enthalten keine Einstellungen</translation>
    </message>
    <message>
        <source>%1 files hold no colour profile</source>
        <translation>%1-Dateien enthalten kein Farbprofil</translation>
    </message>
    <message>
        <source>%1 files hold no metadata or settings</source>
        <translation>%1-Dateien enthalten weder Metadaten noch Einstellungen</translation>
    </message>
    <message>
        <source>%1 files hold no metadata or colour profile</source>
        <translation>%1-Dateien enthalten weder Metadaten noch Farbprofil</translation>
    </message>
    <message>
        <source>%1 files hold no settings or colour profile</source>
        <translation>%1-Dateien enthalten weder Einstellungen noch Farbprofil</translation>
    </message>
    <message>
        <source>%1 files hold no metadata, settings or colour profile</source>
        <translation>%1-Dateien enthalten weder Metadaten noch Einstellungen noch Farbprofil</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>diese Datei gibt es nicht</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>die Verknüpfung führt ins Leere</translation>
    </message>
    <message>
        <source>this is a folder, not a picture</source>
        <translation>das ist ein Ordner, kein Bild</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>no permission to read it</source>
        <translation>keine Berechtigung, sie zu lesen</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>die Datei ist leer</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>sie lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>this is not a picture of a known type</source>
        <translation>das ist kein Bild eines bekannten Typs</translation>
    </message>
    <message>
        <source>the picture has no pixels</source>
        <translation>das Bild hat keine Pixel</translation>
    </message>
    <message>
        <source>the picture cannot be decoded</source>
        <translation>das Bild lässt sich nicht dekodieren</translation>
    </message>
    <message>
        <source>its pixels cannot be converted to 24-bit colour</source>
        <translation>die Pixel lassen sich nicht in 24-Bit-Farben umwandeln</translation>
    </message>
    <message>
        <source>too large: %1 x %2 pixels, a side may have %3</source>
        <translation>zu groß: %1 x %2 Pixel, eine Seite darf %3 haben</translation>
    </message>
    <message>
        <source>too large: %1 x %2 pixels need more than three quarters of this machine&apos;s memory</source>
        <translation>zu groß: %1 x %2 Pixel brauchen mehr als drei Viertel des Speichers dieses Rechners</translation>
    </message>
    <message>
        <source>too large for a quick look</source>
        <translation>zu groß für einen schnellen Blick</translation>
    </message>
    <message>
        <source>took too long (more than %1 seconds)</source>
        <translation>dauerte zu lange (mehr als %1 Sekunden)</translation>
    </message>
    <message>
        <source>there is no memory for it to be had (%1)</source>
        <translation>dafür ist kein Speicher zu bekommen (%1)</translation>
    </message>
    <message>
        <source>the decoder could not be started (%1)</source>
        <translation>der Dekoder ließ sich nicht starten (%1)</translation>
    </message>
    <message>
        <source>it ends at once</source>
        <translation>er endet sofort</translation>
    </message>
    <message>
        <source>the system ended the decoder, perhaps for want of memory (signal %1)</source>
        <translation>das System hat den Dekoder beendet, vielleicht aus Speichermangel (Signal %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder died of it (signal %1)</source>
        <translation>beschädigt: Der Dekoder ist daran abgestürzt (Signal %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder gave up on it</source>
        <translation>beschädigt: Der Dekoder hat es aufgegeben</translation>
    </message>
    <message>
        <source>damaged: the decoder&apos;s answer makes no sense</source>
        <translation>beschädigt: Die Antwort des Dekoders ergibt keinen Sinn</translation>
    </message>
    <message>
        <source>damaged: the raw photo cannot be read</source>
        <translation>beschädigt: Das Rohbild ist nicht lesbar</translation>
    </message>
    <message>
        <source>damaged: the file is cut short</source>
        <translation>beschädigt: Die Datei ist abgeschnitten</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>beschädigt: %1</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>%1 (while creating a temporary file)</source>
        <translation>%1 (beim Anlegen einer vorläufigen Datei)</translation>
    </message>
    <message>
        <source>%1 (while setting its permissions)</source>
        <translation>%1 (beim Setzen der Zugriffsrechte)</translation>
    </message>
    <message>
        <source>%1 (while syncing the folder)</source>
        <translation>%1 (beim Sichern des Ordners auf die Platte)</translation>
    </message>
    <message>
        <source>%1 (while syncing)</source>
        <translation>%1 (beim Sichern auf die Platte)</translation>
    </message>
    <message>
        <source>%1 (while writing)</source>
        <translation>%1 (beim Schreiben)</translation>
    </message>
    <message>
        <source>%1 (while closing)</source>
        <translation>%1 (beim Schließen)</translation>
    </message>
    <message>
        <source>%1 (while renaming)</source>
        <translation>%1 (beim Umbenennen)</translation>
    </message>
    <message>
        <source>%1: the settings cannot be written (%2); changes last only until the program ends</source>
        <translation>%1: Die Einstellungen lassen sich nicht schreiben (%2); Änderungen gelten nur, bis das Programm endet</translation>
    </message>
    <message>
        <source>%1: the settings cannot be read (%2); %3</source>
        <translation>%1: Die Einstellungen sind nicht lesbar (%2); %3</translation>
    </message>
    <message>
        <source>%1: the settings were damaged (%2); %3, the damaged file could not be set aside</source>
        <translation>%1: Die Einstellungen waren beschädigt (%2); %3, die beschädigte Datei ließ sich nicht beiseitelegen</translation>
    </message>
    <message>
        <source>%1: the settings were damaged (%2); %3, the damaged file is kept as %4</source>
        <translation>%1: Die Einstellungen waren beschädigt (%2); %3, die beschädigte Datei bleibt als %4 erhalten</translation>
    </message>
    <message>
        <source>their last good copy is used</source>
        <translation>verwendet wird ihre letzte gute Kopie</translation>
    </message>
    <message>
        <source>without a copy they begin afresh</source>
        <translation>ohne Kopie beginnen sie von vorn</translation>
    </message>
    <message>
        <source>without a copy what could be read is used</source>
        <translation>ohne Kopie wird verwendet, was lesbar war</translation>
    </message>
    <message>
        <source>all its names are taken</source>
        <translation>alle ihre Namen sind vergeben</translation>
    </message>
    <message>
        <source>the damaged file could not be set aside: %1</source>
        <translation>die beschädigte Datei ließ sich nicht beiseitelegen: %1</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>der Ordner lässt sich nicht anlegen</translation>
    </message>
    <message>
        <source>another program keeps them locked</source>
        <translation>ein anderes Programm hält sie gesperrt</translation>
    </message>
    <message>
        <source>the gears&apos; section has lost its title</source>
        <translation>der Abschnitt der Ausrüstungen hat seinen Titel verloren</translation>
    </message>
    <message>
        <source>the number of gears is missing</source>
        <translation>die Anzahl der Ausrüstungen fehlt</translation>
    </message>
    <message>
        <source>gear %1 of %2 is missing</source>
        <translation>Ausrüstung %1 von %2 fehlt</translation>
    </message>
    <message>
        <source>the default gear is missing</source>
        <translation>die übliche Ausrüstung fehlt</translation>
    </message>
    <message>
        <source>not UTF-8 text</source>
        <translation>kein UTF-8-Text</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>abgeschnitten</translation>
    </message>
    <message>
        <source>line %1 is no setting</source>
        <translation>Zeile %1 ist keine Einstellung</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>the angle in radians</source>
        <translation>der Winkel im Bogenmaß</translation>
    </message>
    <message>
        <source>the effective angle of view</source>
        <translation>der wirksame Bildwinkel</translation>
    </message>
    <message>
        <source>the circle&apos;s radius</source>
        <translation>der Radius des Kreises</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>abgebrochen</translation>
    </message>
    <message>
        <source>damaged: the decoder tried something forbidden (system call %1)</source>
        <translation>beschädigt: Der Dekoder hat Verbotenes versucht (Systemaufruf %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder tried something forbidden</source>
        <translation>beschädigt: Der Dekoder hat Verbotenes versucht</translation>
    </message>
    <message>
        <source>another photo is being read</source>
        <translation>es wird gerade ein anderes Foto gelesen</translation>
    </message>
    <message>
        <source>the lens&apos;s curve turns back at %1 degrees</source>
        <translation>die Kurve des Objektivs kehrt bei %1 Grad um</translation>
    </message>
    <message>
        <source>the lens&apos;s curve is not made of 16 usable points</source>
        <translation>die Kurve des Objektivs besteht nicht aus 16 brauchbaren Punkten</translation>
    </message>
    <message>
        <source>%1 does not rise from point to point</source>
        <translation>%1 steigt nicht von Punkt zu Punkt</translation>
    </message>
    <message>
        <source>the lens&apos;s curve</source>
        <translation>die Kurve des Objektivs</translation>
    </message>
    <message>
        <source>larger than %1 MB</source>
        <translation>größer als %1 MB</translation>
    </message>
    <message>
        <source>this is no lens file of a known kind</source>
        <translation>dies ist keine Objektivdatei einer bekannten Art</translation>
    </message>
    <message>
        <source>there is no fisheye lens in it</source>
        <translation>darin steht kein Fischaugen-Objektiv</translation>
    </message>
    <message>
        <source>made by a newer version of the program</source>
        <translation>von einer neueren Version des Programms gemacht</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>„%1“ fehlt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value that cannot be used</source>
        <translation>„%1“ hat einen unbrauchbaren Wert</translation>
    </message>
    <message>
        <source>the lens model &quot;%1&quot; is not known</source>
        <translation>das Objektivmodell „%1“ ist nicht bekannt</translation>
    </message>
    <message>
        <source>there is already a lens of this name</source>
        <translation>es gibt schon ein Objektiv dieses Namens</translation>
    </message>
    <message>
        <source>a lens needs a name</source>
        <translation>ein Objektiv braucht einen Namen</translation>
    </message>
    <message>
        <source>there is no lens of this name</source>
        <translation>es gibt kein Objektiv dieses Namens</translation>
    </message>
    <message>
        <source>lenses are written to files that end in .json, .yaml or .xml</source>
        <translation>Objektive werden in Dateien geschrieben, die auf .json, .yaml oder .xml enden</translation>
    </message>
    <message>
        <source>%1 files cannot be transparent; what would be is black</source>
        <translation>%1-Dateien können nicht durchsichtig sein; was es wäre, ist schwarz</translation>
    </message>
    <message>
        <source>the centre cannot keep the photo&apos;s resolution (%3): %1 x %2 pixels</source>
        <translation>die Mitte kann die Auflösung des Fotos nicht behalten (%3): %1 x %2 Pixel</translation>
    </message>
    <message>
        <source>there is no part without anything outside the photo</source>
        <translation>es gibt keinen Teil ohne etwas neben dem Foto</translation>
    </message>
    <message>
        <source>the crop runs beyond the frame</source>
        <translation>der Ausschnitt reicht über den Rahmen hinaus</translation>
    </message>
    <message>
        <source>saved with %1 bits: %2 holds no more</source>
        <translation>mit %1 Bit gespeichert: mehr kann %2 nicht</translation>
    </message>
    <message>
        <source>this is not a film of a known type</source>
        <translation>das ist kein Film eines bekannten Typs</translation>
    </message>
    <message>
        <source>there is no video stream in the film</source>
        <translation>im Film ist keine Videospur</translation>
    </message>
    <message>
        <source>there is no picture in the film that can be decoded</source>
        <translation>im Film ist kein Bild, das sich dekodieren lässt</translation>
    </message>
    <message>
        <source>the film is encrypted</source>
        <translation>der Film ist verschlüsselt</translation>
    </message>
    <message>
        <source>the film&apos;s codec cannot be decoded: %1</source>
        <translation>der Codec des Films lässt sich nicht dekodieren: %1</translation>
    </message>
    <message>
        <source>from %1 seconds on the film&apos;s pictures have another size or pixel format</source>
        <translation>ab %1 Sekunden haben die Bilder des Films eine andere Größe oder ein anderes Pixelformat</translation>
    </message>
    <message>
        <source>the picture at %1 seconds cannot be decoded</source>
        <translation>das Bild bei %1 Sekunden lässt sich nicht dekodieren</translation>
    </message>
    <message>
        <source>the picture at %1 seconds is damaged</source>
        <translation>das Bild bei %1 Sekunden ist beschädigt</translation>
    </message>
    <message>
        <source>films cannot be written: %1</source>
        <translation>Filme können nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>the installed libavcodec has no encoder for %1 (%2)</source>
        <translation>das installierte libavcodec hat keinen Encoder für %1 (%2)</translation>
    </message>
    <message>
        <source>the encoder %1 takes no pictures of %2; these do: %3</source>
        <translation>der Encoder %1 nimmt keine Bilder mit %2 an; diese schon: %3</translation>
    </message>
    <message>
        <source>the encoder %1 takes no %2 &quot;%3&quot;; it takes: %4</source>
        <translation>der Encoder %1 kennt für %2 nicht „%3“; er kennt: %4</translation>
    </message>
    <message>
        <source>the encoder %1 failed: %2</source>
        <translation>der Encoder %1 ist gescheitert: %2</translation>
    </message>
    <message>
        <source>%1 files cannot hold %2; these can: %3</source>
        <translation>%1-Dateien können %2 nicht enthalten; diese schon: %3</translation>
    </message>
    <message>
        <source>stream %1 (%2) is left out: %3 files cannot hold it</source>
        <translation>Spur %1 (%2) wird weggelassen: %3-Dateien können sie nicht enthalten</translation>
    </message>
    <message>
        <source>another program is writing this film</source>
        <translation>ein anderes Programm schreibt diesen Film gerade</translation>
    </message>
    <message>
        <source>the picture at %1 seconds comes behind a later one and is left out</source>
        <translation>das Bild bei %1 Sekunden kommt nach einem späteren und wird weggelassen</translation>
    </message>
    <message>
        <source>the film has no picture from %1 to %2 seconds; it is %3 seconds long</source>
        <translation>der Film hat kein Bild von %1 bis %2 Sekunden; er ist %3 Sekunden lang</translation>
    </message>
    <message>
        <source>its picture has %1 x %2 pixels, the film&apos;s first one %3 x %4</source>
        <translation>sein Bild hat %1 x %2 Pixel, das erste des Films %3 x %4</translation>
    </message>
    <message>
        <source>written without its IPTC: JPEG XL files hold none</source>
        <translation>ohne IPTC geschrieben: JPEG-XL-Dateien fassen keines</translation>
    </message>
</context>
<context>
    <name>RevisionAge</name>
    <message>
        <source>This version of Varnel is now more than %1 months old.</source>
        <translation>Diese Version von Varnel ist jetzt mehr als %1 Monate alt.</translation>
    </message>
    <message>
        <source>An updated revision is likely available.</source>
        <translation>Wahrscheinlich gibt es eine neuere Fassung.</translation>
    </message>
    <message>
        <source>It is recommended that you upgrade the executable file.</source>
        <translation>Es empfiehlt sich, das Programm zu aktualisieren.</translation>
    </message>
    <message>
        <source>Upgraded executables may be downloaded from</source>
        <translation>Neuere Fassungen gibt es unter</translation>
    </message>
</context>
<context>
    <name>Save</name>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>This is the photo itself; choose another name.</source>
        <translation>Das ist das Foto selbst; bitte wählen Sie einen anderen Namen.</translation>
    </message>
</context>
<context>
    <name>SaveMeanwhile</name>
    <message>
        <source>Cancelled, nothing was saved</source>
        <translation>Abgebrochen, nichts wurde gespeichert</translation>
    </message>
</context>
<context>
    <name>SaveWish</name>
    <message>
        <source>about %1</source>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>16 bits</source>
        <translation>16 Bit</translation>
    </message>
    <message>
        <source>floating point</source>
        <translation>Gleitkomma</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 Bit</translation>
    </message>
</context>
<context>
    <name>SettingsFromPicture</name>
    <message>
        <source>its name is not known</source>
        <translation>sein Name ist nicht bekannt</translation>
    </message>
</context>
<context>
    <name>Shortage</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht.</translation>
    </message>
    <message>
        <source>The system gives no more threads.</source>
        <translation>Das System gibt keine weiteren Threads her.</translation>
    </message>
</context>
<context>
    <name>Sliders</name>
    <message>
        <source>Input hAOV</source>
        <translation>Bildwinkel Objektiv</translation>
    </message>
    <message>
        <source>The angle that this photo shows from its left to its right edge</source>
        <translation>Der Winkel, den dieses Foto vom linken bis zum rechten Rand zeigt</translation>
    </message>
    <message>
        <source>° hAOV</source>
        <translation>° waagerecht</translation>
    </message>
    <message>
        <source>Output AOV</source>
        <translation>Bildwinkel Ausgabe</translation>
    </message>
    <message>
        <source>hAOV</source>
        <translation>waagerecht</translation>
    </message>
    <message>
        <source>How wide the converted picture looks: small is a telephoto view, large a wide one</source>
        <translation>Wie weit das umgewandelte Bild wirkt: klein wie ein Tele, groß wie ein Weitwinkel</translation>
    </message>
    <message>
        <source>Partial effect</source>
        <translation>Teilwirkung</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>How much of the conversion is applied: 0 % stays close to the fisheye</source>
        <translation>Wie stark umgewandelt wird: 0 % bleibt nah am Fisheye</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Up/Down</source>
        <translation>Oben/Unten</translation>
    </message>
    <message>
        <source>0° Up/Down</source>
        <translation>0° oben/unten</translation>
    </message>
    <message>
        <source>Tilts the camera. Double-click the name to reset it</source>
        <translation>Neigt die Kamera. Ein Doppelklick auf den Namen setzt zurück</translation>
    </message>
    <message>
        <source>° Down</source>
        <translation>° unten</translation>
    </message>
    <message>
        <source>° Up</source>
        <translation>° oben</translation>
    </message>
    <message>
        <source>0°</source>
        <translation>0°</translation>
    </message>
    <message>
        <source>Left/Right</source>
        <translation>Links/Rechts</translation>
    </message>
    <message>
        <source>0° Left/Right</source>
        <translation>0° links/rechts</translation>
    </message>
    <message>
        <source>Pans the camera. Double-click the name to reset it</source>
        <translation>Schwenkt die Kamera. Ein Doppelklick auf den Namen setzt zurück</translation>
    </message>
    <message>
        <source>° Right</source>
        <translation>° rechts</translation>
    </message>
    <message>
        <source>° Left</source>
        <translation>° links</translation>
    </message>
    <message>
        <source>Z-axis</source>
        <translation>Z-Achse</translation>
    </message>
    <message>
        <source>0° Z</source>
        <translation>0° Z</translation>
    </message>
    <message>
        <source>Levels the picture by rolling the camera. Double-click the name to reset it</source>
        <translation>Richtet das Bild aus, indem die Kamera gerollt wird. Ein Doppelklick auf den Namen setzt zurück</translation>
    </message>
    <message>
        <source>° c.clockwise</source>
        <translation>° linksherum</translation>
    </message>
    <message>
        <source>° clockwise</source>
        <translation>° rechtsherum</translation>
    </message>
    <message>
        <source>0% Left/Right</source>
        <translation>0% links/rechts</translation>
    </message>
    <message>
        <source>Shifts the picture sideways. Double-click the name to reset it</source>
        <translation>Verschiebt das Bild zur Seite. Ein Doppelklick auf den Namen setzt zurück</translation>
    </message>
    <message>
        <source>% Right</source>
        <translation>% rechts</translation>
    </message>
    <message>
        <source>% Left</source>
        <translation>% links</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
    <message>
        <source>0% Up/Down</source>
        <translation>0% oben/unten</translation>
    </message>
    <message>
        <source>Shifts the picture up or down. Double-click the name to reset it</source>
        <translation>Verschiebt das Bild nach oben oder unten. Ein Doppelklick auf den Namen setzt zurück</translation>
    </message>
    <message>
        <source>% Up</source>
        <translation>% oben</translation>
    </message>
    <message>
        <source>% Down</source>
        <translation>% unten</translation>
    </message>
    <message>
        <source>Rotate camera</source>
        <translation>Kamera drehen</translation>
    </message>
    <message>
        <source>Transpose image</source>
        <translation>Bild verschieben</translation>
    </message>
    <message>
        <source>Distance of the eye</source>
        <translation>Abstand des Auges</translation>
    </message>
    <message>
        <source>0 % is the straight-line view; 100 % keeps wide views calm at the sides</source>
        <translation>0 % ist die geradlinige Sicht; 100 % hält weite Blicke an den Seiten ruhig</translation>
    </message>
    <message>
        <source>Vertical squeeze</source>
        <translation>Senkrecht stauchen</translation>
    </message>
    <message>
        <source>0 %</source>
        <translation>0 %</translation>
    </message>
    <message>
        <source>How far level lines above and below the middle are kept straight</source>
        <translation>Wie weit waagerechte Linien über und unter der Mitte gerade gehalten werden</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Linker Rand</translation>
    </message>
    <message>
        <source>The direction on the photo that the picture&apos;s left edge shows. Double-click the name to reset it</source>
        <translation>Die Richtung auf dem Foto, die der linke Rand des Bildes zeigt. Ein Doppelklick auf den Namen setzt sie zurück</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>From angle</source>
        <translation>Von Winkel</translation>
    </message>
    <message>
        <source>The angle from the lens&apos;s axis at one edge of the picture</source>
        <translation>Der Winkel von der Achse des Objektivs an einem Rand des Bildes</translation>
    </message>
    <message>
        <source>To angle</source>
        <translation>Bis Winkel</translation>
    </message>
    <message>
        <source>90°</source>
        <translation>90°</translation>
    </message>
    <message>
        <source>The angle from the lens&apos;s axis at the other edge</source>
        <translation>Der Winkel von der Achse des Objektivs am anderen Rand</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>projection</source>
        <translation>Projektion</translation>
    </message>
    <message>
        <source>choice of gear</source>
        <translation>Wahl der Ausrüstung</translation>
    </message>
    <message>
        <source>apply gear to all</source>
        <translation>Ausrüstung für alle</translation>
    </message>
    <message>
        <source>apply settings to all</source>
        <translation>Einstellungen für alle</translation>
    </message>
    <message>
        <source>adjustments</source>
        <translation>Anpassungen</translation>
    </message>
    <message>
        <source>add images</source>
        <translation>Bilder hinzufügen</translation>
    </message>
    <message>
        <source>remove images</source>
        <translation>Bilder entfernen</translation>
    </message>
    <message>
        <source>reorder images</source>
        <translation>Bilder umordnen</translation>
    </message>
    <message>
        <source>add images with settings</source>
        <translation>Bilder mit Einstellungen hinzufügen</translation>
    </message>
    <message>
        <source>level</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>image circle</source>
        <translation>Bildkreis</translation>
    </message>
    <message>
        <source>contact sheet</source>
        <translation>Kontaktbogen</translation>
    </message>
    <message>
        <source>open project</source>
        <translation>Projekt öffnen</translation>
    </message>
    <message>
        <source>change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>output AOV</source>
        <translation>Bildwinkel der Ausgabe</translation>
    </message>
    <message>
        <source>partial effect</source>
        <translation>Teilwirkung</translation>
    </message>
    <message>
        <source>rotate up/down</source>
        <translation>Drehen oben/unten</translation>
    </message>
    <message>
        <source>rotate left/right</source>
        <translation>Drehen links/rechts</translation>
    </message>
    <message>
        <source>rotate Z-axis</source>
        <translation>Drehen Z-Achse</translation>
    </message>
    <message>
        <source>transpose left/right</source>
        <translation>Verschieben links/rechts</translation>
    </message>
    <message>
        <source>transpose up/down</source>
        <translation>Verschieben oben/unten</translation>
    </message>
    <message>
        <source>input hAOV</source>
        <translation>Bildwinkel des Objektivs</translation>
    </message>
    <message>
        <source>new numbers of a gear</source>
        <translation>neue Werte einer Ausrüstung</translation>
    </message>
    <message>
        <source>open the list again</source>
        <translation>Liste wieder öffnen</translation>
    </message>
    <message>
        <source>gears of the photos</source>
        <translation>Ausrüstungen der Fotos</translation>
    </message>
    <message>
        <source>straighten</source>
        <translation>Geraderichten</translation>
    </message>
    <message>
        <source>reset photo</source>
        <translation>Foto zurücksetzen</translation>
    </message>
    <message>
        <source>turn of the camera</source>
        <translation>Drehen der Kamera</translation>
    </message>
    <message>
        <source>roll of the camera</source>
        <translation>Rollen der Kamera</translation>
    </message>
    <message>
        <source>angle of view</source>
        <translation>Bildwinkel</translation>
    </message>
    <message>
        <source>centring</source>
        <translation>Zentrieren</translation>
    </message>
    <message>
        <source>paste settings</source>
        <translation>Einstellungen einfügen</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>Voreinstellung</translation>
    </message>
    <message>
        <source>size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>crop</source>
        <translation>Zuschnitt</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>Außerhalb</translation>
    </message>
    <message>
        <source>soften faces</source>
        <translation>Gesichter schonen</translation>
    </message>
    <message>
        <source>distance of the eye</source>
        <translation>Abstand des Auges</translation>
    </message>
    <message>
        <source>vertical squeeze</source>
        <translation>senkrechtes Stauchen</translation>
    </message>
    <message>
        <source>start of unrolling</source>
        <translation>Beginn des Abrollens</translation>
    </message>
    <message>
        <source>first angle of unrolling</source>
        <translation>erster Winkel des Abrollens</translation>
    </message>
    <message>
        <source>last angle of unrolling</source>
        <translation>letzter Winkel des Abrollens</translation>
    </message>
    <message>
        <source>direction of unrolling</source>
        <translation>Richtung des Abrollens</translation>
    </message>
    <message>
        <source>marks</source>
        <translation>Marken</translation>
    </message>
    <message>
        <source>pose of the camera</source>
        <translation>Haltung der Kamera</translation>
    </message>
    <message>
        <source>tunnel</source>
        <translation>Tunnel</translation>
    </message>
    <message>
        <source>keys of the film</source>
        <translation>Schlüssel des Films</translation>
    </message>
    <message>
        <source>part of the film</source>
        <translation>Teil des Films</translation>
    </message>
</context>
<context>
    <name>ToolbarTools</name>
    <message>
        <source>Add image(s)</source>
        <translation>Bild(er) hinzufügen</translation>
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
        <source>Frame</source>
        <translation>Rahmen</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Ausrichten</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Bildkreis</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Geraderichten</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Gitter</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Maßstab</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Kontaktbogen</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern</translation>
    </message>
</context>
<context>
    <name>Volume</name>
    <message>
        <source>fixed</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>wechselbar</translation>
    </message>
    <message>
        <source>network</source>
        <translation>Netzwerk</translation>
    </message>
    <message>
        <source>optical</source>
        <translation>optisch</translation>
    </message>
    <message>
        <source>Drive %1 is not availabe</source>
        <translation>Das Laufwerk %1 ist nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;OpenOld</source>
        <translation>&amp;Öffnen (alt)</translation>
    </message>
    <message>
        <source>Open image(s)</source>
        <translation>Bild(er) öffnen</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;Manage equipment</source>
        <translation>&amp;Ausrüstung verwalten</translation>
    </message>
    <message>
        <source>&amp;Defaults</source>
        <translation>&amp;Vorgaben</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Werkzeuge</translation>
    </message>
    <message>
        <source>Morph</source>
        <translation>Morph</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Strecken</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>&amp;Info</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Ends the saving without a file</source>
        <translation>Beendet das Speichern ohne Datei</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Werkzeugleiste</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Could not find the photo that a picture was made of</source>
        <translation>Das Foto, aus dem ein Bild entstand, wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Some settings of a picture could not be used</source>
        <translation>Einige Einstellungen eines Bildes sind nicht verwendbar</translation>
    </message>
    <message>
        <source>Could not open image</source>
        <translation>Das Bild konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Speicher reicht nicht.</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 gespeichert, %2</translation>
    </message>
    <message>
        <source>%1 of the added images could not be opened</source>
        <translation>%1 der hinzugefügten Bilder konnten nicht geöffnet werden</translation>
    </message>
    <message>
        <source>There are no photos in a folder</source>
        <translation>In einem Ordner sind keine Fotos</translation>
    </message>
    <message>
        <source>Only the first %1 photos were added</source>
        <translation>Nur die ersten %1 Fotos wurden hinzugefügt</translation>
    </message>
</context>
<context>
    <name>varnel::AdjustmentPanel</name>
    <message>
        <source>Refine equipment parameters</source>
        <translation>Ausrüstung feiner einstellen</translation>
    </message>
    <message>
        <source>Remap</source>
        <translation>Umwandeln</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Für alle</translation>
    </message>
    <message>
        <source>Gives every photo in the list these settings and this gear</source>
        <translation>Gibt jedem Foto der Liste diese Einstellungen und diese Ausrüstung</translation>
    </message>
    <message>
        <source>Auto preview</source>
        <translation>Auto-Vorschau</translation>
    </message>
    <message>
        <source>Redraws the preview after every change</source>
        <translation>Zeichnet die Vorschau nach jeder Änderung neu</translation>
    </message>
    <message>
        <source>Antialiased</source>
        <translation>Geglättet</translation>
    </message>
    <message>
        <source>Smooths the preview; saved pictures are always smooth</source>
        <translation>Glättet die Vorschau; gespeicherte Bilder sind immer glatt</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Draws the preview now</source>
        <translation>Zeichnet die Vorschau jetzt</translation>
    </message>
    <message>
        <source>Reset photo</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Gives all sliders of this photo the values of its gear again</source>
        <translation>Gibt allen Reglern dieses Fotos wieder die Werte seiner Ausrüstung</translation>
    </message>
</context>
<context>
    <name>varnel::Application</name>
    <message>
        <source>What was just begun was not done.</source>
        <translation>Was gerade begonnen wurde, ist nicht ausgeführt.</translation>
    </message>
</context>
<context>
    <name>varnel::BatchTools</name>
    <message>
        <source>Progress of the batch</source>
        <translation>Fortschritt des Stapels</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Holds the batch where it is, and lets it go on</source>
        <translation>Hält den Stapel an und lässt ihn weiterlaufen</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Finishes the batch&apos;s image at hand and leaves out the others</source>
        <translation>Beendet das Bild in Arbeit und lässt die anderen aus</translation>
    </message>
    <message>
        <source>Batch: finishing the image at hand</source>
        <translation>Stapel: das Bild in Arbeit wird beendet</translation>
    </message>
    <message>
        <source>Batch: %1</source>
        <translation>Stapel: %1</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Batch: %1 images written</source>
        <translation>Stapel: %1 Bilder geschrieben</translation>
    </message>
    <message>
        <source>Batch: %1 images written, %2 failed</source>
        <translation>Stapel: %1 Bilder geschrieben, %2 fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>varnel::CircleBar</name>
    <message>
        <source>Find circle</source>
        <translation>Kreis suchen</translation>
    </message>
    <message>
        <source>Looks for the rim of the image circle on this photo</source>
        <translation>Sucht den Rand des Bildkreises auf diesem Foto</translation>
    </message>
    <message>
        <source>Gear&apos;s circle</source>
        <translation>Kreis der Ausrüstung</translation>
    </message>
    <message>
        <source>Gives this photo the circle that the gear has at present</source>
        <translation>Gibt diesem Foto den Kreis, den die Ausrüstung zurzeit hat</translation>
    </message>
    <message>
        <source>Keep for the gear ...</source>
        <translation>Für die Ausrüstung behalten ...</translation>
    </message>
    <message>
        <source>Makes this circle the one of the gear</source>
        <translation>Macht diesen Kreis zu dem der Ausrüstung</translation>
    </message>
    <message>
        <source>Change the gear</source>
        <translation>Ausrüstung ändern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>How far the circle&apos;s middle is from the photo&apos;s, in thousandths of its width and height, and the circle&apos;s diameter in percent of the photo&apos;s longer side</source>
        <translation>Wie weit die Kreismitte von der Bildmitte liegt, in Tausendsteln der Breite und Höhe des Fotos, und der Durchmesser des Kreises in Prozent der längeren Seite</translation>
    </message>
</context>
<context>
    <name>varnel::CircleTools</name>
    <message>
        <source>&amp;Image circle</source>
        <translation>B&amp;ildkreis</translation>
    </message>
    <message>
        <source>Image circle found.</source>
        <translation>Bildkreis gefunden.</translation>
    </message>
    <message>
        <source>No rim of an image circle was found on this photo.</source>
        <translation>Auf diesem Foto wurde kein Rand eines Bildkreises gefunden.</translation>
    </message>
    <message>
        <source>A rough image circle, from the light inside: it is dark at the rim. Drag the rim where it is not right.</source>
        <translation>Ein ungefährer Bildkreis, aus dem Licht darin: Am Rand ist es dunkel. Ziehen Sie den Rand, wo er nicht stimmt.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; has the circle now; undo takes it back.</source>
        <translation>Die Ausrüstung „%1“ hat den Kreis jetzt; Rückgängig nimmt ihn zurück.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; stays as it is: it was edited or deleted since.</source>
        <translation>Die Ausrüstung „%1“ bleibt, wie sie ist: Sie wurde seither geändert oder gelöscht.</translation>
    </message>
    <message>
        <source>%1 ‰ right</source>
        <translation>%1 ‰ rechts</translation>
    </message>
    <message>
        <source>%1 ‰ left</source>
        <translation>%1 ‰ links</translation>
    </message>
    <message>
        <source>%1 ‰ down</source>
        <translation>%1 ‰ unten</translation>
    </message>
    <message>
        <source>%1 ‰ up</source>
        <translation>%1 ‰ oben</translation>
    </message>
    <message>
        <source>in the middle of the photo</source>
        <translation>in der Bildmitte</translation>
    </message>
    <message>
        <source>Centre %1, diameter %2 %</source>
        <translation>Kreismitte %1, Durchmesser %2 %</translation>
    </message>
    <message>
        <source>Change the circle of the gear &quot;%1&quot;? %2. Photos that are adjusted already keep their circle, but for the current one.</source>
        <translation>Den Kreis der Ausrüstung „%1“ ändern? %2. Fotos, die schon angepasst sind, behalten ihren Kreis, bis auf das aktuelle.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; has its circle again: %2.</source>
        <translation>Die Ausrüstung „%1“ hat wieder ihren Kreis: %2.</translation>
    </message>
    <message>
        <source>No rim of an image circle was found in this film.</source>
        <translation>In diesem Film wurde kein Rand eines Bildkreises gefunden.</translation>
    </message>
</context>
<context>
    <name>varnel::ColourTools</name>
    <message>
        <source>Displa&amp;y colours</source>
        <translation>Bildschirmf&amp;arben</translation>
    </message>
    <message>
        <source>Histogram and clipping mar&amp;ks</source>
        <translation>His&amp;togramm mit Beschnittmarken</translation>
    </message>
</context>
<context>
    <name>varnel::ContactSheetBox</name>
    <message>
        <source>Contact sheet</source>
        <translation>Kontaktbogen</translation>
    </message>
    <message>
        <source>The photo in every projection and three strengths</source>
        <translation>Das Foto in jeder Projektion und drei Stärken</translation>
    </message>
    <message>
        <source> (as it is)</source>
        <translation> (wie jetzt)</translation>
    </message>
</context>
<context>
    <name>varnel::CropBar</name>
    <message>
        <source>Drag the corners, the sides or the crop itself; arrow keys move it, with Shift they widen it, plus and minus do on all sides</source>
        <translation>Ziehen Sie an den Ecken, den Seiten oder am Zuschnitt selbst; die Pfeiltasten verschieben ihn, mit Umschalt machen sie ihn breiter, Plus und Minus nach allen Seiten</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Sauber</translation>
    </message>
    <message>
        <source>The largest part in which the photo is everywhere</source>
        <translation>Der größte Teil, in dem überall das Foto ist</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Ganzes Bild</translation>
    </message>
    <message>
        <source>Cuts nothing off</source>
        <translation>Schneidet nichts ab</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Shows the result as it is saved</source>
        <translation>Zeigt das Ergebnis, wie es gespeichert wird</translation>
    </message>
    <message>
        <source>Shape of the crop</source>
        <translation>Form des Zuschnitts</translation>
    </message>
    <message>
        <source>Width and height of the crop</source>
        <translation>Breite und Höhe des Zuschnitts</translation>
    </message>
    <message>
        <source>Any shape</source>
        <translation>Jede Form</translation>
    </message>
    <message>
        <source>As the frame</source>
        <translation>Wie das Bild</translation>
    </message>
</context>
<context>
    <name>varnel::CropTools</name>
    <message>
        <source>&amp;Crop</source>
        <translation>&amp;Zuschneiden</translation>
    </message>
    <message>
        <source>Looking for the largest clean crop ...</source>
        <translation>Der größte saubere Zuschnitt wird gesucht ...</translation>
    </message>
    <message>
        <source>No part of the result is without outside.</source>
        <translation>Kein Teil des Ergebnisses ist ohne Außerhalb.</translation>
    </message>
    <message>
        <source>%1 x %2 of %3 x %4 pixels</source>
        <translation>%1 x %2 von %3 x %4 Pixeln</translation>
    </message>
</context>
<context>
    <name>varnel::DividerTools</name>
    <message>
        <source>Before an&amp;d after, divided</source>
        <translation>Vorher u&amp;nd nachher, geteilt</translation>
    </message>
    <message>
        <source>Classic and fine sampling, divided</source>
        <translation>Klassisch und fein abgetastet, geteilt</translation>
    </message>
</context>
<context>
    <name>varnel::EdgeView</name>
    <message>
        <source>Add a photo with many straight edges, out to the rim.</source>
        <translation>Fügen Sie ein Foto mit vielen geraden Kanten bis zum Rand hinzu.</translation>
    </message>
    <message>
        <source>The photo with its edges</source>
        <translation>Das Foto mit seinen Kanten</translation>
    </message>
</context>
<context>
    <name>varnel::EmptyState</name>
    <message>
        <source>Drop fisheye photos here</source>
        <translation>Fisheye-Fotos hierher ziehen</translation>
    </message>
    <message>
        <source>Each gets the gear that took it; then choose what the result shall be under &quot;Remap&quot;.</source>
        <translation>Jedes bekommt die Ausrüstung, die es aufnahm; dann unter „Umwandeln“ wählen, was das Ergebnis sein soll.</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Fotos wählen ...</translation>
    </message>
    <message>
        <source>Adds photos to the list</source>
        <translation>Nimmt Fotos in die Liste auf</translation>
    </message>
    <message>
        <source>Try the sample photo</source>
        <translation>Mit dem Beispielfoto ausprobieren</translation>
    </message>
    <message>
        <source>Opens a photo that is drawn by this program</source>
        <translation>Öffnet ein Foto, das dieses Programm zeichnet</translation>
    </message>
</context>
<context>
    <name>varnel::EquipmentPanel</name>
    <message>
        <source>Equipment</source>
        <translation>Ausrüstung</translation>
    </message>
    <message>
        <source>Camera + lens combination</source>
        <translation>Kamera + Objektiv</translation>
    </message>
    <message>
        <source>Which camera and lens took the selected photos</source>
        <translation>Mit welcher Kamera und welchem Objektiv die gewählten Fotos aufgenommen wurden</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Für alle</translation>
    </message>
    <message>
        <source>Every photo in the list was taken with this gear</source>
        <translation>Jedes Foto der Liste wurde mit dieser Ausrüstung aufgenommen</translation>
    </message>
    <message>
        <source>No gear yet</source>
        <translation>Noch keine Ausrüstung</translation>
    </message>
    <message>
        <source>%1 (not in the list)</source>
        <translation>%1 (nicht in der Liste)</translation>
    </message>
</context>
<context>
    <name>varnel::FaceBar</name>
    <message>
        <source>By keyboard: Insert makes an ellipse, Space goes to the next one, arrows move it, with Shift they size it, [ and ] turn it, Delete takes it away</source>
        <translation>Mit der Tastatur: Einfg macht eine Ellipse, die Leertaste geht zur nächsten, Pfeile verschieben sie, mit Umschalt ändern sie ihre Größe, [ und ] drehen sie, Entf nimmt sie weg</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Takes the chosen ellipse away</source>
        <translation>Nimmt die gewählte Ellipse weg</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Takes all ellipses away</source>
        <translation>Nimmt alle Ellipsen weg</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Hides the ellipses</source>
        <translation>Blendet die Ellipsen aus</translation>
    </message>
    <message>
        <source>Drag an ellipse around each face on the result; it keeps its shape.</source>
        <translation>Ziehen Sie auf dem Ergebnis um jedes Gesicht eine Ellipse; es behält seine Form.</translation>
    </message>
    <message>
        <source>Drag an ellipse to move it, its rim to size it, its knob to turn it; a drag beside them draws another one.</source>
        <translation>Ziehen Sie eine Ellipse, um sie zu verschieben, ihren Rand, um ihre Größe zu ändern, ihren Knopf, um sie zu drehen; daneben gezogen entsteht eine weitere.</translation>
    </message>
</context>
<context>
    <name>varnel::FaceTools</name>
    <message>
        <source>Soften &amp;faces</source>
        <translation>Gesichter &amp;schonen</translation>
    </message>
    <message>
        <source>Only Rectilinear draws faces out; the others have none to soften.</source>
        <translation>Nur Rectilinear zieht Gesichter in die Länge; die anderen haben keine zu schonen.</translation>
    </message>
</context>
<context>
    <name>varnel::FilmBar</name>
    <message>
        <source>Play</source>
        <translation>Abspielen</translation>
    </message>
    <message>
        <source>Plays the film (space)</source>
        <translation>Spielt den Film ab (Leertaste)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>The film begins with this frame (I)</source>
        <translation>Der Film beginnt mit diesem Bild (I)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>The film ends with this frame (O)</source>
        <translation>Der Film endet mit diesem Bild (O)</translation>
    </message>
    <message>
        <source>Set key</source>
        <translation>Schlüssel setzen</translation>
    </message>
    <message>
        <source>Auto key</source>
        <translation>Auto-Schlüssel</translation>
    </message>
    <message>
        <source>Every slider that is moved makes a key at this time; without it only those do that have keys already</source>
        <translation>Jeder Regler, der bewegt wird, macht hier einen Schlüssel; sonst nur die, die schon Schlüssel haben</translation>
    </message>
    <message>
        <source>Codec of the film</source>
        <translation>Codec des Films</translation>
    </message>
    <message>
        <source>How the film is encoded</source>
        <translation>Wie der Film kodiert wird</translation>
    </message>
    <message>
        <source>Quality of the film (CRF)</source>
        <translation>Qualität des Films (CRF)</translation>
    </message>
    <message>
        <source>CRF of the encoder: a smaller number is a better and longer file</source>
        <translation>CRF des Kodierers: eine kleinere Zahl gibt eine bessere und längere Datei</translation>
    </message>
    <message>
        <source>Usual quality</source>
        <translation>Übliche Qualität</translation>
    </message>
    <message>
        <source>Speed of encoding</source>
        <translation>Geschwindigkeit des Kodierens</translation>
    </message>
    <message>
        <source>A slower encoder makes shorter files of the same quality</source>
        <translation>Ein langsamerer Kodierer macht kürzere Dateien gleicher Qualität</translation>
    </message>
    <message>
        <source>Usual speed</source>
        <translation>Übliches Tempo</translation>
    </message>
    <message>
        <source>Save film ...</source>
        <translation>Film speichern ...</translation>
    </message>
    <message>
        <source>Converts the film with its keys, from In to Out, and writes it</source>
        <translation>Wandelt den Film mit seinen Schlüsseln um, von Anfang bis Ende, und schreibt ihn</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Remove key</source>
        <translation>Schlüssel entfernen</translation>
    </message>
    <message>
        <source>Removes the key at this time</source>
        <translation>Entfernt den Schlüssel an dieser Stelle</translation>
    </message>
    <message>
        <source>A key at this time with the numbers of all sliders that move (K)</source>
        <translation>Ein Schlüssel an dieser Stelle mit den Zahlen aller Regler, die sich bewegen (K)</translation>
    </message>
</context>
<context>
    <name>varnel::FilmTools</name>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>This is the film itself; choose another name.</source>
        <translation>Das ist der Film selbst; wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>No film was written</source>
        <translation>Es wurde kein Film geschrieben</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
</context>
<context>
    <name>varnel::FoldGroup</name>
    <message>
        <source>Shows what is in this group</source>
        <translation>Zeigt, was in dieser Gruppe ist</translation>
    </message>
    <message>
        <source>Hides what is in this group</source>
        <translation>Verbirgt, was in dieser Gruppe ist</translation>
    </message>
</context>
<context>
    <name>varnel::FolderChooser</name>
    <message>
        <source>The folder cannot be named %1</source>
        <translation>Der Ordner kann nicht %1 heißen</translation>
    </message>
</context>
<context>
    <name>varnel::FolderModel</name>
    <message>
        <source>A name cannot hold a slash.</source>
        <translation>Ein Name kann keinen Schrägstrich enthalten.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Unter diesem Namen gibt es schon etwas.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
</context>
<context>
    <name>varnel::FormAbout</name>
    <message>
        <source>Revision %1</source>
        <translation>Revision %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>varnel::FormAddImages</name>
    <message>
        <source>This folder cannot be read</source>
        <translation>Dieser Ordner ist nicht lesbar</translation>
    </message>
    <message>
        <source>No photos here</source>
        <translation>Keine Fotos hier</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 von %2 gewählt</translation>
    </message>
</context>
<context>
    <name>varnel::FormBatch</name>
    <message>
        <source>Name addition for %1</source>
        <translation>Namenszusatz für %1</translation>
    </message>
    <message>
        <source>1 queued image</source>
        <translation>1 Bild im Stapel</translation>
    </message>
    <message>
        <source>%1 queued images</source>
        <translation>%1 Bilder im Stapel</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Bitte wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>Wait this image</source>
        <translation>Dieses Bild noch</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>In %1 kann kein Ordner angelegt werden</translation>
    </message>
    <message>
        <source>All images: %1</source>
        <translation>Alle Bilder: %1</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>What follows the photo&apos;s own name in the names of %1 images; empty: the word %2</source>
        <translation>Was in den Namen der %1-Bilder auf den Namen des Fotos folgt; leer: das Wort %2</translation>
    </message>
</context>
<context>
    <name>varnel::FormGearEdit</name>
    <message>
        <source> °</source>
        <translation> °</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source> ‰ hor.</source>
        <translation> ‰ waag.</translation>
    </message>
    <message>
        <source> ‰ vert.</source>
        <translation> ‰ senkr.</translation>
    </message>
    <message>
        <source>New camera + lens combination</source>
        <translation>Neue Kombination aus Kamera und Objektiv</translation>
    </message>
    <message>
        <source>Redefine camera + lens combination</source>
        <translation>Kombination aus Kamera und Objektiv ändern</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Choose a camera and a lens first.</source>
        <translation>Bitte wählen Sie zuerst Kamera und Objektiv.</translation>
    </message>
    <message>
        <source>Ratio and offsets are set by hand.</source>
        <translation>Verhältnis und Versatz sind von Hand eingestellt.</translation>
    </message>
    <message>
        <source>Values of the catalogue.</source>
        <translation>Werte des Katalogs.</translation>
    </message>
    <message>
        <source>The angle of view is set by hand.</source>
        <translation>Der Bildwinkel ist von Hand eingestellt.</translation>
    </message>
    <message>
        <source>The file of this lens is not there.</source>
        <translation>Die Datei dieses Objektivs fehlt.</translation>
    </message>
    <message>
        <source>The lens could not be kept: %1</source>
        <translation>Das Objektiv konnte nicht aufgehoben werden: %1</translation>
    </message>
    <message>
        <source>Of the photo</source>
        <translation>Vom Foto</translation>
    </message>
    <message>
        <source>Of a drawn room, seen by this lens</source>
        <translation>Von einem gezeichneten Raum, gesehen von diesem Objektiv</translation>
    </message>
    <message>
        <source>Taken with %1.</source>
        <translation>Aufgenommen mit %1.</translation>
    </message>
    <message>
        <source>The numbers of the lens are set by hand.</source>
        <translation>Die Zahlen des Objektivs sind von Hand eingestellt.</translation>
    </message>
</context>
<context>
    <name>varnel::FormGearList</name>
    <message>
        <source>The gear of new photos</source>
        <translation>Die Ausrüstung neuer Fotos</translation>
    </message>
</context>
<context>
    <name>varnel::FormGuide</name>
    <message>
        <source>Varnel user guide</source>
        <translation>Varnel-Handbuch</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>Die erste Seite</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>Die Seite davor</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vor</translation>
    </message>
    <message>
        <source>The page after</source>
        <translation>Die Seite danach</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>Seite des Handbuchs</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Im Handbuch suchen</translation>
    </message>
</context>
<context>
    <name>varnel::FormMorph</name>
    <message>
        <source>%1 at the start</source>
        <translation>%1 am Anfang</translation>
    </message>
    <message>
        <source>%1 at the end</source>
        <translation>%1 am Ende</translation>
    </message>
    <message>
        <source>* The projection %1 does not use this.</source>
        <translation>* Die Projektion %1 verwendet das nicht.</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Keine Vorschau</translation>
    </message>
    <message>
        <source>Image %1 of %2</source>
        <translation>Bild %1 von %2</translation>
    </message>
    <message>
        <source>Between</source>
        <translation>Dazwischen</translation>
    </message>
    <message>
        <source>No images were added</source>
        <translation>Es wurden keine Bilder hinzugefügt</translation>
    </message>
    <message>
        <source>%1 images added, %2 in the batch que</source>
        <translation>%1 Bilder hinzugefügt, %2 im Stapel</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 Sekunden</translation>
    </message>
    <message>
        <source>&amp;Write film ...</source>
        <translation>Film &amp;schreiben ...</translation>
    </message>
    <message>
        <source>&amp;Add to batch que</source>
        <translation>&amp;Zum Stapel hinzufügen</translation>
    </message>
    <message>
        <source>Asks for a name and writes the sequence as a film</source>
        <translation>Fragt nach einem Namen und schreibt die Sequenz als Film</translation>
    </message>
    <message>
        <source>Puts every image of the sequence into the batch queue, where &quot;Process batch que&quot; writes them</source>
        <translation>Legt jedes Bild der Sequenz in den Stapel, wo „Stapel verarbeiten“ sie schreibt</translation>
    </message>
    <message>
        <source>Write the sequence as a film</source>
        <translation>Die Sequenz als Film schreiben</translation>
    </message>
    <message>
        <source>Add the sequence to the batch queue</source>
        <translation>Die Sequenz zum Stapel hinzufügen</translation>
    </message>
    <message>
        <source>A film needs two images or more</source>
        <translation>Ein Film braucht zwei oder mehr Bilder</translation>
    </message>
    <message>
        <source>The film %1 was written</source>
        <translation>Der Film %1 wurde geschrieben</translation>
    </message>
    <message>
        <source>No film was written</source>
        <translation>Es wurde kein Film geschrieben</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
</context>
<context>
    <name>varnel::FormPresets</name>
    <message>
        <source>No presets of your own yet: &quot;Save as preset...&quot; in the Edit menu makes one of the photo at hand.</source>
        <translation>Noch keine eigenen Voreinstellungen: „Als Voreinstellung speichern ...“ im Menü Bearbeiten macht eine aus dem aktuellen Foto.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>„%1“ ist gelöscht.</translation>
    </message>
    <message>
        <source>%1 holds no presets.</source>
        <translation>%1 enthält keine Voreinstellungen.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 lässt sich nicht lesen: %2</translation>
    </message>
    <message>
        <source>1 preset was added.</source>
        <translation>1 Voreinstellung wurde hinzugefügt.</translation>
    </message>
    <message>
        <source>%1 presets were added.</source>
        <translation>%1 Voreinstellungen wurden hinzugefügt.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 lässt sich nicht schreiben: %2</translation>
    </message>
</context>
<context>
    <name>varnel::FormSavePreset</name>
    <message>
        <source>Choose what the preset sets.</source>
        <translation>Wählen Sie, was die Voreinstellung setzt.</translation>
    </message>
    <message>
        <source>It replaces your preset of this name.</source>
        <translation>Sie ersetzt Ihre Voreinstellung dieses Namens.</translation>
    </message>
</context>
<context>
    <name>varnel::FormSetup</name>
    <message>
        <source>%1 pixels</source>
        <translation>%1 Pixel</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>varnel::FormStraighten</name>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Off straight</source>
        <translation>Abweichung</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Richtung</translation>
    </message>
    <message>
        <source>The photo made straight</source>
        <translation>Das geradegerichtete Foto</translation>
    </message>
    <message>
        <source>No edge was found between these two places; click nearer to its ends.</source>
        <translation>Zwischen diesen beiden Stellen wurde keine Kante gefunden; klicken Sie näher an ihre Enden.</translation>
    </message>
    <message>
        <source>%1: four photos are the most</source>
        <translation>%1: mehr als vier Fotos geht nicht</translation>
    </message>
    <message>
        <source>%1: it is not as large as the first photo, or held otherwise</source>
        <translation>%1: es ist nicht so groß wie das erste Foto oder anders gehalten</translation>
    </message>
    <message>
        <source>%1, measured</source>
        <translation>%1, gemessen</translation>
    </message>
    <message>
        <source>Now click near the other end of the edge.</source>
        <translation>Klicken Sie nun nahe an das andere Ende der Kante.</translation>
    </message>
    <message>
        <source>Looking for straight edges...</source>
        <translation>Gerade Kanten werden gesucht...</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Es wird gemessen...</translation>
    </message>
    <message>
        <source>taken away</source>
        <translation>weggenommen</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 px, not used</source>
        <translation>%1 px, zählt nicht</translation>
    </message>
    <message>
        <source>&amp;Bring back</source>
        <translation>Zurückhole&amp;n</translation>
    </message>
    <message>
        <source>&amp;Take away</source>
        <translation>Weg&amp;nehmen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now among your lenses.</source>
        <translation>„%1“ ist nun unter Ihren Objektiven.</translation>
    </message>
</context>
<context>
    <name>varnel::FormStretch</name>
    <message>
        <source>100 % narrower</source>
        <translation>100 % schmaler</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>breiter</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>schmaler</translation>
    </message>
    <message>
        <source>up</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>down</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>Could not open image</source>
        <translation>Das Bild konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 Pixel</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 gespeichert, %2</translation>
    </message>
    <message>
        <source>Closes when the picture is saved</source>
        <translation>Schließt, sobald das Bild gespeichert ist</translation>
    </message>
</context>
<context>
    <name>varnel::FrameTools</name>
    <message>
        <source>&amp;Frame on the photo</source>
        <translation>&amp;Rahmen auf dem Foto</translation>
    </message>
    <message>
        <source>&amp;Magnification map</source>
        <translation>Abbildungs&amp;maßstab</translation>
    </message>
    <message>
        <source>The middle of Horizon is a single point of the photo: its resolution is told half way to the rim.</source>
        <translation>Die Mitte von Horizon ist ein einziger Punkt des Fotos: Gezeigt wird die Auflösung auf halbem Weg zum Rand.</translation>
    </message>
</context>
<context>
    <name>varnel::GearBar</name>
    <message>
        <source>Choose the gear</source>
        <translation>Ausrüstung wählen</translation>
    </message>
    <message>
        <source>Gives this photo another gear</source>
        <translation>Gibt diesem Foto eine andere Ausrüstung</translation>
    </message>
    <message>
        <source>Sees this photo in the other way</source>
        <translation>Nimmt dieses Foto auf die andere Art</translation>
    </message>
    <message>
        <source>Gives the gear of this photo to all others of the same camera, lens and size</source>
        <translation>Gibt die Ausrüstung dieses Fotos allen anderen mit derselben Kamera, demselben Objektiv und derselben Größe</translation>
    </message>
    <message>
        <source>Define this gear...</source>
        <translation>Diese Ausrüstung festlegen...</translation>
    </message>
    <message>
        <source>Same for all photos like this</source>
        <translation>Ebenso für alle solchen Fotos</translation>
    </message>
</context>
<context>
    <name>varnel::GearOfferRow</name>
    <message>
        <source>Use %1</source>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>Gives this photo the gear &quot;%1&quot;</source>
        <translation>Gibt diesem Foto die Ausrüstung „%1“</translation>
    </message>
    <message>
        <source>Define this gear...</source>
        <translation>Diese Ausrüstung festlegen...</translation>
    </message>
    <message>
        <source>Opens the gear editor with the camera and the lens chosen</source>
        <translation>Öffnet das Fenster für Ausrüstungen, Kamera und Objektiv sind schon gewählt</translation>
    </message>
    <message>
        <source>The camera or the lens of the gear in use is not the photo&apos;s: the circle and the angles do not fit.</source>
        <translation>Kamera oder Objektiv der benutzten Ausrüstung sind nicht die des Fotos: Kreis und Winkel passen nicht.</translation>
    </message>
    <message>
        <source>Puts the gear that this photo was adjusted with into the list; the photo stays as it is</source>
        <translation>Nimmt die Ausrüstung, mit der dieses Foto angepasst wurde, in die Liste auf; das Foto bleibt, wie es ist</translation>
    </message>
</context>
<context>
    <name>varnel::GivenBar</name>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Takes these gears back</source>
        <translation>Nimmt diese Ausrüstungen zurück</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Blendet diese Zeile aus</translation>
    </message>
    <message>
        <source>1 photo got its own gear</source>
        <translation>1 Foto hat seine eigene Ausrüstung bekommen</translation>
    </message>
    <message>
        <source>%1 photos got their own gear</source>
        <translation>%1 Fotos haben ihre eigene Ausrüstung bekommen</translation>
    </message>
</context>
<context>
    <name>varnel::GuideTools</name>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>The user guide is not installed</source>
        <translation>Das Handbuch ist nicht installiert</translation>
    </message>
    <message>
        <source>It belongs into the folder share/varnel/guide beside %1.</source>
        <translation>Es gehört in den Ordner share/varnel/guide neben %1.</translation>
    </message>
</context>
<context>
    <name>varnel::HintTools</name>
    <message>
        <source>Draw along the horizon on the photo, or click points and then the last one again; Escape leaves</source>
        <translation>Auf dem Foto am Horizont entlangziehen, oder Punkte anklicken und den letzten noch einmal; Escape beendet</translation>
    </message>
    <message>
        <source>Drag the circle&apos;s rim or its middle on the photo; Escape leaves</source>
        <translation>Auf dem Foto den Rand des Kreises oder seine Mitte ziehen; Escape beendet</translation>
    </message>
    <message>
        <source>drag: turn   wheel: angle   Shift+drag: roll</source>
        <translation>Ziehen: drehen   Rad: Bildwinkel   Umschalt+Ziehen: rollen</translation>
    </message>
    <message>
        <source>Drag the crop, its sides or its corners on the result; Escape leaves</source>
        <translation>Ziehen Sie am Zuschnitt, an seinen Seiten oder Ecken auf dem Ergebnis; Esc verlässt ihn</translation>
    </message>
</context>
<context>
    <name>varnel::ImageListPanel</name>
    <message>
        <source>Image list</source>
        <translation>Bildliste</translation>
    </message>
    <message>
        <source>Click a photo to work on it; select several to adjust them together</source>
        <translation>Klicken Sie ein Foto an, um es zu bearbeiten; wählen Sie mehrere, um sie gemeinsam anzupassen</translation>
    </message>
    <message>
        <source>Add image(s)</source>
        <translation>Bild(er) hinzufügen</translation>
    </message>
    <message>
        <source>Adds photos to the list</source>
        <translation>Nimmt Fotos in die Liste auf</translation>
    </message>
    <message>
        <source>Remove image(s)</source>
        <translation>Bild(er) entfernen</translation>
    </message>
    <message>
        <source>Takes the selected photos off the list; the files stay</source>
        <translation>Nimmt die gewählten Fotos aus der Liste; die Dateien bleiben</translation>
    </message>
</context>
<context>
    <name>varnel::InsetFrame</name>
    <message>
        <source>The photo as shot: drag the bar to move it, the corner to resize it</source>
        <translation>Das Foto, wie es aufgenommen wurde: am Balken verschieben, an der Ecke die Größe ändern</translation>
    </message>
</context>
<context>
    <name>varnel::LayoutTools</name>
    <message>
        <source>Image li&amp;st in the left column</source>
        <translation>Bilderliste in der linken &amp;Spalte</translation>
    </message>
    <message>
        <source>Results &amp;as pictures in the list</source>
        <translation>Ergebnisse als Bi&amp;lder in der Liste</translation>
    </message>
</context>
<context>
    <name>varnel::LevelTools</name>
    <message>
        <source>&amp;Level the horizon</source>
        <translation>&amp;Horizont ausrichten</translation>
    </message>
    <message>
        <source>%1 cannot be levelled: it does not turn the camera.</source>
        <translation>%1 lässt sich nicht ausrichten: Diese Projektion dreht die Kamera nicht.</translation>
    </message>
</context>
<context>
    <name>varnel::OutputPanel</name>
    <message>
        <source>What the files are called. Tokens: %1</source>
        <translation>Wie die Dateien heißen. Platzhalter: %1</translation>
    </message>
</context>
<context>
    <name>varnel::OwnLensTools</name>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importieren ...</translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation>&amp;Umbenennen ...</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exportieren ...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Nothing was changed: %1</source>
        <translation>Nichts wurde geändert: %1</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>%1 wird gelesen ...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of your lenses now.</source>
        <translation>„%1“ gehört jetzt zu Ihren Objektiven.</translation>
    </message>
    <message>
        <source>%1 lenses are among yours now.</source>
        <translation>%1 Objektive gehören jetzt zu Ihren.</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Ausgelassen: %1</translation>
    </message>
    <message>
        <source>New name of the lens:</source>
        <translation>Neuer Name des Objektivs:</translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Nicht exportiert: %1</translation>
    </message>
    <message>
        <source>Written to %1; its formula is off the curve by at most %2 px.</source>
        <translation>In %1 geschrieben; die Formel weicht höchstens %2 px von der Kurve ab.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>In %1 geschrieben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted.</source>
        <translation>„%1“ wurde gelöscht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted; gears that need it: %2.</source>
        <translation>„%1“ wurde gelöscht; Ausrüstungen, die es brauchen: %2.</translation>
    </message>
</context>
<context>
    <name>varnel::PairBar</name>
    <message>
        <source>Use RAW only</source>
        <translation>Nur RAW verwenden</translation>
    </message>
    <message>
        <source>Takes the JPEG files of these photos out of the list</source>
        <translation>Nimmt die JPEG-Dateien dieser Fotos aus der Liste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Blendet diese Zeile aus</translation>
    </message>
    <message>
        <source>1 photo was added as RAW and as JPEG</source>
        <translation>1 Foto wurde als RAW und als JPEG hinzugefügt</translation>
    </message>
    <message>
        <source>%1 photos were added as RAW and as JPEG</source>
        <translation>%1 Fotos wurden als RAW und als JPEG hinzugefügt</translation>
    </message>
</context>
<context>
    <name>varnel::PhotoGearTools</name>
    <message>
        <source>This photo was taken with %1, which is no fisheye: it keeps the gear %2.</source>
        <translation>Dieses Foto wurde mit %1 aufgenommen, das kein Fischauge ist: Es behält die Ausrüstung %2.</translation>
    </message>
    <message>
        <source>Take the whole sensor</source>
        <translation>Ganzen Sensor nehmen</translation>
    </message>
    <message>
        <source>Take the gear&apos;s circle</source>
        <translation>Kreis der Ausrüstung nehmen</translation>
    </message>
    <message>
        <source>The photo is taken for the whole sensor, though it has another shape.</source>
        <translation>Das Foto gilt als der ganze Sensor, obwohl es ein anderes Seitenverhältnis hat.</translation>
    </message>
    <message>
        <source>The gear&apos;s image circle is used, though the photo&apos;s is elsewhere.</source>
        <translation>Es gilt der Bildkreis der Ausrüstung, obwohl der des Fotos woanders liegt.</translation>
    </message>
    <message>
        <source>Take a piece of the sensor</source>
        <translation>Stück des Sensors nehmen</translation>
    </message>
    <message>
        <source>Take the photo&apos;s circle</source>
        <translation>Kreis des Fotos nehmen</translation>
    </message>
    <message>
        <source>Photos of the same camera, lens and size with another gear: %1</source>
        <translation>Fotos mit derselben Kamera, demselben Objektiv und derselben Größe, aber anderer Ausrüstung: %1</translation>
    </message>
</context>
<context>
    <name>varnel::PictureArea</name>
    <message>
        <source>Add photos with &quot;Add image(s)&quot; or drop them here.</source>
        <translation>Fügen Sie Fotos mit „Bild(er) hinzufügen“ hinzu, oder ziehen Sie sie hierher.</translation>
    </message>
    <message>
        <source>The converted picture appears here.</source>
        <translation>Hier erscheint das umgewandelte Bild.</translation>
    </message>
    <message>
        <source>Photo as shot</source>
        <translation>Originalfoto</translation>
    </message>
    <message>
        <source>Converted picture</source>
        <translation>Umgewandeltes Bild</translation>
    </message>
    <message>
        <source>Plus and minus zoom, arrow keys move what is seen. While the image circle or the frame is shown on the photo, they change that.</source>
        <translation>Plus und Minus ändern die Vergrößerung, Pfeiltasten den Ausschnitt. Solange auf dem Foto der Bildkreis oder der Rahmen zu sehen ist, ändern sie diesen.</translation>
    </message>
    <message>
        <source>Plus and minus zoom, arrow keys move what is seen. In Rectilinear they turn the camera by a degree, with Alt by a tenth.</source>
        <translation>Plus und Minus ändern die Vergrößerung, Pfeiltasten den Ausschnitt. In Rectilinear drehen sie die Kamera um ein Grad, mit Alt um ein Zehntel.</translation>
    </message>
</context>
<context>
    <name>varnel::PictureMenus</name>
    <message>
        <source>&amp;Show in folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
</context>
<context>
    <name>varnel::PresetTools</name>
    <message>
        <source>&amp;Copy settings</source>
        <translation>Einstellungen &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste settings</source>
        <translation>Einstellungen &amp;einfügen</translation>
    </message>
    <message>
        <source>Pr&amp;esets</source>
        <translation>&amp;Voreinstellungen</translation>
    </message>
    <message>
        <source>&amp;Save as preset...</source>
        <translation>Als Voreinstellung &amp;speichern ...</translation>
    </message>
    <message>
        <source>&amp;Manage presets...</source>
        <translation>Voreinstellungen &amp;verwalten ...</translation>
    </message>
    <message>
        <source>The photo&apos;s settings are on the clipboard</source>
        <translation>Die Einstellungen des Fotos sind in der Zwischenablage</translation>
    </message>
    <message>
        <source>The clipboard holds no settings of a photo</source>
        <translation>Die Zwischenablage enthält keine Einstellungen eines Fotos</translation>
    </message>
    <message>
        <source>Saving follows the preset &quot;%1&quot; from now on</source>
        <translation>Das Speichern folgt von nun an der Voreinstellung „%1“</translation>
    </message>
</context>
<context>
    <name>varnel::ProjectTools</name>
    <message>
        <source>Open project...</source>
        <translation>Projekt öffnen...</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <source>Save project as...</source>
        <translation>Projekt speichern unter...</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Zuletzt verwendete Projekte</translation>
    </message>
    <message>
        <source>Could not open %1</source>
        <translation>%1 konnte nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Some photos of the project are not where they were</source>
        <translation>Einige Fotos des Projekts sind nicht mehr, wo sie waren</translation>
    </message>
    <message>
        <source>Some settings of the project could not be used</source>
        <translation>Einige Einstellungen des Projekts sind nicht verwendbar</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>%1 konnte nicht gespeichert werden</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... und %1 weitere</translation>
    </message>
</context>
<context>
    <name>varnel::ProjectionChooser</name>
    <message>
        <source>More</source>
        <translation>Weitere</translation>
    </message>
    <message>
        <source>The projections of the list beside it</source>
        <translation>Die Projektionen der Liste daneben</translation>
    </message>
    <message>
        <source>More projections</source>
        <translation>Weitere Projektionen</translation>
    </message>
</context>
<context>
    <name>varnel::QueueModel</name>
    <message>
        <source>being converted</source>
        <translation>wird umgewandelt</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>geschrieben: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>wartet</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>ausgelassen</translation>
    </message>
</context>
<context>
    <name>varnel::ResetDot</name>
    <message>
        <source>Reset: %1</source>
        <translation>Zurücksetzen: %1</translation>
    </message>
    <message>
        <source>Not the usual value; a click resets it</source>
        <translation>Nicht der übliche Wert; ein Klick setzt ihn zurück</translation>
    </message>
</context>
<context>
    <name>varnel::ResetTools</name>
    <message>
        <source>Reset photo</source>
        <translation>Foto zurücksetzen</translation>
    </message>
</context>
<context>
    <name>varnel::SampleTools</name>
    <message>
        <source>Open the sa&amp;mple</source>
        <translation>Beispielfoto ö&amp;ffnen</translation>
    </message>
    <message>
        <source>The sample photo could not be made: %1 did not start.</source>
        <translation>Das Beispielfoto konnte nicht gemacht werden: %1 ließ sich nicht starten.</translation>
    </message>
    <message>
        <source>Drawing the sample photo, which takes a few seconds ...</source>
        <translation>Das Beispielfoto wird gezeichnet, das dauert ein paar Sekunden ...</translation>
    </message>
    <message>
        <source>The sample photo could not be made: %1</source>
        <translation>Das Beispielfoto konnte nicht gemacht werden: %1</translation>
    </message>
</context>
<context>
    <name>varnel::SavePanel</name>
    <message>
        <source>Save image as ...</source>
        <translation>Bild speichern unter ...</translation>
    </message>
    <message>
        <source>Converts the current photo at full size and saves it</source>
        <translation>Wandelt das aktuelle Foto in voller Größe um und speichert es</translation>
    </message>
    <message>
        <source>Add to batch que</source>
        <translation>Zum Stapel hinzufügen</translation>
    </message>
    <message>
        <source>Queues every photo of the list with its present settings</source>
        <translation>Legt jedes Foto der Liste mit seinen jetzigen Einstellungen in den Stapel</translation>
    </message>
    <message>
        <source>Process batch que</source>
        <translation>Stapel verarbeiten</translation>
    </message>
    <message>
        <source>Converts and saves everything that is queued</source>
        <translation>Wandelt alles im Stapel um und speichert es</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Save / batch process </source>
        <translation>Speichern / Stapel </translation>
    </message>
    <message>
        <source>What the saved picture usually takes in the file type of the defaults</source>
        <translation>Was das gespeicherte Bild im Dateityp der Voreinstellungen gewöhnlich braucht</translation>
    </message>
</context>
<context>
    <name>varnel::SaveTools</name>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <source>Shows the saved picture in the file manager</source>
        <translation>Zeigt das gespeicherte Bild in der Dateiverwaltung</translation>
    </message>
</context>
<context>
    <name>varnel::SessionTools</name>
    <message>
        <source>The image list of a window that was not closed is damaged and cannot be opened</source>
        <translation>Die Bildliste eines Fensters, das nicht geschlossen wurde, ist beschädigt und lässt sich nicht öffnen</translation>
    </message>
    <message>
        <source>no folder can be made there</source>
        <translation>dort kann kein Ordner angelegt werden</translation>
    </message>
    <message>
        <source>The image list cannot be kept against a crash in %1</source>
        <translation>Die Bildliste kann nicht gegen einen Absturz gesichert werden in %1</translation>
    </message>
</context>
<context>
    <name>varnel::SheetTools</name>
    <message>
        <source>&amp;Contact sheet</source>
        <translation>Kontakt&amp;bogen</translation>
    </message>
</context>
<context>
    <name>varnel::SizePanel</name>
    <message>
        <source>Size and crop</source>
        <translation>Größe und Zuschnitt</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>As large as the photo, or another size or shape: type a width (4000), both sides (4000x3000) or a shape (16:9)</source>
        <translation>So groß wie das Foto, oder eine andere Größe oder Form: Tippen Sie eine Breite (4000), beide Seiten (4000x3000) oder eine Form (16:9)</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>Wie das Foto</translation>
    </message>
    <message>
        <source>Square, 1:1</source>
        <translation>Quadrat, 1:1</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Außerhalb</translation>
    </message>
    <message>
        <source>What the result has where the photo shows nothing; type a colour as #rrggbb. Transparent needs PNG or TIFF.</source>
        <translation>Was das Ergebnis hat, wo das Foto nichts zeigt; tippen Sie eine Farbe als #rrggbb. Durchsichtig braucht PNG oder TIFF.</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Durchsichtig</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>Crop ...</source>
        <translation>Zuschneiden ...</translation>
    </message>
    <message>
        <source>Shows all of the result and what is cut out of it</source>
        <translation>Zeigt das ganze Ergebnis und was daraus geschnitten wird</translation>
    </message>
    <message>
        <source>As sharp as the photo&apos;s middle</source>
        <translation>So scharf wie die Mitte des Fotos</translation>
    </message>
</context>
<context>
    <name>varnel::SizeTools</name>
    <message>
        <source>No size: %1. A width (4000), both sides (4000x3000) and a shape (16:9) are.</source>
        <translation>Keine Größe: %1. Eine Breite (4000), beide Seiten (4000x3000) und eine Form (16:9) sind welche.</translation>
    </message>
    <message>
        <source>No colour: %1. One like #ff8000 is.</source>
        <translation>Keine Farbe: %1. Eine wie #ff8000 ist eine.</translation>
    </message>
    <message>
        <source>%1 x %2, %3 as %4, %5</source>
        <translation>%1 x %2, %3 als %4, %5</translation>
    </message>
</context>
<context>
    <name>varnel::StraightenTools</name>
    <message>
        <source>St&amp;raighten...</source>
        <translation>&amp;Geraderichten...</translation>
    </message>
    <message>
        <source>Measure a &amp;lens...</source>
        <translation>Objektiv &amp;messen...</translation>
    </message>
    <message>
        <source>Open a photo first.</source>
        <translation>Öffnen Sie zuerst ein Foto.</translation>
    </message>
    <message>
        <source>The photo has the measured lens; undo takes it back.</source>
        <translation>Das Foto hat das gemessene Objektiv; Rückgängig nimmt es zurück.</translation>
    </message>
    <message>
        <source>%1 photos have the measured lens; undo takes it back.</source>
        <translation>%1 Fotos haben das gemessene Objektiv; Rückgängig nimmt es zurück.</translation>
    </message>
</context>
<context>
    <name>varnel::StretchView</name>
    <message>
        <source>The stretched picture and the curve of its stretch</source>
        <translation>Das gestreckte Bild und die Kurve seiner Streckung</translation>
    </message>
    <message>
        <source>Open a photo or drop one here.</source>
        <translation>Öffnen Sie ein Foto, oder ziehen Sie eines hierher.</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>breiter</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>schmaler</translation>
    </message>
</context>
<context>
    <name>varnel::ThemeTools</name>
    <message>
        <source>Theme</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>As the &amp;system</source>
        <translation>Wie das &amp;System</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Dunkel</translation>
    </message>
</context>
<context>
    <name>varnel::TimeLine</name>
    <message>
        <source>Time line of the film</source>
        <translation>Zeitleiste des Films</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Evenly to the next key</source>
        <translation>Gleichmäßig zum nächsten Schlüssel</translation>
    </message>
    <message>
        <source>Slowly out and slowly in</source>
        <translation>Langsam los und langsam an</translation>
    </message>
    <message>
        <source>Hold until the next key</source>
        <translation>Halten bis zum nächsten Schlüssel</translation>
    </message>
    <message>
        <source>Remove the key</source>
        <translation>Den Schlüssel entfernen</translation>
    </message>
</context>
<context>
    <name>varnel::ToolbarTools</name>
    <message>
        <source>Too&amp;lbar</source>
        <translation>&amp;Werkzeugleiste</translation>
    </message>
    <message>
        <source>Te&amp;xt under the icons</source>
        <translation>Te&amp;xt unter den Symbolen</translation>
    </message>
</context>
<context>
    <name>varnel::UndoTools</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Rückgängig: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Wiederholen: %1</translation>
    </message>
</context>
<context>
    <name>varnel::ViewTools</name>
    <message>
        <source>S&amp;plit</source>
        <translation>Nebeneinan&amp;der</translation>
    </message>
    <message>
        <source>Photo and result side by side</source>
        <translation>Foto und Ergebnis nebeneinander</translation>
    </message>
    <message>
        <source>Res&amp;ult</source>
        <translation>&amp;Ergebnis</translation>
    </message>
    <message>
        <source>The result as large as possible, with the photo as a small picture on it</source>
        <translation>Das Ergebnis so groß wie möglich, mit dem Foto als kleinem Bild darauf</translation>
    </message>
    <message>
        <source>P&amp;hoto</source>
        <translation>&amp;Foto</translation>
    </message>
    <message>
        <source>The photo as shot as large as possible</source>
        <translation>Das Foto, wie es aufgenommen wurde, so groß wie möglich</translation>
    </message>
</context>
<context>
    <name>varnel::WalkTools</name>
    <message>
        <source>Pre&amp;vious photo</source>
        <translation>Vor&amp;heriges Foto</translation>
    </message>
    <message>
        <source>N&amp;ext photo</source>
        <translation>Nä&amp;chstes Foto</translation>
    </message>
</context>
<context>
    <name>varnel::ZoomBar</name>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>How large the pictures are shown, from the whole picture on</source>
        <translation>Wie groß die Bilder gezeigt werden, vom ganzen Bild an</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
</context>
<context>
    <name>varnel::ZoomTools</name>
    <message>
        <source>Fi&amp;t</source>
        <translation>Ein&amp;passen</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Zoom i&amp;n</source>
        <translation>&amp;Vergrößern</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>&amp;Gitter</translation>
    </message>
    <message>
        <source>Centre c&amp;ross</source>
        <translation>Mittenkreu&amp;z</translation>
    </message>
    <message>
        <source>&amp;Before instead of after	B</source>
        <translation>V&amp;orher statt nachher	B</translation>
    </message>
</context>
</TS>
