// Reads any text as an identifier of a roll and as a stored roll. An identifier must be what sscanf finds, and
// what is written must be read back.

#include "fuzz/fuzz_input.h"
#include "labelsbase/MediumRoll.h"
#include "refhost/refhost.h"

extern int const fuzz_words = 3;

namespace {

bool are_same(MediumRollIdent const& a, MediumRollIdent const& b) {
  return a.medium == b.medium && a.generation == b.generation;
}

// Reads an identifier as the C library would. A generation of 0 depends on the medium.
MediumRollIdent read_as_sscanf_does(char const* text, MediumRollIdent const& read) {
  int medium = 0, generation = 0;
  std::sscanf(text, "%2d,%1d", &medium, &generation);
  if (medium < 1 || medium > 70 || generation < 0 || generation > 5) return {};
  if (generation == 0) return read;
  return {static_cast<MediumRollMedium>(medium), static_cast<MediumRollGeneration>(generation)};
}

void demand_identifier(std::string const& text, UserLabelType family) {
  MediumRollIdent ident{Medium_video, Gen_4th}, again = ident, kept = ident;
  MediumRollId_from_string(text.c_str(), ident, family);
  MediumRollId_from_string(text.c_str(), again, family);
  demand(are_same(ident, again), "an identifier reads the same twice", text);
  demand(are_same(ident, read_as_sscanf_does(text.c_str(), ident)), "an identifier is what sscanf finds", text);
  demand((ident.medium == Medium_none) == (ident.generation == Gen_unknown), "both are known, or neither", text);
  if (ident.medium == Medium_none) return;

  char written[labelsbase::identifier_text_size];
  MediumRollId_to_string(written, ident);
  MediumRollId_from_string(written, kept, family);
  demand(are_same(ident, kept), "a written identifier is read back", text);
  demand(ident.MediumRollId_fits_this(ident) == 1, "an identifier fits itself", text);
}

// Any numbers are written as snprintf writes them.
void demand_written(MediumRollIdent const& ident) {
  char expected[64];
  int const length = std::snprintf(expected, sizeof expected, "%d,%d", ident.medium, ident.generation);
  guarded<labelsbase::identifier_text_size> buffer;
  demand(MediumRollId_to_string(buffer.text(), ident) == length, "the length is that of the text", expected);
  buffer.demand_whole(expected);
  demand(!std::strcmp(buffer.text(), expected), "an identifier is written as snprintf writes it", expected);
  demand(std::strlen(MediumRollId_to_UserString(ident)) > 2, "users see two words", expected);
}

void demand_roll(std::string const& text) {
  auto const before = refhost::allocator_statistics().live_blocks;
  {
    MediumRoll const roll{text.c_str()};
    auto const [medium, generation] = roll.ident;
    demand(medium == Medium_none || labelsbase::is_medium(medium), "a roll is on a medium", text);
    demand(generation >= Gen_unknown && generation <= Gen_4th, "a roll has a generation", text);
    demand(text.find(roll.reelid.c_str()) != std::string::npos, "the reel is in the text", text);

    MediumRoll other{Medium_video, Gen_2nd};
    other.fill_from_string(text.c_str());
    bool const refused = are_same(other.ident, {Medium_video, Gen_2nd});
    demand(refused || are_same(other.ident, roll.ident), "a roll reads the same twice", text);
    if (refused) demand(other.reelid.c_str() == std::string_view{roll.reelid.c_str()}, "no roll, no reel", text);
    demand(std::string_view{MediumRoll{roll}.reelid.c_str()} == roll.reelid.c_str(), "a copy has the reel", text);
  }
  demand(refhost::allocator_statistics().live_blocks == before, "a roll gives its memory back", text);
}

}  // namespace

int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  fuzz_input input{data, size};
  auto const family = input.choice<UserLabelType>(9);
  auto const medium = static_cast<MediumRollMedium>(input.number());
  demand_written({medium, static_cast<MediumRollGeneration>(input.number())});
  demand_identifier(input.text(), family);
  demand_roll(input.text());
  return 0;
}
