// Editing the information of the selected documents at once: the fields, a preview, the
// host's writing, and the whole edit as one undo step.
#include <QStringList>
#include <unordered_map>

#include "docmgr/dialogs/docbatchinfodialog.h"
#include "docmgr/dialogs/docbatchpreviewdialog.h"
#include "docmgr/manager/docmanagerimpl.h"
#include "docmgr/records/docfields.h"
#include "docmgr/tools/fsutil.h"
#include "docmgr/ui/dialogtext.h"
#include "docmgr/ui/docmsgbox.h"
#include "docmgr/ui/waitcursor.h"
#include "docmgr/view/docbrowser.h"
#include "resources/resids.h"

namespace {

// The selected rows' information as the list shows it, in list order.
std::vector<DocInfo> SelectedInfos(DocBrowser& browser)
{
    std::vector<DocInfo> docs;
    std::unordered_map<std::string, size_t> byPath;
    for (const std::string* doc = browser.GetFirstDoc(); doc; doc = browser.GetNextDoc()) {
        byPath.emplace(*doc, docs.size());
        docs.emplace_back();
        docs.back().entry = *doc;
    }
    // One walk over the rows: each is made only for as long as it is looked at.
    for (const DocInfo* row : browser.GetRowList().Rows())
        if (const auto found = byPath.find(row->entry); found != byPath.end())
            docs[found->second] = *row;
    return docs;
}

}  // namespace

void DocManagerImpl::EditSelectedInfos()
{
    const std::vector<DocInfo> docs = SelectedInfos(*browser);
    if (docs.empty())
        return;
    std::string reason;
    if (manager.WriteDocInfo(docs.front().entry, DocInfoEdit{}, true, reason) == DocWriteResult::NotSupported) {
        DocInfoBox(&manager, DialogText(DLG_BATCH_INFO, BATCH_UNSUPPORTED));
        return;
    }
    std::array<QString, EDIT_FIELD_COUNT> captions;
    for (size_t f = 0; f < EDIT_FIELD_COUNT; ++f)
        captions[f] = QString::fromStdString(browser->GetColumnTitle(EDIT_FIELD_COLUMNS[f]));

    DocBatchInfoDialog fields(&manager, docs, captions);
    if (fields.exec() != QDialog::Accepted)
        return;
    const DocInfoEdit edit = fields.GetEdit();
    if (edit.Empty())
        return;

    std::vector<std::string> refusals(docs.size());
    for (size_t i = 0; i < docs.size(); ++i)
        if (manager.WriteDocInfo(docs[i].entry, edit, true, refusals[i]) == DocWriteResult::Written)
            refusals[i].clear();
    DocBatchPreviewDialog preview(&manager, docs, edit, refusals, captions);
    if (preview.exec() != QDialog::Accepted)
        return;

    fileundo::Step step;
    QStringList failures;
    {
        ScopedWaitCursor wait;
        for (size_t i = 0; i < docs.size(); ++i) {
            const std::string& path = docs[i].entry;
            std::string why = refusals[i];
            if (why.empty()) {
                const std::string before = undo.KeepCopy(path);
                if (manager.WriteDocInfo(path, edit, false, why) == DocWriteResult::Written) {
                    if (const auto stamp = fileundo::StampOf(path); stamp && !before.empty())
                        step.actions.push_back(
                            {fileundo::ActionKind::Content, path, {}, *stamp, before, undo.KeepCopy(path)});
                    continue;
                }
                if (!before.empty())
                    fsutil::Remove(before);
            }
            failures << QString::fromStdString(fsutil::FileName(path) + ": " + why);
        }
    }
    undo.Push(std::move(step));
    if (!failures.isEmpty())
        DocInfoBox(&manager, DialogText(DLG_BATCH_INFO, BATCH_FAILED), failures.join(QLatin1Char('\n')));
    std::vector<std::string> paths;
    for (const DocInfo& doc : docs)
        paths.push_back(doc.entry);
    CollectFiles();
    browser->SelectPaths(paths);
}
