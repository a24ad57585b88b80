#include "host/cookie.h"

// Unlike a default Cookie, so that a cookie that was never set shows.
constinit Cookie const invalid_cookie{~std::uint64_t{0}, ~std::uint64_t{0}};
