<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="fr">
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
</TS>
