<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Batch</name>
    <message>
        <source>The folder %1 does not exist</source>
        <translation>La carpeta %1 no existe</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 no es una carpeta</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1 (%2)</source>
        <translation>No se puede escribir en la carpeta %1 (%2)</translation>
    </message>
    <message>
        <source>1 name collides: of the images of one name only the last one stays.</source>
        <translation>1 nombre se repite: de las imágenes con el mismo nombre solo queda la última.</translation>
    </message>
    <message>
        <source>%1 names collide: of the images of one name only the last one stays.</source>
        <translation>%1 nombres se repiten: de las imágenes con el mismo nombre solo queda la última.</translation>
    </message>
    <message>
        <source>1 file in this folder will be replaced.</source>
        <translation>1 archivo de esta carpeta será reemplazado.</translation>
    </message>
    <message>
        <source>%1 files in this folder will be replaced.</source>
        <translation>%1 archivos de esta carpeta serán reemplazados.</translation>
    </message>
    <message>
        <source>The images may need up to %1, but only %2 are free there.</source>
        <translation>Las imágenes pueden necesitar hasta %1, pero allí solo hay %2 libres.</translation>
    </message>
    <message>
        <source>could not write %1: %2</source>
        <translation>no se pudo escribir %1: %2</translation>
    </message>
    <message>
        <source>1 file does not hold everything:</source>
        <translation>1 archivo no lo contiene todo:</translation>
    </message>
    <message>
        <source>%1 files do not hold everything:</source>
        <translation>%1 archivos no lo contienen todo:</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 y %2 más</translation>
    </message>
    <message>
        <source>%1 of %2 images written into %3</source>
        <translation>%1 de %2 imágenes escritas en %3</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>Detenido tras %1</translation>
    </message>
    <message>
        <source>1 image failed:</source>
        <translation>1 imagen falló:</translation>
    </message>
    <message>
        <source>%1 images failed:</source>
        <translation>%1 imágenes fallaron:</translation>
    </message>
    <message>
        <source>1 image is damaged and was written as far as it could be read:</source>
        <translation>1 imagen está dañada y se escribió hasta donde se pudo leer:</translation>
    </message>
    <message>
        <source>%1 images are damaged and were written as far as they could be read:</source>
        <translation>%1 imágenes están dañadas y se escribieron hasta donde se pudieron leer:</translation>
    </message>
    <message>
        <source>1 file was replaced by a later image of the same name:</source>
        <translation>1 archivo fue reemplazado por una imagen posterior con el mismo nombre:</translation>
    </message>
    <message>
        <source>%1 files were replaced by later images of the same name:</source>
        <translation>%1 archivos fueron reemplazados por imágenes posteriores con el mismo nombre:</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 de %2 imágenes</translation>
    </message>
    <message>
        <source>about %1 seconds left</source>
        <translation>quedan unos %1 segundos</translation>
    </message>
    <message>
        <source>about 1 minute left</source>
        <translation>queda 1 minuto aproximadamente</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>quedan unos %1 minutos</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>quedan unas %1 horas</translation>
    </message>
    <message>
        <source>%1 is the photo itself</source>
        <translation>%1 es la propia foto</translation>
    </message>
    <message>
        <source>%1 is one of the queued photos</source>
        <translation>%1 es una de las fotos de la cola</translation>
    </message>
    <message>
        <source>the photo is damaged (%1) and does not replace the older %2</source>
        <translation>la foto está dañada (%1) y no reemplaza a %2, más antiguo</translation>
    </message>
    <message>
        <source>%1 of %2 images written next to their photos</source>
        <translation>%1 de %2 imágenes escritas junto a sus fotos</translation>
    </message>
    <message>
        <source>this program cannot write films</source>
        <translation>este programa no puede escribir películas</translation>
    </message>
</context>
<context>
    <name>Choices</name>
    <message>
        <source>Clockwise</source>
        <translation>En sentido horario</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>En sentido contrario</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivelar</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Hacia arriba</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Hacia abajo</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>Which way round the photo the unrolled picture goes from left to right</source>
        <translation>En qué sentido la imagen desenrollada da la vuelta a la foto, de izquierda a derecha</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marcas</translation>
    </message>
    <message>
        <source>Draws N, E, S and W and the angles into the unrolled picture</source>
        <translation>Dibuja N, E, S, W y los ángulos en la imagen desenrollada</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>How the camera was held when the photo was taken</source>
        <translation>Cómo se sujetaba la cámara al tomar la foto</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Túnel</translation>
    </message>
    <message>
        <source>Looks the other way: the sky in the middle, the ground around it</source>
        <translation>Mira hacia el otro lado: el cielo en el centro, el suelo alrededor</translation>
    </message>
</context>
<context>
    <name>DividerOverlay</name>
    <message>
        <source>before</source>
        <translation>antes</translation>
    </message>
    <message>
        <source>after</source>
        <translation>después</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>clásico</translation>
    </message>
    <message>
        <source>fine</source>
        <translation>fino</translation>
    </message>
</context>
<context>
    <name>FilmKeys</name>
    <message>
        <source>there is %1</source>
        <translation>hay %1</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>¿quiso decir «%1»?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means nothing here; %2</source>
        <translation>«%1» no significa nada aquí; %2</translation>
    </message>
    <message>
        <source>&quot;time&quot; must be a number of seconds from 0 to %1</source>
        <translation>«time» debe ser un número de segundos de 0 a %1</translation>
    </message>
    <message>
        <source>&quot;ease&quot; must be linear, ease or hold</source>
        <translation>«ease» debe ser linear, ease o hold</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting that moves; %2</source>
        <translation>«%1» no es un ajuste que se mueva; %2</translation>
    </message>
    <message>
        <source>the value of %1 must be a number</source>
        <translation>el valor de %1 debe ser un número</translation>
    </message>
    <message>
        <source>&quot;set&quot; must hold settings and their numbers</source>
        <translation>«set» debe contener ajustes y sus números</translation>
    </message>
    <message>
        <source>it must be an object with time and set</source>
        <translation>debe ser un objeto con time y set</translation>
    </message>
    <message>
        <source>it is not JSON: %1 at byte %2</source>
        <translation>no es JSON: %1 en el byte %2</translation>
    </message>
    <message>
        <source>it has no list &quot;keys&quot;</source>
        <translation>no tiene la lista «keys»</translation>
    </message>
    <message>
        <source>key %1: %2</source>
        <translation>clave %1: %2</translation>
    </message>
    <message>
        <source>there are two keys at %1 seconds</source>
        <translation>hay dos claves a los %1 segundos</translation>
    </message>
</context>
<context>
    <name>FormAbout</name>
    <message>
        <source>About Varnel</source>
        <translation>Acerca de Varnel</translation>
    </message>
    <message>
        <source>The program&apos;s picture</source>
        <translation>La imagen del programa</translation>
    </message>
    <message>
        <source>The version to name when you report a problem</source>
        <translation>La versión que debe indicar al comunicar un problema</translation>
    </message>
    <message>
        <source>Converts fisheye photographs into other projections.</source>
        <translation>Convierte fotos de ojo de pez a otras proyecciones.</translation>
    </message>
    <message>
        <source>© Varnel developers
Licence: GPL-3.0-or-later. This program comes without any warranty.</source>
        <translation>© Varnel developers
Licencia: GPL-3.0-or-later. Este programa no ofrece ninguna garantía.</translation>
    </message>
    <message>
        <source>The image library that reads and writes your photos</source>
        <translation>La biblioteca de imágenes que lee y escribe sus fotos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Back to your photos</source>
        <translation>Volver a sus fotos</translation>
    </message>
    <message>
        <source>Lens data</source>
        <translation>Datos de objetivos</translation>
    </message>
    <message>
        <source>Varnel&apos;s own catalogue has Varnel&apos;s licence. The lenses of the brand lensfun, and those that were taken from it into My lenses, are from the database of lensfun, © its contributors, licence CC BY-SA 3.0: whoever passes them on names them and keeps the licence. Lenses from other files have the licences of those files; the gear editor shows where each one comes from.</source>
        <translation>El catálogo propio de Varnel tiene la licencia de Varnel. Los objetivos de la marca lensfun, y los tomados de ella en «My lenses», proceden de la base de datos de lensfun, © sus colaboradores, licencia CC BY-SA 3.0: quien los transmita los nombra y mantiene la licencia. Los objetivos de otros archivos tienen las licencias de esos archivos; el editor de equipo muestra de dónde procede cada uno.</translation>
    </message>
</context>
<context>
    <name>FormAddImages</name>
    <message>
        <source>Add image(s)</source>
        <translation>Añadir imágenes</translation>
    </message>
    <message>
        <source>&amp;Drive</source>
        <translation>&amp;Unidad</translation>
    </message>
    <message>
        <source>The disk or memory card that your photos are on</source>
        <translation>El disco o la tarjeta de memoria donde están sus fotos</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>Carpeta &amp;personal</translation>
    </message>
    <message>
        <source>Go to your own folder</source>
        <translation>Ir a su carpeta personal</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Carpeta personal</translation>
    </message>
    <message>
        <source>&amp;Pictures</source>
        <translation>&amp;Imágenes</translation>
    </message>
    <message>
        <source>Go to your folder of pictures</source>
        <translation>Ir a su carpeta de imágenes</translation>
    </message>
    <message>
        <source>Pictures folder</source>
        <translation>Carpeta de imágenes</translation>
    </message>
    <message>
        <source>The folder whose photos are shown</source>
        <translation>La carpeta cuyas fotos se muestran</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Carpetas</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>La carpeta que se muestra</translation>
    </message>
    <message>
        <source>How many files are selected</source>
        <translation>Cuántos archivos están seleccionados</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>Select one or more files; double-click adds one at once</source>
        <translation>Seleccione uno o más archivos; un doble clic añade uno enseguida</translation>
    </message>
    <message>
        <source>Ph&amp;otos (*.jpg;*.tif;*.png;*.bmp;*.dng)</source>
        <translation>F&amp;otos (*.jpg;*.tif;*.png;*.bmp;*.dng)</translation>
    </message>
    <message>
        <source>Show the files that are photos by their names</source>
        <translation>Mostrar los archivos que por su nombre son fotos</translation>
    </message>
    <message>
        <source>Show photos only</source>
        <translation>Mostrar solo fotos</translation>
    </message>
    <message>
        <source>All &amp;files (*.*)</source>
        <translation>&amp;Todos los archivos (*.*)</translation>
    </message>
    <message>
        <source>Show every file, also photos with other endings</source>
        <translation>Mostrar todos los archivos, también fotos con otras extensiones</translation>
    </message>
    <message>
        <source>Show all files</source>
        <translation>Mostrar todos los archivos</translation>
    </message>
    <message>
        <source>&amp;Add image(s)</source>
        <translation>&amp;Añadir imágenes</translation>
    </message>
    <message>
        <source>Put the selected files into your list of photos</source>
        <translation>Poner los archivos seleccionados en su lista de fotos</translation>
    </message>
    <message>
        <source>Add the selected images</source>
        <translation>Añadir las imágenes seleccionadas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Back without adding anything</source>
        <translation>Volver sin añadir nada</translation>
    </message>
</context>
<context>
    <name>FormBatch</name>
    <message>
        <source>Process batch que</source>
        <translation>Procesar la cola</translation>
    </message>
    <message>
        <source>Queued images</source>
        <translation>Imágenes en cola</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>&amp;Drive</source>
        <translation>&amp;Unidad</translation>
    </message>
    <message>
        <source>The disk or memory card that the images go to</source>
        <translation>El disco o la tarjeta de memoria adonde van las imágenes</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidad</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Nueva carpeta</translation>
    </message>
    <message>
        <source>Make a folder in the chosen one and give it a name</source>
        <translation>Crear una carpeta en la elegida y darle un nombre</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nueva carpeta</translation>
    </message>
    <message>
        <source>The folder that the images are written to</source>
        <translation>La carpeta donde se escriben las imágenes</translation>
    </message>
    <message>
        <source>The chosen output folder</source>
        <translation>La carpeta de destino elegida</translation>
    </message>
    <message>
        <source>Saved photos</source>
        <translation>Fotos guardadas</translation>
    </message>
    <message>
        <source>Name additions</source>
        <translation>Añadidos al nombre</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Resumen</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>C&amp;opiar</translation>
    </message>
    <message>
        <source>Copy the summary, to keep it or to send it</source>
        <translation>Copiar el resumen, para guardarlo o enviarlo</translation>
    </message>
    <message>
        <source>Copy the summary</source>
        <translation>Copiar el resumen</translation>
    </message>
    <message>
        <source>Summary of the run</source>
        <translation>Resumen del proceso</translation>
    </message>
    <message>
        <source>Names that collide or exist already</source>
        <translation>Nombres repetidos o ya existentes</translation>
    </message>
    <message>
        <source>Whether there is room enough</source>
        <translation>Si hay espacio suficiente</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>The image that is being written</source>
        <translation>La imagen que se está escribiendo</translation>
    </message>
    <message>
        <source>How far this image is</source>
        <translation>Cuánto lleva esta imagen</translation>
    </message>
    <message>
        <source>Progress of this image</source>
        <translation>Progreso de esta imagen</translation>
    </message>
    <message>
        <source>How many images are done</source>
        <translation>Cuántas imágenes están listas</translation>
    </message>
    <message>
        <source>How long it will take</source>
        <translation>Cuánto tardará</translation>
    </message>
    <message>
        <source>How far the whole run is</source>
        <translation>Cuánto lleva todo el proceso</translation>
    </message>
    <message>
        <source>Progress of the whole run</source>
        <translation>Progreso de todo el proceso</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Finish the image at hand and leave out the others</source>
        <translation>Terminar la imagen en curso y dejar las demás</translation>
    </message>
    <message>
        <source>Clear batch que</source>
        <translation>Vaciar la cola</translation>
    </message>
    <message>
        <source>Take all images out of the queue; the photos stay</source>
        <translation>Quitar todas las imágenes de la cola; las fotos se quedan</translation>
    </message>
    <message>
        <source>Convert every queued image and write it to the output folder</source>
        <translation>Convertir cada imagen de la cola y escribirla en la carpeta de destino</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Back to the main window; the queue stays as it is</source>
        <translation>Volver a la ventana principal; la cola se queda como está</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Mo&amp;strar en la carpeta</translation>
    </message>
    <message>
        <source>Show the written images in the file manager</source>
        <translation>Mostrar las imágenes escritas en el gestor de archivos</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>&amp;Go on editing</source>
        <translation>Se&amp;guir editando</translation>
    </message>
    <message>
        <source>Back to the main window; the run goes on meanwhile</source>
        <translation>Volver a la ventana principal; el proceso sigue entretanto</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Seguir editando</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Hold the run where it is, and let it go on</source>
        <translation>Detener el proceso donde está, y dejar que siga</translation>
    </message>
