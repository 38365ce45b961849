<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DocPropertiesDialog</name>
    <message>
        <source>the file no longer exists</source>
        <translation>the file no longer exists</translation>
    </message>
    <message>
        <source>the file is read-only</source>
        <translation>the file is read-only</translation>
    </message>
    <message>
        <source>its folder is read-only, so the file cannot be replaced</source>
        <translation>its folder is read-only, so the file cannot be replaced</translation>
    </message>
    <message>
        <source>Document Properties</source>
        <translation>Document Properties</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Title:</translation>
    </message>
    <message>
        <source>T&amp;opic:</source>
        <translation>T&amp;opic:</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <translation>&amp;Keywords:</translation>
    </message>
    <message>
        <source>&amp;Comment:</source>
        <translation>&amp;Comment:</translation>
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
        <translation>Cancel</translation>
    </message>
    <message>
        <source>The document information of &quot;%1&quot; could not be changed: %2.
The file was left as it was.</source>
        <translation>The document information of &quot;%1&quot; could not be changed: %2.
The file was left as it was.</translation>
    </message>
    <message>
        <source>The document is encrypted; its information could not be read.</source>
        <translation>The document is encrypted; its information could not be read.</translation>
    </message>
    <message>
        <source>The document is damaged; only part of its information, or none, could be read.</source>
        <translation>The document is damaged; only part of its information, or none, could be read.</translation>
    </message>
    <message>
        <source>The file is not a zip package, as documents of its kind are; its information could not be read.</source>
        <translation>The file is not a zip package, as documents of its kind are; its information could not be read.</translation>
    </message>
    <message>
        <source>The document holds no information yet.</source>
        <translation>The document holds no information yet.</translation>
    </message>
    <message>
        <source>No reader for documents of this kind could be loaded; its information could not be read.</source>
        <translation>No reader for documents of this kind could be loaded; its information could not be read.</translation>
    </message>
    <message>
        <source>Documents of this kind (legacy Office, RTF, flat ODF) are read-only here: their information is shown but cannot be changed.</source>
        <translation>Documents of this kind (legacy Office, RTF, flat ODF) are read-only here: their information is shown but cannot be changed.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>HostManager</name>
    <message>
        <source>The document information of &quot;%1&quot; cannot be changed: this program cannot read it as a document.</source>
        <translation>The document information of &quot;%1&quot; cannot be changed: this program cannot read it as a document.</translation>
    </message>
</context>
<context>
    <name>docmanager</name>
    <message>
        <source>No application could be started to open %1.</source>
        <translation>No application could be started to open %1.</translation>
    </message>
    <message>
        <source>The documents cannot be printed: this system has no print command (neither lp nor lpr was found). Install a print system such as CUPS (package cups-client).</source>
        <translation>The documents cannot be printed: this system has no print command (neither lp nor lpr was found). Install a print system such as CUPS (package cups-client).</translation>
    </message>
    <message>
        <source>The print command %1 could not be run.</source>
        <translation>The print command %1 could not be run.</translation>
    </message>
    <message>
        <source>The print command %1 failed (exit status %2).</source>
        <translation>The print command %1 failed (exit status %2).</translation>
    </message>
    <message>
        <source>No folder for read-only copies could be made in %1.</source>
        <translation>No folder for read-only copies could be made in %1.</translation>
    </message>
    <message>
        <source>The file %1 could not be copied.</source>
        <translation>The file %1 could not be copied.</translation>
    </message>
</context>
</TS>
