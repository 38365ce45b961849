#pragma once
// Reads back printed PDF files with poppler's command line tools (pdfinfo, pdftotext).
#include <string>
#include <vector>

namespace pdfwords {

// One word of a page with the top left corner of its box, in points.
struct Word {
    int page = 0;  // from 1
    double x = 0;
    double y = 0;
    std::string text;
};

// Whether pdfinfo and pdftotext can be run.
bool Available();
// A field of pdfinfo's report ("Pages", "Title"), trimmed; empty when absent.
std::string Info(const std::string& pdf, const std::string& field);
int PageCount(const std::string& pdf);
// Every word of the file, page by page, in reading order.
std::vector<Word> Words(const std::string& pdf);
// The words of `page` in lines from the top; a line's words left to right, joined by " ".
std::vector<std::string> Lines(const std::vector<Word>& words, int page);
// The first word on `page` whose text is `text`; null when there is none.
const Word* Find(const std::vector<Word>& words, int page, const std::string& text);

}  // namespace pdfwords
