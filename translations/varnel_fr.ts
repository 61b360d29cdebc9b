<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Batch</name>
    <message>
        <source>The folder %1 does not exist</source>
        <translation>Le dossier %1 n’existe pas</translation>
    </message>
    <message>
        <source>%1 is not a folder</source>
        <translation>%1 n’est pas un dossier</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1 (%2)</source>
        <translation>Impossible d’écrire dans le dossier %1 (%2)</translation>
    </message>
    <message>
        <source>1 name collides: of the images of one name only the last one stays.</source>
        <translation>1 nom est en double&#xa0;: des images de même nom, seule la dernière reste.</translation>
    </message>
    <message>
        <source>%1 names collide: of the images of one name only the last one stays.</source>
        <translation>%1 noms sont en double&#xa0;: des images de même nom, seule la dernière reste.</translation>
    </message>
    <message>
        <source>1 file in this folder will be replaced.</source>
        <translation>1 fichier de ce dossier sera remplacé.</translation>
    </message>
    <message>
        <source>%1 files in this folder will be replaced.</source>
        <translation>%1 fichiers de ce dossier seront remplacés.</translation>
    </message>
    <message>
        <source>The images may need up to %1, but only %2 are free there.</source>
        <translation>Les images peuvent demander jusqu’à %1, mais seuls %2 y sont libres.</translation>
    </message>
    <message>
        <source>could not write %1: %2</source>
        <translation>impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>1 file does not hold everything:</source>
        <translation>1 fichier ne contient pas tout&#xa0;:</translation>
    </message>
    <message>
        <source>%1 files do not hold everything:</source>
        <translation>%1 fichiers ne contiennent pas tout&#xa0;:</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>%1 of %2 images written into %3</source>
        <translation>%1 images sur %2 écrites dans %3</translation>
    </message>
    <message>
        <source>Stopped after %1</source>
        <translation>Arrêté après %1</translation>
    </message>
    <message>
        <source>1 image failed:</source>
        <translation>1 image a échoué&#xa0;:</translation>
    </message>
    <message>
        <source>%1 images failed:</source>
        <translation>%1 images ont échoué&#xa0;:</translation>
    </message>
    <message>
        <source>1 image is damaged and was written as far as it could be read:</source>
        <translation>1 image est endommagée et a été écrite dans la mesure où elle était lisible&#xa0;:</translation>
    </message>
    <message>
        <source>%1 images are damaged and were written as far as they could be read:</source>
        <translation>%1 images sont endommagées et ont été écrites dans la mesure où elles étaient lisibles&#xa0;:</translation>
    </message>
    <message>
        <source>1 file was replaced by a later image of the same name:</source>
        <translation>1 fichier a été remplacé par une image suivante de même nom&#xa0;:</translation>
    </message>
    <message>
        <source>%1 files were replaced by later images of the same name:</source>
        <translation>%1 fichiers ont été remplacés par des images suivantes de même nom&#xa0;:</translation>
    </message>
    <message>
        <source>%1 of %2 images</source>
        <translation>%1 images sur %2</translation>
    </message>
    <message>
        <source>about %1 seconds left</source>
        <translation>encore %1 secondes environ</translation>
    </message>
    <message>
        <source>about 1 minute left</source>
        <translation>encore 1 minute environ</translation>
    </message>
    <message>
        <source>about %1 minutes left</source>
        <translation>encore %1 minutes environ</translation>
    </message>
    <message>
        <source>about %1 hours left</source>
        <translation>encore %1 heures environ</translation>
    </message>
    <message>
        <source>%1 is the photo itself</source>
        <translation>%1 est la photo elle-même</translation>
    </message>
    <message>
        <source>%1 is one of the queued photos</source>
        <translation>%1 est l’une des photos de la file d’attente</translation>
    </message>
    <message>
        <source>the photo is damaged (%1) and does not replace the older %2</source>
        <translation>la photo est endommagée (%1) et ne remplace pas %2, plus ancien</translation>
    </message>
    <message>
        <source>%1 of %2 images written next to their photos</source>
        <translation>%1 images sur %2 écrites à côté de leurs photos</translation>
    </message>
    <message>
        <source>this program cannot write films</source>
        <translation>ce programme ne peut pas écrire de films</translation>
    </message>
</context>
<context>
    <name>Choices</name>
    <message>
        <source>Clockwise</source>
        <translation>Dans le sens horaire</translation>
    </message>
    <message>
        <source>Counter-clockwise</source>
        <translation>Dans le sens inverse</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Upward</source>
        <translation>Vers le haut</translation>
    </message>
    <message>
        <source>Downward</source>
        <translation>Vers le bas</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>Which way round the photo the unrolled picture goes from left to right</source>
        <translation>Dans quel sens l’image déroulée fait le tour de la photo, de gauche à droite</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Repères</translation>
    </message>
    <message>
        <source>Draws N, E, S and W and the angles into the unrolled picture</source>
        <translation>Dessine N, E, S, W et les angles dans l’image déroulée</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>How the camera was held when the photo was taken</source>
        <translation>Comment l’appareil était tenu à la prise de vue</translation>
    </message>
    <message>
        <source>Tunnel</source>
        <translation>Tunnel</translation>
    </message>
    <message>
        <source>Looks the other way: the sky in the middle, the ground around it</source>
        <translation>Regarde de l’autre côté : le ciel au milieu, le sol autour</translation>
    </message>
</context>
<context>
    <name>DividerOverlay</name>
    <message>
        <source>before</source>
        <translation>avant</translation>
    </message>
    <message>
        <source>after</source>
        <translation>après</translation>
    </message>
    <message>
        <source>classic</source>
        <translation>classique</translation>
    </message>
    <message>
        <source>fine</source>
        <translation>fin</translation>
    </message>
</context>
<context>
    <name>FilmKeys</name>
    <message>
        <source>there is %1</source>
        <translation>il y a %1</translation>
    </message>
    <message>
        <source>did you mean &quot;%1&quot;?</source>
        <translation>vouliez-vous dire « %1 » ?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; means nothing here; %2</source>
        <translation>« %1 » ne veut rien dire ici ; %2</translation>
    </message>
    <message>
        <source>&quot;time&quot; must be a number of seconds from 0 to %1</source>
        <translation>« time » doit être un nombre de secondes de 0 à %1</translation>
    </message>
    <message>
        <source>&quot;ease&quot; must be linear, ease or hold</source>
        <translation>« ease » doit être linear, ease ou hold</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no setting that moves; %2</source>
        <translation>« %1 » n’est pas un réglage qui évolue ; %2</translation>
    </message>
    <message>
        <source>the value of %1 must be a number</source>
        <translation>la valeur de %1 doit être un nombre</translation>
    </message>
    <message>
        <source>&quot;set&quot; must hold settings and their numbers</source>
        <translation>« set » doit contenir des réglages et leurs nombres</translation>
    </message>
    <message>
        <source>it must be an object with time and set</source>
        <translation>elle doit être un objet avec time et set</translation>
    </message>
    <message>
        <source>it is not JSON: %1 at byte %2</source>
        <translation>ce n’est pas du JSON : %1 à l’octet %2</translation>
    </message>
    <message>
        <source>it has no list &quot;keys&quot;</source>
        <translation>il n’a pas de liste « keys »</translation>
    </message>
    <message>
        <source>key %1: %2</source>
        <translation>clé %1 : %2</translation>
    </message>
    <message>
        <source>there are two keys at %1 seconds</source>
        <translation>il y a deux clés à %1 secondes</translation>
    </message>
</context>
<context>
    <name>FormAbout</name>
    <message>
        <source>About Varnel</source>
        <translation>À propos de Varnel</translation>
    </message>
    <message>
        <source>The program&apos;s picture</source>
        <translation>L’image du programme</translation>
    </message>
    <message>
        <source>The version to name when you report a problem</source>
        <translation>La version à indiquer quand vous signalez un problème</translation>
    </message>
    <message>
        <source>Converts fisheye photographs into other projections.</source>
        <translation>Convertit les photos fisheye en d’autres projections.</translation>
    </message>
    <message>
        <source>© Varnel developers
Licence: GPL-3.0-or-later. This program comes without any warranty.</source>
        <translation>© Varnel developers
Licence&#xa0;: GPL-3.0-or-later. Ce programme est fourni sans aucune garantie.</translation>
    </message>
    <message>
        <source>The image library that reads and writes your photos</source>
        <translation>La bibliothèque d’images qui lit et écrit vos photos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back to your photos</source>
        <translation>Retour à vos photos</translation>
    </message>
    <message>
        <source>Lens data</source>
        <translation>Données d’objectifs</translation>
    </message>
    <message>
        <source>Varnel&apos;s own catalogue has Varnel&apos;s licence. The lenses of the brand lensfun, and those that were taken from it into My lenses, are from the database of lensfun, © its contributors, licence CC BY-SA 3.0: whoever passes them on names them and keeps the licence. Lenses from other files have the licences of those files; the gear editor shows where each one comes from.</source>
        <translation>Le catalogue propre de Varnel est sous la licence de Varnel. Les objectifs de la marque lensfun, et ceux qui en ont été repris sous «&#xa0;My lenses&#xa0;», viennent de la base de données de lensfun, © ses contributeurs, licence CC BY-SA 3.0&#xa0;: qui les transmet les nomme et garde la licence. Les objectifs d’autres fichiers ont les licences de ces fichiers&#xa0;; l’éditeur d’équipement montre d’où vient chacun.</translation>
    </message>
</context>
<context>
    <name>FormAddImages</name>
    <message>
        <source>Add image(s)</source>
        <translation>Ajouter des images</translation>
    </message>
    <message>
        <source>&amp;Drive</source>
        <translation>&amp;Lecteur</translation>
    </message>
    <message>
        <source>The disk or memory card that your photos are on</source>
        <translation>Le disque ou la carte mémoire où se trouvent vos photos</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>&amp;Home</source>
        <translation>Dossier &amp;personnel</translation>
    </message>
    <message>
        <source>Go to your own folder</source>
        <translation>Aller à votre dossier personnel</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>Dossier personnel</translation>
    </message>
    <message>
        <source>&amp;Pictures</source>
        <translation>&amp;Images</translation>
    </message>
    <message>
        <source>Go to your folder of pictures</source>
        <translation>Aller à votre dossier d’images</translation>
    </message>
    <message>
        <source>Pictures folder</source>
        <translation>Dossier d’images</translation>
    </message>
    <message>
        <source>The folder whose photos are shown</source>
        <translation>Le dossier dont les photos sont affichées</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>Dossiers</translation>
    </message>
    <message>
        <source>The folder that is shown</source>
        <translation>Le dossier affiché</translation>
    </message>
    <message>
        <source>How many files are selected</source>
        <translation>Combien de fichiers sont sélectionnés</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Select one or more files; double-click adds one at once</source>
        <translation>Sélectionnez un ou plusieurs fichiers&#x202f;; un double-clic en ajoute un aussitôt</translation>
    </message>
    <message>
        <source>Ph&amp;otos (*.jpg;*.tif;*.png;*.bmp;*.dng)</source>
        <translation>Ph&amp;otos (*.jpg;*.tif;*.png;*.bmp;*.dng)</translation>
    </message>
    <message>
        <source>Show the files that are photos by their names</source>
        <translation>Afficher les fichiers qui sont des photos d’après leur nom</translation>
    </message>
    <message>
        <source>Show photos only</source>
        <translation>Afficher les photos seulement</translation>
    </message>
    <message>
        <source>All &amp;files (*.*)</source>
        <translation>&amp;Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <source>Show every file, also photos with other endings</source>
        <translation>Afficher tous les fichiers, y compris les photos avec d’autres extensions</translation>
    </message>
    <message>
        <source>Show all files</source>
        <translation>Afficher tous les fichiers</translation>
    </message>
    <message>
        <source>&amp;Add image(s)</source>
        <translation>&amp;Ajouter des images</translation>
    </message>
    <message>
        <source>Put the selected files into your list of photos</source>
        <translation>Mettre les fichiers sélectionnés dans votre liste de photos</translation>
    </message>
    <message>
        <source>Add the selected images</source>
        <translation>Ajouter les images sélectionnées</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Back without adding anything</source>
        <translation>Revenir sans rien ajouter</translation>
    </message>
</context>
<context>
    <name>FormBatch</name>
    <message>
        <source>Process batch que</source>
        <translation>Traiter la file d’attente</translation>
    </message>
    <message>
        <source>Queued images</source>
        <translation>Images en attente</translation>
    </message>
    <message>
        <source>Output folder</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>&amp;Drive</source>
        <translation>&amp;Lecteur</translation>
    </message>
    <message>
        <source>The disk or memory card that the images go to</source>
        <translation>Le disque ou la carte mémoire où vont les images</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Lecteur</translation>
    </message>
    <message>
        <source>&amp;New folder</source>
        <translation>&amp;Nouveau dossier</translation>
    </message>
    <message>
        <source>Make a folder in the chosen one and give it a name</source>
        <translation>Créer un dossier dans le dossier choisi et lui donner un nom</translation>
    </message>
    <message>
        <source>New folder</source>
        <translation>Nouveau dossier</translation>
    </message>
    <message>
        <source>The folder that the images are written to</source>
        <translation>Le dossier où les images sont écrites</translation>
    </message>
    <message>
        <source>The chosen output folder</source>
        <translation>Le dossier de destination choisi</translation>
    </message>
    <message>
        <source>Saved photos</source>
        <translation>Photos enregistrées</translation>
    </message>
    <message>
        <source>Name additions</source>
        <translation>Ajouts aux noms</translation>
    </message>
    <message>
        <source>&amp;Summary</source>
        <translation>&amp;Résumé</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy the summary, to keep it or to send it</source>
        <translation>Copier le résumé, pour le garder ou l’envoyer</translation>
    </message>
    <message>
        <source>Copy the summary</source>
        <translation>Copier le résumé</translation>
    </message>
    <message>
        <source>Summary of the run</source>
        <translation>Résumé du traitement</translation>
    </message>
    <message>
        <source>Names that collide or exist already</source>
        <translation>Noms en double ou déjà pris</translation>
    </message>
    <message>
        <source>Whether there is room enough</source>
        <translation>S’il y a assez de place</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>The image that is being written</source>
        <translation>L’image en cours d’écriture</translation>
    </message>
    <message>
        <source>How far this image is</source>
        <translation>Où en est cette image</translation>
    </message>
    <message>
        <source>Progress of this image</source>
        <translation>Progression de cette image</translation>
    </message>
    <message>
        <source>How many images are done</source>
        <translation>Combien d’images sont prêtes</translation>
    </message>
    <message>
        <source>How long it will take</source>
        <translation>Combien de temps cela prendra</translation>
    </message>
    <message>
        <source>How far the whole run is</source>
        <translation>Où en est tout le traitement</translation>
    </message>
    <message>
        <source>Progress of the whole run</source>
        <translation>Progression de tout le traitement</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Finish the image at hand and leave out the others</source>
        <translation>Terminer l’image en cours et laisser les autres</translation>
    </message>
    <message>
        <source>Clear batch que</source>
        <translation>Vider la file d’attente</translation>
    </message>
    <message>
        <source>Take all images out of the queue; the photos stay</source>
        <translation>Retirer toutes les images de la file d’attente&#x202f;; les photos restent</translation>
    </message>
    <message>
        <source>Convert every queued image and write it to the output folder</source>
        <translation>Convertir chaque image de la file et l’écrire dans le dossier de destination</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Back to the main window; the queue stays as it is</source>
        <translation>Retour à la fenêtre principale&#x202f;; la file d’attente reste telle quelle</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Montrer dans le &amp;dossier</translation>
    </message>
    <message>
        <source>Show the written images in the file manager</source>
        <translation>Montrer les images écrites dans le gestionnaire de fichiers</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Montrer dans le dossier</translation>
    </message>
    <message>
        <source>&amp;Go on editing</source>
        <translation>Contin&amp;uer l’édition</translation>
    </message>
    <message>
        <source>Back to the main window; the run goes on meanwhile</source>
        <translation>Retour à la fenêtre principale&#x202f;; le traitement continue pendant ce temps</translation>
    </message>
    <message>
        <source>Go on editing</source>
        <translation>Continuer l’édition</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Hold the run where it is, and let it go on</source>
        <translation>Suspendre le traitement, et le laisser reprendre</translation>
    </message>
