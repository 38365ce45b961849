#include "docmgr/records/rowstore.h"

#include <cstring>

namespace {

// Large enough that a million rows take a few hundred blocks; a row larger than a block
// gets one of its own.
constexpr size_t BLOCK_BYTES = size_t(1) << 20;

// Lengths in front of the texts, 7 bits a byte: one byte for every text a record can hold.
size_t LengthBytes(size_t length)
{
    size_t bytes = 1;
    while (length >= 0x80) {
        length >>= 7;
        ++bytes;
    }
    return bytes;
}

char* PutLength(char* out, size_t length)
{
    while (length >= 0x80) {
        *out++ = static_cast<char>(0x80 | (length & 0x7F));
        length >>= 7;
    }
    *out++ = static_cast<char>(length);
    return out;
}

const char* GetLength(const char* in, size_t& length)
{
    length = 0;
    for (unsigned shift = 0;; shift += 7) {
        const auto byte = static_cast<unsigned char>(*in++);
        length |= size_t(byte & 0x7F) << shift;
        if (byte < 0x80)
            return in;
    }
}

}  // namespace

std::string_view FolderPart(std::string_view entry)
{
    const size_t slash = entry.rfind('/');
    return slash == std::string_view::npos ? std::string_view() : entry.substr(0, slash + 1);
}

RowStore::RowStore() = default;
RowStore::~RowStore() = default;

char* RowStore::Room(size_t bytes, uint64_t& at)
{
    if (blocks_.empty() || used_ + bytes > BLOCK_BYTES) {
        blocks_.emplace_back(new char[std::max(bytes, BLOCK_BYTES)]);
        used_ = 0;
    }
    at = uint64_t(blocks_.size() - 1) << 32 | used_;
    char* room = blocks_.back().get() + used_;
    used_ += bytes;
    // A row of its own block leaves no room behind it.
    if (bytes > BLOCK_BYTES)
        used_ = BLOCK_BYTES;
    return room;
}

RowStore::Id RowStore::Add(const Fields& fields)
{
    size_t bytes = 0;
    for (std::string_view text : fields.texts)
        bytes += LengthBytes(text.size()) + text.size();
    Slot slot{};
    char* out = Room(bytes, slot.text);
    for (std::string_view text : fields.texts) {
        out = PutLength(out, text.size());
        if (!text.empty())
            std::memcpy(out, text.data(), text.size());
        out += text.size();
    }
    if (folders_.empty() || folders_.back() != fields.folder)
        folders_.emplace_back(fields.folder);
    slot.folder = uint32_t(folders_.size() - 1);
    slot.size = fields.size;
    for (int i = 0; i < 3; ++i) {
        slot.dates[i] = fields.dates[i];
        slot.times[i] = fields.times[i];
    }
    slots_.push_back(slot);
    return Id(slots_.size() - 1);
}

RowStore::Id RowStore::Add(const DocInfo& info)
{
    Fields fields;
    fields.folder = FolderPart(info.entry);
    const std::string_view texts[TEXT_COUNT] = {std::string_view(info.entry).substr(fields.folder.size()),
                                                info.title,
                                                info.topic,
                                                info.author,
                                                info.modifiedBy,
                                                info.printedBy,
                                                info.comment,
                                                info.keywords,
                                                info.info[0],
                                                info.info[1],
                                                info.info[2],
                                                info.info[3]};
    std::copy(std::begin(texts), std::end(texts), fields.texts);
    fields.size = info.size;
    const Date* dates[3] = {&info.createdDate, &info.modifiedDate, &info.printedDate};
    const Time* times[3] = {&info.createdTime, &info.modifiedTime, &info.printedTime};
    for (int i = 0; i < 3; ++i) {
        fields.dates[i] = dates[i]->GetDate();
        fields.times[i] = times[i]->GetTime();
    }
    return Add(fields);
}

void RowStore::Clear()
{
    std::vector<Slot>().swap(slots_);
    std::vector<std::unique_ptr<char[]>>().swap(blocks_);
    std::vector<std::string>().swap(folders_);
    used_ = 0;
}

std::string_view RowStore::TextOf(Id row, Text text) const
{
    const uint64_t at = slots_[row].text;
    const char* in = blocks_[size_t(at >> 32)].get() + (at & 0xFFFFFFFF);
    size_t length = 0;
    for (int i = 0;; ++i) {
        in = GetLength(in, length);
        if (i == text)
            return {in, length};
        in += length;
    }
}

std::string RowStore::EntryOf(Id row) const
{
    std::string entry(FolderOf(row));
    entry += TextOf(row, NAME);
    return entry;
}

void RowStore::Fill(Id row, DocInfo& out) const
{
    const Slot& slot = slots_[row];
    const char* in = blocks_[size_t(slot.text >> 32)].get() + (slot.text & 0xFFFFFFFF);
    std::string* texts[TEXT_COUNT] = {&out.entry,      &out.title,     &out.topic,   &out.author,
                                      &out.modifiedBy, &out.printedBy, &out.comment, &out.keywords,
                                      &out.info[0],    &out.info[1],   &out.info[2], &out.info[3]};
    for (int i = 0; i < TEXT_COUNT; ++i) {
        size_t length = 0;
        in = GetLength(in, length);
        if (i == NAME) {
            out.entry.assign(folders_[slot.folder]);
            out.entry.append(in, length);
        } else {
            texts[i]->assign(in, length);
        }
        in += length;
    }
    out.size = slot.size;
    Date* dates[3] = {&out.createdDate, &out.modifiedDate, &out.printedDate};
    Time* times[3] = {&out.createdTime, &out.modifiedTime, &out.printedTime};
    for (int i = 0; i < 3; ++i) {
        *dates[i] = Date(slot.dates[i]);
        *times[i] = Time(slot.times[i]);
    }
}
