// The host's reference-counted string. Header-only: the host and the library read the same layout.
#pragma once

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <new>
#include <string>

#include "host/os.h"

namespace Kiv {

// The reference count stands inside the counted object; the host raises and lowers it.
struct InternalRefCountTraits {
  using count_type = std::int32_t;

  static void increment(count_type& count) noexcept { OS().reference_counts().increment(count); }
  [[nodiscard]] static bool decrement(count_type& count) noexcept {
    return OS().reference_counts().decrement(count);
  }
};

// The static analyzer cannot follow counts that the host keeps.
// NOLINTBEGIN(clang-analyzer-unix.Malloc)

// A handle of two words on a counted object: its count and itself, both null for an empty handle. A new handle on
// a fresh object takes over the count of 1 that the object was made with.
template <typename Object, typename DtorTraits, typename CountTraits>
class Ptr {
 public:
  using count_type = typename CountTraits::count_type;

  constexpr Ptr() noexcept = default;
  Ptr(count_type* count, Object* object) noexcept : count_{count}, object_{object} {}

  Ptr(Ptr const& other) noexcept : count_{other.count_}, object_{other.object_} { raise(); }

  Ptr& operator=(Ptr const& other) noexcept {
    if (this == &other) return *this;
    other.raise();
    lower();
    count_ = other.count_;
    object_ = other.object_;
    return *this;
  }

  constexpr ~Ptr() { lower(); }

  [[nodiscard]] Object* get() const noexcept { return object_; }

  // The owners, 0 for an empty handle. A 1 is final, and what the owners that let go did is visible here.
  [[nodiscard]] count_type count() const noexcept {
    return count_ ? std::atomic_ref{*count_}.load(std::memory_order_acquire) : 0;
  }

 private:
  void raise() const noexcept {
    if (count_) CountTraits::increment(*count_);
  }

  constexpr void lower() noexcept {
    if (count_ && CountTraits::decrement(*count_)) DtorTraits::destroy(object_);
    count_ = nullptr;
    object_ = nullptr;
  }

  count_type* count_ = nullptr;
  Object* object_ = nullptr;
};

// NOLINTEND(clang-analyzer-unix.Malloc)

}  // namespace Kiv

// A text that copies share until one of them is changed. Null and empty texts have no buffer at all and read as
// "".
template <typename Char>
class LightweightString {
 public:
  // Header and characters are one block of the host's allocator.
  struct Impl {
    Char* characters;
    std::uint32_t length;    // characters, the terminator not counted
    std::uint32_t capacity;  // the smallest power of two greater than the length
    std::int32_t references;

    struct DtorTraits {
      static void destroy(Impl* impl) noexcept { OS().allocator().free(impl); }
    };
  };

  constexpr LightweightString() noexcept = default;
  LightweightString(Char const* text) noexcept  // NOLINT(google-explicit-constructor): a text is a string
      : LightweightString{text, text ? std::char_traits<Char>::length(text) : 0} {}

  // The first `length` characters of `text`. Texts of 2^31 characters and more, and texts for which the host has
  // no memory, become the empty string.
  LightweightString(Char const* text, std::size_t length) noexcept : handle_{copy_of(text, length)} {}

  [[nodiscard]] Char const* c_str() const noexcept { return impl() ? impl()->characters : empty_text; }
  [[nodiscard]] std::uint32_t length() const noexcept { return impl() ? impl()->length : 0; }
  [[nodiscard]] std::uint32_t capacity() const noexcept { return impl() ? impl()->capacity : 0; }
  [[nodiscard]] bool empty() const noexcept { return length() == 0; }
  [[nodiscard]] std::int32_t references() const noexcept { return handle_.count(); }

  // Whether both stand on one buffer; two strings without a buffer do.
  [[nodiscard]] bool shares_buffer_with(LightweightString const& other) const noexcept {
    return impl() == other.impl();
  }

  // The characters for writing, in a buffer that no other string shares; null for the empty string.
  [[nodiscard]] Char* detach() noexcept {
    if (handle_.count() > 1) *this = LightweightString{c_str(), length()};
    return impl() ? impl()->characters : nullptr;
  }

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

  [[nodiscard]] static handle copy_of(Char const* text, std::size_t length) noexcept {
    if (!text || length == 0 || length >= 0x8000'0000U) return {};
    auto const capacity = capacity_for(static_cast<std::uint32_t>(length));
    void* block = OS().allocator().allocate(sizeof(Impl) + capacity * sizeof(Char));
    if (!block) return {};
    auto* characters = reinterpret_cast<Char*>(static_cast<char*>(block) + sizeof(Impl));
    std::memcpy(characters, text, length * sizeof(Char));
    characters[length] = Char{};
    auto* impl = new (block) Impl{characters, static_cast<std::uint32_t>(length), capacity, 1};
    return {&impl->references, impl};
  }

  handle handle_;
};
