#include "labelsbase/MediumRoll/medium_roll.h"

#include <cstring>
#include <iterator>
#include <optional>

#include "host/config.h"
#include "host/tokeniser.h"
#include "labelsbase/MediumRoll/medium_rows.h"
#include "labelsbase/support/text.h"

using namespace labelsbase;

namespace {

constinit MediumRollIdent const invalid_ident{};

// The compiler builds it and nothing destroys it, so static objects of host and library may use it in any order.
union invalid_roll_storage {
  MediumRoll roll;

  constexpr invalid_roll_storage() noexcept : roll{MediumRollIdent{}} {}
  ~invalid_roll_storage() {}  // NOLINT(modernize-use-equals-default): a default one would be deleted
};

constinit invalid_roll_storage const invalid_roll;

// The words by generation.
constexpr char const* generation_words[] = {"gen?", "anyGen", "1stGen", "2ndGen", "3rdGen", "4thGen"};

char const* generation_word(MediumRollGeneration generation) noexcept {
  bool const is_known = generation >= 0 && generation < static_cast<int>(std::size(generation_words));
  return generation_words[is_known ? generation : Gen_unknown];
}

// Returns the generation of a text that names none.
MediumRollGeneration default_generation(MediumRollMedium medium) noexcept {
  if (medium == Medium_video) return Gen_1st;
  if (medium == Medium_audio) return Gen_2nd;
  return Gen_any;
}

MediumRollIdent read_identifier(char const* text, UserLabelType family) noexcept {
  text_reader in{text};
  auto const number = in.number(2);
  if (!number || *number < Medium_any || *number >= medium_count) return {};
  auto const medium = static_cast<MediumRollMedium>(*number);

  auto const generation = in.literal(',') ? in.number(1) : std::nullopt;
  if (generation.value_or(0) == 0) return {family == User_ink ? Medium_ink : medium, default_generation(medium)};
  if (*generation > Gen_4th) return {};
  return {medium, static_cast<MediumRollGeneration>(*generation)};
}

bool is_valid(MediumRollIdent const& ident) noexcept {
  return ident.medium != Medium_none && ident.generation != Gen_unknown;
}

bool accepts(MediumRollMedium asked, MediumRollMedium other) noexcept {
  if (asked == Medium_any || asked == other) return true;
  if (other == Medium_out_24p && (asked == Medium_out_2398p || asked == Medium_out_2398i)) return true;

  // film24 counts as the source only if it asks; film24_out counts as the output on both sides.
  if (asked == Medium_film24) asked = Medium_src_24p;
  if (asked == Medium_film24_out) asked = Medium_out_24p;
  if (other == Medium_film24_out) other = Medium_out_24p;
  auto const& a = row_of(asked);
  auto const& b = row_of(other);
  return a.role != medium_role::general && a.role == b.role && a.rate == b.rate;
}

}  // namespace

int MediumRollIdent::MediumRollId_fits_this(MediumRollIdent const& other) const noexcept {
  if (!is_valid(*this) || !is_valid(other)) return 0;
  if (generation != Gen_any && generation != other.generation) return 0;
  return accepts(medium, other.medium) ? 1 : 0;
}

char const* MediumRollId_name_str() noexcept { return "MediumRollId"; }

int MediumRollId_to_string(char* buffer, MediumRollIdent const& ident) noexcept {
  char unwanted[identifier_text_size];
  text_writer out{buffer ? buffer : unwanted, identifier_text_size};
  out.number(ident.medium).put(',').number(ident.generation);
  return static_cast<int>(out.length());
}

void MediumRollId_from_string(char const* text, MediumRollIdent& out, UserLabelType family) noexcept {
  out = read_identifier(text, family);
}

void MediumRollId_from_tokens(tokeniser& tokens, MediumRollIdent& out) {
  out = read_identifier(tokens.next(), User_none);
}

char const* MediumRollId_to_UserString(MediumRollIdent const& ident) noexcept {
  static thread_local char text[32];
  text_writer out{text};
  return out.put(row_of(ident.medium).user_word).put(',').put(generation_word(ident.generation)).c_str();
}

MediumRollIdent const& get_invalid_MediumRollIdent() noexcept { return invalid_ident; }

MediumRoll const& invalid_MediumRoll() noexcept { return invalid_roll.roll; }

MediumRoll::MediumRoll(char const* text) { fill_from_string(text); }

MediumRoll::MediumRoll(MediumRollIdent const& key, configb* config) {
  if (!config) return;
  char identifier[identifier_text_size];
  MediumRollId_to_string(identifier, key);
  char config_key[sizeof "MediumRoll" + identifier_text_size];
  text_writer{config_key}.put("MediumRoll").put(identifier);

  char text[configb::text_size + 1] = "";  // terminated, whatever the host copies
  if (config->in(config_key, text) == 0) fill_from_string(text);
}

MediumRoll::MediumRoll(MediumRoll const& other) noexcept
    : ident{other.ident}, reelid{other.reelid.c_str(), other.reelid.length()} {}

MediumRoll::~MediumRoll() = default;

void MediumRoll::set_reelid(LightweightString<char> const& reel) noexcept { reelid = reel; }

void MediumRoll::fill_from_string(char const* text) {
  if (!text) return;
  constexpr int revision = 1;
  auto const is = [](char const* token, char const* word) { return token && std::strcmp(token, word) == 0; };

  tokeniser tokens{text, ": "};
  if (!is(tokens.next(), "REV")) return;
  if (text_reader{tokens.next()}.number() != revision) return;
  if (!is(tokens.next(), MediumRollId_name_str())) return;
  char const* const identifier = tokens.next();
  if (!identifier) return;
  ident = read_identifier(identifier, User_none);

  if (!is(tokens.next(), "reelid")) return;
  if (char const* const reel = tokens.next()) set_reelid(reel);
}

bool MediumRoll::operator==(MediumRoll const& other) const noexcept {
  return reelid.shares_buffer_with(other.reelid) && ident.MediumRollId_fits_this(other.ident);
}

bool MediumRoll::operator!=(MediumRoll const& other) const noexcept { return !(*this == other); }
