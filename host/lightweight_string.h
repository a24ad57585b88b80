// The host's reference-counted string. Header-only: host and library share its layout.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>
#include <utility>

#include "host/os.h"

namespace Kiv {

// Counts references inside the counted object, through the host (host/os.h).
struct InternalRefCountTraits {
  using count_type = std::int32_t;  // handles on an object

  // Adds 1 to `count`.
  static void increment(count_type& count) noexcept { OS().reference_counts().increment(count); }

  // Subtracts 1 from `count`, and returns true if it became 0.
  [[nodiscard]] static bool decrement(count_type& count) noexcept {
    return OS().reference_counts().decrement(count);
  }
};

// The static analyzer cannot follow counts that the host keeps.
// NOLINTBEGIN(clang-analyzer-unix.Malloc)

// A handle of two words on a counted object: a pointer to the count and one to the object. Both are null in an
// empty handle. A handle without a count borrows an object that another handle keeps.
template <typename Object, typename DtorTraits, typename CountTraits>
class Ptr {
 public:
  using count_type = typename CountTraits::count_type;  // handles on an object

  // An empty handle.
  constexpr Ptr() noexcept = default;

  // Takes over the count of 1 that a new object starts with.
  Ptr(count_type* count, Object* object) noexcept : count_{count}, object_{object} {}

  // Raises the count.
  Ptr(Ptr const& other) noexcept : count_{other.count_}, object_{other.object_} { raise(); }

  // Raises the count of the other object before it lowers that of its own. A count that both have stays as it is.
  Ptr& operator=(Ptr const& other) noexcept {  // NOLINT(bugprone-unhandled-self-assignment): one count too
    if (count_ != other.count_) {
      other.raise();
      lower();
      count_ = other.count_;
    }
    object_ = other.object_;
    return *this;
  }

  // Empties the other handle. No count changes.
  Ptr(Ptr&& other) noexcept
      : count_{std::exchange(other.count_, nullptr)}, object_{std::exchange(other.object_, nullptr)} {}

  // Swaps the two handles. No count changes.
  Ptr& operator=(Ptr&& other) noexcept {
    std::swap(count_, other.count_);
    std::swap(object_, other.object_);
    return *this;
  }

  // Lowers the count, and destroys the object when the count falls to 0.
  constexpr ~Ptr() { lower(); }

  // Returns the object, or null if the handle is empty.
  [[nodiscard]] Object* get() const noexcept { return object_; }

  // Returns the number of handles that count the object, or 0 for a handle without a count. If it is 1, no other
  // thread can change it, and everything that earlier owners wrote is visible.
  [[nodiscard]] count_type count() const noexcept {
    return count_ ? std::atomic_ref{*count_}.load(std::memory_order_acquire) : 0;
  }

 private:
  void raise() const noexcept {
    if (count_) CountTraits::increment(*count_);
  }

  constexpr void lower() const noexcept {
    if (count_ && CountTraits::decrement(*count_)) DtorTraits::destroy(object_);
  }

  count_type* count_ = nullptr;
  Object* object_ = nullptr;
};

// NOLINTEND(clang-analyzer-unix.Malloc)

}  // namespace Kiv

// A text of up to 2^31 - 1 characters. Copies share one buffer until one of them is changed. Null and empty texts
// have no buffer and read as "".
template <typename Char>
class LightweightString {
 public:
  // The header of a buffer. The characters follow it in the same block of the host's allocator.
  struct Impl {
    Char* characters;         // the text, terminated
    std::uint32_t length;     // characters without the terminator
    std::uint32_t capacity;   // the smallest power of two greater than the length
    std::int32_t references;  // strings that share the buffer

    // Ends the life of a buffer.
    struct DtorTraits {
      // Gives the block back to the host's allocator.
      static void destroy(Impl* impl) noexcept { OS().allocator().free(impl); }
    };
  };

  // The empty string.
  constexpr LightweightString() noexcept = default;

  // Copies `text` up to its terminator.
  LightweightString(Char const* text) noexcept  // NOLINT(google-explicit-constructor): a text is a string
      : LightweightString{text, text ? std::char_traits<Char>::length(text) : 0} {}

