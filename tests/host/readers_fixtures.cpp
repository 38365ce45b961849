#include "tests/host/readers_fixtures.h"

#include <zip.h>

#include <gtest/gtest.h>

#include "host/readers/qpdfapi.h"
#include "host/readers/ziparchive.h"

#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFWriter.hh>

namespace readertest {

SampleDoc FullSample()
{
    return {"Übersicht der Café-Umsätze",
            "Finanzen",
            "Zoë Martin",
            "José García",
            {"café", "budget", "2019"},
            "Zahlen <geprüft> & freigegeben",
            QDateTime(QDate(2019, 5, 6), QTime(7, 8, 9)),
            QDateTime(QDate(2020, 11, 12), QTime(13, 14, 15)),
            QDateTime(QDate(2020, 12, 1), QTime(16, 17, 18)),
            "Jörg Müller",
            {{"Project", "Crème"}, {"Client", "ACME"}, {"Status", "open"}, {"Reviewer", "Li Wei"}},
            "First paragraph.\nZweiter Absatz mit Ümlauten."};
}

void WriteZip(const std::string& path, const std::vector<std::pair<std::string, std::string>>& entries)
{
    ZipArchive zip;
    ASSERT_TRUE(zip.Open(path, ZipArchive::Mode::Create)) << zip.Error();
    for (const auto& [name, data] : entries)
        ASSERT_TRUE(zip.Put(name, data, name != "mimetype")) << zip.Error();
    ASSERT_TRUE(zip.Commit()) << zip.Error();
}

void WriteOdfMeta(const std::string& path, const std::string& metaChildren)
{
    const std::string meta = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>"
                             "<office:document-meta xmlns:office=\"urn:oasis:names:tc:opendocument:xmlns:office:1.0\""
                             " xmlns:meta=\"urn:oasis:names:tc:opendocument:xmlns:meta:1.0\""
                             " xmlns:dc=\"http://purl.org/dc/elements/1.1/\" office:version=\"1.2\"><office:meta>" +
                             metaChildren + "</office:meta></office:document-meta>";
    WriteZip(path, {{"mimetype", "application/vnd.oasis.opendocument.text"}, {"meta.xml", meta}});
}

void WritePdf(const std::string& path, const std::string& infoDict, const char* userPassword, const char* ownerPassword,
              const std::string& xmpPacket)
{
    QPDF pdf;
    pdf.emptyPDF();
    QPDFObjectHandle page = pdf.makeIndirectObject(QPDFObjectHandle::parse("<< /Type /Page /MediaBox [0 0 200 200] >>"));
    QPDFPageDocumentHelper(pdf).addPage(page, false);
    pdf.getTrailer().replaceKey("/Info", pdf.makeIndirectObject(QPDFObjectHandle::parse(infoDict)));
    if (!xmpPacket.empty())
        pdf.getRoot().replaceKey("/Metadata", QPDFObjectHandle::newStream(&pdf, xmpPacket));
    QPDFWriter writer(pdf, path.c_str());
    if (userPassword || ownerPassword)
        writer.setR6EncryptionParameters(userPassword ? userPassword : "", ownerPassword ? ownerPassword : "owner", true, true, true, true,
                                         true, true, qpdf_r3p_full, true);
    writer.write();
}

std::vector<RawEntry> RawEntries(const std::string& path)
{
    std::vector<RawEntry> entries;
    int code = 0;
    zip_t* zip = zip_open(path.c_str(), ZIP_RDONLY, &code);
    if (!zip) {
        ADD_FAILURE() << "cannot open " << path;
        return entries;
    }
    for (zip_int64_t i = 0; i < zip_get_num_entries(zip, 0); ++i) {
        zip_stat_t st;
        zip_stat_index(zip, zip_uint64_t(i), 0, &st);
        RawEntry entry{st.name, st.comp_method, st.crc, {}};
        entry.raw.resize(size_t(st.comp_size));
        zip_file_t* file = zip_fopen_index(zip, zip_uint64_t(i), ZIP_FL_COMPRESSED);
        if (file) {
            const zip_int64_t got = zip_fread(file, entry.raw.data(), entry.raw.size());
            entry.raw.resize(got < 0 ? 0 : size_t(got));
            zip_fclose(file);
        }
        entries.push_back(std::move(entry));
    }
    zip_discard(zip);
    return entries;
}

}  // namespace readertest
