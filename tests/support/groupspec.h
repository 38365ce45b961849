#pragma once
// One group of a test configuration. The defaults make a group that lists what its paths
// hold; a test names only what it is about.
#include <cstdint>
#include <string>
#include <vector>

struct GroupSpec {
    std::string name{};
    std::string section = "Tests";
    std::string paths{};     // ";"-separated
    std::string guis = "1";  // one flag per path
    std::string filterTitle{};
    std::string filterFiles = "*.odt;*.docx;*.pdf";
    uint16_t sortColumn = 65535;
    bool ascending = true;
    std::vector<uint16_t> columns{};  // empty: 1..20
};
