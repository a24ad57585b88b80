// The shared converters, one for each label type, and the factory of private ones.
//
//   label_cvt* shared = get_static_label_cvt(pal_label_t);       // never deleted
//   get_label_type("tc_60_label")                                // tc_60_label_t
//   std::unique_ptr<label_cvt> own{make_any_label_cvt(pal_label_t)};
#pragma once

#include "labelsbase/export.h"
#include "labelsbase/labelcvt/label_cvt.h"

// Returns the shared converter of a type, which is never deleted. Types without labels have the invalid converter,
// and so have values out of range, after an assertion message.
//
// The first call, from any thread, builds all converters. That fixes the host's 50p and 60p timecode settings for
// the life of the process. A type for which the host has no memory then keeps the invalid converter. While the
// converters are being built, a host that asks for one from its settings gets the invalid converter.
[[nodiscard]] LABELSBASE_API label_cvt* get_static_label_cvt(label_t type);

// Returns the type whose shared converter has this name, in exact case, or null_label_t for any other name.
[[nodiscard]] LABELSBASE_API label_t get_label_type(char const* name);

// Returns a new converter, which the caller deletes. Types without labels get a new invalid converter. Returns
// null if the host has no memory.
[[nodiscard]] LABELSBASE_API label_cvt* make_any_label_cvt(label_t type);
