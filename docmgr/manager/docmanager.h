#pragma once
// The document manager module's public interface: the host derives from DocManager,
// supplies CreateDocInfo and ChangeDocInfo, creates a DocManagerDll around its use,
// runs Execute and walks the chosen documents with GetFirstDoc / GetNextDoc.
#include <QDialog>
#include <array>
#include <memory>
#include <string>
#include <vector>

#include <docmgr/docmgr_export.h>

#include "docmgr/records/docinfo.h"
#include "docmgr/records/docinfoedit.h"
#include "docmgr/tools/config.h"

class DocManagerImpl;
class ResModule;

// What became of WriteDocInfo.
enum class DocWriteResult {
    Written,       // the file holds the new values (with checkOnly: it would be written)
    Refused,       // the file was left as it was; the reason says why
    NotSupported,  // the host writes no document information
};

// Result of Execute when the host is to print the chosen documents; 0 is closed, 1 open.
constexpr int RET_PRINTDOCS = 10;

class DOCMGR_EXPORT DocManager : public QDialog {
    Q_OBJECT
public:
    // `name` is kept but the configuration file is "dmgdump.cfg" in the current directory.
    DocManager(QWidget* parent, const std::string& name, const std::string& startPaths, bool openMode);
    // The settings are read from and written to the host's `config` (not owned).
    DocManager(QWidget* parent, Config* config, const std::string& startPaths, bool openMode);
    ~DocManager() override;

    // Host: a new DocInfo for `file`, or null when it is not a document.
    virtual std::unique_ptr<DocInfo> CreateDocInfo(const std::string& file) = 0;
    // Host: lets the user edit the information of `file`; true when it changed.
    virtual bool ChangeDocInfo(QWidget* parent, const std::string& file) = 0;
    // Host, optional: the files whose information is asked for next, in that order (one
    // directory's new and changed documents). A host may start reading them on other
    // threads; CreateDocInfo is still called for each, on this thread, as before.
    virtual void ReadAhead(const std::vector<std::string>& files);
    // Host, optional: writes the fields that `edit` sets into `file`, keeping the others;
    // with `checkOnly` only tells whether it could (a read-only kind or file is refused
    // without writing). Refused leaves the file byte for byte and puts why in `reason`.
    // The default answers NotSupported, and the edit of several documents says so.
    virtual DocWriteResult WriteDocInfo(const std::string& file, const DocInfoEdit& edit, bool checkOnly,
                                        std::string& reason);

    // Name of the per-directory index file; set it before the first Execute.
    void SetDirFileName(const std::string& name);
    const std::string& GetDirFileName() const;
    // ";"-separated file patterns of a new configuration; set them before the first Execute.
    void SetDefExtensions(const std::string& extensions);
    const std::string& GetDefExtensions() const;

    // First call: reads the settings and collects; later calls collect again. Then runs
    // the dialog modally: 0 closed, 1 open, RET_PRINTDOCS print the chosen documents.
    short Execute();
    // The chosen documents' absolute paths one by one, in list order; null after the last.
    const std::string* GetFirstDoc();
    const std::string* GetNextDoc();
    // The user asked for read-only copies (open mode only).
    bool IsReadOnly() const;
    // One-line text of the whole configuration ("@DocManager[2.1]...").
    std::string GetConfig() const;
    bool IsAvailable() const { return true; }

    // Escape and the window's close box act as the close button.
    void reject() override;

protected:
    // For ChangeDocInfo: the captions the group in force gives the four information
    // fields (empty before the first Execute).
    std::array<std::string, 4> GetInfoLabels() const;

private:
    // The controls, the settings, and the dialog's steps and handlers; declared in the
    // module's private header.
    friend class DocManagerImpl;
    std::unique_ptr<DocManagerImpl> d;
};

// Brackets the use of the module: creates the resource manager of the module's texts
// (application-data slot 36) in the system's language, and deletes it again.
class DOCMGR_EXPORT DocManagerDll {
public:
    DocManagerDll();
    ~DocManagerDll();
    DocManagerDll(const DocManagerDll&) = delete;
    DocManagerDll& operator=(const DocManagerDll&) = delete;

private:
    std::unique_ptr<ResModule> module_;
};
