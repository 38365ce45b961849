#include "host/readers/ziparchive.h"

#include <zip.h>

#include <cstring>

#include "host/readers/filehead.h"

namespace {

std::string OpenErrorText(int code)
{
    zip_error_t err;
    zip_error_init_with_code(&err, code);
    std::string text = zip_error_strerror(&err);
    zip_error_fini(&err);
    return text;
}

}  // namespace

ZipArchive::~ZipArchive()
{
    Close();
}

void ZipArchive::Close()
{
    if (zip_)
        zip_discard(zip_);
    zip_ = nullptr;
    pending_.clear();
}

bool ZipArchive::Open(const std::string& path, Mode mode)
{
    Close();
    error_.clear();
    int flags = ZIP_RDONLY;
    if (mode == Mode::Modify)
        flags = 0;
    else if (mode == Mode::Create)
        flags = ZIP_CREATE | ZIP_TRUNCATE;
    int code = 0;
    zip_ = zip_open(path.c_str(), flags, &code);
    if (!zip_) {
        error_ = OpenErrorText(code);
        return false;
    }
    return true;
}

bool ZipArchive::Open(const DocBytes& doc)
{
    if (!doc.whole)
        return Open(doc.path, Mode::Read);
    Close();
    error_.clear();
    zip_error_t error;
    zip_error_init(&error);
    zip_source_t* source = zip_source_buffer_create(doc.bytes.data(), doc.bytes.size(), 0, &error);
    if (source)
        zip_ = zip_open_from_source(source, ZIP_RDONLY, &error);
    if (!zip_) {
        error_ = zip_error_strerror(&error);
        if (source)
            zip_source_free(source);
    }
    zip_error_fini(&error);
    return zip_ != nullptr;
}

bool ZipArchive::Has(const std::string& name) const
{
    return zip_ && zip_name_locate(zip_, name.c_str(), 0) >= 0;
}

bool ZipArchive::HasPrefix(const std::string& prefix) const
{
    if (!zip_)
        return false;
    const zip_int64_t count = zip_get_num_entries(zip_, 0);
    for (zip_int64_t i = 0; i < count; ++i) {
        const char* name = zip_get_name(zip_, zip_uint64_t(i), 0);
        if (name && std::strncmp(name, prefix.c_str(), prefix.size()) == 0)
            return true;
    }
    return false;
}

ZipRead ZipArchive::Read(const std::string& name, size_t cap, std::string& out) const
{
    out.clear();
    if (!zip_)
        return ZipRead::Damaged;
    const zip_int64_t index = zip_name_locate(zip_, name.c_str(), 0);
    if (index < 0)
        return ZipRead::Missing;
    zip_stat_t st;
    if (zip_stat_index(zip_, zip_uint64_t(index), 0, &st) == 0 && (st.valid & ZIP_STAT_ENCRYPTION_METHOD) &&
        st.encryption_method != ZIP_EM_NONE)
        return ZipRead::Encrypted;
    zip_file_t* file = zip_fopen_index(zip_, zip_uint64_t(index), 0);
    if (!file) {
        const int code = zip_error_code_zip(zip_get_error(zip_));
        return code == ZIP_ER_NOPASSWD || code == ZIP_ER_WRONGPASSWD || code == ZIP_ER_ENCRNOTSUPP ? ZipRead::Encrypted
                                                                                                   : ZipRead::Damaged;
    }
    // Read in chunks and stop at the cap, whatever size the directory claims.
    ZipRead result = ZipRead::Ok;
    char chunk[64 * 1024];
    for (;;) {
        const zip_int64_t got = zip_fread(file, chunk, sizeof chunk);
        if (got < 0) {
            result = ZipRead::Damaged;
            break;
        }
        if (got == 0)
            break;
        if (out.size() + size_t(got) > cap) {
            out.append(chunk, cap - out.size());
            result = ZipRead::TooLarge;
            break;
        }
        out.append(chunk, size_t(got));
    }
    zip_fclose(file);
    return result;
}

bool ZipArchive::Put(const std::string& name, std::string data, bool compress)
{
    if (!zip_)
        return false;
    const std::string& kept = pending_.emplace_back(std::move(data));
    zip_source_t* source = zip_source_buffer(zip_, kept.data(), kept.size(), 0);
    if (!source) {
        error_ = zip_strerror(zip_);
        return false;
    }
    zip_int64_t index = zip_name_locate(zip_, name.c_str(), 0);
    if (index >= 0) {
        if (zip_file_replace(zip_, zip_uint64_t(index), source, ZIP_FL_ENC_UTF_8) < 0) {
            zip_source_free(source);
            error_ = zip_strerror(zip_);
            return false;
        }
    } else {
        index = zip_file_add(zip_, name.c_str(), source, ZIP_FL_ENC_UTF_8);
        if (index < 0) {
            zip_source_free(source);
            error_ = zip_strerror(zip_);
            return false;
        }
    }
    zip_set_file_compression(zip_, zip_uint64_t(index), compress ? ZIP_CM_DEFLATE : ZIP_CM_STORE, 0);
    if (entryTime_ > 0)
        zip_file_set_mtime(zip_, zip_uint64_t(index), time_t(entryTime_), 0);
    return true;
}

bool ZipArchive::Commit()
{
    if (!zip_)
        return false;
    if (zip_close(zip_) < 0) {
        error_ = zip_strerror(zip_);
        Close();
        return false;
    }
    zip_ = nullptr;
    pending_.clear();
    return true;
}
