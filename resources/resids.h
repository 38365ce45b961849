#pragma once
// The numbers of the module's resources: dialogs, menus and query boxes, the controls
// inside each dialog, and the string resources, range by range. The text tables in
// resources/ and the code that loads the texts both name them from here.
//
// Naming: DLG_, MENU_ and QUERY_ for resources; CTL_ for the control numbers most
// dialogs share and <DIALOG>_ for the controls of one dialog; CMD_ and ITEM_ for the
// items of the two menus; STR_ for strings.
// Control numbers are local to their dialog and counted per control type, so two
// controls of one dialog may share a number (groups: cancel button and section field).
#include <cstdint>

// Dialog resources.
enum DocMgrDialog : uint16_t {
    DLG_MANAGER = 15700,
    DLG_PATHS = 15701,
    DLG_FILTER = 15702,
    DLG_SORT = 15703,
    DLG_COLUMNS = 15704,
    DLG_GROUPS = 15705,
    DLG_COPY = 15706,
    DLG_NEW_FOLDER = 15707,
    DLG_RENAME = 15708,
    DLG_PRINT = 15709,
    DLG_PRINTING = 15710,
    DLG_EXPORT = 15711,         // the file dialog of the list export
    DLG_BATCH_INFO = 15712,     // the information of several documents
    DLG_BATCH_PREVIEW = 15713,  // what that edit is about to write
};

// Menu resources.
enum DocMgrMenu : uint16_t {
    MENU_COMMANDS = 15700,        // the file commands
    MENU_GROUP_SETTINGS = 15705,  // the groups dialog's settings button
};

// Query boxes.
enum DocMgrQuery : uint16_t {
    QUERY_DELETE = 15700,           // several documents, %1 their count
    QUERY_SAVE = 15701,             // the save question; the code composes its own with the group name
    QUERY_DELETE_ONE = 15702,       // one document, %1 its file name
    QUERY_DELETE_FOR_GOOD = 15703,  // files no trash takes, %1 their names
};

// Texts most dialogs number alike: the title, OK and cancel.
enum DialogControl : uint16_t { CTL_TITLE = 0, CTL_OK = 18, CTL_CANCEL = 19 };

// Document manager dialog (DLG_MANAGER).
enum ManagerControl : uint16_t {
    MANAGER_OPEN = 10,
    MANAGER_CLOSE = 11,
    MANAGER_GROUPS = 13,
    MANAGER_PATHS = 14,
    MANAGER_FILTER = 15,
    MANAGER_SORT = 16,
    MANAGER_COLUMNS = 17,
    MANAGER_PATH_LINE = 20,
    MANAGER_COMMANDS = 34,
    MANAGER_PROGRESS = 40,  // "%1 folders, %2 documents" of a long collection
    MANAGER_PROGRESS_TITLE = 41,
    MANAGER_FIND_LABEL = 50,  // the find bar above the list
    MANAGER_FIND_FIELD = 51,  // its field's placeholder
    MANAGER_FIND_COUNT = 52,  // "%1 of %2" rows shown
    MANAGER_SECTION_LABEL = 90,
    MANAGER_SECTION_LIST = 91,
    MANAGER_GROUP_LABEL = 92,
    MANAGER_GROUP_LIST = 93,
    MANAGER_READ_ONLY = 94,
    MANAGER_SINGLE_VIEW = 95,
};

// Items of the commands menu (MENU_COMMANDS), also the command ids of the list's
// context menu.
enum DocCommand : uint16_t {
    CMD_DELETE = 20,
    CMD_DOCINFO = 21,
    CMD_COPY = 22,
    CMD_RENAME = 23,
    CMD_PRINTDOCS = 24,
    CMD_PRINTLIST = 25,
    CMD_EXPORTLIST = 26,
    CMD_BATCHINFO = 27,  // information of the selected documents
    CMD_UNDO = 28,
    CMD_REDO = 29,
};