</context>
<context>
    <name>FormGearEdit</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>The name under which you will choose this combination for your photos. Without one it is named after camera and lens.</source>
        <translation>El nombre con el que elegirá esta combinación para sus fotos. Sin nombre, lleva el de la cámara y el objetivo.</translation>
    </message>
    <message>
        <source>Name of the gear</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>Enter gear name here</source>
        <translation>Nombre del equipo</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>&amp;Brand</source>
        <translation>&amp;Marca</translation>
    </message>
    <message>
        <source>The maker of the camera, or its sensor size if the camera is not listed</source>
        <translation>El fabricante de la cámara, o el tamaño de su sensor si la cámara no está en la lista</translation>
    </message>
    <message>
        <source>Camera brand</source>
        <translation>Marca de la cámara</translation>
    </message>
    <message>
        <source>Choose a brand</source>
        <translation>Elija una marca</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>M&amp;odelo</translation>
    </message>
    <message>
        <source>The camera that took the photos; it sets the size of the sensor</source>
        <translation>La cámara con la que se hicieron las fotos; fija el tamaño del sensor</translation>
    </message>
    <message>
        <source>Camera model</source>
        <translation>Modelo de la cámara</translation>
    </message>
    <message>
        <source>Choose a model</source>
        <translation>Elija un modelo</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <source>B&amp;rand</source>
        <translation>M&amp;arca</translation>
    </message>
    <message>
        <source>The maker of the fisheye lens</source>
        <translation>El fabricante del objetivo ojo de pez</translation>
    </message>
    <message>
        <source>Lens brand</source>
        <translation>Marca del objetivo</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>Mo&amp;delo</translation>
    </message>
    <message>
        <source>The fisheye lens; a zoom is listed once for every focal length</source>
        <translation>El objetivo ojo de pez; un zoom figura una vez por cada distancia focal</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Modelo del objetivo</translation>
    </message>
    <message>
        <source>Fine adjustment</source>
        <translation>Ajuste fino</translation>
    </message>
    <message>
        <source>Horizontal angle of &amp;view</source>
        <translation>Ángulo de &amp;visión horizontal</translation>
    </message>
    <message>
        <source>How much of the scene a landscape photo shows from its left to its right edge; the catalogue tells it unless you move it</source>
        <translation>Cuánto de la escena muestra una foto apaisada del borde izquierdo al derecho; lo indica el catálogo mientras usted no lo cambie</translation>
    </message>
    <message>
        <source>Horizontal angle of view in degrees</source>
        <translation>Ángulo de visión horizontal en grados</translation>
    </message>
    <message>
        <source>Horizontal angle of view in degrees, exact value</source>
        <translation>Ángulo de visión horizontal en grados, valor exacto</translation>
    </message>
    <message>
        <source>Sensor &amp;width / image circle</source>
        <translation>Anc&amp;ho del sensor / círculo de imagen</translation>
    </message>
    <message>
        <source>The width of the sensor compared with the circle that the lens draws; raise it when the circle in the photo is smaller than expected</source>
        <translation>El ancho del sensor comparado con el círculo que dibuja el objetivo; auméntelo si el círculo de la foto es menor de lo esperado</translation>
    </message>
    <message>
        <source>Sensor width in percent of the image circle</source>
        <translation>Ancho del sensor en porcentaje del círculo de imagen</translation>
    </message>
    <message>
        <source>Sensor width in percent of the image circle, exact value</source>
        <translation>Ancho del sensor en porcentaje del círculo de imagen, valor exacto</translation>
    </message>
    <message>
        <source>Circle off centre, &amp;horizontally</source>
        <translation>Círculo descentrado, hori&amp;zontal</translation>
    </message>
    <message>
        <source>How far the middle of the image circle lies from the middle of the photo, in thousandths of its width</source>
        <translation>A qué distancia del centro de la foto está el centro del círculo de imagen, en milésimas de su ancho</translation>
    </message>
    <message>
        <source>Horizontal offset of the image circle in thousandths</source>
        <translation>Desplazamiento horizontal del círculo de imagen en milésimas</translation>
    </message>
    <message>
        <source>Horizontal offset of the image circle in thousandths, exact value</source>
        <translation>Desplazamiento horizontal del círculo de imagen en milésimas, valor exacto</translation>
    </message>
    <message>
        <source>Circle off centre, ver&amp;tically</source>
        <translation>Círculo descentrado, ver&amp;tical</translation>
    </message>
    <message>
        <source>How far the middle of the image circle lies from the middle of the photo, in thousandths of its height</source>
        <translation>A qué distancia del centro de la foto está el centro del círculo de imagen, en milésimas de su alto</translation>
    </message>
    <message>
        <source>Vertical offset of the image circle in thousandths</source>
        <translation>Desplazamiento vertical del círculo de imagen en milésimas</translation>
    </message>
    <message>
        <source>Vertical offset of the image circle in thousandths, exact value</source>
        <translation>Desplazamiento vertical del círculo de imagen en milésimas, valor exacto</translation>
    </message>
    <message>
        <source>&amp;Catalogue values</source>
        <translation>Valores del &amp;catálogo</translation>
    </message>
    <message>
        <source>Forget your own values and take those of the catalogue for this camera and lens</source>
        <translation>Olvidar sus valores y tomar los del catálogo para esta cámara y este objetivo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Keep this combination of camera and lens</source>
        <translation>Conservar esta combinación de cámara y objetivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close without a change</source>
        <translation>Cerrar sin cambiar nada</translation>
    </message>
    <message>
        <source>Read &amp;from a photo ...</source>
        <translation>&amp;Leer de una foto...</translation>
    </message>
    <message>
        <source>Take the camera and the lens that the EXIF of a photo names</source>
        <translation>Tomar la cámara y el objetivo que nombra el EXIF de una foto</translation>
    </message>
    <message>
        <source>Not listed: a t&amp;ypical fisheye</source>
        <translation>No está: ojo de &amp;pez típico</translation>
    </message>
    <message>
        <source>A fisheye of 180 degrees stands in for a lens that is not listed; measure it later from a photo</source>
        <translation>Un ojo de pez de 180 grados sustituye a un objetivo que no está en la lista; mídalo más tarde con una foto</translation>
    </message>
    <message>
        <source>My len&amp;ses</source>
        <translation>Mis ob&amp;jetivos</translation>
    </message>
    <message>
        <source>Import a calibrated lens; rename, export or delete one of your own. Files may be dropped here, too.</source>
        <translation>Importar un objetivo calibrado; renombrar, exportar o eliminar uno de los suyos. También se pueden soltar archivos aquí.</translation>
    </message>
    <message>
        <source>New name of the lens</source>
        <translation>Nuevo nombre del objetivo</translation>
    </message>
    <message>
        <source>The name under which the lens is listed; gears that have it follow</source>
        <translation>El nombre con el que figura el objetivo; los equipos que lo usan lo siguen</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renombrar</translation>
    </message>
    <message>
        <source>Give the lens this name now</source>
        <translation>Dar ahora este nombre al objetivo</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Take the deleted lens back</source>
        <translation>Recuperar el objetivo eliminado</translation>
    </message>
    <message>
        <source>How far the optical axis lies from where the lens or the middle of the photo puts it, in thousandths of its width</source>
        <translation>A qué distancia está el eje óptico de donde lo sitúa el objetivo o el centro de la foto, en milésimas de su ancho</translation>
    </message>
    <message>
        <source>Horizontal offset of the optical axis in thousandths, exact value</source>
        <translation>Desplazamiento horizontal del eje óptico en milésimas, valor exacto</translation>
    </message>
    <message>
        <source>How far the optical axis lies from where the lens or the middle of the photo puts it, in thousandths of its height</source>
        <translation>A qué distancia está el eje óptico de donde lo sitúa el objetivo o el centro de la foto, en milésimas de su alto</translation>
    </message>
    <message>
        <source>Vertical offset of the optical axis in thousandths, exact value</source>
        <translation>Desplazamiento vertical del eje óptico en milésimas, valor exacto</translation>
    </message>
    <message>
        <source>Curve of the &amp;lens, A (mm) and B</source>
        <translation>Cu&amp;rva del objetivo, A (mm) y B</translation>
    </message>
    <message>
        <source>The first of the two numbers of the lens: how far from the centre rays land</source>
        <translation>El primero de los dos números del objetivo: a qué distancia del centro llegan los rayos</translation>
    </message>
    <message>
        <source>A of the lens in millimetres</source>
        <translation>A del objetivo en milímetros</translation>
    </message>
    <message>
        <source>The second of the two numbers of the lens: how much it squeezes towards the rim</source>
        <translation>El segundo de los dos números del objetivo: cuánto comprime hacia el borde</translation>
    </message>
    <message>
        <source>B of the lens</source>
        <translation>B del objetivo</translation>
    </message>
    <message>
        <source>Small result</source>
        <translation>Resultado pequeño</translation>
    </message>
    <message>
        <source>What these numbers make of a photo</source>
        <translation>Lo que estos números hacen de una foto</translation>
    </message>
    <message>
        <source>The projection of the small result: Rectilinear shows whether lines are straight, Varnel and Horizon where the circle lies</source>
        <translation>La proyección del resultado pequeño: Rectilinear muestra si las líneas son rectas, Varnel y Horizon dónde está el círculo</translation>
    </message>
    <message>
        <source>Projection of the small result</source>
        <translation>Proyección del resultado pequeño</translation>
    </message>
</context>
<context>
    <name>FormGearList</name>
    <message>
        <source>Camera + lens combinations</source>
        <translation>Combinaciones de cámara + objetivo</translation>
    </message>
    <message>
        <source>Your combinations of camera and lens; double-click one to redefine it</source>
        <translation>Sus combinaciones de cámara y objetivo; un doble clic modifica una</translation>
    </message>
    <message>
        <source>Add new</source>
        <translation>Nueva</translation>
    </message>
    <message>
        <source>Define another combination of camera and lens</source>
        <translation>Definir otra combinación de cámara y objetivo</translation>
    </message>
    <message>
        <source>Redefine</source>
        <translation>Modificar</translation>
    </message>
    <message>
        <source>Change the selected combination</source>
        <translation>Modificar la combinación seleccionada</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Take the selected combination off the list (Del)</source>
        <translation>Quitar de la lista la combinación seleccionada (Supr)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Save the list and close</source>
        <translation>Guardar la lista y cerrar</translation>
    </message>
    <message>
        <source>New photos get the combination in bold. Changes are saved with OK.</source>
        <translation>Las fotos nuevas reciben la combinación en negrita. Los cambios se guardan con Aceptar.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close and leave all combinations as they were (Esc)</source>
        <translation>Cerrar y dejar todas las combinaciones como estaban (Esc)</translation>
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
        <translation>Primera imagen</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>Última imagen</translation>
    </message>
    <message>
        <source>First image of the sequence</source>
        <translation>Primera imagen de la secuencia</translation>
    </message>
    <message>
        <source>An image between the first and the last</source>
        <translation>Una imagen entre la primera y la última</translation>
    </message>
    <message>
        <source>Last image of the sequence</source>
        <translation>Última imagen de la secuencia</translation>
    </message>
    <message>
        <source>Runs through the sequence: the picture in the middle shows the image at this place</source>
        <translation>Recorre la secuencia: en el centro se ve la imagen de ese lugar</translation>
    </message>
    <message>
        <source>Image shown between the first and the last</source>
        <translation>Imagen mostrada entre la primera y la última</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>&amp;Número de imágenes</translation>
    </message>
    <message>
        <source>How many images the sequence has, the first and the last included</source>
        <translation>Cuántas imágenes tiene la secuencia, incluidas la primera y la última</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Número de imágenes</translation>
    </message>
    <message>
        <source>What was added</source>
        <translation>Lo que se añadió</translation>
    </message>
    <message>
        <source>&amp;Add to batch que</source>
        <translation>&amp;Añadir a la cola</translation>
    </message>
    <message>
        <source>Puts every image of the sequence into the batch queue, where &quot;Process batch que&quot; writes them</source>
        <translation>Pone cada imagen de la secuencia en la cola, donde «Procesar la cola» las escribe</translation>
    </message>
    <message>
        <source>Add the sequence to the batch queue</source>
        <translation>Añadir la secuencia a la cola</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Back to the photos; what was added stays in the queue</source>
        <translation>Volver a las fotos; lo que se añadió se queda en la cola</translation>
    </message>
    <message>
        <source>&amp;Write as film</source>
        <translation>Escribir como &amp;película</translation>
    </message>
    <message>
        <source>The images become one film at once instead of pictures in the batch queue</source>
        <translation>Las imágenes se convierten enseguida en una película en vez de imágenes en la cola del lote</translation>
    </message>
    <message>
        <source>Images in a second of the film</source>
        <translation>Imágenes en un segundo de la película</translation>
    </message>
    <message>
        <source>How many images the film shows in a second</source>
        <translation>Cuántas imágenes muestra la película en un segundo</translation>
    </message>
    <message>
        <source> images a second</source>
        <translation> imágenes por segundo</translation>
    </message>
    <message>
        <source>Images written</source>
        <translation>Imágenes escritas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stops writing the film; nothing of it is kept</source>
        <translation>Deja de escribir la película; no se conserva nada de ella</translation>
    </message>
