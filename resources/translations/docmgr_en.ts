<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DocMgr</name>
    <message>
        <source>File name</source>
        <comment>string 15700</comment>
        <translation>File name</translation>
    </message>
    <message>
        <source>Size</source>
        <comment>string 15701</comment>
        <translation>Size</translation>
    </message>
    <message>
        <source>Directory</source>
        <comment>string 15702</comment>
        <translation>Directory</translation>
    </message>
    <message>
        <source>Title</source>
        <comment>string 15703</comment>
        <translation>Title</translation>
    </message>
    <message>
        <source>Topic</source>
        <comment>string 15704</comment>
        <translation>Topic</translation>
    </message>
    <message>
        <source>Created on</source>
        <comment>string 15705</comment>
        <translation>Created on</translation>
    </message>
    <message>
        <source>Created at</source>
        <comment>string 15706</comment>
        <translation>Created at</translation>
    </message>
    <message>
        <source>Author</source>
        <comment>string 15707</comment>
        <translation>Author</translation>
    </message>
    <message>
        <source>Modified on</source>
        <comment>string 15708</comment>
        <translation>Modified on</translation>
    </message>
    <message>
        <source>Modified at</source>
        <comment>string 15709</comment>
        <translation>Modified at</translation>
    </message>
    <message>
        <source>Modified by</source>
        <comment>string 15710</comment>
        <translation>Modified by</translation>
    </message>
    <message>
        <source>Printed on</source>
        <comment>string 15711</comment>
        <translation>Printed on</translation>
    </message>
    <message>
        <source>Printed at</source>
        <comment>string 15712</comment>
        <translation>Printed at</translation>
    </message>
    <message>
        <source>Printed by</source>
        <comment>string 15713</comment>
        <translation>Printed by</translation>
    </message>
    <message>
        <source>Comment</source>
        <comment>string 15714</comment>
        <translation>Comment</translation>
    </message>
    <message>
        <source>Keywords</source>
        <comment>string 15715</comment>
        <translation>Keywords</translation>
    </message>
    <message>
        <source>General</source>
        <comment>string 15716</comment>
        <translation>General</translation>
    </message>
    <message>
        <source>Standard</source>
        <comment>string 15717</comment>
        <translation>Standard</translation>
    </message>
    <message>
        <source> documents in </source>
        <comment>string 15718</comment>
        <translation> documents in </translation>
    </message>
    <message>
        <source>Group</source>
        <comment>string 15719</comment>
        <translation>Group</translation>
    </message>
    <message>
        <source>.docindex</source>
        <comment>string 15720</comment>
        <translation>.docindex</translation>
    </message>
    <message>
        <source>No document manager settings were found. A first group named &quot;Standard&quot; has been created; choose its directories with the Paths button.</source>
        <comment>string 15721</comment>
        <translation>No document manager settings were found. A first group named &quot;Standard&quot; has been created; choose its directories with the Paths button.</translation>
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
        <translation>The file </translation>
    </message>
    <message>
        <source> could not be deleted.</source>
        <comment>string 15725</comment>
        <translation> could not be deleted.</translation>
    </message>
    <message>
        <source>The folder </source>
        <comment>string 15726</comment>
        <translation>The folder </translation>
    </message>
    <message>
        <source> could not be created.</source>
        <comment>string 15727</comment>
        <translation> could not be created.</translation>
    </message>
    <message>
        <source>The file </source>
        <comment>string 15728</comment>
        <translation>The file </translation>
    </message>
    <message>
        <source> could not be copied.</source>
        <comment>string 15729</comment>
        <translation> could not be copied.</translation>
    </message>
    <message>
        <source>The file </source>
        <comment>string 15730</comment>
        <translation>The file </translation>
    </message>
    <message>
        <source> could not be moved.</source>
        <comment>string 15731</comment>
        <translation> could not be moved.</translation>
    </message>
    <message>
        <source>The file </source>
        <comment>string 15732</comment>
        <translation>The file </translation>
    </message>
    <message>
        <source> could not be renamed.</source>
        <comment>string 15733</comment>
        <translation> could not be renamed.</translation>
    </message>
    <message>
        <source>at</source>
        <comment>string 15734</comment>
        <translation>at</translation>
    </message>
    <message>
        <source>by</source>
        <comment>string 15735</comment>
        <translation>by</translation>
    </message>
    <message>
        <source>The settings of the group &quot;</source>
        <comment>string 15736</comment>
        <translation>The settings of the group &quot;</translation>
    </message>
    <message>
        <source>&quot; have been changed. Keep the changes?</source>
        <comment>string 15737</comment>
        <translation>&quot; have been changed. Keep the changes?</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <comment>string 15738</comment>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Select</source>
        <comment>string 15739</comment>
        <translation>&amp;Select</translation>
    </message>
    <message>
        <source>Document list</source>
        <comment>string 15743</comment>
        <translation>Document list</translation>
    </message>
    <message>
        <source>The list could not be written to </source>
        <comment>string 15744</comment>
        <translation>The list could not be written to </translation>
    </message>
    <message>
        <source>.</source>
        <comment>string 15745</comment>
        <translation>.</translation>
    </message>
    <message>
        <source>Copy or Move Documents</source>
        <comment>dialog 15706.0</comment>
        <translation>Copy or Move Documents</translation>
    </message>
    <message>
        <source>&amp;Target folder:</source>
        <comment>dialog 15706.22</comment>
        <translation>&amp;Target folder:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15706.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15706.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>&amp;New Folder...</source>
        <comment>dialog 15706.35</comment>
        <translation>&amp;New Folder...</translation>
    </message>
    <message>
        <source>&amp;Move (remove the originals)</source>
        <comment>dialog 15706.101</comment>
        <translation>&amp;Move (remove the originals)</translation>
    </message>
    <message>
        <source>New Folder</source>
        <comment>dialog 15707.0</comment>
        <translation>New Folder</translation>
    </message>
    <message>
        <source>&amp;Name of the new folder:</source>
        <comment>dialog 15707.14</comment>
        <translation>&amp;Name of the new folder:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15707.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15707.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Rename Document</source>
        <comment>dialog 15708.0</comment>
        <translation>Rename Document</translation>
    </message>
    <message>
        <source>Current name:</source>
        <comment>dialog 15708.110</comment>
        <translation>Current name:</translation>
    </message>
    <message>
        <source>&amp;New name:</source>
        <comment>dialog 15708.112</comment>
        <translation>&amp;New name:</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15708.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15708.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Print Document List</source>
        <comment>dialog 15709.0</comment>
        <translation>Print Document List</translation>
    </message>
    <message>
        <source>&amp;Columns to print:</source>
        <comment>dialog 15709.114</comment>
        <translation>&amp;Columns to print:</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <comment>dialog 15709.18</comment>
        <translation>&amp;Print</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15709.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>P&amp;rinter...</source>
        <comment>dialog 15709.136</comment>
        <translation>P&amp;rinter...</translation>
    </message>
    <message>
        <source>&amp;Font...</source>
        <comment>dialog 15709.137</comment>
        <translation>&amp;Font...</translation>
    </message>
    <message>
        <source>Printing</source>
        <comment>dialog 15710.0</comment>
        <translation>Printing</translation>
    </message>
    <message>
        <source>The document list is being printed on</source>
        <comment>dialog 15710.136</comment>
        <translation>The document list is being printed on</translation>
    </message>
    <message>
        <source>Cancel Printing</source>
        <comment>dialog 15710.19</comment>
        <translation>Cancel Printing</translation>
    </message>
    <message>
        <source>Export List</source>
        <comment>dialog 15711.0</comment>
        <translation>Export List</translation>
    </message>
    <message>
        <source>CSV files (*.csv)</source>
        <comment>dialog 15711.1</comment>
        <translation>CSV files (*.csv)</translation>
    </message>
    <message>
        <source>Filter</source>
        <comment>dialog 15702.0</comment>
        <translation>Filter</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <comment>dialog 15702.1</comment>
        <translation>&amp;Title:</translation>
    </message>
    <message>
        <source>T&amp;opic:</source>
        <comment>dialog 15702.2</comment>
        <translation>T&amp;opic:</translation>
    </message>
    <message>
        <source>&amp;Author:</source>
        <comment>dialog 15702.3</comment>
        <translation>&amp;Author:</translation>
    </message>
    <message>
        <source>&amp;Keywords:</source>
        <comment>dialog 15702.4</comment>
        <translation>&amp;Keywords:</translation>
    </message>
    <message>
        <source>File &amp;names:</source>
        <comment>dialog 15702.5</comment>
        <translation>File &amp;names:</translation>
    </message>
    <message>
        <source>Match &amp;case</source>
        <comment>dialog 15702.6</comment>
        <translation>Match &amp;case</translation>
    </message>
    <message>
        <source>Text</source>
        <comment>dialog 15702.7</comment>
        <translation>Text</translation>
    </message>
    <message>
        <source>Conditions</source>
        <comment>dialog 15702.8</comment>
        <translation>Conditions</translation>
    </message>
    <message>
        <source>(no condition)</source>
        <comment>dialog 15702.9</comment>
        <translation>(no condition)</translation>
    </message>
    <message>
        <source>equal to</source>
        <comment>dialog 15702.20</comment>
        <translation>equal to</translation>
    </message>
    <message>
        <source>not less than</source>
        <comment>dialog 15702.21</comment>
        <translation>not less than</translation>
    </message>
    <message>
        <source>not greater than</source>
        <comment>dialog 15702.22</comment>
        <translation>not greater than</translation>
    </message>
    <message>
        <source>greater than</source>
        <comment>dialog 15702.23</comment>
        <translation>greater than</translation>
    </message>
    <message>
        <source>less than</source>
        <comment>dialog 15702.24</comment>
        <translation>less than</translation>
    </message>
    <message>
        <source>not equal to</source>
        <comment>dialog 15702.25</comment>
        <translation>not equal to</translation>
    </message>
    <message>
        <source>matches pattern</source>
        <comment>dialog 15702.26</comment>
        <translation>matches pattern</translation>
    </message>
    <message>
        <source>(end)</source>
        <comment>dialog 15702.30</comment>
        <translation>(end)</translation>
    </message>
    <message>
        <source>and</source>
        <comment>dialog 15702.31</comment>
        <translation>and</translation>
    </message>
    <message>
        <source>or</source>
        <comment>dialog 15702.32</comment>
        <translation>or</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15702.40</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15702.41</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Wildcards: * any text, ? one character</source>
        <comment>dialog 15702.42</comment>
        <translation>Wildcards: * any text, ? one character</translation>
    </message>
    <message>
        <source>Document Manager</source>
        <comment>dialog 15700.0</comment>
        <translation>Document Manager</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <comment>dialog 15700.10</comment>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <comment>dialog 15700.11</comment>
        <translation>&amp;Close</translation>
    </message>
    <message>
        <source>&amp;Groups...</source>
        <comment>dialog 15700.13</comment>
        <translation>&amp;Groups...</translation>
    </message>
    <message>
        <source>&amp;Paths...</source>
        <comment>dialog 15700.14</comment>
        <translation>&amp;Paths...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <comment>dialog 15700.15</comment>
        <translation>&amp;Filter...</translation>
    </message>
    <message>
        <source>&amp;Sort...</source>
        <comment>dialog 15700.16</comment>
        <translation>&amp;Sort...</translation>
    </message>
    <message>
        <source>Co&amp;lumns...</source>
        <comment>dialog 15700.17</comment>
        <translation>Co&amp;lumns...</translation>
    </message>
    <message>
        <source>Co&amp;mmands</source>
        <comment>dialog 15700.34</comment>
        <translation>Co&amp;mmands</translation>
    </message>
    <message>
        <source>S&amp;ection</source>
        <comment>dialog 15700.90</comment>
        <translation>S&amp;ection</translation>
    </message>
    <message>
        <source>Gro&amp;up</source>
        <comment>dialog 15700.92</comment>
        <translation>Gro&amp;up</translation>
    </message>
    <message>
        <source>&amp;Read-only</source>
        <comment>dialog 15700.94</comment>
        <translation>&amp;Read-only</translation>
    </message>
    <message>
        <source>Single &amp;view</source>
        <comment>dialog 15700.95</comment>
        <translation>Single &amp;view</translation>
    </message>
    <message>
        <source>Reading documents: %1 folders, %2 documents so far</source>
        <comment>dialog 15700.40</comment>
        <translation>Reading documents: %1 folders, %2 documents so far</translation>
    </message>
    <message>
        <source>Document Manager</source>
        <comment>dialog 15700.41</comment>
        <translation>Document Manager</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <comment>dialog 15700.50</comment>
        <translation>F&amp;ind:</translation>
    </message>
    <message>
        <source>Text in any column; Esc closes</source>
        <comment>dialog 15700.51</comment>
        <translation>Text in any column; Esc closes</translation>
    </message>
    <message>
        <source>%1 of %2 documents</source>
        <comment>dialog 15700.52</comment>
        <translation>%1 of %2 documents</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>menu 15700.20</comment>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>Document &amp;Information...</source>
        <comment>menu 15700.21</comment>
        <translation>Document &amp;Information...</translation>
    </message>
    <message>
        <source>&amp;Copy / Move...</source>
        <comment>menu 15700.22</comment>
        <translation>&amp;Copy / Move...</translation>
    </message>
    <message>
        <source>&amp;Rename...</source>
        <comment>menu 15700.23</comment>
        <translation>&amp;Rename...</translation>
    </message>
    <message>
        <source>&amp;Print Documents</source>
        <comment>menu 15700.24</comment>
        <translation>&amp;Print Documents</translation>
    </message>
    <message>
        <source>Print &amp;List...</source>
        <comment>menu 15700.25</comment>
        <translation>Print &amp;List...</translation>
    </message>
    <message>
        <source>&amp;Export List...</source>
        <comment>menu 15700.26</comment>
        <translation>&amp;Export List...</translation>
    </message>
    <message>
        <source>The settings have been changed. Keep the changes?</source>
        <comment>query 15701</comment>
        <translation>The settings have been changed. Keep the changes?</translation>
    </message>
    <message>
        <source>Directories of the Group</source>
        <comment>dialog 15701.0</comment>
        <translation>Directories of the Group</translation>
    </message>
    <message>
        <source>&amp;Chosen directories:</source>
        <comment>dialog 15701.20</comment>
        <translation>&amp;Chosen directories:</translation>
    </message>
    <message>
        <source>All &amp;directories:</source>
        <comment>dialog 15701.22</comment>
        <translation>All &amp;directories:</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <comment>dialog 15701.26</comment>
        <translation>&amp;Remove</translation>
    </message>
    <message>
        <source>&amp;Include subdirectories</source>
        <comment>dialog 15701.226</comment>
        <translation>&amp;Include subdirectories</translation>
    </message>
    <message>
        <source>Where the group&apos;s documents are</source>
        <comment>dialog 15701.27</comment>
        <translation>Where the group&apos;s documents are</translation>
    </message>
    <message>
        <source>&amp;Add &gt;&gt;</source>
        <comment>dialog 15701.32</comment>
        <translation>&amp;Add &gt;&gt;</translation>
    </message>
    <message>
        <source>Remove a&amp;ll</source>
        <comment>dialog 15701.33</comment>
        <translation>Remove a&amp;ll</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15701.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15701.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Sort</source>
        <comment>dialog 15703.0</comment>
        <translation>Sort</translation>
    </message>
    <message>
        <source>&amp;Sort by:</source>
        <comment>dialog 15703.72</comment>
        <translation>&amp;Sort by:</translation>
    </message>
    <message>
        <source>Order</source>
        <comment>dialog 15703.71</comment>
        <translation>Order</translation>
    </message>
    <message>
        <source>&amp;Ascending</source>
        <comment>dialog 15703.28</comment>
        <translation>&amp;Ascending</translation>
    </message>
    <message>
        <source>&amp;Descending</source>
        <comment>dialog 15703.29</comment>
        <translation>&amp;Descending</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15703.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15703.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Columns</source>
        <comment>dialog 15704.0</comment>
        <translation>Columns</translation>
    </message>
    <message>
        <source>Column order</source>
        <comment>dialog 15704.81</comment>
        <translation>Column order</translation>
    </message>
    <message>
        <source>Columns above the line stay in place when the list scrolls sideways.</source>
        <comment>dialog 15704.82</comment>
        <translation>Columns above the line stay in place when the list scrolls sideways.</translation>
    </message>
    <message>
        <source>Move up (Ctrl+Up)</source>
        <comment>dialog 15704.30</comment>
        <translation>Move up (Ctrl+Up)</translation>
    </message>
    <message>
        <source>Move down (Ctrl+Down)</source>
        <comment>dialog 15704.31</comment>
        <translation>Move down (Ctrl+Down)</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15704.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15704.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Groups</source>
        <comment>dialog 15705.0</comment>
        <translation>Groups</translation>
    </message>
    <message>
        <source>Groups</source>
        <comment>dialog 15705.13</comment>
        <translation>Groups</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <comment>dialog 15705.14</comment>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>S&amp;ection:</source>
        <comment>dialog 15705.10</comment>
        <translation>S&amp;ection:</translation>
    </message>
    <message>
        <source>Group</source>
        <comment>dialog 15705.16</comment>
        <translation>Group</translation>
    </message>
    <message>
        <source>OK</source>
        <comment>dialog 15705.18</comment>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15705.11</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Se&amp;ttings</source>
        <comment>dialog 15705.22</comment>
        <translation>Se&amp;ttings</translation>
    </message>
    <message>
        <source>&amp;More</source>
        <comment>dialog 15705.23</comment>
        <translation>&amp;More</translation>
    </message>
    <message>
        <source>Ne&amp;w</source>
        <comment>dialog 15705.20</comment>
        <translation>Ne&amp;w</translation>
    </message>
    <message>
        <source>C&amp;hange</source>
        <comment>dialog 15705.24</comment>
        <translation>C&amp;hange</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <comment>dialog 15705.21</comment>
        <translation>&amp;Delete</translation>
    </message>
    <message>
        <source>&amp;Directories...</source>
        <comment>menu 15705.10</comment>
        <translation>&amp;Directories...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <comment>menu 15705.11</comment>
        <translation>&amp;Filter...</translation>
    </message>
    <message>
        <source>&amp;Sort...</source>
        <comment>menu 15705.12</comment>
        <translation>&amp;Sort...</translation>
    </message>
    <message>
        <source>&amp;Columns...</source>
        <comment>menu 15705.13</comment>
        <translation>&amp;Columns...</translation>
    </message>
    <message>
        <source>S&amp;tore Current Settings</source>
        <comment>menu 15705.14</comment>
        <translation>S&amp;tore Current Settings</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <comment>dialog 15709.138</comment>
        <translation>&amp;Landscape</translation>
    </message>
    <message>
        <source>Only %1 of the %2 chosen columns fit across the page; the others are cut off. Choose fewer columns, a smaller font or landscape.</source>
        <comment>dialog 15709.139</comment>
        <translation>Only %1 of the %2 chosen columns fit across the page; the others are cut off. Choose fewer columns, a smaller font or landscape.</translation>
    </message>
    <message>
        <source>Show &amp;hidden folders</source>
        <comment>string 15746</comment>
        <translation>Show &amp;hidden folders</translation>
    </message>
    <message>
        <source>This step can no longer be undone: %1 has changed since. Nothing was changed.</source>
        <comment>string 15747</comment>
        <translation>This step can no longer be undone: %1 has changed since. Nothing was changed.</translation>
    </message>
    <message>
        <source>This step can no longer be redone: %1 has changed since. Nothing was changed.</source>
        <comment>string 15748</comment>
        <translation>This step can no longer be redone: %1 has changed since. Nothing was changed.</translation>
    </message>
    <message>
        <source>The step could not be completed at %1.</source>
        <comment>string 15749</comment>
        <translation>The step could not be completed at %1.</translation>
    </message>
    <message>
        <source>Edit Information of the &amp;Selected Documents...</source>
        <comment>menu 15700.27</comment>
        <translation>Edit Information of the &amp;Selected Documents...</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <comment>menu 15700.28</comment>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <comment>menu 15700.29</comment>
        <translation>Red&amp;o</translation>
    </message>
    <message>
        <source>Move the %1 selected documents to the trash?</source>
        <comment>query 15700</comment>
        <translation>Move the %1 selected documents to the trash?</translation>
    </message>
    <message>
        <source>Move the document &quot;%1&quot; to the trash?</source>
        <comment>query 15702</comment>
        <translation>Move the document &quot;%1&quot; to the trash?</translation>
    </message>
    <message>
        <source>No trash can take these files:
%1

Delete them for good? This cannot be undone.</source>
        <comment>query 15703</comment>
        <translation>No trash can take these files:
%1

Delete them for good? This cannot be undone.</translation>
    </message>
    <message>
        <source>Information of Documents</source>
        <comment>dialog 15712.0</comment>
        <translation>Information of Documents</translation>
    </message>
    <message>
        <source>&amp;Preview...</source>
        <comment>dialog 15712.18</comment>
        <translation>&amp;Preview...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15712.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>%1 documents. Only the fields you change are written.</source>
        <comment>dialog 15712.20</comment>
        <translation>%1 documents. Only the fields you change are written.</translation>
    </message>
    <message>
        <source>(various)</source>
        <comment>dialog 15712.21</comment>
        <translation>(various)</translation>
    </message>
    <message>
        <source>This program cannot write the information of documents.</source>
        <comment>dialog 15712.22</comment>
        <translation>This program cannot write the information of documents.</translation>
    </message>
    <message>
        <source>These documents were left as they were:</source>
        <comment>dialog 15712.23</comment>
        <translation>These documents were left as they were:</translation>
    </message>
    <message>
        <source>Preview of the Changes</source>
        <comment>dialog 15713.0</comment>
        <translation>Preview of the Changes</translation>
    </message>
    <message>
        <source>&amp;Write</source>
        <comment>dialog 15713.18</comment>
        <translation>&amp;Write</translation>
    </message>
    <message>
        <source>Cancel</source>
        <comment>dialog 15713.19</comment>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>These values will be written:</source>
        <comment>dialog 15713.20</comment>
        <translation>These values will be written:</translation>
    </message>
    <message>
        <source>Document</source>
        <comment>dialog 15713.21</comment>
        <translation>Document</translation>
    </message>
    <message>
        <source>Field</source>
        <comment>dialog 15713.22</comment>
        <translation>Field</translation>
    </message>
    <message>
        <source>Old value</source>
        <comment>dialog 15713.23</comment>
        <translation>Old value</translation>
    </message>
    <message>
        <source>New value</source>
        <comment>dialog 15713.24</comment>
        <translation>New value</translation>
    </message>
    <message>
        <source>not written: %1</source>
        <comment>dialog 15713.25</comment>
        <translation>not written: %1</translation>
    </message>
</context>
</TS>
