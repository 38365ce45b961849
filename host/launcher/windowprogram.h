#pragma once
// Where the window program lies: beside this program in the build tree, or in the
// installed prefix's libexec/docmanager.
#include <string>

std::string WindowProgram();
