<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>DocMgr</name>
    <message>
        <source>File name</source>
        <comment>string 15700</comment>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>string 15701</comment>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Directory</source>
        <comment>string 15702</comment>
        <translation>Verzeichnis</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>string 15703</comment>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Topic</source>
        <comment>string 15704</comment>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Created on</source>
        <comment>string 15705</comment>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Created at</source>
        <comment>string 15706</comment>
        <translation>Erstellt um</translation>
    </message>
    <message>
        <source>Author</source>
        <comment>string 15707</comment>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Modified on</source>
        <comment>string 15708</comment>
        <translation>Geändert am</translation>
    </message>
    <message>
        <source>Modified at</source>
        <comment>string 15709</comment>
        <translation>Geändert um</translation>
    </message>
    <message>
        <source>Modified by</source>
        <comment>string 15710</comment>
        <translation>Geändert von</translation>
    </message>
    <message>
        <source>Printed on</source>
        <comment>string 15711</comment>
        <translation>Gedruckt am</translation>
    </message>
    <message>
        <source>Printed at</source>
        <comment>string 15712</comment>
        <translation>Gedruckt um</translation>
    </message>
    <message>
        <source>Printed by</source>
        <comment>string 15713</comment>
        <translation>Gedruckt von</translation>
    </message>
    <message>
        <source>Comment</source>
        <comment>string 15714</comment>
        <translation>Kommentar</translation>
    </message>
    <message>
        <source>Keywords</source>
        <comment>string 15715</comment>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>General</source>
        <comment>string 15716</comment>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>string 15717</comment>
        <translation>Standard</translation>
    </message>
    <message>
        <source> documents in </source>
        <comment>string 15718</comment>
        <translation> Dokumente in </translation>
    </message>
    <message>
        <source>Group</source>
        <comment>string 15719</comment>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>.docindex</source>
        <comment>string 15720</comment>
        <translation>.docindex</translation>
    </message>
    <message>
        <source>No document manager settings were found. A first group named &quot;Standard&quot; has been created; choose its directories with the Paths button.</source>
        <comment>string 15721</comment>
        <translation>Es wurden keine Einstellungen für die Dokumentverwaltung gefunden. Eine erste Gruppe &quot;Standard&quot; wurde angelegt; wählen Sie ihre Verzeichnisse mit der Schaltfläche Pfade.</translation>
    </message>
    <message>
        <source>*.odt;*.ott;*.ods;*.ots;*.odp;*.otp;*.odg;*.otg;*.docx;*.docm;*.dotx;*.dotm;*.xlsx;*.xlsm;*.xltx;*.xltm;*.pptx;*.pptm;*.potx;*.potm;*.pdf;*.fodt;*.fods;*.fodp;*.fodg;*.doc;*.dot;*.xls;*.xlt;*.ppt;*.pot;*.rtf</source>
        <comment>string 15722</comment>
        <translation>*.odt;*.ott;*.ods;*.ots;*.odp;*.otp;*.odg;*.otg;*.docx;*.docm;*.dotx;*.dotm;*.xlsx;*.xlsm;*.xltx;*.xltm;*.pptx;*.pptm;*.potx;*.potm;*.pdf;*.fodt;*.fods;*.fodp;*.fodg;*.doc;*.dot;*.xls;*.xlt;*.ppt;*.pot;*.rtf</translation>
    </message>
    <message>
        <source>/**</source>
        <comment>string 15723</comment>
        <translation>/**</translation>
    </message>
    <message>
        <source>The file </source>
        <comment>string 15724</comment>
        <translation>Die Datei </translation>
    </message>
    <message>
        <source> could not be deleted.</source>
        <comment>string 15725</comment>
        <translation> konnte nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>The folder </source>
        <comment>string 15726</comment>
        <translation>Der Ordner </translation>
    </message>
    <message>
        <source> could not be created.</source>
        <comment>string 15727</comment>
        <translation> konnte nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The file </source>
        <comment>string 15728</comment>
        <translation>Die Datei </translation>
    </message>
    <message>
        <source> could not be copied.</source>
        <comment>string 15729</comment>
        <translation> konnte nicht kopiert werden.</translation>
    </message>
    <message>
        <source>The file </source>
        <comment>string 15730</comment>
        <translation>Die Datei </translation>
    </message>
    <message>
        <source> could not be moved.</source>
        <comment>string 15731</comment>
        <translation> konnte nicht verschoben werden.</translation>
    </message>
    <message>
        <source>The file </source>
        <comment>string 15732</comment>
        <translation>Die Datei </translation>
    </message>
    <message>
        <source> could not be renamed.</source>
        <comment>string 15733</comment>
        <translation> konnte nicht umbenannt werden.</translation>
    </message>
    <message>
        <source>at</source>
        <comment>string 15734</comment>
        <translation>um</translation>
    </message>
    <message>
        <source>by</source>
        <comment>string 15735</comment>
        <translation>von</translation>
    </message>
    <message>
        <source>The settings of the group &quot;</source>
        <comment>string 15736</comment>
        <translation>Die Einstellungen der Gruppe &quot;</translation>
    </message>
    <message>
        <source>&quot; have been changed. Keep the changes?</source>
        <comment>string 15737</comment>
        <translation>&quot; wurden geändert. Sollen die Änderungen übernommen werden?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <comment>string 15738</comment>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>string 15739</comment>
        <translation>&amp;Auswählen</translation>
    </message>
    <message>
        <source>Document list</source>
        <comment>string 15743</comment>
        <translation>Dokumentliste</translation>
    </message>
    <message>
        <source>The list could not be written to </source>
        <comment>string 15744</comment>
        <translation>Die Liste konnte nicht gespeichert werden in </translation>
    </message>
    <message>
        <source>.</source>
        <comment>string 15745</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>Copy or Move Documents</source>
        <comment>dialog 15706.0</comment>
        <translation>Dokumente kopieren oder verschieben</translation>
    </message>
    <message>
        <source>&amp;Target folder:</source>
        <comment>dialog 15706.22</comment>
        <translation>&amp;Zielordner:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15706.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15706.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;New Folder...</source>
        <comment>dialog 15706.35</comment>
        <translation>&amp;Neuer Ordner...</translation>
    </message>
    <message>
        <source>&amp;Move (remove the originals)</source>
        <comment>dialog 15706.101</comment>
        <translation>&amp;Verschieben (Originale entfernen)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <comment>dialog 15707.0</comment>
        <translation>Neuer Ordner</translation>
    </message>
    <message>
        <source>&amp;Name of the new folder:</source>
        <comment>dialog 15707.14</comment>
        <translation>&amp;Name des neuen Ordners:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15707.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15707.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Rename Document</source>
        <comment>dialog 15708.0</comment>
        <translation>Dokument umbenennen</translation>
    </message>
    <message>
        <source>Current name:</source>
        <comment>dialog 15708.110</comment>
        <translation>Bisheriger Name:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <comment>dialog 15708.112</comment>
        <translation>&amp;Neuer Name:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15708.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15708.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print Document List</source>
        <comment>dialog 15709.0</comment>
        <translation>Dokumentliste drucken</translation>
    </message>
    <message>
        <source>&amp;Columns to print:</source>
        <comment>dialog 15709.114</comment>
        <translation>Zu druckende &amp;Spalten:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <comment>dialog 15709.18</comment>
        <translation>&amp;Drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15709.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>P&amp;rinter...</source>
        <comment>dialog 15709.136</comment>
        <translation>D&amp;rucker...</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <comment>dialog 15709.137</comment>
        <translation>Schrift&amp;art...</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>dialog 15710.0</comment>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>The document list is being printed on</source>
        <comment>dialog 15710.136</comment>
        <translation>Die Dokumentliste wird gedruckt auf</translation>
    </message>
    <message>
        <source>Cancel Printing</source>
        <comment>dialog 15710.19</comment>
        <translation>Druck abbrechen</translation>
    </message>
    <message>
        <source>Export List</source>
        <comment>dialog 15711.0</comment>
        <translation>Liste exportieren</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <comment>dialog 15711.1</comment>
        <translation>CSV-Dateien (*.csv)</translation>
    </message>
    <message>
        <source>Filter</source>
        <comment>dialog 15702.0</comment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <comment>dialog 15702.1</comment>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>T&amp;opic:</source>
        <comment>dialog 15702.2</comment>
        <translation>Th&amp;ema:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <comment>dialog 15702.3</comment>
        <translation>&amp;Autor:</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <comment>dialog 15702.4</comment>
        <translation>&amp;Stichwörter:</translation>
    </message>
    <message>
        <source>File &amp;names:</source>
        <comment>dialog 15702.5</comment>
        <translation>Datei&amp;namen:</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <comment>dialog 15702.6</comment>
        <translation>Groß-/Kleinschreibung &amp;beachten</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>dialog 15702.7</comment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Conditions</source>
        <comment>dialog 15702.8</comment>
        <translation>Bedingungen</translation>
    </message>
    <message>
        <source>(no condition)</source>
        <comment>dialog 15702.9</comment>
        <translation>(keine Bedingung)</translation>
    </message>
    <message>
        <source>equal to</source>
        <comment>dialog 15702.20</comment>
        <translation>gleich</translation>
    </message>
    <message>
        <source>not less than</source>
        <comment>dialog 15702.21</comment>
        <translation>nicht kleiner als</translation>
    </message>
    <message>
        <source>not greater than</source>
        <comment>dialog 15702.22</comment>
        <translation>nicht größer als</translation>
    </message>
    <message>
        <source>greater than</source>
        <comment>dialog 15702.23</comment>
        <translation>größer als</translation>
    </message>
    <message>
        <source>less than</source>
        <comment>dialog 15702.24</comment>
        <translation>kleiner als</translation>
    </message>
    <message>
        <source>not equal to</source>
        <comment>dialog 15702.25</comment>
        <translation>ungleich</translation>
    </message>
    <message>
        <source>matches pattern</source>
        <comment>dialog 15702.26</comment>
        <translation>entspricht Muster</translation>
    </message>
    <message>
        <source>(end)</source>
        <comment>dialog 15702.30</comment>
        <translation>(Ende)</translation>
    </message>
    <message>
        <source>and</source>
        <comment>dialog 15702.31</comment>
        <translation>und</translation>
    </message>
    <message>
        <source>or</source>
        <comment>dialog 15702.32</comment>
        <translation>oder</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15702.40</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15702.41</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Wildcards: * any text, ? one character</source>
        <comment>dialog 15702.42</comment>
        <translation>Platzhalter: * beliebiger Text, ? ein Zeichen</translation>
    </message>
    <message>
        <source>Document Manager</source>
        <comment>dialog 15700.0</comment>
        <translation>Dokumentverwaltung</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <comment>dialog 15700.10</comment>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <comment>dialog 15700.11</comment>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>&amp;Groups...</source>
        <comment>dialog 15700.13</comment>
        <translation>&amp;Gruppen...</translation>
    </message>
    <message>
        <source>&amp;Paths...</source>
        <comment>dialog 15700.14</comment>
        <translation>&amp;Pfade...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <comment>dialog 15700.15</comment>
        <translation>F&amp;ilter...</translation>
    </message>
    <message>
        <source>&amp;Sort...</source>
        <comment>dialog 15700.16</comment>
        <translation>S&amp;ortieren...</translation>
    </message>
    <message>
        <source>Co&amp;lumns...</source>
        <comment>dialog 15700.17</comment>
        <translation>Spa&amp;lten...</translation>
    </message>
    <message>
        <source>Co&amp;mmands</source>
        <comment>dialog 15700.34</comment>
        <translation>Befe&amp;hle</translation>
    </message>
    <message>
        <source>S&amp;ection</source>
        <comment>dialog 15700.90</comment>
        <translation>&amp;Bereich</translation>
    </message>
    <message>
        <source>Gro&amp;up</source>
        <comment>dialog 15700.92</comment>
        <translation>Gr&amp;uppe</translation>
    </message>
    <message>
        <source>&amp;Read-only</source>
        <comment>dialog 15700.94</comment>
        <translation>Sch&amp;reibgeschützt</translation>
    </message>
    <message>
        <source>Single &amp;view</source>
        <comment>dialog 15700.95</comment>
        <translation>&amp;Einzelansicht</translation>
    </message>
    <message>
        <source>Reading documents: %1 folders, %2 documents so far</source>
        <comment>dialog 15700.40</comment>
        <translation>Dokumente werden gelesen: bisher %1 Ordner, %2 Dokumente</translation>
    </message>
    <message>
        <source>Document Manager</source>
        <comment>dialog 15700.41</comment>
        <translation>Dokumentverwaltung</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <comment>dialog 15700.50</comment>
        <translation>Su&amp;chen:</translation>
    </message>
    <message>
        <source>Text in any column; Esc closes</source>
        <comment>dialog 15700.51</comment>
        <translation>Text in einer Spalte; Esc schließt</translation>
    </message>
    <message>
        <source>%1 of %2 documents</source>
        <comment>dialog 15700.52</comment>
        <translation>%1 von %2 Dokumenten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu 15700.20</comment>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Document &amp;Information...</source>
        <comment>menu 15700.21</comment>
        <translation>Dokument&amp;info...</translation>
    </message>
    <message>
        <source>&amp;Copy / Move...</source>
        <comment>menu 15700.22</comment>
        <translation>&amp;Kopieren / Verschieben...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <comment>menu 15700.23</comment>
        <translation>&amp;Umbenennen...</translation>
    </message>
    <message>
        <source>&amp;Print Documents</source>
        <comment>menu 15700.24</comment>
        <translation>Dokumente &amp;drucken</translation>
    </message>
    <message>
        <source>Print &amp;List...</source>
        <comment>menu 15700.25</comment>
        <translation>Li&amp;ste drucken...</translation>
    </message>
    <message>
        <source>&amp;Export List...</source>
        <comment>menu 15700.26</comment>
        <translation>Liste e&amp;xportieren...</translation>
    </message>
    <message>
        <source>The settings have been changed. Keep the changes?</source>
        <comment>query 15701</comment>
        <translation>Die Einstellungen wurden geändert. Sollen die Änderungen übernommen werden?</translation>
    </message>
    <message>
        <source>Directories of the Group</source>
        <comment>dialog 15701.0</comment>
        <translation>Verzeichnisse der Gruppe</translation>
    </message>
    <message>
        <source>&amp;Chosen directories:</source>
        <comment>dialog 15701.20</comment>
        <translation>&amp;Gewählte Verzeichnisse:</translation>
    </message>
    <message>
        <source>All &amp;directories:</source>
        <comment>dialog 15701.22</comment>
        <translation>&amp;Alle Verzeichnisse:</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <comment>dialog 15701.26</comment>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Include subdirectories</source>
        <comment>dialog 15701.226</comment>
        <translation>&amp;Unterverzeichnisse einbeziehen</translation>
    </message>
    <message>
        <source>Where the group&apos;s documents are</source>
        <comment>dialog 15701.27</comment>
        <translation>Wo die Dokumente der Gruppe liegen</translation>
    </message>
    <message>
        <source>&amp;Add &gt;&gt;</source>
        <comment>dialog 15701.32</comment>
        <translation>&amp;Hinzufügen &gt;&gt;</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <comment>dialog 15701.33</comment>
        <translation>A&amp;lle entfernen</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15701.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15701.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Sort</source>
        <comment>dialog 15703.0</comment>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>&amp;Sort by:</source>
        <comment>dialog 15703.72</comment>
        <translation>&amp;Sortieren nach:</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>dialog 15703.71</comment>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <comment>dialog 15703.28</comment>
        <translation>&amp;Aufsteigend</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <comment>dialog 15703.29</comment>
        <translation>A&amp;bsteigend</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15703.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15703.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Columns</source>
        <comment>dialog 15704.0</comment>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Column order</source>
        <comment>dialog 15704.81</comment>
        <translation>Reihenfolge der Spalten</translation>
    </message>
    <message>
        <source>Columns above the line stay in place when the list scrolls sideways.</source>
        <comment>dialog 15704.82</comment>
        <translation>Spalten über der Linie bleiben stehen, wenn die Liste seitlich rollt.</translation>
    </message>
    <message>
        <source>Move up (Ctrl+Up)</source>
        <comment>dialog 15704.30</comment>
        <translation>Nach oben (Strg+Auf)</translation>
    </message>
    <message>
        <source>Move down (Ctrl+Down)</source>
        <comment>dialog 15704.31</comment>
        <translation>Nach unten (Strg+Ab)</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15704.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15704.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Groups</source>
        <comment>dialog 15705.0</comment>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Groups</source>
        <comment>dialog 15705.13</comment>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <comment>dialog 15705.14</comment>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>S&amp;ection:</source>
        <comment>dialog 15705.10</comment>
        <translation>&amp;Bereich:</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>dialog 15705.16</comment>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15705.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15705.11</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Se&amp;ttings</source>
        <comment>dialog 15705.22</comment>
        <translation>&amp;Einstellungen</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <comment>dialog 15705.23</comment>
        <translation>&amp;Mehr</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <comment>dialog 15705.20</comment>
        <translation>Ne&amp;u</translation>
    </message>
    <message>
        <source>C&amp;hange</source>
        <comment>dialog 15705.24</comment>
        <translation>Än&amp;dern</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>dialog 15705.21</comment>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Directories...</source>
        <comment>menu 15705.10</comment>
        <translation>&amp;Verzeichnisse...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <comment>menu 15705.11</comment>
        <translation>&amp;Filter...</translation>
    </message>
    <message>
        <source>&amp;Sort...</source>
        <comment>menu 15705.12</comment>
        <translation>&amp;Sortieren...</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <comment>menu 15705.13</comment>
        <translation>S&amp;palten...</translation>
    </message>
    <message>
        <source>S&amp;tore Current Settings</source>
        <comment>menu 15705.14</comment>
        <translation>Aktuelle Einstellungen &amp;übernehmen</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <comment>dialog 15709.138</comment>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>Only %1 of the %2 chosen columns fit across the page; the others are cut off. Choose fewer columns, a smaller font or landscape.</source>
        <comment>dialog 15709.139</comment>
        <translation>Nur %1 der %2 gewählten Spalten passen auf die Seitenbreite; die übrigen werden abgeschnitten. Wählen Sie weniger Spalten, eine kleinere Schrift oder das Querformat.</translation>
    </message>
    <message>
        <source>Show &amp;hidden folders</source>
        <comment>string 15746</comment>
        <translation>&amp;Versteckte Ordner zeigen</translation>
    </message>
    <message>
        <source>This step can no longer be undone: %1 has changed since. Nothing was changed.</source>
        <comment>string 15747</comment>
        <translation>Dieser Schritt kann nicht mehr rückgängig gemacht werden: %1 wurde seitdem geändert. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>This step can no longer be redone: %1 has changed since. Nothing was changed.</source>
        <comment>string 15748</comment>
        <translation>Dieser Schritt kann nicht mehr wiederholt werden: %1 wurde seitdem geändert. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The step could not be completed at %1.</source>
        <comment>string 15749</comment>
        <translation>Der Schritt konnte bei %1 nicht abgeschlossen werden.</translation>
    </message>
    <message>
        <source>Edit Information of the &amp;Selected Documents...</source>
        <comment>menu 15700.27</comment>
        <translation>Information der gewählten Dokumente &amp;bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu 15700.28</comment>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <comment>menu 15700.29</comment>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Move the %1 selected documents to the trash?</source>
        <comment>query 15700</comment>
        <translation>Die %1 gewählten Dokumente in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>Move the document &quot;%1&quot; to the trash?</source>
        <comment>query 15702</comment>
        <translation>Das Dokument &quot;%1&quot; in den Papierkorb verschieben?</translation>
    </message>
    <message>
        <source>No trash can take these files:
%1

Delete them for good? This cannot be undone.</source>
        <comment>query 15703</comment>
        <translation>Kein Papierkorb kann diese Dateien aufnehmen:
%1

Endgültig löschen? Das kann nicht rückgängig gemacht werden.</translation>
    </message>
    <message>
        <source>Information of Documents</source>
        <comment>dialog 15712.0</comment>
        <translation>Information von Dokumenten</translation>
    </message>
    <message>
        <source>&amp;Preview...</source>
        <comment>dialog 15712.18</comment>
        <translation>&amp;Vorschau...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15712.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 documents. Only the fields you change are written.</source>
        <comment>dialog 15712.20</comment>
        <translation>%1 Dokumente. Nur die Felder, die Sie ändern, werden geschrieben.</translation>
    </message>
    <message>
        <source>(various)</source>
        <comment>dialog 15712.21</comment>
        <translation>(verschieden)</translation>
    </message>
    <message>
        <source>This program cannot write the information of documents.</source>
        <comment>dialog 15712.22</comment>
        <translation>Dieses Programm kann die Information von Dokumenten nicht schreiben.</translation>
    </message>
    <message>
        <source>These documents were left as they were:</source>
        <comment>dialog 15712.23</comment>
        <translation>Diese Dokumente blieben, wie sie waren:</translation>
    </message>
    <message>
        <source>Preview of the Changes</source>
        <comment>dialog 15713.0</comment>
        <translation>Vorschau der Änderungen</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <comment>dialog 15713.18</comment>
        <translation>&amp;Schreiben</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15713.19</comment>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>These values will be written:</source>
        <comment>dialog 15713.20</comment>
        <translation>Diese Werte werden geschrieben:</translation>
    </message>
    <message>
        <source>Document</source>
        <comment>dialog 15713.21</comment>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>dialog 15713.22</comment>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Old value</source>
        <comment>dialog 15713.23</comment>
        <translation>Alter Wert</translation>
    </message>
    <message>
        <source>New value</source>
        <comment>dialog 15713.24</comment>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <comment>dialog 15713.25</comment>
        <translation>nicht geschrieben: %1</translation>
    </message>
</context>
</TS>
