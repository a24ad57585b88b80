// What material is on: identifiers of a medium and a generation, and rolls, which have a reel too.
//
//   text                                         field        written      read
//   28,1                                         medium       any int      1 to 70, up to two characters
//                                                generation   any int      1 to 5, one character; see
//                                                                          MediumRollId_from_string
//   REV: 1 MediumRollId: 28,1 reelid: A001       reel         by hosts     one word; may be missing
//
//   MediumRollIdent{Medium_film24, Gen_any}.MediumRollId_fits_this({Medium_src_24p, Gen_1st})   // 1
//   MediumRollId_to_UserString({Medium_src_24p, Gen_1st})                                       // "24p,1stGen"
//   MediumRoll{"REV: 1 MediumRollId: 28,1 reelid: A001"}.reelid.c_str()                         // "A001"
#pragma once

#include <cstddef>
#include <cstdint>

#include "host/lightweight_string.h"
#include "labelsbase/MediumRoll/medium.h"
#include "labelsbase/export.h"
#include "labelsbase/host_allocated.h"

class configb;
class tokeniser;

// How many copies the material is away from the original. Hosts store the numbers. Callers may hand in any 32-bit
// value.
enum MediumRollGeneration : std::int32_t {
  Gen_unknown = 0,  // makes an identifier invalid
  Gen_any = 1,      // matches every generation
  Gen_1st,
  Gen_2nd,
  Gen_3rd,
  Gen_4th,
};

// A medium and a generation. It is invalid if either is 0.
struct LABELSBASE_API MediumRollIdent {
  MediumRollMedium medium = Medium_none;          // what the material is on
  MediumRollGeneration generation = Gen_unknown;  // how many copies away from the original

  // Returns 1 if `other` can stand where this one is asked for, otherwise 0. Medium_any and Gen_any accept all.
  // The progressive and the interlaced medium of one rate and role accept each other. An invalid identifier
  // neither fits nor accepts.
  //
  // Deliberately one-sided: 24 frame film accepts the 24 frame sources, but they do not accept it; the 23.976
  // outputs accept the progressive 24 frame output.
  [[nodiscard]] int MediumRollId_fits_this(MediumRollIdent const& other) const noexcept;
};

namespace labelsbase {

// Characters of the longest identifier text, "-2147483648,-2147483648", including the terminator.
inline constexpr int identifier_text_size = 24;

}  // namespace labelsbase

// Returns "MediumRollId", the keyword before an identifier in a stored roll.
[[nodiscard]] LABELSBASE_API char const* MediumRollId_name_str() noexcept;

// Writes an identifier, for example "28,1", and returns the number of its characters. The buffer holds at least
// labelsbase::identifier_text_size characters; a null buffer is not written to.
LABELSBASE_API int MediumRollId_to_string(char* buffer, MediumRollIdent const& ident) noexcept;

// Reads an identifier. `out` becomes {0, 0} if the medium is not from 1 to 70 or the generation not from 0 to 5. A
// generation that is missing or 0 becomes the first for video, the second for audio and any for all other media;
// only then, User_ink turns the medium into Medium_ink. A null text reads as an empty one.
//
//   medium ("," generation)?   each: blank* ("+" | "-")? digit+, in up to 2 characters and 1
LABELSBASE_API void MediumRollId_from_string(char const* text, MediumRollIdent& out,
                                             UserLabelType family) noexcept;

// Reads the next token likewise, for no family. `out` becomes {0, 0} if no token is left.
LABELSBASE_API void MediumRollId_from_tokens(tokeniser& tokens, MediumRollIdent& out);

// Returns the text for users, for example "24p,1stGen". Media without a word read "med?", generations "gen?". The
// text is valid until the next call in the same thread.
[[nodiscard]] LABELSBASE_API char const* MediumRollId_to_UserString(MediumRollIdent const& ident) noexcept;

// Returns {0, 0}. Static objects may call this while they are built and destroyed.
[[nodiscard]] LABELSBASE_API MediumRollIdent const& get_invalid_MediumRollIdent() noexcept;

// A roll of film or tape: an identifier, and the name of a reel. Both host and library may make and delete rolls.
class LABELSBASE_API MediumRoll : public labelsbase::host_allocated {
 public:
  MediumRollIdent ident;           // medium and generation
  LightweightString<char> reelid;  // empty if there is no reel

  // A roll without a reel.
  constexpr MediumRoll(MediumRollMedium medium, MediumRollGeneration generation) noexcept
      : MediumRoll{MediumRollIdent{medium, generation}} {}
  constexpr MediumRoll(MediumRollIdent const& identifier) noexcept : ident{identifier} {}

  // Starts as {0, 0} without a reel, then fills from the text. A null text changes nothing.
  MediumRoll(char const* text);

  // Fills from the text that the configuration keeps under "MediumRoll" and the key, "MediumRoll28,1" for example.
  // Without such a text, or with a null configuration, the roll is {0, 0} without a reel. The key is not copied.
  MediumRoll(MediumRollIdent const& key, configb* config);

  // Copies the reel into a buffer of its own, so a roll with a reel does not equal its copy.
  MediumRoll(MediumRoll const& other) noexcept;

  // Shares the buffer of the reel, as set_reelid does.
  MediumRoll& operator=(MediumRoll const& other) noexcept = default;

  virtual ~MediumRoll();

  // Shares the buffer of the given string.
  void set_reelid(LightweightString<char> const& reel) noexcept;

  // Reads a stored roll. A text that does not begin like one changes nothing. An identifier that cannot be read
  // becomes {0, 0}, but the reel is still read; a missing reel leaves the old one.
  //
  //   "REV" 1 "MediumRollId" identifier ("reelid" word)?   separated by any number of blanks and colons
  void fill_from_string(char const* text);

  // Returns whether both reels share one buffer (or both have none) and the identifier of `other` fits this one's.
  // Deliberate: equal names in two buffers differ, the order of the operands matters, and an invalid roll does not
  // equal itself.
  [[nodiscard]] bool operator==(MediumRoll const& other) const noexcept;

  // Returns whether == is false.
  [[nodiscard]] bool operator!=(MediumRoll const& other) const noexcept;
};

// Returns {0, 0} without a reel. Static objects may call this while they are built and destroyed.
[[nodiscard]] LABELSBASE_API MediumRoll const& invalid_MediumRoll() noexcept;
