#include "host/cookie.h"

// Differs from a default Cookie, so that a cookie that was never set can be told from it.
constinit Cookie const invalid_cookie{~std::uint64_t{0}, ~std::uint64_t{0}};
