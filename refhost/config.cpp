#include "host/config.h"

#include <cstring>
#include <functional>
#include <map>
#include <mutex>

#include "refhost/refhost.h"
#include "refhost/whole_number.h"

namespace {

constinit std::mutex store_mutex;

// Never destroyed: converters ask for settings until the process ends.
auto& store() {
  static auto& texts = *new std::map<std::string, std::string, std::less<>>;
  return texts;
}

class stored_configuration final : public configb {
 public:
  int in(LightweightString<char> const& key, char* buffer) const override {
    auto const text = refhost::config_text(key.c_str());
    if (!text || !buffer) return 1;
    auto const length = text->copy(buffer, text_size - 1);
    buffer[length] = '\0';
    return 0;
  }
};

constinit stored_configuration the_configuration;

}  // namespace

int config_int(char const* key, int default_value) {
  if (!key) return default_value;
  auto const text = refhost::config_text(key);
  return text ? refhost::whole_number(*text).value_or(default_value) : default_value;
}

namespace refhost {

void set_config(std::string_view key, std::string_view text) {
  std::scoped_lock const lock{store_mutex};
  store().insert_or_assign(std::string{key}, std::string{text});
}

void erase_config(std::string_view key) {
  std::scoped_lock const lock{store_mutex};
  if (auto const entry = store().find(key); entry != store().end()) store().erase(entry);
}

std::optional<std::string> config_text(std::string_view key) {
  std::scoped_lock const lock{store_mutex};
  auto const entry = store().find(key);
  if (entry == store().end()) return std::nullopt;
  return entry->second;
}

configb& configuration() { return the_configuration; }

config_guard::config_guard(std::string_view key, std::optional<std::string_view> text)
    : key_{key}, before_{config_text(key)} {
  if (text)
    set_config(key, *text);
  else
    erase_config(key);
}

config_guard::~config_guard() {
  if (before_)
    set_config(key_, *before_);
  else
    erase_config(key_);
}

}  // namespace refhost
