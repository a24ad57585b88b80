// Label points and labels: the whole module.
#pragma once

#include "labelsbase/labelcvt.h"
#include "labelsbase/labels/edit_label.h"
#include "labelsbase/labels/label.h"
