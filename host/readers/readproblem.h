#pragma once
// Why a document's information could not be read, so that a user can tell an unreadable
// document from one that carries no information.
#include <string_view>

enum class ReadProblem {
    None,
    Encrypted,      // password-protected
    Damaged,        // broken or truncated, or not of the kind its name says
    NotZip,         // an ODF or OOXML name, but the file is not a zip package
    NoInformation,  // read, but it holds none of the fields
    NoReader,       // the reader for its kind could not be loaded
};

// "encrypted", "damaged", "not a zip", "no information", "no reader"; empty for None.
std::string_view ProblemText(ReadProblem problem);
