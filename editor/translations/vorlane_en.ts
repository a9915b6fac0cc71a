<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
<context>
    <name>Caption</name>
    <message numerus="yes">
        <source>%Ln octet(s)</source>
        <translation>
            <numerusform>%Ln byte</numerusform>
            <numerusform>%Ln bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Enregistre la fenêtre dans une image PNG, puis quitte.</source>
        <translation>Saves the window to a PNG picture, then quits.</translation>
    </message>
    <message>
        <source>fichier</source>
        <translation>file</translation>
    </message>
    <message>
        <source>Taille de la fenêtre en pixels.</source>
        <translation>Size of the window in pixels.</translation>
    </message>
    <message>
        <source>LxH</source>
        <translation>WxH</translation>
    </message>
    <message>
        <source>La taille s&apos;écrit comme 1200x800.</source>
        <translation>The size is written like 1200x800.</translation>
    </message>
    <message>
        <source>Il manque le fichier de l&apos;image.</source>
        <translation>The file for the picture is missing.</translation>
    </message>
    <message>
        <source>Affiche cette aide.</source>
        <translation>Shows this help.</translation>
    </message>
    <message>
        <source>Affiche la version.</source>
        <translation>Shows the version.</translation>
    </message>
    <message>
        <source>dossier</source>
        <translation>folder</translation>
    </message>
    <message>
        <source>[dossier]</source>
        <translation>[folder]</translation>
    </message>
    <message>
        <source>Présente les images d&apos;un dossier, ou d&apos;un diaporama, comme une planche de diapositives.</source>
        <translation>Shows the pictures of a folder, or of a slide show, as a sheet of slides.</translation>
    </message>
    <message>
        <source>Le dossier ou le diaporama à ouvrir.</source>
        <translation>The folder or the slide show to open.</translation>
    </message>
    <message>
        <source>Un seul dossier ou diaporama à la fois.</source>
        <translation>One folder or slide show at a time.</translation>
    </message>
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>Impossible d&apos;écrire le fichier «&#xa0;%1&#xa0;»</source>
        <translation>Can&apos;t write the file “%1”</translation>
    </message>
    <message>
        <source>Impossible de présenter «&#xa0;%1&#xa0;»</source>
        <translation>Can&apos;t show “%1”</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::EditorWindow</name>
    <message>
        <source>Planche de diapositives</source>
        <translation>Sheet of slides</translation>
    </message>
    <message>
        <source>Ouvrir un dossier</source>
        <translation>Open a Folder</translation>
    </message>
    <message>
        <source>Ouvrez un dossier d&apos;images</source>
        <translation>Open a folder of pictures</translation>
    </message>
    <message>
        <source>ou déposez-le dans cette fenêtre</source>
        <translation>or drop it in this window</translation>
    </message>
    <message>
        <source>Ouvrir un dossier…</source>
        <translation>Open a Folder…</translation>
    </message>
    <message>
        <source>Ce dossier ne contient aucune image</source>
        <translation>This folder holds no pictures</translation>
    </message>
    <message>
        <source>Ouvrir un autre dossier…</source>
        <translation>Open Another Folder…</translation>
    </message>
    <message>
        <source>&amp;Fichier</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Quitter</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>&amp;Affichage</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Agrandir les diapositives</source>
        <translation>&amp;Larger Slides</translation>
    </message>
    <message>
        <source>&amp;Réduire les diapositives</source>
        <translation>S&amp;maller Slides</translation>
    </message>
    <message>
        <source>&amp;Plein écran</source>
        <translation>&amp;Full Screen</translation>
    </message>
    <message>
        <source>Ajouter des images</source>
        <translation>Add Pictures</translation>
    </message>
    <message>
        <source>nom</source>
        <translation>name</translation>
    </message>
    <message>
        <source>date de modification</source>
        <translation>modification date</translation>
    </message>
    <message>
        <source>date de création</source>
        <translation>creation date</translation>
    </message>
    <message>
        <source>taille</source>
        <translation>size</translation>
    </message>
    <message>
        <source>extension</source>
        <translation>extension</translation>
    </message>
    <message>
        <source>Aucune diapositive n&apos;est sélectionnée</source>
        <translation>No slide is selected</translation>
    </message>
    <message numerus="yes">
        <source>%Ln diapositive(s) retirée(s) de la planche&#xa0;; les fichiers restent sur le disque</source>
        <translation>
            <numerusform>%Ln slide taken off the sheet; the file stays on the disk</numerusform>
            <numerusform>%Ln slides taken off the sheet; the files stay on the disk</numerusform>
        </translation>
    </message>
    <message>
        <source>Aucune image à ajouter</source>
        <translation>No picture to add</translation>
    </message>
    <message numerus="yes">
        <source>%Ln image(s) ajoutée(s)</source>
        <translation>
            <numerusform>%Ln picture added</numerusform>
            <numerusform>%Ln pictures added</numerusform>
        </translation>
    </message>
    <message>
        <source>Les diapositives sont triées par %1&#xa0;: choisissez «&#xa0;Ordre manuel&#xa0;» pour les déplacer</source>
        <translation>The slides are sorted by %1: choose “Manual Order” to move them</translation>
    </message>
    <message>
        <source>Aucun programme n&apos;ouvre cette image</source>
        <translation>No program opens this picture</translation>
    </message>
    <message>
        <source>Impossible de lire le dossier «&#xa0;%1&#xa0;»</source>
        <translation>Can&apos;t read the folder “%1”</translation>
    </message>
    <message>
        <source>Lecture du dossier&#xa0;: %L1 sur %L2</source>
        <translation>Reading the folder: %L1 of %L2</translation>
    </message>
    <message>
        <source>La planche est vide</source>
        <translation>The sheet is empty</translation>
    </message>
    <message>
        <source>Les fichiers retirés restent dans leur dossier.</source>
        <translation>The files that were taken off are still in their folder.</translation>
    </message>
    <message>
        <source>&amp;Ajouter des images…</source>
        <translation>Add &amp;Pictures…</translation>
    </message>
    <message>
        <source>Éd&amp;ition</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>&amp;Tout sélectionner</source>
        <translation>Select &amp;All</translation>
    </message>
    <message>
        <source>&amp;Ouvrir l&apos;image</source>
        <translation>&amp;Open Picture</translation>
    </message>
    <message>
        <source>Retirer de &amp;la planche</source>
        <translation>Remo&amp;ve from Sheet</translation>
    </message>
    <message>
        <source>Déplacer vers le &amp;début</source>
        <translation>Move to the &amp;Front</translation>
    </message>
    <message>
        <source>Déplacer vers la &amp;fin</source>
        <translation>Move to the &amp;Back</translation>
    </message>
    <message>
        <source>&amp;Trier par</source>
        <translation>&amp;Sort by</translation>
    </message>
    <message>
        <source>&amp;Nom</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Date de &amp;modification</source>
        <translation>&amp;Modification Date</translation>
    </message>
    <message>
        <source>Date de &amp;création</source>
        <translation>&amp;Creation Date</translation>
    </message>
    <message>
        <source>&amp;Taille</source>
        <translation>&amp;Size</translation>
    </message>
    <message>
        <source>&amp;Extension</source>
        <translation>&amp;Extension</translation>
    </message>
    <message>
        <source>Ordre man&amp;uel</source>
        <translation>Man&amp;ual Order</translation>
    </message>
    <message>
        <source>Ordre c&amp;roissant</source>
        <translation>&amp;Ascending</translation>
    </message>
    <message>
        <source>Ordre &amp;décroissant</source>
        <translation>&amp;Descending</translation>
    </message>
    <message>
        <source>&amp;Défilement</source>
        <translation>S&amp;croll</translation>
    </message>
    <message>
        <source>&amp;Vertical</source>
        <translation>&amp;Vertical</translation>
    </message>
    <message>
        <source>&amp;Horizontal</source>
        <translation>&amp;Horizontal</translation>
    </message>
    <message>
        <source>Taille &amp;normale (100&#xa0;%)</source>
        <translation>&amp;Normal Size (100%)</translation>
    </message>
    <message>
        <source>&amp;Annuler %1</source>
        <translation>&amp;Undo %1</translation>
    </message>
    <message>
        <source>&amp;Annuler</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>&amp;Rétablir %1</source>
        <translation>&amp;Redo %1</translation>
    </message>
    <message>
        <source>&amp;Rétablir</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>Diaporama</source>
        <translation>Slide Show</translation>
    </message>
    <message>
        <source>%1[*] — Vorlane</source>
        <translation>%1[*] — Vorlane</translation>
    </message>
    <message numerus="yes">
        <source>%Ln image(s) introuvable(s)</source>
        <translation>
            <numerusform>%Ln picture is missing</numerusform>
            <numerusform>%Ln pictures are missing</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln son(s) introuvable(s)</source>
        <translation>
            <numerusform>%Ln sound is missing</numerusform>
            <numerusform>%Ln sounds are missing</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Ouvrir un diaporama…</source>
        <translation>&amp;Open Slide Show…</translation>
    </message>
    <message>
        <source>Ouvrir un &amp;dossier…</source>
        <translation>Open &amp;Folder…</translation>
    </message>
    <message>
        <source>&amp;Enregistrer</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>Enregistrer &amp;sous…</source>
        <translation>Save &amp;As…</translation>
    </message>
    <message>
        <source>Ouverts &amp;récemment</source>
        <translation>Open &amp;Recent</translation>
    </message>
    <message>
        <source>E&amp;ffacer la liste</source>
        <translation>&amp;Clear List</translation>
    </message>
    <message>
        <source>Rien encore</source>
        <translation>Nothing Yet</translation>
    </message>
    <message>
        <source>Diaporamas Vorlane (*.%1)</source>
        <translation>Vorlane slide shows (*.%1)</translation>
    </message>
    <message>
        <source>Enregistrer le diaporama</source>
        <translation>Save Slide Show</translation>
    </message>
    <message>
        <source>Diaporama enregistré</source>
        <translation>Slide show saved</translation>
    </message>
    <message>
        <source>Ouvrir un diaporama</source>
        <translation>Open Slide Show</translation>
    </message>
    <message>
        <source>Vorlane</source>
        <translation>Vorlane</translation>
    </message>
    <message>
        <source>Enregistrer les modifications de «&#xa0;%1&#xa0;»&#xa0;?</source>
        <translation>Save the changes to “%1”?</translation>
    </message>
    <message>
        <source>Les fichiers des images ne sont pas touchés.</source>
        <translation>The picture files are left alone.</translation>
    </message>
    <message>
        <source>&amp;Ne pas enregistrer</source>
        <translation>&amp;Don&apos;t Save</translation>
    </message>
    <message>
        <source>&amp;Diaporama</source>
        <translation>Sli&amp;de Show</translation>
    </message>
    <message>
        <source>&amp;Lire à partir d&apos;ici</source>
        <translation>&amp;Play from Here</translation>
    </message>
    <message>
        <source>Lire depuis le &amp;début</source>
        <translation>Play from the &amp;Start</translation>
    </message>
    <message>
        <source>Il n&apos;y a aucune image à lire</source>
        <translation>There are no pictures to play</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» n&apos;a pas pu reprendre le nom «&#xa0;%2&#xa0;»</source>
        <translation>“%1” could not take the name “%2” again</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» s&apos;appelle maintenant «&#xa0;%2&#xa0;»</source>
        <translation>“%1” is now called “%2”</translation>
    </message>
    <message>
        <source>Re&amp;nommer le fichier</source>
        <translation>Re&amp;name the File</translation>
    </message>
    <message>
        <source>La planche est encore occupée</source>
        <translation>The sheet is still at work</translation>
    </message>
    <message>
        <source>«&#xa0;%1&#xa0;» existe déjà&#xa0;: choisissez un autre nom</source>
        <translation>“%1” exists already: choose another name</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::Show</name>
    <message>
        <source>le retrait</source>
        <translation>Removal</translation>
    </message>
    <message>
        <source>l&apos;ajout</source>
        <translation>Addition</translation>
    </message>
    <message>
        <source>le déplacement</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>le tri</source>
        <translation>Sort</translation>
    </message>
    <message>
        <source>le changement de nom</source>
        <translation>the change of name</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::StatusPanel</name>
    <message>
        <source>Diapositives plus petites</source>
        <translation>Smaller slides</translation>
    </message>
    <message>
        <source>Diapositives plus grandes</source>
        <translation>Larger slides</translation>
    </message>
    <message>
        <source>Taille des diapositives</source>
        <translation>Size of the slides</translation>
    </message>
    <message>
        <source>Progression</source>
        <translation>Progress</translation>
    </message>
    <message numerus="yes">
        <source>%Ln image(s)</source>
        <translation>
            <numerusform>%Ln picture</numerusform>
            <numerusform>%Ln pictures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sélectionnée(s)</source>
        <translation>
            <numerusform>%Ln selected</numerusform>
            <numerusform>%Ln selected</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <comment>images, selected</comment>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%L1&#xa0;%</source>
        <translation>%L1%</translation>
    </message>
    <message>
        <source>Durée de tout le diaporama</source>
        <translation>Length of the whole show</translation>
    </message>
    <message>
        <source>Durée&#xa0;: %1</source>
        <translation>Length: %1</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::StripMenu</name>
    <message>
        <source>&amp;Sons</source>
        <translation>&amp;Sounds</translation>
    </message>
    <message>
        <source>Ajouter une &amp;musique…</source>
        <translation>Add &amp;Music…</translation>
    </message>
    <message>
        <source>Ajouter un &amp;commentaire…</source>
        <translation>Add &amp;Comment…</translation>
    </message>
    <message>
        <source>&amp;Répéter la musique</source>
        <translation>&amp;Repeat Music</translation>
    </message>
    <message>
        <source>Ré&amp;péter le commentaire</source>
        <translation>Re&amp;peat Comment</translation>
    </message>
    <message>
        <source>Retirer &amp;la musique</source>
        <translation>Remove Mus&amp;ic</translation>
    </message>
    <message>
        <source>Retirer le c&amp;ommentaire</source>
        <translation>Remove C&amp;omment</translation>
    </message>
    <message>
        <source>&amp;Durée d&apos;exposition…</source>
        <translation>&amp;Time of a Slide…</translation>
    </message>
    <message>
        <source>&amp;Afficher la ligne de temps</source>
        <translation>&amp;Show Time Line</translation>
    </message>
    <message>
        <source>Ligne de temps</source>
        <translation>Time line</translation>
    </message>
    <message>
        <source>Ajouter une musique</source>
        <translation>Add Music</translation>
    </message>
    <message>
        <source>Ajouter un commentaire</source>
        <translation>Add Comment</translation>
    </message>
    <message>
        <source>Aucun son à ajouter</source>
        <translation>No sound to add</translation>
    </message>
    <message numerus="yes">
        <source>%Ln musique(s) ajoutée(s)</source>
        <translation>
            <numerusform>%Ln music added</numerusform>
            <numerusform>%Ln musics added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln commentaire(s) ajouté(s)</source>
        <translation>
            <numerusform>%Ln comment added</numerusform>
            <numerusform>%Ln comments added</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln de trop pour les diapositives</source>
        <translation>
            <numerusform>%Ln too many for the slides</numerusform>
            <numerusform>%Ln too many for the slides</numerusform>
        </translation>
    </message>
    <message>
        <source>Musique retirée</source>
        <translation>Music removed</translation>
    </message>
    <message>
        <source>Commentaire retiré</source>
        <translation>Comment removed</translation>
    </message>
    <message>
        <source>Durée d&apos;exposition</source>
        <translation>Time of a Slide</translation>
    </message>
    <message>
        <source>Secondes par diapositive&#xa0;:</source>
        <translation>Seconds per slide:</translation>
    </message>
    <message>
        <source>&amp;Enregistrer un commentaire</source>
        <translation>Recor&amp;d a Comment</translation>
    </message>
    <message>
        <source>&amp;Volumes…</source>
        <translation>&amp;Volumes…</translation>
    </message>
    <message>
        <source>Musique</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Musique pendant un commentaire</source>
        <translation>Music under a comment</translation>
    </message>
    <message>
        <source>Commentaire</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>La diapositive n&apos;est plus là&#xa0;; le commentaire est dans «&#xa0;%1&#xa0;»</source>
        <translation>The slide is gone; the comment is in “%1”</translation>
    </message>
    <message>
        <source>La planche est occupée</source>
        <translation>The sheet is busy</translation>
    </message>
    <message>
        <source>La planche est occupée&#xa0;; le commentaire est dans «&#xa0;%1&#xa0;»</source>
        <translation>The sheet is busy; the comment is in “%1”</translation>
    </message>
    <message>
        <source>Parlez&#xa0;: l&apos;enregistrement est en cours</source>
        <translation>Speak: the recording is on</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::StripSounds</name>
    <message>
        <source>l&apos;ajout de sons</source>
        <translation>Adding of Sounds</translation>
    </message>
    <message>
        <source>le retrait d&apos;un son</source>
        <translation>Removal of a Sound</translation>
    </message>
    <message>
        <source>la répétition</source>
        <translation>Repetition</translation>
    </message>
    <message>
        <source>la fin de la répétition</source>
        <translation>End of Repetition</translation>
    </message>
    <message>
        <source>le volume</source>
        <translation>Volume</translation>
    </message>
</context>
<context>
    <name>vorlane::AccessibleSheet</name>
    <message>
        <source>Planche de diapos</source>
        <translation>Contact sheet</translation>
    </message>
</context>
<context>
    <name>vorlane::AccessibleSound</name>
    <message>
        <source>Musique</source>
        <translation>Music</translation>
    </message>
    <message>
        <source>Commentaire</source>
        <translation>Comment</translation>
    </message>
    <message>
        <source>%1, %2, en boucle</source>
        <translation>%1, %2, looped</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, à %2</source>
        <translation>%1, at %2</translation>
    </message>
</context>
<context>
    <name>vorlane::AccessibleTimeLine</name>
    <message>
        <source>Ligne de temps</source>
        <translation>Time line</translation>
    </message>
</context>
<context>
    <name>Notices</name>
    <message>
        <source>%1&#xa0;; %2</source>
        <translation>%1; %2</translation>
    </message>
</context>
<context>
    <name>SavedShow</name>
    <message>
        <source>le fichier est endommagé à l&apos;octet %1</source>
        <translation>the file is damaged at byte %1</translation>
    </message>
    <message>
        <source>ce n&apos;est pas un diaporama de Vorlane</source>
        <translation>it is no slide show of Vorlane</translation>
    </message>
    <message>
        <source>il vient d&apos;une version plus récente de Vorlane</source>
        <translation>it comes from a later version of Vorlane</translation>
    </message>
    <message>
        <source>le fichier est endommagé, à l&apos;entrée «&#xa0;%1&#xa0;»</source>
        <translation>the file is damaged, at the entry “%1”</translation>
    </message>
</context>
<context>
    <name>ShowFile</name>
    <message>
        <source>Impossible d&apos;ouvrir «&#xa0;%1&#xa0;»&#xa0;: %2</source>
        <translation>Can&apos;t open “%1”: %2</translation>
    </message>
    <message>
        <source>le fichier est trop grand pour un diaporama</source>
        <translation>the file is too large for a slide show</translation>
    </message>
    <message>
        <source>Impossible d&apos;enregistrer «&#xa0;%1&#xa0;»&#xa0;: %2</source>
        <translation>Can&apos;t save “%1”: %2</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::PlayerWindow</name>
    <message>
        <source>Lecture du diaporama</source>
        <translation>Slide Show</translation>
    </message>
    <message>
        <source>Image introuvable&#xa0;: %1</source>
        <translation>Picture not found: %1</translation>
    </message>
    <message>
        <source>Image illisible&#xa0;: %1</source>
        <translation>Picture can&apos;t be read: %1</translation>
    </message>
    <message>
        <source>Image abîmée&#xa0;: %1</source>
        <translation>Picture is damaged: %1</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Paused</translation>
    </message>
</context>
<context>
    <name>InfoBalloon</name>
    <message>
        <source>Prise le %1</source>
        <translation>Taken %1</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>Image illisible</source>
        <translation>Unreadable picture</translation>
    </message>
    <message>
        <source>Modifié le %1</source>
        <translation>Changed %1</translation>
    </message>
    <message>
        <source>Modifiée le %1</source>
        <translation>Changed %1</translation>
    </message>
    <message>
        <source>Fichier introuvable</source>
        <translation>File not found</translation>
    </message>
</context>
<context>
    <name>WaitNotice</name>
    <message>
        <source>Un instant…</source>
        <translation>One moment…</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::Renamer</name>
    <message>
        <source>Un autre fichier porte déjà le nom «&#xa0;%1&#xa0;».</source>
        <translation>Another file has the name “%1” already.</translation>
    </message>
</context>
<context>
    <name>vorlane::SoundTrouble</name>
    <message>
        <source>Le son «&#xa0;%1&#xa0;» est introuvable</source>
        <translation>The sound “%1” can&apos;t be found</translation>
    </message>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» est abîmé ou n&apos;est pas un son</source>
        <translation>The file “%1” is damaged or no sound</translation>
    </message>
    <message>
        <source>Le fichier «&#xa0;%1&#xa0;» a disparu pendant la lecture</source>
        <translation>The file “%1” has gone while it played</translation>
    </message>
    <message>
        <source>Aucun périphérique audio&#xa0;: «&#xa0;%1&#xa0;» ne s&apos;entend pas</source>
        <translation>No audio device: “%1” can&apos;t be heard</translation>
    </message>
    <message>
        <source>Le son «&#xa0;%1&#xa0;» est illisible</source>
        <translation>The sound “%1” can&apos;t be read</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::VolumePanel</name>
    <message>
        <source>Volumes</source>
        <translation>Volumes</translation>
    </message>
    <message>
        <source>&amp;Appliquer</source>
        <translation>&amp;Apply</translation>
    </message>
    <message>
        <source>A&amp;nnuler</source>
        <translation>Ca&amp;ncel</translation>
    </message>
    <message>
        <source>%L1&#xa0;%</source>
        <translation>%L1%</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::CommentRecorder</name>
    <message>
        <source>Aucun microphone n&apos;est branché</source>
        <translation>No microphone is connected</translation>
    </message>
    <message>
        <source>Impossible d&apos;enregistrer «&#xa0;%1&#xa0;»&#xa0;: %2</source>
        <translation>Can&apos;t record “%1”: %2</translation>
    </message>
    <message>
        <source>le microphone ne répond plus</source>
        <translation>the microphone does not answer any more</translation>
    </message>
    <message>
        <source>aucun son n&apos;a été capté</source>
        <translation>no sound was picked up</translation>
    </message>
    <message>
        <source>Le commentaire est incomplet&#xa0;: %1</source>
        <translation>The comment is incomplete: %1</translation>
    </message>
    <message>
        <source>Le commentaire n&apos;a pas pu être enregistré&#xa0;: %1</source>
        <translation>The comment could not be recorded: %1</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::RecoveryPanel</name>
    <message>
        <source>Diaporamas non enregistrés</source>
        <translation>Unsaved slide shows</translation>
    </message>
    <message>
        <source>Le programme s&apos;est arrêté avant que ces diaporamas ne soient enregistrés. Lequel voulez-vous retrouver&#xa0;?</source>
        <translation>The program ended before these slide shows were saved. Which one would you like to recover?</translation>
    </message>
    <message>
        <source>&amp;Retrouver</source>
        <translation>&amp;Recover</translation>
    </message>
    <message>
        <source>&amp;Supprimer</source>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>&amp;Plus tard</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>Sans fichier</source>
        <translation>Without a file</translation>
    </message>
    <message numerus="yes">
        <source>%Ln image(s)</source>
        <translation>
            <numerusform>%Ln picture</numerusform>
            <numerusform>%Ln pictures</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2&#xa0;: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>%1&#xa0;: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::ShowKeeper</name>
    <message>
        <source>La planche est encore occupée&#xa0;: enregistrez dans un instant</source>
        <translation>The sheet is still at work: save in a moment</translation>
    </message>
</context>
<context>
    <name>FileFilters</name>
    <message>
        <source>Sons (%1)</source>
        <translation>Sounds (%1)</translation>
    </message>
    <message>
        <source>Images (%1)</source>
        <translation>Pictures (%1)</translation>
    </message>
    <message>
        <source>Tous les fichiers (*)</source>
        <translation>All files (*)</translation>
    </message>
</context>
</TS>
