// The label choices of the user interface: the whole module.
#pragma once

#include "labelsbase/uiflabels/label_choices.h"
