// "Export list...": the list as shown (the found rows only), written to a CSV file the user names.
#include <QFileDialog>
#include <cerrno>
#include <cstdio>
#include <string>
#include <vector>

#include "docmgr/config/impldocconfig.h"
#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/records/docfields.h"
#include "docmgr/records/listcsv.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/ui/fileoptext.h"
#include "docmgr/view/docbrowser.h"

namespace {
// Writes `text` to `path`, replacing the file; 0 or an errno value.
int WriteFile(const std::string& path, const std::string& text)
{
    std::FILE* file = std::fopen(path.c_str(), "wb");
    if (!file)
        return errno;
    int error = 0;
    if (std::fwrite(text.data(), 1, text.size(), file) != text.size())
        error = errno ? errno : EIO;
    if (std::fclose(file) != 0 && error == 0)
        error = errno ? errno : EIO;
    return error;
}
}  // namespace

void DocManagerImpl::ExportList()
{
    QFileDialog dialog(&manager, DialogText(DLG_EXPORT), QString(), DialogText(DLG_EXPORT, EXPORT_FILE_TYPES));
    dialog.setObjectName(QStringLiteral("exportDialog"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("csv"));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return;
    const std::string path = dialog.selectedFiles().front().toStdString();

    // The columns as the list shows them, left to right; a place without a column id
    // shows nothing and is left out.
    std::vector<uint16_t> columns;
    for (unsigned short p = 0; p < browser->ColCount(); ++p) {
        const uint16_t id = browser->GetColumnId(p);
        if (id >= 1 && id <= COLUMN_COUNT)
            columns.push_back(id);
    }
    // The rows shown, which after a find are fewer than the list's.
    std::string text;
    std::vector<std::string> fields;
    for (const uint16_t id : columns)
        fields.push_back(browser->GetColumnTitle(id));
    AppendCsvRecord(text, fields);
    for (const long row : browser->ShownRows()) {
        for (size_t c = 0; c < columns.size(); ++c)
            fields[c] = browser->GetColumnText(row, columns[c]);
        AppendCsvRecord(text, fields);
    }
    if (const int error = WriteFile(path, text))
        DocInfoBox(&manager, JoinedMessage(STR_EXPORT_FAILED, path, STR_EXPORT_FAILED_END), DocErrorText(error));
}
