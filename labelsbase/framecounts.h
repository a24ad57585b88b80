// Film and video frames, counted from 1: across a pulldown, and as label texts. Plain functions that return a
// status, or 0 on failure. The whole module.
#pragma once

#include "labelsbase/framecounts/count_text.h"
#include "labelsbase/framecounts/count_types.h"
#include "labelsbase/framecounts/label_strings.h"
#include "labelsbase/framecounts/pulldown.h"
#include "labelsbase/framecounts/transfers.h"
