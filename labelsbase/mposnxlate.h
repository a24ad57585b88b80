// Translation of positions: its parameters, and clock and cel time. The whole module.
#pragma once

#include "labelsbase/mposnxlate/clock_cel.h"
#include "labelsbase/mposnxlate/translation_params.h"
