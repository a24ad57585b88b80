// Media, medium-roll identifiers and rolls: the whole module.
#pragma once

#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/MediumRoll/medium_roll.h"
