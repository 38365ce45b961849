#pragma once
// Where an OPC (OOXML) package keeps its property parts: named by the package
// relationships, with the usual names when the package does not say.
#include <string>

#include <pugixml.hpp>

class ZipArchive;

struct OpcPropertyParts {
    std::string core = "docProps/core.xml";
    std::string custom = "docProps/custom.xml";
    bool coreListed = false;    // the relationships name a core part
    bool customListed = false;  // ... and a custom part
};

OpcPropertyParts LocatePropertyParts(const ZipArchive& zip);
// Zip entry name of a package-relative relationship target ("/docProps/core.xml").
std::string PartNameOfTarget(const std::string& target);
