#include "docmgr/manager/docmanager.h"
#include "docmgr/tools/resmgr.h"

// The resource manager of the module's texts ("qfw364") in the system's language sits in
// application-data slot 36 while this object lives.
DocManagerDll::DocManagerDll() : module_(std::make_unique<ResModule>(SystemLanguage())) {}

DocManagerDll::~DocManagerDll() = default;
