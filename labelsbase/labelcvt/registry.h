// The shared converters, one a label type, and the factory of private ones.
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_cvt.h"

// The shared converter of a type, never to be deleted. Types without one of their own have the invalid converter;
// values out of range too, with an assertion message. The first call, from any thread, builds all converters, and
// with that fixes the host's 50p and 60p timecode settings for the life of the process.
[[nodiscard]] LABELSBASE_API label_cvt* get_static_label_cvt(label_t type);

// The type whose shared converter has this name, in exact case; null_label_t when there is none.
[[nodiscard]] LABELSBASE_API label_t get_label_type(char const* name);

// A converter of one's own, to be deleted by the caller. Types without one get a new invalid converter.
[[nodiscard]] LABELSBASE_API label_cvt* make_any_label_cvt(label_t type);
