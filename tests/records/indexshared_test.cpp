// The index of a folder that others read too: it holds nothing that some of them could
// not read in the files themselves, and all of them may read it.
#include <sys/stat.h>

#include "tests/records/indextestbase.h"

using indeximage::SampleRecord;
using Names = std::vector<std::string>;

TEST_F(IndexTest, PrivateDocumentsGetNoRecordAndEveryReaderOfTheFolderMayReadTheIndex)
{
    TempDir vault;  // a private folder elsewhere, and an open one
    TempDir open;
    chmod(open.Path().c_str(), 0755);
    const std::string hidden = vault.MakeFile("hidden.odt", "x", OLD);
    const std::string shared = open.MakeFile("shared.odt", "x", OLD);
    chmod(hidden.c_str(), 0644);
    chmod(shared.c_str(), 0644);
    chmod(Doc("open.odt").c_str(), 0644);
    chmod(Doc("secret.odt").c_str(), 0600);
    chmod(Doc("group.odt").c_str(), 0640);
    dir.MakeLink("hidden-link.odt", hidden);
    dir.MakeLink("shared-link.odt", shared);
    // A record an earlier listing left of a document that has become private since.
    WriteIndex(Image({SampleRecord("open.odt"), SampleRecord("secret.odt")}));

    const mode_t umaskBefore = umask(077);
    const struct {
        mode_t folder;
        mode_t index;
        Names recorded;
    } cases[] = {
        {0755, 0644, {"open.odt", "shared-link.odt"}},
        {0750, 0640, {"group.odt", "open.odt", "shared-link.odt"}},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.folder);
        chmod(dir.Path().c_str(), c.folder);
        source.ResetCalls();
        for (int pass = 0; pass < 2; ++pass)
            ReadDir();
        Names names = RowNames(), recorded;
        std::sort(names.begin(), names.end());
        EXPECT_EQ(names, (Names{"group.odt", "hidden-link.odt", "open.odt", "secret.odt", "shared-link.odt"}));
        const std::string index = Index();
        for (size_t at = indeximage::HEADER_SIZE; at + indeximage::RECORD_SIZE <= index.size(); at += indeximage::RECORD_SIZE)
            recorded.push_back(index.substr(at, index.find(' ', at) - at));
        std::sort(recorded.begin(), recorded.end());
        EXPECT_EQ(recorded, c.recorded);
        // What has no record is read from the file every time.
        EXPECT_EQ(source.CallsFor(dir.PathOf("secret.odt")), 2);
        EXPECT_EQ(source.CallsFor(dir.PathOf("hidden-link.odt")), 2);
        EXPECT_LE(source.CallsFor(dir.PathOf("shared-link.odt")), 1);
        struct stat st {};
        ASSERT_EQ(stat(dir.PathOf(INDEX).c_str(), &st), 0);
        EXPECT_EQ(st.st_mode & 0777, c.index);
    }
    umask(umaskBefore);
}
