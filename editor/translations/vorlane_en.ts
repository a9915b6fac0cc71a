<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="fr">
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
        <source>Présente les images d&apos;un dossier comme une planche de diapositives.</source>
        <translation>Shows the pictures of a folder as a sheet of slides.</translation>
    </message>
    <message>
        <source>Le dossier à ouvrir.</source>
        <translation>The folder to open.</translation>
    </message>
    <message>
        <source>Un seul dossier à la fois.</source>
        <translation>Only one folder at a time.</translation>
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
</context>
<context>
    <name>Screenshot</name>
    <message>
        <source>Impossible de présenter le dossier « %1 »</source>
        <translation>Can't show the folder “%1”</translation>
    </message>
    <message>
        <source>Impossible d&apos;écrire le fichier « %1 »</source>
        <translation>Can't write the file “%1”</translation>
    </message>
</context>
<context>
    <name>vorlane::editor::EditorWindow</name>
    <message>
        <source>Ouvrir un dossier</source>
        <translation>Open a Folder</translation>
    </message>
    <message>
        <source>%1 — Vorlane</source>
        <translation>%1 — Vorlane</translation>
    </message>
    <message>
        <source>Impossible de lire le dossier « %1 »</source>
        <translation>Can't read the folder “%1”</translation>
    </message>
    <message>
        <source>Lecture du dossier : %L1 sur %L2</source>
        <translation>Reading the folder: %L1 of %L2</translation>
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
        <source>&amp;Ouvrir un dossier…</source>
        <translation>&amp;Open Folder…</translation>
    </message>
    <message>
        <source>&amp;Dossiers récents</source>
        <translation>&amp;Recent Folders</translation>
    </message>
    <message>
        <source>&amp;Effacer la liste</source>
        <translation>&amp;Clear List</translation>
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
        <translation>&amp;Smaller Slides</translation>
    </message>
    <message>
        <source>Taille &amp;normale (100 %)</source>
        <translation>&amp;Normal Size (100%)</translation>
    </message>
    <message>
        <source>&amp;Plein écran</source>
        <translation>&amp;Full Screen</translation>
    </message>
    <message>
        <source>Aucun dossier</source>
        <translation>No folders</translation>
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
        <source>%L1 %</source>
        <translation>%L1%</translation>
    </message>
</context>
</TS>