</context>
<context>
    <name>FormPresets</name>
    <message>
        <source>Manage presets</source>
        <translation>Gestionar preajustes</translation>
    </message>
    <message>
        <source>Your own presets; double-click one to rename it</source>
        <translation>Sus preajustes; un doble clic cambia el nombre de uno</translation>
    </message>
    <message>
        <source>Your presets</source>
        <translation>Sus preajustes</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renombrar</translation>
    </message>
    <message>
        <source>Give the selected preset another name (F2)</source>
        <translation>Dar otro nombre al preajuste seleccionado (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Delete the selected preset (Del); it can be brought back</source>
        <translation>Eliminar el preajuste seleccionado (Supr); se puede recuperar</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>Add the presets of a file</source>
        <translation>Añadir los preajustes de un archivo</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>Write all your presets into a file</source>
        <translation>Escribir todos sus preajustes en un archivo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Changes are saved already</source>
        <translation>Los cambios ya están guardados</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Bring the deleted preset back</source>
        <translation>Recuperar el preajuste eliminado</translation>
    </message>
</context>
<context>
    <name>FormSavePreset</name>
    <message>
        <source>Save as preset</source>
        <translation>Guardar como preajuste</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nombre</translation>
    </message>
    <message>
        <source>Under this name the preset stands in the Edit menu, and for varnel-convert --preset</source>
        <translation>Con este nombre figura el preajuste en el menú Editar, y para varnel-convert --preset</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nombre del preajuste</translation>
    </message>
    <message>
        <source>What the preset sets; gear and circle stay each photo&apos;s own:</source>
        <translation>Lo que fija el preajuste; equipo y círculo siguen siendo los de cada foto:</translation>
    </message>
    <message>
        <source>&amp;Projection and its effect</source>
        <translation>&amp;Proyección y su efecto</translation>
    </message>
    <message>
        <source>The projection, and how strong it is</source>
        <translation>La proyección y su intensidad</translation>
    </message>
    <message>
        <source>Output &amp;angle</source>
        <translation>Án&amp;gulo de salida</translation>
    </message>
    <message>
        <source>The angle of view of the result</source>
        <translation>El ángulo de visión del resultado</translation>
    </message>
    <message>
        <source>&amp;Rotation of the camera</source>
        <translation>Gi&amp;ro de la cámara</translation>
    </message>
    <message>
        <source>All three rotations, also where they are 0</source>
        <translation>Los tres giros, también los que son 0</translation>
    </message>
    <message>
        <source>&amp;Shift of the image</source>
        <translation>&amp;Desplazamiento de la imagen</translation>
    </message>
    <message>
        <source>Both shifts, also where they are 0</source>
        <translation>Ambos desplazamientos, también si son 0</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Salida</translation>
    </message>
    <message>
        <source>File type, quality, colour, metadata and names of saved photos</source>
        <translation>Tipo de archivo, calidad, color, metadatos y nombres de las fotos guardadas</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save the preset</source>
        <translation>Guardar el preajuste</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Close without a preset (Esc)</source>
        <translation>Cerrar sin preajuste (Esc)</translation>
    </message>
</context>
<context>
    <name>FormSetup</name>
    <message>
        <source>Defaults</source>
        <translation>Valores predeterminados</translation>
    </message>
    <message>
        <source>Default gear</source>
        <translation>Equipo predeterminado</translation>
    </message>
    <message>
        <source>&amp;Camera + lens combination</source>
        <translation>Cáma&amp;ra + objetivo</translation>
    </message>
    <message>
        <source>The camera and lens that your photos were taken with, unless you choose another</source>
        <translation>La cámara y el objetivo con los que se hicieron sus fotos, salvo que elija otros</translation>
    </message>
    <message>
        <source>Default camera and lens combination</source>
        <translation>Combinación de cámara y objetivo predeterminada</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>Tamaño de la vista previa</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>A&amp;ncho</translation>
    </message>
    <message>
        <source>How wide the previews may become; smaller previews follow the sliders faster</source>
        <translation>Ancho máximo de las vistas previas; las más pequeñas siguen antes a los controles</translation>
    </message>
    <message>
        <source>Preview width in pixels</source>
        <translation>Ancho de la vista previa en píxeles</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Alto</translation>
    </message>
    <message>
        <source>How high the previews may become; smaller previews follow the sliders faster</source>
        <translation>Alto máximo de las vistas previas; las más pequeñas siguen antes a los controles</translation>
    </message>
    <message>
        <source>Preview height in pixels</source>
        <translation>Alto de la vista previa en píxeles</translation>
    </message>
    <message>
        <source>Opened photos</source>
        <translation>Fotos abiertas</translation>
    </message>
    <message>
        <source>Turn photos upright</source>
        <translation>Poner derechas las fotos</translation>
    </message>
    <message>
        <source>Photos that were taken with the camera on its side stand upright, as the camera noted it</source>
        <translation>Las fotos hechas con la cámara de lado se ponen derechas, como lo anotó la cámara</translation>
    </message>
    <message>
        <source>Offer the gear that a photo tells</source>
        <translation>Ofrecer el equipo que indica la foto</translation>
    </message>
    <message>
        <source>When a photo tells its camera and lens, the matching gear is offered; you decide</source>
        <translation>Cuando una foto indica su cámara y su objetivo, se ofrece el equipo correspondiente; usted decide</translation>
    </message>
    <message>
        <source>Saved photos</source>
        <translation>Fotos guardadas</translation>
    </message>
    <message>
        <source>File &amp;type</source>
        <translation>&amp;Tipo de archivo</translation>
    </message>
    <message>
        <source>The file type that is proposed when you save: TIFF and PNG keep every detail, JPEG makes small files</source>
        <translation>El tipo de archivo propuesto al guardar: TIFF y PNG conservan cada detalle, JPEG da archivos pequeños</translation>
    </message>
    <message>
        <source>File type of saved photos</source>
        <translation>Tipo de archivo de las fotos guardadas</translation>
    </message>
    <message>
        <source>JPEG &amp;quality</source>
        <translation>&amp;Calidad JPEG</translation>
    </message>
    <message>
        <source>100 keeps the most detail, lower values make smaller JPEG files</source>
        <translation>100 conserva el máximo detalle, los valores más bajos dan archivos JPEG más pequeños</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 100</source>
        <translation>Calidad JPEG, de 1 a 100</translation>
    </message>
    <message>
        <source>Full colour resolution (4:4:4)</source>
        <translation>Resolución de color completa (4:4:4)</translation>
    </message>
    <message>
        <source>Fine coloured detail stays sharp in JPEG files, which become larger</source>
        <translation>El detalle fino en color queda nítido en los archivos JPEG, que se hacen más grandes</translation>
    </message>
    <message>
        <source>Keep the photo&apos;s metadata</source>
        <translation>Conservar los metadatos de la foto</translation>
    </message>
    <message>
        <source>Camera, lens, date, place, captions and keywords (EXIF, IPTC, XMP) go into the saved file; the colour profile always does</source>
        <translation>Cámara, objetivo, fecha, lugar, leyendas y palabras clave (EXIF, IPTC, XMP) pasan al archivo guardado; el perfil de color siempre</translation>
    </message>
    <message>
        <source>Write the settings into the picture</source>
        <translation>Escribir los ajustes en la imagen</translation>
    </message>
    <message>
        <source>Projection, gear and adjustments are written into the saved file, so that they can be had back from it; the photo&apos;s name is among them and, while its metadata are kept, where it lies beside the file</source>
        <translation>La proyección, el equipo y los ajustes se escriben en el archivo guardado, de donde se pueden recuperar; incluyen el nombre de la foto y, mientras se conserven sus metadatos, dónde está respecto al archivo</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Ventana</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>&amp;Idioma</translation>
    </message>
    <message>
        <source>The language of menus, buttons and messages; names and file names stay as they are</source>
        <translation>El idioma de los menús, botones y mensajes; los nombres y los nombres de archivo se quedan como están</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Idioma de la ventana</translation>
    </message>
    <message>
        <source>Saved as default, it changes at the next start.</source>
        <translation>Guardado como predeterminado, cambia al volver a iniciar.</translation>
    </message>
    <message>
        <source>&amp;Save as default</source>
        <translation>&amp;Guardar como predeterminado</translation>
    </message>
    <message>
        <source>Use these values now and at every start of Varnel</source>
        <translation>Usar estos valores ahora y cada vez que se inicie Varnel</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>Guardar como predeterminado</translation>
    </message>
    <message>
        <source>Whether the defaults were saved</source>
        <translation>Si se guardaron los valores predeterminados</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Use these values until Varnel is closed</source>
        <translation>Usar estos valores hasta que se cierre Varnel</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Leave everything as it was</source>
        <translation>Dejarlo todo como estaba</translation>
    </message>
    <message>
        <source>Give added photos their own gear</source>
        <translation>Dar a las fotos añadidas su propio equipo</translation>
    </message>
    <message>
        <source>Photos that are added get the gear that they tell, or a typical fisheye as a guess; otherwise the default gear, and their own is only offered</source>
        <translation>Las fotos que se añaden reciben el equipo que indican, o un ojo de pez típico como suposición; si no, el predeterminado, y el suyo solo se ofrece</translation>
    </message>
    <message>
        <source>TIFF c&amp;ompression</source>
        <translation>C&amp;ompresión TIFF</translation>
    </message>
    <message>
        <source>All of them keep every value; automatic is LZW for 8 bits and Deflate for more, which LZW would make larger</source>
        <translation>Todas conservan cada valor; automática es LZW para 8 bits y Deflate para más, que LZW haría más grande</translation>
    </message>
    <message>
        <source>Compression of TIFF files</source>
        <translation>Compresión de los archivos TIFF</translation>
    </message>
    <message>
        <source>Keep the depth of photos</source>
        <translation>Conservar la profundidad de las fotos</translation>
    </message>
    <message>
        <source>Photos of 16 bits and floating point are read and saved as such, as far as the file type goes; otherwise everything has 8 bits</source>
        <translation>Las fotos de 16 bits y de coma flotante se leen y se guardan como tales, hasta donde llega el tipo de archivo; si no, todo tiene 8 bits</translation>
    </message>
    <message>
        <source>Best quality (fine sampling)</source>
        <translation>Máxima calidad (muestreo fino)</translation>
    </message>
    <message>
        <source>Sharper where the view enlarges the photo, no moire where it makes it smaller, smooth borders; takes several times as long</source>
        <translation>Más nítido donde la vista amplía la foto, sin moaré donde la reduce, bordes suaves; tarda varias veces más</translation>
    </message>
    <message>
        <source>Less memory</source>
        <translation>Menos memoria</translation>
    </message>
    <message>
        <source>With classic sampling the batch reads large JPEG photos in half the memory and draws results a band at a time; they are the same and take somewhat longer</source>
        <translation>Con el muestreo clásico, el lote lee las fotos JPEG grandes en la mitad de memoria y dibuja los resultados por franjas; son los mismos y tardan algo más</translation>
    </message>
</context>
<context>
    <name>FormStraighten</name>
    <message>
        <source>Straighten</source>
        <translation>Enderezar</translation>
    </message>
    <message>
        <source>Coloured edges count as straight. Click one that is bent to take it away; click near both ends of another one to add it. Ctrl and the wheel zoom.</source>
        <translation>Las aristas de color cuentan como rectas. Haga clic en una curvada para quitarla; haga clic cerca de los dos extremos de otra para añadirla. Ctrl y la rueda amplían.</translation>
    </message>
    <message>
        <source>The photo that is shown; all of them are measured together</source>
        <translation>La foto que se muestra; todas se miden juntas</translation>
    </message>
    <message>
        <source>Photo that is shown</source>
        <translation>Foto que se muestra</translation>
    </message>
    <message>
        <source>&amp;Add photos...</source>
        <translation>&amp;Añadir fotos...</translation>
    </message>
    <message>
        <source>Adds photos of the same size, camera and lens, four at most: they make the result surer</source>
        <translation>Añade fotos del mismo tamaño, cámara y objetivo, cuatro como máximo: hacen más seguro el resultado</translation>
    </message>
    <message>
        <source>Add photos of the same lens</source>
        <translation>Añadir fotos del mismo objetivo</translation>
    </message>
    <message>
        <source>The edges, the longest first: how far each is off straight with the measured lens</source>
        <translation>Las aristas, la más larga primero: cuánto se aparta cada una de la recta con el objetivo medido</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Aristas</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>&amp;Vertical</translation>
    </message>
    <message>
        <source>The chosen edge is upright in space</source>
        <translation>La arista elegida es vertical en el espacio</translation>
    </message>
    <message>
        <source>Le&amp;vel</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>The chosen edge is level and crosses the view; all of one photo are parallel</source>
        <translation>La arista elegida es horizontal y cruza la vista; todas las de una foto son paralelas</translation>
    </message>
    <message>
        <source>&amp;Runs away</source>
        <translation>Se ale&amp;ja</translation>
    </message>
    <message>
        <source>The chosen edge is level and runs away from the camera, at right angles to those that are level</source>
        <translation>La arista elegida es horizontal y se aleja de la cámara, en ángulo recto con las que cruzan la vista</translation>
    </message>
    <message>
        <source>&amp;No direction</source>
        <translation>Sin &amp;dirección</translation>
    </message>
    <message>
        <source>Nothing is known of the chosen edge but that it is straight</source>
        <translation>De la arista elegida solo se sabe que es recta</translation>
    </message>
    <message>
        <source>&amp;Take away</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Takes the chosen edge out of the measuring, or brings it back</source>
        <translation>Quita la arista elegida de la medición, o la devuelve</translation>
    </message>
    <message>
        <source>&amp;Focal length</source>
        <translation>Distancia &amp;focal</translation>
    </message>
    <message>
        <source>Of the lens, to some 2 percent; it fixes the scale of angles, which edges alone do not tell</source>
        <translation>Del objetivo, con un error de un 2 por ciento; fija la escala de los ángulos, que las aristas solas no indican</translation>
    </message>
    <message>
        <source>Focal length, millimetres</source>
        <translation>Distancia focal, en milímetros</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>desconocida</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Circle at &amp;90°</source>
        <translation>Círculo a &amp;90°</translation>
    </message>
    <message>
        <source>The rim of the image circle is known to be at 90 degrees from the axis</source>
        <translation>Se sabe que el borde del círculo de imagen está a 90 grados del eje</translation>
    </message>
    <message>
        <source>Estimate &amp;colour fringes</source>
        <translation>Estimar franjas de &amp;color</translation>
    </message>
    <message>
        <source>Measures from the same edges how far red and blue are off green, and takes it out</source>
        <translation>Mide en las mismas aristas cuánto se apartan el rojo y el azul del verde, y lo corrige</translation>
    </message>
    <message>
        <source>What the edges tell</source>
        <translation>Lo que indican las aristas</translation>
    </message>
    <message>
        <source>Na&amp;me of the lens</source>
        <translation>&amp;Nombre del objetivo</translation>
    </message>
    <message>
        <source>What the measured lens is called</source>
        <translation>Cómo se llama el objetivo medido</translation>
    </message>
    <message>
        <source>Name of the lens</source>
        <translation>Nombre del objetivo</translation>
    </message>
    <message>
        <source>&amp;Save as my lens ...</source>
        <translation>&amp;Guardar como mi objetivo...</translation>
    </message>
    <message>
        <source>Keeps the measured lens under this name, for any camera, under the brand &quot;My lenses&quot;</source>
        <translation>Conserva el objetivo medido con este nombre, para cualquier cámara, bajo la marca «My lenses»</translation>
    </message>
    <message>
        <source>Use for all photos of this camera and &amp;lens</source>
        <translation>Para &amp;todas las fotos de esta cámara y este objetivo</translation>
    </message>
    <message>
        <source>Gives the measured lens to all photos of the list that were taken with this camera and lens</source>
        <translation>Da el objetivo medido a todas las fotos de la lista hechas con esta cámara y este objetivo</translation>
    </message>
    <message>
        <source>Use for this ph&amp;oto</source>
        <translation>Para esta f&amp;oto</translation>
    </message>
    <message>
        <source>Gives the measured lens to the current photo</source>
        <translation>Da el objetivo medido a la foto actual</translation>
    </message>
    <message>
        <source>State of the measuring</source>
        <translation>Estado de la medición</translation>
    </message>
    <message>
        <source>The edges are measured</source>
        <translation>Se están midiendo las aristas</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Ends the measuring; nothing is changed</source>
        <translation>Termina la medición; no se cambia nada</translation>
    </message>
    <message>
        <source>%1 of %2 edges are used. Edges held out of the measuring are off straight by %3 pixels with the present numbers, by %4 with the measured lens.</source>
        <translation>Se usan %1 de %2 aristas. Las aristas dejadas fuera de la medición se apartan de la recta %3 píxeles con los números actuales y %4 con el objetivo medido.</translation>
    </message>
    <message>
        <source>Expected error of angles: %1°.</source>
        <translation>Error esperado de los ángulos: %1°.</translation>
    </message>
    <message>
        <source>Angles not fixed: tag edges, or give the focal length.</source>
        <translation>Los ángulos no están fijados: dé una dirección a las aristas, o indique la distancia focal.</translation>
    </message>
    <message>
        <source>Angles not fixed: tag edges that are upright, level or run away.</source>
        <translation>Los ángulos no están fijados: marque aristas verticales, horizontales o que se alejan.</translation>
    </message>
    <message>
        <source>Colour at the outermost edges: red off by %1 ± %2 pixels, blue by %3 ± %4.</source>
        <translation>Color en las aristas extremas: el rojo se aparta %1 ± %2 píxeles, el azul %3 ± %4.</translation>
    </message>
    <message>
        <source>This is too small by up to half a pixel: the JPEG file has colours at half its resolution.</source>
        <translation>Es hasta medio píxel menos de lo debido: el archivo JPEG tiene los colores a media resolución.</translation>
    </message>
    <message>
        <source>Too few straight edges: %1 are needed at least, more are better. Click near both ends of edges to add them.</source>
        <translation>Muy pocas aristas rectas: hacen falta al menos %1, y cuantas más, mejor. Haga clic cerca de los dos extremos de las aristas para añadirlas.</translation>
    </message>
    <message>
        <source>The present numbers do as well or better: they stay.</source>
        <translation>Los números actuales son igual de buenos o mejores: se quedan.</translation>
    </message>
    <message>
        <source>Expected bend: %1 pixels, in a view 110° across with 24 megapixels.</source>
        <translation>Curvatura esperada: %1 píxeles, en una vista de 110° de ancho con 24 megapíxeles.</translation>
    </message>
    <message>
        <source>The edges do not tell of colour fringes.</source>
        <translation>Las aristas no dicen nada de franjas de color.</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>vertical</translation>
    </message>
    <message>
        <source>level</source>
        <translation>horizontal</translation>
    </message>
    <message>
        <source>runs away</source>
        <translation>se aleja</translation>
    </message>
</context>
<context>
    <name>FormStretch</name>
    <message>
        <source>Stretch</source>
        <translation>Estirar</translation>
    </message>
    <message>
        <source>&amp;Open image ...</source>
        <translation>&amp;Abrir imagen...</translation>
    </message>
    <message>
        <source>Chooses the photo to stretch; it can also be dropped on this window</source>
        <translation>Elige la foto que se estira; también se puede soltar sobre esta ventana</translation>
    </message>
    <message>
        <source>Open an image</source>
        <translation>Abrir una imagen</translation>
    </message>
    <message>
        <source>File name of the photo</source>
        <translation>Nombre de archivo de la foto</translation>
    </message>
    <message>
        <source>S&amp;trength</source>
        <translation>&amp;Intensidad</translation>
    </message>
    <message>
        <source>How much the rows are widened or narrowed away from the middle row. Double-click the name to reset it</source>
        <translation>Cuánto se ensanchan o estrechan las filas lejos de la fila central. Doble clic en el nombre para restablecer</translation>
    </message>
    <message>
        <source>Strength of the stretch, percent</source>
        <translation>Intensidad del estiramiento, por ciento</translation>
    </message>
    <message>
        <source>&amp;Middle row</source>
        <translation>&amp;Fila central</translation>
    </message>
    <message>
        <source>The row that keeps its width: up is toward the top of the picture. Double-click the name to reset it</source>
        <translation>La fila que conserva su ancho: hacia arriba es hacia el borde superior de la imagen. Doble clic en el nombre para restablecer</translation>
    </message>
    <message>
        <source>Row that keeps its width, percent up from the middle</source>
        <translation>Fila que conserva su ancho, por ciento por encima del centro</translation>
    </message>
    <message>
        <source>State of the photo</source>
        <translation>Estado de la foto</translation>
    </message>
    <message>
        <source>Progress of the save</source>
        <translation>Progreso del guardado</translation>
    </message>
    <message>
        <source>&amp;Save image as ...</source>
        <translation>&amp;Guardar imagen como...</translation>
    </message>
    <message>
        <source>Stretches the photo at full size and writes it to a new file</source>
        <translation>Estira la foto a tamaño completo y la escribe en un archivo nuevo</translation>
    </message>
    <message>
        <source>Save the stretched image</source>
        <translation>Guardar la imagen estirada</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Back to the photos</source>
        <translation>Volver a las fotos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Ends the saving without a file</source>
        <translation>Termina el guardado sin archivo</translation>
    </message>
    <message>
        <source>Cancel the saving</source>
        <translation>Cancelar el guardado</translation>
    </message>
</context>
<context>
    <name>GearOffer</name>
    <message>
        <source> (cropped?)</source>
        <translation> (¿recortada?)</translation>
    </message>
    <message>
        <source>Taken with %1</source>
        <translation>Hecha con %1</translation>
    </message>
    <message>
        <source>its shape, %1 : 1, is not the sensor&apos;s, %2 : 1; if it was cropped, the gear&apos;s numbers do not fit</source>
        <translation>su proporción, %1 : 1, no es la del sensor, %2 : 1; si se recortó, los valores del equipo no sirven</translation>
    </message>
    <message>
        <source>Not this photo&apos;s gear</source>
        <translation>No es el equipo de esta foto</translation>
    </message>
    <message>
        <source> (camera not in the list)</source>
        <translation> (cámara fuera de la lista)</translation>
    </message>
    <message>
        <source>The lens &quot;%1&quot; is not there</source>
        <translation>Falta el objetivo «%1»</translation>
    </message>
</context>
<context>
    <name>GearStore</name>
    <message>
        <source>Please define at least one camera + lens combination ...</source>
        <translation>Defina al menos una combinación de cámara y objetivo...</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; needs the lens &quot;%2&quot; of &quot;My lenses&quot;, which is not there.</source>
        <translation>El equipo «%1» necesita el objetivo «%2» de «My lenses», que falta.</translation>
    </message>
</context>
<context>
    <name>LensChoice</name>
    <message>
        <source>Measured on %1</source>
        <translation>Medido el %1</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Medido</translation>
    </message>
    <message>
        <source> from %1</source>
        <translation> con %1</translation>
    </message>
    <message>
        <source>; its edges are straight to %1 px</source>
        <translation>; sus aristas son rectas con un error de %1 px</translation>
    </message>
</context>
<context>
    <name>LevelTools</name>
    <message>
        <source>it takes %1, %2° more than the slider has</source>
        <translation>hacen falta %1, %2° más de lo que tiene el control</translation>
    </message>
    <message>
        <source>Not levelled: %1.</source>
        <translation>Sin nivelar: %1.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
    <message>
        <source>Not levelled: the gear&apos;s numbers make no lens.</source>
        <translation>Sin nivelar: los valores del equipo no forman un objetivo.</translation>
    </message>
    <message>
        <source>Not levelled: the line is too short.</source>
        <translation>Sin nivelar: la línea es demasiado corta.</translation>
    </message>
    <message>
        <source>Not levelled: through this lens no horizon is bent like this line.</source>
        <translation>Sin nivelar: con este objetivo ningún horizonte se curva como esta línea.</translation>
    </message>
    <message>
        <source>The horizon is level already.</source>
        <translation>El horizonte ya está nivelado.</translation>
    </message>
    <message>
        <source>Levelled: %1.</source>
        <translation>Nivelado: %1.</translation>
    </message>
</context>
<context>
    <name>ListBadges</name>
    <message>
        <source>adjusted</source>
        <translation>ajustada</translation>
    </message>
    <message>
        <source>in the batch queue</source>
        <translation>en la cola</translation>
    </message>
    <message>
        <source>the gear is a guess</source>
        <translation>el equipo es una suposición</translation>
    </message>
    <message>
        <source>film</source>
        <translation>película</translation>
    </message>
</context>
<context>
    <name>MagnificationOverlay</name>
    <message>
        <source>shrunk</source>
        <translation>reducido</translation>
    </message>
    <message>
        <source>about 1 : 1</source>
        <translation>aprox. 1 : 1</translation>
    </message>
    <message>
        <source>stretched</source>
        <translation>estirado</translation>
    </message>
</context>
<context>
    <name>MenuStart</name>
    <message>
        <source>New pictures beside the photos: %1</source>
        <translation>Imágenes nuevas junto a las fotos: %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 más</translation>
    </message>
    <message>
        <source>Not everything went well. New pictures beside the photos: %1</source>
        <translation>No todo ha salido bien. Imágenes nuevas junto a las fotos: %1</translation>
    </message>
    <message>
        <source>No picture was written.</source>
        <translation>No se ha escrito ninguna imagen.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>Straighten with Varnel</source>
        <translation>Enderezar con Varnel</translation>
    </message>
    <message>
        <source>Convert fisheye photos into new files beside them</source>
        <translation>Convertir fotos de ojo de pez en archivos nuevos junto a ellas</translation>
    </message>
</context>
<context>
    <name>Morph</name>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>«%1» no es un número entero.</translation>
    </message>
    <message>
        <source>%1 is out of range: a sequence has at most %2 frames.</source>
        <translation>%1 está fuera de los límites: una secuencia tiene como máximo %2 imágenes.</translation>
    </message>
</context>
<context>
    <name>NamePattern</name>
    <message>
        <source>a name needs at least one token or letter</source>
        <translation>un nombre necesita al menos un comodín o una letra</translation>
    </message>
    <message>
        <source>a name cannot hold / or \</source>
        <translation>un nombre no puede contener / ni \</translation>
    </message>
    <message>
        <source>there is no token %1; there are %2</source>
        <translation>no hay comodín %1; hay %2</translation>
    </message>
</context>
<context>
    <name>OutputPanel</name>
    <message>
        <source>File &amp;type</source>
        <translation>&amp;Tipo de archivo</translation>
    </message>
    <message>
        <source>TIFF and PNG keep every detail, JPEG makes small files</source>
        <translation>TIFF y PNG conservan cada detalle, JPEG da archivos pequeños</translation>
    </message>
    <message>
        <source>File type of the images</source>
        <translation>Tipo de archivo de las imágenes</translation>
    </message>
    <message>
        <source>JPEG &amp;quality</source>
        <translation>&amp;Calidad JPEG</translation>
    </message>
    <message>
        <source>100 keeps the most detail, lower values make smaller JPEG files</source>
        <translation>100 conserva el máximo detalle, los valores más bajos dan archivos JPEG más pequeños</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 100</source>
        <translation>Calidad JPEG, de 1 a 100</translation>
    </message>
    <message>
        <source>Full colour resolution (4:4:4)</source>
        <translation>Resolución de color completa (4:4:4)</translation>
    </message>
    <message>
        <source>Fine coloured detail stays sharp in JPEG files, which become larger</source>
        <translation>El detalle fino en color queda nítido en los archivos JPEG, que se hacen más grandes</translation>
    </message>
    <message>
        <source>Keep the photo&apos;s metadata</source>
        <translation>Conservar los metadatos de la foto</translation>
    </message>
    <message>
        <source>Camera, lens, date, place, captions and keywords (EXIF, IPTC, XMP) go into the saved file; the colour profile always does</source>
        <translation>Cámara, objetivo, fecha, lugar, leyendas y palabras clave (EXIF, IPTC, XMP) pasan al archivo guardado; el perfil de color siempre</translation>
    </message>
    <message>
        <source>Na&amp;mes</source>
        <translation>No&amp;mbres</translation>
    </message>
    <message>
        <source>Pattern of the names</source>
        <translation>Patrón de los nombres</translation>
    </message>
    <message>
        <source>Name of the first image</source>
        <translation>Nombre de la primera imagen</translation>
    </message>
    <message>
        <source>What photos usually need; fine detail takes up to four times as much</source>
        <translation>Lo que suelen necesitar las fotos; el detalle fino ocupa hasta cuatro veces más</translation>
    </message>
    <message>
        <source>Size to expect</source>
        <translation>Tamaño esperado</translation>
    </message>
    <message>
        <source>Save next to the photo</source>
        <translation>Junto a la foto</translation>
    </message>
    <message>
        <source>Each file goes into the folder of its photo</source>
        <translation>Cada archivo va a la carpeta de su foto</translation>
    </message>
    <message>
        <source>Best quality (fine sampling)</source>
        <translation>Máxima calidad (muestreo fino)</translation>
    </message>
    <message>
        <source>Sharper where the view enlarges the photo, no moire where it makes it smaller, smooth borders; takes several times as long</source>
        <translation>Más nítido donde la vista amplía la foto, sin moaré donde la reduce, bordes suaves; tarda varias veces más</translation>
    </message>
</context>
<context>
    <name>OverlayGeometry</name>
    <message>
        <source>keeps %1 % of the circle</source>
        <translation>conserva el %1 % del círculo</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 píxeles</translation>
    </message>
    <message>
        <source>Half-way resolution %1</source>
        <translation>Resolución a medio camino %1</translation>
    </message>
    <message>
        <source>Centre resolution %1</source>
        <translation>Resolución en el centro %1</translation>
    </message>
    <message>
        <source>%1   |   Worst corner stretch %2   |   Area kept %3 %   |   Largest rectangle without black %4</source>
        <translation>%1   |   Esquinas estiradas %2   |   Área %3 %   |   Mayor rectángulo sin negro %4</translation>
    </message>
</context>
<context>
    <name>PhotoGear</name>
    <message>
        <source>the file does not tell what took it</source>
        <translation>el archivo no indica con qué se tomó</translation>
    </message>
    <message>
        <source>the camera %1 is not in the catalogue</source>
        <translation>la cámara %1 no está en el catálogo</translation>
    </message>
    <message>
        <source>the lens %1 is not in the catalogue</source>
        <translation>el objetivo %1 no está en el catálogo</translation>
    </message>
    <message>
        <source>the file does not tell well enough which lens took it</source>
        <translation>el archivo no indica lo bastante bien con qué objetivo se tomó</translation>
    </message>
    <message>
        <source>the file does not tell which gear of its camera took it</source>
        <translation>el archivo no indica con qué equipo de su cámara se tomó</translation>
    </message>
    <message>
        <source>no gear has this camera and this lens</source>
        <translation>ningún equipo tiene esta cámara y este objetivo</translation>
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
        <translation>El equipo de esta foto es una suposición.</translation>
    </message>
    <message>
        <source>The gear of this photo is a guess: %1.</source>
        <translation>El equipo de esta foto es una suposición: %1.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the diagonal.</source>
        <translation>Se supone un ojo de pez típico, 180 grados en la diagonal.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the image circle, which is not found exactly.</source>
        <translation>Se supone un ojo de pez típico, 180 grados en el círculo de imagen, que no se ha encontrado con exactitud.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the image circle.</source>
        <translation>Se supone un ojo de pez típico, 180 grados en el círculo de imagen.</translation>
    </message>
    <message>
        <source>The image circle is not where the gear says; the photo&apos;s own is used.</source>
        <translation>El círculo de imagen no está donde dice el equipo; se usa el de la foto.</translation>
    </message>
    <message>
        <source>Cropped, and no image circle was found: the largest piece of the sensor of this shape is assumed, %1.</source>
        <translation>Recortada, y no se encontró ningún círculo de imagen: se supone el mayor trozo del sensor con esta proporción, %1.</translation>
    </message>
    <message>
        <source>Cropped: it shows about %1 of the sensor by its image circle, which is not found exactly.</source>
        <translation>Recortada: por su círculo de imagen, que no se ha encontrado con exactitud, muestra unos %1 del sensor.</translation>
    </message>
    <message>
        <source>Cropped: it shows %1 of the sensor by its image circle.</source>
        <translation>Recortada: por su círculo de imagen, muestra %1 del sensor.</translation>
    </message>
</context>
<context>
    <name>PictureSettings</name>
    <message>
        <source>the setting %1 cannot be &quot;%2&quot;</source>
        <translation>el ajuste %1 no puede ser «%2»</translation>
    </message>
    <message>
        <source>the setting %1 is out of range: %2</source>
        <translation>el ajuste %1 está fuera de los límites: %2</translation>
    </message>
    <message>
        <source>the setting &quot;%1&quot; cannot be kept</source>
        <translation>el ajuste «%1» no se puede conservar</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Real estate</source>
        <translation>Inmobiliaria</translation>
    </message>
    <message>
        <source>Group photo</source>
        <translation>Foto de grupo</translation>
    </message>
    <message>
        <source>Whole circle</source>
        <translation>Círculo entero</translation>
    </message>
    <message>
        <source>Horizon strip</source>
        <translation>Franja de horizonte</translation>
    </message>
    <message>
        <source>A preset needs a name of 1 to %1 letters.</source>
        <translation>Un preajuste necesita un nombre de 1 a %1 letras.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already.</source>
        <translation>Ya hay un preajuste «%1».</translation>
    </message>
</context>
<context>
    <name>ProjectFile</name>
    <message>
        <source>it is damaged: line %1 cannot be read</source>
        <translation>está dañado: la línea %1 no se puede leer</translation>
    </message>
    <message>
        <source>it is not a Varnel project</source>
        <translation>no es un proyecto de Varnel</translation>
    </message>
    <message>
        <source>a newer version of Varnel wrote it</source>
        <translation>lo escribió una versión más nueva de Varnel</translation>
    </message>
    <message>
        <source>it is damaged: it should hold %1 photos and holds %2</source>
        <translation>está dañado: debería contener %1 fotos y contiene %2</translation>
    </message>
    <message>
        <source>it is damaged: its end is missing</source>
        <translation>está dañado: falta el final</translation>
    </message>
    <message>
        <source>the setting %1 cannot be used</source>
        <translation>el ajuste %1 no se puede usar</translation>
    </message>
    <message>
        <source>it is not a text file</source>
        <translation>no es un archivo de texto</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>es demasiado grande</translation>
    </message>
</context>
<context>
    <name>Projections</name>
    <message>
        <source>Stretches every row of the circle sideways to the full width; no row moves up or down</source>
        <translation>Estira cada fila del círculo de lado hasta el ancho completo; ninguna fila sube ni baja</translation>
    </message>
    <message>
        <source>Straight lines of the scene come out straight</source>
        <translation>Las líneas rectas de la escena quedan rectas</translation>
    </message>
    <message>
        <source>A fisheye in which equal angles take equal room</source>
        <translation>Un ojo de pez en el que ángulos iguales ocupan lo mismo</translation>
    </message>
    <message>
        <source>Unrolls a circle shot straight up or down into a panorama</source>
        <translation>Desenrolla en panorama un círculo tomado recto hacia arriba o hacia abajo</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Estereográfica</translation>
    </message>
    <message>
        <source>Small shapes stay true however wide the view; straight lines bow</source>
        <translation>Las formas pequeñas se conservan por amplia que sea la vista; las rectas se curvan</translation>
    </message>
    <message>
        <source>Panini</source>
        <translation>Panini</translation>
    </message>
    <message>
        <source>Wide rooms and streets: uprights and lines toward the middle stay straight</source>
        <translation>Salas y calles amplias: las verticales y las líneas hacia el centro siguen rectas</translation>
    </message>
    <message>
        <source>Cylindrical</source>
        <translation>Cilíndrica</translation>
    </message>
    <message>
        <source>A panorama around an upright cylinder: uprights stay straight</source>
        <translation>Un panorama sobre un cilindro vertical: las verticales siguen rectas</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>Mercator</translation>
    </message>
    <message>
        <source>Equirectangular</source>
        <translation>Equirrectangular</translation>
    </message>
    <message>
        <source>Even angles across and up: what 360 degree viewers take</source>
        <translation>Ángulos uniformes a lo ancho y a lo alto: lo que toman los visores de 360 grados</translation>
    </message>
    <message>
        <source>Fisheye, equidistant</source>
        <translation>Ojo de pez equidistante</translation>
    </message>
    <message>
        <source>A fisheye in which the distance from the middle is the angle, whatever the sensor</source>
        <translation>Un ojo de pez en el que la distancia al centro es el ángulo, sea cual sea el sensor</translation>
    </message>
    <message>
        <source>Fisheye, equisolid</source>
        <translation>Ojo de pez equisólido</translation>
    </message>
    <message>
        <source>A fisheye in which equal parts of the view take equal areas</source>
        <translation>Un ojo de pez en el que partes iguales de la vista ocupan áreas iguales</translation>
    </message>
    <message>
        <source>Orthographic</source>
        <translation>Ortográfica</translation>
    </message>
    <message>
        <source>The half in front as on a globe seen from far away</source>
        <translation>La mitad de delante, como en un globo visto de lejos</translation>
    </message>
    <message>
        <source>Little planet</source>
        <translation>Pequeño planeta</translation>
    </message>
    <message>
        <source>The ground as a small planet, the sky around it</source>
        <translation>El suelo como un pequeño planeta, el cielo alrededor</translation>
    </message>
    <message>
        <source>Unrolled</source>
        <translation>Desenrollada</translation>
    </message>
    <message>
        <source>Directions around the axis become columns, angles from it rows</source>
        <translation>Las direcciones alrededor del eje pasan a ser columnas; los ángulos desde él, filas</translation>
    </message>
    <message>
        <source>A panorama that keeps small shapes true, less tall than around a cylinder</source>
        <translation>Un panorama que conserva las formas pequeñas, menos alto que sobre un cilindro</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Save image as ...</source>
        <translation>Guardar imagen como...</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it?</source>
        <translation>%1 ya existe. ¿Reemplazarlo?</translation>
    </message>
    <message>
        <source>Open image</source>
        <translation>Abrir imagen</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Fotos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Varnel projects (%1)</source>
        <translation>Proyectos de Varnel (%1)</translation>
    </message>
    <message>
        <source>Save the present image list as a project first?</source>
        <translation>¿Guardar antes la lista de imágenes actual como proyecto?</translation>
    </message>
    <message>
        <source>The project %1 was changed. Save it first?</source>
        <translation>El proyecto %1 ha cambiado. ¿Guardarlo antes?</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Abrir proyecto</translation>
    </message>
    <message>
        <source>Save project as</source>
        <translation>Guardar proyecto como</translation>
    </message>
    <message>
        <source>1 photo uses this gear. Give it the new numbers?</source>
        <translation>1 foto usa este equipo. ¿Darle los nuevos valores?</translation>
    </message>
    <message>
        <source>%1 photos use this gear. Give them the new numbers?</source>
        <translation>%1 fotos usan este equipo. ¿Darles los nuevos valores?</translation>
    </message>
    <message>
        <source>Photos with unsaved adjustments: %1</source>
        <translation>Fotos con ajustes sin guardar: %1</translation>
    </message>
    <message>
        <source>Images waiting in the batch queue, which no project holds: %1</source>
        <translation>Imágenes en la cola, que ningún proyecto contiene: %1</translation>
    </message>
    <message>
        <source>Varnel was not closed properly. Its image list of %1 is still there. Open it again?</source>
        <translation>Varnel no se cerró correctamente. Su lista de imágenes del %1 sigue ahí. ¿Abrirla de nuevo?</translation>
    </message>
    <message>
        <source>Photos in the list: %1. &quot;No&quot; removes it for good.</source>
        <translation>Fotos en la lista: %1. «No» la borra para siempre.</translation>
    </message>
    <message>
        <source>Import lenses</source>
        <translation>Importar objetivos</translation>
    </message>
    <message>
        <source>Lens files (%1)</source>
        <translation>Archivos de objetivos (%1)</translation>
    </message>
    <message>
        <source>Varnel&apos;s lens file (%1)</source>
        <translation>Archivo de objetivo de Varnel (%1)</translation>
    </message>
    <message>
        <source>Calibration for OpenCV (%1)</source>
        <translation>Calibración para OpenCV (%1)</translation>
    </message>
    <message>
        <source>Entry for lensfun (%1)</source>
        <translation>Entrada para lensfun (%1)</translation>
    </message>
    <message>
        <source>Export the lens</source>
        <translation>Exportar el objetivo</translation>
    </message>
    <message>
        <source>Varnel&apos;s presets (%1)</source>
        <translation>Preajustes de Varnel (%1)</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Importar preajustes</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>Exportar preajustes</translation>
    </message>
    <message>
        <source>Save film as</source>
        <translation>Guardar película como</translation>
    </message>
    <message>
        <source>Films (%1)</source>
        <translation>Películas (%1)</translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading photos ...</source>
        <translation>Leyendo fotos...</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Leyendo %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>Overflow: %1 does not fit 32 bits</source>
        <translation>Desbordamiento: %1 no cabe en 32 bits</translation>
    </message>
    <message>
        <source>Overflow: %1 does not fit 16 bits</source>
        <translation>Desbordamiento: %1 no cabe en 16 bits</translation>
    </message>
    <message>
        <source>Overflow: %1 does not fit a single-precision number</source>
        <translation>Desbordamiento: %1 no cabe en un número de precisión simple</translation>
    </message>
    <message>
        <source>Division by zero: %1 is 0</source>
        <translation>División por cero: %1 es 0</translation>
    </message>
    <message>
        <source>Division by zero: %1 is no number</source>
        <translation>División por cero: %1 no es un número</translation>
    </message>
    <message>
        <source>Division by zero: %1</source>
        <translation>División por cero: %1</translation>
    </message>
    <message>
        <source>a sequence of one frame has no steps</source>
        <translation>una secuencia de una sola imagen no tiene pasos</translation>
    </message>
    <message>
        <source>half the picture&apos;s width</source>
        <translation>la mitad del ancho de la imagen</translation>
    </message>
    <message>
        <source>the tangent of half the angle of view</source>
        <translation>la tangente de la mitad del ángulo de visión</translation>
    </message>
    <message>
        <source>the sine of LensMapFactor x OutputAOV x effect / 2</source>
        <translation>el seno de LensMapFactor x OutputAOV x efecto / 2</translation>
    </message>
    <message>
        <source>the reference radius (from ImageCircleRadius and Ratio)</source>
        <translation>el radio de referencia (de ImageCircleRadius y Ratio)</translation>
    </message>
    <message>
        <source>the row divisor (the picture is more than three times as wide as high)</source>
        <translation>el divisor de filas (la imagen es más de tres veces más ancha que alta)</translation>
    </message>
    <message>
        <source>the row divisor</source>
        <translation>el divisor de filas</translation>
    </message>
    <message>
        <source>the picture&apos;s side</source>
        <translation>el lado de la imagen</translation>
    </message>
    <message>
        <source>the progress value</source>
        <translation>el valor de progreso</translation>
    </message>
    <message>
        <source>the scale</source>
        <translation>la escala</translation>
    </message>
    <message>
        <source>the effect</source>
        <translation>el efecto</translation>
    </message>
    <message>
        <source>a rotation angle</source>
        <translation>un ángulo de giro</translation>
    </message>
    <message>
        <source>a translation</source>
        <translation>un desplazamiento</translation>
    </message>
    <message>
        <source>a side</source>
        <translation>un lado</translation>
    </message>
    <message>
        <source>a preview side</source>
        <translation>un lado de la vista previa</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>una imagen</translation>
    </message>
    <message>
        <source>an output column</source>
        <translation>una columna de salida</translation>
    </message>
    <message>
        <source>an output row</source>
        <translation>una fila de salida</translation>
    </message>
    <message>
        <source>an output position</source>
        <translation>una posición de salida</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>no hay memoria suficiente</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>no hay imagen</translation>
    </message>
    <message>
        <source>the picture could not be encoded</source>
        <translation>la imagen no se pudo codificar</translation>
    </message>
    <message>
        <source>the file would be larger than %1 bytes</source>
        <translation>el archivo tendría más de %1 bytes</translation>
    </message>
    <message>
        <source>written without its EXIF: too long for a JPEG file</source>
        <translation>escrita sin su EXIF: demasiado largo para un archivo JPEG</translation>
    </message>
    <message>
        <source>written without part of its EXIF: too long for a JPEG file</source>
        <translation>escrita sin parte de su EXIF: demasiado largo para un archivo JPEG</translation>
    </message>
    <message>
        <source>written without its XMP: too long for a JPEG file</source>
        <translation>escrita sin su XMP: demasiado largo para un archivo JPEG</translation>
    </message>
    <message>
        <source>written without its IPTC: too long for a JPEG file</source>
        <translation>escrita sin su IPTC: demasiado largo para un archivo JPEG</translation>
    </message>
    <message>
        <source>written without its settings: too long for a JPEG file</source>
        <translation>escrita sin sus ajustes: demasiado largos para un archivo JPEG</translation>
    </message>
    <message>
        <source>written without its settings: the photo&apos;s XMP has no place for them</source>
        <translation>escrita sin sus ajustes: el XMP de la foto no tiene sitio para ellos</translation>
    </message>
    <message>
        <source>written without its metadata: it cannot be read</source>
        <translation>escrita sin sus metadatos: no se pueden leer</translation>
    </message>
    <message>
        <source>written without its %1: it cannot be read</source>
        <translation>escrita sin su %1: no se puede leer</translation>
    </message>
    <message>
        <source>written without its colour profile: %1</source>
        <translation>escrita sin su perfil de color: %1</translation>
    </message>
    <message>
        <source>written without its metadata: %1</source>
        <translation>escrita sin sus metadatos: %1</translation>
    </message>
    <message>
        <source>%1 files hold no metadata</source>
        <translation>los archivos %1 no contienen metadatos</translation>
    </message>
    <message>
        <source>%1 files hold no settings</source>
        <translation>los archivos %1 no contienen ajustes</translation>
    </message>
    <message>
        <source>%1 files hold no colour profile</source>
        <translation>los archivos %1 no contienen perfil de color</translation>
    </message>
    <message>
        <source>%1 files hold no metadata or settings</source>
        <translation>los archivos %1 no contienen metadatos ni ajustes</translation>
    </message>
    <message>
        <source>%1 files hold no metadata or colour profile</source>
        <translation>los archivos %1 no contienen metadatos ni perfil de color</translation>
    </message>
    <message>
        <source>%1 files hold no settings or colour profile</source>
        <translation>los archivos %1 no contienen ajustes ni perfil de color</translation>
    </message>
    <message>
        <source>%1 files hold no metadata, settings or colour profile</source>
        <translation>los archivos %1 no contienen metadatos, ajustes ni perfil de color</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ese archivo no existe</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>el enlace no lleva a ninguna parte</translation>
    </message>
    <message>
        <source>this is a folder, not a picture</source>
        <translation>esto es una carpeta, no una imagen</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>esto no es un archivo normal</translation>
    </message>
    <message>
        <source>no permission to read it</source>
        <translation>no hay permiso para leerlo</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>el archivo está vacío</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>no se puede abrir</translation>
    </message>
    <message>
        <source>this is not a picture of a known type</source>
        <translation>no es una imagen de un tipo conocido</translation>
    </message>
    <message>
        <source>the picture has no pixels</source>
        <translation>la imagen no tiene píxeles</translation>
    </message>
    <message>
        <source>the picture cannot be decoded</source>
        <translation>la imagen no se puede decodificar</translation>
    </message>
    <message>
        <source>its pixels cannot be converted to 24-bit colour</source>
        <translation>sus píxeles no se pueden convertir a color de 24 bits</translation>
    </message>
    <message>
        <source>too large: %1 x %2 pixels, a side may have %3</source>
        <translation>demasiado grande: %1 x %2 píxeles, un lado puede tener %3</translation>
    </message>
    <message>
        <source>too large: %1 x %2 pixels need more than three quarters of this machine&apos;s memory</source>
        <translation>demasiado grande: %1 x %2 píxeles necesitan más de tres cuartos de la memoria de este equipo</translation>
    </message>
    <message>
        <source>too large for a quick look</source>
        <translation>demasiado grande para un vistazo rápido</translation>
    </message>
    <message>
        <source>took too long (more than %1 seconds)</source>
        <translation>tardó demasiado (más de %1 segundos)</translation>
    </message>
    <message>
        <source>there is no memory for it to be had (%1)</source>
        <translation>no hay memoria disponible para ella (%1)</translation>
    </message>
    <message>
        <source>the decoder could not be started (%1)</source>
        <translation>el decodificador no se pudo iniciar (%1)</translation>
    </message>
    <message>
        <source>it ends at once</source>
        <translation>termina enseguida</translation>
    </message>
    <message>
        <source>the system ended the decoder, perhaps for want of memory (signal %1)</source>
        <translation>el sistema terminó el decodificador, quizá por falta de memoria (señal %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder died of it (signal %1)</source>
        <translation>dañada: el decodificador se cayó con ella (señal %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder gave up on it</source>
        <translation>dañada: el decodificador se dio por vencido</translation>
    </message>
    <message>
        <source>damaged: the decoder&apos;s answer makes no sense</source>
        <translation>dañada: la respuesta del decodificador no tiene sentido</translation>
    </message>
    <message>
        <source>damaged: the raw photo cannot be read</source>
        <translation>dañada: la foto en bruto no se puede leer</translation>
    </message>
    <message>
        <source>damaged: the file is cut short</source>
        <translation>dañada: el archivo está cortado</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>dañada: %1</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>No es un archivo normal</translation>
    </message>
    <message>
        <source>%1 (while creating a temporary file)</source>
        <translation>%1 (al crear un archivo temporal)</translation>
    </message>
    <message>
        <source>%1 (while setting its permissions)</source>
        <translation>%1 (al fijar sus permisos)</translation>
    </message>
    <message>
        <source>%1 (while syncing the folder)</source>
        <translation>%1 (al sincronizar la carpeta)</translation>
    </message>
    <message>
        <source>%1 (while syncing)</source>
        <translation>%1 (al sincronizar)</translation>
    </message>
    <message>
        <source>%1 (while writing)</source>
        <translation>%1 (al escribir)</translation>
    </message>
    <message>
        <source>%1 (while closing)</source>
        <translation>%1 (al cerrar)</translation>
    </message>
    <message>
        <source>%1 (while renaming)</source>
        <translation>%1 (al renombrar)</translation>
    </message>
    <message>
        <source>%1: the settings cannot be written (%2); changes last only until the program ends</source>
        <translation>%1: la configuración no se puede escribir (%2); los cambios solo duran hasta que termine el programa</translation>
    </message>
    <message>
        <source>%1: the settings cannot be read (%2); %3</source>
        <translation>%1: la configuración no se puede leer (%2); %3</translation>
    </message>
    <message>
        <source>%1: the settings were damaged (%2); %3, the damaged file could not be set aside</source>
        <translation>%1: la configuración estaba dañada (%2); %3, el archivo dañado no se pudo apartar</translation>
    </message>
    <message>
        <source>%1: the settings were damaged (%2); %3, the damaged file is kept as %4</source>
        <translation>%1: la configuración estaba dañada (%2); %3, el archivo dañado se conserva como %4</translation>
    </message>
    <message>
        <source>their last good copy is used</source>
        <translation>se usa su última copia buena</translation>
    </message>
    <message>
        <source>without a copy they begin afresh</source>
        <translation>sin copia, empieza de nuevo</translation>
    </message>
    <message>
        <source>without a copy what could be read is used</source>
        <translation>sin copia, se usa lo que se pudo leer</translation>
    </message>
    <message>
        <source>all its names are taken</source>
        <translation>todos sus nombres están ocupados</translation>
    </message>
    <message>
        <source>the damaged file could not be set aside: %1</source>
        <translation>el archivo dañado no se pudo apartar: %1</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>la carpeta no se puede crear</translation>
    </message>
    <message>
        <source>another program keeps them locked</source>
        <translation>otro programa la tiene bloqueada</translation>
    </message>
    <message>
        <source>the gears&apos; section has lost its title</source>
        <translation>la sección de los equipos ha perdido su título</translation>
    </message>
    <message>
        <source>the number of gears is missing</source>
        <translation>falta el número de equipos</translation>
    </message>
    <message>
        <source>gear %1 of %2 is missing</source>
        <translation>falta el equipo %1 de %2</translation>
    </message>
    <message>
        <source>the default gear is missing</source>
        <translation>falta el equipo predeterminado</translation>
    </message>
    <message>
        <source>not UTF-8 text</source>
        <translation>no es texto UTF-8</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>cortado</translation>
    </message>
    <message>
        <source>line %1 is no setting</source>
        <translation>la línea %1 no es un valor de configuración</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vacío</translation>
    </message>
    <message>
        <source>the angle in radians</source>
        <translation>el ángulo en radianes</translation>
    </message>
    <message>
        <source>the effective angle of view</source>
        <translation>el ángulo de visión efectivo</translation>
    </message>
    <message>
        <source>the circle&apos;s radius</source>
        <translation>el radio del círculo</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>cancelado</translation>
    </message>
    <message>
        <source>damaged: the decoder tried something forbidden (system call %1)</source>
        <translation>dañada: el decodificador intentó algo prohibido (llamada al sistema %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder tried something forbidden</source>
        <translation>dañada: el decodificador intentó algo prohibido</translation>
    </message>
    <message>
        <source>another photo is being read</source>
        <translation>se está leyendo otra foto</translation>
    </message>
    <message>
        <source>the lens&apos;s curve turns back at %1 degrees</source>
        <translation>la curva del objetivo retrocede a los %1 grados</translation>
    </message>
    <message>
        <source>the lens&apos;s curve is not made of 16 usable points</source>
        <translation>la curva del objetivo no tiene 16 puntos utilizables</translation>
    </message>
    <message>
        <source>%1 does not rise from point to point</source>
        <translation>%1 no aumenta de punto a punto</translation>
    </message>
    <message>
        <source>the lens&apos;s curve</source>
        <translation>la curva del objetivo</translation>
    </message>
    <message>
        <source>larger than %1 MB</source>
        <translation>mayor que %1 MB</translation>
    </message>
    <message>
        <source>this is no lens file of a known kind</source>
        <translation>no es un archivo de objetivo de una clase conocida</translation>
    </message>
    <message>
        <source>there is no fisheye lens in it</source>
        <translation>no contiene ningún objetivo ojo de pez</translation>
    </message>
    <message>
        <source>made by a newer version of the program</source>
        <translation>hecho con una versión más nueva del programa</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>falta «%1»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value that cannot be used</source>
        <translation>«%1» tiene un valor que no se puede usar</translation>
    </message>
    <message>
        <source>the lens model &quot;%1&quot; is not known</source>
        <translation>el modelo de objetivo «%1» no se conoce</translation>
    </message>
    <message>
        <source>there is already a lens of this name</source>
        <translation>ya hay un objetivo con este nombre</translation>
    </message>
    <message>
        <source>a lens needs a name</source>
        <translation>un objetivo necesita un nombre</translation>
    </message>
    <message>
        <source>there is no lens of this name</source>
        <translation>no hay ningún objetivo con este nombre</translation>
    </message>
    <message>
        <source>lenses are written to files that end in .json, .yaml or .xml</source>
        <translation>los objetivos se escriben en archivos que terminan en .json, .yaml o .xml</translation>
    </message>
    <message>
        <source>%1 files cannot be transparent; what would be is black</source>
        <translation>los archivos %1 no pueden ser transparentes; lo que lo sería queda negro</translation>
    </message>
    <message>
        <source>the centre cannot keep the photo&apos;s resolution (%3): %1 x %2 pixels</source>
        <translation>el centro no puede conservar la resolución de la foto (%3): %1 x %2 píxeles</translation>
    </message>
    <message>
        <source>there is no part without anything outside the photo</source>
        <translation>no hay ninguna parte sin nada fuera de la foto</translation>
    </message>
    <message>
        <source>the crop runs beyond the frame</source>
        <translation>el recorte se sale del marco</translation>
    </message>
    <message>
        <source>saved with %1 bits: %2 holds no more</source>
        <translation>guardado con %1 bits: %2 no contiene más</translation>
    </message>
    <message>
        <source>this is not a film of a known type</source>
        <translation>no es una película de un tipo conocido</translation>
    </message>
    <message>
        <source>there is no video stream in the film</source>
        <translation>no hay ninguna pista de vídeo en la película</translation>
    </message>
    <message>
        <source>there is no picture in the film that can be decoded</source>
        <translation>no hay en la película ninguna imagen que se pueda decodificar</translation>
    </message>
    <message>
        <source>the film is encrypted</source>
        <translation>la película está cifrada</translation>
    </message>
    <message>
        <source>the film&apos;s codec cannot be decoded: %1</source>
        <translation>el códec de la película no se puede decodificar: %1</translation>
    </message>
    <message>
        <source>from %1 seconds on the film&apos;s pictures have another size or pixel format</source>
        <translation>a partir de %1 segundos las imágenes de la película tienen otro tamaño u otro formato de píxel</translation>
    </message>
    <message>
        <source>the picture at %1 seconds cannot be decoded</source>
        <translation>la imagen a los %1 segundos no se puede decodificar</translation>
    </message>
    <message>
        <source>the picture at %1 seconds is damaged</source>
        <translation>la imagen a los %1 segundos está dañada</translation>
    </message>
    <message>
        <source>films cannot be written: %1</source>
        <translation>no se pueden escribir películas: %1</translation>
    </message>
    <message>
        <source>the installed libavcodec has no encoder for %1 (%2)</source>
        <translation>la libavcodec instalada no tiene codificador para %1 (%2)</translation>
    </message>
    <message>
        <source>the encoder %1 takes no pictures of %2; these do: %3</source>
        <translation>el codificador %1 no admite imágenes de %2; estos sí: %3</translation>
    </message>
    <message>
        <source>the encoder %1 takes no %2 &quot;%3&quot;; it takes: %4</source>
        <translation>el codificador %1 no admite %2 «%3»; admite: %4</translation>
    </message>
    <message>
        <source>the encoder %1 failed: %2</source>
        <translation>el codificador %1 ha fallado: %2</translation>
    </message>
    <message>
        <source>%1 files cannot hold %2; these can: %3</source>
        <translation>los archivos %1 no pueden contener %2; estos sí: %3</translation>
    </message>
    <message>
        <source>stream %1 (%2) is left out: %3 files cannot hold it</source>
        <translation>la pista %1 (%2) se omite: los archivos %3 no pueden contenerla</translation>
    </message>
    <message>
        <source>another program is writing this film</source>
        <translation>otro programa está escribiendo esta película</translation>
    </message>
    <message>
        <source>the picture at %1 seconds comes behind a later one and is left out</source>
        <translation>la imagen en el segundo %1 viene detrás de una posterior y se omite</translation>
    </message>
    <message>
        <source>the film has no picture from %1 to %2 seconds; it is %3 seconds long</source>
        <translation>la película no tiene imágenes del segundo %1 al %2; dura %3 segundos</translation>
    </message>
    <message>
        <source>its picture has %1 x %2 pixels, the film&apos;s first one %3 x %4</source>
        <translation>su imagen tiene %1 x %2 píxeles, la primera de la película %3 x %4</translation>
    </message>
    <message>
        <source>written without its IPTC: JPEG XL files hold none</source>
        <translation>escrita sin su IPTC: los archivos JPEG XL no lo admiten</translation>
    </message>
</context>
<context>
    <name>RevisionAge</name>
    <message>
        <source>This version of Varnel is now more than %1 months old.</source>
        <translation>Esta versión de Varnel tiene ya más de %1 meses.</translation>
    </message>
    <message>
        <source>An updated revision is likely available.</source>
        <translation>Es probable que haya una versión más nueva.</translation>
    </message>
    <message>
        <source>It is recommended that you upgrade the executable file.</source>
        <translation>Se recomienda actualizar el programa.</translation>
    </message>
    <message>
        <source>Upgraded executables may be downloaded from</source>
        <translation>Las versiones más nuevas se encuentran en</translation>
    </message>
</context>
<context>
    <name>Save</name>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
    <message>
        <source>This is the photo itself; choose another name.</source>
        <translation>Es la propia foto; elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>SaveMeanwhile</name>
    <message>
        <source>Cancelled, nothing was saved</source>
        <translation>Cancelado, no se guardó nada</translation>
    </message>
</context>
<context>
    <name>SaveWish</name>
    <message>
        <source>about %1</source>
        <translation>unos %1</translation>
    </message>
    <message>
        <source>16 bits</source>
        <translation>16 bits</translation>
    </message>
    <message>
        <source>floating point</source>
        <translation>coma flotante</translation>
    </message>
    <message>
        <source>8 bits</source>
        <translation>8 bits</translation>
    </message>
</context>
<context>
    <name>SettingsFromPicture</name>
    <message>
        <source>its name is not known</source>
        <translation>su nombre no se conoce</translation>
    </message>
</context>
<context>
    <name>Shortage</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>The system gives no more threads.</source>
        <translation>El sistema no concede más hilos.</translation>
    </message>
</context>
<context>
    <name>Sliders</name>
    <message>
        <source>Input hAOV</source>
        <translation>Ángulo de entrada</translation>
    </message>
    <message>
        <source>The angle that this photo shows from its left to its right edge</source>
        <translation>El ángulo que muestra esta foto del borde izquierdo al derecho</translation>
    </message>
    <message>
        <source>° hAOV</source>
        <translation>° horiz.</translation>
    </message>
    <message>
        <source>Output AOV</source>
        <translation>Ángulo de salida</translation>
    </message>
    <message>
        <source>hAOV</source>
        <translation>horiz.</translation>
    </message>
    <message>
        <source>How wide the converted picture looks: small is a telephoto view, large a wide one</source>
        <translation>Lo amplia que se ve la imagen convertida: pequeña como un tele, grande como un gran angular</translation>
    </message>
    <message>
        <source>Partial effect</source>
        <translation>Efecto parcial</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source>How much of the conversion is applied: 0 % stays close to the fisheye</source>
        <translation>Cuánta conversión se aplica: 0 % queda cerca del ojo de pez</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Up/Down</source>
        <translation>Arriba/Abajo</translation>
    </message>
    <message>
        <source>0° Up/Down</source>
        <translation>0° arriba/abajo</translation>
    </message>
    <message>
        <source>Tilts the camera. Double-click the name to reset it</source>
        <translation>Inclina la cámara. Doble clic en el nombre para restablecer</translation>
    </message>
    <message>
        <source>° Down</source>
        <translation>° abajo</translation>
    </message>
    <message>
        <source>° Up</source>
        <translation>° arriba</translation>
    </message>
    <message>
        <source>0°</source>
        <translation>0°</translation>
    </message>
    <message>
        <source>Left/Right</source>
        <translation>Izquierda/Derecha</translation>
    </message>
    <message>
        <source>0° Left/Right</source>
        <translation>0° izq./der.</translation>
    </message>
    <message>
        <source>Pans the camera. Double-click the name to reset it</source>
        <translation>Gira la cámara a los lados. Doble clic en el nombre para restablecer</translation>
    </message>
    <message>
        <source>° Right</source>
        <translation>° derecha</translation>
    </message>
    <message>
        <source>° Left</source>
        <translation>° izquierda</translation>
    </message>
    <message>
        <source>Z-axis</source>
        <translation>Eje Z</translation>
    </message>
    <message>
        <source>0° Z</source>
        <translation>0° Z</translation>
    </message>
    <message>
        <source>Levels the picture by rolling the camera. Double-click the name to reset it</source>
        <translation>Nivela la imagen girando la cámara sobre su eje. Doble clic en el nombre para restablecer</translation>
    </message>
    <message>
        <source>° c.clockwise</source>
        <translation>° antihorario</translation>
    </message>
    <message>
        <source>° clockwise</source>
        <translation>° horario</translation>
    </message>
    <message>
        <source>0% Left/Right</source>
        <translation>0% izq./der.</translation>
    </message>
    <message>
        <source>Shifts the picture sideways. Double-click the name to reset it</source>
        <translation>Desplaza la imagen de lado. Doble clic en el nombre para restablecer</translation>
    </message>
    <message>
        <source>% Right</source>
        <translation>% derecha</translation>
    </message>
    <message>
        <source>% Left</source>
        <translation>% izquierda</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
    <message>
        <source>0% Up/Down</source>
        <translation>0% arriba/abajo</translation>
    </message>
    <message>
        <source>Shifts the picture up or down. Double-click the name to reset it</source>
        <translation>Desplaza la imagen hacia arriba o abajo. Doble clic en el nombre para restablecer</translation>
    </message>
    <message>
        <source>% Up</source>
        <translation>% arriba</translation>
    </message>
    <message>
        <source>% Down</source>
        <translation>% abajo</translation>
    </message>
    <message>
        <source>Rotate camera</source>
        <translation>Girar la cámara</translation>
    </message>
    <message>
        <source>Transpose image</source>
        <translation>Desplazar la imagen</translation>
    </message>
    <message>
        <source>Distance of the eye</source>
        <translation>Distancia del ojo</translation>
    </message>
    <message>
        <source>0 % is the straight-line view; 100 % keeps wide views calm at the sides</source>
        <translation>0 % es la vista rectilínea; 100 % mantiene tranquilos los lados de vistas amplias</translation>
    </message>
    <message>
        <source>Vertical squeeze</source>
        <translation>Compresión vertical</translation>
    </message>
    <message>
        <source>0 %</source>
        <translation>0 %</translation>
    </message>
    <message>
        <source>How far level lines above and below the middle are kept straight</source>
        <translation>Hasta qué punto siguen rectas las líneas horizontales por encima y por debajo del centro</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Borde izquierdo</translation>
    </message>
    <message>
        <source>The direction on the photo that the picture&apos;s left edge shows. Double-click the name to reset it</source>
        <translation>La dirección en la foto que muestra el borde izquierdo de la imagen. Haga doble clic en el nombre para restablecerla</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>From angle</source>
        <translation>Desde el ángulo</translation>
    </message>
    <message>
        <source>The angle from the lens&apos;s axis at one edge of the picture</source>
        <translation>El ángulo desde el eje del objetivo en un borde de la imagen</translation>
    </message>
    <message>
        <source>To angle</source>
        <translation>Hasta el ángulo</translation>
    </message>
    <message>
        <source>90°</source>
        <translation>90°</translation>
    </message>
    <message>
        <source>The angle from the lens&apos;s axis at the other edge</source>
        <translation>El ángulo desde el eje del objetivo en el otro borde</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>projection</source>
        <translation>proyección</translation>
    </message>
    <message>
        <source>choice of gear</source>
        <translation>elección de equipo</translation>
    </message>
    <message>
        <source>apply gear to all</source>
        <translation>equipo para todas</translation>
    </message>
    <message>
        <source>apply settings to all</source>
        <translation>ajustes para todas</translation>
    </message>
    <message>
        <source>adjustments</source>
        <translation>ajustes</translation>
    </message>
    <message>
        <source>add images</source>
        <translation>añadir imágenes</translation>
    </message>
    <message>
        <source>remove images</source>
        <translation>quitar imágenes</translation>
    </message>
    <message>
        <source>reorder images</source>
        <translation>reordenar imágenes</translation>
    </message>
    <message>
        <source>add images with settings</source>
        <translation>añadir imágenes con ajustes</translation>
    </message>
    <message>
        <source>level</source>
        <translation>nivelado</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>marco</translation>
    </message>
    <message>
        <source>image circle</source>
        <translation>círculo de imagen</translation>
    </message>
    <message>
        <source>contact sheet</source>
        <translation>hoja de contactos</translation>
    </message>
    <message>
        <source>open project</source>
        <translation>abrir proyecto</translation>
    </message>
    <message>
        <source>change</source>
        <translation>cambio</translation>
    </message>
    <message>
        <source>output AOV</source>
        <translation>ángulo de salida</translation>
    </message>
    <message>
        <source>partial effect</source>
        <translation>efecto parcial</translation>
    </message>
    <message>
        <source>rotate up/down</source>
        <translation>giro arriba/abajo</translation>
    </message>
    <message>
        <source>rotate left/right</source>
        <translation>giro izquierda/derecha</translation>
    </message>
    <message>
        <source>rotate Z-axis</source>
        <translation>giro del eje Z</translation>
    </message>
    <message>
        <source>transpose left/right</source>
        <translation>desplazamiento izquierda/derecha</translation>
    </message>
    <message>
        <source>transpose up/down</source>
        <translation>desplazamiento arriba/abajo</translation>
    </message>
    <message>
        <source>input hAOV</source>
        <translation>ángulo de entrada</translation>
    </message>
    <message>
        <source>new numbers of a gear</source>
        <translation>nuevos valores de un equipo</translation>
    </message>
    <message>
        <source>open the list again</source>
        <translation>reabrir la lista</translation>
    </message>
    <message>
        <source>gears of the photos</source>
        <translation>equipos de las fotos</translation>
    </message>
    <message>
        <source>straighten</source>
        <translation>enderezar</translation>
    </message>
    <message>
        <source>reset photo</source>
        <translation>foto restablecida</translation>
    </message>
    <message>
        <source>turn of the camera</source>
        <translation>giro de la cámara</translation>
    </message>
    <message>
        <source>roll of the camera</source>
        <translation>rotación de la cámara</translation>
    </message>
    <message>
        <source>angle of view</source>
        <translation>ángulo de visión</translation>
    </message>
    <message>
        <source>centring</source>
        <translation>centrado</translation>
    </message>
    <message>
        <source>paste settings</source>
        <translation>pegar ajustes</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>preajuste</translation>
    </message>
    <message>
        <source>size</source>
        <translation>tamaño</translation>
    </message>
    <message>
        <source>crop</source>
        <translation>recorte</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>exterior</translation>
    </message>
    <message>
        <source>soften faces</source>
        <translation>suavizar rostros</translation>
    </message>
    <message>
        <source>distance of the eye</source>
        <translation>distancia del ojo</translation>
    </message>
    <message>
        <source>vertical squeeze</source>
        <translation>compresión vertical</translation>
    </message>
    <message>
        <source>start of unrolling</source>
        <translation>inicio del desenrollado</translation>
    </message>
    <message>
        <source>first angle of unrolling</source>
        <translation>primer ángulo del desenrollado</translation>
    </message>
    <message>
        <source>last angle of unrolling</source>
        <translation>último ángulo del desenrollado</translation>
    </message>
    <message>
        <source>direction of unrolling</source>
        <translation>sentido del desenrollado</translation>
    </message>
    <message>
        <source>marks</source>
        <translation>marcas</translation>
    </message>
    <message>
        <source>pose of the camera</source>
        <translation>posición de la cámara</translation>
    </message>
    <message>
        <source>tunnel</source>
        <translation>túnel</translation>
    </message>
    <message>
        <source>keys of the film</source>
        <translation>claves de la película</translation>
    </message>
    <message>
        <source>part of the film</source>
        <translation>parte de la película</translation>
    </message>
</context>
<context>
    <name>ToolbarTools</name>
    <message>
        <source>Add image(s)</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Marco</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Nivelar</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Círculo</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Enderezar</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Antes</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Hoja</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar</translation>
    </message>
</context>
<context>
    <name>Volume</name>
    <message>
        <source>fixed</source>
        <translation>fija</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>extraíble</translation>
    </message>
    <message>
        <source>network</source>
        <translation>red</translation>
    </message>
    <message>
        <source>optical</source>
        <translation>óptica</translation>
    </message>
    <message>
        <source>Drive %1 is not availabe</source>
        <translation>La unidad %1 no está disponible</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;OpenOld</source>
        <translation>A&amp;brir (antiguo)</translation>
    </message>
    <message>
        <source>Open image(s)</source>
        <translation>Abrir imágenes</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Configuración</translation>
    </message>
    <message>
        <source>&amp;Manage equipment</source>
        <translation>&amp;Gestionar el equipo</translation>
    </message>
    <message>
        <source>&amp;Defaults</source>
        <translation>&amp;Valores predeterminados</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Herramientas</translation>
    </message>
    <message>
        <source>Morph</source>
        <translation>Morph</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Estirar</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Acerca &amp;de</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Ends the saving without a file</source>
        <translation>Termina el guardado sin archivo</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vista</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barra de herramientas</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Could not find the photo that a picture was made of</source>
        <translation>No se encontró la foto de la que se hizo una imagen</translation>
    </message>
    <message>
        <source>Some settings of a picture could not be used</source>
        <translation>Algunos ajustes de una imagen no se pudieron usar</translation>
    </message>
    <message>
        <source>Could not open image</source>
        <translation>No se pudo abrir la imagen</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 píxeles</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 guardado, %2</translation>
    </message>
    <message>
        <source>%1 of the added images could not be opened</source>
        <translation>No se pudieron abrir %1 de las imágenes añadidas</translation>
    </message>
    <message>
        <source>There are no photos in a folder</source>
        <translation>En una carpeta no hay fotos</translation>
    </message>
    <message>
        <source>Only the first %1 photos were added</source>
        <translation>Solo se añadieron las primeras %1 fotos</translation>
    </message>
</context>
<context>
    <name>varnel::AdjustmentPanel</name>
    <message>
        <source>Refine equipment parameters</source>
        <translation>Afinar el equipo</translation>
    </message>
    <message>
        <source>Remap</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Para todas</translation>
    </message>
    <message>
        <source>Gives every photo in the list these settings and this gear</source>
        <translation>Da a cada foto de la lista estos ajustes y este equipo</translation>
    </message>
    <message>
        <source>Auto preview</source>
        <translation>Vista automática</translation>
    </message>
    <message>
        <source>Redraws the preview after every change</source>
        <translation>Redibuja la vista previa después de cada cambio</translation>
    </message>
    <message>
        <source>Antialiased</source>
        <translation>Suavizada</translation>
    </message>
    <message>
        <source>Smooths the preview; saved pictures are always smooth</source>
        <translation>Suaviza la vista previa; las imágenes guardadas siempre van suavizadas</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Draws the preview now</source>
        <translation>Dibuja ahora la vista previa</translation>
    </message>
    <message>
        <source>Reset photo</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>Gives all sliders of this photo the values of its gear again</source>
        <translation>Devuelve a todos los controles de esta foto los valores de su equipo</translation>
    </message>
</context>
<context>
    <name>varnel::Application</name>
    <message>
        <source>What was just begun was not done.</source>
        <translation>Lo que se acababa de empezar no se hizo.</translation>
    </message>
</context>
<context>
    <name>varnel::BatchTools</name>
    <message>
        <source>Progress of the batch</source>
        <translation>Progreso de la cola</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Holds the batch where it is, and lets it go on</source>
        <translation>Detiene la cola donde está, y deja que siga</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Finishes the batch&apos;s image at hand and leaves out the others</source>
        <translation>Termina la imagen en curso y deja las demás</translation>
    </message>
    <message>
        <source>Batch: finishing the image at hand</source>
        <translation>Cola: terminando la imagen en curso</translation>
    </message>
    <message>
        <source>Batch: %1</source>
        <translation>Cola: %1</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Batch: %1 images written</source>
        <translation>Cola: %1 imágenes escritas</translation>
    </message>
    <message>
        <source>Batch: %1 images written, %2 failed</source>
        <translation>Cola: %1 imágenes escritas, %2 fallidas</translation>
    </message>
</context>
<context>
    <name>varnel::CircleBar</name>
    <message>
        <source>Find circle</source>
        <translation>Buscar el círculo</translation>
    </message>
    <message>
        <source>Looks for the rim of the image circle on this photo</source>
        <translation>Busca el borde del círculo de imagen en esta foto</translation>
    </message>
    <message>
        <source>Gear&apos;s circle</source>
        <translation>Círculo del equipo</translation>
    </message>
    <message>
        <source>Gives this photo the circle that the gear has at present</source>
        <translation>Da a esta foto el círculo que tiene ahora el equipo</translation>
    </message>
    <message>
        <source>Keep for the gear ...</source>
        <translation>Conservar para el equipo...</translation>
    </message>
    <message>
        <source>Makes this circle the one of the gear</source>
        <translation>Hace de este círculo el del equipo</translation>
    </message>
    <message>
        <source>Change the gear</source>
        <translation>Modificar el equipo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>How far the circle&apos;s middle is from the photo&apos;s, in thousandths of its width and height, and the circle&apos;s diameter in percent of the photo&apos;s longer side</source>
        <translation>Cuánto dista el centro del círculo del de la foto, en milésimas de su ancho y su alto, y el diámetro del círculo en porcentaje del lado mayor de la foto</translation>
    </message>
</context>
<context>
    <name>varnel::CircleTools</name>
    <message>
        <source>&amp;Image circle</source>
        <translation>Círculo de &amp;imagen</translation>
    </message>
    <message>
        <source>Image circle found.</source>
        <translation>Círculo de imagen encontrado.</translation>
    </message>
    <message>
        <source>No rim of an image circle was found on this photo.</source>
        <translation>En esta foto no se encontró el borde de ningún círculo de imagen.</translation>
    </message>
    <message>
        <source>A rough image circle, from the light inside: it is dark at the rim. Drag the rim where it is not right.</source>
        <translation>Un círculo de imagen aproximado, por la luz de dentro: el borde está oscuro. Arrastre el borde donde no sea correcto.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; has the circle now; undo takes it back.</source>
        <translation>El equipo «%1» tiene ahora el círculo; Deshacer lo devuelve.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; stays as it is: it was edited or deleted since.</source>
        <translation>El equipo «%1» se queda como está: entretanto se modificó o se eliminó.</translation>
    </message>
    <message>
        <source>%1 ‰ right</source>
        <translation>%1 ‰ a la derecha</translation>
    </message>
    <message>
        <source>%1 ‰ left</source>
        <translation>%1 ‰ a la izquierda</translation>
    </message>
    <message>
        <source>%1 ‰ down</source>
        <translation>%1 ‰ abajo</translation>
    </message>
    <message>
        <source>%1 ‰ up</source>
        <translation>%1 ‰ arriba</translation>
    </message>
    <message>
        <source>in the middle of the photo</source>
        <translation>en el centro de la foto</translation>
    </message>
    <message>
        <source>Centre %1, diameter %2 %</source>
        <translation>Centro %1, diámetro %2 %</translation>
    </message>
    <message>
        <source>Change the circle of the gear &quot;%1&quot;? %2. Photos that are adjusted already keep their circle, but for the current one.</source>
        <translation>¿Modificar el círculo del equipo «%1»? %2. Las fotos ya ajustadas conservan su círculo, excepto la actual.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; has its circle again: %2.</source>
        <translation>El equipo «%1» vuelve a tener su círculo: %2.</translation>
    </message>
    <message>
        <source>No rim of an image circle was found in this film.</source>
        <translation>En esta película no se encontró el borde de ningún círculo de imagen.</translation>
    </message>
</context>
<context>
    <name>varnel::ColourTools</name>
    <message>
        <source>Displa&amp;y colours</source>
        <translation>Color&amp;es de la pantalla</translation>
    </message>
    <message>
        <source>Histogram and clipping mar&amp;ks</source>
        <translation>&amp;Histograma y marcas de recorte</translation>
    </message>
</context>
<context>
    <name>varnel::ContactSheetBox</name>
    <message>
        <source>Contact sheet</source>
        <translation>Hoja de contactos</translation>
    </message>
    <message>
        <source>The photo in every projection and three strengths</source>
        <translation>La foto en cada proyección y con tres intensidades</translation>
    </message>
    <message>
        <source> (as it is)</source>
        <translation> (tal como está)</translation>
    </message>
</context>
<context>
    <name>varnel::CropBar</name>
    <message>
        <source>Drag the corners, the sides or the crop itself; arrow keys move it, with Shift they widen it, plus and minus do on all sides</source>
        <translation>Arrastre las esquinas, los lados o el recorte; las flechas lo mueven, con Mayús lo ensanchan, más y menos lo hacen por todos los lados</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Limpio</translation>
    </message>
    <message>
        <source>The largest part in which the photo is everywhere</source>
        <translation>La mayor parte en la que la foto está en todas partes</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Marco entero</translation>
    </message>
    <message>
        <source>Cuts nothing off</source>
        <translation>No recorta nada</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Shows the result as it is saved</source>
        <translation>Muestra el resultado tal como se guarda</translation>
    </message>
    <message>
        <source>Shape of the crop</source>
        <translation>Forma del recorte</translation>
    </message>
    <message>
        <source>Width and height of the crop</source>
        <translation>Ancho y alto del recorte</translation>
    </message>
    <message>
        <source>Any shape</source>
        <translation>Forma libre</translation>
    </message>
    <message>
        <source>As the frame</source>
        <translation>Como el marco</translation>
    </message>
</context>
<context>
    <name>varnel::CropTools</name>
    <message>
        <source>&amp;Crop</source>
        <translation>Re&amp;cortar</translation>
    </message>
    <message>
        <source>Looking for the largest clean crop ...</source>
        <translation>Buscando el mayor recorte limpio...</translation>
    </message>
    <message>
        <source>No part of the result is without outside.</source>
        <translation>Ninguna parte del resultado está libre de exterior.</translation>
    </message>
    <message>
        <source>%1 x %2 of %3 x %4 pixels</source>
        <translation>%1 x %2 de %3 x %4 píxeles</translation>
    </message>
</context>
<context>
    <name>varnel::DividerTools</name>
    <message>
        <source>Before an&amp;d after, divided</source>
        <translation>Antes y después, di&amp;vididos</translation>
    </message>
    <message>
        <source>Classic and fine sampling, divided</source>
        <translation>Muestreo clásico y fino, dividido</translation>
    </message>
</context>
<context>
    <name>varnel::EdgeView</name>
    <message>
        <source>Add a photo with many straight edges, out to the rim.</source>
        <translation>Añada una foto con muchas aristas rectas, hasta el borde.</translation>
    </message>
    <message>
        <source>The photo with its edges</source>
        <translation>La foto con sus aristas</translation>
    </message>
</context>
<context>
    <name>varnel::EmptyState</name>
    <message>
        <source>Drop fisheye photos here</source>
        <translation>Suelte aquí fotos de ojo de pez</translation>
    </message>
    <message>
        <source>Each gets the gear that took it; then choose what the result shall be under &quot;Remap&quot;.</source>
        <translation>Cada una recibe el equipo con el que se hizo; elija después el resultado que quiere en «Convertir».</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Elegir fotos...</translation>
    </message>
    <message>
        <source>Adds photos to the list</source>
        <translation>Añade fotos a la lista</translation>
    </message>
    <message>
        <source>Try the sample photo</source>
        <translation>Probar la foto de ejemplo</translation>
    </message>
    <message>
        <source>Opens a photo that is drawn by this program</source>
        <translation>Abre una foto dibujada por este programa</translation>
    </message>
</context>
<context>
    <name>varnel::EquipmentPanel</name>
    <message>
        <source>Equipment</source>
        <translation>Equipo</translation>
    </message>
    <message>
        <source>Camera + lens combination</source>
        <translation>Cámara + objetivo</translation>
    </message>
    <message>
        <source>Which camera and lens took the selected photos</source>
        <translation>Con qué cámara y objetivo se hicieron las fotos seleccionadas</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Para todas</translation>
    </message>
    <message>
        <source>Every photo in the list was taken with this gear</source>
        <translation>Todas las fotos de la lista se hicieron con este equipo</translation>
    </message>
    <message>
        <source>No gear yet</source>
        <translation>Aún no hay equipo</translation>
    </message>
    <message>
        <source>%1 (not in the list)</source>
        <translation>%1 (fuera de la lista)</translation>
    </message>
</context>
<context>
    <name>varnel::FaceBar</name>
    <message>
        <source>By keyboard: Insert makes an ellipse, Space goes to the next one, arrows move it, with Shift they size it, [ and ] turn it, Delete takes it away</source>
        <translation>Con el teclado: Insertar crea una elipse, Espacio pasa a la siguiente, las flechas la mueven, con Mayús cambian su tamaño, [ y ] la giran, Supr la quita</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Takes the chosen ellipse away</source>
        <translation>Quita la elipse elegida</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Quitar todas</translation>
    </message>
    <message>
        <source>Takes all ellipses away</source>
        <translation>Quita todas las elipses</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Hides the ellipses</source>
        <translation>Oculta las elipses</translation>
    </message>
    <message>
        <source>Drag an ellipse around each face on the result; it keeps its shape.</source>
        <translation>Trace una elipse alrededor de cada rostro en el resultado; conserva su forma.</translation>
    </message>
    <message>
        <source>Drag an ellipse to move it, its rim to size it, its knob to turn it; a drag beside them draws another one.</source>
        <translation>Arrastre una elipse para moverla, su borde para cambiar su tamaño, su botón para girarla; al arrastrar fuera se dibuja otra.</translation>
    </message>
</context>
<context>
    <name>varnel::FaceTools</name>
    <message>
        <source>Soften &amp;faces</source>
        <translation>Suavizar &amp;rostros</translation>
    </message>
    <message>
        <source>Only Rectilinear draws faces out; the others have none to soften.</source>
        <translation>Solo Rectilinear estira los rostros; las demás no tienen nada que suavizar.</translation>
    </message>
</context>
<context>
    <name>varnel::FilmBar</name>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Plays the film (space)</source>
        <translation>Reproduce la película (espacio)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>The film begins with this frame (I)</source>
        <translation>La película empieza con este fotograma (I)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>The film ends with this frame (O)</source>
        <translation>La película termina con este fotograma (O)</translation>
    </message>
    <message>
        <source>Set key</source>
        <translation>Poner clave</translation>
    </message>
    <message>
        <source>Auto key</source>
        <translation>Clave automática</translation>
    </message>
    <message>
        <source>Every slider that is moved makes a key at this time; without it only those do that have keys already</source>
        <translation>Cada control que se mueve pone una clave en este momento; si no, solo los que ya tienen claves</translation>
    </message>
    <message>
        <source>Codec of the film</source>
        <translation>Códec de la película</translation>
    </message>
    <message>
        <source>How the film is encoded</source>
        <translation>Cómo se codifica la película</translation>
    </message>
    <message>
        <source>Quality of the film (CRF)</source>
        <translation>Calidad de la película (CRF)</translation>
    </message>
    <message>
        <source>CRF of the encoder: a smaller number is a better and longer file</source>
        <translation>CRF del codificador: un número menor da un archivo mejor y más largo</translation>
    </message>
    <message>
        <source>Usual quality</source>
        <translation>Calidad habitual</translation>
    </message>
    <message>
        <source>Speed of encoding</source>
        <translation>Velocidad de codificación</translation>
    </message>
    <message>
        <source>A slower encoder makes shorter files of the same quality</source>
        <translation>Un codificador más lento hace archivos más cortos de la misma calidad</translation>
    </message>
    <message>
        <source>Usual speed</source>
        <translation>Velocidad habitual</translation>
    </message>
    <message>
        <source>Save film ...</source>
        <translation>Guardar película ...</translation>
    </message>
    <message>
        <source>Converts the film with its keys, from In to Out, and writes it</source>
        <translation>Convierte la película con sus claves, de Inicio a Fin, y la escribe</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Remove key</source>
        <translation>Quitar clave</translation>
    </message>
    <message>
        <source>Removes the key at this time</source>
        <translation>Quita la clave en este momento</translation>
    </message>
    <message>
        <source>A key at this time with the numbers of all sliders that move (K)</source>
        <translation>Una clave en este momento con los números de todos los controles que se mueven (K)</translation>
    </message>
</context>
<context>
    <name>varnel::FilmTools</name>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
    <message>
        <source>This is the film itself; choose another name.</source>
        <translation>Es la propia película; elija otro nombre.</translation>
    </message>
    <message>
        <source>No film was written</source>
        <translation>No se ha escrito ninguna película</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>Guardado %1</translation>
    </message>
</context>
<context>
    <name>varnel::FoldGroup</name>
    <message>
        <source>Shows what is in this group</source>
        <translation>Muestra lo que hay en este grupo</translation>
    </message>
    <message>
        <source>Hides what is in this group</source>
        <translation>Oculta lo que hay en este grupo</translation>
    </message>
</context>
<context>
    <name>varnel::FolderChooser</name>
    <message>
        <source>The folder cannot be named %1</source>
        <translation>La carpeta no se puede llamar %1</translation>
    </message>
</context>
<context>
    <name>varnel::FolderModel</name>
    <message>
        <source>A name cannot hold a slash.</source>
        <translation>Un nombre no puede contener una barra.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Ya existe algo con ese nombre.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>El nombre es demasiado largo.</translation>
    </message>
</context>
<context>
    <name>varnel::FormAbout</name>
    <message>
        <source>Revision %1</source>
        <translation>Revisión %1</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
</context>
<context>
    <name>varnel::FormAddImages</name>
    <message>
        <source>This folder cannot be read</source>
        <translation>Esta carpeta no se puede leer</translation>
    </message>
    <message>
        <source>No photos here</source>
        <translation>Aquí no hay fotos</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 de %2 seleccionados</translation>
    </message>
</context>
<context>
    <name>varnel::FormBatch</name>
    <message>
        <source>Name addition for %1</source>
        <translation>Añadido al nombre para %1</translation>
    </message>
    <message>
        <source>1 queued image</source>
        <translation>1 imagen en cola</translation>
    </message>
    <message>
        <source>%1 queued images</source>
        <translation>%1 imágenes en cola</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Detener</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Elija otra carpeta.</translation>
    </message>
    <message>
        <source>Wait this image</source>
        <translation>Acabar esta imagen</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>No se puede crear ninguna carpeta en %1</translation>
    </message>
    <message>
        <source>All images: %1</source>
        <translation>Todas las imágenes: %1</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>What follows the photo&apos;s own name in the names of %1 images; empty: the word %2</source>
        <translation>Lo que sigue al nombre de la foto en los nombres de imágenes %1; vacío: la palabra %2</translation>
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
        <translation> ‰ hor.</translation>
    </message>
    <message>
        <source> ‰ vert.</source>
        <translation> ‰ vert.</translation>
    </message>
    <message>
        <source>New camera + lens combination</source>
        <translation>Nueva combinación de cámara y objetivo</translation>
    </message>
    <message>
        <source>Redefine camera + lens combination</source>
        <translation>Modificar la combinación de cámara y objetivo</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Choose a camera and a lens first.</source>
        <translation>Elija primero una cámara y un objetivo.</translation>
    </message>
    <message>
        <source>Ratio and offsets are set by hand.</source>
        <translation>La proporción y los desplazamientos están fijados a mano.</translation>
    </message>
    <message>
        <source>Values of the catalogue.</source>
        <translation>Valores del catálogo.</translation>
    </message>
    <message>
        <source>The angle of view is set by hand.</source>
        <translation>El ángulo de visión está fijado a mano.</translation>
    </message>
    <message>
        <source>The file of this lens is not there.</source>
        <translation>Falta el archivo de este objetivo.</translation>
    </message>
    <message>
        <source>The lens could not be kept: %1</source>
        <translation>El objetivo no se pudo conservar: %1</translation>
    </message>
    <message>
        <source>Of the photo</source>
        <translation>De la foto</translation>
    </message>
    <message>
        <source>Of a drawn room, seen by this lens</source>
        <translation>De una sala dibujada, vista por este objetivo</translation>
    </message>
    <message>
        <source>Taken with %1.</source>
        <translation>Hecha con %1.</translation>
    </message>
    <message>
        <source>The numbers of the lens are set by hand.</source>
        <translation>Los números del objetivo están fijados a mano.</translation>
    </message>
</context>
<context>
    <name>varnel::FormGearList</name>
    <message>
        <source>The gear of new photos</source>
        <translation>El equipo de las fotos nuevas</translation>
    </message>
</context>
<context>
    <name>varnel::FormGuide</name>
    <message>
        <source>Varnel user guide</source>
        <translation>Guía de Varnel (en inglés)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Contenido</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>La primera página</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Atrás</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>La página anterior</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>A&amp;delante</translation>
    </message>
    <message>
        <source>The page after</source>
        <translation>La página siguiente</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>Página de la guía</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Buscar en la guía</translation>
    </message>
</context>
<context>
    <name>varnel::FormMorph</name>
    <message>
        <source>%1 at the start</source>
        <translation>%1 al inicio</translation>
    </message>
    <message>
        <source>%1 at the end</source>
        <translation>%1 al final</translation>
    </message>
    <message>
        <source>* The projection %1 does not use this.</source>
        <translation>* La proyección %1 no usa esto.</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Sin vista previa</translation>
    </message>
    <message>
        <source>Image %1 of %2</source>
        <translation>Imagen %1 de %2</translation>
    </message>
    <message>
        <source>Between</source>
        <translation>Intermedia</translation>
    </message>
    <message>
        <source>No images were added</source>
        <translation>No se añadieron imágenes</translation>
    </message>
    <message>
        <source>%1 images added, %2 in the batch que</source>
        <translation>%1 imágenes añadidas, %2 en la cola</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 segundos</translation>
    </message>
    <message>
        <source>&amp;Write film ...</source>
        <translation>&amp;Escribir película ...</translation>
    </message>
    <message>
        <source>&amp;Add to batch que</source>
        <translation>&amp;Añadir a la cola</translation>
    </message>
    <message>
        <source>Asks for a name and writes the sequence as a film</source>
        <translation>Pide un nombre y escribe la secuencia como película</translation>
    </message>
    <message>
        <source>Puts every image of the sequence into the batch queue, where &quot;Process batch que&quot; writes them</source>
        <translation>Pone cada imagen de la secuencia en la cola, donde «Procesar la cola» las escribe</translation>
    </message>
    <message>
        <source>Write the sequence as a film</source>
        <translation>Escribir la secuencia como película</translation>
    </message>
    <message>
        <source>Add the sequence to the batch queue</source>
        <translation>Añadir la secuencia a la cola</translation>
    </message>
    <message>
        <source>A film needs two images or more</source>
        <translation>Una película necesita dos imágenes o más</translation>
    </message>
    <message>
        <source>The film %1 was written</source>
        <translation>Se ha escrito la película %1</translation>
    </message>
    <message>
        <source>No film was written</source>
        <translation>No se ha escrito ninguna película</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
</context>
<context>
    <name>varnel::FormPresets</name>
    <message>
        <source>No presets of your own yet: &quot;Save as preset...&quot; in the Edit menu makes one of the photo at hand.</source>
        <translation>Aún no tiene preajustes propios: «Guardar como preajuste...» del menú Editar hace uno de la foto actual.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>«%1» se ha eliminado.</translation>
    </message>
    <message>
        <source>%1 holds no presets.</source>
        <translation>%1 no contiene preajustes.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 no se puede leer: %2</translation>
    </message>
    <message>
        <source>1 preset was added.</source>
        <translation>Se añadió 1 preajuste.</translation>
    </message>
    <message>
        <source>%1 presets were added.</source>
        <translation>Se añadieron %1 preajustes.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 no se puede escribir: %2</translation>
    </message>
</context>
<context>
    <name>varnel::FormSavePreset</name>
    <message>
        <source>Choose what the preset sets.</source>
        <translation>Elija lo que fija el preajuste.</translation>
    </message>
    <message>
        <source>It replaces your preset of this name.</source>
        <translation>Reemplaza su preajuste con este nombre.</translation>
    </message>
</context>
<context>
    <name>varnel::FormSetup</name>
    <message>
        <source>%1 pixels</source>
        <translation>%1 píxeles</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automática</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguna</translation>
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
        <translation>Longitud</translation>
    </message>
    <message>
        <source>Off straight</source>
        <translation>Desviación</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <source>The photo made straight</source>
        <translation>La foto enderezada</translation>
    </message>
    <message>
        <source>No edge was found between these two places; click nearer to its ends.</source>
        <translation>No se encontró ninguna arista entre estos dos puntos; haga clic más cerca de sus extremos.</translation>
    </message>
    <message>
        <source>%1: four photos are the most</source>
        <translation>%1: cuatro fotos son el máximo</translation>
    </message>
    <message>
        <source>%1: it is not as large as the first photo, or held otherwise</source>
        <translation>%1: no es tan grande como la primera foto, o está tomada de otro modo</translation>
    </message>
    <message>
        <source>%1, measured</source>
        <translation>%1, medido</translation>
    </message>
    <message>
        <source>Now click near the other end of the edge.</source>
        <translation>Haga clic ahora cerca del otro extremo de la arista.</translation>
    </message>
    <message>
        <source>Looking for straight edges...</source>
        <translation>Buscando aristas rectas...</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Midiendo...</translation>
    </message>
    <message>
        <source>taken away</source>
        <translation>quitada</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 px, not used</source>
        <translation>%1 px, no se usa</translation>
    </message>
    <message>
        <source>&amp;Bring back</source>
        <translation>Recu&amp;perar</translation>
    </message>
    <message>
        <source>&amp;Take away</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now among your lenses.</source>
        <translation>«%1» está ahora entre sus objetivos.</translation>
    </message>
</context>
<context>
    <name>varnel::FormStretch</name>
    <message>
        <source>100 % narrower</source>
        <translation>100 % más estrecho</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>más ancho</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>más estrecho</translation>
    </message>
    <message>
        <source>up</source>
        <translation>arriba</translation>
    </message>
    <message>
        <source>down</source>
        <translation>abajo</translation>
    </message>
    <message>
        <source>Could not open image</source>
        <translation>No se pudo abrir la imagen</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 píxeles</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 guardado, %2</translation>
    </message>
    <message>
        <source>Closes when the picture is saved</source>
        <translation>Se cierra cuando la imagen está guardada</translation>
    </message>
</context>
<context>
    <name>varnel::FrameTools</name>
    <message>
        <source>&amp;Frame on the photo</source>
        <translation>&amp;Marco en la foto</translation>
    </message>
    <message>
        <source>&amp;Magnification map</source>
        <translation>Mapa de &amp;ampliación</translation>
    </message>
    <message>
        <source>The middle of Horizon is a single point of the photo: its resolution is told half way to the rim.</source>
        <translation>El centro de Horizon es un solo punto de la foto: su resolución se da a medio camino del borde.</translation>
    </message>
</context>
<context>
    <name>varnel::GearBar</name>
    <message>
        <source>Choose the gear</source>
        <translation>Elegir el equipo</translation>
    </message>
    <message>
        <source>Gives this photo another gear</source>
        <translation>Da a esta foto otro equipo</translation>
    </message>
    <message>
        <source>Sees this photo in the other way</source>
        <translation>Toma esta foto del otro modo</translation>
    </message>
    <message>
        <source>Gives the gear of this photo to all others of the same camera, lens and size</source>
        <translation>Da el equipo de esta foto a todas las demás con la misma cámara, objetivo y tamaño</translation>
    </message>
    <message>
        <source>Define this gear...</source>
        <translation>Definir este equipo...</translation>
    </message>
    <message>
        <source>Same for all photos like this</source>
        <translation>Lo mismo para todas las fotos así</translation>
    </message>
</context>
<context>
    <name>varnel::GearOfferRow</name>
    <message>
        <source>Use %1</source>
        <translation>Usar %1</translation>
    </message>
    <message>
        <source>Gives this photo the gear &quot;%1&quot;</source>
        <translation>Da a esta foto el equipo «%1»</translation>
    </message>
    <message>
        <source>Define this gear...</source>
        <translation>Definir este equipo...</translation>
    </message>
    <message>
        <source>Opens the gear editor with the camera and the lens chosen</source>
        <translation>Abre el editor de equipo con la cámara y el objetivo elegidos</translation>
    </message>
    <message>
        <source>The camera or the lens of the gear in use is not the photo&apos;s: the circle and the angles do not fit.</source>
        <translation>La cámara o el objetivo del equipo en uso no son los de la foto: el círculo y los ángulos no encajan.</translation>
    </message>
    <message>
        <source>Puts the gear that this photo was adjusted with into the list; the photo stays as it is</source>
        <translation>Pone en la lista el equipo con el que se ajustó esta foto; la foto se queda como está</translation>
    </message>
</context>
<context>
    <name>varnel::GivenBar</name>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Takes these gears back</source>
        <translation>Retira estos equipos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Oculta esta línea</translation>
    </message>
    <message>
        <source>1 photo got its own gear</source>
        <translation>1 foto recibió su propio equipo</translation>
    </message>
    <message>
        <source>%1 photos got their own gear</source>
        <translation>%1 fotos recibieron su propio equipo</translation>
    </message>
</context>
<context>
    <name>varnel::GuideTools</name>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Guía (en inglés)</translation>
    </message>
    <message>
        <source>The user guide is not installed</source>
        <translation>La guía no está instalada</translation>
    </message>
    <message>
        <source>It belongs into the folder share/varnel/guide beside %1.</source>
        <translation>Su sitio es la carpeta share/varnel/guide junto a %1.</translation>
    </message>
</context>
<context>
    <name>varnel::HintTools</name>
    <message>
        <source>Draw along the horizon on the photo, or click points and then the last one again; Escape leaves</source>
        <translation>Trace a lo largo del horizonte en la foto, o haga clic en varios puntos y otra vez en el último; Esc sale</translation>
    </message>
    <message>
        <source>Drag the circle&apos;s rim or its middle on the photo; Escape leaves</source>
        <translation>Arrastre el borde del círculo o su centro en la foto; Esc sale</translation>
    </message>
    <message>
        <source>drag: turn   wheel: angle   Shift+drag: roll</source>
        <translation>arrastrar: girar   rueda: ángulo   Mayús+arrastrar: rotar</translation>
    </message>
    <message>
        <source>Drag the crop, its sides or its corners on the result; Escape leaves</source>
        <translation>Arrastre el recorte, sus lados o sus esquinas en el resultado; Esc sale</translation>
    </message>
</context>
<context>
    <name>varnel::ImageListPanel</name>
    <message>
        <source>Image list</source>
        <translation>Lista de imágenes</translation>
    </message>
    <message>
        <source>Click a photo to work on it; select several to adjust them together</source>
        <translation>Haga clic en una foto para trabajar en ella; seleccione varias para ajustarlas juntas</translation>
    </message>
    <message>
        <source>Add image(s)</source>
        <translation>Añadir imágenes</translation>
    </message>
    <message>
        <source>Adds photos to the list</source>
        <translation>Añade fotos a la lista</translation>
    </message>
    <message>
        <source>Remove image(s)</source>
        <translation>Quitar imágenes</translation>
    </message>
    <message>
        <source>Takes the selected photos off the list; the files stay</source>
        <translation>Quita de la lista las fotos seleccionadas; los archivos se quedan</translation>
    </message>
</context>
<context>
    <name>varnel::InsetFrame</name>
    <message>
        <source>The photo as shot: drag the bar to move it, the corner to resize it</source>
        <translation>La foto original: arrastre la barra para moverla, la esquina para cambiar su tamaño</translation>
    </message>
</context>
<context>
    <name>varnel::LayoutTools</name>
    <message>
        <source>Image li&amp;st in the left column</source>
        <translation>&amp;Lista de imágenes en la columna izquierda</translation>
    </message>
    <message>
        <source>Results &amp;as pictures in the list</source>
        <translation>Re&amp;sultados como imágenes en la lista</translation>
    </message>
</context>
<context>
    <name>varnel::LevelTools</name>
    <message>
        <source>&amp;Level the horizon</source>
        <translation>&amp;Nivelar el horizonte</translation>
    </message>
    <message>
        <source>%1 cannot be levelled: it does not turn the camera.</source>
        <translation>%1 no se puede nivelar: no gira la cámara.</translation>
    </message>
</context>
<context>
    <name>varnel::OutputPanel</name>
    <message>
        <source>What the files are called. Tokens: %1</source>
        <translation>Cómo se llaman los archivos. Comodines: %1</translation>
    </message>
</context>
<context>
    <name>varnel::OwnLensTools</name>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importar...</translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation>&amp;Renombrar...</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exportar...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>E&amp;liminar</translation>
    </message>
    <message>
        <source>Nothing was changed: %1</source>
        <translation>No se cambió nada: %1</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Leyendo %1...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of your lenses now.</source>
        <translation>«%1» es ahora uno de sus objetivos.</translation>
    </message>
    <message>
        <source>%1 lenses are among yours now.</source>
        <translation>%1 objetivos están ahora entre los suyos.</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Omitido: %1</translation>
    </message>
    <message>
        <source>New name of the lens:</source>
        <translation>Nuevo nombre del objetivo:</translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Sin exportar: %1</translation>
    </message>
    <message>
        <source>Written to %1; its formula is off the curve by at most %2 px.</source>
        <translation>Escrito en %1; su fórmula se aparta de la curva %2 px como máximo.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Escrito en %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted.</source>
        <translation>«%1» se ha eliminado.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted; gears that need it: %2.</source>
        <translation>«%1» se ha eliminado; equipos que lo necesitan: %2.</translation>
    </message>
</context>
<context>
    <name>varnel::PairBar</name>
    <message>
        <source>Use RAW only</source>
        <translation>Usar solo RAW</translation>
    </message>
    <message>
        <source>Takes the JPEG files of these photos out of the list</source>
        <translation>Quita de la lista los archivos JPEG de estas fotos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Oculta esta línea</translation>
    </message>
    <message>
        <source>1 photo was added as RAW and as JPEG</source>
        <translation>Se añadió 1 foto como RAW y como JPEG</translation>
    </message>
    <message>
        <source>%1 photos were added as RAW and as JPEG</source>
        <translation>Se añadieron %1 fotos como RAW y como JPEG</translation>
    </message>
</context>
<context>
    <name>varnel::PhotoGearTools</name>
    <message>
        <source>This photo was taken with %1, which is no fisheye: it keeps the gear %2.</source>
        <translation>Esta foto se hizo con %1, que no es un ojo de pez: conserva el equipo %2.</translation>
    </message>
    <message>
        <source>Take the whole sensor</source>
        <translation>Tomar todo el sensor</translation>
    </message>
    <message>
        <source>Take the gear&apos;s circle</source>
        <translation>Tomar el círculo del equipo</translation>
    </message>
    <message>
        <source>The photo is taken for the whole sensor, though it has another shape.</source>
        <translation>La foto se toma por el sensor entero, aunque tiene otra proporción.</translation>
    </message>
    <message>
        <source>The gear&apos;s image circle is used, though the photo&apos;s is elsewhere.</source>
        <translation>Se usa el círculo de imagen del equipo, aunque el de la foto está en otro sitio.</translation>
    </message>
    <message>
        <source>Take a piece of the sensor</source>
        <translation>Tomar una parte del sensor</translation>
    </message>
    <message>
        <source>Take the photo&apos;s circle</source>
        <translation>Tomar el círculo de la foto</translation>
    </message>
    <message>
        <source>Photos of the same camera, lens and size with another gear: %1</source>
        <translation>Fotos con la misma cámara, objetivo y tamaño y otro equipo: %1</translation>
    </message>
</context>
<context>
    <name>varnel::PictureArea</name>
    <message>
        <source>Add photos with &quot;Add image(s)&quot; or drop them here.</source>
        <translation>Añada fotos con «Añadir imágenes» o suéltelas aquí.</translation>
    </message>
    <message>
        <source>The converted picture appears here.</source>
        <translation>Aquí aparece la imagen convertida.</translation>
    </message>
    <message>
        <source>Photo as shot</source>
        <translation>Foto original</translation>
    </message>
    <message>
        <source>Converted picture</source>
        <translation>Imagen convertida</translation>
    </message>
    <message>
        <source>Plus and minus zoom, arrow keys move what is seen. While the image circle or the frame is shown on the photo, they change that.</source>
        <translation>Más y menos amplían y reducen, las flechas desplazan lo que se ve. Mientras el círculo de imagen o el marco se muestre en la foto, cambian este.</translation>
    </message>
    <message>
        <source>Plus and minus zoom, arrow keys move what is seen. In Rectilinear they turn the camera by a degree, with Alt by a tenth.</source>
        <translation>Más y menos amplían y reducen, las flechas desplazan lo que se ve. En Rectilinear giran la cámara un grado, con Alt una décima.</translation>
    </message>
</context>
<context>
    <name>varnel::PictureMenus</name>
    <message>
        <source>&amp;Show in folder</source>
        <translation>&amp;Mostrar en la carpeta</translation>
    </message>
</context>
<context>
    <name>varnel::PresetTools</name>
    <message>
        <source>&amp;Copy settings</source>
        <translation>&amp;Copiar ajustes</translation>
    </message>
    <message>
        <source>&amp;Paste settings</source>
        <translation>&amp;Pegar ajustes</translation>
    </message>
    <message>
        <source>Pr&amp;esets</source>
        <translation>Pr&amp;eajustes</translation>
    </message>
    <message>
        <source>&amp;Save as preset...</source>
        <translation>&amp;Guardar como preajuste...</translation>
    </message>
    <message>
        <source>&amp;Manage presets...</source>
        <translation>Ges&amp;tionar preajustes...</translation>
    </message>
    <message>
        <source>The photo&apos;s settings are on the clipboard</source>
        <translation>Los ajustes de la foto están en el portapapeles</translation>
    </message>
    <message>
        <source>The clipboard holds no settings of a photo</source>
        <translation>El portapapeles no contiene ajustes de una foto</translation>
    </message>
    <message>
        <source>Saving follows the preset &quot;%1&quot; from now on</source>
        <translation>Desde ahora se guarda según el preajuste «%1»</translation>
    </message>
</context>
<context>
    <name>varnel::ProjectTools</name>
    <message>
        <source>Open project...</source>
        <translation>Abrir proyecto...</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <source>Save project as...</source>
        <translation>Guardar proyecto como...</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Proyectos recientes</translation>
    </message>
    <message>
        <source>Could not open %1</source>
        <translation>No se pudo abrir %1</translation>
    </message>
    <message>
        <source>Some photos of the project are not where they were</source>
        <translation>Algunas fotos del proyecto no están donde estaban</translation>
    </message>
    <message>
        <source>Some settings of the project could not be used</source>
        <translation>Algunos ajustes del proyecto no se pudieron usar</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>No se pudo guardar %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 guardado</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... y %1 más</translation>
    </message>
</context>
<context>
    <name>varnel::ProjectionChooser</name>
    <message>
        <source>More</source>
        <translation>Más</translation>
    </message>
    <message>
        <source>The projections of the list beside it</source>
        <translation>Las proyecciones de la lista de al lado</translation>
    </message>
    <message>
        <source>More projections</source>
        <translation>Más proyecciones</translation>
    </message>
</context>
<context>
    <name>varnel::QueueModel</name>
    <message>
        <source>being converted</source>
        <translation>en conversión</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>escrita: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>falló: %1</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en espera</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>omitida</translation>
    </message>
</context>
<context>
    <name>varnel::ResetDot</name>
    <message>
        <source>Reset: %1</source>
        <translation>Restablecer: %1</translation>
    </message>
    <message>
        <source>Not the usual value; a click resets it</source>
        <translation>No es el valor habitual; un clic lo restablece</translation>
    </message>
</context>
<context>
    <name>varnel::ResetTools</name>
    <message>
        <source>Reset photo</source>
        <translation>Restablecer</translation>
    </message>
</context>
<context>
    <name>varnel::SampleTools</name>
    <message>
        <source>Open the sa&amp;mple</source>
        <translation>Abrir el e&amp;jemplo</translation>
    </message>
    <message>
        <source>The sample photo could not be made: %1 did not start.</source>
        <translation>La foto de ejemplo no se pudo hacer: %1 no se inició.</translation>
    </message>
    <message>
        <source>Drawing the sample photo, which takes a few seconds ...</source>
        <translation>Dibujando la foto de ejemplo, tarda unos segundos...</translation>
    </message>
    <message>
        <source>The sample photo could not be made: %1</source>
        <translation>La foto de ejemplo no se pudo hacer: %1</translation>
    </message>
</context>
<context>
    <name>varnel::SavePanel</name>
    <message>
        <source>Save image as ...</source>
        <translation>Guardar imagen como...</translation>
    </message>
    <message>
        <source>Converts the current photo at full size and saves it</source>
        <translation>Convierte la foto actual a tamaño completo y la guarda</translation>
    </message>
    <message>
        <source>Add to batch que</source>
        <translation>Añadir a la cola</translation>
    </message>
    <message>
        <source>Queues every photo of the list with its present settings</source>
        <translation>Pone en la cola cada foto de la lista con sus ajustes actuales</translation>
    </message>
    <message>
        <source>Process batch que</source>
        <translation>Procesar la cola</translation>
    </message>
    <message>
        <source>Converts and saves everything that is queued</source>
        <translation>Convierte y guarda todo lo que hay en la cola</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save / batch process </source>
        <translation>Guardar / procesar la cola </translation>
    </message>
    <message>
        <source>What the saved picture usually takes in the file type of the defaults</source>
        <translation>Lo que suele ocupar la imagen guardada en el tipo de archivo predeterminado</translation>
    </message>
</context>
<context>
    <name>varnel::SaveTools</name>
    <message>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <source>Shows the saved picture in the file manager</source>
        <translation>Muestra la imagen guardada en el gestor de archivos</translation>
    </message>
</context>
<context>
    <name>varnel::SessionTools</name>
    <message>
        <source>The image list of a window that was not closed is damaged and cannot be opened</source>
        <translation>La lista de imágenes de una ventana que no se cerró está dañada y no se puede abrir</translation>
    </message>
    <message>
        <source>no folder can be made there</source>
        <translation>allí no se puede crear ninguna carpeta</translation>
    </message>
    <message>
        <source>The image list cannot be kept against a crash in %1</source>
        <translation>La lista de imágenes no se puede proteger de una caída en %1</translation>
    </message>
</context>
<context>
    <name>varnel::SheetTools</name>
    <message>
        <source>&amp;Contact sheet</source>
        <translation>Hoja de contac&amp;tos</translation>
    </message>
</context>
<context>
    <name>varnel::SizePanel</name>
    <message>
        <source>Size and crop</source>
        <translation>Tamaño y recorte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>As large as the photo, or another size or shape: type a width (4000), both sides (4000x3000) or a shape (16:9)</source>
        <translation>Tan grande como la foto, u otro tamaño o forma: escriba un ancho (4000), ambos lados (4000x3000) o una forma (16:9)</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>Como la foto</translation>
    </message>
    <message>
        <source>Square, 1:1</source>
        <translation>Cuadrado, 1:1</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Exterior</translation>
    </message>
    <message>
        <source>What the result has where the photo shows nothing; type a colour as #rrggbb. Transparent needs PNG or TIFF.</source>
        <translation>Lo que tiene el resultado donde la foto no muestra nada; escriba un color como #rrggbb. Transparente requiere PNG o TIFF.</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Negro</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparente</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanco</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Crop ...</source>
        <translation>Recortar...</translation>
    </message>
    <message>
        <source>Shows all of the result and what is cut out of it</source>
        <translation>Muestra todo el resultado y lo que se recorta de él</translation>
    </message>
    <message>
        <source>As sharp as the photo&apos;s middle</source>
        <translation>Tan nítido como el centro de la foto</translation>
    </message>
</context>
<context>
    <name>varnel::SizeTools</name>
    <message>
        <source>No size: %1. A width (4000), both sides (4000x3000) and a shape (16:9) are.</source>
        <translation>No es un tamaño: %1. Un ancho (4000), ambos lados (4000x3000) y una forma (16:9) lo son.</translation>
    </message>
    <message>
        <source>No colour: %1. One like #ff8000 is.</source>
        <translation>No es un color: %1. Uno como #ff8000 lo es.</translation>
    </message>
    <message>
        <source>%1 x %2, %3 as %4, %5</source>
        <translation>%1 x %2, %3 como %4, %5</translation>
    </message>
</context>
<context>
    <name>varnel::StraightenTools</name>
    <message>
        <source>St&amp;raighten...</source>
        <translation>&amp;Enderezar...</translation>
    </message>
    <message>
        <source>Measure a &amp;lens...</source>
        <translation>&amp;Medir un objetivo...</translation>
    </message>
    <message>
        <source>Open a photo first.</source>
        <translation>Abra primero una foto.</translation>
    </message>
    <message>
        <source>The photo has the measured lens; undo takes it back.</source>
        <translation>La foto tiene el objetivo medido; Deshacer lo retira.</translation>
    </message>
    <message>
        <source>%1 photos have the measured lens; undo takes it back.</source>
        <translation>%1 fotos tienen el objetivo medido; Deshacer lo retira.</translation>
    </message>
</context>
<context>
    <name>varnel::StretchView</name>
    <message>
        <source>The stretched picture and the curve of its stretch</source>
        <translation>La imagen estirada y la curva de su estiramiento</translation>
    </message>
    <message>
        <source>Open a photo or drop one here.</source>
        <translation>Abra una foto o suelte una aquí.</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>ancho</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>estrecho</translation>
    </message>
</context>
<context>
    <name>varnel::ThemeTools</name>
    <message>
        <source>As the &amp;system</source>
        <translation>Como el &amp;sistema</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
</context>
<context>
    <name>varnel::TimeLine</name>
    <message>
        <source>Time line of the film</source>
        <translation>Línea de tiempo de la película</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Evenly to the next key</source>
        <translation>Uniformemente hasta la clave siguiente</translation>
    </message>
    <message>
        <source>Slowly out and slowly in</source>
        <translation>Salida lenta y llegada lenta</translation>
    </message>
    <message>
        <source>Hold until the next key</source>
        <translation>Mantener hasta la clave siguiente</translation>
    </message>
    <message>
        <source>Remove the key</source>
        <translation>Quitar la clave</translation>
    </message>
</context>
<context>
    <name>varnel::ToolbarTools</name>
    <message>
        <source>Too&amp;lbar</source>
        <translation>&amp;Barra de herramientas</translation>
    </message>
    <message>
        <source>Te&amp;xt under the icons</source>
        <translation>Te&amp;xto bajo los iconos</translation>
    </message>
</context>
<context>
    <name>varnel::UndoTools</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Deshacer: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rehacer: %1</translation>
    </message>
</context>
<context>
    <name>varnel::ViewTools</name>
    <message>
        <source>S&amp;plit</source>
        <translation>&amp;Dos imágenes</translation>
    </message>
    <message>
        <source>Photo and result side by side</source>
        <translation>Foto y resultado lado a lado</translation>
    </message>
    <message>
        <source>Res&amp;ult</source>
        <translation>Res&amp;ultado</translation>
    </message>
    <message>
        <source>The result as large as possible, with the photo as a small picture on it</source>
        <translation>El resultado tan grande como sea posible, con la foto en pequeño encima</translation>
    </message>
    <message>
        <source>P&amp;hoto</source>
        <translation>F&amp;oto</translation>
    </message>
    <message>
        <source>The photo as shot as large as possible</source>
        <translation>La foto original tan grande como sea posible</translation>
    </message>
</context>
<context>
    <name>varnel::WalkTools</name>
    <message>
        <source>Pre&amp;vious photo</source>
        <translation>&amp;Foto anterior</translation>
    </message>
    <message>
        <source>N&amp;ext photo</source>
        <translation>Foto si&amp;guiente</translation>
    </message>
</context>
<context>
    <name>varnel::ZoomBar</name>
    <message>
        <source>Zoom</source>
        <translation>Ampliación</translation>
    </message>
    <message>
        <source>How large the pictures are shown, from the whole picture on</source>
        <translation>A qué tamaño se muestran las imágenes, desde la imagen entera</translation>
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
        <translation>A&amp;justar</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100 %</translation>
    </message>
    <message>
        <source>Zoom i&amp;n</source>
        <translation>Am&amp;pliar</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Reducir</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>&amp;Cuadrícula</translation>
    </message>
    <message>
        <source>Centre c&amp;ross</source>
        <translation>Cru&amp;z central</translation>
    </message>
    <message>
        <source>&amp;Before instead of after	B</source>
        <translation>A&amp;ntes en lugar de después	B</translation>
    </message>
</context>
</TS>