</context>
<context>
    <name>FormGearEdit</name>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>The name under which you will choose this combination for your photos. Without one it is named after camera and lens.</source>
        <translation>Le nom sous lequel vous choisirez cette combinaison pour vos photos. Sans nom, elle porte ceux de l’appareil et de l’objectif.</translation>
    </message>
    <message>
        <source>Name of the gear</source>
        <translation>Nom de l’équipement</translation>
    </message>
    <message>
        <source>Enter gear name here</source>
        <translation>Nom de l’équipement</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>&amp;Brand</source>
        <translation>&amp;Marque</translation>
    </message>
    <message>
        <source>The maker of the camera, or its sensor size if the camera is not listed</source>
        <translation>Le fabricant de l’appareil, ou la taille de son capteur si l’appareil n’est pas dans la liste</translation>
    </message>
    <message>
        <source>Camera brand</source>
        <translation>Marque de l’appareil</translation>
    </message>
    <message>
        <source>Choose a brand</source>
        <translation>Choisir une marque</translation>
    </message>
    <message>
        <source>&amp;Model</source>
        <translation>M&amp;odèle</translation>
    </message>
    <message>
        <source>The camera that took the photos; it sets the size of the sensor</source>
        <translation>L’appareil qui a pris les photos&#x202f;; il fixe la taille du capteur</translation>
    </message>
    <message>
        <source>Camera model</source>
        <translation>Modèle de l’appareil</translation>
    </message>
    <message>
        <source>Choose a model</source>
        <translation>Choisir un modèle</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <source>B&amp;rand</source>
        <translation>M&amp;arque</translation>
    </message>
    <message>
        <source>The maker of the fisheye lens</source>
        <translation>Le fabricant de l’objectif fisheye</translation>
    </message>
    <message>
        <source>Lens brand</source>
        <translation>Marque de l’objectif</translation>
    </message>
    <message>
        <source>Mo&amp;del</source>
        <translation>Mo&amp;dèle</translation>
    </message>
    <message>
        <source>The fisheye lens; a zoom is listed once for every focal length</source>
        <translation>L’objectif fisheye&#x202f;; un zoom figure une fois pour chaque distance focale</translation>
    </message>
    <message>
        <source>Lens model</source>
        <translation>Modèle de l’objectif</translation>
    </message>
    <message>
        <source>Fine adjustment</source>
        <translation>Réglage fin</translation>
    </message>
    <message>
        <source>Horizontal angle of &amp;view</source>
        <translation>Angle de c&amp;hamp horizontal</translation>
    </message>
    <message>
        <source>How much of the scene a landscape photo shows from its left to its right edge; the catalogue tells it unless you move it</source>
        <translation>Ce qu’une photo en mode paysage montre de la scène, du bord gauche au bord droit&#x202f;; le catalogue l’indique tant que vous ne le changez pas</translation>
    </message>
    <message>
        <source>Horizontal angle of view in degrees</source>
        <translation>Angle de champ horizontal en degrés</translation>
    </message>
    <message>
        <source>Horizontal angle of view in degrees, exact value</source>
        <translation>Angle de champ horizontal en degrés, valeur exacte</translation>
    </message>
    <message>
        <source>Sensor &amp;width / image circle</source>
        <translation>Largeur du ca&amp;pteur / cercle image</translation>
    </message>
    <message>
        <source>The width of the sensor compared with the circle that the lens draws; raise it when the circle in the photo is smaller than expected</source>
        <translation>La largeur du capteur par rapport au cercle que dessine l’objectif&#x202f;; augmentez-la quand le cercle est plus petit que prévu dans la photo</translation>
    </message>
    <message>
        <source>Sensor width in percent of the image circle</source>
        <translation>Largeur du capteur en pourcentage du cercle image</translation>
    </message>
    <message>
        <source>Sensor width in percent of the image circle, exact value</source>
        <translation>Largeur du capteur en pourcentage du cercle image, valeur exacte</translation>
    </message>
    <message>
        <source>Circle off centre, &amp;horizontally</source>
        <translation>Cercle décentré, hori&amp;zontalement</translation>
    </message>
    <message>
        <source>How far the middle of the image circle lies from the middle of the photo, in thousandths of its width</source>
        <translation>À quelle distance du milieu de la photo se trouve le centre du cercle image, en millièmes de sa largeur</translation>
    </message>
    <message>
        <source>Horizontal offset of the image circle in thousandths</source>
        <translation>Décalage horizontal du cercle image en millièmes</translation>
    </message>
    <message>
        <source>Horizontal offset of the image circle in thousandths, exact value</source>
        <translation>Décalage horizontal du cercle image en millièmes, valeur exacte</translation>
    </message>
    <message>
        <source>Circle off centre, ver&amp;tically</source>
        <translation>Cercle décentré, &amp;verticalement</translation>
    </message>
    <message>
        <source>How far the middle of the image circle lies from the middle of the photo, in thousandths of its height</source>
        <translation>À quelle distance du milieu de la photo se trouve le centre du cercle image, en millièmes de sa hauteur</translation>
    </message>
    <message>
        <source>Vertical offset of the image circle in thousandths</source>
        <translation>Décalage vertical du cercle image en millièmes</translation>
    </message>
    <message>
        <source>Vertical offset of the image circle in thousandths, exact value</source>
        <translation>Décalage vertical du cercle image en millièmes, valeur exacte</translation>
    </message>
    <message>
        <source>&amp;Catalogue values</source>
        <translation>Valeurs du &amp;catalogue</translation>
    </message>
    <message>
        <source>Forget your own values and take those of the catalogue for this camera and lens</source>
        <translation>Oublier vos valeurs et prendre celles du catalogue pour cet appareil et cet objectif</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Keep this combination of camera and lens</source>
        <translation>Garder cette combinaison d’appareil et d’objectif</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close without a change</source>
        <translation>Fermer sans rien changer</translation>
    </message>
    <message>
        <source>Read &amp;from a photo ...</source>
        <translation>&amp;Lire dans une photo...</translation>
    </message>
    <message>
        <source>Take the camera and the lens that the EXIF of a photo names</source>
        <translation>Prendre l’appareil et l’objectif que nomme l’EXIF d’une photo</translation>
    </message>
    <message>
        <source>Not listed: a t&amp;ypical fisheye</source>
        <translation>Absent&#xa0;: fisheye t&amp;ypique</translation>
    </message>
    <message>
        <source>A fisheye of 180 degrees stands in for a lens that is not listed; measure it later from a photo</source>
        <translation>Un fisheye de 180 degrés remplace un objectif absent de la liste&#x202f;; mesurez-le plus tard sur une photo</translation>
    </message>
    <message>
        <source>My len&amp;ses</source>
        <translation>Mes ob&amp;jectifs</translation>
    </message>
    <message>
        <source>Import a calibrated lens; rename, export or delete one of your own. Files may be dropped here, too.</source>
        <translation>Importer un objectif calibré&#x202f;; renommer, exporter ou supprimer l’un des vôtres. Vous pouvez aussi déposer des fichiers ici.</translation>
    </message>
    <message>
        <source>New name of the lens</source>
        <translation>Nouveau nom de l’objectif</translation>
    </message>
    <message>
        <source>The name under which the lens is listed; gears that have it follow</source>
        <translation>Le nom sous lequel l’objectif figure dans la liste&#x202f;; les équipements qui l’utilisent suivent</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Give the lens this name now</source>
        <translation>Donner maintenant ce nom à l’objectif</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Take the deleted lens back</source>
        <translation>Reprendre l’objectif supprimé</translation>
    </message>
    <message>
        <source>How far the optical axis lies from where the lens or the middle of the photo puts it, in thousandths of its width</source>
        <translation>À quelle distance l’axe optique se trouve de l’endroit où le place l’objectif ou le milieu de la photo, en millièmes de sa largeur</translation>
    </message>
    <message>
        <source>Horizontal offset of the optical axis in thousandths, exact value</source>
        <translation>Décalage horizontal de l’axe optique en millièmes, valeur exacte</translation>
    </message>
    <message>
        <source>How far the optical axis lies from where the lens or the middle of the photo puts it, in thousandths of its height</source>
        <translation>À quelle distance l’axe optique se trouve de l’endroit où le place l’objectif ou le milieu de la photo, en millièmes de sa hauteur</translation>
    </message>
    <message>
        <source>Vertical offset of the optical axis in thousandths, exact value</source>
        <translation>Décalage vertical de l’axe optique en millièmes, valeur exacte</translation>
    </message>
    <message>
        <source>Curve of the &amp;lens, A (mm) and B</source>
        <translation>Cour&amp;be de l’objectif, A (mm) et B</translation>
    </message>
    <message>
        <source>The first of the two numbers of the lens: how far from the centre rays land</source>
        <translation>Le premier des deux nombres de l’objectif&#xa0;: à quelle distance du centre les rayons arrivent</translation>
    </message>
    <message>
        <source>A of the lens in millimetres</source>
        <translation>A de l’objectif en millimètres</translation>
    </message>
    <message>
        <source>The second of the two numbers of the lens: how much it squeezes towards the rim</source>
        <translation>Le second des deux nombres de l’objectif&#xa0;: combien il comprime vers le bord</translation>
    </message>
    <message>
        <source>B of the lens</source>
        <translation>B de l’objectif</translation>
    </message>
    <message>
        <source>Small result</source>
        <translation>Petit résultat</translation>
    </message>
    <message>
        <source>What these numbers make of a photo</source>
        <translation>Ce que ces nombres font d’une photo</translation>
    </message>
    <message>
        <source>The projection of the small result: Rectilinear shows whether lines are straight, Varnel and Horizon where the circle lies</source>
        <translation>La projection du petit résultat&#xa0;: Rectilinear montre si les lignes sont droites, Varnel et Horizon où se trouve le cercle</translation>
    </message>
    <message>
        <source>Projection of the small result</source>
        <translation>Projection du petit résultat</translation>
    </message>
</context>
<context>
    <name>FormGearList</name>
    <message>
        <source>Camera + lens combinations</source>
        <translation>Combinaisons appareil + objectif</translation>
    </message>
    <message>
        <source>Your combinations of camera and lens; double-click one to redefine it</source>
        <translation>Vos combinaisons d’appareil et d’objectif&#x202f;; un double-clic en modifie une</translation>
    </message>
    <message>
        <source>Add new</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Define another combination of camera and lens</source>
        <translation>Définir une autre combinaison d’appareil et d’objectif</translation>
    </message>
    <message>
        <source>Redefine</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Change the selected combination</source>
        <translation>Modifier la combinaison sélectionnée</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Take the selected combination off the list (Del)</source>
        <translation>Retirer de la liste la combinaison sélectionnée (Suppr)</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save the list and close</source>
        <translation>Enregistrer la liste et fermer</translation>
    </message>
    <message>
        <source>New photos get the combination in bold. Changes are saved with OK.</source>
        <translation>Les nouvelles photos reçoivent la combinaison en gras. OK enregistre les changements.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close and leave all combinations as they were (Esc)</source>
        <translation>Fermer et laisser toutes les combinaisons telles qu’elles étaient (Échap)</translation>
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
        <translation>Première image</translation>
    </message>
    <message>
        <source>Last image</source>
        <translation>Dernière image</translation>
    </message>
    <message>
        <source>First image of the sequence</source>
        <translation>Première image de la séquence</translation>
    </message>
    <message>
        <source>An image between the first and the last</source>
        <translation>Une image entre la première et la dernière</translation>
    </message>
    <message>
        <source>Last image of the sequence</source>
        <translation>Dernière image de la séquence</translation>
    </message>
    <message>
        <source>Runs through the sequence: the picture in the middle shows the image at this place</source>
        <translation>Parcourt la séquence&#xa0;: l’image du milieu montre celle de cet endroit</translation>
    </message>
    <message>
        <source>Image shown between the first and the last</source>
        <translation>Image affichée entre la première et la dernière</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>&amp;Number of images</source>
        <translation>&amp;Nombre d’images</translation>
    </message>
    <message>
        <source>How many images the sequence has, the first and the last included</source>
        <translation>Combien d’images compte la séquence, la première et la dernière comprises</translation>
    </message>
    <message>
        <source>Number of images</source>
        <translation>Nombre d’images</translation>
    </message>
    <message>
        <source>What was added</source>
        <translation>Ce qui a été ajouté</translation>
    </message>
    <message>
        <source>&amp;Add to batch que</source>
        <translation>&amp;Ajouter à la file d’attente</translation>
    </message>
    <message>
        <source>Puts every image of the sequence into the batch queue, where &quot;Process batch que&quot; writes them</source>
        <translation>Met chaque image de la séquence dans la file d’attente, où «&#xa0;Traiter la file d’attente&#xa0;» les écrit</translation>
    </message>
    <message>
        <source>Add the sequence to the batch queue</source>
        <translation>Ajouter la séquence à la file d’attente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back to the photos; what was added stays in the queue</source>
        <translation>Retour aux photos&#x202f;; ce qui a été ajouté reste dans la file</translation>
    </message>
    <message>
        <source>&amp;Write as film</source>
        <translation>Écrire comme &amp;film</translation>
    </message>
    <message>
        <source>The images become one film at once instead of pictures in the batch queue</source>
        <translation>Les images deviennent aussitôt un film au lieu d’images dans la file du lot</translation>
    </message>
    <message>
        <source>Images in a second of the film</source>
        <translation>Images dans une seconde du film</translation>
    </message>
    <message>
        <source>How many images the film shows in a second</source>
        <translation>Combien d’images le film montre en une seconde</translation>
    </message>
    <message>
        <source> images a second</source>
        <translation> images par seconde</translation>
    </message>
    <message>
        <source>Images written</source>
        <translation>Images écrites</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stops writing the film; nothing of it is kept</source>
        <translation>Arrête d’écrire le film ; rien n’en est gardé</translation>
    </message>
</context>
<context>
    <name>FormPresets</name>
    <message>
        <source>Manage presets</source>
        <translation>Gérer les préréglages</translation>
    </message>
    <message>
        <source>Your own presets; double-click one to rename it</source>
        <translation>Vos préréglages&#x202f;; un double-clic en renomme un</translation>
    </message>
    <message>
        <source>Your presets</source>
        <translation>Vos préréglages</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Give the selected preset another name (F2)</source>
        <translation>Donner un autre nom au préréglage sélectionné (F2)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Delete the selected preset (Del); it can be brought back</source>
        <translation>Supprimer le préréglage sélectionné (Suppr)&#x202f;; on peut le reprendre</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>Add the presets of a file</source>
        <translation>Ajouter les préréglages d’un fichier</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Write all your presets into a file</source>
        <translation>Écrire tous vos préréglages dans un fichier</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Changes are saved already</source>
        <translation>Les changements sont déjà enregistrés</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Bring the deleted preset back</source>
        <translation>Reprendre le préréglage supprimé</translation>
    </message>
</context>
<context>
    <name>FormSavePreset</name>
    <message>
        <source>Save as preset</source>
        <translation>Enregistrer comme préréglage</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Nom</translation>
    </message>
    <message>
        <source>Under this name the preset stands in the Edit menu, and for varnel-convert --preset</source>
        <translation>Le préréglage porte ce nom dans le menu Édition, et pour varnel-convert --preset</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <source>What the preset sets; gear and circle stay each photo&apos;s own:</source>
        <translation>Ce que fixe le préréglage&#x202f;; équipement et cercle restent ceux de chaque photo&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Projection and its effect</source>
        <translation>&amp;Projection et son effet</translation>
    </message>
    <message>
        <source>The projection, and how strong it is</source>
        <translation>La projection et sa force</translation>
    </message>
    <message>
        <source>Output &amp;angle</source>
        <translation>&amp;Angle de sortie</translation>
    </message>
    <message>
        <source>The angle of view of the result</source>
        <translation>L’angle de champ du résultat</translation>
    </message>
    <message>
        <source>&amp;Rotation of the camera</source>
        <translation>&amp;Rotation de l’appareil</translation>
    </message>
    <message>
        <source>All three rotations, also where they are 0</source>
        <translation>Les trois rotations, même celles à 0</translation>
    </message>
    <message>
        <source>&amp;Shift of the image</source>
        <translation>&amp;Décalage de l’image</translation>
    </message>
    <message>
        <source>Both shifts, also where they are 0</source>
        <translation>Les deux décalages, même à 0</translation>
    </message>
    <message>
        <source>&amp;Output</source>
        <translation>&amp;Sortie</translation>
    </message>
    <message>
        <source>File type, quality, colour, metadata and names of saved photos</source>
        <translation>Type de fichier, qualité, couleur, métadonnées et noms des photos enregistrées</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Close without a preset (Esc)</source>
        <translation>Fermer sans préréglage (Échap)</translation>
    </message>
</context>
<context>
    <name>FormSetup</name>
    <message>
        <source>Defaults</source>
        <translation>Valeurs par défaut</translation>
    </message>
    <message>
        <source>Default gear</source>
        <translation>Équipement par défaut</translation>
    </message>
    <message>
        <source>&amp;Camera + lens combination</source>
        <translation>&amp;Appareil + objectif</translation>
    </message>
    <message>
        <source>The camera and lens that your photos were taken with, unless you choose another</source>
        <translation>L’appareil et l’objectif avec lesquels vos photos ont été prises, sauf autre choix de votre part</translation>
    </message>
    <message>
        <source>Default camera and lens combination</source>
        <translation>Combinaison appareil + objectif par défaut</translation>
    </message>
    <message>
        <source>Preview size</source>
        <translation>Taille de l’aperçu</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Largeur</translation>
    </message>
    <message>
        <source>How wide the previews may become; smaller previews follow the sliders faster</source>
        <translation>Largeur maximale des aperçus&#x202f;; des aperçus plus petits suivent les curseurs plus vite</translation>
    </message>
    <message>
        <source>Preview width in pixels</source>
        <translation>Largeur de l’aperçu en pixels</translation>
    </message>
    <message>
        <source>&amp;Height</source>
        <translation>&amp;Hauteur</translation>
    </message>
    <message>
        <source>How high the previews may become; smaller previews follow the sliders faster</source>
        <translation>Hauteur maximale des aperçus&#x202f;; des aperçus plus petits suivent les curseurs plus vite</translation>
    </message>
    <message>
        <source>Preview height in pixels</source>
        <translation>Hauteur de l’aperçu en pixels</translation>
    </message>
    <message>
        <source>Opened photos</source>
        <translation>Photos ouvertes</translation>
    </message>
    <message>
        <source>Turn photos upright</source>
        <translation>Redresser les photos tournées</translation>
    </message>
    <message>
        <source>Photos that were taken with the camera on its side stand upright, as the camera noted it</source>
        <translation>Les photos prises avec l’appareil sur le côté sont mises debout, comme l’appareil l’a noté</translation>
    </message>
    <message>
        <source>Offer the gear that a photo tells</source>
        <translation>Proposer l’équipement indiqué par la photo</translation>
    </message>
    <message>
        <source>When a photo tells its camera and lens, the matching gear is offered; you decide</source>
        <translation>Quand une photo indique son appareil et son objectif, l’équipement qui convient est proposé&#x202f;; vous décidez</translation>
    </message>
    <message>
        <source>Saved photos</source>
        <translation>Photos enregistrées</translation>
    </message>
    <message>
        <source>File &amp;type</source>
        <translation>&amp;Type de fichier</translation>
    </message>
    <message>
        <source>The file type that is proposed when you save: TIFF and PNG keep every detail, JPEG makes small files</source>
        <translation>Le type de fichier proposé à l’enregistrement&#xa0;: TIFF et PNG gardent chaque détail, JPEG donne de petits fichiers</translation>
    </message>
    <message>
        <source>File type of saved photos</source>
        <translation>Type de fichier des photos enregistrées</translation>
    </message>
    <message>
        <source>JPEG &amp;quality</source>
        <translation>&amp;Qualité JPEG</translation>
    </message>
    <message>
        <source>100 keeps the most detail, lower values make smaller JPEG files</source>
        <translation>100 garde le plus de détails, des valeurs plus basses donnent des fichiers JPEG plus petits</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 100</source>
        <translation>Qualité JPEG, de 1 à 100</translation>
    </message>
    <message>
        <source>Full colour resolution (4:4:4)</source>
        <translation>Pleine résolution des couleurs (4:4:4)</translation>
    </message>
    <message>
        <source>Fine coloured detail stays sharp in JPEG files, which become larger</source>
        <translation>Les fins détails colorés restent nets dans les fichiers JPEG, qui deviennent plus gros</translation>
    </message>
    <message>
        <source>Keep the photo&apos;s metadata</source>
        <translation>Garder les métadonnées de la photo</translation>
    </message>
    <message>
        <source>Camera, lens, date, place, captions and keywords (EXIF, IPTC, XMP) go into the saved file; the colour profile always does</source>
        <translation>Appareil, objectif, date, lieu, légendes et mots-clés (EXIF, IPTC, XMP) vont dans le fichier enregistré&#x202f;; le profil de couleur toujours</translation>
    </message>
    <message>
        <source>Write the settings into the picture</source>
        <translation>Écrire les réglages dans l’image</translation>
    </message>
    <message>
        <source>Projection, gear and adjustments are written into the saved file, so that they can be had back from it; the photo&apos;s name is among them and, while its metadata are kept, where it lies beside the file</source>
        <translation>La projection, l’équipement et les ajustements sont écrits dans le fichier enregistré, d’où l’on peut les reprendre&#x202f;; le nom de la photo en fait partie et, tant que ses métadonnées sont gardées, son emplacement par rapport au fichier</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>Lan&amp;gue</translation>
    </message>
    <message>
        <source>The language of menus, buttons and messages; names and file names stay as they are</source>
        <translation>La langue des menus, des boutons et des messages&#x202f;; les noms et les noms de fichiers restent tels quels</translation>
    </message>
    <message>
        <source>Language of the window</source>
        <translation>Langue de la fenêtre</translation>
    </message>
    <message>
        <source>Saved as default, it changes at the next start.</source>
        <translation>Enregistrée par défaut, elle change au prochain démarrage.</translation>
    </message>
    <message>
        <source>&amp;Save as default</source>
        <translation>&amp;Enregistrer par défaut</translation>
    </message>
    <message>
        <source>Use these values now and at every start of Varnel</source>
        <translation>Utiliser ces valeurs maintenant et à chaque démarrage de Varnel</translation>
    </message>
    <message>
        <source>Save as default</source>
        <translation>Enregistrer par défaut</translation>
    </message>
    <message>
        <source>Whether the defaults were saved</source>
        <translation>Si les valeurs par défaut ont été enregistrées</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Use these values until Varnel is closed</source>
        <translation>Utiliser ces valeurs jusqu’à la fermeture de Varnel</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Leave everything as it was</source>
        <translation>Tout laisser tel quel</translation>
    </message>
    <message>
        <source>Give added photos their own gear</source>
        <translation>Donner aux photos ajoutées leur équipement</translation>
    </message>
    <message>
        <source>Photos that are added get the gear that they tell, or a typical fisheye as a guess; otherwise the default gear, and their own is only offered</source>
        <translation>Les photos ajoutées reçoivent l’équipement qu’elles indiquent, ou un fisheye typique supposé&#x202f;; sinon l’équipement par défaut, et le leur est seulement proposé</translation>
    </message>
    <message>
        <source>TIFF c&amp;ompression</source>
        <translation>C&amp;ompression TIFF</translation>
    </message>
    <message>
        <source>All of them keep every value; automatic is LZW for 8 bits and Deflate for more, which LZW would make larger</source>
        <translation>Toutes gardent chaque valeur ; automatique est LZW pour 8 bits et Deflate au-delà, que LZW agrandirait</translation>
    </message>
    <message>
        <source>Compression of TIFF files</source>
        <translation>Compression des fichiers TIFF</translation>
    </message>
    <message>
        <source>Keep the depth of photos</source>
        <translation>Garder la profondeur des photos</translation>
    </message>
    <message>
        <source>Photos of 16 bits and floating point are read and saved as such, as far as the file type goes; otherwise everything has 8 bits</source>
        <translation>Les photos de 16 bits et en virgule flottante sont lues et enregistrées telles quelles, autant que le type de fichier le permet ; sinon tout a 8 bits</translation>
    </message>
    <message>
        <source>Best quality (fine sampling)</source>
        <translation>Meilleure qualité (échantillonnage fin)</translation>
    </message>
    <message>
        <source>Sharper where the view enlarges the photo, no moire where it makes it smaller, smooth borders; takes several times as long</source>
        <translation>Plus net là où la vue agrandit la photo, sans moiré là où elle la réduit, bords lisses ; prend plusieurs fois plus de temps</translation>
    </message>
    <message>
        <source>Less memory</source>
        <translation>Moins de mémoire</translation>
    </message>
    <message>
        <source>With classic sampling the batch reads large JPEG photos in half the memory and draws results a band at a time; they are the same and take somewhat longer</source>
        <translation>Avec l’échantillonnage classique, le lot lit les grandes photos JPEG dans la moitié de la mémoire et dessine les résultats bande par bande ; ils sont les mêmes et prennent un peu plus de temps</translation>
    </message>
