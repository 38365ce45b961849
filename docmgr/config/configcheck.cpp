#include "docmgr/config/configcheck.h"

#include "docmgr/config/configkeys.h"
#include "docmgr/tools/config.h"

bool HoldsDocConfig(const Config& config)
{
    return config.IsBlank() || config.HasGroup(configkeys::General) || config.HasGroup(configkeys::Groups) ||
           config.HasGroup("0");
}
