// Label types, templates, converters and their registry: the whole module.
#pragma once

#include "labelsbase/labelcvt/feet.h"
#include "labelsbase/labelcvt/film_frames.h"
#include "labelsbase/labelcvt/ink.h"
#include "labelsbase/labelcvt/keycode.h"
#include "labelsbase/labelcvt/label_cvt.h"
#include "labelsbase/labelcvt/label_point.h"
#include "labelsbase/labelcvt/label_template.h"
#include "labelsbase/labelcvt/label_types.h"
#include "labelsbase/labelcvt/prefix_label.h"
#include "labelsbase/labelcvt/registry.h"
#include "labelsbase/labelcvt/timecode.h"
#include "labelsbase/samples.h"
#include "labelsbase/version.h"
