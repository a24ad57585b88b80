// Label points and labels as values, and clock time.

#include "bench/work.h"
#include "labelsbase/labels.h"
#include "labelsbase/mposnxlate.h"

namespace bench {
namespace {

constexpr int day = 2'160'000;  // samples of 25 frame timecode

pass make_point() {
  return over(random_samples(day), [](int sample) {
    LabelPoint const point{pal_label_t, sample};
    compute(point);
    return 0;
  });
}

pass copy_point() {
  return over(random_samples(day), [point = LabelPoint{pal_label_t, 0}](int sample) mutable {
    point.sample = sample;
    LabelPoint const copy{point};
    compute(copy);
    return 0;
  });
}

pass assign_point_of_same_type() {
  return over(random_samples(day),
              [from = LabelPoint{pal_label_t, 0}, to = LabelPoint{pal_label_t, 0}](int sample) mutable {
                from.sample = sample;
                to = from;
                compute(to);
                return 0;
              });
}

pass assign_point_of_other_type() {
  return over(random_samples(day), [points = std::vector{LabelPoint{pal_label_t, 0}, LabelPoint{ntsc_label_t, 0}},
                                    to = LabelPoint{pal_label_t, 0}, turn = 0U](int) mutable {
    to = points[++turn % 2];
    compute(to);
    return 0;
  });
}

pass add_points() {
  return over(random_samples(day),
              [a = LabelPoint{pal_label_t, 0}, b = LabelPoint{pal_label_t, 100}](int sample) mutable {
                a.sample = sample;
                return (a + b).sample;
              });
}

Label unbounded_label() { return Label{LabelPoint{pal_label_t, 0}}; }

pass copy_label() {
  return over(random_samples(day), [label = unbounded_label()](int sample) mutable {
    label.start.sample = sample;
    Label const copy{label};
    compute(copy);
    return 0;
  });
}

pass point_of_label() {
  return over(random_samples(day),
              [label = unbounded_label()](int offset) { return label.get_label_point(offset).sample; });
}

pass clock_to_cel() {
  return over(random_samples(day), [](int sample) { return mPosn_Xlate_ClockToCel(sample / 25.0); });
}

}  // namespace

void add_values(works& list) {
  list.push_back({"make_point", make_point});
  list.push_back({"copy_point", copy_point});
  list.push_back({"assign_point/same_type", assign_point_of_same_type});
  list.push_back({"assign_point/other_type", assign_point_of_other_type});
  list.push_back({"point+point", add_points});
  list.push_back({"copy_label", copy_label});
  list.push_back({"point_of_label", point_of_label});
  list.push_back({"clock_to_cel", clock_to_cel});
}

}  // namespace bench
