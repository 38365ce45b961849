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
};

// "encrypted", "damaged", "not a zip", "no information"; empty for None.
std::string_view ProblemText(ReadProblem problem);
