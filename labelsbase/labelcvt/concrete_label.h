// What makes a class of a row in the table of label types.
#pragma once

#include "labelsbase/labelcvt/label_facts.h"

namespace labelsbase {

// A converter of type `kind` with the behaviour of `Family`. The named classes derive from it, one line each.
template <label_t kind_, class Family>
class concrete_label : public Family {
 public:
  static constexpr label_t kind = kind_;  // the row of the class

  // Returns what the row says.
  char const* type_str() const override { return facts_of(kind).name; }
  label_t type() const override { return kind; }
  UserLabelType UserType() const override { return facts_of(kind).family; }

 protected:
  static_assert(facts_of(kind).has_labels(), "the row of this type says that it has no labels");

  using Family::Family;
};

}  // namespace labelsbase