// Information of several documents (DLG_BATCH_INFO) and its preview (DLG_BATCH_PREVIEW).
enum BatchControl : uint16_t {
    BATCH_INTRO = 20,        // %1 the number of documents
    BATCH_VARIOUS = 21,      // a field whose documents differ
    BATCH_UNSUPPORTED = 22,  // the host writes no information
    BATCH_FAILED = 23,       // documents left as they were, the list follows
    PREVIEW_INTRO = 20,
    PREVIEW_DOCUMENT = 21,  // column titles
    PREVIEW_FIELD = 22,
    PREVIEW_OLD = 23,
    PREVIEW_NEW = 24,
    PREVIEW_NOT_WRITTEN = 25,  // %1 the reason
};

// Paths dialog (DLG_PATHS).
enum PathsControl : uint16_t {
    PATHS_CHOSEN_LABEL = 20,
    PATHS_TREE_LABEL = 22,
    PATHS_REMOVE = 26,
    PATHS_FRAME = 27,
    PATHS_ADD = 32,
    PATHS_REMOVE_ALL = 33,
    // The check box is control 26 like the remove button; its text is kept apart.
    PATHS_INCLUDE_TEXT = 226,
};

// Filter dialog (DLG_FILTER).
enum FilterControl : uint16_t {
    FILTER_TITLE_LABEL = 1,
    FILTER_TOPIC_LABEL = 2,
    FILTER_AUTHOR_LABEL = 3,
    FILTER_KEYWORDS_LABEL = 4,
    FILTER_FILES_LABEL = 5,
    FILTER_SENSITIVE = 6,
    FILTER_TEXT_FRAME = 7,
    FILTER_CONDITION_FRAME = 8,
    FILTER_NO_CONDITION = 9,
    // The condition texts, in the order of the condition codes 0..6.
    FILTER_EQUAL = 20,
    FILTER_AT_LEAST = 21,
    FILTER_AT_MOST = 22,
    FILTER_GREATER = 23,
    FILTER_LESS = 24,
    FILTER_NOT_EQUAL = 25,
    FILTER_PATTERN = 26,
    // The link texts, in the order of the link codes 0..2.
    FILTER_LINK_END = 30,
    FILTER_LINK_AND = 31,
    FILTER_LINK_OR = 32,
    FILTER_OK = 40,
    FILTER_CANCEL = 41,
    FILTER_WILDCARD_HINT = 42,
};

// Sort dialog (DLG_SORT).
enum SortControl : uint16_t {
    SORT_ASCENDING = 28,
    SORT_DESCENDING = 29,
    SORT_ORDER_FRAME = 71,
    SORT_BY_LABEL = 72,
};

// Columns dialog (DLG_COLUMNS).
enum ColumnsControl : uint16_t {
    COLUMNS_UP = 30,
    COLUMNS_DOWN = 31,
    COLUMNS_FRAME = 81,
    COLUMNS_FROZEN_HINT = 82,
};

// Groups dialog (DLG_GROUPS). Its OK button is CTL_OK.
enum GroupsControl : uint16_t {
    GROUPS_SECTION_LABEL = 10,
    GROUPS_CANCEL = 11,  // the section field, which has no text, is 11 too
    GROUPS_FRAME = 13,
    GROUPS_NAME_LABEL = 14,
    GROUPS_EDIT_FRAME = 16,
    GROUPS_NEW = 20,
    GROUPS_DELETE = 21,
    GROUPS_SETTINGS = 22,
    GROUPS_MORE = 23,
    GROUPS_CHANGE = 24,
};

// Items of the groups dialog's settings menu (MENU_GROUP_SETTINGS): the paths, filter,
// sort and columns dialogs on the selected group, and storing the settings in force
// into it.
enum GroupSettingsItem : uint16_t {
    ITEM_PATHS = 10,
    ITEM_FILTER = 11,
    ITEM_SORT = 12,
    ITEM_COLUMNS = 13,
    ITEM_STORE = 14,
};

// Copy or move dialog (DLG_COPY).
enum CopyControl : uint16_t {
    COPY_TARGET_LABEL = 22,
    COPY_NEW_FOLDER = 35,
    COPY_MOVE = 101,
};

