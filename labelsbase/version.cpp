#include "labelsbase/version.h"

char const* labelsBaseDllVersionStr() noexcept { return "14.5.0.0"; }
