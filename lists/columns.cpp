#include "lists/columns.h"

#include <array>

#include "labelsbase/characters.h"

namespace lists {
namespace {

struct column_row {
  column_role role;
  std::string_view headings;  // small letters and digits, separated by blanks
};

// clang-format off
constexpr column_row column_rows[] = {
    {column_role::name,          "name clip clipname event number shot"},
    {column_role::tracks,        "tracks track channels"},
    {column_role::source_in,     "start in sourcein srcin sourcestart starttc startcode tcin tcstart starttimecode"},
    {column_role::source_out,    "end out sourceout srcout sourceend endtc endcode tcout tcend endtimecode"},
    {column_role::source_length, "duration length dur sourceduration sourcelength"},
    {column_role::record_in,     "recordin recin recordstart recstart timelinein programin masterin"},
    {column_role::record_out,    "recordout recout recordend recend timelineout programout masterout"},
    {column_role::record_length, "recordduration recordlength recduration timelineduration"},
    {column_role::mark_in,       "markin"},
    {column_role::mark_out,      "markout"},
    {column_role::mark_length,   "inout"},
    {column_role::other_rate,    "tc24 tc25 tc25p tc25pd tc30 tc30np tc60 auxtc24 filmtc soundtc"},
};
// clang-format on

// Whether one of the words, separated by blanks, is the wanted one.
constexpr bool has_word(std::string_view words, std::string_view wanted) noexcept {
  for (;;) {
    auto const blank = words.find(' ');
    if (words.substr(0, blank) == wanted) return true;
    if (blank == std::string_view::npos) return false;
    words.remove_prefix(blank + 1);
  }
}

}  // namespace

column_role role_of(std::string_view heading) noexcept {
  std::array<char, 32> plain{};
  std::size_t size = 0;
  for (char const c : heading) {
    if (!labelsbase::is_alphanumeric(c)) continue;
    if (size == plain.size()) return column_role::other;
    plain[size++] = labelsbase::is_upper(c) ? static_cast<char>(c + 32) : c;
  }
  for (auto const& [role, headings] : column_rows)
    if (has_word(headings, {plain.data(), size})) return role;
  return column_role::other;
}

}  // namespace lists
