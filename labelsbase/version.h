// The version of the library.
#pragma once

#include "labelsbase/export.h"

// "14.5.0.0": the interface version that a host asks for before it uses the library.
LABELSBASE_API char const* labelsBaseDllVersionStr() noexcept;
