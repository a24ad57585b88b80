#include "bench/work.h"

namespace bench {

works all_works() {
  works list;
  for (auto const add : {add_timecode, add_film, add_keep_strings, add_values, add_frame_counts}) add(list);
  return list;
}

}  // namespace bench