</context>
<context>
    <name>FormStraighten</name>
    <message>
        <source>Straighten</source>
        <translation>Redresser</translation>
    </message>
    <message>
        <source>Coloured edges count as straight. Click one that is bent to take it away; click near both ends of another one to add it. Ctrl and the wheel zoom.</source>
        <translation>Les arêtes colorées passent pour droites. Cliquez sur une arête courbe pour la retirer&#x202f;; cliquez près des deux bouts d’une autre pour l’ajouter. Ctrl et la molette zooment.</translation>
    </message>
    <message>
        <source>The photo that is shown; all of them are measured together</source>
        <translation>La photo affichée&#x202f;; toutes sont mesurées ensemble</translation>
    </message>
    <message>
        <source>Photo that is shown</source>
        <translation>Photo affichée</translation>
    </message>
    <message>
        <source>&amp;Add photos...</source>
        <translation>A&amp;jouter des photos...</translation>
    </message>
    <message>
        <source>Adds photos of the same size, camera and lens, four at most: they make the result surer</source>
        <translation>Ajoute des photos de mêmes taille, appareil et objectif, quatre au plus&#xa0;: elles rendent le résultat plus sûr</translation>
    </message>
    <message>
        <source>Add photos of the same lens</source>
        <translation>Ajouter des photos du même objectif</translation>
    </message>
    <message>
        <source>The edges, the longest first: how far each is off straight with the measured lens</source>
        <translation>Les arêtes, la plus longue d’abord&#xa0;: l’écart de chacune à la droite avec l’objectif mesuré</translation>
    </message>
    <message>
        <source>Edges</source>
        <translation>Arêtes</translation>
    </message>
    <message>
        <source>&amp;Upright</source>
        <translation>&amp;Verticale</translation>
    </message>
    <message>
        <source>The chosen edge is upright in space</source>
        <translation>L’arête choisie est verticale dans l’espace</translation>
    </message>
    <message>
        <source>Le&amp;vel</source>
        <translation>&amp;Horizontale</translation>
    </message>
    <message>
        <source>The chosen edge is level and crosses the view; all of one photo are parallel</source>
        <translation>L’arête choisie est horizontale et traverse la vue&#x202f;; toutes celles d’une photo sont parallèles</translation>
    </message>
    <message>
        <source>&amp;Runs away</source>
        <translation>Fu&amp;yante</translation>
    </message>
    <message>
        <source>The chosen edge is level and runs away from the camera, at right angles to those that are level</source>
        <translation>L’arête choisie est horizontale et s’éloigne de l’appareil, à angle droit de celles qui traversent la vue</translation>
    </message>
    <message>
        <source>&amp;No direction</source>
        <translation>Sans &amp;direction</translation>
    </message>
    <message>
        <source>Nothing is known of the chosen edge but that it is straight</source>
        <translation>De l’arête choisie, on sait seulement qu’elle est droite</translation>
    </message>
    <message>
        <source>&amp;Take away</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Takes the chosen edge out of the measuring, or brings it back</source>
        <translation>Retire l’arête choisie de la mesure, ou l’y remet</translation>
    </message>
    <message>
        <source>&amp;Focal length</source>
        <translation>Distance &amp;focale</translation>
    </message>
    <message>
        <source>Of the lens, to some 2 percent; it fixes the scale of angles, which edges alone do not tell</source>
        <translation>De l’objectif, à 2 pour cent près environ&#x202f;; elle fixe l’échelle des angles, que les arêtes seules n’indiquent pas</translation>
    </message>
    <message>
        <source>Focal length, millimetres</source>
        <translation>Distance focale, en millimètres</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>inconnue</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>Circle at &amp;90°</source>
        <translation>Cercle à &amp;90°</translation>
    </message>
    <message>
        <source>The rim of the image circle is known to be at 90 degrees from the axis</source>
        <translation>On sait que le bord du cercle image est à 90 degrés de l’axe</translation>
    </message>
    <message>
        <source>Estimate &amp;colour fringes</source>
        <translation>Estimer les franges &amp;colorées</translation>
    </message>
    <message>
        <source>Measures from the same edges how far red and blue are off green, and takes it out</source>
        <translation>Mesure sur les mêmes arêtes l’écart du rouge et du bleu au vert, et le corrige</translation>
    </message>
    <message>
        <source>What the edges tell</source>
        <translation>Ce qu’indiquent les arêtes</translation>
    </message>
    <message>
        <source>Na&amp;me of the lens</source>
        <translation>&amp;Nom de l’objectif</translation>
    </message>
    <message>
        <source>What the measured lens is called</source>
        <translation>Comment s’appelle l’objectif mesuré</translation>
    </message>
    <message>
        <source>Name of the lens</source>
        <translation>Nom de l’objectif</translation>
    </message>
    <message>
        <source>&amp;Save as my lens ...</source>
        <translation>Enregistrer comme mon &amp;objectif...</translation>
    </message>
    <message>
        <source>Keeps the measured lens under this name, for any camera, under the brand &quot;My lenses&quot;</source>
        <translation>Garde l’objectif mesuré sous ce nom, pour tout appareil, sous la marque «&#xa0;My lenses&#xa0;»</translation>
    </message>
    <message>
        <source>Use for all photos of this camera and &amp;lens</source>
        <translation>Pour &amp;toutes les photos de cet appareil et de cet objectif</translation>
    </message>
    <message>
        <source>Gives the measured lens to all photos of the list that were taken with this camera and lens</source>
        <translation>Donne l’objectif mesuré à toutes les photos de la liste prises avec cet appareil et cet objectif</translation>
    </message>
    <message>
        <source>Use for this ph&amp;oto</source>
        <translation>&amp;Pour cette photo</translation>
    </message>
    <message>
        <source>Gives the measured lens to the current photo</source>
        <translation>Donne l’objectif mesuré à la photo actuelle</translation>
    </message>
    <message>
        <source>State of the measuring</source>
        <translation>État de la mesure</translation>
    </message>
    <message>
        <source>The edges are measured</source>
        <translation>Les arêtes sont en cours de mesure</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Ends the measuring; nothing is changed</source>
        <translation>Arrête la mesure&#x202f;; rien n’est changé</translation>
    </message>
    <message>
        <source>%1 of %2 edges are used. Edges held out of the measuring are off straight by %3 pixels with the present numbers, by %4 with the measured lens.</source>
        <translation>%1 arêtes sur %2 comptent. Les arêtes tenues hors de la mesure s’écartent de la droite de %3 pixels avec les nombres actuels, de %4 avec l’objectif mesuré.</translation>
    </message>
    <message>
        <source>Expected error of angles: %1°.</source>
        <translation>Erreur attendue des angles&#xa0;: %1°.</translation>
    </message>
    <message>
        <source>Angles not fixed: tag edges, or give the focal length.</source>
        <translation>Angles non fixés&#xa0;: donnez une direction aux arêtes, ou indiquez la distance focale.</translation>
    </message>
    <message>
        <source>Angles not fixed: tag edges that are upright, level or run away.</source>
        <translation>Angles non fixés&#xa0;: marquez les arêtes verticales, horizontales ou fuyantes.</translation>
    </message>
    <message>
        <source>Colour at the outermost edges: red off by %1 ± %2 pixels, blue by %3 ± %4.</source>
        <translation>Couleur aux arêtes extrêmes&#xa0;: rouge décalé de %1 ± %2 pixels, bleu de %3 ± %4.</translation>
    </message>
    <message>
        <source>This is too small by up to half a pixel: the JPEG file has colours at half its resolution.</source>
        <translation>C’est jusqu’à un demi-pixel de trop peu&#xa0;: le fichier JPEG a ses couleurs à la moitié de sa résolution.</translation>
    </message>
    <message>
        <source>Too few straight edges: %1 are needed at least, more are better. Click near both ends of edges to add them.</source>
        <translation>Trop peu d’arêtes droites&#xa0;: il en faut au moins %1, plus il y en a, mieux c’est. Cliquez près des deux bouts d’arêtes pour les ajouter.</translation>
    </message>
    <message>
        <source>The present numbers do as well or better: they stay.</source>
        <translation>Les nombres actuels font aussi bien ou mieux&#xa0;: ils restent.</translation>
    </message>
    <message>
        <source>Expected bend: %1 pixels, in a view 110° across with 24 megapixels.</source>
        <translation>Courbure attendue&#xa0;: %1 pixels, dans une vue large de 110° à 24 mégapixels.</translation>
    </message>
    <message>
        <source>The edges do not tell of colour fringes.</source>
        <translation>Les arêtes n’indiquent rien sur les franges colorées.</translation>
    </message>
    <message>
        <source>upright</source>
        <translation>verticale</translation>
    </message>
    <message>
        <source>level</source>
        <translation>horizontale</translation>
    </message>
    <message>
        <source>runs away</source>
        <translation>fuyante</translation>
    </message>
</context>
<context>
    <name>FormStretch</name>
    <message>
        <source>Stretch</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>&amp;Open image ...</source>
        <translation>&amp;Ouvrir une image...</translation>
    </message>
    <message>
        <source>Chooses the photo to stretch; it can also be dropped on this window</source>
        <translation>Choisit la photo à étirer&#x202f;; on peut aussi la déposer sur cette fenêtre</translation>
    </message>
    <message>
        <source>Open an image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>File name of the photo</source>
        <translation>Nom de fichier de la photo</translation>
    </message>
    <message>
        <source>S&amp;trength</source>
        <translation>&amp;Force</translation>
    </message>
    <message>
        <source>How much the rows are widened or narrowed away from the middle row. Double-click the name to reset it</source>
        <translation>Combien les lignes sont élargies ou rétrécies à l’écart de la ligne médiane. Double-cliquez sur le nom pour réinitialiser</translation>
    </message>
    <message>
        <source>Strength of the stretch, percent</source>
        <translation>Force de l’étirement, pour cent</translation>
    </message>
    <message>
        <source>&amp;Middle row</source>
        <translation>Ligne &amp;médiane</translation>
    </message>
    <message>
        <source>The row that keeps its width: up is toward the top of the picture. Double-click the name to reset it</source>
        <translation>La ligne qui garde sa largeur&#xa0;: le haut va vers le haut de l’image. Double-cliquez sur le nom pour réinitialiser</translation>
    </message>
    <message>
        <source>Row that keeps its width, percent up from the middle</source>
        <translation>Ligne qui garde sa largeur, pour cent au-dessus du milieu</translation>
    </message>
    <message>
        <source>State of the photo</source>
        <translation>État de la photo</translation>
    </message>
    <message>
        <source>Progress of the save</source>
        <translation>Progression de l’enregistrement</translation>
    </message>
    <message>
        <source>&amp;Save image as ...</source>
        <translation>&amp;Enregistrer l’image sous...</translation>
    </message>
    <message>
        <source>Stretches the photo at full size and writes it to a new file</source>
        <translation>Étire la photo en pleine taille et l’écrit dans un nouveau fichier</translation>
    </message>
    <message>
        <source>Save the stretched image</source>
        <translation>Enregistrer l’image étirée</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back to the photos</source>
        <translation>Retour aux photos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Ends the saving without a file</source>
        <translation>Arrête l’enregistrement sans fichier</translation>
    </message>
    <message>
        <source>Cancel the saving</source>
        <translation>Annuler l’enregistrement</translation>
    </message>
