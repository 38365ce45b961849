<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DocPropertiesDialog</name>
    <message>
        <source>the file no longer exists</source>
        <translation>die Datei ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>die Datei ist schreibgeschützt</translation>
    </message>
    <message>
        <source>its folder is read-only, so the file cannot be replaced</source>
        <translation>ihr Ordner ist schreibgeschützt, daher kann die Datei nicht ersetzt werden</translation>
    </message>
    <message>
        <source>Document Properties</source>
        <translation>Dokumenteigenschaften</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Datei:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>T&amp;opic:</source>
        <translation>T&amp;hema:</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>&amp;Stichwörter:</translation>
    </message>
    <message>
        <source>&amp;Comment:</source>
        <translation>&amp;Kommentar:</translation>
    </message>
    <message>
        <source>Info %1</source>
        <translation>Info %1</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>The document information of &quot;%1&quot; could not be changed: %2.
The file was left as it was.</source>
        <translation>Die Dokumentinformationen von &quot;%1&quot; konnten nicht geändert werden: %2.
Die Datei blieb unverändert.</translation>
    </message>
    <message>
        <source>The document is encrypted; its information could not be read.</source>
        <translation>Das Dokument ist verschlüsselt; seine Informationen konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The document is damaged; only part of its information, or none, could be read.</source>
        <translation>Das Dokument ist beschädigt; nur ein Teil seiner Informationen oder keine konnte gelesen werden.</translation>
    </message>
    <message>
        <source>The file is not a zip package, as documents of its kind are; its information could not be read.</source>
        <translation>Die Datei ist kein Zip-Paket, wie es Dokumente ihrer Art sind; ihre Informationen konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The document holds no information yet.</source>
        <translation>Das Dokument enthält noch keine Informationen.</translation>
    </message>
    <message>
        <source>No reader for documents of this kind could be loaded; its information could not be read.</source>
        <translation>Für Dokumente dieser Art konnte kein Leser geladen werden; seine Informationen konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Documents of this kind (legacy Office, RTF, flat ODF) are read-only here: their information is shown but cannot be changed.</source>
        <translation>Dokumente dieser Art (ältere Office-Formate, RTF, Flat-ODF) sind hier schreibgeschützt: ihre Informationen werden angezeigt, können aber nicht geändert werden.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>HostManager</name>
    <message>
        <source>The document information of &quot;%1&quot; cannot be changed: this program cannot read it as a document.</source>
        <translation>Die Dokumentinformationen von &quot;%1&quot; können nicht geändert werden: dieses Programm kann die Datei nicht als Dokument lesen.</translation>
    </message>
</context>
<context>
    <name>docmanager</name>
    <message>
        <source>No application could be started to open %1.</source>
        <translation>Es konnte kein Programm gestartet werden, um %1 zu öffnen.</translation>
    </message>
    <message>
        <source>The documents cannot be printed: this system has no print command (neither lp nor lpr was found). Install a print system such as CUPS (package cups-client).</source>
        <translation>Die Dokumente können nicht gedruckt werden: dieses System hat keinen Druckbefehl (weder lp noch lpr wurde gefunden). Installieren Sie ein Drucksystem wie CUPS (Paket cups-client).</translation>
    </message>
    <message>
        <source>The print command %1 could not be run.</source>
        <translation>Der Druckbefehl %1 konnte nicht ausgeführt werden.</translation>
    </message>
    <message>
        <source>The print command %1 failed (exit status %2).</source>
        <translation>Der Druckbefehl %1 ist fehlgeschlagen (Exit-Status %2).</translation>
    </message>
    <message>
        <source>No folder for read-only copies could be made in %1.</source>
        <translation>In %1 konnte kein Ordner für schreibgeschützte Kopien angelegt werden.</translation>
    </message>
    <message>
        <source>The file %1 could not be copied.</source>
        <translation>Die Datei %1 konnte nicht kopiert werden.</translation>
    </message>
</context>
</TS>