  // Copies the first `length` characters of `text`. If the text is null, has 2^31 characters or more, or the host
  // has no memory, the string is empty.
  LightweightString(Char const* text, std::size_t length) noexcept
      : handle_{handle_on(copies_of(text, length, 1), 0)} {}

  // Sets several strings to one text, in one buffer that the first of them counts. The others borrow it: copies of
  // them change no count, and live only as long as the first string or a copy of it. Returns the characters of the
  // first for writing; those of the others follow, capacity() characters apart. Returns null,
  // and all strings are empty, where the constructor would make an empty string.
  template <std::size_t count>
  static Char* set_in_one_buffer(LightweightString* const (&strings)[count], Char const* text,
                                 std::size_t length) noexcept {
    Impl* const impls = copies_of(text, length, count);
    for (std::size_t i = 0; i < count; ++i) strings[i]->handle_ = handle_on(impls, i);
    return impls ? impls->characters : nullptr;
  }

  // Returns the text, terminated; "" if there is no buffer.
  [[nodiscard]] Char const* c_str() const noexcept { return impl() ? impl()->characters : empty_text; }

  // Returns the number of characters without the terminator.
  [[nodiscard]] std::uint32_t length() const noexcept { return impl() ? impl()->length : 0; }

  // Returns the characters that the buffer has room for, or 0 without a buffer.
  [[nodiscard]] std::uint32_t capacity() const noexcept { return impl() ? impl()->capacity : 0; }

  // Returns true if the length is 0.
  [[nodiscard]] bool empty() const noexcept { return length() == 0; }

  // Returns the number of strings that share the buffer, or 0 without a buffer.
  [[nodiscard]] std::int32_t references() const noexcept { return handle_.count(); }

  // Returns true if both strings use one buffer, or both have none. Equal texts in two buffers return false.
  [[nodiscard]] bool shares_buffer_with(LightweightString const& other) const noexcept {
    return impl() == other.impl();
  }

  // Returns the characters for writing, in a buffer that no other string shares. Returns null if the string is
  // empty, or if the host has no memory for the copy; the string is then empty.
  [[nodiscard]] Char* detach() noexcept {
    if (impl() && handle_.count() != 1) *this = LightweightString{c_str(), length()};
    return impl() ? impl()->characters : nullptr;
  }

  // Compares the texts, whether or not they share a buffer.
  friend bool operator==(LightweightString const& a, LightweightString const& b) noexcept {
    return a.length() == b.length() && std::char_traits<Char>::compare(a.c_str(), b.c_str(), a.length()) == 0;
  }

 private:
  using handle = Kiv::Ptr<Impl, typename Impl::DtorTraits, Kiv::InternalRefCountTraits>;

  static constexpr Char empty_text[1] = {};

  [[nodiscard]] Impl* impl() const noexcept { return handle_.get(); }

  [[nodiscard]] static constexpr std::uint32_t capacity_for(std::uint32_t length) noexcept {
    std::uint32_t capacity = 1;
    while (capacity <= length) capacity *= 2;
    return capacity;
  }

  // Returns the headers of some copies of a text, all in one block: first the headers, then the characters.
  [[nodiscard]] static Impl* copies_of(Char const* text, std::size_t length, std::size_t count) noexcept {
    if (!text || length == 0 || length >= 0x8000'0000U) return nullptr;
    auto const capacity = capacity_for(static_cast<std::uint32_t>(length));
    void* block = OS().allocator().allocate(count * (sizeof(Impl) + capacity * sizeof(Char)));
    if (!block) return nullptr;
    auto* const impls = static_cast<Impl*>(block);
    auto* characters = reinterpret_cast<Char*>(impls + count);
    for (std::size_t i = 0; i < count; ++i, characters += capacity) {
      std::memcpy(characters, text, length * sizeof(Char));
      characters[length] = Char{};
      new (impls + i) Impl{characters, static_cast<std::uint32_t>(length), capacity, 1};
    }
    return impls;
  }

  // Returns a handle on the first of the copies, which counts the block, or on one that borrows it.
  [[nodiscard]] static handle handle_on(Impl* impls, std::size_t i) noexcept {
    if (!impls) return {};
    return {i == 0 ? &impls->references : nullptr, impls + i};
  }

  handle handle_;
};
