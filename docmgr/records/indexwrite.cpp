// Writing a directory's index: a whole new one, or the records of changed and new
// documents over and after the old ones; either way through a new file renamed into place.
#include <algorithm>

#include "docmgr/records/docrecord.h"
#include "docmgr/records/indexpass.h"

using namespace indexlayout;

namespace {

std::string IndexHeader()
{
    std::string header(MAGIC, sizeof MAGIC);
    header += char(VERSION & 0xFF);
    header += char(VERSION >> 8);
    const uint32_t charSet = GetSystemCharSet();
    for (int shift = 0; shift < 32; shift += 8)
        header += char((charSet >> shift) & 0xFF);
    return header;
}

// Index bytes handed on in blocks of about 1 MiB rather than as one image, which would
// cost as much memory again as the rows.
class IndexBuffer {
public:
    explicit IndexBuffer(const replacefile::PutPiece& put) : put_(put) { block_.reserve(BLOCK + DocRecord::SIZE); }

    void Append(std::string_view bytes)
    {
        block_ += bytes;
        if (block_.size() >= BLOCK)
            Flush();
    }
    void Append(const DocInfo& info)
    {
        char bytes[DocRecord::SIZE];
        DocRecord(info).ToBytes(bytes);
        Append(std::string_view(bytes, sizeof bytes));
    }
    void Flush()
    {
        put_(block_);
        block_.clear();
    }

private:
    static constexpr size_t BLOCK = 1440 * DocRecord::SIZE;
    const replacefile::PutPiece& put_;
    std::string block_;
};

}  // namespace

bool DocRowList::WriteDirFileEntry(KxFileStream& stream, const DocInfo* info)
{
    char bytes[DocRecord::SIZE];
    DocRecord(*info).ToBytes(bytes);
    return stream.Write(bytes, sizeof bytes) == sizeof bytes;
}

void DocRowList::RewriteIndex(DirPass& pass)
{
    if (!pass.mayWrite)
        return;
    // Written in blocks of records rather than as one image, which would cost as much
    // memory again as the rows.
    std::vector<bool> privateEntry;  // by row of `working`; the rows hold full paths
    if (std::find(pass.isPrivate.begin(), pass.isPrivate.end(), true) != pass.isPrivate.end()) {
        std::unordered_map<std::string_view, bool> byName;
        for (size_t i = 0; i < pass.files.size(); ++i)
            byName.emplace(pass.files[i].name, pass.isPrivate[i]);
        for (const RowStore::Id row : pass.working) {
            const auto found = byName.find(store_.TextOf(row, RowStore::NAME));
            privateEntry.push_back(found != byName.end() && found->second);
        }
    }
    const auto fill = [this, &pass, &privateEntry](const replacefile::PutPiece& put) {
        IndexBuffer out(put);
        out.Append(IndexHeader());
        DocInfo info;
        for (size_t row = 0; row < pass.working.size(); ++row) {
            // A longer name could not be matched with its file again.
            if (store_.TextOf(pass.working[row], RowStore::NAME).size() > DocRecord::NAME_LEN ||
                (!privateEntry.empty() && privateEntry[row]))
                continue;
            store_.Fill(pass.working[row], info);
            out.Append(info);
        }
        out.Flush();
        return true;
    };
    ReplaceIndex(pass, fill);
}

// The records of this listing written over their old ones and after the last one, as
// an update in place would leave them, but through a new file: a crash in the middle
// leaves the old index with its old date.
void DocRowList::WriteUpdates(DirPass& pass)
{
    if (pass.overwrites.empty() && pass.appends.empty())
        return;
    const auto fill = [this, &pass](const replacefile::PutPiece& put) {
        IndexBuffer out(put);
        DocInfo info;
        uint64_t copied = 0;
        // The old file's bytes, from the file that was read (not whatever its name holds).
        const auto copyUpTo = [&](uint64_t end) {
            for (std::string piece; copied < end; copied += piece.size()) {
                piece.resize(size_t(std::min<uint64_t>(end - copied, 1 << 20)));
                pass.stream.Seek(copied);
                piece.resize(pass.stream.Read(piece.data(), piece.size()));
                if (piece.empty())
                    return false;
                out.Append(piece);
            }
            return true;
        };
        for (const auto& [offset, row] : pass.overwrites) {
            if (!copyUpTo(offset))
                return false;
            store_.Fill(row, info);
            out.Append(info);
            copied = offset + DocRecord::SIZE;
        }
        if (!copyUpTo(pass.indexSize))
            return false;
        for (const RowStore::Id row : pass.appends) {
            store_.Fill(row, info);
            out.Append(info);
        }
        out.Flush();
        return true;
    };
    ReplaceIndex(pass, fill);
}

// A new file renamed over the old one, so a crash or a full disk leaves the old index
// or the new one, never a mixture. The lock on the old file is held until the new one
// is in place, where the file system lets a file that is open be replaced. The index is
// dated back to the listing, so that a document changed while it was read is read again
// next time, and made readable to whoever may read the folder.
void DocRowList::ReplaceIndex(DirPass& pass, const replacefile::Fill& fill)
{
    replacefile::Options options;
    options.mtimeNs = pass.listedAtNs;
    options.mode = int(pass.audience.IndexMode());
    options.uid = pass.audience.Owner();
    options.gid = pass.audience.Group();
    options.releaseTarget = [&pass] { pass.stream.Close(); };
    if (replacefile::ReplaceWith(pass.indexPath, fill, options) != 0)
        return;
    // What a rewrite killed before its rename left behind.
    const std::string temps = pass.indexName + std::string(replacefile::TEMP_INFIX) + "*";
    for (const fsutil::DirItem& item : fsutil::List(pass.dir, temps, fsutil::Kind::Files)) {
        if (replacefile::IsAbandonedTemp(pass.dir, item.name, pass.indexName))
            fsutil::Remove(fsutil::Join(pass.dir, item.name));
    }
}
