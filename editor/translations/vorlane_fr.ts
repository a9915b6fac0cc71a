<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="fr">
<context>
    <name>Caption</name>
    <message numerus="yes">
        <source>%Ln octet(s)</source>
        <translation>
            <numerusform>%Ln octet</numerusform>
            <numerusform>%Ln octets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vorlane::editor::EditorWindow</name>
    <message numerus="yes">
        <source>%Ln diapositive(s) retirée(s) de la planche&#xa0;; les fichiers restent sur le disque</source>
        <translation>
            <numerusform>%Ln diapositive retirée de la planche&#xa0;; le fichier reste sur le disque</numerusform>
            <numerusform>%Ln diapositives retirées de la planche&#xa0;; les fichiers restent sur le disque</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln image(s) ajoutée(s)</source>
        <translation>
            <numerusform>%Ln image ajoutée</numerusform>
            <numerusform>%Ln images ajoutées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln image(s) introuvable(s)</source>
        <translation>
            <numerusform>%Ln image introuvable</numerusform>
            <numerusform>%Ln images introuvables</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln son(s) introuvable(s)</source>
        <translation>
            <numerusform>%Ln son introuvable</numerusform>
            <numerusform>%Ln sons introuvables</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vorlane::editor::RecoveryPanel</name>
    <message numerus="yes">
        <source>%Ln image(s)</source>
        <translation>
            <numerusform>%Ln image</numerusform>
            <numerusform>%Ln images</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vorlane::editor::StatusPanel</name>
    <message numerus="yes">
        <source>%Ln image(s)</source>
        <translation>
            <numerusform>%Ln image</numerusform>
            <numerusform>%Ln images</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln sélectionnée(s)</source>
        <translation>
            <numerusform>%Ln sélectionnée</numerusform>
            <numerusform>%Ln sélectionnées</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vorlane::editor::StripMenu</name>
    <message numerus="yes">
        <source>%Ln musique(s) ajoutée(s)</source>
        <translation>
            <numerusform>%Ln musique ajoutée</numerusform>
            <numerusform>%Ln musiques ajoutées</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln commentaire(s) ajouté(s)</source>
        <translation>
            <numerusform>%Ln commentaire ajouté</numerusform>
            <numerusform>%Ln commentaires ajoutés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln de trop pour les diapositives</source>
        <translation>
            <numerusform>%Ln de trop pour les diapositives</numerusform>
            <numerusform>%Ln de trop pour les diapositives</numerusform>
        </translation>
    </message>
</context>
</TS>
