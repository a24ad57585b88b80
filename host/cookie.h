// The host's identifier of a piece of material.
#pragma once

#include <cstdint>

#include "host/language.h"

// An identifier of 128 bits. The library copies it and never looks inside.
struct Cookie {
  std::uint64_t high = 0;  // bits 127 to 64
  std::uint64_t low = 0;   // bits 63 to 0

  // Compares all 128 bits.
  friend bool operator==(Cookie const&, Cookie const&) = default;
};

// A cookie that identifies no material. Must be initialised by the compiler (`constinit`), since the library may
// read it while static objects are built.
extern Cookie const invalid_cookie;
