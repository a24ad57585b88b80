// Private: the invalid converter that all points and the registry share.
#pragma once

#include "labelsbase/labelcvt/label_cvt.h"

namespace labelsbase {

// The compiler builds it and nothing destroys it, so static objects of host and library may use it in any order.
union invalid_converter_storage {
  dummy_label converter;

  constexpr invalid_converter_storage() noexcept : converter{} {}
  ~invalid_converter_storage() {}  // NOLINT(modernize-use-equals-default): a default one would be deleted
};

extern constinit invalid_converter_storage invalid_converter;

}  // namespace labelsbase
