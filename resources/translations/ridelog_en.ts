<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>PeriodReport</name>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation>
            <numerusform>%Ln tour</numerusform>
            <numerusform>%Ln tours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::ApplicationWindows</name>
    <message numerus="yes">
        <source>The document as it was on %1, with %Ln tour(s), was kept.</source>
        <comment>date</comment>
        <translation>
            <numerusform>The document as it was on %1, with %Ln tour, was kept.</numerusform>
            <numerusform>The document as it was on %1, with %Ln tours, was kept.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::ExportPanel</name>
    <message numerus="yes">
        <source>%Ln file(s), such as %1</source>
        <translation>
            <numerusform>%Ln file, such as %1</numerusform>
            <numerusform>%Ln files, such as %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Replace %Ln file(s)?</source>
        <translation>
            <numerusform>Replace %Ln file?</numerusform>
            <numerusform>Replace %Ln files?</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Export cancelled: %1 of %Ln file(s) were written.</source>
        <translation>
            <numerusform>Export cancelled: %1 of %Ln file was written.</numerusform>
            <numerusform>Export cancelled: %1 of %Ln files were written.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported as %1.</source>
        <comment>name of a file</comment>
        <translation>
            <numerusform>%Ln tour exported as %1.</numerusform>
            <numerusform>%Ln tours exported as %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) exported to %1.</source>
        <comment>name of a folder</comment>
        <translation>
            <numerusform>%Ln tour exported to %1.</numerusform>
            <numerusform>%Ln tours exported to %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) were written.</source>
        <translation>
            <numerusform>%Ln file was written.</numerusform>
            <numerusform>%Ln files were written.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln file(s) could not be written: %1</source>
        <comment>list of files and reasons</comment>
        <translation>
            <numerusform>%Ln file could not be written: %1</numerusform>
            <numerusform>%Ln files could not be written: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::ExportProgress</name>
    <message numerus="yes">
        <source>%1 of %Ln tour(s)</source>
        <comment>number of tours done</comment>
        <translation>
            <numerusform>%1 of %Ln tour</numerusform>
            <numerusform>%1 of %Ln tours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::MainWindowController</name>
    <message numerus="yes">
        <source>%Ln tour(s)</source>
        <translation>
            <numerusform>%Ln tour</numerusform>
            <numerusform>%Ln tours</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: %Ln tour(s) added, %2 already there.</source>
        <comment>file, number of tours</comment>
        <translation>
            <numerusform>%1: %Ln tour added, %2 already there.</numerusform>
            <numerusform>%1: %Ln tours added, %2 already there.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) removed.</source>
        <translation>
            <numerusform>%Ln tour removed.</numerusform>
            <numerusform>%Ln tours removed.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln tour(s) restored.</source>
        <translation>
            <numerusform>%Ln tour restored.</numerusform>
            <numerusform>%Ln tours restored.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Receiving, %1 %, %Ln second(s) left</source>
        <comment>percentage</comment>
        <translation>
            <numerusform>Receiving, %1 %, %Ln second left</numerusform>
            <numerusform>Receiving, %1 %, %Ln seconds left</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Finished: %Ln tour(s) added, %1 already there</source>
        <comment>number of tours</comment>
        <translation>
            <numerusform>Finished: %Ln tour added, %1 already there</numerusform>
            <numerusform>Finished: %Ln tours added, %1 already there</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::MyDocument</name>
    <message numerus="yes">
        <source>adding %n tours</source>
        <translation>
            <numerusform>adding %n tours</numerusform>
            <numerusform>adding %n tours</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::PreferencesController</name>
    <message numerus="yes">
        <source> day(s)</source>
        <comment>after the number</comment>
        <translation>
            <numerusform> day</numerusform>
            <numerusform> days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ridelog::TourWindowController</name>
    <message numerus="yes">
        <source>%Ln sample(s) copied.</source>
        <translation>
            <numerusform>%Ln sample copied.</numerusform>
            <numerusform>%Ln samples copied.</numerusform>
        </translation>
    </message>
</context>
</TS>
