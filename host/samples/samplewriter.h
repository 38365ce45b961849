#pragma once
// Valid sample documents with chosen information, for the demo, the tests and the
// benchmarks: ODF text (.odt) and flat ODF text (.fodt), Word (.docx), RTF and PDF (with
// an XMP packet that agrees with its Info dictionary).
#include <optional>
#include <string>
#include <vector>

#include <QDateTime>

#include "host/readers/metafields.h"

struct SampleDoc {
    std::string title, topic, author, modifiedBy;
    std::vector<std::string> keywords;
    std::string comment;
    QDateTime created, modified;
    std::optional<QDateTime> printed;  // absent: never printed
    std::string printedBy;
    InfoFields info;   // (name, value) pairs, in order
    std::string body;  // the text; "\n" separates paragraphs
};

// Each writes a complete file at `path`, replacing any file there; false with a message
// in `error` on failure. Fields a format cannot hold are left out: DOCX and RTF have no
// printedBy, PDF has no modifiedBy, printed stamp or comment.
bool WriteSampleOdt(const std::string& path, const SampleDoc& doc, std::string& error);
bool WriteSampleFodt(const std::string& path, const SampleDoc& doc, std::string& error);
bool WriteSampleRtf(const std::string& path, const SampleDoc& doc, std::string& error);
bool WriteSampleDocx(const std::string& path, const SampleDoc& doc, std::string& error);
bool WriteSamplePdf(const std::string& path, const SampleDoc& doc, std::string& error);
// Chooses the format by the extension of `path` (.odt, .fodt, .docx, .rtf, .pdf).
bool WriteSample(const std::string& path, const SampleDoc& doc, std::string& error);

// Paragraphs of a body text.
std::vector<std::string> SampleParagraphs(const std::string& body);
// The keywords as one ", "-separated text.
std::string JoinedKeywords(const SampleDoc& doc);
