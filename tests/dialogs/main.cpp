#include "tests/support/widgetmain.h"
