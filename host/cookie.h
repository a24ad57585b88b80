// The host's identity of a piece of material.
#pragma once

#include <cstdint>

struct Cookie {
  std::uint64_t high = 0;
  std::uint64_t low = 0;

  friend bool operator==(Cookie const&, Cookie const&) = default;
};

// The identity that no material has.
extern Cookie const invalid_cookie;
