// Folders listed ahead on a thread of their own come back whole, each to the one who asks
// for it; a folder not begun is left to the asker.
#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <optional>
#include <string>
#include <vector>

#include "docmgr/tools/fsutil.h"
#include "docmgr/tools/listahead.h"
#include "tests/support/tempdir.h"

namespace {

std::vector<std::string> Names(const std::vector<fsutil::DirItem>& items)
{
    std::vector<std::string> names;
    for (const fsutil::DirItem& item : items)
        names.push_back(item.name);
    std::sort(names.begin(), names.end());
    return names;
}

}  // namespace

TEST(ListAhead, ListingsAreThoseOfTheFolderAndAFolderNotBegunIsLeftToTheAsker)
{
    TempDir tmp;
    const std::vector<std::string> folders = {"a", "b", "c", "d"};
    for (const std::string& folder : folders) {
        tmp.MakeFile(folder + "/" + folder + "1.odt", "1");
        tmp.MakeFile(folder + "/" + folder + "2.txt", "22");
        tmp.MakeFile(folder + "/sub/deeper.odt", "333");
    }
    ListAhead ahead("*.odt");
    const int64_t before = ListAhead::FileClockNowNs();
    ahead.Want({tmp.PathOf("c"), tmp.PathOf("d")});
    ahead.Want({tmp.PathOf("a"), tmp.PathOf("b")});  // read before c and d
    for (const std::string folder : {"a", "b", "c"}) {
        std::optional<ListAhead::Listing> listing = ahead.Take(tmp.PathOf(folder));
        if (!listing) {
            // Not begun yet: the asker lists it itself, and nobody lists it a second time.
            EXPECT_FALSE(ahead.Take(tmp.PathOf(folder)).has_value());
            continue;
        }
        EXPECT_EQ(Names(listing->files), std::vector<std::string>{folder + "1.odt"}) << folder;
        EXPECT_EQ(Names(listing->subdirs), std::vector<std::string>{"sub"}) << "whatever the pattern";
        EXPECT_EQ(listing->status.entries, 3u) << "every entry counts, whatever its name or kind";
        EXPECT_EQ(listing->status.error, 0);
        EXPECT_GE(listing->startedNs, before);
    }
    EXPECT_FALSE(ahead.Take(tmp.PathOf("nowhere")).has_value()) << "never asked for";

    // A folder that cannot be listed tells why, as a listing of one's own would.
    ahead.Want({tmp.PathOf("gone")});
    if (const std::optional<ListAhead::Listing> gone = ahead.Take(tmp.PathOf("gone"))) {
        EXPECT_EQ(gone->status.error, ENOENT);
    }
}
