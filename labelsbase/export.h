// What the shared library shows to the outside; everything else in it is hidden.
#pragma once

#include "host/language.h"

// A class, function or object that the shared library shows.
#define LABELSBASE_API __attribute__((visibility("default")))

// A private member of a class that is shown.
#define LABELSBASE_LOCAL __attribute__((visibility("hidden")))
