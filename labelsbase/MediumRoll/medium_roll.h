// On what material lives: identifiers of a medium and a generation, and rolls of such with a reel.
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/lightweight_string.h"
#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/export.h"

class configb;
class tokeniser;

// How many copies away from the original. The numbers are stored; any 32-bit value may be handed in.
enum MediumRollGeneration : std::int32_t {
  Gen_unknown = 0,  // makes an identifier invalid
  Gen_any = 1,      // matches every generation
  Gen_1st,
  Gen_2nd,
  Gen_3rd,
  Gen_4th,
};

// A medium and a generation; invalid when either is 0.
struct LABELSBASE_API MediumRollIdent {
  MediumRollMedium medium = Medium_none;
  MediumRollGeneration generation = Gen_unknown;

  // 1 when `other` will do where this one is asked for, else 0. Any accepts all; the progressive and the
  // interlaced medium of one rate and role accept each other. An invalid identifier neither fits nor accepts.
  //
  // Deliberately one-sided: 24 frame film accepts the 24 frame sources, which do not accept it, and the 23.976
  // outputs accept the progressive 24 frame output.
  [[nodiscard]] int MediumRollId_fits_this(MediumRollIdent const& other) const noexcept;
};

namespace labelsbase {

// Characters of the longest identifier text, "-2147483648,-2147483648", the terminator included.
inline constexpr int identifier_text_size = 24;

}  // namespace labelsbase

// "MediumRollId": the keyword before an identifier in a stored roll.
[[nodiscard]] LABELSBASE_API char const* MediumRollId_name_str() noexcept;

// Writes an identifier, for example "28,1", and gives the number of its characters. The buffer has room for
// labelsbase::identifier_text_size; a null one is not written to.
LABELSBASE_API int MediumRollId_to_string(char* buffer, MediumRollIdent const& ident) noexcept;

// Reads an identifier: a medium of at most two characters, 1 to 70, a comma, and a generation of one digit, 1 to
// 5; {0, 0} for other numbers, and when there is none. Where no generation can be read, or a 0, video has the
// first, audio the second, and all else any; and the ink family then turns the medium into Medium_ink.
LABELSBASE_API void MediumRollId_from_string(char const* text, MediumRollIdent& out,
                                             UserLabelType family) noexcept;

// Takes the next token and reads it, for no particular family; {0, 0} when none is left.
LABELSBASE_API void MediumRollId_from_tokens(tokeniser& tokens, MediumRollIdent& out);

// What users read, for example "24p,1stGen"; "med?" and "gen?" stand for what has no word. The text is good until
// the next call in the same thread.
[[nodiscard]] LABELSBASE_API char const* MediumRollId_to_UserString(MediumRollIdent const& ident) noexcept;

// {0, 0}. It may be asked for at any time, also while static objects are built and destroyed.
[[nodiscard]] LABELSBASE_API MediumRollIdent const& get_invalid_MediumRollIdent() noexcept;

// A roll of film or tape: an identifier, and a reel that has its name. Both sides may make and delete rolls.
class LABELSBASE_API MediumRoll {
 public:
  MediumRollIdent ident;
  LightweightString<char> reelid;  // empty for no reel

  constexpr MediumRoll(MediumRollMedium medium, MediumRollGeneration generation) noexcept
      : MediumRoll{MediumRollIdent{medium, generation}} {}
  constexpr MediumRoll(MediumRollIdent const& identifier) noexcept : ident{identifier} {}

  // {0, 0} without a reel, then fill_from_string.
  MediumRoll(char const* text);

  // The roll that is stored under "MediumRoll" and the key, for example "MediumRoll28,1". {0, 0} without a reel
  // when there is none; the key itself is not copied.
  MediumRoll(MediumRollIdent const& key, configb* config);

  // The copy has a reel buffer of its own, so a copy of a roll with a reel does not equal it. Assignment shares
  // the buffer, as set_reelid does.
  MediumRoll(MediumRoll const& other) noexcept;
  MediumRoll& operator=(MediumRoll const& other) noexcept = default;

  virtual ~MediumRoll();

  // Shares the given string's buffer.
  void set_reelid(LightweightString<char> const& reel) noexcept;

  // Reads a stored roll: "REV: 1 MediumRollId: 28,1 reelid: A001", where colons and blanks separate and the reel
  // may be missing, which leaves the one there is. Other texts change nothing; an identifier that cannot be read
  // becomes {0, 0}, and the reel is read all the same.
  void fill_from_string(char const* text);

  // Whether the reels are one buffer (or both none) and the other's identifier fits this one's. Deliberate: equal
  // texts in two buffers differ, order matters as it does in fitting, and an invalid roll does not equal itself.
  [[nodiscard]] bool operator==(MediumRoll const& other) const noexcept;
  [[nodiscard]] bool operator!=(MediumRoll const& other) const noexcept;

  // Rolls of either side come from the host's allocator and go back to it, whoever deletes them.
  static void* operator new(std::size_t bytes);
  static void* operator new(std::size_t, void* place) noexcept { return place; }
  static void operator delete(void* block) noexcept;
  static void operator delete(void*, void*) noexcept {}
};

// {0, 0} without a reel. It may be asked for at any time, also while static objects are built and destroyed.
[[nodiscard]] LABELSBASE_API MediumRoll const& invalid_MediumRoll() noexcept;