// New folder dialog (DLG_NEW_FOLDER).
enum NewFolderControl : uint16_t { NEW_FOLDER_NAME_LABEL = 14 };

// Rename dialog (DLG_RENAME).
enum RenameControl : uint16_t {
    RENAME_CURRENT_LABEL = 110,
    RENAME_NEW_LABEL = 112,
};

// Print dialog of the list (DLG_PRINT); its OK button prints.
enum PrintControl : uint16_t {
    PRINT_COLUMNS_LABEL = 114,
    PRINT_PRINTER = 136,
    PRINT_FONT = 137,
    PRINT_LANDSCAPE = 138,
    PRINT_FIT_WARNING = 139,  // %1 of %2 chosen columns fit across the page
};

// Printing progress (DLG_PRINTING).
enum PrintingControl : uint16_t { PRINTING_MESSAGE = 136 };

// List export (DLG_EXPORT).
enum ExportControl : uint16_t { EXPORT_FILE_TYPES = 1 };

// Column titles. Name, size and folder come first; columns 3..15 follow in column order.
enum ColumnTitleString : uint16_t {
    STR_COL_NAME = 15700,
    STR_COL_SIZE = 15701,
    STR_COL_DIRECTORY = 15702,
    STR_COL_TITLE = 15703,
    STR_COL_TOPIC = 15704,
    STR_COL_CREATED_DATE = 15705,
    STR_COL_CREATED_TIME = 15706,
    STR_COL_AUTHOR = 15707,
    STR_COL_MODIFIED_DATE = 15708,
    STR_COL_MODIFIED_TIME = 15709,
    STR_COL_MODIFIED_BY = 15710,
    STR_COL_PRINTED_DATE = 15711,
    STR_COL_PRINTED_TIME = 15712,
    STR_COL_PRINTED_BY = 15713,
    STR_COL_COMMENT = 15714,
    STR_COL_KEYWORDS = 15715,
};

// The list, its index and its configuration.
enum SettingsString : uint16_t {
    STR_DEFAULT_SECTION = 15716,  // section of the first group and of new groups
    STR_FIRST_GROUP = 15717,      // the first group's name; that group is never renamed or deleted
    STR_COUNT_LINE = 15718,       // between the document count and the paths
    STR_NEW_GROUP_STEM = 15719,   // new groups are named with it and a number
    STR_INDEX_NAME = 15720,
    STR_NEW_CONFIG = 15721,  // told when a first group had to be made
    STR_DEF_EXTENSIONS = 15722,
    STR_SUBDIR_MARKER = 15723,  // "/**"; as the only start path it means none
};

// Failure messages of the file commands: the text before and after a file or folder name.
enum FileMessageString : uint16_t {
    STR_DELETE_FAILED = 15724,
    STR_DELETE_FAILED_END = 15725,
    STR_FOLDER_FAILED = 15726,
    STR_FOLDER_FAILED_END = 15727,
    STR_COPY_FAILED = 15728,
    STR_COPY_FAILED_END = 15729,
    STR_MOVE_FAILED = 15730,
    STR_MOVE_FAILED_END = 15731,
    STR_RENAME_FAILED = 15732,
    STR_RENAME_FAILED_END = 15733,
};

// Texts of the windows.
enum WindowString : uint16_t {
    STR_AT = 15734,  // summary pane: in front of a time
    STR_BY = 15735,  // and in front of a name
    STR_SAVE_QUESTION = 15736,
    STR_SAVE_QUESTION_END = 15737,  // before and after the group's name
    STR_OPEN = 15738,               // open button in open mode
    STR_SELECT = 15739,             // and otherwise
    STR_PRINT_JOB = 15743,
    STR_EXPORT_FAILED = 15744,
    STR_EXPORT_FAILED_END = 15745,  // before and after the file name
    STR_SHOW_HIDDEN = 15746,        // folder trees' context menu
    STR_UNDO_STALE = 15747,         // %1 the file changed since the step
    STR_REDO_STALE = 15748,
    STR_UNDO_FAILED = 15749,  // %1 the file, the system's reason below
};