</context>
<context>
    <name>GearOffer</name>
    <message>
        <source> (cropped?)</source>
        <translation> (recadrée&#x202f;?)</translation>
    </message>
    <message>
        <source>Taken with %1</source>
        <translation>Prise avec %1</translation>
    </message>
    <message>
        <source>its shape, %1 : 1, is not the sensor&apos;s, %2 : 1; if it was cropped, the gear&apos;s numbers do not fit</source>
        <translation>son format, %1 : 1, n’est pas celui du capteur, %2 : 1&#x202f;; si elle a été recadrée, les valeurs de l’équipement ne conviennent pas</translation>
    </message>
    <message>
        <source>Not this photo&apos;s gear</source>
        <translation>Pas l’équipement de cette photo</translation>
    </message>
    <message>
        <source> (camera not in the list)</source>
        <translation> (appareil absent de la liste)</translation>
    </message>
    <message>
        <source>The lens &quot;%1&quot; is not there</source>
        <translation>L’objectif «&#xa0;%1&#xa0;» manque</translation>
    </message>
</context>
<context>
    <name>GearStore</name>
    <message>
        <source>Please define at least one camera + lens combination ...</source>
        <translation>Veuillez définir au moins une combinaison appareil + objectif...</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; needs the lens &quot;%2&quot; of &quot;My lenses&quot;, which is not there.</source>
        <translation>L’équipement «&#xa0;%1&#xa0;» a besoin de l’objectif «&#xa0;%2&#xa0;» de «&#xa0;My lenses&#xa0;», qui manque.</translation>
    </message>
</context>
<context>
    <name>LensChoice</name>
    <message>
        <source>Measured on %1</source>
        <translation>Mesuré le %1</translation>
    </message>
    <message>
        <source>Measured</source>
        <translation>Mesuré</translation>
    </message>
    <message>
        <source> from %1</source>
        <translation> d’après %1</translation>
    </message>
    <message>
        <source>; its edges are straight to %1 px</source>
        <translation>, ses arêtes sont droites à %1 px près</translation>
    </message>
</context>
<context>
    <name>LevelTools</name>
    <message>
        <source>it takes %1, %2° more than the slider has</source>
        <translation>il faut %1, %2° de plus que n’offre le curseur</translation>
    </message>
    <message>
        <source>Not levelled: %1.</source>
        <translation>Pas mise de niveau&#xa0;: %1.</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>Not levelled: the gear&apos;s numbers make no lens.</source>
        <translation>Pas mise de niveau&#xa0;: les valeurs de l’équipement ne donnent pas d’objectif.</translation>
    </message>
    <message>
        <source>Not levelled: the line is too short.</source>
        <translation>Pas mise de niveau&#xa0;: la ligne est trop courte.</translation>
    </message>
    <message>
        <source>Not levelled: through this lens no horizon is bent like this line.</source>
        <translation>Pas mise de niveau&#xa0;: avec cet objectif, aucun horizon n’a la courbure de cette ligne.</translation>
    </message>
    <message>
        <source>The horizon is level already.</source>
        <translation>L’horizon est déjà de niveau.</translation>
    </message>
    <message>
        <source>Levelled: %1.</source>
        <translation>Mise de niveau&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>ListBadges</name>
    <message>
        <source>adjusted</source>
        <translation>ajustée</translation>
    </message>
    <message>
        <source>in the batch queue</source>
        <translation>dans la file d’attente</translation>
    </message>
    <message>
        <source>the gear is a guess</source>
        <translation>l’équipement est supposé</translation>
    </message>
    <message>
        <source>film</source>
        <translation>film</translation>
    </message>
</context>
<context>
    <name>MagnificationOverlay</name>
    <message>
        <source>shrunk</source>
        <translation>réduit</translation>
    </message>
    <message>
        <source>about 1 : 1</source>
        <translation>environ 1 : 1</translation>
    </message>
    <message>
        <source>stretched</source>
        <translation>étiré</translation>
    </message>
</context>
<context>
    <name>MenuStart</name>
    <message>
        <source>New pictures beside the photos: %1</source>
        <translation>Nouvelles images à côté des photos : %1</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>Not everything went well. New pictures beside the photos: %1</source>
        <translation>Tout n’a pas réussi. Nouvelles images à côté des photos : %1</translation>
    </message>
    <message>
        <source>No picture was written.</source>
        <translation>Aucune image n’a été écrite.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message>
        <source>Straighten with Varnel</source>
        <translation>Redresser avec Varnel</translation>
    </message>
    <message>
        <source>Convert fisheye photos into new files beside them</source>
        <translation>Convertir des photos fisheye en nouveaux fichiers à côté d’elles</translation>
    </message>
</context>
<context>
    <name>Morph</name>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nombre entier.</translation>
    </message>
    <message>
        <source>%1 is out of range: a sequence has at most %2 frames.</source>
        <translation>%1 est hors limites&#xa0;: une séquence a au plus %2 images.</translation>
    </message>
</context>
<context>
    <name>NamePattern</name>
    <message>
        <source>a name needs at least one token or letter</source>
        <translation>un nom demande au moins un jeton ou une lettre</translation>
    </message>
    <message>
        <source>a name cannot hold / or \</source>
        <translation>un nom ne peut contenir ni / ni \</translation>
    </message>
    <message>
        <source>there is no token %1; there are %2</source>
        <translation>le jeton %1 n’existe pas&#x202f;; il y a %2</translation>
    </message>
</context>
<context>
    <name>OutputPanel</name>
    <message>
        <source>File &amp;type</source>
        <translation>&amp;Type de fichier</translation>
    </message>
    <message>
        <source>TIFF and PNG keep every detail, JPEG makes small files</source>
        <translation>TIFF et PNG gardent chaque détail, JPEG donne de petits fichiers</translation>
    </message>
    <message>
        <source>File type of the images</source>
        <translation>Type de fichier des images</translation>
    </message>
    <message>
        <source>JPEG &amp;quality</source>
        <translation>&amp;Qualité JPEG</translation>
    </message>
    <message>
        <source>100 keeps the most detail, lower values make smaller JPEG files</source>
        <translation>100 garde le plus de détails, des valeurs plus basses donnent des fichiers JPEG plus petits</translation>
    </message>
    <message>
        <source>JPEG quality, 1 to 100</source>
        <translation>Qualité JPEG, de 1 à 100</translation>
    </message>
    <message>
        <source>Full colour resolution (4:4:4)</source>
        <translation>Pleine résolution des couleurs (4:4:4)</translation>
    </message>
    <message>
        <source>Fine coloured detail stays sharp in JPEG files, which become larger</source>
        <translation>Les fins détails colorés restent nets dans les fichiers JPEG, qui deviennent plus gros</translation>
    </message>
    <message>
        <source>Keep the photo&apos;s metadata</source>
        <translation>Garder les métadonnées de la photo</translation>
    </message>
    <message>
        <source>Camera, lens, date, place, captions and keywords (EXIF, IPTC, XMP) go into the saved file; the colour profile always does</source>
        <translation>Appareil, objectif, date, lieu, légendes et mots-clés (EXIF, IPTC, XMP) vont dans le fichier enregistré&#x202f;; le profil de couleur toujours</translation>
    </message>
    <message>
        <source>Na&amp;mes</source>
        <translation>No&amp;ms</translation>
    </message>
    <message>
        <source>Pattern of the names</source>
        <translation>Modèle des noms</translation>
    </message>
    <message>
        <source>Name of the first image</source>
        <translation>Nom de la première image</translation>
    </message>
    <message>
        <source>What photos usually need; fine detail takes up to four times as much</source>
        <translation>Ce que demandent d’habitude les photos&#x202f;; les fins détails prennent jusqu’à quatre fois plus</translation>
    </message>
    <message>
        <source>Size to expect</source>
        <translation>Taille à prévoir</translation>
    </message>
    <message>
        <source>Save next to the photo</source>
        <translation>À côté de la photo</translation>
    </message>
    <message>
        <source>Each file goes into the folder of its photo</source>
        <translation>Chaque fichier va dans le dossier de sa photo</translation>
    </message>
    <message>
        <source>Best quality (fine sampling)</source>
        <translation>Meilleure qualité (échantillonnage fin)</translation>
    </message>
    <message>
        <source>Sharper where the view enlarges the photo, no moire where it makes it smaller, smooth borders; takes several times as long</source>
        <translation>Plus net là où la vue agrandit la photo, sans moiré là où elle la réduit, bords lisses ; prend plusieurs fois plus de temps</translation>
    </message>
</context>
<context>
    <name>OverlayGeometry</name>
    <message>
        <source>keeps %1 % of the circle</source>
        <translation>garde %1&#xa0;% du cercle</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>Half-way resolution %1</source>
        <translation>Résolution à mi-chemin %1</translation>
    </message>
    <message>
        <source>Centre resolution %1</source>
        <translation>Résolution au centre %1</translation>
    </message>
    <message>
        <source>%1   |   Worst corner stretch %2   |   Area kept %3 %   |   Largest rectangle without black %4</source>
        <translation>%1   |   Coins étirés %2   |   Surface %3&#xa0;%   |   Plus grand rectangle sans noir %4</translation>
    </message>
</context>
<context>
    <name>PhotoGear</name>
    <message>
        <source>the file does not tell what took it</source>
        <translation>le fichier n’indique pas avec quoi il a été pris</translation>
    </message>
    <message>
        <source>the camera %1 is not in the catalogue</source>
        <translation>l’appareil %1 n’est pas dans le catalogue</translation>
    </message>
    <message>
        <source>the lens %1 is not in the catalogue</source>
        <translation>l’objectif %1 n’est pas dans le catalogue</translation>
    </message>
    <message>
        <source>the file does not tell well enough which lens took it</source>
        <translation>le fichier n’indique pas assez bien avec quel objectif il a été pris</translation>
    </message>
    <message>
        <source>the file does not tell which gear of its camera took it</source>
        <translation>le fichier n’indique pas avec quel équipement de son appareil il a été pris</translation>
    </message>
    <message>
        <source>no gear has this camera and this lens</source>
        <translation>aucun équipement n’a cet appareil et cet objectif</translation>
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
        <translation>L’équipement de cette photo est supposé.</translation>
    </message>
    <message>
        <source>The gear of this photo is a guess: %1.</source>
        <translation>L’équipement de cette photo est supposé&#xa0;: %1.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the diagonal.</source>
        <translation>On suppose un fisheye typique, 180 degrés sur la diagonale.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the image circle, which is not found exactly.</source>
        <translation>On suppose un fisheye typique, 180 degrés sur le cercle image, qui n’est pas trouvé exactement.</translation>
    </message>
    <message>
        <source>A typical fisheye is assumed, 180 degrees across the image circle.</source>
        <translation>On suppose un fisheye typique, 180 degrés sur le cercle image.</translation>
    </message>
    <message>
        <source>The image circle is not where the gear says; the photo&apos;s own is used.</source>
        <translation>Le cercle image n’est pas là où l’indique l’équipement&#x202f;; celui de la photo est utilisé.</translation>
    </message>
    <message>
        <source>Cropped, and no image circle was found: the largest piece of the sensor of this shape is assumed, %1.</source>
        <translation>Recadrée, et aucun cercle image n’a été trouvé&#xa0;: on suppose le plus grand morceau du capteur de ce format, %1.</translation>
    </message>
    <message>
        <source>Cropped: it shows about %1 of the sensor by its image circle, which is not found exactly.</source>
        <translation>Recadrée&#xa0;: d’après son cercle image, qui n’est pas trouvé exactement, elle montre environ %1 du capteur.</translation>
    </message>
    <message>
        <source>Cropped: it shows %1 of the sensor by its image circle.</source>
        <translation>Recadrée&#xa0;: d’après son cercle image, elle montre %1 du capteur.</translation>
    </message>
</context>
<context>
    <name>PictureSettings</name>
    <message>
        <source>the setting %1 cannot be &quot;%2&quot;</source>
        <translation>le réglage %1 ne peut pas être «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>the setting %1 is out of range: %2</source>
        <translation>le réglage %1 est hors limites&#xa0;: %2</translation>
    </message>
    <message>
        <source>the setting &quot;%1&quot; cannot be kept</source>
        <translation>le réglage «&#xa0;%1&#xa0;» ne peut pas être gardé</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Real estate</source>
        <translation>Immobilier</translation>
    </message>
    <message>
        <source>Group photo</source>
        <translation>Photo de groupe</translation>
    </message>
    <message>
        <source>Whole circle</source>
        <translation>Cercle entier</translation>
    </message>
    <message>
        <source>Horizon strip</source>
        <translation>Bande d’horizon</translation>
    </message>
    <message>
        <source>A preset needs a name of 1 to %1 letters.</source>
        <translation>Un préréglage a besoin d’un nom de 1 à %1 lettres.</translation>
    </message>
    <message>
        <source>There is a preset &quot;%1&quot; already.</source>
        <translation>Il y a déjà un préréglage «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>ProjectFile</name>
    <message>
        <source>it is damaged: line %1 cannot be read</source>
        <translation>il est endommagé&#xa0;: la ligne %1 est illisible</translation>
    </message>
    <message>
        <source>it is not a Varnel project</source>
        <translation>ce n’est pas un projet Varnel</translation>
    </message>
    <message>
        <source>a newer version of Varnel wrote it</source>
        <translation>une version plus récente de Varnel l’a écrit</translation>
    </message>
    <message>
        <source>it is damaged: it should hold %1 photos and holds %2</source>
        <translation>il est endommagé&#xa0;: il devrait contenir %1 photos et en contient %2</translation>
    </message>
    <message>
        <source>it is damaged: its end is missing</source>
        <translation>il est endommagé&#xa0;: la fin manque</translation>
    </message>
    <message>
        <source>the setting %1 cannot be used</source>
        <translation>le réglage %1 est inutilisable</translation>
    </message>
    <message>
        <source>it is not a text file</source>
        <translation>ce n’est pas un fichier texte</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
</context>
<context>
    <name>Projections</name>
    <message>
        <source>Stretches every row of the circle sideways to the full width; no row moves up or down</source>
        <translation>Étire chaque ligne du cercle latéralement à la pleine largeur&#x202f;; aucune ligne ne monte ni ne descend</translation>
    </message>
    <message>
        <source>Straight lines of the scene come out straight</source>
        <translation>Les lignes droites de la scène restent droites</translation>
    </message>
    <message>
        <source>A fisheye in which equal angles take equal room</source>
        <translation>Un fisheye où des angles égaux prennent une place égale</translation>
    </message>
    <message>
        <source>Unrolls a circle shot straight up or down into a panorama</source>
        <translation>Déroule en panorama un cercle pris droit vers le haut ou vers le bas</translation>
    </message>
    <message>
        <source>Stereographic</source>
        <translation>Stéréographique</translation>
    </message>
    <message>
        <source>Small shapes stay true however wide the view; straight lines bow</source>
        <translation>Les petites formes restent justes, si large que soit la vue&#x202f;; les droites se courbent</translation>
    </message>
    <message>
        <source>Panini</source>
        <translation>Panini</translation>
    </message>
    <message>
        <source>Wide rooms and streets: uprights and lines toward the middle stay straight</source>
        <translation>Pièces et rues larges : les verticales et les lignes vers le milieu restent droites</translation>
    </message>
    <message>
        <source>Cylindrical</source>
        <translation>Cylindrique</translation>
    </message>
    <message>
        <source>A panorama around an upright cylinder: uprights stay straight</source>
        <translation>Un panorama sur un cylindre vertical : les verticales restent droites</translation>
    </message>
    <message>
        <source>Mercator</source>
        <translation>Mercator</translation>
    </message>
    <message>
        <source>Equirectangular</source>
        <translation>Équirectangulaire</translation>
    </message>
    <message>
        <source>Even angles across and up: what 360 degree viewers take</source>
        <translation>Angles réguliers en largeur et en hauteur : ce que prennent les visionneuses à 360 degrés</translation>
    </message>
    <message>
        <source>Fisheye, equidistant</source>
        <translation>Fisheye équidistant</translation>
    </message>
    <message>
        <source>A fisheye in which the distance from the middle is the angle, whatever the sensor</source>
        <translation>Un fisheye où la distance au milieu est l’angle, quel que soit le capteur</translation>
    </message>
    <message>
        <source>Fisheye, equisolid</source>
        <translation>Fisheye équisolide</translation>
    </message>
    <message>
        <source>A fisheye in which equal parts of the view take equal areas</source>
        <translation>Un fisheye où des parts égales de la vue prennent des aires égales</translation>
    </message>
    <message>
        <source>Orthographic</source>
        <translation>Orthographique</translation>
    </message>
    <message>
        <source>The half in front as on a globe seen from far away</source>
        <translation>La moitié devant, comme sur un globe vu de loin</translation>
    </message>
    <message>
        <source>Little planet</source>
        <translation>Petite planète</translation>
    </message>
    <message>
        <source>The ground as a small planet, the sky around it</source>
        <translation>Le sol en petite planète, le ciel autour</translation>
    </message>
    <message>
        <source>Unrolled</source>
        <translation>Déroulé</translation>
    </message>
    <message>
        <source>Directions around the axis become columns, angles from it rows</source>
        <translation>Les directions autour de l’axe deviennent des colonnes, les angles depuis l’axe des lignes</translation>
    </message>
    <message>
        <source>A panorama that keeps small shapes true, less tall than around a cylinder</source>
        <translation>Un panorama où les petites formes restent justes, moins haut que sur un cylindre</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Save image as ...</source>
        <translation>Enregistrer l’image sous...</translation>
    </message>
    <message>
        <source>%1 already exists. Replace it?</source>
        <translation>%1 existe déjà. Le remplacer&#x202f;?</translation>
    </message>
    <message>
        <source>Open image</source>
        <translation>Ouvrir une image</translation>
    </message>
    <message>
        <source>Photos (%1)</source>
        <translation>Photos (%1)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Varnel projects (%1)</source>
        <translation>Projets Varnel (%1)</translation>
    </message>
    <message>
        <source>Save the present image list as a project first?</source>
        <translation>Enregistrer d’abord la liste d’images actuelle comme projet&#x202f;?</translation>
    </message>
    <message>
        <source>The project %1 was changed. Save it first?</source>
        <translation>Le projet %1 a été modifié. L’enregistrer d’abord&#x202f;?</translation>
    </message>
    <message>
        <source>Open project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Save project as</source>
        <translation>Enregistrer le projet sous</translation>
    </message>
    <message>
        <source>1 photo uses this gear. Give it the new numbers?</source>
        <translation>1 photo utilise cet équipement. Lui donner les nouvelles valeurs&#x202f;?</translation>
    </message>
    <message>
        <source>%1 photos use this gear. Give them the new numbers?</source>
        <translation>%1 photos utilisent cet équipement. Leur donner les nouvelles valeurs&#x202f;?</translation>
    </message>
    <message>
        <source>Photos with unsaved adjustments: %1</source>
        <translation>Photos aux ajustements non enregistrés&#xa0;: %1</translation>
    </message>
    <message>
        <source>Images waiting in the batch queue, which no project holds: %1</source>
        <translation>Images de la file d’attente, qu’aucun projet ne contient&#xa0;: %1</translation>
    </message>
    <message>
        <source>Varnel was not closed properly. Its image list of %1 is still there. Open it again?</source>
        <translation>Varnel n’a pas été fermé correctement. Sa liste d’images du %1 est encore là. La rouvrir&#x202f;?</translation>
    </message>
    <message>
        <source>Photos in the list: %1. &quot;No&quot; removes it for good.</source>
        <translation>Photos dans la liste&#xa0;: %1. «&#xa0;Non&#xa0;» l’efface définitivement.</translation>
    </message>
    <message>
        <source>Import lenses</source>
        <translation>Importer des objectifs</translation>
    </message>
    <message>
        <source>Lens files (%1)</source>
        <translation>Fichiers d’objectifs (%1)</translation>
    </message>
    <message>
        <source>Varnel&apos;s lens file (%1)</source>
        <translation>Fichier d’objectif de Varnel (%1)</translation>
    </message>
    <message>
        <source>Calibration for OpenCV (%1)</source>
        <translation>Calibrage pour OpenCV (%1)</translation>
    </message>
    <message>
        <source>Entry for lensfun (%1)</source>
        <translation>Entrée pour lensfun (%1)</translation>
    </message>
    <message>
        <source>Export the lens</source>
        <translation>Exporter l’objectif</translation>
    </message>
    <message>
        <source>Varnel&apos;s presets (%1)</source>
        <translation>Préréglages de Varnel (%1)</translation>
    </message>
    <message>
        <source>Import presets</source>
        <translation>Importer des préréglages</translation>
    </message>
    <message>
        <source>Export presets</source>
        <translation>Exporter les préréglages</translation>
    </message>
    <message>
        <source>Save film as</source>
        <translation>Enregistrer le film sous</translation>
    </message>
    <message>
        <source>Films (%1)</source>
        <translation>Films (%1)</translation>
    </message>
</context>
<context>
    <name>ReadingBox</name>
    <message>
        <source>Reading photos ...</source>
        <translation>Lecture des photos...</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lecture de %1...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>Reasons</name>
    <message>
        <source>Overflow: %1 does not fit 32 bits</source>
        <translation>Dépassement&#xa0;: %1 ne tient pas sur 32 bits</translation>
    </message>
    <message>
        <source>Overflow: %1 does not fit 16 bits</source>
        <translation>Dépassement&#xa0;: %1 ne tient pas sur 16 bits</translation>
    </message>
    <message>
        <source>Overflow: %1 does not fit a single-precision number</source>
        <translation>Dépassement&#xa0;: %1 ne tient pas dans un nombre en simple précision</translation>
    </message>
    <message>
        <source>Division by zero: %1 is 0</source>
        <translation>Division par zéro&#xa0;: %1 vaut 0</translation>
    </message>
    <message>
        <source>Division by zero: %1 is no number</source>
        <translation>Division par zéro&#xa0;: %1 n’est pas un nombre</translation>
    </message>
    <message>
        <source>Division by zero: %1</source>
        <translation>Division par zéro&#xa0;: %1</translation>
    </message>
    <message>
        <source>a sequence of one frame has no steps</source>
        <translation>une séquence d’une seule image n’a pas d’étapes</translation>
    </message>
    <message>
        <source>half the picture&apos;s width</source>
        <translation>la moitié de la largeur de l’image</translation>
    </message>
    <message>
        <source>the tangent of half the angle of view</source>
        <translation>la tangente de la moitié de l’angle de champ</translation>
    </message>
    <message>
        <source>the sine of LensMapFactor x OutputAOV x effect / 2</source>
        <translation>le sinus de LensMapFactor x OutputAOV x effet / 2</translation>
    </message>
    <message>
        <source>the reference radius (from ImageCircleRadius and Ratio)</source>
        <translation>le rayon de référence (d’après ImageCircleRadius et Ratio)</translation>
    </message>
    <message>
        <source>the row divisor (the picture is more than three times as wide as high)</source>
        <translation>le diviseur de ligne (l’image est plus de trois fois plus large que haute)</translation>
    </message>
    <message>
        <source>the row divisor</source>
        <translation>le diviseur de ligne</translation>
    </message>
    <message>
        <source>the picture&apos;s side</source>
        <translation>le côté de l’image</translation>
    </message>
    <message>
        <source>the progress value</source>
        <translation>la valeur de progression</translation>
    </message>
    <message>
        <source>the scale</source>
        <translation>l’échelle</translation>
    </message>
    <message>
        <source>the effect</source>
        <translation>l’effet</translation>
    </message>
    <message>
        <source>a rotation angle</source>
        <translation>un angle de rotation</translation>
    </message>
    <message>
        <source>a translation</source>
        <translation>un décalage</translation>
    </message>
    <message>
        <source>a side</source>
        <translation>un côté</translation>
    </message>
    <message>
        <source>a preview side</source>
        <translation>un côté de l’aperçu</translation>
    </message>
    <message>
        <source>an image</source>
        <translation>une image</translation>
    </message>
    <message>
        <source>an output column</source>
        <translation>une colonne de sortie</translation>
    </message>
    <message>
        <source>an output row</source>
        <translation>une ligne de sortie</translation>
    </message>
    <message>
        <source>an output position</source>
        <translation>une position de sortie</translation>
    </message>
    <message>
        <source>there is not enough memory</source>
        <translation>la mémoire ne suffit pas</translation>
    </message>
    <message>
        <source>there is no picture</source>
        <translation>il n’y a pas d’image</translation>
    </message>
    <message>
        <source>the picture could not be encoded</source>
        <translation>l’image n’a pas pu être codée</translation>
    </message>
    <message>
        <source>the file would be larger than %1 bytes</source>
        <translation>le fichier dépasserait %1 octets</translation>
    </message>
    <message>
        <source>written without its EXIF: too long for a JPEG file</source>
        <translation>écrite sans son EXIF&#xa0;: trop long pour un fichier JPEG</translation>
    </message>
    <message>
        <source>written without part of its EXIF: too long for a JPEG file</source>
        <translation>écrite sans une partie de son EXIF&#xa0;: trop long pour un fichier JPEG</translation>
    </message>
    <message>
        <source>written without its XMP: too long for a JPEG file</source>
        <translation>écrite sans son XMP&#xa0;: trop long pour un fichier JPEG</translation>
    </message>
    <message>
        <source>written without its IPTC: too long for a JPEG file</source>
        <translation>écrite sans son IPTC&#xa0;: trop long pour un fichier JPEG</translation>
    </message>
    <message>
        <source>written without its settings: too long for a JPEG file</source>
        <translation>écrite sans ses réglages&#xa0;: trop longs pour un fichier JPEG</translation>
    </message>
    <message>
        <source>written without its settings: the photo&apos;s XMP has no place for them</source>
        <translation>écrite sans ses réglages&#xa0;: le XMP de la photo n’a pas de place pour eux</translation>
    </message>
    <message>
        <source>written without its metadata: it cannot be read</source>
        <translation>écrite sans ses métadonnées&#xa0;: illisibles</translation>
    </message>
    <message>
        <source>written without its %1: it cannot be read</source>
        <translation>écrite sans son %1&#xa0;: illisible</translation>
    </message>
    <message>
        <source>written without its colour profile: %1</source>
        <translation>écrite sans son profil de couleur&#xa0;: %1</translation>
    </message>
    <message>
        <source>written without its metadata: %1</source>
        <translation>écrite sans ses métadonnées&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 files hold no metadata</source>
        <translation>les fichiers %1 ne contiennent pas de métadonnées</translation>
    </message>
    <message>
        <source>%1 files hold no settings</source>
        <translation>les fichiers %1 ne contiennent pas de réglages</translation>
    </message>
    <message>
        <source>%1 files hold no colour profile</source>
        <translation>les fichiers %1 ne contiennent pas de profil de couleur</translation>
    </message>
    <message>
        <source>%1 files hold no metadata or settings</source>
        <translation>les fichiers %1 ne contiennent ni métadonnées ni réglages</translation>
    </message>
    <message>
        <source>%1 files hold no metadata or colour profile</source>
        <translation>les fichiers %1 ne contiennent ni métadonnées ni profil de couleur</translation>
    </message>
    <message>
        <source>%1 files hold no settings or colour profile</source>
        <translation>les fichiers %1 ne contiennent ni réglages ni profil de couleur</translation>
    </message>
    <message>
        <source>%1 files hold no metadata, settings or colour profile</source>
        <translation>les fichiers %1 ne contiennent ni métadonnées, ni réglages, ni profil de couleur</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>the link leads nowhere</source>
        <translation>le lien ne mène nulle part</translation>
    </message>
    <message>
        <source>this is a folder, not a picture</source>
        <translation>c’est un dossier, pas une image</translation>
    </message>
    <message>
        <source>this is no regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>no permission to read it</source>
        <translation>pas d’autorisation de le lire</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>impossible de l’ouvrir</translation>
    </message>
    <message>
        <source>this is not a picture of a known type</source>
        <translation>ce n’est pas une image d’un type connu</translation>
    </message>
    <message>
        <source>the picture has no pixels</source>
        <translation>l’image n’a pas de pixels</translation>
    </message>
    <message>
        <source>the picture cannot be decoded</source>
        <translation>l’image ne peut pas être décodée</translation>
    </message>
    <message>
        <source>its pixels cannot be converted to 24-bit colour</source>
        <translation>ses pixels ne peuvent pas être convertis en couleurs 24 bits</translation>
    </message>
    <message>
        <source>too large: %1 x %2 pixels, a side may have %3</source>
        <translation>trop grande&#xa0;: %1 x %2 pixels, un côté peut en avoir %3</translation>
    </message>
    <message>
        <source>too large: %1 x %2 pixels need more than three quarters of this machine&apos;s memory</source>
        <translation>trop grande&#xa0;: %1 x %2 pixels demandent plus des trois quarts de la mémoire de cette machine</translation>
    </message>
    <message>
        <source>too large for a quick look</source>
        <translation>trop grande pour un coup d’œil rapide</translation>
    </message>
    <message>
        <source>took too long (more than %1 seconds)</source>
        <translation>a pris trop de temps (plus de %1 secondes)</translation>
    </message>
    <message>
        <source>there is no memory for it to be had (%1)</source>
        <translation>pas de mémoire disponible pour elle (%1)</translation>
    </message>
    <message>
        <source>the decoder could not be started (%1)</source>
        <translation>le décodeur n’a pas pu démarrer (%1)</translation>
    </message>
    <message>
        <source>it ends at once</source>
        <translation>il se termine aussitôt</translation>
    </message>
    <message>
        <source>the system ended the decoder, perhaps for want of memory (signal %1)</source>
        <translation>le système a arrêté le décodeur, peut-être faute de mémoire (signal %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder died of it (signal %1)</source>
        <translation>endommagée&#xa0;: le décodeur s’est arrêté dessus (signal %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder gave up on it</source>
        <translation>endommagée&#xa0;: le décodeur a renoncé</translation>
    </message>
    <message>
        <source>damaged: the decoder&apos;s answer makes no sense</source>
        <translation>endommagée&#xa0;: la réponse du décodeur n’a pas de sens</translation>
    </message>
    <message>
        <source>damaged: the raw photo cannot be read</source>
        <translation>endommagée&#xa0;: la photo brute est illisible</translation>
    </message>
    <message>
        <source>damaged: the file is cut short</source>
        <translation>endommagée&#xa0;: le fichier est tronqué</translation>
    </message>
    <message>
        <source>damaged: %1</source>
        <translation>endommagée&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not a regular file</source>
        <translation>Pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1 (while creating a temporary file)</source>
        <translation>%1 (en créant un fichier temporaire)</translation>
    </message>
    <message>
        <source>%1 (while setting its permissions)</source>
        <translation>%1 (en fixant ses droits d’accès)</translation>
    </message>
    <message>
        <source>%1 (while syncing the folder)</source>
        <translation>%1 (en synchronisant le dossier)</translation>
    </message>
    <message>
        <source>%1 (while syncing)</source>
        <translation>%1 (en synchronisant)</translation>
    </message>
    <message>
        <source>%1 (while writing)</source>
        <translation>%1 (en écrivant)</translation>
    </message>
    <message>
        <source>%1 (while closing)</source>
        <translation>%1 (en fermant)</translation>
    </message>
    <message>
        <source>%1 (while renaming)</source>
        <translation>%1 (en renommant)</translation>
    </message>
    <message>
        <source>%1: the settings cannot be written (%2); changes last only until the program ends</source>
        <translation>%1&#xa0;: les paramètres ne peuvent pas être écrits (%2)&#x202f;; les changements ne durent que jusqu’à la fin du programme</translation>
    </message>
    <message>
        <source>%1: the settings cannot be read (%2); %3</source>
        <translation>%1&#xa0;: les paramètres sont illisibles (%2)&#x202f;; %3</translation>
    </message>
    <message>
        <source>%1: the settings were damaged (%2); %3, the damaged file could not be set aside</source>
        <translation>%1&#xa0;: les paramètres étaient endommagés (%2)&#x202f;; %3, le fichier endommagé n’a pas pu être mis de côté</translation>
    </message>
    <message>
        <source>%1: the settings were damaged (%2); %3, the damaged file is kept as %4</source>
        <translation>%1&#xa0;: les paramètres étaient endommagés (%2)&#x202f;; %3, le fichier endommagé est gardé sous %4</translation>
    </message>
    <message>
        <source>their last good copy is used</source>
        <translation>leur dernière bonne copie est utilisée</translation>
    </message>
    <message>
        <source>without a copy they begin afresh</source>
        <translation>sans copie, ils repartent de zéro</translation>
    </message>
    <message>
        <source>without a copy what could be read is used</source>
        <translation>sans copie, ce qui était lisible est utilisé</translation>
    </message>
    <message>
        <source>all its names are taken</source>
        <translation>tous ses noms sont pris</translation>
    </message>
    <message>
        <source>the damaged file could not be set aside: %1</source>
        <translation>le fichier endommagé n’a pas pu être mis de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>the folder cannot be made</source>
        <translation>le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>another program keeps them locked</source>
        <translation>un autre programme les tient verrouillés</translation>
    </message>
    <message>
        <source>the gears&apos; section has lost its title</source>
        <translation>la section des équipements a perdu son titre</translation>
    </message>
    <message>
        <source>the number of gears is missing</source>
        <translation>le nombre d’équipements manque</translation>
    </message>
    <message>
        <source>gear %1 of %2 is missing</source>
        <translation>l’équipement %1 sur %2 manque</translation>
    </message>
    <message>
        <source>the default gear is missing</source>
        <translation>l’équipement par défaut manque</translation>
    </message>
    <message>
        <source>not UTF-8 text</source>
        <translation>pas du texte UTF-8</translation>
    </message>
    <message>
        <source>cut short</source>
        <translation>tronqué</translation>
    </message>
    <message>
        <source>line %1 is no setting</source>
        <translation>la ligne %1 n’est pas un paramètre</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>vide</translation>
    </message>
    <message>
        <source>the angle in radians</source>
        <translation>l’angle en radians</translation>
    </message>
    <message>
        <source>the effective angle of view</source>
        <translation>l’angle de champ effectif</translation>
    </message>
    <message>
        <source>the circle&apos;s radius</source>
        <translation>le rayon du cercle</translation>
    </message>
    <message>
        <source>cancelled</source>
        <translation>annulé</translation>
    </message>
    <message>
        <source>damaged: the decoder tried something forbidden (system call %1)</source>
        <translation>endommagée&#xa0;: le décodeur a tenté une action interdite (appel système %1)</translation>
    </message>
    <message>
        <source>damaged: the decoder tried something forbidden</source>
        <translation>endommagée&#xa0;: le décodeur a tenté une action interdite</translation>
    </message>
    <message>
        <source>another photo is being read</source>
        <translation>une autre photo est en cours de lecture</translation>
    </message>
    <message>
        <source>the lens&apos;s curve turns back at %1 degrees</source>
        <translation>la courbe de l’objectif fait demi-tour à %1 degrés</translation>
    </message>
    <message>
        <source>the lens&apos;s curve is not made of 16 usable points</source>
        <translation>la courbe de l’objectif n’a pas 16 points utilisables</translation>
    </message>
    <message>
        <source>%1 does not rise from point to point</source>
        <translation>%1 n’augmente pas de point en point</translation>
    </message>
    <message>
        <source>the lens&apos;s curve</source>
        <translation>la courbe de l’objectif</translation>
    </message>
    <message>
        <source>larger than %1 MB</source>
        <translation>plus grand que %1 Mo</translation>
    </message>
    <message>
        <source>this is no lens file of a known kind</source>
        <translation>ce n’est pas un fichier d’objectif d’un genre connu</translation>
    </message>
    <message>
        <source>there is no fisheye lens in it</source>
        <translation>il ne contient aucun objectif fisheye</translation>
    </message>
    <message>
        <source>made by a newer version of the program</source>
        <translation>fait par une version plus récente du programme</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is missing</source>
        <translation>«&#xa0;%1&#xa0;» manque</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has a value that cannot be used</source>
        <translation>«&#xa0;%1&#xa0;» a une valeur inutilisable</translation>
    </message>
    <message>
        <source>the lens model &quot;%1&quot; is not known</source>
        <translation>le modèle d’objectif «&#xa0;%1&#xa0;» est inconnu</translation>
    </message>
    <message>
        <source>there is already a lens of this name</source>
        <translation>il y a déjà un objectif de ce nom</translation>
    </message>
    <message>
        <source>a lens needs a name</source>
        <translation>un objectif a besoin d’un nom</translation>
    </message>
    <message>
        <source>there is no lens of this name</source>
        <translation>il n’y a pas d’objectif de ce nom</translation>
    </message>
    <message>
        <source>lenses are written to files that end in .json, .yaml or .xml</source>
        <translation>les objectifs s’écrivent dans des fichiers en .json, .yaml ou .xml</translation>
    </message>
    <message>
        <source>%1 files cannot be transparent; what would be is black</source>
        <translation>les fichiers %1 ne peuvent pas être transparents&#x202f;; ce qui le serait est noir</translation>
    </message>
    <message>
        <source>the centre cannot keep the photo&apos;s resolution (%3): %1 x %2 pixels</source>
        <translation>le centre ne peut pas garder la résolution de la photo (%3) : %1 x %2 pixels</translation>
    </message>
    <message>
        <source>there is no part without anything outside the photo</source>
        <translation>aucune partie n’est sans rien hors de la photo</translation>
    </message>
    <message>
        <source>the crop runs beyond the frame</source>
        <translation>le recadrage dépasse le cadre</translation>
    </message>
    <message>
        <source>saved with %1 bits: %2 holds no more</source>
        <translation>enregistré avec %1 bits : %2 n’en contient pas plus</translation>
    </message>
    <message>
        <source>this is not a film of a known type</source>
        <translation>ce n’est pas un film d’un type connu</translation>
    </message>
    <message>
        <source>there is no video stream in the film</source>
        <translation>il n’y a pas de piste vidéo dans le film</translation>
    </message>
    <message>
        <source>there is no picture in the film that can be decoded</source>
        <translation>il n’y a dans le film aucune image qui puisse être décodée</translation>
    </message>
    <message>
        <source>the film is encrypted</source>
        <translation>le film est chiffré</translation>
    </message>
    <message>
        <source>the film&apos;s codec cannot be decoded: %1</source>
        <translation>le codec du film ne peut pas être décodé : %1</translation>
    </message>
    <message>
        <source>from %1 seconds on the film&apos;s pictures have another size or pixel format</source>
        <translation>à partir de %1 secondes, les images du film ont une autre taille ou un autre format de pixel</translation>
    </message>
    <message>
        <source>the picture at %1 seconds cannot be decoded</source>
        <translation>l’image à %1 secondes ne peut pas être décodée</translation>
    </message>
    <message>
        <source>the picture at %1 seconds is damaged</source>
        <translation>l’image à %1 secondes est endommagée</translation>
    </message>
    <message>
        <source>films cannot be written: %1</source>
        <translation>les films ne peuvent pas être écrits : %1</translation>
    </message>
    <message>
        <source>the installed libavcodec has no encoder for %1 (%2)</source>
        <translation>la libavcodec installée n’a pas d’encodeur pour %1 (%2)</translation>
    </message>
    <message>
        <source>the encoder %1 takes no pictures of %2; these do: %3</source>
        <translation>l’encodeur %1 n’accepte pas les images en %2 ; ceux-ci le font : %3</translation>
    </message>
    <message>
        <source>the encoder %1 takes no %2 &quot;%3&quot;; it takes: %4</source>
        <translation>l’encodeur %1 n’accepte pas %2 « %3 » ; il accepte : %4</translation>
    </message>
    <message>
        <source>the encoder %1 failed: %2</source>
        <translation>l’encodeur %1 a échoué : %2</translation>
    </message>
    <message>
        <source>%1 files cannot hold %2; these can: %3</source>
        <translation>les fichiers %1 ne peuvent pas contenir %2 ; ceux-ci le peuvent : %3</translation>
    </message>
    <message>
        <source>stream %1 (%2) is left out: %3 files cannot hold it</source>
        <translation>le flux %1 (%2) est laissé de côté : les fichiers %3 ne peuvent pas le contenir</translation>
    </message>
    <message>
        <source>another program is writing this film</source>
        <translation>un autre programme est en train d’écrire ce film</translation>
    </message>
    <message>
        <source>the picture at %1 seconds comes behind a later one and is left out</source>
        <translation>l’image à %1 secondes vient après une image ultérieure et est laissée de côté</translation>
    </message>
    <message>
        <source>the film has no picture from %1 to %2 seconds; it is %3 seconds long</source>
        <translation>le film n’a pas d’image de %1 à %2 secondes ; il dure %3 secondes</translation>
    </message>
    <message>
        <source>its picture has %1 x %2 pixels, the film&apos;s first one %3 x %4</source>
        <translation>son image a %1 x %2 pixels, la première du film %3 x %4</translation>
    </message>
    <message>
        <source>written without its IPTC: JPEG XL files hold none</source>
        <translation>écrite sans son IPTC&#xa0;: les fichiers JPEG XL n&apos;en contiennent pas</translation>
    </message>
</context>
<context>
    <name>RevisionAge</name>
    <message>
        <source>This version of Varnel is now more than %1 months old.</source>
        <translation>Cette version de Varnel a maintenant plus de %1 mois.</translation>
    </message>
    <message>
        <source>An updated revision is likely available.</source>
        <translation>Une version plus récente existe probablement.</translation>
    </message>
    <message>
        <source>It is recommended that you upgrade the executable file.</source>
        <translation>Il est conseillé de mettre à jour le programme.</translation>
    </message>
    <message>
        <source>Upgraded executables may be downloaded from</source>
        <translation>Les versions plus récentes se trouvent à l’adresse</translation>
    </message>
</context>
<context>
    <name>Save</name>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>This is the photo itself; choose another name.</source>
        <translation>C’est la photo elle-même&#x202f;; choisissez un autre nom.</translation>
    </message>
</context>
<context>
    <name>SaveMeanwhile</name>
    <message>
        <source>Cancelled, nothing was saved</source>
        <translation>Annulé, rien n’a été enregistré</translation>
    </message>
</context>
<context>
    <name>SaveWish</name>
    <message>
        <source>about %1</source>
        <translation>environ %1</translation>
    </message>
    <message>
        <source>16 bits</source>
        <translation>16 bits</translation>
    </message>
    <message>
        <source>floating point</source>
        <translation>virgule flottante</translation>
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
        <translation>son nom est inconnu</translation>
    </message>
</context>
<context>
    <name>Shortage</name>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire ne suffit pas.</translation>
    </message>
    <message>
        <source>The system gives no more threads.</source>
        <translation>Le système n’accorde plus de fils d’exécution.</translation>
    </message>
</context>
<context>
    <name>Sliders</name>
    <message>
        <source>Input hAOV</source>
        <translation>Angle d’entrée</translation>
    </message>
    <message>
        <source>The angle that this photo shows from its left to its right edge</source>
        <translation>L’angle que montre cette photo du bord gauche au bord droit</translation>
    </message>
    <message>
        <source>° hAOV</source>
        <translation>° horiz.</translation>
    </message>
    <message>
        <source>Output AOV</source>
        <translation>Angle de sortie</translation>
    </message>
    <message>
        <source>hAOV</source>
        <translation>horiz.</translation>
    </message>
    <message>
        <source>How wide the converted picture looks: small is a telephoto view, large a wide one</source>
        <translation>L’étendue apparente de l’image convertie&#xa0;: petite comme au télé, grande comme au grand-angle</translation>
    </message>
    <message>
        <source>Partial effect</source>
        <translation>Effet partiel</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100&#xa0;%</translation>
    </message>
    <message>
        <source>How much of the conversion is applied: 0 % stays close to the fisheye</source>
        <translation>La part de la conversion appliquée&#xa0;: 0&#xa0;% reste proche du fisheye</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>Up/Down</source>
        <translation>Haut/Bas</translation>
    </message>
    <message>
        <source>0° Up/Down</source>
        <translation>0° haut/bas</translation>
    </message>
    <message>
        <source>Tilts the camera. Double-click the name to reset it</source>
        <translation>Incline l’appareil. Double-cliquez sur le nom pour réinitialiser</translation>
    </message>
    <message>
        <source>° Down</source>
        <translation>° bas</translation>
    </message>
    <message>
        <source>° Up</source>
        <translation>° haut</translation>
    </message>
    <message>
        <source>0°</source>
        <translation>0°</translation>
    </message>
    <message>
        <source>Left/Right</source>
        <translation>Gauche/Droite</translation>
    </message>
    <message>
        <source>0° Left/Right</source>
        <translation>0° gauche/droite</translation>
    </message>
    <message>
        <source>Pans the camera. Double-click the name to reset it</source>
        <translation>Tourne l’appareil en panoramique. Double-cliquez sur le nom pour réinitialiser</translation>
    </message>
    <message>
        <source>° Right</source>
        <translation>° droite</translation>
    </message>
    <message>
        <source>° Left</source>
        <translation>° gauche</translation>
    </message>
    <message>
        <source>Z-axis</source>
        <translation>Axe Z</translation>
    </message>
    <message>
        <source>0° Z</source>
        <translation>0° Z</translation>
    </message>
    <message>
        <source>Levels the picture by rolling the camera. Double-click the name to reset it</source>
        <translation>Met l’image de niveau par le roulis de l’appareil. Double-cliquez sur le nom pour réinitialiser</translation>
    </message>
    <message>
        <source>° c.clockwise</source>
        <translation>° antihoraire</translation>
    </message>
    <message>
        <source>° clockwise</source>
        <translation>° horaire</translation>
    </message>
    <message>
        <source>0% Left/Right</source>
        <translation>0% gauche/droite</translation>
    </message>
    <message>
        <source>Shifts the picture sideways. Double-click the name to reset it</source>
        <translation>Décale l’image sur le côté. Double-cliquez sur le nom pour réinitialiser</translation>
    </message>
    <message>
        <source>% Right</source>
        <translation>% droite</translation>
    </message>
    <message>
        <source>% Left</source>
        <translation>% gauche</translation>
    </message>
    <message>
        <source>0%</source>
        <translation>0%</translation>
    </message>
    <message>
        <source>0% Up/Down</source>
        <translation>0% haut/bas</translation>
    </message>
    <message>
        <source>Shifts the picture up or down. Double-click the name to reset it</source>
        <translation>Décale l’image vers le haut ou le bas. Double-cliquez sur le nom pour réinitialiser</translation>
    </message>
    <message>
        <source>% Up</source>
        <translation>% haut</translation>
    </message>
    <message>
        <source>% Down</source>
        <translation>% bas</translation>
    </message>
    <message>
        <source>Rotate camera</source>
        <translation>Tourner l’appareil</translation>
    </message>
    <message>
        <source>Transpose image</source>
        <translation>Décaler l’image</translation>
    </message>
    <message>
        <source>Distance of the eye</source>
        <translation>Distance de l’œil</translation>
    </message>
    <message>
        <source>0 % is the straight-line view; 100 % keeps wide views calm at the sides</source>
        <translation>0 % est la vue rectiligne&#x202f;; 100 % garde les vues larges calmes sur les côtés</translation>
    </message>
    <message>
        <source>Vertical squeeze</source>
        <translation>Compression verticale</translation>
    </message>
    <message>
        <source>0 %</source>
        <translation>0 %</translation>
    </message>
    <message>
        <source>How far level lines above and below the middle are kept straight</source>
        <translation>À quel point les lignes horizontales au-dessus et au-dessous du milieu restent droites</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Bord gauche</translation>
    </message>
    <message>
        <source>The direction on the photo that the picture&apos;s left edge shows. Double-click the name to reset it</source>
        <translation>La direction sur la photo que montre le bord gauche de l’image. Double-cliquez sur le nom pour la réinitialiser</translation>
    </message>
    <message>
        <source>°</source>
        <translation>°</translation>
    </message>
    <message>
        <source>From angle</source>
        <translation>De l’angle</translation>
    </message>
    <message>
        <source>The angle from the lens&apos;s axis at one edge of the picture</source>
        <translation>L’angle depuis l’axe de l’objectif à un bord de l’image</translation>
    </message>
    <message>
        <source>To angle</source>
        <translation>À l’angle</translation>
    </message>
    <message>
        <source>90°</source>
        <translation>90°</translation>
    </message>
    <message>
        <source>The angle from the lens&apos;s axis at the other edge</source>
        <translation>L’angle depuis l’axe de l’objectif à l’autre bord</translation>
    </message>
</context>
<context>
    <name>Steps</name>
    <message>
        <source>projection</source>
        <translation>projection</translation>
    </message>
    <message>
        <source>choice of gear</source>
        <translation>choix de l’équipement</translation>
    </message>
    <message>
        <source>apply gear to all</source>
        <translation>équipement pour toutes</translation>
    </message>
    <message>
        <source>apply settings to all</source>
        <translation>réglages pour toutes</translation>
    </message>
    <message>
        <source>adjustments</source>
        <translation>ajustements</translation>
    </message>
    <message>
        <source>add images</source>
        <translation>ajout d’images</translation>
    </message>
    <message>
        <source>remove images</source>
        <translation>retrait d’images</translation>
    </message>
    <message>
        <source>reorder images</source>
        <translation>ordre des images</translation>
    </message>
    <message>
        <source>add images with settings</source>
        <translation>ajout d’images avec réglages</translation>
    </message>
    <message>
        <source>level</source>
        <translation>mise de niveau</translation>
    </message>
    <message>
        <source>frame</source>
        <translation>cadre</translation>
    </message>
    <message>
        <source>image circle</source>
        <translation>cercle image</translation>
    </message>
    <message>
        <source>contact sheet</source>
        <translation>planche-contact</translation>
    </message>
    <message>
        <source>open project</source>
        <translation>ouverture de projet</translation>
    </message>
    <message>
        <source>change</source>
        <translation>changement</translation>
    </message>
    <message>
        <source>output AOV</source>
        <translation>angle de sortie</translation>
    </message>
    <message>
        <source>partial effect</source>
        <translation>effet partiel</translation>
    </message>
    <message>
        <source>rotate up/down</source>
        <translation>rotation haut/bas</translation>
    </message>
    <message>
        <source>rotate left/right</source>
        <translation>rotation gauche/droite</translation>
    </message>
    <message>
        <source>rotate Z-axis</source>
        <translation>rotation axe Z</translation>
    </message>
    <message>
        <source>transpose left/right</source>
        <translation>décalage gauche/droite</translation>
    </message>
    <message>
        <source>transpose up/down</source>
        <translation>décalage haut/bas</translation>
    </message>
    <message>
        <source>input hAOV</source>
        <translation>angle d’entrée</translation>
    </message>
    <message>
        <source>new numbers of a gear</source>
        <translation>nouvelles valeurs d’un équipement</translation>
    </message>
    <message>
        <source>open the list again</source>
        <translation>réouverture de la liste</translation>
    </message>
    <message>
        <source>gears of the photos</source>
        <translation>équipements des photos</translation>
    </message>
    <message>
        <source>straighten</source>
        <translation>redressement</translation>
    </message>
    <message>
        <source>reset photo</source>
        <translation>photo réinitialisée</translation>
    </message>
    <message>
        <source>turn of the camera</source>
        <translation>rotation de l’appareil</translation>
    </message>
    <message>
        <source>roll of the camera</source>
        <translation>roulis de l’appareil</translation>
    </message>
    <message>
        <source>angle of view</source>
        <translation>angle de champ</translation>
    </message>
    <message>
        <source>centring</source>
        <translation>centrage</translation>
    </message>
    <message>
        <source>paste settings</source>
        <translation>coller les réglages</translation>
    </message>
    <message>
        <source>preset</source>
        <translation>préréglage</translation>
    </message>
    <message>
        <source>size</source>
        <translation>taille</translation>
    </message>
    <message>
        <source>crop</source>
        <translation>recadrage</translation>
    </message>
    <message>
        <source>outside</source>
        <translation>extérieur</translation>
    </message>
    <message>
        <source>soften faces</source>
        <translation>adoucir les visages</translation>
    </message>
    <message>
        <source>distance of the eye</source>
        <translation>distance de l’œil</translation>
    </message>
    <message>
        <source>vertical squeeze</source>
        <translation>compression verticale</translation>
    </message>
    <message>
        <source>start of unrolling</source>
        <translation>début du déroulement</translation>
    </message>
    <message>
        <source>first angle of unrolling</source>
        <translation>premier angle du déroulement</translation>
    </message>
    <message>
        <source>last angle of unrolling</source>
        <translation>dernier angle du déroulement</translation>
    </message>
    <message>
        <source>direction of unrolling</source>
        <translation>sens du déroulement</translation>
    </message>
    <message>
        <source>marks</source>
        <translation>repères</translation>
    </message>
    <message>
        <source>pose of the camera</source>
        <translation>pose de l’appareil</translation>
    </message>
    <message>
        <source>tunnel</source>
        <translation>tunnel</translation>
    </message>
    <message>
        <source>keys of the film</source>
        <translation>clés du film</translation>
    </message>
    <message>
        <source>part of the film</source>
        <translation>partie du film</translation>
    </message>
</context>
<context>
    <name>ToolbarTools</name>
    <message>
        <source>Add image(s)</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Frame</source>
        <translation>Cadre</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>Cercle</translation>
    </message>
    <message>
        <source>Straighten</source>
        <translation>Redresser</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Avant</translation>
    </message>
    <message>
        <source>Sheet</source>
        <translation>Planche</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer</translation>
    </message>
</context>
<context>
    <name>Volume</name>
    <message>
        <source>fixed</source>
        <translation>fixe</translation>
    </message>
    <message>
        <source>removable</source>
        <translation>amovible</translation>
    </message>
    <message>
        <source>network</source>
        <translation>réseau</translation>
    </message>
    <message>
        <source>optical</source>
        <translation>optique</translation>
    </message>
    <message>
        <source>Drive %1 is not availabe</source>
        <translation>Le lecteur %1 n’est pas disponible</translation>
    </message>
</context>
<context>
    <name>WindowParts</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;OpenOld</source>
        <translation>&amp;Ouvrir (ancien)</translation>
    </message>
    <message>
        <source>Open image(s)</source>
        <translation>Ouvrir des images</translation>
    </message>
    <message>
        <source>&amp;Exit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Setup</source>
        <translation>&amp;Configuration</translation>
    </message>
    <message>
        <source>&amp;Manage equipment</source>
        <translation>&amp;Gérer l’équipement</translation>
    </message>
    <message>
        <source>&amp;Defaults</source>
        <translation>&amp;Valeurs par défaut</translation>
    </message>
    <message>
        <source>&amp;Tools</source>
        <translation>&amp;Outils</translation>
    </message>
    <message>
        <source>Morph</source>
        <translation>Morph</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>Étirer</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Ends the saving without a file</source>
        <translation>Arrête l’enregistrement sans fichier</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Vue</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d’outils</translation>
    </message>
</context>
<context>
    <name>Workspace</name>
    <message>
        <source>Could not find the photo that a picture was made of</source>
        <translation>La photo dont est issue une image est introuvable</translation>
    </message>
    <message>
        <source>Some settings of a picture could not be used</source>
        <translation>Certains réglages d’une image sont inutilisables</translation>
    </message>
    <message>
        <source>Could not open image</source>
        <translation>Impossible d’ouvrir l’image</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La mémoire ne suffit pas.</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 enregistré, %2</translation>
    </message>
    <message>
        <source>%1 of the added images could not be opened</source>
        <translation>%1 des images ajoutées n’ont pas pu être ouvertes</translation>
    </message>
    <message>
        <source>There are no photos in a folder</source>
        <translation>Un dossier ne contient pas de photos</translation>
    </message>
    <message>
        <source>Only the first %1 photos were added</source>
        <translation>Seules les %1 premières photos ont été ajoutées</translation>
    </message>
</context>
<context>
    <name>varnel::AdjustmentPanel</name>
    <message>
        <source>Refine equipment parameters</source>
        <translation>Affiner l’équipement</translation>
    </message>
    <message>
        <source>Remap</source>
        <translation>Convertir</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Pour toutes</translation>
    </message>
    <message>
        <source>Gives every photo in the list these settings and this gear</source>
        <translation>Donne à chaque photo de la liste ces réglages et cet équipement</translation>
    </message>
    <message>
        <source>Auto preview</source>
        <translation>Aperçu auto</translation>
    </message>
    <message>
        <source>Redraws the preview after every change</source>
        <translation>Redessine l’aperçu après chaque changement</translation>
    </message>
    <message>
        <source>Antialiased</source>
        <translation>Lissé</translation>
    </message>
    <message>
        <source>Smooths the preview; saved pictures are always smooth</source>
        <translation>Lisse l’aperçu&#x202f;; les images enregistrées sont toujours lissées</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Draws the preview now</source>
        <translation>Dessine l’aperçu maintenant</translation>
    </message>
    <message>
        <source>Reset photo</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Gives all sliders of this photo the values of its gear again</source>
        <translation>Redonne à tous les curseurs de cette photo les valeurs de son équipement</translation>
    </message>
</context>
<context>
    <name>varnel::Application</name>
    <message>
        <source>What was just begun was not done.</source>
        <translation>Ce qui venait de commencer n’a pas été fait.</translation>
    </message>
</context>
<context>
    <name>varnel::BatchTools</name>
    <message>
        <source>Progress of the batch</source>
        <translation>Progression de la file d’attente</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Holds the batch where it is, and lets it go on</source>
        <translation>Suspend la file d’attente, et la laisse reprendre</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Finishes the batch&apos;s image at hand and leaves out the others</source>
        <translation>Termine l’image en cours et laisse les autres</translation>
    </message>
    <message>
        <source>Batch: finishing the image at hand</source>
        <translation>File d’attente&#xa0;: dernière image en cours</translation>
    </message>
    <message>
        <source>Batch: %1</source>
        <translation>File d’attente&#xa0;: %1</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Batch: %1 images written</source>
        <translation>File d’attente&#xa0;: %1 images écrites</translation>
    </message>
    <message>
        <source>Batch: %1 images written, %2 failed</source>
        <translation>File d’attente&#xa0;: %1 images écrites, %2 échecs</translation>
    </message>
</context>
<context>
    <name>varnel::CircleBar</name>
    <message>
        <source>Find circle</source>
        <translation>Trouver le cercle</translation>
    </message>
    <message>
        <source>Looks for the rim of the image circle on this photo</source>
        <translation>Cherche le bord du cercle image sur cette photo</translation>
    </message>
    <message>
        <source>Gear&apos;s circle</source>
        <translation>Cercle de l’équipement</translation>
    </message>
    <message>
        <source>Gives this photo the circle that the gear has at present</source>
        <translation>Donne à cette photo le cercle qu’a actuellement l’équipement</translation>
    </message>
    <message>
        <source>Keep for the gear ...</source>
        <translation>Garder pour l’équipement...</translation>
    </message>
    <message>
        <source>Makes this circle the one of the gear</source>
        <translation>Fait de ce cercle celui de l’équipement</translation>
    </message>
    <message>
        <source>Change the gear</source>
        <translation>Modifier l’équipement</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>How far the circle&apos;s middle is from the photo&apos;s, in thousandths of its width and height, and the circle&apos;s diameter in percent of the photo&apos;s longer side</source>
        <translation>L’écart du centre du cercle à celui de la photo, en millièmes de sa largeur et de sa hauteur, et le diamètre du cercle en pourcentage du plus grand côté de la photo</translation>
    </message>
</context>
<context>
    <name>varnel::CircleTools</name>
    <message>
        <source>&amp;Image circle</source>
        <translation>Cercle &amp;image</translation>
    </message>
    <message>
        <source>Image circle found.</source>
        <translation>Cercle image trouvé.</translation>
    </message>
    <message>
        <source>No rim of an image circle was found on this photo.</source>
        <translation>Aucun bord de cercle image n’a été trouvé sur cette photo.</translation>
    </message>
    <message>
        <source>A rough image circle, from the light inside: it is dark at the rim. Drag the rim where it is not right.</source>
        <translation>Un cercle image approximatif, d’après la lumière à l’intérieur&#xa0;: il fait sombre au bord. Tirez le bord là où il n’est pas juste.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; has the circle now; undo takes it back.</source>
        <translation>L’équipement «&#xa0;%1&#xa0;» a maintenant ce cercle&#x202f;; Annuler le reprend.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; stays as it is: it was edited or deleted since.</source>
        <translation>L’équipement «&#xa0;%1&#xa0;» reste tel quel&#xa0;: il a été modifié ou supprimé depuis.</translation>
    </message>
    <message>
        <source>%1 ‰ right</source>
        <translation>%1&#xa0;‰ à droite</translation>
    </message>
    <message>
        <source>%1 ‰ left</source>
        <translation>%1&#xa0;‰ à gauche</translation>
    </message>
    <message>
        <source>%1 ‰ down</source>
        <translation>%1&#xa0;‰ en bas</translation>
    </message>
    <message>
        <source>%1 ‰ up</source>
        <translation>%1&#xa0;‰ en haut</translation>
    </message>
    <message>
        <source>in the middle of the photo</source>
        <translation>au milieu de la photo</translation>
    </message>
    <message>
        <source>Centre %1, diameter %2 %</source>
        <translation>Centre %1, diamètre %2&#xa0;%</translation>
    </message>
    <message>
        <source>Change the circle of the gear &quot;%1&quot;? %2. Photos that are adjusted already keep their circle, but for the current one.</source>
        <translation>Modifier le cercle de l’équipement «&#xa0;%1&#xa0;»&#x202f;? %2. Les photos déjà ajustées gardent leur cercle, sauf la photo actuelle.</translation>
    </message>
    <message>
        <source>The gear &quot;%1&quot; has its circle again: %2.</source>
        <translation>L’équipement «&#xa0;%1&#xa0;» a retrouvé son cercle&#xa0;: %2.</translation>
    </message>
    <message>
        <source>No rim of an image circle was found in this film.</source>
        <translation>Aucun bord de cercle image n’a été trouvé dans ce film.</translation>
    </message>
</context>
<context>
    <name>varnel::ColourTools</name>
    <message>
        <source>Displa&amp;y colours</source>
        <translation>Affichage colorimétri&amp;que</translation>
    </message>
    <message>
        <source>Histogram and clipping mar&amp;ks</source>
        <translation>Niveau&amp;x et marques d’écrêtage</translation>
    </message>
</context>
<context>
    <name>varnel::ContactSheetBox</name>
    <message>
        <source>Contact sheet</source>
        <translation>Planche-contact</translation>
    </message>
    <message>
        <source>The photo in every projection and three strengths</source>
        <translation>La photo dans chaque projection et à trois forces</translation>
    </message>
    <message>
        <source> (as it is)</source>
        <translation> (telle quelle)</translation>
    </message>
</context>
<context>
    <name>varnel::CropBar</name>
    <message>
        <source>Drag the corners, the sides or the crop itself; arrow keys move it, with Shift they widen it, plus and minus do on all sides</source>
        <translation>Tirez les coins, les côtés ou le recadrage lui-même&#x202f;; les flèches le déplacent, avec Maj elles l’élargissent, plus et moins le font de tous côtés</translation>
    </message>
    <message>
        <source>Clean</source>
        <translation>Net</translation>
    </message>
    <message>
        <source>The largest part in which the photo is everywhere</source>
        <translation>La plus grande partie où la photo est partout</translation>
    </message>
    <message>
        <source>Whole frame</source>
        <translation>Cadre entier</translation>
    </message>
    <message>
        <source>Cuts nothing off</source>
        <translation>Ne coupe rien</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Shows the result as it is saved</source>
        <translation>Montre le résultat tel qu’il est enregistré</translation>
    </message>
    <message>
        <source>Shape of the crop</source>
        <translation>Forme du recadrage</translation>
    </message>
    <message>
        <source>Width and height of the crop</source>
        <translation>Largeur et hauteur du recadrage</translation>
    </message>
    <message>
        <source>Any shape</source>
        <translation>Forme libre</translation>
    </message>
    <message>
        <source>As the frame</source>
        <translation>Comme le cadre</translation>
    </message>
</context>
<context>
    <name>varnel::CropTools</name>
    <message>
        <source>&amp;Crop</source>
        <translation>Re&amp;cadrer</translation>
    </message>
    <message>
        <source>Looking for the largest clean crop ...</source>
        <translation>Recherche du plus grand recadrage net...</translation>
    </message>
    <message>
        <source>No part of the result is without outside.</source>
        <translation>Aucune partie du résultat n’est sans extérieur.</translation>
    </message>
    <message>
        <source>%1 x %2 of %3 x %4 pixels</source>
        <translation>%1 x %2 de %3 x %4 pixels</translation>
    </message>
</context>
<context>
    <name>varnel::DividerTools</name>
    <message>
        <source>Before an&amp;d after, divided</source>
        <translation>Avant et après &amp;face à face</translation>
    </message>
    <message>
        <source>Classic and fine sampling, divided</source>
        <translation>Échantillonnages classique et fin face à face</translation>
    </message>
</context>
<context>
    <name>varnel::EdgeView</name>
    <message>
        <source>Add a photo with many straight edges, out to the rim.</source>
        <translation>Ajoutez une photo avec beaucoup d’arêtes droites, jusqu’au bord.</translation>
    </message>
    <message>
        <source>The photo with its edges</source>
        <translation>La photo avec ses arêtes</translation>
    </message>
</context>
<context>
    <name>varnel::EmptyState</name>
    <message>
        <source>Drop fisheye photos here</source>
        <translation>Déposez ici des photos fisheye</translation>
    </message>
    <message>
        <source>Each gets the gear that took it; then choose what the result shall be under &quot;Remap&quot;.</source>
        <translation>Chacune reçoit l’équipement qui l’a prise&#x202f;; choisissez ensuite le résultat voulu sous «&#xa0;Convertir&#xa0;».</translation>
    </message>
    <message>
        <source>Choose photos...</source>
        <translation>Choisir des photos...</translation>
    </message>
    <message>
        <source>Adds photos to the list</source>
        <translation>Ajoute des photos à la liste</translation>
    </message>
    <message>
        <source>Try the sample photo</source>
        <translation>Essayer la photo d’exemple</translation>
    </message>
    <message>
        <source>Opens a photo that is drawn by this program</source>
        <translation>Ouvre une photo dessinée par ce programme</translation>
    </message>
</context>
<context>
    <name>varnel::EquipmentPanel</name>
    <message>
        <source>Equipment</source>
        <translation>Équipement</translation>
    </message>
    <message>
        <source>Camera + lens combination</source>
        <translation>Appareil + objectif</translation>
    </message>
    <message>
        <source>Which camera and lens took the selected photos</source>
        <translation>L’appareil et l’objectif qui ont pris les photos sélectionnées</translation>
    </message>
    <message>
        <source>Apply to all</source>
        <translation>Pour toutes</translation>
    </message>
    <message>
        <source>Every photo in the list was taken with this gear</source>
        <translation>Chaque photo de la liste a été prise avec cet équipement</translation>
    </message>
    <message>
        <source>No gear yet</source>
        <translation>Pas encore d’équipement</translation>
    </message>
    <message>
        <source>%1 (not in the list)</source>
        <translation>%1 (hors liste)</translation>
    </message>
</context>
<context>
    <name>varnel::FaceBar</name>
    <message>
        <source>By keyboard: Insert makes an ellipse, Space goes to the next one, arrows move it, with Shift they size it, [ and ] turn it, Delete takes it away</source>
        <translation>Au clavier : Inser crée une ellipse, Espace passe à la suivante, les flèches la déplacent, avec Maj elles la redimensionnent, [ et ] la tournent, Suppr l’enlève</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Takes the chosen ellipse away</source>
        <translation>Enlève l’ellipse choisie</translation>
    </message>
    <message>
        <source>Remove all</source>
        <translation>Tout retirer</translation>
    </message>
    <message>
        <source>Takes all ellipses away</source>
        <translation>Enlève toutes les ellipses</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Hides the ellipses</source>
        <translation>Cache les ellipses</translation>
    </message>
    <message>
        <source>Drag an ellipse around each face on the result; it keeps its shape.</source>
        <translation>Tirez une ellipse autour de chaque visage sur le résultat&#x202f;; il garde sa forme.</translation>
    </message>
    <message>
        <source>Drag an ellipse to move it, its rim to size it, its knob to turn it; a drag beside them draws another one.</source>
        <translation>Tirez une ellipse pour la déplacer, son bord pour la redimensionner, son bouton pour la tourner&#x202f;; tirer à côté en dessine une autre.</translation>
    </message>
</context>
<context>
    <name>varnel::FaceTools</name>
    <message>
        <source>Soften &amp;faces</source>
        <translation>Adoucir les &amp;visages</translation>
    </message>
    <message>
        <source>Only Rectilinear draws faces out; the others have none to soften.</source>
        <translation>Seule Rectilinear étire les visages&#x202f;; les autres n’en ont pas à adoucir.</translation>
    </message>
</context>
<context>
    <name>varnel::FilmBar</name>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Plays the film (space)</source>
        <translation>Lit le film (espace)</translation>
    </message>
    <message>
        <source>In</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>The film begins with this frame (I)</source>
        <translation>Le film commence par cette image (I)</translation>
    </message>
    <message>
        <source>Out</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>The film ends with this frame (O)</source>
        <translation>Le film finit par cette image (O)</translation>
    </message>
    <message>
        <source>Set key</source>
        <translation>Poser une clé</translation>
    </message>
    <message>
        <source>Auto key</source>
        <translation>Clé automatique</translation>
    </message>
    <message>
        <source>Every slider that is moved makes a key at this time; without it only those do that have keys already</source>
        <translation>Chaque curseur déplacé pose une clé à cet instant ; sinon seulement ceux qui ont déjà des clés</translation>
    </message>
    <message>
        <source>Codec of the film</source>
        <translation>Codec du film</translation>
    </message>
    <message>
        <source>How the film is encoded</source>
        <translation>Comment le film est encodé</translation>
    </message>
    <message>
        <source>Quality of the film (CRF)</source>
        <translation>Qualité du film (CRF)</translation>
    </message>
    <message>
        <source>CRF of the encoder: a smaller number is a better and longer file</source>
        <translation>CRF de l’encodeur : un nombre plus petit donne un fichier meilleur et plus long</translation>
    </message>
    <message>
        <source>Usual quality</source>
        <translation>Qualité usuelle</translation>
    </message>
    <message>
        <source>Speed of encoding</source>
        <translation>Vitesse d’encodage</translation>
    </message>
    <message>
        <source>A slower encoder makes shorter files of the same quality</source>
        <translation>Un encodeur plus lent fait des fichiers plus courts de même qualité</translation>
    </message>
    <message>
        <source>Usual speed</source>
        <translation>Vitesse usuelle</translation>
    </message>
    <message>
        <source>Save film ...</source>
        <translation>Enregistrer le film ...</translation>
    </message>
    <message>
        <source>Converts the film with its keys, from In to Out, and writes it</source>
        <translation>Convertit le film avec ses clés, de Début à Fin, et l’écrit</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Remove key</source>
        <translation>Retirer la clé</translation>
    </message>
    <message>
        <source>Removes the key at this time</source>
        <translation>Retire la clé à cet instant</translation>
    </message>
    <message>
        <source>A key at this time with the numbers of all sliders that move (K)</source>
        <translation>Une clé à cet instant avec les nombres de tous les curseurs qui évoluent (K)</translation>
    </message>
</context>
<context>
    <name>varnel::FilmTools</name>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>This is the film itself; choose another name.</source>
        <translation>C’est le film lui-même ; choisissez un autre nom.</translation>
    </message>
    <message>
        <source>No film was written</source>
        <translation>Aucun film n’a été écrit</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
</context>
<context>
    <name>varnel::FoldGroup</name>
    <message>
        <source>Shows what is in this group</source>
        <translation>Affiche le contenu de ce groupe</translation>
    </message>
    <message>
        <source>Hides what is in this group</source>
        <translation>Masque le contenu de ce groupe</translation>
    </message>
</context>
<context>
    <name>varnel::FolderChooser</name>
    <message>
        <source>The folder cannot be named %1</source>
        <translation>Le dossier ne peut pas s’appeler %1</translation>
    </message>
</context>
<context>
    <name>varnel::FolderModel</name>
    <message>
        <source>A name cannot hold a slash.</source>
        <translation>Un nom ne peut pas contenir de barre oblique.</translation>
    </message>
    <message>
        <source>Something of that name is there already.</source>
        <translation>Ce nom est déjà pris.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
</context>
<context>
    <name>varnel::FormAbout</name>
    <message>
        <source>Revision %1</source>
        <translation>Révision %1</translation>
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
        <translation>Ce dossier est illisible</translation>
    </message>
    <message>
        <source>No photos here</source>
        <translation>Pas de photos ici</translation>
    </message>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 sur %2 sélectionnés</translation>
    </message>
</context>
<context>
    <name>varnel::FormBatch</name>
    <message>
        <source>Name addition for %1</source>
        <translation>Ajout au nom pour %1</translation>
    </message>
    <message>
        <source>1 queued image</source>
        <translation>1 image en attente</translation>
    </message>
    <message>
        <source>%1 queued images</source>
        <translation>%1 images en attente</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>Wait this image</source>
        <translation>Finir cette image</translation>
    </message>
    <message>
        <source>No folder can be made in %1</source>
        <translation>Impossible de créer un dossier dans %1</translation>
    </message>
    <message>
        <source>All images: %1</source>
        <translation>Toutes les images&#xa0;: %1</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Reprendre</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>What follows the photo&apos;s own name in the names of %1 images; empty: the word %2</source>
        <translation>Ce qui suit le nom de la photo dans les noms des images %1&#x202f;; vide : le mot %2</translation>
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
        <translation>Nouvelle combinaison appareil + objectif</translation>
    </message>
    <message>
        <source>Redefine camera + lens combination</source>
        <translation>Modifier la combinaison appareil + objectif</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Choose a camera and a lens first.</source>
        <translation>Choisissez d’abord un appareil et un objectif.</translation>
    </message>
    <message>
        <source>Ratio and offsets are set by hand.</source>
        <translation>Le rapport et les décalages sont réglés à la main.</translation>
    </message>
    <message>
        <source>Values of the catalogue.</source>
        <translation>Valeurs du catalogue.</translation>
    </message>
    <message>
        <source>The angle of view is set by hand.</source>
        <translation>L’angle de champ est réglé à la main.</translation>
    </message>
    <message>
        <source>The file of this lens is not there.</source>
        <translation>Le fichier de cet objectif manque.</translation>
    </message>
    <message>
        <source>The lens could not be kept: %1</source>
        <translation>L’objectif n’a pas pu être gardé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Of the photo</source>
        <translation>De la photo</translation>
    </message>
    <message>
        <source>Of a drawn room, seen by this lens</source>
        <translation>D’une pièce dessinée, vue par cet objectif</translation>
    </message>
    <message>
        <source>Taken with %1.</source>
        <translation>Prise avec %1.</translation>
    </message>
    <message>
        <source>The numbers of the lens are set by hand.</source>
        <translation>Les nombres de l’objectif sont réglés à la main.</translation>
    </message>
</context>
<context>
    <name>varnel::FormGearList</name>
    <message>
        <source>The gear of new photos</source>
        <translation>L’équipement des nouvelles photos</translation>
    </message>
</context>
<context>
    <name>varnel::FormGuide</name>
    <message>
        <source>Varnel user guide</source>
        <translation>Guide de Varnel (en anglais)</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Sommaire</translation>
    </message>
    <message>
        <source>The first page</source>
        <translation>La première page</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>The page before</source>
        <translation>La page précédente</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>Suiva&amp;nt</translation>
    </message>
    <message>
        <source>The page after</source>
        <translation>La page suivante</translation>
    </message>
    <message>
        <source>Page of the guide</source>
        <translation>Page du guide</translation>
    </message>
    <message>
        <source>Find in the guide</source>
        <translation>Chercher dans le guide</translation>
    </message>
</context>
<context>
    <name>varnel::FormMorph</name>
    <message>
        <source>%1 at the start</source>
        <translation>%1 au début</translation>
    </message>
    <message>
        <source>%1 at the end</source>
        <translation>%1 à la fin</translation>
    </message>
    <message>
        <source>* The projection %1 does not use this.</source>
        <translation>* La projection %1 ne l’utilise pas.</translation>
    </message>
    <message>
        <source>No preview</source>
        <translation>Pas d’aperçu</translation>
    </message>
    <message>
        <source>Image %1 of %2</source>
        <translation>Image %1 sur %2</translation>
    </message>
    <message>
        <source>Between</source>
        <translation>Entre les deux</translation>
    </message>
    <message>
        <source>No images were added</source>
        <translation>Aucune image n’a été ajoutée</translation>
    </message>
    <message>
        <source>%1 images added, %2 in the batch que</source>
        <translation>%1 images ajoutées, %2 dans la file d’attente</translation>
    </message>
    <message>
        <source>%1 seconds</source>
        <translation>%1 secondes</translation>
    </message>
    <message>
        <source>&amp;Write film ...</source>
        <translation>É&amp;crire le film ...</translation>
    </message>
    <message>
        <source>&amp;Add to batch que</source>
        <translation>&amp;Ajouter à la file d’attente</translation>
    </message>
    <message>
        <source>Asks for a name and writes the sequence as a film</source>
        <translation>Demande un nom et écrit la séquence comme film</translation>
    </message>
    <message>
        <source>Puts every image of the sequence into the batch queue, where &quot;Process batch que&quot; writes them</source>
        <translation>Met chaque image de la séquence dans la file d’attente, où «&#xa0;Traiter la file d’attente&#xa0;» les écrit</translation>
    </message>
    <message>
        <source>Write the sequence as a film</source>
        <translation>Écrire la séquence comme film</translation>
    </message>
    <message>
        <source>Add the sequence to the batch queue</source>
        <translation>Ajouter la séquence à la file d’attente</translation>
    </message>
    <message>
        <source>A film needs two images or more</source>
        <translation>Un film a besoin de deux images ou plus</translation>
    </message>
    <message>
        <source>The film %1 was written</source>
        <translation>Le film %1 a été écrit</translation>
    </message>
    <message>
        <source>No film was written</source>
        <translation>Aucun film n’a été écrit</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
</context>
<context>
    <name>varnel::FormPresets</name>
    <message>
        <source>No presets of your own yet: &quot;Save as preset...&quot; in the Edit menu makes one of the photo at hand.</source>
        <translation>Pas encore de préréglages à vous&#xa0;: «&#xa0;Enregistrer comme préréglage...&#xa0;» du menu Édition en fait un de la photo actuelle.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is deleted.</source>
        <translation>«&#xa0;%1&#xa0;» est supprimé.</translation>
    </message>
    <message>
        <source>%1 holds no presets.</source>
        <translation>%1 ne contient pas de préréglages.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>%1 est illisible&#xa0;: %2</translation>
    </message>
    <message>
        <source>1 preset was added.</source>
        <translation>1 préréglage a été ajouté.</translation>
    </message>
    <message>
        <source>%1 presets were added.</source>
        <translation>%1 préréglages ont été ajoutés.</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>%1 ne peut pas être écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>varnel::FormSavePreset</name>
    <message>
        <source>Choose what the preset sets.</source>
        <translation>Choisissez ce que fixe le préréglage.</translation>
    </message>
    <message>
        <source>It replaces your preset of this name.</source>
        <translation>Il remplace votre préréglage de ce nom.</translation>
    </message>
</context>
<context>
    <name>varnel::FormSetup</name>
    <message>
        <source>%1 pixels</source>
        <translation>%1 pixels</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
</context>
<context>
    <name>varnel::FormStraighten</name>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Off straight</source>
        <translation>Écart</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>Direction</translation>
    </message>
    <message>
        <source>The photo made straight</source>
        <translation>La photo redressée</translation>
    </message>
    <message>
        <source>No edge was found between these two places; click nearer to its ends.</source>
        <translation>Aucune arête n’a été trouvée entre ces deux endroits&#x202f;; cliquez plus près de ses bouts.</translation>
    </message>
    <message>
        <source>%1: four photos are the most</source>
        <translation>%1&#xa0;: quatre photos au plus</translation>
    </message>
    <message>
        <source>%1: it is not as large as the first photo, or held otherwise</source>
        <translation>%1&#xa0;: elle n’a pas la taille de la première photo, ou elle est tenue autrement</translation>
    </message>
    <message>
        <source>%1, measured</source>
        <translation>%1, mesuré</translation>
    </message>
    <message>
        <source>Now click near the other end of the edge.</source>
        <translation>Cliquez maintenant près de l’autre bout de l’arête.</translation>
    </message>
    <message>
        <source>Looking for straight edges...</source>
        <translation>Recherche d’arêtes droites...</translation>
    </message>
    <message>
        <source>Measuring...</source>
        <translation>Mesure en cours...</translation>
    </message>
    <message>
        <source>taken away</source>
        <translation>retirée</translation>
    </message>
    <message>
        <source>%1 px</source>
        <translation>%1 px</translation>
    </message>
    <message>
        <source>%1 px, not used</source>
        <translation>%1 px, ne compte pas</translation>
    </message>
    <message>
        <source>&amp;Bring back</source>
        <translation>&amp;Remettre</translation>
    </message>
    <message>
        <source>&amp;Take away</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is now among your lenses.</source>
        <translation>«&#xa0;%1&#xa0;» fait maintenant partie de vos objectifs.</translation>
    </message>
</context>
<context>
    <name>varnel::FormStretch</name>
    <message>
        <source>100 % narrower</source>
        <translation>100&#xa0;% plus étroit</translation>
    </message>
    <message>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>plus large</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>plus étroit</translation>
    </message>
    <message>
        <source>up</source>
        <translation>haut</translation>
    </message>
    <message>
        <source>down</source>
        <translation>bas</translation>
    </message>
    <message>
        <source>Could not open image</source>
        <translation>Impossible d’ouvrir l’image</translation>
    </message>
    <message>
        <source>%1 x %2 pixels</source>
        <translation>%1 x %2 pixels</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>Saved %1, %2</source>
        <translation>%1 enregistré, %2</translation>
    </message>
    <message>
        <source>Closes when the picture is saved</source>
        <translation>Ferme une fois l’image enregistrée</translation>
    </message>
</context>
<context>
    <name>varnel::FrameTools</name>
    <message>
        <source>&amp;Frame on the photo</source>
        <translation>&amp;Cadre sur la photo</translation>
    </message>
    <message>
        <source>&amp;Magnification map</source>
        <translation>Carte d’agrandisse&amp;ment</translation>
    </message>
    <message>
        <source>The middle of Horizon is a single point of the photo: its resolution is told half way to the rim.</source>
        <translation>Le milieu de Horizon est un seul point de la photo&#xa0;: sa résolution est donnée à mi-chemin du bord.</translation>
    </message>
</context>
<context>
    <name>varnel::GearBar</name>
    <message>
        <source>Choose the gear</source>
        <translation>Choisir l’équipement</translation>
    </message>
    <message>
        <source>Gives this photo another gear</source>
        <translation>Donne à cette photo un autre équipement</translation>
    </message>
    <message>
        <source>Sees this photo in the other way</source>
        <translation>Prend cette photo de l’autre façon</translation>
    </message>
    <message>
        <source>Gives the gear of this photo to all others of the same camera, lens and size</source>
        <translation>Donne l’équipement de cette photo à toutes les autres de mêmes appareil, objectif et taille</translation>
    </message>
    <message>
        <source>Define this gear...</source>
        <translation>Définir cet équipement...</translation>
    </message>
    <message>
        <source>Same for all photos like this</source>
        <translation>De même pour toutes les photos semblables</translation>
    </message>
</context>
<context>
    <name>varnel::GearOfferRow</name>
    <message>
        <source>Use %1</source>
        <translation>Utiliser %1</translation>
    </message>
    <message>
        <source>Gives this photo the gear &quot;%1&quot;</source>
        <translation>Donne à cette photo l’équipement «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Define this gear...</source>
        <translation>Définir cet équipement...</translation>
    </message>
    <message>
        <source>Opens the gear editor with the camera and the lens chosen</source>
        <translation>Ouvre l’éditeur d’équipement, appareil et objectif choisis</translation>
    </message>
    <message>
        <source>The camera or the lens of the gear in use is not the photo&apos;s: the circle and the angles do not fit.</source>
        <translation>L’appareil ou l’objectif de l’équipement utilisé n’est pas celui de la photo&#xa0;: le cercle et les angles ne conviennent pas.</translation>
    </message>
    <message>
        <source>Puts the gear that this photo was adjusted with into the list; the photo stays as it is</source>
        <translation>Met dans la liste l’équipement avec lequel cette photo a été ajustée&#x202f;; la photo reste telle quelle</translation>
    </message>
</context>
<context>
    <name>varnel::GivenBar</name>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Takes these gears back</source>
        <translation>Reprend ces équipements</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Masque cette ligne</translation>
    </message>
    <message>
        <source>1 photo got its own gear</source>
        <translation>1 photo a reçu son propre équipement</translation>
    </message>
    <message>
        <source>%1 photos got their own gear</source>
        <translation>%1 photos ont reçu leur propre équipement</translation>
    </message>
</context>
<context>
    <name>varnel::GuideTools</name>
    <message>
        <source>User &amp;guide</source>
        <translation>&amp;Guide (en anglais)</translation>
    </message>
    <message>
        <source>The user guide is not installed</source>
        <translation>Le guide n’est pas installé</translation>
    </message>
    <message>
        <source>It belongs into the folder share/varnel/guide beside %1.</source>
        <translation>Sa place est dans le dossier share/varnel/guide à côté de %1.</translation>
    </message>
</context>
<context>
    <name>varnel::HintTools</name>
    <message>
        <source>Draw along the horizon on the photo, or click points and then the last one again; Escape leaves</source>
        <translation>Tracez le long de l’horizon sur la photo, ou cliquez sur des points, puis de nouveau sur le dernier&#x202f;; Échap quitte</translation>
    </message>
    <message>
        <source>Drag the circle&apos;s rim or its middle on the photo; Escape leaves</source>
        <translation>Tirez le bord du cercle ou son centre sur la photo&#x202f;; Échap quitte</translation>
    </message>
    <message>
        <source>drag: turn   wheel: angle   Shift+drag: roll</source>
        <translation>glisser&#xa0;: tourner   molette&#xa0;: angle   Maj+glisser&#xa0;: roulis</translation>
    </message>
    <message>
        <source>Drag the crop, its sides or its corners on the result; Escape leaves</source>
        <translation>Tirez le recadrage, ses côtés ou ses coins sur le résultat&#x202f;; Échap quitte</translation>
    </message>
</context>
<context>
    <name>varnel::ImageListPanel</name>
    <message>
        <source>Image list</source>
        <translation>Liste d’images</translation>
    </message>
    <message>
        <source>Click a photo to work on it; select several to adjust them together</source>
        <translation>Cliquez sur une photo pour y travailler&#x202f;; sélectionnez-en plusieurs pour les ajuster ensemble</translation>
    </message>
    <message>
        <source>Add image(s)</source>
        <translation>Ajouter des images</translation>
    </message>
    <message>
        <source>Adds photos to the list</source>
        <translation>Ajoute des photos à la liste</translation>
    </message>
    <message>
        <source>Remove image(s)</source>
        <translation>Retirer des images</translation>
    </message>
    <message>
        <source>Takes the selected photos off the list; the files stay</source>
        <translation>Retire de la liste les photos sélectionnées&#x202f;; les fichiers restent</translation>
    </message>
</context>
<context>
    <name>varnel::InsetFrame</name>
    <message>
        <source>The photo as shot: drag the bar to move it, the corner to resize it</source>
        <translation>La photo d’origine&#xa0;: tirez la barre pour la déplacer, le coin pour changer sa taille</translation>
    </message>
</context>
<context>
    <name>varnel::LayoutTools</name>
    <message>
        <source>Image li&amp;st in the left column</source>
        <translation>Li&amp;ste d’images dans la colonne de gauche</translation>
    </message>
    <message>
        <source>Results &amp;as pictures in the list</source>
        <translation>&amp;Résultats en vignettes dans la liste</translation>
    </message>
</context>
<context>
    <name>varnel::LevelTools</name>
    <message>
        <source>&amp;Level the horizon</source>
        <translation>Mettre l’&amp;horizon de niveau</translation>
    </message>
    <message>
        <source>%1 cannot be levelled: it does not turn the camera.</source>
        <translation>%1 ne peut pas être mis de niveau : l’appareil n’y tourne pas.</translation>
    </message>
</context>
<context>
    <name>varnel::OutputPanel</name>
    <message>
        <source>What the files are called. Tokens: %1</source>
        <translation>Comment s’appellent les fichiers. Jetons&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>varnel::OwnLensTools</name>
    <message>
        <source>&amp;Import ...</source>
        <translation>&amp;Importer...</translation>
    </message>
    <message>
        <source>&amp;Rename ...</source>
        <translation>&amp;Renommer...</translation>
    </message>
    <message>
        <source>&amp;Export ...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Nothing was changed: %1</source>
        <translation>Rien n’a été changé&#xa0;: %1</translation>
    </message>
    <message>
        <source>Reading %1 ...</source>
        <translation>Lecture de %1...</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is one of your lenses now.</source>
        <translation>«&#xa0;%1&#xa0;» est maintenant l’un de vos objectifs.</translation>
    </message>
    <message>
        <source>%1 lenses are among yours now.</source>
        <translation>%1 objectifs font maintenant partie des vôtres.</translation>
    </message>
    <message>
        <source>Left out: %1</source>
        <translation>Laissé de côté&#xa0;: %1</translation>
    </message>
    <message>
        <source>New name of the lens:</source>
        <translation>Nouveau nom de l’objectif&#xa0;:</translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Pas exporté&#xa0;: %1</translation>
    </message>
    <message>
        <source>Written to %1; its formula is off the curve by at most %2 px.</source>
        <translation>Écrit dans %1&#x202f;; sa formule s’écarte de la courbe d’au plus %2 px.</translation>
    </message>
    <message>
        <source>Written to %1.</source>
        <translation>Écrit dans %1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted.</source>
        <translation>«&#xa0;%1&#xa0;» a été supprimé.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was deleted; gears that need it: %2.</source>
        <translation>«&#xa0;%1&#xa0;» a été supprimé&#x202f;; équipements qui en ont besoin&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>varnel::PairBar</name>
    <message>
        <source>Use RAW only</source>
        <translation>RAW seulement</translation>
    </message>
    <message>
        <source>Takes the JPEG files of these photos out of the list</source>
        <translation>Retire de la liste les fichiers JPEG de ces photos</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Hides this line</source>
        <translation>Masque cette ligne</translation>
    </message>
    <message>
        <source>1 photo was added as RAW and as JPEG</source>
        <translation>1 photo a été ajoutée en RAW et en JPEG</translation>
    </message>
    <message>
        <source>%1 photos were added as RAW and as JPEG</source>
        <translation>%1 photos ont été ajoutées en RAW et en JPEG</translation>
    </message>
</context>
<context>
    <name>varnel::PhotoGearTools</name>
    <message>
        <source>This photo was taken with %1, which is no fisheye: it keeps the gear %2.</source>
        <translation>Cette photo a été prise avec %1, qui n’est pas un fisheye&#xa0;: elle garde l’équipement %2.</translation>
    </message>
    <message>
        <source>Take the whole sensor</source>
        <translation>Prendre tout le capteur</translation>
    </message>
    <message>
        <source>Take the gear&apos;s circle</source>
        <translation>Prendre le cercle de l’équipement</translation>
    </message>
    <message>
        <source>The photo is taken for the whole sensor, though it has another shape.</source>
        <translation>La photo passe pour le capteur entier, bien qu’elle ait un autre format.</translation>
    </message>
    <message>
        <source>The gear&apos;s image circle is used, though the photo&apos;s is elsewhere.</source>
        <translation>Le cercle image de l’équipement est utilisé, bien que celui de la photo soit ailleurs.</translation>
    </message>
    <message>
        <source>Take a piece of the sensor</source>
        <translation>Prendre une partie du capteur</translation>
    </message>
    <message>
        <source>Take the photo&apos;s circle</source>
        <translation>Prendre le cercle de la photo</translation>
    </message>
    <message>
        <source>Photos of the same camera, lens and size with another gear: %1</source>
        <translation>Photos de mêmes appareil, objectif et taille avec un autre équipement&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>varnel::PictureArea</name>
    <message>
        <source>Add photos with &quot;Add image(s)&quot; or drop them here.</source>
        <translation>Ajoutez des photos avec «&#xa0;Ajouter des images&#xa0;» ou déposez-les ici.</translation>
    </message>
    <message>
        <source>The converted picture appears here.</source>
        <translation>L’image convertie apparaît ici.</translation>
    </message>
    <message>
        <source>Photo as shot</source>
        <translation>Photo d’origine</translation>
    </message>
    <message>
        <source>Converted picture</source>
        <translation>Image convertie</translation>
    </message>
    <message>
        <source>Plus and minus zoom, arrow keys move what is seen. While the image circle or the frame is shown on the photo, they change that.</source>
        <translation>Plus et moins zooment, les flèches déplacent ce qui est visible. Tant que le cercle image ou le cadre est affiché sur la photo, elles modifient celui-ci.</translation>
    </message>
    <message>
        <source>Plus and minus zoom, arrow keys move what is seen. In Rectilinear they turn the camera by a degree, with Alt by a tenth.</source>
        <translation>Plus et moins zooment, les flèches déplacent ce qui est visible. En Rectilinear, elles tournent l’appareil d’un degré, avec Alt d’un dixième.</translation>
    </message>
</context>
<context>
    <name>varnel::PictureMenus</name>
    <message>
        <source>&amp;Show in folder</source>
        <translation>&amp;Montrer dans le dossier</translation>
    </message>
</context>
<context>
    <name>varnel::PresetTools</name>
    <message>
        <source>&amp;Copy settings</source>
        <translation>&amp;Copier les réglages</translation>
    </message>
    <message>
        <source>&amp;Paste settings</source>
        <translation>C&amp;oller les réglages</translation>
    </message>
    <message>
        <source>Pr&amp;esets</source>
        <translation>&amp;Préréglages</translation>
    </message>
    <message>
        <source>&amp;Save as preset...</source>
        <translation>&amp;Enregistrer comme préréglage...</translation>
    </message>
    <message>
        <source>&amp;Manage presets...</source>
        <translation>&amp;Gérer les préréglages...</translation>
    </message>
    <message>
        <source>The photo&apos;s settings are on the clipboard</source>
        <translation>Les réglages de la photo sont dans le presse-papiers</translation>
    </message>
    <message>
        <source>The clipboard holds no settings of a photo</source>
        <translation>Le presse-papiers ne contient pas de réglages d’une photo</translation>
    </message>
    <message>
        <source>Saving follows the preset &quot;%1&quot; from now on</source>
        <translation>L’enregistrement suit désormais le préréglage «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>varnel::ProjectTools</name>
    <message>
        <source>Open project...</source>
        <translation>Ouvrir un projet...</translation>
    </message>
    <message>
        <source>Save project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Save project as...</source>
        <translation>Enregistrer le projet sous...</translation>
    </message>
    <message>
        <source>Recent projects</source>
        <translation>Projets récents</translation>
    </message>
    <message>
        <source>Could not open %1</source>
        <translation>Impossible d’ouvrir %1</translation>
    </message>
    <message>
        <source>Some photos of the project are not where they were</source>
        <translation>Certaines photos du projet ne sont plus à leur place</translation>
    </message>
    <message>
        <source>Some settings of the project could not be used</source>
        <translation>Certains réglages du projet sont inutilisables</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>Could not save %1</source>
        <translation>Impossible d’enregistrer %1</translation>
    </message>
    <message>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <source>... and %1 more</source>
        <translation>... et %1 autres</translation>
    </message>
</context>
<context>
    <name>varnel::ProjectionChooser</name>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>The projections of the list beside it</source>
        <translation>Les projections de la liste à côté</translation>
    </message>
    <message>
        <source>More projections</source>
        <translation>Autres projections</translation>
    </message>
</context>
<context>
    <name>varnel::QueueModel</name>
    <message>
        <source>being converted</source>
        <translation>conversion en cours</translation>
    </message>
    <message>
        <source>written: %1</source>
        <translation>écrite&#xa0;: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>échec&#xa0;: %1</translation>
    </message>
    <message>
        <source>waiting</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>left out</source>
        <translation>laissée</translation>
    </message>
</context>
<context>
    <name>varnel::ResetDot</name>
    <message>
        <source>Reset: %1</source>
        <translation>Réinitialiser&#xa0;: %1</translation>
    </message>
    <message>
        <source>Not the usual value; a click resets it</source>
        <translation>Pas la valeur habituelle&#x202f;; un clic la rétablit</translation>
    </message>
</context>
<context>
    <name>varnel::ResetTools</name>
    <message>
        <source>Reset photo</source>
        <translation>Réinitialiser</translation>
    </message>
</context>
<context>
    <name>varnel::SampleTools</name>
    <message>
        <source>Open the sa&amp;mple</source>
        <translation>Ouvrir l’e&amp;xemple</translation>
    </message>
    <message>
        <source>The sample photo could not be made: %1 did not start.</source>
        <translation>La photo d’exemple n’a pas pu être faite&#xa0;: %1 n’a pas démarré.</translation>
    </message>
    <message>
        <source>Drawing the sample photo, which takes a few seconds ...</source>
        <translation>Dessin de la photo d’exemple, cela prend quelques secondes...</translation>
    </message>
    <message>
        <source>The sample photo could not be made: %1</source>
        <translation>La photo d’exemple n’a pas pu être faite&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>varnel::SavePanel</name>
    <message>
        <source>Save image as ...</source>
        <translation>Enregistrer l’image sous...</translation>
    </message>
    <message>
        <source>Converts the current photo at full size and saves it</source>
        <translation>Convertit la photo actuelle en pleine taille et l’enregistre</translation>
    </message>
    <message>
        <source>Add to batch que</source>
        <translation>Ajouter à la file d’attente</translation>
    </message>
    <message>
        <source>Queues every photo of the list with its present settings</source>
        <translation>Met en attente chaque photo de la liste avec ses réglages actuels</translation>
    </message>
    <message>
        <source>Process batch que</source>
        <translation>Traiter la file d’attente</translation>
    </message>
    <message>
        <source>Converts and saves everything that is queued</source>
        <translation>Convertit et enregistre tout ce qui est en attente</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save / batch process </source>
        <translation>Enregistrer / file d’attente </translation>
    </message>
    <message>
        <source>What the saved picture usually takes in the file type of the defaults</source>
        <translation>Ce que prend d’habitude l’image enregistrée dans le type de fichier par défaut</translation>
    </message>
</context>
<context>
    <name>varnel::SaveTools</name>
    <message>
        <source>Show in folder</source>
        <translation>Montrer dans le dossier</translation>
    </message>
    <message>
        <source>Shows the saved picture in the file manager</source>
        <translation>Montre l’image enregistrée dans le gestionnaire de fichiers</translation>
    </message>
</context>
<context>
    <name>varnel::SessionTools</name>
    <message>
        <source>The image list of a window that was not closed is damaged and cannot be opened</source>
        <translation>La liste d’images d’une fenêtre qui n’a pas été fermée est endommagée et ne peut pas être ouverte</translation>
    </message>
    <message>
        <source>no folder can be made there</source>
        <translation>aucun dossier ne peut y être créé</translation>
    </message>
    <message>
        <source>The image list cannot be kept against a crash in %1</source>
        <translation>La liste d’images ne peut pas être protégée d’un plantage dans %1</translation>
    </message>
</context>
<context>
    <name>varnel::SheetTools</name>
    <message>
        <source>&amp;Contact sheet</source>
        <translation>&amp;Planche-contact</translation>
    </message>
</context>
<context>
    <name>varnel::SizePanel</name>
    <message>
        <source>Size and crop</source>
        <translation>Taille et recadrage</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>As large as the photo, or another size or shape: type a width (4000), both sides (4000x3000) or a shape (16:9)</source>
        <translation>Aussi grand que la photo, ou une autre taille ou forme : tapez une largeur (4000), les deux côtés (4000x3000) ou une forme (16:9)</translation>
    </message>
    <message>
        <source>As the photo</source>
        <translation>Comme la photo</translation>
    </message>
    <message>
        <source>Square, 1:1</source>
        <translation>Carré, 1:1</translation>
    </message>
    <message>
        <source>Outside</source>
        <translation>Extérieur</translation>
    </message>
    <message>
        <source>What the result has where the photo shows nothing; type a colour as #rrggbb. Transparent needs PNG or TIFF.</source>
        <translation>Ce qu’a le résultat là où la photo ne montre rien&#x202f;; tapez une couleur sous la forme #rrggbb. Transparent demande PNG ou TIFF.</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Noir</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Blanc</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>Gris</translation>
    </message>
    <message>
        <source>Crop ...</source>
        <translation>Recadrer...</translation>
    </message>
    <message>
        <source>Shows all of the result and what is cut out of it</source>
        <translation>Montre tout le résultat et ce qui en est découpé</translation>
    </message>
    <message>
        <source>As sharp as the photo&apos;s middle</source>
        <translation>Aussi net que le milieu de la photo</translation>
    </message>
</context>
<context>
    <name>varnel::SizeTools</name>
    <message>
        <source>No size: %1. A width (4000), both sides (4000x3000) and a shape (16:9) are.</source>
        <translation>Pas une taille : %1. Une largeur (4000), les deux côtés (4000x3000) et une forme (16:9) en sont.</translation>
    </message>
    <message>
        <source>No colour: %1. One like #ff8000 is.</source>
        <translation>Pas une couleur : %1. #ff8000 par exemple en est une.</translation>
    </message>
    <message>
        <source>%1 x %2, %3 as %4, %5</source>
        <translation>%1 x %2, %3 en %4, %5</translation>
    </message>
</context>
<context>
    <name>varnel::StraightenTools</name>
    <message>
        <source>St&amp;raighten...</source>
        <translation>&amp;Redresser...</translation>
    </message>
    <message>
        <source>Measure a &amp;lens...</source>
        <translation>&amp;Mesurer un objectif...</translation>
    </message>
    <message>
        <source>Open a photo first.</source>
        <translation>Ouvrez d’abord une photo.</translation>
    </message>
    <message>
        <source>The photo has the measured lens; undo takes it back.</source>
        <translation>La photo a l’objectif mesuré&#x202f;; Annuler le reprend.</translation>
    </message>
    <message>
        <source>%1 photos have the measured lens; undo takes it back.</source>
        <translation>%1 photos ont l’objectif mesuré&#x202f;; Annuler le reprend.</translation>
    </message>
</context>
<context>
    <name>varnel::StretchView</name>
    <message>
        <source>The stretched picture and the curve of its stretch</source>
        <translation>L’image étirée et la courbe de son étirement</translation>
    </message>
    <message>
        <source>Open a photo or drop one here.</source>
        <translation>Ouvrez une photo ou déposez-en une ici.</translation>
    </message>
    <message>
        <source>wider</source>
        <translation>plus large</translation>
    </message>
    <message>
        <source>narrower</source>
        <translation>plus étroit</translation>
    </message>
</context>
<context>
    <name>varnel::ThemeTools</name>
    <message>
        <source>As the &amp;system</source>
        <translation>Comme le &amp;système</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>&amp;Dark</source>
        <translation>Som&amp;bre</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
</context>
<context>
    <name>varnel::TimeLine</name>
    <message>
        <source>Time line of the film</source>
        <translation>Ligne de temps du film</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Evenly to the next key</source>
        <translation>Régulièrement jusqu’à la clé suivante</translation>
    </message>
    <message>
        <source>Slowly out and slowly in</source>
        <translation>Départ lent et arrivée lente</translation>
    </message>
    <message>
        <source>Hold until the next key</source>
        <translation>Tenir jusqu’à la clé suivante</translation>
    </message>
    <message>
        <source>Remove the key</source>
        <translation>Retirer la clé</translation>
    </message>
</context>
<context>
    <name>varnel::ToolbarTools</name>
    <message>
        <source>Too&amp;lbar</source>
        <translation>&amp;Barre d’outils</translation>
    </message>
    <message>
        <source>Te&amp;xt under the icons</source>
        <translation>&amp;Texte sous les icônes</translation>
    </message>
</context>
<context>
    <name>varnel::UndoTools</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;Annuler&#xa0;: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>&amp;Rétablir&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>varnel::ViewTools</name>
    <message>
        <source>S&amp;plit</source>
        <translation>&amp;Deux images</translation>
    </message>
    <message>
        <source>Photo and result side by side</source>
        <translation>Photo et résultat côte à côte</translation>
    </message>
    <message>
        <source>Res&amp;ult</source>
        <translation>Rés&amp;ultat</translation>
    </message>
    <message>
        <source>The result as large as possible, with the photo as a small picture on it</source>
        <translation>Le résultat aussi grand que possible, avec la photo en petit dessus</translation>
    </message>
    <message>
        <source>P&amp;hoto</source>
        <translation>Ph&amp;oto</translation>
    </message>
    <message>
        <source>The photo as shot as large as possible</source>
        <translation>La photo d’origine aussi grande que possible</translation>
    </message>
</context>
<context>
    <name>varnel::WalkTools</name>
    <message>
        <source>Pre&amp;vious photo</source>
        <translation>Photo précéde&amp;nte</translation>
    </message>
    <message>
        <source>N&amp;ext photo</source>
        <translation>Photo suivant&amp;e</translation>
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
        <translation>À quelle taille les images sont affichées, à partir de l’image entière</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
</context>
<context>
    <name>varnel::ZoomTools</name>
    <message>
        <source>Fi&amp;t</source>
        <translation>A&amp;juster</translation>
    </message>
    <message>
        <source>&amp;100 %</source>
        <translation>&amp;100&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom i&amp;n</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>Zoom &amp;out</source>
        <translation>&amp;Zoom arrière</translation>
    </message>
    <message>
        <source>&amp;Grid</source>
        <translation>&amp;Grille</translation>
    </message>
    <message>
        <source>Centre c&amp;ross</source>
        <translation>Croix centra&amp;le</translation>
    </message>
    <message>
        <source>&amp;Before instead of after	B</source>
        <translation>&amp;Avant au lieu d’après	B</translation>
    </message>
</context>
</TS>
