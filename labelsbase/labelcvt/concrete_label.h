// What makes a class of a row in the table of label types.
#pragma once

#include "labelsbase/labelcvt/label_types.h"

namespace labelsbase {

// A converter of type `kind` with the behaviour of `Family`. The named classes derive from it, one line each.
template <label_t kind_, class Family>
class concrete_label : public Family {
 public:
  static constexpr label_t kind = kind_;

  using Family::Family;

  char const* type_str() const override { return label_type_name(kind); }
  label_t type() const override { return kind; }
  UserLabelType UserType() const override { return user_label_type(kind); }
};

}  // namespace labelsbase
